// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QThread>

// Worker thread of Util::callexternapp: runs one command to its end, then holds its output.
class callexternappT : public QThread
{
    Q_OBJECT

public:
    // Only the program is quoted; blanks in commandArgs split.
    callexternappT(const QString& commandProgram, const QString& commandArgs);

    // Standard output as Latin-1 up to the first zero byte. Valid when the thread has finished.
    QString output() const;

protected:
    void run() override;

private:
    QString program;
    QString args;
    QString result;
};

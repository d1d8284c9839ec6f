// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QThread>

// Worker thread of Util::callexternappWriteToStdin: runs one command to its end, feeding it a text,
// then holds its output.
class callexternappWriteToStdinT : public QThread
{
    Q_OBJECT

public:
    // Only the program is quoted; blanks in commandArgs split. stdinText reaches the command as
    // Latin-1, up to its first zero character.
    callexternappWriteToStdinT(const QString& commandProgram, const QString& commandArgs,
                               const QString& stdinText);

    // Standard output as Latin-1 up to the first zero byte. Valid when the thread has finished.
    QString output() const;

protected:
    void run() override;

private:
    QString program;
    QString args;
    QString input;
    QString result;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QElapsedTimer>
#include <QObject>

// Answers a page's dialogs as soon as they show and takes the time of what lies between them.
class BenchDialogs : public QObject
{
    Q_OBJECT

public:
    BenchDialogs();

    // What the next file dialogs get.
    void setPath(const QString& newPath) { path = newPath; }
    // Processes events until a message has come. Milliseconds since the progress dialog showed.
    double waitForMessage();
    // Milliseconds since the progress dialog showed.
    double sinceProgress() const;
    // Milliseconds since a file dialog got its answer.
    double sinceChoice() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void answerFileDialog();
    void answerMessage();

private:
    QString path;
    QElapsedTimer clock;
    QElapsedTimer choice;
    double messageTime = 0;
};

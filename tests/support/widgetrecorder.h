// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QStringList>

class QLabel;
class QProgressBar;

// Notes every text and every value that a progress dialog has shown, as long as events were
// processed meanwhile.
class WidgetRecorder : public QObject
{
    Q_OBJECT

public:
    explicit WidgetRecorder(const QWidget* dialog);

    // Without what the dialog showed at first; oldest first, without repetitions.
    const QStringList& texts() const { return seenTexts; }
    const QList<int>& values() const { return seenValues; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QLabel* label;
    const QProgressBar* bar;
    QString lastText;
    int lastValue;
    QStringList seenTexts;
    QList<int> seenValues;
};

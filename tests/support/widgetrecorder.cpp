// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "widgetrecorder.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>

WidgetRecorder::WidgetRecorder(const QWidget* dialog)
    : label(dialog->findChild<QLabel*>("label"))
    , bar(dialog->findChild<QProgressBar*>())
    , lastText(label->text())
    , lastValue(bar->value())
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool WidgetRecorder::eventFilter(QObject*, QEvent*)
{
    if (label->text() != lastText)
        seenTexts.append(lastText = label->text());
    if (bar->value() != lastValue)
        seenValues.append(lastValue = bar->value());
    return false;
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

class CBaseImageCtrl;

// Shows picture buttons to screen readers as what they are, buttons that can be pressed, instead
// of unnamed panels. Qt asks for it; CBaseImageCtrl calls install().
class ImageCtrlAccessible : public QAccessibleWidget
{
public:
    explicit ImageCtrlAccessible(CBaseImageCtrl* control);

    // Makes Qt use this class for every CBaseImageCtrl. Further calls do nothing.
    static void install();

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;
};

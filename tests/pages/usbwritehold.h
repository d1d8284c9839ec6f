// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "usbwritefixture.h"

#include <QTimer>

#include <functional>

// Holds a burn of an image with a large or a small install.wim in the middle of one step, and calls
// back from within the page's waiting once the step's tool has begun. The tool goes on afterwards.
class UsbWriteHold
{
public:
    // One step that the page waits for.
    struct Step
    {
        const char* name;
        QString program;
        QStringList arguments;
        bool isLarge;
        // What the progress dialog shows; nothing while it is hidden.
        QString progressText;
        int maximum;
        // Nothing has been done to the disk yet.
        bool isEarly;
    };

    // In the order in which they run.
    static QList<Step> steps();
    static int indexOf(const QString& name);
    // A row for each.
    static void addRows();

    // The callback returns true when the tool may go on; it is called again until then.
    UsbWriteHold(UsbWriteFixture& fixture, const Step& step, const std::function<bool()>& callback);

    // The step was held and the callback content.
    bool isDone() const { return done; }

private:
    void look();
    bool isHeld() const;

    UsbWriteFixture& fixture;
    Step step;
    std::function<bool()> callback;
    QTimer timer;
    int looks = 0;
    bool inCallback = false;
    bool done = false;
};

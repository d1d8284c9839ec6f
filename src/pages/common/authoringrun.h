// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "toolrun.h"

#include <QString>

class CProgressDialog;

// Writing an image with the authoring tool, as the pages do that make one: its progress in the
// page's progress dialog and the message at its end. The page has the slots OnCreateOutput(QString)
// and OnCreateFinished() and passes on what they get. User-interface thread.
class AuthoringRun
{
public:
    // The dialog outlives this object.
    explicit AuthoringRun(CProgressDialog& progress);

    // Turns the dialog to the writing, of which text tells; nothing is done yet.
    void announce(const QString& text);
    // Starts the tool, which is to write isoPath. A run in progress is let go: stop() it first if
    // it shall end.
    void start(QObject* page, const QString& isoPath, const QStringList& arguments);
    // Ends the tool, if it runs; returns at once. What it has written stays.
    void stop();
    // One piece of output. sender is what QObject::sender() gives in the page's slot.
    void read(const QObject* sender, const QString& line);
    // The tool has ended, in whatever way: hides the dialog and shows the success message, with a
    // way to the image's folder.
    void finish(const QObject* sender, const QString& message);

private:
    CProgressDialog& progress;
    ToolRun run;
    QString isoPath;
};

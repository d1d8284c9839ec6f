// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "imagedialog.h"

#include <QPointer>
#include <QTemporaryDir>

#include <functional>

class CImageButton;
class CProgressDialog;

// So long that only what never comes needs it.
constexpr int patienceMs = 60'000;

// A page as the main window lays it out, on a window of the same size, and a folder for its files.
class PageFixture
{
public:
    // Takes the page, puts it into the window and shows it.
    explicit PageFixture(ImageDialog* page);
    virtual ~PageFixture();
    PageFixture(const PageFixture&) = delete;
    PageFixture& operator=(const PageFixture&) = delete;

    // Clicks one of the page's buttons.
    void press(const QString& name) const;
    CImageButton* button(const QString& name) const;
    // The page's own, which stands apart from it on the screen.
    CProgressDialog* progress() const;
    QString progressText() const;
    int progressValue() const;
    int progressMaximum() const;
    // How one of the page's buttons looks: empty when each of its three states shows the picture of
    // that state, else the first picture that it does not show.
    QString missedPicture(const QString& name, const QString& picture,
                          const QString& caption) const;
    // Waits without receiving anything from other threads meanwhile.
    static bool waitWithoutEvents(const std::function<bool()>& condition);
    // Clicks Stop in the progress dialog.
    void pressStop() const;
    // The message that is open, as the progress dialog is modal as well.
    static QWidget* message();
    // Waits until no tool runs and all that their runners have sent has been received: what has not
    // come by then does not come any more. Gives up long before a tool that sleeps for a minute
    // ends by itself.
    static bool waitUntilToolsGone(int limitMs = 30000);
    // Waits for the end of the tools without receiving anything: all that their runners have sent
    // is on its way then. There has to be a call of the tool already.
    static bool waitUntilAllIsSent(int limitMs = 60000);
    // Waits for the message that follows every run, closes it and returns its text.
    QString waitForMessage(int limitMs = 60000) const;
    // The same after doing what leads to the message, which may be there before that is done.
    // look is done while it is open, and then the button of this name pressed.
    QString answerMessage(const std::function<void()>& first, const QString& button,
                          const std::function<void()>& look, int limitMs = 60000) const;
    // Below the fixture's folder.
    QString path(const QString& relative) const;

    QTemporaryDir folder;
    QWidget window;

private:
    QPointer<ImageDialog> shownPage;
};

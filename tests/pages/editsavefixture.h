// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editpagefixture.h"
#include "heldfolder.h"

#include <QMap>
#include <QTimer>

#include <functional>
#include <memory>

// The Edit page up to the saved image, with stand-in tools or the real ones.
class EditSaveFixture : public EditPageFixture
{
public:
    // Presses Load ISO and chooses this image. Ends the event loop's turn with the unpacking ahead.
    void startLoadingImage(const QString& imagePath) const;
    // The same until the image can be browsed and changed.
    bool browse(const QString& imagePath) const;
    // Shows the entries of the topmost folder.
    void openRoot() const;
    // Adds a folder whose copying is held, see HeldFolder, and waits until it is.
    std::unique_ptr<HeldFolder> addHeld(qint64 bytes) const;

    // Loads an image of the usual entries up to its listing: the archiver is held in the middle of
    // unpacking it, until letUnpack(), and does then what the script says. Goes on by itself after
    // a while, so that a failed test does not hang in a wait of the page.
    bool loadHalfway(const QStringList& unpacking = {});
    void letUnpack() const;
    // Waits until the authoring tool runs for the so manieth time.
    bool waitForCall(int number) const;
    // A save to this file, from the button to the message; returns the message.
    QString save(const QString& isoPath) const;
    // A save to this file during which action is done as soon as the condition holds. Returns when
    // the tool has been started or the save has ended without it; whether the action was done.
    bool saveAnd(const QString& isoPath, const std::function<bool()>& condition,
                 const std::function<void()>& action) const;
    // The progress dialog shows, saying this.
    bool isShowing(const QString& text) const;

    // No process is left that the page has started, nor any started by one.
    static bool areToolsGone();
    // Loads an image until it can be browsed and stops the archiver in the middle of unpacking it;
    // returns its process number.
    int browseWhileUnpacking(const QString& imagePath) const;
    // The page takes the user's next wish.
    bool isUsable() const;
    // The paths of all entries below the root, sorted.
    QStringList allPaths() const;
    // What the archiver extracts from an image, see hashesBelow().
    static QMap<QString, QByteArray> contentOf(const QString& imagePath);

private:
    QTimer limit;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

// A virtual PC without a screen that boots from a disk image, and what its text screen shows. The
// image is not changed. Ends with this object.
class VirtualPc
{
public:
    explicit VirtualPc(const QString& diskImage);
    ~VirtualPc();
    VirtualPc(const VirtualPc&) = delete;
    VirtualPc& operator=(const VirtualPc&) = delete;

    // Waits until the screen shows the text, for at most limitMs milliseconds. Returns the screen
    // as it was last.
    QString screenWith(const QString& text, int limitMs);

private:
    QString screen();

    QTemporaryDir folder;
    QProcess machine;
};

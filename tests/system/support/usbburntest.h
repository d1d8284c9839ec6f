// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "guesttest.h"

#include <QMap>

constexpr qint64 megabyte = 1024 * 1024;
constexpr qint64 gigabyte = 1024 * megabyte;
// For everything from the password to the last byte, on a machine that has much else to do.
constexpr int burnSeconds = 1500;

// Base of the tests that write USB sticks from the Burn page as a user does.
class UsbBurnTest : public GuestTest
{
    Q_OBJECT

protected slots:
    void initTestCase();

protected:
    // What the boot manager in the image says when a machine starts from the stick.
    static const QByteArray managerText;

    // An image of the machine's image folder.
    static QString inMachine(const QString& image)
    {
        return VirtualMachine::guestImages + ('/' + image);
    }

    // Opens the page, chooses the image and what is to become of the stick, and presses Burn.
    void prepareBurn(const QString& image, const QString& node, const QString& label,
                     bool fat = false);
    // Agrees to lose what is on the stick.
    void confirm();
    // Waits for the message at the end and goes back to the home page.
    void finish();
    void leave();

    // What lies on a stick that has been pulled out: a hash for every path.
    static QMap<QString, QByteArray> contentOf(const QString& stick);
    static void copyFrom(const QString& stick, const QString& source, const QString& target);

    // In the machine; some 3 MB with 60 small files.
    const QString linuxImage = inMachine("linux.iso");
    QMap<QString, QByteArray> linuxContent;
};

// Runs a bash script here; the test function fails when it does.
void runHere(const QString& script);

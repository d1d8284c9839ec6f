// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "testcase.h"

#include <QTemporaryDir>

// Base of the tests that take the boot image out of an image: a folder with image and output, and
// all that a call leaves behind.
class BootExtractTest : public TestCase
{
    Q_OBJECT

protected:
    struct Run
    {
        bool accepted;
        // What came to standard output and to the debug stream.
        QByteArray printed;
        QStringList debug;
        // Whether there is an output file, and its content.
        bool written;
        QByteArray content;
    };

    // Calls Util::BootExtract() on image.iso with boot.bin as a fresh output.
    Run extract();
    // The same on an image of these bytes.
    Run extract(const QByteArray& image);

    QString path(const QString& name) const;

private:
    QTemporaryDir folder;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootimages.h"
#include "require.h"
#include "util.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

// Feeds Util::BootExtract() with damaged images, given in short form, and stops where it does
// anything but what a second reading of the image expects. The inputs in tests/data/bootimage are
// where it starts from; TMPDIR on a memory disk makes it fast.

namespace
{

void ignore(QtMsgType, const QMessageLogContext&, const QString&) {}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMessageHandler(ignore);
    require(std::freopen("/dev/null", "w", stdout) != nullptr, "no /dev/null");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const QTemporaryDir folder;
    const QString image = folder.filePath("image.iso");
    const QString output = folder.filePath("boot.bin");
    QFile::remove(output);
    require(writeFromShortForm(inputBytes(data, size), image), "cannot write the image");

    const BootOutcome expected = expectedBootOutcome(image);
    require(Util::BootExtract(image, output) == expected.accepted, "another result");
    QFile file(output);
    require(file.exists() == expected.written.has_value(), "another file");
    require(!expected.written ||
                (file.open(QIODevice::ReadOnly) && file.readAll() == *expected.written),
            "another boot image");
    return 0;
}

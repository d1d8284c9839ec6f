// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootextracttest.h"

#include "outputcapture.h"
#include "testfiles.h"
#include "util.h"

#include <QFile>

BootExtractTest::Run BootExtractTest::extract()
{
    const QString output = path("boot.bin");
    QFile::remove(output);
    const int before = debugLines().size();
    bool accepted = false;
    const QByteArray printed =
        standardOutputOf([&] { accepted = Util::BootExtract(path("image.iso"), output); });
    return {accepted, printed, debugLines().mid(before), QFile::exists(output), readFile(output)};
}

BootExtractTest::Run BootExtractTest::extract(const QByteArray& image)
{
    writeFile(path("image.iso"), image);
    return extract();
}

QString BootExtractTest::path(const QString& name) const
{
    return folder.filePath(name);
}

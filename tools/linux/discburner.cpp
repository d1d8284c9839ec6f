// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburner.h"

#include "followedprogram.h"
#include "printing.h"

#include <QFile>
#include <QFileInfo>

namespace
{

int fail(const QString& reason)
{
    say("Burn failed");
    return complain("hdiutil: burn failed - " + reason);
}

} // namespace

QString blankDiscDrive(const QList<OpticalDrive>& drives)
{
    for (const OpticalDrive& drive : drives)
        if (drive.isBlank)
            return drive.device;
    return {};
}

QStringList burnArguments(const QString& image, const QString& driveAddress)
{
    // Nothing of the user's own settings for the tool may change what is written.
    return {"-no_rc",
            "-pacifier",
            "interval=0.25",
            "-as",
            "cdrecord",
            "-v",
            "dev=" + driveAddress,
            "-eject",
            QFileInfo(image).absoluteFilePath()};
}

int burnImage(const QString& image, const QString& driveAddress, ProgressTeller progress)
{
    say("Preparing data for burn");
    QFile file(image);
    if (!QFileInfo(image).isFile())
        return fail("No such file or directory");
    if (!file.open(QIODevice::ReadOnly))
        return fail(file.errorString());
    if (file.size() == 0)
        return fail("The image is empty");
    say("Opening session");
    say("Opening track");
    say("Writing track");
    const QString error = followProgram("xorriso", burnArguments(image, driveAddress),
                                        [&progress](const QString& line) {
                                            if (const auto part = readBurnProgress(line))
                                                progress.reach(*part);
                                        });
    if (!error.isEmpty())
        return fail(error);
    say("Closing session");
    say("Finishing burn");
    ProgressTeller::finish();
    say("Burn completed successfully");
    say("hdiutil: burn: completed");
    return 0;
}

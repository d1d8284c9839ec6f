// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "burnpagefixture.h"
#include "drivescenario.h"

// The scenario of a page that looks for drives while it is made.
struct DrivesOfPage
{
    DriveScenario drives;
};

// The Burn page ready to write a USB disk: the image is typed in, the disk is listed and chosen,
// and all tools work, though the archiver extracts nothing. The password prompts beside the
// executable print a password each and leave with the fixture.
class UsbWriteFixture : public DrivesOfPage, public BurnPageFixture
{
public:
    explicit UsbWriteFixture(UsbDisk usbDisk = {});
    ~UsbWriteFixture() override;

    // Where the disk's partition and the image are mounted; both folders are there.
    QString stick() const { return path("stick"); }
    QString mountedImage() const { return path("mounted"); }
    QString image() const { return path("image.iso"); }
    // Makes the mounted image hold an install.wim of so many bytes, which take no space.
    void addInstallWim(qint64 bytes) const;
    // Changes the disk, its mount point included.
    void changeDisk(const UsbDisk& usbDisk);
    // Takes an image at this path in place of the usual one, mountable in the same place.
    void useImage(const QString& imagePath, const QByteArray& content = "image");

    static QString programFolder();
    static QString bootTool() { return programFolder() + "/mkbootable"; }
    static QString promptPath(const QString& name);
    // A prompt that prints this; nothing means that the user has refused.
    static void writePrompt(const QString& name, const QByteArray& password = "secret");

    // Presses Burn, says yes and closes the message at the end. Returns the texts of both dialogs.
    // The limit is for the coming of each.
    QStringList write(int dialogLimitMs = patienceMs) const;
    // The commands of the burns so far, in order, without those that filled the lists.
    QList<QStringList> commands() const;
    QList<DriveCall> calls() const;
    // Those of one burn that nothing disturbs, with these arguments after "partitionDisk
    // /dev/disk2 1 MBR" and this image.
    QList<QStringList> wholeRun(const QString& imagePath, bool isLarge,
                                const QString& fileSystem = "FAT32",
                                const QString& label = "NONAME") const;
    // Nothing has been done to the disk.
    bool isDiskUntouched() const;

    const QString device = "/dev/disk2";

private:
    int callsBefore = 0;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usbwritefixture.h"

#include "languages.h"
#include "modaldriver.h"
#include "testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

UsbWriteFixture::UsbWriteFixture(UsbDisk usbDisk)
{
    QDir(path("")).mkpath("stick");
    QDir(path("")).mkpath("mounted");
    for (const Language& language : languages())
        writePrompt(language.passwordPrompt);
    drives.on("7z", {"..."}, {});
    drives.on("wimlib-imagex", {"..."}, {});
    usbDisk.mountPoint = stick();
    changeDisk(usbDisk);
    useImage(image());
    chooseUsb();
    callsBefore = drives.calls().size();
}

UsbWriteFixture::~UsbWriteFixture()
{
    QDir(programFolder() + "/translations").removeRecursively();
}

void UsbWriteFixture::addInstallWim(qint64 bytes) const
{
    writeFile(mountedImage() + "/sources/install.wim", "");
    QFile wim(mountedImage() + "/sources/install.wim");
    QVERIFY(wim.resize(bytes));
}

void UsbWriteFixture::changeDisk(const UsbDisk& usbDisk)
{
    drives.addUsbDisk(device, usbDisk);
}

void UsbWriteFixture::useImage(const QString& imagePath, const QByteArray& content)
{
    writeFile(imagePath, content);
    drives.addImageMount(imagePath, mountedImage());
    setImage(imagePath);
}

QString UsbWriteFixture::programFolder()
{
    return QCoreApplication::applicationDirPath();
}

QString UsbWriteFixture::promptPath(const QString& name)
{
    return programFolder() + "/translations/" + name;
}

void UsbWriteFixture::writePrompt(const QString& name, const QByteArray& password)
{
    writeScript(promptPath(name), "echo '" + password + "'\n");
}

QStringList UsbWriteFixture::write(int dialogLimitMs) const
{
    ModalDriver driver(dialogLimitMs);
    driver.press("CommDialog", "btnok");
    driver.press("CommDialog", "btnok");
    press("burn");
    return driver.texts();
}

QList<DriveCall> UsbWriteFixture::calls() const
{
    return drives.calls().mid(callsBefore);
}

QList<QStringList> UsbWriteFixture::commands() const
{
    return drives.commands().mid(callsBefore);
}

QList<QStringList> UsbWriteFixture::wholeRun(const QString& imagePath, bool isLarge,
                                             const QString& fileSystem, const QString& label) const
{
    QList<QStringList> run = {{"hdiutil", "mount", imagePath}};
    if (!isLarge)
        run.append({"hdiutil", "unmount" + mountedImage()});
    run += {{"diskutil", "info", device},
            {"sync"},
            {"diskutil", "partitionDisk", device, "1", "MBR", fileSystem, label, "R"},
            {"diskutil", "info", device + "s1"},
            {"diskutil", "unmountDisk", device},
            {"sudo", "--askpass", bootTool(), device, stick()},
            {"mkbootable", device, stick()},
            {"sync"},
            {"sync"},
            {"sync"}};
    const QString target = "-o" + stick() + '/';
    if (!isLarge)
        run += {{"7z", "x", "-bsp2", "-y", target, imagePath}, {"sync"}};
    else
        run += {{"7z", "x", "-bsp2", "-xr!install.wim", "-y", target, imagePath},
                {"sync"},
                {"wimlib-imagex", "split", mountedImage() + "/sources/install.wim",
                 stick() + "/sources/install.swm", " 3800"},
                {"sync"},
                {"hdiutil", "unmount", "-force", mountedImage()}};
    return run;
}

bool UsbWriteFixture::isDiskUntouched() const
{
    for (const QStringList& command : commands()) {
        const bool isQuestion = command.value(1) == "info" || command.value(1) == "list";
        const bool isImage = command.first() == "hdiutil" && !command.contains(device);
        if (!isImage && !(command.first() == "diskutil" && isQuestion))
            return false;
    }
    return entriesOf(stick()).isEmpty();
}

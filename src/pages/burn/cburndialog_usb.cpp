// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Writing a USB disk that a computer starts from, step by step.

#include "awaitresult.h"
#include "cburndialog.h"
#include "cmycombobox.h"
#include "commandtext.h"
#include "cprogressdialog.h"
#include "cruncommandthread.h"
#include "debugstreams.h"
#include "imagemount.h"
#include "languages.h"
#include "runners.h"
#include "sevenzipcommand.h"
#include "sevenzipprogress.h"
#include "usbwritercommand.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>
#include <QLineEdit>

namespace
{

constexpr qint64 headroom = 50LL << 20; // bytes that the disk has to have beyond the image's

const QLatin1String firstPartition("s1");

void runTool(const QString& program, const QStringList& arguments)
{
    CRunCommandThread runner(nullptr);
    runToEnd(runner, program, arguments);
}

// Waits until everything written is on the disk.
void syncDisks()
{
    Util::callexternapp("sync", QString());
}

QString passwordPrompt()
{
    const QString folder = Util::GetCurrentExePath() + "/translations/";
    qDebug() << "start golbal langue***" << static_cast<QLocale::Language>(golbalLangue);
    qDebug() << "translations path ***" << folder;
    const QString prompt = folder + passwordPromptOfNumber(golbalLangue);
    return QFileInfo::exists(prompt) ? prompt : folder + passwordPromptOfNumber(QLocale::English);
}

// A file that another user has left there cannot be written; the shell would then not even start
// the boot tool.
QString bootToolLog()
{
    const QFileInfo log("/tmp/system.log");
    return log.exists() && !log.isWritable() ? "/dev/null" : log.filePath();
}

} // namespace

// The tools' failures go unnoticed; the user is told of success whatever they did.
void CBurnDialog::writeUsb(const QString& isoPath, const std::optional<QString>& largeImage)
{
    const QString disk = usblist->currentText();
    if (disk.isEmpty()) {
        showNotice(":/nwu/insert_usb", tr("Please insert your USB drive to computer"));
        return;
    }
    if (Util::ShowChoose(":/nwu/format_usb",
                         tr("Your USB drive will be formatted and all data in it will be deleted! "
                            "Do you want to continue?")) != 1)
        return;
    const qint64 diskTotal = awaitResult([&disk] { return Util::DiskSpaceTotal(disk); });
    if (diskTotal < QFileInfo(isoPath).size() + headroom) {
        showNotice(":/nwu/insufficient_space", tr("Insufficient space on disk, please change a "
                                                  "large-capacity USB or CD/DVD."));
        return;
    }
    // The user has left the page before the disk was touched.
    if (lifetime.isClosed())
        return;
    formatDisk(disk, diskTotal);
    const QString mountPoint = makeBootable(disk);
    // Without a mounted partition there is nothing to write to but the computer's own root.
    if (!mountPoint.isEmpty()) {
        Util::WriteMulLinesToFile(bootMenuLines(), mountPoint + "/syslinux.cfg");
        syncDisks();
        copyImage(isoPath, mountPoint, largeImage.has_value());
        if (largeImage)
            splitInstallWim(*largeImage, mountPoint);
    }
    if (largeImage)
        awaitResult([&largeImage] {
            return runCommandText(forceUnmountImageCommand(*largeImage), {}, Patience::Limited);
        });
    progress->hide();
    Util::ShowError(tr("Burning Successfully..."));
}

void CBurnDialog::formatDisk(const QString& disk, qint64 diskTotal)
{
    const QStringList arguments = partitionDiskArguments(disk, sysfilelist->currentText().trimmed(),
                                                         volumelab->text().trimmed(), diskTotal);
    // No dialog keeps the user from the page yet.
    awaitResult([] { return Util::callexternapp("sync", QString()); });
    progress->show();
    progress->DisableCancel();
    progress->SetText(tr("The USB disk is under formating..."));
    progress->SetRange(0, 0);
    progress->SetValue(0);
    runTool("diskutil", arguments);
}

QString CBurnDialog::makeBootable(const QString& disk)
{
    progress->SetText(tr("make usb drive bootable..."));
    const QString mountPoint =
        awaitResult([&disk] { return Util::GetMountPoint(disk + firstPartition); });
    Util::callexternapp("diskutil", "unmountDisk " + disk);
    QStringList arguments;
    getParameterlist(arguments, disk, mountPoint);
    qDebug() << arguments;
    runTool("/bin/bash", arguments);
    syncDisks();
    syncDisks();
    return mountPoint;
}

void CBurnDialog::getParameterlist(QStringList& list, QString disk, QString mountPoint)
{
    list += bootToolArguments(passwordPrompt(), Util::GetCurrentExePath() + "/mkbootable", disk,
                              mountPoint, bootToolLog());
}

void CBurnDialog::copyImage(const QString& isoPath, const QString& mountPoint,
                            bool withoutInstallWim)
{
    progress->SetText(tr("Burning the USB disk..."));
    progress->SetRange(0, 100);
    copiedPercent = 0;
    progress->SetValue(copiedPercent);
    CRunCommandThread runner(nullptr);
    connect(&runner, SIGNAL(standoutputline(QString)), this, SLOT(onUSBBurnOutput(QString)));
    runToEnd(runner, sevenZipProgram(), copyImageArguments(isoPath, mountPoint, withoutInstallWim));
    syncDisks();
}

void CBurnDialog::onUSBBurnOutput(QString line)
{
    qCDebug(toolOutput) << "CBurnDialog::onUSBBurnOutput" << line;
    const auto percent = readSevenZipPercentWord(line);
    if (!percent)
        return;
    // What a path looks like must not move the bar back or beyond its end.
    copiedPercent = qBound(copiedPercent, *percent, 100);
    progress->SetValue(copiedPercent);
}

void CBurnDialog::splitInstallWim(const QString& imageMountPoint, const QString& mountPoint)
{
    progress->SetText(tr("Process the wim file larger than 4 GB..."));
    progress->SetRange(0, 0);
    runTool(wimlibProgram(), splitInstallWimArguments(imageMountPoint, mountPoint));
    syncDisks();
}

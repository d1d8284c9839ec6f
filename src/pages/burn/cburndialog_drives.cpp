// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Filling the lists of optical drives and of USB disks.

#include "awaitresult.h"
#include "cburndialog.h"
#include "cmycombobox.h"
#include "commandtext.h"
#include "cruncommandthread.h"
#include "runners.h"
#include "usbdiskreader.h"
#include "util.h"

#include <QDebug>
#include <QRegularExpression>
#include <QScopedValueRollback>

namespace
{

// What the pattern captures first; empty, and noted in the log, when it does not match.
QString captured(const QString& pattern, const QString& text, const QString& complaint)
{
    const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
    const auto match = expression.match(text);
    if (!match.hasMatch())
        Util::WriteLog(complaint);
    return match.captured(1);
}

} // namespace

void CBurnDialog::InitializeUSBAndDVDComboBox(int mode)
{
    const PageLifetime::Step step(lifetime);
    if (mode == 0 || mode == 2)
        refreshUsbDisks();
    if (mode == 0 || mode == 1)
        refreshOpticalDrives();
}

void CBurnDialog::OnRefresh()
{
    InitializeUSBAndDVDComboBox(sender() == dvdlist ? 1 : 2);
}

void CBurnDialog::refreshUsbDisks()
{
    usblist->clear();
    waitingDisks.clear();
    CRunCommandThread runner(nullptr);
    usbRefresh = &runner;
    connect(&runner, SIGNAL(standoutputline(QString)), this, SLOT(onUSBLineOutput(QString)));
    runner.wholeLines = true;
    runToEnd(runner, "diskutil list", {});
    listWaitingDisks();
}

void CBurnDialog::refreshOpticalDrives()
{
    const QString chosen = dvdCurrent;
    CRunCommandThread runner(nullptr);
    opticalRefresh = &runner;
    opticalDrives->startReading();
    opticalDrives->clear();
    // A list that another refresh was still filling had no choice of the user's.
    if (listingDiscs)
        dvdCurrent = chosen;
    const QScopedValueRollback<bool> listing(listingDiscs, true);
    connect(&runner, SIGNAL(standoutputline(QString)), this, SLOT(onLineOutput(QString)));
    runner.wholeLines = true;
    runToEnd(runner, "drutil", {"status"});
}

// The wait for a tool processes events, and with them another refresh.
bool CBurnDialog::isLate(const CRunCommandThread* refresh) const
{
    const auto* const source = qobject_cast<const CRunCommandThread*>(sender());
    return source && source != refresh;
}

void CBurnDialog::onUSBLineOutput(QString line)
{
    if (isLate(usbRefresh))
        return;
    const auto disk = externalDiskOf(line);
    if (!disk)
        return;
    waitingDisks.append(*disk);
    if (!listingDisks)
        listWaitingDisks();
}

// One after the other, so that the list keeps their order: while the tool is asked about one, the
// line of the next arrives.
void CBurnDialog::listWaitingDisks()
{
    const QScopedValueRollback<bool> listing(listingDisks, true);
    const CRunCommandThread* const refresh = usbRefresh;
    while (!waitingDisks.isEmpty()) {
        const QString disk = waitingDisks.takeFirst();
        if (CheckDiskIsUSB(disk) && refresh == usbRefresh)
            usblist->addItem(disk);
    }
}

bool CBurnDialog::CheckDiskIsUSB(QString device)
{
    const QString info = QString::fromUtf8(awaitResult([&device] {
        return runCommandText("diskutil info " + device, {}, Patience::Limited, Overdue::Keep);
    }));
    qDebug() << info;
    return isRemovableUsbDisk(info);
}

void CBurnDialog::onLineOutput(QString line)
{
    if (!isLate(opticalRefresh))
        opticalDrives->readLine(line);
}

QString CBurnDialog::GetDriverName(QString line)
{
    const QString entry = captured("(\t.*'.*')", line, "Not match the RegExp");
    if (entry.isEmpty())
        return QString();
    const QString busId =
        captured(R"((.*)\s.*\))", entry, R"(Not match the RegExp (.*)\s.*\))").trimmed();
    QString name = captured("('.*')", entry, "Not match the RegExp ('.*')").trimmed();
    name = Util::ReplaceBlank(name.remove('\''));
    const QString driver = GetCDRNoToDriver(name, busId);
    if (driver.isEmpty()) {
        Util::WriteLog(line + "GetCDRNoToDriver return null");
        return QString();
    }
    return driver + ": " + name;
}

QString CBurnDialog::GetCDRNoToDriver(QString, QString busId)
{
    Util::WriteLog("CBurnDialog::GetCDRNoToDriver for osx entry" + busId);
    return QString();
}

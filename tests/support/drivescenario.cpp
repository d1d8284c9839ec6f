// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "drivescenario.h"

#include "standinfolder.h"

#include <QDir>
#include <QSaveFile>
#include <QTest>

#include <algorithm>

namespace
{

// Line ends and backslashes have escapes; a text is one line of the scenario.
QString escapedText(QString text)
{
    return text.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
}

// Words are parted by blanks.
QString word(const QString& text)
{
    return escapedText(text).replace(' ', "\\x20");
}

} // namespace

DriveScenario::DriveScenario()
{
    StandInFolder::clear();
    write();
}

DriveScenario::~DriveScenario()
{
    StandInFolder::clear();
}

void DriveScenario::on(const QString& program, const QStringList& arguments,
                       const QStringList& actions)
{
    const auto isSame = [&](const Rule& rule) {
        return rule.program == program && rule.arguments == arguments;
    };
    const Rule added = {program, arguments, actions};
    const auto earlier = std::find_if(rules.begin(), rules.end(), isSame);
    if (earlier == rules.end())
        rules.append(added);
    else
        *earlier = added;
    write();
}

void DriveScenario::addUsbDisk(const QString& device, const UsbDisk& disk)
{
    const auto isSame = [&](const auto& entry) { return entry.first == device; };
    const auto earlier = std::find_if(usbDisks.begin(), usbDisks.end(), isSame);
    if (earlier == usbDisks.end())
        usbDisks.append({device, disk});
    else
        earlier->second = disk;
    write();
}

void DriveScenario::addOptical(const QString& identification, const QString& device,
                               const QString& mountPoint)
{
    opticalDrives.append({identification, device, mountPoint});
    write();
}

void DriveScenario::removeDisk(const QString& device)
{
    const auto isDisk = [&](const auto& entry) { return entry.first == device; };
    const auto isDrive = [&](const OpticalDrive& drive) { return drive.device == device; };
    usbDisks.erase(std::remove_if(usbDisks.begin(), usbDisks.end(), isDisk), usbDisks.end());
    opticalDrives.erase(std::remove_if(opticalDrives.begin(), opticalDrives.end(), isDrive),
                        opticalDrives.end());
    goneDevices.append(device);
    write();
}

void DriveScenario::addImageMount(const QString& imagePath, const QString& mountPoint,
                                  const QString& device)
{
    images.append({imagePath, mountPoint, device});
    write();
}

void DriveScenario::missing(const QString& program)
{
    QVERIFY(QFile::remove(StandInFolder::toolPath(program)));
}

void DriveScenario::lend(const QString& program)
{
    const QString real = StandInFolder::realToolPath(program);
    QVERIFY2(!real.isEmpty(), qPrintable(program));
    QFile::remove(StandInFolder::toolPath(program));
    QVERIFY(QFile::link(real, StandInFolder::toolPath(program)));
}

QString DriveScenario::printing(const QString& text)
{
    return "out " + escapedText(text);
}

QString DriveScenario::complaining(const QString& text)
{
    return "err " + escapedText(text);
}

QString DriveScenario::becoming(const QString& programPath)
{
    return "real " + word(programPath);
}

QString DriveScenario::becoming(const QString& programPath, const QString& argument,
                                const QString& replacement)
{
    return becoming(programPath) + " replace " + word(argument) + ' ' + word(replacement);
}

QString DriveScenario::makingFolder(const QString& path)
{
    return "mkdir " + word(path);
}

QString DriveScenario::copying(const QString& from, const QString& to)
{
    return "copy-tree " + word(from) + ' ' + word(to);
}

QString DriveScenario::holding(const QString& name) const
{
    return gates.hold(name);
}

bool DriveScenario::isHeld(const QString& name) const
{
    return gates.isReached(name);
}

void DriveScenario::release(const QString& name) const
{
    gates.open(name);
}

// Replaced as a whole, as a tool may be reading it.
void DriveScenario::write() const
{
    QSaveFile scenario(StandInFolder::scenarioPath());
    QVERIFY(scenario.open(QIODevice::WriteOnly));
    for (const Rule& rule : rules + driveRules()) {
        QString line = "on " + rule.program;
        for (const QString& argument : rule.arguments)
            line += ' ' + word(argument);
        scenario.write((line + '\n' + rule.actions.join('\n') + '\n').toUtf8());
    }
    QVERIFY(scenario.commit());
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "usbwritehold.h"

#include <QTest>

#include <algorithm>

namespace
{

constexpr int lookMs = 10;
constexpr int mostLooks = patienceMs / lookMs;
const QString gate("step");

bool fits(const QStringList& pattern, const QStringList& arguments)
{
    const bool isOpen = pattern.contains("...");
    const int count = isOpen ? pattern.size() - 1 : pattern.size();
    bool isFit = isOpen ? arguments.size() >= count : arguments.size() == count;
    for (int i = 0; isFit && i < count; ++i)
        isFit = pattern.at(i) == "*" || pattern.at(i) == arguments.at(i);
    return isFit;
}

// What the held tool prints when it goes on.
QString answerOf(const UsbWriteFixture& fixture, const QStringList& arguments)
{
    UsbDisk disk;
    disk.mountPoint = fixture.stick();
    if (arguments.value(0) == "mount")
        return DriveTexts::mountedImage("/dev/disk9", fixture.mountedImage());
    if (arguments.value(0) != "info")
        return QString();
    return arguments.value(1) == fixture.device ? DriveTexts::diskInfo(fixture.device, disk)
                                                : DriveTexts::partitionInfo(fixture.device, disk);
}

} // namespace

QList<UsbWriteHold::Step> UsbWriteHold::steps()
{
    const QString formatting("The USB disk is under formating...");
    const QString booting("make usb drive bootable...");
    const QString copying("Burning the USB disk...");
    const QString splitting("Process the wim file larger than 4 GB...");
    return {{"mount the image", "hdiutil", {"mount", "*"}, true, "", 0, true},
            {"unmount the image", "hdiutil", {"*"}, false, "", 0, true},
            {"size of the disk", "diskutil", {"info", "/dev/disk2"}, false, "", 0, true},
            {"sync before all", "sync", {}, false, "", 0, false},
            {"format", "diskutil", {"partitionDisk", "..."}, false, formatting, 0, false},
            {"mount point", "diskutil", {"info", "/dev/disk2s1"}, false, booting, 0, false},
            {"unmount the disk", "diskutil", {"unmountDisk", "*"}, false, booting, 0, false},
            {"boot tool", "mkbootable", {"..."}, false, booting, 0, false},
            {"copy", "7z", {"..."}, true, copying, 100, false},
            {"split", "wimlib-imagex", {"..."}, true, splitting, 0, false},
            {"unmount after all", "hdiutil", {"unmount", "*", "*"}, true, splitting, 0, false}};
}

int UsbWriteHold::indexOf(const QString& name)
{
    const QList<Step> all = steps();
    const auto isNamed = [&name](const Step& each) { return each.name == name; };
    return int(std::find_if(all.begin(), all.end(), isNamed) - all.begin());
}

void UsbWriteHold::addRows()
{
    QTest::addColumn<int>("index");
    const QList<Step> all = steps();
    for (int index = 0; index < all.size(); ++index)
        QTest::newRow(all.at(index).name) << index;
}

UsbWriteHold::UsbWriteHold(UsbWriteFixture& usbFixture, const Step& heldStep,
                           const std::function<bool()>& heldCallback)
    : fixture(usbFixture)
    , step(heldStep)
    , callback(heldCallback)
{
    if (step.isLarge)
        fixture.addInstallWim(1LL << 32);
    fixture.drives.on(
        step.program, step.arguments,
        {fixture.drives.holding(gate), DriveScenario::printing(answerOf(fixture, step.arguments))});
    QObject::connect(&timer, &QTimer::timeout, [this] { look(); });
    timer.start(lookMs);
}

bool UsbWriteHold::isHeld() const
{
    const QList<DriveCall> calls = fixture.calls();
    return !calls.isEmpty() && calls.last().program == step.program && calls.last().ended < 0 &&
           fits(step.arguments, calls.last().arguments);
}

void UsbWriteHold::look()
{
    if (inCallback || done || (looks == 0 && !isHeld()))
        return;
    inCallback = true;
    const bool isContent = callback();
    inCallback = false;
    if (!isContent && ++looks < mostLooks)
        return;
    done = isContent;
    timer.stop();
    fixture.drives.release(gate);
}

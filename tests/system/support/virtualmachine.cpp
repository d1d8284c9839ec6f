// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "virtualmachine.h"

#include "framebuffer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QLocalSocket>

namespace
{

// Of all times, since everything is emulated and the processors may be shared with others.
constexpr int bootLimit = 600 * 1000;
constexpr int shutDownLimit = 120 * 1000;
constexpr int unplugLimit = 180 * 1000;
constexpr int answerGrace = 180 * 1000;
constexpr int stickSeconds = 300;

// The processor is an old one because newer ones have the machine load drivers for what they can do
// besides. Its self-tests and delays are of use on hardware only, its instructions for strings are
// slow where they are emulated, and what hardens it is of no use here. A panic ends the emulator.
const char* const kernelLine = "console=ttyS0 quiet panic=-1 mitigations=off no_timer_check "
                               "tsc=reliable cryptomgr.notests 8250.nr_uarts=1 "
                               "clearcpuid=rep_good,erms init_on_alloc=0 apparmor=0 audit=0 "
                               "hardened_usercopy=off randomize_kstack_offset=off "
                               "transparent_hugepage=never "
                               "systemd.show_status=0";

QStringList machineArguments(const QString& folder)
{
    const QString guest = Emulator::argumentPath(KORVEX_GUEST_FOLDER);
    const QString bin = Emulator::argumentPath(KORVEX_PROGRAM_FOLDER);
    return {
        "-machine",
        "q35",
        "-accel",
        "tcg,thread=multi",
        "-cpu",
        "Nehalem",
        "-smp",
        "1",
        "-m",
        "2048",
        "-vga",
        "none",
        "-kernel",
        guest + "/vmlinux",
        "-initrd",
        guest + "/initrd",
        "-append",
        kernelLine,
        "-drive",
        "if=none,id=root,format=raw,snapshot=on,file=" + guest + "/root.img",
        "-device",
        "virtio-blk-pci,drive=root",
        "-virtfs",
        "local,mount_tag=share,security_model=none,multidevs=remap,path=" + folder + "/share",
        "-virtfs",
        "local,mount_tag=images,security_model=none,readonly=on,path=" + folder + "/images",
        "-virtfs",
        "local,mount_tag=program,security_model=none,readonly=on,path=" KORVEX_PROGRAM_FOLDER,
        "-device",
        "virtio-serial-pci",
        "-chardev",
        "socket,id=commands,path=" + folder + "/commands",
        "-device",
        "virtserialport,chardev=commands,name=korvex.commands",
        "-chardev",
        "socket,id=input,path=" + folder + "/input",
        "-device",
        "virtserialport,chardev=input,name=korvex.input",
        "-device",
        "qemu-xhci,id=usb",
        "-device",
        "ide-cd,id=cd",
        "-serial",
        "file:" + folder + "/console.log",
    };
}

QString stickNode(const QString& serial)
{
    return "/dev/disk/by-id/usb-QEMU_QEMU_HARDDISK_" + serial + "-0:0";
}

} // namespace

VirtualMachine::VirtualMachine() = default;

VirtualMachine::~VirtualMachine() = default;

bool VirtualMachine::start()
{
    const QDir folder(emulator.folder());
    // Users of both sides write there, under numbers that mean nothing to the other.
    constexpr auto everyone = QFile::Permissions(0x7777);
    if (!folder.mkpath("share/commands") || !folder.mkpath("images") ||
        !QFile::setPermissions(sharedFolder(), everyone) ||
        !commandServer.listen(folder.filePath("commands")) ||
        !inputServer.listen(folder.filePath("input")))
        return fail("no shared folder");
    if (!emulator.start(machineArguments(folder.path())) || !connectCommandRunner() ||
        !emulator.execute("cont"))
        return fail(emulator.problem());
    QByteArray line;
    return readAnswer(&line, bootLimit) && (line == "ready" || fail("unexpected: " + line)) &&
           (run(QString("chmod 666 ") + inputPort, User::Root).exitCode == 0 ||
            fail("no channel for input"));
}

bool VirtualMachine::shutDown()
{
    run("systemctl poweroff --no-block", User::Root);
    return emulator.waitForEnd(shutDownLimit) || fail(emulator.problem());
}

VirtualMachine::Result VirtualMachine::run(const QString& script, User user, int limitSeconds)
{
    Result result;
    const int number = ++lastCommand;
    const QString base = sharedFolder() + "/commands/" + QString::number(number);
    QFile file(base + ".sh");
    const QString preset = QString("PROGRAM=%1 SHARE=%2\n").arg(program, guestFolder);
    if (!commandRunner || !file.open(QIODevice::WriteOnly) ||
        file.write((preset + script + "\n").toUtf8()) < 0)
        return fail("the script cannot be written"), result;
    file.close();
    file.setPermissions(QFile::Permissions(0x4444));
    commandRunner->write(QString("%1 %2 %3\n")
                             .arg(QString::number(number), user == User::Root ? "root" : "tester",
                                  QString::number(limitSeconds))
                             .toUtf8());
    QByteArray line;
    while (readAnswer(&line, limitSeconds * 1000 + answerGrace)) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() != 2 || words.first().toInt() != number)
            continue;
        result.exitCode = words.last().toInt();
        QFile output(base + ".out");
        if (output.open(QIODevice::ReadOnly))
            result.output = output.readAll();
        return result;
    }
    return result;
}

QString VirtualMachine::sharedFolder() const
{
    return emulator.folder() + "/share";
}

QString VirtualMachine::imageFolder() const
{
    return emulator.folder() + "/images";
}

bool VirtualMachine::addStickFile(const QString& drive, const QString& file, qint64 bytesPerSecond)
{
    // What is written may stay in memory: a file that outlives its machine outlives no power cut.
    // Zeros take no room in it.
    const QJsonObject cache = {{"no-flush", true}};
    const QJsonObject content = {{"driver", "file"}, {"filename", file}, {"cache", cache}};
    QJsonObject node = {{"driver", "raw"},
                        {"cache", cache},
                        {"file", content},
                        {"discard", "unmap"},
                        {"detect-zeroes", "unmap"}};
    if (bytesPerSecond > 0) {
        const QJsonObject limits = {{"bps-write", bytesPerSecond}};
        const QString group = "speed-" + drive;
        if (!emulator.execute("object-add",
                              {{"qom-type", "throttle-group"}, {"id", group}, {"limits", limits}}))
            return false;
        node = {{"driver", "throttle"}, {"throttle-group", group}, {"file", node}};
    }
    node.insert("node-name", drive);
    return emulator.execute("blockdev-add", node);
}

QString VirtualMachine::plugStick(const QString& serial, const QString& file, qint64 bytesPerSecond)
{
    const QString drive = "drive-" + serial;
    if (!addStickFile(drive, file, bytesPerSecond) ||
        !emulator.execute("device_add", {{"driver", "usb-storage"},
                                         {"id", serial},
                                         {"bus", "usb.0"},
                                         {"drive", drive},
                                         {"serial", serial},
                                         {"removable", true}})) {
        fail(emulator.problem());
        return {};
    }
    const Result found = run(QString("until [ -e %1 ]; do sleep 0.1; done; udevadm settle\n"
                                     "readlink -f %1")
                                 .arg(stickNode(serial)),
                             User::Root, stickSeconds);
    if (found.exitCode != 0)
        fail("the machine does not see the stick " + serial);
    return found.exitCode == 0 ? QString::fromUtf8(found.output.trimmed()) : QString();
}

bool VirtualMachine::writeInput(const QByteArray& line)
{
    const QByteArray whole = line + '\n';
    if (!inputChannel || inputChannel->write(whole) != whole.size())
        return fail("the input cannot be written");
    while (inputChannel->bytesToWrite() > 0) {
        if (!inputChannel->waitForBytesWritten(answerGrace))
            return fail("nobody takes the input");
    }
    return true;
}

bool VirtualMachine::unplugStick(const QString& serial)
{
    if (!emulator.execute("device_del", {{"id", serial}}) ||
        !emulator.waitForEvent("DEVICE_DELETED", "device", serial, unplugLimit) ||
        !emulator.execute("blockdev-del", {{"node-name", "drive-" + serial}}))
        return fail(emulator.problem());
    const Result gone =
        run(QString("while [ -e %1 ]; do sleep 0.1; done; udevadm settle").arg(stickNode(serial)),
            User::Root, stickSeconds);
    return gone.exitCode == 0 || fail("the machine still sees the stick " + serial);
}

bool VirtualMachine::insertDisc(const QString& file)
{
    return emulator.execute("blockdev-change-medium", {{"id", "cd"},
                                                       {"filename", file},
                                                       {"format", "raw"},
                                                       {"force", true},
                                                       {"read-only-mode", "read-only"}}) ||
           fail(emulator.problem());
}

bool VirtualMachine::removeDisc()
{
    return emulator.execute("eject", {{"id", "cd"}, {"force", true}}) || fail(emulator.problem());
}

bool VirtualMachine::isTrayOpen()
{
    QJsonValue devices;
    if (!emulator.execute("query-block", {}, &devices))
        return fail(emulator.problem());
    for (const QJsonValue device : devices.toArray())
        if (device["qdev"].toString() == "cd" || device["qdev"].toString().contains("/cd/"))
            return device["tray_open"].toBool();
    return fail("the machine has no disc drive");
}

QImage VirtualMachine::screenshot()
{
    if (run("cp --remove-destination /run/user/1000/Xvfb_screen0 $SHARE/screen").exitCode != 0) {
        fail("the screen cannot be read");
        return {};
    }
    QFile file(sharedFolder() + "/screen");
    return file.open(QIODevice::ReadOnly) ? framebufferImage(file.readAll()) : QImage();
}

QString VirtualMachine::problem() const
{
    QFile console(emulator.folder() + "/console.log");
    return trouble + (console.open(QIODevice::ReadOnly)
                          ? "\n" + QString::fromUtf8(console.readAll().right(2000))
                          : "");
}

bool VirtualMachine::connectCommandRunner()
{
    if (!commandServer.waitForNewConnection(answerGrace) ||
        !inputServer.waitForNewConnection(answerGrace))
        return fail("the emulator has no channel for commands");
    inputChannel.reset(inputServer.nextPendingConnection());
    inputChannel->setParent(nullptr);
    commandRunner.reset(commandServer.nextPendingConnection());
    commandRunner->setParent(nullptr);
    return true;
}

bool VirtualMachine::readAnswer(QByteArray* line, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!commandRunner->canReadLine()) {
        const int left = milliseconds - static_cast<int>(timer.elapsed());
        if (left <= 0 || !commandRunner->waitForReadyRead(left))
            return fail("the machine does not answer");
    }
    *line = commandRunner->readLine().trimmed();
    return true;
}

bool VirtualMachine::fail(const QString& text)
{
    trouble = text;
    return false;
}

QString makeStick(const QString& path, qint64 bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(bytes) ? path : QString();
}

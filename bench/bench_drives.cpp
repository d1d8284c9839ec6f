// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// USB sticks written and discs copied in the virtual machine of the tests, by the program through
// its window and by the bare tools. They take turns on the same image; every stick is new.

#include "benchimage.h"
#include "guestprogram.h"
#include "statistics.h"
#include "virtualmachine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>

namespace
{

constexpr int runs = 5;
constexpr int files = 40;
constexpr int megabytesEach = 15;
constexpr qint64 stickBytes = 2LL * 1024 * 1024 * 1024;
constexpr int limitSeconds = 900;
const QString label = "STICK";

class DriveBench
{
public:
    DriveBench()
    {
        require(machine.start());
        const QString image = makeImageOfFiles(machine.imageFolder(), files, megabytesEach);
        isoPath = VirtualMachine::guestImages + ('/' + QFileInfo(image).fileName());
        require(machine.insertDisc(image));
        run("until lsblk -no LABEL /dev/sr0 | grep -q .; do sleep 0.2; done\n"
            "udisksctl mount -b /dev/sr0");
        require(program.start());
    }

    // Milliseconds of the copy to a stick: by the archiver and sync, and by the program from the
    // message that says so to that at the end; and what the program did before the last such copy.
    double bareBurn()
    {
        const QString node = plugStick();
        run("$(dirname $PROGRAM)/platform-tools/diskutil partitionDisk " + node + " 1 MBR FAT32 " +
            label + " R");
        const double time = timed("$(dirname $PROGRAM)/7z/7z x -bsp2 -y -o/media/tester/" + label +
                                  "/ '" + isoPath + "' 2>&1 | tail -20 >&2; sync");
        require(machine.unplugStick(serial()));
        return time;
    }
    double burn()
    {
        const QString node = plugStick();
        use(program.click("burn") && program.click("CBurnDialog/rusb") &&
            program.waitForEntries("usblist", {node}) && program.enter("isofile", isoPath) &&
            program.enter("volumelab", label) && program.click("CBurnDialog/burn") &&
            program.waitForText("all data in it will be deleted!"));
        QElapsedTimer clock;
        clock.start();
        use(program.click("btnok") && program.enterPassword("tester") &&
            program.waitForText("Burning the USB disk...", limitSeconds));
        preparationTime = static_cast<double>(clock.restart());
        use(program.waitForText("Burning Successfully...", limitSeconds));
        const auto time = static_cast<double>(clock.elapsed());
        use(program.click("CommDialog/btnok") && program.click("CBurnDialog/back"));
        require(machine.unplugStick(serial()));
        return time;
    }

    double preparation() const { return preparationTime; }

    // The same for an image of the disc in the drive, until the tool's end.
    double bareCopy()
    {
        forgetDisc();
        return timed("$(dirname $PROGRAM)/cdrtools/mkisofs -gui -iso-level 3 -r -J -joliet-long "
                     "-input-charset utf-8 -V DISC -o ~/copy.iso \"$(findmnt -no TARGET "
                     "/dev/sr0)\" 2>&1 | cat >/dev/null");
    }
    double copy()
    {
        forgetDisc();
        use(program.click("copy") && program.waitForWidget("CPage5/start") &&
            program.enter("lineEdit", "/home/tester/copy.iso") && program.pointAt("CPage5/start"));
        QElapsedTimer clock;
        clock.start();
        use(program.click() && program.waitForText("Copy CD/DVD successfully!", limitSeconds));
        const auto time = static_cast<double>(clock.elapsed());
        use(program.click("CommDialog/btnok") && program.click("CPage5/back"));
        return time;
    }

private:
    void require(bool success) const
    {
        if (!success)
            giveUp(machine.problem());
    }
    void use(bool success) const
    {
        if (!success)
            giveUp(program.problem());
    }
    QByteArray run(const QString& script, VirtualMachine::User user = VirtualMachine::User::Tester)
    {
        const auto result = machine.run("set -e -o pipefail\n" + script, user, limitSeconds);
        if (result.exitCode != 0)
            giveUp(script + '\n' + result.output + machine.problem());
        return result.output;
    }
    // By the machine's clock, without the start of the script.
    double timed(const QString& script)
    {
        const QByteArray output =
            run("begin=$(date +%s%N)\n" + script + "\necho $((($(date +%s%N) - begin) / 1000000))");
        return output.trimmed().split('\n').last().toDouble();
    }
    QString serial() const { return QString("KX%1").arg(sticks); }
    QString plugStick()
    {
        ++sticks;
        const QString file = folder.filePath(serial());
        const QString node = machine.plugStick(serial(), makeStick(file, stickBytes));
        require(!node.isEmpty());
        QFile::remove(folder.filePath(QString("KX%1").arg(sticks - 1)));
        return node;
    }
    // What has been read of the disc is read anew.
    void forgetDisc()
    {
        run("rm -f ~/copy.iso; udisksctl unmount -b /dev/sr0");
        run("sync; blockdev --flushbufs /dev/sr0", VirtualMachine::User::Root);
        run("udisksctl mount -b /dev/sr0");
    }
    QTemporaryDir folder;
    VirtualMachine machine;
    GuestProgram program{machine};
    QString isoPath;
    int sticks = 0;
    double preparationTime = 0;
};

// Emulation needs all of the processors: a run in which others took more than this is repeated.
double undisturbed(const std::function<double()>& run)
{
    constexpr double mostTaken = 0.03;
    constexpr int attempts = 4;
    double result = 0;
    double taken = 1;
    for (int attempt = 0; attempt < attempts && taken > mostTaken; ++attempt) {
        taken = shareTakenByOthers([&] { result = run(); });
        std::fprintf(stderr, "%.0f ms, %.1f %% of the processors taken by others\n", result,
                     taken * 100);
    }
    return result;
}

void measureSticks(DriveBench& bench)
{
    Samples bare;
    Samples burns;
    Samples preparations;
    for (int run = 0; run < runs; ++run) {
        bare.add(undisturbed([&] { return bench.bareBurn(); }));
        burns.add(undisturbed([&] { return bench.burn(); }));
        preparations.add(bench.preparation());
    }
    printTitle(QString("USB stick, %1 files of %2 MB").arg(files).arg(megabytesEach));
    printSamples("7z x and sync", bare, "ms");
    printSamples("Burn, from the copy's message to the end's", burns, "ms", &bare);
    printSamples("  before it: format and make bootable", preparations, "ms");
}

void measureDiscs(DriveBench& bench)
{
    Samples bare;
    Samples copies;
    for (int run = 0; run < runs; ++run) {
        bare.add(undisturbed([&] { return bench.bareCopy(); }));
        copies.add(undisturbed([&] { return bench.copy(); }));
    }
    printTitle(QString("Disc, %1 files of %2 MB").arg(files).arg(megabytesEach));
    printSamples("mkisofs of the mounted disc", bare, "ms");
    printSamples("Copy Disk, from Start to the message", copies, "ms", &bare);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList wanted = QCoreApplication::arguments().mid(1);
    DriveBench bench;
    if (wanted.isEmpty() || wanted.contains("sticks"))
        measureSticks(bench);
    if (wanted.isEmpty() || wanted.contains("discs"))
        measureDiscs(bench);
    return 0;
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootstick.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "virtualmachine.h"

#include <QTemporaryDir>
#include <QtTest>

namespace
{

constexpr qint64 stickBytes = 256 * 1024 * 1024;

QString transcript(const VirtualMachine::Result& result)
{
    return QString("exit code %1\n%2").arg(result.exitCode).arg(QString::fromUtf8(result.output));
}

// Whether the colour of the program's symbols is to be seen.
bool hasAccent(const QImage& screen)
{
    const QColor accent(0x00, 0xA0, 0xE6);
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            if (screen.pixelColor(x, y) == accent)
                return true;
    return false;
}

} // namespace

// Shows that the virtual machine is what the other system tests take it for.
class TstVirtualMachine : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();

    void outputAndExitCodeOfACommandComeBack();
    void commandsRunAsTheUserOrAsRoot();
    void theUserMayBecomeRootAgainstThePassword();
    void aCommandThatDoesNotEndIsEnded();
    void bothSidesReadWhatTheOtherWrites();
    void aStickIsARemovableUsbDisk();
    void udevSeesSticksComeAndGo();
    void theUserMountsAStickWithoutPassword();
    void aStickCanBePulledWhileItIsMounted();
    void twoSticksAreToldApartByTheirNumbers();
    void aDiscIsRead();
    void theTrayOpensAndCloses();
    void imagesAreMountedByTheKernel();
    void theProgramShowsItsWindow();
    void aStickWrittenInTheMachineBoots();
    void aStickWithoutBootLoaderDoesNotBoot();
    void theMachineShutsDown();

private:
    QString stickFile(const QString& name);
    QString discFile();
    // Runs a script that has to succeed and returns its output without blanks around it.
    QString output(const QString& script, VirtualMachine::User user = VirtualMachine::User::Root);

    QTemporaryDir folder;
    VirtualMachine machine;
};

#define SUCCEED(condition) QVERIFY2(condition, qPrintable(machine.problem()))

void TstVirtualMachine::initTestCase()
{
    QElapsedTimer timer;
    timer.start();
    SUCCEED(machine.start());
    qInfo() << "Started in" << timer.elapsed() << "ms";
}

QString TstVirtualMachine::stickFile(const QString& name)
{
    return makeStick(folder.filePath(name), stickBytes);
}

QString TstVirtualMachine::discFile()
{
    const QString path = folder.filePath("disc.iso");
    if (!QFile::exists(path)) {
        writeFile(folder.filePath("content/Grüße.txt"), "hello\n");
        makeImage(folder.filePath("content"), path, {"-udf", "-J", "-V", "KORVEX_DISC"});
    }
    return path;
}

QString TstVirtualMachine::output(const QString& script, VirtualMachine::User user)
{
    const VirtualMachine::Result result = machine.run("set -e\n" + script, user);
    if (result.exitCode != 0)
        QTest::qFail(qPrintable(script + "\n" + transcript(result) + machine.problem()), __FILE__,
                     __LINE__);
    return QString::fromUtf8(result.output).trimmed();
}

void TstVirtualMachine::outputAndExitCodeOfACommandComeBack()
{
    const VirtualMachine::Result result =
        machine.run("echo Ünicode \"$((6 * 7))\"; echo no >&2; exit 3");
    QCOMPARE(result.exitCode, 3);
    QCOMPARE(result.output, QByteArray("Ünicode 42\nno\n"));
}

void TstVirtualMachine::commandsRunAsTheUserOrAsRoot()
{
    QCOMPARE(output("id -un; pwd; groups", VirtualMachine::User::Tester),
             "tester\n/home/tester\ntester cdrom sudo");
    QCOMPARE(output("id -un; pwd"), "root\n/root");
}

void TstVirtualMachine::theUserMayBecomeRootAgainstThePassword()
{
    QCOMPARE(output("echo tester | sudo -S -p '' id -un", VirtualMachine::User::Tester), "root");
    QVERIFY(machine.run("echo wrong | sudo -k -S -p '' id -un").exitCode != 0);
}

void TstVirtualMachine::aCommandThatDoesNotEndIsEnded()
{
    const VirtualMachine::Result result =
        machine.run("echo begun; sleep 1000", VirtualMachine::User::Tester, 3);
    QCOMPARE(result.exitCode, 124);
    QCOMPARE(result.output, QByteArray("begun\n"));
}

void TstVirtualMachine::bothSidesReadWhatTheOtherWrites()
{
    writeFile(machine.sharedFolder() + "/from host", "one");
    QCOMPARE(output("cat \"$SHARE/from host\"; echo two >\"$SHARE/from guest\"",
                    VirtualMachine::User::Tester),
             "one");
    QCOMPARE(readFile(machine.sharedFolder() + "/from guest"), QByteArray("two\n"));
}

void TstVirtualMachine::aStickIsARemovableUsbDisk()
{
    const QString node = machine.plugStick("KX1", stickFile("one"));
    SUCCEED(!node.isEmpty());
    QCOMPARE(output("lsblk -dbno TYPE,TRAN,RM,SIZE,SERIAL " + node).simplified(),
             QString("disk usb 1 %1 KX1").arg(stickBytes));
    QCOMPARE(output("lsblk -dno TYPE /dev/sr0"), "rom");
    SUCCEED(machine.unplugStick("KX1"));
    QVERIFY(machine.run("lsblk " + node).exitCode != 0);
}

void TstVirtualMachine::udevSeesSticksComeAndGo()
{
    output("udevadm monitor --udev --subsystem-match=block >/tmp/events 2>&1 &\n"
           "until grep -q UDEV /tmp/events; do sleep 0.1; done");
    const QString node = machine.plugStick("KX2", stickFile("two"));
    SUCCEED(!node.isEmpty());
    SUCCEED(machine.unplugStick("KX2"));
    const QString events = output("kill $(pidof udevadm); grep -oE '(add|remove) .*' /tmp/events");
    const QString name = node.section('/', -1);
    QVERIFY2(events.contains(QRegularExpression("add .*/" + name + " ")), qPrintable(events));
    QVERIFY2(events.contains(QRegularExpression("remove .*/" + name + " ")), qPrintable(events));
}

void TstVirtualMachine::theUserMountsAStickWithoutPassword()
{
    const QString node = machine.plugStick("KX3", stickFile("three"));
    SUCCEED(!node.isEmpty());
    output("mkfs.vfat -I -n KORVEX " + node + " && udevadm settle");
    QCOMPARE(output("udisksctl mount -b " + node, VirtualMachine::User::Tester),
             "Mounted " + node + " at /media/tester/KORVEX");
    output("echo 'by the user' >/media/tester/KORVEX/file", VirtualMachine::User::Tester);
    output("udisksctl unmount -b " + node, VirtualMachine::User::Tester);
    QCOMPARE(output("MTOOLS_SKIP_CHECK=1 mtype -i " + node + " ::file"), "by the user");
    SUCCEED(machine.unplugStick("KX3"));
}

void TstVirtualMachine::aStickCanBePulledWhileItIsMounted()
{
    const QString node = machine.plugStick("KX4", stickFile("four"));
    SUCCEED(!node.isEmpty());
    output(QString("mkfs.vfat -I %1; mkdir -p /tmp/stick; mount %1 /tmp/stick").arg(node));
    SUCCEED(machine.unplugStick("KX4"));
    output("umount -l /tmp/stick");
    QVERIFY(!machine.plugStick("KX4", folder.filePath("four")).isEmpty());
    SUCCEED(machine.unplugStick("KX4"));
}

void TstVirtualMachine::twoSticksAreToldApartByTheirNumbers()
{
    const QString first = machine.plugStick("KX5", stickFile("five"));
    const QString second = machine.plugStick("KX6", stickFile("six"));
    SUCCEED(!first.isEmpty() && !second.isEmpty());
    QVERIFY(first != second);
    QCOMPARE(output("lsblk -dno SERIAL " + first + " " + second), "KX5\nKX6");
    output("echo six >" + second);
    SUCCEED(machine.unplugStick("KX5"));
    SUCCEED(machine.unplugStick("KX6"));
    QCOMPARE(readFile(folder.filePath("five")).left(4), QByteArray(4, '\0'));
    QCOMPARE(readFile(folder.filePath("six")).left(4), QByteArray("six\n"));
}

void TstVirtualMachine::aDiscIsRead()
{
    QVERIFY(
        machine.run("dd if=/dev/sr0 of=/dev/null count=1", VirtualMachine::User::Root).exitCode !=
        0);
    SUCCEED(machine.insertDisc(discFile()));
    QCOMPARE(output("until lsblk -no LABEL /dev/sr0 | grep -q .; do sleep 0.2; done\n"
                    "lsblk -dno LABEL,FSTYPE,TYPE /dev/sr0")
                 .simplified(),
             "KORVEX_DISC udf rom");
    QCOMPARE(output("mkdir -p /tmp/disc; mount -t iso9660 -o ro /dev/sr0 /tmp/disc; ls /tmp/disc;"
                    "umount /tmp/disc"),
             "Grüße.txt");
    QCOMPARE(
        output("sha256sum </dev/sr0 | cut -c1-64"),
        QString::fromLatin1(
            QCryptographicHash::hash(readFile(discFile()), QCryptographicHash::Sha256).toHex()));
    SUCCEED(machine.removeDisc());
}

void TstVirtualMachine::theTrayOpensAndCloses()
{
    SUCCEED(machine.insertDisc(discFile()));
    QVERIFY(!machine.isTrayOpen());
    output("eject /dev/sr0");
    QVERIFY(machine.isTrayOpen());
    output("eject -t /dev/sr0");
    QVERIFY(!machine.isTrayOpen());
    SUCCEED(machine.removeDisc());
    QVERIFY(machine.isTrayOpen());
}

void TstVirtualMachine::imagesAreMountedByTheKernel()
{
    QVERIFY(QFile::copy(discFile(), machine.sharedFolder() + "/disc.iso"));
    for (const QString type : {"iso9660", "udf"})
        QCOMPARE(output("cp $SHARE/disc.iso /tmp; mkdir -p /tmp/image\n"
                        "mount -o loop,ro -t " +
                        type +
                        " /tmp/disc.iso /tmp/image\n"
                        "stat -fc %T /tmp/image; cat /tmp/image/Gr*; umount /tmp/image"),
                 QString(type == "udf" ? "udf" : "isofs") + "\nhello");
}

void TstVirtualMachine::theProgramShowsItsWindow()
{
    const QString window = output("$PROGRAM >~/program.log 2>&1 &\n"
                                  "xdotool search --sync --onlyvisible --name 'Korvex ISO Editor'",
                                  VirtualMachine::User::Tester);
    QVERIFY(!window.isEmpty());
    QCOMPARE(output("xdotool getwindowgeometry --shell " + window.section('\n', 0, 0) +
                        " | grep -E 'WIDTH|HEIGHT'",
                    VirtualMachine::User::Tester),
             "WIDTH=860\nHEIGHT=580");
    QCOMPARE(output("stat -c %U /proc/$(pidof korvex-iso-editor)"), "tester");

    // The tiles are drawn a moment after the window has appeared.
    QImage screen;
    QElapsedTimer timer;
    timer.start();
    do {
        screen = machine.screenshot();
    } while (!hasAccent(screen) && timer.elapsed() < 60 * 1000);
    QVERIFY(hasAccent(screen));
    QCOMPARE(screen.size(), QSize(1280, 1024));
    QVERIFY(QDir().mkpath(KORVEX_SCREENSHOTS) &&
            screen.save(KORVEX_SCREENSHOTS "/system-program.png"));
    output("kill $(pidof korvex-iso-editor)");
}

void TstVirtualMachine::aStickWrittenInTheMachineBoots()
{
    const QString file = stickFile("bootable");
    const QString node = machine.plugStick("KX7", file);
    SUCCEED(!node.isEmpty());
    writeRandomFile(machine.sharedFolder() + "/large", 27 * 1024 * 1024, 1);
    QElapsedTimer timer;
    timer.start();
    output(QString("echo '2048,,0c,*' | sfdisk -q --wipe=always %1; udevadm settle\n"
                   "mkfs.vfat -F 32 %1-part1; syslinux --install %1-part1\n"
                   "dd if=/usr/lib/syslinux/mbr/mbr.bin of=%1 bs=440 count=1 conv=notrunc,fsync\n"
                   "mkdir -p /tmp/disc; mount %1-part1 /tmp/disc; printf 'PROMPT 1\\nSAY Started "
                   "from a stick.\\n' "
                   ">/tmp/disc/syslinux.cfg; cp $SHARE/large /tmp/disc; umount /tmp/disc\n"
                   "mount -o ro %1-part1 /tmp/disc; cmp $SHARE/large /tmp/disc/large; umount "
                   "/tmp/disc")
               .replace("%1-part1", node + "1")
               .replace("%1", node));
    qInfo() << "Written in" << timer.elapsed() << "ms";
    SUCCEED(machine.unplugStick("KX7"));
    timer.start();
    const QString screen = bootStick(file, "boot:");
    QVERIFY2(screen.contains("Started from a stick."), qPrintable(screen));
    qInfo() << "Booted in" << timer.elapsed() << "ms";
}

void TstVirtualMachine::aStickWithoutBootLoaderDoesNotBoot()
{
    const QString screen = bootStick(stickFile("empty"), "No bootable device.");
    QVERIFY2(screen.contains("No bootable device."), qPrintable(screen));
}

void TstVirtualMachine::theMachineShutsDown()
{
    SUCCEED(machine.shutDown());
    QCOMPARE(machine.run("true").exitCode, -1);
}

KORVEX_TEST_MAIN(TstVirtualMachine)
#include "tst_virtualmachine.moc"

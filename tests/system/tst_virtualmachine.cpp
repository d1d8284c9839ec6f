// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootstick.h"
#include "guest.h"
#include "guesttests.h"
#include "testcase.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QTest>

namespace
{

constexpr qint64 stickBytes = 256 * 1024 * 1024;

QString transcript(const VirtualMachine::Result& result)
{
    return QString("exit code %1\n%2").arg(result.exitCode).arg(QString::fromUtf8(result.output));
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
    void twoSticksAreToldApartByTheirNumbers();
    void aStickWithoutBootLoaderDoesNotBoot();
    void theMachineShutsDown();

private:
    QString stickFile(const QString& name);
    // Runs a script that has to succeed and returns its output without blanks around it.
    QString output(const QString& script, VirtualMachine::User user = VirtualMachine::User::Root);

    QTemporaryDir folder;
    VirtualMachine& machine = Guest::sharedMachine();
};

#define SUCCEED(condition) QVERIFY2(condition, qPrintable(machine.problem()))

void TstVirtualMachine::initTestCase()
{
    SUCCEED(machine.isRunning() || machine.start());
}

QString TstVirtualMachine::stickFile(const QString& name)
{
    return makeStick(folder.filePath(name), stickBytes);
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
    writeFile(machine.imageFolder() + "/image", "three");
    QCOMPARE(output(QString("cat %1/image").arg(VirtualMachine::guestImages)), "three");
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

std::unique_ptr<QObject> makeVirtualMachineTest()
{
    return std::make_unique<TstVirtualMachine>();
}

#include "tst_virtualmachine.moc"

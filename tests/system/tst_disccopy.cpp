// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guestprogram.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "virtualmachine.h"

#include <QTemporaryDir>
#include <QtTest>

// Discs copied to images by the program for a user at the screen.
class TstDiscCopy : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void driveWithoutDiscIsNotListed();
    void discIsCopied();
    void buttonEjectsTheMountedDisc();

private:
    void insertAndMount();

    QTemporaryDir folder;
    VirtualMachine machine;
    GuestProgram program{machine};
};

#define SUCCEED(condition) QVERIFY2(condition, qPrintable(machine.problem()))
#define USE(condition) QVERIFY2(condition, qPrintable(program.problem()))

namespace
{

constexpr int copySeconds = 300;
const QStringList drive("QEMU QEMU DVD-ROM 2.5+ (/dev/sr0)");

} // namespace

void TstDiscCopy::initTestCase()
{
    SUCCEED(machine.start());
    const QString content = folder.filePath("content");
    for (int number = 0; number < 100; ++number)
        writeFile(QString("%1/folder %2/file-%3").arg(content).arg(number % 10).arg(number),
                  QByteArray::number(number).repeated(number));
    writeFile(content + QString::fromUtf8("/Gr\u00fc\u00dfe \u5149.txt"), "hello\n");
    writeRandomFile(content + "/large", 10 * 1024 * 1024, 1);
    makeImage(content, folder.filePath("disc.iso"), {"-J", "-V", "MY  DISC"});
}

void TstDiscCopy::init()
{
    USE(program.start());
}

void TstDiscCopy::cleanup()
{
    if (QTest::currentTestFailed() && QDir().mkpath(KORVEX_SCREENSHOTS))
        machine.screenshot().save(
            QString(KORVEX_SCREENSHOTS "/system-failed-%1.png").arg(QTest::currentTestFunction()));
    USE(program.stop());
    machine.run("umount /dev/sr0", VirtualMachine::User::Root);
    SUCCEED(machine.removeDisc());
}

// As the desktop does when a disc comes in.
void TstDiscCopy::insertAndMount()
{
    SUCCEED(machine.insertDisc(folder.filePath("disc.iso")));
    const auto mounted =
        machine.run("until lsblk -no LABEL /dev/sr0 | grep -q .; do sleep 0.2; done\n"
                    "udisksctl mount -b /dev/sr0");
    QVERIFY2(mounted.output.startsWith("Mounted /dev/sr0 at /media/tester/MY  DISC"),
             mounted.output.constData());
}

void TstDiscCopy::driveWithoutDiscIsNotListed()
{
    USE(program.click("copy"));
    USE(program.waitForWidget("CPage5/start"));
    USE(program.click("CPage5/start"));
    USE(program.waitForText("Please select the iso file to save"));
    QCOMPARE(program.entries("dvdlist"), QStringList());
    USE(program.click("CommDialog/btnok"));
}

void TstDiscCopy::discIsCopied()
{
    insertAndMount();
    USE(program.click("copy"));
    USE(program.waitForEntries("dvdlist", drive));
    const QString image = machine.sharedFolder() + "/copy.iso";
    USE(program.enter("lineEdit", QString(VirtualMachine::guestFolder) + "/copy.iso"));
    QElapsedTimer timer;
    timer.start();
    USE(program.click("CPage5/start"));
    USE(program.waitForText("Copy CD/DVD successfully!", copySeconds));
    qInfo() << "Copied in" << timer.elapsed() << "ms";
    USE(program.click("CommDialog/btnok"));
    extractImage(folder.filePath("disc.iso"), folder.filePath("disc"));
    extractImage(image, folder.filePath("copy"));
    const auto wanted = hashesBelow(folder.filePath("disc"));
    QVERIFY(wanted.size() > 100);
    QCOMPARE(hashesBelow(folder.filePath("copy")), wanted);
    // The label stands at a fixed place of the image.
    QCOMPARE(readFile(image).mid(16 * 2048 + 40, 32).trimmed(), QByteArray("MY  DISC"));
}

void TstDiscCopy::buttonEjectsTheMountedDisc()
{
    insertAndMount();
    QVERIFY(!machine.isTrayOpen());
    USE(program.click("copy"));
    USE(program.waitForEntries("dvdlist", drive));
    USE(program.click("CPage5/eject"));
    QTRY_VERIFY_WITH_TIMEOUT(machine.isTrayOpen(), 60000);
    QCOMPARE(machine.run("ls -A /media/tester").output, QByteArray());
}

KORVEX_TEST_MAIN(TstDiscCopy)
#include "tst_disccopy.moc"

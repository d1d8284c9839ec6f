// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guesttest.h"
#include "guesttests.h"
#include "imagemaker.h"
#include "testfiles.h"

// Discs copied to images and burnt by the program, and images mounted, for a user at the screen.
class TstDiscs : public GuestTest
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void driveWithoutDiscIsNotListed();
    void discIsCopied();
    void buttonEjectsTheMountedDisc();
    void imageIsBurnt();
    void imageMountedForNobodyIsUnmounted();

private:
    void openCopyPage();
    void leaveCopyPage();
    void insertAndMount();
    void pretendBlankDisc();
};

namespace
{

constexpr int copySeconds = 900;
const QStringList drive("QEMU QEMU DVD-ROM 2.5+ (/dev/sr0)");

} // namespace

void TstDiscs::initTestCase()
{
    STEP(GuestTest::initTestCase());
    const QString content = folder.filePath("content");
    for (int number = 0; number < 100; ++number)
        writeFile(QString("%1/folder %2/file-%3").arg(content).arg(number % 10).arg(number),
                  QByteArray::number(number).repeated(number));
    writeFile(content + QString::fromUtf8("/Gr\u00fc\u00dfe \u5149.txt"), "hello\n");
    writeRandomFile(content + "/large", 3 * 1024 * 1024, 1);
    makeImage(content, folder.filePath("disc.iso"), {"-J", "-V", "MY  DISC"});
}

void TstDiscs::cleanup()
{
    GuestTest::cleanup();
    machine.run("umount /dev/sr0", VirtualMachine::User::Root);
    SUCCEED(machine.removeDisc());
}

void TstDiscs::openCopyPage()
{
    USE(program.click("copy"));
    USE(program.waitForWidget("CPage5/start"));
}

void TstDiscs::leaveCopyPage()
{
    USE(program.click("CPage5/back"));
    USE(program.waitForWidget("copy"));
}

// As the desktop does when a disc comes in.
void TstDiscs::insertAndMount()
{
    SUCCEED(machine.insertDisc(folder.filePath("disc.iso")));
    const auto mounted =
        machine.run("until lsblk -no LABEL /dev/sr0 | grep -q .; do sleep 0.2; done\n"
                    "udisksctl mount -b /dev/sr0");
    QVERIFY2(mounted.output.startsWith("Mounted /dev/sr0 at /media/tester/MY  DISC"),
             mounted.output.constData());
}

// The machine's drive cannot write. Here it says that it can, and what is meant for it goes to the
// pseudo drive of the burning tool, a file.
void TstDiscs::pretendBlankDisc()
{
    output(R"(cat >/etc/udev/rules.d/99-blank.rules <<'END'
KERNEL=="sr0", ENV{ID_CDROM_CD_R}="1", ENV{ID_CDROM_MEDIA}="1", ENV{ID_CDROM_MEDIA_CD_R}="1", \
    ENV{ID_CDROM_MEDIA_STATE}="blank"
END
cat >/usr/local/bin/xorriso <<'END'
#!/bin/bash
exec /usr/bin/xorriso "${@/#dev=\/dev\/sr0/dev=stdio:/home/tester/burnt}"
END
chmod 755 /usr/local/bin/xorriso
udevadm control --reload; udevadm trigger --settle /dev/sr0)");
}

void TstDiscs::driveWithoutDiscIsNotListed()
{
    STEP(openCopyPage());
    USE(program.click("CPage5/start"));
    USE(program.waitForText("Please select the iso file to save"));
    QCOMPARE(program.entries("dvdlist"), QStringList());
    USE(program.click("CommDialog/btnok"));
    STEP(leaveCopyPage());
}

void TstDiscs::discIsCopied()
{
    STEP(insertAndMount());
    STEP(openCopyPage());
    USE(program.waitForEntries("dvdlist", drive));
    const QString image = machine.sharedFolder() + "/copy.iso";
    USE(program.enter("lineEdit", QString(VirtualMachine::guestFolder) + "/copy.iso"));
    USE(program.click("CPage5/start"));
    USE(program.waitForText("Copy CD/DVD successfully!", copySeconds));
    USE(program.click("CommDialog/btnok"));
    STEP(leaveCopyPage());
    extractImage(folder.filePath("disc.iso"), folder.filePath("disc"));
    extractImage(image, folder.filePath("copy"));
    const auto wanted = hashesBelow(folder.filePath("disc"));
    QVERIFY(wanted.size() > 100);
    QCOMPARE(hashesBelow(folder.filePath("copy")), wanted);
    // The label stands at a fixed place of the image.
    QCOMPARE(readFile(image).mid(16 * 2048 + 40, 32).trimmed(), QByteArray("MY  DISC"));
}

void TstDiscs::buttonEjectsTheMountedDisc()
{
    STEP(insertAndMount());
    QVERIFY(!machine.isTrayOpen());
    STEP(openCopyPage());
    USE(program.waitForEntries("dvdlist", drive));
    USE(program.click("CPage5/eject"));
    QTRY_VERIFY_WITH_TIMEOUT(machine.isTrayOpen(), 300000);
    QCOMPARE(machine.run("ls -A /media/tester").output, QByteArray());
    STEP(leaveCopyPage());
}

void TstDiscs::imageIsBurnt()
{
    STEP(pretendBlankDisc());
    QVERIFY(QFile::copy(folder.filePath("disc.iso"), machine.sharedFolder() + "/disc.iso"));
    USE(program.click("burn"));
    USE(program.click("CBurnDialog/rdvd"));
    USE(program.waitForEntries("dvdlist", drive));
    USE(program.enter("isofile", QString(VirtualMachine::guestFolder) + "/disc.iso"));
    USE(program.click("CBurnDialog/burn"));
    USE(program.waitForText("Burning disc successfully.", copySeconds));
    USE(program.click("CommDialog/btnok"));
    USE(program.click("CBurnDialog/back"));
    output("cp ~tester/burnt $SHARE/burnt");
    const QByteArray image = readFile(folder.filePath("disc.iso"));
    const auto hash = [](const QByteArray& bytes) {
        return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    };
    QCOMPARE(hash(readFile(machine.sharedFolder() + "/burnt").left(image.size())), hash(image));
}

// The disk service goes on by itself when the program has lost its patience with the tool.
void TstDiscs::imageMountedForNobodyIsUnmounted()
{
    QVERIFY(QFile::copy(folder.filePath("disc.iso"), machine.imageFolder() + "/disc.iso"));
    const auto result = machine.run(R"(PATH=$(dirname "$PROGRAM")/platform-tools:$PATH
hdiutil mount /mnt/images/disc.iso &
disown
until grep -q . /proc/$!/task/$!/children; do sleep 0.05; done
kill -9 $!
until losetup --list | grep -q disc.iso; do sleep 0.05; done
echo attached
while losetup --list | grep -q disc.iso; do sleep 0.05; done
echo released)");
    QCOMPARE(result.output, QByteArray("attached\nreleased\n"));
    QCOMPARE(machine.run("ls -A /media/tester").output, QByteArray());
}

std::unique_ptr<QObject> makeDiscsTest()
{
    return std::make_unique<TstDiscs>();
}

#include "tst_discs.moc"

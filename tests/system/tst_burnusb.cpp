// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootmanager.h"
#include "bootstick.h"
#include "guestprogram.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "virtualmachine.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

namespace
{

constexpr qint64 megabyte = 1024 * 1024;
constexpr qint64 gigabyte = 1024 * megabyte;
constexpr int burnSeconds = 300;
const QByteArray managerText = "The boot manager of the stick runs";

QString toolFolder()
{
    return QCoreApplication::applicationDirPath();
}

void run(const QString& script)
{
    QProcess shell;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LC_ALL", "C.UTF-8");
    shell.setProcessEnvironment(environment);
    shell.setProcessChannelMode(QProcess::MergedChannels);
    shell.start("bash", {"-ec", script});
    const bool ended = shell.waitForFinished(300000);
    QVERIFY2(ended && shell.exitCode() == 0, qPrintable(script + '\n' + shell.readAll()));
}

} // namespace

// USB sticks written by the program for a user at the screen, and what can go wrong with them.
class TstBurnUsb : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void listHoldsTheSticksAlone();
    void stickBecomesBootable_data();
    void stickBecomesBootable();
    void stickWithoutRoomIsLeftAlone();
    void stickWithTheImageOnItIsLeftAlone();
    void refusedPasswordLeavesTheStickEmpty();
    void stickIsPulledOutDuringTheCopy();
    void largeInstallWimIsSplit();

private:
    // Plugs a stick with that content in and returns its node; pull() takes it out again.
    QString plug(const QString& file);
    void pull();
    // Opens the page and chooses the image and what is to become of the stick.
    void prepareBurn(const QString& image, const QString& node, const QString& label, bool fat);
    // A Windows installation disc with little on it.
    void makeWindowsImage(const QString& image);
    void confirm();
    void finish();
    // What lies on a stick that has been pulled out.
    static QMap<QString, QByteArray> contentOf(const QString& stick);
    // Asks the machine something as root.
    QString output(const QString& script);

    QTemporaryDir folder;
    QMap<QString, QByteArray> imageContent;
    int sticks = 0;
    QStringList plugged;
    VirtualMachine machine;
    GuestProgram program{machine};
};

#define SUCCEED(condition) QVERIFY2(condition, qPrintable(machine.problem()))
#define USE(condition) QVERIFY2(condition, qPrintable(program.problem()))
// A step that ends the test function when it fails.
#define STEP(call)                                                                                 \
    do {                                                                                           \
        call;                                                                                      \
        if (QTest::currentTestFailed())                                                            \
            return;                                                                                \
    } while (false)

void TstBurnUsb::initTestCase()
{
    SUCCEED(machine.start());
    const QString content = folder.filePath("content");
    for (int number = 0; number < 200; ++number)
        writeFile(QString("%1/folder %2/file-%3.txt").arg(content).arg(number % 10).arg(number),
                  QByteArray::number(number).repeated(number));
    writeFile(content + QString::fromUtf8("/Gr\u00fc\u00dfe.txt"), "hello\n");
    writeFile(content + "/bootmgr", bootManager(managerText));
    writeRandomFile(content + "/live/system.squashfs", 12 * megabyte, 1);
    makeImage(content, machine.sharedFolder() + "/linux.iso", {"-J", "-V", "LINUX LIVE"});
    extractImage(machine.sharedFolder() + "/linux.iso", folder.filePath("extracted"));
    imageContent = hashesBelow(folder.filePath("extracted"));
    output("cp $SHARE/linux.iso ~tester");
}

void TstBurnUsb::init()
{
    USE(program.start());
}

void TstBurnUsb::cleanup()
{
    if (QTest::currentTestFailed() && QDir().mkpath(KORVEX_SCREENSHOTS))
        machine.screenshot().save(
            QString(KORVEX_SCREENSHOTS "/system-failed-%1.png").arg(QTest::currentTestFunction()));
    USE(program.stop());
    while (!plugged.isEmpty())
        pull();
}

QString TstBurnUsb::plug(const QString& file)
{
    const QString serial = QString("KX%1").arg(++sticks);
    const QString node = machine.plugStick(serial, file);
    if (!node.isEmpty())
        plugged.append(serial);
    return node;
}

void TstBurnUsb::pull()
{
    SUCCEED(machine.unplugStick(plugged.takeLast()));
}

QString TstBurnUsb::output(const QString& script)
{
    const VirtualMachine::Result result =
        machine.run("set -e\n" + script, VirtualMachine::User::Root);
    if (result.exitCode != 0)
        QTest::qFail(qPrintable(script + "\n" + result.output + machine.problem()), __FILE__,
                     __LINE__);
    return QString::fromUtf8(result.output).trimmed();
}

void TstBurnUsb::prepareBurn(const QString& image, const QString& node, const QString& label,
                             bool fat)
{
    USE(program.click("burn"));
    USE(program.click("CBurnDialog/rusb"));
    USE(program.waitForEntries("usblist", {node}));
    USE(program.enter("isofile", image));
    USE(program.enter("volumelab", label));
    if (fat)
        USE(program.chooseNext("sysfilelist"));
    USE(program.click("CBurnDialog/burn"));
}

void TstBurnUsb::makeWindowsImage(const QString& image)
{
    const QString content = folder.filePath("windows-content");
    writeFile(folder.filePath("installed/explorer.exe"), "explorer");
    writeRandomFile(folder.filePath("installed/large.dll"), 3 * megabyte, 3);
    writeFile(content + "/setup.exe", "setup");
    QVERIFY(QDir().mkpath(content + "/sources"));
    const QString archive = content + "/sources/install.wim";
    run("'" + toolFolder() + "/wimlib-imagex/wimlib-imagex' capture '" +
        folder.filePath("installed") + "' '" + archive + "'");
    QVERIFY(QFile::resize(archive, 4 * gigabyte));
    run("'" + toolFolder() + "/cdrtools/mkisofs' -quiet -udf -allow-limited-size -r -V WIN '" +
        content + "' | dd conv=sparse bs=64K status=none of='" + image + "'");
    QVERIFY(QFile::remove(archive));
}

void TstBurnUsb::confirm()
{
    USE(program.waitForText("all data in it will be deleted!"));
    USE(program.click("btnok"));
}

QMap<QString, QByteArray> TstBurnUsb::contentOf(const QString& stick)
{
    const QTemporaryDir content;
    run("MTOOLS_SKIP_CHECK=1 mcopy -s -i '" + stick + "@@1M' ::/ '" + content.path() + "'");
    return hashesBelow(content.path());
}

void TstBurnUsb::finish()
{
    USE(program.waitForText("Burning Successfully...", burnSeconds));
    USE(program.click("CommDialog/btnok"));
    USE(program.waitForWidget("CBurnDialog/burn"));
}

void TstBurnUsb::listHoldsTheSticksAlone()
{
    SUCCEED(machine.insertDisc(machine.sharedFolder() + "/linux.iso"));
    const QString first = plug(makeStick(folder.filePath("first"), 64 * megabyte));
    USE(program.click("burn"));
    USE(program.click("CBurnDialog/rusb"));
    USE(program.waitForEntries("usblist", {first}));
    const QString second = plug(makeStick(folder.filePath("second"), 64 * megabyte));
    USE(program.click("usblist"));
    USE(program.waitForEntries("usblist", {first, second}));
    USE(program.press("Escape"));
    // Nothing but the opening fills the list from here on.
    STEP(pull());
    USE(program.click("usblist"));
    USE(program.waitForEntries("usblist", {first}));
    USE(program.press("Escape"));
    SUCCEED(machine.removeDisc());
}

void TstBurnUsb::stickBecomesBootable_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<bool>("fat");
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("type");
    QTest::newRow("FAT32") << 1024 * megabyte << false << "my stick"
                           << "vfat FAT32 MY STICK c";
    QTest::newRow("FAT") << 256 * megabyte << true << ""
                         << "vfat FAT16 NONAME c";
}

void TstBurnUsb::stickBecomesBootable()
{
    QFETCH(qint64, bytes);
    QFETCH(bool, fat);
    QFETCH(QString, label);
    QElapsedTimer timer;
    timer.start();
    const QString file = makeStick(folder.filePath("bootable"), bytes);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn("/home/tester/linux.iso", node, label, fat));
    USE(program.waitForText("all data in it will be deleted!"));
    QVERIFY(QDir().mkpath(KORVEX_SCREENSHOTS) &&
            machine.screenshot().copy(0, 0, 860, 580).save(KORVEX_SCREENSHOTS "/system-burn.png"));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Burning Successfully...", burnSeconds));
    qInfo() << "Written after" << timer.elapsed() << "ms";
    QTEST(output("lsblk -no FSTYPE,FSVER,LABEL " + node + "1; sfdisk --part-type " + node + " 1")
              .simplified(),
          "type");
    pull();
    QMap<QString, QByteArray> content = contentOf(file);
    for (auto entry = imageContent.cbegin(); entry != imageContent.cend(); ++entry)
        QCOMPARE(content.take(entry.key()), entry.value());
    QCOMPARE(content.take("syslinux.cfg"),
             QCryptographicHash::hash(bootMenu, QCryptographicHash::Sha256));
    const QString screen = bootStick(file, managerText);
    QVERIFY2(screen.contains(managerText), qPrintable(screen));
    qInfo("%s", qPrintable(screen.trimmed()));
    qInfo() << "Booted after" << timer.elapsed() << "ms";
}

void TstBurnUsb::stickWithoutRoomIsLeftAlone()
{
    const QString file = folder.filePath("small");
    writeRandomFile(file, 50 * megabyte, 2);
    const QByteArray before = readFile(file);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn("/home/tester/linux.iso", node, "X", false));
    STEP(confirm());
    USE(program.waitForText("Insufficient space on disk"));
    USE(program.click("btnok"));
    pull();
    QVERIFY(readFile(file) == before);
}

void TstBurnUsb::stickWithTheImageOnItIsLeftAlone()
{
    const QString file = makeStick(folder.filePath("carrier"), 256 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    output(QString("echo '2048,,0c' | sfdisk -q --wipe=always %1; udevadm settle\n"
                   "mkfs.vfat -n CARRIER %11; udevadm settle")
               .replace("%1", node));
    QCOMPARE(machine
                 .run("udisksctl mount -b " + node +
                      "1 >&2 && cd /media/tester/CARRIER && "
                      "cp ~/linux.iso x.iso && echo mine >mine && "
                      "ln -s $PWD ~/carrier")
                 .exitCode,
             0);
    STEP(prepareBurn("/home/tester/carrier/x.iso", node, "NEW", false));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    STEP(finish());
    pull();
    QCOMPARE(contentOf(file).keys(), QStringList({"mine", "x.iso"}));
}

// The boot tool would have mounted it again, so there is nothing to copy to.
void TstBurnUsb::refusedPasswordLeavesTheStickEmpty()
{
    const QString file = makeStick(folder.filePath("refused"), 256 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn("/home/tester/linux.iso", node, "REFUSED", false));
    STEP(confirm());
    USE(program.cancelPassword());
    STEP(finish());
    QCOMPARE(output("lsblk -no FSTYPE,LABEL " + node + "1").simplified(), "vfat REFUSED");
    QCOMPARE(output("ls -A /media/tester"), "");
    pull();
    QCOMPARE(contentOf(file), (QMap<QString, QByteArray>()));
}

void TstBurnUsb::stickIsPulledOutDuringTheCopy()
{
    const QString content = folder.filePath("large");
    writeFile(content + "/zeros", {});
    QVERIFY(QFile::resize(content + "/zeros", 200 * megabyte));
    makeImage(content, machine.sharedFolder() + "/large.iso");
    const QString file = makeStick(folder.filePath("pulled"), 512 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(QString(VirtualMachine::guestFolder) + "/large.iso", node, "PULLED", false));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Burning the USB disk...", burnSeconds));
    pull();
    // The stick's file takes no room where nothing has been written.
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QVERIFY(status.st_blocks * 512LL < 150 * megabyte);
    STEP(finish());
    USE(program.click("CBurnDialog/rdvd"));
    USE(program.waitForEntries("usblist", {}));
    USE(program.click("CBurnDialog/back"));
    output("umount -l /media/tester/PULLED || true");
}

// An archive of Windows images that is larger than FAT's files can be, though for the greater part
// it is a hole that nothing refers to.
void TstBurnUsb::largeInstallWimIsSplit()
{
    const QString image = machine.sharedFolder() + "/windows.iso";
    STEP(makeWindowsImage(image));
    const QString file = makeStick(folder.filePath("windows"), 6 * gigabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(
        prepareBurn(QString(VirtualMachine::guestFolder) + "/windows.iso", node, "WINDOWS", false));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Process the wim file larger than 4 GB...", burnSeconds));
    STEP(finish());
    QCOMPARE(output("losetup --list --noheadings"), "");
    pull();
    QCOMPARE(contentOf(file).keys(),
             QStringList({"ldlinux.c32", "ldlinux.sys", "libcom32.c32", "libutil.c32", "setup.exe",
                          "sources", "sources/install.swm", "syslinux", "syslinux.cfg",
                          "syslinux/chain.c32", "syslinux/libcom32.c32", "syslinux/libutil.c32"}));
    const QString part = folder.filePath("install.swm");
    run("MTOOLS_SKIP_CHECK=1 mcopy -i '" + file + "@@1M' ::/sources/install.swm '" + part + "'");
    run("'" + toolFolder() + "/wimlib-imagex/wimlib-imagex' apply '" + part + "' 1 '" +
        folder.filePath("applied") + "'");
    QCOMPARE(hashesBelow(folder.filePath("applied")), hashesBelow(folder.filePath("installed")));
}

KORVEX_TEST_MAIN(TstBurnUsb)
#include "tst_burnusb.moc"

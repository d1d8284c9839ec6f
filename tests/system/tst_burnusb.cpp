// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootmanager.h"
#include "bootstick.h"
#include "guesttests.h"
#include "imagemaker.h"
#include "testfiles.h"
#include "usbburntest.h"

// USB sticks written by the program for a user at the screen.
class TstBurnUsb : public UsbBurnTest
{
    Q_OBJECT

private slots:
    void listHoldsTheSticksAlone();
    void stickBecomesBootable();
    void largeInstallWimIsSplit();

private:
    // File system, its size and label, and the kind of the partition.
    QString typeOf(const QString& node);
    // The stick holds what the image does, and the boot menu, and starts a machine with it.
    static void checkStick(const QString& file, QMap<QString, QByteArray> content,
                           const QMap<QString, QByteArray>& imageContent);
    // A Windows installation disc whose archive of images is larger than a file of FAT can be,
    // though most of it is a hole behind the archive's end. (An archive that makes more than one
    // part takes an emulated machine ten minutes; the test of the writer splits one.)
    void makeWindowsImage(const QString& image);
    // That archive without the hole.
    QString windowsArchive() const { return folder.filePath("install.wim"); }
    void partsMakeTheArchive(const QString& stick);

    // All of it but that archive.
    QMap<QString, QByteArray> windowsContent;
};

void TstBurnUsb::listHoldsTheSticksAlone()
{
    SUCCEED(machine.insertDisc(machine.imageFolder() + "/linux.iso"));
    const QString first = plug(makeStick(folder.filePath("first"), 64 * megabyte));
    USE(program.click("burn"));
    USE(program.click("CBurnDialog/rusb"));
    USE(program.waitForEntries("usblist", {first}));
    const QString second = plug(makeStick(folder.filePath("second"), 64 * megabyte));
    USE(program.openList("usblist"));
    USE(program.waitForEntries("usblist", {first, second}));
    USE(program.closeList("usblist"));
    // Nothing but the opening fills the list from here on.
    STEP(pull());
    USE(program.openList("usblist"));
    USE(program.waitForEntries("usblist", {first}));
    USE(program.closeList("usblist"));
    STEP(leave());
    SUCCEED(machine.removeDisc());
}

void TstBurnUsb::stickBecomesBootable()
{
    const QString file = makeStick(folder.filePath("bootable"), 256 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(linuxImage, node, "", true));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Burning Successfully...", burnSeconds));
    QCOMPARE(typeOf(node), "vfat FAT16 NONAME c");
    // As soon as success is told, nothing is missing.
    STEP(pull());
    STEP(finish());
    STEP(checkStick(file, contentOf(file), linuxContent));
}

QString TstBurnUsb::typeOf(const QString& node)
{
    return output("lsblk -no FSTYPE,FSVER,LABEL " + node + "1; sfdisk --part-type " + node + " 1")
        .simplified();
}

void TstBurnUsb::checkStick(const QString& file, QMap<QString, QByteArray> content,
                            const QMap<QString, QByteArray>& imageContent)
{
    for (auto entry = imageContent.cbegin(); entry != imageContent.cend(); ++entry)
        QCOMPARE(content.take(entry.key()), entry.value());
    QCOMPARE(content.take("syslinux.cfg"),
             QCryptographicHash::hash(bootMenu, QCryptographicHash::Sha256));
    const QString screen = bootStick(file, managerText);
    QVERIFY2(screen.contains(managerText), qPrintable(screen));
    qInfo("%s", qPrintable(screen.trimmed()));
}

void TstBurnUsb::makeWindowsImage(const QString& image)
{
    const QString content = folder.filePath("windows-content");
    const QString installed = folder.filePath("installed");
    writeFile(installed + "/explorer.exe", "explorer");
    writeRandomFile(installed + "/large.dll", 3 * megabyte, 3);
    writeFile(content + "/setup.exe", "setup");
    writeFile(content + "/bootmgr", bootManager(managerText));
    writeFile(content + "/sources/boot.wim", "boot");
    windowsContent = hashesBelow(content);
    runHere(QString("'%1/wimlib-imagex/wimlib-imagex' capture --compress=none '%2' '%3'\n"
                    "cp '%3' '%4/sources/install.wim'\n"
                    "truncate -s 4G '%4/sources/install.wim'\n"
                    "'%1/cdrtools/mkisofs' -quiet -udf -allow-limited-size -r -V WIN '%4' |\n"
                    "    dd conv=sparse bs=1M iflag=fullblock status=none of='%5'")
                .arg(QCoreApplication::applicationDirPath(), installed, windowsArchive(), content,
                     image));
}

void TstBurnUsb::largeInstallWimIsSplit()
{
    const QString image = machine.imageFolder() + "/windows.iso";
    STEP(makeWindowsImage(image));
    const QString file = makeStick(folder.filePath("windows"), 6 * gigabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(inMachine("windows.iso"), node, "my windows"));
    USE(program.waitForText("all data in it will be deleted!"));
    STEP(saveScreen("system-burn"));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Process the wim file larger than 4 GB...", burnSeconds));
    STEP(finish());
    QCOMPARE(typeOf(node), "vfat FAT32 MY WINDOWS c");
    // The image has been unmounted.
    QCOMPARE(output("losetup --list --noheadings"), "");
    STEP(pull());
    STEP(partsMakeTheArchive(file));
    const QMap<QString, QByteArray> content = contentOf(file);
    QCOMPARE(QStringList(content.keys()).filter("install"), QStringList("sources/install.swm"));
    STEP(checkStick(file, content, windowsContent));
}

void TstBurnUsb::partsMakeTheArchive(const QString& stick)
{
    // They are alike but for the number in the head that tells one archive from another.
    const QString parts = folder.filePath("parts");
    QVERIFY(QDir().mkdir(parts));
    STEP(copyFrom(stick, "/sources/install*.swm", parts));
    runHere(QString("'%1/wimlib-imagex/wimlib-imagex' join '%2/joined.wim' '%2'/install*.swm\n"
                    "cmp --ignore-initial=40 '%2/joined.wim' '%3'")
                .arg(QCoreApplication::applicationDirPath(), parts, windowsArchive()));
}

std::unique_ptr<QObject> makeBurnUsbTest()
{
    return std::make_unique<TstBurnUsb>();
}

#include "tst_burnusb.moc"

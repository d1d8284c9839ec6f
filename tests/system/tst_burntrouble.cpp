// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guesttests.h"
#include "imagemaker.h"
#include "testfiles.h"
#include "usbburntest.h"

#include <sys/stat.h>

// What can go wrong while the program writes a USB stick, and what it does to the stick.
class TstBurnTrouble : public UsbBurnTest
{
    Q_OBJECT

private slots:
    void stickWithoutRoomIsLeftAlone();
    void stickWithTheImageOnItIsLeftAlone();
    void refusedPasswordLeavesTheStickEmpty();
    void stickIsPulledOutDuringTheCopy();
};

void TstBurnTrouble::stickWithoutRoomIsLeftAlone()
{
    const QString file = folder.filePath("small");
    writeRandomFile(file, 50 * megabyte, 2);
    const QByteArray before = readFile(file);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(linuxImage, node, "X"));
    STEP(confirm());
    USE(program.waitForText("Insufficient space on disk"));
    USE(program.click("btnok"));
    STEP(leave());
    STEP(pull());
    QVERIFY(readFile(file) == before);
}

void TstBurnTrouble::stickWithTheImageOnItIsLeftAlone()
{
    const QString file = makeStick(folder.filePath("carrier"), 256 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    output(QString("echo '2048,,0c' | sfdisk -q --wipe=always %1; udevadm settle\n"
                   "mkfs.vfat -n CARRIER %11; udevadm settle")
               .replace("%1", node));
    const auto carrier =
        machine.run("set -e\n"
                    "udisksctl mount -b " +
                    node +
                    "1\n"
                    "cd /media/tester/CARRIER; cp /mnt/images/linux.iso x.iso; echo mine >mine\n"
                    "ln -s $PWD ~/carrier");
    QVERIFY2(carrier.exitCode == 0, carrier.output.constData());
    STEP(prepareBurn("/home/tester/carrier/x.iso", node, "NEW"));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    STEP(finish());
    STEP(pull());
    QCOMPARE(contentOf(file).keys(), QStringList({"mine", "x.iso"}));
}

// The boot tool would have mounted it again, so there is nothing to copy to.
void TstBurnTrouble::refusedPasswordLeavesTheStickEmpty()
{
    const QString file = makeStick(folder.filePath("refused"), 256 * megabyte);
    const QString node = plug(file);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(linuxImage, node, "REFUSED"));
    STEP(confirm());
    USE(program.cancelPassword());
    STEP(finish());
    QCOMPARE(output("lsblk -no FSTYPE,LABEL " + node + "1").simplified(), "vfat REFUSED");
    QCOMPARE(output("ls -A /media/tester"), "");
    STEP(pull());
    QCOMPARE(contentOf(file), (QMap<QString, QByteArray>()));
}

void TstBurnTrouble::stickIsPulledOutDuringTheCopy()
{
    // The copy takes more than a minute, and all that goes before it some seconds.
    constexpr qint64 bytesPerSecond = megabyte;
    constexpr int fileBytes = 80 * megabyte;
    const QString content = folder.filePath("large");
    writeFile(content + "/file", QByteArray(fileBytes, 'x'));
    makeImage(content, machine.imageFolder() + "/large.iso");
    const QString file = makeStick(folder.filePath("pulled"), 256 * megabyte);
    const QString node = plug(file, bytesPerSecond);
    SUCCEED(!node.isEmpty());
    STEP(prepareBurn(inMachine("large.iso"), node, "PULLED"));
    STEP(confirm());
    USE(program.enterPassword("tester"));
    USE(program.waitForText("Burning the USB disk...", burnSeconds));
    STEP(pull());
    // The stick's file takes no room where nothing has been written.
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(file).constData(), &status), 0);
    QVERIFY(status.st_blocks * 512LL < fileBytes / 2);
    STEP(finish());
    USE(program.click("burn"));
    USE(program.waitForWidget("CBurnDialog/rusb"));
    USE(program.waitForEntries("usblist", {}));
    STEP(leave());
    output("umount -l /media/tester/PULLED || true");
}

std::unique_ptr<QObject> makeBurnTroubleTest()
{
    return std::make_unique<TstBurnTrouble>();
}

#include "tst_burntrouble.moc"

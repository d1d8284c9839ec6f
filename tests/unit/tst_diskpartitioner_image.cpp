// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskmachine.h"
#include "imagenote.h"
#include "mountedvolumes.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritercommand.h"

#include <QFileInfo>

// The disk that holds the image which is to be written is not partitioned, and a disk that is not
// partitioned does not stay mounted.
class TstDiskPartitionerImage : public TestCase
{
    Q_OBJECT

private slots:
    void diskWithTheImageIsUnmountedAndNotWritten();
    void diskWithoutTheImageIsWritten();
    void imageOfAnotherProgramDoesNotCount();
    void diskThatIsTooLargeIsUnmounted();
};

namespace
{

const QStringList arguments = partitionDiskArguments("/dev/sdb", "FAT32", "X", 31914983424);

// The volume that the tests' own files lie on.
MountedVolume ownVolume(const DiskMachine& machine)
{
    return volumeHolding(mountTable(), QFileInfo(machine.tools.filePath("")).canonicalFilePath());
}

// A disk whose only partition is mounted; in the mount table it is found as source.
QByteArray mountedDisk(const QString& source)
{
    return R"({"blockdevices":[{"path":"/dev/sdb","type":"disk","size":31914983424,"rm":true,
 "tran":"usb","ro":false,"children":[{"path":")" +
           source.toUtf8() +
           R"(","type":"part","mountpoints":["/media/user/X"]},{"path":"/dev/sdb1","type":"part"}]}]})";
}

} // namespace

// The program would go on and write to a volume that stays mounted.
void TstDiskPartitionerImage::diskWithTheImageIsUnmountedAndNotWritten()
{
    DiskMachine machine({});
    const QString source = ownVolume(machine).source;
    writeFile(machine.tools.filePath("answer1"), mountedDisk(source));
    const QString image = machine.tools.filePath("x.iso");
    writeFile(image, "x");
    const QString real = QFileInfo(image).canonicalFilePath();
    leaveImageNote(machine.volumes.sessionFolder(), real);
    QCOMPARE(
        machine.run(arguments),
        QStringList({"Error: The image that is to be written lies on this disk: " + real, "1"}));
    QStringList unmounted;
    for (const MountedVolume& volume : mountTable())
        if (volume.source == source)
            unmounted.prepend("umount|--|" + volume.path);
    QCOMPARE(machine.changes(), unmounted);
}

void TstDiskPartitionerImage::diskWithoutTheImageIsWritten()
{
    DiskMachine machine({noPartition, noPartition, onePartition});
    leaveImageNote(machine.volumes.sessionFolder(), machine.tools.filePath("x.iso"));
    QCOMPARE(machine.run(arguments).last(), QString("0"));
    QCOMPARE(takeImageNote(machine.volumes.sessionFolder()), QString());
}

void TstDiskPartitionerImage::imageOfAnotherProgramDoesNotCount()
{
    DiskMachine machine({});
    writeFile(machine.tools.filePath("answer1"), mountedDisk(ownVolume(machine).source));
    writeFile(machine.tools.filePath("images/note-of-1"),
              QFile::encodeName(machine.tools.filePath("x.iso")));
    QVERIFY(machine.run(arguments).contains("Started partitioning on sdb"));
}

void TstDiskPartitionerImage::diskThatIsTooLargeIsUnmounted()
{
    DiskMachine machine({});
    const QByteArray disk = mountedDisk(ownVolume(machine).source);
    writeFile(machine.tools.filePath("answer1"),
              QByteArray(disk).replace("31914983424", "2199023256064"));
    QVERIFY(machine.run(arguments).first().startsWith("Error creating partition map: The disk is "
                                                      "too large"));
    QVERIFY(!machine.changes().isEmpty());
    QCOMPARE(machine.changes().filter("umount|"), machine.changes());
}

KORVEX_TEST_MAIN(TstDiskPartitionerImage)

#include "tst_diskpartitioner_image.moc"

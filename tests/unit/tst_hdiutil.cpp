// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburncommand.h"
#include "hdiutil.h"
#include "imagemount.h"
#include "imagenote.h"
#include "rootvolumes.h"
#include "standins.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QDir>

// Images mounted and unmounted by root, discs ejected, with stand-ins for the system's tools.
class TstHdiutil : public TestCase
{
    Q_OBJECT

private slots:
    void imageIsMounted();
    void imageThatCannotBeMounted_data();
    void imageThatCannotBeMounted();
    void failedMountLeavesNoFolder();
    void imageIsNotedEvenIfItCannotBeMounted();
    void programFindsTheMountPoint_data();
    void programFindsTheMountPoint();
    void pathIsGluedToTheVerb_data();
    void pathIsGluedToTheVerb();
    void unmountedImageLeavesNoFolder_data();
    void unmountedImageLeavesNoFolder();
    void volumesThatAreNoImages_data();
    void volumesThatAreNoImages();
    void deviceIsUnmountedWhereverItIsMounted();
    void discIsEjected();
    void otherDisksAreNotEjected();
    void blankDiscIsNeeded();
    void argumentsHaveToBeTheProgramsOwn_data();
    void argumentsHaveToBeTheProgramsOwn();
};

namespace
{

// The tools of one run.
class Machine
{
public:
    Machine()
        : volumes(tools.filePath("media"), tools.filePath("images"))
    {
        for (const char* const name : {"mount", "umount", "eject", "udevadm", "xorriso", "mkisofs"})
            tools.add(name);
    }

    // What a call says, its exit code last.
    QStringList run(const QStringList& words)
    {
        int code = -1;
        const QStringList lines = spokenLines([&] { code = hdiutilTool(words, volumes); });
        return lines + QStringList(QString::number(code));
    }

    StandIns tools;
    RootVolumes volumes;
};

} // namespace

void TstHdiutil::imageIsMounted()
{
    Machine machine;
    const QString image = machine.tools.filePath("-a \"b\".iso");
    writeFile(image, "x");
    const QStringList lines = machine.run({"mount", image});
    QCOMPARE(lines.last(), QString("0"));
    const QString path = lines.first().section('\t', 2);
    QVERIFY(path.startsWith(machine.tools.filePath("images/image-")));
    QVERIFY(QFileInfo(path).isDir());
    QCOMPARE(machine.tools.calls(),
             QStringList("mount|-t|udf,iso9660|-o|loop,ro,nosuid,nodev|--|" + image + '|' + path));
}

void TstHdiutil::imageThatCannotBeMounted_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("missing") << "missing.iso";
    QTest::newRow("folder") << "folder";
    QTest::newRow("empty") << "";
}

void TstHdiutil::imageThatCannotBeMounted()
{
    QFETCH(QString, name);
    Machine machine;
    writeFile(machine.tools.filePath("folder/x"), "x");
    QCOMPARE(machine.run({"mount", name.isEmpty() ? name : machine.tools.filePath(name)}),
             QStringList({"hdiutil: mount failed - No such file or directory", "1"}));
    QCOMPARE(machine.tools.calls(), QStringList());
}

void TstHdiutil::failedMountLeavesNoFolder()
{
    Machine machine;
    machine.tools.add("mount", "echo 'mount: unknown filesystem type.' >&2; exit 32");
    writeFile(machine.tools.filePath("x.iso"), "x");
    const QStringList lines = machine.run({"mount", machine.tools.filePath("x.iso")});
    QVERIFY(lines.first().startsWith("hdiutil: mount failed - "));
    QVERIFY(lines.first().endsWith("mount: unknown filesystem type."));
    QCOMPARE(lines.last(), QString("1"));
    QCOMPARE(QDir(machine.tools.filePath("images")).entryList({"image-*"}), QStringList());
}

void TstHdiutil::imageIsNotedEvenIfItCannotBeMounted()
{
    Machine machine;
    machine.tools.add("mount", "exit 32");
    const QString image = machine.tools.filePath("x.iso");
    writeFile(image, "x");
    const QString link = machine.tools.filePath("link.iso");
    QVERIFY(QFile::link(image, link));
    machine.run({"mount", link});
    QCOMPARE(takeImageNote(machine.volumes.sessionFolder()), QFileInfo(image).canonicalFilePath());
}

void TstHdiutil::programFindsTheMountPoint_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("line");
    QTest::newRow("as on macOS")
        << "/dev/loop0"
        << "/dev/loop0          \t                               \t/run/images/image-AbCdEf";
    QTest::newRow("long device name")
        << "/dev/a-device-with-a-long-name"
        << "/dev/a-device-with-a-long-name\t                               "
           "\t/run/images/image-AbCdEf";
}

void TstHdiutil::programFindsTheMountPoint()
{
    QFETCH(QString, device);
    const QString line = imageLine({device, "/run/images/image-AbCdEf", {}});
    QTEST(line, "line");
    QCOMPARE(imageMountPointOf(line + '\n').value_or(QString()),
             QString("/run/images/image-AbCdEf"));
}

void TstHdiutil::pathIsGluedToTheVerb_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("reason");
    const QString noImage = "/proc is not a mounted image";
    const QString missing = "No such file or directory";
    QTest::newRow("glued") << QStringList{"unmount/proc"} << noImage;
    QTest::newRow("apart") << QStringList{"unmount", "/proc"} << noImage;
    QTest::newRow("forced") << QStringList{"unmount", "-force", "/proc"} << noImage;
    QTest::newRow("glued and missing") << QStringList{"unmount/no/such/folder"} << missing;
    QTest::newRow("empty") << QStringList{"unmount", "-force", ""} << missing;
    QTest::newRow("not mounted") << QStringList{"unmount/usr/bin"} << "Nothing is mounted there";
}

void TstHdiutil::pathIsGluedToTheVerb()
{
    QFETCH(QStringList, words);
    QFETCH(QString, reason);
    Machine machine;
    QCOMPARE(machine.run(words), QStringList({"hdiutil: unmount failed - " + reason, "1"}));
    QCOMPARE(machine.tools.calls(), QStringList());
}

void TstHdiutil::unmountedImageLeavesNoFolder_data()
{
    QTest::addColumn<bool>("force");
    QTest::addColumn<QString>("call");
    QTest::newRow("plain") << false << "umount|--|";
    QTest::newRow("forced") << true << "umount|--lazy|--|";
}

void TstHdiutil::unmountedImageLeavesNoFolder()
{
    QFETCH(bool, force);
    QFETCH(QString, call);
    Machine machine;
    const QString path = machine.tools.filePath("images/image-1");
    const QString other = machine.tools.filePath("other");
    QVERIFY(QDir().mkpath(path) && QDir().mkpath(other));
    QCOMPARE(machine.volumes.unmountImage(path, force), QString());
    QCOMPARE(machine.volumes.unmountImage(other, force), QString());
    QCOMPARE(machine.tools.calls(), QStringList({call + path, call + other}));
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(QFileInfo::exists(other));
}

void TstHdiutil::volumesThatAreNoImages_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("isImage");
    QTest::newRow("image") << "/dev/loop0"
                           << "iso9660" << true;
    QTest::newRow("image with UDF") << "/dev/loop12"
                                    << "udf" << true;
    QTest::newRow("system package") << "/dev/loop1"
                                    << "squashfs" << false;
    QTest::newRow("disc") << "/dev/sr0"
                          << "iso9660" << false;
    QTest::newRow("disk") << "/dev/sda1"
                          << "ext4" << false;
}

void TstHdiutil::volumesThatAreNoImages()
{
    QFETCH(QString, source);
    QFETCH(QString, type);
    QTEST(imageRefusal({source, "/m", type, {}}).isEmpty(), "isImage");
    QVERIFY(!imageRefusal({}).isEmpty());
}

void TstHdiutil::deviceIsUnmountedWhereverItIsMounted()
{
    Machine machine;
    QCOMPARE(machine.volumes.unmount("/dev/no-such-device"), QString());
    QCOMPARE(machine.tools.calls(), QStringList());
    QStringList calls;
    for (const MountedVolume& volume : mountTable())
        if (volume.source == "proc")
            calls.prepend("umount|--|" + volume.path);
    QCOMPARE(machine.volumes.unmount("proc"), QString());
    QCOMPARE(machine.tools.calls(), calls);
    machine.tools.add("umount", "echo 'umount: target is busy.' >&2; exit 32");
    QVERIFY(machine.volumes.unmount("proc").endsWith("target is busy."));
}

void TstHdiutil::discIsEjected()
{
    Machine machine;
    machine.tools.add("lsblk", R"(echo '{"blockdevices":[{"path":"/dev/sr0","type":"rom"}]}')");
    QCOMPARE(machine.run(ejectDiscArguments("/dev/sr0")), QStringList({"\"sr0\" ejected.", "0"}));
    QCOMPARE(machine.tools.calls().last(), QString("eject|/dev/sr0"));
    machine.tools.add("eject", "echo 'eject: unable to eject' >&2; exit 1");
    QCOMPARE(machine.run(ejectDiscArguments("/dev/sr0")),
             QStringList({"hdiutil: couldn't eject \"sr0\" - eject failed with exit code 1: eject: "
                          "unable to eject",
                          "1"}));
}

void TstHdiutil::otherDisksAreNotEjected()
{
    Machine machine;
    machine.tools.add("lsblk", R"(echo '{"blockdevices":[{"path":"/dev/sda","type":"disk",
"size":1000,"tran":"sata","rm":true}]}')");
    QCOMPARE(machine.run({"eject", "/dev/sda"}).last(), QString("1"));
    machine.tools.add("lsblk", "exit 32");
    QCOMPARE(machine.run({"eject", "/dev/sr9"}),
             QStringList({"hdiutil: eject failed - No such file or directory", "1"}));
    QCOMPARE(machine.tools.calls().filter(QRegularExpression("^(eject|umount)")), QStringList());
}

void TstHdiutil::blankDiscIsNeeded()
{
    Machine machine;
    writeFile(machine.tools.filePath("x.iso"), "x");
    QCOMPARE(machine.run(burnDiscArguments(machine.tools.filePath("x.iso"))),
             QStringList({"hdiutil: burn failed - There is no blank disc in a drive.", "1"}));
    QCOMPARE(machine.tools.calls().filter("xorriso"), QStringList());
}

void TstHdiutil::argumentsHaveToBeTheProgramsOwn_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("none") << QStringList();
    QTest::newRow("unknown") << QStringList{"create", "x"};
    QTest::newRow("no image") << QStringList{"mount"};
    QTest::newRow("two images") << QStringList{"mount", "a", "b"};
    QTest::newRow("glued and more") << QStringList{"unmount/proc", "x"};
    QTest::newRow("other option") << QStringList{"unmount", "-x", "/proc"};
    QTest::newRow("other burn") << QStringList{"burn", "-verbose", "x.iso"};
    QTest::newRow("other hybrid") << QStringList{"makehybrid", "-hfs", "-joliet", "-debug",
                                                 "-ov",        "-o",   "o",       "s"};
    QTest::newRow("no device") << QStringList{"eject"};
}

void TstHdiutil::argumentsHaveToBeTheProgramsOwn()
{
    QFETCH(QStringList, words);
    Machine machine;
    const QStringList lines = machine.run(words);
    QVERIFY(lines.first().startsWith("Usage: hdiutil "));
    QCOMPARE(lines.last(), QString("1"));
    QCOMPARE(machine.tools.calls(), QStringList());
}

KORVEX_TEST_MAIN(TstHdiutil)

#include "tst_hdiutil.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "processcounts.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"

#include <QDir>

// Tools that fail while a USB disk is written: the run goes on to its message of success, and
// nothing is written where it does not belong.
class TstCBurnDialogUsbTools : public TestCase
{
    Q_OBJECT

private slots:
    void toolFloodsAndCrashes_data();
    void toolFloodsAndCrashes();
    void everyToolFails();
    void everyToolIsMissing();
    void noMountedPartition_data();
    void noMountedPartition();
    void mountPointThatIsNoFolder();
    void nothingIsLeftBehind();
};

namespace
{

const qint64 fourGibibytes = 4294967296LL;
const QString success("Burning Successfully...");

QList<QStringList> without(QList<QStringList> run, const QStringList& programs)
{
    for (int i = run.size() - 1; i >= 0; --i) {
        if (programs.contains(run.at(i).first()))
            run.removeAt(i);
    }
    return run;
}

// Hides tools beside the executable while it lives.
class HiddenTools
{
public:
    explicit HiddenTools(const QStringList& tools)
    {
        for (const QString& tool : tools) {
            paths.append(UsbWriteFixture::programFolder() + '/' + tool);
            QVERIFY(QFile::rename(paths.last(), paths.last() + ".away"));
        }
    }
    ~HiddenTools()
    {
        for (const QString& path : paths)
            QFile::rename(path + ".away", path);
    }
    HiddenTools(const HiddenTools&) = delete;
    HiddenTools& operator=(const HiddenTools&) = delete;

private:
    QStringList paths;
};

bool isIdle(const UsbWriteFixture& fixture)
{
    return !fixture.progress()->isVisible() && fixture.page->isVisible();
}

} // namespace

void TstCBurnDialogUsbTools::toolFloodsAndCrashes_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("arguments");

    const auto row = [](const char* name, const QString& program, const QStringList& arguments) {
        QTest::newRow(name) << program << arguments;
    };
    row("sync", "sync", {});
    row("format", "diskutil", {"partitionDisk", "..."});
    row("unmount the disk", "diskutil", {"unmountDisk", "..."});
    row("sudo", "sudo", {"..."});
    row("boot tool", "mkbootable", {"..."});
    row("copy", "7z", {"..."});
    row("split", "wimlib-imagex", {"..."});
    row("unmount the image", "hdiutil", {"unmount", "..."});
}

void TstCBurnDialogUsbTools::toolFloodsAndCrashes()
{
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.drives.on(program, arguments, {"flood 1", "crash"});
    QCOMPARE(fixture.write().value(1), success);
    const auto run = fixture.wholeRun(fixture.image(), true);
    QCOMPARE(fixture.commands(), program == "sudo" ? without(run, {"mkbootable"}) : run);
    QVERIFY(isIdle(fixture));
}

void TstCBurnDialogUsbTools::everyToolFails()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    const QStringList failure = {DriveScenario::complaining("failed\n"), "exit 3"};
    for (const QString verb : {"partitionDisk", "unmountDisk"})
        fixture.drives.on("diskutil", {verb, "..."}, failure);
    fixture.drives.on("hdiutil", {"unmount", "..."}, failure);
    for (const QString program : {"sync", "sudo", "7z", "wimlib-imagex"})
        fixture.drives.on(program, {"..."}, failure);
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.commands(), without(fixture.wholeRun(fixture.image(), true), {"mkbootable"}));
    QVERIFY(isIdle(fixture));
}

void TstCBurnDialogUsbTools::everyToolIsMissing()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    for (const QString program : {"hdiutil", "sync", "sudo"})
        fixture.drives.missing(program);
    const HiddenTools hidden({"7z/7z", "wimlib-imagex/wimlib-imagex", "mkbootable"});
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.commands(),
             without(fixture.wholeRun(fixture.image(), false),
                     {"hdiutil", "sync", "sudo", "7z", "wimlib-imagex", "mkbootable"}));
    QVERIFY(isIdle(fixture));
    QCOMPARE(entriesOf(fixture.stick()), QStringList("syslinux.cfg"));
}

void TstCBurnDialogUsbTools::noMountedPartition_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<bool>("isLarge");

    QTest::newRow("unknown") << QStringList{"exit 1"} << false;
    QTest::newRow("not mounted, large image")
        << QStringList{DriveScenario::printing("   Device Node:   /dev/disk2s1\n"
                                               "   Mounted:       No\n")}
        << true;
    QTest::newRow("crash") << QStringList{"flood 1", "crash"} << false;
}

// A mount point that is not there would be the computer's own root.
void TstCBurnDialogUsbTools::noMountedPartition()
{
    QFETCH(QStringList, actions);
    QFETCH(bool, isLarge);
    const QStringList rootBefore = entriesOf("/");
    UsbWriteFixture fixture;
    if (isLarge)
        fixture.addInstallWim(fourGibibytes);
    fixture.drives.on("diskutil", {"info", fixture.device + "s1"}, actions);
    fixture.drives.on("mkbootable", {fixture.device}, {});
    QCOMPARE(fixture.write().value(1), success);
    QList<QStringList> run = fixture.wholeRun(fixture.image(), isLarge);
    run = run.mid(0, run.indexOf({"mkbootable", fixture.device, fixture.stick()}) + 3);
    for (QStringList& command : run)
        command.removeAll(fixture.stick());
    if (isLarge)
        run.append({"hdiutil", "unmount", "-force", fixture.mountedImage()});
    QCOMPARE(fixture.commands(), run);
    QCOMPARE(entriesOf("/"), rootBefore);
    QCOMPARE(entriesOf(fixture.stick()), QStringList());
    QVERIFY(isIdle(fixture));
}

// The boot tool is meant to mount the partition again; when it does not, its folder is gone.
void TstCBurnDialogUsbTools::mountPointThatIsNoFolder()
{
    UsbWriteFixture fixture;
    QVERIFY(QDir(fixture.stick()).removeRecursively());
    QCOMPARE(fixture.write().value(1), success);
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
    QVERIFY(!QFileInfo::exists(fixture.stick()));
}

void TstCBurnDialogUsbTools::nothingIsLeftBehind()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.write();
    const int descriptors = descriptorCount();
    const int children = fixture.page->children().size();
    fixture.write();
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), patienceMs);
    QCOMPARE(childProcesses(), QList<qint64>());
    QCOMPARE(processesOf("scripteddrive"), QList<qint64>());
    QCOMPARE(descriptorCount(), descriptors);
    QCOMPARE(fixture.page->children().size(), children);
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbTools)
#include "tst_cburndialog_usbtools.moc"

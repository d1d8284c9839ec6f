// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"

#include <QDir>

// Which image is written to a USB disk: its path in all the tools' arguments, and whether it is
// mounted to look into it.
class TstCBurnDialogUsbImages : public TestCase
{
    Q_OBJECT

private slots:
    void path_data();
    void path();
    void relativePath_data();
    void relativePath();
    void blanksAroundThePathAreNoPartOfIt();
    void onlyPathsEndingInIsoAreMounted_data();
    void onlyPathsEndingInIsoAreMounted();
    void mountToolSaysLittle_data();
    void mountToolSaysLittle();
    void mountToolMissing();
    void mountPointLosesItsBlanks();
    void imageMountedBeforeIsUnmountedAllTheSame();
};

namespace
{

const qint64 fourGibibytes = 4294967296LL;

// Goes back to the folder that the test was started in.
class WorkingFolder
{
public:
    explicit WorkingFolder(const QString& path)
        : before(QDir::currentPath())
    {
        QDir::setCurrent(path);
    }
    ~WorkingFolder() { QDir::setCurrent(before); }
    WorkingFolder(const WorkingFolder&) = delete;
    WorkingFolder& operator=(const WorkingFolder&) = delete;

private:
    QString before;
};

// Those of a run that has not seen the image mounted.
QList<QStringList> runWithoutUnmount(const UsbWriteFixture& fixture)
{
    QList<QStringList> run = fixture.wholeRun(fixture.image(), false);
    run.removeAt(1);
    return run;
}

} // namespace

void TstCBurnDialogUsbImages::path_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("blanks and quotes") << "my  \"own\" image's\".iso";
    QTest::newRow("Unicode and shell's characters")
        << QString::fromUtf8("Übung 日本 😀 $(touch x) `y` & ; | > z.iso");
    QTest::newRow("backslash and placeholders") << "a\\n%1%2.iso";
    QTest::newRow("leading dash and .iso in a folder") << "x.iso y/-o.iso";
}

void TstCBurnDialogUsbImages::path()
{
    QFETCH(QString, name);
    UsbWriteFixture fixture;
    const QString image = fixture.path("images/" + name);
    fixture.useImage(image);
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QCOMPARE(fixture.commands(), fixture.wholeRun(image, false));
}

void TstCBurnDialogUsbImages::relativePath_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("argument");

    QTest::newRow("with a folder") << "../folder/a b.iso"
                                   << "../folder/a b.iso";
    QTest::newRow("no option") << "-xr!boot.iso"
                               << "./-xr!boot.iso";
    QTest::newRow("no list of files") << "@list.iso"
                                      << "./@list.iso";
}

void TstCBurnDialogUsbImages::relativePath()
{
    QFETCH(QString, typed);
    QFETCH(QString, argument);
    UsbWriteFixture fixture;
    writeFile(fixture.path("folder/here"), "");
    const WorkingFolder inFolder(fixture.path("folder"));
    writeFile(fixture.path("folder/" + typed), "image");
    fixture.drives.addImageMount(argument, fixture.mountedImage());
    fixture.setImage(typed);
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QCOMPARE(fixture.commands(), fixture.wholeRun(argument, false));
}

void TstCBurnDialogUsbImages::blanksAroundThePathAreNoPartOfIt()
{
    UsbWriteFixture fixture;
    fixture.setImage("  " + fixture.image() + " ");
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QCOMPARE(fixture.commands(), fixture.wholeRun(fixture.image(), false));
}

void TstCBurnDialogUsbImages::onlyPathsEndingInIsoAreMounted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isMounted");

    QTest::newRow("mixed case") << "image.IsO" << true;
    QTest::newRow("nothing before it") << ".iso" << true;
    QTest::newRow("other ending") << "image.img" << false;
    QTest::newRow("another ending behind") << "image.iso.bin" << false;
    QTest::newRow("no dot") << "imageiso" << false;
}

void TstCBurnDialogUsbImages::onlyPathsEndingInIsoAreMounted()
{
    QFETCH(QString, name);
    QFETCH(bool, isMounted);
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.useImage(fixture.path(name));
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QList<QStringList> run = fixture.wholeRun(fixture.path(name), isMounted);
    // What is not mounted is not looked into, and counts as small.
    if (!isMounted)
        run = run.mid(2);
    QCOMPARE(fixture.commands(), run);
}

void TstCBurnDialogUsbImages::mountToolSaysLittle_data()
{
    QTest::addColumn<QStringList>("actions");

    QTest::newRow("nothing") << QStringList();
    QTest::newRow("an error") << QStringList{
        DriveScenario::complaining("hdiutil: mount failed - a\tb\t/Volumes/X\n"), "exit 1"};
    QTest::newRow("two fields") << QStringList{DriveScenario::printing("/dev/disk9\tISO\n")};
}

void TstCBurnDialogUsbImages::mountToolSaysLittle()
{
    QFETCH(QStringList, actions);
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.drives.on("hdiutil", {"mount", "..."}, actions);
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QCOMPARE(fixture.commands(), runWithoutUnmount(fixture));
}

void TstCBurnDialogUsbImages::mountToolMissing()
{
    UsbWriteFixture fixture;
    fixture.drives.missing("hdiutil");
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QCOMPARE(fixture.commands(), runWithoutUnmount(fixture).mid(1));
}

void TstCBurnDialogUsbImages::mountPointLosesItsBlanks()
{
    UsbWriteFixture fixture;
    const QString mountPoint = fixture.path("MY WINDOWS");
    writeFile(mountPoint + "/sources/install.wim", "");
    QVERIFY(QFile::resize(mountPoint + "/sources/install.wim", fourGibibytes));
    fixture.drives.on(
        "hdiutil", {"mount", fixture.image()},
        {DriveScenario::printing(DriveTexts::mountedImage("/dev/disk9", mountPoint))});
    fixture.drives.on("hdiutil", {"..."}, {"exit 1"});
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));
    QList<QStringList> run = fixture.wholeRun(fixture.image(), false);
    run[1] = QStringList{"hdiutil", "unmount" + fixture.path("MYWINDOWS")};
    QCOMPARE(fixture.commands(), run);
}

// The tool tells the same of an image that the user has mounted.
void TstCBurnDialogUsbImages::imageMountedBeforeIsUnmountedAllTheSame()
{
    UsbWriteFixture fixture;
    fixture.addInstallWim(fourGibibytes);
    fixture.write();
    fixture.write();
    const auto run = fixture.wholeRun(fixture.image(), true);
    QCOMPARE(fixture.commands(), run + run);
}

KORVEX_TEST_MAIN(TstCBurnDialogUsbImages)
#include "tst_cburndialog_usbimages.moc"

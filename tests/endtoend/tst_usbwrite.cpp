// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolstopper.h"
#include "trigger.h"
#include "usbwritefixture.h"
#include "widgetrecorder.h"

#include <QDirIterator>
#include <QProcess>

#include <algorithm>

namespace
{

const qint64 fourGibibytes = 4294967296LL;
const qint64 partBytes = 1024 * 1024;
constexpr int limitMs = 300000;
constexpr int treeFiles = 200;
// The archiver tells its progress at the next sign of it when so much time has passed.
constexpr int tellingMs = 300;

void runWimlib(const QStringList& arguments)
{
    QProcess wimlib;
    wimlib.start(KORVEX_REAL_WIMLIB, arguments);
    QVERIFY2(wimlib.waitForFinished(300000) && wimlib.exitCode() == 0,
             wimlib.readAllStandardError().constData());
}

void writeTree(const QString& folder, int files, qint64 bytes)
{
    for (int i = 0; i < files; ++i) {
        const QString name = QString::fromUtf8("%1/Teil %2 ü.bin").arg(i % 20).arg(i);
        writeRandomFile(folder + '/' + name, bytes, quint32(i));
    }
}

int filesBelow(const QString& folder)
{
    int count = 0;
    QDirIterator files(folder, {"*.bin"}, QDir::Files, QDirIterator::Subdirectories);
    for (; files.hasNext(); files.next())
        ++count;
    return count;
}

// Holds the archiver when so many files are there, and lets it go on until the bar tells of it.
void holdAt(int number, const QString& stick, ToolStopper& archiver, const WidgetRecorder& recorder)
{
    QVERIFY(archiver.catchWhen([&] { return filesBelow(stick) >= number; }));
    QTest::qWait(tellingMs);
    const int told = recorder.values().size();
    QVERIFY(archiver.catchWhen([&] { return filesBelow(stick) >= number + 2; }));
    QTRY_VERIFY_WITH_TIMEOUT(recorder.values().size() > told, limitMs);
}

} // namespace

// A USB disk written by the real archiver and the real Windows-image tool, into a folder.
class TstUsbWrite : public TestCase
{
    Q_OBJECT

private slots:
    void contentIsCopied();
    void largeInstallWimIsSplit();
};

void TstUsbWrite::contentIsCopied()
{
    UsbWriteFixture fixture;
    writeTree(fixture.path("tree"), treeFiles, 50000);
    makeImage(fixture.path("tree"), fixture.image());
    fixture.drives.on("7z", {"..."}, {DriveScenario::becoming(KORVEX_REAL_7Z)});
    const WidgetRecorder recorder(fixture.progress());
    // The archiver is held on its way until the bar has followed it twice.
    ToolStopper archiver("-bsp2");
    const Trigger hold([&] { return archiver.hasCaught(); },
                       [&] {
                           for (const int number : {treeFiles / 4, treeFiles / 2})
                               holdAt(number, fixture.stick(), archiver, recorder);
                           archiver.letGo();
                       });
    QCOMPARE(fixture.write(limitMs).value(1), QString("Burning Successfully..."));

    QVERIFY(QFile::remove(fixture.stick() + "/syslinux.cfg"));
    QCOMPARE(hashesBelow(fixture.stick()), hashesBelow(fixture.path("tree")));
    const QList<int>& values = recorder.values();
    QVERIFY(hold.hasFired());
    QVERIFY(values.size() >= 2);
    QVERIFY(std::is_sorted(values.begin(), values.end()));
    QVERIFY(values.first() >= 0);
    QVERIFY(values.last() > 10 && values.last() <= 100);
}

void TstUsbWrite::largeInstallWimIsSplit()
{
    UsbWriteFixture fixture;
    writeTree(fixture.path("windows"), 12, 300000);
    const QString wim = fixture.mountedImage() + "/sources/install.wim";
    writeFile(fixture.mountedImage() + "/sources/boot.wim", "kept");
    runWimlib({"capture", fixture.path("windows"), wim, "--compress=none"});
    makeImage(fixture.mountedImage(), fixture.image());
    // As large as the page takes for large; what follows the content takes no space.
    QVERIFY(QFile::resize(wim, fourGibibytes));
    fixture.drives.on("7z", {"..."}, {DriveScenario::becoming(KORVEX_REAL_7Z)});
    fixture.drives.on("wimlib-imagex", {"..."},
                      {DriveScenario::becoming(KORVEX_REAL_WIMLIB, " 3800", " 1")});
    QCOMPARE(fixture.write(limitMs).value(1), QString("Burning Successfully..."));

    const QString sources = fixture.stick() + "/sources";
    QCOMPARE(readFile(sources + "/boot.wim"), QByteArray("kept"));
    const QStringList parts = QDir(sources).entryList({"install*.swm"}, QDir::Files);
    QVERIFY(parts.size() > 2);
    // The page asks for 3800 times as much, which the tool takes for MiB as well.
    for (const QString& part : parts)
        QVERIFY(QFileInfo(sources + '/' + part).size() <= partBytes);
    QVERIFY(fixture.commands().contains(
        {"wimlib-imagex", "split", wim, sources + "/install.swm", " 3800"}));
    QCOMPARE(entriesOf(sources), QStringList("boot.wim") + parts);
    QStringList join = {"join", fixture.path("joined.wim")};
    for (const QString& part : parts)
        join.append(sources + '/' + part);
    runWimlib(join);
    runWimlib({"apply", fixture.path("joined.wim"), "1", fixture.path("applied")});
    QCOMPARE(hashesBelow(fixture.path("applied")), hashesBelow(fixture.path("windows")));
}

KORVEX_TEST_MAIN(TstUsbWrite)
#include "tst_usbwrite.moc"

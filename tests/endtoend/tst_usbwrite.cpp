// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "imagemaker.h"
#include "slowdisk.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usbwritefixture.h"
#include "widgetrecorder.h"

#include <QDir>
#include <QProcess>

#include <algorithm>

namespace
{

const qint64 fourGibibytes = 4294967296LL;
const qint64 partBytes = 3800LL * 1024 * 1024;
constexpr int splitLimitMs = 200000;

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

} // namespace

// A USB disk written by the real archiver and the real Windows-image tool, into a folder.
class TstUsbWrite : public TestCase
{
    Q_OBJECT

private slots:
    void contentIsCopied();
    void largeInstallWimIsSplit();
    void partsAreOfTheirRealSize();
};

void TstUsbWrite::contentIsCopied()
{
    UsbWriteFixture fixture;
    writeTree(fixture.path("tree"), 400, 100000);
    makeImage(fixture.path("tree"), fixture.image());
    fixture.drives.on("7z", {"..."}, {DriveScenario::becoming(KORVEX_REAL_7Z)});
    const WidgetRecorder recorder(fixture.progress());
    const SlowDisk slow;
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));

    QVERIFY(QFile::remove(fixture.stick() + "/syslinux.cfg"));
    QCOMPARE(hashesBelow(fixture.stick()), hashesBelow(fixture.path("tree")));
    const QList<int>& values = recorder.values();
    QVERIFY(values.size() > 2);
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
    QCOMPARE(fixture.write().value(1), QString("Burning Successfully..."));

    const QString sources = fixture.stick() + "/sources";
    QCOMPARE(readFile(sources + "/boot.wim"), QByteArray("kept"));
    const QStringList parts = QDir(sources).entryList({"install*.swm"}, QDir::Files);
    QVERIFY(parts.size() > 2);
    QCOMPARE(entriesOf(sources), QStringList("boot.wim") + parts);
    QStringList join = {"join", fixture.path("joined.wim")};
    for (const QString& part : parts)
        join.append(sources + '/' + part);
    runWimlib(join);
    runWimlib({"apply", fixture.path("joined.wim"), "1", fixture.path("applied")});
    QCOMPARE(hashesBelow(fixture.path("applied")), hashesBelow(fixture.path("windows")));
}

void TstUsbWrite::partsAreOfTheirRealSize()
{
    UsbWriteFixture fixture;
    const QString wim = fixture.mountedImage() + "/sources/install.wim";
    // Zeros that take no room. Two different files, together too large for one part.
    for (const qint64 bytes : {partBytes / 2, partBytes / 2 + 1}) {
        const QString path = fixture.path(QString("windows/%1.vhd").arg(bytes));
        writeFile(path, {});
        QVERIFY(QFile::resize(path, bytes));
    }
    writeFile(fixture.mountedImage() + "/sources/boot.wim", "kept");
    makeImage(fixture.mountedImage(), fixture.image());
    runWimlib({"capture", fixture.path("windows"), wim, "--compress=none"});
    QVERIFY(QFile::resize(wim, fourGibibytes));
    fixture.drives.on("7z", {"..."}, {DriveScenario::becoming(KORVEX_REAL_7Z)});
    fixture.drives.on("wimlib-imagex", {"..."}, {DriveScenario::becoming(KORVEX_REAL_WIMLIB)});
    QCOMPARE(fixture.write(splitLimitMs).value(1), QString("Burning Successfully..."));

    const QDir sources(fixture.stick() + "/sources");
    QCOMPARE(entriesOf(sources.path()), QStringList({"boot.wim", "install.swm", "install2.swm"}));
    for (const QFileInfo& part : sources.entryInfoList(QDir::Files))
        QVERIFY(part.size() <= partBytes);
    runWimlib(
        {"verify", sources.filePath("install.swm"), "--ref=" + sources.filePath("install2.swm")});
}

KORVEX_TEST_MAIN(TstUsbWrite)
#include "tst_usbwrite.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QFileIconProvider>

// Icons and type texts by extension. They are kept for the whole run, so each test function asks
// for extensions of its own.
class TstUtilFileTypes : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void typeIsWhatTheDesktopSaysOfSuchAFile_data();
    void typeIsWhatTheDesktopSaysOfSuchAFile();
    void iconCanBePainted_data();
    void iconCanBePainted();
    void extensionIsAskedOncePerRun();
    void missingExtensionIsAskedOncePerRun();
    void extensionsAreToldApartByCase();
    void noTemporaryFileRemains();
    void hiddenNameHasNoExtension();
    void unwritableFolderGivesTheGenericIconAndNoType();
    void impossibleExtensionGivesTheGenericIconAndNoType_data();
    void impossibleExtensionGivesTheGenericIconAndNoType();

private:
    // From now on no temporary file can be made.
    void loseTemporaryFolder() { qputenv("TMPDIR", "/dev/null"); }

    QByteArray systemFolder;
};

void TstUtilFileTypes::init()
{
    FolderTest::init();
    systemFolder = qgetenv("TMPDIR");
    qputenv("TMPDIR", QFile::encodeName(folder->path()));
}

void TstUtilFileTypes::cleanup()
{
    if (systemFolder.isNull())
        qunsetenv("TMPDIR");
    else
        qputenv("TMPDIR", systemFolder);
    FolderTest::cleanup();
}

void TstUtilFileTypes::typeIsWhatTheDesktopSaysOfSuchAFile_data()
{
    QTest::addColumn<QString>("name");

    for (const char* name : {"a.txt", "a.tar.gz", "a.ISO", "a.nothing known", "a.光", "a.-x",
                             "a.\"", "a.%1", "a.XXXXXX", "a", ".profile", ""})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TstUtilFileTypes::typeIsWhatTheDesktopSaysOfSuchAFile()
{
    QFETCH(QString, name);
    const QString path = folder->filePath("x" + Util::GetExtension(name));
    writeFile(path, "x");
    const QString expected = QFileIconProvider().type(QFileInfo(path));
    QVERIFY(!expected.isEmpty());
    if (name != "a.XXXXXX")
        QCOMPARE(Util::GetExtensionString(name), expected);
    else
        QVERIFY(!Util::GetExtensionString(name).isEmpty());
}

void TstUtilFileTypes::iconCanBePainted_data()
{
    QTest::addColumn<QString>("name");

    for (const char* name : {"a.txt", "a.iso", "a.nothing", "a", ".profile", ""})
        QTest::newRow(name) << name;
}

void TstUtilFileTypes::iconCanBePainted()
{
    QFETCH(QString, name);
    const QIcon icon = Util::GetExtensionIcon(name);
    for (const int size : {16, 24, 32})
        QVERIFY(!icon.pixmap(size).isNull());
    QVERIFY(!icon.pixmap(16, QIcon::Disabled).isNull());
}

void TstUtilFileTypes::extensionIsAskedOncePerRun()
{
    const QString type = Util::GetExtensionString("first.once");
    const QIcon icon = Util::GetExtensionIcon("first.once");
    QVERIFY(!type.isEmpty());
    loseTemporaryFolder();
    for (int row = 0; row < 10'000; ++row) {
        const QString name = QString::number(row) + ".once";
        QCOMPARE(Util::GetExtensionString(name), type);
        QCOMPARE(Util::GetExtensionIcon(name).cacheKey(), icon.cacheKey());
    }
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilFileTypes::missingExtensionIsAskedOncePerRun()
{
    const QString type = Util::GetExtensionString("README");
    const QIcon icon = Util::GetExtensionIcon("README");
    loseTemporaryFolder();
    for (int row = 0; row < 10'000; ++row) {
        const QString name = QString::number(row);
        QCOMPARE(Util::GetExtensionString(name), type);
        QCOMPARE(Util::GetExtensionIcon(name).cacheKey(), icon.cacheKey());
    }
    QCOMPARE(debugLines(), QStringList());
}

void TstUtilFileTypes::extensionsAreToldApartByCase()
{
    const QIcon lower = Util::GetExtensionIcon("a.case");
    const QIcon upper = Util::GetExtensionIcon("a.CASE");
    QVERIFY(lower.cacheKey() != upper.cacheKey());
    QVERIFY(Util::GetExtensionString("a.case") != Util::GetExtensionString("a.CASE"));
}

void TstUtilFileTypes::noTemporaryFileRemains()
{
    for (const char* name : {"a.gone", "a.", "a.-gone", "a.g o n e", "gone"}) {
        Util::GetExtensionString(name);
        Util::GetExtensionIcon(name);
    }
    QCOMPARE(entriesOf(folder->path()), QStringList());
}

void TstUtilFileTypes::hiddenNameHasNoExtension()
{
    QCOMPARE(Util::GetExtensionString(".bashrc"), Util::GetExtensionString("bashrc"));
    QCOMPARE(Util::GetExtensionIcon(".bashrc").cacheKey(),
             Util::GetExtensionIcon("bashrc").cacheKey());
}

void TstUtilFileTypes::unwritableFolderGivesTheGenericIconAndNoType()
{
    loseTemporaryFolder();
    const QString line = "failed to write temporary file /dev/null/tst_util_filetypes_XXXXXX.lost";
    QCOMPARE(Util::GetExtensionString("a.lost"), QString());
    QCOMPARE(debugLines(), QStringList(line));
    QVERIFY(!Util::GetExtensionIcon("a.lost").pixmap(16).isNull());
    QCOMPARE(debugLines(), QStringList({line, line}));
}

void TstUtilFileTypes::impossibleExtensionGivesTheGenericIconAndNoType_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("a path") << "a.b/c";
    QTest::newRow("too long for a file name") << "a." + QString(300, 'x');
}

void TstUtilFileTypes::impossibleExtensionGivesTheGenericIconAndNoType()
{
    QFETCH(QString, name);
    QCOMPARE(Util::GetExtensionString(name), QString());
    QVERIFY(!Util::GetExtensionIcon(name).pixmap(16).isNull());
    QCOMPARE(debugLines().filter("failed to write temporary file").size(), 2);
}

KORVEX_TEST_MAIN(TstUtilFileTypes)

#include "tst_util_filetypes.moc"

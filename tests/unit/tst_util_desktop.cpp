// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "testcase.h"
#include "testmain.h"
#include "util.h"

#include <QDesktopServices>
#include <QSysInfo>
#include <QUrl>

// The busy cursor, the platform and the way to the desktop's file browser.
class TstUtilDesktop : public TestCase
{
    Q_OBJECT

public slots:
    // Stands in for the desktop.
    void open(const QUrl& url) { opened.append(url); }

private slots:
    void cleanup();

    void busyCursorsStack();
    void restoringWithoutABusyCursorIsHarmless();
    void platformIsTheOneBuiltFor();
    void folderIsOpenedAsAnAddress_data();
    void folderIsOpenedAsAnAddress();
    void folderNamesAreTakenAsTheyAre_data();
    void folderNamesAreTakenAsTheyAre();

private:
    QList<QUrl> opened;
};

void TstUtilDesktop::cleanup()
{
    QDesktopServices::unsetUrlHandler("file");
    opened.clear();
    TestCase::cleanup();
}

void TstUtilDesktop::busyCursorsStack()
{
    QVERIFY(!QGuiApplication::overrideCursor());
    Util::SetCursorBusy();
    Util::SetCursorBusy();
    Util::RestoreCursor();
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    Util::RestoreCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TstUtilDesktop::restoringWithoutABusyCursorIsHarmless()
{
    Util::RestoreCursor();
    Util::SetCursorBusy();
    QVERIFY(QGuiApplication::overrideCursor());
    Util::RestoreCursor();
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TstUtilDesktop::platformIsTheOneBuiltFor()
{
    QCOMPARE(Util::isMacOS(), QSysInfo::kernelType() == "darwin");
}

void TstUtilDesktop::folderIsOpenedAsAnAddress_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("address");

    QTest::newRow("absolute: four slashes") << "/home/user"
                                            << "file:////home/user";
    QTest::newRow("relative: three slashes") << "folder"
                                             << "file:///folder";
    QTest::newRow("backslashes turn round") << "\\a\\b"
                                            << "file:////a/b";
    QTest::newRow("empty") << ""
                           << "file:///";
    QTest::newRow("blank") << "/a b"
                           << "file:////a%20b";
    QTest::newRow("leading dash") << "/-rf"
                                  << "file:////-rf";
    QTest::newRow("unicode") << QString::fromUtf8("/光/e\u0301") << "file:////%E5%85%89/e%CC%81";
    QTest::newRow("what means something in an address") << "/a#b?c%20d"
                                                        << "file:////a%23b%3Fc%2520d";
}

void TstUtilDesktop::folderIsOpenedAsAnAddress()
{
    QFETCH(QString, path);
    QDesktopServices::setUrlHandler("file", this, "open");
    Util::OpenExplorer(nullptr, path);
    QCOMPARE(opened.size(), 1);
    QVERIFY(opened.first().isValid());
    QTEST(opened.first().toString(QUrl::FullyEncoded), "address");
}

void TstUtilDesktop::folderNamesAreTakenAsTheyAre_data()
{
    QTest::addColumn<QString>("name");

    for (const char* name : {"plain", "a b", "a#b", "a?b=c", "100%", "%41", "a&b;c", "[a]", "a\"b'",
                             "a:b", "光盘", "user@host"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TstUtilDesktop::folderNamesAreTakenAsTheyAre()
{
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QVERIFY(QDir().mkpath(path));
    QDesktopServices::setUrlHandler("file", this, "open");
    Util::OpenExplorer(nullptr, path);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(QFileInfo(opened.first().toLocalFile()).canonicalFilePath(),
             QFileInfo(path).canonicalFilePath());
}

KORVEX_TEST_MAIN(TstUtilDesktop)

#include "tst_util_desktop.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QApplication>
#include <QIcon>
#include <QTemporaryDir>
#include <QTextCodec>

#include <sys/stat.h>

// The steps between the process entry and the main window, in a process that has taken them.
class TstStartup : public TestCase
{
    Q_OBJECT

private slots:
    void everybodyMayReadAndWriteWhatIsCreated();
    void textIsUtf8WhateverTheLocale();
    void picturesAreSharpOnDenseScreens();
    void platformToolsComeFirst();
    void platformToolsNeedTheirFolder();
    void mountedImageIsRefused_data();
    void mountedImageIsRefused();
    void refusalHasNoSecondButton();
    void otherFoldersAreNotRefused_data();
    void otherFoldersAreNotRefused();
    void applicationHasItsFontIconAndStyle();
};

void TstStartup::everybodyMayReadAndWriteWhatIsCreated()
{
    const mode_t mask = ::umask(0);
    QCOMPARE(mask, mode_t(0));
    const QTemporaryDir folder;
    writeFile(folder.filePath("sub/file"), "x");
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(folder.filePath("sub/file")), &status), 0);
    QCOMPARE(status.st_mode & 0777u, 0666u);
    QCOMPARE(::stat(QFile::encodeName(folder.filePath("sub")), &status), 0);
    QCOMPARE(status.st_mode & 0777u, 0777u);
}

void TstStartup::textIsUtf8WhateverTheLocale()
{
    QCOMPARE(QTextCodec::codecForLocale()->name(), QByteArray("UTF-8"));
}

void TstStartup::picturesAreSharpOnDenseScreens()
{
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps));
    QVERIFY(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling));
}

void TstStartup::platformToolsComeFirst()
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    writeFile(folder.filePath("platform-tools/diskutil"), "x");
    const QByteArray tools = QFile::encodeName(folder.filePath("platform-tools"));
    usePlatformTools(folder.path());
    const QByteArray first = qgetenv("PATH");
    qunsetenv("PATH");
    usePlatformTools(folder.path());
    const QByteArray alone = qgetenv("PATH");
    qputenv("PATH", path);
    QCOMPARE(first, tools + ':' + path);
    QCOMPARE(alone, tools);
}

void TstStartup::platformToolsNeedTheirFolder()
{
    const QByteArray path = qgetenv("PATH");
    const QTemporaryDir folder;
    usePlatformTools(folder.path());
    QCOMPARE(qgetenv("PATH"), path);
}

void TstStartup::mountedImageIsRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("application on an image")
        << "/Volumes/Korvex ISO Editor/Korvex ISO Editor.app/Contents/MacOS";
    QTest::newRow("the folder itself") << "/Volumes";
    QTest::newRow("any folder whose name begins like it") << "/VolumesX/MacOS";
}

void TstStartup::mountedImageIsRefused()
{
    QFETCH(QString, folder);
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    QVERIFY(refuseToRunFrom(folder));
    QCOMPARE(driver.texts(), QStringList("Please drag the icon to Application folder first!"));
}

void TstStartup::refusalHasNoSecondButton()
{
    ModalDriver driver;
    bool hasSecond = true;
    driver.run("CommDialog", [&hasSecond](QWidget* dialog) {
        hasSecond = dialog->findChild<QWidget*>("btncancel")->isVisible();
        dialog->close();
    });
    QVERIFY(refuseToRunFrom("/Volumes/x"));
    QVERIFY(!hasSecond);
}

void TstStartup::otherFoldersAreNotRefused_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("applications") << "/Applications/Korvex ISO Editor.app/Contents/MacOS";
    QTest::newRow("lower case") << "/volumes/Korvex ISO Editor";
    QTest::newRow("further down") << "/Users/u/Volumes/x";
    QTest::newRow("relative") << "Volumes/x";
    QTest::newRow("empty") << "";
}

// A message would be a dialog that nobody expects.
void TstStartup::otherFoldersAreNotRefused()
{
    QFETCH(QString, folder);
    const ModalDriver driver;
    QVERIFY(!refuseToRunFrom(folder));
}

void TstStartup::applicationHasItsFontIconAndStyle()
{
    setApplicationLook();
    QCOMPARE(QApplication::font().family(), QString("Microsoft YaHei"));
    QVERIFY(!QApplication::windowIcon().pixmap(64, 64).isNull());
    QVERIFY(qApp->styleSheet().contains("QHeaderView::section"));
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstStartup)
#include "tst_startup.moc"

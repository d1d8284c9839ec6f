// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "disccopytest.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

#include <QApplication>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QLineEdit>
#include <QTest>

// How a copy on the Copy Disk page ends, whatever the tool did.
class TstCPage5Finish : public DiscCopyTest
{
    Q_OBJECT

public slots:
    void opened(const QUrl& address) { openedAddress = address; }

private slots:
    void initTestCase();
    void init();
    void successIsToldAfterTheDialogHasGone();
    void successIsToldWhateverTheToolDid_data();
    void successIsToldWhateverTheToolDid();
    void successIsToldForADiscThatIsNotMounted();
    void existingImageIsOverwrittenWithoutAsking();
    void openFolderOpensTheImagesFolder_data();
    void openFolderOpensTheImagesFolder();
    void okOpensNothing();
    void pathIsThatOfTheMomentOfStart();
    void pageIsFreedWhileTheMessageShows();
    void twoPagesCopyOneAfterTheOther();
    void floodOfOutputEnds();

private:
    QUrl openedAddress;
};

void TstCPage5Finish::initTestCase()
{
    DiscCopyTest::initTestCase();
    QDesktopServices::setUrlHandler("file", this, "opened");
}

void TstCPage5Finish::init()
{
    DiscCopyTest::init();
    openReadyPage();
    openedAddress.clear();
}

void TstCPage5Finish::successIsToldAfterTheDialogHasGone()
{
    startHeld();
    scenario->release("copied");
    bool isHidden = false;
    const auto look = [&] { isHidden = !fixture->progress()->isVisible(); };
    QCOMPARE(closeMessage("btnok", look), copySuccess());
    QVERIFY(isHidden);
    QVERIFY(page->isEnabled());
    QCOMPARE(imageField()->text(), imagePath);
    QVERIFY(waitUntilToolsAreGone());
}

void TstCPage5Finish::successIsToldWhateverTheToolDid_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("failed") << QStringList(
        {"err hdiutil: makehybrid failed - No space left on device\\n", "exit 1"});
    QTest::newRow("crashed") << QStringList("crash");
    QTest::newRow("missing") << QStringList("missing");
}

void TstCPage5Finish::successIsToldWhateverTheToolDid()
{
    QFETCH(QStringList, actions);
    if (actions == QStringList("missing"))
        scenario->missing("hdiutil");
    else
        onMakeHybrid(actions);
    QCOMPARE(copyToEnd(), copySuccess());
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(copyToEnd(), copySuccess());
}

void TstCPage5Finish::successIsToldForADiscThatIsNotMounted()
{
    scenario->on("mount", {}, {DriveScenario::printing(DriveTexts::systemVolumes())});
    onMakeHybrid({"err hdiutil: makehybrid failed - No such file or directory\\n", "exit 1"});
    QCOMPARE(copyToEnd(), copySuccess());
    QCOMPARE(scenario->callsOf("hdiutil"), QList<QStringList>({imageArguments(imagePath, "")}));
}

void TstCPage5Finish::existingImageIsOverwrittenWithoutAsking()
{
    writeFile(imagePath, "an old image");
    fixture->press("start");
    // The first dialog that comes is the message: nobody asks.
    QCOMPARE(closeMessage(), copySuccess());
    QVERIFY(scenario->callsOf("hdiutil").first().contains("-ov"));
}

void TstCPage5Finish::openFolderOpensTheImagesFolder_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("folder");
    const QString here = QDir::currentPath();
    const QString hostile = QString::fromUtf8("/tmp/Ümlaut #1 ?a=b 100%25 'x'");
    QTest::newRow("absolute") << "/tmp/a/disc.iso"
                              << "/tmp/a";
    QTest::newRow("hostile") << hostile + "/disc.iso" << hostile;
    QTest::newRow("name alone") << "disc.iso" << here;
    QTest::newRow("relative") << "images/disc.iso" << here + "/images";
    QTest::newRow("upwards") << "../disc.iso" << QFileInfo(here).absolutePath();
    QTest::newRow("folder") << "/tmp/a/"
                            << "/tmp/a";
}

void TstCPage5Finish::openFolderOpensTheImagesFolder()
{
    QFETCH(QString, path);
    imageField()->setText(path);
    QCOMPARE(copyToEnd("btncancel"), copySuccess());
    QCOMPARE(openedAddress.scheme(), QString("file"));
    const QString folder = openedAddress.path(QUrl::FullyDecoded);
    QTEST(QDir::cleanPath(folder), "folder");
}

void TstCPage5Finish::okOpensNothing()
{
    QCOMPARE(copyToEnd("btnok"), copySuccess());
    QVERIFY(openedAddress.isEmpty());
}

void TstCPage5Finish::pathIsThatOfTheMomentOfStart()
{
    scenario->on("mount", {}, {scenario->holding("table")});
    const Trigger change([&] { return scenario->callsOf("mount").size() == 1; },
                         [&] {
                             imageField()->setText("/tmp/another.iso");
                             scenario->release("table");
                         });
    QCOMPARE(copyToEnd("btncancel"), copySuccess());
    QCOMPARE(scenario->callsOf("hdiutil").first().at(6), imagePath);
    QCOMPARE(QDir::cleanPath(openedAddress.path()), fixture->folder.path());
}

void TstCPage5Finish::pageIsFreedWhileTheMessageShows()
{
    startHeld();
    scenario->release("copied");
    QCOMPARE(closeMessage("btnok", [this] { delete page; }), copySuccess());
    QVERIFY(page.isNull());
}

// The second page's Start asks about its own drive; the device is the program's, not a page's.
void TstCPage5Finish::twoPagesCopyOneAfterTheOther()
{
    QCOMPARE(copyToEnd(), copySuccess());
    scenario->addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", "/dev/disk7", "/Volumes/OTHER");
    CPage5 other(news.get());
    auto* const list = other.findChild<QComboBox*>("dvdlist");
    QTRY_COMPARE_WITH_TIMEOUT(list->count(), 2, patienceMs);
    list->setCurrentIndex(1);
    other.findChild<QLineEdit*>("lineEdit")->setText("/tmp/other.iso");
    QCOMPARE(fixture->answerMessage([&] { other.OnStart(); }, "btnok", {}), copySuccess());
    QCOMPARE(currdev, QString("/dev/disk7"));
    QCOMPARE(scenario->callsOf("hdiutil").last(),
             imageArguments("/tmp/other.iso", "/Volumes/OTHER"));
    QVERIFY(waitUntilToolsAreGone());
}

void TstCPage5Finish::floodOfOutputEnds()
{
    onMakeHybrid({"flood 1", DriveScenario::printing(DriveTexts::discProgress("0.99"))});
    QCOMPARE(copyToEnd(), copySuccess());
    // Every line has come before the end was told.
    QCOMPARE(fixture->progressValue(), 9900);
}

KORVEX_TEST_MAIN(TstCPage5Finish)
#include "tst_cpage5_finish.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"
#include "processcounts.h"
#include "testmain.h"

#include <QComboBox>
#include <QTest>

// What the news of a drive does to the list of the Copy Disk page and to the choice in it.
class TstCPage5Refresh : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void driveChangeFillsTheListAnew();
    void goneDriveLeavesTheList();
    void chosenDriveStaysChosen();
    void goneChoiceLeavesTheFirst();
    void choiceOutlivesThePage();
    void secondRefreshWhileOneRunsListsNothingTwice();
    void secondRefreshEndsTheToolOfTheFirst();
    void lineOfAnEarlierRefreshIsNotListed();
    void choiceIsForgottenByASecondRefreshBeforeTheAnswer();

private:
    void tellDriveChange();
};

void TstCPage5Refresh::tellDriveChange()
{
    emit news->sigdrivechange();
}

void TstCPage5Refresh::driveChangeFillsTheListAnew()
{
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    QVERIFY(waitUntilToolsAreGone());
    addTwoDrives();
    tellDriveChange();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QCOMPARE(scenario->callsOf("drutil").size(), 2);
}

void TstCPage5Refresh::goneDriveLeavesTheList()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    scenario->removeDisk("/dev/disk4");
    tellDriveChange();
    QVERIFY(waitForDrives({secondText()}));
}

void TstCPage5Refresh::chosenDriveStaysChosen()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    drives()->setCurrentIndex(1);
    tellDriveChange();
    QCOMPARE(CPage5::dvdCurrent, secondText());
    QCOMPARE(driveTexts(), QStringList());
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QCOMPARE(drives()->currentText(), secondText());
}

void TstCPage5Refresh::goneChoiceLeavesTheFirst()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    drives()->setCurrentIndex(1);
    scenario->removeDisk("/dev/disk7");
    tellDriveChange();
    QVERIFY(waitForDrives({firstText()}));
    QCOMPARE(drives()->currentIndex(), 0);
}

// The next page's first refresh has no entry of its own to remember, and so forgets it.
void TstCPage5Refresh::choiceOutlivesThePage()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    drives()->setCurrentIndex(1);
    tellDriveChange();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    delete page;
    QCOMPARE(CPage5::dvdCurrent, secondText());
    openPage();
    QCOMPARE(CPage5::dvdCurrent, QString());
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QCOMPARE(drives()->currentIndex(), 0);
}

void TstCPage5Refresh::secondRefreshWhileOneRunsListsNothingTwice()
{
    addTwoDrives();
    const QString answer =
        DriveTexts::opticalStatus(firstDrive()) + DriveTexts::opticalStatus(secondDrive());
    scenario->on("drutil", {"status"},
                 {scenario->holding("answer"), DriveScenario::printing(answer)});
    openPage();
    QVERIFY(waitForCalls("drutil", 1));
    tellDriveChange();
    QVERIFY(waitForCalls("drutil", 2));
    scenario->release("answer");
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QVERIFY(waitUntilToolsAreGone());
    QCoreApplication::processEvents();
    QCOMPARE(driveTexts(), QStringList({firstText(), secondText()}));
}

void TstCPage5Refresh::secondRefreshEndsTheToolOfTheFirst()
{
    scenario->on("drutil", {"status"}, {scenario->holding("never released")});
    openPage();
    QVERIFY(scenario->isHeld("never released"));
    scenario->on("drutil", {"status"}, {});
    tellDriveChange();
    QVERIFY(waitForCalls("drutil", 2));
    QVERIFY(waitUntilToolsAreGone());
    QVERIFY(processesOf("scripteddrive").isEmpty());
}

// It has been sent when the second refresh begins, and is received after that.
// The answer waits to be delivered when the next refresh comes.
void TstCPage5Refresh::lineOfAnEarlierRefreshIsNotListed()
{
    scenario->on("drutil", {"status"},
                 {DriveScenario::printing(DriveTexts::opticalStatus(firstDrive()))});
    page = new CPage5(news.get());
    const auto isCalled = [this] { return scenario->callsOf("drutil").size() == 1; };
    QVERIFY(PageFixture::waitWithoutEvents(isCalled));
    QVERIFY(PageFixture::waitUntilAllIsSent());
    QCOMPARE(driveTexts(), QStringList());
    scenario->on("drutil", {"status"},
                 {DriveScenario::printing(DriveTexts::opticalStatus(secondDrive()))});
    tellDriveChange();
    QVERIFY(waitForDrives({secondText()}));
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(driveTexts(), QStringList(secondText()));
}

void TstCPage5Refresh::choiceIsForgottenByASecondRefreshBeforeTheAnswer()
{
    addTwoDrives();
    openPage();
    QVERIFY(waitForDrives({firstText(), secondText()}));
    drives()->setCurrentIndex(1);
    tellDriveChange();
    tellDriveChange();
    QCOMPARE(CPage5::dvdCurrent, QString());
    QVERIFY(waitForDrives({firstText(), secondText()}));
    QCOMPARE(drives()->currentIndex(), 0);
}

KORVEX_TEST_MAIN(TstCPage5Refresh)
#include "tst_cpage5_refresh.moc"

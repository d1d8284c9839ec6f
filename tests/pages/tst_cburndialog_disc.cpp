// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cprogressdialog.h"
#include "drivescenario.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

// Burning a disc from the Burn page.
class TstCBurnDialogDisc : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void withoutADriveNothingHappens();
    void toolIsCalledWithTheImageAlone();
    void chosenBurnerIsNotPassedOn();
    void dialogShowsTheBeginning();
    void dialogFollowsTheToolAndEndsWithTheMessage();
    void progressIsRead();
    void everyEndIsCalledASuccess_data();
    void everyEndIsCalledASuccess();
    void smallImageIsUnmountedByTheJoinedCommand();
    void largeImageStaysMounted();
    void imageWithoutMountPointIsBurnt();
    void secondBurnRunsBesideTheFirst();
    void pageClosedMeanwhileLeavesTheToolAlone();

private:
    // Chooses an image of this name, which is not looked into unless it ends in ".iso".
    QString chooseImage(const QString& name = "image.img");
    void burnIsHeld();
    // Presses Burn and closes the message at the end, whose text it returns.
    QString burnToEnd();
    void waitForBurns(int number);
    QList<QStringList> hdiutilCalls() const { return drives->callsOf("hdiutil"); }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const QString success = "Burning disc successfully.";

QStringList burnCall(const QString& image)
{
    return {"burn", "-verbose", "-noverifyburn", image};
}

const QStringList anyBurn = burnCall("*");

} // namespace

void TstCBurnDialogDisc::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogDisc::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addOptical(" FIRST    DVD              1.00", "/dev/disk5");
    drives->addOptical(" SECOND   DVD              2.00", "/dev/disk6");
    drives->on("hdiutil", anyBurn, {DriveScenario::printing(DriveTexts::burning({"0.5", "1"}))});
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogDisc::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

QString TstCBurnDialogDisc::chooseImage(const QString& name)
{
    const QString image = fixture->path(name);
    writeFile(image, "image");
    fixture->setImage(image);
    return image;
}

void TstCBurnDialogDisc::burnIsHeld()
{
    drives->on("hdiutil", anyBurn, {drives->holding("burn")});
}

QString TstCBurnDialogDisc::burnToEnd()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("burn");
    return QTest::qWaitFor([&driver] { return driver.done(); }, patienceMs) ? driver.texts().first()
                                                                            : QString();
}

void TstCBurnDialogDisc::waitForBurns(int number)
{
    QTRY_COMPARE_WITH_TIMEOUT(hdiutilCalls().size(), number, patienceMs);
}

void TstCBurnDialogDisc::withoutADriveNothingHappens()
{
    drives->removeDisk("/dev/disk5");
    drives->removeDisk("/dev/disk6");
    fixture->notifyDriveChange();
    chooseImage();
    fixture->press("burn");
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(hdiutilCalls(), QList<QStringList>());
}

void TstCBurnDialogDisc::toolIsCalledWithTheImageAlone()
{
    QList<QStringList> expected;
    for (const QString& name : {QString("image.iso.img"), QString("my 'best' \"one\" $HOME.img"),
                                QString::fromUtf8("образ 光盘.img")}) {
        const QString image = chooseImage(name);
        fixture->line("isofile")->setText("  " + image + " \t");
        burnToEnd();
        expected.append(burnCall(image));
        QCOMPARE(hdiutilCalls(), expected);
    }
}

// The system's default burner is used, whichever is chosen.
void TstCBurnDialogDisc::chosenBurnerIsNotPassedOn()
{
    const QString image = chooseImage();
    for (int index = 0; index < 2; ++index) {
        fixture->list("dvdlist")->setCurrentIndex(index);
        burnToEnd();
    }
    QCOMPARE(hdiutilCalls(), QList<QStringList>({burnCall(image), burnCall(image)}));
}

void TstCBurnDialogDisc::dialogShowsTheBeginning()
{
    burnIsHeld();
    chooseImage();
    fixture->press("burn");
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressText(), QString("Burning the disc..."));
    QCOMPARE(fixture->progressValue(), 0);
    QCOMPARE(fixture->progressMaximum(), 100);
    QVERIFY(!fixture->progress()->findChild<QWidget*>("btncancel")->isEnabled());
    QTest::keyClick(fixture->progress(), Qt::Key_Escape);
    QVERIFY(fixture->progress()->isVisible());
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    drives->release("burn");
    QTRY_VERIFY_WITH_TIMEOUT(driver.done(), patienceMs);
}

void TstCBurnDialogDisc::dialogFollowsTheToolAndEndsWithTheMessage()
{
    drives->on("hdiutil", anyBurn,
               {DriveScenario::printing(DriveTexts::discProgress("0.256")), drives->holding("burn"),
                DriveScenario::printing(DriveTexts::burning({"0.9"}))});
    chooseImage();
    fixture->press("burn");
    QTRY_COMPARE_WITH_TIMEOUT(fixture->progressValue(), 25, patienceMs);
    bool isProgressHidden = false;
    ModalDriver driver;
    driver.run("CommDialog", [&](QWidget* dialog) {
        isProgressHidden = !fixture->progress()->isVisible();
        dialog->close();
    });
    drives->release("burn");
    QTRY_VERIFY_WITH_TIMEOUT(driver.done(), patienceMs);
    QVERIFY(driver.texts().first().contains(success) && isProgressHidden);
    QCOMPARE(fixture->progressValue(), 90);
}

void TstCBurnDialogDisc::progressIsRead()
{
    const QList<QPair<QString, int>> lines = {{"DRStatusPercentCompleteKey: 0.5\n", 50},
                                              {"DRStatusPercentCompleteKey:0.5\r\n", 50},
                                              {"DRStatusPercentCompleteKey: 0.999\n", 99},
                                              {"DRStatusPercentCompleteKey: 1\n", 100},
                                              {"DRStatusPercentCompleteKey: 0\n", 7},
                                              {"DRStatusPercentCompleteKey: -1.000000\n", 7},
                                              {"DRStatusPercentCompleteKey: soon\n", 7},
                                              {"DRStatusPercentCompleteKey:\n", 7},
                                              {"DRStatusPercentCompleteKey 0.5\n", 7},
                                              {"drstatuspercentcompletekey: 0.5\n", 7},
                                              {"DRStatusStateKey: 0.5\n", 7},
                                              {"", 7}};
    for (const auto& [line, value] : lines) {
        fixture->page->onDVDBurnOutput("DRStatusPercentCompleteKey: 0.07");
        QCOMPARE(fixture->progressValue(), 7);
        fixture->page->onDVDBurnOutput(line);
        QVERIFY2(fixture->progressValue() == value, qPrintable(line));
    }
}

void TstCBurnDialogDisc::everyEndIsCalledASuccess_data()
{
    QTest::addColumn<QStringList>("actions");
    QTest::newRow("failure") << QStringList{"err hdiutil: burn: no disc\\n", "exit 1"};
    QTest::newRow("crash") << QStringList{"crash"};
    QTest::newRow("flood") << QStringList{"flood 1"};
    QTest::newRow("missing tool") << QStringList{"missing"};
}

void TstCBurnDialogDisc::everyEndIsCalledASuccess()
{
    QFETCH(QStringList, actions);
    if (actions == QStringList("missing"))
        drives->missing("hdiutil");
    else
        drives->on("hdiutil", anyBurn, actions);
    chooseImage();
    QVERIFY(burnToEnd().contains(success));
    QVERIFY(!fixture->progress()->isVisible());
}

void TstCBurnDialogDisc::smallImageIsUnmountedByTheJoinedCommand()
{
    const QString image = chooseImage("image.ISO");
    const QString mountPoint = fixture->path("mounted");
    writeFile(mountPoint + "/sources/install.wim", "small");
    drives->addImageMount(image, mountPoint);
    burnToEnd();
    QCOMPARE(hdiutilCalls(),
             QList<QStringList>({{"mount", image}, {"unmount" + mountPoint}, burnCall(image)}));
}

// Only the writing of a USB disk, which reads from it, unmounts it.
void TstCBurnDialogDisc::largeImageStaysMounted()
{
    const QString image = chooseImage("image.iso");
    const QString mountPoint = fixture->path("mounted");
    writeFile(mountPoint + "/sources/install.wim", "");
    QVERIFY(QFile::resize(mountPoint + "/sources/install.wim", 4294967296));
    drives->addImageMount(image, mountPoint);
    burnToEnd();
    QCOMPARE(hdiutilCalls(), QList<QStringList>({{"mount", image}, burnCall(image)}));
}

void TstCBurnDialogDisc::imageWithoutMountPointIsBurnt()
{
    const QString image = chooseImage("image.iso");
    drives->on("hdiutil", {"mount", image},
               {DriveScenario::complaining("hdiutil: mount failed\n"), "exit 1"});
    burnToEnd();
    QCOMPARE(hdiutilCalls(), QList<QStringList>({{"mount", image}, burnCall(image)}));
}

// The dialog keeps the user from it, but nothing else does.
void TstCBurnDialogDisc::secondBurnRunsBesideTheFirst()
{
    burnIsHeld();
    chooseImage();
    fixture->page->onBurn();
    waitForBurns(1);
    fixture->page->onBurn();
    waitForBurns(2);
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    driver.press("CommDialog", "btnok");
    drives->release("burn");
    QTRY_VERIFY_WITH_TIMEOUT(driver.done(), patienceMs);
    for (const DriveCall& call : drives->calls())
        QVERIFY(call.ended >= 0);
}

void TstCBurnDialogDisc::pageClosedMeanwhileLeavesTheToolAlone()
{
    drives->on("hdiutil", anyBurn, {drives->holding("burn"), drives->holding("more")});
    chooseImage();
    fixture->press("burn");
    waitForBurns(1);
    fixture->page->close();
    QTRY_VERIFY_WITH_TIMEOUT(fixture->page.isNull(), patienceMs);
    QVERIFY(!fixture->progress());
    QVERIFY(drives->isHeld("burn"));
    drives->release("burn");
    // It goes on from one thing to the next.
    QVERIFY(drives->isHeld("more"));
    drives->release("more");
    // The end is recorded by the tool itself, which a kill would have kept from it.
    QTRY_VERIFY_WITH_TIMEOUT(drives->calls().last().ended >= 0, patienceMs);
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(!QApplication::activeModalWidget());
}

KORVEX_TEST_MAIN(TstCBurnDialogDisc)
#include "tst_cburndialog_disc.moc"

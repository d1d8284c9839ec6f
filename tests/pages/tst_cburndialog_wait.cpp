// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "drivescenario.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "trigger.h"
#include "whencalled.h"

#include <QScopeGuard>

// What may happen while the Burn page waits for the tools that look for drives.
class TstCBurnDialogWait : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void descriptionsThatComeSlowlyKeepTheOrder();
    void refreshDuringTheListingLeavesNoDuplicates();
    void refreshDuringADescriptionLeavesNoDuplicates();
    void refreshDuringTheDiscsKeepsTheChosenOne();
    void pageClosedMeanwhileIsFreedAtTheEnd_data();
    void pageClosedMeanwhileIsFreedAtTheEnd();
    void windowIsPaintedMeanwhile_data();
    void windowIsPaintedMeanwhile();

private:
    void everyTool_data();
    // Holds the tool until release(), after which it does what it would have.
    void hold(const QStringList& command);
    // The tool answers at once again.
    void answer(const QStringList& command);
    QString answerTo(const QStringList& command) const;
    QStringList disks() const { return BurnPageFixture::textsOf(fixture->list("usblist")); }
    QStringList discs() const { return BurnPageFixture::textsOf(fixture->list("dvdlist")); }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const OpticalDrive firstDrive = {" FIRST    DVD              1.00", "/dev/disk5", ""};
const OpticalDrive secondDrive = {" SECOND   DVD              2.00", "/dev/disk6", ""};
const QString firstDisc = "FIRST DVD 1.00 (/dev/disk5)";
const QString secondDisc = "SECOND DVD 2.00 (/dev/disk6)";
const QStringList bothDiscs = {firstDisc, secondDisc};
const QStringList bothDisks = {"/dev/disk2", "/dev/disk3"};

const QStringList listing = {"diskutil", "list"};
const QStringList describing = {"diskutil", "info", "/dev/disk2"};
const QStringList status = {"drutil", "status"};

class PaintCounter : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

} // namespace

void TstCBurnDialogWait::initTestCase()
{
    setApplicationLook();
}

void TstCBurnDialogWait::init()
{
    TestCase::init();
    drives = std::make_unique<DriveScenario>();
    drives->addUsbDisk("/dev/disk2");
    drives->addUsbDisk("/dev/disk3");
    drives->addOptical(firstDrive.identification, firstDrive.device);
    drives->addOptical(secondDrive.identification, secondDrive.device);
    fixture = std::make_unique<BurnPageFixture>();
}

void TstCBurnDialogWait::cleanup()
{
    fixture.reset();
    drives.reset();
    TestCase::cleanup();
}

QString TstCBurnDialogWait::answerTo(const QStringList& command) const
{
    if (command == listing)
        return DriveTexts::listedInternalDisk() + DriveTexts::listedUsbDisk("/dev/disk2", {}) +
               DriveTexts::listedUsbDisk("/dev/disk3", {});
    if (command == describing)
        return DriveTexts::diskInfo("/dev/disk2", {});
    return DriveTexts::opticalStatus(firstDrive) + DriveTexts::opticalStatus(secondDrive);
}

void TstCBurnDialogWait::hold(const QStringList& command)
{
    drives->on(command.first(), command.mid(1),
               {drives->holding("tool"), DriveScenario::printing(answerTo(command))});
}

void TstCBurnDialogWait::answer(const QStringList& command)
{
    drives->on(command.first(), command.mid(1), {DriveScenario::printing(answerTo(command))});
}

void TstCBurnDialogWait::descriptionsThatComeSlowlyKeepTheOrder()
{
    hold(describing);
    const WhenCalled release(*drives, describing, [this] {
        const auto end = qScopeGuard([this] { drives->release("tool"); });
        // By then the line of the second disk has come.
        QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), patienceMs);
        QCoreApplication::processEvents();
        QCOMPARE(disks(), QStringList());
    });
    fixture->page->InitializeUSBAndDVDComboBox(2);
    QVERIFY(release.isDone());
    QCOMPARE(disks(), bothDisks);
}

void TstCBurnDialogWait::refreshDuringTheListingLeavesNoDuplicates()
{
    hold(listing);
    const WhenCalled refreshAgain(*drives, listing, [this] {
        const auto end = qScopeGuard([this] { drives->release("tool"); });
        answer(listing);
        fixture->notifyDriveChange();
        QCOMPARE(disks(), bothDisks);
        QCOMPARE(discs(), bothDiscs);
    });
    fixture->notifyDriveChange();
    QVERIFY(refreshAgain.isDone());
    QCOMPARE(disks(), bothDisks);
    QCOMPARE(discs(), bothDiscs);
}

void TstCBurnDialogWait::refreshDuringADescriptionLeavesNoDuplicates()
{
    hold(describing);
    const WhenCalled refreshAgain(*drives, describing, [this] {
        const auto end = qScopeGuard([this] { drives->release("tool"); });
        answer(describing);
        fixture->notifyDriveChange();
        QCOMPARE(disks(), bothDisks);
    });
    fixture->notifyDriveChange();
    QVERIFY(refreshAgain.isDone());
    QCOMPARE(disks(), bothDisks);
    QCOMPARE(discs(), bothDiscs);
}

// A stick that is plugged in is told of more than once.
void TstCBurnDialogWait::refreshDuringTheDiscsKeepsTheChosenOne()
{
    fixture->list("dvdlist")->setCurrentIndex(1);
    hold(status);
    const WhenCalled refreshAgain(*drives, status, [this] {
        const auto end = qScopeGuard([this] { drives->release("tool"); });
        answer(status);
        fixture->notifyDriveChange();
        QCOMPARE(discs(), bothDiscs);
        QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
    });
    fixture->notifyDriveChange();
    QVERIFY(refreshAgain.isDone());
    QCOMPARE(discs(), bothDiscs);
    QCOMPARE(fixture->list("dvdlist")->currentText(), secondDisc);
}

void TstCBurnDialogWait::everyTool_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("listing") << listing;
    QTest::newRow("description") << describing;
    QTest::newRow("status") << status;
}

void TstCBurnDialogWait::pageClosedMeanwhileIsFreedAtTheEnd_data()
{
    everyTool_data();
}

void TstCBurnDialogWait::pageClosedMeanwhileIsFreedAtTheEnd()
{
    QFETCH(QStringList, command);
    hold(command);
    const WhenCalled leave(*drives, command, [this] {
        const auto end = qScopeGuard([this] { drives->release("tool"); });
        fixture->page->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(fixture->page);
    });
    fixture->notifyDriveChange();
    QVERIFY(leave.isDone());
    QTRY_VERIFY_WITH_TIMEOUT(fixture->page.isNull(), patienceMs);
}

void TstCBurnDialogWait::windowIsPaintedMeanwhile_data()
{
    everyTool_data();
}

void TstCBurnDialogWait::windowIsPaintedMeanwhile()
{
    QFETCH(QStringList, command);
    hold(command);
    PaintCounter counter;
    fixture->line("isofile")->installEventFilter(&counter);
    int before = 0;
    bool isChanged = false;
    bool isPainted = false;
    const WhenCalled change(*drives, command, [&] {
        before = counter.paints;
        fixture->setImage("painted");
        isChanged = true;
    });
    // Nothing here waits: it is the page that has to process the painting.
    const Trigger release([&] { return isChanged && counter.paints > before; },
                          [&] {
                              isPainted = true;
                              drives->release("tool");
                          });
    // In case that it does not.
    QTimer::singleShot(patienceMs / 3, &counter, [this] { drives->release("tool"); });
    fixture->notifyDriveChange();
    QVERIFY(change.isDone());
    QVERIFY(isPainted);
}

KORVEX_TEST_MAIN(TstCBurnDialogWait)
#include "tst_cburndialog_wait.moc"

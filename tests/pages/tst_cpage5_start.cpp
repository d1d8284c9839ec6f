// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "disccopytest.h"
#include "modaldriver.h"
#include "testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

// What the Copy Disk page does from Start to the call of the tool that makes the image.
class TstCPage5Start : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void browserPutsTheChosenPathIntoTheField();
    void browserCancelledKeepsThePath();
    void startWithoutDriveAsksForTheFileWithoutFullStop();
    void startWithoutPathAsksForTheFileWithFullStop();
    void startWithoutBothAsksAboutTheDriveFirst();
    void failedChecksRunNothing();
    void pathOfBlanksCounts();
    void mountIsAskedWithoutArgumentsAndThenTheImageIsMade();
    void toolsRunOneAfterTheOther();
    void deviceOfTheChosenDriveIsCopied();
    void editedDriveTextDoesNotMatterButItsDeviceDoes();
    void pathsGetThroughAsTheyAre_data();
    void pathsGetThroughAsTheyAre();

private:
    // Presses Start; the image tool ends at once and the message is closed.
    void copy();
    // The mount point that the image was made of.
    QString copiedVolume() const;
};

void TstCPage5Start::init()
{
    DiscCopyTest::init();
    openReadyPage();
}

void TstCPage5Start::copy()
{
    QCOMPARE(copyToEnd(), copySuccess());
}

QString TstCPage5Start::copiedVolume() const
{
    const QList<QStringList> calls = scenario->callsOf("hdiutil");
    return calls.isEmpty() ? "no call" : calls.last().last();
}

void TstCPage5Start::browserPutsTheChosenPathIntoTheField()
{
    ModalDriver driver;
    driver.typePath(fixture->path("my disc.iso"));
    fixture->press("browser");
    QCOMPARE(imageField()->text(), fixture->path("my disc.iso"));
    QVERIFY(driver.done());
}

void TstCPage5Start::browserCancelledKeepsThePath()
{
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("browser");
    QCOMPARE(imageField()->text(), imagePath);
}

void TstCPage5Start::startWithoutDriveAsksForTheFileWithoutFullStop()
{
    drives()->clear();
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("start");
    QCOMPARE(driver.texts(), QStringList("Please select the iso file to save"));
}

void TstCPage5Start::startWithoutPathAsksForTheFileWithFullStop()
{
    imageField()->clear();
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("start");
    QCOMPARE(driver.texts(), QStringList("Please select the iso file to save."));
}

void TstCPage5Start::startWithoutBothAsksAboutTheDriveFirst()
{
    drives()->clear();
    imageField()->clear();
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("start");
    QCOMPARE(driver.texts(), QStringList("Please select the iso file to save"));
}

void TstCPage5Start::failedChecksRunNothing()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    driver.press("CommDialog", "btnok");
    imageField()->clear();
    fixture->press("start");
    drives()->setCurrentIndex(-1);
    imageField()->setText(imagePath);
    fixture->press("start");
    QVERIFY(driver.done());
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->commands(), QList<QStringList>({{"drutil", "status"}}));
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(currdev, QString());
}

// Nothing but emptiness is refused.
void TstCPage5Start::pathOfBlanksCounts()
{
    imageField()->setText("  ");
    copy();
    QCOMPARE(scenario->callsOf("hdiutil").last(), imageArguments("  ", "/Volumes/DISC"));
}

void TstCPage5Start::mountIsAskedWithoutArgumentsAndThenTheImageIsMade()
{
    copy();
    QCOMPARE(scenario->commands(),
             QList<QStringList>({{"drutil", "status"},
                                 {"mount"},
                                 {"hdiutil", "makehybrid", "-iso", "-joliet", "-debug", "-ov", "-o",
                                  imagePath, "/Volumes/DISC"}}));
}

void TstCPage5Start::toolsRunOneAfterTheOther()
{
    copy();
    const QList<DriveCall> calls = scenario->calls();
    QCOMPARE(calls.size(), 3);
    QVERIFY(calls.at(1).ended >= 0);
    QVERIFY(calls.at(1).ended < calls.at(2).begun);
}

void TstCPage5Start::deviceOfTheChosenDriveIsCopied()
{
    scenario->addOptical(" MATSHITA DVD-RAM UJ8E2 S   1.00", "/dev/disk7", "/Volumes/OTHER");
    emit news->sigdrivechange();
    QTRY_COMPARE_WITH_TIMEOUT(drives()->count(), 2, patienceMs);
    drives()->setCurrentIndex(1);
    copy();
    QCOMPARE(currdev, QString("/dev/disk7"));
    QCOMPARE(copiedVolume(), QString("/Volumes/OTHER"));
    drives()->setCurrentIndex(0);
    copy();
    QCOMPARE(currdev, QString("/dev/disk4"));
    QCOMPARE(copiedVolume(), QString("/Volumes/DISC"));
}

void TstCPage5Start::editedDriveTextDoesNotMatterButItsDeviceDoes()
{
    drives()->setItemText(0, "My drive (/dev/disk99)");
    copy();
    QCOMPARE(currdev, QString("/dev/disk4"));
}

void TstCPage5Start::pathsGetThroughAsTheyAre_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks") << " my  disc .iso ";
    QTest::newRow("quotes") << "/home/\"my\" 'disc'.iso";
    QTest::newRow("switch") << "-ov";
    QTest::newRow("Unicode") << QString::fromUtf8("/home/Été/ディスク.iso");
    QTest::newRow("shell") << "/home/$(touch x);`y`|z&.iso";
    QTest::newRow("backslash") << "C:\\disc\\n.iso";
    QTest::newRow("long") << '/' + QString(30000, 'x') + ".iso";
}

void TstCPage5Start::pathsGetThroughAsTheyAre()
{
    QFETCH(QString, path);
    imageField()->setText(path);
    copy();
    QCOMPARE(scenario->callsOf("hdiutil").last(), imageArguments(path, "/Volumes/DISC"));
}

KORVEX_TEST_MAIN(TstCPage5Start)
#include "tst_cpage5_start.moc"

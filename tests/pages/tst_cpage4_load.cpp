// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootimages.h"
#include "cimagebutton.h"
#include "editcontentfixture.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QApplication>
#include <QLineEdit>

// Loading an image into the Edit page, up to its listing.
class TstCPage4Load : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void archiverListsAndUnpacks_data();
    void archiverListsAndUnpacks();
    void listingFillsTheViews();
    void cancelledDialogEmptiesTheWorkFolderAllTheSame();
    void cancelledDialogKeepsTheViews();
    void missingFileChangesNothing();
    void pageIsBusyWhileTheListingRuns();
    void failedListingLeavesThePageDisabled_data();
    void failedListingLeavesThePageDisabled();
    void missingToolLeavesThePageDisabled();
    void browsingIsPossibleWhileTheImageIsUnpacked();
    void bootImageIsReplacedOnEveryLoad();
    void pageClosedWhileListingIsFreedAndEndsTheTool();
    void secondListingTakesOverFromTheFirst();

private:
    bool isBusy() const;
    bool areButtonsEnabled(bool enabled) const;

    std::unique_ptr<EditContentFixture> fixture;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage4Load::initTestCase()
{
    setApplicationLook();
}

void TstCPage4Load::init()
{
    TestCase::init();
    fixture = std::make_unique<EditContentFixture>();
}

void TstCPage4Load::cleanup()
{
    fixture.reset();
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    TestCase::cleanup();
}

bool TstCPage4Load::areButtonsEnabled(bool enabled) const
{
    for (const char* const name :
         {"loadiso", "add", "export_2", "rename", "delete_2", "new_2", "back", "save"}) {
        if (fixture->button(name)->isEnabled() != enabled)
            return false;
    }
    return true;
}

bool TstCPage4Load::isBusy() const
{
    const QCursor* const cursor = QApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor && areButtonsEnabled(false);
}

void TstCPage4Load::archiverListsAndUnpacks_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("plain") << "image.iso";
    QTest::newRow("blanks") << "my image  1.ISO";
    QTest::newRow("quotes") << "the 'best' image.iso";
    QTest::newRow("shell") << "$(id);&|`x`.iso";
    QTest::newRow("percent") << "100%1 %2.iso";
    QTest::newRow("Unicode") << QString::fromUtf8("образ 日本語 é.iso");
    QTest::newRow("leading dash") << "-o.iso";
}

void TstCPage4Load::archiverListsAndUnpacks()
{
    QFETCH(QString, fileName);
    fixture->setImage(EditContentFixture::usualEntries());
    fixture->startLoading(fileName);
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(fixture->waitUntilWorked());
    const QString image = fixture->path(fileName);
    QList<QStringList> calls = fixture->archiver.calls();
    if (calls.first().first() == "x")
        std::reverse(calls.begin(), calls.end());
    QCOMPARE(calls, QList<QStringList>({{"-scsUTF-8", "l", image},
                                        {"x", "-y", "-bb3", "-bsp2",
                                         "-o" + Util::GetTempDir() + "/tmp/", image}}));
    QCOMPARE(fixture->tree()->topLevelItem(0)->text(0), fileName);
}

void TstCPage4Load::listingFillsTheViews()
{
    QVERIFY(fixture->open());
    QVERIFY(debugLines().contains("finished unzip"));
    QCOMPARE(fixture->tree()->topLevelItemCount(), 1);
    const QTreeWidgetItem* const top = fixture->tree()->topLevelItem(0);
    QVERIFY(top->isExpanded());
    QVERIFY(!top->icon(0).isNull());
    QCOMPARE(fixture->nodePaths(), QStringList({"boot/", "boot/grub/", "docs/"}));
    QCOMPARE(fixture->rowTexts("boot"), QStringList({"boot", "", "Folder", "2019-03-19 13:42:43"}));
    QCOMPARE(fixture->rowTexts("readme.txt"),
             QStringList({"readme.txt", Util::SizeToString(10),
                          Util::GetExtensionString("readme.txt"), "2019-03-19 13:42:43"}));
    QCOMPARE(fixture->disagreement(), QString());
    QVERIFY(areButtonsEnabled(true));
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage4Load::cancelledDialogEmptiesTheWorkFolderAllTheSame()
{
    QVERIFY(fixture->open());
    bool emptiedBefore = false;
    ModalDriver driver(90000);
    driver.run("QFileDialog", [&](QWidget* dialog) {
        emptiedBefore =
            QTest::qWaitFor([this] { return entriesOf(fixture->workFolder()).isEmpty(); }, 60000);
        dialog->close();
    });
    fixture->press("loadiso");
    QVERIFY(emptiedBefore);
}

void TstCPage4Load::cancelledDialogKeepsTheViews()
{
    QVERIFY(fixture->open());
    const QStringList names = fixture->shownNames();
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("loadiso");
    QVERIFY(driver.done());
    QCOMPARE(fixture->shownNames(), names);
    QCOMPARE(fixture->archiver.calls().size(), 2);
    QVERIFY(areButtonsEnabled(true));
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage4Load::missingFileChangesNothing()
{
    const QString image = fixture->makeFile("image.iso");
    ModalDriver driver;
    driver.run("QFileDialog", [&image](QWidget* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(image);
        connect(static_cast<QDialog*>(dialog), &QDialog::finished, dialog,
                [image] { QFile::remove(image); });
        QMetaObject::invokeMethod(dialog, "accept");
    });
    fixture->press("loadiso");
    QVERIFY(!QFile::exists(image));
    QVERIFY(fixture->archiver.calls().isEmpty());
    QVERIFY(areButtonsEnabled(true));
}

void TstCPage4Load::pageIsBusyWhileTheListingRuns()
{
    fixture->archiver.setScript({fixture->gate()});
    fixture->startLoading();
    QVERIFY(isBusy());
    fixture->press("back");
    fixture->press("loadiso");
    QVERIFY(fixture->page->isVisible());
    fixture->page->OnAdd();
    fixture->page->OnTreeCurrentChanged();
    fixture->page->OnListViewDoubleClicked();
    fixture->page->slotSelectAll(true);
    QCOMPARE(fixture->table()->rowCount(), 0);
    QVERIFY(isBusy());
}

void TstCPage4Load::failedListingLeavesThePageDisabled_data()
{
    const QString separator = "out " + ExtractPageFixture::separatorLine() + "\\n";
    QTest::addColumn<QStringList>("script");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("failure") << QStringList({"err ERROR: image.iso\\n", "exit 2"});
    QTest::newRow("crash") << QStringList("crash");
    QTest::newRow("first separator only") << QStringList(separator);
    QTest::newRow("flood") << QStringList({"only l", "flood 2"});
}

void TstCPage4Load::failedListingLeavesThePageDisabled()
{
    QFETCH(QStringList, script);
    fixture->archiver.setScript(script);
    fixture->startLoading();
    QVERIFY(fixture->waitUntilWorked()); // the unpacking has ended, however
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->archiver.calls().size(), 2);
    QVERIFY(isBusy());
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
}

void TstCPage4Load::missingToolLeavesThePageDisabled()
{
    const QString tool = ExtractPageFixture::toolPath();
    QVERIFY(QFile::rename(tool, tool + ".away"));
    fixture->startLoading();
    const bool ended = fixture->waitUntilWorked() && PageFixture::waitUntilToolsGone();
    QVERIFY(QFile::rename(tool + ".away", tool));
    QVERIFY(ended);
    QVERIFY(isBusy());
}

void TstCPage4Load::browsingIsPossibleWhileTheImageIsUnpacked()
{
    QVERIFY(fixture->openHalfway());
    QVERIFY(areButtonsEnabled(true));
    QVERIFY(!QApplication::overrideCursor());
    fixture->openFolder("boot");
    QCOMPARE(fixture->shownNames(), QStringList({"grub", "kernel"}));
    fixture->openFolder("grub");
    QCOMPARE(fixture->shownNames(), QStringList("grub.cfg"));
    QCOMPARE(fixture->tree()->selectedItems().first()->text(0), QString("grub"));
    QVERIFY(fixture->page->isWorking());
}

void TstCPage4Load::bootImageIsReplacedOnEveryLoad()
{
    const QString bootImage = Util::GetCurrentExePath() + "/boot.bin";
    writeFile(bootImage, QByteArray(100000, 'o'));
    const QByteArray one = bootableImage(bootEntry(0x88, 0, 4, 24));
    writeFile(fixture->path("one.iso"), one);
    writeFile(fixture->path("two.iso"), bootableImage(bootEntry(0x88, 0, 2, 30)));
    fixture->setImage({"a"});
    fixture->startLoading("one.iso");
    QVERIFY(fixture->waitUntilListed());
    QCOMPARE(readFile(bootImage), one.mid(24 * sectorBytes, 4 * 512));
    fixture->startLoading("two.iso");
    QVERIFY(fixture->waitUntilListed());
    QCOMPARE(readFile(bootImage).size(), 2 * 512);
    fixture->startLoading("without.iso");
    QVERIFY(fixture->waitUntilListed());
    QVERIFY(!QFile::exists(bootImage));
}

void TstCPage4Load::pageClosedWhileListingIsFreedAndEndsTheTool()
{
    fixture->archiver.setScript({"only l", fixture->archiver.holding("listing"), "only x",
                                 fixture->archiver.holding("unpacking")});
    fixture->startLoading();
    QVERIFY(fixture->archiver.isHeld("listing"));
    QVERIFY(fixture->archiver.isHeld("unpacking"));
    fixture->page->close();
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(QTest::qWaitFor([this] { return fixture->page.isNull(); }, 60000));
    QVERIFY(PageFixture::waitUntilToolsGone());
}

void TstCPage4Load::secondListingTakesOverFromTheFirst()
{
    // Lists an entry and its end while the second listing is between the two.
    const QString separator = "out " + ExtractPageFixture::separatorLine() + "\\n";
    const auto entry = [](const QString& name) {
        return "out " + ExtractPageFixture::fileLine(name) + "\\n";
    };
    fixture->archiver.setScript({"only l", separator, entry("one"),
                                 fixture->archiver.holding("first"), entry("late"), separator,
                                 fixture->archiver.holding("never"), "only x",
                                 fixture->archiver.holding("unpacking")});
    fixture->startLoading();
    QVERIFY(fixture->archiver.isHeld("first"));
    QVERIFY(fixture->archiver.isHeld("unpacking"));
    fixture->archiver.setScript(
        {"only l", separator, entry("two"), fixture->archiver.holding("second"), separator});
    fixture->startLoading();
    QVERIFY(fixture->archiver.isHeld("second"));
    fixture->archiver.release("first");
    fixture->archiver.release("second");
    QVERIFY(fixture->waitUntilListed());
    QCOMPARE(fixture->modelPaths(), QStringList("two"));
    QCOMPARE(fixture->shownNames(), QStringList("two"));
    // None is left that lists or unpacks the first.
    QVERIFY(PageFixture::waitUntilToolsGone());
}

KORVEX_TEST_MAIN(TstCPage4Load)
#include "tst_cpage4_load.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "usermouse.h"

#include <QApplication>
#include <QLineEdit>

// Loading an image into the Extract page: the archiver's listing becomes tree and table.
class TstCPage2Load : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void archiverIsAskedForAListing();
    void pathOfTheImageIsOneArgument_data();
    void pathOfTheImageIsOneArgument();
    void cancelledFileDialogChangesNothing();
    void missingFileChangesNothing();
    void pageIsBusyWhileTheListingRuns();
    void clicksOnTheEmptyViewsAreHarmlessWhileTheListingRuns();
    void imageListedTwiceShowsTheSame();
    void secondImageReplacesTheFirst();
    void viewsAreEmptyWhileTheSecondListingRuns();
    void toolWithoutSeparatorsLeavesThePageBusy_data();
    void toolWithoutSeparatorsLeavesThePageBusy();
    void missingToolLeavesThePageBusy();
    void everyRunnerIsFreed();
    void pageMayGoWhileTheListingRuns();
    void secondListingEndsTheFirst();
    void linesOfTheFirstListingOnTheirWayAreIgnoredInTheSecond();

private:
    bool isBusy() const;

    std::unique_ptr<ExtractPageFixture> fixture;
    // A stop is noticed at once, and a tool that does not heed it is not waited for.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
    const OtherLimit littlePatience{toolLimits().politeStopMs, 50};
};

void TstCPage2Load::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Load::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
}

void TstCPage2Load::cleanup()
{
    fixture.reset();
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    TestCase::cleanup();
}

bool TstCPage2Load::isBusy() const
{
    const QCursor* const cursor = QApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::WaitCursor &&
           !fixture->button("loadiso")->isEnabled() && !fixture->button("back")->isEnabled() &&
           !fixture->button("extract")->isEnabled();
}

void TstCPage2Load::archiverIsAskedForAListing()
{
    QVERIFY(fixture->load());
    QCOMPARE(fixture->tool.calls(), QList<QStringList>({{"l", fixture->isoPath}}));
}

void TstCPage2Load::pathOfTheImageIsOneArgument_data()
{
    QTest::addColumn<QString>("fileName");
    QTest::newRow("blanks") << "my image  1.ISO";
    QTest::newRow("quotes") << "the 'best' image.iso";
    QTest::newRow("shell") << "$(id);&|`x`.iso";
    QTest::newRow("percent") << "100%1 %2.iso";
    QTest::newRow("Unicode") << QString::fromUtf8("образ 日本語 é.iso");
    QTest::newRow("leading dash") << "-o.iso";
}

void TstCPage2Load::pathOfTheImageIsOneArgument()
{
    QFETCH(QString, fileName);
    fixture->setListing(ExtractPageFixture::usualEntries());
    fixture->startLoading(fileName);
    QVERIFY(fixture->waitUntilLoaded());
    QCOMPARE(fixture->tool.calls(), QList<QStringList>({{"l", fixture->path(fileName)}}));
    QCOMPARE(fixture->topNode()->text(0), fileName);
}

void TstCPage2Load::cancelledFileDialogChangesNothing()
{
    QVERIFY(fixture->load());
    const QStringList names = fixture->shownNames();
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("loadiso");
    QVERIFY(driver.done());
    QCOMPARE(fixture->shownNames(), names);
    QCOMPARE(fixture->tool.calls().size(), 1);
    QVERIFY(fixture->button("loadiso")->isEnabled());
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage2Load::missingFileChangesNothing()
{
    // Gone between the choice and the dialog's end, as another program may do it.
    writeFile(fixture->isoPath, "image");
    ModalDriver driver;
    driver.run("QFileDialog", [this](QWidget* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(fixture->isoPath);
        connect(static_cast<QDialog*>(dialog), &QDialog::finished, dialog,
                [this] { QFile::remove(fixture->isoPath); });
        QMetaObject::invokeMethod(dialog, "accept");
    });
    fixture->press("loadiso");
    QVERIFY(driver.done());
    QVERIFY(!QFile::exists(fixture->isoPath));
    QVERIFY(fixture->tool.calls().isEmpty());
    QVERIFY(fixture->button("loadiso")->isEnabled());
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage2Load::pageIsBusyWhileTheListingRuns()
{
    fixture->tool.setScript({"sleep 60000"});
    fixture->startLoading();
    QVERIFY(isBusy());
    fixture->press("back");
    QVERIFY(fixture->page->isVisible());
    QTest::keyClick(fixture->page, Qt::Key_Escape);
    QVERIFY(fixture->page->isVisible());
}

void TstCPage2Load::clicksOnTheEmptyViewsAreHarmlessWhileTheListingRuns()
{
    QVERIFY(fixture->load());
    fixture->clickNode(fixture->topNode()->child(0));
    fixture->tool.setScript({"sleep 60000"});
    fixture->startLoading();
    for (const QString& line :
         {ExtractPageFixture::separatorLine(), ExtractPageFixture::fileLine("a/b")})
        fixture->page->OnLineOutput(line);
    UserMouse::press(fixture->tree(), {50, 40});
    UserMouse::release(fixture->tree(), {50, 40});
    UserMouse::press(fixture->table(), {50, 60});
    UserMouse::release(fixture->table(), {50, 60});
    fixture->page->OnTreeCurrentChanged();
    fixture->page->OnListViewDoubleClicked();
    fixture->page->RefreshTreeWidget();
    fixture->page->slotSelectAll(true);
    QCOMPARE(fixture->table()->rowCount(), 0);
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
    QVERIFY(isBusy());
}

void TstCPage2Load::imageListedTwiceShowsTheSame()
{
    QVERIFY(fixture->load());
    const QStringList names = fixture->shownNames();
    QVERIFY(fixture->load());
    QCOMPARE(fixture->shownNames(), names);
    QCOMPARE(fixture->tree()->topLevelItemCount(), 1);
    QCOMPARE(fixture->topNode()->childCount(), 2);
}

void TstCPage2Load::secondImageReplacesTheFirst()
{
    QVERIFY(fixture->load());
    fixture->enter("boot");
    fixture->setListing({ExtractPageFixture::fileLine("other.txt")});
    fixture->startLoading("other.iso");
    QVERIFY(fixture->waitUntilLoaded());
    QCOMPARE(fixture->topNode()->text(0), QString("other.iso"));
    QCOMPARE(fixture->shownNames(), QStringList("other.txt"));
    QVERIFY(!QApplication::overrideCursor());
}

void TstCPage2Load::viewsAreEmptyWhileTheSecondListingRuns()
{
    QVERIFY(fixture->load());
    fixture->tool.setScript({"sleep 60000"});
    fixture->startLoading();
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
    QCOMPARE(fixture->table()->rowCount(), 0);
}

void TstCPage2Load::toolWithoutSeparatorsLeavesThePageBusy_data()
{
    QTest::addColumn<QStringList>("script");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no archive") << QStringList("file 4096 " KORVEX_TEST_DATA
                                               "/7z/list-not-an-archive-26.02.txt");
    QTest::newRow("failure") << QStringList({"err ERROR: image.iso\\n", "exit 2"});
    QTest::newRow("crash") << QStringList("crash");
    QTest::newRow("first separator only")
        << QStringList("out " + ExtractPageFixture::separatorLine() + "\\n");
}

void TstCPage2Load::toolWithoutSeparatorsLeavesThePageBusy()
{
    QFETCH(QStringList, script);
    fixture->tool.setScript(script);
    fixture->startLoading();
    QVERIFY(PageFixture::waitUntilToolsGone());
    QCOMPARE(fixture->tool.calls().size(), 1);
    QVERIFY(isBusy());
    QCOMPARE(fixture->tree()->topLevelItemCount(), 0);
}

void TstCPage2Load::missingToolLeavesThePageBusy()
{
    const QString away = ExtractPageFixture::toolPath() + ".away";
    QVERIFY(QFile::rename(ExtractPageFixture::toolPath(), away));
    fixture->startLoading();
    const bool ended = PageFixture::waitUntilToolsGone();
    QVERIFY(QFile::rename(away, ExtractPageFixture::toolPath()));
    QVERIFY(ended);
    QVERIFY(isBusy());
}

void TstCPage2Load::everyRunnerIsFreed()
{
    QVERIFY(fixture->load());
    QVERIFY(PageFixture::waitUntilToolsGone());
    const int descriptors = descriptorCount();
    for (int i = 0; i < 3; ++i)
        QVERIFY(fixture->load());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(QTest::qWaitFor([descriptors] { return descriptorCount() <= descriptors; }, 60000));
}

void TstCPage2Load::pageMayGoWhileTheListingRuns()
{
    fixture->tool.setScript({"lines 1000 line", fixture->tool.holding("listing")});
    fixture->startLoading();
    QVERIFY(fixture->tool.isHeld("listing"));
    delete fixture->page;
    QVERIFY(PageFixture::waitUntilToolsGone());
}

// Which the page's button does not allow, as it is disabled meanwhile.
void TstCPage2Load::secondListingEndsTheFirst()
{
    fixture->tool.setScript({fixture->tool.holding("first")});
    fixture->startLoading("first.iso");
    QVERIFY(fixture->tool.isHeld("first"));
    QVERIFY(fixture->load({ExtractPageFixture::fileLine("second.txt")}));
    QCOMPARE(fixture->shownNames(), QStringList("second.txt"));
    // Though nobody has released it.
    QVERIFY(PageFixture::waitUntilToolsGone());
}

// They are sent between the choice of the second image and the start of its listing.
void TstCPage2Load::linesOfTheFirstListingOnTheirWayAreIgnoredInTheSecond()
{
    fixture->tool.setScript({fixture->tool.holding("first"),
                             "out " + ExtractPageFixture::separatorLine() + "\\n",
                             "out " + ExtractPageFixture::fileLine("first.txt") + "\\n"});
    fixture->startLoading("first.iso");
    QVERIFY(fixture->tool.isHeld("first"));
    fixture->setListing({ExtractPageFixture::fileLine("second.txt")});
    writeFile(fixture->isoPath, "image");
    bool isSent = false;
    ModalDriver driver;
    driver.run("QFileDialog", [this, &isSent](QWidget* dialog) {
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(fixture->isoPath);
        connect(static_cast<QDialog*>(dialog), &QDialog::finished, dialog, [this, &isSent] {
            fixture->tool.release("first");
            isSent = PageFixture::waitUntilAllIsSent();
        });
        QMetaObject::invokeMethod(dialog, "accept");
    });
    fixture->page->OnLoadISO();
    QVERIFY(isSent);
    QVERIFY(fixture->waitUntilLoaded());
    QCOMPARE(fixture->shownNames(), QStringList("second.txt"));
}

KORVEX_TEST_MAIN(TstCPage2Load)
#include "tst_cpage2_load.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "picture.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "usermouse.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPainter>

// From the ticks on the Extract page to the archiver's command line.
class TstCPage2Extract : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingTickedShowsAMessageAndRunsNothing();
    void nothingLoadedShowsTheMessageAsWell();
    void cancelledFolderDialogRunsNothing();
    void tickedRowsOfTheRootAreTheArguments();
    void nestedFolderIsPutInFrontOfEveryName();
    void folderOpenedInTheTreeIsPutInFrontAsWell();
    void namesThatTheArchiverWouldMisread_data();
    void namesThatTheArchiverWouldMisread();
    void contextMenuOpensAtTheMouseAndExtracts();

private:
    std::unique_ptr<ExtractPageFixture> fixture;
    QString outputDir;
};

void TstCPage2Extract::initTestCase()
{
    setApplicationLook();
}

void TstCPage2Extract::init()
{
    TestCase::init();
    fixture = std::make_unique<ExtractPageFixture>();
    outputDir = fixture->path("Out put");
    QVERIFY(QDir().mkpath(outputDir));
    QVERIFY(fixture->load());
    fixture->tool.setScript({});
}

void TstCPage2Extract::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage2Extract::nothingTickedShowsAMessageAndRunsNothing()
{
    QImage shown;
    QImage expected;
    QPoint place;
    ModalDriver driver;
    driver.run("GerneralDialog", [&](QWidget* dialog) {
        QWidget* const ok = dialog->findChild<QWidget*>("btnok");
        place = ok->pos() - QPoint((dialog->width() - ok->width()) / 2, 0);
        for (QWidget* const child : dialog->findChildren<QWidget*>())
            child->hide();
        shown = dialog->grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        expected = QImage(dialog->size(), QImage::Format_ARGB32_Premultiplied);
        ok->show();
        UserMouse::click(ok);
    });
    fixture->press("extract");
    QCOMPARE(driver.texts(), QStringList("Please select the files or folders you want to extract"));
    // In the middle, and on its own picture.
    QCOMPARE(place, QPoint(0, 130));
    expected.fill(Qt::transparent);
    QPainter(&expected).drawPixmap(0, 0, loadPicture(":/nwu/select_files_extract", 1));
    QCOMPARE(shown, expected);
    QCOMPARE(fixture->tool.calls().size(), 1);
    QVERIFY(fixture->page->isEnabled());
}

void TstCPage2Extract::nothingLoadedShowsTheMessageAsWell()
{
    fixture = std::make_unique<ExtractPageFixture>();
    ModalDriver driver;
    driver.key("GerneralDialog", Qt::Key_Return);
    fixture->press("extract");
    QVERIFY(driver.done());
    QVERIFY(fixture->tool.calls().isEmpty());
}

void TstCPage2Extract::cancelledFolderDialogRunsNothing()
{
    fixture->tick({"readme.txt"});
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("extract");
    QVERIFY(driver.done());
    QCOMPARE(fixture->tool.calls().size(), 1);
    QVERIFY(fixture->page->isEnabled());
    QCOMPARE(fixture->ticked(), QStringList("readme.txt"));
}

void TstCPage2Extract::tickedRowsOfTheRootAreTheArguments()
{
    fixture->tick({"docs", "readme.txt"});
    QVERIFY(fixture->extractTo(outputDir));
    QCOMPARE(fixture->tool.calls().last(),
             QStringList({"x", fixture->isoPath, "-y", "-bb3", "-bsp2", "-o" + outputDir,
                          "readme.txt", "docs", "-r"}));
}

void TstCPage2Extract::nestedFolderIsPutInFrontOfEveryName()
{
    fixture->enter("boot/grub");
    fixture->tick({"font.pf2", "grub.cfg"});
    QVERIFY(fixture->extractTo(outputDir));
    QCOMPARE(fixture->tool.calls().last().mid(6),
             QStringList({"boot/grub/font.pf2", "boot/grub/grub.cfg", "-r"}));
}

void TstCPage2Extract::folderOpenedInTheTreeIsPutInFrontAsWell()
{
    fixture->clickNode(fixture->topNode()->child(0));
    fixture->tick({"kernel"});
    QVERIFY(fixture->extractTo(outputDir));
    QCOMPARE(fixture->tool.calls().last().mid(6), QStringList({"boot/kernel", "-r"}));
}

void TstCPage2Extract::namesThatTheArchiverWouldMisread_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("argument");
    QTest::newRow("leading dash") << "-y"
                                  << "-ir-!-y";
    QTest::newRow("at sign") << "@list"
                             << "-ir-!@list";
    QTest::newRow("command") << "x"
                             << "-ir-!x";
    QTest::newRow("blanks and quotes") << "a \"b\" 'c'"
                                       << "a \"b\" 'c'";
    QTest::newRow("Unicode") << QString::fromUtf8("файл 日本") << QString::fromUtf8("файл 日本");
}

void TstCPage2Extract::namesThatTheArchiverWouldMisread()
{
    QFETCH(QString, name);
    QVERIFY(fixture->load({ExtractPageFixture::fileLine(name)}));
    fixture->tool.setScript({});
    fixture->tick({name});
    QVERIFY(fixture->extractTo(outputDir));
    QFETCH(QString, argument);
    QCOMPARE(fixture->tool.calls().last().mid(6), QStringList({argument, "-r"}));
}

void TstCPage2Extract::contextMenuOpensAtTheMouseAndExtracts()
{
    UserMouse::move(fixture->table(), {80, 100});
    const QPoint mouse = QCursor::pos();
    fixture->page->OnListContextMenuRequest({5, 5});
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    QCOMPARE(menu->pos(), mouse);
    QCOMPARE(menu->actions().size(), 1);
    QCOMPARE(menu->actions().at(0)->text(), QString("Extract(&E)"));
    menu->close();
    ModalDriver driver;
    driver.press("GerneralDialog", "btnok");
    menu->actions().at(0)->trigger();
    QVERIFY(driver.done());
}

KORVEX_TEST_MAIN(TstCPage2Extract)
#include "tst_cpage2_extract.moc"

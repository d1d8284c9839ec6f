// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "nofocusdelegate.h"
#include "stagingpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "textfit.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QRadioButton>

// The Create page's form: what it has and what it says.
class TstCPage3Form : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void pageHasItsNameAndTitle();
    void labelsReadAsTheyShould_data();
    void labelsReadAsTheyShould();
    void buttonsHaveTheirCaptionsAndPictures_data();
    void buttonsHaveTheirCaptionsAndPictures();
    void jolietIsTheDefaultOfThreeTypes();
    void onlyOneTypeIsChosenAtATime();
    void radioButtonsShowPicturesOfTheirOwn();
    void listHasFiveColumnsOfTheSameWidth();
    void headersDoNotLightUp();
    void listSelectsOneWholeRowAndIsNotEdited();
    void listAndFrameHaveTheirSizes();
    void listIsPaintedInItsColoursWithLargeHeaders();
    void gaugeIsEmptyAndWithoutText();
    void menuHasThreeActions();
    void textsFitTheirLabels();

private:
    QStringList headers() const;

    std::unique_ptr<StagingPageFixture> fixture;
};

namespace
{

// Labels and radio buttons have a text each, but no class in common that tells it.
QString textOf(const CPage3* page, const QString& name)
{
    const auto* const widget = page->findChild<QWidget*>(name);
    return widget ? widget->property("text").toString() : QString();
}

} // namespace

void TstCPage3Form::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Form::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Form::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

QStringList TstCPage3Form::headers() const
{
    QStringList texts;
    for (int column = 0; column < fixture->list()->columnCount(); ++column)
        texts.append(fixture->list()->headerItem()->text(column));
    return texts;
}

void TstCPage3Form::pageHasItsNameAndTitle()
{
    QCOMPARE(fixture->page->objectName(), QString("CPage3"));
    QCOMPARE(fixture->page->windowTitle(), QString("Dialog"));
    QVERIFY(!fixture->page->isWindow());
}

void TstCPage3Form::labelsReadAsTheyShould_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("title") << "filebackup"
                           << "File & Folder Backup";
    QTest::newRow("type") << "backtype"
                          << "Backup Type:";
    QTest::newRow("joliet") << "jolet"
                            << "ISO9660 Jolet";
    QTest::newRow("iso9660") << "iso9600"
                             << "ISO9660";
    QTest::newRow("udf") << "udf"
                         << "UDF ISO";
    QTest::newRow("total") << "totalsize"
                           << "Total Size : 0 KB";
    QTest::newRow("maximum") << "label_2"
                             << "Max Size : 5 GB";
}

void TstCPage3Form::labelsReadAsTheyShould()
{
    QFETCH(QString, name);
    const auto* const widget = fixture->page->findChild<QWidget*>(name);
    QVERIFY(widget);
    QVERIFY(widget->isVisible());
    QTEST(textOf(fixture->page, name), "text");
    QCOMPARE(widget->font().family(), QString("Microsoft YaHei"));
}

void TstCPage3Form::buttonsHaveTheirCaptionsAndPictures_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("picture");
    QTest::newRow("addfile") << "Add Files..."
                             << "addfile";
    QTest::newRow("adddir") << "Add Folder..."
                            << "adddir";
    QTest::newRow("remove") << "Remove"
                            << "Remove";
    QTest::newRow("create") << "Create ISO"
                            << "Create-IOS";
    QTest::newRow("back") << "Back"
                          << "Back";
}

void TstCPage3Form::buttonsHaveTheirCaptionsAndPictures()
{
    QFETCH(QString, caption);
    QFETCH(QString, picture);
    const CImageButton* const button = fixture->button(QTest::currentDataTag());
    QVERIFY(button);
    QVERIFY(button->isVisible());
    QCOMPARE(button->accessibleName(), caption);
    QCOMPARE(fixture->missedPicture(QTest::currentDataTag(), picture, caption), QString());
}

void TstCPage3Form::jolietIsTheDefaultOfThreeTypes()
{
    const auto types = fixture->page->findChildren<QRadioButton*>();
    QCOMPARE(types.size(), 3);
    for (const QRadioButton* type : types)
        QCOMPARE(type->isChecked(), type->objectName() == "jolet");
}

void TstCPage3Form::onlyOneTypeIsChosenAtATime()
{
    const auto types = fixture->page->findChildren<QRadioButton*>();
    for (QRadioButton* const chosen : types) {
        QTest::mouseClick(chosen, Qt::LeftButton, {}, {8, chosen->height() / 2});
        for (const QRadioButton* type : types)
            QCOMPARE(type->isChecked(), type == chosen);
    }
}

void TstCPage3Form::radioButtonsShowPicturesOfTheirOwn()
{
    for (const QRadioButton* type : fixture->page->findChildren<QRadioButton*>())
        QVERIFY(type->styleSheet().contains(
            "QRadioButton::indicator:checked {\n    image: url(:/nwu/rchecked);\n}\n\n"
            "QRadioButton::indicator:unchecked {\n    image: url(:/nwu/runchecked);\n}"));
}

void TstCPage3Form::listHasFiveColumnsOfTheSameWidth()
{
    const QTreeWidget* const list = fixture->list();
    // The blank in front of " Size" is part of it.
    QCOMPARE(headers(), QStringList({"File Name", "File Path", " Size", "Type", "Time"}));
    // All but the last, which reaches to the edge.
    for (int column = 0; column < 4; ++column)
        QCOMPARE(list->columnWidth(column), (list->width() - 2) / 5);
    QVERIFY(list->columnWidth(4) >= (list->width() - 2) / 5);
    QVERIFY(list->columnWidth(4) <= (list->width() - 2) / 5 + 4);
}

void TstCPage3Form::headersDoNotLightUp()
{
    QVERIFY(!fixture->list()->header()->highlightSections());
}

void TstCPage3Form::listSelectsOneWholeRowAndIsNotEdited()
{
    const QTreeWidget* const list = fixture->list();
    QCOMPARE(list->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(list->contextMenuPolicy(), Qt::CustomContextMenu);
    QVERIFY(qobject_cast<NoFocusDelegate*>(list->itemDelegate()));
    QCOMPARE(list->topLevelItemCount(), 0);
}

void TstCPage3Form::listAndFrameHaveTheirSizes()
{
    const auto* const frame = fixture->page->findChild<QFrame*>("widget");
    QVERIFY(frame);
    QCOMPARE(fixture->list()->size(), QSize(643, 226));
    QCOMPARE(fixture->list()->minimumSize(), fixture->list()->maximumSize());
    QCOMPARE(frame->size(), QSize(643, 62));
    QCOMPARE(frame->minimumSize(), frame->maximumSize());
    QVERIFY(frame->styleSheet().contains("border: 1px solid #C2EFFD"));
    QVERIFY(!frame->geometry().intersects(fixture->list()->geometry()));
}

// Compared with a header whose sections are painted so and with the colours as they come out.
void TstCPage3Form::listIsPaintedInItsColoursWithLargeHeaders()
{
    fixture->addFiles({fixture->makeFile("a.txt")});
    QVERIFY(fixture->finish());
    fixture->setSelected(fixture->row({"a.txt"}));
    QTreeWidget* const list = fixture->list();
    QTreeWidget expected(fixture->page);
    expected.setColumnCount(list->columnCount());
    expected.setHeaderLabels(headers());
    expected.setFont(list->font());
    expected.setStyleSheet("QHeaderView::section { font: 13pt; color: black; }");
    expected.resize(list->size());
    expected.header()->setHighlightSections(false);
    expected.header()->restoreState(list->header()->saveState());
    expected.show();
    expected.header()->resize(list->header()->size());
    QCOMPARE(list->header()->sizeHint().height(), expected.header()->sizeHint().height());
    QCOMPARE(list->header()->grab().toImage(), expected.header()->grab().toImage());
    const QImage shown = list->grab().toImage();
    const QColor line("#C2EFFD");
    for (const QPoint corner : {QPoint(0, 0), QPoint(shown.width() - 1, shown.height() - 1)})
        QCOMPARE(shown.pixelColor(corner), line);
    const QRect row = list->visualItemRect(fixture->row({"a.txt"}));
    const QImage rows = list->viewport()->grab().toImage();
    QCOMPARE(rows.pixelColor(QPoint(row.right() - 1, row.center().y())), line);
    QCOMPARE(rows.pixelColor(QPoint(row.right() - 1, row.bottom() + 20)), QColor("#FFFFFF"));
}

void TstCPage3Form::gaugeIsEmptyAndWithoutText()
{
    const auto* const gauge = fixture->page->findChild<QProgressBar*>("progressBar");
    QVERIFY(gauge);
    QCOMPARE(gauge->minimum(), 0);
    QCOMPARE(gauge->maximum(), 100);
    QCOMPARE(gauge->value(), 0);
    QVERIFY(!gauge->isTextVisible());
}

void TstCPage3Form::menuHasThreeActions()
{
    const auto* const menu = fixture->page->findChild<QMenu*>();
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts.append(action->text());
    QCOMPARE(texts, QStringList({"Add Files(&F)", "Add Dirs(&D)", "Remove(&R)"}));
}

void TstCPage3Form::textsFitTheirLabels()
{
    QVERIFY(fixture->holdQueue());
    fixture->addFiles({fixture->makeSparseFile("large", 5368709119)});
    QCOMPARE(cutTexts(fixture->page), QStringList());
}

KORVEX_TEST_MAIN(TstCPage3Form)
#include "tst_cpage3_form.moc"

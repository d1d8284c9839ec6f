// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "cmycombobox.h"
#include "cprogressdialog.h"
#include "disccopytest.h"
#include "markedtranslator.h"
#include "testmain.h"
#include "usermouse.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

// The Copy Disk page's form: what it has and what it says.
class TstCPage5Form : public DiscCopyTest
{
    Q_OBJECT

private slots:
    void init();
    void pageHasItsNameTitleAndSize();
    void labelsReadAsTheyShould_data();
    void labelsReadAsTheyShould();
    void buttonsReadAsTheyShould_data();
    void buttonsReadAsTheyShould();
    void buttonsShowTheirPictures_data();
    void buttonsShowTheirPictures();
    void backgroundIsThePages();
    void onlyFormatIsIso();
    void fieldsStartEmpty();
    void everyFieldHasAnAccessibleName();
    void nothingOverlapsOrLeavesThePage();
    void languageChangeReachesEveryLabel_data();
    void languageChangeReachesEveryLabel();
    void languageChangeReachesButtonsFormatAndTitle();
    void languageChangeKeepsDriveAndPath();

private:
    QLabel* label(const QString& name) const;
    QList<QWidget*> fields() const;
};

namespace
{

// A change of language as the program makes it, undone at the end.
class OtherLanguage
{
public:
    OtherLanguage()
    {
        QCoreApplication::installTranslator(&marked);
        QCoreApplication::processEvents();
    }
    ~OtherLanguage()
    {
        QCoreApplication::removeTranslator(&marked);
        QCoreApplication::processEvents();
    }

private:
    MarkedTranslator marked;
};

void addLabelRows()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("makeimage") << "Make Image From Disc";
    QTest::newRow("source") << "Source";
    QTest::newRow("select") << "Select a CD/DVD drive:";
    QTest::newRow("destination") << "Destination";
    QTest::newRow("output") << "Output Format:";
    QTest::newRow("location") << "Location";
}

} // namespace

void TstCPage5Form::init()
{
    DiscCopyTest::init();
    openPage();
}

QLabel* TstCPage5Form::label(const QString& name) const
{
    return page->findChild<QLabel*>(name);
}

// In the order of the keyboard.
QList<QWidget*> TstCPage5Form::fields() const
{
    QList<QWidget*> found;
    for (const char* const name :
         {"dvdlist", "eject", "formatlist", "lineEdit", "browser", "back", "start"})
        found.append(page->findChild<QWidget*>(name, Qt::FindDirectChildrenOnly));
    return found;
}

void TstCPage5Form::pageHasItsNameTitleAndSize()
{
    QCOMPARE(page->objectName(), QString("CPage5"));
    QCOMPARE(page->windowTitle(), QString("Dialog"));
    QVERIFY(!page->isWindow());
    QVERIFY(fixture->window.rect().contains(page->geometry()));
}

void TstCPage5Form::labelsReadAsTheyShould_data()
{
    addLabelRows();
}

void TstCPage5Form::labelsReadAsTheyShould()
{
    QFETCH(QString, text);
    const QLabel* const found = label(QTest::currentDataTag());
    QVERIFY(found);
    QVERIFY(found->isVisible());
    QCOMPARE(found->text(), text);
    QCOMPARE(found->font().family(), QString("Microsoft YaHei"));
    const QRect needed = found->fontMetrics().boundingRect(found->rect(), Qt::TextWordWrap, text);
    QVERIFY(found->rect().contains(needed));
}

void TstCPage5Form::buttonsReadAsTheyShould_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isCaption");
    QTest::newRow("back") << "Back" << true;
    QTest::newRow("start") << "Start" << true;
    QTest::newRow("browser") << "Choose a file" << false;
    QTest::newRow("eject") << "Eject" << false;
}

// Those without a caption tell what they are for to who rests the mouse on them.
void TstCPage5Form::buttonsReadAsTheyShould()
{
    QFETCH(QString, text);
    QFETCH(bool, isCaption);
    const CImageButton* const found = fixture->button(QTest::currentDataTag());
    QVERIFY(found);
    QVERIFY(found->isVisible());
    QCOMPARE(found->accessibleName(), text);
    QCOMPARE(found->captionRect().width() > 1, isCaption);
    QVERIFY(found->rect().contains(found->captionRect()) || !isCaption);
    QCOMPARE(found->toolTip(), isCaption ? QString() : text);
}

void TstCPage5Form::buttonsShowTheirPictures_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("caption");
    QTest::newRow("back") << "backwhite"
                          << "Back";
    QTest::newRow("start") << "start"
                           << "Start";
    QTest::newRow("browser") << "filedialog"
                             << "";
    QTest::newRow("eject") << "refresh"
                           << "";
}

void TstCPage5Form::buttonsShowTheirPictures()
{
    QFETCH(QString, picture);
    QFETCH(QString, caption);
    QCOMPARE(fixture->missedPicture(QTest::currentDataTag(), picture, caption), QString());
}

void TstCPage5Form::backgroundIsThePages()
{
    CPage5 empty(nullptr);
    const QPixmap background(":/nwu/page5");
    QVERIFY(!background.isNull());
    for (QObject* const child : empty.children()) {
        if (QWidget* const widget = qobject_cast<QWidget*>(child))
            widget->hide();
    }
    const QImage shown = empty.grab().toImage();
    ImageDialog expected;
    expected.SetBackGround(":/nwu/page5");
    QCOMPARE(empty.size(), expected.size());
    QCOMPARE(shown, expected.grab().toImage());
    QVERIFY(waitUntilToolsAreGone());
}

void TstCPage5Form::onlyFormatIsIso()
{
    const auto* const formats = page->findChild<QComboBox*>("formatlist");
    QCOMPARE(formats->count(), 1);
    QCOMPARE(formats->currentText(), QString("ISO Format"));
}

void TstCPage5Form::fieldsStartEmpty()
{
    QVERIFY(qobject_cast<CMyComboBox*>(drives()));
    QCOMPARE(drives()->currentIndex(), -1);
    QCOMPARE(imageField()->text(), QString());
    QVERIFY(!fixture->progress()->isVisible());
}

void TstCPage5Form::everyFieldHasAnAccessibleName()
{
    for (const QWidget* const field : fields())
        QVERIFY2(!field->accessibleName().isEmpty(), qPrintable(field->objectName()));
    QCOMPARE(drives()->accessibleName(), label("select")->text());
    QCOMPARE(imageField()->accessibleName(), label("location")->text());
    QCOMPARE(page->findChild<QComboBox*>("formatlist")->accessibleName(), label("output")->text());
}

void TstCPage5Form::nothingOverlapsOrLeavesThePage()
{
    QList<QWidget*> parts;
    for (QObject* const child : page->children()) {
        QWidget* const widget = qobject_cast<QWidget*>(child);
        if (widget && widget->isVisible())
            parts.append(widget);
    }
    QCOMPARE(parts.size(), 13);
    for (int i = 0; i < parts.size(); ++i) {
        const QWidget* const part = parts.at(i);
        QVERIFY2(page->rect().contains(part->geometry()), qPrintable(part->objectName()));
        for (const QWidget* const other : parts.mid(i + 1))
            QVERIFY2(!part->geometry().intersects(other->geometry()),
                     qPrintable(part->objectName() + " and " + other->objectName()));
    }
}

void TstCPage5Form::languageChangeReachesEveryLabel_data()
{
    addLabelRows();
}

void TstCPage5Form::languageChangeReachesEveryLabel()
{
    QFETCH(QString, text);
    const QLabel* const found = label(QTest::currentDataTag());
    {
        const OtherLanguage language;
        QCOMPARE(found->text(), '<' + text + '>');
    }
    QCOMPARE(found->text(), text);
}

void TstCPage5Form::languageChangeReachesButtonsFormatAndTitle()
{
    const OtherLanguage language;
    QCOMPARE(page->windowTitle(), QString("<Dialog>"));
    QCOMPARE(fixture->button("back")->accessibleName(), QString("<Back>"));
    QCOMPARE(fixture->button("start")->accessibleName(), QString("<Start>"));
    QCOMPARE(fixture->button("eject")->accessibleName(), QString("<Eject>"));
    QCOMPARE(fixture->button("eject")->toolTip(), QString("<Eject>"));
    QCOMPARE(fixture->button("browser")->accessibleName(), QString("<Choose a file>"));
    QCOMPARE(fixture->button("browser")->toolTip(), QString("<Choose a file>"));
    QCOMPARE(drives()->accessibleName(), QString("<Select a CD/DVD drive:>"));
    const auto* const formats = page->findChild<QComboBox*>("formatlist");
    QCOMPARE(formats->count(), 1);
    QCOMPARE(formats->currentText(), QString("<ISO Format>"));
}

void TstCPage5Form::languageChangeKeepsDriveAndPath()
{
    drives()->addItem("Another drive (/dev/disk5)", "/dev/disk5");
    imageField()->setText("/home/disc.iso");
    const OtherLanguage language;
    QCOMPARE(drives()->currentText(), QString("Another drive (/dev/disk5)"));
    QCOMPARE(imageField()->text(), QString("/home/disc.iso"));
}

KORVEX_TEST_MAIN(TstCPage5Form)
#include "tst_cpage5_form.moc"

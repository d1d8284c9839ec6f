// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"
#include "cimagebutton.h"
#include "drivescenario.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

#include <QLabel>
#include <QRadioButton>

// The Burn page's form: what it has and what it says. No test changes it, so one page is enough.
class TstCBurnDialogForm : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void pageHasItsNameTitleAndPicture();
    void widgetsAreThere_data();
    void widgetsAreThere();
    void labelsReadAsTheyShould_data();
    void labelsReadAsTheyShould();
    void labelsShowTheirWholeText();
    void buttonsHaveTheirCaptionsAndPictures_data();
    void buttonsHaveTheirCaptionsAndPictures();
    void styleSheetsAreToTheLetter();
    void listsHaveTheirEntries();
    void emptyFieldsTakeElevenAndAnyNumberOfCharacters();
    void discIsTheTargetAtFirst();
    void everythingLiesInsideThePage();
    void nothingOverlaps();
    void fieldsAreNamedForTheBlind_data();
    void fieldsAreNamedForTheBlind();

private:
    template<class Widget>
    Widget* child(const char* name) const
    {
        return fixture->page->findChild<Widget*>(name);
    }

    std::unique_ptr<DriveScenario> drives;
    std::unique_ptr<BurnPageFixture> fixture;
};

namespace
{

const QStringList labels = {"isopath",   "bootDVD",        "selectDVD",  "bootUSB",
                            "selectUSB", "partitionstyle", "filesystem", "volumelabel"};
const QStringList fields = {"isofile", "rdvd",   "dvdlist",     "rusb",
                            "usblist", "ptlist", "sysfilelist", "volumelab"};
const QStringList buttons = {"browser", "back", "burn"};

} // namespace

void TstCBurnDialogForm::initTestCase()
{
    setApplicationLook();
    drives = std::make_unique<DriveScenario>();
    fixture = std::make_unique<BurnPageFixture>();
    QVERIFY(QTest::qWaitForWindowActive(&fixture->window));
}

void TstCBurnDialogForm::cleanupTestCase()
{
    fixture.reset();
    drives.reset();
}

// The form is laid out for 516 x 328; the picture makes the page larger.
void TstCBurnDialogForm::pageHasItsNameTitleAndPicture()
{
    QCOMPARE(fixture->page->objectName(), QString("CBurnDialog"));
    QCOMPARE(fixture->page->windowTitle(), QString("Dialog"));
    QVERIFY(!fixture->page->isWindow());
    QCOMPARE(fixture->page->size(), QPixmap(":/nwu/page1").size());
    QVERIFY(fixture->page->width() >= 516 && fixture->page->height() >= 328);
    QVERIFY(BurnPageFixture::hasPicture(fixture->page, ":/nwu/page1"));
}

void TstCBurnDialogForm::widgetsAreThere_data()
{
    QTest::addColumn<QString>("kind");
    for (const QString& name : labels)
        QTest::newRow(qPrintable(name)) << "QLabel";
    for (const QString& name : buttons)
        QTest::newRow(qPrintable(name)) << "CImageButton";
    for (const char* const name : {"isofile", "volumelab"})
        QTest::newRow(name) << "QLineEdit";
    for (const char* const name : {"rdvd", "rusb"})
        QTest::newRow(name) << "QRadioButton";
    for (const char* const name : {"dvdlist", "usblist"})
        QTest::newRow(name) << "CMyComboBox";
    for (const char* const name : {"ptlist", "sysfilelist"})
        QTest::newRow(name) << "QComboBox";
}

void TstCBurnDialogForm::widgetsAreThere()
{
    const auto* const widget = child<QWidget>(QTest::currentDataTag());
    QVERIFY(widget);
    QTEST(QString(widget->metaObject()->className()), "kind");
    QVERIFY(widget->isVisible());
    if (buttons.contains(widget->objectName()))
        return;
    QCOMPARE(widget->font().family(), QString("Microsoft YaHei"));
    QVERIFY(widget->font().pixelSize() == 13 || widget->font().pixelSize() == 14);
}

void TstCBurnDialogForm::labelsReadAsTheyShould_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("isopath") << "ISO Image:";
    QTest::newRow("bootDVD") << "Create A Bootable DVD/CD";
    QTest::newRow("selectDVD") << "Select a target disc then click BURN button";
    QTest::newRow("bootUSB") << "Create A Bootable USB";
    QTest::newRow("selectUSB") << "Select a target USB then click BURN button";
    QTest::newRow("partitionstyle") << "Partition Style";
    QTest::newRow("filesystem") << "File System";
    QTest::newRow("volumelabel") << "Volume Label(Max 11 Chars)";
}

void TstCBurnDialogForm::labelsReadAsTheyShould()
{
    QTEST(child<QLabel>(QTest::currentDataTag())->text(), "text");
}

void TstCBurnDialogForm::labelsShowTheirWholeText()
{
    for (const QString& name : labels) {
        const auto* const label = child<QLabel>(qPrintable(name));
        const int needed =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        QVERIFY2(needed <= label->height(), qPrintable(name));
        QVERIFY2(label->wordWrap() || label->sizeHint().width() <= label->width(),
                 qPrintable(name));
    }
}

void TstCBurnDialogForm::buttonsHaveTheirCaptionsAndPictures_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("picture");
    QTest::newRow("browser") << "Browse"
                             << "Broswe";
    QTest::newRow("back") << "Back"
                          << "backwhite";
    QTest::newRow("burn") << "Burn"
                          << "burn";
}

void TstCBurnDialogForm::buttonsHaveTheirCaptionsAndPictures()
{
    QFETCH(QString, caption);
    QFETCH(QString, picture);
    QCOMPARE(fixture->button(QTest::currentDataTag())->accessibleName(), caption);
    QCOMPARE(fixture->missedPicture(QTest::currentDataTag(), picture, caption), QString());
}

void TstCBurnDialogForm::styleSheetsAreToTheLetter()
{
    QCOMPARE(child<QLineEdit>("isofile")->styleSheet(),
             QString("QLineEdit { background-color: white; color: rgb(83, 81, 81);}"));
    const QString marks =
        "QRadioButton::indicator:checked {\n    image: url(:/nwu/rchecked);\n}\n\n"
        "QRadioButton::indicator:unchecked {\n    image: url(:/nwu/runchecked);"
        "\n}";
    QCOMPARE(child<QRadioButton>("rdvd")->styleSheet(), marks);
    QCOMPARE(child<QRadioButton>("rusb")->styleSheet(), marks);
}

void TstCBurnDialogForm::listsHaveTheirEntries()
{
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("ptlist")),
             QStringList({"MBR(for legacy BIOS/CSM boot)", "GPT(required for UEFI boot)"}));
    QCOMPARE(BurnPageFixture::textsOf(fixture->list("sysfilelist")), QStringList({"FAT32", "FAT"}));
    for (const char* const name : {"ptlist", "sysfilelist"})
        QCOMPARE(fixture->list(name)->currentIndex(), 0);
    for (const char* const name : {"dvdlist", "usblist", "ptlist", "sysfilelist"})
        QVERIFY(!fixture->list(name)->isEditable());
}

void TstCBurnDialogForm::emptyFieldsTakeElevenAndAnyNumberOfCharacters()
{
    QCOMPARE(fixture->line("volumelab")->text(), QString());
    QCOMPARE(fixture->line("isofile")->text(), QString());
    QCOMPARE(fixture->line("volumelab")->maxLength(), 11);
    const QString longPath = '/' + QString(1000, 'x');
    fixture->setImage(longPath);
    QCOMPARE(fixture->line("isofile")->text(), longPath);
}

void TstCBurnDialogForm::discIsTheTargetAtFirst()
{
    QVERIFY(child<QRadioButton>("rdvd")->isChecked());
    QVERIFY(!child<QRadioButton>("rusb")->isChecked());
    QVERIFY(fixture->list("dvdlist")->isEnabled());
    for (const char* const name : {"usblist", "ptlist", "sysfilelist", "volumelab"})
        QVERIFY2(!child<QWidget>(name)->isEnabled(), name);
}

void TstCBurnDialogForm::everythingLiesInsideThePage()
{
    const auto children =
        fixture->page->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(children.size(), labels.size() + fields.size() + buttons.size());
    for (const QWidget* const widget : children)
        QVERIFY2(fixture->page->rect().contains(widget->geometry()),
                 qPrintable(widget->objectName()));
}

void TstCBurnDialogForm::nothingOverlaps()
{
    const QStringList names = labels + fields + buttons;
    for (int i = 0; i < names.size(); ++i) {
        for (int j = i + 1; j < names.size(); ++j)
            QVERIFY2(!child<QWidget>(qPrintable(names[i]))
                          ->geometry()
                          .intersects(child<QWidget>(qPrintable(names[j]))->geometry()),
                     qPrintable(names[i] + " and " + names[j]));
    }
}

void TstCBurnDialogForm::fieldsAreNamedForTheBlind_data()
{
    QTest::addColumn<QString>("label");
    QTest::newRow("isofile") << "isopath";
    QTest::newRow("rdvd") << "bootDVD";
    QTest::newRow("dvdlist") << "selectDVD";
    QTest::newRow("rusb") << "bootUSB";
    QTest::newRow("usblist") << "selectUSB";
    QTest::newRow("ptlist") << "partitionstyle";
    QTest::newRow("sysfilelist") << "filesystem";
    QTest::newRow("volumelab") << "volumelabel";
}

void TstCBurnDialogForm::fieldsAreNamedForTheBlind()
{
    QFETCH(QString, label);
    QCOMPARE(child<QWidget>(QTest::currentDataTag())->accessibleName(),
             child<QLabel>(qPrintable(label))->text());
}

KORVEX_TEST_MAIN(TstCBurnDialogForm)
#include "tst_cburndialog_form.moc"

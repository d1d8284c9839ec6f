// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "modaldriver.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"
#include "widgetrecorder.h"

#include <QFileDialog>
#include <QRadioButton>

// Create ISO with everything staged: what is asked and what the authoring tool is told to do.
class TstCPage3Create : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void nothingAddedIsTold();
    void everythingRemovedIsNothingAdded();
    void saveDialogOffersImages();
    void cancelledSaveDialogDoesNothing();
    void argumentsOfEachType_data();
    void argumentsOfEachType();
    void hostileOutputPathIsOneArgument_data();
    void hostileOutputPathIsOneArgument();
    void noTypeIsToldAndTheProgressDialogStays();
    void noTextOfTheCopyWaitWhenAllIsCopied();

private:
    void chooseType(const QString& name) const;

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
};

void TstCPage3Create::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Create::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
}

void TstCPage3Create::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3Create::chooseType(const QString& name) const
{
    for (QRadioButton* const type : fixture->page->findChildren<QRadioButton*>()) {
        type->setAutoExclusive(false);
        type->setChecked(type->objectName() == name);
    }
}

void TstCPage3Create::nothingAddedIsTold()
{
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("create");
    QCOMPARE(driver.texts(), QStringList("Please add files or folders first!"));
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->tool.calls().isEmpty());
}

void TstCPage3Create::everythingRemovedIsNothingAdded()
{
    fixture->addStaged("a.txt");
    fixture->select(fixture->row({"a.txt"}));
    fixture->removeSelected();
    ModalDriver driver;
    driver.press("CommDialog", "btnok");
    fixture->press("create");
    QCOMPARE(driver.texts(), QStringList("Please add files or folders first!"));
}

void TstCPage3Create::saveDialogOffersImages()
{
    fixture->addStaged("a.txt");
    ModalDriver driver;
    QStringList filters;
    driver.run("QFileDialog", [&filters](QWidget* widget) {
        auto* const dialog = qobject_cast<QFileDialog*>(widget);
        filters = dialog->nameFilters();
        dialog->reject();
    });
    fixture->press("create");
    QCOMPARE(filters, QStringList("ISO Files(*.ISO)"));
}

void TstCPage3Create::cancelledSaveDialogDoesNothing()
{
    fixture->addStaged("a.txt");
    const WidgetRecorder recorder(fixture->progress());
    ModalDriver driver;
    driver.key("QFileDialog", Qt::Key_Escape);
    fixture->press("create");
    QVERIFY(fixture->isUsable());
    QVERIFY(PageFixture::waitUntilToolsGone());
    QVERIFY(fixture->tool.calls().isEmpty());
    QVERIFY(recorder.texts().isEmpty());
}

void TstCPage3Create::argumentsOfEachType_data()
{
    QTest::addColumn<QString>("flag");
    QTest::newRow("jolet") << "-joliet";
    QTest::newRow("iso9600") << "-l";
    QTest::newRow("udf") << "-udf";
    QTest::newRow("as the page opens") << "-joliet";
}

void TstCPage3Create::argumentsOfEachType()
{
    QFETCH(QString, flag);
    fixture->addStaged("a.txt");
    if (auto* const type = fixture->page->findChild<QRadioButton*>(QTest::currentDataTag()))
        type->click();
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    const QStringList expected{flag, "-R", "-r", "-o", image, CreatePageFixture::stagingFolder()};
    QCOMPARE(fixture->tool.calls(), QList<QStringList>{expected});
}

void TstCPage3Create::hostileOutputPathIsOneArgument_data()
{
    QTest::addColumn<QString>("name");
    for (const char* const name :
         {"two words.iso", "a=b.iso", "-o.iso", "no suffix", "$HOME `ls`.iso", "quote ' .iso",
          "back\\slash.iso", "Äpfel 日本 😀.iso", "percent %d.iso"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TstCPage3Create::hostileOutputPathIsOneArgument()
{
    QFETCH(QString, name);
    fixture->addStaged("a.txt");
    fixture->startCreating(fixture->path(name));
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 1);
    QCOMPARE(fixture->tool.calls().first().size(), 6);
    QCOMPARE(fixture->tool.calls().first().at(4), fixture->path(name));
}

void TstCPage3Create::noTypeIsToldAndTheProgressDialogStays()
{
    fixture->addStaged("a.txt");
    chooseType({});
    {
        ModalDriver driver;
        driver.typePath(image);
        driver.press("CommDialog", "btnok");
        fixture->page->OnCreate();
        QCOMPARE(driver.texts().last(), QString("Please select one type"));
    }
    QVERIFY(fixture->progress()->isVisible());
    QCOMPARE(fixture->progressText(), QString("Creating ISO file..."));
    QCOMPARE(fixture->progressValue(), 0);
    QVERIFY(fixture->tool.calls().isEmpty());
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    chooseType("udf");
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 1);
}

void TstCPage3Create::noTextOfTheCopyWaitWhenAllIsCopied()
{
    fixture->addStaged("a.txt");
    const WidgetRecorder recorder(fixture->progress());
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(recorder.texts().contains("Creating ISO file..."));
    QVERIFY(!recorder.texts().contains("Copy files and folders..."));
}

KORVEX_TEST_MAIN(TstCPage3Create)
#include "tst_cpage3_create.moc"

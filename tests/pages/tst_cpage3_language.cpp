// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cimagebutton.h"
#include "markedtranslator.h"
#include "stagingpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testmain.h"

#include <QAction>
#include <QMenu>
#include <QRadioButton>

// A change of language while the Create page shows.
class TstCPage3Language : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void languageChangeReachesEveryLabel_data();
    void languageChangeReachesEveryLabel();
    void languageChangeReachesButtonsMenuHeadersAndTitle();
    void languageChangeResetsTheTotalThoughThereAreFiles();
    void languageChangeKeepsRowsAndChosenType();
    void rowsAddedAfterALanguageChangeSpeakIt();

private:
    QStringList headers() const;

    std::unique_ptr<StagingPageFixture> fixture;
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

// Labels and radio buttons have a text each, but no class in common that tells it.
QString textOf(const CPage3* page, const QString& name)
{
    const auto* const widget = page->findChild<QWidget*>(name);
    return widget ? widget->property("text").toString() : QString();
}

} // namespace

void TstCPage3Language::initTestCase()
{
    setApplicationLook();
}

void TstCPage3Language::init()
{
    TestCase::init();
    fixture = std::make_unique<StagingPageFixture>();
}

void TstCPage3Language::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

QStringList TstCPage3Language::headers() const
{
    QStringList texts;
    for (int column = 0; column < fixture->list()->columnCount(); ++column)
        texts.append(fixture->list()->headerItem()->text(column));
    return texts;
}

void TstCPage3Language::languageChangeReachesEveryLabel_data()
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

void TstCPage3Language::languageChangeReachesEveryLabel()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    {
        const OtherLanguage language;
        QCOMPARE(textOf(fixture->page, name), '<' + text + '>');
    }
    QCOMPARE(textOf(fixture->page, name), text);
}

void TstCPage3Language::languageChangeReachesButtonsMenuHeadersAndTitle()
{
    const OtherLanguage language;
    QCOMPARE(fixture->page->windowTitle(), QString("<Dialog>"));
    QCOMPARE(headers(), QStringList({"<File Name>", "<File Path>", "< Size>", "<Type>", "<Time>"}));
    QCOMPARE(fixture->button("addfile")->accessibleName(), QString("<Add Files...>"));
    QCOMPARE(fixture->button("adddir")->accessibleName(), QString("<Add Folder...>"));
    QCOMPARE(fixture->button("remove")->accessibleName(), QString("<Remove>"));
    QCOMPARE(fixture->button("create")->accessibleName(), QString("<Create ISO>"));
    QCOMPARE(fixture->button("back")->accessibleName(), QString("<Back>"));
    const QList<QAction*> actions = fixture->page->findChild<QMenu*>()->actions();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions.at(0)->text(), QString("<Add Files(&F)>"));
    QCOMPARE(actions.at(1)->text(), QString("<Add Dirs(&D)>"));
    QCOMPARE(actions.at(2)->text(), QString("<Remove(&R)>"));
}

// The gauge stays; the text comes back with the next addition or removal.
void TstCPage3Language::languageChangeResetsTheTotalThoughThereAreFiles()
{
    fixture->addFiles({fixture->makeFile("a.txt", "12345")});
    QCOMPARE(fixture->totalText(), QString("Total Size: 5 B"));
    const OtherLanguage language;
    QCOMPARE(fixture->totalText(), QString("<Total Size : 0 KB>"));
    fixture->addFiles({fixture->makeFile("b.txt", "12345")});
    QCOMPARE(fixture->totalText(), QString("<Total Size: >10 B"));
}

void TstCPage3Language::languageChangeKeepsRowsAndChosenType()
{
    auto* const udf = fixture->page->findChild<QRadioButton*>("udf");
    udf->click();
    fixture->makeFile("folder/a.txt");
    fixture->addFolders({fixture->path("folder")});
    fixture->setSelected(fixture->row({"folder"}));
    const OtherLanguage language;
    QVERIFY(udf->isChecked());
    QCOMPARE(fixture->outline(), QStringList({"folder", "folder > a.txt"}));
    QVERIFY(fixture->row({"folder"})->isSelected());
    QCOMPARE(fixture->row({"folder"})->text(3), QString("Folder"));
}

void TstCPage3Language::rowsAddedAfterALanguageChangeSpeakIt()
{
    const OtherLanguage language;
    fixture->makeFile("folder/a.txt");
    fixture->addFolders({fixture->path("folder")});
    QCOMPARE(fixture->row({"folder"})->text(3), QString("<Folder>"));
}

KORVEX_TEST_MAIN(TstCPage3Language)
#include "tst_cpage3_language.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editsavefixture.h"
#include "imagemaker.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

namespace
{

const QString success = "Save ISO file successfully!";

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

// Names that come through, one file of each.
const char* const names[] = {"日本語 の 文書.txt",
                             "Документ.txt",
                             "Äpfel & Öl.txt",
                             "été",
                             " leading blank",
                             "trailing blank ",

                             "q\"uo'te`s",
                             "-o",
                             "-dash.txt",
                             "=equals",
                             "a=b.txt",
                             "@list",
                             "--",
                             "$HOME",
                             "%d %s.txt",
                             "#hash~",
                             "[1].txt"};

} // namespace

// Names of every script and with everything that a command line could misread: loaded, given,
// added and saved. Run again under other locales.
class TstEditNames : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void loadedNamesAreKept();
    void renamedToEveryName();
    void addedWithEveryName();
    void deletedByEveryName();
    void namesThatTheAuthoringToolChanges_data();
    void namesThatTheAuthoringToolChanges();
    void nameBeyondTheBasicPlaneKeepsTheAuthoringToolFromWriting();
    void dotAtTheEndIsLostByTheArchiverInAPlainImage();

private:
    // Loads an image of the tree and waits until it is unpacked.
    void load(const QString& tree);
    // Below a folder of the fixture, a file of each name that tells it, half of them in a folder
    // of such a name.
    QString writeTree(const QString& folder) const;
    // Saves; the content of the new image.
    QMap<QString, QByteArray> saved();
    void checkSaved(const QMap<QString, QByteArray>& expected);

    std::unique_ptr<EditSaveFixture> fixture;
};

void TstEditNames::initTestCase()
{
    setApplicationLook();
}

void TstEditNames::init()
{
    TestCase::init();
    fixture = std::make_unique<EditSaveFixture>();
}

void TstEditNames::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstEditNames::load(const QString& tree)
{
    const QString image = fixture->path(utf8("Abbild 日本 é.iso"));
    makeImage(tree, image);
    QVERIFY(fixture->browse(image));
    QVERIFY(fixture->waitUntilWorked());
}

QString TstEditNames::writeTree(const QString& folder) const
{
    const QString tree = fixture->path(folder);
    for (const char* const name : names) {
        writeFile(tree + '/' + utf8(name), name);
        writeFile(tree + "/in/" + utf8(name) + " d/" + utf8(name), name);
    }
    return tree;
}

QMap<QString, QByteArray> TstEditNames::saved()
{
    const QString image = fixture->path(utf8("-neu é 日本 '=.iso"));
    if (fixture->save(image) != success)
        return {};
    return EditSaveFixture::contentOf(image);
}

void TstEditNames::checkSaved(const QMap<QString, QByteArray>& expected)
{
    const QMap<QString, QByteArray> found = saved();
    QCOMPARE(found.keys(), expected.keys());
    QVERIFY(found == expected);
}

void TstEditNames::loadedNamesAreKept()
{
    const QString tree = writeTree("tree");
    load(tree);
    QCOMPARE(fixture->allPaths(), QStringList(hashesBelow(tree).keys()));
    checkSaved(hashesBelow(tree));
}

void TstEditNames::renamedToEveryName()
{
    const QString tree = fixture->path("tree");
    int number = 0;
    for (const char* const name : names) {
        writeFile(tree + QString("/file %1").arg(++number), name);
        writeFile(tree + QString("/folder %1/inside").arg(number), name);
    }
    load(tree);
    for (int i = 1; i <= number; ++i) {
        const QString name = utf8(names[i - 1]);
        fixture->rename(QString("file %1").arg(i), name);
        fixture->rename(QString("folder %1").arg(i), name + " d");
        // The dialog takes no blanks around a name.
        QVERIFY(QDir(tree).rename(QString("file %1").arg(i), name.trimmed()));
        QVERIFY(QDir(tree).rename(QString("folder %1").arg(i), (name + " d").trimmed()));
    }
    checkSaved(hashesBelow(tree));
}

void TstEditNames::addedWithEveryName()
{
    const QString tree = fixture->path("tree");
    writeFile(tree + "/readme.txt", "read me");
    load(tree);
    const QString more = writeTree("more");
    for (const QString& name : entriesOf(more)) {
        // What stands in quotes is a list of files in the file dialog.
        if (name.contains('"'))
            QVERIFY(QFile::remove(more + '/' + name));
        else
            fixture->add({more + '/' + name});
    }
    writeFile(more + "/readme.txt", "read me");
    QCOMPARE(fixture->allPaths(), QStringList(hashesBelow(more).keys()));
    checkSaved(hashesBelow(more));
}

void TstEditNames::deletedByEveryName()
{
    const QString tree = writeTree("tree");
    load(tree);
    for (const char* const name : names)
        fixture->remove({utf8(name)});
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList("in"));
    fixture->openFolder("in");
    for (const char* const name : names) {
        fixture->remove({utf8(name) + " d"});
        QVERIFY(!fixture->shownNames().contains(utf8(name) + " d"));
    }
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(hashesBelow(EditPageFixture::workFolder()).keys(), QStringList("in"));
}

// They cannot stand in the structures that the tool writes beside the one for the disc's format.
void TstEditNames::namesThatTheAuthoringToolChanges_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("changed");
    QTest::newRow("backslash") << "back\\slash"
                               << "back_slash";
    QTest::newRow("colon") << "co:lon"
                           << "co_lon";
    QTest::newRow("question mark") << "quest?"
                                   << "quest_";
    QTest::newRow("star") << "star*"
                          << "star_";
    QTest::newRow("semicolon") << "semi;colon"
                               << "semi_colon";
    QTest::newRow("tab") << "tab\tx"
                         << "tab_x";
}

void TstEditNames::namesThatTheAuthoringToolChanges()
{
    QFETCH(QString, name);
    QFETCH(QString, changed);
    const QString tree = fixture->path("tree");
    writeFile(tree + "/readme.txt", "read me");
    load(tree);
    fixture->rename("readme.txt", name);
    QCOMPARE(fixture->shownNames(), QStringList(name));
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList(name));
    QCOMPARE(saved().keys(), QStringList(changed));
}

// It cannot compare such a name with that of another entry of the folder.
void TstEditNames::nameBeyondTheBasicPlaneKeepsTheAuthoringToolFromWriting()
{
    const QString tree = fixture->path("tree");
    writeFile(tree + "/readme.txt", "read me");
    writeFile(tree + "/other.txt", "other");
    load(tree);
    fixture->rename("readme.txt", utf8("😀.txt"));
    QVERIFY(fixture->waitUntilWorked());
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList({"other.txt", utf8("😀.txt")}));
    const QString image = fixture->path("new.iso");
    QCOMPARE(fixture->save(image), success);
    QVERIFY(!QFile::exists(image));
    // All is well again when it has another name.
    fixture->rename(utf8("😀.txt"), "smile.txt");
    QCOMPARE(saved().keys(), QStringList({"other.txt", "smile.txt"}));
}

// On a disc without the newer format's structures, as other programs may have written it.
void TstEditNames::dotAtTheEndIsLostByTheArchiverInAPlainImage()
{
    const QString tree = fixture->path("tree");
    writeFile(tree + "/trailing.", "dot");
    load(tree);
    QCOMPARE(fixture->shownNames(), QStringList("trailing"));
    QCOMPARE(entriesOf(EditPageFixture::workFolder()), QStringList("trailing"));
    fixture->rename("trailing", "kept.");
    QCOMPARE(saved().keys(), QStringList("kept."));
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstEditNames)
#include "tst_editnames.moc"

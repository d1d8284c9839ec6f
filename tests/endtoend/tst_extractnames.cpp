// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QTableWidget>
#include <QTemporaryDir>

namespace
{

using Hashes = QMap<QString, QByteArray>;

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

// The part of a tree that lies at or below one of these top-level names.
Hashes below(const Hashes& all, const QStringList& names)
{
    Hashes part;
    for (auto entry = all.begin(); entry != all.end(); ++entry) {
        if (names.contains(entry.key().section('/', 0, 0)))
            part.insert(entry.key(), entry.value());
    }
    return part;
}

} // namespace

// Names of every script and with everything that a command line could misread, listed and extracted
// byte for byte. Run again under other locales.
class TstExtractNames : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void listingShowsEveryName();
    void everythingAtOnce();
    void oneEntry_data();
    void oneEntry();
    void fromASubfolderEntriesLieFlat();
    void fromASubfolderAnOlderFolderOfTheFirstNameIsDeleted();
    void rootNameIsTakenInSubfoldersTooBecauseTheArchiverSearchesThem();
    void folderThatIsCalledLikeItsParentIsLost();

private:
    QString newOutput();

    QTemporaryDir folder;
    QString image;
    QString tree;
    Hashes originals;
    int outputs = 0;
};

void TstExtractNames::initTestCase()
{
    tree = folder.filePath("tree");
    const QStringList files{utf8("日本語/文書 1.txt"),
                            utf8("日本語/深い/ファイル.txt"),
                            utf8("Документы/файл.txt"),
                            utf8("Äpfel & Öl/été.txt"),
                            utf8("😀/💿.txt"),
                            " leading blank.txt",
                            "quote \" and ' .txt",
                            "@list",
                            "-o x/inside.txt",
                            "-dash.txt",
                            "--",
                            "x",
                            "$HOME `ls`.txt",
                            "sub/@list",
                            "sub/-dash.txt",
                            "sub/sub/deep.txt",
                            "sub/only here.txt",
                            "back\\slash.txt",
                            "empty file.txt",
                            "-y",
                            "percent %d %s.txt"};
    for (const QString& name : files)
        writeFile(tree + '/' + name, name == "empty file.txt" ? QByteArray() : name.toUtf8());
    QVERIFY(QDir().mkpath(tree + "/empty folder"));
    image = folder.filePath(utf8("Abbild 日本 é.iso"));
    makeImage(tree, image);
    originals = hashesBelow(tree);
}

QString TstExtractNames::newOutput()
{
    const QString output = folder.filePath(utf8("Ausgabe é %1").arg(++outputs));
    if (!QDir().mkpath(output))
        qFatal("no output folder");
    return output;
}

void TstExtractNames::listingShowsEveryName()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QCOMPARE(session.allPaths(), QStringList(originals.keys()));
}

void TstExtractNames::everythingAtOnce()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QStringList names;
    for (int row = 0; row < session.table()->rowCount(); ++row)
        names.append(session.table()->item(row, 0)->text());
    QVERIFY(session.tick(names));
    const QString output = newOutput();
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output), originals);
}

void TstExtractNames::oneEntry_data()
{
    QTest::addColumn<QString>("name");
    for (const char* const name :
         {"日本語", "Документы", "Äpfel & Öl", "😀", " leading blank.txt", "quote \" and ' .txt",
          "@list", "-o x", "-dash.txt", "--", "-y", "x", "$HOME `ls`.txt", "empty file.txt",
          "empty folder", "percent %d %s.txt"})
        QTest::newRow(name) << utf8(name);
}

void TstExtractNames::oneEntry()
{
    QFETCH(QString, name);
    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.tick({name}));
    const QString output = newOutput();
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output), below(originals, {name}));
}

void TstExtractNames::fromASubfolderEntriesLieFlat()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.enter("sub"));
    QVERIFY(session.tick({"@list", "-dash.txt", "only here.txt"}));
    const QString output = newOutput();
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    const Hashes sub = hashesBelow(tree + "/sub");
    QCOMPARE(hashesBelow(output), below(sub, {"@list", "-dash.txt", "only here.txt"}));
}

void TstExtractNames::fromASubfolderAnOlderFolderOfTheFirstNameIsDeleted()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.enter(utf8("日本語")));
    QVERIFY(session.tick({utf8("文書 1.txt")}));
    const QString output = newOutput();
    writeFile(output + utf8("/日本語/mine.txt"), "the user's own");
    writeFile(output + "/other.txt", "stays");
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output).keys(), QStringList({"other.txt", utf8("文書 1.txt")}));
}

void TstExtractNames::rootNameIsTakenInSubfoldersTooBecauseTheArchiverSearchesThem()
{
    const QTemporaryDir own;
    for (const char* const name : {"a.txt", "sub/a.txt", "sub/b.txt"})
        writeFile(own.filePath("tree/") + name, name);
    makeImage(own.filePath("tree"), own.filePath("i.iso"));
    ExtractSession session;
    QVERIFY(session.load(own.filePath("i.iso")));
    QVERIFY(session.tick({"a.txt"}));
    const QString output = newOutput();
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output).keys(), QStringList({"a.txt", "sub", "sub/a.txt"}));
}

void TstExtractNames::folderThatIsCalledLikeItsParentIsLost()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.enter("sub"));
    QVERIFY(session.tick({"sub"}));
    const QString output = newOutput();
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QVERIFY(hashesBelow(output).isEmpty());
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstExtractNames)
#include "tst_extractnames.moc"

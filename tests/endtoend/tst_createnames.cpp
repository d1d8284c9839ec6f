// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "createpagefixture.h"
#include "imagemaker.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QCryptographicHash>
#include <QRadioButton>

namespace
{

using Hashes = QMap<QString, QByteArray>;

constexpr int bulkFiles = 1000;
constexpr int bulkFolders = 50;
constexpr int bulkNameLength = 60;

QString utf8(const char* text)
{
    return QString::fromUtf8(text);
}

// A name that does not come back from every type as it went in.
struct ChangedName
{
    QString name;
    // Joliet holds 64 UTF-16 units of the 16-bit characters and none of its reserved ones.
    QString joliet;
    // The Rock Ridge names of the other two types hold everything. The archiver, however, reads no
    // more than the first 146 bytes of one.
    QString rockRidge;
};

QList<ChangedName> changedNames()
{
    const QString cjk = utf8("日");
    const QString other = utf8("火");
    return {
        {"trailing backslash\\", "trailing backslash_", "trailing backslash\\"},
        {"back\\slash.txt", "back_slash.txt", "back\\slash.txt"},
        {"a:b;c*d?.txt", "a_b_c_d_.txt", "a:b;c*d?.txt"},
        {"tab\tline\nbell\a.txt", "tab_line_bell_.txt", "tab\tline\nbell\a.txt"},
        // Joliet's characters end where the first one of more than 16 bits comes.
        {utf8("disc 💿.txt"), "disc ", utf8("disc 💿.txt")},
        // The archiver drops a dot at the end.
        {"dot.", "dot", "dot"},
        {QString(64, 'a') + ".txt", QString(64, 'a'), QString(64, 'a') + ".txt"},
        {QString(146, 'b'), QString(64, 'b'), QString(146, 'b')},
        {QString(147, 'c'), QString(64, 'c'), QString(146, 'c')},
        {QString(255, 'd'), QString(64, 'd'), QString(146, 'd')},
        {"aa" + cjk.repeated(84), "aa" + cjk.repeated(62), "aa" + cjk.repeated(48)},
        {"aa" + other.repeated(58), "aa" + other.repeated(58), "aa" + other.repeated(48)},
    };
}

// Names that every type keeps.
QStringList keptNames()
{
    return {" leading blank",
            "trailing blank ",
            "two  blanks",
            "-leading dash",
            "--",
            "-o x",
            "=",
            "a=b=c",
            "@list",
            "quote \" and '",
            "pipe | and <>",
            "$HOME `ls` #~",
            "percent %d %20",
            "UPPER lower",
            "upper LOWER",
            utf8("Äpfel été"),
            utf8("файл"),
            utf8("日本語 文書"),
            QString(64, 'e'),
            utf8("月").repeated(48)};
}

// Of exactly 60 characters, with something of everything in it.
QString bulkName(int number)
{
    const QString name = utf8("-文件 été = %1 100%").arg(number);
    return name + QString(bulkNameLength - name.size(), 'x');
}

QByteArray hashOf(const QByteArray& content)
{
    return QCryptographicHash::hash(content, QCryptographicHash::Sha256);
}

// Seven folders below one another are the most that ISO 9660 holds.
const QString lastLevel = "tree/2/3/4/5/6/7";

} // namespace

// More than a thousand names through the page into an image of each type and out of it again. Run
// again under other locales.
class TstCreateNames : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void everyNameComesBack_data();
    void everyNameComesBack();
    void namesThatAreOneInJolietGiveNoImage();

private:
    void addEveryName();
    Hashes expected(bool isJoliet) const;
    // Replaces what Rock Ridge has to move out of folders that lie too deep.
    static void moveDeepFolders(Hashes& entries);

    std::unique_ptr<CreatePageFixture> fixture;
    Hashes originals;
};

void TstCreateNames::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
}

void TstCreateNames::addEveryName()
{
    const QString tree = fixture->path("tree");
    for (int i = 0; i < bulkFiles; ++i) {
        const QString folder = QString("%1/2/folder %2/").arg(tree).arg(i % bulkFolders);
        writeFile(folder + bulkName(i), i % 10 ? QByteArray::number(i) : QByteArray());
    }
    QVERIFY(QDir().mkpath(tree + "/empty folder"));
    QVERIFY(QDir().mkpath(tree + "/empty\\"));
    for (const QString& name : keptNames())
        writeFile(tree + "/kept/" + name, name.toUtf8());
    for (const ChangedName& name : changedNames())
        writeFile(tree + "/changed/" + name.name, name.name.toUtf8());
    writeFile(fixture->path(lastLevel + "/file of level 8"), "8");
    writeFile(fixture->path(lastLevel + "/8/9/file of level 10"), "10");
    const QStringList single{"- = single 1.txt", utf8("= einzeln é 日本.txt"), "empty.txt"};
    for (const QString& name : single)
        writeFile(fixture->path(name), name == "empty.txt" ? QByteArray() : name.toUtf8());

    originals = hashesBelow(fixture->folder.path());
    QStringList paths;
    for (const QString& name : single)
        paths.append(fixture->path(name));
    fixture->addFiles(paths);
    fixture->addFolder(tree);
}

void TstCreateNames::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

Hashes TstCreateNames::expected(bool isJoliet) const
{
    QMap<QString, QString> changes;
    for (const ChangedName& name : changedNames())
        changes.insert(name.name, isJoliet ? name.joliet : name.rockRidge);
    if (isJoliet)
        changes.insert("empty\\", "empty_");
    Hashes result;
    for (auto entry = originals.begin(); entry != originals.end(); ++entry) {
        QStringList names = entry.key().split('/');
        names.last() = changes.value(names.last(), names.last());
        result.insert(names.join('/'), entry.value());
    }
    if (!isJoliet)
        moveDeepFolders(result);
    return result;
}

void TstCreateNames::moveDeepFolders(Hashes& entries)
{
    const QString from = lastLevel + "/8";
    for (const char* const below : {"/9", "/9/file of level 10"})
        entries.insert(QString("rr_moved/8") + below, entries.take(from + below));
    entries.insert("rr_moved/8", {});
    entries.insert("rr_moved", {});
    // What is left in its place, which the archiver takes for an empty file.
    entries.insert(from, hashOf({}));
}

void TstCreateNames::everyNameComesBack_data()
{
    QTest::addColumn<bool>("isJoliet");
    QTest::newRow("jolet") << true;
    QTest::newRow("iso9600") << false;
    QTest::newRow("udf") << false;
}

void TstCreateNames::everyNameComesBack()
{
    QFETCH(bool, isJoliet);
    addEveryName();
    fixture->page->findChild<QRadioButton*>(QTest::currentDataTag())->click();
    const QTemporaryDir output;
    const QString image = output.filePath(utf8("-Abbild = 日本 é.iso"));
    // It comes while the files are still being copied.
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    extractImage(image, output.filePath("out"));
    const Hashes found = hashesBelow(output.filePath("out"));
    const Hashes wanted = expected(isJoliet);
    QVERIFY(wanted.size() > bulkFiles);
    for (auto entry = wanted.begin(); entry != wanted.end(); ++entry) {
        QVERIFY2(found.contains(entry.key()), qPrintable("missing: " + entry.key()));
        QVERIFY2(found.value(entry.key()) == entry.value(), qPrintable("differs: " + entry.key()));
    }
    for (const QString& path : found.keys())
        QVERIFY2(wanted.contains(path), qPrintable("too many: " + path));
}

// The tool refuses, and the page says what it says after every run.
void TstCreateNames::namesThatAreOneInJolietGiveNoImage()
{
    for (const char* const end : {"1.txt", "2.txt"})
        fixture->addStaged(QString(64, 'x') + end);
    for (const char* const type : {"jolet", "iso9600", "udf"}) {
        fixture->page->findChild<QRadioButton*>(type)->click();
        const QString image = fixture->path(QString("%1.iso").arg(type));
        fixture->startCreating(image);
        QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
        QCOMPARE(QFileInfo::exists(image), qstrcmp(type, "jolet") != 0);
    }
}

KORVEX_TEST_MAIN_AFTER(prepareProcess(), TstCreateNames)
#include "tst_createnames.moc"

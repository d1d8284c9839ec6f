// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"

#include <QRandomGenerator>
#include <QTableWidget>
#include <QTemporaryDir>

namespace
{

constexpr int folderCount = 500;
constexpr int filesPerFolder = 100;
constexpr int loads = 3;

// A name of 5 to 120 characters with blanks, accents and CJK, unlike any other of its number.
QString mixedName(int number, QRandomGenerator& random)
{
    static const QString letters = QString::fromUtf8("abc déçà ñöß XYZ 日本語文字 的是 кот ");
    QString name = QString("%1").arg(number, 3, 10, QChar('0'));
    const int length = random.bounded(5, 121);
    while (name.size() < length)
        name += letters.at(random.bounded(letters.size()));
    // No blank at the end, and no more bytes than a file system takes.
    while (name.toUtf8().size() > 240)
        name.chop(1);
    return name.left(name.size() - 1) + 'e';
}

void makeTree(const QString& folder)
{
    QRandomGenerator random(20261121);
    for (int i = 0; i < folderCount; ++i) {
        const QString below = folder + '/' + mixedName(i, random);
        for (int k = 0; k < filesPerFolder; ++k)
            writeFile(below + '/' + mixedName(k, random), QByteArray());
    }
}

} // namespace

// The archiver's pipe delivers blocks that end in the middle of lines and of characters.
class TstListWholeLines : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void everyEntryOnceInEveryLoad();

private:
    QTemporaryDir folder;
    QString image;
    QStringList expected;
};

void TstListWholeLines::initTestCase()
{
    makeTree(folder.filePath("tree"));
    image = folder.filePath("large.iso");
    makeImage(folder.filePath("tree"), image);
    expected = technicalListing(image);
    QCOMPARE(expected.size(), folderCount * (filesPerFolder + 1));
}

void TstListWholeLines::everyEntryOnceInEveryLoad()
{
    ExtractSession session;
    for (int run = 0; run < loads; ++run) {
        QVERIFY(session.load(image));
        const QStringList paths = session.allPaths();
        QCOMPARE(paths.size(), expected.size());
        QVERIFY(paths == expected);
        QCOMPARE(session.table()->rowCount(), folderCount);
    }
}

KORVEX_TEST_MAIN(TstListWholeLines)
#include "tst_listwholelines.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "processcounts.h"
#include "testcase.h"
#include "testmain.h"

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTemporaryDir>

namespace
{

constexpr int fileCount = 12;
constexpr qint64 fileBytes = 5'000'000;
// Long enough on its way to be stopped in.
constexpr qint64 lastFileBytes = 300'000'000;
constexpr int stops = 51; // a third of them at each moment
constexpr int stopLimitMs = 2000;

} // namespace

// Stop at any moment, over and over in one process.
class TstExtractStop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void fiftyStopsInARow();
    void extractionAfterAStopIsWhole();

private:
    bool waitForMoment(int moment) const;

    QTemporaryDir folder;
    QString image;
    QString output;
    QStringList names;
};

void TstExtractStop::initTestCase()
{
    for (quint32 i = 0; i < fileCount; ++i) {
        names.append(QString("part %1.bin").arg(i, 2, 10, QChar('0')));
        writeRandomFile(folder.filePath("tree/" + names.last()),
                        i + 1 == fileCount ? lastFileBytes : fileBytes, i);
    }
    image = folder.filePath("image.iso");
    makeImage(folder.filePath("tree"), image);
    output = folder.filePath("out");
    QVERIFY(QDir().mkpath(output));
}

// At the start at once, in the middle when some files are there, at the end when the last is.
bool TstExtractStop::waitForMoment(int moment) const
{
    const QString awaited = output + '/' + (moment == 1 ? names.at(4) : names.last());
    return moment == 0 || QTest::qWaitFor([&awaited] { return QFile::exists(awaited); }, 5000);
}

void TstExtractStop::fiftyStopsInARow()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        QVERIFY(session.tick(names));
        session.beginExtraction(output);
        QVERIFY(waitForMoment(run % 3));
        QVERIFY2(!session.isUsable(), "the extraction ended before it could be stopped");
        session.pressStop();
        QVERIFY(session.isUsable());
        QVERIFY(QTest::qWaitFor([] { return childProcesses().isEmpty(); }, stopLimitMs));
        QVERIFY(!QApplication::activeModalWidget());
        QTest::qWait(50);
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        QVERIFY(QDir(output).removeRecursively() && QDir().mkpath(output));
        QTRY_COMPARE(runnerThreadCount(), 0);
        if (run == 2)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstExtractStop::extractionAfterAStopIsWhole()
{
    ExtractSession session;
    QVERIFY(session.load(image));
    QVERIFY(session.tick(names));
    session.beginExtraction(output);
    session.pressStop();
    // At once, while the stopped archiver may still be on its way out.
    session.beginExtraction(output);
    QCOMPARE(session.waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output), hashesBelow(folder.filePath("tree")));
}

KORVEX_TEST_MAIN(TstExtractStop)
#include "tst_extractstop.moc"

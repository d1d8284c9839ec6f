// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"
#include "imagemaker.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "testcase.h"
#include "testmain.h"
#include "toolstopper.h"

#include <QProgressBar>
#include <QTemporaryDir>

namespace
{

constexpr int fileCount = 12;
constexpr qint64 fileBytes = 100'000;
constexpr int rounds = 4; // of stops at each moment
constexpr int limitMs = 60'000;
// The archiver is held as soon as this file is there; -1 before it does anything.
const QList<int> moments{-1, fileCount / 2, fileCount - 1};

} // namespace

// Stop at any moment, over and over in one process. The archiver is held where it is to be stopped.
class TstExtractStop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void stopEndsTheArchiver_data();
    void stopEndsTheArchiver();
    void manyStopsLeaveNothingBehind();
    void extractionAfterAStopIsWhole();

private:
    // Starts the extraction, holds the archiver at that moment and presses Stop.
    void stopAt(int moment);

    QTemporaryDir folder;
    QString image;
    QString output;
    QStringList names;
    std::unique_ptr<ExtractSession> session;
    // A stop is noticed at once.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
};

void TstExtractStop::initTestCase()
{
    for (quint32 i = 0; i < fileCount; ++i) {
        names.append(QString("part %1.bin").arg(i, 2, 10, QChar('0')));
        writeRandomFile(folder.filePath("tree/" + names.last()), fileBytes, i);
    }
    image = folder.filePath("image.iso");
    makeImage(folder.filePath("tree"), image);
    output = folder.filePath("out");
}

void TstExtractStop::init()
{
    TestCase::init();
    QVERIFY(QDir().mkpath(output));
    session = std::make_unique<ExtractSession>();
    QVERIFY(session->load(image));
    QVERIFY(session->tick(names));
}

void TstExtractStop::cleanup()
{
    session.reset();
    QVERIFY(QDir(output).removeRecursively());
    TestCase::cleanup();
}

void TstExtractStop::stopAt(int moment)
{
    ToolStopper archiver("x");
    session->beginExtraction(output);
    QVERIFY(archiver.catchWhen(
        [&] { return moment < 0 || QFile::exists(output + '/' + names.at(moment)); }));
    QVERIFY(!session->isUsable());
    session->pressStop();
    QVERIFY(session->isUsable());
    QTRY_VERIFY_WITH_TIMEOUT(archiver.isToEnd(), limitMs);
    archiver.letGo();
}

void TstExtractStop::stopEndsTheArchiver_data()
{
    QTest::addColumn<int>("moment");
    QTest::newRow("before its first step") << moments.at(0);
    QTest::newRow("in the middle") << moments.at(1);
    QTest::newRow("in its last file") << moments.at(2);
}

void TstExtractStop::stopEndsTheArchiver()
{
    QFETCH(int, moment);
    stopAt(moment);
    QTRY_VERIFY_WITH_TIMEOUT(childProcesses().isEmpty(), limitMs);
    // Whatever the run has to tell comes before its thread is gone.
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
    QCoreApplication::processEvents();
    QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
    QVERIFY(session->isUsable());
    // It may write the file to its end that it is at.
    QVERIFY(moment == moments.last() || !QFile::exists(output + '/' + names.last()));
}

void TstExtractStop::manyStopsLeaveNothingBehind()
{
    int descriptors = 0;
    for (int round = 0; round < rounds; ++round) {
        for (const int moment : moments) {
            QVERIFY(session->tick(names));
            stopAt(moment);
            QTRY_VERIFY_WITH_TIMEOUT(childProcesses().isEmpty(), limitMs);
            QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
            QVERIFY(QDir(output).removeRecursively() && QDir().mkpath(output));
        }
        if (round == 0)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstExtractStop::extractionAfterAStopIsWhole()
{
    ToolStopper archiver("x");
    session->beginExtraction(output);
    QVERIFY(archiver.catchWhen([this] { return QFile::exists(output + '/' + names.at(4)); }));
    session->pressStop();
    // At once, while the stopped archiver is still on its way out.
    session->beginExtraction(output);
    archiver.letGo();
    QCOMPARE(session->waitForSuccess(), QString("Extract files successfully."));
    QCOMPARE(hashesBelow(output), hashesBelow(folder.filePath("tree")));
}

KORVEX_TEST_MAIN(TstExtractStop)
#include "tst_extractstop.moc"

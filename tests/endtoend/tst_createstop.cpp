// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "imagemaker.h"
#include "processcounts.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"

#include <csignal>

namespace
{

constexpr int fileCount = 12;
constexpr qint64 fileBytes = 5'000'000;
constexpr qint64 largeFileBytes = 160'000'000;
constexpr int stops = 30; // a third of them at each moment
constexpr int stopLimitMs = 2000;

} // namespace

// Stop with the real tool at any moment, over and over in one process, and a right image after it.
class TstCreateStop : public TestCase
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void stopInTheCopyWaitStillGivesTheImage();
    void manyStopsInARow();
    void imageAfterAStopIsRight();

private:
    bool waitForMoment(int moment) const;
    void verifyImage() const;

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
};

void TstCreateStop::initTestCase()
{
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
    for (quint32 i = 0; i < fileCount; ++i)
        writeRandomFile(fixture->path(QString("tree/part %1.bin").arg(i)), fileBytes, i);
    writeRandomFile(fixture->path("tree/large.bin"), largeFileBytes, fileCount);
}

void TstCreateStop::cleanupTestCase()
{
    fixture.reset();
}

void TstCreateStop::verifyImage() const
{
    extractImage(image, fixture->path("out"));
    QCOMPARE(hashesBelow(fixture->path("out/tree")), hashesBelow(fixture->path("tree")));
    QVERIFY(QDir(fixture->path("out")).removeRecursively() && QFile::remove(image));
}

// At the start at once, in the middle and near the end by the size of the image.
bool TstCreateStop::waitForMoment(int moment) const
{
    const qint64 awaited = moment == 1 ? largeFileBytes / 10 : largeFileBytes * 3 / 4;
    const auto isReached = [&] { return QFileInfo(image).size() > awaited; };
    return moment == 0 || QTest::qWaitFor(isReached, 20000);
}

void TstCreateStop::stopInTheCopyWaitStillGivesTheImage()
{
    bool wasWaiting = false;
    const Trigger trigger(
        [this] { return fixture->progress()->isVisible() && fixture->progressValue() > 0; },
        [&] {
            wasWaiting = fixture->progressText() == "Copy files and folders...";
            fixture->pressStop();
        });
    fixture->addFolder(fixture->path("tree"));
    fixture->startCreating(image);
    QVERIFY(wasWaiting);
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    verifyImage();
}

void TstCreateStop::manyStopsInARow()
{
    int descriptors = 0;
    for (int run = 0; run < stops; ++run) {
        fixture->startCreating(image);
        QVERIFY(waitForMoment(run % 3));
        // A tool that is nearly done is held until Stop is pressed.
        if (run % 3 == 2) {
            for (const qint64 tool : childProcesses())
                ::kill(pid_t(tool), SIGSTOP);
        }
        QVERIFY2(!fixture->isUsable(), "the tool ended before it could be stopped");
        fixture->pressStop();
        QVERIFY(fixture->isUsable());
        QVERIFY(QTest::qWaitFor([] { return childProcesses().isEmpty(); }, stopLimitMs));
        QTest::qWait(50);
        QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
        QTRY_COMPARE(runnerThreadCount(), 0);
        // The question whether to replace it is none of this test's business.
        QFile::remove(image);
        if (run == 2)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstCreateStop::imageAfterAStopIsRight()
{
    fixture->startCreating(image);
    QVERIFY(waitForMoment(1));
    fixture->pressStop();
    QFile::remove(image);
    // At once, while the stopped tool may still be on its way out.
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    verifyImage();
}

KORVEX_TEST_MAIN(TstCreateStop)
#include "tst_createstop.moc"

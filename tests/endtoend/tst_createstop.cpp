// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "imagemaker.h"
#include "otherlimit.h"
#include "processcounts.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "toolstopper.h"
#include "trigger.h"

namespace
{

constexpr int fileCount = 12;
constexpr qint64 fileBytes = 100'000;
constexpr qint64 largeFileBytes = 2'000'000;
constexpr int rounds = 3; // of stops at each moment
constexpr int limitMs = 60'000;
const QString success = "Create ISO successfully!";

} // namespace

// Stop with the real tool at any moment, over and over in one process, and a right image after it.
// The tool is held where it is to be stopped.
class TstCreateStop : public TestCase
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stopInTheCopyWaitStillGivesTheImage();
    void stopEndsTheTool_data();
    void stopEndsTheTool();
    void manyStopsLeaveNothingBehind();
    void imageAfterAStopIsRight();

private:
    void stage() const;
    // Starts the tool, holds it when the image is larger than that, and presses Stop.
    void stopAt(qint64 bytes) const;
    void verifyImage() const;

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
    // A stop is noticed at once.
    const OtherLimit quickSteps{toolLimits().stepMs, 10};
};

void TstCreateStop::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
    for (quint32 i = 0; i < fileCount; ++i)
        writeRandomFile(fixture->path(QString("tree/part %1.bin").arg(i)), fileBytes, i);
    writeRandomFile(fixture->path("tree/large.bin"), largeFileBytes, fileCount);
}

void TstCreateStop::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCreateStop::stage() const
{
    fixture->addFolder(fixture->path("tree"));
    QVERIFY(fixture->waitUntilStaged());
}

void TstCreateStop::verifyImage() const
{
    extractImage(image, fixture->path("out"));
    QCOMPARE(hashesBelow(fixture->path("out/tree")), hashesBelow(fixture->path("tree")));
}

void TstCreateStop::stopAt(qint64 bytes) const
{
    ToolStopper author("-o");
    fixture->startCreating(image);
    QVERIFY(author.catchWhen([&] { return QFileInfo(image).size() >= bytes; }));
    QVERIFY(!fixture->isUsable());
    fixture->pressStop();
    QVERIFY(fixture->isUsable());
    QTRY_VERIFY_WITH_TIMEOUT(author.isToEnd(), limitMs);
    author.letGo();
}

void TstCreateStop::stopInTheCopyWaitStillGivesTheImage()
{
    const auto held = fixture->addHeld(1000);
    fixture->addFolder(fixture->path("tree"));
    const Trigger trigger(
        [this] {
            return fixture->progress()->isVisible() &&
                   fixture->progressText() == "Copy files and folders...";
        },
        [&] {
            fixture->pressStop();
            held->release();
        });
    fixture->startCreating(image);
    QVERIFY(trigger.hasFired());
    QVERIFY(!fixture->progress()->isVisible());
    QCOMPARE(fixture->waitForMessage(), success);
    verifyImage();
}

void TstCreateStop::stopEndsTheTool_data()
{
    QTest::addColumn<qint64>("bytes");
    QTest::newRow("before its first step") << qint64(0);
    QTest::newRow("in the middle") << largeFileBytes / 10;
    QTest::newRow("near its end") << largeFileBytes * 9 / 10;
}

void TstCreateStop::stopEndsTheTool()
{
    QFETCH(qint64, bytes);
    stage();
    stopAt(bytes);
    QTRY_VERIFY_WITH_TIMEOUT(childProcesses().isEmpty(), limitMs);
    // Whatever the run has to tell comes before its thread is gone.
    QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
    QCoreApplication::processEvents();
    QVERIFY2(!QApplication::activeModalWidget(), "a success message after Stop");
    QVERIFY(QFileInfo(image).size() < largeFileBytes);
}

void TstCreateStop::manyStopsLeaveNothingBehind()
{
    stage();
    int descriptors = 0;
    for (int round = 0; round < rounds; ++round) {
        for (const qint64 bytes : {qint64(0), largeFileBytes / 10, largeFileBytes * 9 / 10}) {
            stopAt(bytes);
            QTRY_VERIFY_WITH_TIMEOUT(childProcesses().isEmpty(), limitMs);
            QTRY_VERIFY_WITH_TIMEOUT(areRunnersGone(), limitMs);
            // The question whether to replace it is none of this test's business.
            QFile::remove(image);
        }
        if (round == 0)
            descriptors = descriptorCount();
    }
    QVERIFY(descriptorCount() <= descriptors);
}

void TstCreateStop::imageAfterAStopIsRight()
{
    stage();
    ToolStopper author("-o");
    fixture->startCreating(image);
    QVERIFY(author.catchWhen([&] { return QFileInfo(image).size() > largeFileBytes / 10; }));
    fixture->pressStop();
    QFile::remove(image);
    // At once, while the stopped tool is still on its way out.
    fixture->startCreating(image);
    author.letGo();
    QCOMPARE(fixture->waitForMessage(), success);
    verifyImage();
}

KORVEX_TEST_MAIN(TstCreateStop)
#include "tst_createstop.moc"

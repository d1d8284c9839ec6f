// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "heldcopy.h"
#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDir>

#include <thread>

// The Create page's end, with and without copies, and what the next one finds.
class TstCPage3Close : public TestCase
{
    Q_OBJECT

private slots:
    void idlePageIsFreedSoonAfterBack();
    void newPageEmptiesTheStagingFolder();
    void stagingFolderStaysWhenThePageCloses();
    void pageWithACopyInProgressHidesAtOnceAndLivesUntilThatEnds();
    void copyInProgressEndsCompleteAndTheQueuedOnesAreDropped();
    void fileInProgressEndsComplete();
    void newPageOpenedDuringACopyOfTheOldStartsEmpty();
    void pageThatIsDeletedWaitsForItsCopy();
    void hiddenPageIsNotClosed();
};

namespace
{

QString staged(const QString& name)
{
    return CreatePageFixture::stagingFolder() + '/' + name;
}

} // namespace

void TstCPage3Close::idlePageIsFreedSoonAfterBack()
{
    StagingPageFixture fixture;
    fixture.addFiles({fixture.makeFile("a.txt")});
    QVERIFY(fixture.finish());
    fixture.press("back");
    QVERIFY(!fixture.page || !fixture.page->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
    QVERIFY(fixture.window.isVisible());
}

void TstCPage3Close::newPageEmptiesTheStagingFolder()
{
    writeFile(staged("left/over.txt"), "old");
    writeFile(staged(".hidden"), "old");
    writeFile(Util::GetTempDir() + "/tmpfile", "not staged");
    StagingPageFixture fixture;
    QVERIFY(!QFileInfo::exists(CreatePageFixture::stagingFolder()));
    QVERIFY(QFileInfo::exists(Util::GetTempDir() + "/tmpfile"));
}

void TstCPage3Close::stagingFolderStaysWhenThePageCloses()
{
    {
        StagingPageFixture fixture;
        fixture.addFiles({fixture.makeFile("a.txt", "kept")});
        QVERIFY(fixture.finish());
        fixture.press("back");
        QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
    }
    QCOMPARE(readFile(staged("a.txt")), QByteArray("kept"));
}

void TstCPage3Close::pageWithACopyInProgressHidesAtOnceAndLivesUntilThatEnds()
{
    StagingPageFixture fixture;
    QVERIFY(fixture.holdQueue());
    fixture.press("back");
    QVERIFY(!fixture.page->isVisible());
    // Back has returned, and nothing that is due already frees the page.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(fixture.page);
    fixture.letGo();
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
}

void TstCPage3Close::copyInProgressEndsCompleteAndTheQueuedOnesAreDropped()
{
    StagingPageFixture fixture;
    CopyPlug plug(fixture.path("plug"));
    fixture.addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    fixture.addFiles({fixture.makeFile("a.txt")});
    fixture.press("back");
    const QByteArray content(300000, 'c');
    plug.release(content);
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
    QCOMPARE(fixture.staged(), (QMap<QString, QByteArray>{{"plug/", {}}, {"plug/held", content}}));
}

// As large as it takes to be in progress still when the page closes.
void TstCPage3Close::fileInProgressEndsComplete()
{
    StagingPageFixture fixture;
    HeldCopy held(fixture.path("held"));
    fixture.page->stagingQueue().AddTask(held.source(), held.destination(), CFileCopy::Copy);
    QVERIFY(held.hasBegun());
    fixture.addFiles({fixture.makeFile("a.txt")});
    fixture.press("back");
    QVERIFY(held.finish());
    QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, patienceMs);
    QVERIFY(!QFileInfo::exists(staged("a.txt")));
}

void TstCPage3Close::newPageOpenedDuringACopyOfTheOldStartsEmpty()
{
    auto old = std::make_unique<StagingPageFixture>();
    CopyPlug plug(old->path("plug"));
    old->addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    old->addFiles({old->makeFile("old.txt")});
    old->press("back");
    CPage3* const page = new CPage3(&old->window);
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(staged("plug")), patienceMs);
    plug.release("of the old page");
    QTRY_VERIFY_WITH_TIMEOUT(!page->stagingQueue().HasTasks(), patienceMs);
    QVERIFY(!QFileInfo::exists(CreatePageFixture::stagingFolder()));
    QTRY_VERIFY_WITH_TIMEOUT(!old->page, patienceMs);
    QCOMPARE(page->findChild<QTreeWidget*>("list")->topLevelItemCount(), 0);
    delete page;
}

void TstCPage3Close::pageThatIsDeletedWaitsForItsCopy()
{
    const StagingPageFixture fixture;
    CopyPlug plug(fixture.path("plug"));
    fixture.addFolders({plug.path()});
    QVERIFY(plug.waitUntilReached());
    const QByteArray content(300000, 'c');
    // The copy goes on only when the page is on its way out.
    const CFileCopy& queue = fixture.page->stagingQueue();
    std::thread release([&] {
        const QDeadlineTimer limit(patienceMs);
        while (!queue.IsStopped() && !limit.hasExpired())
            QThread::msleep(1);
        plug.release(content);
    });
    delete fixture.page;
    release.join();
    QCOMPARE(readFile(staged("plug/held")), content);
}

void TstCPage3Close::hiddenPageIsNotClosed()
{
    StagingPageFixture fixture;
    fixture.page->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    QVERIFY(fixture.page);
    fixture.page->show();
    fixture.addFiles({fixture.makeFile("a.txt")});
    QVERIFY(fixture.finish());
    QCOMPARE(fixture.staged().keys(), QStringList("a.txt"));
}

KORVEX_TEST_MAIN(TstCPage3Close)
#include "tst_cpage3_close.moc"

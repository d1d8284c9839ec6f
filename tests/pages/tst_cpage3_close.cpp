// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "util.h"

#include <QDir>
#include <QTimer>

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
    void largeFileInProgressEndsComplete();
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
    QTRY_VERIFY(!fixture.page);
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
        QTRY_VERIFY(!fixture.page);
    }
    QCOMPARE(readFile(staged("a.txt")), QByteArray("kept"));
}

void TstCPage3Close::pageWithACopyInProgressHidesAtOnceAndLivesUntilThatEnds()
{
    StagingPageFixture fixture;
    QVERIFY(fixture.holdQueue());
    fixture.press("back");
    QVERIFY(!fixture.page->isVisible());
    // The window goes on meanwhile.
    int ticks = 0;
    QTimer timer;
    connect(&timer, &QTimer::timeout, [&ticks] { ++ticks; });
    timer.start(10);
    QTRY_VERIFY(ticks >= 20);
    QVERIFY(fixture.page);
    fixture.letGo();
    QTRY_VERIFY(!fixture.page);
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
    QTRY_VERIFY(!fixture.page);
    QCOMPARE(fixture.staged(), (QMap<QString, QByteArray>{{"plug/", {}}, {"plug/held", content}}));
}

// As large as it takes to be in progress still when the page closes.
void TstCPage3Close::largeFileInProgressEndsComplete()
{
    for (qint64 bytes = 1 << 28;; bytes *= 2) {
        QVERIFY2(bytes <= qint64(1) << 32, "no file is large enough");
        StagingPageFixture fixture;
        fixture.addFiles({fixture.makeSparseFile("large", bytes), fixture.makeFile("a.txt")});
        QTRY_VERIFY(QFileInfo(staged("large")).size() > 0);
        fixture.press("back");
        const bool wasInProgress = QFileInfo(staged("large")).size() < bytes;
        QTRY_VERIFY_WITH_TIMEOUT(!fixture.page, 60000);
        QCOMPARE(QFileInfo(staged("large")).size(), bytes);
        if (!wasInProgress)
            continue;
        QVERIFY(!QFileInfo::exists(staged("a.txt")));
        break;
    }
    QVERIFY(QFile::remove(staged("large")));
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
    QTRY_VERIFY_WITH_TIMEOUT(QFileInfo::exists(staged("plug")), 5000);
    plug.release("of the old page");
    QTRY_VERIFY(!page->stagingQueue().HasTasks());
    QVERIFY(!QFileInfo::exists(CreatePageFixture::stagingFolder()));
    QTRY_VERIFY(!old->page);
    QCOMPARE(page->findChild<QTreeWidget*>("list")->topLevelItemCount(), 0);
    delete page;
}

void TstCPage3Close::pageThatIsDeletedWaitsForItsCopy()
{
    auto fixture = std::make_unique<StagingPageFixture>();
    const QTemporaryDir folder;
    const QString source = folder.filePath("large");
    writeFile(source, QByteArray(20000000, 'l'));
    fixture->addFiles({source});
    QTRY_VERIFY(QFileInfo::exists(staged("large")));
    fixture.reset();
    QCOMPARE(QFileInfo(staged("large")).size(), qint64(20000000));
}

// As under another page or when the program is hidden.
void TstCPage3Close::hiddenPageIsNotClosed()
{
    StagingPageFixture fixture;
    fixture.page->hide();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(50);
    QVERIFY(fixture.page);
    fixture.page->show();
    fixture.addFiles({fixture.makeFile("a.txt")});
    QVERIFY(fixture.finish());
    QCOMPARE(fixture.staged().keys(), QStringList("a.txt"));
}

KORVEX_TEST_MAIN(TstCPage3Close)
#include "tst_cpage3_close.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cfilecopy.h"
#include "foldertest.h"
#include "heldfolder.h"
#include "pagelifetime.h"
#include "testfiles.h"
#include "testmain.h"

#include <QPointer>
#include <QWidget>

namespace
{

// The least that a page with a queue is.
struct Page : public QWidget
{
    CFileCopy queue{nullptr};
    PageLifetime lifetime{this, &queue};
};

} // namespace

class TstPageLifetime : public FolderTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void openPageStays();
    void openPageStaysAfterItsSteps();
    void idlePageGoesWhenClosed();
    void closeTwiceIsHarmless();
    void copyInProgressIsFinishedFirst();
    void whatIsQueuedBehindIsDropped();
    void stepKeepsThePage();
    void nestedStepsKeepThePage();
    void stepAndCopyBothKeepThePage();
    void parentMayDeleteAClosedPage();

private:
    void hold();
    bool isGone() const
    {
        return QTest::qWaitFor([this] { return !page; }, 60000);
    }
    // Whatever has been asked of the page and its queue so far has been done then.
    bool stays() const
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return page;
    }

    std::unique_ptr<HeldFolder> held;
    QPointer<Page> page;
};

void TstPageLifetime::init()
{
    FolderTest::init();
    page = new Page;
}

void TstPageLifetime::cleanup()
{
    held.reset();
    delete page;
    FolderTest::cleanup();
}

void TstPageLifetime::hold()
{
    held = std::make_unique<HeldFolder>(folder->filePath("held"), 1000);
    page->queue.AddTask(folder->filePath("held"), folder->filePath("to"), CFileCopy::Copy);
    QVERIFY(QTest::qWaitFor([this] { return held->isHolding(); }, 60000));
}

void TstPageLifetime::openPageStays()
{
    QVERIFY(!page->lifetime.isClosed());
    // Even when its queue has ended by itself.
    page->queue.stop();
    QVERIFY(page->queue.wait(60000));
    QVERIFY(stays());
}

void TstPageLifetime::openPageStaysAfterItsSteps()
{
    {
        const PageLifetime::Step step(page->lifetime);
    }
    QVERIFY(stays());
}

void TstPageLifetime::idlePageGoesWhenClosed()
{
    page->lifetime.close();
    QVERIFY2(page, "deleted on the spot, under the feet of its closeEvent()");
    QVERIFY(page->lifetime.isClosed());
    QVERIFY(isGone());
}

void TstPageLifetime::closeTwiceIsHarmless()
{
    page->lifetime.close();
    page->lifetime.close();
    QVERIFY(isGone());
}

void TstPageLifetime::copyInProgressIsFinishedFirst()
{
    hold();
    page->lifetime.close();
    QVERIFY(stays());
    held->release();
    QVERIFY(isGone());
    QCOMPARE(QFileInfo(folder->filePath("to/held/rest.bin")).size(), qint64(1000));
}

void TstPageLifetime::whatIsQueuedBehindIsDropped()
{
    hold();
    writeFile(folder->filePath("b.txt"), "b");
    page->queue.AddTask(folder->filePath("b.txt"), folder->filePath("to/b.txt"), CFileCopy::Copy);
    page->lifetime.close();
    held->release();
    QVERIFY(isGone());
    QCOMPARE(entriesOf(folder->filePath("to")), QStringList("held"));
}

void TstPageLifetime::stepKeepsThePage()
{
    {
        const PageLifetime::Step step(page->lifetime);
        page->lifetime.close();
        QVERIFY(stays());
    }
    QVERIFY2(page, "deleted on the spot, under the feet of the step's caller");
    QVERIFY(isGone());
}

void TstPageLifetime::nestedStepsKeepThePage()
{
    {
        const PageLifetime::Step outer(page->lifetime);
        {
            const PageLifetime::Step inner(page->lifetime);
            page->lifetime.close();
        }
        QVERIFY(stays());
    }
    QVERIFY(isGone());
}

void TstPageLifetime::stepAndCopyBothKeepThePage()
{
    hold();
    {
        const PageLifetime::Step step(page->lifetime);
        page->lifetime.close();
        held->release();
        QVERIFY(QTest::qWaitFor([this] { return page->queue.isFinished(); }, 60000));
        QVERIFY(stays());
    }
    QVERIFY(isGone());
}

void TstPageLifetime::parentMayDeleteAClosedPage()
{
    QWidget parent;
    page->setParent(&parent);
    page->lifetime.close();
    delete page;
    QVERIFY(!stays());
}

KORVEX_TEST_MAIN(TstPageLifetime)
#include "tst_pagelifetime.moc"

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cprogressdialog.h"
#include "createpagefixture.h"
#include "startup.h"
#include "testcase.h"
#include "testfiles.h"
#include "testmain.h"
#include "trigger.h"
#include "usermouse.h"

#include <QDesktopServices>
#include <QDir>
#include <QTimer>

namespace
{

// The progress dialog is modal as well.
QWidget* message()
{
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog && !qobject_cast<CProgressDialog*>(dialog) ? dialog : nullptr;
}

} // namespace

// The end of the authoring tool and the message that follows it, whatever the tool says.
class TstCPage3Finish : public TestCase
{
    Q_OBJECT

public slots:
    void opened(const QUrl& address) { openedAddress = address; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void successIsTold();
    void failureOfTheToolIsToldAsSuccess_data();
    void failureOfTheToolIsToldAsSuccess();
    void missingToolIsToldAsSuccess();
    void openFolderOpensTheImagesFolder_data();
    void openFolderOpensTheImagesFolder();
    void okOpensNothing();
    void stagedFilesStayForASecondImage();
    void fileThatIsAddedAfterARunGetsIntoTheNext();
    void toolWithoutAnyOutputEnds();
    void floodOfOutputEnds();

private:
    // Closes the message by this button once it is there.
    void pressInMessage(const QString& name) const;

    std::unique_ptr<CreatePageFixture> fixture;
    QString image;
    QUrl openedAddress;
};

void TstCPage3Finish::initTestCase()
{
    setApplicationLook();
    QDesktopServices::setUrlHandler("file", this, "opened");
}

void TstCPage3Finish::init()
{
    TestCase::init();
    fixture = std::make_unique<CreatePageFixture>();
    image = fixture->path("out.iso");
    fixture->addStaged("a.txt", "staged");
    openedAddress.clear();
}

void TstCPage3Finish::cleanup()
{
    fixture.reset();
    TestCase::cleanup();
}

void TstCPage3Finish::pressInMessage(const QString& name) const
{
    bool isPressed = false;
    QTimer poll;
    connect(&poll, &QTimer::timeout, [&isPressed, name] {
        if (QWidget* const dialog = message()) {
            isPressed = true;
            UserMouse::moveAway(dialog);
            UserMouse::click(dialog->findChild<QWidget*>(name));
        }
    });
    poll.start(20);
    QVERIFY(QTest::qWaitFor([&] { return isPressed && !message(); }, patienceMs));
}

void TstCPage3Finish::successIsTold()
{
    fixture->startCreating(image);
    QVERIFY(fixture->progress()->isVisible());
    // The progress dialog is gone by the time the message comes.
    bool isHidden = false;
    const Trigger trigger([] { return message() != nullptr; },
                          [&] { isHidden = !fixture->progress()->isVisible(); });
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(isHidden);
    QVERIFY(fixture->isUsable());
    QVERIFY(fixture->row({"a.txt"}));
}

void TstCPage3Finish::failureOfTheToolIsToldAsSuccess_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("exit status") << "exit 1";
    QTest::newRow("crash") << "crash";
}

void TstCPage3Finish::failureOfTheToolIsToldAsSuccess()
{
    QFETCH(QString, end);
    fixture->tool.setScript({"err mkisofs: No space left on device\\n", end});
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(fixture->isUsable());
    fixture->tool.setScript({});
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 2);
}

void TstCPage3Finish::missingToolIsToldAsSuccess()
{
    const QString tool = CreatePageFixture::toolPath();
    QVERIFY(QFile::rename(tool, tool + ".away"));
    fixture->startCreating(image);
    const QString text = fixture->waitForMessage();
    QVERIFY(QFile::rename(tool + ".away", tool));
    QCOMPARE(text, QString("Create ISO successfully!"));
    QVERIFY(fixture->isUsable());
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 1);
}

void TstCPage3Finish::openFolderOpensTheImagesFolder_data()
{
    QTest::addColumn<QString>("folder");
    QTest::newRow("plain") << "out";
    QTest::newRow("hostile") << QString::fromUtf8("Ümlaut #1 ?a=b 100%25 'x'");
}

void TstCPage3Finish::openFolderOpensTheImagesFolder()
{
    QFETCH(QString, folder);
    QVERIFY(QDir().mkpath(fixture->path(folder)));
    fixture->startCreating(fixture->path(folder) + "/out.iso");
    pressInMessage("btncancel");
    QCOMPARE(openedAddress.scheme(), QString("file"));
    QCOMPARE(QDir::cleanPath(openedAddress.path(QUrl::FullyDecoded)), fixture->path(folder));
}

void TstCPage3Finish::okOpensNothing()
{
    fixture->startCreating(image);
    pressInMessage("btnok");
    QVERIFY(openedAddress.isEmpty());
}

void TstCPage3Finish::stagedFilesStayForASecondImage()
{
    const QString staged = CreatePageFixture::stagingFolder() + "/a.txt";
    for (int run = 1; run <= 2; ++run) {
        fixture->startCreating(fixture->path(QString("%1.iso").arg(run)));
        QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
        QCOMPARE(readFile(staged), QByteArray("staged"));
        QCOMPARE(fixture->tool.calls().size(), run);
    }
    QCOMPARE(fixture->tool.calls().last().at(4), fixture->path("2.iso"));
}

void TstCPage3Finish::fileThatIsAddedAfterARunGetsIntoTheNext()
{
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    writeFile(fixture->path("b.txt"), "later");
    fixture->addFiles({fixture->path("b.txt")});
    // Pressed at once, without waiting for the copy.
    fixture->startCreating(image);
    QCOMPARE(readFile(CreatePageFixture::stagingFolder() + "/b.txt"), QByteArray("later"));
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QCOMPARE(fixture->tool.calls().size(), 2);
}

void TstCPage3Finish::toolWithoutAnyOutputEnds()
{
    fixture->tool.setScript({fixture->tool.holding("silent")});
    fixture->startCreating(image);
    QVERIFY(fixture->tool.isHeld("silent"));
    QCOMPARE(fixture->progressValue(), 0);
    fixture->tool.release("silent");
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    QVERIFY(fixture->isUsable());
}

void TstCPage3Finish::floodOfOutputEnds()
{
    fixture->tool.setScript({"flood 1", "err 99.00% done, estimate finish x\\n"});
    fixture->startCreating(image);
    QCOMPARE(fixture->waitForMessage(), QString("Create ISO successfully!"));
    // Every line has come before the end was told.
    QCOMPARE(fixture->progressValue(), 9900);
    QVERIFY(fixture->isUsable());
}

KORVEX_TEST_MAIN(TstCPage3Finish)
#include "tst_cpage3_finish.moc"

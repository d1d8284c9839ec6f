// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "disccopytest.h"

#include "startup.h"

#include <QComboBox>
#include <QLineEdit>
#include <QTest>

void DiscCopyTest::initTestCase()
{
    setApplicationLook();
}

void DiscCopyTest::init()
{
    TestCase::init();
    CPage5::dvdCurrent.clear();
    currdev.clear();
    scenario = std::make_unique<DriveScenario>();
    news = std::make_unique<DriveNews>();
}

void DiscCopyTest::cleanup()
{
    delete page;
    fixture.reset();
    QVERIFY(waitUntilToolsAreGone());
    QCOMPARE(scenario->unmatchedCalls(), QList<QStringList>());
    news.reset();
    scenario.reset();
    TestCase::cleanup();
}

void DiscCopyTest::openPage()
{
    page = new CPage5(news.get());
    forgetPendingDrive();
    fixture = std::make_unique<PageFixture>(page);
}

void DiscCopyTest::forgetPendingDrive() const
{
    page->onLineOutput("  Name: /dev/pending");
    drives()->clear();
}

void DiscCopyTest::openPageWithDisc(const QString& device, const QString& mountPoint)
{
    scenario->addOptical(firstDrive().identification, device, mountPoint);
    openPage();
    QVERIFY(waitForDrives({"HL-DT-ST DVDRAM GP65NS60 PF00 (" + device + ')'}));
}

void DiscCopyTest::openReadyPage()
{
    onMakeHybrid({});
    openPageWithDisc();
    imagePath = fixture->path("disc.iso");
    imageField()->setText(imagePath);
}

OpticalDrive DiscCopyTest::firstDrive()
{
    return {" HL-DT-ST DVDRAM GP65NS60   PF00", "/dev/disk4", "/Volumes/DISC"};
}

OpticalDrive DiscCopyTest::secondDrive()
{
    return {" MATSHITA DVD-RAM UJ8E2 S   1.00", "/dev/disk7", "/Volumes/OTHER"};
}

void DiscCopyTest::addTwoDrives()
{
    for (const OpticalDrive& drive : {firstDrive(), secondDrive()})
        scenario->addOptical(drive.identification, drive.device, drive.mountPoint);
}

void DiscCopyTest::startHeld(const QStringList& actions)
{
    onMakeHybrid(actions + QStringList(scenario->holding("copied")));
    fixture->press("start");
    QVERIFY(waitForCalls("hdiutil", 1));
}

bool DiscCopyTest::waitForDrives(const QStringList& expected) const
{
    return QTest::qWaitFor([&] { return driveTexts() == expected; }, patienceMs);
}

bool DiscCopyTest::waitForCalls(const QString& program, int count) const
{
    return QTest::qWaitFor([&] { return scenario->callsOf(program).size() >= count; }, patienceMs);
}

bool DiscCopyTest::waitUntilToolsAreGone()
{
    return PageFixture::waitUntilToolsGone();
}

QString DiscCopyTest::closeMessage(const QString& button, const std::function<void()>& look) const
{
    return fixture->answerMessage([] {}, button, look);
}

QString DiscCopyTest::copyToEnd(const QString& button, const std::function<void()>& look) const
{
    return fixture->answerMessage([this] { fixture->press("start"); }, button, look);
}

QComboBox* DiscCopyTest::drives() const
{
    return page->findChild<QComboBox*>("dvdlist");
}

QStringList DiscCopyTest::driveTexts() const
{
    QStringList texts;
    for (int i = 0; i < drives()->count(); ++i)
        texts.append(drives()->itemText(i));
    return texts;
}

QLineEdit* DiscCopyTest::imageField() const
{
    return page->findChild<QLineEdit*>("lineEdit");
}

QStringList DiscCopyTest::imageArguments(const QString& imagePath, const QString& mountPoint)
{
    return {"makehybrid", "-iso", "-joliet", "-debug", "-ov", "-o", imagePath, mountPoint};
}

void DiscCopyTest::onMakeHybrid(const QStringList& actions) const
{
    scenario->on("hdiutil", {"makehybrid", "..."}, actions);
}

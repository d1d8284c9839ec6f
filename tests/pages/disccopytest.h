// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "cpage5.h"
#include "drivescenario.h"
#include "pagefixture.h"
#include "testcase.h"

#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class QComboBox;
class QLineEdit;

// Stands in for the main window where it tells pages that drives have come or gone.
class DriveNews : public QWidget
{
    Q_OBJECT

signals:
    void sigdrivechange();
};

// Base of the tests of the Copy Disk page: every test function gets a scenario without drives, adds
// what it needs and opens the page. At the end every tool has ended, and none was called in a way
// that the scenario did not foresee.
class DiscCopyTest : public TestCase
{
    Q_OBJECT

protected slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    // Opens the page as the main window does. The list of drives is not awaited.
    void openPage();
    // The same with one drive that holds a mounted disc; returns once the drive is listed.
    void openPageWithDisc(const QString& device = "/dev/disk4",
                          const QString& mountPoint = "/Volumes/DISC");
    // The same, with a path entered and a tool that makes nothing: all is ready for Start.
    void openReadyPage();
    // Two drives with discs, and how the page lists them.
    static OpticalDrive firstDrive();
    static OpticalDrive secondDrive();
    static QString firstText() { return "HL-DT-ST DVDRAM GP65NS60 PF00 (/dev/disk4)"; }
    static QString secondText() { return "MATSHITA DVD-RAM UJ8E2 S 1.00 (/dev/disk7)"; }
    void addTwoDrives();
    // Starts a copy whose tool does this and then waits for "copied"; returns while it does.
    void startHeld(const QStringList& actions = {});

    // Until exactly these are listed.
    bool waitForDrives(const QStringList& expected) const;
    // Waits until a tool has been called for the so manieth time.
    bool waitForCalls(const QString& program, int count) const;
    // No tool runs any more, and what they printed has been received.
    static bool waitUntilToolsAreGone();
    // Waits for the message that follows a copy, presses the button in it and returns its text.
    // look is done while the message is open.
    QString closeMessage(const QString& button = "btnok",
                         const std::function<void()>& look = {}) const;
    // The same after pressing Start. The tools may have ended before the press has.
    QString copyToEnd(const QString& button = "btnok",
                      const std::function<void()>& look = {}) const;
    static QString copySuccess() { return "Copy CD/DVD successfully!"; }

    QComboBox* drives() const;
    QStringList driveTexts() const;
    QLineEdit* imageField() const;
    // What makes an image of the volume: the tool's arguments.
    static QStringList imageArguments(const QString& imagePath, const QString& mountPoint);
    // The parser keeps what it has read of a drive whose entry is not complete.
    void forgetPendingDrive() const;
    // What the tool does when it is called to make an image, however its arguments read.
    void onMakeHybrid(const QStringList& actions) const;

    std::unique_ptr<DriveScenario> scenario;
    std::unique_ptr<DriveNews> news;
    std::unique_ptr<PageFixture> fixture;
    QPointer<CPage5> page;
    // What openReadyPage() has entered.
    QString imagePath;
};

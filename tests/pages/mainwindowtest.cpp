// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "mainwindowtest.h"

#include "cimagebutton.h"
#include "startup.h"
#include "usermouse.h"

#include <QDesktopServices>
#include <QTest>

void MainWindowTest::initTestCase()
{
    setApplicationLook();
    QDesktopServices::setUrlHandler("https", this, "opened");
}

void MainWindowTest::init()
{
    TestCase::init();
    openedAddress.clear();
    window = std::make_unique<MainWindow>(nullptr);
    window->show();
    QVERIFY(QTest::qWaitForWindowActive(window.get(), 30'000));
}

void MainWindowTest::cleanup()
{
    UserMouse::moveAway(window.get());
    window.reset();
    TestCase::cleanup();
}

CImageButton* MainWindowTest::button(const QString& name) const
{
    return window->findChild<CImageButton*>(name, Qt::FindDirectChildrenOnly);
}

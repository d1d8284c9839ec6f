// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "mainwindow.h"
#include "testcase.h"

#include <QUrl>

#include <memory>

class CImageButton;

// Base of the tests of the main window: every test function gets a shown and active one.
class MainWindowTest : public TestCase
{
    Q_OBJECT

public slots:
    // Takes the place of the web browser.
    void opened(const QUrl& address) { openedAddress = address; }

protected slots:
    void initTestCase();
    void init();
    void cleanup();

protected:
    CImageButton* button(const QString& name) const;

    std::unique_ptr<MainWindow> window;
    // The last one that the window has sent to the web browser.
    QUrl openedAddress;
};

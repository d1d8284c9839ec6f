// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "testcase.h"

class QWidget;

// Base of the tests that save pictures of the pages for looking at. Run once for each screen
// density.
class PictureTest : public TestCase
{
    Q_OBJECT

protected:
    // Saves what the widget shows. Checks that it has its size in device pixels, is no plain area
    // and cuts no text off.
    static void save(QWidget* widget, const QString& name);

protected slots:
    void initTestCase();
    void cleanup();
};

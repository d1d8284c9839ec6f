// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "testcase.h"

#include <QTemporaryDir>

#include <memory>

// Base of the test classes whose every function has an empty folder of its own.
class FolderTest : public TestCase
{
    Q_OBJECT

protected:
    // In the folder; an absolute path stays as it is.
    QString path(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;

protected slots:
    void init();
    void cleanup();
};

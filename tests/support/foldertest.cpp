// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "foldertest.h"

#include <QDir>

QString FolderTest::path(const QString& name) const
{
    return QDir(folder->path()).filePath(name);
}

void FolderTest::init()
{
    TestCase::init();
    folder = std::make_unique<QTemporaryDir>();
}

void FolderTest::cleanup()
{
    folder.reset();
    TestCase::cleanup();
}

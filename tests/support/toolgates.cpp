// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolgates.h"

#include "testfiles.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QTest>

namespace
{

// So long that only a tool that never comes there needs it.
constexpr int limitMs = 60'000;

// A tool that comes to a gate just now leaves its mark in a folder that has been emptied, and would
// wait in one that stays.
void removeForGood(QTemporaryDir* folder)
{
    const QDeadlineTimer limit(limitMs);
    while (!QDir(folder->path()).removeRecursively() && !limit.hasExpired()) {
    }
    delete folder;
}

} // namespace

ToolGates::ToolGates()
    : folder(new QTemporaryDir, removeForGood)
{
    folder->setAutoRemove(false);
    if (!folder->isValid())
        qFatal("Cannot make a folder: %s", qPrintable(folder->errorString()));
}

QString ToolGates::hold(const QString& name) const
{
    return "hold " + path(name);
}

bool ToolGates::isReached(const QString& name) const
{
    const QString mark = path(name) + ".reached";
    return QTest::qWaitFor([&mark] { return QFileInfo::exists(mark); }, limitMs);
}

void ToolGates::open(const QString& name) const
{
    writeFile(path(name), {});
}

// Neither blanks nor backslashes, which some scripts read as more than letters.
QString ToolGates::path(QString name) const
{
    return folder->filePath(name.replace(' ', '-'));
}

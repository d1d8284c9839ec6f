// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// The stand-in tool at one path, as a test sees it: what it shall do and how it was called.
class ScriptedCalls
{
public:
    // The stand-in that the build has laid at this path. Forgets earlier calls and scripts.
    explicit ScriptedCalls(const QString& toolPath);

    // What every call does from now on; the lines are described at the head of the tool's source.
    void setScript(const QStringList& lines) const;
    // The arguments of every call since construction.
    QList<QStringList> calls() const;

private:
    QString path;
};

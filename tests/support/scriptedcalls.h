// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "toolgates.h"

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

    // Where a call is held, as ToolGates says; this object has to outlive the test's use of them.
    QString holding(const QString& name) const { return gates.hold(name); }
    bool isHeld(const QString& name) const { return gates.isReached(name); }
    void release(const QString& name) const { gates.open(name); }

private:
    QString path;
    ToolGates gates;
};

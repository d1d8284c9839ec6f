// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QString>

// What a test process and its children hold at the moment, read from the system's process table.

// The threads of runners; each has one while its tool runs or is being stopped. A thread that has
// been waited for can still be counted for a moment: it says from within that it has ended. One
// that has only just been started is not counted before it has its name.
int runnerThreadCount();
// There is none, nor any that was started and has no name yet: for a wait that begins right after a
// start. A test that calls it gives its own threads a name.
bool areRunnersGone();
// How often they have had to wait for something since they began. A runner looks at a silent tool
// once for each ToolLimits::stepMs.
qint64 runnerThreadWaits();
int descriptorCount();
// Under the address sanitizer, which keeps what has been freed for a while: what is allocated.
qint64 residentKilobytes();
// Process numbers of the direct children, ended but unreaped ones included.
QList<qint64> childProcesses();
// Process numbers of all running processes whose executable file has this name and which this test
// process has started, directly or not, also of those whose parent has ended.
QList<qint64> processesOf(const QString& executableName);

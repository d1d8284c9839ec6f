// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class CRunCommandThread;
class QString;
class QStringList;

// The two ways in which pages run a tool that they neither read a progress of nor stop (for those
// see ToolRun). User-interface thread.

// Processes events until the tool has ended and its output has been received.
void runToEnd(CRunCommandThread& runner, const QString& program, const QStringList& arguments);

// A runner that frees itself when its run has ended, whatever has become of the page by then.
CRunCommandThread* createFreeRunner();

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The folder that holds the stand-ins for the drive tools and their scenario. It is made when the
// application is, before any tool can be started, and stays for the whole process: the program
// takes the environment of its tools once, so a folder per test would be lost on them.
// DriveScenario alone calls it.
namespace StandInFolder
{

// All stand-ins in place, no scenario, no calls.
void clear();

QString scenarioPath();
QString callsPath();
// Where a tool is found by its name.
QString toolPath(const QString& program);
// Where a program lies on the PATH that the process was started with; empty if nowhere.
QString realToolPath(const QString& program);

} // namespace StandInFolder

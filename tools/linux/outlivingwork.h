// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

// Does the work in a process of its own, which goes on where this one is killed, waits for it, and
// returns its exit code, 1 where it crashed. What the work changes in memory is not seen here. It
// is handed a function that tells whether its end is still waited for: work that has nobody to hand
// its result to takes back what it did. Call this before there are threads.
int runOutliving(const std::function<int(const std::function<bool()>& isAwaited)>& work);

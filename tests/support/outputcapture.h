// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>

// What the action, run at once in this process, writes to standard output. It holds no checks of
// the test library: their messages would be taken along.
QByteArray standardOutputOf(const std::function<void()>& action);

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

// The debug stream's copy of everything that tools print, a line of ours for every line of theirs.
// Off unless asked for with QT_LOGGING_RULES="korvex.tooloutput.debug=true".
Q_DECLARE_LOGGING_CATEGORY(toolOutput)

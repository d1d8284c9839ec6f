// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

// The toolkit's qCDebug() leaves the last argument of its macro out, which is C++20; clang tells so
// wherever it is used.
#ifdef __clang__
#pragma clang diagnostic ignored "-Wgnu-zero-variadic-macro-arguments"
#endif

// The debug stream's copy of everything that tools print, a line of ours for every line of theirs.
// Off unless asked for with QT_LOGGING_RULES="korvex.tooloutput.debug=true".
Q_DECLARE_LOGGING_CATEGORY(toolOutput)

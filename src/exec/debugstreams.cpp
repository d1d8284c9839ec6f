// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "debugstreams.h"

Q_LOGGING_CATEGORY(toolOutput, "korvex.tooloutput", QtInfoMsg)

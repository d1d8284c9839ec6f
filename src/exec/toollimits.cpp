// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toollimits.h"

ToolLimits& toolLimits()
{
    static ToolLimits limits;
    return limits;
}

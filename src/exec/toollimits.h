// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>

// How long the program waits for its tools, in milliseconds. They are looked at all the time while
// something waits, so that a test that needs the end of a wait can bring it about at the moment
// that it wants instead of sitting through it. The program itself never changes them.
struct ToolLimits
{
    // For the answer to a short question, such as what a disk is or where an image was mounted.
    std::atomic<int> answerMs{30000};
    // Between two looks of a waiting worker at what else it has to do. After so much silence in the
    // middle of a line, the tool is taken to have paused.
    std::atomic<int> stepMs{300};
    // For a tool that was asked to stop, until it is killed, and then for its end.
    std::atomic<int> politeStopMs{500};
    std::atomic<int> killedMs{1000};
    // Without any sign of the thread that receives a tool's lines, until it is taken not to listen.
    std::atomic<int> deliveryMs{1000};
};

// The limits of this process. Any thread.
ToolLimits& toolLimits();

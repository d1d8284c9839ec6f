// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

// Font, icon and style sheet that every program of ours with windows has in common. Called once by
// each of them when its QApplication is there.
void useApplicationLook();

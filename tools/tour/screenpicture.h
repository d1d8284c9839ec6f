// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>

// The program's windows as they lie on the screen, on a calm background: every visible window is
// drawn with its transparent corners, which a screen without a compositor shows black. Windows that
// ask for a frame get a plain one. User-interface thread.
QImage screenPicture();

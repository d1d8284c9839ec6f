// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// Readers of what "diskutil info" prints about one disk; Util asks them.

// Size of the disk in bytes, 0 when the text names none.
qint64 diskSizeOf(const QString& info);

// Mount point of the disk, empty when the text names none. Blanks at its end are not kept.
QString mountPointOf(const QString& info);

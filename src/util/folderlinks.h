// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class QFileInfo;

// Whether an entry is a link to a folder that its path already lies in or passes through, however
// deep and by whatever links. Whoever walks through folders and follows links passes such a link
// by, or would never come to an end.
bool leadsBack(const QFileInfo& entry);

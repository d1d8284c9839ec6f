// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QString>

// Loads the picture at path for a screen with the given device pixel ratio. Above 1 the variant
// path + "@2x" is taken when there is one; its pixels count half, so both variants have the same
// size on the screen. Null when there is no such picture. User-interface thread.
QPixmap loadPicture(const QString& path, qreal devicePixelRatio);

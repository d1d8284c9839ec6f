// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "picture.h"

// The pictures lie in a static library, whose own registration the linker leaves out. Qt's macro
// has to stand outside every namespace.
static bool registerPictures()
{
    Q_INIT_RESOURCE(pictures);
    return true;
}

namespace
{

const bool picturesRegistered = registerPictures();
constexpr qreal doubledRatio = 2.0;

QPixmap loadAs(const QString& path, qreal ratio)
{
    QPixmap picture;
    if (!path.isEmpty() && picture.load(path))
        picture.setDevicePixelRatio(ratio);
    return picture;
}

} // namespace

QPixmap loadPicture(const QString& path, qreal devicePixelRatio)
{
    if (devicePixelRatio > 1 && !path.isEmpty()) {
        const QPixmap doubled = loadAs(path + "@2x", doubledRatio);
        if (!doubled.isNull())
            return doubled;
    }
    return loadAs(path, 1);
}

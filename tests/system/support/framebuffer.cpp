// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "framebuffer.h"

#include <QtEndian>

namespace
{

// Fields of the head, in words of 32 bits with the most significant byte first.
enum Field
{
    headBytes = 0,
    version = 1,
    width = 4,
    height = 5,
    bitsPerPixel = 11,
    bytesPerLine = 12,
    colours = 19,
    fieldCount = 25
};

constexpr int bytesPerColour = 12;

} // namespace

QImage framebufferImage(const QByteArray& dump)
{
    const auto field = [&dump](Field which) {
        return static_cast<int>(qFromBigEndian<quint32>(dump.constData() + 4 * which));
    };
    if (dump.size() < 4 * fieldCount || field(version) != 7 || field(bitsPerPixel) != 32)
        return {};
    const int begin = field(headBytes) + bytesPerColour * field(colours);
    if (dump.size() < begin + field(bytesPerLine) * field(height))
        return {};
    const auto* const pixels = reinterpret_cast<const uchar*>(dump.constData()) + begin;
    return QImage(pixels, field(width), field(height), field(bytesPerLine), QImage::Format_RGB32)
        .copy();
}

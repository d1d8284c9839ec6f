// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtEndian>

// Numbers in structures on disk, lowest byte first. What reads and writes sectors and the boot
// loader's file calls these; the caller sees to it that the offset lies inside.

inline quint8 byteAt(const QByteArray& bytes, int offset)
{
    return static_cast<quint8>(bytes.at(offset));
}

inline quint16 wordAt(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<quint16>(bytes.constData() + offset);
}

inline quint32 dwordAt(const QByteArray& bytes, int offset)
{
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

inline void putWord(QByteArray& bytes, int offset, quint16 number)
{
    qToLittleEndian(number, bytes.data() + offset);
}

inline void putDword(QByteArray& bytes, int offset, quint32 number)
{
    qToLittleEndian(number, bytes.data() + offset);
}

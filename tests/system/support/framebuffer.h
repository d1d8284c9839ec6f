// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QImage>

// The picture in a file that a screen in memory keeps (an X window dump, 32 bits per pixel, as on
// any of today's screens); null when it is not one. Used by VirtualMachine.
QImage framebufferImage(const QByteArray& dump);

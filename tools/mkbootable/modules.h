// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bootfiles.h"

#include <QByteArray>
#include <QString>

// The files that a bootable disk carries, written into its mounted partition. What makes a disk
// bootable calls these, on every system. Each returns why it failed, or an empty text.

// Writes a file whole and compares what has arrived.
QString writeInto(const QString& target, const QByteArray& content);

// Copies the modules to where the boot menu and the boot loader look for them, below root. Older
// ones are replaced.
QString copyModules(const BootFiles& files, const QString& root);

// The whole file, empty when it cannot be read.
QByteArray fileContent(const QString& path);

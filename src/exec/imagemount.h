// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

// Mounting an image with the disk image tool: the command texts, and the reader of what the tool
// prints.

QString mountImageCommand(const QString& imagePath);
// The mount point is glued to the verb, as it has always been.
QString unmountImageCommand(const QString& mountPoint);
QString forceUnmountImageCommand(const QString& mountPoint);

// The mount point that mounting an image printed, without any white space: that of a volume name
// with blanks is not the real one. Nothing when the output has no third field.
std::optional<QString> imageMountPointOf(const QString& output);

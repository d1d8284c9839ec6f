// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

// The PATH on which our stand-ins look for the system's own tools: without the folder they lie in
// themselves, so that "mount" is the system's, and with the administration tools' folders, which a
// desktop user's PATH may lack. The entry of the stand-ins calls it.
QByteArray systemPath(const QByteArray& path, const QString& ownFolder);

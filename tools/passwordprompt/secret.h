// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class QByteArray;
class QString;

// How the password prompt handles what it has been told, so that nothing of it stays behind.
namespace Secret
{

// No core dump of this process, no other process of the user may look into its memory. False when
// the system refuses.
bool keepMemoryPrivate();

// Overwrites the characters with zeros where they are, for everyone who shares them, and empties
// the text.
void wipe(QString& text);
void wipe(QByteArray& text);

// Writes the text and a line feed to a file descriptor, whole. False when that fails.
bool writeLine(int descriptor, const QByteArray& text);

} // namespace Secret

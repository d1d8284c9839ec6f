// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;

// Answers the dialog that is open, if any: that of a rename with this name, a message with OK. For
// tests that open very many of them; the others say beforehand what they expect (see ModalDriver).
void answerDialog(const QString& newName);

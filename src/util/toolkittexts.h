// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

struct Language;

// Brings the toolkit's own texts (file dialogs, context menus, standard buttons) into a language;
// called with every choice of the interface's language. They are English where the toolkit has no
// texts in it, and with null. To be called from the GUI thread.
void loadToolkitTexts(const Language* language);

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

class QTableWidget;
class QTreeWidget;

// Checks how the two views of a page that shows an image are drawn: their colours and the size of
// the header's letters. The first row of the table has to be a folder's, whose size is empty.
void checkViewLook(QTreeWidget* tree, QTableWidget* table);

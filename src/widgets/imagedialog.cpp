// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagedialog.h"

ImageDialog::ImageDialog(bool modal)
{
    setModal(modal);
}

void ImageDialog::slot_minWindow()
{
    showMinimized();
}

void ImageDialog::announceVisible(bool visible)
{
    emit sigvisable(visible);
}

void ImageDialog::announceMove()
{
    emit sigmove();
}

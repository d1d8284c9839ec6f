// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Loading an image into the Extract page.

#include "cpage2.h"
#include "sevenzipcommand.h"
#include "util.h"

#include <QFileInfo>

void CPage2::OnLoadISO()
{
    const QString path = Util::GetOpenFileDialog(this, "ISO Files(*.ISO)");
    if (path.isEmpty() || !QFileInfo(path).isFile())
        return;
    isoPath = path;
    SetEnabled(false);
    setLoadAndExtractEnabled(false);
    startListing(sevenZipListArguments(isoPath));
}

void CPage2::OnUnzipFinished()
{
    SetEnabled(true);
    setLoadAndExtractEnabled(true);
    ImagePage::OnUnzipFinished();
}

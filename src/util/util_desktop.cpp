// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "util.h"

#include <QCursor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

void Util::SetCursorBusy()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

void Util::RestoreCursor()
{
    QGuiApplication::restoreOverrideCursor();
}

bool Util::isMacOS()
{
#ifdef Q_OS_MACOS
    return true;
#else
    return false;
#endif
}

void Util::OpenExplorer(QWidget*, QString path)
{
    // The same as "file:///" + path, four slashes for an absolute path, but with the characters
    // that mean something in an address ('#', '?', '%') taken as part of the name.
    QUrl url;
    url.setScheme("file");
    url.setHost("");
    url.setPath('/' + path.replace('\\', '/'), QUrl::DecodedMode);
    QDesktopServices::openUrl(url);
}

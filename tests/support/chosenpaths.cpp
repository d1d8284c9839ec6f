// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "chosenpaths.h"

#include "util.h"

namespace
{

QStringList chosen;

} // namespace

void ChosenPaths::set(const QStringList& paths)
{
    chosen = paths;
}

QString Util::GetOpenFileDialog(QWidget*, QString)
{
    return chosen.value(0);
}

QStringList Util::GetOpenFilesDialog(QWidget*)
{
    return chosen;
}

QString Util::GetDirDialog(QWidget*)
{
    return chosen.value(0);
}

QStringList Util::GetDirsDialog(QWidget*)
{
    return chosen;
}

QStringList Util::GetDirsAndFilesDialog(QWidget*)
{
    return chosen;
}

QString Util::GetSaveDialog(QWidget*, QString)
{
    return chosen.value(0);
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The file and folder pickers of the pages.

#include "cfiledialog.h"
#include "util.h"

#include <QCoreApplication>
#include <QDir>

namespace
{

QStringList choose(QWidget* parent, bool withFiles)
{
    CFileDialog dialog(parent, withFiles);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

} // namespace

QString Util::GetOpenFileDialog(QWidget* parent, QString filter)
{
    return QFileDialog::getOpenFileName(parent, QCoreApplication::translate("Util", "Open File"),
                                        QDir::homePath(), "All Files (*);;" + filter, nullptr,
                                        QFileDialog::ReadOnly);
}

QStringList Util::GetOpenFilesDialog(QWidget* parent)
{
    return QFileDialog::getOpenFileNames(parent, QCoreApplication::translate("Util", "Open Files"),
                                         QDir::homePath(), "Any Files(*.*)", nullptr,
                                         QFileDialog::ReadOnly);
}

QString Util::GetDirDialog(QWidget* parent)
{
    return QFileDialog::getExistingDirectory(
        parent, QCoreApplication::translate("Util", "Open Folder"), ".", QFileDialog::ShowDirsOnly);
}

QString Util::GetSaveDialog(QWidget* parent, QString filter)
{
    return QFileDialog::getSaveFileName(parent, QCoreApplication::translate("Util", "Save File"),
                                        ".", filter);
}

QStringList Util::GetDirsDialog(QWidget* parent)
{
    return choose(parent, false);
}

QStringList Util::GetDirsAndFilesDialog(QWidget* parent)
{
    return choose(parent, true);
}

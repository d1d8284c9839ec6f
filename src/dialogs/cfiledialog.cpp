// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cfiledialog.h"

#include <QDialogButtonBox>
#include <QListView>
#include <QTreeView>

CFileDialog::CFileDialog(QWidget* parent, bool files)
    : QFileDialog(parent, QString(), QString(), QString())
    , withFiles(files)
{
    // The platform's own dialog has no views to reach.
    setOption(QFileDialog::DontUseNativeDialog);
    QDir::Filters filter = QDir::Dirs | QDir::NoDotAndDotDot;
    if (withFiles)
        filter |= QDir::Files;
    setFilter(filter);

    // The list and the details view share one selection.
    auto* list = findChild<QListView*>("listView");
    list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* details = findChild<QTreeView*>("treeView");
    details->setSelectionMode(QAbstractItemView::ExtendedSelection);

    auto* buttonBox = findChild<QDialogButtonBox*>("buttonBox");
    disconnect(buttonBox, SIGNAL(accepted()), this, SLOT(accept()));
    connect(buttonBox, SIGNAL(accepted()), this, SLOT(onChiose()));
}

void CFileDialog::onChiose()
{
    QDialog::accept();
}

QStringList CFileDialog::selectedFiles() const
{
    // What is selected in the list or, without a selection, what is typed; onChiose() has let the
    // latter pass unseen.
    QStringList paths;
    for (const QString& path : QFileDialog::selectedFiles()) {
        const QFileInfo info(path);
        if (info.isDir() || (withFiles && info.exists()))
            paths.append(path);
    }
    return paths;
}

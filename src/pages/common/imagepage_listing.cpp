// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Listing an image: the archiver's lines become the tree, the tree becomes the views.

#include "imagepage.h"
#include "sevenzipcommand.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>
#include <QTableWidget>
#include <QTreeWidget>

void ImagePage::startListing(const QStringList& arguments)
{
    current = nullptr;
    // The nodes point into the tree that is about to be emptied.
    folderView->clear();
    RefreshTable();
    listingReader.reset();
    tree.Clear();
    tree.name = QFileInfo(isoPath).fileName();
    listingRun.stop();
    // The listing ends with its second separator, not with the tool.
    listingRun.startListing(this, SLOT(OnLineOutput(QString)), nullptr, sevenZipProgram(),
                            arguments);
}

void ImagePage::OnLineOutput(QString line)
{
    // Lines of two listings would make no tree.
    if (listingRun.isLate(sender()))
        return;
    Item entry;
    switch (listingReader.read(line, entry)) {
    case ListingReader::Line::Entry:
        tree.AddItem(entry);
        break;
    case ListingReader::Line::Ended:
        OnUnzipFinished();
        if (sender())
            sender()->deleteLater();
        break;
    case ListingReader::Line::Began:
    case ListingReader::Line::Ignored:
        break;
    }
}

void ImagePage::OnUnzipFinished()
{
    qDebug() << "finished unzip";
    folderView->clear();
    QTreeWidgetItem* const top = new QTreeWidgetItem({tree.name});
    top->setData(0, Qt::UserRole, QVariant::fromValue(&tree.root));
    // The nodes are hung in before the view knows their top, which spares it a notice for each.
    LoadFiles(&tree.root, nullptr, top);
    folderView->addTopLevelItem(top);
    top->setIcon(0, folderIcon);
    top->setExpanded(true);
    current = &tree.root;
    RefreshTable();
}

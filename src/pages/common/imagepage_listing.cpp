// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Listing an image: the archiver's lines become the tree, the tree becomes the views.

#include "cruncommandthread.h"
#include "imagepage.h"
#include "sevenzipcommand.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>
#include <QTableWidget>
#include <QTreeWidget>

void ImagePage::startListing(const QStringList& arguments)
{
    CRunCommandThread* const runner = new CRunCommandThread(nullptr);
    listingRunner = runner;
    connect(runner, SIGNAL(standoutputline(QString)), this, SLOT(OnLineOutput(QString)));
    // The listing ends with its second separator. This only frees a runner that never sends one.
    connect(runner, SIGNAL(finished()), runner, SLOT(deleteLater()));
    current = nullptr;
    // The nodes point into the tree that is about to be emptied.
    folderView->clear();
    RefreshTable();
    runner->SetRunCmd(sevenZipProgram(), arguments);
    listingReader.reset();
    tree.Clear();
    tree.name = QFileInfo(isoPath).fileName();
    runner->start(QThread::InheritPriority);
}

void ImagePage::OnLineOutput(QString line)
{
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

bool ImagePage::isLateSignalOf(const CRunCommandThread* expected) const
{
    const CRunCommandThread* const source = qobject_cast<CRunCommandThread*>(sender());
    return source && source != expected;
}

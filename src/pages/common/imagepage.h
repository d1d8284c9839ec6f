// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ctree.h"
#include "imagedialog.h"
#include "listingreader.h"
#include "toolrun.h"

#include <QIcon>

class QTableWidget;
class QTableWidgetItem;
class QTreeWidget;
class QTreeWidgetItem;

// What the pages share that show an image: listing it with the archiver, its folders as a tree and
// the current folder's entries as a table. A page derives from it and adds what it does with them.
class ImagePage : public ImageDialog
{
    Q_OBJECT

public:
    explicit ImagePage(QWidget* parent);
    ~ImagePage() override;

    // Builds the page's widgets and connections. Called once, by whoever creates the page.
    virtual void InitializeUI() = 0;
    // Shows the entries of the current folder that isShown() lets pass.
    virtual void RefreshTable();
    // Adds a node for every folder below item: to view if given, else to parentNode. Nothing
    // happens without item or parentNode.
    virtual void LoadFiles(Item* item, QTreeWidget* view, QTreeWidgetItem* parentNode);

    QTreeWidgetItem* GetTreeWidgetItemByData(QTreeWidgetItem* node, Item* item) const;
    QTreeWidgetItem* GetTreeWidgetItemByData(QTreeWidget* view, Item* item) const;

public slots:
    // The listing is complete: shows what was read.
    virtual void OnUnzipFinished();
    // One line of the archiver's listing.
    virtual void OnLineOutput(QString line);
    virtual void OnTreeCurrentChanged();
    virtual void OnListViewDoubleClicked();
    // Selects and expands the tree node of the current folder.
    virtual void RefreshTreeWidget();
    // Ticks or clears all rows.
    void slotSelectAll(bool checked);

protected:
    // Creates the two views with the look and the behaviour that all pages give them.
    QTreeWidget* createFolderView(QPoint position, QSize size);
    QTableWidget* createEntryTable(QPoint position, QSize size);
    void setTableHeaderTexts();
    // Makes the clicks into the two views open folders.
    void connectBrowsing();
    // Whether an entry of the current folder gets a row. All do, unless a page filters.
    virtual bool isShown(const Item& item) const;
    // Appends a row.
    void appendRow(const Item& item);
    // The tick of a row that was clicked beside its tick; null for any other click. The table
    // toggles itself what is clicked on the tick.
    QTableWidgetItem* tickBesideClick(QTableWidgetItem* cell) const;
    // The node of a folder.
    QTreeWidgetItem* createNode(Item* item) const;
    // Empties tree and views and lists the image at isoPath with these arguments of the archiver.
    void startListing(const QStringList& arguments);

    QString isoPath;
    CTree tree;
    // The folder whose entries the table shows; null while a listing runs.
    Item* current = nullptr;
    QTreeWidget* folderView = nullptr;
    QTableWidget* entryTable = nullptr;

private:
    void fillRow(int row, const Item& item);

    ListingReader listingReader;
    ToolRun listingRun;
    QIcon folderIcon;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "authoringrun.h"
#include "cfilecopy.h"
#include "ctree.h"
#include "imagedialog.h"
#include "mkisofscommand.h"
#include "pagelifetime.h"

#include <QFileIconProvider>
#include <QIcon>
#include <QModelIndex>

#include <memory>
#include <optional>

class CImageButton;
class CMyTreeWidget;
class CProgressDialog;
class QLabel;
class QMenu;
class QProgressBar;
class QRadioButton;
class QTreeWidget;
class QTreeWidgetItem;

// The Create page: the user collects files and folders, which are copied into a staging folder in
// the background at once, and writes them as a new image. The main window creates it; it frees
// itself after it is closed.
class CPage3 : public ImageDialog
{
    Q_OBJECT

public:
    explicit CPage3(QWidget* parent);
    // Waits for a copy in progress.
    ~CPage3() override;

    // Re-applies the translatable texts of buttons, headers and menu.
    void updateUI();
    // Shows how many bytes have been added and how full they would make an image of 5 GB.
    void RefreshTotalSize();
    // The folder of the image that holds the selected row, with a trailing "/"; empty for the root.
    QString GetCurrSelectDir();
    // Adds everything below the folder on disk to item and, as rows, to parentRow or, if one is
    // given, to view. Copies nothing.
    void InnerAddDir(Item* item, QString folder, QTreeWidgetItem* parentRow, QTreeWidget* view);
    // Deletes a row and those below it.
    void del(QTreeWidgetItem* row);
    // What copies into the staging folder.
    CFileCopy& stagingQueue();

public slots:
    void OnAddFile();
    void OnAddDir();
    void OnRemove();
    // Waits for the copies and writes the image.
    void OnCreate();
    void StopCreate();
    void OnTreeClicked(QModelIndex index);
    void OnListContextMenuRequest(QPoint position);
    // One piece of the authoring tool's output.
    void OnCreateOutput(QString line);
    void OnCreateFinished();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createTexts();
    void createList();
    void createGauge();
    void createTypeChoice();
    void createButtons();
    void createContextMenu();
    void retranslate();

    QTreeWidgetItem* firstSelectedRow() const;
    QTreeWidgetItem* createRow(const Item& item) const;
    // With rows for everything below it.
    QTreeWidgetItem* createBranch(const Item& item) const;
    void addRow(QTreeWidgetItem* row, QTreeWidgetItem* parentRow);
    void addFile(const QString& path, const QString& folder, QTreeWidgetItem* parentRow);
    void addFolder(const QString& path, const QString& folder, QTreeWidgetItem* parentRow);
    std::optional<BackupType> chosenType() const;

    std::unique_ptr<CProgressDialog> progress;
    AuthoringRun authoring;
    CTree tree;
    CFileCopy queue;
    // Where everything that is added is copied to, with a trailing "/".
    QString stagingFolder;
    PageLifetime lifetime;

    QFileIconProvider iconProvider;
    QIcon folderIcon;
    QLabel* title = nullptr;
    QTreeWidget* list = nullptr;
    QLabel* totalSize = nullptr;
    QLabel* maxSize = nullptr;
    QProgressBar* gauge = nullptr;
    QLabel* typeLabel = nullptr;
    QRadioButton* joliet = nullptr;
    QRadioButton* iso9660 = nullptr;
    QRadioButton* udf = nullptr;
    CImageButton* addFiles = nullptr;
    CImageButton* addFolders = nullptr;
    CImageButton* remove = nullptr;
    CImageButton* create = nullptr;
    CImageButton* back = nullptr;
    QMenu* contextMenu = nullptr;
    QAction* addFilesAction = nullptr;
    QAction* addFoldersAction = nullptr;
    QAction* removeAction = nullptr;
};

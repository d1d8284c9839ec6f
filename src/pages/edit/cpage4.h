// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "authoringrun.h"
#include "cfilecopy.h"
#include "imagepage.h"
#include "pagelifetime.h"
#include "workfolderlock.h"

#include <QTimer>

#include <memory>

class CImageButton;
class CLineEdit;
class CProgressDialog;
class QMenu;

// The Edit page: opens an image, which is unpacked in the background, changes what is in it and
// saves it as a new one. The main window creates it; it frees itself after it is closed.
//
// Changes show at once. On disk they are made in the work folder, which the new image is written
// from: by the copy queue, and not before the image has been unpacked there.
class CPage4 : public ImagePage
{
    Q_OBJECT

public:
    explicit CPage4(QWidget* parent);
    // Waits for a copy in progress.
    ~CPage4() override;

    void InitializeUI() override;

    // Queues a change of the work folder, as CFileCopy::AddTask() does. While the image is being
    // unpacked it is held back, in order.
    void AddFileOpTasks(QString source, QString destination, int type);
    // All buttons; false shows the busy cursor as well, true restores the normal one.
    void SetEnabled(bool enabled);
    // Fills an added folder from the disk, and the node below which its folders show.
    void AddSubDir(Item* item, QString folder, QTreeWidgetItem* node);
    // Re-applies the translatable texts.
    void updateUI();
    // Whether the work folder is being changed: by unpacking, by the queue, or for an export.
    bool isWorking();

public slots:
    void OnLoadISO();
    void OnUnzipFinished() override;
    // One piece of what the archiver prints while it unpacks.
    virtual void OnExtractOutput(QString line);
    virtual void OnExtractFinished();
    void OnListViewClicked(QTableWidgetItem* cell);
    void OnListContextMenuRequest(QPoint position);

    void OnAdd();
    void OnExport();
    void OnRename();
    void OnDelete();
    // Does nothing, by design.
    void OnNew();
    // Shows the entries of the current folder whose name contains the text of the search field.
    void OnSearch();

    void OnSave();
    // One piece of the authoring tool's output.
    void OnCreateOutput(QString line);
    void OnCreateFinished();
    void StopCreate();

protected:
    bool isShown(const Item& item) const override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private slots:
    void unpackWhenClean();

private:
    struct FileTask
    {
        QString source;
        QString destination;
        int type;
    };

    void createUpperButtons();
    void createLowerButtons();
    void createSearchField();
    void createContextMenu();
    void connectViews();

    bool isUnpacking() const;
    void waitForUnpacking();
    void releasePendingTasks();
    QList<int> tickedRows() const;
    // What a row stands for: the child of the same number, whatever the search field hides.
    Item* childOfRow(int row);
    void addEntry(const QString& path, const QString& folder, QTreeWidgetItem* folderNode);
    QString whyNot(const QString& newName) const;
    void rename(Item& item, const QString& newName);
    void queueExport(const Item& item, const QString& folder);

    std::unique_ptr<CProgressDialog> progress;
    AuthoringRun authoring;
    ToolRun unpacking;
    // With a trailing "/". The Create page's staging folder is the same.
    QString workFolder;
    CFileCopy queue;
    PageLifetime lifetime;
    // Runs while the work folder is being emptied for the image that is to be unpacked.
    QTimer preparation;
    // Taken while the archiver of this page writes into the work folder.
    WorkFolderLock lock;
    // Turns of the preparation that another archiver has been waited for.
    int turnsWaited = 0;
    // What is held back while the image is being unpacked.
    QList<FileTask> pendingTasks;
    // Percent, as the archiver reported last.
    int unpackingProgress = 0;
    // Stop was pressed since the last save began.
    bool cancelled = false;
    bool isBusy = false;

    CImageButton* loadIso = nullptr;
    CImageButton* add = nullptr;
    CImageButton* exportButton = nullptr;
    CImageButton* renameButton = nullptr;
    CImageButton* deleteButton = nullptr;
    CImageButton* newButton = nullptr;
    CImageButton* save = nullptr;
    CImageButton* back = nullptr;
    CLineEdit* search = nullptr;
    QMenu* contextMenu = nullptr;
    QAction* addAction = nullptr;
    QAction* exportAction = nullptr;
    QAction* renameAction = nullptr;
    QAction* deleteAction = nullptr;
    QAction* newAction = nullptr;
};

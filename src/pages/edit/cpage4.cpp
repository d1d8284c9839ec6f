// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The page's widgets and what they are connected to.

#include "cpage4.h"

#include "cimagebutton.h"
#include "clineedit.h"
#include "cprogressdialog.h"
#include "pagebutton.h"
#include "util.h"

#include <QCloseEvent>
#include <QDebug>
#include <QMenu>
#include <QTableWidget>
#include <QTreeWidget>

namespace
{

constexpr int buttonRow = 12;
constexpr int bottomRow = 417;
constexpr int preparationMs = 10;
constexpr int searchPixels = 14;

} // namespace

CPage4::CPage4(QWidget* parent)
    : ImagePage(parent)
    , progress(std::make_unique<CProgressDialog>(this))
    , authoring(*progress)
    , workFolder(Util::GetTempDir() + "/tmp/")
    , queue(nullptr)
    , lifetime(this, &queue)
{
    setObjectName("CPage4");
    setWindowTitle("Dialog");
    SetBackGround(":/nwu/page4");
    preparation.setInterval(preparationMs);
}

CPage4::~CPage4()
{
    queue.stop();
    queue.wait();
}

void CPage4::InitializeUI()
{
    qDebug() << "CPage4::InitializeUI() is called!!";
    // In reading order, which Tab follows.
    createUpperButtons();
    createSearchField();
    folderView = createFolderView({10, 54}, {213, 350});
    entryTable = createEntryTable({223, 54}, {621, 350});
    createLowerButtons();
    createContextMenu();
    updateUI();
    connectViews();
    connect(progress.get(), SIGNAL(SigCancel()), this, SLOT(StopCreate()));
    connect(&preparation, SIGNAL(timeout()), this, SLOT(unpackWhenClean()));
}

void CPage4::createUpperButtons()
{
    loadIso = createPageButton(this, "loadiso", {10, buttonRow}, SLOT(OnLoadISO()));
    add = createPageButton(this, "add", {101, buttonRow}, SLOT(OnAdd()));
    exportButton = createPageButton(this, "export_2", {205, buttonRow}, SLOT(OnExport()));
    renameButton = createPageButton(this, "rename", {337, buttonRow}, SLOT(OnRename()));
    deleteButton = createPageButton(this, "delete_2", {469, buttonRow}, SLOT(OnDelete()));
    newButton = createPageButton(this, "new_2", {573, buttonRow}, SLOT(OnNew()));
}

void CPage4::createLowerButtons()
{
    back = createPageButton(this, "back", {11, bottomRow}, SLOT(close()));
    save = createPageButton(this, "save", {743, bottomRow}, SLOT(OnSave()));
}

void CPage4::createSearchField()
{
    search = new CLineEdit(this);
    search->setObjectName("search");
    search->setGeometry(681, buttonRow, 163, 30);
    QFont font = search->font();
    font.setPixelSize(searchPixels);
    search->setFont(font);
    search->setStyleSheet("padding-left:28px;");
    search->SetImage(":/nwu/zoom", ":/nwu/zoom", QString(), {7, 6});
    connect(search, SIGNAL(textChanged(QString)), this, SLOT(OnSearch()));
}

void CPage4::createContextMenu()
{
    contextMenu = new QMenu(this);
    const auto addEntry = [this](const char* slot) {
        QAction* const action = contextMenu->addAction(QString());
        connect(action, SIGNAL(triggered()), this, slot);
        return action;
    };
    addAction = addEntry(SLOT(OnAdd()));
    exportAction = addEntry(SLOT(OnExport()));
    renameAction = addEntry(SLOT(OnRename()));
    deleteAction = addEntry(SLOT(OnDelete()));
    newAction = addEntry(SLOT(OnNew()));
}

void CPage4::connectViews()
{
    connect(entryTable, SIGNAL(customContextMenuRequested(QPoint)), this,
            SLOT(OnListContextMenuRequest(QPoint)));
    connect(entryTable, SIGNAL(itemClicked(QTableWidgetItem*)), this,
            SLOT(OnListViewClicked(QTableWidgetItem*)));
    connectBrowsing();
}

void CPage4::updateUI()
{
    setUpPageButton(loadIso, "loadiso", tr("Load ISO"));
    setUpPageButton(add, "Add", tr("Add"));
    setUpPageButton(exportButton, "Export", tr("Export"));
    setUpPageButton(renameButton, "Rename", tr("Rename"));
    setUpPageButton(deleteButton, "Delete", tr("Delete"));
    setUpPageButton(newButton, "New", tr("New"));
    setUpPageButton(save, "save", tr("Save"));
    setUpPageButton(back, "backwhite", tr("Back"));
    search->setPlaceholderText(tr("Search"));
    addAction->setText(tr("Add(&A)"));
    exportAction->setText(tr("Export(&E)"));
    renameAction->setText(tr("Rename(&R)"));
    deleteAction->setText(tr("Delete(&D)"));
    newAction->setText(tr("New(&N)"));
    setTableHeaderTexts();
}

void CPage4::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && entryTable)
        updateUI();
    ImagePage::changeEvent(event);
}

void CPage4::closeEvent(QCloseEvent* event)
{
    ImagePage::closeEvent(event);
    SetEnabled(true);
    preparation.stop();
    // A page that is opened next empties the work folder: nothing may still write to it then.
    unpacking.stopAndWait();
    lock.release();
    authoring.stop();
    // The page itself may take a while to go.
    progress->hide();
    lifetime.close();
}

void CPage4::SetEnabled(bool enabled)
{
    for (CImageButton* const button :
         {loadIso, add, exportButton, renameButton, deleteButton, newButton, back, save})
        button->setEnabled(enabled);
    // Every busy cursor is taken back once.
    if (enabled == isBusy) {
        if (enabled)
            Util::RestoreCursor();
        else
            Util::SetCursorBusy();
        isBusy = !enabled;
    }
}

bool CPage4::isWorking()
{
    return isUnpacking() || queue.HasTasks();
}

void CPage4::OnListContextMenuRequest(QPoint)
{
    contextMenu->popup(QCursor::pos());
}

void CPage4::OnListViewClicked(QTableWidgetItem* cell)
{
    if (QTableWidgetItem* const tick = tickBesideClick(cell))
        tick->setCheckState(tick->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

bool CPage4::isShown(const Item& item) const
{
    return item.GetName().contains(search->text(), Qt::CaseInsensitive);
}

void CPage4::OnSearch()
{
    RefreshTable();
}

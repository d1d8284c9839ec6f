// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "cpage2.h"

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "pagebutton.h"
#include "util.h"

#include <QDebug>
#include <QEvent>
#include <QLabel>
#include <QMenu>
#include <QTableWidget>
#include <QTreeWidget>

namespace
{

QFont labelFont(const QWidget* label, int pixels, int weight)
{
    QFont font = label->font();
    font.setPixelSize(pixels);
    font.setWeight(weight);
    return font;
}

} // namespace

CPage2::CPage2(QWidget* parent)
    : ImagePage(parent)
{
    setWindowTitle("Dialog");
    SetBackGround(":/nwu/page2");
}

CPage2::~CPage2() = default;

void CPage2::InitializeUI()
{
    createButtons();
    createTexts();
    folderView = createFolderView({10, 54}, {213, 350});
    entryTable = createEntryTable({223, 54}, {431, 350});
    contextMenu = new QMenu(this);
    extractAction = contextMenu->addAction(QString());
    progress = std::make_unique<CProgressDialog>(this);
    updateUI();
    connectAll();
}

void CPage2::createButtons()
{
    loadIso = createPageButton(this, "loadiso", {567, 17}, SLOT(OnLoadISO()));
    back = createPageButton(this, "back", {11, 417}, SLOT(OnBack()));
    extract = createPageButton(this, "extract", {546, 417}, SLOT(OnExtract()));
}

void CPage2::createTexts()
{
    title = new QLabel(this);
    title->setObjectName("isoextract");
    title->setFont(labelFont(title, 16, QFont::Bold));
    title->setGeometry(10, 8, 550, 22);
    description = new QLabel(this);
    description->setObjectName("descript");
    description->setFont(labelFont(description, 14, QFont::Normal));
    description->setGeometry(10, 23, 550, 30);
    QPalette palette = title->palette();
    palette.setColor(QPalette::WindowText, QColor(0x33, 0x33, 0x33));
    title->setPalette(palette);
    palette.setColor(QPalette::WindowText, QColor(0x60, 0x60, 0x60));
    description->setPalette(palette);
}

void CPage2::connectAll()
{
    connect(extractAction, SIGNAL(triggered()), this, SLOT(OnExtract()));
    connect(entryTable, SIGNAL(customContextMenuRequested(QPoint)), this,
            SLOT(OnListContextMenuRequest(QPoint)));
    connect(entryTable, SIGNAL(itemClicked(QTableWidgetItem*)), this,
            SLOT(OnListViewClicked(QTableWidgetItem*)));
    connectBrowsing();
    connect(progress.get(), SIGNAL(SigCancel()), this, SLOT(OnStopExtract()));
}

void CPage2::updateUI()
{
    setUpPageButton(loadIso, "loadiso", tr("Load ISO"));
    setUpPageButton(back, "Back", tr("Back"));
    setUpPageButton(extract, "btnextract", tr("Extract"));
    title->setText(tr("ISO Extract"));
    description->setText(
        tr("Directly extract everything from ISO image file and export to your computer."));
    extractAction->setText(tr("Extract(&E)"));
    setTableHeaderTexts();
}

void CPage2::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && entryTable)
        updateUI();
    ImagePage::changeEvent(event);
}

void CPage2::SetEnabled(bool enabled)
{
    if (enabled)
        Util::RestoreCursor();
    else
        Util::SetCursorBusy();
    back->setEnabled(enabled);
}

void CPage2::setLoadAndExtractEnabled(bool enabled)
{
    loadIso->setEnabled(enabled);
    extract->setEnabled(enabled);
}

QString CPage2::DateTimeToString(QDateTime time) const
{
    return Util::QT2String(time);
}

void CPage2::ClearAll()
{
    tree.Clear();
}

void CPage2::AddOneItem(Item& item)
{
    tree.AddItem(item);
}

void CPage2::OnBack()
{
    close();
}

void CPage2::OnListContextMenuRequest(QPoint)
{
    contextMenu->popup(QCursor::pos());
}

void CPage2::OnListViewClicked(QTableWidgetItem* cell)
{
    if (!cell || cell->tableWidget() != entryTable)
        return;
    if (QTableWidgetItem* const tick = tickBesideClick(cell)) {
        if (tick->checkState() == Qt::Checked)
            tick->setCheckState(Qt::Unchecked);
        else if (tick->checkState() == Qt::Unchecked)
            tick->setCheckState(Qt::Checked);
    }
    qDebug() << "CPage2::OnListViewClicked";
}

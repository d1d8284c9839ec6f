// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagepage.h"

#include "cmytreewidget.h"
#include "nofocusdelegate.h"
#include "scheckboxheaderview.h"
#include "sevenzipcommand.h"
#include "tickdelegate.h"
#include "util.h"

#include <QFileIconProvider>
#include <QFileInfo>
#include <QHeaderView>
#include <QTableWidget>
#include <QVector>

namespace
{

const char* const folderViewStyle =
    "QTreeWidget { background: #E2F8FE; border: 1px solid #C2EFFD; outline: none; }";

const char* const entryTableStyle =
    "QTableWidget { background: white; gridline-color: #C2EFFD; border: 1px solid #C2EFFD;"
    " selection-background-color: #C2EFFD; selection-color: black; }"
    "QTableWidget:disabled { selection-color: #A0A0A0; }"
    "QTableWidget::indicator { width: 12px; height: 12px; }"
    "QHeaderView::section { font: 13pt; color: black; }";

constexpr int columnCount = 4;
constexpr int tickColumn = 0;
constexpr int fontPixels = 14;

QFont viewFont(const QWidget* widget)
{
    QFont font = widget->font();
    font.setPixelSize(fontPixels);
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

ImagePage::ImagePage(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , folderIcon(QFileIconProvider().icon(QFileIconProvider::Folder))
{
}

ImagePage::~ImagePage() = default;

QTreeWidget* ImagePage::createFolderView(QPoint position, QSize size)
{
    QTreeWidget* const view = new CMyTreeWidget(this);
    view->setObjectName("tree");
    view->setGeometry(QRect(position, size));
    view->setFixedSize(size);
    view->setStyleSheet(folderViewStyle);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setHeaderHidden(true);
    view->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    view->header()->setStretchLastSection(false);
    view->setAttribute(Qt::WA_MacShowFocusRect, false);
    view->setItemDelegate(new NoFocusDelegate(view));
    return view;
}

QTableWidget* ImagePage::createEntryTable(QPoint position, QSize size)
{
    QTableWidget* const table = new QTableWidget(0, columnCount, this);
    table->setObjectName("list");
    table->move(position);
    table->setFixedSize(size);
    table->setFont(viewFont(table));
    SCheckBoxHeaderView* const header = new SCheckBoxHeaderView(tickColumn, Qt::Horizontal, table);
    header->setFont(viewFont(table));
    header->setHighlightSections(false);
    header->setSectionsClickable(true);
    table->setHorizontalHeader(header);
    table->verticalHeader()->hide();
    table->setStyleSheet(entryTableStyle);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    // In one line, a name that is too long shows that it goes on.
    table->setWordWrap(false);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setItemDelegate(new TickDelegate(table));
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    const int quarter = (size.width() - 2) / columnCount;
    for (int column = 0; column < columnCount; ++column)
        table->setColumnWidth(column, column == tickColumn ? quarter + 10 : quarter);
    connect(header, SIGNAL(checkStausChange(bool)), this, SLOT(slotSelectAll(bool)));
    return table;
}

void ImagePage::connectBrowsing()
{
    connect(entryTable, SIGNAL(itemDoubleClicked(QTableWidgetItem*)), this,
            SLOT(OnListViewDoubleClicked()));
    connect(folderView, SIGNAL(itemClicked(QTreeWidgetItem*, int)), this,
            SLOT(OnTreeCurrentChanged()));
    // Return opens a folder of the tree for those who move in it with the arrow keys.
    connect(folderView, SIGNAL(itemActivated(QTreeWidgetItem*, int)), this,
            SLOT(OnTreeCurrentChanged()));
}

void ImagePage::setTableHeaderTexts()
{
    // The blank in front of " Size" is part of the text.
    entryTable->setHorizontalHeaderLabels({tr("File Name"), tr(" Size"), tr("Type"), tr("Time")});
}

void ImagePage::slotSelectAll(bool checked)
{
    for (int row = 0; row < entryTable->rowCount(); ++row)
        entryTable->item(row, tickColumn)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

void ImagePage::RefreshTable()
{
    entryTable->setRowCount(0);
    // No row is ticked now, which the box over them shows as well.
    static_cast<SCheckBoxHeaderView*>(entryTable->horizontalHeader())->setChecked(false);
    if (!current)
        return;
    QVector<const Item*> shown;
    for (const Item& child : qAsConst(current->children)) {
        if (isShown(child))
            shown.append(&child);
    }
    entryTable->setRowCount(shown.size());
    // One repaint at the end instead of a notice for every cell.
    const QSignalBlocker blocker(entryTable->model());
    int row = 0;
    for (const Item* const child : qAsConst(shown))
        fillRow(row++, *child);
    entryTable->viewport()->update();
}

bool ImagePage::isShown(const Item&) const
{
    return true;
}

void ImagePage::appendRow(const Item& item)
{
    const int row = entryTable->rowCount();
    entryTable->setRowCount(row + 1);
    fillRow(row, item);
}

QTableWidgetItem* ImagePage::tickBesideClick(QTableWidgetItem* cell) const
{
    if (!cell || cell->tableWidget() != entryTable)
        return nullptr;
    const int row = cell->row();
    const bool isInRange = row >= 0 && row < entryTable->rowCount();
    if (!isInRange || entryTable->mapFromGlobal(QCursor::pos()).x() <= TickDelegate::lastPixel)
        return nullptr;
    return entryTable->item(row, tickColumn);
}

void ImagePage::fillRow(int row, const Item& item)
{
    const QString name = item.GetName();
    QTableWidgetItem* const nameCell = new QTableWidgetItem(name);
    nameCell->setCheckState(Qt::Unchecked);
    QString size;
    QString type = tr("Folder");
    if (item.isDir) {
        nameCell->setIcon(folderIcon);
        nameCell->setData(Qt::UserRole, 1);
    } else {
        nameCell->setIcon(Util::GetExtensionIcon(name));
        size = Util::SizeToString(static_cast<long long>(item.sizeText.toULongLong()));
        type = Util::GetExtensionString(name);
    }
    entryTable->setItem(row, tickColumn, nameCell);
    entryTable->setItem(row, 1, new QTableWidgetItem(size));
    entryTable->setItem(row, 2, new QTableWidgetItem(type));
    entryTable->setItem(row, 3, new QTableWidgetItem(item.timeText));
}

void ImagePage::LoadFiles(Item* item, QTreeWidget* view, QTreeWidgetItem* parentNode)
{
    if (!item || !parentNode)
        return;
    for (Item& child : item->children) {
        if (!child.isDir)
            continue;
        QTreeWidgetItem* const node = createNode(&child);
        if (view)
            view->addTopLevelItem(node);
        else
            parentNode->addChild(node);
        LoadFiles(&child, nullptr, node);
    }
}

QTreeWidgetItem* ImagePage::createNode(Item* item) const
{
    QTreeWidgetItem* const node = new QTreeWidgetItem({item->GetName()});
    node->setIcon(0, folderIcon);
    node->setData(0, Qt::UserRole, QVariant::fromValue(item));
    return node;
}

QTreeWidgetItem* ImagePage::GetTreeWidgetItemByData(QTreeWidgetItem* node, Item* item) const
{
    if (node->data(0, Qt::UserRole).value<Item*>() == item)
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (QTreeWidgetItem* const found = GetTreeWidgetItemByData(node->child(i), item))
            return found;
    }
    return nullptr;
}

QTreeWidgetItem* ImagePage::GetTreeWidgetItemByData(QTreeWidget* view, Item* item) const
{
    QTreeWidgetItem* const top = view->topLevelItem(0);
    return top ? GetTreeWidgetItemByData(top, item) : nullptr;
}

void ImagePage::OnTreeCurrentChanged()
{
    QTreeWidgetItem* const node = folderView->currentItem();
    if (!node)
        return;
    node->setSelected(true);
    current = node->data(0, Qt::UserRole).value<Item*>();
    RefreshTable();
}

void ImagePage::OnListViewDoubleClicked()
{
    const QTableWidgetItem* const cell = entryTable->currentItem();
    const int row = cell ? cell->row() : -1;
    if (!current || row < 0 || row >= current->children.size() || !current->children[row].isDir)
        return;
    current = &current->children[row];
    RefreshTable();
    RefreshTreeWidget();
}

void ImagePage::RefreshTreeWidget()
{
    QTreeWidgetItem* const node = GetTreeWidgetItemByData(folderView, current);
    if (!node)
        return;
    if (node->parent() && !node->parent()->isExpanded())
        node->parent()->setExpanded(true);
    folderView->clearSelection();
    node->setSelected(true);
    node->setExpanded(true);
    folderView->scrollToItem(node);
}

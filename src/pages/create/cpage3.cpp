// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The page's widgets and what they are connected to.

#include "cpage3.h"

#include "cimagebutton.h"
#include "cmytreewidget.h"
#include "cprogressdialog.h"
#include "nofocusdelegate.h"
#include "pagebutton.h"
#include "pagewidgets.h"
#include "util.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QRadioButton>

namespace
{

const QRect listRectangle(8, 76, 643, 226);
const QRect gaugeRectangle(8, 312, 643, 62);

const char* const listStyle =
    "QTreeWidget { background: #FFFFFF; border: 1px solid #C2EFFD; font-weight: normal;"
    " selection-background-color: #C2EFFD; selection-color: #000000; outline: none; }"
    "QHeaderView::section { font: 13pt; color: black; }"
    "QHeaderView::section:focus { font: 13pt; color: black; }";

const char* const frameStyle = "QFrame#widget { border: 1px solid #C2EFFD; background: #FFFFFF; }";

const char* const barStyle =
    "QProgressBar { border: none; background: #E2F8FE; border-radius: 4px; }"
    "QProgressBar::chunk { background: #00A0E6; border-radius: 4px; }";

const char* const radioStyle = "QRadioButton { color: #333333; spacing: 6px; }"
                               "QRadioButton::indicator { width: 16px; height: 16px; }";

constexpr int columnCount = 5;

QRadioButton* createRadioButton(QWidget* parent, const QString& name)
{
    QRadioButton* const button = new QRadioButton(parent);
    button->setObjectName(name);
    setFontPixels(button, 13);
    button->setStyleSheet(QLatin1String(radioStyle) + radioMarkStyle);
    return button;
}

} // namespace

CPage3::CPage3(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , progress(std::make_unique<CProgressDialog>(this))
    , authoring(*progress)
    , queue(nullptr)
    , stagingFolder(Util::GetTempDir() + "/tmp/")
    , lifetime(this, &queue)
    , folderIcon(iconProvider.icon(QFileIconProvider::Folder))
{
    setObjectName("CPage3");
    SetBackGround(":/nwu/page3");
    createTexts();
    createButtons();
    createList();
    createGauge();
    createTypeChoice();
    createContextMenu();
    updateUI();
    retranslate();
    connect(progress.get(), SIGNAL(SigCancel()), this, SLOT(StopCreate()));
    joliet->setChecked(true);
    // What an earlier page has left there must not get into this one's image.
    queue.AddTask(stagingFolder, QString(), CFileCopy::Delete);
}

CPage3::~CPage3()
{
    queue.stop();
    queue.wait();
}

void CPage3::createTexts()
{
    title = createPageHeading(this, "filebackup", 16);
    title->setGeometry(10, 8, 640, 24);
}

void CPage3::createList()
{
    list = new CMyTreeWidget(this);
    list->setObjectName("list");
    list->setGeometry(listRectangle);
    list->setFixedSize(listRectangle.size());
    setFontPixels(list, 13);
    list->setIndentation(14);
    list->setStyleSheet(listStyle);
    list->setColumnCount(columnCount);
    for (int column = 0; column < columnCount; ++column)
        list->setColumnWidth(column, (list->width() - 2) / columnCount);
    list->header()->setHighlightSections(false);
    list->setSelectionBehavior(QAbstractItemView::SelectRows);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setItemDelegate(new NoFocusDelegate(list));
    list->setAttribute(Qt::WA_MacShowFocusRect, false);
    // All rows have the same height, which spares the list to measure thousands of them.
    list->setUniformRowHeights(true);
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, SIGNAL(pressed(QModelIndex)), this, SLOT(OnTreeClicked(QModelIndex)));
    connect(list, SIGNAL(customContextMenuRequested(QPoint)), this,
            SLOT(OnListContextMenuRequest(QPoint)));
}

void CPage3::createGauge()
{
    QFrame* const frame = new QFrame(this);
    frame->setObjectName("widget");
    frame->setGeometry(gaugeRectangle);
    frame->setFixedSize(gaugeRectangle.size());
    frame->setStyleSheet(frameStyle);
    totalSize = createPageLabel(frame, "totalsize", 13, PageColours::text);
    totalSize->setGeometry(14, 10, 400, 18);
    maxSize = createPageLabel(frame, "label_2", 13, PageColours::softText);
    maxSize->setGeometry(429, 10, 200, 18);
    maxSize->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    gauge = new QProgressBar(frame);
    gauge->setObjectName("progressBar");
    gauge->setGeometry(14, 36, 615, 12);
    gauge->setTextVisible(false);
    gauge->setStyleSheet(barStyle);
    gauge->setRange(0, 100);
    gauge->setValue(0);
}

// In a row of its own width for each, as their texts differ from language to language.
void CPage3::createTypeChoice()
{
    QWidget* const choice = new QWidget(this);
    choice->setGeometry(8, 380, 643, 28);
    QHBoxLayout* const row = new QHBoxLayout(choice);
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(24);
    typeLabel = createPageLabel(choice, "backtype", 13, PageColours::softText);
    joliet = createRadioButton(choice, "jolet");
    iso9660 = createRadioButton(choice, "iso9600");
    udf = createRadioButton(choice, "udf");
    row->addWidget(typeLabel);
    row->addWidget(joliet);
    row->addWidget(iso9660);
    row->addWidget(udf);
    row->addStretch();
}

void CPage3::createButtons()
{
    addFiles = createPageButton(this, "addfile", {8, 38}, SLOT(OnAddFile()));
    addFolders = createPageButton(this, "adddir", {184, 38}, SLOT(OnAddDir()));
    remove = createPageButton(this, "remove", {551, 38}, SLOT(OnRemove()));
    back = createPageButton(this, "back", {11, 417}, SLOT(close()));
    create = createPageButton(this, "create", {531, 417}, SLOT(OnCreate()));
}

void CPage3::createContextMenu()
{
    contextMenu = new QMenu(this);
    addFilesAction = contextMenu->addAction(QString());
    addFoldersAction = contextMenu->addAction(QString());
    removeAction = contextMenu->addAction(QString());
    connect(addFilesAction, SIGNAL(triggered(bool)), this, SLOT(OnAddFile()));
    connect(addFoldersAction, SIGNAL(triggered(bool)), this, SLOT(OnAddDir()));
    connect(removeAction, SIGNAL(triggered(bool)), this, SLOT(OnRemove()));
}

void CPage3::updateUI()
{
    setUpPageButton(addFiles, "addfile", tr("Add Files..."));
    setUpPageButton(addFolders, "adddir", tr("Add Folder..."));
    setUpPageButton(remove, "Remove", tr("Remove"));
    setUpPageButton(create, "Create-IOS", tr("Create ISO"));
    setUpPageButton(back, "Back", tr("Back"));
    addFilesAction->setText(tr("Add Files(&F)"));
    addFoldersAction->setText(tr("Add Dirs(&D)"));
    removeAction->setText(tr("Remove(&R)"));
    // The blank in front of " Size" is part of the text.
    list->setHeaderLabels({tr("File Name"), tr("File Path"), tr(" Size"), tr("Type"), tr("Time")});
}

// The size starts anew as well, until something is added or removed.
void CPage3::retranslate()
{
    setWindowTitle(tr("Dialog"));
    title->setText(tr("File & Folder Backup"));
    totalSize->setText(tr("Total Size : 0 KB"));
    maxSize->setText(tr("Max Size : 5 GB"));
    typeLabel->setText(tr("Backup Type:"));
    joliet->setText(tr("ISO9660 Jolet"));
    iso9660->setText(tr("ISO9660"));
    udf->setText(tr("UDF ISO"));
}

void CPage3::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && contextMenu) {
        updateUI();
        retranslate();
    }
    ImageDialog::changeEvent(event);
}

void CPage3::closeEvent(QCloseEvent* event)
{
    ImageDialog::closeEvent(event);
    authoring.stop();
    lifetime.close();
}

CFileCopy& CPage3::stagingQueue()
{
    return queue;
}

void CPage3::OnTreeClicked(QModelIndex index)
{
    // On empty space: what is added next goes to the image's root.
    if (index.row() < 0)
        list->clearSelection();
}

void CPage3::OnListContextMenuRequest(QPoint)
{
    contextMenu->popup(QCursor::pos());
}

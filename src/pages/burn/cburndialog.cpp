// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The page's widgets, what they are connected to and the rules between them.

#include "cburndialog.h"

#include "cimagebutton.h"
#include "cmycombobox.h"
#include "cprogressdialog.h"
#include "pagebutton.h"
#include "pagewidgets.h"
#include "util.h"

#include <QCloseEvent>
#include <QDebug>
#include <QLabel>
#include <QLineEdit>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QRadioButton>
#include <QRegularExpressionValidator>

namespace
{

constexpr int titlePixels = 14;
constexpr int textPixels = 13;
constexpr int longestVolumeLabel = 11;

constexpr int guidPartitionTable = 1; // in the list of partition styles
constexpr int fat32 = 0;              // in the list of file systems

const char* const pathStyle = "QLineEdit { background-color: white; color: rgb(83, 81, 81);}";

// What the label of a FAT file system cannot hold.
const char* const labelPattern = R"([^"*/:<>?\\|+,.;=\[\]\x00-\x1F\x7F]*)";

QLabel* createHint(QWidget* parent, const QString& name, const QRect& rectangle)
{
    QLabel* const hint = createPageLabel(parent, name, textPixels, PageColours::softText);
    hint->setGeometry(rectangle);
    hint->setWordWrap(true);
    return hint;
}

QLabel* createFieldLabel(QWidget* parent, const QString& name, const QRect& rectangle)
{
    QLabel* const label = createPageLabel(parent, name, textPixels, PageColours::text);
    label->setGeometry(rectangle);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    return label;
}

QRadioButton* createTargetButton(QWidget* parent, const QString& name, QPoint position)
{
    QRadioButton* const button =
        createPageField<QRadioButton>(parent, name, {position, QSize(22, 24)});
    button->setStyleSheet(radioMarkStyle);
    return button;
}

// The first entry with this text, if there is one.
void selectText(QComboBox* list, const QString& text)
{
    const int index = list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index >= 0)
        list->setCurrentIndex(index);
}

} // namespace

QString CBurnDialog::dvdCurrent;

CBurnDialog::CBurnDialog(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , progress(std::make_unique<CProgressDialog>(this))
    , lifetime(this)
{
    setObjectName("CBurnDialog");
    resize(516, 328);
    SetBackGround(":/nwu/page1");
    createImageChoice();
    createDiscPanel();
    createUsbPanel();
    createUsbOptions();
    createButtons();
    updateUI();
    setUpPageButton(browser, "Broswe", tr("Browse"));
    retranslate();
    rdvd->setChecked(true);
    connectAll();
    if (parent)
        connect(parent, SIGNAL(sigdrivechange()), this, SLOT(InitializeUSBAndDVDComboBox()));
    OnRadioSelected();
}

CBurnDialog::~CBurnDialog() = default;

void CBurnDialog::createImageChoice()
{
    isopath = createPageLabel(this, "isopath", titlePixels, PageColours::text);
    isopath->setGeometry(72, 52, 96, 30);
    isofile = createPageField<QLineEdit>(this, "isofile", {172, 52, 284, 30});
    isofile->setStyleSheet(pathStyle);
    browser = createPageButton(this, "browser", {464, 52}, SLOT(onBrowser()));
}

void CBurnDialog::createDiscPanel()
{
    rdvd = createTargetButton(this, "rdvd", {84, 106});
    bootDVD = createPageHeading(this, "bootDVD", titlePixels);
    bootDVD->setGeometry(106, 106, 208, 24);
    bootDVD->installEventFilter(this);
    selectDVD = createHint(this, "selectDVD", {84, 131, 226, 40});
    dvdlist = createPageField<CMyComboBox>(this, "dvdlist", {84, 172, 226, 26});
    static OpticalDriveReader::Pending pendingDrive;
    opticalDrives = std::make_unique<OpticalDriveList>(dvdlist, dvdCurrent, pendingDrive);
}

void CBurnDialog::createUsbPanel()
{
    rusb = createTargetButton(this, "rusb", {350, 106});
    bootUSB = createPageHeading(this, "bootUSB", titlePixels);
    bootUSB->setGeometry(372, 106, 208, 24);
    bootUSB->installEventFilter(this);
    selectUSB = createHint(this, "selectUSB", {350, 131, 226, 40});
    usblist = createPageField<CMyComboBox>(this, "usblist", {350, 172, 226, 26});
}

void CBurnDialog::createUsbOptions()
{
    partitionstyle = createFieldLabel(this, "partitionstyle", {350, 202, 226, 20});
    ptlist = createPageField<QComboBox>(this, "ptlist", {350, 224, 226, 26});
    ptlist->addItems({QString(), QString()});
    filesystem = createFieldLabel(this, "filesystem", {350, 251, 108, 46});
    sysfilelist = createPageField<QComboBox>(this, "sysfilelist", {350, 297, 108, 26});
    // Names for the disk tool, so never translated.
    sysfilelist->addItems({"FAT32", "FAT"});
    volumelabel = createFieldLabel(this, "volumelabel", {466, 251, 114, 46});
    volumelab = createPageField<QLineEdit>(this, "volumelab", {466, 297, 110, 26});
    volumelab->setMaxLength(longestVolumeLabel);
    volumelab->setValidator(
        new QRegularExpressionValidator(QRegularExpression(labelPattern), volumelab));
}

void CBurnDialog::createButtons()
{
    back = createPageButton(this, "back", {384, 346}, SLOT(onBack()));
    burn = createPageButton(this, "burn", {488, 346}, SLOT(onBurn()));
}

void CBurnDialog::connectAll()
{
    connect(volumelab, SIGNAL(textChanged(QString)), this, SLOT(OnVolumeLabTextChange(QString)));
    connect(ptlist, SIGNAL(currentIndexChanged(int)), this, SLOT(OnMBRSelect()));
    connect(rdvd, SIGNAL(toggled(bool)), this, SLOT(OnRadioSelected()));
    connect(dvdlist, SIGNAL(dropdownclicked()), this, SLOT(OnRefresh()));
    connect(usblist, SIGNAL(dropdownclicked()), this, SLOT(OnRefresh()));
}

void CBurnDialog::updateUI()
{
    // Another text than at first; both are meant so.
    setUpPageButton(browser, "Broswe", tr("Browser"));
    setUpPageButton(back, "backwhite", tr("Back"));
    setUpPageButton(burn, "burn", tr("Burn"));
}

void CBurnDialog::retranslate()
{
    setWindowTitle(tr("Dialog"));
    isopath->setText(tr("ISO Image:"));
    bootDVD->setText(tr("Create A Bootable DVD/CD"));
    selectDVD->setText(tr("Select a target disc then click BURN button"));
    bootUSB->setText(tr("Create A Bootable USB"));
    selectUSB->setText(tr("Select a target USB then click BURN button"));
    partitionstyle->setText(tr("Partition Style"));
    ptlist->setItemText(0, tr("MBR(for legacy BIOS/CSM boot)"));
    ptlist->setItemText(guidPartitionTable, tr("GPT(required for UEFI boot)"));
    filesystem->setText(tr("File System"));
    volumelabel->setText(tr("Volume Label(Max 11 Chars)"));
    rdvd->setAccessibleName(bootDVD->text());
    rusb->setAccessibleName(bootUSB->text());
    isofile->setAccessibleName(isopath->text());
    dvdlist->setAccessibleName(selectDVD->text());
    usblist->setAccessibleName(selectUSB->text());
    ptlist->setAccessibleName(partitionstyle->text());
    sysfilelist->setAccessibleName(filesystem->text());
    volumelab->setAccessibleName(volumelabel->text());
}

void CBurnDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && burn) {
        updateUI();
        retranslate();
    }
    ImageDialog::changeEvent(event);
}

void CBurnDialog::closeEvent(QCloseEvent* event)
{
    ImageDialog::closeEvent(event);
    lifetime.close();
}

bool CBurnDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto* const release = static_cast<QMouseEvent*>(event);
        const auto* const title = static_cast<QWidget*>(watched);
        if (release->button() == Qt::LeftButton && title->rect().contains(release->pos()))
            (title == bootDVD ? rdvd : rusb)->setChecked(true);
    }
    return ImageDialog::eventFilter(watched, event);
}

void CBurnDialog::onBrowser()
{
    const PageLifetime::Step step(lifetime);
    const QString path = Util::GetOpenFileDialog(this, "ISO Files(*.ISO)");
    if (!path.isEmpty() && QFile::exists(path))
        isofile->setText(path);
}

void CBurnDialog::onBack()
{
    close();
}

void CBurnDialog::OnRadioSelected()
{
    const PageLifetime::Step step(lifetime);
    const bool isDisc = rdvd->isChecked();
    dvdlist->setEnabled(isDisc);
    for (QWidget* const option :
         {static_cast<QWidget*>(usblist), static_cast<QWidget*>(ptlist),
          static_cast<QWidget*>(sysfilelist), static_cast<QWidget*>(volumelab)})
        option->setEnabled(!isDisc);
    const QString disc = dvdlist->currentText();
    const QString disk = usblist->currentText();
    InitializeUSBAndDVDComboBox(0);
    selectText(dvdlist, disc);
    selectText(usblist, disk);
}

void CBurnDialog::OnMBRSelect()
{
    const bool isGpt = ptlist->currentIndex() == guidPartitionTable;
    if (isGpt)
        sysfilelist->setCurrentIndex(fat32);
    sysfilelist->setEnabled(!isGpt);
}

void CBurnDialog::OnVolumeLabTextChange(QString text)
{
    const QString upper = text.toUpper();
    if (text == upper)
        return;
    // What is before the cursor may grow: the upper case of some letters is two.
    const int cursor = text.left(volumelab->cursorPosition()).toUpper().size();
    volumelab->setText(upper);
    volumelab->setCursorPosition(cursor);
}

void CBurnDialog::onerror(QProcess::ProcessError error)
{
    qDebug() << "onerror " << error;
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// The page's widgets, what they are connected to, and its list of drives.

#include "cpage5.h"

#include "cimagebutton.h"
#include "cmycombobox.h"
#include "cprogressdialog.h"
#include "cruncommandthread.h"
#include "discburncommand.h"
#include "pagebutton.h"
#include "pagewidgets.h"
#include "runners.h"
#include "util.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

namespace
{

constexpr int titlePixels = 16;
constexpr int headingPixels = 14;
constexpr int textPixels = 13;

QLabel* createHeading(QWidget* parent, const QString& name, int pixels, const QRect& rectangle)
{
    QLabel* const heading = createPageHeading(parent, name, pixels);
    heading->setGeometry(rectangle);
    return heading;
}

QLabel* createFieldLabel(QWidget* parent, const QString& name, const QRect& rectangle)
{
    QLabel* const label = createPageLabel(parent, name, textPixels, PageColours::text);
    label->setGeometry(rectangle);
    label->setWordWrap(true);
    return label;
}

} // namespace

QString CPage5::dvdCurrent;

CPage5::CPage5(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , progress(std::make_unique<CProgressDialog>(this))
    , lifetime(this)
{
    setObjectName("CPage5");
    SetBackGround(":/nwu/page5");
    makeimage = createHeading(this, "makeimage", titlePixels, {72, 52, 516, 30});
    createSourcePanel();
    createDestinationPanel();
    createButtons();
    updateUI();
    retranslate();
    connect(progress.get(), SIGNAL(SigCancel()), this, SLOT(StopCreate()));
    if (parent)
        connect(parent, SIGNAL(sigdrivechange()), this, SLOT(InitializeDVDComboBox()));
    InitializeDVDComboBox();
}

CPage5::~CPage5() = default;

void CPage5::createSourcePanel()
{
    source = createHeading(this, "source", headingPixels, {84, 104, 492, 24});
    select = createFieldLabel(this, "select", {84, 135, 140, 40});
    dvdlist = createPageField<CMyComboBox>(this, "dvdlist", {228, 140, 308, 30});
    eject = createPageButton(this, "eject", {544, 140}, SLOT(OnEject()));
    static OpticalDriveReader::Pending pendingDrive;
    opticalDrives = std::make_unique<OpticalDriveList>(dvdlist, dvdCurrent, pendingDrive);
}

void CPage5::createDestinationPanel()
{
    destination = createHeading(this, "destination", headingPixels, {84, 208, 492, 24});
    output = createFieldLabel(this, "output", {84, 239, 140, 40});
    formatlist = createPageField<QComboBox>(this, "formatlist", {228, 244, 308, 30});
    formatlist->addItem(QString());
    location = createFieldLabel(this, "location", {84, 279, 140, 40});
    lineEdit = createPageField<QLineEdit>(this, "lineEdit", {228, 284, 308, 30});
    browser = createPageButton(this, "browser", {544, 284}, SLOT(OnBrowser()));
}

void CPage5::createButtons()
{
    back = createPageButton(this, "back", {384, 346}, SLOT(close()));
    start = createPageButton(this, "start", {488, 346}, SLOT(OnStart()));
}

void CPage5::updateUI()
{
    setUpPageButton(browser, "filedialog", QString());
    setUpPageButton(eject, "refresh", QString());
    setUpPageButton(back, "backwhite", tr("Back"));
    setUpPageButton(start, "start", tr("Start"));
}

void CPage5::retranslate()
{
    setWindowTitle(tr("Dialog"));
    makeimage->setText(tr("Make Image From Disc"));
    source->setText(tr("Source"));
    select->setText(tr("Select a CD/DVD drive:"));
    destination->setText(tr("Destination"));
    output->setText(tr("Output Format:"));
    formatlist->setItemText(0, tr("ISO Format"));
    location->setText(tr("Location"));
    dvdlist->setAccessibleName(select->text());
    formatlist->setAccessibleName(output->text());
    lineEdit->setAccessibleName(location->text());
    browser->setAccessibleName(tr("Choose a file"));
    browser->setToolTip(browser->accessibleName());
    eject->setAccessibleName(tr("Eject"));
    eject->setToolTip(eject->accessibleName());
}

void CPage5::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && start) {
        updateUI();
        retranslate();
    }
    ImageDialog::changeEvent(event);
}

void CPage5::closeEvent(QCloseEvent* event)
{
    ImageDialog::closeEvent(event);
    lifetime.close();
}

void CPage5::InitializeDVDComboBox()
{
    opticalDrives->startReading();
    opticalDrives->clear();
    // What an unfinished refresh would still add is in the next answer as well.
    refresh.stop();
    refresh.startListing(this, SLOT(onLineOutput(QString)), nullptr, "drutil", {"status"});
}

void CPage5::onLineOutput(QString line)
{
    if (!refresh.isLate(sender()))
        opticalDrives->readLine(line);
}

void CPage5::OnBrowser()
{
    const PageLifetime::Step step(lifetime);
    const QString path = Util::GetSaveDialog(this, "ISO Files(*.ISO)");
    if (!path.isEmpty())
        lineEdit->setText(path);
}

void CPage5::OnEject()
{
    if (dvdlist->currentIndex() < 0)
        return;
    CRunCommandThread* const runner = createFreeRunner();
    runner->SetRunCmd(discImageProgram(), ejectDiscArguments(dvdlist->currentData().toString()));
    runner->start(QThread::InheritPriority);
}

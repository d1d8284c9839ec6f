// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Making the image of a disc.

#include "cpage5.h"
#include "cprogressdialog.h"
#include "cruncommandthread.h"
#include "discburncommand.h"
#include "discprogress.h"
#include "mounttable.h"
#include "runners.h"
#include "util.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QScopedValueRollback>

QString currdev;

namespace
{

constexpr int wholeProgress = 10000; // hundredths of a percent

} // namespace

void CPage5::OnStart()
{
    // The wait for the mount point processes events; a second press during it means nothing.
    if (starting)
        return;
    const QScopedValueRollback<bool> guard(starting, true);
    const PageLifetime::Step step(lifetime);
    if (dvdlist->currentIndex() < 0) {
        // Not about the drive, and without a full stop: the text has always been this one.
        Util::ShowError(tr("Please select the iso file to save"));
        return;
    }
    imagePath = lineEdit->text();
    if (imagePath.isEmpty()) {
        Util::ShowError(tr("Please select the iso file to save."));
        return;
    }
    currdev = dvdlist->currentData().toString();
    findMountPoint();
    if (lifetime.isClosed())
        return;
    progress->SetRange(0, wholeProgress);
    progress->SetValue(0);
    copy.start(this, SLOT(OnReadLineOutput(QString)), SLOT(OnReadFinished()), discImageProgram(),
               imageOfDiscArguments(imagePath, mountPoint));
    progress->SetText(tr("Start reading..."));
    progress->show();
    progress->DisableCancel();
}

void CPage5::findMountPoint()
{
    mountPoint.clear();
    CRunCommandThread runner(nullptr);
    connect(&runner, SIGNAL(standoutputline(QString)), this, SLOT(onMountPointLineOutput(QString)));
    runner.collectOutput = true;
    runToEnd(runner, "mount", {});
    for (const QString& line : qAsConst(runner.outputLines))
        onMountPointLineOutput(line);
}

void CPage5::onMountPointLineOutput(QString line)
{
    if (const auto found = mountPointInLine(line, currdev))
        mountPoint = *found;
}

void CPage5::OnReadLineOutput(QString line)
{
    if (copy.isLate(sender()))
        return;
    if (const auto done = readDiscProgress(line, wholeProgress))
        progress->SetValue(*done);
}

void CPage5::OnReadFinished()
{
    // A stop that came just before this signal has ended the copy already.
    if (copy.isLate(sender()))
        return;
    copy.forget();
    progress->hide();
    Util::ShowOpen(tr("Copy CD/DVD successfully!"), QFileInfo(imagePath).absolutePath());
}

void CPage5::StopCreate()
{
    copy.stop();
}

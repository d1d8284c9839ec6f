// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Saving the edited image: the waits for the work folder, then the authoring tool.

#include "copywait.h"
#include "cpage4.h"
#include "cprogressdialog.h"
#include "mkisofscommand.h"
#include "util.h"

#include <QDebug>

void CPage4::OnSave()
{
    PageLifetime::Step step(lifetime);
    if (tree.root.children.isEmpty()) {
        Util::ShowError(tr("Please add files or folders first!"));
        return;
    }
    const QString chosen = Util::GetSaveDialog(this, "ISO Files(*.ISO)");
    if (chosen.isEmpty())
        return;
    step.begin();
    cancelled = false;
    waitForUnpacking();
    if (!step.isCurrent() || cancelled)
        return;
    qDebug() << "Extract finished!!!";
    progress->show();
    waitForCopies(queue, *progress, tr("Copy files and directories..."));
    if (!step.isCurrent() || cancelled)
        return;
    qDebug() << "file copy finished!!!";
    authoring.announce(tr("Saving ISO file..."));
    // The boot image that goes into the new image is the one among the program's data.
    const QString bootImage = Util::GetTempDir() + '/' + bootImageName();
    const bool withBootImage = Util::IsFileExists(bootImage);
    if (withBootImage)
        Util::FileCopy(bootImage, workFolder + bootImageName());
    authoring.start(this, chosen,
                    mkisofsSaveArguments(chosen, workFolder.chopped(1), withBootImage));
}

void CPage4::OnCreateOutput(QString line)
{
    authoring.read(sender(), line);
}

void CPage4::OnCreateFinished()
{
    authoring.finish(sender(), tr("Save ISO file successfully!"));
}

// A wait goes on until its phase ends, and the save with it.
void CPage4::StopCreate()
{
    authoring.stop();
    cancelled = true;
    // Until the unpacking begins, all that is queued is the emptying of the work folder for it.
    if (preparation.isActive())
        return;
    // The task in progress goes on: what is queued next, a save too, comes after it.
    queue.ReplaceTasks(QString(), QString(), CFileCopy::Nothing);
}

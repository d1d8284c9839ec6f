// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Writing the image: the wait for the copies, the authoring tool and its progress.

#include "copywait.h"
#include "cpage3.h"
#include "cprogressdialog.h"
#include "mkisofscommand.h"
#include "util.h"

#include <QRadioButton>

void CPage3::OnCreate()
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
    progress->show();
    // Stop hides the dialog during the wait and no more: the image is written all the same.
    waitForCopies(queue, *progress, tr("Copy files and folders..."));
    if (!step.isCurrent())
        return;
    authoring.announce(tr("Creating ISO file..."));
    const auto type = chosenType();
    if (!type) {
        Util::ShowError(tr("Please select one type"));
        return;
    }
    authoring.stop();
    authoring.start(this, chosen, mkisofsCreateArguments(*type, chosen, stagingFolder.chopped(1)));
}

std::optional<BackupType> CPage3::chosenType() const
{
    if (joliet->isChecked())
        return BackupType::Joliet;
    if (iso9660->isChecked())
        return BackupType::Iso9660;
    if (udf->isChecked())
        return BackupType::Udf;
    return std::nullopt;
}

void CPage3::OnCreateOutput(QString line)
{
    authoring.read(sender(), line);
}

void CPage3::OnCreateFinished()
{
    authoring.finish(sender(), tr("Create ISO successfully!"));
}

void CPage3::StopCreate()
{
    authoring.stop();
    progress->hide();
}

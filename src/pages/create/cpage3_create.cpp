// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// Writing the image: the wait for the copies, the authoring tool and its progress.

#include "copywait.h"
#include "cpage3.h"
#include "cprogressdialog.h"
#include "debugstreams.h"
#include "mkisofscommand.h"
#include "mkisofsprogress.h"
#include "util.h"

#include <QFileInfo>
#include <QRadioButton>

void CPage3::OnCreate()
{
    const PageLifetime::Step step(lifetime);
    if (tree.root.children.isEmpty()) {
        Util::ShowError(tr("Please add files or folders first!"));
        return;
    }
    const QString chosen = Util::GetSaveDialog(this, "ISO Files(*.ISO)");
    if (chosen.isEmpty() || !waitForStaging())
        return;
    progress->SetText(tr("Creating ISO file..."));
    progress->SetRange(0, 10000);
    progress->SetValue(0);
    const auto type = chosenType();
    if (!type) {
        Util::ShowError(tr("Please select one type"));
        return;
    }
    isoPath = chosen;
    run.stop();
    run.start(this, SLOT(OnCreateOutput(QString)), SLOT(OnCreateFinished()), mkisofsProgram(),
              mkisofsCreateArguments(*type, isoPath, stagingFolder.chopped(1)));
}

// Stop hides the dialog during the wait and no more: the image is written all the same.
bool CPage3::waitForStaging()
{
    const int ours = ++creation;
    progress->show();
    const bool complete = waitForCopies(queue, *progress, tr("Copy files and folders..."));
    return complete && ours == creation;
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
    qCDebug(toolOutput) << "CPage3::OnCreateOutput" << line;
    if (run.isLate(sender()))
        return;
    if (const auto hundredths = readMkisofsProgress(line))
        progress->SetValue(*hundredths);
}

void CPage3::OnCreateFinished()
{
    // A Stop that came just before this signal has ended the run already.
    if (run.isLate(sender()))
        return;
    run.forget();
    progress->hide();
    Util::ShowOpen(tr("Create ISO successfully!"), QFileInfo(isoPath).absolutePath());
}

void CPage3::StopCreate()
{
    run.stop();
    progress->hide();
}

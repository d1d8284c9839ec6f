// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// What every burn begins with, and burning a disc.

#include "awaitresult.h"
#include "cburndialog.h"
#include "cmycombobox.h"
#include "commandtext.h"
#include "cprogressdialog.h"
#include "cruncommandthread.h"
#include "discburncommand.h"
#include "discprogress.h"
#include "gerneraldialog.h"
#include "imagemount.h"
#include "runners.h"
#include "usbwritercommand.h"
#include "util.h"

#include <QDebug>
#include <QFileInfo>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopedValueRollback>

namespace
{

QString runImageTool(const QString& command)
{
    return QString::fromUtf8(awaitResult(
        [&command] { return runCommandText(command, {}, Patience::Limited, Overdue::Keep); }));
}

// The tools take a leading "-" for a switch and a leading "@" for a list of files.
QString asToolArgument(const QString& path)
{
    return path.startsWith('-') || path.startsWith('@') ? "./" + path : path;
}

// Mounts an image to look into it. It stays mounted when its install.wim is too large for the file
// system of a USB disk; then the result is its mount point.
std::optional<QString> mountIfLarge(const QString& isoPath)
{
    const QString output = runImageTool(mountImageCommand(isoPath));
    qDebug() << output;
    const auto mountPoint = imageMountPointOf(output);
    if (!mountPoint || isTooLargeForFat(QFileInfo(installWimOf(*mountPoint)).size()))
        return mountPoint;
    runImageTool(unmountImageCommand(*mountPoint));
    return std::nullopt;
}

} // namespace

void CBurnDialog::onBurn()
{
    // The blocking steps process events; a second press during them means nothing.
    if (burning)
        return;
    const QScopedValueRollback<bool> guard(burning, true);
    const PageLifetime::Step step(lifetime);
    const QString isoPath = asToolArgument(isofile->text().trimmed());
    if (!QFileInfo(isoPath).isFile()) {
        showNotice(":/nwu/burn-fails", tr("Burn Failed! Do as following:\n1.Try to burn again.\n"
                                          "2.Change another USB drive or DVD."));
        return;
    }
    std::optional<QString> largeImage;
    if (isoPath.endsWith(".iso", Qt::CaseInsensitive))
        largeImage = mountIfLarge(isoPath);
    if (lifetime.isClosed())
        return;
    if (rusb->isChecked())
        writeUsb(isoPath, largeImage);
    else
        burnDisc(isoPath);
}

void CBurnDialog::showNotice(const QString& picture, const QString& text)
{
    GerneralDialog notice(this);
    notice.SetBackGround(picture, text);
    notice.AddOK(123, 0);
    notice.exec();
}

// The tool burns in the background; it is not told which drive is chosen.
void CBurnDialog::burnDisc(const QString& isoPath)
{
    if (dvdlist->currentIndex() < 0)
        return;
    progress->show();
    progress->DisableCancel();
    progress->SetRange(0, 100);
    progress->SetValue(0);
    progress->SetText(tr("Burning the disc..."));
    CRunCommandThread* const runner = createFreeRunner();
    connect(runner, SIGNAL(sigfinished()), this, SLOT(onDVDBurnFinished()));
    connect(runner, SIGNAL(standoutputline(QString)), this, SLOT(onDVDBurnOutput(QString)));
    runner->SetRunCmd(discImageProgram(), burnDiscArguments(isoPath));
    runner->start(QThread::InheritPriority);
}

void CBurnDialog::onDVDBurnOutput(QString line)
{
    if (const auto percent = readDiscProgress(line, 100))
        progress->SetValue(*percent);
}

void CBurnDialog::onDVDBurnFinished()
{
    progress->hide();
    Util::ShowError(tr("Burning disc successfully."));
}

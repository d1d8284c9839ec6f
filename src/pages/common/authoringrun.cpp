// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "authoringrun.h"

#include "cprogressdialog.h"
#include "debugstreams.h"
#include "mkisofscommand.h"
#include "mkisofsprogress.h"
#include "util.h"

#include <QFileInfo>

namespace
{

constexpr int wholeProgress = 10000; // hundredths of a percent

} // namespace

AuthoringRun::AuthoringRun(CProgressDialog& pageProgress)
    : progress(pageProgress)
{
}

void AuthoringRun::announce(const QString& text)
{
    progress.SetText(text);
    progress.SetRange(0, wholeProgress);
    progress.SetValue(0);
}

void AuthoringRun::start(QObject* page, const QString& newIsoPath, const QStringList& arguments)
{
    isoPath = newIsoPath;
    run.start(page, SLOT(OnCreateOutput(QString)), SLOT(OnCreateFinished()), mkisofsProgram(),
              arguments);
}

void AuthoringRun::stop()
{
    run.stop();
}

// The tag in the debug stream is the Create page's, whichever page it is.
void AuthoringRun::read(const QObject* sender, const QString& line)
{
    qCDebug(toolOutput) << "CPage3::OnCreateOutput" << line;
    if (run.isLate(sender))
        return;
    if (const auto hundredths = readMkisofsProgress(line))
        progress.SetValue(*hundredths);
}

void AuthoringRun::finish(const QObject* sender, const QString& message)
{
    // A Stop that came just before this signal has ended the run already.
    if (run.isLate(sender))
        return;
    run.forget();
    progress.hide();
    Util::ShowOpen(message, QFileInfo(isoPath).absolutePath());
}

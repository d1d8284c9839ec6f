// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "tour_common.h"

#include "slowedtool.h"
#include "tourfailure.h"

#include <QDir>
#include <QProgressBar>

namespace
{

// From here on there is something to see on the progress bar.
constexpr int percentToShow = 25;
constexpr int mostSteps = 100;

int shownPercent()
{
    const auto* bar = qobject_cast<QProgressBar*>(visibleWidget("CProgressDialog", "progressBar"));
    return bar && bar->maximum() > 0 ? bar->value() * 100 / bar->maximum() : -1;
}

} // namespace

void photographProgress(Tour& tour, SlowedTool& tool, const QString& picture, const QString& done)
{
    tool.waitForPause();
    tour.user.waitForWindow("CProgressDialog");
    for (int step = 0; tour.user.see(shownPercent) < percentToShow; ++step) {
        require(step < mostSteps, "The progress bar does not advance.");
        require(tour.user.see(shownPercent) >= 0, "The progress dialog has gone too early.");
        tool.step();
    }
    tour.album.add(picture, tour.user.photograph(), done,
                   {QString("progress: %1%").arg(tour.user.see(shownPercent)),
                    "text: " + tour.user.texts("CProgressDialog").join(" | ")});
}

void closeSuccess(Tour& tour, const QString& message, const QString& picture, const QString& done)
{
    tour.user.waitUntilGone("CProgressDialog");
    tour.user.waitFor("the success message",
                      [] { return visibleWidget("CommDialog", "btnok") != nullptr; });
    const QStringList texts = tour.user.texts("CommDialog");
    require(texts == QStringList(message), "The message says " + texts.join(" | "));
    tour.album.add(picture, tour.user.photograph(), done, {"message: " + texts.join(" | ")});
    tour.user.click("CommDialog", "btnok");
    tour.user.waitUntilGone("CommDialog");
}

QStringList entryNames(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

void requireSame(QStringList shown, QStringList expected)
{
    shown.sort();
    expected.sort();
    require(shown == expected,
            "Shown is " + shown.join(", ") + " instead of " + expected.join(", "));
}

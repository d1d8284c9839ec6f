// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "benchpage.h"

#include "sevenzipcommand.h"
#include "statistics.h"

#include <QApplication>
#include <QTableWidget>

BenchPage::BenchPage()
    : CPage2(nullptr)
{
    InitializeUI();
}

double BenchPage::load(const QString& image)
{
    isLoaded = false;
    const double time = milliseconds([&] {
        SetEnabled(false);
        isoPath = image;
        startListing(sevenZipListArguments(isoPath));
        while (!isLoaded)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    });
    return time;
}

void BenchPage::OnUnzipFinished()
{
    lastViewTime = milliseconds([this] { CPage2::OnUnzipFinished(); });
    isLoaded = true;
}

void BenchPage::enterFirstFolder()
{
    current = &tree.root.children.first();
    RefreshTable();
}

int BenchPage::rows() const
{
    return entryTable->rowCount();
}

double BenchPage::extractAll(const QString& destination)
{
    slotSelectAll(true);
    dialogs.setPath(destination);
    OnExtract();
    return dialogs.waitForMessage();
}

void BenchPage::OnExtractFinished()
{
    lastArchiverTime = dialogs.sinceProgress();
    CPage2::OnExtractFinished();
}

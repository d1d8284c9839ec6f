// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "stagingpagefixture.h"

#include "chosenpaths.h"
#include "testfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QProgressBar>

namespace
{

void appendOutline(const QTreeWidgetItem* parent, const QString& prefix, QStringList* lines)
{
    for (int i = 0; i < parent->childCount(); ++i) {
        const QString line = prefix + parent->child(i)->text(0);
        lines->append(line);
        appendOutline(parent->child(i), line + " > ", lines);
    }
}

} // namespace

StagingPageFixture::StagingPageFixture()
{
    if (!waitUntilStaged())
        qFatal("The staging folder was not emptied");
}

StagingPageFixture::~StagingPageFixture()
{
    if (page)
        page->stagingQueue().ClearAllTasks();
}

void StagingPageFixture::addFiles(const QStringList& paths) const
{
    ChosenPaths::set(paths);
    page->OnAddFile();
}

void StagingPageFixture::addFolders(const QStringList& paths) const
{
    ChosenPaths::set(paths);
    page->OnAddDir();
}

void StagingPageFixture::setSelected(QTreeWidgetItem* row) const
{
    list()->setCurrentItem(row);
    list()->clearSelection();
    if (row)
        row->setSelected(true);
}

void StagingPageFixture::remove(const QStringList& names) const
{
    QTreeWidgetItem* const wanted = row(names);
    if (!wanted)
        qFatal("There is no row %s", qPrintable(names.join(" > ")));
    setSelected(wanted);
    page->OnRemove();
}

QString StagingPageFixture::makeFile(const QString& relative, const QByteArray& content) const
{
    writeFile(path(relative), content);
    return path(relative);
}

QString StagingPageFixture::makeSparseFile(const QString& relative, qint64 bytes) const
{
    makeFile(relative);
    if (!QFile::resize(path(relative), bytes))
        qFatal("Cannot make a file of %lld bytes", bytes);
    return path(relative);
}

QStringList StagingPageFixture::outline() const
{
    QStringList lines;
    appendOutline(list()->invisibleRootItem(), QString(), &lines);
    return lines;
}

QString StagingPageFixture::totalText() const
{
    return page->findChild<QLabel*>("totalsize")->text();
}

int StagingPageFixture::gaugeValue() const
{
    return page->findChild<QProgressBar*>("progressBar")->value();
}

QMap<QString, QByteArray> StagingPageFixture::staged()
{
    QMap<QString, QByteArray> found;
    const QDir folder(stagingFolder());
    QDirIterator entries(folder.path(),
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString entry = folder.relativeFilePath(entries.next());
        if (entries.fileInfo().isDir())
            found.insert(entry + '/', QByteArray());
        else
            found.insert(entry, readFile(entries.filePath()));
    }
    return found;
}

bool StagingPageFixture::holdQueue()
{
    plug = std::make_unique<CopyPlug>(path(".plug"));
    page->stagingQueue().AddTask(plug->path(), path(".plugged"), CFileCopy::Copy);
    return plug->waitUntilReached();
}

void StagingPageFixture::letGo()
{
    plug.reset();
}

bool StagingPageFixture::finish()
{
    letGo();
    return waitUntilStaged();
}

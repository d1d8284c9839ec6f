// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "editcontentfixture.h"

#include "clineedit.h"
#include "extractpagefixture.h"
#include "modaldriver.h"
#include "testfiles.h"
#include "usermouse.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>

namespace
{

const QString gateName = "gate";

void collect(const Item& folder, QStringList& paths)
{
    for (const Item& child : folder.children) {
        paths.append(child.isDir ? child.path + '/' : child.path);
        collect(child, paths);
    }
}

void collect(const QTreeWidgetItem& node, const QString& folder, QStringList& paths)
{
    for (int i = 0; i < node.childCount(); ++i) {
        const QString path = folder + node.child(i)->text(0) + '/';
        paths.append(path);
        collect(*node.child(i), path, paths);
    }
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList namesIn(const Item& folder)
{
    QStringList names;
    for (const Item& child : folder.children)
        names.append(child.GetName());
    return names;
}

QString difference(const QString& what, const QStringList& one, const QStringList& other)
{
    return one == other ? QString()
                        : QString("%1: [%2] and [%3]; ").arg(what, one.join("|"), other.join("|"));
}

} // namespace

QStringList EditContentFixture::usualEntries()
{
    return {"boot/", "boot/grub/",      "boot/grub/grub.cfg", "boot/kernel",
            "docs/", "docs/manual.pdf", "readme.txt",         "autorun.inf"};
}

void EditContentFixture::setImage(const QStringList& entries, const QStringList& unpacking) const
{
    QStringList lines;
    for (const QString& entry : entries)
        lines.append(entry.endsWith('/') ? ExtractPageFixture::folderLine(entry.chopped(1))
                                         : ExtractPageFixture::fileLine(entry, entry.size()));
    setArchiver(lines, unpacking);
}

void EditContentFixture::unpack(const QStringList& entries)
{
    for (const QString& entry : entries) {
        const QString path = workFolder() + '/' + entry;
        if (entry.endsWith('/'))
            QDir().mkpath(path);
        else
            writeFile(path, entry.toUtf8());
    }
}

bool EditContentFixture::open(const QStringList& entries)
{
    setImage(entries);
    const bool loaded = load();
    unpack(entries);
    return loaded;
}

bool EditContentFixture::openHalfway(const QStringList& entries)
{
    const bool isHalfway = startUnpacking(entries);
    unpack(entries);
    return isHalfway;
}

bool EditContentFixture::startUnpacking(const QStringList& entries)
{
    setImage(entries, {gate()});
    startLoading();
    return waitUntilListed() && archiver.isHeld(gateName);
}

QString EditContentFixture::gate() const
{
    return archiver.holding(gateName);
}

bool EditContentFixture::openGate() const
{
    if (!archiver.isHeld(gateName))
        return false;
    archiver.release(gateName);
    return true;
}

Item* EditContentFixture::root() const
{
    const QTreeWidgetItem* const top = tree()->topLevelItem(0);
    return top ? top->data(0, Qt::UserRole).value<Item*>() : nullptr;
}

Item* EditContentFixture::item(const QString& path) const
{
    Item* found = root();
    const QStringList names = path.split('/');
    for (const QString& name : names) {
        const int index = found ? namesIn(*found).indexOf(name) : -1;
        found = index < 0 ? nullptr : &found->children[index];
    }
    return found;
}

QStringList EditContentFixture::modelPaths() const
{
    QStringList paths;
    if (root())
        collect(*root(), paths);
    return sorted(paths);
}

QStringList EditContentFixture::nodePaths() const
{
    QStringList paths;
    if (tree()->topLevelItem(0))
        collect(*tree()->topLevelItem(0), QString(), paths);
    return sorted(paths);
}

QStringList EditContentFixture::pathsIn(const QString& folder)
{
    QStringList paths;
    QDirIterator entries(folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = QDir(folder).relativeFilePath(entries.next());
        paths.append(entries.fileInfo().isDir() ? path + '/' : path);
    }
    return sorted(paths);
}

QString EditContentFixture::disagreement() const
{
    if (!waitUntilWorked())
        return "the work does not end";
    const QStringList model = modelPaths();
    QString result = difference("model and work folder", model, pathsIn(workFolder()));
    result += difference("model and nodes", model.filter(QRegularExpression("/$")), nodePaths());
    const QTreeWidgetItem* const top = tree()->topLevelItem(0);
    // The table shows one of the folders: the one that was opened last.
    const Item* shown = top->data(0, Qt::UserRole).value<Item*>();
    const QList<QTreeWidgetItem*> selected = tree()->selectedItems();
    if (!selected.isEmpty())
        shown = selected.first()->data(0, Qt::UserRole).value<Item*>();
    if (search()->text().isEmpty())
        result += difference("model and table", namesIn(*shown), shownNames());
    return result;
}

QStringList EditContentFixture::rowTexts(const QString& name) const
{
    QStringList texts;
    for (int column = 0; rowOf(name) >= 0 && column < table()->columnCount(); ++column)
        texts.append(table()->item(rowOf(name), column)->text());
    return texts;
}

QStringList EditContentFixture::ticked() const
{
    QStringList names;
    for (int row = 0; row < table()->rowCount(); ++row) {
        if (table()->item(row, 0)->checkState() == Qt::Checked)
            names.append(table()->item(row, 0)->text());
    }
    return names;
}

QStringList EditContentFixture::exportTo(const QStringList& names, const QString& destination) const
{
    QDir().mkpath(destination);
    tick(names);
    ModalDriver driver(60000);
    driver.typePath(destination);
    driver.press("CommDialog", "btnok");
    page->OnExport();
    return driver.texts();
}

QString EditContentFixture::makeFile(const QString& relative, const QByteArray& content) const
{
    writeFile(path(relative), content);
    return path(relative);
}

void EditContentFixture::clickRow(int row, int x) const
{
    const int y = table()->visualItemRect(table()->item(row, 0)).center().y();
    const QPoint point(x, table()->viewport()->mapTo(table(), QPoint(0, y)).y());
    UserMouse::press(table(), point);
    UserMouse::release(table(), point);
}

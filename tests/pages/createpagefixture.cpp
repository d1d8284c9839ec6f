// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "createpagefixture.h"

#include "cfilecopy.h"
#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "modaldriver.h"
#include "processcounts.h"
#include "testfiles.h"
#include "usermouse.h"
#include "util.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

CreatePageFixture::CreatePageFixture()
    : PageFixture(new CPage3(&window))
    , page(window.findChild<CPage3*>())
    , tool(toolPath())
{
}

CreatePageFixture::~CreatePageFixture()
{
    delete page;
}

QString CreatePageFixture::toolPath()
{
    return QCoreApplication::applicationDirPath() + "/cdrtools/mkisofs";
}

QString CreatePageFixture::stagingFolder()
{
    return Util::GetTempDir() + "/tmp";
}

void CreatePageFixture::addFiles(const QStringList& paths) const
{
    ModalDriver driver;
    // The file dialog takes several names in quotes.
    driver.typePath(paths.size() == 1 ? paths.first() : '"' + paths.join("\" \"") + '"');
    page->OnAddFile();
}

void CreatePageFixture::addFolder(const QString& path) const
{
    ModalDriver driver;
    driver.typePath(path);
    page->OnAddDir();
}

void CreatePageFixture::removeSelected() const
{
    page->OnRemove();
}

void CreatePageFixture::select(QTreeWidgetItem* row) const
{
    if (row)
        list()->scrollToItem(row);
    QWidget* const viewport = list()->viewport();
    const QPoint point = row ? list()->visualItemRect(row).center()
                             : QPoint(viewport->width() / 2, viewport->height() - 4);
    UserMouse::press(viewport, point);
    UserMouse::release(viewport, point);
    QCoreApplication::processEvents();
}

QTreeWidgetItem* CreatePageFixture::row(const QStringList& names) const
{
    QTreeWidgetItem* found = list()->invisibleRootItem();
    for (const QString& name : names) {
        QTreeWidgetItem* next = nullptr;
        for (int i = 0; found && i < found->childCount() && !next; ++i) {
            if (found->child(i)->text(0) == name)
                next = found->child(i);
        }
        found = next;
    }
    return found;
}

QStringList CreatePageFixture::texts(const QTreeWidgetItem* row)
{
    QStringList texts;
    for (int column = 0; column < 5; ++column)
        texts.append(row->text(column));
    return texts;
}

void CreatePageFixture::addStaged(const QString& name, const QByteArray& content) const
{
    writeFile(path(name), content);
    addFiles({path(name)});
    QVERIFY(waitUntilStaged());
}

std::unique_ptr<HeldFolder> CreatePageFixture::addHeld(qint64 bytes) const
{
    auto held = std::make_unique<HeldFolder>(path("held"), bytes);
    addFolder(path("held"));
    if (!QTest::qWaitFor([&held] { return held->isHolding(); }, patienceMs))
        qFatal("The copy has not begun");
    return held;
}

bool CreatePageFixture::waitUntilStaged() const
{
    return QTest::qWaitFor([this] { return !page->stagingQueue().HasTasks(); }, patienceMs);
}

void CreatePageFixture::startCreating(const QString& isoPath) const
{
    ModalDriver driver;
    driver.typePath(isoPath);
    page->OnCreate();
}

bool CreatePageFixture::waitForCall(int number) const
{
    return QTest::qWaitFor([this, number] { return tool.calls().size() == number; }, patienceMs);
}

bool CreatePageFixture::isToolGone()
{
    return childProcesses().isEmpty() && processesOf("scriptedtool").isEmpty();
}

bool CreatePageFixture::isUsable() const
{
    return page->isEnabled() && button("create")->isEnabled() && !progress()->isVisible() &&
           !QApplication::activeModalWidget() && !QApplication::overrideCursor();
}

QTreeWidget* CreatePageFixture::list() const
{
    return page->findChild<QTreeWidget*>("list");
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "extractsession.h"

#include "cprogressdialog.h"
#include "modaldriver.h"
#include "usermouse.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace
{

// A dialog that has just come up may not have noticed the mouse yet, so the mouse comes from
// outside. A click that is lost all the same is for the caller to repeat.
void clickIn(QWidget* dialog, const QString& button)
{
    UserMouse::moveAway(dialog);
    UserMouse::click(dialog->findChild<QWidget*>(button));
}

} // namespace

ExtractSession::ExtractSession()
    : page(new CPage2(&window))
{
    window.setFixedSize(860, 580);
    page->setParent(&window);
    page->InitializeUI();
    page->move(195, 107);
    page->show();
    window.show();
}

bool ExtractSession::load(const QString& imagePath, int limitMs)
{
    ModalDriver driver;
    driver.typePath(imagePath);
    page->OnLoadISO();
    return QTest::qWaitFor([this] { return isUsable(); }, limitMs);
}

bool ExtractSession::enter(const QString& name)
{
    const QList<QTableWidgetItem*> cells = table()->findItems(name, Qt::MatchExactly);
    if (cells.isEmpty())
        return false;
    table()->setCurrentItem(cells.first());
    page->OnListViewDoubleClicked();
    return true;
}

bool ExtractSession::tick(const QStringList& names)
{
    page->slotSelectAll(false);
    for (const QString& name : names) {
        bool found = false;
        for (int row = 0; row < table()->rowCount() && !found; ++row) {
            found = table()->item(row, 0)->text() == name;
            if (found)
                table()->item(row, 0)->setCheckState(Qt::Checked);
        }
        if (!found)
            return false;
    }
    return true;
}

void ExtractSession::beginExtraction(const QString& folder)
{
    ModalDriver driver;
    driver.typePath(folder);
    page->OnExtract();
}

// The progress dialog is modal as well, so the message is whichever other dialog comes.
QString ExtractSession::waitForSuccess(int limitMs)
{
    QString text;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&text] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog || qobject_cast<CProgressDialog*>(dialog))
            return;
        text = dialog->findChild<QLabel*>("label")->text();
        clickIn(dialog, "btnok");
    });
    poll.start(2);
    const auto isOver = [this, &text] { return !text.isNull() && isUsable(); };
    return QTest::qWaitFor(isOver, limitMs) ? text : QString();
}

void ExtractSession::pressStop()
{
    QWidget* const dialog = progressDialog();
    for (int attempt = 0; dialog->isVisible() && attempt < 100; ++attempt)
        clickIn(dialog, "btncancel");
}

QTableWidget* ExtractSession::table() const
{
    return page->findChild<QTableWidget*>("list");
}

namespace
{

void collectPaths(const Item& folder, QStringList& paths)
{
    for (const Item& child : folder.children) {
        paths.append(child.path);
        collectPaths(child, paths);
    }
}

} // namespace

QStringList ExtractSession::allPaths() const
{
    const QTreeWidget* const view = page->findChild<QTreeWidget*>("tree");
    const Item* const root = view->topLevelItem(0)->data(0, Qt::UserRole).value<Item*>();
    QStringList paths;
    collectPaths(*root, paths);
    paths.sort();
    return paths;
}

bool ExtractSession::isUsable() const
{
    return page->isEnabled() && page->findChild<QWidget*>("loadiso")->isEnabled() &&
           page->findChild<QWidget*>("extract")->isEnabled() &&
           page->findChild<QWidget*>("back")->isEnabled() && !QApplication::overrideCursor();
}

QWidget* ExtractSession::progressDialog() const
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const candidate : windows) {
        if (qobject_cast<CProgressDialog*>(candidate) && candidate->isVisible())
            return candidate;
    }
    return nullptr;
}

QProgressBar* ExtractSession::progressBar() const
{
    return progressDialog()->findChild<QProgressBar*>();
}

QLabel* ExtractSession::progressText() const
{
    return progressDialog()->findChild<QLabel*>("label");
}

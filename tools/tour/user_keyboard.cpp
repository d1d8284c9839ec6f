// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// What the user types, and the double click, which the mouse helper does not know. The events go
// straight to the widgets: without a window manager, no window has the keyboard.

#include "tourfailure.h"
#include "user.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

namespace
{

QLineEdit* nameLine()
{
    return qobject_cast<QLineEdit*>(visibleWidget("QFileDialog", "fileNameEdit"));
}

QAbstractButton* acceptButton()
{
    const auto* box = qobject_cast<QDialogButtonBox*>(visibleWidget("QFileDialog", "buttonBox"));
    if (!box)
        return nullptr;
    for (QAbstractButton* const button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            return button;
    }
    return nullptr;
}

} // namespace

void User::typePath(const QString& path) const
{
    waitFor("a file dialog", [] { return nameLine() && acceptButton(); });
    require(see([&] {
                QLineEdit* const line = nameLine();
                line->setFocus();
                line->selectAll();
                for (const QChar character : path)
                    QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(character),
                                        Qt::NoModifier);
                // The list of suggestions takes the next click away from the dialog.
                line->completer()->popup()->hide();
                return line->text() == path;
            }),
            "The file dialog does not take " + path);
}

void User::acceptFileDialog() const
{
    waitFor("a file dialog that can be accepted",
            [] { return acceptButton() && acceptButton()->isEnabled(); });
    clickAt([] { return acceptButton(); }, [] { return acceptButton()->rect().center(); });
    waitUntilGone("QFileDialog");
}

void User::pressEscape() const
{
    act([] {
        if (QWidget* const popup = QApplication::activePopupWidget())
            QTest::keyClick(popup, Qt::Key_Escape);
    });
}

void User::doubleClickRow(const QString& text) const
{
    clickRow(text);
    act([=] {
        QWidget* const viewport = visibleList()->viewport();
        const QPoint position = rowRectangle(text).center();
        QTest::mouseDClick(viewport->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                           viewport->mapTo(viewport->window(), position));
    });
}

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
#include <QTest>

namespace
{

QLineEdit* nameLine()
{
    return qobject_cast<QLineEdit*>(visibleWidget("QFileDialog", "fileNameEdit"));
}

void typeText(QLineEdit* line, const QString& text)
{
    line->setFocus();
    line->selectAll();
    QTest::keyClick(line, Qt::Key_Delete);
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
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
                typeText(nameLine(), path);
                // The list of suggestions takes the next click away from the dialog.
                nameLine()->completer()->popup()->hide();
                return nameLine()->text() == path;
            }),
            "The file dialog does not take " + path);
}

void User::typeInto(const QString& owner, const QString& name, const QString& text) const
{
    const auto line = [&] { return qobject_cast<QLineEdit*>(visibleWidget(owner, name)); };
    waitFor(QString("a line edit \"%1\" in %2").arg(name, owner), [&] { return line(); });
    require(see([&] {
                typeText(line(), text);
                return line()->text() == text;
            }),
            "The line edit does not take " + text);
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

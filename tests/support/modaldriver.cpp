// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "modaldriver.h"

#include "usermouse.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace
{

constexpr int interval = 2; // ms

// Shown so far that it can be clicked.
bool isOpen(const QWidget* dialog)
{
    return dialog->isVisible() && dialog->windowHandle() && dialog->windowHandle()->isExposed();
}

QString textOf(const QWidget* dialog)
{
    QStringList texts;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        if (!label->text().isEmpty())
            texts.append(label->text());
    }
    return texts.join('\n');
}

QAbstractButton* acceptButtonOf(const QWidget* dialog)
{
    const auto* box = dialog->findChild<QDialogButtonBox*>("buttonBox");
    if (!box)
        return nullptr;
    for (QAbstractButton* button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            return button;
    }
    return nullptr;
}

} // namespace

ModalDriver::ModalDriver(int timeoutMs)
    : timeout(timeoutMs)
{
    QTimer::singleShot(interval, this, SLOT(poll()));
}

ModalDriver::~ModalDriver()
{
    if (!answers.isEmpty())
        QTest::qFail(qPrintable("no dialog came for the answer to " + answers.first().dialogClass),
                     __FILE__, __LINE__);
}

void ModalDriver::run(const QString& dialogClass, const std::function<void(QWidget*)>& step)
{
    answers.append({dialogClass, step});
}

void ModalDriver::press(const QString& dialogClass, const QString& button)
{
    run(dialogClass, [this, button](QWidget* dialog) {
        auto* widget = dialog->findChild<QWidget*>(button);
        if (!widget || !widget->isVisible() || !widget->isEnabled())
            fail("the dialog has no button to press named " + button);
        else
            UserMouse::click(widget);
    });
}

void ModalDriver::key(const QString& dialogClass, Qt::Key key)
{
    run(dialogClass, [key](QWidget* dialog) {
        QWidget* focus = dialog->focusWidget();
        QTest::keyClick(focus ? focus : dialog, key);
    });
}

void ModalDriver::typePath(const QString& path)
{
    run("QFileDialog", [this, path](QWidget* dialog) {
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        QAbstractButton* accept = acceptButtonOf(dialog);
        if (!edit || !accept) {
            fail("the file dialog has no line to type into or no button to accept it");
            return;
        }
        // The first key typed drops the selection of the list; a text that is set adds to it.
        for (QAbstractItemView* view : dialog->findChildren<QAbstractItemView*>("listView"))
            view->clearSelection();
        edit->setFocus();
        edit->setText(path);
        if (!accept->isEnabled())
            fail("the file dialog does not take " + path);
        else
            accept->click();
    });
}

QStringList ModalDriver::texts() const
{
    return seen;
}

bool ModalDriver::done() const
{
    return answers.isEmpty();
}

bool ModalDriver::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched == answered) {
        answered.clear();
        waited = 0;
    }
    return false;
}

void ModalDriver::poll()
{
    // A timer of its own for every look: the answer to one dialog may open the next one and wait
    // for it.
    QTimer::singleShot(interval, this, SLOT(poll()));
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog && isOpen(dialog) && dialog != answered && !isPassedOver(dialog))
        poll(dialog);
    else if ((answered || !answers.isEmpty()) && (waited += interval) > timeout)
        fail(answered ? QString("the dialog that says \"%1\" stayed open").arg(seen.last())
                      : "no dialog came for the answer to " + answers.first().dialogClass);
}

bool ModalDriver::isPassedOver(const QWidget* dialog) const
{
    return dialog->inherits("CProgressDialog") &&
           (answers.isEmpty() || answers.first().dialogClass != "CProgressDialog");
}

void ModalDriver::poll(QWidget* dialog)
{
    const char* name = dialog->metaObject()->className();
    if (answers.isEmpty()) {
        fail(QString("nobody expected a %1 that says \"%2\"").arg(name, textOf(dialog)));
        return;
    }
    const Answer answer = answers.first();
    if (!dialog->inherits(qPrintable(answer.dialogClass))) {
        fail(QString("a %1 that says \"%3\" came instead of a %2")
                 .arg(name, answer.dialogClass, textOf(dialog)));
        return;
    }
    answers.removeFirst();
    waited = 0;
    answered = dialog;
    dialog->installEventFilter(this);
    seen.append(textOf(dialog));
    answer.step(dialog);
}

void ModalDriver::fail(const QString& reason)
{
    answers.clear();
    answered.clear();
    QTest::qFail(qPrintable(reason), __FILE__, __LINE__);
    while (QWidget* modal = QApplication::activeModalWidget()) {
        if (auto* dialog = qobject_cast<QDialog*>(modal))
            dialog->done(QDialog::Rejected);
        modal->hide();
    }
}

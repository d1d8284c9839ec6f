// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "pagefixture.h"

#include "cimagebutton.h"
#include "cprogressdialog.h"
#include "processcounts.h"
#include "usermouse.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

PageFixture::PageFixture(ImageDialog* page)
    : shownPage(page)
{
    window.resize(860, 580);
    page->setParent(&window);
    page->move(195, 107);
    page->SetMoveable(false);
    page->show();
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        qFatal("The window did not show");
}

PageFixture::~PageFixture()
{
    // A mouse that is left on a button would not enter the next test's button in the same place.
    UserMouse::moveAway(&window);
}

void PageFixture::press(const QString& name) const
{
    UserMouse::click(button(name));
}

CImageButton* PageFixture::button(const QString& name) const
{
    return shownPage->findChild<CImageButton*>(name);
}

CProgressDialog* PageFixture::progress() const
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        if (auto* dialog = qobject_cast<CProgressDialog*>(widget))
            return dialog;
    }
    return nullptr;
}

QString PageFixture::progressText() const
{
    return progress()->findChild<QLabel*>("label")->text();
}

int PageFixture::progressValue() const
{
    return progress()->findChild<QProgressBar*>("progressBar")->value();
}

int PageFixture::progressMaximum() const
{
    return progress()->findChild<QProgressBar*>("progressBar")->maximum();
}

QString PageFixture::missedPicture(const QString& name, const QString& picture,
                                   const QString& caption) const
{
    constexpr int style = 3;
    CImageButton* const shown = button(name);
    // At rest, under the mouse and held down: as a button with nothing but that picture looks.
    for (int state = 1; state <= 3; ++state) {
        const QString only = ":/nwu/" + picture + QString::number(state);
        CImageButton expected(shown->parentWidget());
        expected.SetBackGround(only, only, only, only, caption, QString(), style);
        if (state == 1)
            UserMouse::moveAway(shown);
        if (state == 2)
            UserMouse::move(shown, shown->rect().center());
        if (state == 3)
            UserMouse::press(shown, shown->rect().center());
        const bool isSame = QFile::exists(only) && shown->size() == expected.size() &&
                            shown->grab().toImage() == expected.grab().toImage();
        if (state == 3) {
            // Outside, so that nothing is clicked.
            UserMouse::move(shown, {-20, -20});
            UserMouse::release(shown, {-20, -20});
        }
        if (!isSame)
            return only;
    }
    return QString();
}

bool PageFixture::waitWithoutEvents(const std::function<bool()>& condition)
{
    const QDeadlineTimer limit(patienceMs);
    while (!condition() && !limit.hasExpired())
        QThread::msleep(1);
    return condition();
}

// A dialog that has just come up may not have noticed the mouse yet, so the mouse comes from
// outside, and a click that is lost all the same is repeated.
void PageFixture::pressStop() const
{
    QWidget* const dialog = progress();
    for (int attempt = 0; dialog->isVisible() && attempt < 100; ++attempt) {
        UserMouse::moveAway(dialog);
        UserMouse::click(dialog->findChild<QWidget*>("btncancel"));
    }
}

QString PageFixture::path(const QString& relative) const
{
    return folder.filePath(relative);
}

QWidget* PageFixture::message()
{
    QWidget* const dialog = QApplication::activeModalWidget();
    return dialog && !qobject_cast<CProgressDialog*>(dialog) ? dialog : nullptr;
}

bool PageFixture::waitUntilToolsGone(int limitMs)
{
    const auto areGone = [] {
        return areRunnersGone() && childProcesses().isEmpty() &&
               processesOf("scriptedtool").isEmpty();
    };
    const bool gone = QTest::qWaitFor(areGone, limitMs);
    QCoreApplication::processEvents(); // a runner's last words may have come after the last look
    return gone;
}

bool PageFixture::waitUntilAllIsSent(int limitMs)
{
    const QDeadlineTimer limit(limitMs);
    while (!areRunnersGone() && !limit.hasExpired())
        QThread::msleep(1);
    return areRunnersGone();
}

QString PageFixture::waitForMessage(int limitMs) const
{
    return answerMessage([] {}, "btnok", {}, limitMs);
}

QString PageFixture::answerMessage(const std::function<void()>& first, const QString& button,
                                   const std::function<void()>& look, int limitMs) const
{
    QString text;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
        QWidget* const dialog = message();
        if (!dialog)
            return;
        if (look && text.isNull())
            look();
        text = dialog->findChild<QLabel*>("label")->text();
        UserMouse::moveAway(dialog);
        UserMouse::click(dialog->findChild<QWidget*>(button));
    });
    poll.start(2);
    first();
    const auto isOver = [&text] { return !text.isNull() && !QApplication::activeModalWidget(); };
    return QTest::qWaitFor(isOver, limitMs) ? text : QString();
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>

// Answers modal dialogs while the code under test waits inside exec(). Queue the answers first, one
// per dialog in the order in which the dialogs will open, then call the code:
//
//     ModalDriver driver;
//     driver.press("CommDialog", "btnok");
//     page.onBurn();
//     QCOMPARE(driver.texts(), QStringList{"Burn successfully."});
//
// A dialog of another class, a button that is not there, a dialog that does not come in time or one
// that stays open after its answer fails the test and closes every modal dialog, so that nothing
// hangs. Leaving the scope with answers unused fails the test as well. Progress dialogs are passed
// over unless the next answer is for one, as nobody waits for those.
class ModalDriver : public QObject
{
    Q_OBJECT

public:
    // The time limit holds for each dialog anew, for its coming as well as for its going.
    explicit ModalDriver(int timeoutMs = 60'000);
    ~ModalDriver() override;

    // Clicks the child widget with this object name in the next dialog. dialogClass is the class's
    // or a base class's name.
    void press(const QString& dialogClass, const QString& button);
    // Presses a key in the next dialog.
    void key(const QString& dialogClass, Qt::Key key);
    // Writes the path into the next file dialog and accepts it.
    void typePath(const QString& path);
    // Does anything else with the next dialog, which has to close in consequence.
    void run(const QString& dialogClass, const std::function<void(QWidget*)>& step);

    // The label texts of the dialogs answered so far, one entry per dialog, labels joined by "\n".
    QStringList texts() const;
    // Every answer has been used.
    bool done() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void poll();

private:
    struct Answer
    {
        QString dialogClass;
        std::function<void(QWidget*)> step;
    };

    void poll(QWidget* dialog);
    bool isPassedOver(const QWidget* dialog) const;
    void fail(const QString& reason);

    QList<Answer> answers;
    QStringList seen;
    QPointer<QWidget> answered; // until it hides
    int timeout;
    int waited = 0;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class CFileCopy;
class QWidget;

// Frees a page once it is closed and nothing of it is at work any more: a copy in progress ends in
// the background instead of freezing the window, and a step of the page that processes events finds
// the page alive when it goes on.
class PageLifetime : public QObject
{
    Q_OBJECT

public:
    // Of page and its queue, if it has one, which both outlive this object. The page calls close()
    // from its closeEvent().
    explicit PageLifetime(QWidget* page, CFileCopy* queue = nullptr);

    // Stops the queue; the page goes as soon as it can. The page may not be shown again.
    void close();
    bool isClosed() const;

    // A step of the page that processes events. While one lives, the page stays.
    class Step
    {
    public:
        explicit Step(PageLifetime& lifetime);
        ~Step();
        Step(const Step&) = delete;
        Step& operator=(const Step&) = delete;

        // From now on this is what the page is about, in place of any step that is on its way.
        void begin();
        // Whether it still is: the page is open and no other step has begun since.
        bool isCurrent() const;

    private:
        PageLifetime& lifetime;
    };

private slots:
    void freePageIfIdle();

private:
    QWidget* page;
    CFileCopy* queue;
    int steps = 0;
    const Step* currentStep = nullptr;
    bool closed = false;
};

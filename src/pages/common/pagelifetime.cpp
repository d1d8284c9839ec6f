// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "pagelifetime.h"

#include "cfilecopy.h"

#include <QWidget>

PageLifetime::PageLifetime(QWidget* owner, CFileCopy* pageQueue)
    : page(owner)
    , queue(pageQueue)
{
    if (queue)
        connect(queue, SIGNAL(finished()), this, SLOT(freePageIfIdle()));
}

void PageLifetime::close()
{
    closed = true;
    if (queue)
        queue->stop();
    freePageIfIdle();
}

bool PageLifetime::isClosed() const
{
    return closed;
}

void PageLifetime::freePageIfIdle()
{
    if (closed && steps == 0 && (!queue || queue->isFinished()))
        page->deleteLater();
}

PageLifetime::Step::Step(PageLifetime& pageLifetime)
    : lifetime(pageLifetime)
{
    ++lifetime.steps;
}

PageLifetime::Step::~Step()
{
    --lifetime.steps;
    if (lifetime.currentStep == this)
        lifetime.currentStep = nullptr;
    lifetime.freePageIfIdle();
}

void PageLifetime::Step::begin()
{
    lifetime.currentStep = this;
}

bool PageLifetime::Step::isCurrent() const
{
    return !lifetime.closed && lifetime.currentStep == this;
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "macbootabledisk.h"
#include "makebootable.h"

#include <QCoreApplication>

// A package puts the boot loader's files beside the program; without them nothing is changed. The
// system itself makes the files of the mounted partition everybody's.
QString makeBootable(const Order& order)
{
    MacBootableDisk::Setup setup;
    setup.request = order.request;
    setup.bootFiles =
        shippedBootFiles(QCoreApplication::applicationDirPath() + QStringLiteral("/syslinux"));
    setup.say = order.say;
    setup.stopped = order.stopped;
    return MacBootableDisk(setup).make();
}

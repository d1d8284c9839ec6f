// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "makebootable.h"

// The distribution has the boot loader, and an installer of it.
QString makeBootable(const Order& order)
{
    BootableDisk::Setup setup;
    setup.request = order.request;
    setup.bootFiles = findBootFiles(QStringLiteral("/"));
    setup.user = order.user;
    setup.group = order.group;
    setup.say = order.say;
    setup.stopped = order.stopped;
    return BootableDisk(setup).make();
}

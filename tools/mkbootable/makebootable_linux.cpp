// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "handover.h"
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
    // The disk is locked only while it is made bootable.
    const QString error = BootableDisk(setup).make();
    if (!error.isEmpty() || order.user == 0)
        return error;
    return handOver(order.request.disk, order.request.mountPoint, order.user, order.group);
}

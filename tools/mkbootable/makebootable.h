// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "request.h"

#include <QString>

#include <atomic>
#include <functional>
#include <sys/types.h>

// What main() has found out, for the system's own way to make a disk bootable.
struct Order
{
    Request request;
    // Whom the disk is made for, and who may use its files.
    uid_t user = 0;
    gid_t group = 0;
    // Is told each step in one line.
    std::function<void(const QString&)> say;
    const std::atomic<bool>* stopped = nullptr;
};

// Does it, as root. Returns why it failed, as one line; empty on success. Every system has its own.
QString makeBootable(const Order& order);

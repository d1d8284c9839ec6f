// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <memory>

// The test classes that share one virtual machine, in the order in which they run: the last one
// shuts it down.
std::unique_ptr<QObject> makeBurnUsbTest();
std::unique_ptr<QObject> makeBurnTroubleTest();
std::unique_ptr<QObject> makeDiscsTest();
std::unique_ptr<QObject> makeVirtualMachineTest();

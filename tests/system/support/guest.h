// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "guestprogram.h"
#include "virtualmachine.h"

// The one machine of all test classes, with the program in it: to boot it takes as long as the
// longest function of some classes. Made by the main function; the first class that needs the
// machine starts it, and what the classes do to it has no effect on the next.
class Guest
{
public:
    Guest() { current = this; }
    ~Guest() { current = nullptr; }
    Guest(const Guest&) = delete;
    Guest& operator=(const Guest&) = delete;

    static VirtualMachine& sharedMachine() { return current->machine; }
    static GuestProgram& sharedProgram() { return current->program; }

private:
    static inline Guest* current = nullptr;

    VirtualMachine machine;
    GuestProgram program{machine};
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include <cstdio>
#include <cstdlib>

// There is no installer of the boot loader for macOS, so that no disk can be made bootable there.
// It says so and changes nothing.
int main()
{
    std::fputs("mkbootable: the boot loader cannot be installed on macOS; the disk is unchanged\n",
               stderr);
    return EXIT_FAILURE;
}

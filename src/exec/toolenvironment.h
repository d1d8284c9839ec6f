// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>

// The environment of the child processes and the meaning of local 8-bit text. Everything that
// starts a tool uses toolEnvironment(); the process entry calls useUtf8Codec() once.

// What a tool started from an environment like parent runs with: UTF-8 for characters, so that file
// names survive; plain numbers and untranslated messages, so that the output can be read;
// everything else as in parent.
QProcessEnvironment toolEnvironmentFrom(const QProcessEnvironment& parent);

// toolEnvironmentFrom() of this process's own environment, made at the first call. Any thread.
QProcessEnvironment toolEnvironment();

// Makes local 8-bit text UTF-8 in this process whatever the locale says: file names, arguments and
// output of tools. To be called before the application object is built, while there is one thread.
void useUtf8Codec();

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "callexternappwritetostdint.h"

#include "commandtext.h"

callexternappWriteToStdinT::callexternappWriteToStdinT(const QString& commandProgram,
                                                       const QString& commandArgs,
                                                       const QString& stdinText)
    : program(commandProgram)
    , args(commandArgs)
    , input(stdinText)
{
}

QString callexternappWriteToStdinT::output() const
{
    return result;
}

void callexternappWriteToStdinT::run()
{
    result = runLoggedCommand(program, args, input.toLatin1());
}

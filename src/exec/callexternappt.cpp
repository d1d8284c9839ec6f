// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "callexternappt.h"

#include "commandtext.h"

callexternappT::callexternappT(const QString& commandProgram, const QString& commandArgs)
    : program(commandProgram)
    , args(commandArgs)
{
}

QString callexternappT::output() const
{
    return result;
}

void callexternappT::run()
{
    result = runLoggedCommand(program, args);
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "discburncommand.h"

QString discImageProgram()
{
    return "hdiutil";
}

QStringList burnDiscArguments(const QString& imagePath)
{
    return {"burn", "-verbose", "-noverifyburn", imagePath};
}

QStringList imageOfDiscArguments(const QString& imagePath, const QString& mountPoint)
{
    return {"makehybrid", "-iso", "-joliet", "-debug", "-ov", "-o", imagePath, mountPoint};
}

QStringList ejectDiscArguments(const QString& device)
{
    return {"eject", device};
}

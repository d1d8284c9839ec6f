// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootmanager.h"

QByteArray bootManager(const QByteArray& text)
{
    return QByteArray::fromHex("8cc8 8ed8 be1900 fc ac 08c0 7409 b40e bb0700 cd10 ebf2 f4 ebfd") +
           text + '\0';
}

const QByteArray bootMenu = "default boot\nLABEL boot\nMENU LABEL boot\n"
                            "COM32 /syslinux/chain.c32\nAPPEND fs ntldr=/bootmgr\n";

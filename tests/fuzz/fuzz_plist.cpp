// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskutilfacts.h"
#include "plist.h"
#include "require.h"

// Reads damaged property lists, and as the facts about a disk that mkbootable would act on.

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QByteArray xml = inputBytes(data, size);
    const Plist list = readPlist(xml);
    require(list.error.isEmpty() || !list.value.isValid(), "an error with a value");
    require(!list.error.isEmpty() || list.value.isValid(), "neither an error nor a value");
    const DiskutilFacts facts = readDiskutilInfo(xml);
    require(!facts.error.isEmpty() || list.error.isEmpty(), "facts out of a damaged list");
    const QString refused = diskutilRefusal(facts);
    require(!refused.isEmpty() || facts.device.size > 0, "a disk without a size is accepted");
    return 0;
}

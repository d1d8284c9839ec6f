// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "diskrefusal.h"
#include "lsblk.h"
#include "require.h"

// Reads damaged answers of lsblk and asks for each device what mkbootable asks.

namespace
{

void ask(const BlockDevice& device)
{
    const QString refused = refusal(device);
    require(!refused.isEmpty() || (device.isDisk() && device.size > 0 && !device.readOnly),
            "a device is accepted that cannot be written");
    const BlockDevice* first = device.partition(1);
    require(!first || first->isPartition(), "a partition that is none");
    require(device.isSameDisk(device), "a disk is another than itself");
    for (const BlockDevice& child : device.children)
        ask(child);
}

} // namespace

// The toolkit's reader of JSON forgets what it has read of an answer that breaks off.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libQt5Core.so.5\n";
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const BlockDevices read = readBlockDevices(inputBytes(data, size));
    require(read.error.isEmpty() || read.devices.isEmpty(), "an error with devices");
    for (const BlockDevice& device : read.devices)
        ask(device);
    return 0;
}

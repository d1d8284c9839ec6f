// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "volumeservice.h"

#include "desktopvolumes.h"
#include "rootvolumes.h"

#include <unistd.h>

std::unique_ptr<VolumeService> volumeService()
{
    if (::geteuid() == 0)
        return std::make_unique<RootVolumes>();
    return std::make_unique<DesktopVolumes>();
}

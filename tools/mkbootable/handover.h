// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <sys/types.h>

// Has the desktop's disk service mount the partition for the user instead of us, at the same place.
// What root has mounted, the user could neither unmount nor eject nor write anew without the
// administrator's password. Where that service is missing or has another place in mind, the
// partition ends up mounted by us as before. makeBootable() calls it on Linux when the disk is done
// and nobody holds it any more. Returns why the partition is not mounted at the end, empty when it
// is.
QString handOver(const QString& disk, const QString& mountPoint, uid_t user, gid_t group);

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

// Tells whether an archiver still writes into the work folder that an earlier run of the program
// has left behind: the program may be closed while it unpacks, and the archiver goes on without it.
// The Edit page takes the lock before it starts its own, which inherits it and holds it as long as
// it lives. User-interface thread.
class WorkFolderLock
{
public:
    WorkFolderLock() = default;
    ~WorkFolderLock();
    WorkFolderLock(const WorkFolderLock&) = delete;
    WorkFolderLock& operator=(const WorkFolderLock&) = delete;

    // True when the lock is taken, now or already. Where no lock file can be made, nothing can be
    // told: true as well.
    bool take();
    // What is started from now on does not inherit it: a browser would hold it for hours.
    void keep();
    // A tool that was started meanwhile keeps it until its end.
    void release();

private:
    int descriptor = -1;
};

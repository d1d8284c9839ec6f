// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootabledisk.h"
#include "bootfiles.h"
#include "request.h"

#include <QCoreApplication>
#include <QTextStream>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

std::atomic<bool> stopped{false};

void stop(int)
{
    stopped = true;
}

// Everything here runs as root, so only the system's own programs are found and nothing that the
// caller has set reaches them.
void secureEnvironment()
{
    ::clearenv();
    qputenv("PATH", "/usr/sbin:/usr/bin:/sbin:/bin");
    qputenv("LC_ALL", "C.UTF-8");
}

// A number that sudo has left for whom it runs us, or 0.
unsigned int idFrom(const char* variable)
{
    bool isNumber = false;
    const unsigned int id = qEnvironmentVariable(variable).toUInt(&isNumber);
    return isNumber ? id : 0;
}

int fail(const QString& why)
{
    QTextStream(stderr) << "mkbootable: " << why << '\n';
    return EXIT_FAILURE;
}

} // namespace

// mkbootable DISK MOUNT-POINT: makes the disk boot what its first partition holds and leaves that
// partition mounted there. See BootableDisk.
int main(int argc, char* argv[])
{
    BootableDisk::Setup setup;
    setup.user = idFrom("SUDO_UID");
    setup.group = idFrom("SUDO_GID");
    secureEnvironment();
    ::umask(022);
    const QCoreApplication app(argc, argv);
    setup.request = readRequest(app.arguments().mid(1));
    if (!setup.request.error.isEmpty())
        return fail(setup.request.error);
    if (::geteuid() != 0)
        return fail(QStringLiteral("Only root can make a disk bootable"));
    setup.bootFiles = findBootFiles(QStringLiteral("/"));
    setup.say = [](const QString& line) { QTextStream(stdout) << line << '\n'; };
    setup.stopped = &stopped;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, stop);
    BootableDisk disk(setup);
    const QString error = disk.make();
    return error.isEmpty() ? EXIT_SUCCESS : fail(error);
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "makebootable.h"

#include <QCoreApplication>
#include <QTextStream>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <sys/stat.h>
#include <unistd.h>

// Not every system's headers have it.
extern char** environ;

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
    static char* none[] = {nullptr};
    environ = none;
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
// partition mounted there. See makeBootable().
int main(int argc, char* argv[])
{
    Order order;
    order.user = idFrom("SUDO_UID");
    order.group = idFrom("SUDO_GID");
    secureEnvironment();
    ::umask(022);
    const QCoreApplication app(argc, argv);
    order.request = readRequest(app.arguments().mid(1));
    if (!order.request.error.isEmpty())
        return fail(order.request.error);
    if (::geteuid() != 0)
        return fail(QStringLiteral("Only root can make a disk bootable"));
    order.say = [](const QString& line) { QTextStream(stdout) << line << '\n'; };
    order.stopped = &stopped;
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, stop);
    const QString error = makeBootable(order);
    return error.isEmpty() ? EXIT_SUCCESS : fail(error);
}

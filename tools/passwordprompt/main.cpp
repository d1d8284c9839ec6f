// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// askpass <language>: asks for an administrator's password and writes it, with a line feed, to
// standard output. Ends with 1 and writes nothing there when the user cancels or no window can be
// shown. "sudo --askpass" runs it through the scripts in the translations folder; the further
// argument that it gives them does not get here.

#include "applicationlook.h"
#include "passwordprompt.h"
#include "secret.h"

#include <QApplication>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace
{

int standardError = STDERR_FILENO;

void fail(const char* reason)
{
    ::dprintf(standardError, "askpass: %s\n", reason);
    ::_exit(1);
}

// Takes a standard stream over: returns another descriptor for it, and whatever libraries write to
// the stream goes nowhere. They can be told by environment variables to write every key that is
// pressed, and standard error may go into a file that everybody can read.
int takeOver(int stream)
{
    const int own = ::fcntl(stream, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int nowhere = ::open("/dev/null", O_WRONLY);
    if (nowhere < 0)
        fail("There is no /dev/null.");
    if (nowhere != stream) {
        ::dup2(nowhere, stream);
        ::close(nowhere);
    }
    return own;
}

// What the toolkit writes goes nowhere anyway, but it ends the program with a signal.
void endOrderly(QtMsgType type, const QMessageLogContext&, const QString&)
{
    if (type == QtFatalMsg)
        fail("The password prompt cannot be shown. Is there a display?");
}

// Left to itself, Qt looks for an X server even where only the other kind is there.
void chooseWindowSystem()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY") &&
        !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        qputenv("QT_QPA_PLATFORM", "wayland");
}

} // namespace

int main(int argc, char* argv[])
{
    if (!Secret::keepMemoryPrivate())
        fail("The system does not let memory be kept private.");
    const int standardOutput = takeOver(STDOUT_FILENO);
    standardError = takeOver(STDERR_FILENO);
    // A reader that has gone is a failure like any other.
    std::signal(SIGPIPE, SIG_IGN);
    qInstallMessageHandler(endOrderly);
    chooseWindowSystem();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    // Only the name: what follows is no option of the toolkit's.
    int count = std::min(argc, 1);
    QApplication application(count, argv);
    useApplicationLook();

    PasswordPrompt prompt(PromptTexts::of(argc > 1 ? QString::fromUtf8(argv[1]) : QString()));
    if (prompt.exec() != QDialog::Accepted)
        return 1;
    QByteArray password = prompt.takePassword();
    const bool written = Secret::writeLine(standardOutput, password);
    Secret::wipe(password);
    return written ? 0 : 1;
}

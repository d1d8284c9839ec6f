// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "virtualscreen.h"

#include <QTest>

#include <csignal>
#include <sys/prctl.h>

namespace
{

constexpr int patience = 120000; // ms

} // namespace

Companion::~Companion()
{
    kill();
    waitForFinished();
}

void Companion::setupChildProcess()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

QString VirtualScreen::start()
{
    // Without the last option it is gone for a moment whenever its last window goes.
    server.start("Xvfb",
                 {"-displayfd", "1", "-screen", "0", "800x600x24", "-nolisten", "tcp", "-noreset"});
    while (!server.canReadLine()) {
        if (!server.waitForReadyRead(patience))
            return "No screen: " + server.errorString() + server.readAllStandardError();
    }
    name = ':' + QString(server.readLine()).trimmed();
    return QString();
}

void VirtualScreen::stop()
{
    server.kill();
    server.waitForFinished();
}

QString VirtualScreen::display() const
{
    return name;
}

bool VirtualScreen::run(QProcess& program, const QString& path, const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", name);
    environment.insert("LC_ALL", "C.UTF-8");
    program.setProcessEnvironment(environment);
    program.start(path, arguments);
    return program.waitForFinished(patience) && program.exitCode() == 0;
}

QByteArray VirtualScreen::act(const QStringList& arguments) const
{
    QProcess tool;
    return run(tool, "xdotool", arguments) ? tool.readAllStandardOutput() : QByteArray();
}

bool VirtualScreen::useKeyboard(const QString& layout) const
{
    QProcess tool;
    return run(tool, "setxkbmap", {layout});
}

bool VirtualScreen::hasFocus(const QString& title) const
{
    return QTest::qWaitFor(
        [&] { return act({"getwindowfocus", "getwindowname"}) == title.toUtf8() + '\n'; },
        patience);
}

void VirtualScreen::type(const QString& text) const
{
    act({"type", "--delay", "40", "--", text});
}

void VirtualScreen::press(const QString& key) const
{
    act({"key", key});
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "guestprogram.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

namespace
{

// An emulated program on a busy machine takes its time for everything.
constexpr int usualSeconds = 400;
// The prompt comes after a disk has been formatted.
constexpr int promptSeconds = 600;
constexpr unsigned long pollMs = 50;

const QLatin1String program("korvex-iso-editor");
const QLatin1String prompt("askpass");

bool waitUntil(const std::function<bool()>& condition, int seconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > seconds * 1000)
            return false;
        QThread::msleep(pollMs);
    }
    return true;
}

} // namespace

GuestProgram::GuestProgram(VirtualMachine& virtualMachine)
    : machine(virtualMachine)
{
}

bool GuestProgram::start()
{
    const QString plugins = machine.sharedFolder() + "/plugins/generic";
    const QString plugin = plugins + "/screenreader.so";
    if (!QFile::exists(plugin) &&
        (!QDir().mkpath(plugins) || !QFile::copy(KORVEX_SCREEN_READER, plugin)))
        return fail("the plugin cannot be copied");
    QFile::remove(machine.sharedFolder() + '/' + program + ".json");
    QFile::remove(machine.sharedFolder() + '/' + prompt + ".json");
    // What is done next is read from a channel, as a script of its own takes seconds to start.
    const auto started = machine.run(QString("port=%1").arg(VirtualMachine::inputPort) + R"(
while read -r line && [ "$line" != end ]; do eval "xdotool $line"; done <$port >~/input.log 2>&1 &
export QT_PLUGIN_PATH=$SHARE/plugins QT_QPA_GENERIC_PLUGINS=screenreader:$SHARE
setsid $PROGRAM >~/program.log 2>&1 &)");
    running = started.exitCode == 0;
    return (running || fail("the program cannot be started")) && waitForWidget("burn");
}

bool GuestProgram::stop()
{
    running = false;
    machine.writeInput("end");
    const auto ended = machine.run("kill -9 $(pidof korvex-iso-editor askpass)\n"
                                   "while pidof korvex-iso-editor askpass; do sleep 0.1; done");
    return ended.exitCode == 0 || fail("the program does not end");
}

bool GuestProgram::isRunning() const
{
    return running;
}

bool GuestProgram::input(const QString& commands)
{
    return machine.writeInput(commands.toUtf8()) || fail(machine.problem());
}

bool GuestProgram::typeText(const QString& text)
{
    return text.isEmpty() || input("type --delay 20 -- '" + text + "'");
}

bool GuestProgram::waitUntilUsable(const QString& owner, const QString& widget, QJsonObject* found)
{
    return waitUntil(
               [&] {
                   *found = find(owner, widget);
                   return found->value("usable").toBool();
               },
               owner == prompt ? promptSeconds : usualSeconds) ||
           fail(widget + " of " + owner + " cannot be used");
}

// Afterwards more can be done in the same call of xdotool, which takes a while to start.
bool GuestProgram::moveTo(const QString& owner, const QString& widget, const QString& afterwards)
{
    QJsonObject found;
    // The picture buttons go by where the mouse has come from.
    return waitUntilUsable(owner, widget, &found) &&
           input(QString("mousemove 2 2 sleep 0.1 mousemove %1 %2 %3")
                     .arg(QString::number(found.value("x").toInt()),
                          QString::number(found.value("y").toInt()), afterwards));
}

bool GuestProgram::clickOn(const QString& owner, const QString& widget)
{
    return moveTo(owner, widget, "sleep 0.1 click 1");
}

bool GuestProgram::pointAt(const QString& widget)
{
    return moveTo(program, widget, {}) &&
           (waitUntil([&] { return find(program, widget).value("hovered").toBool(); },
                      usualSeconds) ||
            fail("the mouse does not reach " + widget));
}

bool GuestProgram::click()
{
    return input("click 1");
}

bool GuestProgram::click(const QString& widget)
{
    return clickOn(program, widget);
}

bool GuestProgram::openList(const QString& list)
{
    return clickOn(program, list) && waitForList(list, true);
}

bool GuestProgram::closeList(const QString& list)
{
    return input("key Escape") && waitForList(list, false);
}

// What a list does before it opens may take its time, and keys that come earlier are lost.
bool GuestProgram::waitForList(const QString& list, bool open)
{
    return waitUntil([&] { return find(program, list).value("open").toBool() == open; },
                     usualSeconds) ||
           fail(list + (open ? " does not open" : " does not close"));
}

// The screen sends keys to where the focus is when they are pressed, and a click moves it there
// only when the program comes to it: a busy one does after the keys, and they are lost. So, as a
// user does, we look for the cursor first and read what has arrived.
bool GuestProgram::focus(const QString& owner, const QString& field)
{
    return clickOn(owner, field) &&
           (waitUntil([&] { return find(owner, field).value("focused").toBool(); }, usualSeconds) ||
            fail(field + " of " + owner + " does not get the focus"));
}

bool GuestProgram::waitForContent(const QString& owner, const QString& field,
                                  const std::function<bool(const QString&)>& isRight)
{
    const auto content = [&] { return find(owner, field).value("text").toString(); };
    return waitUntil([&] { return isRight(content()); }, usualSeconds) ||
           fail(field + " of " + owner + " holds " + content());
}

bool GuestProgram::enter(const QString& field, const QString& content)
{
    const auto isEmpty = [](const QString& found) { return found.isEmpty(); };
    const auto isTyped = [&](const QString& found) {
        return found == content || found == content.toUpper();
    };
    return focus(program, field) && input("key ctrl+a key BackSpace") &&
           waitForContent(program, field, isEmpty) && typeText(content) &&
           waitForContent(program, field, isTyped);
}

bool GuestProgram::chooseNext(const QString& list)
{
    const QString before = text(list);
    return openList(list) && input("key Down key Return") && waitForList(list, false) &&
           (waitUntil([&] { return text(list) != before; }, usualSeconds) ||
            fail(list + " still shows " + before));
}

bool GuestProgram::enterPassword(const QString& password)
{
    // It shows a sign for each character.
    const auto isTyped = [&](const QString& found) { return found.size() == password.size(); };
    return focus(prompt, "passwordEdit") && typeText(password) &&
           waitForContent(prompt, "passwordEdit", isTyped) && clickOn(prompt, "btnok");
}

bool GuestProgram::cancelPassword()
{
    return clickOn(prompt, "btncancel");
}

bool GuestProgram::waitForText(const QString& wanted, int seconds)
{
    const auto isShown = [&] {
        for (const QJsonValue widget : widgets(program))
            if (widget["text"].toString().contains(wanted))
                return true;
        return false;
    };
    return waitUntil(isShown, seconds) || fail("the program does not say " + wanted);
}

bool GuestProgram::waitForWidget(const QString& widget, int seconds)
{
    return waitUntil([&] { return !find(program, widget).isEmpty(); }, seconds) ||
           fail("the program does not show " + widget);
}

QStringList GuestProgram::entries(const QString& list)
{
    return find(program, list).value("entries").toVariant().toStringList();
}

bool GuestProgram::waitForEntries(const QString& list, const QStringList& wanted, int seconds)
{
    return waitUntil([&] { return entries(list) == wanted; }, seconds) ||
           fail(list + " holds " + entries(list).join(", "));
}

QString GuestProgram::text(const QString& widget)
{
    return find(program, widget).value("text").toString();
}

QJsonArray GuestProgram::widgets(const QString& owner) const
{
    QFile file(machine.sharedFolder() + '/' + owner + ".json");
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).array()
                                          : QJsonArray();
}

// Of several the outermost, and one that can be used before one that cannot.
QJsonObject GuestProgram::find(const QString& owner, const QString& widget) const
{
    QJsonObject best;
    const auto depth = [](const QJsonObject& object) {
        return object.value("name").toString().count('/') +
               (object.value("usable").toBool() ? 0 : 100);
    };
    for (const QJsonValue value : widgets(owner)) {
        const QJsonObject object = value.toObject();
        if (('/' + object.value("name").toString()).endsWith('/' + widget) &&
            (best.isEmpty() || depth(object) < depth(best)))
            best = object;
    }
    return best;
}

QString GuestProgram::problem() const
{
    QStringList shown;
    for (const QJsonValue widget : widgets(program))
        if (!widget["text"].toString().isEmpty())
            shown << widget["name"].toString() + ": " + widget["text"].toString();
    return trouble + "\nIt shows:\n" + shown.join('\n') + '\n' + machine.problem();
}

bool GuestProgram::fail(const QString& text)
{
    trouble = text;
    return false;
}

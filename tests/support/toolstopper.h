// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

// Holds a real tool in the middle of its work, however fast it or slow the test is: from the
// construction on, the first program that is started with the given argument stops before it does
// anything. From there it works only as far as the test lets it, from one call of the system to the
// next, and cannot come further than the condition that is waited for.
//
//     ToolStopper tool("-udf");
//     start();
//     QVERIFY(tool.catchWhen([&] { return QFileInfo(image).size() > 10'000'000; }));
//     ... look ...
//     tool.letGo();
class ToolStopper
{
public:
    explicit ToolStopper(const QByteArray& argument);
    // A tool that was caught stays stopped.
    ~ToolStopper();
    ToolStopper(const ToolStopper&) = delete;
    ToolStopper& operator=(const ToolStopper&) = delete;

    // Whether it has been started; catchWhen() waits for that.
    bool hasCaught();
    // Waits until the tool has been started and lets it work until the condition holds; events are
    // processed meanwhile. Can be called again, with a later moment. Returns the tool's process
    // number; 0, and the test function has failed, when the tool does not come so far.
    int catchWhen(const std::function<bool()>& condition = [] { return true; });
    // Whether the tool that is held has been asked to end, which it notices when it works again, or
    // has been ended.
    bool isToEnd() const;
    // Lets it work on to its end.
    void letGo();

private:
    // From one call of the system to the next; false when it has ended.
    bool work(const std::function<bool()>& condition) const;

    QString request;
    int process = 0;
};

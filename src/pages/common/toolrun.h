// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QString>
#include <QStringList>

class CRunCommandThread;

// The run of a tool that a page has in progress, if any. Runners free themselves when their thread
// has ended, so a page that stops one never waits for it. User-interface thread.
class ToolRun
{
public:
    ToolRun() = default;
    // Ends the tool in progress and waits until it is gone.
    ~ToolRun();
    ToolRun(const ToolRun&) = delete;
    ToolRun& operator=(const ToolRun&) = delete;

    // Runs program with these arguments. lineSlot of receiver gets its output piece by piece,
    // endSlot its end unless it is stopped; null for none. Both as SLOT() gives them. A run in
    // progress is let go: stop() it first if it shall end.
    void start(QObject* receiver, const char* lineSlot, const char* endSlot, const QString& program,
               const QStringList& arguments);
    // The same for a tool that prints a list: lineSlot gets whole lines only, even if the tool
    // pauses in the middle of one.
    void startListing(QObject* receiver, const char* lineSlot, const char* endSlot,
                      const QString& program, const QStringList& arguments);
    // Ends the tool in progress, if any; returns at once.
    void stop();
    // The same, but returns when the tool is gone: half a second with one that does not listen.
    void stopAndWait();
    // To be told when the end has come.
    void forget();

    bool isRunning() const;
    // Whether a slot was called by another run than the one in progress, which had sent its signal
    // before it was stopped. sender is what QObject::sender() gives, null for a direct call.
    bool isLate(const QObject* sender) const;

private:
    void prepare(QObject* receiver, const char* lineSlot, const char* endSlot,
                 const QString& program, const QStringList& arguments);

    QPointer<CRunCommandThread> runner;
};

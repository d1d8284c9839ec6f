// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

// Holds scripted tools at places of their scripts until the test has looked:
//
//     tool.setScript({"out 10%\n", tool.holding("half way"), "out 20%\n"});
//     start();
//     QVERIFY(tool.isHeld("half way"));
//     ... look ...
//     tool.release("half way");
//
// Every call that comes by is held there until the gate is open, and none after that. When this
// object goes, whatever it holds goes on.
class ToolGates
{
public:
    ToolGates();

    // The line of a script at which a tool is held. A name is a word without slashes.
    QString hold(const QString& name) const;
    // Whether a tool has come there, or does in time; events are processed meanwhile.
    bool isReached(const QString& name) const;
    void open(const QString& name) const;

private:
    QString path(QString name) const;

    std::shared_ptr<QTemporaryDir> folder;
};

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "drivetexts.h"
#include "toolgates.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

// One call of a stand-in, as it was recorded.
struct DriveCall
{
    QString program;
    QStringList arguments;
    // Those of SUDO_ASKPASS, LC_CTYPE and LC_NUMERIC that were set.
    QMap<QString, QString> environment;
    // No rule of the scenario fitted it, or its rule could not be followed.
    bool isUnmatched = false;
    // How often a program was asked for a password and printed one, or none.
    int passwords = 0;
    int refusals = 0;
    // Its places among all beginnings and ends; -1 while it runs, and for good when it crashed, was
    // killed or became a real tool.
    int begun = -1;
    int ended = -1;
};

// The drives of a test and the tools that deal with them: diskutil, drutil, hdiutil, mount, sync,
// sudo and osascript. Tests of the pages with drives own one; one at a time may live.
//
// In a test that uses it, PATH holds these stand-ins and nothing else from the beginning to the end
// of the process, so that no real tool is ever reached by accident, not even by a shell that the
// program starts. Whatever the scenario does not foresee ends with an error and is recorded. Links
// to the stand-in elsewhere (7z/7z, mkbootable beside the executable) follow the same scenario and
// record into the same list.
//
// Programs and arguments are compared as they are; the argument "*" stands for any one, "..." at
// the end for any that follow. Actions are lines as at the head of scripteddrive.cpp.
class DriveScenario
{
public:
    // No drives; sync and sudo --askpass (which asks and then runs its arguments) work.
    DriveScenario();
    ~DriveScenario();
    DriveScenario(const DriveScenario&) = delete;
    DriveScenario& operator=(const DriveScenario&) = delete;

    // What the calls do that these arguments fit. Goes before what the drives below say and after
    // earlier rules, except that it takes the place of one for the very same program and arguments.
    void on(const QString& program, const QStringList& arguments, const QStringList& actions);

    // A disk that is listed, described, unmounted, partitioned and made bootable without trouble.
    // The same device again changes it.
    void addUsbDisk(const QString& device, const UsbDisk& disk = {});
    // A drive whose status is told, with its disc if it has a device and a mount point.
    void addOptical(const QString& identification, const QString& device,
                    const QString& mountPoint = "");
    // From now on the tools do not know the disk or disc; its drive is gone, too.
    void removeDisk(const QString& device);
    // An image that can be mounted there and unmounted again.
    void addImageMount(const QString& imagePath, const QString& mountPoint,
                       const QString& device = "/dev/disk9");
    // The tool is not installed.
    void missing(const QString& program);
    // A real program is on PATH, as a script of the test needs it.
    void lend(const QString& program);

    // Actions: prints the text as it is, on standard output or standard error.
    static QString printing(const QString& text);
    static QString complaining(const QString& text);
    // Becomes the program at this path; with one argument replaced by another.
    static QString becoming(const QString& programPath);
    static QString becoming(const QString& programPath, const QString& argument,
                            const QString& replacement);
    // Makes a folder with its parents; copies a file or what a folder holds.
    static QString makingFolder(const QString& path);
    static QString copying(const QString& from, const QString& to);
    // Waits for release() with the same name; every call that holds it goes on then.
    QString holding(const QString& name) const;
    // Whether a call holds it or comes to do so in time; see ToolGates.
    bool isHeld(const QString& name) const;
    void release(const QString& name) const;

    // Every call so far, in order over all tools.
    QList<DriveCall> calls() const;
    // The same as lists of program and arguments, and the arguments of one program's calls.
    QList<QStringList> commands() const;
    QList<QStringList> callsOf(const QString& program) const;
    // The commands that the scenario did not foresee: empty in a good test.
    QList<QStringList> unmatchedCalls() const;

private:
    struct Rule
    {
        QString program;
        QStringList arguments;
        QStringList actions;
    };
    struct Image
    {
        QString path;
        QString mountPoint;
        QString device;
    };

    static Rule unknownDisk(const QString& device);
    QList<Rule> driveRules() const;
    QList<Rule> usbRules() const;
    QList<Rule> opticalRules() const;
    QList<Rule> imageRules() const;
    void write() const;

    QList<Rule> rules;
    QList<QPair<QString, UsbDisk>> usbDisks;
    QList<OpticalDrive> opticalDrives;
    QList<Image> images;
    // May hold some that have come back.
    QStringList goneDevices;
    ToolGates gates;
};

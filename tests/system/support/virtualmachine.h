// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#pragma once

#include "emulator.h"

#include <QByteArray>
#include <QImage>
#include <QString>

class QLocalSocket;

// A Debian machine of its own in which a test may do what it could not do to the machine it runs
// on: plug in sticks and discs, partition and mount them, become root, and use the program as the
// user "tester" (password "tester") who sits at the screen. Nothing that is done in it outlives it.
//
//     VirtualMachine machine;
//     QVERIFY2(machine.start(), qPrintable(machine.problem()));
//     const QString node = machine.plugStick("KX0001", makeStick(folder + "/stick", 64 << 20));
//     const auto listing = machine.run("lsblk -no TRAN " + node);
//     QCOMPARE(listing.output, QByteArray("usb\n"));
//
// A start takes about 20 seconds, so all tests have one machine together, see Guest. All
// calls wait for their result and return at the latest when a time limit has passed.
class VirtualMachine
{
public:
    enum class User
    {
        Tester,
        Root
    };

    struct Result
    {
        // That of the script; 124 when it was ended for lasting too long, -1 when the machine did
        // not answer.
        int exitCode = -1;
        // Standard output and standard error, as they came.
        QByteArray output;
    };

    // The program with its tools, as the build left it.
    static constexpr const char* program = "/opt/korvex-iso-editor/korvex-iso-editor";
    // Where the machine sees sharedFolder().
    static constexpr const char* guestFolder = "/mnt/share";
    // Where it sees imageFolder().
    static constexpr const char* guestImages = "/mnt/images";

    VirtualMachine();
    ~VirtualMachine();
    VirtualMachine(const VirtualMachine&) = delete;
    VirtualMachine& operator=(const VirtualMachine&) = delete;

    // Boots the machine, without sticks and with an empty disc drive, and waits until commands and
    // the screen can be used.
    bool start();
    bool isRunning() { return emulator.isRunning(); }
    // Ends it as a user would; false when it had to be ended by force.
    bool shutDown();

    // Runs a bash script in the user's home folder. Programs of the screen can be started in the
    // background of a script ("$PROGRAM &"), they go on when it has ended.
    Result run(const QString& script, User user = User::Tester, int limitSeconds = 300);
    // Where the machine reads lines that go to it by writeInput(), until one reader has them. A
    // script that waits for them costs nothing, unlike one that looks again and again.
    static constexpr const char* inputPort = "/dev/virtio-ports/korvex.input";
    bool writeInput(const QByteArray& line);
    // Both sides may read and write here. Exists from start() until the machine is gone. What the
    // machine makes there belongs to whoever runs the test, so "tester" may replace such files
    // but not overwrite them.
    QString sharedFolder() const;
    // For large files that the machine reads, and reads fast: it keeps what it has read. They must
    // not change any more once it has seen them.
    QString imageFolder() const;

    // Plugs a stick in whose content is the file and returns its node ("/dev/sda") once the
    // machine's udev has dealt with it; empty when it does not appear. The serial number names the
    // stick and must not have blanks. The file belongs to the machine until the stick is unplugged.
    // A slow stick takes as many bytes a second as that, so that a test can act while it is
    // written.
    QString plugStick(const QString& serial, const QString& file, qint64 bytesPerSecond = 0);
    // Pulls the stick out, mounted or not, and waits until the machine has noticed.
    bool unplugStick(const QString& serial);

    // Lays an image into the disc drive, /dev/sr0, and closes it. Does not wait for the machine.
    bool insertDisc(const QString& file);
    // Opens the drive by force, whatever the machine does with it, and takes the disc out.
    bool removeDisc();
    bool isTrayOpen();

    // What the user sees, 1280 x 1024 pixels; null when there is none.
    QImage screenshot();

    // What went wrong last, with the end of what the machine wrote to its console.
    QString problem() const;

private:
    bool addStickFile(const QString& drive, const QString& file, qint64 bytesPerSecond);
    bool connectCommandRunner();
    bool readAnswer(QByteArray* line, int milliseconds);
    bool fail(const QString& text);

    Emulator emulator;
    QLocalServer commandServer;
    std::unique_ptr<QLocalSocket> commandRunner;
    QLocalServer inputServer;
    std::unique_ptr<QLocalSocket> inputChannel;
    int lastCommand = 0;
    QString trouble;
};

// Makes a file of zeros for a stick, which takes no space where nothing is written, and returns its
// path; empty when it cannot.
QString makeStick(const QString& path, qint64 bytes);

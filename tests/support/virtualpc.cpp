// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "virtualpc.h"

#include "testfiles.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QTest>

namespace
{

constexpr int columns = 80;
constexpr int rows = 25;
constexpr int answerMs = 60000;
constexpr int pauseMs = 100; // to leave the machine some time
constexpr int endMs = 30000;

} // namespace

// Emulated through and through, so that it runs alike where machines are virtual themselves.
VirtualPc::VirtualPc(const QString& diskImage)
{
    machine.setProcessChannelMode(QProcess::MergedChannels);
    machine.start("qemu-system-x86_64",
                  {"-accel", "tcg", "-m", "64", "-display", "none", "-nodefaults", "-vga", "std",
                   "-boot", "c", "-monitor", "stdio", "-drive",
                   "if=ide,format=raw,snapshot=on,file=" + diskImage});
}

VirtualPc::~VirtualPc()
{
    machine.kill();
    machine.waitForFinished(endMs);
}

// Every other byte is a colour.
QString VirtualPc::screen()
{
    constexpr int bytes = 2 * columns * rows;
    const QString file = folder.filePath("screen");
    QFile::remove(file);
    machine.write("pmemsave 0xb8000 4000 \"" + file.toUtf8() + "\"\n");
    const auto isThere = [&] {
        return QFileInfo(file).size() == bytes || machine.state() == QProcess::NotRunning;
    };
    const bool isAnswered = QTest::qWaitFor(isThere, answerMs);
    const QByteArray memory = isAnswered ? readFile(file) : QByteArray();
    QString text;
    for (int row = 0; row < rows && memory.size() == bytes; ++row) {
        for (int column = 0; column < columns; ++column)
            text += QChar::fromLatin1(memory.at(2 * (row * columns + column)));
        text += '\n';
    }
    return text;
}

QString VirtualPc::screenWith(const QString& text, int limitMs)
{
    QElapsedTimer timer;
    timer.start();
    QString last;
    while (!last.contains(text) && timer.elapsed() < limitMs) {
        if (machine.state() == QProcess::NotRunning)
            return "The virtual PC does not run: " + machine.readAll() + machine.errorString();
        last = screen();
        QTest::qWait(pauseMs);
    }
    return last;
}

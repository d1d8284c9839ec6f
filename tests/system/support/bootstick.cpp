// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "bootstick.h"

#include "emulator.h"

#include <QDebug>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

namespace
{

constexpr int columns = 80;
constexpr int rows = 25;
constexpr unsigned long pollMilliseconds = 500;

// The text of video memory, where each character is followed by its colours. Frames and the like
// become blanks.
QString screenText(const QByteArray& memory)
{
    QString text;
    for (int row = 0; row < rows; ++row) {
        QString line;
        for (int column = 0; column < columns; ++column) {
            const char character = memory.at(2 * (row * columns + column));
            line.append(QLatin1Char(character >= ' ' && character <= '~' ? character : ' '));
        }
        while (line.endsWith(' '))
            line.chop(1);
        text += line + '\n';
    }
    return text;
}

QString readScreen(Emulator& emulator)
{
    constexpr int bytes = 2 * rows * columns;
    const QString path = emulator.folder() + "/screen";
    QFile file(path);
    if (!emulator.executeLine(QString("pmemsave 0xb8000 %1 \"%2\"").arg(bytes).arg(path)) ||
        !file.open(QIODevice::ReadOnly) || file.size() != bytes) {
        qWarning() << "The screen cannot be read:" << emulator.problem();
        return {};
    }
    return screenText(file.readAll());
}

} // namespace

QString bootStick(const QString& file, const QString& awaited, int limitSeconds)
{
    Emulator emulator;
    if (!emulator.start(
            {"-machine", "q35", "-accel", "tcg", "-m", "512", "-vga", "std", "-drive",
             "if=none,id=stick,format=raw,snapshot=on,file=" + Emulator::argumentPath(file),
             "-device", "qemu-xhci", "-device", "usb-storage,drive=stick,bootindex=0"}) ||
        !emulator.execute("cont")) {
        qWarning() << "The machine does not start:" << emulator.problem();
        return {};
    }
    QElapsedTimer timer;
    timer.start();
    QString screen;
    do {
        QThread::msleep(pollMilliseconds);
        screen = readScreen(emulator);
    } while (!screen.isEmpty() && !screen.contains(awaited) &&
             timer.elapsed() < limitSeconds * 1000);
    return screen;
}

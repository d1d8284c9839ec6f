// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

// How the runner reads a tool's output. A line that is still arriving stays in the process's own
// buffer: the tool's pipe delivers blocks that end in the middle of a line, of a character even.

#include "cprocess.h"
#include "cruncommandthread.h"
#include "debugstreams.h"
#include "deliverypacer.h"
#include "outputpieces.h"
#include "util.h"

namespace
{

// What one read yields at most, in bytes.
constexpr int longestRead = 2047;
// Pieces that are logged and emitted together.
constexpr int burstSize = 128;

} // namespace

void CRunCommandThread::onReadOutput()
{
    CProcess* const child = qobject_cast<CProcess*>(sender());
    if (!child)
        return;
    outputArrived = true;
    if (isStopped())
        child->readAll(); // what still comes must not pile up
    else
        readPieces(*child, Unfinished::Leave);
}

void CRunCommandThread::onReadErrorOutput()
{
    qDebug() << "CRunCommandThread::onReadErrorOutput is called";
    onReadOutput();
}

void CRunCommandThread::readPieces(CProcess& child, Unfinished unfinished)
{
    QStringList pieces;
    while (!isStopped() && hasReadable(child, unfinished)) {
        const QByteArray line = readLine(child, unfinished);
        if (line.isEmpty())
            break;
        const QString text = QString::fromLocal8Bit(line.constData()); // up to the first zero byte
        qCDebug(toolOutput) << text;
        pieces += outputPieces(text);
        if (pieces.size() >= burstSize)
            deliver(pieces);
    }
    deliver(pieces);
}

// What is buffered is read when its line end is there, when no line end could still make a
// difference to what one read yields, or when the tool draws in place.
bool CRunCommandThread::hasReadable(CProcess& child, Unfinished unfinished) const
{
    const qint64 available = child.bytesAvailable();
    if (available == 0)
        return false;
    if (unfinished != Unfinished::Leave || available >= longestRead || child.canReadLine())
        return true;
    return !wholeLines && isDrawnInPlace(child.peek(available));
}

// Gives back the beginning of a character whose end is still to come.
QByteArray CRunCommandThread::readLine(CProcess& child, Unfinished unfinished) const
{
    QByteArray line(longestRead + 1, Qt::Uninitialized); // one for the zero that is put behind it
    line.truncate(static_cast<int>(qMax(qint64(0), child.readLine(line.data(), line.size()))));
    const bool isLast = unfinished == Unfinished::TakeAll && child.bytesAvailable() == 0;
    if (line.endsWith('\n') || isLast)
        return line;
    const int whole = wholeCharacters(line);
    for (int i = line.size() - 1; i >= whole; --i)
        child.ungetChar(line.at(i));
    line.truncate(whole);
    return line;
}

void CRunCommandThread::deliver(QStringList& pieces)
{
    if (pieces.isEmpty())
        return;
    Util::WriteLogLines(pieces);
    for (const QString& piece : qAsConst(pieces))
        emit standoutputline(piece);
    pacer->afterEmitting(pieces.size(), [this] { return isStopped(); });
    pieces.clear();
}

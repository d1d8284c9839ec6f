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

// One read yields at most one byte less than this.
constexpr int readSize = 2048;
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
        child->closeReadChannel(QProcess::StandardOutput); // what still comes must not pile up
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
    char line[readSize];
    while (!isStopped() && hasReadable(child, unfinished)) {
        if (child.readLine(line, readSize) <= 0)
            break;
        const QString text = QString::fromLocal8Bit(line);
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
    if (unfinished == Unfinished::Take || available >= readSize - 1)
        return true;
    return child.canReadLine() || isDrawnInPlace(child.peek(available));
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

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "standins.h"

#include "outputcapture.h"
#include "testfiles.h"

#include <QFile>

#include <unistd.h>

QStringList spokenLines(const std::function<void()>& action)
{
    const QByteArray spoken = standardOutputOf([&action] {
        const int standardError = ::dup(STDERR_FILENO);
        ::dup2(STDOUT_FILENO, STDERR_FILENO);
        action();
        ::dup2(standardError, STDERR_FILENO);
        ::close(standardError);
    });
    return QString::fromUtf8(spoken).split('\n', Qt::SkipEmptyParts);
}

StandIns::StandIns()
    : previousPath(qgetenv("PATH"))
{
    qputenv("PATH", QFile::encodeName(folder.filePath("bin")) + ':' + previousPath);
    writeFile(filePath("calls"), "");
}

StandIns::~StandIns()
{
    qputenv("PATH", previousPath);
}

void StandIns::add(const QString& name, const QByteArray& shellLines) const
{
    const QByteArray log = QFile::encodeName(filePath("calls"));
    writeScript(folder.filePath("bin/" + name),
                "{ printf '%s' '" + name.toUtf8() +
                    "'; for word; do printf '|%s' \"$word\"; done; echo; } >>'" + log + "'\n" +
                    shellLines + '\n');
}

QStringList StandIns::calls() const
{
    return QString::fromUtf8(readFile(filePath("calls"))).split('\n', Qt::SkipEmptyParts);
}

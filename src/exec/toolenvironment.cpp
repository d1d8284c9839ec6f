// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolenvironment.h"

#include <QTextCodec>

namespace
{

#ifdef Q_OS_MACOS
const QLatin1String utf8Characters("UTF-8");
#else
const QLatin1String utf8Characters("C.UTF-8");
#endif

} // namespace

QProcessEnvironment toolEnvironmentFrom(const QProcessEnvironment& parent)
{
    QProcessEnvironment environment = parent;
    // Either would overrule the settings below.
    environment.remove("LC_ALL");
    environment.remove("LANGUAGE");
    environment.insert("LC_CTYPE", utf8Characters);
    environment.insert("LC_NUMERIC", "C");
    environment.insert("LC_MESSAGES", "C");
    return environment;
}

QProcessEnvironment toolEnvironment()
{
    static const QProcessEnvironment environment =
        toolEnvironmentFrom(QProcessEnvironment::systemEnvironment());
    return environment;
}

void useUtf8Codec()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

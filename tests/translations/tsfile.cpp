// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "tsfile.h"

#include <QFile>
#include <QXmlStreamReader>

QVector<TsMessage> readTsFile(const QString& code)
{
    QFile file(QString(KORVEX_TS_FOLDER "/qt_%1.ts").arg(code));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("No translation %s", qPrintable(file.fileName()));
    QXmlStreamReader reader(&file);
    QVector<TsMessage> messages;
    QString context;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QStringRef element = reader.name();
        if (element == "name") {
            context = reader.readElementText();
        } else if (element == "message") {
            messages.append({context, QString(), QString(), QString()});
        } else if (element == "source") {
            messages.last().source = reader.readElementText();
        } else if (element == "translation") {
            messages.last().type = reader.attributes().value("type").toString();
            messages.last().translation = reader.readElementText();
        }
    }
    if (reader.hasError() || messages.isEmpty())
        qFatal("Not readable: %s", qPrintable(file.fileName()));
    return messages;
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "plist.h"

#include <QXmlStreamReader>

namespace
{

// No answer of a tool is nested this deep, and the stack is not endless.
constexpr int depthLimit = 64;

// Reads the values of one list, one after another.
class PlistReader
{
public:
    explicit PlistReader(const QByteArray& text)
        : xml(text)
    {
    }

    Plist read()
    {
        Plist plist;
        if (xml.readNextStartElement() && xml.name() == QLatin1String("plist") &&
            xml.readNextStartElement()) {
            plist.value = value(0);
            if (!xml.hasError() && xml.readNextStartElement())
                xml.raiseError(QStringLiteral("more than one value"));
        } else if (!xml.hasError()) {
            xml.raiseError(QStringLiteral("no property list"));
        }
        // What follows the list must be sound, too.
        while (!xml.atEnd())
            xml.readNext();
        if (xml.hasError())
            return {{}, xml.errorString()};
        return plist;
    }

private:
    // The value of the element that has begun, read up to its end.
    QVariant value(int depth)
    {
        const QString kind = xml.name().toString();
        if (depth > depthLimit)
            xml.raiseError(QStringLiteral("nested too deep"));
        else if (kind == QLatin1String("dict"))
            return dictionary(depth);
        else if (kind == QLatin1String("array"))
            return list(depth);
        else
            return simpleValue(kind, xml.readElementText());
        return {};
    }

    QVariant simpleValue(const QString& kind, const QString& text)
    {
        bool isSound = true;
        QVariant result;
        if (kind == QLatin1String("true") || kind == QLatin1String("false"))
            result = kind == QLatin1String("true");
        else if (kind == QLatin1String("string") || kind == QLatin1String("date"))
            result = text;
        else if (kind == QLatin1String("integer"))
            result = text.trimmed().toLongLong(&isSound);
        else if (kind == QLatin1String("real"))
            result = text.trimmed().toDouble(&isSound);
        else if (kind == QLatin1String("data"))
            result = QByteArray::fromBase64(text.toLatin1());
        else
            isSound = false;
        if (!isSound && !xml.hasError())
            xml.raiseError(QStringLiteral("<%1> with \"%2\" is no value").arg(kind, text));
        return result;
    }

    QVariant list(int depth)
    {
        QVariantList values;
        while (xml.readNextStartElement())
            values.append(value(depth + 1));
        return values;
    }

    QVariant dictionary(int depth)
    {
        QVariantMap values;
        while (xml.readNextStartElement()) {
            if (xml.name() != QLatin1String("key")) {
                xml.raiseError(QStringLiteral("a value without a key"));
                break;
            }
            const QString key = xml.readElementText();
            if (!xml.readNextStartElement()) {
                xml.raiseError(QStringLiteral("no value for \"%1\"").arg(key));
                break;
            }
            values.insert(key, value(depth + 1));
        }
        return values;
    }

    QXmlStreamReader xml;
};

} // namespace

Plist readPlist(const QByteArray& xml)
{
    return PlistReader(xml).read();
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "util.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryFile>

namespace {

// What ask() finds out about a real file of that extension; fallback when none can be written.
template<typename Value>
Value askAboutFile(const QString& extension, Value (*ask)(const QFileInfo&), const Value& fallback)
{
    const QString name = QCoreApplication::applicationName() + "_XXXXXX" + extension;
    QTemporaryFile file(QDir::tempPath() + '/' + name);
    file.setAutoRemove(false);
    // An impossible name shows only when the opened file is asked for its name.
    if (!file.open() || file.fileName().isEmpty()) {
        qDebug().noquote() << QString("failed to write temporary file %1").arg(file.fileTemplate());
        return fallback;
    }
    // A zero byte, so that an unknown extension is not taken for empty or plain text.
    file.write("", 1);
    file.close();
    const Value answer = ask(QFileInfo(file.fileName()));
    file.remove();
    return answer;
}

// The pictures are drawn while the file is there: on some desktops an icon asks for them only when
// it is painted, and would find the file gone.
QIcon askIcon(const QFileInfo& file)
{
    const QIcon lazy = QFileIconProvider().icon(file);
    QIcon drawn;
    const QList<QSize> sizes = lazy.availableSizes();
    for (const QSize& size : sizes)
        drawn.addPixmap(lazy.pixmap(size));
    return drawn.isNull() ? lazy : drawn;
}

QString askType(const QFileInfo& file)
{
    return QFileIconProvider().type(file);
}

QIcon genericIcon()
{
    return QFileIconProvider().icon(QFileIconProvider::File);
}

// The answer for a name's extension, found out once per run. Names without extension share one
// entry, so that a table full of them asks once as well.
template<typename Value, typename Find>
Value cached(QMap<QString, Value>& cache, const QString& name, const Find& find)
{
    const QString extension = Util::GetExtension(name);
    const auto known = cache.constFind(extension);
    if (known != cache.constEnd())
        return known.value();
    return cache.insert(extension, find(extension)).value();
}

} // namespace

QIcon Util::GetExtensionIcon(const QString& name)
{
    static QMap<QString, QIcon> cache;
    return cached(cache, name, [](const QString& extension) {
        return extension.isEmpty() ? genericIcon()
                                   : askAboutFile(extension, askIcon, genericIcon());
    });
}

QString Util::GetExtensionString(const QString& name)
{
    static QMap<QString, QString> cache;
    return cached(cache, name, [](const QString& extension) {
        return askAboutFile(extension, askType, QString());
    });
}

// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "screenreader.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QGenericPlugin>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <cstdio>

namespace
{

constexpr int intervalMs = 150;
// How much longer than a look the time to the next one is, at least: who looks on must not hold up
// what is looked at.
constexpr int restFactor = 20;

QString textOf(const QWidget* widget)
{
    if (const auto* const label = qobject_cast<const QLabel*>(widget))
        return label->text();
    // Not what is hidden on the screen as well.
    if (const auto* const field = qobject_cast<const QLineEdit*>(widget))
        return field->displayText();
    if (const auto* const list = qobject_cast<const QComboBox*>(widget))
        return list->currentText();
    return {};
}

// The widget's name behind those of the widgets that it lies in.
QString pathOf(const QWidget* widget)
{
    QStringList names;
    for (; widget; widget = widget->parentWidget())
        if (!widget->objectName().isEmpty())
            names.prepend(widget->objectName());
    return names.join('/');
}

QJsonObject description(const QWidget* widget)
{
    const QPoint middle = widget->mapToGlobal(widget->rect().center());
    const QWidget* const modal = QApplication::activeModalWidget();
    QJsonObject object = {{"name", pathOf(widget)},
                          {"text", textOf(widget)},
                          {"x", middle.x()},
                          {"y", middle.y()},
                          {"hovered", widget->underMouse()},
                          {"focused", widget->hasFocus()},
                          {"usable", widget->isEnabled() && (!modal || widget->window() == modal)}};
    if (const auto* const list = qobject_cast<const QComboBox*>(widget)) {
        QJsonArray entries;
        for (int index = 0; index < list->count(); ++index)
            entries.append(list->itemText(index));
        object.insert("entries", entries);
        object.insert("open", list->view()->isVisible());
    }
    if (const auto* const button = qobject_cast<const QRadioButton*>(widget))
        object.insert("checked", button->isChecked());
    return object;
}

QByteArray screen()
{
    QJsonArray widgets;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget* const widget : all)
        if (widget->isVisible() && !widget->objectName().isEmpty())
            widgets.append(description(widget));
    return QJsonDocument(widgets).toJson(QJsonDocument::Compact);
}

class ScreenReaderPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "screenreader.json")

public:
    // Every program that is started with the plugin has a file of its own below the folder.
    QObject* create(const QString&, const QString& folder) override
    {
        const QString program = QFileInfo("/proc/self/exe").symLinkTarget().section('/', -1);
        return new ScreenReader(folder + '/' + program + ".json");
    }
};

} // namespace

ScreenReader::ScreenReader(const QString& file)
    : path(file)
{
    timer.start(intervalMs, this);
    QCoreApplication::instance()->installEventFilter(this);
}

ScreenReader::~ScreenReader()
{
    QFile::remove(path);
}

bool ScreenReader::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::Timer)
        isStale = true;
    return false;
}

void ScreenReader::timerEvent(QTimerEvent*)
{
    if (!isStale)
        return;
    isStale = false;
    QElapsedTimer clock;
    clock.start();
    look();
    timer.start(qMax(intervalMs, restFactor * static_cast<int>(clock.elapsed())), this);
}

void ScreenReader::look()
{
    const QByteArray now = screen();
    if (now == last)
        return;
    QFile file(path + ".new");
    if (file.open(QIODevice::WriteOnly) && file.write(now) == now.size()) {
        file.close();
        std::rename(QFile::encodeName(file.fileName()), QFile::encodeName(path));
        last = now;
    }
}

#include "screenreader.moc"

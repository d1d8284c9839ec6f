// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "toolkittexts.h"

#include "languages.h"

#include <QCoreApplication>
#include <QDebug>
#include <QTranslator>

namespace
{

// One for the whole run, which the application owns.
QTranslator* toolkitTranslator()
{
    const QString name("toolkit");
    QCoreApplication* const application = QCoreApplication::instance();
    auto* translator = application->findChild<QTranslator*>(name, Qt::FindDirectChildrenOnly);
    if (!translator) {
        translator = new QTranslator(application);
        translator->setObjectName(name);
        QCoreApplication::installTranslator(translator);
    }
    return translator;
}

} // namespace

void loadToolkitTexts(const Language* language)
{
    const QString file = QString(language ? language->file : "qt_en.qm").replace("qt_", "qtbase_");
    if (!toolkitTranslator()->load(translationPath(file)))
        qDebug() << "no toolkit texts" << file;
}

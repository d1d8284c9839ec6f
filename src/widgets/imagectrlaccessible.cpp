// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "imagectrlaccessible.h"

#include "cbaseimagectrl.h"

namespace
{

// Qt asks once per class of the object's ancestry, so descendants are found by the base's name.
QAccessibleInterface* create(const QString& className, QObject* object)
{
    if (className != CBaseImageCtrl::staticMetaObject.className())
        return nullptr;
    auto* control = qobject_cast<CBaseImageCtrl*>(object);
    return control ? new ImageCtrlAccessible(control) : nullptr;
}

} // namespace

ImageCtrlAccessible::ImageCtrlAccessible(CBaseImageCtrl* control)
    : QAccessibleWidget(control, QAccessible::Button)
{
}

void ImageCtrlAccessible::install()
{
    // Qt keeps the list of factories and takes each one once.
    QAccessible::installFactory(create);
}

QStringList ImageCtrlAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled())
        names.prepend(pressAction());
    return names;
}

void ImageCtrlAccessible::doAction(const QString& actionName)
{
    if (actionName == pressAction())
        static_cast<CBaseImageCtrl*>(widget())->click();
    else
        QAccessibleWidget::doAction(actionName);
}

QStringList ImageCtrlAccessible::keyBindingsForAction(const QString& actionName) const
{
    if (actionName == pressAction())
        return {QKeySequence(Qt::Key_Space).toString()};
    return QAccessibleWidget::keyBindingsForAction(actionName);
}

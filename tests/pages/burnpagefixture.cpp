// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "burnpagefixture.h"

#include <QImage>
#include <QRadioButton>
#include <QTest>

namespace
{

QImage paintedAlone(QWidget* widget)
{
    QImage painted(widget->size(), QImage::Format_ARGB32_Premultiplied);
    painted.fill(Qt::transparent);
    widget->render(&painted, QPoint(), QRegion(), QWidget::RenderFlags());
    return painted;
}

} // namespace

BurnPageFixture::BurnPageFixture()
    : BurnPageFixture(std::make_unique<DriveNotifier>())
{
}

BurnPageFixture::BurnPageFixture(std::unique_ptr<DriveNotifier> notifier)
    : PageFixture(new CBurnDialog(notifier.get()))
    , page(window.findChild<CBurnDialog*>())
    , mainWindow(std::move(notifier))
{
}

void BurnPageFixture::chooseUsb() const
{
    QTest::mouseClick(page->findChild<QRadioButton*>("rusb"), Qt::LeftButton);
}

void BurnPageFixture::chooseDisc() const
{
    QTest::mouseClick(page->findChild<QRadioButton*>("rdvd"), Qt::LeftButton);
}

void BurnPageFixture::setImage(const QString& imagePath) const
{
    line("isofile")->selectAll();
    line("isofile")->insert(imagePath);
}

void BurnPageFixture::notifyDriveChange() const
{
    emit mainWindow->sigdrivechange();
}

QStringList BurnPageFixture::textsOf(const QComboBox* list)
{
    QStringList texts;
    for (int index = 0; index < list->count(); ++index)
        texts.append(list->itemText(index));
    return texts;
}

bool BurnPageFixture::hasPicture(QWidget* dialog, const QString& picture)
{
    ImageDialog plain;
    plain.SetBackGround(picture);
    return plain.size() == dialog->size() && paintedAlone(&plain) == paintedAlone(dialog);
}

QLineEdit* BurnPageFixture::line(const QString& name) const
{
    return page->findChild<QLineEdit*>(name);
}

QComboBox* BurnPageFixture::list(const QString& name) const
{
    return page->findChild<QComboBox*>(name);
}

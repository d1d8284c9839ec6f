// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "buttonpictures.h"

#include "cimagebutton.h"
#include "picture.h"
#include "usermouse.h"

#include <QPainter>

namespace
{

// What paint() draws in the button's place, without the button's texts.
template<class Paint>
QImage imageOf(const CImageButton* button, const Paint& paint)
{
    const qreal density = button->devicePixelRatioF();
    QImage image(button->size() * density, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(density);
    image.fill(Qt::transparent);
    paint(image);
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    for (const QRect& text : {button->captionRect(), button->descriptionRect()}) {
        if (text.width() > 1)
            painter.fillRect(text.adjusted(-2, -2, 2, 2), Qt::transparent);
    }
    return image;
}

QString shownNumber(CImageButton* button, const QString& name)
{
    const QImage shown = imageOf(button, [button](QImage& image) {
        button->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    });
    QString numbers;
    for (int number = 1; number <= 4; ++number) {
        const QPixmap picture =
            loadPicture(QString(":/nwu/%1%2").arg(name).arg(number), button->devicePixelRatioF());
        if (picture.isNull())
            continue;
        const QImage expected = imageOf(
            button, [&picture](QImage& image) { QPainter(&image).drawPixmap(0, 0, picture); });
        if (shown == expected)
            numbers += QString::number(number);
    }
    return numbers.size() == 1 ? numbers : "?";
}

} // namespace

QString shownPictures(CImageButton* button, const QString& name)
{
    const QPoint centre = button->rect().center();
    QWidget* const window = button->window();
    const bool wasEnabled = button->isEnabled();
    button->setEnabled(true);
    UserMouse::moveAway(button);
    QString numbers = shownNumber(button, name);
    UserMouse::move(button, centre);
    numbers += shownNumber(button, name);
    UserMouse::press(button, centre);
    numbers += shownNumber(button, name);
    // Released elsewhere, which is no click.
    UserMouse::release(window, window->rect().bottomRight());
    button->setEnabled(false);
    numbers += shownNumber(button, name);
    button->setEnabled(wasEnabled);
    return numbers;
}

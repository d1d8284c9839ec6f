// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "caboutusdialog.h"

#include "cimagebutton.h"

#include <QDesktopServices>
#include <QLabel>
#include <QUrl>

CAboutusDialog::CAboutusDialog(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , closeButton(new CImageButton(this))
{
    setModal(true);
    SetMoveable(true);
    SetBackGround(":/nwu/about_us");

    closeButton->setObjectName("close");
    closeButton->SetBackGround(":/nwu/osxclose1", ":/nwu/osxclose2", ":/nwu/osxclose3",
                               ":/nwu/osxclose4", QString(), QString(), 0);
    closeButton->setAccessibleName(tr("Close"));
    closeButton->move(5, 5);
    connect(closeButton, SIGNAL(clicked()), this, SLOT(close()));

    label_first = addLabel("label_first",
                           tr("Korvex ISO Editor is free software under the MIT licence. Use it "
                              "only with images that you are allowed to copy."),
                           190, 60);
    label_copyright =
        addLabel("label_copyright", tr("© 2026 The Korvex ISO Editor developers"), 256, 24);
}

QLabel* CAboutusDialog::addLabel(const QString& name, const QString& text, int y, int height)
{
    auto* label = new QLabel(this);
    label->setObjectName(name);
    QFont font("Microsoft YaHei");
    font.setPixelSize(13);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(0x60, 0x60, 0x60));
    label->setPalette(palette);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setText(text);
    label->setGeometry(40, y, width() - 80, height);
    return label;
}

void CAboutusDialog::openUrl(QString address)
{
    QDesktopServices::openUrl(QUrl(address));
}

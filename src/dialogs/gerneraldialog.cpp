// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "gerneraldialog.h"

#include "cimagebutton.h"

#include <QKeyEvent>
#include <QLabel>

GerneralDialog::GerneralDialog(QWidget* parent)
    : ImageDialog(parent != nullptr)
    , label(new QLabel(this))
{
    resize(400, 300);
    setModal(true);
    SetMoveable(true);
    label->setObjectName("label");
    label->setGeometry(60, 40, 309, 81);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label->setTextFormat(Qt::PlainText);
}

void GerneralDialog::SetBackGround(QString picture, QString text)
{
    ImageDialog::SetBackGround(picture);
    if (!btnclose) {
        btnclose = new CImageButton(this);
        btnclose->setObjectName("btnclose");
        btnclose->SetBackGround(":/nwu/osxclose1", ":/nwu/osxclose2", ":/nwu/osxclose3",
                                ":/nwu/osxclose4", QString(), QString(), 3);
        btnclose->setAccessibleName(tr("Close"));
        btnclose->move(5, 5);
        connect(btnclose, SIGNAL(clicked()), this, SLOT(close()));
    }

    QFont font = label->font();
    font.setPixelSize(12);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(83, 81, 81));
    label->setPalette(palette);
    label->setText(text);
    label->setWordWrap(true);
}

void GerneralDialog::AddOK(int y, int x)
{
    btnok = new CImageButton(this);
    btnok->setObjectName("btnok");
    btnok->SetBackGround(":/nwu/OK_1", ":/nwu/OK_2", ":/nwu/OK_3", QString(), tr("OK"), QString(),
                         3);
    place(btnok, y, x);
    connect(btnok, SIGNAL(clicked()), this, SLOT(accept()));
}

void GerneralDialog::AddNo(int y, int x)
{
    auto* button = new CImageButton(this);
    button->setObjectName("btnno");
    // The white pictures need the blue caption that they have in the message box.
    button->SetBackGround(":/nwu/NO_1", ":/nwu/NO_2", ":/nwu/NO_3", QString(), tr("NO"), QString(),
                          4);
    place(button, y, x);
    connect(button, SIGNAL(clicked()), this, SLOT(reject()));
}

void GerneralDialog::place(CImageButton* button, int y, int x)
{
    button->move(x == 0 ? (width() - button->width()) / 2 : x, y + 10);
    button->show();
}

void GerneralDialog::keyPressEvent(QKeyEvent* event)
{
    const bool accepts = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!accepts)
        ImageDialog::keyPressEvent(event);
    else if (btnok && !event->isAutoRepeat())
        btnok->click();
}

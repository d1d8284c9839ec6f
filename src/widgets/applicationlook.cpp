// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "applicationlook.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QIcon>

namespace
{

const char* const fontFamily = "Microsoft YaHei";

} // namespace

void useApplicationLook()
{
    // Where the family is not installed, one with the same range of scripts stands in for it.
    QFont::insertSubstitutions(fontFamily, {"PingFang SC", "Noto Sans CJK SC", "Noto Sans"});
    QFont font;
    font.setFamily(fontFamily);
    QApplication::setFont(font);
    QApplication::setWindowIcon(QIcon(":nwu/logo"));
    QFile styleSheet(":/qss.qss");
    if (styleSheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(styleSheet.readAll()));
}

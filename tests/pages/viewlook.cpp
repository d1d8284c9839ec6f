// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "viewlook.h"

#include <QHeaderView>
#include <QPainter>
#include <QTableWidget>
#include <QTest>
#include <QTreeWidget>

namespace
{

const QColor line(0xC2, 0xEF, 0xFD);
const QColor folderArea(0xE2, 0xF8, 0xFE);

// What the letters cover: the box around all that is darker than any line or area.
QRect letters(const QImage& image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).lightness() < 100)
                box |= QRect(x, y, 1, 1);
        }
    }
    return box;
}

QImage drawn(const QString& text, const QFont& font)
{
    QImage image(300, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, text);
    return image;
}

} // namespace

void checkViewLook(QTreeWidget* tree, QTableWidget* table)
{
    const QImage folders = tree->grab().toImage();
    QCOMPARE(folders.pixelColor(0, folders.height() / 2), line);
    QCOMPARE(folders.pixelColor(folders.width() / 2, folders.height() - 20), folderArea);

    table->clearSelection();
    const QImage entries = table->grab().toImage();
    QCOMPARE(entries.pixelColor(0, entries.height() / 2), line);
    // The cell of the first row's size, with the lines at its right and lower end.
    const QPoint origin = table->viewport()->mapTo(table, QPoint());
    const QRect cell(origin +
                         QPoint(table->columnViewportPosition(1), table->rowViewportPosition(0)),
                     QSize(table->columnWidth(1), table->rowHeight(0)));
    QCOMPARE(entries.pixelColor(cell.center()), QColor(Qt::white));
    QCOMPARE(entries.pixelColor(cell.right(), cell.center().y()), line);
    QCOMPARE(entries.pixelColor(cell.center().x(), cell.bottom()), line);
    table->selectRow(0);
    QCOMPARE(table->grab().toImage().pixelColor(cell.center()), line);
    table->clearSelection();

    const int type = 2;
    QHeaderView* const header = table->horizontalHeader();
    const QRect section(header->sectionViewportPosition(type), 0, header->sectionSize(type),
                        header->height());
    QFont font = header->font();
    font.setPointSize(13);
    const QString text = table->horizontalHeaderItem(type)->text();
    const QRect expected = letters(drawn(text, font));
    QVERIFY(expected.isValid());
    QCOMPARE(letters(header->viewport()->grab(section).toImage()).size(), expected.size());
}

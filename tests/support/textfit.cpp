// Copyright (c) 2026 The Korvex ISO Editor developers
// SPDX-License-Identifier: MIT

#include "textfit.h"

#include "cimagebutton.h"
#include "cmycombobox.h"
#include "scheckboxheaderview.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>

namespace
{

// What the box in a header's section takes beside the section's own margin.
constexpr int headerBox = 16;
// Between a text and the sides of its button.
constexpr int captionMargin = 4;
constexpr int descriptionMargin = 8;

// Gathers the texts of one window.
class TextFit
{
public:
    explicit TextFit(const QWidget* shown)
        : window(shown)
    {
    }

    void measure(const CBaseImageCtrl* button)
    {
        const QRect caption = button->captionRect();
        add(button, button->accessibleName(),
            caption.width() <= 1 || fits(button, caption, captionMargin));
        if (button->accessibleDescription().isEmpty())
            return;
        // The home screen's descriptions of two lines begin with an empty one.
        QRect description = button->descriptionRect();
        if (description.height() > 2 * button->fontMetrics().height())
            description.setTop(description.top() + description.height() / 3);
        add(button, button->accessibleDescription(),
            fits(button, description, descriptionMargin) && !description.intersects(caption));
    }

    void measure(const QLabel* label)
    {
        const QFontMetrics metrics = label->fontMetrics();
        const QRect room = label->contentsRect();
        const int flags = label->wordWrap() ? Qt::TextWordWrap : 0;
        const QRect text =
            metrics.boundingRect(QRect(0, 0, room.width(), 10000), flags, label->text());
        // Lines of fonts with Chinese characters are taller than what stands in them, so it is the
        // ink of the first and the last that counts. Labels without a place for it are centred.
        const QRect ink = metrics.tightBoundingRect(label->text());
        const int free = room.height() - text.height();
        const int top = label->alignment() & Qt::AlignBottom ? free : free / 2;
        const int firstBase = top + metrics.ascent();
        const int lastBase = top + text.height() - metrics.descent();
        add(label, label->text(),
            text.width() <= room.width() && firstBase + ink.top() >= 0 &&
                lastBase + ink.bottom() < room.height());
    }

    void measure(const QAbstractButton* button)
    {
        add(button, button->text(), button->sizeHint().width() <= button->width());
    }

    void measure(const QHeaderView* header)
    {
        const bool hasBox = qobject_cast<const SCheckBoxHeaderView*>(header);
        for (int section = 0; section < header->count(); ++section) {
            const int box = hasBox && section == 0 ? headerBox : 0;
            add(header, header->model()->headerData(section, header->orientation()).toString(),
                header->sectionSizeHint(section) + box <= header->sectionSize(section));
        }
    }

    void measure(const QComboBox* list)
    {
        // Shows what does not fit without its middle, and whole in a tool tip.
        if (qobject_cast<const CMyComboBox*>(list))
            return;
        QStyleOptionComboBox option;
        option.initFrom(list);
        const int room =
            list->style()
                ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
                .width();
        for (int row = 0; row < list->count(); ++row) {
            const QString text = list->itemText(row);
            add(list, text, list->fontMetrics().horizontalAdvance(text) <= room);
        }
    }

    void measure(const QLineEdit* field)
    {
        const QString text = field->placeholderText();
        QStyleOptionFrame option;
        option.initFrom(field);
        const int room =
            field->style()->subElementRect(QStyle::SE_LineEditContents, &option, field).width();
        if (field->text().isEmpty() && !text.isEmpty())
            add(field, text, field->fontMetrics().horizontalAdvance(text) <= room);
    }

    QList<ShownText> texts;

private:
    static bool fits(const CBaseImageCtrl* button, const QRect& text, int margin)
    {
        return button->rect().contains(text.adjusted(-margin, 0, margin, 0));
    }

    void add(const QWidget* widget, const QString& text, bool isWhole)
    {
        // A layout whose texts are too wide grows beyond the window instead of cutting them.
        const QRect place(widget->mapTo(window, QPoint()), widget->size());
        const QString simple = text.simplified();
        if (!simple.isEmpty())
            texts.append({simple, widget->objectName() + ' ' + widget->metaObject()->className(),
                          isWhole && window->rect().contains(place)});
    }

    const QWidget* const window;
};

template<typename Widget>
void measureAll(TextFit& fit, const QWidget* window)
{
    for (const Widget* const widget : window->findChildren<Widget*>()) {
        if (widget->isVisible())
            fit.measure(widget);
    }
}

} // namespace

QList<ShownText> shownTexts(const QWidget* window)
{
    TextFit fit(window);
    measureAll<CBaseImageCtrl>(fit, window);
    measureAll<QLabel>(fit, window);
    measureAll<QAbstractButton>(fit, window);
    measureAll<QHeaderView>(fit, window);
    measureAll<QComboBox>(fit, window);
    measureAll<QLineEdit>(fit, window);
    return fit.texts;
}

QStringList cutTexts(const QWidget* window)
{
    QStringList cut;
    for (const ShownText& text : shownTexts(window)) {
        if (!text.isWhole)
            cut.append(QString("\"%1\" in %2").arg(text.text, text.place));
    }
    return cut;
}

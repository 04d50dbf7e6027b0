#pragma once

// Gives the rows of a plain list or table air: the house style indents a row only when its option asks for
// that.

#include "StyleOptions/VantraStyleOptionViewItem.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QWidget>

class AiryDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *ioPainter, const QStyleOptionViewItem &inOption,
               const QModelIndex &inIndex) const override
    {
        VantraStyleOptionViewItem option;
        static_cast<QStyleOptionViewItem &>(option) = inOption;
        initStyleOption(&option, inIndex);
        option.useIndent = true;
        option.widget->style()->drawControl(QStyle::CE_ItemViewItem, &option, ioPainter, option.widget);
    }

    QSize sizeHint(const QStyleOptionViewItem &inOption, const QModelIndex &inIndex) const override
    {
        return QStyledItemDelegate::sizeHint(inOption, inIndex).grownBy({0, 4, 0, 4});
    }
};

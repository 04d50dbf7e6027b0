#include "Controls/VantraStyledItemDelegate.h"

#include "StyleOptions/VantraStyleOptionCast.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"

#include <QtWidgets/QApplication>

VantraStyledItemDelegate::VantraStyledItemDelegate(QObject *inParent) : QStyledItemDelegate(inParent)
{
}

VantraStyledItemDelegate::~VantraStyledItemDelegate() = default;

void VantraStyledItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    VantraStyleOptionViewItem record;
    copyStyleOption(record, option);
    initStyleOption(&record, index);
    const QStyle *style = record.widget != nullptr ? record.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &record, painter, record.widget);
}

void VantraStyledItemDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
}

void VantraStyledItemDelegate::copyStyleOption(VantraStyleOptionViewItem &outRecord,
                                               const QStyleOptionViewItem &inOption) const
{
    const VantraStyleOptionCast<VantraStyleOptionViewItem> record(&inOption);
    if (record) {
        outRecord = *record;
    }
}

#include "Controls/VantraComboBoxStyleItemDelegate.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QFrame>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int kSeparatorHeight = 5; // logical pixels

} // namespace

VantraComboBoxStyleItemDelegate::VantraComboBoxStyleItemDelegate(QObject *inParent)
    : VantraStyledItemDelegate(inParent)
{
}

VantraComboBoxStyleItemDelegate::~VantraComboBoxStyleItemDelegate() = default;

bool VantraComboBoxStyleItemDelegate::isSeparator(const QModelIndex &inIndex)
{
    return inIndex.data(Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
}

void VantraComboBoxStyleItemDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    if (!isSeparator(index)) {
        VantraStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionFrame frame;
    frame.state = option.state;
    frame.direction = option.direction;
    frame.rect = option.rect;
    frame.fontMetrics = option.fontMetrics;
    frame.palette = option.palette;
    frame.styleObject = option.styleObject;
    frame.frameShape = QFrame::HLine;
    const QStyle *style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ShapedFrame, &frame, painter, option.widget);
}

QSize VantraComboBoxStyleItemDelegate::sizeHint(const QStyleOptionViewItem &option,
                                                const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (isSeparator(index)) {
        size.setHeight(kSeparatorHeight);
    }
    return size;
}

#include "Style/VantraStyleHelperComboBox.h"

#include "Style/VantraTextMeasure.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraCornerRadii.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QAbstractItemModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QScrollBar>

namespace {

// What one row needs of the popup, in logical pixels. The item holds what all rows have in common.
int rowWidth(const QStyle &inStyle, const QComboBox &inComboBox, const QModelIndex &inIndex, int inIconWidth,
             VantraStyleOptionViewItem &ioItem)
{
    const QVariant check = inIndex.data(Qt::CheckStateRole);
    ioItem.text = inIndex.data(Qt::DisplayRole).toString();
    ioItem.icon = qvariant_cast<QIcon>(inIndex.data(Qt::DecorationRole));
    ioItem.features.setFlag(QStyleOptionViewItem::HasDecoration, !ioItem.icon.isNull());
    ioItem.checkState = static_cast<Qt::CheckState>(check.toInt());

    const auto width = [&](QStyle::SubElement element) {
        return inStyle.subElementRect(element, &ioItem, &inComboBox).width();
    };
    int result = qMax(width(QStyle::SE_ItemViewItemText),
                      VantraTextMeasure::rowBoundingWidth(ioItem.text, ioItem.fontMetrics)) +
                 qMax(inIconWidth, width(QStyle::SE_ItemViewItemDecoration));
    if (check.isValid()) {
        result += width(QStyle::SE_ItemViewItemCheckIndicator);
    }
    return result;
}

} // namespace

void VantraStyleHelperComboBox::drawComplex(VantraStyleOptionComboBox &option, QPainter *painter,
                                            const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, widget, false);
    style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, painter, widget);
}

void VantraStyleHelperComboBox::drawPanel(const VantraStyleOptionComboBox &option, QPainter *painter,
                                          const QWidget *) const
{
    if (option.backgroundStyle == VantraComboBoxBase::BackgroundStyleNone) {
        return;
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(mTheme->comboBoxBrush(&option));
    drawRoundedBackground(painter, option.rect, mTheme->comboBoxRadii(&option));
}

void VantraStyleHelperComboBox::drawLabel(VantraStyleOptionComboBox &option, QPainter *painter,
                                          const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, widget, false);
    const int pill = mTheme->comboBoxRadii(&option).topLeft();
    const QMargins margins = paddingWithRadii(mTheme->comboBoxPadding(&option), pill, pill);

    const VantraLabelSaver saver(painter);
    painter->setFont(option.font);
    const Content content{option.currentIcon, option.iconSize,
                          option.currentText, option.fontMetrics,
                          Qt::DownArrow,      static_cast<int>(mTheme->comboBoxSpacing(&option))};
    const Look look{VantraIconPalette::IconTintingNone, Qt::AlignCenter, option.state, option.palette};
    drawIconTextArrow(content, look, option.rect.adjusted(margins.left(), 0, -margins.right(), 0), painter);
}

QSize VantraStyleHelperComboBox::size(const VantraStyleOptionComboBox &option, const QWidget *widget) const
{
    VantraStyleOptionComboBox comboBox = option;
    mTheme->adjustFontAndColor(&comboBox, widget, true);
    const int spacing = static_cast<int>(mTheme->comboBoxSpacing(&comboBox));
    const QSize text = textSize(comboBox.currentText, comboBox.fontMetrics);
    const QSize icon = comboBox.currentIcon.isNull() ? QSize(0, 0) : comboBox.iconSize;
    const QSize content(text.width() + (text.width() > 0 ? spacing : 0) + kArrowExtent + icon.width() +
                            (icon.width() > 0 ? spacing : 0),
                        qMax(qMax(text.height(), icon.height()), kArrowExtent));
    const QMargins padding = mTheme->comboBoxPadding(&comboBox);
    comboBox.rect = QRect(QPoint(0, 0), content.grownBy(padding));
    const int pill = mTheme->comboBoxRadii(&comboBox).topLeft();
    return content.grownBy(paddingWithRadii(padding, pill, pill));
}

QRect VantraStyleHelperComboBox::subControlRect(const VantraStyleOptionComboBox &option,
                                                QStyle::SubControl subControl, const QWidget *widget) const
{
    if (subControl == QStyle::SC_ComboBoxListBoxPopup) {
        return popupRect(option, widget);
    }
    if (subControl != QStyle::SC_ComboBoxFrame && subControl != QStyle::SC_ComboBoxEditField &&
        subControl != QStyle::SC_ComboBoxArrow) {
        return option.rect;
    }
    QRect rect(option.rect.topLeft(), size(option, widget));
    if (option.editable) {
        const int pill =
            option.backgroundStyle == VantraComboBoxBase::BackgroundStyleNone ? 0 : pillRadius(rect.size());
        if (subControl == QStyle::SC_ComboBoxEditField) {
            // The field has the size of the text. Without one there would be nothing to type in.
            const QRect box = option.currentText.isEmpty() ? option.rect : rect;
            rect = box.adjusted(pill, 0, -(kArrowExtent + pill), 0);
        } else if (subControl == QStyle::SC_ComboBoxArrow) {
            rect.setLeft(rect.right() - pill - kArrowExtent);
        }
    }
    return rect;
}

QRect VantraStyleHelperComboBox::popupRect(const VantraStyleOptionComboBox &option,
                                           const QWidget *widget) const
{
    QRect rect = option.rect;
    const auto *comboBox = qobject_cast<const QComboBox *>(widget);
    if (comboBox == nullptr || comboBox->view() == nullptr || comboBox->model() == nullptr) {
        return rect;
    }
    const int scrollBarWidth = comboBox->view()->verticalScrollBar()->sizeHint().width();
    const int iconWidth = comboBox->view()->iconSize().width();
    int widest = comboBox->minimumWidth();
    VantraStyleOptionViewItem item;
    item.font = comboBox->font();
    item.fontMetrics = comboBox->fontMetrics();
    item.decorationSize = comboBox->iconSize();
    item.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QModelIndex root = comboBox->rootModelIndex();
    const int rows = comboBox->model()->rowCount(root);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = comboBox->model()->index(row, comboBox->modelColumn(), root);
        widest = qMax(widest, scrollBarWidth + rowWidth(*style(), *comboBox, index, iconWidth, item));
    }
    rect.setWidth(qMax(rect.width(), widest));
    return rect;
}

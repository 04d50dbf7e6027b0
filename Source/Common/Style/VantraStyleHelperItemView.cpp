#include "Style/VantraStyleHelperItemView.h"

#include "Style/VantraTextMeasure.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Theme/VantraStyleTheme.h"

#include <QtWidgets/QListView>

namespace {

constexpr int kDecorationGap = 5; // beside a decoration, which so takes its width and 6 columns

bool hasDecoration(const QStyleOptionViewItem &inOption)
{
    return inOption.features.testFlag(QStyleOptionViewItem::HasDecoration) && !inOption.icon.isNull();
}

bool hasCheck(const QStyleOptionViewItem &inOption)
{
    return inOption.features.testFlag(QStyleOptionViewItem::HasCheckIndicator);
}

bool enabledOrSelected(QStyle::State inState)
{
    return inState & (QStyle::State_Enabled | QStyle::State_Selected);
}

void checkDecorationPosition(const QStyleOptionViewItem &inOption)
{
    Q_ASSERT_X(inOption.decorationPosition == QStyleOptionViewItem::Left, "VantraStyleHelperItemView",
               "We currently only support the decoration on the left");
    Q_UNUSED(inOption);
}

QRect centredVertically(const QRect &inRect, int inLeft, int inWidth, int inHeight)
{
    return QRect(inLeft, inRect.top() + (inRect.height() - inHeight) / 2, inWidth, inHeight);
}

} // namespace

void VantraStyleHelperItemView::drawItem(VantraStyleOptionViewItem &item, QPainter *painter,
                                         const QWidget *widget) const
{
    checkDecorationPosition(item);
    mTheme->adjustFontAndColor(&item, widget, false);
    const VantraPainterSaver saver(painter);
    painter->setFont(item.font);
    painter->setClipRect(item.rect, Qt::ReplaceClip);
    style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, widget);
    if (hasCheck(item)) {
        drawCheck(item, painter, widget);
    }
    if (hasDecoration(item)) {
        drawDecoration(item, painter, widget);
    }
    if (!item.text.isEmpty()) {
        drawText(item, painter, widget);
    }
}

void VantraStyleHelperItemView::drawCheck(const VantraStyleOptionViewItem &option, QPainter *painter,
                                          const QWidget *widget) const
{
    const QRect rect = style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, widget);
    if (qobject_cast<const QListView *>(widget) != nullptr) {
        // A checked row of a list shows a tick without a ring.
        if (option.checkState == Qt::Checked) {
            drawCheckMark(painter, QRectF(rect), mTheme->checkMarkColor(QStyle::State_Enabled));
        }
        return;
    }
    VantraStyleOptionViewItem check = option;
    check.rect = rect;
    check.state &= ~QStyle::State_HasFocus;
    switch (option.checkState) {
    case Qt::Unchecked: check.state |= QStyle::State_Off; break;
    case Qt::PartiallyChecked: check.state |= QStyle::State_NoChange; break;
    case Qt::Checked: check.state |= QStyle::State_On; break;
    }
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &check, painter, widget);
}

void VantraStyleHelperItemView::drawDecoration(const VantraStyleOptionViewItem &option, QPainter *painter,
                                               const QWidget *widget) const
{
    const QRect rect = style()->subElementRect(QStyle::SE_ItemViewItemDecoration, &option, widget);
    const QStyle::State state = option.state;
    const QIcon::Mode mode = !(state & QStyle::State_Enabled) ? QIcon::Disabled
                             : state & QStyle::State_Selected ? QIcon::Selected
                                                              : QIcon::Normal;
    const QPalette::ColorGroup group = enabledOrSelected(state) ? QPalette::Active : QPalette::Disabled;
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QPixmap pixmap =
        mTheme->tintedPixmap(option.icon, rect.size(), painter->device()->devicePixelRatio(), mode,
                             state & QStyle::State_Open ? QIcon::On : QIcon::Off, option.iconTinting,
                             option.palette.color(group, QPalette::Text),
                             mTheme->colorPalette().color(VantraPalette::Normal, VantraPalette::Accent));
    style()->drawItemPixmap(painter, rect, static_cast<int>(option.decorationAlignment.toInt()), pixmap);
}

void VantraStyleHelperItemView::drawText(const VantraStyleOptionViewItem &option, QPainter *painter,
                                         const QWidget *widget) const
{
    const QRect rect = style()->subElementRect(QStyle::SE_ItemViewItemText, &option, widget);
    const QStyle::State state = option.state;
    const bool strong = enabledOrSelected(state);
    const QPalette::ColorGroup group = !strong                        ? QPalette::Disabled
                                       : state & QStyle::State_Active ? QPalette::Active
                                                                      : QPalette::Inactive;
    const QPalette::ColorRole role =
        strong && (state & QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
    painter->setPen(option.palette.color(group, role));
    if (state & kStateEditing) {
        painter->setPen(option.palette.color(group, QPalette::Text));
        painter->drawRect(rect.adjusted(0, 0, -1, -1));
    }
    const int alignment = static_cast<int>(option.displayAlignment.toInt());
    const QString text = VantraTextMeasure::elided(option.text, option.fontMetrics, option.textElideMode,
                                                   rect.width() + 4, alignment);
    style()->drawItemText(painter, rect, alignment, option.palette, state & QStyle::State_Enabled, text,
                          QPalette::Text);
}

void VantraStyleHelperItemView::drawPanel(const VantraStyleOptionViewItem &option, QPainter *painter,
                                          const QWidget *) const
{
    checkDecorationPosition(option);
    if (option.backgroundBrush.style() != Qt::NoBrush) {
        painter->setBrush(option.backgroundBrush);
    } else if (option.state & QStyle::State_Selected) {
        painter->setBrush(mTheme->viewItemBrush(&option));
    } else {
        return;
    }
    painter->setPen(Qt::NoPen);
    painter->drawRect(option.rect);
}

void VantraStyleHelperItemView::drawBranch(const VantraStyleOptionViewItem &option, QPainter *painter,
                                           const QWidget *widget) const
{
    checkDecorationPosition(option);
    if (option.state & QStyle::State_Children) {
        style()->drawPrimitive(option.state & QStyle::State_Open ? QStyle::PE_IndicatorArrowDown
                                                                 : QStyle::PE_IndicatorArrowRight,
                               &option, painter, widget);
    }
}

void VantraStyleHelperItemView::drawDropIndicator(const QStyleOption &option, QPainter *painter,
                                                  const QWidget *) const
{
    drawBottomLine(painter, option.rect, mTheme->viewItemDropLineColor(&option),
                   mTheme->viewItemDropLineWidth(&option));
}

QRect VantraStyleHelperItemView::subElementRect(const VantraStyleOptionViewItem &option,
                                                QStyle::SubElement element, const QWidget *widget) const
{
    checkDecorationPosition(option);
    const QMargins padding = mTheme->viewItemPadding(&option);
    const int spacing = mTheme->viewItemSpacing(&option);
    // The top and bottom of the padding count only for the size.
    QRect rest = option.rect.adjusted(padding.left(), 0, -padding.right(), 0);
    QRect decoration;
    QRect check;
    if (hasDecoration(option)) {
        const QSize size = option.decorationSize;
        decoration = centredVertically(rest, rest.left(), size.width() + kDecorationGap + 1, size.height());
        rest.setLeft(decoration.right());
    }
    if (hasCheck(option)) {
        check = centredVertically(rest, rest.left() + (decoration.isNull() ? 0 : spacing),
                                  style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, widget),
                                  style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, widget));
        rest.setLeft(check.right());
    }
    switch (element) {
    case QStyle::SE_ItemViewItemCheckIndicator: return check;
    case QStyle::SE_ItemViewItemDecoration: return decoration;
    default: break;
    }
    const bool hasLead = !decoration.isNull() || !check.isNull();
    rest.setLeft(rest.left() + (hasLead ? spacing : mTheme->viewItemIndent(&option)));
    return rest;
}

QSize VantraStyleHelperItemView::size(VantraStyleOptionViewItem &item, const QWidget *widget) const
{
    checkDecorationPosition(item);
    mTheme->adjustFontAndColor(&item, widget, true);
    const int spacing = mTheme->viewItemSpacing(&item);
    const int decorationWidth = item.decorationSize.width() + kDecorationGap + 1;
    QSize size(0, 0);
    const auto append = [&size, spacing](int width, int height) {
        size.rwidth() += (size.width() > 0 && width > 0 ? spacing : 0) + width;
        size.setHeight(qMax(size.height(), height));
    };
    if (hasDecoration(item)) {
        append(decorationWidth, item.decorationSize.height());
    }
    if (hasCheck(item)) {
        append(style()->pixelMetric(QStyle::PM_IndicatorWidth, &item, widget),
               style()->pixelMetric(QStyle::PM_IndicatorHeight, &item, widget));
    }
    if (!item.text.isEmpty()) {
        const QSize text = VantraTextMeasure::rowSize(item.text, item.fontMetrics,
                                                      static_cast<int>(item.displayAlignment.toInt()));
        append(text.width() + 4, text.height());
    }
    size = size.grownBy(mTheme->viewItemPadding(&item));
    if (size.width() <= 0) {
        size.setWidth(decorationWidth);
    }
    if (size.height() <= 0) {
        size.setHeight(item.decorationSize.height());
    }
    return size;
}

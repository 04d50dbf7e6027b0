#include "Style/VantraStyleHelperToolButton.h"

#include "Style/VantraStamp.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "Theme/VantraStyleTheme.h"

namespace {

constexpr double kHoverGrowth = 1.25;

// Each side is rounded half away from zero, as QSize multiplies.
QSize enlarged(const QSize &inSize)
{
    return inSize * kHoverGrowth;
}

VantraStyleHelper::Content contentOf(const VantraStyleOptionToolButton &option, const QSize &iconSize,
                                     int spacing)
{
    return {option.icon,
            iconSize,
            option.text,
            option.fontMetrics,
            option.arrowType,
            spacing,
            option.toolButtonStyle == Qt::ToolButtonIconOnly,
            option.toolButtonStyle == Qt::ToolButtonTextOnly,
            option.toolButtonStyle == Qt::ToolButtonTextUnderIcon};
}

} // namespace

void VantraStyleHelperToolButton::drawComplex(VantraStyleOptionToolButton &option, QPainter *painter,
                                              const QWidget *widget) const
{
    if (!option.subControls.testFlag(QStyle::SC_ToolButton)) {
        return;
    }
    mTheme->adjustFontAndColor(&option, widget, false);
    style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, painter, widget);
    style()->drawControl(QStyle::CE_ToolButtonLabel, &option, painter, widget);
}

void VantraStyleHelperToolButton::drawPanel(const VantraStyleOptionToolButton &option, QPainter *painter,
                                            const QWidget *) const
{
    if (option.backgroundStyle != VantraToolButton::BackgroundStyleToolButton) {
        const QBrush brush = mTheme->toolButtonBackgroundBrush(&option);
        if (brush.style() != Qt::NoBrush) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(brush);
            drawRoundedBackground(painter, option.rect, mTheme->toolButtonRadii(&option));
        }
        return;
    }
    // A plain icon button shows a small plate while it is checked.
    if (!option.icon.isNull() && option.buttonStyle == VantraToolButton::IconStyle &&
        option.state.testFlag(QStyle::State_On)) {
        VantraStamp::fillRounded(painter, option.rect, mTheme->toolButtonIconBackgroundRadius(&option),
                                 mTheme->toolButtonIconBackgroundBrush(&option));
    }
}

void VantraStyleHelperToolButton::drawLabel(const VantraStyleOptionToolButton &option, QPainter *painter,
                                            const QWidget *) const
{
    const VantraCornerRadii radii = mTheme->toolButtonRadii(&option);
    const int pill = option.toolButtonStyle == Qt::ToolButtonIconOnly ? 0 : radii.topLeft();
    const QMargins margins = paddingWithRadii(mTheme->toolButtonPadding(&option), pill, pill);
    const QRect rect = option.rect.adjusted(margins.left(), 0, -margins.right(), 0);
    const bool grows = option.enlargeIconOnHover && option.state.testFlag(QStyle::State_MouseOver);

    const VantraLabelSaver saver(painter);
    painter->setFont(option.font);
    const Content content = contentOf(option, grows ? enlarged(option.iconSize) : option.iconSize,
                                      static_cast<int>(mTheme->toolButtonSpacing(&option)));
    const Look look{option.iconTinting, Qt::AlignCenter, option.state, option.palette,
                    option.alternateTintRole};
    if (!drawIconTextArrow(content, look, rect, painter)) {
        drawPlaceholder(option, rect, painter);
    }
}

void VantraStyleHelperToolButton::drawPlaceholder(const VantraStyleOptionToolButton &option,
                                                  const QRect &rect, QPainter *painter) const
{
    const VantraPainterSaver saver(painter);
    const int radius = mTheme->toolButtonIconBackgroundRadius(&option);
    const QBrush brush = mTheme->toolButtonIconBackgroundBrush(&option);
    painter->setRenderHint(QPainter::Antialiasing);
    if (option.state & QStyle::State_On) {
        painter->setBrush(brush);
        painter->setPen(Qt::NoPen);
        painter->drawRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
    } else {
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(QBrush(brush.color()), 0.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter->drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius,
                                 Qt::AbsoluteSize);
    }
}

QSize VantraStyleHelperToolButton::size(VantraStyleOptionToolButton &option, const QWidget *widget) const
{
    mTheme->adjustFontAndColor(&option, widget, true);
    const QSize iconSize = option.enlargeIconOnHover ? enlarged(option.iconSize) : option.iconSize;
    QSize size =
        iconTextArrowSize(contentOf(option, iconSize, static_cast<int>(mTheme->toolButtonSpacing(&option))));
    if (size.width() <= 0) {
        size.setWidth(option.iconSize.width());
    }
    if (size.height() <= 0) {
        size.setHeight(option.iconSize.height());
    }
    const QMargins padding = mTheme->toolButtonPadding(&option);
    const QSize content = size;
    size = content.grownBy(padding);
    if (option.toolButtonStyle != Qt::ToolButtonIconOnly) {
        // The pill of the size at hand, not of the widget's present rectangle.
        option.rect = QRect(QPoint(0, 0), size);
        const int pill = mTheme->toolButtonRadii(&option).topLeft();
        size = content.grownBy(paddingWithRadii(padding, pill, pill));
    }
    // A tool button is never narrower than it is tall.
    return size.expandedTo(QSize(size.height(), 0));
}

#include "Style/VantraStyleHelper.h"

#include "Style/VantraStamp.h"
#include "Style/VantraTextMeasure.h"
#include "Theme/VantraCornerRadii.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QtMath>
#include <QtGui/QImage>

namespace {

enum Corner {
    TopLeft = 1,
    TopRight = 2,
    BottomLeft = 4,
    BottomRight = 8,
};

// How many radii each edge moves for a set of round corners, so that the other corners fall outside.
struct Growth
{
    int corners;
    int left;
    int top;
    int right;
    int bottom;
};

constexpr Growth kGrowths[] = {
    {TopLeft, 0, 0, 2, 2},
    {TopRight, -2, 0, 0, 2},
    {BottomLeft, 0, 0, 2, -2}, // the bottom edge moves up, not the top one
    {BottomRight, -2, -2, 0, 0},
    {TopLeft | TopRight | BottomLeft | BottomRight, 0, 0, 0, 0},
    {TopLeft | BottomLeft, 0, 0, 2, 0},
    {TopRight | BottomRight, -2, 0, 0, 0},
    {TopLeft | TopRight, 0, 0, 0, 2},
    {BottomLeft | BottomRight, 0, -2, 0, 0},
};

// A tick's three points, relative to its box.
constexpr QPointF kCheckStart(0.73125, 4.14313);
constexpr QPointF kCheckCorner(4.36875, 7.48264);
constexpr QPointF kCheckEnd(11.2687, 0.696475);

constexpr int kCheckStampSide = 18; // even, and a pen's width larger than the tick

void paintCheckMark(QPainter *painter, const QRectF &rect, const QColor &color)
{
    const QBrush brush(color, Qt::SolidPattern);
    painter->setBrush(brush);
    painter->setPen(QPen(brush, 2.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const QPointF origin((rect.width() - kCheckEnd.x() - kCheckStart.x()) * 0.5 + rect.x(),
                         (rect.height() - kCheckCorner.y() - kCheckEnd.y()) * 0.5 + rect.y());
    painter->drawLine(origin + kCheckStart, origin + kCheckCorner);
    painter->drawLine(origin + kCheckCorner, origin + kCheckEnd);
}

} // namespace

QPalette::ColorGroup VantraStyleHelper::colorGroup(QStyle::State state)
{
    return state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
}

int VantraStyleHelper::pillRadius(const QSize &size)
{
    return qMin(size.width(), size.height()) / 2;
}

QMargins VantraStyleHelper::paddingWithRadii(const QMargins &padding, int left, int right)
{
    return QMargins(left > 0 ? left : padding.left(), padding.top(), right > 0 ? right : padding.right(),
                    padding.bottom());
}

void VantraStyleHelper::drawRoundedBackground(QPainter *painter, const QRect &rect,
                                              const VantraCornerRadii &radii)
{
    drawRoundedBackground(painter, rect, radii.topLeft(), radii.topRight(), radii.bottomLeft(),
                          radii.bottomRight());
}

void VantraStyleHelper::drawRoundedBackground(QPainter *painter, const QRect &rect, int topLeft, int topRight,
                                              int bottomLeft, int bottomRight)
{
    const int limit = pillRadius(rect.size());
    int corners = 0;
    int radius = 0;
    bool common = true;
    const auto add = [&](int wanted, Corner corner) {
        const int limited = qMin(wanted, limit);
        if (limited > 0) {
            common = common && (corners == 0 || limited == radius);
            corners |= corner;
            radius = limited;
        }
    };
    add(topLeft, TopLeft);
    add(topRight, TopRight);
    add(bottomLeft, BottomLeft);
    add(bottomRight, BottomRight);

    const QBrush brush = painter->brush();
    if (corners == 0) {
        painter->fillRect(rect.adjusted(-3, -3, 3, 3), brush);
        return;
    }
    for (const Growth &growth : kGrowths) {
        if (common && growth.corners == corners) {
            VantraStamp::fillRounded(painter,
                                     rect.adjusted(growth.left * radius, growth.top * radius,
                                                   growth.right * radius, growth.bottom * radius),
                                     radius, brush);
            return;
        }
    }
    Q_ASSERT_X(false, "VantraStyleHelper::drawRoundedBackground",
               "Currently only the case above are supported feel free to add more");
}

void VantraStyleHelper::drawArrow(Qt::ArrowType type, const QColor &color, const QSizeF &size,
                                  double lineWidth, const QRect &rect, QPainter *painter)
{
    QSizeF box(size.width() - lineWidth, size.height() - lineWidth);
    if (type == Qt::LeftArrow || type == Qt::RightArrow) {
        box.transpose();
    }
    const double left = (rect.width() - box.width()) * 0.5 + rect.left();
    const double top = (rect.height() - box.height()) * 0.5 + rect.top();
    const double right = left + box.width();
    const double bottom = top + box.height();
    const double middleX = left + box.width() * 0.5;
    const double middleY = top + box.height() * 0.5;

    QPointF points[3]; // start, tip, end
    switch (type) {
    case Qt::UpArrow:
        points[0] = {left, bottom};
        points[1] = {middleX, top};
        points[2] = {right, bottom};
        break;
    case Qt::DownArrow:
        points[0] = {left, top};
        points[1] = {middleX, bottom};
        points[2] = {right, top};
        break;
    case Qt::LeftArrow:
        points[0] = {right, top};
        points[1] = {left, middleY};
        points[2] = {right, bottom};
        break;
    case Qt::RightArrow:
        points[0] = {left, top};
        points[1] = {right, middleY};
        points[2] = {left, bottom};
        break;
    default: return;
    }

    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(QBrush(color), lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::BevelJoin));
    painter->drawLine(points[0], points[1]);
    painter->drawLine(points[1], points[2]);
}

void VantraStyleHelper::drawThemedArrow(Qt::ArrowType type, const QColor &color, bool enlarged,
                                        const QRect &rect, QPainter *painter) const
{
    drawArrow(type, color, mTheme->arrowSize(enlarged), mTheme->arrowLineSize(enlarged), rect, painter);
}

void VantraStyleHelper::drawCheckMark(QPainter *painter, const QRectF &rect, const QColor &color)
{
    const QRect whole = rect.toRect();
    if (rect == whole && VantraStamp::applies(painter)) {
        // The tick keeps its size; only whether its box is odd moves it, by half a pixel.
        const QSize odd(whole.width() % 2, whole.height() % 2);
        const QSize box = QSize(kCheckStampSide, kCheckStampSide) - odd;
        const VantraStamp::Key key{VantraStamp::Shape::Tick,
                                   static_cast<quint8>(odd.width() + 2 * odd.height()), kCheckStampSide,
                                   color.rgba()};
        const QImage &tick = VantraStamp::picture(
            key, [&](QPainter *stamp) { paintCheckMark(stamp, QRectF(QPointF(0.0, 0.0), box), color); });
        painter->drawImage(whole.x() + (whole.width() - box.width()) / 2,
                           whole.y() + (whole.height() - box.height()) / 2, tick);
        return;
    }
    const VantraPainterSaver saver(painter);
    painter->setRenderHint(QPainter::Antialiasing);
    paintCheckMark(painter, rect, color);
}

void VantraStyleHelper::drawBottomLine(QPainter *painter, const QRect &rect, const QColor &color, int width)
{
    const QRectF box(rect);
    const double y = box.top() + box.height() - width;
    const int penWidth = qCeil(painter->device()->devicePixelRatioF() * width);
    QPen pen(QBrush(color), penWidth, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    painter->drawLine(QPointF(box.left(), y), QPointF(box.left() + box.width(), y));
}

bool VantraStyleHelper::drawIconTextArrow(const Content &content, const Look &look, const QRect &rect,
                                          QPainter *painter) const
{
    const QPalette::ColorGroup group = colorGroup(look.state);
    const bool hovered = look.state & QStyle::State_MouseOver;
    QRect iconRect;
    QRect textRect;
    QRect arrowRect;
    QPixmap pixmap;
    int flags = Qt::TextHideMnemonic | Qt::TextDontClip;

    if (content.hasIcon()) {
        const QIcon::Mode mode = group == QPalette::Disabled ? QIcon::Disabled
                                 : hovered                   ? QIcon::Active
                                                             : QIcon::Normal;
        const QIcon::State iconState = look.state & QStyle::State_On ? QIcon::On : QIcon::Off;
        pixmap = mTheme->tintedPixmap(
            content.icon, rect.size().boundedTo(content.iconSize), painter->device()->devicePixelRatio(),
            mode, iconState, look.tinting, look.palette.color(group, QPalette::ButtonText),
            mTheme->colorPalette().color(VantraPalette::Normal, look.alternateRole));
        iconRect = rect;
        if (content.hasText()) {
            textRect = rect;
            if (content.textUnderIcon) {
                flags |= Qt::AlignCenter;
                iconRect.setBottom(rect.bottom() - content.spacing - content.metrics.height());
                textRect.setTop(rect.bottom() - content.metrics.height());
            } else {
                flags |= Qt::AlignLeft | Qt::AlignVCenter;
                iconRect.setWidth(content.iconSize.width());
                textRect.setLeft(iconRect.right() + content.spacing);
            }
        }
    } else if (!content.noText) {
        flags |= look.textFlags;
        textRect = rect;
    }

    if (content.arrow != Qt::NoArrow) {
        QRect *beside = !textRect.isEmpty() ? &textRect : !iconRect.isEmpty() ? &iconRect : nullptr;
        if (beside != nullptr) {
            beside->setRight(beside->right() - kArrowExtent - content.spacing);
            const int left = beside->right() + content.spacing;
            arrowRect = QRect(QPoint(left, beside->top()), QPoint(left + kArrowExtent, beside->bottom()));
        } else {
            arrowRect = rect;
        }
    }

    bool painted = false;
    if (!iconRect.isEmpty() && !pixmap.isNull()) {
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        style()->drawItemPixmap(painter, iconRect, Qt::AlignCenter, pixmap);
        painted = true;
    }
    if (!textRect.isEmpty() && content.hasText()) {
        // The size routines add 4 to a text, and so does its elision.
        style()->drawItemText(painter, textRect, flags, look.palette, look.state & QStyle::State_Enabled,
                              VantraTextMeasure::elided(content.text, content.metrics, Qt::ElideMiddle,
                                                        textRect.width() + 4, flags),
                              QPalette::ButtonText);
        painted = true;
    }
    if (!arrowRect.isEmpty()) {
        drawThemedArrow(content.arrow, look.palette.color(group, QPalette::ButtonText), hovered, arrowRect,
                        painter);
        painted = true;
    }
    return painted;
}

QSize VantraStyleHelper::textSize(const QString &text, const QFontMetrics &metrics)
{
    return text.isEmpty() ? QSize(0, 0) : VantraTextMeasure::size(text, metrics) + QSize(4, 0);
}

QSize VantraStyleHelper::iconTextSize(const QIcon &icon, const QSize &iconSize, const QString &text,
                                      const QFontMetrics &metrics, int spacing)
{
    return iconTextArrowSize({icon, iconSize, text, metrics, Qt::NoArrow, spacing});
}

QSize VantraStyleHelper::iconTextArrowSize(const Content &content)
{
    const QSize icon = content.hasIcon() ? content.iconSize : QSize(0, 0);
    QSize text = content.noText ? QSize(0, 0) : textSize(content.text, content.metrics);
    if (content.arrow != Qt::NoArrow) {
        text.rwidth() += kArrowExtent + (text.width() > 0 ? content.spacing : 0);
        text.setHeight(qMax(qMax(text.height(), icon.height()), kArrowExtent));
    }
    if (text.width() <= 0 || text.height() <= 0) {
        return icon;
    }
    if (content.textUnderIcon) {
        return QSize(qMax(icon.width(), text.width()),
                     icon.height() + text.height() + (icon.height() > 0 ? content.spacing : 0));
    }
    return QSize(icon.width() + text.width() + (icon.width() > 0 ? content.spacing : 0),
                 qMax(icon.height(), text.height()));
}

#include "Style/VantraStyleHelperMenu.h"

#include "Theme/VantraStyleTheme.h"

#include <QtCore/QVariant>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>

VantraStyleMenuItemCast::VantraStyleMenuItemCast(const QStyleOption *inOption, const QWidget *inWidget)
{
    const auto *plain = qstyleoption_cast<const QStyleOptionMenuItem *>(inOption);
    if (plain == nullptr) {
        return;
    }
    const auto *record = plain->version >= static_cast<int>(VantraStyleOptionMenuItem::Version)
                             ? static_cast<const VantraStyleOptionMenuItem *>(plain)
                             : nullptr;
    if (record != nullptr && record->hudOverlayResolved) {
        mRecord = record;
        return;
    }
    VantraStyleOptionMenuItem &local = mLocal.emplace();
    if (record != nullptr) {
        local = *record;
    } else {
        static_cast<QStyleOptionMenuItem &>(local) = *plain;
    }
    fillHudOverlay(local, inWidget);
    mRecord = &local;
}

void VantraStyleMenuItemCast::fillHudOverlay(VantraStyleOptionMenuItem &ioRecord, const QWidget *inWidget)
{
    const auto *menu = qobject_cast<const QMenu *>(inWidget);
    if (menu == nullptr) {
        return;
    }
    ioRecord.hudOverlay = false;
    for (; menu != nullptr; menu = qobject_cast<const QMenu *>(menu->parentWidget())) {
        ioRecord.hudOverlay |= menu->property("hudOverlay").toBool();
    }
    ioRecord.hudOverlayResolved = true;
}

void VantraStyleHelperMenu::drawPanel(const VantraStyleOptionMenuItem &option, QPainter *painter,
                                      const QWidget *) const
{
    const VantraPainterSaver saver(painter);
    const int radius = mTheme->menuItemRadius(&option);
    painter->setRenderHint(QPainter::Antialiasing);
    const QColor line = mTheme->menuItemLineColor(&option);
    const QBrush fill = mTheme->menuItemBrush(&option);
    if (line.alpha() == 255 && fill.color().alpha() == 255 && painter->opacity() == 1.0) {
        // Two nested opaque fills give the same as fill and outline of the shape below, and cost less.
        painter->setPen(Qt::NoPen);
        painter->setBrush(QBrush(line));
        painter->drawRoundedRect(option.rect, radius + 0.5, radius + 0.5);
        painter->setBrush(fill);
        painter->drawRoundedRect(option.rect.adjusted(1, 1, -1, -1), radius - 0.5, radius - 0.5);
        return;
    }
    painter->setPen(QPen(QBrush(line), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter->setBrush(fill);
    painter->drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
}

void VantraStyleHelperMenu::drawCheckMarkIndicator(const VantraStyleOptionMenuItem &option, QPainter *painter,
                                                   const QWidget *) const
{
    if (option.state & QStyle::State_On) {
        drawCheckMark(painter, QRectF(option.rect), mTheme->checkMarkColor(option.state));
    }
}

void VantraStyleHelperMenu::drawItem(const VantraStyleOptionMenuItem &option, QPainter *painter,
                                     const QWidget *widget) const
{
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        drawSeparator(option, painter);
        return;
    }
    if (option.menuItemType != QStyleOptionMenuItem::Normal &&
        option.menuItemType != QStyleOptionMenuItem::DefaultItem &&
        option.menuItemType != QStyleOptionMenuItem::SubMenu) {
        return;
    }
    const VantraPainterSaver saver(painter);
    VantraStyleOptionMenuItem item = option;
    mTheme->adjustFontAndColor(&item, widget, false);

    const qsizetype tab = item.text.indexOf(QLatin1Char('\t'));
    const Columns column = columns(option, tab >= 0, widget);
    if (!item.icon.isNull()) {
        drawIcon(item, column.icon, iconExtent(item, widget), painter);
    }
    if (item.checkType != QStyleOptionMenuItem::NotCheckable) {
        drawTick(item, column.icon, painter, widget);
    }

    int flags =
        Qt::TextShowMnemonic | Qt::TextDontClip | Qt::TextSingleLine | Qt::AlignVCenter | Qt::AlignLeft;
    if (style()->styleHint(QStyle::SH_UnderlineShortcut, &item, widget) == 0) {
        flags |= Qt::TextHideMnemonic;
    }
    painter->setFont(item.font);
    painter->setPen(item.palette.color(colorGroup(item.state), QPalette::Text));
    if (tab < 0) {
        painter->drawText(column.text, flags, item.text);
    } else {
        painter->drawText(column.text, flags, item.text.left(tab));
        painter->drawText(column.shortcut, flags, item.text.mid(tab + 1));
    }
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        item.rect = column.arrow;
        style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &item, painter, widget);
    }
}

void VantraStyleHelperMenu::drawSeparator(const VantraStyleOptionMenuItem &option, QPainter *painter) const
{
    const VantraPainterSaver saver(painter);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(
        QPen(QBrush(mTheme->menuItemLineColor(&option)), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    const double y = option.rect.center().y() + 0.5;
    painter->drawLine(QPointF(option.rect.left(), y), QPointF(option.rect.right(), y));
}

int VantraStyleHelperMenu::iconExtent(const VantraStyleOptionMenuItem &option, const QWidget *widget) const
{
    return qMax(style()->pixelMetric(QStyle::PM_SmallIconSize, &option, widget), option.maxIconWidth);
}

VantraStyleHelperMenu::Columns VantraStyleHelperMenu::columns(const VantraStyleOptionMenuItem &option,
                                                              bool hasShortcut, const QWidget *widget) const
{
    const int spacing = mTheme->menuItemSpacing(&option);
    const int extent = iconExtent(option, widget);
    const QRect contents = option.rect.marginsRemoved(mTheme->menuItemPadding(&option));
    Columns result{contents, contents, QRect(), contents};
    result.icon.setRight(contents.left() + extent);
    result.arrow.setLeft(contents.right() - extent);
    result.text.setLeft(result.icon.right() + spacing);
    result.text.setRight(result.arrow.left() - spacing);
    if (hasShortcut) {
        result.shortcut = result.text;
        result.shortcut.setLeft(result.text.right() - shortcutWidth(option, widget));
        result.text.setRight(result.shortcut.left() - spacing);
    }
    return result;
}

// The column is measured across the whole menu, so that all shortcuts begin at one place.
int VantraStyleHelperMenu::shortcutWidth(const VantraStyleOptionMenuItem &option, const QWidget *widget) const
{
    const auto *menu = qobject_cast<const QMenu *>(widget);
    if (menu == nullptr) {
        return 0;
    }
    std::optional<VantraStyleOptionMenuItem> widest;
    int width = 0;
    const QList<QAction *> actions = menu->actions();
    for (const QAction *action : actions) {
        const QKeySequence shortcut = action->shortcut();
        if (shortcut.isEmpty()) {
            continue;
        }
        if (!widest) {
            widest = option;
            mTheme->adjustFontAndColor(&*widest, widget, true);
        }
        const QString text = shortcut.toString(QKeySequence::PortableText);
        width = qMax(width, widest->fontMetrics.horizontalAdvance(text));
    }
    return width;
}

void VantraStyleHelperMenu::drawIcon(const VantraStyleOptionMenuItem &option, const QRect &rect, int extent,
                                     QPainter *painter) const
{
    const QPalette::ColorGroup group = colorGroup(option.state);
    const QIcon::Mode mode = group == QPalette::Disabled              ? QIcon::Disabled
                             : option.state & QStyle::State_MouseOver ? QIcon::Active
                                                                      : QIcon::Normal;
    const QPixmap pixmap = mTheme->tintedPixmap(
        option.icon, rect.size().boundedTo(QSize(extent, extent)), painter->device()->devicePixelRatio(),
        mode, option.state & QStyle::State_On ? QIcon::On : QIcon::Off, VantraIconPalette::IconTintingNone,
        option.palette.color(group, QPalette::Text),
        mTheme->colorPalette().color(VantraPalette::Normal, VantraPalette::Accent));
    QRect target(QPoint(0, 0), pixmap.deviceIndependentSize().toSize());
    target.moveCenter(rect.center());
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    painter->drawPixmap(target.topLeft(), pixmap);
}

void VantraStyleHelperMenu::drawTick(const VantraStyleOptionMenuItem &option, const QRect &rect,
                                     QPainter *painter, const QWidget *widget) const
{
    VantraStyleOptionMenuItem tick = option;
    tick.rect = rect;
    if (option.checked || option.state.testFlag(QStyle::State_On)) {
        tick.state |= QStyle::State_On;
        if (!option.icon.isNull()) {
            tick.state |= QStyle::State_Selected;
        }
    } else {
        tick.state |= QStyle::State_Off;
    }
    style()->drawPrimitive(QStyle::PE_IndicatorMenuCheckMark, &tick, painter, widget);
}

QSize VantraStyleHelperMenu::size(const VantraStyleOptionMenuItem &option, const QWidget *widget) const
{
    constexpr QSize kSeparatorSize(2, 2);
    switch (option.menuItemType) {
    case QStyleOptionMenuItem::Separator: return kSeparatorSize;
    case QStyleOptionMenuItem::Normal:
    case QStyleOptionMenuItem::DefaultItem:
    case QStyleOptionMenuItem::SubMenu: break;
    default: return QSize(0, 0);
    }
    VantraStyleOptionMenuItem item = option;
    mTheme->adjustFontAndColor(&item, widget, true);
    const int spacing = mTheme->menuItemSpacing(&item);
    const int icon = iconExtent(item, widget);
    int row = icon;
    const auto append = [&row, spacing](int width) { row += (row > 0 && width > 0 ? spacing : 0) + width; };
    const qsizetype tab = item.text.indexOf(QLatin1Char('\t'));
    if (tab > 0) {
        append(item.fontMetrics.horizontalAdvance(item.text.left(tab).trimmed()));
        append(item.fontMetrics.horizontalAdvance(item.text.mid(tab + 1).trimmed()));
    } else {
        append(item.fontMetrics.horizontalAdvance(item.text));
    }
    append(icon); // the column of the submenu arrow
    const QMargins padding = mTheme->menuItemPadding(&item);
    return QSize(row, qMax(icon, item.fontMetrics.height())).grownBy(padding);
}

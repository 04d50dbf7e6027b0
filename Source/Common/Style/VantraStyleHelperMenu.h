#pragma once

// Menus: the rounded panel, the items with icon, tick, text, shortcut and submenu arrow, and the separators.
// An overlay menu changes colours alone, never geometry.

#include "Style/VantraStyleHelper.h"
#include "StyleOptions/VantraStyleOptionMenuItem.h"

#include <optional>

// From an incoming option to a menu item record that knows whether its menu is an overlay. The menu and its
// chain of parent menus are asked at each paint and each size query, since "hudOverlay" may change any time.
class VantraStyleMenuItemCast
{
public:
    VantraStyleMenuItemCast(const QStyleOption *inOption, const QWidget *inWidget);
    Q_DISABLE_COPY_MOVE(VantraStyleMenuItemCast)

    explicit operator bool() const { return mRecord != nullptr; }
    const VantraStyleOptionMenuItem &operator*() const { return *mRecord; }

private:
    static void fillHudOverlay(VantraStyleOptionMenuItem &ioRecord, const QWidget *inWidget);

    const VantraStyleOptionMenuItem *mRecord = nullptr;
    std::optional<VantraStyleOptionMenuItem> mLocal;
};

class VantraStyleHelperMenu : public VantraStyleHelper
{
public:
    using VantraStyleHelper::VantraStyleHelper;

    void drawPanel(const VantraStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const;
    void drawCheckMarkIndicator(const VantraStyleOptionMenuItem &option, QPainter *painter,
                                const QWidget *widget) const;
    void drawItem(const VantraStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const;
    QSize size(const VantraStyleOptionMenuItem &option, const QWidget *widget) const;

private:
    // The columns of an item, from the left.
    struct Columns
    {
        QRect icon;
        QRect text;
        QRect shortcut;
        QRect arrow;
    };

    Columns columns(const VantraStyleOptionMenuItem &option, bool hasShortcut, const QWidget *widget) const;
    int iconExtent(const VantraStyleOptionMenuItem &option, const QWidget *widget) const;
    int shortcutWidth(const VantraStyleOptionMenuItem &option, const QWidget *widget) const;
    void drawSeparator(const VantraStyleOptionMenuItem &option, QPainter *painter) const;
    void drawIcon(const VantraStyleOptionMenuItem &option, const QRect &rect, int extent,
                  QPainter *painter) const;
    void drawTick(const VantraStyleOptionMenuItem &option, const QRect &rect, QPainter *painter,
                  const QWidget *widget) const;
};

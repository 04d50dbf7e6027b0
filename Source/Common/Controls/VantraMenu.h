#pragma once

// A menu that can lie over the picture as an overlay, and that can treat a click on an item with a submenu as
// a trigger of that item.
//
//     auto *menu = new VantraMenu(tr("Presets"), parent);
//     menu->setSubMenuTriggerEnabled(true);   // a click on "Favourites >" applies it, hovering still opens
//     it
//
// Submenus of an overlay menu are overlays too. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QMenu>

class VTWIDGETSLITE_EXPORT VantraMenu : public QMenu
{
    Q_OBJECT
    Q_PROPERTY(bool subMenuTriggerEnabled READ subMenuTriggerEnabled WRITE setSubMenuTriggerEnabled)
    Q_PROPERTY(bool hudOverlay READ hudOverlay WRITE setHudOverlay NOTIFY hudOverlayChanged)

public:
    explicit VantraMenu(QWidget *inParent = nullptr);
    explicit VantraMenu(const QString &inTitle, QWidget *inParent = nullptr);
    ~VantraMenu() override;

    // False by default. When true, releasing the mouse on an enabled item with a submenu triggers its action
    // and closes the menu and all its parent menus.
    bool subMenuTriggerEnabled() const { return mSubMenuTriggerEnabled; }
    void setSubMenuTriggerEnabled(bool inEnabled);

    // False by default. A change emits hudOverlayChanged and repaints; colours alone change, never the
    // geometry.
    bool hudOverlay() const { return mHudOverlay; }
    void setHudOverlay(bool inState);

    void mouseReleaseEvent(QMouseEvent *event) override;

signals:
    void hudOverlayChanged(bool inState);

private:
    bool mSubMenuTriggerEnabled = false;
    bool mHudOverlay = false;
};

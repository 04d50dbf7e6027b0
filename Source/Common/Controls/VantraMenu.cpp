#include "Controls/VantraMenu.h"

#include <QtCore/QPointer>
#include <QtGui/QAction>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>

VantraMenu::VantraMenu(QWidget *inParent) : QMenu(inParent)
{
}

VantraMenu::VantraMenu(const QString &inTitle, QWidget *inParent) : QMenu(inTitle, inParent)
{
}

VantraMenu::~VantraMenu() = default;

void VantraMenu::setSubMenuTriggerEnabled(bool inEnabled)
{
    mSubMenuTriggerEnabled = inEnabled;
}

void VantraMenu::setHudOverlay(bool inState)
{
    if (mHudOverlay == inState) {
        return;
    }
    mHudOverlay = inState;
    emit hudOverlayChanged(inState);
    update();
}

void VantraMenu::mouseReleaseEvent(QMouseEvent *event)
{
    QAction *action = activeAction();
    const bool triggers = mSubMenuTriggerEnabled && action != nullptr && action->menu() != nullptr &&
                          action->isEnabled() && action->isVisible();
    if (!triggers) {
        QMenu::mouseReleaseEvent(event);
        return;
    }
    // A release outside all menus does nothing at all.
    if (qobject_cast<QMenu *>(QApplication::widgetAt(event->globalPosition().toPoint())) == nullptr) {
        return;
    }
    // What the action does may delete menus.
    QPointer<QMenu> menu(this);
    action->trigger();
    while (!menu.isNull()) {
        menu->close();
        menu = menu.isNull() ? nullptr : qobject_cast<QMenu *>(menu->parentWidget());
    }
    event->accept();
}

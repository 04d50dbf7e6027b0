#include "Controls/VantraEditFocus_p.h"

#include <QtGui/QFocusEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

bool VantraEditFocus::leavesForPopupOf(const QWidget *inWidget, const QFocusEvent *inEvent)
{
    const QWidget *popup = QApplication::activePopupWidget();
    return inEvent->lostFocus() && inEvent->reason() == Qt::PopupFocusReason && popup != nullptr &&
           popup->parentWidget() == inWidget;
}

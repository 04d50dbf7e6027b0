#include "Controls/VantraButtonBase.h"

#include "Theme/VantraFont.h"

#include <QtCore/QEvent>

VantraButtonBase::VantraButtonBase(QWidget *inParent) : QPushButton(inParent)
{
    setFont(VantraFont::mainFont());
    setAttribute(Qt::WA_LayoutUsesWidgetRect);
}

VantraButtonBase::~VantraButtonBase() = default;

void VantraButtonBase::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
}

#include "Controls/VantraAccessibleToolButton_p.h"

#include "Controls/VantraToolButton.h"
#include "VTQtPropertyNames.h"

#include <QtCore/QVariant>
#include <QtGui/QKeySequence>

VantraAccessibleToolButton::VantraAccessibleToolButton(VantraToolButton *inButton)
    : QAccessibleWidget(inButton)
{
}

VantraToolButton *VantraAccessibleToolButton::button() const
{
    return static_cast<VantraToolButton *>(widget());
}

// A shortcut that only reports is held back from the button.
QString VantraAccessibleToolButton::keyText() const
{
    QKeySequence key = button()->shortcut();
    if (key.isEmpty()) {
        key = button()->property(kToolButtonKeySequenceProperty).value<QKeySequence>();
    }
    return key.toString(QKeySequence::NativeText);
}

QString VantraAccessibleToolButton::text(QAccessible::Text inText) const
{
    if (inText == QAccessible::Accelerator) {
        return keyText();
    }
    QString text = QAccessibleWidget::text(inText);
    if (inText == QAccessible::Name && text.isEmpty()) {
        text = button()->text().isEmpty() ? button()->toolName() : button()->text();
    }
    return text;
}

QAccessible::Role VantraAccessibleToolButton::role() const
{
    if (button()->menu() != nullptr) {
        return button()->popupMode() == QToolButton::InstantPopup ? QAccessible::ButtonMenu
                                                                  : QAccessible::ButtonDropDown;
    }
    return button()->isCheckable() ? QAccessible::CheckBox : QAccessible::Button;
}

QAccessible::State VantraAccessibleToolButton::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = button()->isCheckable();
    state.checked = button()->isChecked();
    state.pressed = button()->isDown();
    state.hasPopup = button()->menu() != nullptr;
    return state;
}

QStringList VantraAccessibleToolButton::actionNames() const
{
    QStringList names;
    if (button()->isEnabled()) {
        names << (button()->isCheckable() ? toggleAction() : pressAction());
        if (button()->menu() != nullptr) {
            names << showMenuAction();
        }
    }
    return names << QAccessibleWidget::actionNames();
}

void VantraAccessibleToolButton::doAction(const QString &inName)
{
    if (!button()->isEnabled()) {
        return;
    }
    if (inName == toggleAction() || inName == pressAction()) {
        // A click, as tools react to clicked() as well as to toggled().
        button()->click();
    } else if (inName == showMenuAction()) {
        button()->showMenu();
    } else {
        QAccessibleWidget::doAction(inName);
    }
}

QStringList VantraAccessibleToolButton::keyBindingsForAction(const QString &inName) const
{
    const bool isMain = inName == toggleAction() || inName == pressAction();
    return isMain && !keyText().isEmpty() ? QStringList(keyText()) : QStringList();
}

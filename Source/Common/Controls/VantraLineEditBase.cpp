#include "Controls/VantraLineEditBase.h"

#include "Controls/VantraEditFocus_p.h"
#include "Controls/VantraEditLook_p.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"

#include "VTQtLocale.h"

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>

VantraLineEditBase::VantraLineEditBase(QWidget *inParent) : QLineEdit(inParent)
{
}

VantraLineEditBase::~VantraLineEditBase() = default;

void VantraLineEditBase::setBorderStyle(BorderStyle inStyle)
{
    if (mBorderStyle == inStyle) {
        return;
    }
    mBorderStyle = inStyle;
    update();
}

void VantraLineEditBase::setExcludeLocaleGroupSeparator(bool inExclude)
{
    mExcludeLocaleGroupSeparator = inExclude;
}

void VantraLineEditBase::setSelectAllOnFocus(bool inSelect)
{
    mSelectAllOnFocus = inSelect;
}

QSize VantraLineEditBase::sizeHint() const
{
    // Called for the polish alone, which may bring another font.
    static_cast<void>(QLineEdit::sizeHint());
    return fontMetrics().tightBoundingRect(QStringLiteral("99999.9")).size();
}

bool VantraLineEditBase::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (!key->isAutoRepeat() && (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Return)) {
            event->accept();
        }
    } else if (event->type() == QEvent::KeyPress && mExcludeLocaleGroupSeparator) {
        if (static_cast<QKeyEvent *>(event)->text() == VTQtLocale().groupSeparator()) {
            return true;
        }
    }
    return QLineEdit::event(event);
}

void VantraLineEditBase::focusInEvent(QFocusEvent *event)
{
    const bool isBackFromOwnPopup = isFocusChangeForOwnPopup(event);
    mOwnPopupIsOpen = false;
    QLineEdit::focusInEvent(event);
    if (isBackFromOwnPopup) {
        return;
    }
    setFontUnderlining(true);
    if (mSelectAllOnFocus) {
        // A mouse press that brings the focus has yet to place the cursor.
        QTimer::singleShot(0, this, &QLineEdit::selectAll);
    }
}

void VantraLineEditBase::focusOutEvent(QFocusEvent *event)
{
    mOwnPopupIsOpen = isFocusChangeForOwnPopup(event);
    QLineEdit::focusOutEvent(event);
    if (!mOwnPopupIsOpen) {
        setFontUnderlining(false);
    }
}

void VantraLineEditBase::enterEvent(QEnterEvent *event)
{
    QLineEdit::enterEvent(event);
    setPaletteTextColor(true, !isEnabled());
}

void VantraLineEditBase::leaveEvent(QEvent *event)
{
    setPaletteTextColor(false, !isEnabled());
    QLineEdit::leaveEvent(event);
}

void VantraLineEditBase::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    VantraStyleOptionLineEdit option;
    initStyleOption(&option);
    option.borderStyle = mBorderStyle;
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    // The base class paints a panel too, without the border style.
    mPanelIsPainted = true;
    QLineEdit::paintEvent(event);
    mPanelIsPainted = false;
}

void VantraLineEditBase::initStyleOption(QStyleOptionFrame *option) const
{
    QLineEdit::initStyleOption(option);
    if (option != nullptr) {
        option->state &= ~QStyle::State_Sunken;
        VantraEditLook::setTextColor(option);
        if (mPanelIsPainted) {
            // Not under the pointer, a panel without border is bare.
            option->state &= ~QStyle::State_MouseOver;
        }
    }
}

bool VantraLineEditBase::isFocusChangeForOwnPopup(const QFocusEvent *inEvent) const
{
    // The popup is closed when the focus comes back.
    return inEvent->gotFocus() ? mOwnPopupIsOpen && inEvent->reason() == Qt::PopupFocusReason
                               : VantraEditFocus::leavesForPopupOf(this, inEvent);
}

void VantraLineEditBase::setFontUnderlining(bool isUnderlined)
{
    VantraEditLook::setUnderlined(this, isUnderlined);
}

void VantraLineEditBase::setPaletteTextColor(bool isHighlighted, bool isDisabled)
{
    VantraEditLook::setTextColor(this, isHighlighted, isDisabled);
}

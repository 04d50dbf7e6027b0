#include "Controls/VantraTextEdit.h"

#include "Controls/VantraEditFocus_p.h"
#include "Controls/VantraEditLook_p.h"
#include "StyleOptions/VantraStyleOptionTextEdit.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>

VantraTextEdit::VantraTextEdit(QWidget *inParent) : QTextEdit(inParent)
{
    setFrameStyle(0);
    setAcceptRichText(false);
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

VantraTextEdit::~VantraTextEdit() = default;

void VantraTextEdit::setBorderStyle(BorderStyle inStyle)
{
    if (mBorderStyle == inStyle) {
        return;
    }
    mBorderStyle = inStyle;
    update();
}

void VantraTextEdit::setAcceptEnterKey(bool inAccept)
{
    mAcceptEnterKey = inAccept;
}

void VantraTextEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || !hasFocus() || isReadOnly()) {
        QTextEdit::keyPressEvent(event);
        return;
    }
    if (mAcceptEnterKey && event->modifiers().testFlag(Qt::ControlModifier)) {
        QTextCursor cursor(document());
        cursor.movePosition(QTextCursor::End);
        cursor.insertText(QStringLiteral("\n"));
        event->ignore();
    } else {
        emit editingFinished();
        event->accept();
    }
}

void VantraTextEdit::focusInEvent(QFocusEvent *event)
{
    // The popup is closed when the focus comes back.
    const bool isBackFromOwnPopup = mOwnPopupIsOpen && event->reason() == Qt::PopupFocusReason;
    mOwnPopupIsOpen = false;
    QTextEdit::focusInEvent(event);
    if (isBackFromOwnPopup) {
        return;
    }
    if (!isReadOnly()) {
        selectAll();
    }
    setFontUnderlining(true);
}

void VantraTextEdit::focusOutEvent(QFocusEvent *event)
{
    // The context menu is a child of the viewport when the user opens it.
    mOwnPopupIsOpen = VantraEditFocus::leavesForPopupOf(this, event) ||
                      VantraEditFocus::leavesForPopupOf(viewport(), event);
    if (mOwnPopupIsOpen) {
        QTextEdit::focusOutEvent(event);
        return;
    }
    if (!isReadOnly()) {
        moveCursor(QTextCursor::Start);
        if (tabChangesFocus() && event->reason() != Qt::ActiveWindowFocusReason &&
            event->reason() != Qt::OtherFocusReason) {
            emit editingFinished();
        }
    }
    setFontUnderlining(false);
    QTextEdit::focusOutEvent(event);
}

void VantraTextEdit::enterEvent(QEnterEvent *event)
{
    QTextEdit::enterEvent(event);
    setPaletteTextColor(true, !isEnabled());
}

void VantraTextEdit::leaveEvent(QEvent *event)
{
    QTextEdit::leaveEvent(event);
    setPaletteTextColor(false, !isEnabled());
}

void VantraTextEdit::paintEvent(QPaintEvent *event)
{
    QPainter painter(viewport());
    VantraStyleOptionTextEdit option;
    initStyleOption(&option);
    option.borderStyle = mBorderStyle;
    style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
    QTextEdit::paintEvent(event);
}

void VantraTextEdit::initStyleOption(QStyleOptionFrame *option) const
{
    QFrame::initStyleOption(option);
    if (option != nullptr) {
        VantraEditLook::setTextColor(option);
    }
}

void VantraTextEdit::setFontUnderlining(bool isUnderlined)
{
    VantraEditLook::setUnderlined(this, isUnderlined);
}

void VantraTextEdit::setPaletteTextColor(bool isHighlighted, bool isDisabled)
{
    VantraEditLook::setTextColor(this, isHighlighted, isDisabled);
}

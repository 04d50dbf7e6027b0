#pragma once

// The library's box for plain text of several lines, in which Return ends the editing.
//
//     auto *caption = new VantraTextEdit(parent);
//     caption->setAcceptEnterKey(true);
//     connect(caption, &VantraTextEdit::editingFinished, this, &Form::commitCaption);
//
// Neither Return nor Enter adds a line; with setAcceptEnterKey they do together with Ctrl. Tab moves the
// focus on. The whole text is selected when the focus comes, and the font is underlined while it stays. The
// box's own popups, such as its context menu, leave focus, text and selection unchanged. The font is Qt's;
// give it one of VantraFont's. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QTextEdit>

class VTWIDGETSLITE_EXPORT VantraTextEdit : public QTextEdit
{
    Q_OBJECT
    Q_PROPERTY(BorderStyle borderStyle READ borderStyle WRITE setBorderStyle)

public:
    enum BorderStyle {
        BorderNone = 0,      // a ground only while hovered
        BorderHighlight = 1, // always a ground
        BorderStandard = 2,  // a pill
    };
    Q_ENUM(BorderStyle)

    explicit VantraTextEdit(QWidget *inParent = nullptr);
    ~VantraTextEdit() override;

    // BorderNone by default. A change repaints; the geometry stays.
    BorderStyle borderStyle() const { return mBorderStyle; }
    void setBorderStyle(BorderStyle inStyle);

    // True lets Ctrl+Return and Ctrl+Enter add a line break. It goes to the end of the text, wherever the
    // cursor is, and the parent receives the key too. False by default.
    void setAcceptEnterKey(bool inAccept);

signals:
    // Return or Enter was pressed, or the focus has left a box that can be edited. A focus that leaves for
    // another window, or by a call of setFocus without a reason, doesn't count; neither does any while
    // tabChangesFocus is off.
    void editingFinished();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void initStyleOption(QStyleOptionFrame *option) const override;

private slots:
    void setFontUnderlining(bool isUnderlined);
    void setPaletteTextColor(bool isHighlighted, bool isDisabled);

private:
    bool mAcceptEnterKey = false;
    BorderStyle mBorderStyle = BorderNone;
    bool mOwnPopupIsOpen = false; // since the last focusOutEvent
};

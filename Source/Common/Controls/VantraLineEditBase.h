#pragma once

// The library's line edit, without a font of its own: the base for an application's own fields.
//
//     auto *edit = new VantraLineEdit(parent);
//     edit->setBorderStyle(VantraLineEditBase::BorderHighlight);
//     edit->setSelectAllOnFocus(true);
//
// The style draws the ground behind the text. The text takes the theme's colour as the pointer comes and
// goes, and the font is underlined while the field has the focus. The field's own popups, such as its context
// menu, leave focus, text and selection unchanged. All fields ask for the same room, that of "99999.9" in
// their font with nothing around it; the layout or the form makes them wider. Tab and Return go to the field
// even where a shortcut bears their name; Enter doesn't. GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QLineEdit>

class VTWIDGETSLITE_EXPORT VantraLineEditBase : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(BorderStyle borderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(bool excludeLocaleGroupSeparator READ excludeLocaleGroupSeparator WRITE
                   setExcludeLocaleGroupSeparator)

public:
    enum BorderStyle {
        BorderNone = 0,      // a ground only while hovered
        BorderHighlight = 1, // always a ground
        BorderStandard = 2,  // a pill; set text margins to suit
    };
    Q_ENUM(BorderStyle)

    explicit VantraLineEditBase(QWidget *inParent = nullptr);
    ~VantraLineEditBase() override;

    // BorderNone by default. A change repaints; the geometry stays.
    BorderStyle borderStyle() const { return mBorderStyle; }
    void setBorderStyle(BorderStyle inStyle);

    // While true, which is the default, the key of the group separator of the application's number locale
    // does nothing, whatever the field holds. Pasted text isn't looked at.
    bool excludeLocaleGroupSeparator() const { return mExcludeLocaleGroupSeparator; }
    void setExcludeLocaleGroupSeparator(bool inExclude);

    // A second name of setExcludeLocaleGroupSeparator.
    void setIgnoreLocaleSeparator(bool inIgnore) { setExcludeLocaleGroupSeparator(inIgnore); }

    // True for a field whose whole text is selected when it gets the focus, by key or by mouse. False by
    // default. The selection comes with the next turn of the event loop.
    void setSelectAllOnFocus(bool inSelect);

    QSize sizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    // Clears State_Sunken and sets the theme's text color for the state. Also clears State_MouseOver while Qt
    // draws its own panel over the field's. Qt's panel is then that of a field without border and without the
    // pointer. The stock theme makes it transparent, so that the field's own panel stays visible.
    void initStyleOption(QStyleOptionFrame *option) const override;

    // Returns true if the focus only moves to a popup whose parent is this field, or back from it. Call it in
    // focusInEvent() and focusOutEvent() before the base class's implementation.
    bool isFocusChangeForOwnPopup(const QFocusEvent *inEvent) const;

private slots:
    void setFontUnderlining(bool isUnderlined);
    void setPaletteTextColor(bool isHighlighted, bool isDisabled);

private:
    BorderStyle mBorderStyle = BorderNone;
    bool mExcludeLocaleGroupSeparator = true;
    bool mSelectAllOnFocus = false;
    bool mPanelIsPainted = false; // and the base class is about to paint the text over it
    bool mOwnPopupIsOpen = false; // since the last focusOutEvent
};

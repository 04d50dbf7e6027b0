#pragma once

// The library's push button: a visual button style tells the caps and the family that the style paints, and a
// badge with a number can float over its top right corner.
//
//     auto *button = new VantraButton(parent);
//     button->setButtonStyle(VantraButton::LeftAndRightCapButtonAccentStyle);
//     button->setNotificationBadgeEnabled(true);
//     button->setNotificationBadgeCount(3);
//
// An "&" in the text is drawn as it is; there are no mnemonics. Needs the loaded fonts of VantraFont. GUI
// thread only.

#include "Controls/VantraButtonBase.h"
#include "Theme/VantraPalette.h"

#include <QtCore/QList>
#include <QtCore/QPointer>

class VantraLabel;

class VTWIDGETSLITE_EXPORT VantraButton : public VantraButtonBase
{
    Q_OBJECT
    Q_PROPERTY(ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle)
    Q_PROPERTY(bool textOnlyButtonStyle READ textOnlyButtonStyle WRITE setTextOnlyButtonStyle)
    Q_PROPERTY(bool notificationBadgeEnabled READ notificationBadgeEnabled WRITE setNotificationBadgeEnabled)
    Q_PROPERTY(int notificationBadgeCount READ notificationBadgeCount WRITE setNotificationBadgeCount)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment)
    Q_PROPERTY(VantraPalette::PaletteRole backgroundButtonRole READ backgroundButtonRole WRITE
                   setBackgroundButtonRole)

public:
    enum ButtonStyle {
        LeftAndRightCapButtonStyle = 0,
        LeftCapButtonStyle = 1,
        RightCapButtonStyle = 2,
        NoCapButtonStyle = 3,
        TextOnlyStyle = 4,
        LeftAndRightCapButtonAccentStyle = 5,
        LeftAndRightCapTabButtonStyle = 6,
        LeftCapTabButtonStyle = 7,
        RightCapTabButtonStyle = 8,
        NoCapTabButtonStyle = 9,
        LinkButtonStyle = 10,
    };
    Q_ENUM(ButtonStyle)

    explicit VantraButton(QWidget *inParent = nullptr);
    ~VantraButton() override;

    // LeftAndRightCapButtonStyle by default. A change sets the main font, and repaints and measures anew. One
    // to any style but TextOnlyStyle also makes layouts count the style's item rectangle from then on.
    ButtonStyle buttonStyle() const { return mButtonStyle; }
    void setButtonStyle(ButtonStyle inStyle);

    // TextOnlyStyle as a switch; off is LeftAndRightCapButtonStyle, whatever the style was.
    bool textOnlyButtonStyle() const { return mButtonStyle == TextOnlyStyle; }
    void setTextOnlyButtonStyle(bool inTextOnly);

    // The badge, off by default. It is a child of the button's parent, so that it can overhang the button; a
    // button without a parent stops the process. It comes with count 0 and is destroyed when turned off, or
    // with that parent. A button that moves to another parent takes its badge along when it next shows or
    // paints there; the badge of a deleted button stays with the parent, hidden. The badge is raised above
    // the button's siblings when it appears and when the button is raised. A splitter does not count it as a
    // pane. A change emits notificationBadgeEnabledChanged.
    bool notificationBadgeEnabled() const;
    void setNotificationBadgeEnabled(bool inEnabled);

    // What the badge shows; 0 without a badge, when the setter does nothing. The badge shows with the button
    // if the count is above 0. A change emits notificationBadgeCountChanged, and the accessible description
    // tells the count behind the application's own words.
    int notificationBadgeCount() const;
    void setNotificationBadgeCount(int inCount);

    // Of the contents; Qt::AlignCenter by default. A change repaints.
    Qt::Alignment alignment() const { return mAlignment; }
    void setAlignment(Qt::Alignment inAlignment);

    // Replaces the background of the button's style; DefaultRole, the default, leaves it. A change repaints.
    VantraPalette::PaletteRole backgroundButtonRole() const { return mBackgroundButtonRole; }
    void setBackgroundButtonRole(const VantraPalette::PaletteRole &inRole);

    // Styles a row of buttons as one group of tabs, from its first visible button to its last. Hidden buttons
    // keep their style: call it again when one of them shows.
    static void updateTabButtonStyles(QList<VantraButton *> &inButtons);

    // A picture of the button without its badge, for dragging; one pixel for each logical pixel on every
    // display.
    QPixmap getDragPixmap();

    QSize sizeHint() const override;

signals:
    void notificationBadgeEnabledChanged();
    void notificationBadgeCountChanged();
    void buttonDoubleClicked();

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void initStyleOption(QStyleOptionButton *option) const override;

private:
    void updateNotificationBadgeVisibility();
    void moveNotificationBadge();
    void keepNotificationBadgeAbove();
    void forgetNotificationBadge();
    void describeNotificationBadge();

    ButtonStyle mButtonStyle = LeftAndRightCapButtonStyle;
    Qt::Alignment mAlignment = Qt::AlignCenter;
    VantraPalette::PaletteRole mBackgroundButtonRole = VantraPalette::DefaultRole;
    QPointer<VantraLabel> mNotificationBadge; // owned by the parent while it lives
    qint32 mNotificationBadgeCount = 0;
    QString mBadgeDescription; // what this button added to its accessible description
};

#pragma once

// A label in the house font: plain, a badge, one of the library's pictures or a header, which tells of clicks
// and, on demand, of a press that is held.
//
//     auto *label = new VantraLabel(parent);
//     label->setText(tr("Before"));
//     label->enableHoldMousePress();
//     connect(label, &VantraLabel::holdLabelPressed, this, &Preview::showOriginal);
//     connect(label, &VantraLabel::holdLabelReleased, this, &Preview::showResult);
//
// Needs the loaded fonts of VantraFont. A disabled label lets the mouse through to what lies beneath. With
// something connected to clicked(), a label is a button to assistive technology, and can be pressed by it.
// GUI thread only.

#include "VTWidgetsLiteExport.h"

#include <QtWidgets/QLabel>

class VantraMouseHoldInfo;

class VTWIDGETSLITE_EXPORT VantraLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(LabelStyle labelStyle READ labelStyle WRITE setLabelStyle)
    Q_PROPERTY(LabelImage labelImage READ labelImage WRITE setLabelImage)
    Q_PROPERTY(Qt::TextElideMode elideMode READ elideMode WRITE setElideMode)

public:
    enum LabelStyle {
        StandardStyle = 0,
        NotificationStyle = 1, // small and centred, as in the badge of a button
        LabelImageStyle = 2,   // one of the named pictures
        HeaderStyle = 3,       // larger and bold
    };
    Q_ENUM(LabelStyle)

    enum LabelImage {
        NoImage = 0,
        BrowseImage = 1,
        CatalogImage = 2,
        SingleImage = 3,
        HDRBatchImage = 4,
        HDROpenImage = 5,
        PortraitBatchImage = 6,
        PortraitOpenImage = 7,
        HushtoneOpenImage = 8,
        CatalogOrbitImage = 9,
        AlbumOrbitImage = 10,
        QRCodeIOSImage = 11,
        QRCodeAndroidImage = 12,
        PhoneImage = 13,
        LearnMoreOrbitBackgroundImage = 14,
        WarningImage = 15,
    };
    Q_ENUM(LabelImage)

    explicit VantraLabel(QWidget *inParent = nullptr);
    ~VantraLabel() override;

    // StandardStyle by default. A change to NotificationStyle or LabelImageStyle clears the text, one to any
    // style but LabelImageStyle takes a shown picture away. StandardStyle leaves font and alignment as the
    // former style set them.
    LabelStyle labelStyle() const { return mLabelStyle; }
    void setLabelStyle(LabelStyle inStyle);

    // NoImage by default. A picture switches to LabelImageStyle and fixes the label to the picture's size in
    // logical pixels; NoImage takes picture and text away and leaves the size fixed. Every call acts, also
    // one with the present value. A picture that isn't in the resources stops the process.
    LabelImage labelImage() const { return mLabelImage; }
    void setLabelImage(LabelImage inImage);

    // How setText shortens the copy of the text that it keeps; Qt::ElideNone by default. What is shown is the
    // full text in any mode.
    Qt::TextElideMode elideMode() const { return mElideMode; }
    void setElideMode(Qt::TextElideMode inMode);

    // From now on a press of the left button that lasts 500 ms emits holdLabelPressed. There is no way back.
    void enableHoldMousePress() { mHoldMousePressEnabled = true; }
    bool isHoldMousePressEnabled() const { return mHoldMousePressEnabled; }

    // The tool tip, shown at once when the pointer enters and at no other time; an empty text turns it off.
    // QWidget's own tool tip is another one and stays as it is.
    void setToolTip(const QString &inToolTip);

    // Shows in any label as much of the text as its present width takes, and the full text as its tool tip.
    // Null stops the process.
    static void setElidedText(QLabel *label, const QString &inText, Qt::TextElideMode inMode);

    // At least one and a third of the font's height, or the size that a picture fixes.
    QSize minimumSizeHint() const override;

public slots:
    void setText(const QString &inText);
    void heldMousePressTimeoutSlot();

signals:
    // Every release of a button over a visible, enabled label that was pressed, wherever the pointer is then.
    void clicked();

    // The second press of a double click, before its release.
    void doubleClicked();

    // The left button has been down for 500 ms. Only after enableHoldMousePress.
    void holdLabelPressed();

    // Follows each clicked(), be the press held or short. Only after enableHoldMousePress.
    void holdLabelReleased();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    friend class VantraAccessibleLabel;

    static int adjustWidthForIndentAndFrameWidth(const QLabel *label, int inWidth);
    void setElidedText(const QString &inText, int inWidth);
    void clearText();
    bool timesHeldPress() const;

    // Something waits for clicks.
    bool isClickConnected() const;

    LabelStyle mLabelStyle = StandardStyle;
    LabelImage mLabelImage = NoImage;
    Qt::TextElideMode mElideMode = Qt::ElideNone;
    QString mElidedText;
    QString mToolTip;
    VantraMouseHoldInfo *mMouseHoldInfo; // this label holds one reference
    bool mHoldMousePressEnabled = false;
};

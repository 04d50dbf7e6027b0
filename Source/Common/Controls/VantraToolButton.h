#pragma once

// The library's tool button: an icon in a tool bar or a panel, checkable from the start, with one picture for
// on and one for off. It takes a named picture of the library or images handed in, shows its name with its
// shortcut as tool tip, can carry a rich tool tip, and can have its shortcut only report instead of click.
//
//     auto *button = new VantraToolButton(toolBar);
//     button->setButtonImage(VantraToolButton::MaskInspectInvert);
//     button->setToolName(tr("Invert mask"));
//     button->setShortcut(QKeySequence(Qt::Key_I));   // after the name: this writes the tool tip
//     button->setToolTipImage(":/Tips/invert.gif");   // turns the plain tool tip into a rich one
//
// Needs the loaded fonts of VantraFont. A disabled button lets the mouse through to what lies beneath. To
// assistive technology a button without accessible name bears its tool name. GUI thread only.

#include "Theme/VantraIconPalette.h"
#include "Theme/VantraPalette.h"
#include "VTWidgetsLiteExport.h"

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtWidgets/QToolButton>

class QImage;
class QShortcut;

class VTWIDGETSLITE_EXPORT VantraToolButton : public QToolButton
{
    Q_OBJECT
    Q_PROPERTY(ButtonImage buttonImage READ buttonImage WRITE setButtonImage)
    Q_PROPERTY(ButtonStyle buttonStyle READ buttonStyle WRITE setButtonStyle)
    Q_PROPERTY(BackgroundStyle backgroundStyle READ backgroundStyle WRITE setBackgroundStyle NOTIFY
                   backgroundStyleChanged)
    Q_PROPERTY(VantraPalette::PaletteRole backgroundButtonRole READ backgroundButtonRole WRITE
                   setBackgroundButtonRole)
    Q_PROPERTY(VantraIconPalette::IconTintings iconTinting READ iconTinting WRITE setIconTinting NOTIFY
                   iconTintingChanged)
    Q_PROPERTY(QString toolTipImage READ toolTipImage WRITE setToolTipImage)
    Q_PROPERTY(QString toolTipDetailed READ toolTipDetailed WRITE setToolTipDetailed)
    Q_PROPERTY(QString toolTipUrl READ toolTipUrl WRITE setToolTipUrl)
    Q_PROPERTY(ToolTipDirection toolTipDirection READ toolTipDirection WRITE setToolTipDirection)

public:
    // The pictures of the library, each a file of the resources.
    enum ButtonImage {
        NoImage = 0,
        DualModeImage = 1,
        SwapDimensions = 2,
        PrintImage = 3,
        PrintToPrinter = 4,
        PrintToPDF = 5,
        PrintPortrait = 6,
        PrintLandscape = 7,
        Print4x5 = 8,
        Print5x7 = 9,
        Print8x10 = 10,
        PrintContact = 11,
        PrintCustom = 12,
        PrintFill = 13,
        PrintFit = 14,
        PrintMore = 15,
        PrintModeSingle = 16,
        PrintModeContact = 17,
        PrintSinglePage = 18,
        PrintFacingPages = 19,
        PrintAllPages = 20,
        AddColorFillLayer = 21,
        AddTextLayer = 22,
        MaskInspectInvert = 23,
        MaskInspectLumen = 24,
        MaskInspectDepth = 25,
        MaskInspectReset = 26,
        MaskInspectCopy = 27,
        MaskInspectPaste = 28,
        MaskInspectView = 29,
        TextBold = 30,
        TextItalics = 31,
        TextUnderline = 32,
        TextAlignLeft = 33,
        TextAlignCenter = 34,
        TextAlignRight = 35,
        TextCapitalize = 36,
        OverflowImage = 37,
        AddImage = 38,
        DeleteImage = 39,
        SettingsImage = 40,
        ResetImage = 41,
        ModuleSaveApplyImage = 42,
    };
    Q_ENUM(ButtonImage)

    enum ButtonStyle {
        IconStyle = 0,      // a checked button shows a plate behind its icon
        IconOnOffStyle = 1, // on and off differ by picture and tint alone
        IconGroupModuleStyle = 2,
        IconGroupSingleStyle = 3,
        IconGroupTopStyle = 4,
        IconGroupMiddleStyle = 5,
        IconGroupBottomStyle = 6,
    };
    Q_ENUM(ButtonStyle)

    enum BackgroundStyle {
        BackgroundStyleToolButton = 0,
        BackgroundStyleButton = 1,
        BackgroundStyleAccentButton = 2,
        BackgroundStyleAlternateButton = 3,
        BackgroundStyleComboBoxNone = 4,
        BackgroundStyleComboBoxStandard = 5,
        BackgroundStyleTobButton = 6,
    };
    Q_ENUM(BackgroundStyle)

    // The side of the button on which its rich tool tip opens.
    enum ToolTipDirection {
        ToolTipDirectionLeft = 0,
        ToolTipDirectionRight = 1,
        ToolTipDirectionBelow = 2,
        ToolTipDirectionAbove = 3,
        ToolTipDirectionAuto = 4,
    };
    Q_ENUM(ToolTipDirection)

    // A button of IconStyle without an icon.
    explicit VantraToolButton(QWidget *inParent = nullptr);

    // A button of IconOnOffStyle with that image, tinted with the accent while on.
    explicit VantraToolButton(const QImage &inImage, QWidget *inParent = nullptr);

    ~VantraToolButton() override;

    // NoImage by default. A named picture makes the button as initOnOffStyle does, tinted with the accent
    // while on; NoImage leaves the present icon.
    ButtonImage buttonImage() const { return mButtonImage; }
    void setButtonImage(ButtonImage inImage);

    ButtonStyle buttonStyle() const { return mButtonStyle; }
    void setButtonStyle(ButtonStyle inStyle);

    // BackgroundStyleToolButton by default.
    BackgroundStyle backgroundStyle() const { return mBackgroundStyle; }
    void setBackgroundStyle(BackgroundStyle inStyle);

    // The role that colours the background; DefaultRole, the default, leaves it to the background style.
    VantraPalette::PaletteRole backgroundButtonRole() const { return mBackgroundButtonRole; }
    void setBackgroundButtonRole(VantraPalette::PaletteRole inRole);

    // IconTintingNone by default.
    VantraIconPalette::IconTintings iconTinting() const { return mIconTinting; }
    void setIconTinting(VantraIconPalette::IconTintings inTinting);

    // The rich tool tip: the animation's path, the text below the title (which is the plain tool tip's text)
    // and the target of its link. Without an image the tool tip stays Qt's plain one. All are read when the
    // tip opens; see VantraToolTipContent for what they may be. Empty by default.
    QString toolTipImage() const { return mToolTipImage; }
    void setToolTipImage(const QString &inImage) { mToolTipImage = inImage; }
    QString toolTipDetailed() const { return mToolTipDetailed; }
    void setToolTipDetailed(const QString &inText) { mToolTipDetailed = inText; }
    QString toolTipUrl() const { return mToolTipUrl; }
    void setToolTipUrl(const QString &inUrl) { mToolTipUrl = inUrl; }

    // ToolTipDirectionAuto by default.
    ToolTipDirection toolTipDirection() const { return mToolTipDirection; }
    void setToolTipDirection(ToolTipDirection inDirection) { mToolTipDirection = inDirection; }

    // The name that setShortcut writes into the tool tip; a new name shows with the next setShortcut.
    QString toolName() const { return mToolName; }
    void setToolName(const QString &inName) { mToolName = inName; }

    // Kept for the application, and read by nothing else.
    QString appendedText() const { return mAppendedText; }
    void setAppendedText(const QString &inText) { mAppendedText = inText; }

    // Sets the size policy to fixed as well, in logical pixels.
    void setFixedSize(const QSize &inSize);

    // With true, the shortcut no longer clicks the button: the key emits shortcutActivated. The button must
    // have a shortcut, or the process stops. The tool tip keeps the key. With false, the key clicks again.
    // False by default.
    void setShortcutActivatedEnabled(bool inEnabled);

    // Makes it a checkable button of IconOnOffStyle with one image for both states, or one for each. The icon
    // is shown at 24 by 24 logical pixels, whatever the images' size; the minimum size is that of the first.
    void initOnOffStyle(const QImage &inImage, VantraIconPalette::IconTintings inTinting);
    void initOnOffStyle(const QImage &inOnImage, const QImage &inOffImage,
                        VantraIconPalette::IconTintings inTinting);

    QSize sizeHint() const override;

    // Also writes the tool name with the key into the tool tip, if there is a name and a key.
    virtual void setShortcut(const QKeySequence &inKey);

    // For subclasses and the application; the library doesn't call it. True here.
    virtual bool supportNestedSetCurrentToolButton() const;

signals:
    // The second press of a double click, which is no press of the button: it neither clicks nor toggles.
    void buttonDoubleClicked();

    // The shortcut was pressed, alone in its window or one of several alike; see setShortcutActivatedEnabled.
    void shortcutActivated(VantraToolButton *button);
    void shortuctActivatedAmbiguously(VantraToolButton *button);

    void backgroundStyleChanged(VantraToolButton::BackgroundStyle inButtonStyle);
    void iconTintingChanged(VantraIconPalette::IconTintings inIconTinting);

protected:
    // A button of IconStyle and a fixed size of 32 by 32, with the icon at 24 by 24.
    explicit VantraToolButton(const QIcon &inIcon, QWidget *inParent = nullptr);

    // What initOnOffStyle does with the images.
    void setIconOnOffPixmap(const QImage &inImage, VantraIconPalette::IconTintings inTinting);
    void setIconOnOffPixmap(const QImage &inOnImage, const QImage &inOffImage,
                            VantraIconPalette::IconTintings inTinting);

    // See VTWidgetsGenerateColorPixmap.
    QPixmap generateColorPixmap(const QImage &inImage, const QColor &inColor) const;

    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void initStyleOption(QStyleOptionToolButton *option) const override;

private:
    static void initButtonImageMap();

    void init(ButtonStyle inStyle);
    void startReporting();
    void stopReporting();

    static QMap<ButtonImage, QString> sButtonImageToResourceUrlMap;

    QString mToolTipImage;
    QString mToolTipDetailed;
    QString mToolTipUrl;
    ButtonImage mButtonImage = NoImage;
    ButtonStyle mButtonStyle = IconStyle;
    BackgroundStyle mBackgroundStyle = BackgroundStyleToolButton;
    VantraIconPalette::IconTintings mIconTinting = VantraIconPalette::IconTintingNone;
    QShortcut *mShortcut = nullptr; // while the shortcut only reports
    QString mToolName = QLatin1String("");
    ToolTipDirection mToolTipDirection = ToolTipDirectionAuto;
    QString mAppendedText;
    VantraPalette::PaletteRole mBackgroundButtonRole = VantraPalette::DefaultRole;
};

#pragma once

// The single object from which everything reads its look: the colour, font and icon palettes, which theme
// files fill, and the metrics of all controls, which are compiled in.
//
//     VantraFont::loadApplicationFonts();
//     VantraStyleTheme::loadGlobalConfig("base", "blue");   // or "purple", "red", "green", "orange"
//
// Painters ask it one small question per thing that they paint and hand over the option of the control at
// hand: the option's state chooses the palette group, the query the role. A pair that the theme lacks answers
// in solid red. Sizes are in logical pixels. Before the first load every colour is red and fonts are left
// alone. A load tells nobody: controls change when they next paint. GUI thread only, no lock.

#include "Theme/VantraColorPalette.h"
#include "Theme/VantraCornerRadii.h"
#include "Theme/VantraFontPalette.h"
#include "Theme/VantraIconPalette.h"

#include <QtCore/QList>
#include <QtCore/QMargins>
#include <QtGui/QPen>
#include <QtWidgets/QStyle>

#include <chrono>
#include <utility>

class QFontMetrics;
class QJsonObject;
class QPainter;
class QRectF;
class QStyleOption;
class QStyleOptionMenuItem;
class VantraStyleOptionButton;
class VantraStyleOptionComboBox;
class VantraStyleOptionFrame;
class VantraStyleOptionFramePane;
class VantraStyleOptionGroupBox;
class VantraStyleOptionLineEdit;
class VantraStyleOptionMenuItem;
class VantraStyleOptionSlider;
class VantraStyleOptionSpinBox;
class VantraStyleOptionTab;
class VantraStyleOptionToolButton;
class VantraStyleOptionViewItem;

class VTWIDGETSLITE_EXPORT VantraStyleTheme
{
public:
    VantraStyleTheme();
    VantraStyleTheme(const VantraStyleTheme &) = default;
    VantraStyleTheme(VantraStyleTheme &&) = default;
    VantraStyleTheme &operator=(const VantraStyleTheme &) = delete;
    VantraStyleTheme &operator=(VantraStyleTheme &&) = delete;
    ~VantraStyleTheme();

    // The theme that everything reads. It changes only through loadGlobalConfig.
    static const VantraStyleTheme &instance();

    // Loads two stock themes by name into the singleton: a base and an accent. See loadConfig for the result.
    // The program repaints its windows itself.
    static bool loadGlobalConfig(const QString &inBaseName, const QString &inAccentName);

    const VantraColorPalette &colorPalette() const { return mColorPalette; }
    const VantraFontPalette &fontPalette() const { return mFontPalette; }

    // Loads two theme files by path. The second one's aliases and colour entries win over the first's; fonts
    // come from the first alone. A file that isn't valid JSON counts as empty. False, with nothing changed,
    // when a file can't be opened; false when an entry of a palette isn't an object, with what came before it
    // applied. Entries with unknown words or unusable colours are skipped. The load overlays what is there.
    bool loadConfig(const QString &inBasePath, const QString &inAccentPath);

    // Breaks a text for drawing by hand: lines end at white space and are joined by line feeds, no wider than
    // inMaxWidth logical pixels where white space allows. The scan doesn't step back after a cut, so a line
    // behind a cut can come out wider.
    static QString insertNewlines(const QFontMetrics &inMetrics, int inMaxWidth, const QString &inText);

    // General. The queries by QPalette::ColorGroup answer in group Normal for active and inactive, Disabled
    // for everything else.
    QColor dropShadowColor() const;
    QColor accentColor(QPalette::ColorGroup inGroup) const;
    QColor windowBackgroundColor(QPalette::ColorGroup inGroup) const;
    QColor windowTextColor(QPalette::ColorGroup inGroup) const;
    QColor buttonBackgroundColor(QPalette::ColorGroup inGroup) const;
    QColor buttonTextColor(QPalette::ColorGroup inGroup) const;
    QColor highlightedTextBackgroundColor(QPalette::ColorGroup inGroup) const;
    QColor highlightedTextColor(QPalette::ColorGroup inGroup) const;
    QColor previewBackgroundColorBlack() const { return mPreviewBackgroundColorBlack; }
    QColor previewBackgroundColorWhite() const { return mPreviewBackgroundColorWhite; }
    QColor previewBackgroundColorLightGray() const { return mPreviewBackgroundColorLightGray; }
    QColor previewBackgroundColorDarkGray() const { return mPreviewBackgroundColorDarkGray; }
    QSizeF arrowSize(bool inEnlarged) const;
    double arrowLineSize(bool inEnlarged) const;

    // VantraIconPalette::tintPixmap of the theme's icon palette.
    QPixmap tintedPixmap(const QIcon &inIcon, const QSize &inSize, double inDevicePixelRatio,
                         QIcon::Mode inMode, QIcon::State inState, VantraIconPalette::IconTintings inTinting,
                         const QColor &inForeground, const QColor &inAlternate) const;

    // Gives a widget the font and, at its foreground role, the colours of a theme entry.
    void adjustFontAndTextColor(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole,
                                QWidget *ioWidget) const;

    // Check box
    QMargins checkboxPadding(const QStyleOption *) const { return mCheckboxPadding; }
    int checkboxOuterSize(const QStyleOption *) const { return mCheckboxOuterSize; }
    int checkboxOuterBorderSize(const QStyleOption *) const { return mCheckboxOuterBorderSize; }
    int checkboxInnerSize(const QStyleOption *) const { return mCheckboxInnerSize; }
    QColor checkboxColor(const QStyleOption *inOption) const;
    QColor checkMarkColor(const QStyle::State &inState) const;

    // Scroll bar and progress bar
    int scrollBarHitSize(const QStyleOption *) const { return mScrollBarHitSize; }
    int scrollBarVisualSize(const QStyleOption *) const { return mScrollBarVisualSize; }
    QBrush scrollBarBrush(const QStyleOption *inOption) const;
    int progressBarSize(const QStyleOption *) const { return mProgressBarSize; }
    QBrush progressBarGrooveBrush(const QStyleOption *inOption) const;
    QBrush progressBarContentsBrush(const QStyleOption *inOption) const;
    std::chrono::milliseconds progressBarAnimationDuration(const QStyleOption *) const
    {
        return std::chrono::milliseconds(2000);
    }

    // Frame and pane
    QBrush frameBrush(const VantraStyleOptionFrame *inOption) const;
    QPen frameLinePen(const VantraStyleOptionFrame *inOption) const;
    int paneRadius(const VantraStyleOptionFramePane *inOption) const;
    QColor paneBackgroundColor(VantraPalette::PaletteGroup inGroup) const;
    QColor paneBackgroundColor(const VantraStyleOptionFramePane *inOption) const;
    int paneLineWidth(const VantraStyleOptionFramePane *) const { return mPaneLineWidth; }
    QColor paneLineColor(const VantraStyleOptionFramePane *inOption) const;

    // Slider
    int sliderThickness() const { return mSliderThickness; }
    int grooveThickness() const { return mGrooveThickness; }
    int grooveRadius() const { return mGrooveThickness / 2; }
    int handleThickness(bool inEnlarged) const;
    int handleRadius(bool inEnlarged) const;
    QBrush sliderValueBrush(const VantraStyleOptionSlider *inOption) const;
    QBrush sliderHandleBrush(const VantraStyleOptionSlider *inOption) const;
    QColor sliderGrooveColor() const;
    // The option's gradient stops across the rectangle's diagonal, or the theme's groove when it has none.
    QBrush sliderGrooveBrush(const VantraStyleOptionSlider *inOption, const QRectF &inRect) const;
    // Darkens the stops in place for the disabled (130 %) and the inactive (120 %) group.
    void disableColor(QPalette::ColorGroup inGroup, QList<std::pair<double, QColor>> &ioStops) const;

    // Button
    QMargins buttonPadding(const VantraStyleOptionButton *inOption) const;
    int buttonSpacing(const VantraStyleOptionButton *) const { return static_cast<int>(mButtonSpacing); }
    VantraCornerRadii buttonRadii(const VantraStyleOptionButton *inOption) const;
    QBrush buttonBackgroundBrush(const VantraStyleOptionButton *inOption) const;

    // View item
    QMargins viewItemPadding(const VantraStyleOptionViewItem *) const { return mViewItemPadding; }
    int viewItemIndent(const VantraStyleOptionViewItem *inOption) const;
    int viewItemSpacing(const VantraStyleOptionViewItem *) const { return mViewItemSpacing; }
    QBrush viewItemBrush(const VantraStyleOptionViewItem *inOption) const;
    int viewItemDropLineWidth(const QStyleOption *) const { return mViewItemDropLineWidth; }
    QColor viewItemDropLineColor(const QStyleOption *inOption) const;

    // Combo box
    QBrush comboBoxBrush(const VantraStyleOptionComboBox *inOption) const;
    VantraCornerRadii comboBoxRadii(const VantraStyleOptionComboBox *inOption) const;
    QMargins comboBoxPadding(const VantraStyleOptionComboBox *) const { return mComboBoxPadding; }
    double comboBoxSpacing(const VantraStyleOptionComboBox *) const { return mComboBoxSpacing; }

    // Line edit. The text "colour" is a brush.
    QBrush lineEditBackgroundBrush(const VantraStyleOptionLineEdit *inOption) const;
    int lineEditLeftRadius(const VantraStyleOptionLineEdit *inOption) const;
    int lineEditRightRadius(const VantraStyleOptionLineEdit *inOption) const;
    QBrush lineEditTextColor(const VantraStyleOptionLineEdit *inOption) const;

    // Tool button
    QMargins toolButtonPadding(const VantraStyleOptionToolButton *inOption) const;
    double toolButtonSpacing(const VantraStyleOptionToolButton *inOption) const;
    int toolButtonIconBackgroundRadius(const VantraStyleOptionToolButton *) const
    {
        return static_cast<int>(mToolButtonIconBackgroundRadius);
    }
    VantraCornerRadii toolButtonRadii(const VantraStyleOptionToolButton *inOption) const;
    QBrush toolButtonIconBackgroundBrush(const VantraStyleOptionToolButton *inOption) const;
    QBrush toolButtonBackgroundBrush(const VantraStyleOptionToolButton *inOption) const;

    // Splitter
    QBrush splitterBackgroundBrush(const QStyleOption *inOption) const;
    int splitterHandleSize(const QStyleOption *) const { return 16; }
    QBrush splitterHandleBrush(const QStyleOption *inOption) const;

    // Tab bar
    QMargins tabBarPadding(const VantraStyleOptionTab *) const { return mTabBarPadding; }
    VantraCornerRadii tabBarRadii(const VantraStyleOptionTab *) const
    {
        return VantraCornerRadii(static_cast<int>(mTabBarRadius));
    }
    int tabBarSpacing(const VantraStyleOptionTab *) const { return static_cast<int>(mTabBarSpacing); }
    QBrush tabBarBackgroundBrush(const VantraStyleOptionTab *inOption) const;

    // Spin box
    VantraCornerRadii spinBoxRadii(const VantraStyleOptionSpinBox *inOption) const;
    int spinBoxSpacing(const VantraStyleOptionSpinBox *) const { return static_cast<int>(mSpinBoxSpacing); }
    QMargins spinBoxPadding(const VantraStyleOptionSpinBox *) const { return mSpinBoxPadding; }
    QBrush spinBoxBackgroundBrush(const VantraStyleOptionSpinBox *inOption) const;
    QColor spinBoxTextColor(const VantraStyleOptionSpinBox *inOption) const;

    // Menu
    QBrush menuItemBrush(const VantraStyleOptionMenuItem *inOption) const;
    QColor menuItemLineColor(const VantraStyleOptionMenuItem *inOption) const;
    QColor menuItemCheckColor(const VantraStyleOptionMenuItem *inOption) const;
    QMargins menuItemPadding(const VantraStyleOptionMenuItem *) const { return mMenuItemPadding; }
    int menuItemSpacing(const VantraStyleOptionMenuItem *) const { return mMenuItemSpacing; }
    int menuItemRadius(const VantraStyleOptionMenuItem *) const { return mMenuItemRadius; }

    // Group box
    QBrush groupBoxFrameBrush(const VantraStyleOptionGroupBox *inOption) const;
    QBrush groupBoxContentsBrush(const VantraStyleOptionGroupBox *inOption) const;
    VantraCornerRadii groupBoxRadii(const VantraStyleOptionGroupBox *) const { return VantraCornerRadii(5); }

    // Preset browser: fixed, whatever the theme files say.
    QFont presetBrowserFont() const;
    QColor presetBrowserTextColor() const;
    QColor presetBrowserBandColor() const;
    float presetBrowserRadius() const;
    float presetBrowserBandHeight() const;

    // Put the font and the text colour of the option's state into the option, where the option still agrees
    // with the widget's own; the metrics follow the font. Painting passes false. Measuring passes true and
    // gets the largest font that any state can show, so that a control doesn't change size with its state.
    void adjustFontAndColor(VantraStyleOptionButton *ioOption, const QWidget *inWidget,
                            bool inUseLargestFont) const;
    void adjustFontAndColor(VantraStyleOptionComboBox *ioOption, const QWidget *inWidget,
                            bool inUseLargestFont) const;
    void adjustFontAndColor(VantraStyleOptionViewItem *ioOption, const QWidget *inWidget,
                            bool inUseLargestFont) const;
    void adjustFontAndColor(VantraStyleOptionToolButton *ioOption, const QWidget *inWidget,
                            bool inUseLargestFont) const;
    void adjustFontAndColor(QStyleOptionMenuItem *ioOption, const QWidget *inWidget,
                            bool inUseLargestFont) const;
    // A tab's option has no font: the widget's is taken, and a painter, if given, receives it. Without a
    // widget the application's font stands in.
    void adjustFontAndColor(VantraStyleOptionTab *ioOption, QPainter *ioPainter, const QWidget *inWidget,
                            bool inUseLargestFont) const;

private:
    // Programs for writing themes try out documents that are no resources.
    friend class VantraThemeTrial;

    void saveConfigImpl(const QString &inPath) const;
    bool mergeConfigImpl(QJsonObject &ioFirst, QJsonObject &inSecond) const;

    QColor paletteColor(QPalette::ColorGroup inGroup, VantraPalette::PaletteRole inRole) const;
    QBrush solidBrush(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole) const;
    template <typename Option>
    void adjustOption(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole,
                      QPalette::ColorRole inColorRole, Option *ioOption, const QWidget *inWidget,
                      bool inUseLargestFont) const;

    static VantraStyleTheme sInstance;

    VantraColorPalette mColorPalette;
    VantraFontPalette mFontPalette;
    VantraIconPalette mIconPalette;
    QColor mPreviewBackgroundColorWhite = Qt::white;
    QColor mPreviewBackgroundColorBlack = Qt::black;
    QColor mPreviewBackgroundColorDarkGray = QColor(48, 48, 48);
    QColor mPreviewBackgroundColorLightGray = QColor(128, 128, 128);
    QMargins mComboBoxPadding = QMargins(4, 4, 4, 4);
    double mComboBoxSpacing = 1.0;
    QMargins mCheckboxPadding = QMargins(2, 2, 2, 2);
    int mCheckboxOuterSize = 12;
    int mCheckboxInnerSize = 4;
    int mCheckboxOuterBorderSize = 1;
    int mPaneRadius = 5;
    int mPaneLineWidth = 1;
    int mSliderThickness = 22;
    int mGrooveThickness = 4;
    int mHandleThickness = 12;
    int mHandleThicknessEnlarged = 16;
    int mScrollBarHitSize = 8;
    int mScrollBarVisualSize = 8;
    int mProgressBarSize = 8;
    double mButtonRadius = 5.0;
    QMargins mButtonPadding = QMargins(4, 4, 4, 4);
    double mButtonSpacing = 1.0;
    double mToolButtonIconBackgroundRadius = 3.0;
    QMargins mToolButtonPadding = QMargins(0, 0, 0, 0);
    int mToolButtonSpacing = 1;
    int mLineEditRadius = 3;
    QMargins mViewItemPadding = QMargins(0, 2, 0, 2);
    int mViewItemSpacing = 4;
    int mViewItemIndent = 10;
    int mViewItemDropLineWidth = 1;
    QMargins mTabBarPadding = QMargins(4, 4, 4, 4);
    double mTabBarRadius = 5.0;
    double mTabBarSpacing = 1.0;
    QMargins mSpinBoxPadding = QMargins(4, 4, 4, 4);
    double mSpinBoxSpacing = 1.0;
    QMargins mMenuItemPadding = QMargins(4, 2, 4, 2);
    int mMenuItemSpacing = 4;
    int mMenuItemRadius = 5;
};

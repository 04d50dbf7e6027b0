#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "StyleOptions/VantraStyleOptionGroupBox.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionMenuItem.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QTabBar>

#include <functional>

namespace {

using B = VantraButton;
using F = VantraFramePane;
using L = VantraLineEditBase;
using P = VantraPalette;
using T = VantraStyleTheme;
using TB = VantraToolButton;

// A theme in which every pair has a colour and a font size of its own, so that an answer tells its source.
T makeTheme()
{
    QJsonArray colors;
    QJsonArray fonts;
    const QMetaEnum groups = QMetaEnum::fromType<P::PaletteGroup>();
    const QMetaEnum roles = QMetaEnum::fromType<P::PaletteRole>();
    for (int g = 0; g < groups.keyCount(); ++g) {
        for (int r = 0; r < roles.keyCount(); ++r) {
            QJsonObject entry{{"group", groups.key(g)}, {"role", roles.key(r)}};
            entry.insert("color", QJsonArray{groups.value(g), roles.value(r), 200});
            entry.insert("size", 1000 + 100 * groups.value(g) + roles.value(r));
            colors.append(entry);
            fonts.append(entry);
        }
    }
    const ThemeFixture::Files files;
    const QJsonObject object{{"color_palette", colors}, {"font_palette", fonts}};
    T theme;
    theme.loadConfig(files.write("all.json", QJsonDocument(object).toJson()), files.write("none.json", "{}"));
    return theme;
}

QString source(const QColor &inColor)
{
    if (inColor.blue() != 200 || inColor.alpha() != 255) {
        return inColor.name(QColor::HexArgb);
    }
    return QString("%1 %2").arg(QMetaEnum::fromType<P::PaletteRole>().valueToKey(inColor.green()),
                                QMetaEnum::fromType<P::PaletteGroup>().valueToKey(inColor.red()));
}

QString source(const QFont &inFont)
{
    const int code = inFont.pointSize() - 1000;
    return code < 0 ? QString("untouched") : source(QColor(code / 100, code % 100, 200));
}

QString text(const VantraCornerRadii &inRadii)
{
    return QString("%1,%2,%3,%4")
        .arg(inRadii.topLeft())
        .arg(inRadii.topRight())
        .arg(inRadii.bottomLeft())
        .arg(inRadii.bottomRight());
}

constexpr QStyle::State kEnabled = QStyle::State_Enabled;

// The states in which each query is asked.
const QStyle::State kStates[] = {
    QStyle::State_None,
    QStyle::State_MouseOver | QStyle::State_Selected | QStyle::State_On | QStyle::State_Sunken,
    QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
    kEnabled,
    kEnabled | QStyle::State_MouseOver,
    kEnabled | QStyle::State_Selected,
    kEnabled | QStyle::State_On,
    kEnabled | QStyle::State_Sunken,
    kEnabled | QStyle::State_HasFocus,
    kEnabled | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange,
};

// What highlights, and the first letter of the group that answers in each of those states.
const QHash<QString, QString> kRules = {
    {"nothing", "DDDNNNNNNN"},       {"hover", "DDDNHNNNNN"},
    {"selection", "DDDNNHNNNN"},     {"on", "DDDNNNHNNN"},
    {"on,hover", "DDDNHNHNNN"},      {"selection,hover", "DDDNHHNNNN"},
    {"pressed,hover", "DDDNHNNHNN"}, {"keyboard", "DDHNNNNNNH"},
    {"always", "HHHHHHHHHH"},        {"=normal", "NNNNNNNNNN"},
    {"=disabled", "DDDDDDDDDD"},     {"enabled", "DDDHHHHHHH"},
    {"on,(hover)", "DDDN-NHNNN"},
};

struct Row
{
    const char *name; // role, what highlights, and anything that tells it from other rows
    std::function<QColor(const T &, QStyle::State)> query;
};

QColor colorOf(const QColor &inColor)
{
    return inColor;
}

QColor colorOf(const QBrush &inBrush)
{
    return inBrush.style() == Qt::SolidPattern ? inBrush.color() : QColor(0, 0, 0, 1);
}

template <typename Option, typename Result, typename Change>
auto with(Result (T::*inQuery)(const Option *) const, Change inChange)
{
    return [=](const T &inTheme, QStyle::State inState) {
        Option option;
        option.state = inState;
        inChange(option);
        return colorOf((inTheme.*inQuery)(&option));
    };
}

template <typename Option, typename Result>
auto plain(Result (T::*inQuery)(const Option *) const)
{
    return with(inQuery, [](Option &) {});
}

auto button(B::ButtonStyle inStyle, P::PaletteRole inRole = P::DefaultRole)
{
    return with(&T::buttonBackgroundBrush, [=](VantraStyleOptionButton &ioOption) {
        ioOption.buttonStyle = inStyle;
        ioOption.backgroundButtonRole = inRole;
    });
}

auto tool(TB::BackgroundStyle inStyle, P::PaletteRole inRole = P::DefaultRole)
{
    return with(&T::toolButtonBackgroundBrush, [=](VantraStyleOptionToolButton &ioOption) {
        ioOption.backgroundStyle = inStyle;
        ioOption.backgroundButtonRole = inRole;
    });
}

auto pane(QColor (T::*inQuery)(const VantraStyleOptionFramePane *) const, F::PaneStyle inStyle, int inState,
          F::PaneBorderStyle inBorder = F::PaneBorderStyleStandard)
{
    return with(inQuery, [=](VantraStyleOptionFramePane &ioOption) {
        ioOption.paneStyle = inStyle;
        ioOption.paneState = F::PaneStates(QFlag(inState));
        ioOption.paneBorderStyle = inBorder;
    });
}

// The source of the font that an option gets; invalid when its colour or its metrics tell another.
template <typename Option>
auto font(QPalette::ColorRole inColorRole, const Option &inOption)
{
    return [=](const T &inTheme, QStyle::State inState) {
        Option option = inOption;
        option.state = inState;
        inTheme.adjustFontAndColor(&option, nullptr, false);
        const int code = option.font.pointSize() - 1000;
        const bool agrees =
            option.palette.color(QPalette::Disabled, inColorRole) == QColor(1, code % 100, 200) &&
            option.fontMetrics == QFontMetrics(option.font);
        return agrees ? QColor(code / 100, code % 100, 200) : QColor();
    };
}

auto buttonFont(B::ButtonStyle inStyle)
{
    VantraStyleOptionButton option;
    option.buttonStyle = inStyle;
    return font(QPalette::ButtonText, option);
}

auto toolFont(TB::ButtonStyle inStyle, TB::BackgroundStyle inBackground)
{
    VantraStyleOptionToolButton option;
    option.buttonStyle = inStyle;
    option.backgroundStyle = inBackground;
    return font(QPalette::ButtonText, option);
}

auto itemFont(QStyleOptionMenuItem::CheckType inCheckType, bool inHasIcon)
{
    QStyleOptionMenuItem option;
    option.checkType = inCheckType;
    option.checked = true;
    option.icon = inHasIcon ? QIcon(QPixmap(4, 4)) : QIcon();
    return font(QPalette::Text, option);
}

QMenu *menu()
{
    static QMenu sMenu;
    return &sMenu;
}

std::vector<Row> colorRows()
{
    const auto raised = QStyle::State_Raised;
    const auto sunken = QStyle::State_Sunken;
    const auto noBorder = F::PaneBorderStyleNone;
    const auto ground =
        static_cast<QColor (T::*)(const VantraStyleOptionFramePane *) const>(&T::paneBackgroundColor);
    const auto line = &T::paneLineColor;
    return {
        {"Checkbox nothing", plain(&T::checkboxColor)},
        {"Checkmark selection box", with(&T::checkboxColor, [](auto &ioBox) { ioBox.styleObject = menu(); })},
        {"ScrollBar hover", plain(&T::scrollBarBrush)},
        {"ProgressBarGroove nothing", plain(&T::progressBarGrooveBrush)},
        {"ProgressBarContents nothing", plain(&T::progressBarContentsBrush)},
        {"FrameBackground nothing", with(&T::frameBrush, [=](auto &ioFrame) { ioFrame.state &= ~sunken; })},
        {"FrameSunkenBackground nothing",
         with(&T::frameBrush, [=](auto &ioFrame) { ioFrame.state |= sunken; })},
        {"FrameRaisedBackground nothing",
         with(&T::frameBrush, [=](auto &ioFrame) { ioFrame.state |= raised | sunken; })},
        {"FrameOverlayBackground nothing",
         with(&T::frameBrush, [=](auto &ioFrame) { ioFrame.hudOverlay = true; })},
        {"PaneBackground nothing", pane(ground, F::PaneStyleList, F::PaneStateExpanded)},
        {"PaneBackground always selected", pane(ground, F::PaneStyleStandard, F::PaneStateSelected)},
        {"PaneBackground nothing bare", pane(ground, F::PaneStyleList, F::PaneStateSelected, noBorder)},
        {"PaneLine nothing closed", pane(line, F::PaneStyleStandard, F::PaneStateSelected)},
        {"PaneLine always expanded",
         pane(line, F::PaneStyleStandard, F::PaneStateSelected | F::PaneStateExpanded)},
        {"PaneLine always list", pane(line, F::PaneStyleList, F::PaneStateSelected)},
        {"PaneLine nothing bare", pane(line, F::PaneStyleList, F::PaneStateSelected, noBorder)},
        {"SliderValue keyboard", plain(&T::sliderValueBrush)},
        {"SliderHandle keyboard", plain(&T::sliderHandleBrush)},
        {"ButtonBackground on,hover", button(B::NoCapButtonStyle)},
        {"AccentButtonBackground on,hover", button(B::LeftAndRightCapButtonAccentStyle)},
        {"TabButtonBackground on", button(B::NoCapTabButtonStyle)},
        {"ButtonBackground =disabled text", button(B::TextOnlyStyle)},
        {"FrameLine =disabled link", button(B::LinkButtonStyle, P::FrameLine)},
        {"FrameLine on tab", button(B::LeftCapTabButtonStyle, P::FrameLine)},
        {"ViewItemBackground selection", plain(&T::viewItemBrush)},
        {"FrameLine nothing drop line", plain(&T::viewItemDropLineColor)},
        {"ComboBoxBackground selection", plain(&T::comboBoxBrush)},
        {"LineEditBackgroundNone hover", plain(&T::lineEditBackgroundBrush)},
        {"LineEditBackground hover",
         with(&T::lineEditBackgroundBrush, [](auto &ioEdit) { ioEdit.borderStyle = L::BorderHighlight; })},
        {"TokenBoxBackground =normal",
         with(&T::lineEditBackgroundBrush, [](auto &ioEdit) { ioEdit.borderStyle = L::BorderStandard; })},
        {"LineEditText on,hover", plain(&T::lineEditTextColor)},
        {"ToolButtonIconBackground on,hover", plain(&T::toolButtonIconBackgroundBrush)},
        {"PaneLine on,hover tool", with(&T::toolButtonIconBackgroundBrush,
                                        [](auto &ioTool) { ioTool.backgroundButtonRole = P::PaneLine; })},
        {"ButtonBackground on,hover tool", tool(TB::BackgroundStyleButton)},
        {"AccentButtonBackground on,hover tool", tool(TB::BackgroundStyleAccentButton)},
        {"AlternateButtonBackground on,hover tool", tool(TB::BackgroundStyleAlternateButton)},
        {"ComboBoxBackground on,hover tool", tool(TB::BackgroundStyleComboBoxStandard)},
        {"TobButtonBackground on,hover tool", tool(TB::BackgroundStyleTobButton)},
        {"Accent on,hover tool", tool(TB::BackgroundStyleTobButton, P::Accent)},
        {"SplitterBackground pressed,hover", plain(&T::splitterBackgroundBrush)},
        {"SplitterHandle pressed,hover", plain(&T::splitterHandleBrush)},
        {"TabBarBackground selection", plain(&T::tabBarBackgroundBrush)},
        {"SpinBoxBackground on,hover", plain(&T::spinBoxBackgroundBrush)},
        {"SpinBoxText on,hover", plain(&T::spinBoxTextColor)},
        {"MenuBackground selection", plain(&T::menuItemBrush)},
        {"MenuLine selection", plain(&T::menuItemLineColor)},
        {"OverlayMenuBackground selection",
         with(&T::menuItemBrush, [](auto &ioItem) { ioItem.hudOverlay = true; })},
        {"OverlayMenuLine selection",
         with(&T::menuItemLineColor, [](auto &ioItem) { ioItem.hudOverlay = true; })},
        {"Checkmark selection", plain(&T::menuItemCheckColor)},
        {"GroupBoxFrameBackground selection", plain(&T::groupBoxFrameBrush)},
        {"GroupBoxContentsBackground selection", plain(&T::groupBoxContentsBrush)},
    };
}

std::vector<Row> fontRows()
{
    const auto group = TB::IconGroupTopStyle;
    return {
        {"ButtonText on,hover font", buttonFont(B::LinkButtonStyle)},
        {"AccentButtonText on,hover font", buttonFont(B::LeftAndRightCapButtonAccentStyle)},
        {"TabButtonText on,hover font", buttonFont(B::RightCapTabButtonStyle)},
        {"ComboBoxText on,hover font", font(QPalette::ButtonText, VantraStyleOptionComboBox())},
        {"ViewItemText selection,hover font", font(QPalette::Text, VantraStyleOptionViewItem())},
        {"ToolButtonText on,hover font", toolFont(TB::IconOnOffStyle, TB::BackgroundStyleToolButton)},
        {"ModuleToolButtonText on,(hover) font", toolFont(group, TB::BackgroundStyleToolButton)},
        {"ModuleToolButtonText on,(hover) alternate", toolFont(group, TB::BackgroundStyleAlternateButton)},
        {"ButtonText on,hover tool font", toolFont(group, TB::BackgroundStyleButton)},
        {"AccentButtonText on,hover tob font", toolFont(group, TB::BackgroundStyleTobButton)},
        {"ComboBoxText on,hover tool font", toolFont(group, TB::BackgroundStyleComboBoxNone)},
        {"MenuItemText selection font", itemFont(QStyleOptionMenuItem::NotCheckable, true)},
        {"MenuItemText selection bare", itemFont(QStyleOptionMenuItem::Exclusive, false)},
        {"MenuItemText enabled icon", itemFont(QStyleOptionMenuItem::Exclusive, true)},
    };
}

} // namespace

class tst_VantraStyleThemeQueries : public QObject
{
    Q_OBJECT

private slots:
    void stateChoosesTheColour_data() { DataRows::add(colorRows()); }
    void stateChoosesTheColour() { compare(DataRows::current(colorRows())); }
    void stateChoosesTheFont_data() { DataRows::add(fontRows()); }
    void stateChoosesTheFont() { compare(DataRows::current(fontRows())); }
    void hoverAloneTakesNoAccent();
    void tabsOfATabBarAreDimUntilHovered();
    void colourGroupsMapToNormalAndDisabled();
    void brushesAndPensAreWhole();
    void buttonsHaveTheirShape();
    void otherControlsHaveTheirShape();
    void grooveGradientDarkensWhenDisabled();
    void measuringTakesTheLargestFont();
    void widgetTakesFontAndColour();
    void presetBrowserIsFixed();

private:
    void compare(const Row &inRow);

    const T mTheme = makeTheme();
};

void tst_VantraStyleThemeQueries::compare(const Row &inRow)
{
    const QStringList words = QString(inRow.name).split(' ');
    const QString rule = kRules.value(words.at(1));
    QCOMPARE(size_t(rule.size()), std::size(kStates));
    for (qsizetype i = 0; i < rule.size(); ++i) {
        const char group = rule.at(i).toLatin1();
        const QString expected = words.at(0) + (group == 'D'   ? " Disabled"
                                                : group == 'H' ? " Highlighted"
                                                               : " Normal");
        const QString actual = source(inRow.query(mTheme, kStates[i]));
        QVERIFY2(group == '-' || actual == expected, qPrintable(QString("state %1: %2").arg(i).arg(actual)));
    }
}

void tst_VantraStyleThemeQueries::hoverAloneTakesNoAccent()
{
    const auto query = toolFont(TB::IconGroupTopStyle, TB::BackgroundStyleToolButton);
    QCOMPARE(source(query(mTheme, kEnabled | QStyle::State_MouseOver)),
             QString("ToolButtonText Highlighted"));
    QCOMPARE(source(query(mTheme, kEnabled | QStyle::State_MouseOver | QStyle::State_On)),
             QString("ModuleToolButtonText Highlighted"));
}

void tst_VantraStyleThemeQueries::tabsOfATabBarAreDimUntilHovered()
{
    const QTabBar tabBar;
    const QLabel label;
    const auto fontFor = [&](const QWidget &inWidget, QStyle::State inState, int inHovered) {
        VantraStyleOptionTab option;
        option.state = inState;
        option.tabIndex = 2;
        option.hoveredTabIndex = inHovered;
        option.palette = inWidget.palette();
        QString painted;
        ThemeFixture::paint(QSize(1, 1), [&](QPainter &ioPainter) {
            mTheme.adjustFontAndColor(&option, &ioPainter, &inWidget, false);
            painted = source(ioPainter.font());
        });
        const bool agrees = option.palette.color(QPalette::Disabled, QPalette::ButtonText).blue() == 200;
        return agrees ? painted : QString("text colour left alone");
    };
    QCOMPARE(fontFor(tabBar, kEnabled, 2), QString("TabBarText Highlighted"));
    QCOMPARE(fontFor(tabBar, kEnabled, -1), QString("TabBarText Disabled"));
    QCOMPARE(fontFor(tabBar, kEnabled | QStyle::State_Selected, -1), QString("TabBarText Highlighted"));
    QCOMPARE(fontFor(tabBar, QStyle::State_Selected, 2), QString("TabBarText Disabled"));
    QCOMPARE(fontFor(label, kEnabled, 2), QString("TabBarText Normal"));
}

void tst_VantraStyleThemeQueries::colourGroupsMapToNormalAndDisabled()
{
    QCOMPARE(source(mTheme.accentColor(QPalette::Active)), QString("Accent Normal"));
    QCOMPARE(source(mTheme.accentColor(QPalette::Inactive)), QString("Accent Normal"));
    for (const auto group : {QPalette::Disabled, QPalette::Current, QPalette::All}) {
        QCOMPARE(source(mTheme.accentColor(group)), QString("Accent Disabled"));
    }
    const auto active = QPalette::Active;
    QCOMPARE(source(mTheme.windowBackgroundColor(active)), QString("WindowBackground Normal"));
    QCOMPARE(source(mTheme.windowTextColor(active)), QString("WindowText Normal"));
    QCOMPARE(source(mTheme.buttonBackgroundColor(active)), QString("ButtonBackground Normal"));
    QCOMPARE(source(mTheme.buttonTextColor(active)), QString("ButtonText Normal"));
    QCOMPARE(source(mTheme.highlightedTextColor(active)), QString("HighlightedText Normal"));
    QCOMPARE(source(mTheme.highlightedTextBackgroundColor(active)),
             QString("HighlightedTextBackground Normal"));
    QCOMPARE(source(mTheme.sliderGrooveColor()), QString("SliderGrove Normal"));
}

void tst_VantraStyleThemeQueries::brushesAndPensAreWhole()
{
    VantraStyleOptionFrame frame;
    frame.state = kEnabled;
    frame.lineWidth = 3;
    const QPen pen = mTheme.frameLinePen(&frame);
    QCOMPARE(source(pen.color()), QString("FrameLine Normal"));
    QCOMPARE(pen, QPen(QBrush(pen.color()), 3, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    QCOMPARE(T().frameBrush(&frame), QBrush(Qt::red)); // nothing loaded

    VantraStyleOptionToolButton toolButton;
    toolButton.backgroundButtonRole = P::Accent; // has no say where there is no background
    for (const int style : {int(TB::BackgroundStyleToolButton), int(TB::BackgroundStyleComboBoxNone), 7}) {
        toolButton.backgroundStyle = static_cast<TB::BackgroundStyle>(style);
        QCOMPARE(mTheme.toolButtonBackgroundBrush(&toolButton), QBrush(Qt::NoBrush));
    }
    VantraStyleOptionComboBox comboBox;
    comboBox.backgroundStyle = VantraComboBoxBase::BackgroundTransparent;
    QCOMPARE(mTheme.comboBoxBrush(&comboBox), QBrush(Qt::transparent, Qt::SolidPattern));
}

void tst_VantraStyleThemeQueries::buttonsHaveTheirShape()
{
    const char *const shapes[] = {"10,10,10,10 4", "10,0,10,0 4",   "0,10,0,10 4", "0,0,0,0 4",
                                  "0,0,0,0 0",     "10,10,10,10 4", "5,5,0,0 4",   "5,0,0,0 4",
                                  "0,5,0,0 4",     "0,0,0,0 4",     "0,0,0,0 0"};
    for (int style = 0; style <= B::LinkButtonStyle; ++style) {
        VantraStyleOptionButton option;
        option.buttonStyle = static_cast<B::ButtonStyle>(style);
        option.rect = QRect(5, 5, 30, 21);
        const QMargins padding = mTheme.buttonPadding(&option);
        QCOMPARE(text(mTheme.buttonRadii(&option)) + QString(" %1").arg(padding.left()),
                 QString(shapes[style]));
        QCOMPARE(padding, QMargins(padding.left(), 4, padding.left(), 4));
    }
}

void tst_VantraStyleThemeQueries::otherControlsHaveTheirShape()
{
    const QRect upright(0, 0, 20, 41);
    VantraStyleOptionComboBox comboBox;
    comboBox.rect = upright;
    QCOMPARE(text(mTheme.comboBoxRadii(&comboBox)), QString("10,10,10,10"));
    comboBox.backgroundStyle = VantraComboBoxBase::BackgroundStyleNone;
    QCOMPARE(text(mTheme.comboBoxRadii(&comboBox)), QString("0,0,0,0"));
    VantraStyleOptionSpinBox spinBox;
    spinBox.rect = upright;
    QCOMPARE(text(mTheme.spinBoxRadii(&spinBox)), QString("20,20,20,20")); // by its height alone
    VantraStyleOptionLineEdit lineEdit;
    lineEdit.rect = upright;
    QCOMPARE(mTheme.lineEditLeftRadius(&lineEdit), 3);
    lineEdit.borderStyle = L::BorderStandard;
    QCOMPARE(mTheme.lineEditRightRadius(&lineEdit), 20);
    QStringList tools;
    for (int style = 0; style <= TB::BackgroundStyleTobButton; ++style) {
        VantraStyleOptionToolButton option;
        option.rect = upright;
        option.backgroundStyle = static_cast<TB::BackgroundStyle>(style);
        tools << QString("%1/%2")
                     .arg(mTheme.toolButtonRadii(&option).topLeft())
                     .arg(mTheme.toolButtonPadding(&option).left());
    }
    QCOMPARE(tools.join(' '), QString("0/0 10/4 10/4 10/4 0/4 10/4 10/4"));
}

void tst_VantraStyleThemeQueries::grooveGradientDarkensWhenDisabled()
{
    const QColor middle(100, 150, 200);
    const QRectF rect(1, 2, 30, 40);
    VantraStyleOptionSlider slider;
    QCOMPARE(source(mTheme.sliderGrooveBrush(&slider, rect).color()), QString("SliderGrove Disabled"));
    slider.gradientStops = {{0.0, Qt::black}, {1.0, middle}};
    const auto endOf = [&](QStyle::State inState) {
        slider.state = inState;
        const QBrush brush = mTheme.sliderGrooveBrush(&slider, rect);
        const auto *gradient = static_cast<const QLinearGradient *>(brush.gradient());
        const bool placed = gradient != nullptr && gradient->start() == rect.topLeft() &&
                            gradient->finalStop() == rect.bottomRight();
        return placed ? gradient->stops().constLast().second : QColor();
    };
    QCOMPARE(endOf(kEnabled), middle);
    QCOMPARE(endOf(QStyle::State_None), middle.darker(130));
    QGradientStops stops = slider.gradientStops; // the option keeps its own
    mTheme.disableColor(QPalette::Inactive, stops);
    QCOMPARE(stops.constLast().second, middle.darker(120));
}

void tst_VantraStyleThemeQueries::measuringTakesTheLargestFont()
{
    VantraStyleOptionButton option;
    const QFont own = option.font;
    T().adjustFontAndColor(&option, nullptr, false); // nothing loaded
    QCOMPARE(option.font, own);
    mTheme.adjustFontAndColor(&option, nullptr, true);
    QCOMPARE(source(option.font), QString("ButtonText Highlighted"));
}

void tst_VantraStyleThemeQueries::widgetTakesFontAndColour()
{
    QLabel label;
    mTheme.adjustFontAndTextColor(P::Highlighted, P::PaneHeaderText, &label);
    QCOMPARE(source(label.font()), QString("PaneHeaderText Highlighted"));
    const auto color = [&](QPalette::ColorGroup inGroup) {
        return label.palette().color(inGroup, QPalette::WindowText);
    };
    QCOMPARE(source(color(QPalette::Active)), QString("PaneHeaderText Highlighted"));
    QCOMPARE(source(color(QPalette::Disabled)), QString("PaneHeaderText Disabled"));
}

void tst_VantraStyleThemeQueries::presetBrowserIsFixed()
{
    QVERIFY(ThemeFixture::load());
    const QFont font = mTheme.presetBrowserFont();
    QCOMPARE(QString("%1 %2 %3").arg(font.family()).arg(font.pointSize()).arg(font.weight()),
             QString("Roboto 12 500"));
}

FATAL_TEST_MAIN(tst_VantraStyleThemeQueries)
#include "tst_VantraStyleThemeQueries.moc"

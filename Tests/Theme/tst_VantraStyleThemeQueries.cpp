#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
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

std::vector<Row> rows()
{
    const auto sunken = QStyle::State_Sunken;
    const auto frame = [](QStyle::State inState) {
        return with(&T::frameBrush, [=](auto &ioFrame) { ioFrame.state |= inState; });
    };
    const auto selected = F::PaneStateSelected;
    const auto noBorder = F::PaneBorderStyleNone;
    const auto ground =
        static_cast<QColor (T::*)(const VantraStyleOptionFramePane *) const>(&T::paneBackgroundColor);
    const auto line = &T::paneLineColor;
    const auto check = with(&T::checkboxColor, [](auto &ioBox) { ioBox.styleObject = menu(); });
    const auto token =
        with(&T::lineEditBackgroundBrush, [](auto &ioEdit) { ioEdit.borderStyle = L::BorderStandard; });
    const auto overlay = with(&T::menuItemBrush, [](auto &ioItem) { ioItem.hudOverlay = true; });
    return {
        {"Checkbox nothing", plain(&T::checkboxColor)},
        {"Checkmark selection", check},
        {"ScrollBar hover", plain(&T::scrollBarBrush)},
        {"FrameSunkenBackground nothing", frame(sunken)},
        {"FrameRaisedBackground nothing", frame(sunken | QStyle::State_Raised)},
        {"PaneBackground nothing", pane(ground, F::PaneStyleList, selected, noBorder)},
        {"PaneBackground always", pane(ground, F::PaneStyleStandard, selected)},
        {"PaneLine nothing closed", pane(line, F::PaneStyleStandard, selected)},
        {"PaneLine always expanded", pane(line, F::PaneStyleStandard, selected | F::PaneStateExpanded)},
        {"SliderValue keyboard", plain(&T::sliderValueBrush)},
        {"ButtonBackground on,hover", button(B::NoCapButtonStyle)},
        {"TabButtonBackground on", button(B::NoCapTabButtonStyle)},
        {"ButtonBackground =disabled", button(B::TextOnlyStyle)},
        {"LineEditBackgroundNone hover", plain(&T::lineEditBackgroundBrush)},
        {"TokenBoxBackground =normal", token},
        {"Accent on,hover", tool(TB::BackgroundStyleTobButton, P::Accent)},
        {"SplitterHandle pressed,hover", plain(&T::splitterHandleBrush)},
        {"OverlayMenuBackground selection", overlay},
        {"AccentButtonText on,hover", buttonFont(B::LeftAndRightCapButtonAccentStyle)},
        {"ViewItemText selection,hover", font(QPalette::Text, VantraStyleOptionViewItem())},
        {"ToolButtonText on,hover", toolFont(TB::IconOnOffStyle, TB::BackgroundStyleToolButton)},
        {"ModuleToolButtonText on,(hover)", toolFont(TB::IconGroupTopStyle, TB::BackgroundStyleToolButton)},
        {"ComboBoxText on,hover", toolFont(TB::IconGroupTopStyle, TB::BackgroundStyleComboBoxNone)},
        {"MenuItemText selection", itemFont(QStyleOptionMenuItem::Exclusive, false)},
        {"MenuItemText enabled", itemFont(QStyleOptionMenuItem::Exclusive, true)},
    };
}

} // namespace

class tst_VantraStyleThemeQueries : public QObject
{
    Q_OBJECT

private slots:
    void stateChooses_data() { DataRows::add(rows()); }
    void stateChooses()
    {
        const Row row = DataRows::current(rows());
        const QStringList words = QString(row.name).split(' ');
        const QString rule = kRules.value(words.at(1));
        QCOMPARE(size_t(rule.size()), std::size(kStates));
        for (qsizetype i = 0; i < rule.size(); ++i) {
            const QChar group = rule.at(i);
            const char *const groupName = group == 'D'   ? " Disabled"
                                          : group == 'H' ? " Highlighted"
                                                         : " Normal";
            const QString actual = source(row.query(mTheme, kStates[i]));
            QVERIFY2(group == '-' || actual == words.at(0) + groupName,
                     qPrintable(QString("state %1: %2").arg(i).arg(actual)));
        }
    }
    void hoverAloneTakesNoAccent()
    {
        const auto query = toolFont(TB::IconGroupTopStyle, TB::BackgroundStyleToolButton);
        QCOMPARE(source(query(mTheme, kEnabled | QStyle::State_MouseOver)),
                 QString("ToolButtonText Highlighted"));
        QCOMPARE(source(query(mTheme, kEnabled | QStyle::State_MouseOver | QStyle::State_On)),
                 QString("ModuleToolButtonText Highlighted"));
    }

    void tabsOfATabBarAreDimUntilHovered()
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

    void colourGroupsMapToNormalAndDisabled()
    {
        QCOMPARE(source(mTheme.accentColor(QPalette::Inactive)), QString("Accent Normal"));
        for (const auto group : {QPalette::Disabled, QPalette::Current, QPalette::All}) {
            QCOMPARE(source(mTheme.accentColor(group)), QString("Accent Disabled"));
        }
    }

    void brushesAndPensAreWhole()
    {
        VantraStyleOptionFrame frame;
        frame.state = kEnabled;
        frame.lineWidth = 3;
        const QPen pen = mTheme.frameLinePen(&frame);
        QCOMPARE(source(pen.color()), QString("FrameLine Normal"));
        QCOMPARE(pen, QPen(QBrush(pen.color()), 3, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        QCOMPARE(T().frameBrush(&frame), QBrush(Qt::red)); // nothing loaded
    }

    void buttonsHaveTheirShape()
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

    void otherControlsHaveTheirShape()
    {
        const QRect upright(0, 0, 20, 41);
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

    void widgetTakesFontAndColour()
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

private:
    const T mTheme = makeTheme();
};

FATAL_TEST_MAIN(tst_VantraStyleThemeQueries)
#include "tst_VantraStyleThemeQueries.moc"

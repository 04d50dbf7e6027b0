#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtWidgets/QtWidgets>

#include <memory>

namespace {

const QString kText("Wide");
constexpr int kArrow = 16;

QIcon icon()
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::white);
    return QIcon(pixmap);
}

QFontMetrics metrics(int inDesignSize, QFont::Weight inWeight = QFont::Black, QFont inBase = QFont())
{
    inBase.setPointSize(VantraFont::scaledPointSize(inDesignSize));
    inBase.setWeight(inWeight);
    return QFontMetrics(inBase);
}

// A text with the 4 pixels that each gets.
QSize padded(const QFontMetrics &inMetrics, const QString &inText = kText)
{
    return inMetrics.size(0, inText) + QSize(4, 0);
}

using Button = VantraButton;

struct ButtonRow
{
    const char *name;
    Button::ButtonStyle look;
    bool hasIcon;
    QString text;
    QSize present; // the widget's size at hand sets the round ends
    int fontSize;
    QMargins margins;
};

std::vector<ButtonRow> buttonRows()
{
    const QSize none;
    const QSize size(60, 30);
    return {
        {"empty", Button::LeftAndRightCapButtonStyle, false, "", none, 11, {4, 4, 4, 4}},
        {"text", Button::LeftAndRightCapButtonStyle, false, kText, none, 11, {4, 4, 4, 4}},
        {"icon", Button::LeftAndRightCapButtonStyle, true, "", none, 11, {4, 4, 4, 4}},
        {"icon and text", Button::LeftAndRightCapButtonStyle, true, kText, size, 11, {15, 4, 15, 4}},
        {"accent", Button::LeftAndRightCapButtonAccentStyle, false, kText, size, 11, {15, 4, 15, 4}},
        {"left cap", Button::LeftCapButtonStyle, false, kText, size, 11, {15, 4, 4, 4}},
        {"right cap", Button::RightCapButtonStyle, false, kText, size, 11, {4, 4, 15, 4}},
        {"no cap", Button::NoCapButtonStyle, false, kText, size, 11, {4, 4, 4, 4}},
        {"text only", Button::TextOnlyStyle, false, kText, size, 11, {0, 4, 0, 4}},
        {"link", Button::LinkButtonStyle, false, kText, size, 11, {0, 4, 0, 4}},
        {"tab", Button::LeftAndRightCapTabButtonStyle, false, kText, size, 14, {5, 4, 5, 4}},
        {"left tab", Button::LeftCapTabButtonStyle, false, kText, size, 14, {5, 4, 4, 4}},
        {"right tab", Button::RightCapTabButtonStyle, false, kText, size, 14, {4, 4, 5, 4}},
        {"inner tab", Button::NoCapTabButtonStyle, false, kText, size, 14, {4, 4, 4, 4}},
    };
}

struct ComboBoxRow
{
    const char *name;
    VantraComboBoxBase::BackgroundStyle background;
    QString text;
    QSize iconSize;
    QSize size;
};

std::vector<ComboBoxRow> comboBoxRows()
{
    const auto pill = VantraComboBoxBase::BackgroundStyleStandard;
    const auto bare = VantraComboBoxBase::BackgroundStyleNone;
    const auto clear = VantraComboBoxBase::BackgroundTransparent;
    const QSize text = padded(metrics(11));
    const int high = qMax(text.height(), kArrow) + 8;
    const int wide = text.width() + 1 + kArrow;
    return {
        {"bare, empty", bare, "", {}, {kArrow + 8, kArrow + 8}},
        {"bare, text", bare, kText, {}, {wide + 8, high}},
        {"pill, empty", pill, "", {}, {kArrow + 24, kArrow + 8}},
        {"pill, text", pill, kText, {}, {wide + high / 2 * 2, high}},
        {"transparent pill", clear, kText, {}, {wide + high / 2 * 2, high}},
        {"pill, icon", pill, "", {20, 40}, {20 + 1 + kArrow + 45 / 2 * 2, 48}},
    };
}

struct ToolButtonRow
{
    const char *name;
    VantraToolButton::BackgroundStyle background;
    Qt::ToolButtonStyle look;
    QString text;
    QSize iconSize;
    bool grows;
    Qt::ArrowType arrow;
    QSize size;
};

std::vector<ToolButtonRow> toolButtonRows()
{
    const auto plain = VantraToolButton::BackgroundStyleToolButton;
    const auto pill = VantraToolButton::BackgroundStyleButton;
    const auto combo = VantraToolButton::BackgroundStyleComboBoxStandard;
    const auto bareCombo = VantraToolButton::BackgroundStyleComboBoxNone;
    const auto iconOnly = Qt::ToolButtonIconOnly;
    const auto textOnly = Qt::ToolButtonTextOnly;
    const auto beside = Qt::ToolButtonTextBesideIcon;
    const auto under = Qt::ToolButtonTextUnderIcon;
    const QSize icon(24, 24);
    const QSize text = padded(metrics(9));
    const int tall = qMax(text.height(), kArrow);
    const QSize large = QSize(24 + 1, 0) + padded(metrics(11));
    const int high = qMax(24, large.height()) + 8;
    const int round = high / 2 * 2;
    return {
        {"icon", plain, iconOnly, kText, icon, false, Qt::NoArrow, icon},
        {"growing", plain, iconOnly, kText, icon, true, Qt::NoArrow, {30, 30}},
        {"half away from zero", plain, iconOnly, kText, {26, 22}, true, Qt::NoArrow, {33, 28}},
        {"never narrower than tall", plain, iconOnly, kText, {10, 24}, false, Qt::NoArrow, icon},
        {"icon, arrow", plain, iconOnly, kText, icon, false, Qt::DownArrow, {24 + 1 + kArrow, 24}},
        {"no text", plain, textOnly, "", icon, false, Qt::NoArrow, icon},
        {"text", plain, textOnly, kText, icon, false, Qt::NoArrow, text.expandedTo({text.height(), 0})},
        {"text, arrow",
         plain,
         textOnly,
         kText,
         icon,
         false,
         Qt::DownArrow,
         {text.width() + 1 + kArrow, tall}},
        {"beside",
         plain,
         beside,
         kText,
         icon,
         false,
         Qt::NoArrow,
         {25 + text.width(), qMax(24, text.height())}},
        {"under", plain, under, kText, {90, 24}, false, Qt::NoArrow, {90, 25 + text.height()}},
        {"icon on a pill", pill, iconOnly, kText, icon, false, Qt::NoArrow, {32, 32}},
        {"beside on a pill", pill, beside, kText, icon, false, Qt::NoArrow, {large.width() + round, high}},
        {"combo box", combo, beside, kText, icon, false, Qt::NoArrow, {large.width() + round, high}},
        {"bare combo box", bareCombo, beside, kText, icon, false, Qt::NoArrow, {large.width() + 8, high}},
    };
}

struct MenuItemRow
{
    const char *name;
    QStyleOptionMenuItem::MenuItemType type;
    QString text;
    int iconWidth;
    QSize size;
};

std::vector<MenuItemRow> menuItemRows()
{
    using Item = QStyleOptionMenuItem;
    const QFontMetrics bold = metrics(12, QFont::Black, QMenu().font());
    const int column = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
    const int high = qMax(column, bold.height()) + 4;
    const QSize plain(column + 4 + bold.horizontalAdvance(kText) + 4 + column + 8, high);
    const QSize wide(40 + 4 + bold.horizontalAdvance(kText) + 4 + 40 + 8, 44);
    const QSize key(4 + bold.horizontalAdvance("Ctrl+W"), 0);
    return {
        {"separator", Item::Separator, kText, 0, {2, 2}},
        {"empty area", Item::EmptyArea, kText, 0, {0, 0}},
        {"scroller", Item::Scroller, kText, 0, {0, 0}},
        {"no text", Item::Normal, "", 0, {column + 4 + column + 8, high}},
        {"text", Item::Normal, kText, 0, plain},
        {"default", Item::DefaultItem, kText, 0, plain},
        {"submenu", Item::SubMenu, kText, 0, plain},
        {"shortcut", Item::Normal, "Wide \t Ctrl+W", 0, plain + key},
        {"empty shortcut", Item::Normal, "Wide\t", 0, plain},
        {"wide icons", Item::Normal, kText, 40, wide},
    };
}

} // namespace

class tst_VantraStyleSizes : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void buttonSize_data() { DataRows::add(buttonRows()); }
    void buttonSize();
    void checkBoxSizeIsTheCommonStyles();
    void comboBoxSize_data() { DataRows::add(comboBoxRows()); }
    void comboBoxSize();
    void toolButtonSize_data() { DataRows::add(toolButtonRows()); }
    void toolButtonSize();
    void menuItemSize_data() { DataRows::add(menuItemRows()); }
    void menuItemSize();
    void menuItemElsewhereIsFusions();
    void tabSize();
    void spinBoxSize();
    void sizeIsTheSameInEveryState_data();
    void sizeIsTheSameInEveryState();

private:
    QSize sizeOf(QStyle::ContentsType inType, const QStyleOption &inOption, const QWidget *inWidget = nullptr)
    {
        return mStyle->sizeFromContents(inType, &inOption, QSize(500, 500), inWidget);
    }

    std::unique_ptr<QStyle> mFusion{QStyleFactory::create("Fusion")};
    std::unique_ptr<VantraStyle> mStyle;
};

void tst_VantraStyleSizes::initTestCase()
{
    QVERIFY(ThemeFixture::load());
    mStyle = std::make_unique<VantraStyle>();
}

void tst_VantraStyleSizes::buttonSize()
{
    const ButtonRow row = DataRows::current(buttonRows());
    VantraStyleOptionButton option;
    option.buttonStyle = row.look;
    option.rect.setSize(row.present);
    option.iconSize = QSize(16, 40);
    option.text = row.text;
    option.icon = row.hasIcon ? icon() : QIcon();

    QSize content = row.text.isEmpty() ? QSize(0, 0) : padded(metrics(row.fontSize));
    if (row.hasIcon) {
        content.rwidth() += row.text.isEmpty() ? 16 : 17;
        content.setHeight(40);
    }
    QCOMPARE(sizeOf(QStyle::CT_PushButton, option), content.grownBy(row.margins));
}

void tst_VantraStyleSizes::checkBoxSizeIsTheCommonStyles()
{
    QStyleOptionButton option;
    option.text = kText;
    // The indicator, 4 pixels of margin and the spacing beside the contents; 4 below them.
    const int beside = 16 + 4 + mFusion->pixelMetric(QStyle::PM_CheckBoxLabelSpacing);
    QCOMPARE(mStyle->sizeFromContents(QStyle::CT_CheckBox, &option, QSize(50, 30)), QSize(50 + beside, 34));
    QCOMPARE(mStyle->sizeFromContents(QStyle::CT_RadioButton, &option, QSize(50, 5)), QSize(50 + beside, 16));
}

void tst_VantraStyleSizes::comboBoxSize()
{
    const ComboBoxRow row = DataRows::current(comboBoxRows());
    VantraStyleOptionComboBox option;
    option.backgroundStyle = row.background;
    option.currentText = row.text;
    option.currentIcon = row.iconSize.isValid() ? icon() : QIcon();
    option.iconSize = row.iconSize;
    QCOMPARE(sizeOf(QStyle::CT_ComboBox, option), row.size);
}

void tst_VantraStyleSizes::toolButtonSize()
{
    const ToolButtonRow row = DataRows::current(toolButtonRows());
    VantraStyleOptionToolButton option;
    option.backgroundStyle = row.background;
    option.toolButtonStyle = row.look;
    option.text = row.text;
    option.icon = icon();
    option.iconSize = row.iconSize;
    option.enlargeIconOnHover = row.grows;
    option.arrowType = row.arrow;
    QCOMPARE(sizeOf(QStyle::CT_ToolButton, option), row.size);
}

void tst_VantraStyleSizes::menuItemSize()
{
    const MenuItemRow row = DataRows::current(menuItemRows());
    QMenu menu;
    QStyleOptionMenuItem option;
    option.initFrom(&menu);
    option.font = menu.font();
    option.menuItemType = row.type;
    option.text = row.text;
    option.maxIconWidth = row.iconWidth;
    QCOMPARE(sizeOf(QStyle::CT_MenuItem, option, &menu), row.size);
}

void tst_VantraStyleSizes::menuItemElsewhereIsFusions()
{
    QStyleOptionMenuItem option;
    option.text = kText;
    option.menuItemType = QStyleOptionMenuItem::Separator;
    option.text.clear();
    QCOMPARE(sizeOf(QStyle::CT_MenuItem, option),
             mFusion->sizeFromContents(QStyle::CT_MenuItem, &option, QSize(500, 500), nullptr));
}

void tst_VantraStyleSizes::tabSize()
{
    VantraStyleOptionTab option;
    option.text = kText;
    const QSize text = padded(metrics(14, QFont::Black, QApplication::font()));
    QCOMPARE(sizeOf(QStyle::CT_TabBarTab, option), text + QSize(10, 8));
    option.icon = icon();
    option.iconSize = QSize(16, 50);
    QCOMPARE(sizeOf(QStyle::CT_TabBarTab, option), QSize(16 + 1 + text.width() + 10, 58));
}

void tst_VantraStyleSizes::spinBoxSize()
{
    VantraStyleOptionSpinBox option;
    // Nothing but the slot of the arrow: 24 high, so ends of 12.
    QCOMPARE(sizeOf(QStyle::CT_SpinBox, option), QSize(kArrow + 24, 24));
    QFont tall;
    tall.setPixelSize(40);
    option.fontMetrics = QFontMetrics(tall);
    option.displayText = kText;
    const QSize text = padded(option.fontMetrics);
    const int high = text.height() + 8;
    QCOMPARE(sizeOf(QStyle::CT_SpinBox, option), QSize(text.width() + 1 + kArrow + high / 2 * 2, high));
}

void tst_VantraStyleSizes::sizeIsTheSameInEveryState_data()
{
    QTest::addColumn<QStyle::ContentsType>("type");
    QTest::addColumn<std::shared_ptr<QStyleOption>>("option");

    const auto row = [](const char *inName, QStyle::ContentsType inType, auto inOption) {
        const auto option = std::make_shared<decltype(inOption)>(inOption);
        QTest::newRow(inName) << inType << std::static_pointer_cast<QStyleOption>(option);
    };
    VantraStyleOptionButton button;
    button.text = kText;
    row("button", QStyle::CT_PushButton, button);
    button.buttonStyle = VantraButton::NoCapTabButtonStyle;
    row("tab button", QStyle::CT_PushButton, button);
    VantraStyleOptionComboBox comboBox;
    comboBox.currentText = kText;
    row("combo box", QStyle::CT_ComboBox, comboBox);
    VantraStyleOptionToolButton toolButton;
    toolButton.text = kText;
    toolButton.icon = icon();
    toolButton.iconSize = QSize(24, 24);
    toolButton.toolButtonStyle = Qt::ToolButtonTextBesideIcon;
    toolButton.enlargeIconOnHover = true;
    row("tool button", QStyle::CT_ToolButton, toolButton);
    VantraStyleOptionTab tab;
    tab.text = kText;
    row("tab", QStyle::CT_TabBarTab, tab);
    VantraStyleOptionViewItem item;
    item.text = kText;
    row("view item", QStyle::CT_ItemViewItem, item);
}

void tst_VantraStyleSizes::sizeIsTheSameInEveryState()
{
    QFETCH(const QStyle::ContentsType, type);
    QFETCH(const std::shared_ptr<QStyleOption>, option);
    const QSize size = sizeOf(type, *option);
    for (const QStyle::State state :
         {QStyle::State(QStyle::State_Enabled), QStyle::State_Enabled | QStyle::State_MouseOver,
          QStyle::State_Enabled | QStyle::State_On, QStyle::State_Enabled | QStyle::State_Selected,
          QStyle::State_Enabled | QStyle::State_Sunken}) {
        option->state = state;
        QCOMPARE(sizeOf(type, *option), size);
    }
}

FATAL_TEST_MAIN(tst_VantraStyleSizes)

#include "tst_VantraStyleSizes.moc"

#include "Style/VantraStyle.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtWidgets/QtWidgets>

#include <cmath>
#include <memory>

using namespace StyleSamples;

namespace {

const QString kWord("Wide");
constexpr int kArrow = 16;

// Sizes are measured in the heaviest weight.
QFontMetrics metrics(int inDesignSize, QFont inBase = QFont())
{
    inBase.setPointSize(VantraFont::scaledPointSize(inDesignSize));
    inBase.setWeight(QFont::Black);
    return QFontMetrics(inBase);
}

// A text with the 4 pixels that each gets.
QSize padded(const QFontMetrics &inMetrics)
{
    return inMetrics.size(0, kWord) + QSize(4, 0);
}

struct ViewItemRow
{
    const char *name;
    bool decorated, checkable, indented;
    QString text;
    QSize size;
    // In an item from (10, 20), 200 wide and 31 high.
    QRect decorationRect, checkRect;
    int textLeft;
};

std::vector<ViewItemRow> viewItemRows()
{
    const QSize text = padded(metrics(11));
    const QSize all(22 + 4 + 16 + 4 + text.width(), qMax(16, text.height()) + 4);
    const QRect decoration(10, 29, 22, 12);
    return {
        {"nothing", false, false, false, "", {22, 4}, {}, {}, 10},
        {"indented text", false, false, true, kWord, {text.width(), text.height() + 4}, {}, {}, 20},
        {"decoration", true, false, true, "", {22, 16}, decoration, {}, 31 + 4},
        {"check", false, true, true, "", {16, 20}, {}, {10, 27, 16, 16}, 25 + 4},
        {"decoration and check", true, true, false, "", {42, 20}, decoration, {35, 27, 16, 16}, 50 + 4},
        {"all", true, true, false, kWord, all, decoration, {35, 27, 16, 16}, 50 + 4},
    };
}

struct ProgressRow
{
    const char *name;
    int minimum, maximum, progress;
    QRect contents; // of a bar 200 by 31
};

const ProgressRow kProgress[] = {
    {"quarter", 0, 100, 25, {0, 11, 50, 8}},          {"not begun", 0, 100, -1, {}},
    {"beyond", 0, 100, 150, {0, 11, 300, 8}},         {"whole pixels", 0, 3, 1, {0, 11, 67, 8}},
    {"from below zero", -50, 50, 0, {0, 11, 100, 8}}, {"large numbers", INT_MIN, INT_MAX, 0, {0, 11, 101, 8}},
};

struct ScrollBarRow
{
    const char *name;
    int extent, maximum, page, value;
    bool upsideDown;
    int position, length;
};

constexpr ScrollBarRow kScrollBars[] = {
    {"half", 200, 100, 100, 50, false, 50, 100},
    {"at the end", 200, 100, 100, 100, false, 100, 100},
    {"upside down", 200, 100, 100, 25, true, 75, 100},
    {"shortest thumb", 200, 90, 10, 45, false, 84, 32},
    {"no page", 200, 90, 0, 0, false, 0, 32},
    {"nothing to scroll", 200, 0, 10, 0, false, 0, 200},
    {"shorter than a thumb", 20, 90, 10, 45, false, 0, 20},
    {"large numbers", 200, INT_MAX, INT_MAX, 0, false, 0, 100},
};

} // namespace

class tst_VantraStyleGeometry : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ThemeFixture::load());
        mStyle = std::make_unique<VantraStyle>();
    }

    void buttonSize()
    {
        using B = VantraButton;
        auto option = of<VantraStyleOptionButton>({60, 30}); // the size at hand sets the round ends
        option.iconSize = QSize(16, 40);
        const auto size = [&](B::ButtonStyle inLook) {
            option.buttonStyle = inLook;
            return sizeOf(QStyle::CT_PushButton, option);
        };
        QCOMPARE(size(B::LeftAndRightCapButtonStyle), QSize(30, 8));
        option.text = kWord;
        const QSize text = padded(metrics(11));
        QCOMPARE(size(B::LeftCapButtonStyle), text.grownBy({15, 4, 4, 4}));
        QCOMPARE(size(B::TextOnlyStyle), text.grownBy({0, 4, 0, 4}));
        QCOMPARE(size(B::LeftCapTabButtonStyle), padded(metrics(14)).grownBy({5, 4, 4, 4}));
        option.icon = icon();
        QCOMPARE(size(B::RightCapButtonStyle), QSize(16 + 1 + text.width(), 40).grownBy({4, 4, 15, 4}));
    }

    void toolButtonSize()
    {
        using Tool = VantraToolButton;
        VantraStyleOptionToolButton option;
        option.arrowType = Qt::NoArrow;
        option.text = kWord;
        option.icon = icon();
        const auto size = [&](Tool::BackgroundStyle inBackground, Qt::ToolButtonStyle inLook, QSize inIcon) {
            option.backgroundStyle = inBackground;
            option.toolButtonStyle = inLook;
            option.iconSize = inIcon;
            return sizeOf(QStyle::CT_ToolButton, option);
        };
        const auto plain = Tool::BackgroundStyleToolButton;
        const QSize icon(24, 24);
        const QSize text = padded(metrics(9));
        QCOMPARE(size(plain, Qt::ToolButtonIconOnly, {10, 24}), icon); // never narrower than tall
        QCOMPARE(size(plain, Qt::ToolButtonTextOnly, icon), text.expandedTo({text.height(), 0}));
        QCOMPARE(size(plain, Qt::ToolButtonTextBesideIcon, icon),
                 QSize(25 + text.width(), qMax(24, text.height())));
        QCOMPARE(size(plain, Qt::ToolButtonTextUnderIcon, {90, 24}), QSize(90, 25 + text.height()));
        const QSize large = QSize(24 + 1, 0) + padded(metrics(11));
        const int high = qMax(24, large.height()) + 8;
        const QSize bare(large.width() + 8, high);
        const QSize pill(large.width() + high / 2 * 2, high);
        QCOMPARE(size(Tool::BackgroundStyleComboBoxNone, Qt::ToolButtonTextBesideIcon, icon), bare);
        QCOMPARE(size(Tool::BackgroundStyleComboBoxStandard, Qt::ToolButtonTextBesideIcon, icon), pill);
        QCOMPARE(size(Tool::BackgroundStyleButton, Qt::ToolButtonIconOnly, icon), QSize(32, 32));
        option.enlargeIconOnHover = true;
        QCOMPARE(size(plain, Qt::ToolButtonIconOnly, {26, 22}), QSize(33, 28)); // halves away from zero
        option.enlargeIconOnHover = false;
        option.arrowType = Qt::DownArrow;
        QCOMPARE(size(plain, Qt::ToolButtonIconOnly, icon), QSize(24 + 1 + kArrow, 24));
    }

    void menuItemSize()
    {
        using Item = QStyleOptionMenuItem;
        QMenu menu;
        Item option;
        option.initFrom(&menu);
        option.font = menu.font();
        const auto size = [&](Item::MenuItemType inType, const QString &inText) {
            option.menuItemType = inType;
            option.text = inText;
            return sizeOf(QStyle::CT_MenuItem, option, &menu);
        };
        const QFontMetrics bold = metrics(12, menu.font());
        const int word = bold.horizontalAdvance(kWord);
        const int column = QApplication::style()->pixelMetric(QStyle::PM_SmallIconSize);
        const QSize plain(column + 4 + word + 4 + column + 8, qMax(column, bold.height()) + 4);
        QCOMPARE(size(Item::Separator, kWord), QSize(2, 2));
        QCOMPARE(size(Item::EmptyArea, kWord), QSize(0, 0));
        QCOMPARE(size(Item::Normal, ""), plain - QSize(word + 4, 0));
        QCOMPARE(size(Item::SubMenu, kWord), plain);
        QCOMPARE(size(Item::Normal, "Wide\t"), plain);
        QCOMPARE(size(Item::Normal, "Wide \t Ctrl+W"),
                 plain + QSize(4 + bold.horizontalAdvance("Ctrl+W"), 0));
        option.maxIconWidth = 40;
        QCOMPARE(size(Item::Normal, kWord), QSize(40 + 4 + word + 4 + 40 + 8, 44));
    }

    void comboBoxSize()
    {
        VantraStyleOptionComboBox option;
        const auto size = [&] { return sizeOf(QStyle::CT_ComboBox, option); };
        const QSize text = padded(metrics(11));
        const int high = qMax(text.height(), kArrow) + 8;
        const int wide = text.width() + 1 + kArrow;
        QCOMPARE(size(), QSize(kArrow + 24, kArrow + 8));
        option.currentText = kWord;
        QCOMPARE(size(), QSize(wide + high / 2 * 2, high));
        option.backgroundStyle = VantraComboBoxBase::BackgroundStyleNone;
        QCOMPARE(size(), QSize(wide + 8, high));
        option.backgroundStyle = VantraComboBoxBase::BackgroundTransparent;
        option.currentText.clear();
        option.currentIcon = icon();
        option.iconSize = QSize(20, 40);
        QCOMPARE(size(), QSize(20 + 1 + kArrow + 45 / 2 * 2, 48));
    }

    void tabSize()
    {
        VantraStyleOptionTab option;
        option.text = kWord;
        const QSize text = padded(metrics(14, QApplication::font()));
        QCOMPARE(sizeOf(QStyle::CT_TabBarTab, option), text + QSize(10, 8));
        option.icon = icon();
        option.iconSize = QSize(16, 50);
        QCOMPARE(sizeOf(QStyle::CT_TabBarTab, option), QSize(16 + 1 + text.width() + 10, 58));
    }

    void viewItem_data() { DataRows::add(viewItemRows()); }
    void viewItem()
    {
        const ViewItemRow row = DataRows::current(viewItemRows());
        VantraStyleOptionViewItem option;
        option.rect = QRect(10, 20, 200, 31);
        option.direction = Qt::RightToLeft; // the design has one direction alone
        option.decorationSize = QSize(16, 12);
        option.icon = row.decorated ? icon() : QIcon();
        option.features = QStyleOptionViewItem::HasDecoration; // which without an icon counts nothing
        option.features.setFlag(QStyleOptionViewItem::HasCheckIndicator, row.checkable);
        option.useIndent = row.indented;
        option.text = row.text;
        const auto rectOf = [&](QStyle::SubElement inPart) {
            return mStyle->subElementRect(inPart, &option);
        };
        QCOMPARE(sizeOf(QStyle::CT_ItemViewItem, option), row.size);
        QCOMPARE(rectOf(QStyle::SE_ItemViewItemDecoration), row.decorationRect);
        QCOMPARE(rectOf(QStyle::SE_ItemViewItemCheckIndicator), row.checkRect);
        QCOMPARE(rectOf(QStyle::SE_ItemViewItemText), QRect(QPoint(row.textLeft, 20), QPoint(209, 50)));
    }

    void progressRects_data() { DataRows::add(kProgress); }
    void progressRects()
    {
        const ProgressRow row = DataRows::current(kProgress);
        auto option = of<QStyleOptionProgressBar>({200, 31});
        option.minimum = row.minimum;
        option.maximum = row.maximum;
        option.progress = row.progress;
        QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarGroove, &option), QRect(0, 11, 200, 8));
        QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarContents, &option), row.contents);
        QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarLabel, &option), QRect());
        option.rect = QRect(10, 5, 100, 6);
        QCOMPARE(mStyle->subElementRect(QStyle::SE_ProgressBarGroove, &option), option.rect);
    }

    // For a second the contents grow from the left, for the next they leave to the right.
    void busyProgressFollowsTheCosine()
    {
        QProgressBar bar;
        const auto option = of<QStyleOptionProgressBar>({400, 8});
        const auto edgeAt = [](double inSeconds) {
            return static_cast<int>((std::cos(inSeconds * M_PI - M_PI) + 1.0) * 0.5 * 400);
        };
        const auto now = [&] { return std::fmod(mStyle->animationTime(&bar).count() / 1000.0, 2.0); };
        const auto contents = [&] {
            return mStyle->subElementRect(QStyle::SE_ProgressBarContents, &option, &bar);
        };
        QCOMPARE(contents(), QRect(QPoint(0, 0), QPoint(0, 7))); // which starts the clock
        bool grew = false;
        bool shrank = false;
        const auto sawBoth = [&] {
            const double before = now();
            const QRect rect = contents();
            const double after = now();
            if (0.3 < before && before <= after && after < 1.0) {
                grew = rect.left() == 0 && rect.right() >= edgeAt(before) - 1 &&
                       rect.right() <= edgeAt(after) + 1;
            } else if (1.3 < before && before <= after) {
                shrank = rect.right() == 399 && rect.left() >= edgeAt(before - 1.0) - 1 &&
                         rect.left() <= edgeAt(after - 1.0) + 1;
            }
            return grew && shrank;
        };
        QTRY_VERIFY_WITH_TIMEOUT(sawBoth(), 10000);
    }

    void scrollBarRects_data() { DataRows::add(kScrollBars); }
    void scrollBarRects()
    {
        const ScrollBarRow row = DataRows::current(kScrollBars);
        for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
            const auto span = [orientation](int inFrom, int inLength) {
                return orientation == Qt::Vertical ? QRect(0, inFrom, 8, inLength)
                                                   : QRect(inFrom, 0, inLength, 8);
            };
            QStyleOptionSlider option;
            option.rect = span(0, row.extent).translated(30, 40); // the parts count from the bar's own origin
            option.orientation = orientation;
            option.maximum = row.maximum;
            option.pageStep = row.page;
            option.sliderPosition = row.value;
            option.upsideDown = row.upsideDown;
            const auto rectOf = [&](QStyle::SubControl inPart) {
                return mStyle->subControlRect(QStyle::CC_ScrollBar, &option, inPart);
            };
            const int end = row.position + row.length;
            QCOMPARE(rectOf(QStyle::SC_ScrollBarSlider), span(row.position, row.length));
            QCOMPARE(rectOf(QStyle::SC_ScrollBarSubPage), span(0, row.position));
            QCOMPARE(rectOf(QStyle::SC_ScrollBarAddPage), span(end, row.extent - end));
            QCOMPARE(rectOf(QStyle::SC_ScrollBarGroove), span(0, row.extent));
            QCOMPARE(rectOf(QStyle::SC_ScrollBarAddLine), QRect());
        }
    }

    void sliderHandleRect()
    {
        VantraStyleOptionSlider option;
        option.rect = QRect(7, 9, 112, 22); // the handle counts from the slider's own origin
        option.maximum = 100;
        option.sliderValue = 25;
        const auto handle = [&](QStyle::State inState) {
            option.state = inState;
            return mStyle->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle);
        };
        QCOMPARE(handle(kHovered), QRect(25, 5, 12, 12));
        option.enlargeHandle = true;
        QCOMPARE(handle(kEnabled), QRect(25, 5, 12, 12));
        QCOMPARE(handle(kHovered), QRect(24, 3, 16, 16));
        QCOMPARE(handle(kOn), QRect(24, 3, 16, 16));
        QCOMPARE(handle(QStyle::State_MouseOver), QRect(25, 5, 12, 12));
        option.upsideDown = true;
        QCOMPARE(handle(kEnabled), QRect(75, 5, 12, 12));
    }

    void spinButtonsMoveOffTheRoundEnd()
    {
        auto option = of<QStyleOptionSpinBox>({100, 24});
        option.frame = true;
        const auto moved = [&](QStyle::SubControl inPart) {
            return mStyle->subControlRect(QStyle::CC_SpinBox, &option, inPart).topLeft() -
                   mFusion->subControlRect(QStyle::CC_SpinBox, &option, inPart).topLeft();
        };
        QCOMPARE(moved(QStyle::SC_SpinBoxUp), QPoint(-8, 0));
        QCOMPARE(moved(QStyle::SC_SpinBoxDown), QPoint(-8, 0));
        QCOMPARE(moved(QStyle::SC_SpinBoxEditField), QPoint(0, 0));
    }

    void comboBoxRects()
    {
        QStyleOptionComboBox option;
        option.rect = QRect(10, 20, 300, 50);
        const auto rectOf = [&](QStyle::SubControl inPart) {
            return mStyle->subControlRect(QStyle::CC_ComboBox, &option, inPart);
        };
        // An empty pill is 40 by 24 with ends of 12, whatever the option's own size.
        QCOMPARE(rectOf(QStyle::SC_ComboBoxEditField), QRect(10, 20, 40, 24));
        QCOMPARE(rectOf(QStyle::SC_ComboBoxListBoxPopup), option.rect);
        option.editable = true;
        QCOMPARE(rectOf(QStyle::SC_ComboBoxFrame), QRect(10, 20, 40, 24));
        QCOMPARE(rectOf(QStyle::SC_ComboBoxArrow), QRect(QPoint(49 - 28, 20), QPoint(49, 43)));
        QCOMPARE(rectOf(QStyle::SC_ComboBoxEditField), QRect(QPoint(22, 20), QPoint(309 - 28, 69)));
        option.currentText = kWord;
        const QSize size = sizeOf(QStyle::CT_ComboBox, option);
        const int end = size.height() / 2;
        QCOMPARE(rectOf(QStyle::SC_ComboBoxEditField),
                 QRect(10 + end, 20, size.width() - 2 * end - 16, size.height()));
    }

    void comboBoxPopupHoldsTheWidestRow()
    {
        QComboBox comboBox;
        comboBox.setStyle(mStyle.get());
        comboBox.addItems({"a", QString(60, 'm'), "b"});
        QStyleOptionComboBox option;
        option.rect = QRect(5, 6, 50, 24);
        const auto popup = [&] {
            return mStyle->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxListBoxPopup,
                                          &comboBox);
        };
        const int text = comboBox.fontMetrics().boundingRect(QString(60, 'm')).width();
        const int bar = comboBox.view()->verticalScrollBar()->sizeHint().width();
        QCOMPARE(popup(), QRect(5, 6, bar + text, 24));
        comboBox.view()->setIconSize(QSize(30, 30));
        comboBox.setItemData(1, Qt::Checked, Qt::CheckStateRole);
        QCOMPARE(popup().width(), bar + text + 30 + 16);
        comboBox.setMinimumWidth(text * 2);
        QCOMPARE(popup().width(), text * 2);
        option.rect.setWidth(text * 3);
        QCOMPARE(popup().width(), text * 3);
    }

private:
    QSize sizeOf(QStyle::ContentsType inType, const QStyleOption &inOption, const QWidget *inWidget = nullptr)
    {
        return mStyle->sizeFromContents(inType, &inOption, QSize(500, 500), inWidget);
    }

    std::unique_ptr<QStyle> mFusion{QStyleFactory::create("Fusion")};
    std::unique_ptr<VantraStyle> mStyle;
};

FATAL_TEST_MAIN(tst_VantraStyleGeometry)
#include "tst_VantraStyleGeometry.moc"

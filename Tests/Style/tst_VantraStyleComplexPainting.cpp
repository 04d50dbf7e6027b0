#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

using namespace StyleSamples;
using ThemeFixture::ink;
using ThemeFixture::paintComplex;
using ThemeFixture::paintControl;
using ThemeFixture::paintPrimitive;

namespace {

// Keeps the size of the last picture that was painted.
class Recorder : public VantraStyle
{
public:
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment,
                        const QPixmap &pixmap) const override
    {
        pixmapSize = pixmap.deviceIndependentSize().toSize();
        VantraStyle::drawItemPixmap(painter, rect, alignment, pixmap);
    }

    mutable QSize pixmapSize;
};

struct SliderRow
{
    const char *name;
    int minimum;
    int maximum;
    int value;
    bool upsideDown;
    int from; // the value span, in a slider 200 wide
    int to;
};

const SliderRow kSliders[] = {
    {"from the low end", 10, 20, 15, false, 0, 100},
    {"both ways, above", -100, 100, 50, false, 100, 150},
    {"both ways, below", -100, 100, -50, false, 50, 100},
    {"below zero", -20, -10, -15, false, 0, 100},
    {"upside down", 10, 20, 15, true, 0, 100},
};

} // namespace

class tst_VantraStyleComplexPainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void comboBoxPanel();
    void toolButtonPanel();
    void emptyToolButtonShowsAPlaceholder();
    void toolButtonIconGrows();
    void onlyTheToolButtonItselfIsPainted();
    void scrollBarIsItsThumb();
    void spinBoxPaintsItsText();
    void sliderSpan_data() { DataRows::add(kSliders); }
    void sliderSpan();
    void sliderHandleAndGradient();
    void itemPanel();
    void itemChecks();
    void branchesAndDropLine();
    void menuPanel();
    void menuItemColumns();
    void separatorLines();
    void splitterShowsWhileInUse();
    void progressBar();

private:
    VantraStyle mStyle;
};

void tst_VantraStyleComplexPainting::comboBoxPanel()
{
    auto option = of<VantraStyleOptionComboBox>({60, 20});
    option.currentText = "Text";
    const QImage pill = paintComplex(mStyle, QStyle::CC_ComboBox, option);
    QCOMPARE(centre(pill), kSunken); // without the label
    QCOMPARE(squareCorners(pill), QString("...."));
    for (const auto background :
         {VantraComboBoxBase::BackgroundStyleNone, VantraComboBoxBase::BackgroundTransparent}) {
        option.backgroundStyle = background;
        QCOMPARE(ink(paintComplex(mStyle, QStyle::CC_ComboBox, option)), 0.0);
    }
    QVERIFY(ink(paintControl(mStyle, QStyle::CE_ComboBoxLabel, option)) > 10.0);
}

void tst_VantraStyleComplexPainting::toolButtonPanel()
{
    auto option = of<VantraStyleOptionToolButton>({24, 24}, kOn);
    const auto painted = [&] { return paintPrimitive(mStyle, QStyle::PE_PanelButtonTool, option); };
    QCOMPARE(ink(painted()), 0.0); // no icon, no plate
    option.icon = icon();
    QCOMPARE(centre(painted()), kSunken);
    QCOMPARE(squareCorners(painted()), QString("...."));
    option.buttonStyle = VantraToolButton::IconOnOffStyle;
    QCOMPARE(ink(painted()), 0.0);
    option.buttonStyle = VantraToolButton::IconStyle;
    option.state = kHovered;
    QCOMPARE(ink(painted()), 0.0);

    option.rect.setWidth(60);
    option.backgroundStyle = VantraToolButton::BackgroundStyleTobButton;
    QCOMPARE(centre(painted()), QColor(168, 168, 168));
    QCOMPARE(painted().pixelColor(2, 2), kNothing);
    option.backgroundStyle = VantraToolButton::BackgroundStyleComboBoxNone;
    QCOMPARE(ink(painted()), 0.0);
}

void tst_VantraStyleComplexPainting::emptyToolButtonShowsAPlaceholder()
{
    const auto painted = [this](QStyle::State inState) {
        auto option = of<VantraStyleOptionToolButton>({24, 24}, inState);
        option.arrowType = Qt::NoArrow;
        return paintControl(mStyle, QStyle::CE_ToolButtonLabel, option);
    };
    const QImage off = painted(kEnabled);
    QVERIFY(off.pixelColor(12, 0).alpha() > 200);
    QCOMPARE(centre(off), kNothing);
    QCOMPARE(squareCorners(off), QString("...."));
    QCOMPARE(centre(painted(kOn)), kSunken);
}

void tst_VantraStyleComplexPainting::toolButtonIconGrows()
{
    Recorder style;
    auto option = of<VantraStyleOptionToolButton>({40, 40});
    option.icon = icon();
    option.iconSize = QSize(20, 20);
    option.toolButtonStyle = Qt::ToolButtonIconOnly;
    option.enlargeIconOnHover = true;
    paintControl(style, QStyle::CE_ToolButtonLabel, option);
    QCOMPARE(style.pixmapSize, QSize(20, 20));
    option.state = kHovered;
    paintControl(style, QStyle::CE_ToolButtonLabel, option);
    QCOMPARE(style.pixmapSize, QSize(25, 25));
}

void tst_VantraStyleComplexPainting::onlyTheToolButtonItselfIsPainted()
{
    auto option = of<QStyleOptionToolButton>({24, 24});
    option.arrowType = Qt::NoArrow;
    option.subControls = QStyle::SC_ToolButtonMenu;
    QCOMPARE(ink(paintComplex(mStyle, QStyle::CC_ToolButton, option)), 0.0);
    option.subControls |= QStyle::SC_ToolButton;
    QVERIFY(ink(paintComplex(mStyle, QStyle::CC_ToolButton, option)) > 10.0);
}

void tst_VantraStyleComplexPainting::scrollBarIsItsThumb()
{
    auto option = of<QStyleOptionSlider>({200, 20});
    option.orientation = Qt::Horizontal;
    option.maximum = 100;
    option.pageStep = 100;
    option.sliderPosition = 100;
    option.subControls = QStyle::SC_All;
    const QImage image = paintComplex(mStyle, QStyle::CC_ScrollBar, option);
    QCOMPARE(image.pixelColor(150, 16), QColor(81, 81, 81));
    QCOMPARE(ink(image.copy(0, 0, 200, 12)) + ink(part(image, 0, 99)), 0.0); // at the far edge alone
    option.state = kHovered;
    QCOMPARE(paintComplex(mStyle, QStyle::CC_ScrollBar, option).pixelColor(150, 16), kAccent);
    option.subControls = QStyle::SC_ScrollBarGroove | QStyle::SC_ScrollBarAddPage;
    QCOMPARE(ink(paintComplex(mStyle, QStyle::CC_ScrollBar, option)), 0.0);
    for (const QStyle::ControlElement element :
         {QStyle::CE_ScrollBarAddLine, QStyle::CE_ScrollBarSubLine, QStyle::CE_ScrollBarAddPage,
          QStyle::CE_ScrollBarSubPage, QStyle::CE_ScrollBarFirst, QStyle::CE_ScrollBarLast}) {
        QCOMPARE(ink(paintControl(mStyle, element, option)), 0.0);
    }
}

void tst_VantraStyleComplexPainting::spinBoxPaintsItsText()
{
    auto option = of<VantraStyleOptionSpinBox>({100, 24});
    const auto painted = [&] { return paintComplex(mStyle, QStyle::CC_SpinBox, option); };
    const auto strokes = [&] { return painted().width() * 24 - ThemeFixture::countOf(kSunken, painted()); };
    const int empty = strokes();
    QCOMPARE(centre(painted()), kSunken);
    QCOMPARE(squareCorners(painted()), QString("...."));
    option.displayText = "12345";
    const int plain = strokes();
    QVERIFY(plain > empty + 20);
    option.highlightStart = option.highlightEnd = 2;
    QCOMPARE(strokes(), plain);
    option.highlightEnd = 5;
    QVERIFY(strokes() > plain + 10);
}

void tst_VantraStyleComplexPainting::sliderSpan()
{
    const SliderRow row = DataRows::current(kSliders);
    QWidget widget;
    widget.resize(200, 22);
    auto option = of<QStyleOptionSlider>({200, 22});
    option.minimum = row.minimum;
    option.maximum = row.maximum;
    option.sliderValue = row.value;
    option.upsideDown = row.upsideDown;
    option.subControls = QStyle::SC_SliderGroove;
    const QImage image = paintComplex(mStyle, QStyle::CC_Slider, option, &widget);
    for (int x = 4; x < 196; ++x) {
        if (qAbs(x - row.from) > 1 && qAbs(x - row.to) > 1) {
            const int grey = x > row.from && x < row.to ? 195 : 123;
            QCOMPARE(image.pixelColor(x, 11), QColor(grey, grey, grey));
        }
    }
    QCOMPARE(ink(image.copy(0, 0, 200, 9)) + ink(image.copy(0, 13, 200, 9)), 0.0);
}

void tst_VantraStyleComplexPainting::sliderHandleAndGradient()
{
    auto option = of<VantraStyleOptionSlider>({200, 22});
    option.maximum = 100;
    option.sliderValue = 50;
    option.subControls = QStyle::SC_SliderHandle;
    const auto painted = [&] { return paintComplex(mStyle, QStyle::CC_Slider, option); };
    QCOMPARE(centre(painted()), QColor(248, 248, 248));
    const double small = ink(painted());
    option.enlargeHandle = true;
    QCOMPARE(ink(painted()), small);
    option.state = kHovered;
    QVERIFY(ink(painted()) > small * 1.5);
    option.state = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    QCOMPARE(centre(painted()), QColor(255, 255, 255)); // even while disabled

    option.state = kEnabled;
    option.subControls = QStyle::SC_SliderGroove;
    option.gradientStops = {{0.0, QColor(255, 0, 0)}, {1.0, QColor(0, 0, 255)}};
    const QImage gradient = painted();
    QVERIFY(gradient.pixelColor(5, 11).red() > 240);
    QVERIFY(gradient.pixelColor(195, 11).blue() > 240);
    QCOMPARE(ThemeFixture::countOf(QColor(195, 195, 195), gradient), 0);
}

void tst_VantraStyleComplexPainting::itemPanel()
{
    auto option = of<QStyleOptionViewItem>({60, 20});
    for (const QStyle::PrimitiveElement element :
         {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
        option.backgroundBrush = Qt::NoBrush;
        option.features = QStyleOptionViewItem::Alternate;
        option.state = kHovered;
        QCOMPARE(ink(paintPrimitive(mStyle, element, option)), 0.0);
        option.state = kSelected;
        QCOMPARE(squareCorners(paintPrimitive(mStyle, element, option)), QString("####"));
        QCOMPARE(centre(paintPrimitive(mStyle, element, option)), kDimAccent);
        option.backgroundBrush = Qt::green;
        QCOMPARE(centre(paintPrimitive(mStyle, element, option)), QColor(Qt::green));
    }
}

void tst_VantraStyleComplexPainting::itemChecks()
{
    QListView list;
    QTreeView tree;
    auto option = of<QStyleOptionViewItem>({60, 20});
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const auto painted = [&](Qt::CheckState inState, const QWidget *inWidget) {
        option.checkState = inState;
        return paintControl(mStyle, QStyle::CE_ItemViewItem, option, inWidget);
    };
    QCOMPARE(ink(painted(Qt::Unchecked, &list)), 0.0);
    QCOMPARE(ink(painted(Qt::PartiallyChecked, &list)), 0.0);
    QVERIFY(ThemeFixture::countOf(kText, painted(Qt::Checked, &list)) > 5);
    QCOMPARE(painted(Qt::Checked, &tree).pixelColor(8, 10), kAccent);
    QCOMPARE(painted(Qt::PartiallyChecked, &tree).pixelColor(7, 10), kAccent);
    QCOMPARE(painted(Qt::PartiallyChecked, &tree).pixelColor(7, 9), kNothing);
    QVERIFY(ink(painted(Qt::Unchecked, &tree)) > 10.0);
}

void tst_VantraStyleComplexPainting::branchesAndDropLine()
{
    auto option = of<QStyleOptionViewItem>({20, 20}, kEnabled | QStyle::State_Open | QStyle::State_Sibling);
    const auto painted = [&] { return paintPrimitive(mStyle, QStyle::PE_IndicatorBranch, option); };
    QCOMPARE(ink(painted()), 0.0);
    option.state |= QStyle::State_Children;
    QCOMPARE(painted(), paintPrimitive(mStyle, QStyle::PE_IndicatorArrowDown, option));
    option.state &= ~QStyle::State_Open;
    QCOMPARE(painted(), paintPrimitive(mStyle, QStyle::PE_IndicatorArrowRight, option));
    QVERIFY(ink(painted()) > 3.0);

    const QImage drop =
        paintPrimitive(mStyle, QStyle::PE_IndicatorItemViewItemDrop, of<QStyleOption>({30, 9}));
    QCOMPARE(drop.pixelColor(15, 8), kLine);
    QCOMPARE(ink(drop), 30.0);
}

void tst_VantraStyleComplexPainting::menuPanel()
{
    QMenu top;
    QMenu sub(&top);
    const auto option = of<QStyleOptionMenuItem>({60, 40});
    const QImage plain = paintPrimitive(mStyle, QStyle::PE_PanelMenu, option, &sub);
    QCOMPARE(centre(plain), kPane);
    QCOMPARE(plain.pixelColor(30, 0), kLine);
    QCOMPARE(plain.pixelColor(30, 39), kLine);
    QCOMPARE(plain.pixelColor(0, 0), kNothing);
    QCOMPARE(plain.pixelColor(59, 39), kNothing);
    top.setProperty("hudOverlay", true); // which holds for every menu below
    const QImage overlay = paintPrimitive(mStyle, QStyle::PE_PanelMenu, option, &sub);
    QCOMPARE(centre(overlay), QColor(0, 0, 0, 200));
    QCOMPARE(overlay.pixelColor(0, 0), kNothing);
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_FrameMenu, option, &sub)), 0.0);
}

void tst_VantraStyleComplexPainting::menuItemColumns()
{
    QMenu menu;
    menu.addAction("Item")->setShortcut(QKeySequence("Ctrl+W"));
    QStyleOptionMenuItem option = of<QStyleOptionMenuItem>({300, 24});
    option.font = menu.font();
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.maxIconWidth = 20;
    const auto painted = [&] { return paintControl(mStyle, QStyle::CE_MenuItem, option, &menu); };
    QCOMPARE(ink(painted()), 0.0); // the panel lies below

    option.text = "Item";
    QCOMPARE(ink(part(painted(), 0, 27)), 0.0);
    QVERIFY(ink(part(painted(), 28, 80)) > 10.0);
    option.text = "\tCtrl+W"; // nothing but a shortcut, right of the middle
    QCOMPARE(ink(part(painted(), 0, 150)), 0.0);
    QVERIFY(ink(part(painted(), 180, 275)) > 10.0);
    option.text.clear();
    option.checkType = QStyleOptionMenuItem::NonExclusive;
    QCOMPARE(ink(painted()), 0.0);
    option.checked = true;
    QVERIFY(ink(part(painted(), 4, 24)) > 10.0);
    option.checkType = QStyleOptionMenuItem::NotCheckable;
    option.menuItemType = QStyleOptionMenuItem::SubMenu;
    QVERIFY(ink(part(painted(), 275, 299)) > 3.0);
    option.menuItemType = QStyleOptionMenuItem::Scroller;
    QCOMPARE(ink(painted()), 0.0);
    QCOMPARE(ink(paintControl(mStyle, QStyle::CE_MenuEmptyArea, option, &menu)), 0.0);
}

void tst_VantraStyleComplexPainting::separatorLines()
{
    QMenu menu;
    QComboBox comboBox;
    auto option = of<QStyleOptionMenuItem>({30, 7});
    option.menuItemType = QStyleOptionMenuItem::Separator;
    for (QWidget *widget : std::initializer_list<QWidget *>{&menu, &comboBox, nullptr}) {
        const QImage image = paintControl(mStyle, QStyle::CE_MenuItem, option, widget);
        QCOMPARE(image.pixelColor(15, 3), kLine);
        QCOMPARE(ink(image.copy(0, 0, 30, 3)) + ink(image.copy(0, 4, 30, 3)), 0.0);
    }
}

void tst_VantraStyleComplexPainting::splitterShowsWhileInUse()
{
    QCOMPARE(ink(paintControl(mStyle, QStyle::CE_Splitter, of<QStyleOption>({60, 6}))), 0.0);
    const QImage lying = paintControl(mStyle, QStyle::CE_Splitter, of<QStyleOption>({60, 6}, kHovered));
    QCOMPARE(lying.pixelColor(0, 0), kSunken);
    QCOMPARE(ThemeFixture::countOf(kText, lying), 16 * 4);
    QCOMPARE(lying.pixelColor(29, 0), kText);
    QCOMPARE(lying.pixelColor(29, 2), kSunken);
    QCOMPARE(lying.pixelColor(29, 5), kText);
    const QStyle::State dragged = kEnabled | QStyle::State_Sunken | QStyle::State_Horizontal;
    const QImage upright = paintControl(mStyle, QStyle::CE_Splitter, of<QStyleOption>({6, 60}, dragged));
    QCOMPARE(ThemeFixture::countOf(kText, upright), 16 * 4);
    QCOMPARE(upright.pixelColor(2, 29), kSunken);
    QCOMPARE(upright.pixelColor(5, 29), kText);
}

void tst_VantraStyleComplexPainting::progressBar()
{
    auto option = of<QStyleOptionProgressBar>({200, 20});
    option.maximum = 100;
    option.progress = 50;
    option.text = "50 %";
    option.textVisible = true;
    const QImage image = paintControl(mStyle, QStyle::CE_ProgressBar, option);
    QCOMPARE(image.pixelColor(50, 10), kAccent);
    QCOMPARE(image.pixelColor(150, 10), kSunken);
    QCOMPARE(ink(image.copy(0, 0, 200, 6)) + ink(image.copy(0, 14, 200, 6)), 0.0);
    QCOMPARE(image.pixelColor(0, 6), kNothing); // round ends
    QCOMPARE(ink(paintControl(mStyle, QStyle::CE_ProgressBarLabel, option)), 0.0);
    option.progress = -1;
    QCOMPARE(ThemeFixture::countOf(kAccent, paintControl(mStyle, QStyle::CE_ProgressBar, option)), 0);
}

FATAL_TEST_MAIN(tst_VantraStyleComplexPainting)

#include "tst_VantraStyleComplexPainting.moc"

#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/StyleSamples.h"
#include "Support/ThemeFixture.h"

#include <QtWidgets/QtWidgets>

using namespace StyleSamples;
using ThemeFixture::countOf;
using ThemeFixture::ink;
using ThemeFixture::paintComplex;
using ThemeFixture::paintControl;
using ThemeFixture::paintPrimitive;

class tst_VantraStyleComplexPainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void toolButtonPanel()
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
        option.rect.setWidth(60);
        option.backgroundStyle = VantraToolButton::BackgroundStyleTobButton;
        QCOMPARE(centre(painted()), QColor(168, 168, 168));
        QCOMPARE(painted().pixelColor(2, 2), kNothing);
    }

    void emptyToolButtonShowsAPlaceholder()
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

    void scrollBarIsItsThumb()
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
    }

    void spinBoxPaintsItsText()
    {
        auto option = of<VantraStyleOptionSpinBox>({100, 24});
        const auto painted = [&] { return paintComplex(mStyle, QStyle::CC_SpinBox, option); };
        const auto strokes = [&] { return painted().width() * 24 - countOf(kSunken, painted()); };
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

    void sliderHandleGrowsAndShowsTheKeyboard()
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
    }

    void itemPanel()
    {
        auto option = of<QStyleOptionViewItem>({60, 20});
        for (const QStyle::PrimitiveElement element :
             {QStyle::PE_PanelItemViewItem, QStyle::PE_PanelItemViewRow}) {
            option.backgroundBrush = Qt::NoBrush;
            option.features = QStyleOptionViewItem::Alternate;
            option.state = kHovered;
            QCOMPARE(ink(paintPrimitive(mStyle, element, option)), 0.0);
            option.state = kSelected;
            QCOMPARE(centre(paintPrimitive(mStyle, element, option)), kDimAccent);
            option.backgroundBrush = Qt::green;
            QCOMPARE(centre(paintPrimitive(mStyle, element, option)), QColor(Qt::green));
        }
    }

    void itemChecks()
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
        QVERIFY(countOf(kText, painted(Qt::Checked, &list)) > 5);
        QCOMPARE(painted(Qt::Checked, &tree).pixelColor(8, 10), kAccent);
        QCOMPARE(painted(Qt::PartiallyChecked, &tree).pixelColor(7, 9), kNothing);
        QVERIFY(ink(painted(Qt::Unchecked, &tree)) > 10.0);
    }

    void branchesAreArrows()
    {
        auto option =
            of<QStyleOptionViewItem>({20, 20}, kEnabled | QStyle::State_Open | QStyle::State_Sibling);
        const auto painted = [&] { return paintPrimitive(mStyle, QStyle::PE_IndicatorBranch, option); };
        QCOMPARE(ink(painted()), 0.0);
        option.state |= QStyle::State_Children;
        QCOMPARE(painted(), paintPrimitive(mStyle, QStyle::PE_IndicatorArrowDown, option));
        option.state &= ~QStyle::State_Open;
        QCOMPARE(painted(), paintPrimitive(mStyle, QStyle::PE_IndicatorArrowRight, option));
        QVERIFY(ink(painted()) > 3.0);
    }

    void menuPanel()
    {
        QMenu top;
        QMenu sub(&top);
        const auto option = of<QStyleOptionMenuItem>({60, 40});
        const QImage plain = paintPrimitive(mStyle, QStyle::PE_PanelMenu, option, &sub);
        QCOMPARE(centre(plain), kPane);
        QCOMPARE(plain.pixelColor(30, 0), kLine);
        QCOMPARE(plain.pixelColor(0, 0), kNothing);
        top.setProperty("hudOverlay", true); // which holds for every menu below
        QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_PanelMenu, option, &sub)), QColor(0, 0, 0, 200));
        top.setProperty("hudOverlay", false);
        sub.setProperty("hudOverlay", true); // whatever the menus above say
        QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_PanelMenu, option, &sub)), QColor(0, 0, 0, 200));
        QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_FrameMenu, option, &sub)), 0.0);
    }

    void menuItemColumns()
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

private:
    VantraStyle mStyle;
};

FATAL_TEST_MAIN(tst_VantraStyleComplexPainting)
#include "tst_VantraStyleComplexPainting.moc"

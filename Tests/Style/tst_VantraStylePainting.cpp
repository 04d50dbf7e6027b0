#include "Style/VantraStyle.h"
#include "Support/DataRows.h"
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

namespace {

// Keeps what reaches Qt's own text painting.
class Recorder : public VantraStyle
{
public:
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override
    {
        lastText = text;
        textRect = rect;
        VantraStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    mutable QString lastText;
    mutable QRect textRect;
};

// A further style over ours that notes which elements are asked for.
class Restyler : public QProxyStyle
{
public:
    Restyler() : QProxyStyle(new VantraStyle) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override
    {
        primitives.insert(element);
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        controls.insert(element);
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    mutable QSet<int> primitives, controls;
};

using B = VantraButton;

struct BevelRow
{
    const char *name;
    B::ButtonStyle look;
    QStyle::State state;
    QColor fill;
    const char *squareCorners;
};

const BevelRow kBevels[] = {
    {"caps", B::LeftAndRightCapButtonStyle, kEnabled, kSunken, "...."},
    {"disabled accent", B::LeftAndRightCapButtonAccentStyle, {}, kDimAccent, "...."},
    {"left cap", B::LeftCapButtonStyle, kHovered, kSunken, ".#.#"},
    {"right cap", B::RightCapButtonStyle, kOn, kSunken, "#.#."},
    {"text only", B::TextOnlyStyle, kEnabled, kNothing, "...."},
    {"tab", B::LeftAndRightCapTabButtonStyle, kHovered, kGround, "..##"},
    {"checked inner tab", B::NoCapTabButtonStyle, kOn, kPane, "####"},
};

using F = VantraFramePane;

struct PaneRow
{
    const char *name;
    F::PaneStyle look;
    F::PanePart part;
    int state;
    const char *squareCorners; // of a filled pane
    bool line;
};

const PaneRow kPanes[] = {
    {"expanded", F::PaneStyleStandard, F::PanePartContainer, F::PaneStateExpanded, "....", false},
    {"expanded header", F::PaneStyleStandard, F::PanePartHeader, 0x30, "..##", false},
    {"expanded body", F::PaneStyleStandard, F::PanePartBody, F::PaneStateExpanded, "##..", false},
    {"before expanded", F::PaneStyleStandard, F::PanePartContainer, 0x20, "", false},
    {"closed", F::PaneStyleStandard, F::PanePartContainer, 0, "", true},
    {"closed header", F::PaneStyleStandard, F::PanePartHeader, F::PaneStateExpandedBefore, "", true},
    {"closed body", F::PaneStyleStandard, F::PanePartBody, 0, "", false},
    {"list, selected", F::PaneStyleList, F::PanePartContainer, F::PaneStateSelected, "####", false},
    {"list", F::PaneStyleList, F::PanePartHeader, F::PaneStateExpanded, "", true},
    {"sub-pane", F::PaneStyleSubPane, F::PanePartContainer, 0x11, "", true},
    {"last sub-pane", F::PaneStyleSubPane, F::PanePartHeader, F::PaneStateLastPane, "", false},
};

} // namespace

class tst_VantraStylePainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void bevelFillsItsShape_data() { DataRows::add(kBevels); }
    void bevelFillsItsShape()
    {
        const BevelRow row = DataRows::current(kBevels);
        auto option = of<VantraStyleOptionButton>({60, 20}, row.state);
        option.buttonStyle = row.look;
        const QImage image = paintControl(mStyle, QStyle::CE_PushButtonBevel, option);
        QCOMPARE(centre(image), row.fill);
        QCOMPARE(squareCorners(image), QString(row.squareCorners));
        if (row.look == B::NoCapTabButtonStyle) {
            QCOMPARE(image.pixelColor(0, 0), kGround); // the bar, outside the checked tab's round top
            QCOMPARE(image.pixelColor(0, 19), kPane);
        }
        option.backgroundButtonRole = VantraPalette::TokenBoxBackground;
        if (row.fill != kNothing) {
            const QColor token = row.state & QStyle::State_Enabled ? kPane : kDisabled;
            QCOMPARE(centre(paintControl(mStyle, QStyle::CE_PushButtonBevel, option)), token);
        }
    }

    void plainOptionsLookLikeOurs()
    {
        auto plain = of<QStyleOptionButton>({80, 24});
        auto ours = of<VantraStyleOptionButton>({80, 24});
        plain.text = ours.text = "Text";
        const QImage button = paintControl(mStyle, QStyle::CE_PushButton, plain);
        QCOMPARE(button, paintControl(mStyle, QStyle::CE_PushButton, ours));
        QVERIFY(countOf(kSunken, button) > 1000);
        QCOMPARE(
            centre(paintPrimitive(mStyle, QStyle::PE_PanelButtonTool, of<QStyleOptionComboBox>({60, 20}))),
            kSunken);
        QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_FrameFocusRect, of<QStyleOption>({20, 20}))), 0.0);
    }

    void frameRoundsItsCorners()
    {
        auto option = of<VantraStyleOptionFrame>({60, 20});
        const auto corners = [&](int inShapes, int inRadius) {
            option.cornerShapes = VantraFrame::CornerShapes(inShapes);
            option.cornerRadius = inRadius;
            return squareCorners(paintPrimitive(mStyle, QStyle::PE_Frame, option));
        };
        QCOMPARE(corners(VantraFrame::CornerShapeNone, 8), QString("####"));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundTop, 8), QString("..##"));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundBottom, 8), QString("##.."));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundLeft, 8), QString(".#.#"));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundRight, 8), QString("#.#."));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundFull, 8), QString("...."));
        QCOMPARE(corners(VantraFrame::CornerShapeRoundFull, 0), QString("####"));
        QCOMPARE(corners(0x7, 8), QString("####")); // three corners
    }

    void pane_data() { DataRows::add(kPanes); }
    void pane()
    {
        const PaneRow row = DataRows::current(kPanes);
        auto option = of<VantraStyleOptionFramePane>({60, 20});
        option.paneStyle = row.look;
        option.panePart = row.part;
        option.paneState = F::PaneStates(row.state);
        for (const bool bordered : {false, true}) {
            option.paneBorderStyle = static_cast<F::PaneBorderStyle>(bordered);
            const bool selected = bordered && (row.state & F::PaneStateSelected);
            const QImage image = paintControl(mStyle, QStyle::CE_ShapedFrame, option);
            if (*row.squareCorners != 0) {
                QCOMPARE(centre(image), selected ? kDimAccent : kPane);
                QCOMPARE(squareCorners(image), QString(row.squareCorners));
            } else {
                QCOMPARE(ink(image), row.line ? 60.0 : 0.0);
                QCOMPARE(image.pixelColor(30, 19), !row.line  ? kNothing
                                                   : selected ? kPanelAccentLine
                                                              : kLine);
            }
        }
    }

    void checkIndicator()
    {
        const auto painted = [this](QStyle::State inState) {
            return paintPrimitive(mStyle, QStyle::PE_IndicatorCheckBox, of<QStyleOption>({16, 16}, inState));
        };
        const QImage off = painted(kEnabled | QStyle::State_Off);
        QVERIFY(ink(off.copy(2, 7, 2, 2)) > 1.0); // the ring
        QCOMPARE(centre(off), kNothing);
        const QImage on = painted(kOn);
        QCOMPARE(on.pixelColor(7, 7), kAccent);
        QCOMPARE(ink(on.copy(4, 7, 2, 2)) + ink(on.copy(0, 0, 2, 2)), 0.0); // around the dot, and outside
        const QImage partly = painted(kEnabled | QStyle::State_NoChange);
        QCOMPARE(partly.pixelColor(7, 8), kAccent);
        QCOMPARE(partly.pixelColor(7, 7), kNothing);
        QCOMPARE(painted(kOn | QStyle::State_NoChange), on);
        QCOMPARE(centre(painted(QStyle::State_On)), QColor(141, 141, 141));
        QCOMPARE(paintPrimitive(mStyle, QStyle::PE_IndicatorRadioButton, of<QStyleOption>({16, 16}, kOn)),
                 on);
    }

    void menuCheckHasNoRing()
    {
        QMenu menu;
        auto option = of<QStyleOption>({20, 20}, kOn);
        option.styleObject = &menu;
        const QImage tick = paintPrimitive(mStyle, QStyle::PE_IndicatorCheckBox, option, &menu);
        QVERIFY(countOf(kText, tick) > 5);
        QCOMPARE(ink(tick.copy(0, 0, 20, 5)), 0.0); // a ring would be here
        const auto item = of<QStyleOptionMenuItem>({20, 20}, kOn);
        QCOMPARE(paintPrimitive(mStyle, QStyle::PE_IndicatorMenuCheckMark, item, &menu), tick);
        const auto off = of<QStyleOptionMenuItem>({20, 20}, kEnabled);
        QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_IndicatorMenuCheckMark, off, &menu)), 0.0);
    }

    void lineEditPanel()
    {
        auto option = of<VantraStyleOptionLineEdit>({60, 20});
        const auto painted = [&] { return paintPrimitive(mStyle, QStyle::PE_PanelLineEdit, option); };
        QCOMPARE(ink(painted()), 0.0); // no border: clear until hovered
        option.state = kHovered;
        QCOMPARE(centre(painted()), kSunken);
        QCOMPARE(squareCorners(painted()), QString("...."));
        option.borderStyle = VantraLineEditBase::BorderStandard;
        QCOMPARE(centre(painted()), kPane);
        QCOMPARE(painted().pixelColor(2, 2), kNothing); // a pill
        // A plain option has a border while it is sunken; anything that is no frame paints nothing at all.
        const auto plain = of<QStyleOptionFrame>({60, 20}, kEnabled | QStyle::State_Sunken);
        QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_PanelLineEdit, plain)), kSunken);
        const auto none = of<QStyleOption>({60, 20}, kHovered);
        QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_PanelLineEdit, none)), 0.0);
    }

    void textIsElidedInTheMiddle()
    {
        Recorder style;
        const QString text = "A rather long label for it";
        auto button = of<VantraStyleOptionButton>({60, 24});
        button.text = text;
        paintControl(style, QStyle::CE_PushButton, button);
        QCOMPARE(style.textRect, QRect(12, 0, 36, 24)); // clear of the round ends
        QVERIFY(style.lastText.startsWith('A') && style.lastText.endsWith('t'));
        QVERIFY(style.lastText.contains(QChar(0x2026)));

        // A size that was asked for is enough, to the pixel.
        for (const QString &label :
             {text, QString("Wi"), QString::fromUtf8("Größe – ёжик"), QString(80, 'f')}) {
            button.text = label;
            button.rect.setSize(QSize(60, 24));
            button.rect.setWidth(style.sizeFromContents(QStyle::CT_PushButton, &button, QSize()).width());
            button.state = kHovered; // in the widest font
            paintControl(style, QStyle::CE_PushButton, button);
            QCOMPARE(style.lastText, label);
        }
    }

    void painterIsGivenBack()
    {
        QMenu menu;
        auto button = of<VantraStyleOptionButton>({60, 24});
        auto spinBox = of<VantraStyleOptionSpinBox>({60, 24});
        auto slider = of<VantraStyleOptionSlider>({60, 24});
        auto item = of<VantraStyleOptionViewItem>({60, 24}, kSelected);
        auto menuItem = of<QStyleOptionMenuItem>({60, 24});
        const auto progress = of<QStyleOptionProgressBar>({60, 24});
        button.text = spinBox.displayText = item.text = menuItem.text = "Text";
        slider.subControls = QStyle::SC_All;
        const QPen pen(Qt::magenta, 3.0);
        const QBrush brush(Qt::cyan, Qt::Dense3Pattern);
        QFont font;
        font.setPixelSize(7);
        ThemeFixture::paint({60, 24}, [&](QPainter &painter) {
            painter.setPen(pen);
            painter.setBrush(brush);
            painter.setFont(font);
            painter.setClipRect(QRect(1, 1, 50, 20));
            mStyle.drawControl(QStyle::CE_PushButton, &button, &painter);
            mStyle.drawControl(QStyle::CE_ProgressBar, &progress, &painter);
            mStyle.drawControl(QStyle::CE_MenuItem, &menuItem, &painter, &menu);
            mStyle.drawControl(QStyle::CE_ItemViewItem, &item, &painter);
            mStyle.drawComplexControl(QStyle::CC_SpinBox, &spinBox, &painter);
            mStyle.drawComplexControl(QStyle::CC_Slider, &slider, &painter);
            mStyle.drawPrimitive(QStyle::PE_PanelMenu, &menuItem, &painter, &menu);
            mStyle.drawPrimitive(QStyle::PE_IndicatorCheckBox, &item, &painter);
            QCOMPARE(painter.pen(), pen);
            QCOMPARE(painter.brush(), brush);
            QCOMPARE(painter.font(), font);
            QCOMPARE(painter.clipBoundingRect(), QRectF(1, 1, 50, 20));
            mStyle.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &item, &painter); // leaves its pen
            QVERIFY(painter.pen().isCosmetic() && painter.pen().color() == kLine);
        });
    }

    void furtherStyleSeesEverySubElement()
    {
        using S = QStyle;
        Restyler style;
        auto toolButton = of<QStyleOptionToolButton>({24, 24});
        toolButton.subControls = S::SC_ToolButton;
        auto scrollBar = of<QStyleOptionSlider>({60, 8});
        scrollBar.subControls = S::SC_ScrollBarSlider;
        auto item = of<QStyleOptionViewItem>({60, 24}, kEnabled | S::State_Children);
        item.features = QStyleOptionViewItem::HasCheckIndicator;
        QMenu menu;
        auto menuItem = of<QStyleOptionMenuItem>({60, 24});
        menuItem.menuItemType = QStyleOptionMenuItem::SubMenu;
        menuItem.checkType = QStyleOptionMenuItem::Exclusive;
        paintControl(style, S::CE_PushButton, of<QStyleOptionButton>({60, 24}));
        paintControl(style, S::CE_ProgressBar, of<QStyleOptionProgressBar>({60, 24}));
        paintControl(style, S::CE_TabBarTab, of<QStyleOptionTab>({60, 24}));
        paintControl(style, S::CE_ItemViewItem, item);
        paintControl(style, S::CE_MenuItem, menuItem, &menu);
        paintPrimitive(style, S::PE_IndicatorBranch, item);
        paintComplex(style, S::CC_ComboBox, of<QStyleOptionComboBox>({60, 24}));
        paintComplex(style, S::CC_ToolButton, toolButton);
        paintComplex(style, S::CC_ScrollBar, scrollBar);
        QVERIFY(style.controls.contains(
            {S::CE_PushButtonBevel, S::CE_PushButtonLabel, S::CE_ProgressBarGroove, S::CE_ProgressBarContents,
             S::CE_TabBarTabShape, S::CE_TabBarTabLabel, S::CE_ToolButtonLabel, S::CE_ScrollBarSlider}));
        QVERIFY(style.primitives.contains({S::PE_PanelItemViewItem, S::PE_IndicatorItemViewItemCheck,
                                           S::PE_IndicatorMenuCheckMark, S::PE_IndicatorArrowRight,
                                           S::PE_PanelButtonTool}));
    }

private:
    VantraStyle mStyle;
};

FATAL_TEST_MAIN(tst_VantraStylePainting)
#include "tst_VantraStylePainting.moc"

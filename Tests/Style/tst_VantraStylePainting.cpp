#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "StyleOptions/VantraStyleOptionFramePane.h"
#include "StyleOptions/VantraStyleOptionLineEdit.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "StyleOptions/VantraStyleOptionTab.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "StyleOptions/VantraStyleOptionViewItem.h"
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

// Keeps what reaches Qt's own text painting.
class Recorder : public VantraStyle
{
public:
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override
    {
        texts.append(text);
        textRect = rect;
        VantraStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
    }

    mutable QStringList texts;
    mutable QRect textRect;
};

// A further style over ours that paints nothing of some elements, and notes them.
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
    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override
    {
        rects.insert(element);
        return QProxyStyle::subElementRect(element, option, widget);
    }

    mutable QSet<int> primitives;
    mutable QSet<int> controls;
    mutable QSet<int> rects;
};

struct BevelRow
{
    const char *name;
    VantraButton::ButtonStyle look;
    QStyle::State state;
    QColor fill;
    const char *squareCorners;
};

const BevelRow kBevels[] = {
    {"caps", VantraButton::LeftAndRightCapButtonStyle, kEnabled, kSunken, "...."},
    {"disabled", VantraButton::LeftAndRightCapButtonStyle, QStyle::State_None, kDisabled, "...."},
    {"accent", VantraButton::LeftAndRightCapButtonAccentStyle, kEnabled, kAccent, "...."},
    {"disabled accent", VantraButton::LeftAndRightCapButtonAccentStyle, {}, kDimAccent, "...."},
    {"left cap", VantraButton::LeftCapButtonStyle, kHovered, kSunken, ".#.#"},
    {"right cap", VantraButton::RightCapButtonStyle, kOn, kSunken, "#.#."},
    {"no cap", VantraButton::NoCapButtonStyle, kEnabled, kSunken, "####"},
    {"text only", VantraButton::TextOnlyStyle, kEnabled, kNothing, "...."},
    {"link", VantraButton::LinkButtonStyle, kHovered, kNothing, "...."},
    {"tab", VantraButton::LeftAndRightCapTabButtonStyle, kHovered, kGround, "..##"},
    {"left tab", VantraButton::LeftCapTabButtonStyle, kEnabled, kGround, ".###"},
    {"right tab", VantraButton::RightCapTabButtonStyle, kEnabled, kGround, "#.##"},
    {"checked tab", VantraButton::LeftAndRightCapTabButtonStyle, kOn, kPane, "..##"},
    {"checked inner tab", VantraButton::NoCapTabButtonStyle, kOn, kPane, "####"},
};

struct FrameRow
{
    const char *name;
    int corners;
    int radius;
    const char *squareCorners;
};

const FrameRow kFrames[] = {
    {"none", VantraFrame::CornerShapeNone, 8, "####"},
    {"top", VantraFrame::CornerShapeRoundTop, 8, "..##"},
    {"bottom", VantraFrame::CornerShapeRoundBottom, 8, "##.."},
    {"left", VantraFrame::CornerShapeRoundLeft, 8, ".#.#"},
    {"right", VantraFrame::CornerShapeRoundRight, 8, "#.#."},
    {"full", VantraFrame::CornerShapeRoundFull, 8, "...."},
    {"full, no radius", VantraFrame::CornerShapeRoundFull, 0, "####"},
    {"single corner", VantraFrame::CornerShapeRoundTopLeft, 8, "####"},
    {"three corners", 0x7, 8, "####"},
};

struct PaneRow
{
    const char *name;
    VantraFramePane::PaneStyle look;
    VantraFramePane::PanePart part;
    int state;
    const char *squareCorners; // of a filled pane
    bool line;
};

using Pane = VantraFramePane;

const PaneRow kPanes[] = {
    {"expanded", Pane::PaneStyleStandard, Pane::PanePartContainer, Pane::PaneStateExpanded, "....", false},
    {"expanded header", Pane::PaneStyleStandard, Pane::PanePartHeader, 0x30, "..##", false},
    {"expanded body", Pane::PaneStyleStandard, Pane::PanePartBody, Pane::PaneStateExpanded, "##..", false},
    {"expanded none", Pane::PaneStyleStandard, Pane::PanePartNone, Pane::PaneStateExpanded, "", false},
    {"before expanded", Pane::PaneStyleStandard, Pane::PanePartContainer, 0x20, "", false},
    {"header before expanded", Pane::PaneStyleStandard, Pane::PanePartHeader, 0x20, "", false},
    {"closed", Pane::PaneStyleStandard, Pane::PanePartContainer, 0, "", true},
    {"closed header", Pane::PaneStyleStandard, Pane::PanePartHeader, Pane::PaneStateExpandedBefore, "", true},
    {"closed body", Pane::PaneStyleStandard, Pane::PanePartBody, 0, "", false},
    {"closed none", Pane::PaneStyleStandard, Pane::PanePartNone, 0, "", false},
    {"list, selected", Pane::PaneStyleList, Pane::PanePartContainer, Pane::PaneStateSelected, "####", false},
    {"list header, selected", Pane::PaneStyleList, Pane::PanePartHeader, 0x01, "####", false},
    {"list body, selected", Pane::PaneStyleList, Pane::PanePartBody, 0x01, "####", false},
    {"list none, selected", Pane::PaneStyleList, Pane::PanePartNone, 0x01, "", false},
    {"list", Pane::PaneStyleList, Pane::PanePartHeader, Pane::PaneStateExpanded, "", true},
    {"list body", Pane::PaneStyleList, Pane::PanePartBody, 0, "", false},
    {"sub-pane", Pane::PaneStyleSubPane, Pane::PanePartContainer, 0x11, "", true},
    {"last sub-pane", Pane::PaneStyleSubPane, Pane::PanePartHeader, Pane::PaneStateLastPane, "", false},
    {"sub-pane body", Pane::PaneStyleSubPane, Pane::PanePartBody, 0, "", false},
};

} // namespace

class tst_VantraStylePainting : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void focusRectsAreNeverSeen();
    void bevelFillsItsShape_data() { DataRows::add(kBevels); }
    void bevelFillsItsShape();
    void checkedTabStandsOnItsBar();
    void plainOptionsLookLikeOurs();
    void frameRoundsItsCorners_data() { DataRows::add(kFrames); }
    void frameRoundsItsCorners();
    void frameTakesItsRole();
    void shapedFrameLines();
    void pane_data() { DataRows::add(kPanes); }
    void pane();
    void groupBoxHasTwoPlates();
    void checkIndicator();
    void menuCheckHasNoRing();
    void arrowsFollowTheTextColour();
    void lineEditPanel();
    void tabsAreRoundPlates();
    void textIsElidedInTheMiddle();
    void painterIsGivenBack();
    void furtherStyleSeesEverySubElement();

private:
    VantraStyle mStyle;
};

void tst_VantraStylePainting::focusRectsAreNeverSeen()
{
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_FrameFocusRect, of<QStyleOptionFocusRect>({20, 20}))),
             0.0);
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_FrameFocusRect, of<QStyleOption>({20, 20}))), 0.0);
}

void tst_VantraStylePainting::bevelFillsItsShape()
{
    const BevelRow row = DataRows::current(kBevels);
    auto option = of<VantraStyleOptionButton>({60, 20}, row.state);
    option.buttonStyle = row.look;
    const QImage image = paintControl(mStyle, QStyle::CE_PushButtonBevel, option);
    QCOMPARE(centre(image), row.fill);
    QCOMPARE(squareCorners(image), QString(row.squareCorners));

    option.backgroundButtonRole = VantraPalette::TokenBoxBackground;
    if (row.fill != kNothing) {
        const QColor token = row.state & QStyle::State_Enabled ? kPane : kDisabled;
        QCOMPARE(centre(paintControl(mStyle, QStyle::CE_PushButtonBevel, option)), token);
    }
}

void tst_VantraStylePainting::checkedTabStandsOnItsBar()
{
    auto option = of<VantraStyleOptionButton>({60, 20}, kOn);
    option.buttonStyle = VantraButton::NoCapTabButtonStyle;
    const QImage image = paintControl(mStyle, QStyle::CE_PushButtonBevel, option);
    QCOMPARE(image.pixelColor(0, 0), kGround); // the bar, outside the tab's round top
    QCOMPARE(image.pixelColor(0, 19), kPane);
    QCOMPARE(centre(image), kPane);
}

void tst_VantraStylePainting::plainOptionsLookLikeOurs()
{
    auto plain = of<QStyleOptionButton>({80, 24});
    auto ours = of<VantraStyleOptionButton>({80, 24});
    plain.text = ours.text = "Text";
    const QImage button = paintControl(mStyle, QStyle::CE_PushButton, plain);
    QCOMPARE(button, paintControl(mStyle, QStyle::CE_PushButton, ours));
    QVERIFY(ThemeFixture::countOf(kSunken, button) > 1000);
    const auto comboBox = of<QStyleOptionComboBox>({60, 20});
    QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_PanelButtonTool, comboBox)), kSunken);
}

void tst_VantraStylePainting::frameRoundsItsCorners()
{
    const FrameRow row = DataRows::current(kFrames);
    auto option = of<VantraStyleOptionFrame>({60, 20});
    option.cornerShapes = VantraFrame::CornerShapes(row.corners);
    option.cornerRadius = row.radius;
    option.frameShape = QFrame::StyledPanel;
    for (const QImage &image : {paintPrimitive(mStyle, QStyle::PE_Frame, option),
                                paintControl(mStyle, QStyle::CE_ShapedFrame, option)}) {
        QCOMPARE(squareCorners(image), QString(row.squareCorners));
        QCOMPARE(centre(image), kGround);
    }
}

void tst_VantraStylePainting::frameTakesItsRole()
{
    auto option = of<VantraStyleOptionFrame>({60, 20}, kEnabled | QStyle::State_Raised);
    QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_Frame, option)), kPane);
    option.state = kEnabled | QStyle::State_Sunken;
    QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_Frame, option)), kSunken);
    option.hudOverlay = true;
    QCOMPARE(centre(paintPrimitive(mStyle, QStyle::PE_Frame, option)), QColor(0, 0, 0, 200));

    // Unless told otherwise, a round frame is as round as it can be.
    option.hudOverlay = false;
    option.cornerShapes = VantraFrame::CornerShapeRoundFull;
    const QImage pill = paintPrimitive(mStyle, QStyle::PE_Frame, option);
    QCOMPARE(pill.pixelColor(1, 1), kNothing);
    QCOMPARE(pill.pixelColor(2, 10), kSunken);
}

void tst_VantraStylePainting::shapedFrameLines()
{
    auto option = of<QStyleOptionFrame>({21, 21});
    const auto painted = [&](QFrame::Shape inShape) {
        option.frameShape = inShape;
        return paintControl(mStyle, QStyle::CE_ShapedFrame, option);
    };
    option.lineWidth = 1;
    const QImage box = painted(QFrame::Box);
    QCOMPARE(box.pixelColor(10, 0), kLine);
    QCOMPARE(box.pixelColor(0, 10), kLine);
    QCOMPARE(centre(box), kNothing);
    const QImage horizontal = painted(QFrame::HLine);
    QCOMPARE(ThemeFixture::countOf(kLine, horizontal), 21);
    QCOMPARE(horizontal.pixelColor(0, 10), horizontal.pixelColor(20, 10));
    const QImage vertical = painted(QFrame::VLine);
    QCOMPARE(ThemeFixture::countOf(kLine, vertical), 21);
    QCOMPARE(vertical.pixelColor(10, 0), vertical.pixelColor(10, 20));
    QCOMPARE(ink(painted(QFrame::NoFrame)), 0.0);
}

void tst_VantraStylePainting::pane()
{
    const PaneRow row = DataRows::current(kPanes);
    auto option = of<VantraStyleOptionFramePane>({60, 20});
    option.paneStyle = row.look;
    option.panePart = row.part;
    option.paneState = VantraFramePane::PaneStates(row.state);
    for (const bool bordered : {false, true}) {
        option.paneBorderStyle = static_cast<VantraFramePane::PaneBorderStyle>(bordered);
        const bool selected = bordered && (row.state & VantraFramePane::PaneStateSelected);
        const QImage image = paintControl(mStyle, QStyle::CE_ShapedFrame, option);
        if (*row.squareCorners != 0) {
            QCOMPARE(centre(image), selected ? kDimAccent : kPane);
            QCOMPARE(squareCorners(image), QString(row.squareCorners));
        } else if (row.line) {
            QCOMPARE(ink(image), 60.0);
            QCOMPARE(image.pixelColor(30, 19), selected ? kPanelAccentLine : kLine);
        } else {
            QCOMPARE(ink(image), 0.0);
        }
    }
}

void tst_VantraStylePainting::groupBoxHasTwoPlates()
{
    const QImage image = paintPrimitive(mStyle, QStyle::PE_FrameGroupBox, of<QStyleOptionFrame>({60, 60}));
    QCOMPARE(image.pixelColor(30, 0), kGround);
    QCOMPARE(image.pixelColor(30, 40), kPane);
}

void tst_VantraStylePainting::checkIndicator()
{
    const auto painted = [this](QStyle::State inState) {
        return paintPrimitive(mStyle, QStyle::PE_IndicatorCheckBox, of<QStyleOption>({16, 16}, inState));
    };
    const QImage off = painted(kEnabled | QStyle::State_Off);
    QVERIFY(ink(off.copy(2, 7, 2, 2)) > 1.0); // the ring
    QCOMPARE(centre(off), kNothing);
    const QImage on = painted(kOn);
    QCOMPARE(centre(on), kAccent);
    QCOMPARE(on.pixelColor(7, 7), kAccent);
    QCOMPARE(ink(on.copy(4, 7, 2, 2)) + ink(on.copy(0, 0, 2, 2)), 0.0); // between ring and dot, and outside
    const QImage partly = painted(kEnabled | QStyle::State_NoChange);
    QCOMPARE(partly.pixelColor(7, 8), kAccent);
    QCOMPARE(partly.pixelColor(7, 7), kNothing);
    QCOMPARE(painted(kOn | QStyle::State_NoChange), on);
    QCOMPARE(centre(painted(QStyle::State_On)), QColor(141, 141, 141));
    QCOMPARE(paintPrimitive(mStyle, QStyle::PE_IndicatorRadioButton, of<QStyleOption>({16, 16}, kOn)), on);
}

void tst_VantraStylePainting::menuCheckHasNoRing()
{
    QMenu menu;
    auto option = of<QStyleOption>({20, 20}, kOn);
    option.styleObject = &menu;
    const QImage tick = paintPrimitive(mStyle, QStyle::PE_IndicatorCheckBox, option, &menu);
    QVERIFY(ink(tick) > 10.0);
    QVERIFY(ThemeFixture::countOf(kText, tick) > 5);
    QCOMPARE(ink(tick.copy(0, 0, 20, 5)), 0.0); // a ring would be here
    const auto item = of<QStyleOptionMenuItem>({20, 20}, kOn);
    QCOMPARE(paintPrimitive(mStyle, QStyle::PE_IndicatorMenuCheckMark, item, &menu), tick);

    const auto off = of<QStyleOptionMenuItem>({20, 20}, kEnabled);
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_IndicatorCheckBox, off, &menu)), 0.0);
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_IndicatorMenuCheckMark, off, &menu)), 0.0);
}

void tst_VantraStylePainting::arrowsFollowTheTextColour()
{
    auto option = of<QStyleOption>({20, 20});
    option.palette.setColor(QPalette::Active, QPalette::Text, Qt::green);
    const auto painted = [&](QStyle::PrimitiveElement inElement) {
        return paintPrimitive(mStyle, inElement, option);
    };
    const QImage down = painted(QStyle::PE_IndicatorArrowDown);
    QVERIFY(centre(down).green() > 0 && centre(down).red() == 0);
    QCOMPARE(painted(QStyle::PE_IndicatorSpinDown), down);
    QCOMPARE(painted(QStyle::PE_IndicatorSpinUp), painted(QStyle::PE_IndicatorArrowUp));
    QVERIFY(painted(QStyle::PE_IndicatorArrowLeft) != painted(QStyle::PE_IndicatorArrowRight));
    option.state |= QStyle::State_Selected; // and grow
    QVERIFY(ink(painted(QStyle::PE_IndicatorArrowDown)) > ink(down) * 1.4);
}

void tst_VantraStylePainting::lineEditPanel()
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
    QCOMPARE(ink(paintPrimitive(mStyle, QStyle::PE_PanelLineEdit, of<QStyleOption>({60, 20}, kHovered))),
             0.0);
}

void tst_VantraStylePainting::tabsAreRoundPlates()
{
    QTabBar bar;
    auto option = of<VantraStyleOptionTab>({60, 20}, kSelected);
    for (const QTabBar::Shape shape : {QTabBar::RoundedNorth, QTabBar::TriangularWest}) {
        option.shape = shape;
        const QImage image = paintControl(mStyle, QStyle::CE_TabBarTab, option, &bar);
        QCOMPARE(centre(image), kPane);
        QCOMPARE(squareCorners(image), QString("...."));
    }
    option.state = kEnabled;
    QCOMPARE(centre(paintControl(mStyle, QStyle::CE_TabBarTabShape, option, &bar)), kGround);
}

void tst_VantraStylePainting::textIsElidedInTheMiddle()
{
    Recorder style;
    const QString text = "A rather long label for it";
    auto button = of<VantraStyleOptionButton>({60, 24});
    button.text = text;
    paintControl(style, QStyle::CE_PushButton, button);
    QCOMPARE(style.textRect, QRect(12, 0, 36, 24)); // clear of the round ends
    QVERIFY(style.texts.last().startsWith('A') && style.texts.last().endsWith('t'));
    QVERIFY(style.texts.last().contains(QChar(0x2026)));
    button.rect.setWidth(600);
    paintControl(style, QStyle::CE_PushButton, button);
    QCOMPARE(style.texts.last(), text);

    // A size that was asked for is enough, to the pixel.
    for (const QString &label : {text, QString("Wi"), QString::fromUtf8("Größe – ёжик"), QString(80, 'f')}) {
        button.text = label;
        button.rect.setSize(QSize(60, 24));
        const int needed = style.sizeFromContents(QStyle::CT_PushButton, &button, QSize()).width();
        button.rect.setWidth(needed);
        button.state = kHovered; // in the widest font
        paintControl(style, QStyle::CE_PushButton, button);
        QCOMPARE(style.texts.last(), label);
    }
}

void tst_VantraStylePainting::painterIsGivenBack()
{
    auto button = of<VantraStyleOptionButton>({60, 24});
    auto toolButton = of<VantraStyleOptionToolButton>({60, 24});
    auto spinBox = of<VantraStyleOptionSpinBox>({60, 24});
    auto slider = of<VantraStyleOptionSlider>({60, 24});
    auto item = of<VantraStyleOptionViewItem>({60, 24}, kSelected);
    auto progress = of<QStyleOptionProgressBar>({60, 24});
    auto menuItem = of<QStyleOptionMenuItem>({60, 24});
    QMenu menu;
    button.text = toolButton.text = spinBox.displayText = item.text = menuItem.text = "Text";
    slider.subControls = QStyle::SC_All;
    QImage image(60, 24, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const QPen pen(Qt::magenta, 3.0);
    const QBrush brush(Qt::cyan, Qt::Dense3Pattern);
    QFont font;
    font.setPixelSize(7);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setFont(font);
    painter.setClipRect(QRect(1, 1, 50, 20));

    mStyle.drawControl(QStyle::CE_PushButton, &button, &painter);
    mStyle.drawControl(QStyle::CE_ToolButtonLabel, &toolButton, &painter);
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

    mStyle.drawPrimitive(QStyle::PE_IndicatorItemViewItemDrop, &item, &painter); // leaves its pen behind
    QVERIFY(painter.pen().isCosmetic() && painter.pen().color() == kLine);
}

void tst_VantraStylePainting::furtherStyleSeesEverySubElement()
{
    Restyler style;
    auto toolButton = of<QStyleOptionToolButton>({24, 24});
    toolButton.subControls = QStyle::SC_ToolButton;
    auto scrollBar = of<QStyleOptionSlider>({60, 8});
    scrollBar.subControls = QStyle::SC_ScrollBarSlider;
    auto item = of<QStyleOptionViewItem>({60, 24}, kEnabled | QStyle::State_Children);
    item.features = QStyleOptionViewItem::HasCheckIndicator;
    QMenu menu;
    auto menuItem = of<QStyleOptionMenuItem>({60, 24});
    menuItem.menuItemType = QStyleOptionMenuItem::SubMenu;
    menuItem.checkType = QStyleOptionMenuItem::Exclusive;

    paintControl(style, QStyle::CE_PushButton, of<QStyleOptionButton>({60, 24}));
    paintControl(style, QStyle::CE_ProgressBar, of<QStyleOptionProgressBar>({60, 24}));
    paintControl(style, QStyle::CE_TabBarTab, of<QStyleOptionTab>({60, 24}));
    paintControl(style, QStyle::CE_ItemViewItem, item);
    paintControl(style, QStyle::CE_MenuItem, menuItem, &menu);
    paintPrimitive(style, QStyle::PE_IndicatorBranch, item);
    paintComplex(style, QStyle::CC_ComboBox, of<QStyleOptionComboBox>({60, 24}));
    paintComplex(style, QStyle::CC_ToolButton, toolButton);
    paintComplex(style, QStyle::CC_ScrollBar, scrollBar);
    const QSet<int> controls{QStyle::CE_PushButtonBevel,   QStyle::CE_PushButtonLabel,
                             QStyle::CE_ProgressBarGroove, QStyle::CE_ProgressBarContents,
                             QStyle::CE_TabBarTabShape,    QStyle::CE_TabBarTabLabel,
                             QStyle::CE_ToolButtonLabel,   QStyle::CE_ScrollBarSlider};
    const QSet<int> primitives{QStyle::PE_PanelItemViewItem, QStyle::PE_IndicatorItemViewItemCheck,
                               QStyle::PE_IndicatorMenuCheckMark, QStyle::PE_IndicatorArrowRight,
                               QStyle::PE_PanelButtonTool};
    const QSet<int> rects{QStyle::SE_PushButtonContents, QStyle::SE_ProgressBarGroove,
                          QStyle::SE_ProgressBarContents, QStyle::SE_ItemViewItemCheckIndicator};
    QCOMPARE(controls - style.controls, QSet<int>());
    QCOMPARE(primitives - style.primitives, QSet<int>());
    QCOMPARE(rects - style.rects, QSet<int>());
}

FATAL_TEST_MAIN(tst_VantraStylePainting)

#include "tst_VantraStylePainting.moc"

#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QMetaEnum>
#include <QtWidgets/QtWidgets>

#include <memory>
#include <new>

using std::chrono::milliseconds;

// The main window's own separators go by these names.
class QDockSeparator : public QWidget
{
    Q_OBJECT
};

namespace {

// Opens the clock, and counts what the style sees of the widgets that it watches.
class OpenStyle : public VantraStyle
{
public:
    using VantraStyle::mAnimationTimer;
    using VantraStyle::onAnimationUpdate;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        ++seenEvents;
        return VantraStyle::eventFilter(watched, event);
    }

    int seenEvents = 0;
};

class PaintCounter : public QWidget
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent *) override { ++paints; }
};

QPalette fusionPalette()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    QPalette palette = fusion->standardPalette();
    fusion->polish(palette);
    return palette;
}

template <typename Widget>
QWidget *make()
{
    return new Widget;
}

} // namespace

using Factory = QWidget *(*)();
Q_DECLARE_METATYPE(Factory)

class tst_VantraStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void themeIsTheOneThatEverythingReads();

    void paletteTakesTheThemesColours_data();
    void paletteTakesTheThemesColours();
    void otherPaletteRolesStayFusions();
    void applicationDragsLater();

    void polishPreparesWidgets_data();
    void polishPreparesWidgets();
    void menusLoseTheirFrame();
    void scrollAreasShowTheirParents();
    void unpolishTakesHoverFromSliders();
    void unpolishLeavesTheRestInPlace();

    void hintsOfTheDesign_data();
    void hintsOfTheDesign();
    void otherHintsAreFusions();

    void clockStartsAtZeroAndGrows();
    void clockOfNoWidgetStands();
    void destroyedWidgetLeavesTheClock();
    void silentWidgetLeavesTheClock();
    void askingKeepsAWidgetOnTheClock();
    void tickRepaintsAnimatedWidgetsAlone();
    void unpolishEndsTheWatch();
    void busyProgressBarMovesByItself();

private:
    OpenStyle mStyle;
};

void tst_VantraStyle::themeIsTheOneThatEverythingReads()
{
    QCOMPARE(&VantraStyle::theme(), &VantraStyleTheme::instance());
}

void tst_VantraStyle::paletteTakesTheThemesColours_data()
{
    QTest::addColumn<QPalette::ColorRole>("role");
    QTest::addColumn<QColor>("normal");
    QTest::addColumn<QColor>("disabled");

    const QColor ground(36, 36, 36);
    const QColor text(170, 170, 170);
    const QColor dim(115, 115, 115);
    const QColor accented(53, 56, 61);
    QTest::newRow("Window") << QPalette::Window << ground << ground;
    QTest::newRow("Base") << QPalette::Base << ground << ground;
    QTest::newRow("Highlight") << QPalette::Highlight << accented << accented;
    QTest::newRow("Text") << QPalette::Text << text << dim;
    QTest::newRow("HighlightedText") << QPalette::HighlightedText << QColor(238, 238, 238) << dim;
    QTest::newRow("PlaceholderText") << QPalette::PlaceholderText << text << dim;
    QTest::newRow("WindowText") << QPalette::WindowText << text << dim;
    QTest::newRow("Button") << QPalette::Button << QColor(28, 28, 28) << QColor(35, 35, 35);
    QTest::newRow("ButtonText") << QPalette::ButtonText << text << dim;
}

void tst_VantraStyle::paletteTakesTheThemesColours()
{
    QFETCH(const QPalette::ColorRole, role);
    QFETCH(const QColor, normal);
    QPalette palette(Qt::magenta);
    mStyle.polish(palette);
    QCOMPARE(palette.color(QPalette::Active, role), normal);
    QCOMPARE(palette.color(QPalette::Inactive, role), normal);
    QTEST(palette.color(QPalette::Disabled, role), "disabled");
}

void tst_VantraStyle::otherPaletteRolesStayFusions()
{
    const QPalette fusion = fusionPalette();
    QPalette palette = fusion;
    mStyle.polish(palette);
    for (const QPalette::ColorRole role :
         {QPalette::Shadow, QPalette::Light, QPalette::Dark, QPalette::Mid, QPalette::Midlight,
          QPalette::Link, QPalette::LinkVisited, QPalette::AlternateBase, QPalette::BrightText,
          QPalette::ToolTipBase, QPalette::ToolTipText}) {
        for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
            QCOMPARE(palette.color(group, role), fusion.color(group, role));
        }
    }
}

void tst_VantraStyle::applicationDragsLater()
{
    QApplication::setStartDragTime(1);
    QApplication::setStartDragDistance(2);
    mStyle.polish(qApp);
    QCOMPARE(QApplication::startDragTime(), 100);
    QCOMPARE(QApplication::startDragDistance(), 20);
}

void tst_VantraStyle::polishPreparesWidgets_data()
{
    QTest::addColumn<Factory>("factory");
    QTest::addColumn<bool>("hover");
    QTest::addColumn<bool>("tracking");

    const auto hoverable = [](const char *inName, Factory inFactory) {
        QTest::newRow(inName) << inFactory << true << false;
    };
    hoverable("push button", make<QPushButton>);
    hoverable("tool button", make<QToolButton>);
    hoverable("progress bar", make<QProgressBar>);
    hoverable("scroll bar", make<QScrollBar>);
    hoverable("splitter handle",
              []() -> QWidget * { return new QSplitterHandle(Qt::Vertical, new QSplitter); });
    hoverable("slider", make<QSlider>);
    hoverable("dial", make<QDial>);
    hoverable("spin box", make<QSpinBox>);
    hoverable("line edit", make<QLineEdit>);
    hoverable("combo box", make<QComboBox>);
    hoverable("dock separator", make<QDockSeparator>);
    QTest::newRow("list") << Factory(make<QListView>) << false << true;
    QTest::newRow("tree") << Factory(make<QTreeView>) << false << true;
    QTest::newRow("label") << Factory(make<QLabel>) << false << false;
    QTest::newRow("text edit") << Factory(make<QTextEdit>) << false << false;
}

void tst_VantraStyle::polishPreparesWidgets()
{
    QFETCH(const Factory, factory);
    QFETCH(const bool, hover);
    QWidget *widget = factory();
    const std::unique_ptr<QWidget> owner(widget->parentWidget() != nullptr ? widget->window() : widget);
    // The style that the application began with mustn't have done the work.
    widget->setAttribute(Qt::WA_Hover, false);
    widget->setAttribute(Qt::WA_MouseTracking, false);
    widget->setAttribute(Qt::WA_OpaquePaintEvent, true);
    mStyle.polish(widget);
    QCOMPARE(widget->testAttribute(Qt::WA_Hover), hover);
    QTEST(widget->testAttribute(Qt::WA_MouseTracking), "tracking");
    QCOMPARE(widget->testAttribute(Qt::WA_OpaquePaintEvent), !hover);
}

void tst_VantraStyle::menusLoseTheirFrame()
{
    QMenu menu;
    mStyle.polish(&menu);
    QVERIFY(menu.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
    QCOMPARE(menu.windowType(), Qt::Popup);
    QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
}

void tst_VantraStyle::scrollAreasShowTheirParents()
{
    QScrollArea area;
    auto *content = new QWidget;
    auto *deep = new QWidget(content);
    area.setWidget(content); // switches auto fill on
    deep->setAutoFillBackground(true);
    mStyle.polish(&area);
    QVERIFY(!area.viewport()->autoFillBackground());
    QVERIFY(!content->autoFillBackground());
    QVERIFY(!deep->autoFillBackground());

    QListView list; // polished as an item view, and as a scroll area too
    list.viewport()->setAutoFillBackground(true);
    mStyle.polish(&list);
    QVERIFY(!list.viewport()->autoFillBackground());
}

void tst_VantraStyle::unpolishTakesHoverFromSliders()
{
    QSlider slider;
    mStyle.polish(&slider);
    mStyle.unpolish(&slider);
    QVERIFY(!slider.testAttribute(Qt::WA_Hover));
}

void tst_VantraStyle::unpolishLeavesTheRestInPlace()
{
    QLineEdit lineEdit;
    QListView list;
    QMenu menu;
    for (QWidget *widget : std::initializer_list<QWidget *>{&lineEdit, &list, &menu}) {
        mStyle.polish(widget);
        mStyle.unpolish(widget);
    }
    QVERIFY(lineEdit.testAttribute(Qt::WA_Hover));
    QVERIFY(list.testAttribute(Qt::WA_MouseTracking));
    QVERIFY(!list.viewport()->autoFillBackground());
    QVERIFY(menu.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(menu.windowFlags().testFlag(Qt::FramelessWindowHint));
}

void tst_VantraStyle::hintsOfTheDesign_data()
{
    QTest::addColumn<QStyle::StyleHint>("hint");
    QTest::addColumn<int>("answer");
    QTest::newRow("etched text") << QStyle::SH_EtchDisabledText << 0;
    QTest::newRow("dithered text") << QStyle::SH_DitherDisabledText << 0;
    QTest::newRow("alt key") << QStyle::SH_MenuBar_AltKeyNavigation << 0;
    QTest::newRow("expanding") << QStyle::SH_ListViewExpand_SelectMouseType << 2;
    QTest::newRow("popup delay") << QStyle::SH_ToolButton_PopupDelay << 300;
    QTest::newRow("transient scroll bars") << QStyle::SH_ScrollBar_Transient << 0;
}

void tst_VantraStyle::hintsOfTheDesign()
{
    QFETCH(const QStyle::StyleHint, hint);
    QTEST(mStyle.styleHint(hint), "answer");
    QToolButton button;
    QStyleOptionToolButton option;
    QTEST(mStyle.styleHint(hint, &option, &button), "answer");
}

void tst_VantraStyle::otherHintsAreFusions()
{
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
    const QMetaEnum hints = QMetaEnum::fromType<QStyle::StyleHint>();
    QSet<int> own{QStyle::SH_EtchDisabledText,         QStyle::SH_DitherDisabledText,
                  QStyle::SH_MenuBar_AltKeyNavigation, QStyle::SH_ListViewExpand_SelectMouseType,
                  QStyle::SH_ToolButton_PopupDelay,    QStyle::SH_ScrollBar_Transient};
    for (int index = 0; index < hints.keyCount(); ++index) {
        const auto hint = static_cast<QStyle::StyleHint>(hints.value(index));
        if (!own.contains(hint)) {
            QVERIFY2(mStyle.styleHint(hint) == fusion->styleHint(hint), hints.key(index));
        }
    }
}

void tst_VantraStyle::clockStartsAtZeroAndGrows()
{
    QWidget widget;
    QCOMPARE(mStyle.animationTime(&widget), milliseconds(0));
    QTRY_VERIFY(mStyle.animationTime(&widget) >= milliseconds(3));
    const milliseconds first = mStyle.animationTime(&widget);
    QTRY_VERIFY(mStyle.animationTime(&widget) > first);
    QWidget other;
    QCOMPARE(mStyle.animationTime(&other), milliseconds(0));
}

void tst_VantraStyle::clockOfNoWidgetStands()
{
    QCOMPARE(mStyle.animationTime(nullptr), milliseconds(0));
    QTest::qWait(3);
    QCOMPARE(mStyle.animationTime(nullptr), milliseconds(0));
}

void tst_VantraStyle::destroyedWidgetLeavesTheClock()
{
    // A later widget at the same address starts from 0, so nothing of the first one is left.
    alignas(QWidget) std::byte room[sizeof(QWidget)];
    auto *widget = new (room) QWidget;
    mStyle.animationTime(widget);
    QTRY_VERIFY(mStyle.animationTime(widget) >= milliseconds(3));
    widget->~QWidget();
    mStyle.onAnimationUpdate();
    widget = new (room) QWidget;
    QCOMPARE(mStyle.animationTime(widget), milliseconds(0));
    widget->~QWidget();
}

void tst_VantraStyle::silentWidgetLeavesTheClock()
{
    OpenStyle style;
    style.mAnimationTimer.stop();
    style.mAnimationTimer.setInterval(0); // whoever was silent for a whole millisecond goes
    QWidget widget;
    style.animationTime(&widget);
    QTRY_VERIFY(style.animationTime(&widget) >= milliseconds(3));
    QTest::qWait(3);
    style.onAnimationUpdate();
    QCOMPARE(style.animationTime(&widget), milliseconds(0));
}

void tst_VantraStyle::askingKeepsAWidgetOnTheClock()
{
    OpenStyle style;
    style.mAnimationTimer.stop();
    style.mAnimationTimer.setInterval(1); // half a second of silence is allowed
    QWidget widget;
    style.animationTime(&widget);
    QTest::qWait(3);
    style.onAnimationUpdate();
    QVERIFY(style.animationTime(&widget) >= milliseconds(3));
}

void tst_VantraStyle::tickRepaintsAnimatedWidgetsAlone()
{
    PaintCounter animated;
    PaintCounter still;
    for (PaintCounter *widget : {&animated, &still}) {
        widget->show();
        QVERIFY(QTest::qWaitForWindowExposed(widget));
        QTRY_VERIFY(widget->paints > 0);
        widget->paints = 0;
    }
    mStyle.animationTime(&animated);
    QTRY_VERIFY(animated.paints >= 3); // by the timer, with no further question
    QCOMPARE(still.paints, 0);
    QCOMPARE(mStyle.mAnimationTimer.interval(), 33);
}

void tst_VantraStyle::unpolishEndsTheWatch()
{
    QWidget widget;
    QEvent event(QEvent::User);
    mStyle.animationTime(&widget);
    mStyle.seenEvents = 0;
    QCoreApplication::sendEvent(&widget, &event);
    QCOMPARE(mStyle.seenEvents, 1);
    QTRY_VERIFY(mStyle.animationTime(&widget) >= milliseconds(3));
    mStyle.unpolish(&widget);
    mStyle.seenEvents = 0;
    QCoreApplication::sendEvent(&widget, &event);
    QCOMPARE(mStyle.seenEvents, 0);
    QCOMPARE(mStyle.animationTime(&widget), milliseconds(0));
}

void tst_VantraStyle::busyProgressBarMovesByItself()
{
    QProgressBar bar;
    bar.setStyle(&mStyle);
    bar.setRange(0, 0);
    bar.resize(200, 8);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    const auto accent = [&bar] { return ThemeFixture::countOf(QColor(4, 122, 255), bar.grab().toImage()); };
    const int first = accent();
    QTRY_VERIFY(accent() > first + 100);
}

FATAL_TEST_MAIN(tst_VantraStyle)

#include "tst_VantraStyle.moc"

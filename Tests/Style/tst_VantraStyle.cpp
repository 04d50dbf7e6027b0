#include "Style/VantraStyle.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"

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

} // namespace

class tst_VantraStyle : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }

    void paletteTakesTheThemesColours()
    {
        QPalette palette(Qt::magenta);
        mStyle.polish(palette);
        const auto takes = [&](QPalette::ColorRole inRole, const QColor &inNormal, const QColor &inDisabled) {
            return palette.color(QPalette::Active, inRole) == inNormal &&
                   palette.color(QPalette::Inactive, inRole) == inNormal &&
                   palette.color(QPalette::Disabled, inRole) == inDisabled;
        };
        const QColor dim(115, 115, 115);
        QVERIFY(takes(QPalette::Window, QColor(36, 36, 36), QColor(36, 36, 36)));
        QVERIFY(takes(QPalette::Text, QColor(170, 170, 170), dim));
        QVERIFY(takes(QPalette::HighlightedText, QColor(238, 238, 238), dim));
        QVERIFY(takes(QPalette::Button, QColor(28, 28, 28), QColor(35, 35, 35)));
        QVERIFY(takes(QPalette::ButtonText, QColor(170, 170, 170), dim));
    }

    void polishPreparesWidgets()
    {
        QPushButton button;
        QSlider slider;
        QSplitter splitter;
        QSplitterHandle handle(Qt::Vertical, &splitter);
        QDockSeparator separator;
        QListView list;
        QLabel label;
        for (QWidget *widget :
             std::initializer_list<QWidget *>{&button, &slider, &handle, &separator, &list, &label}) {
            const bool hover = widget != &list && widget != &label;
            // The style that the application began with mustn't have done the work.
            widget->setAttribute(Qt::WA_Hover, false);
            widget->setAttribute(Qt::WA_MouseTracking, false);
            widget->setAttribute(Qt::WA_OpaquePaintEvent, true);
            mStyle.polish(widget);
            QCOMPARE(widget->testAttribute(Qt::WA_Hover), hover);
            QCOMPARE(widget->testAttribute(Qt::WA_MouseTracking), widget == &list);
            QCOMPARE(widget->testAttribute(Qt::WA_OpaquePaintEvent), !hover);
        }
        mStyle.unpolish(&slider);
        QVERIFY(!slider.testAttribute(Qt::WA_Hover));
    }

    void menuOpenedByShowCloses_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("with a parent") << true;
        QTest::newRow("without a parent") << false;
    }

    // Unlike popup(), show() creates the window before the menu is polished.
    void menuOpenedByShowCloses()
    {
        QFETCH(const bool, hasParent);
        QWidget window;
        window.resize(300, 200);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QMenu menu(hasParent ? &window : nullptr);
        menu.setStyle(&mStyle);
        menu.addAction("Item");
        menu.show();
        QVERIFY(QTest::qWaitForWindowExposed(&menu));
        QVERIFY(menu.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
        QVERIFY(menu.windowHandle()->flags().testFlag(Qt::NoDropShadowWindowHint));
        QTest::keyClick(&menu, Qt::Key_Escape);
        QVERIFY(!menu.isVisible());
        menu.show();
        QVERIFY(menu.close());
        QVERIFY(!menu.isVisible());
        menu.show();
        menu.move(window.geometry().bottomRight() + QPoint(50, 50));
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
        QVERIFY(!menu.isVisible());
    }

    void menuKeepsTheDirectionOfItsParent()
    {
        QWidget window;
        window.setLayoutDirection(Qt::RightToLeft);
        QMenu menu(&window);
        menu.setStyle(&mStyle);
        menu.addAction("Item");
        menu.popup(QPoint(20, 20));
        QCOMPARE(menu.layoutDirection(), Qt::RightToLeft);
    }

    void scrollAreasShowTheirParents()
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

    void unpolishLeavesWhatPolishHasDone()
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
        QVERIFY(menu.windowFlags().testFlag(Qt::NoDropShadowWindowHint));
        QCOMPARE(menu.windowType(), Qt::Popup);
    }

    void clockStartsAtZeroAndGrows()
    {
        QWidget widget;
        QCOMPARE(mStyle.animationTime(&widget), milliseconds(0));
        QTRY_VERIFY(mStyle.animationTime(&widget) >= milliseconds(3));
        const milliseconds first = mStyle.animationTime(&widget);
        QTRY_VERIFY(mStyle.animationTime(&widget) > first);
        QWidget other;
        QCOMPARE(mStyle.animationTime(&other), milliseconds(0));
        QCOMPARE(mStyle.animationTime(nullptr), milliseconds(0));
    }

    void destroyedWidgetLeavesTheClock()
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

    void silentWidgetLeavesTheClock()
    {
        OpenStyle style;
        style.mAnimationTimer.stop();
        QWidget widget;
        style.animationTime(&widget);
        QTRY_VERIFY(style.animationTime(&widget) >= milliseconds(3));
        style.mAnimationTimer.setInterval(10); // five seconds of silence are allowed
        style.onAnimationUpdate();
        QVERIFY(style.animationTime(&widget) >= milliseconds(3));
        style.mAnimationTimer.setInterval(0); // whoever was silent for a whole millisecond goes
        QElapsedTimer silence;
        silence.start();
        QTRY_VERIFY(silence.elapsed() >= 3);
        style.onAnimationUpdate();
        QCOMPARE(style.animationTime(&widget), milliseconds(0));
    }

    void tickRepaintsAnimatedWidgetsAlone()
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

    void unpolishEndsTheWatch()
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

private:
    OpenStyle mStyle;
};

FATAL_TEST_MAIN(tst_VantraStyle)
#include "tst_VantraStyle.moc"

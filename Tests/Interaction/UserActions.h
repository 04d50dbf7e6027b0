#pragma once

// What a user does to a widget, as events. Mouse events go to the window, which finds the widget under them,
// so that a part hidden by another counts as lost. Positions are the widget's own.

#include <QtTest/QtTest>
#include <QtWidgets/QtWidgets>

#include <functional>

namespace UserActions {

using Make = std::function<QWidget *()>;
using Do = std::function<void(QWidget *)>;

inline QPoint inWindow(QWidget *inWidget, const QPoint &inPosition)
{
    return inWidget->mapTo(inWidget->window(), inPosition);
}

inline void drag(QWidget *inWidget, const QPoint &inFrom, const QPoint &inWay)
{
    QWindow *window = inWidget->window()->windowHandle();
    const QPoint from = inWindow(inWidget, inFrom); // the widget may move
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 4; ++step) {
        QTest::mouseMove(window, from + inWay * step / 4);
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, from + inWay);
}

inline void click(QWidget *inWidget, const QPoint &inPosition)
{
    drag(inWidget, inPosition, QPoint(0, 0));
}

// One notch is 120; positive is away from the user.
inline void wheel(QWidget *inWidget, int inNotches)
{
    const QPointF position(inWidget->rect().center());
    QWheelEvent event(position, inWidget->mapToGlobal(position), QPoint(), QPoint(0, inNotches * 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(inWidget, &event);
}

inline Do pressing(Qt::Key inKey, Qt::KeyboardModifiers inModifiers = {})
{
    return [=](QWidget *inWidget) { QTest::keyClick(inWidget, inKey, inModifiers); };
}

inline Do typing(const char *inText)
{
    return [=](QWidget *inWidget) { QTest::keyClicks(inWidget, inText); };
}

inline Do turning(int inNotches)
{
    return [=](QWidget *inWidget) { wheel(inWidget, inNotches); };
}

// A place from the left, or from the right when negative, and likewise from the top.
inline Do clicking(int inX, int inY)
{
    return [=](QWidget *inWidget) {
        click(inWidget,
              QPoint(inX < 0 ? inWidget->width() + inX : inX, inY < 0 ? inWidget->height() + inY : inY));
    };
}

inline Do after(const Do &inFirst, const Do &inSecond)
{
    return [=](QWidget *inWidget) {
        inFirst(inWidget);
        inSecond(inWidget);
    };
}

inline bool showActive(QWidget &ioWindow)
{
    ioWindow.move(100, 100);
    ioWindow.show();
    ioWindow.activateWindow();
    return QTest::qWaitForWindowActive(&ioWindow);
}

// Opens the context menu of a field. Returns null if none opened.
inline QMenu *openContextMenu(QWidget *inField)
{
    const QPoint position = inField->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, position, inField->mapToGlobal(position));
    QCoreApplication::sendEvent(inField, &event);
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// Opens a menu that the application gave to a widget. The widget owns the menu.
inline QMenu *openMenuOf(QWidget *ioWidget)
{
    auto *menu = new QMenu(ioWidget);
    menu->addAction(QStringLiteral("Entry"));
    menu->popup(QPoint());
    return menu;
}

// Long enough that what follows is no part of a double click.
inline void slowly()
{
    QTest::qWait(QApplication::doubleClickInterval() + 50);
}

inline QStringList hundredItems()
{
    QStringList items;
    for (int row = 0; row < 100; ++row) {
        items << QStringLiteral("item%1").arg(row);
    }
    return items;
}

} // namespace UserActions

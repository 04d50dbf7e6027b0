#include "Controls/VantraMenu.h"
#include "Controls/VantraMenuBar.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtTest/QtTest>
#include <QtWidgets/QApplication>

class tst_VantraMenu : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void clickOnASubmenuItem_data();
    void clickOnASubmenuItem();
    void triggerMayDeleteTheMenu();
    void overlayIsToldOnce();
    void menuBarIsNeverNative();
};

void tst_VantraMenu::clickOnASubmenuItem_data()
{
    QTest::addColumn<bool>("triggerEnabled");
    QTest::addColumn<bool>("itemEnabled");
    QTest::addColumn<bool>("onTheMenu");
    QTest::addColumn<int>("triggered");
    QTest::addColumn<bool>("staysOpen");
    QTest::newRow("as in any menu") << false << true << true << 0 << true;
    QTest::newRow("triggers and closes") << true << true << true << 1 << false;
    QTest::newRow("disabled item") << true << false << true << 0 << true;
    QTest::newRow("released outside") << true << true << false << 0 << true;
}

void tst_VantraMenu::clickOnASubmenuItem()
{
    QFETCH(const bool, triggerEnabled);
    QFETCH(const bool, itemEnabled);
    QFETCH(const bool, onTheMenu);
    QFETCH(const int, triggered);
    QFETCH(const bool, staysOpen);
    VantraMenu parent;
    auto *menu = new VantraMenu(QStringLiteral("Presets"), &parent);
    menu->setSubMenuTriggerEnabled(triggerEnabled);
    parent.addMenu(menu);
    auto *submenu = new QMenu(QStringLiteral("Favourites"), menu);
    submenu->addAction(QStringLiteral("One"));
    QAction *item = menu->addMenu(submenu);
    parent.popup(QPoint(20, 20));
    menu->popup(QPoint(200, 20));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    QSignalSpy spy(item, &QAction::triggered);
    menu->setActiveAction(item);
    item->setEnabled(itemEnabled);
    const QPoint inside = menu->actionGeometry(item).center();
    const QPointF position = onTheMenu ? QPointF(inside) : QPointF(-150, 400);
    QMouseEvent release(QEvent::MouseButtonRelease, position, menu->mapToGlobal(position), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    menu->mouseReleaseEvent(&release);
    QCOMPARE(spy.count(), triggered);
    QCOMPARE(menu->isVisible(), staysOpen);
    QCOMPARE(parent.isVisible(), staysOpen);
}

void tst_VantraMenu::triggerMayDeleteTheMenu()
{
    QPointer<VantraMenu> menu(new VantraMenu);
    menu->setSubMenuTriggerEnabled(true);
    QAction *item = menu->addMenu(new QMenu(QStringLiteral("More"), menu));
    menu->popup(QPoint(20, 20));
    QVERIFY(QTest::qWaitForWindowExposed(menu));
    menu->setActiveAction(item);
    connect(item, &QAction::triggered, qApp, [menu] { menu->deleteLater(); });
    const QPointF position(menu->actionGeometry(item).center());
    QMouseEvent release(QEvent::MouseButtonRelease, position, menu->mapToGlobal(position), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    menu->mouseReleaseEvent(&release);
    QTRY_VERIFY(menu.isNull());
}

void tst_VantraMenu::overlayIsToldOnce()
{
    VantraMenu menu;
    QSignalSpy spy(&menu, &VantraMenu::hudOverlayChanged);
    menu.setProperty("hudOverlay", true);
    menu.setHudOverlay(true);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toBool(), true);
}

void tst_VantraMenu::menuBarIsNeverNative()
{
    VantraMenuBar menuBar;
    QVERIFY(!menuBar.isNativeMenuBar());
    QCOMPARE(menuBar.font().pointSize(), VantraFont::fontPlusSize());
    const QFontMetrics metrics(menuBar.font());
    QVERIFY(menuBar.minimumHeight() > metrics.height());
}

QTEST_MAIN(tst_VantraMenu)
#include "tst_VantraMenu.moc"

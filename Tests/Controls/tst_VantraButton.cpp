#include "Controls/VantraButton.h"

#include "Controls/VantraLabel.h"
#include "Style/VantraStyle.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QVBoxLayout>

#include <memory>

using B = VantraButton;

namespace {

// Gives out what it tells the style.
class OpenButton : public VantraButton
{
public:
    using VantraButton::initStyleOption;
    using VantraButton::VantraButton;
};

// A shown window with a button in it, with or without a layout; it counts the presses that reach it.
class Scene : public QWidget
{
public:
    explicit Scene(bool inWithLayout = false) : button(new OpenButton(this))
    {
        resize(300, 160);
        button->setText(QStringLiteral("Inbox"));
        if (inWithLayout) {
            auto *layout = new QVBoxLayout(this);
            layout->setContentsMargins(60, 40, 60, 40);
            layout->addWidget(button);
        } else {
            button->setGeometry(60, 60, 120, 24);
        }
        show();
    }

    // Null without one.
    VantraLabel *badge() const { return findChild<VantraLabel *>(QString(), Qt::FindDirectChildrenOnly); }

    // Where the badge stands when it follows its button.
    QPoint badgePosition() const
    {
        return button->geometry().topRight() - QPoint(badge()->width() / 2, badge()->height() / 3);
    }

    void enableBadge(int inCount)
    {
        button->setNotificationBadgeEnabled(true);
        button->setNotificationBadgeCount(inCount);
    }

    OpenButton *button;
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};

// The second press of a double click alone, which QTest has no word for.
void sendDoublePress(QWidget *inWidget)
{
    QMouseEvent press(QEvent::MouseButtonDblClick, QPointF(5, 5), inWidget->mapToGlobal(QPointF(5, 5)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(inWidget, &press);
}

QString descriptionOf(QWidget *inWidget)
{
    return QAccessible::queryAccessibleInterface(inWidget)->text(QAccessible::Description);
}

} // namespace

FATAL_CASE(badgeWithoutParent)
{
    VantraFont::loadApplicationFonts();
    VantraButton button;
    button.setNotificationBadgeEnabled(true);
}

class tst_VantraButton : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ThemeFixture::load());
        QApplication::setStyle(new VantraStyle);
    }
    void recordTellsTheStyleEverything();
    void layoutRectangleFollowsTheStyle();
    void hintBeforeAnyLayoutIsSane();
    void disabledButtonLetsTheMouseThrough();
    void doubleClickPressesAgain();
    void buttonMayBeDeletedByItsSecondPress();
    void tabGroupCountsVisibleButtons_data();
    void tabGroupCountsVisibleButtons();
    void dragPictureIsTheButtonAlone();
    void badgeTellsEachChangeOnce();
    void badgeFollowsItsButton_data();
    void badgeFollowsItsButton();
    void badgeHidesWithItsButton();
    void badgeShowsTheWholeNumber();
    void badgeLetsClicksReachTheButton();
    void badgeMovesToANewParent();
    void badgeIsAboveItsSiblings();
    void badgeIsNoPaneOfASplitter();
    void badgeEndsWithItsParent();
    void badgeOfADeletedButtonIsHidden();
    void descriptionTellsTheCount();
    void accessibilityIsAButtons();
    void badgeNeedsAParent();
};

void tst_VantraButton::recordTellsTheStyleEverything()
{
    OpenButton button;
    button.setText(QStringLiteral("Crop & rotate"));
    button.setButtonStyle(B::LinkButtonStyle);
    button.setAlignment(Qt::AlignRight);
    button.setProperty("backgroundButtonRole", QVariant::fromValue(VantraPalette::AccentButtonBackground));
    VantraStyleOptionButton record;
    button.initStyleOption(&record);
    QCOMPARE(record.text, QStringLiteral("Crop && rotate"));
    QCOMPARE(record.buttonStyle, B::LinkButtonStyle);
    QCOMPARE(record.alignment, Qt::AlignRight);
    QCOMPARE(record.backgroundButtonRole, VantraPalette::AccentButtonBackground);
    QCOMPARE(record.font, VantraFont::mainFont());
    QStyleOptionButton plain;
    button.initStyleOption(&plain);
    QCOMPARE(plain.text, QStringLiteral("Crop && rotate"));
    button.initStyleOption(nullptr);
}

void tst_VantraButton::layoutRectangleFollowsTheStyle()
{
    VantraButton button;
    QVERIFY(button.testAttribute(Qt::WA_LayoutUsesWidgetRect));
    button.setButtonStyle(B::TextOnlyStyle);
    QVERIFY(button.testAttribute(Qt::WA_LayoutUsesWidgetRect));
    button.setFont(VantraFont::largeFont());
    button.setButtonStyle(B::NoCapButtonStyle);
    QVERIFY(!button.testAttribute(Qt::WA_LayoutUsesWidgetRect));
    QCOMPARE(button.font(), VantraFont::mainFont());
    button.setButtonStyle(B::TextOnlyStyle);
    QVERIFY(!button.testAttribute(Qt::WA_LayoutUsesWidgetRect));
}

void tst_VantraButton::hintBeforeAnyLayoutIsSane()
{
    QWidget parent;
    VantraButton child(&parent);
    VantraButton free;
    for (VantraButton *button : {&child, &free}) {
        button->setText(QStringLiteral("Save & close"));
    }
    QCOMPARE(free.sizeHint(), child.sizeHint());
    QVERIFY(free.sizeHint().width() < 200);
    free.show();
    QCOMPARE(free.height(), free.sizeHint().height());
}

void tst_VantraButton::disabledButtonLetsTheMouseThrough()
{
    Scene scene;
    QSignalSpy clicked(scene.button, &QPushButton::clicked);
    const QPoint middle = scene.button->geometry().center();
    scene.button->setEnabled(false);
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, middle);
    QCOMPARE(scene.presses, 1);
    QCOMPARE(clicked.count(), 0);
    scene.button->setEnabled(true);
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, middle);
    QCOMPARE(scene.presses, 1);
    QCOMPARE(clicked.count(), 1);
}

void tst_VantraButton::doubleClickPressesAgain()
{
    Scene scene;
    QStringList log;
    connect(scene.button, &QPushButton::pressed, this, [&log] { log.append("pressed"); });
    connect(scene.button, &QPushButton::clicked, this, [&log] { log.append("clicked"); });
    connect(scene.button, &VantraButton::buttonDoubleClicked, this, [&log] { log.append("double"); });
    QTest::mouseClick(scene.button, Qt::LeftButton);
    sendDoublePress(scene.button);
    QTest::mouseRelease(scene.button, Qt::LeftButton);
    QCOMPARE(log, QStringList({"pressed", "clicked", "pressed", "double", "clicked"}));
}

void tst_VantraButton::buttonMayBeDeletedByItsSecondPress()
{
    Scene scene;
    const QPointer<VantraButton> button(scene.button);
    connect(scene.button, &QPushButton::pressed, qApp, [button] { delete button.data(); });
    sendDoublePress(scene.button);
    QVERIFY(button.isNull());
}

void tst_VantraButton::tabGroupCountsVisibleButtons_data()
{
    constexpr auto kNone = B::LinkButtonStyle;
    constexpr auto kBoth = B::LeftAndRightCapTabButtonStyle;
    constexpr auto kLeft = B::LeftCapTabButtonStyle;
    constexpr auto kInner = B::NoCapTabButtonStyle;
    constexpr auto kRight = B::RightCapTabButtonStyle;
    QTest::addColumn<QList<bool>>("visible");
    QTest::addColumn<QList<B::ButtonStyle>>("styles");
    using Shown = QList<bool>;
    using Styles = QList<B::ButtonStyle>;
    QTest::newRow("none") << Shown() << Styles();
    QTest::newRow("one of three") << Shown{false, true, false} << Styles{kNone, kBoth, kNone};
    QTest::newRow("two at the ends") << Shown{true, false, true} << Styles{kLeft, kNone, kRight};
    QTest::newRow("four") << Shown(4, true) << Styles{kLeft, kInner, kInner, kRight};
}

void tst_VantraButton::tabGroupCountsVisibleButtons()
{
    QFETCH(const QList<bool>, visible);
    QFETCH(const QList<B::ButtonStyle>, styles);
    QWidget window;
    QList<VantraButton *> buttons;
    for (const bool shows : visible) {
        auto *button = new VantraButton(&window);
        button->setButtonStyle(B::LinkButtonStyle);
        button->setVisible(shows);
        buttons.append(button);
    }
    window.show();
    B::updateTabButtonStyles(buttons);
    QList<B::ButtonStyle> found;
    for (const VantraButton *button : std::as_const(buttons)) {
        found.append(button->buttonStyle());
    }
    QCOMPARE(found, styles);
}

void tst_VantraButton::dragPictureIsTheButtonAlone()
{
    Scene scene;
    scene.enableBadge(5);
    const QPixmap picture = scene.button->getDragPixmap();
    QCOMPARE(picture.size(), scene.button->size());
    QCOMPARE(picture.devicePixelRatio(), 1.0);
    scene.button->setNotificationBadgeEnabled(false);
    QCOMPARE(scene.button->getDragPixmap().toImage(), picture.toImage());
    QVERIFY(ThemeFixture::ink(picture.toImage()) > 0.5 * 120 * 24);
    scene.button->resize(0, 0);
    QVERIFY(scene.button->getDragPixmap().isNull());
}

void tst_VantraButton::badgeTellsEachChangeOnce()
{
    Scene scene;
    QSignalSpy enabled(scene.button, &VantraButton::notificationBadgeEnabledChanged);
    QSignalSpy count(scene.button, &VantraButton::notificationBadgeCountChanged);
    scene.button->setNotificationBadgeCount(5);
    QCOMPARE(scene.button->notificationBadgeCount(), 0);
    scene.button->setNotificationBadgeEnabled(true);
    scene.button->setNotificationBadgeEnabled(true);
    QVERIFY(scene.badge()->isHidden());
    QCOMPARE(enabled.count(), 1);
    QCOMPARE(count.count(), 0);
    scene.button->setProperty("notificationBadgeCount", 5);
    scene.badge()->hide();
    scene.button->setNotificationBadgeCount(5);
    QVERIFY(scene.badge()->isVisible());
    QCOMPARE(count.count(), 1);
    scene.button->setNotificationBadgeCount(-1);
    QVERIFY(scene.badge()->isHidden());
    scene.button->setNotificationBadgeEnabled(false);
    scene.button->setNotificationBadgeEnabled(false);
    QCOMPARE(enabled.count(), 2);
    QCOMPARE(count.count(), 2);
}

void tst_VantraButton::badgeFollowsItsButton_data()
{
    QTest::addColumn<bool>("layout");
    QTest::newRow("free") << false;
    QTest::newRow("in a layout") << true;
}

void tst_VantraButton::badgeFollowsItsButton()
{
    QFETCH(const bool, layout);
    Scene scene(layout);
    scene.enableBadge(7);
    QTRY_COMPARE(scene.badge()->pos(), scene.badgePosition());
    scene.resize(420, 200);
    scene.button->move(scene.button->pos() + QPoint(13, 21));
    QTRY_COMPARE(scene.badge()->pos(), scene.badgePosition());
    scene.button->setEnabled(false);
    scene.button->resize(90, 30);
    QTRY_COMPARE(scene.badge()->pos(), scene.badgePosition());
    QVERIFY(scene.badge()->isVisible());
}

void tst_VantraButton::badgeHidesWithItsButton()
{
    Scene scene;
    scene.enableBadge(7);
    QVERIFY(scene.badge()->isVisible());
    scene.button->hide();
    QVERIFY(scene.badge()->isHidden());
    scene.button->setNotificationBadgeCount(8);
    QVERIFY(scene.badge()->isHidden());
    scene.button->show();
    QVERIFY(scene.badge()->isVisible());
    scene.hide();
    scene.show();
    QVERIFY(scene.badge()->isVisible());
    QCOMPARE(scene.badge()->text(), QStringLiteral("8"));
}

void tst_VantraButton::badgeShowsTheWholeNumber()
{
    Scene scene(true);
    scene.enableBadge(1);
    for (const int count : {123456, 9, 2147483647}) {
        scene.button->setNotificationBadgeCount(count);
        const QString text = QString::number(count);
        QCOMPARE(scene.badge()->text(), text);
        const int needed = scene.badge()->fontMetrics().horizontalAdvance(text);
        QVERIFY(scene.badge()->width() >= needed);
        QVERIFY(scene.badge()->width() < needed + 20);
        QTRY_COMPARE(scene.badge()->pos(), scene.badgePosition());
    }
}

void tst_VantraButton::badgeLetsClicksReachTheButton()
{
    Scene scene;
    scene.enableBadge(123456);
    QTRY_COMPARE(scene.badge()->pos(), scene.badgePosition());
    scene.setEnabled(false);
    scene.setEnabled(true);
    QTest::qWait(1);
    QSignalSpy clicked(scene.button, &QPushButton::clicked);
    const QPoint covered = scene.button->geometry().topRight() + QPoint(-4, 4);
    QVERIFY(scene.badge()->geometry().contains(covered));
    QTest::mouseClick(scene.windowHandle(), Qt::LeftButton, {}, covered);
    QCOMPARE(clicked.count(), 1);
}

void tst_VantraButton::badgeMovesToANewParent()
{
    Scene scene;
    scene.enableBadge(7);
    const QPointer<VantraLabel> badge(scene.badge());
    auto other = std::make_unique<QWidget>();
    other->resize(300, 160);
    other->show();
    scene.button->setParent(other.get());
    QVERIFY(badge->isHidden());
    scene.button->show();
    QCOMPARE(badge->parentWidget(), other.get());
    QVERIFY(badge->isVisible());
    QTRY_COMPARE(badge->geometry().bottomLeft() + QPoint(badge->width() / 2, 1 - badge->height()),
                 scene.button->geometry().topRight() - QPoint(0, badge->height() / 3));
    scene.button->setParent(nullptr);
    scene.button->show();
    QVERIFY(QTest::qWaitForWindowExposed(scene.button));
    QVERIFY(badge->isHidden());
    const std::unique_ptr<VantraButton> button(scene.button);
    other.reset();
    QVERIFY(badge.isNull());
    QVERIFY(!button->notificationBadgeEnabled());
    QCOMPARE(descriptionOf(button.get()), QString());
    button->repaint();
}

void tst_VantraButton::badgeIsAboveItsSiblings()
{
    Scene scene;
    QWidget other;
    const auto top = [&scene] { return scene.button->parentWidget()->children().last(); };
    scene.enableBadge(0);
    QObject *badge = scene.badge();
    QWidget cover(&scene);
    scene.button->setNotificationBadgeCount(7);
    QCOMPARE(top(), badge);
    scene.button->raise();
    QCOMPARE(top(), badge);
    // What the application puts on top stays there.
    cover.raise();
    scene.button->repaint();
    scene.button->lower();
    QCOMPARE(top(), &cover);
    other.show();
    scene.button->setParent(&other);
    const QWidget later(&other);
    scene.button->show();
    QCOMPARE(top(), badge);
}

void tst_VantraButton::badgeIsNoPaneOfASplitter()
{
    QSplitter first;
    QSplitter second;
    auto *button = new VantraButton(&first);
    button->setNotificationBadgeEnabled(true);
    auto *badge = first.findChild<VantraLabel *>();
    for (QSplitter *splitter : {&first, &second}) {
        splitter->addWidget(button);
        splitter->show();
        QVERIFY(QTest::qWaitForWindowExposed(splitter));
        QCOMPARE(badge->isVisible(), splitter == &second);
        button->setNotificationBadgeCount(7);
        QVERIFY(badge->isVisible());
        QCOMPARE(badge->parentWidget(), splitter);
        QCOMPARE(splitter->count(), 1);
    }
}

void tst_VantraButton::badgeEndsWithItsParent()
{
    for (const bool badgeFirst : {false, true}) {
        auto scene = std::make_unique<Scene>();
        scene->enableBadge(7);
        if (badgeFirst) {
            scene->button->raise();
        }
        QTRY_COMPARE(scene->badge()->pos(), scene->badgePosition());
        const QPointer<VantraLabel> badge(scene->badge());
        scene.reset();
        QVERIFY(badge.isNull());
    }
}

void tst_VantraButton::badgeOfADeletedButtonIsHidden()
{
    Scene scene;
    scene.enableBadge(7);
    delete scene.button;
    QVERIFY(scene.badge() != nullptr);
    QVERIFY(scene.badge()->isHidden());
}

void tst_VantraButton::descriptionTellsTheCount()
{
    Scene scene;
    scene.enableBadge(3);
    QCOMPARE(descriptionOf(scene.button), QStringLiteral("Notifications: 3"));
    scene.button->setAccessibleDescription(QStringLiteral("Opens the inbox"));
    scene.button->setNotificationBadgeCount(4);
    QCOMPARE(descriptionOf(scene.button), QStringLiteral("Opens the inbox, Notifications: 4"));
    scene.button->setNotificationBadgeCount(12);
    QCOMPARE(descriptionOf(scene.button), QStringLiteral("Opens the inbox, Notifications: 12"));
    scene.button->setNotificationBadgeCount(0);
    QCOMPARE(descriptionOf(scene.button), QStringLiteral("Opens the inbox"));
    scene.button->setNotificationBadgeCount(1);
    scene.button->setNotificationBadgeEnabled(false);
    QCOMPARE(descriptionOf(scene.button), QStringLiteral("Opens the inbox"));
}

void tst_VantraButton::accessibilityIsAButtons()
{
    Scene scene;
    scene.button->setCheckable(true);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(scene.button);
    QCOMPARE(accessible->role(), QAccessible::CheckBox);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Inbox"));
    accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(scene.button->isChecked());
    scene.button->setFocus();
    QTest::keyClick(scene.button, Qt::Key_Space);
    QVERIFY(!scene.button->isChecked());
}

void tst_VantraButton::badgeNeedsAParent()
{
    QCOMPARE(FatalTest::assertionOf("badgeWithoutParent"), QStringLiteral("parentWidget() != nullptr"));
}

FATAL_TEST_MAIN(tst_VantraButton)
#include "tst_VantraButton.moc"

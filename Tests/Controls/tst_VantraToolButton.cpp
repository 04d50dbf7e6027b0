#include "Controls/VantraToolButton.h"
#include "Interaction/UserActions.h"
#include "StyleOptions/VantraStyleOptionToolButton.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "VTQtPropertyNames.h"

#include <QtWidgets/QProxyStyle>

namespace {

using Button = VantraToolButton;
using Palette = VantraIconPalette;

QImage image(const QColor &inColor, double inRatio = 1.0)
{
    QImage result(96, 65, QImage::Format_ARGB32_Premultiplied);
    result.setDevicePixelRatio(inRatio);
    result.fill(inColor);
    return result;
}

// A window with buttons that share a key, each with a name.
struct Tools
{
    QWidget window;
    QList<Button *> buttons;

    explicit Tools(int inCount, const QKeySequence &inKey = Qt::Key_K)
    {
        auto *layout = new QVBoxLayout(&window);
        for (int index = 0; index < inCount; ++index) {
            buttons << new Button;
            buttons.last()->setToolName(QStringLiteral("Tool %1").arg(index));
            buttons.last()->setShortcut(inKey);
            layout->addWidget(buttons.last());
        }
    }
};

// Keeps what the button asked of it.
class Listener : public QProxyStyle
{
public:
    mutable VantraStyleOptionToolButton painted;

    void drawComplexControl(ComplexControl inControl, const QStyleOptionComplex *option, QPainter *,
                            const QWidget *) const override
    {
        QCOMPARE(inControl, CC_ToolButton);
        QCOMPARE(option->version, 2);
        painted = *static_cast<const VantraStyleOptionToolButton *>(option);
    }
};

} // namespace

FATAL_CASE(reportWithoutKey)
{
    VantraFont::loadApplicationFonts();
    Button().setShortcutActivatedEnabled(true);
}

FATAL_CASE(keyLostWhileReporting)
{
    VantraFont::loadApplicationFonts();
    Button button;
    button.setShortcut(Qt::Key_K);
    button.setShortcutActivatedEnabled(true);
    button.setProperty(kToolButtonKeySequenceProperty, QVariant());
    button.setShortcutActivatedEnabled(false);
}

class tst_VantraToolButton : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void imagesFillOnAndOff();
    void everyNamedImageHasItsPicture();
    void styleHearsAllItNeeds();
    void toolTipShowsNameAndKey();
    void keyClicksOrReports();
    void keyOfSeveralIsAmbiguous();
    void keyMayBeRemapped();
    void reportMayEndTheButton();
    void doubleClickTogglesOnce();
    void disabledLetsTheMouseThrough();
    void speaksToAssistiveTechnology();
    void needsAKeyToReport();
};

void tst_VantraToolButton::imagesFillOnAndOff()
{
    Button button(image(Qt::red));
    QCOMPARE(button.iconTinting(), Palette::IconTintingOnAlternateOffForeground);
    button.setCheckable(false);
    QSignalSpy spy(&button, &Button::iconTintingChanged);
    button.initOnOffStyle(image(Qt::green, 2.0), image(Qt::blue), Palette::IconTintingForeground);
    QCOMPARE(spy.count(), 1);
    QVERIFY(button.isCheckable());
    QCOMPARE(button.buttonStyle(), Button::IconOnOffStyle);
    QCOMPARE(button.iconSize(), QSize(24, 24));
    QCOMPARE(button.minimumSize(), QSize(48, 33));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Active, QIcon::Disabled}) {
        for (const QIcon::State state : {QIcon::On, QIcon::Off}) {
            const QImage pixels = button.icon().pixmap(QSize(24, 24), mode, state).toImage();
            QCOMPARE(pixels.pixelColor(8, 8), QColor(state == QIcon::On ? Qt::green : Qt::blue));
        }
    }
}

void tst_VantraToolButton::everyNamedImageHasItsPicture()
{
    const QMetaEnum images = QMetaEnum::fromType<Button::ButtonImage>();
    QCOMPARE(images.keyCount(), 43);
    QSet<QByteArray> pictures;
    Button button;
    for (int index = 0; index < images.keyCount(); ++index) {
        const auto named = Button::ButtonImage(images.value(index));
        button.setButtonImage(named);
        QCOMPARE(button.property("buttonImage").toInt(), int(named));
        if (named != Button::NoImage) {
            const QImage pixels = button.icon().pixmap(QSize(24, 24)).toImage();
            pictures << QByteArray(reinterpret_cast<const char *>(pixels.constBits()), pixels.sizeInBytes());
        }
    }
    QCOMPARE(pictures.size(), 42);
    const qint64 last = button.icon().cacheKey();
    button.setButtonImage(Button::NoImage);
    QCOMPARE(button.icon().cacheKey(), last);
    QCOMPARE(button.buttonImage(), Button::NoImage);
}

void tst_VantraToolButton::styleHearsAllItNeeds()
{
    Listener style;
    Button button;
    button.setStyle(&style);
    QSignalSpy spy(&button, &Button::backgroundStyleChanged);
    button.setText(QStringLiteral("Dodge & burn"));
    button.setButtonStyle(Button::IconGroupTopStyle);
    button.setBackgroundStyle(Button::BackgroundStyleTobButton);
    button.setBackgroundStyle(Button::BackgroundStyleTobButton);
    button.setBackgroundButtonRole(VantraPalette::Accent);
    button.setIconTinting(Palette::IconTintingAlternate);
    button.grab();
    QCOMPARE(style.painted.text, QStringLiteral("Dodge && burn"));
    QCOMPARE(style.painted.buttonStyle, Button::IconGroupTopStyle);
    QCOMPARE(style.painted.backgroundStyle, Button::BackgroundStyleTobButton);
    QCOMPARE(style.painted.backgroundButtonRole, VantraPalette::Accent);
    QCOMPARE(style.painted.iconTinting, Palette::IconTintingAlternate);
    QCOMPARE(spy.count(), 1);
}

void tst_VantraToolButton::toolTipShowsNameAndKey()
{
    const auto native = [](const char *inKey) {
        return QKeySequence(QLatin1String(inKey)).toString(QKeySequence::NativeText);
    };
    Button button;
    button.setToolTip(QStringLiteral("old"));
    button.setShortcut(Qt::Key_J);
    button.setToolName(QStringLiteral("Crop %2"));
    QCOMPARE(button.toolTip(), QStringLiteral("old"));
    button.setShortcut(QKeySequence(QStringLiteral("Ctrl+K")));
    QCOMPARE(button.toolTip(), QStringLiteral("Crop %2 (%1)").replace("%1", native("Ctrl+K")));
    button.setShortcutActivatedEnabled(true);
    button.setShortcut(QKeySequence());
    QCOMPARE(button.toolTip(), QStringLiteral("Crop %2 (%1)").replace("%1", native("Ctrl+K")));
}

void tst_VantraToolButton::keyClicksOrReports()
{
    Tools tools(1);
    Button *button = tools.buttons.first();
    QSignalSpy toggled(button, &Button::toggled);
    QSignalSpy reported(button, &Button::shortcutActivated);
    const auto press = [&] { QTest::keyClick(&tools.window, Qt::Key_K); };
    QVERIFY(UserActions::showActive(tools.window));
    press();
    QTRY_COMPARE(toggled.count(), 1);
    button->setShortcutActivatedEnabled(true);
    button->setShortcutActivatedEnabled(true);
    press();
    QCOMPARE(toggled.count(), 1);
    QCOMPARE(reported.count(), 1);
    QCOMPARE(reported.first().first().value<Button *>(), button);
    button->setEnabled(false);
    press();
    button->setEnabled(true);
    button->hide();
    press();
    button->show();
    QCOMPARE(reported.count(), 1);
    button->setShortcutActivatedEnabled(false);
    press();
    QTRY_COMPARE(toggled.count(), 2);
    QCOMPARE(reported.count(), 1);
}

void tst_VantraToolButton::keyOfSeveralIsAmbiguous()
{
    Tools tools(2);
    Tools hidden(1);
    hidden.buttons.first()->setShortcutActivatedEnabled(true);
    QStringList log;
    for (Button *button : std::as_const(tools.buttons)) {
        button->setShortcutActivatedEnabled(true);
        connect(button, &Button::shortcutActivated, this, [&] { log << QStringLiteral("alone"); });
        connect(button, &Button::shortuctActivatedAmbiguously, this,
                [&](Button *inButton) { log << inButton->toolName(); });
    }
    QVERIFY(UserActions::showActive(tools.window));
    QTest::keyClick(&tools.window, Qt::Key_K);
    QTest::keyClick(&tools.window, Qt::Key_K);
    log.sort();
    QCOMPARE(log, QStringList({QStringLiteral("Tool 0"), QStringLiteral("Tool 1")}));
    log.clear();
    delete tools.buttons.takeFirst();
    QTest::keyClick(&tools.window, Qt::Key_K);
    QCOMPARE(log, QStringList(QStringLiteral("alone")));
}

void tst_VantraToolButton::keyMayBeRemapped()
{
    Tools tools(1);
    Button *button = tools.buttons.first();
    QSignalSpy spy(button, &Button::shortcutActivated);
    button->setShortcutActivatedEnabled(true);
    button->setShortcutActivatedEnabled(false);
    button->setShortcut(QKeySequence(QStringLiteral("Ctrl+M, L")));
    button->setShortcutActivatedEnabled(true);
    QVERIFY(button->QAbstractButton::shortcut().isEmpty());
    QVERIFY(UserActions::showActive(tools.window));
    QTest::keyClick(&tools.window, Qt::Key_K);
    QCOMPARE(spy.count(), 0);
    QTest::keyClick(&tools.window, Qt::Key_M, Qt::ControlModifier);
    QTest::keyClick(&tools.window, Qt::Key_L);
    QCOMPARE(spy.count(), 1);
}

void tst_VantraToolButton::reportMayEndTheButton()
{
    Tools tools(2);
    QPointer<Button> button(tools.buttons.first());
    tools.buttons.last()->setShortcut(Qt::Key_L);
    tools.buttons.last()->setShortcutActivatedEnabled(true);
    button->setShortcutActivatedEnabled(true);
    connect(button, &Button::shortcutActivated, this, [](Button *inButton) { delete inButton; });
    connect(tools.buttons.last(), &Button::shortcutActivated, this,
            [](Button *inButton) { inButton->setShortcutActivatedEnabled(false); });
    QVERIFY(UserActions::showActive(tools.window));
    QTest::keyClick(&tools.window, Qt::Key_K);
    QVERIFY(button.isNull());
    QTest::keyClick(&tools.window, Qt::Key_L);
    QCOMPARE(tools.buttons.last()->QAbstractButton::shortcut(), QKeySequence(Qt::Key_L));
}

void tst_VantraToolButton::doubleClickTogglesOnce()
{
    Tools tools(1);
    Button *button = tools.buttons.first();
    QSignalSpy toggled(button, &Button::toggled);
    QSignalSpy doubled(button, &Button::buttonDoubleClicked);
    QVERIFY(UserActions::showActive(tools.window));
    QTest::mouseDClick(tools.window.windowHandle(), Qt::LeftButton, {},
                       UserActions::inWindow(button, button->rect().center()));
    QVERIFY(!button->isDown());
    QCOMPARE(doubled.count(), 1);
    QCOMPARE(toggled.count(), 1);
}

void tst_VantraToolButton::disabledLetsTheMouseThrough()
{
    QPushButton beneath;
    beneath.setCheckable(true);
    beneath.resize(200, 100);
    Button button(&beneath);
    button.setGeometry(5, 40, 32, 32);
    QVERIFY(UserActions::showActive(beneath));
    for (const bool enabled : {true, false}) {
        button.setEnabled(enabled);
        UserActions::click(&beneath, button.geometry().center());
        QCOMPARE(button.isChecked(), true);
        QCOMPARE(beneath.isChecked(), !enabled);
    }
}

void tst_VantraToolButton::speaksToAssistiveTechnology()
{
    Tools tools(1);
    Button *button = tools.buttons.first();
    button->setShortcutActivatedEnabled(true);
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(button);
    QCOMPARE(face->role(), QAccessible::CheckBox);
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Tool 0"));
    QCOMPARE(face->text(QAccessible::Accelerator), QStringLiteral("K"));
    QVERIFY(face->state().checkable && !face->state().checked);
    QSignalSpy clicked(button, &Button::clicked);
    face->actionInterface()->doAction(face->actionInterface()->actionNames().constFirst());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(face->state().checked);
    button->setAccessibleName(QStringLiteral("Invert"));
    QCOMPARE(face->text(QAccessible::Name), QStringLiteral("Invert"));
    button->setEnabled(false);
    QVERIFY(face->state().disabled);
    QVERIFY(!face->actionInterface()->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

void tst_VantraToolButton::needsAKeyToReport()
{
    const QString condition = QStringLiteral("!keySequence.isEmpty()");
    QCOMPARE(FatalTest::assertionOf("reportWithoutKey"), condition);
    QCOMPARE(FatalTest::assertionOf("keyLostWhileReporting"), condition);
}

FATAL_TEST_MAIN(tst_VantraToolButton)
#include "tst_VantraToolButton.moc"

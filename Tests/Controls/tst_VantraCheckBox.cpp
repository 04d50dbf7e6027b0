#include "Controls/VantraCheckBox.h"
#include "Interaction/UserActions.h"
#include "Style/VantraStyle.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"

#include <QtGui/QAccessible>

namespace {

const QString kLongText = QStringLiteral("Remove chromatic aberration along all edges");

// Notes the text of the last check box.
class RecordingStyle : public QProxyStyle
{
public:
    RecordingStyle() : QProxyStyle(new VantraStyle) {}

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_CheckBox) {
            text = static_cast<const QStyleOptionButton *>(option)->text;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }

    mutable QString text;
};

} // namespace

class tst_VantraCheckBox : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void textIsCutToTheRoom_data();
    void textIsCutToTheRoom();
    void isOneAndAHalfLinesHigh();
    void signalsCanBeBlocked();
    void disabledLetsTheMouseThrough();
    void accessibleAndWorksByKeyboard();
};

void tst_VantraCheckBox::textIsCutToTheRoom_data()
{
    QTest::addColumn<bool>("elide");
    QTest::addColumn<int>("width");
    QTest::addColumn<bool>("cut");
    QTest::newRow("off") << false << 100 << false;
    QTest::newRow("on") << true << 100 << true;
    QTest::newRow("on, fits") << true << 600 << false;
}

void tst_VantraCheckBox::textIsCutToTheRoom()
{
    QFETCH(const bool, elide);
    QFETCH(const int, width);
    QFETCH(const bool, cut);
    RecordingStyle style;
    VantraCheckBox box;
    box.setStyle(&style);
    box.setText(kLongText);
    box.resize(width, 24);
    box.setProperty("elideTextEnabled", elide);
    box.grab();
    QCOMPARE(style.text.endsWith(QChar(0x2026)), cut);
    QCOMPARE(style.text == kLongText, !cut);
}

void tst_VantraCheckBox::isOneAndAHalfLinesHigh()
{
    VantraCheckBox box;
    QCOMPARE(box.font(), VantraFont::mainFont());
    QFont large = box.font();
    large.setPointSize(31);
    box.setFont(large);
    const int line = QFontMetrics(large).height();
    QVERIFY(box.minimumSizeHint().height() >= line + (line + 1) / 2);
}

void tst_VantraCheckBox::signalsCanBeBlocked()
{
    VantraCheckBox box;
    box.setTristate(true);
    QSignalSpy spy(&box, &QCheckBox::stateChanged);
    box.setCheckStateAndBlockSignals(Qt::PartiallyChecked);
    QCOMPARE(box.checkState(), Qt::PartiallyChecked);
    QCOMPARE(spy.count(), 0);
    box.setCheckState(Qt::Checked);
    QCOMPARE(spy.count(), 1);
}

void tst_VantraCheckBox::disabledLetsTheMouseThrough()
{
    QWidget window;
    auto *box = new VantraCheckBox(&window);
    box->setEnabled(false);
    QVERIFY(UserActions::showActive(window));
    QCOMPARE(window.childAt(box->geometry().center()), nullptr);
    box->setEnabled(true);
    UserActions::click(box, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
}

void tst_VantraCheckBox::accessibleAndWorksByKeyboard()
{
    VantraCheckBox box;
    box.setText(QStringLiteral("&Grid"));
    QVERIFY(UserActions::showActive(box));
    QTest::keyClick(&box, Qt::Key_Space);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&box);
    QVERIFY(interface != nullptr);
    QCOMPARE(interface->role(), QAccessible::CheckBox);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Grid"));
    QVERIFY(interface->state().checked);
    interface->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QVERIFY(!box.isChecked());
}

QTEST_MAIN(tst_VantraCheckBox)
#include "tst_VantraCheckBox.moc"

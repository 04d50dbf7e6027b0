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
    void textIsCutToTheRoom();
    void isOneAndAHalfLinesHigh();
    void disabledLetsTheMouseThrough();
    void accessibleAndWorksByKeyboard();
};

void tst_VantraCheckBox::textIsCutToTheRoom()
{
    RecordingStyle style;
    VantraCheckBox box;
    box.setStyle(&style);
    box.setText(kLongText);
    box.resize(100, 24);
    box.grab();
    QCOMPARE(style.text, kLongText);
    box.setProperty("elideTextEnabled", true);
    box.grab();
    QVERIFY(style.text.endsWith(QChar(0x2026)));
    box.resize(600, 24);
    box.grab();
    QCOMPARE(style.text, kLongText);
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

void tst_VantraCheckBox::disabledLetsTheMouseThrough()
{
    QWidget window;
    auto *box = new VantraCheckBox(&window);
    box->setEnabled(false);
    QVERIFY(UserActions::showActive(window));
    QCOMPARE(window.childAt(box->geometry().center()), nullptr);
    box->setEnabled(true);
    QSignalSpy spy(box, &QCheckBox::toggled);
    UserActions::click(box, QPoint(8, box->height() / 2));
    QVERIFY(box->isChecked());
    QCOMPARE(spy.count(), 1);
    box->setCheckStateAndBlockSignals(Qt::Unchecked);
    QVERIFY(!box->isChecked());
    QCOMPARE(spy.count(), 1);
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

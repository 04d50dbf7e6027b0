#include "Controls/VantraTextEdit.h"
#include "Interaction/UserActions.h"
#include "Style/VantraStyle.h"
#include "Support/DataRows.h"
#include "Support/ThemeFixture.h"

#include <QtTest/QtTest>

namespace {

// A window with the box and a button, which counts the Return and Enter keys that reach it.
struct Form : QWidget
{
    Form()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&edit);
        layout->addWidget(&button);
        edit.setPlainText(QStringLiteral("Text"));
    }
    void keyPressEvent(QKeyEvent *event) override
    {
        keys += event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ? 1 : 0;
    }

    VantraTextEdit edit;
    QPushButton button;
    int keys = 0;
};

struct KeyRow
{
    const char *name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    bool acceptEnter;
    int finished;
    const char *text;
    int keysOfParent;
};

constexpr KeyRow kKeyRows[] = {
    {"Return", Qt::Key_Return, Qt::NoModifier, true, 1, "Text", 0},
    {"Enter", Qt::Key_Enter, Qt::NoModifier, false, 1, "Text", 0},
    {"Ctrl+Return, off", Qt::Key_Return, Qt::ControlModifier, false, 1, "Text", 0},
    {"Ctrl+Return", Qt::Key_Return, Qt::ControlModifier, true, 0, "Text\n", 1},
    {"Ctrl+Enter", Qt::Key_Enter, Qt::ControlModifier, true, 0, "Text\n", 1},
    {"another key", Qt::Key_Backspace, Qt::NoModifier, true, 0, "ext", 0},
};

struct LeaveRow
{
    const char *name;
    Qt::FocusReason reason;
    bool tabLeaves;
    bool readOnly;
    int finished;
};

constexpr LeaveRow kLeaveRows[] = {
    {"Tab", Qt::TabFocusReason, true, false, 1},
    {"mouse", Qt::MouseFocusReason, true, false, 1},
    {"another window", Qt::ActiveWindowFocusReason, true, false, 0},
    {"a popup that isn't known", Qt::PopupFocusReason, true, false, 1},
    {"by program", Qt::OtherFocusReason, true, false, 0},
    {"Tab types", Qt::MouseFocusReason, false, false, 0},
    {"read only", Qt::TabFocusReason, true, true, 0},
};

struct MenuRow
{
    const char *name;
    QMenu *(*open)(Form *inForm);
    bool foreign;
};

constexpr MenuRow kMenuRows[] = {
    {"context menu", [](Form *inForm) { return UserActions::openContextMenu(&inForm->edit); }, false},
    {"the box's menu", [](Form *inForm) { return UserActions::openMenuOf(&inForm->edit); }, false},
    {"the button's menu", [](Form *inForm) { return UserActions::openMenuOf(&inForm->button); }, true},
};

} // namespace

class tst_VantraTextEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ThemeFixture::load());
        QApplication::setStyle(new VantraStyle);
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("QPainter|QWidget"))); }
    void returnEndsTheEditing_data() { DataRows::add(kKeyRows); }
    void returnEndsTheEditing();
    void leavingEndsTheEditing_data() { DataRows::add(kLeaveRows); }
    void leavingEndsTheEditing();
    void focusSelectsAndUnderlines();
    void onlyForeignMenusTakeTheFocus_data() { DataRows::add(kMenuRows); }
    void onlyForeignMenusTakeTheFocus();
    void lookFollowsPointerAndStyle();
    void assistantsSeeATextField();
};

void tst_VantraTextEdit::returnEndsTheEditing()
{
    const KeyRow row = DataRows::current(kKeyRows);
    Form form;
    form.edit.setAcceptEnterKey(row.acceptEnter);
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_Home);
    QTest::keyClick(form.windowHandle(), Qt::Key_Right);
    QSignalSpy spy(&form.edit, &VantraTextEdit::editingFinished);
    QTest::keyClick(form.windowHandle(), row.key, row.modifiers);
    QCOMPARE(spy.count(), row.finished);
    QCOMPARE(form.edit.toPlainText(), QLatin1String(row.text));
    QCOMPARE(form.keys, row.keysOfParent);
    form.edit.setReadOnly(true);
    spy.clear();
    QTest::keyClick(form.windowHandle(), row.key, row.modifiers);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(form.edit.toPlainText(), QLatin1String(row.text));
}

void tst_VantraTextEdit::leavingEndsTheEditing()
{
    const LeaveRow row = DataRows::current(kLeaveRows);
    Form form;
    form.edit.setTabChangesFocus(row.tabLeaves);
    form.edit.setReadOnly(row.readOnly);
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QSignalSpy spy(&form.edit, &VantraTextEdit::editingFinished);
    form.button.setFocus(row.reason);
    QCOMPARE(spy.count(), row.finished);
}

void tst_VantraTextEdit::focusSelectsAndUnderlines()
{
    Form form;
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QCOMPARE(form.edit.textCursor().selectedText(), QStringLiteral("Text"));
    QVERIFY(form.edit.font().underline());
    QTest::keyClick(form.windowHandle(), Qt::Key_End);
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    QVERIFY(form.button.hasFocus());
    QVERIFY(!form.edit.font().underline());
    QCOMPARE(form.edit.textCursor().position(), 0);
    form.edit.setReadOnly(true);
    form.edit.setFocus();
    QVERIFY(!form.edit.textCursor().hasSelection());
}

void tst_VantraTextEdit::onlyForeignMenusTakeTheFocus()
{
    const MenuRow row = DataRows::current(kMenuRows);
    Form form;
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_End);
    QTest::keyClick(form.windowHandle(), Qt::Key_Left, Qt::ShiftModifier);
    QSignalSpy finished(&form.edit, &VantraTextEdit::editingFinished);
    QMenu *menu = row.open(&form);
    QVERIFY(menu != nullptr && menu->isVisible());
    QCOMPARE(form.edit.font().underline(), !row.foreign);
    QCOMPARE(finished.count(), row.foreign ? 1 : 0);
    menu->close();
    QCOMPARE(form.edit.textCursor().selectedText(),
             row.foreign ? QStringLiteral("Text") : QStringLiteral("t"));
}

void tst_VantraTextEdit::lookFollowsPointerAndStyle()
{
    VantraTextEdit edit;
    edit.resize(120, 60);
    edit.setBorderStyle(VantraTextEdit::BorderHighlight);
    const QColor ground = ThemeFixture::color(VantraPalette::Normal, VantraPalette::LineEditBackground);
    QCOMPARE(edit.grab().toImage().pixelColor(60, 50), ground);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&edit, &enter);
    QCOMPARE(edit.palette().color(QPalette::Text),
             ThemeFixture::color(VantraPalette::Highlighted, VantraPalette::LineEditText));
    edit.setEnabled(false);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&edit, &leave);
    QCOMPARE(edit.palette().color(QPalette::Text),
             ThemeFixture::color(VantraPalette::Disabled, VantraPalette::LineEditText));
}

void tst_VantraTextEdit::assistantsSeeATextField()
{
    VantraTextEdit edit;
    edit.setAccessibleName(QStringLiteral("Caption"));
    edit.setPlainText(QStringLiteral("Text"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(accessible != nullptr && accessible->textInterface() != nullptr);
    QCOMPARE(accessible->role(), QAccessible::EditableText);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Caption"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("Text"));
    QVERIFY(
        accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
}

QTEST_MAIN(tst_VantraTextEdit)
#include "tst_VantraTextEdit.moc"

#include "Controls/VantraTextEdit.h"
#include "Interaction/UserActions.h"
#include "Style/VantraStyle.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraStyleTheme.h"

#include <QtTest/QtTest>

namespace {

QColor themeColor(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole)
{
    return VantraStyleTheme::instance().colorPalette().brush(inGroup, inRole).color();
}

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
    void returnEndsTheEditing_data();
    void returnEndsTheEditing();
    void leavingEndsTheEditing_data();
    void leavingEndsTheEditing();
    void focusSelectsAndUnderlines();
    void lookFollowsPointerAndStyle();
    void assistantsSeeATextField();
};

void tst_VantraTextEdit::returnEndsTheEditing_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("acceptEnter");
    QTest::addColumn<int>("finished");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("keysOfParent");
    const Qt::KeyboardModifiers none;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("Return") << Qt::Key_Return << none << true << 1 << "Text" << 0;
    QTest::newRow("Enter") << Qt::Key_Enter << none << false << 1 << "Text" << 0;
    QTest::newRow("Ctrl+Return, off") << Qt::Key_Return << control << false << 1 << "Text" << 0;
    QTest::newRow("Ctrl+Return") << Qt::Key_Return << control << true << 0 << "Text\n" << 1;
    QTest::newRow("Ctrl+Enter") << Qt::Key_Enter << control << true << 0 << "Text\n" << 1;
    QTest::newRow("another key") << Qt::Key_Backspace << none << true << 0 << "ext" << 0;
}

void tst_VantraTextEdit::returnEndsTheEditing()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    QFETCH(const bool, acceptEnter);
    QFETCH(const int, finished);
    QFETCH(const QString, text);
    QFETCH(const int, keysOfParent);
    Form form;
    form.edit.setAcceptEnterKey(acceptEnter);
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QTest::keyClick(form.windowHandle(), Qt::Key_Home);
    QTest::keyClick(form.windowHandle(), Qt::Key_Right);
    QSignalSpy spy(&form.edit, &VantraTextEdit::editingFinished);
    QTest::keyClick(form.windowHandle(), key, modifiers);
    QCOMPARE(spy.count(), finished);
    QCOMPARE(form.edit.toPlainText(), text);
    QCOMPARE(form.keys, keysOfParent);
    form.edit.setReadOnly(true);
    spy.clear();
    QTest::keyClick(form.windowHandle(), key, modifiers);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(form.edit.toPlainText(), text);
}

void tst_VantraTextEdit::leavingEndsTheEditing_data()
{
    QTest::addColumn<Qt::FocusReason>("reason");
    QTest::addColumn<bool>("tabLeaves");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<int>("finished");
    QTest::newRow("Tab") << Qt::TabFocusReason << true << false << 1;
    QTest::newRow("mouse") << Qt::MouseFocusReason << true << false << 1;
    QTest::newRow("another window") << Qt::ActiveWindowFocusReason << true << false << 0;
    QTest::newRow("by program") << Qt::OtherFocusReason << true << false << 0;
    QTest::newRow("Tab types") << Qt::MouseFocusReason << false << false << 0;
    QTest::newRow("read only") << Qt::TabFocusReason << true << true << 0;
}

void tst_VantraTextEdit::leavingEndsTheEditing()
{
    QFETCH(const Qt::FocusReason, reason);
    QFETCH(const bool, tabLeaves);
    QFETCH(const bool, readOnly);
    QFETCH(const int, finished);
    Form form;
    form.edit.setTabChangesFocus(tabLeaves);
    form.edit.setReadOnly(readOnly);
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QSignalSpy spy(&form.edit, &VantraTextEdit::editingFinished);
    form.button.setFocus(reason);
    QCOMPARE(spy.count(), finished);
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

void tst_VantraTextEdit::lookFollowsPointerAndStyle()
{
    VantraTextEdit edit;
    edit.resize(120, 60);
    edit.setBorderStyle(VantraTextEdit::BorderHighlight);
    const QColor ground = themeColor(VantraPalette::Normal, VantraPalette::LineEditBackground);
    QCOMPARE(edit.grab().toImage().pixelColor(60, 50), ground);
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&edit, &enter);
    QCOMPARE(edit.palette().color(QPalette::Text),
             themeColor(VantraPalette::Highlighted, VantraPalette::LineEditText));
    edit.setEnabled(false);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&edit, &leave);
    QCOMPARE(edit.palette().color(QPalette::Text),
             themeColor(VantraPalette::Disabled, VantraPalette::LineEditText));
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

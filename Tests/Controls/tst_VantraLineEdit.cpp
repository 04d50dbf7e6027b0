#include "Controls/VantraLineEdit.h"
#include "Interaction/UserActions.h"
#include "Style/VantraStyle.h"
#include "Support/DataRows.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "VTQtLocale.h"

#include <QtTest/QtTest>

namespace {

// A window with the field and, behind it, a button that takes the focus.
struct Form : QWidget
{
    Form()
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&edit);
        layout->addWidget(&button);
        edit.setMinimumSize(120, 24);
    }

    VantraLineEdit edit;
    QPushButton button;
};

struct KeyRow
{
    const char *name;
    const char *locale;
    bool exclude;
    const char *text;
};

constexpr KeyRow kKeyRows[] = {
    {"English", "en_US", true, "1.5a"},
    {"German", "de_DE", true, "1,5a"},
    {"German, let through", "de_DE", false, "1.,5a"},
    {"none of the keys", "fr_FR", true, "1.,5a"},
};

struct PanelRow
{
    const char *name;
    VantraLineEdit::BorderStyle style;
    VantraPalette::PaletteRole role;
};

constexpr PanelRow kPanelRows[] = {
    {"none", VantraLineEdit::BorderNone, VantraPalette::LineEditBackgroundNone},
    {"highlight", VantraLineEdit::BorderHighlight, VantraPalette::LineEditBackground},
    {"standard", VantraLineEdit::BorderStandard, VantraPalette::TokenBoxBackground},
};

} // namespace

class tst_VantraLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(ThemeFixture::load());
        QApplication::setStyle(new VantraStyle);
    }
    void init() { QTest::failOnWarning(QRegularExpression(QStringLiteral("QPainter|QWidget"))); }
    void cleanup() { VTQtLocale::unsetApplicationLocale(); }
    void groupSeparatorKeyDoesNothing_data() { DataRows::add(kKeyRows); }
    void groupSeparatorKeyDoesNothing();
    void focusUnderlines();
    void focusSelectsAllWhenAsked();
    void onlyForeignMenusTakeTheFocus();
    void textColorFollowsPointerAndState();
    void tabAndReturnAreNoShortcuts();
    void panelLiesBeneathTheText_data() { DataRows::add(kPanelRows); }
    void panelLiesBeneathTheText();
    void assistantsSeeATextField();
};

void tst_VantraLineEdit::groupSeparatorKeyDoesNothing()
{
    const KeyRow row = DataRows::current(kKeyRows);
    VTQtLocale::setApplicationLocale(QLocale(QLatin1String(row.locale)));
    VantraLineEdit edit;
    edit.setIgnoreLocaleSeparator(row.exclude);
    QCOMPARE(edit.property("excludeLocaleGroupSeparator").toBool(), row.exclude);
    QTest::keyClicks(&edit, QStringLiteral("1.,5a"));
    QCOMPARE(edit.text(), QLatin1String(row.text));
    QGuiApplication::clipboard()->setText(QStringLiteral("1.,5"));
    QTest::keySequence(&edit, QKeySequence(QKeySequence::SelectAll));
    QTest::keySequence(&edit, QKeySequence(QKeySequence::Paste));
    QCOMPARE(edit.text(), QStringLiteral("1.,5"));
}

void tst_VantraLineEdit::focusUnderlines()
{
    Form form;
    QCOMPARE(form.edit.font(), VantraFont::mainFont());
    const QSize hint = form.edit.sizeHint();
    QCOMPARE(hint, QFontMetrics(form.edit.font()).tightBoundingRect(QStringLiteral("99999.9")).size());
    form.edit.setText(QStringLiteral("A much longer text"));
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QVERIFY(form.edit.font().underline());
    QCOMPARE(form.edit.sizeHint(), hint);
    QTest::keyClick(&form.edit, Qt::Key_Tab);
    QVERIFY(form.button.hasFocus());
    QVERIFY(!form.edit.font().underline());
}

void tst_VantraLineEdit::focusSelectsAllWhenAsked()
{
    Form form;
    form.edit.setText(QStringLiteral("Text"));
    form.button.setFocus();
    QVERIFY(UserActions::showActive(form));
    UserActions::click(&form.edit, form.edit.rect().center());
    QCoreApplication::processEvents();
    QVERIFY(form.edit.hasFocus());
    QCOMPARE(form.edit.selectedText(), QString());
    form.button.setFocus();
    form.edit.setSelectAllOnFocus(true);
    UserActions::slowly();
    UserActions::click(&form.edit, form.edit.rect().center());
    QTRY_COMPARE(form.edit.selectedText(), QStringLiteral("Text"));
}

void tst_VantraLineEdit::onlyForeignMenusTakeTheFocus()
{
    for (const bool foreign : {false, true}) {
        Form form;
        form.edit.setText(QStringLiteral("Text"));
        form.edit.setSelectAllOnFocus(true);
        QVERIFY(UserActions::showActive(form));
        form.edit.setFocus();
        QTRY_COMPARE(form.edit.selectedText(), QStringLiteral("Text"));
        form.edit.setSelection(1, 2);
        QMenu *menu =
            foreign ? UserActions::openMenuOf(&form.button) : UserActions::openContextMenu(&form.edit);
        QVERIFY(menu != nullptr && menu->isVisible());
        QCOMPARE(form.edit.font().underline(), !foreign);
        menu->close();
        QCoreApplication::processEvents();
        QCOMPARE(form.edit.selectedText(), foreign ? QStringLiteral("Text") : QStringLiteral("ex"));
    }
}

void tst_VantraLineEdit::textColorFollowsPointerAndState()
{
    VantraLineEdit edit;
    const auto colorAfter = [&edit](bool inEnter) {
        QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&edit, inEnter ? &enter : &leave);
        return edit.palette().color(QPalette::Text);
    };
    for (const char *accent : {"blue", "orange"}) {
        QVERIFY(ThemeFixture::load(QLatin1String(accent)));
        edit.setEnabled(true);
        QCOMPARE(colorAfter(true),
                 ThemeFixture::color(VantraPalette::Highlighted, VantraPalette::LineEditText));
        QCOMPARE(colorAfter(false), ThemeFixture::color(VantraPalette::Normal, VantraPalette::LineEditText));
        edit.setEnabled(false);
        QCOMPARE(colorAfter(true), ThemeFixture::color(VantraPalette::Disabled, VantraPalette::LineEditText));
        QCOMPARE(colorAfter(false),
                 ThemeFixture::color(VantraPalette::Disabled, VantraPalette::LineEditText));
    }
}

void tst_VantraLineEdit::tabAndReturnAreNoShortcuts()
{
    Form form;
    QVERIFY(UserActions::showActive(form));
    form.edit.setFocus();
    QStringList fired;
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Tab}) {
        auto *shortcut = new QShortcut(QKeySequence(key), &form);
        connect(shortcut, &QShortcut::activated, &form,
                [&fired, shortcut] { fired << shortcut->key().toString(); });
    }
    QSignalSpy returned(&form.edit, &QLineEdit::returnPressed);
    QTest::keyClick(form.windowHandle(), Qt::Key_Return);
    QCOMPARE(returned.count(), 1);
    QTest::keyClick(form.windowHandle(), Qt::Key_Enter);
    QTest::keyClick(form.windowHandle(), Qt::Key_Tab);
    QVERIFY(form.button.hasFocus());
    QCOMPARE(fired, QStringList(QStringLiteral("Enter")));
}

void tst_VantraLineEdit::panelLiesBeneathTheText()
{
    const PanelRow row = DataRows::current(kPanelRows);
    VantraLineEdit edit;
    edit.resize(120, 24);
    edit.setProperty("borderStyle", QVariant::fromValue(row.style));
    QCOMPARE(edit.borderStyle(), row.style);
    const QImage bare = ThemeFixture::paint(edit.size(), [&edit](QPainter &ioPainter) {
        edit.render(&ioPainter, QPoint(), QRegion(), QWidget::RenderFlags());
    });
    const QColor ground = ThemeFixture::color(VantraPalette::Normal, row.role);
    QCOMPARE(bare.pixelColor(100, 12).alpha(), ground.alpha());
    if (ground.alpha() > 0) {
        QCOMPARE(bare.pixelColor(100, 12), ground);
        QCOMPARE(qAlpha(bare.pixel(0, 0)), 0);
    }
    edit.setText(QStringLiteral("Text"));
    QVERIFY(edit.grab().toImage() != bare);
    edit.setFrame(false);
    edit.grab();
}

void tst_VantraLineEdit::assistantsSeeATextField()
{
    VantraLineEdit edit;
    edit.setAccessibleName(QStringLiteral("Name"));
    edit.setText(QStringLiteral("Text"));
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&edit);
    QVERIFY(accessible != nullptr && accessible->textInterface() != nullptr);
    QCOMPARE(accessible->role(), QAccessible::EditableText);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Name"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("Text"));
    QVERIFY(
        accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
    accessible->editableTextInterface()->insertText(4, QStringLiteral("s"));
    QCOMPARE(edit.text(), QStringLiteral("Texts"));
}

QTEST_MAIN(tst_VantraLineEdit)
#include "tst_VantraLineEdit.moc"

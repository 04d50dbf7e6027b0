#include "Controls/VantraDoubleLineEdit.h"
#include "Interaction/UserActions.h"
#include "Support/DataRows.h"
#include "Support/FatalTest.h"
#include "Support/ThemeFixture.h"
#include "Theme/VantraFont.h"
#include "VTQtLocale.h"

#include <QtTest/QtTest>

#include <cmath>
#include <limits>

namespace {

using Field = VantraDoubleLineEdit;

// A window with the field and a button behind it. Notes the field's signals as texts.
struct Form : QWidget
{
    explicit Form(double inMinimum = 1.0, double inMaximum = 100.0, int inDecimals = 2)
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(&field);
        layout->addWidget(&button);
        field.setMinimum(inMinimum);
        field.setMaximum(inMaximum);
        field.setDecimals(inDecimals);
        const auto note = [this](const char *inName, double inValue) {
            log << QLatin1String(inName) + QString::number(inValue, 'g', 12);
        };
        connect(&field, &Field::valueChanged, this, [note](double inValue) { note("changed ", inValue); });
        connect(&field, &Field::valueChanging, this, [note](double inValue) { note("changing ", inValue); });
        connect(&field, &Field::valueOutOfRange, this,
                [this](const QString &inText, double inMinimum, double inMaximum, int inDecimals) {
                    log << QStringLiteral("bad %1 %2 %3 %4")
                               .arg(inText)
                               .arg(inMinimum)
                               .arg(inMaximum)
                               .arg(inDecimals);
                });
    }
    bool start()
    {
        const bool active = UserActions::showActive(*this);
        field.setFocus();
        return active;
    }
    void key(Qt::Key inKey, Qt::KeyboardModifiers inModifiers = {})
    {
        QTest::keyClick(windowHandle(), inKey, inModifiers);
    }
    // Any character, as a keyboard of its language sends it.
    void type(const QString &inText)
    {
        const QList<uint> letters = inText.toUcs4();
        for (const char32_t letter : letters) {
            QTest::sendKeyEvent(QTest::Click, &field, Qt::Key(QChar::toUpper(letter)),
                                QString::fromUcs4(&letter, 1), {});
        }
    }
    void paste(const QString &inText)
    {
        QGuiApplication::clipboard()->setText(inText);
        QTest::keySequence(&field, QKeySequence(QKeySequence::Paste));
    }

    Field field;
    QPushButton button;
    QStringList log;
};

enum Action { Type, Paste, Up, Down, Set, Leave, Return };

// What the user or the program does, and what text and number are then. Typing and pasting replace the text.
struct Step
{
    Action action;
    QString argument;
    QString text;
    double value;
};

struct LocaleRow
{
    const char *name;
    double minimum;
    double maximum;
    int decimals;
    QList<Step> steps;
};

const QList<LocaleRow> &localeRows()
{
    // clang-format off
    static const QList<LocaleRow> sRows = {
        {"C", 1, 2000, 2,
         {{Type, "1,2,3.5", "123.5", 123.5}, {Up, "", "123.51", 123.51}, {Down, "", "123.5", 123.5},
          {Type, "12.345", "12.34", 12.34}, {Paste, "1,234.5", "1,234.5", 1234.5},
          {Paste, "12.345", "1,234.5", 1234.5}, {Paste, "oops", "1,234.5", 1234.5},
          {Type, "2500", "2500", 2500}, {Leave, "", "2000", 2000}, {Up, "", "2000", 2000},
          {Type, "0", "0", 0}, {Leave, "", "1", 1}, {Type, "7", "7", 7}, {Return, "", "7", 7}}},
        {"C", 0, 300, 0,
         {{Type, "1.5", "15", 15}, {Up, "", "16.", 16}, {Set, "200", "200.", 200}, {Leave, "", "200.", 200}}},
        // What Qt mends itself counts: a misplaced separator goes. The rest is read in the C locale, where a
        // comma makes no number.
        {"de_DE", 1, 2000, 2,
         {{Type, "1.234,5", "1234,5", 1234.5}, {Up, "", "1.234,51", 1234.51},
          {Paste, "1.999,99", "1.999,99", 1999.99}, {Up, "", "2.000", 2000},
          {Paste, "1.5", "1.5", 0}, {Leave, "", "15", 15}, {Type, "2500", "2500", 2500},
          {Leave, "", "2.000", 2000}, {Type, "2500,5", "2500,5", 2500.5}, {Leave, "", "1", 1}}},
        {"fr_FR", -50, 2000, 3,
         {{Type, QString::fromUtf8("1\u202F234,5"), "1234,5", 1234.5},
          {Up, "", QString::fromUtf8("1\u202F234,501"), 1234.501}, {Type, "1.5", "15", 15},
          {Set, "-0.5", "-0,5", -0.5}, {Down, "", "-0,501", -0.501},
          {Type, "-70", "-70", -70}, {Leave, "", "-50", -50}}},
        {"hi_IN", 0, 5e6, 2,
         {{Set, "1234567.5", "12,34,567.5", 1234567.5}, {Down, "", "12,34,567.49", 1234567.49},
          {Type, "1,2", "12", 12}, {Paste, "90,00,000", "90,00,000", 9e6}, {Leave, "", "0", 0}}},
        // Zeros of this script aren't trimmed. Latin digits are read too.
        {"ar_EG", 0, 2000, 2,
         {{Type, QString::fromUtf8("١٬٢٫٥"), QString::fromUtf8("١٢٫٥"), 12.5},
          {Up, "", QString::fromUtf8("١٢٫٥١"), 12.51}, {Set, "3", QString::fromUtf8("٣٫٠٠"), 3},
          {Type, "7.5", "75", 75}, {Type, "2500", "2500", 2500},
          {Leave, "", QString::fromUtf8("٢٬٠٠٠٫٠٠"), 2000}}},
        // Each digit takes two UTF-16 units.
        {"ff_Adlm_GN", 0, 2000, 2,
         {{Set, "3", QString::fromUtf8("𞥓.𞥐𞥐"), 3}, {Up, "", QString::fromUtf8("𞥓.𞥐𞥑"), 3.01},
          {Type, QString::fromUtf8("𞥑𞥒.𞥕"), QString::fromUtf8("𞥑𞥒.𞥕"), 12.5},
          {Type, QString::fromUtf8("𞥒𞥕𞥐𞥐"), QString::fromUtf8("𞥒𞥕𞥐𞥐"), 2500}}},
    };
    // clang-format on
    return sRows;
}

// A number that the program sets, at these decimals in the range 1 to 100, and what comes of it.
struct SetRow
{
    const char *name;
    int decimals;
    double number;
    const char *text;
    const char *told;
};

constexpr SetRow kSetRows[] = {
    {"cut, not rounded", 2, 1.237, "1.23", "changed 1.237"},
    {"rounded at the sixth only", 2, 1.2399999, "1.24", "changed 1.2399999"},
    {"zeros trimmed", 3, 2.5, "2.5", "changed 2.5"},
    {"point trimmed", 2, 2.0, "2", "changed 2"},
    {"inner zeros stay", 2, 100.0, "100", "changed 100"},
    {"bounded below", 2, -500.0, "1", "changed 1"},
    {"point stays", 0, 7.9, "7.", "changed 7.9"},
    {"infinite", 2, std::numeric_limits<double>::infinity(), "100", "changed 100"},
    {"not a number", 2, std::numeric_limits<double>::quiet_NaN(), "1", "changed 1"},
};

struct EndRow
{
    const char *name;
    const char *typed;
    Qt::Key key;
    QStringList log;
};

const QList<EndRow> kEndRows = {
    {"good, Tab", "50", Qt::Key_Tab, {"changing 5", "changing 50", "changed 50"}},
    {"bad, Tab", "500", Qt::Key_Tab, {"changing 5", "changing 50", "changed 100", "bad 500 1 100 2"}},
    {"good, Enter", "50", Qt::Key_Enter, {"changing 5", "changing 50", "changed 50"}},
    {"half typed", ".", Qt::Key_Tab, {"changed 1", "bad . 1 100 2"}},
};

// Sends one of the events that a held Up key repeats.
void repeatKey(QWidget *inField, QTest::KeyAction inAction)
{
    QTest::simulateEvent(inField, inAction == QTest::Press, Qt::Key_Up, {}, QString(), true);
}

void stepByKey(double inMinimum, double inMaximum)
{
    VantraDoubleLineEditBase field;
    field.setMinimum(inMinimum);
    field.setMaximum(inMaximum);
    QTest::keyPress(&field, Qt::Key_Up);
}

} // namespace

FATAL_CASE(maximumBelowFour)
{
    stepByKey(-100.0, 3.99);
}

FATAL_CASE(rangeBelowFour)
{
    stepByKey(96.5, 100.0);
}

FATAL_CASE(setValueOnEmptyRange)
{
    VantraDoubleLineEditBase field;
    field.setMinimum(101.0);
    field.setValue(50.0);
}

FATAL_CASE(fieldOutlivesTheApplication)
{
    const VantraDoubleLineEditBase field;
    qApp->~QApplication();
}

class tst_VantraDoubleLineEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(ThemeFixture::load()); }
    void init() { VTQtLocale::setApplicationLocale(QLocale::c()); }
    void textAndNumberInLocale_data() { DataRows::add(localeRows()); }
    void textAndNumberInLocale();
    void numbersAreCutTrimmedAndTold_data() { DataRows::add(kSetRows); }
    void numbersAreCutTrimmedAndTold();
    void setValueIsSilentWhereItShouldBe();
    void endOfEditingTellsInOrder_data() { DataRows::add(kEndRows); }
    void endOfEditingTellsInOrder();
    void emptiedField();
    void focusSelectsAll();
    void keysThatDoNothing();
    void heldKeyStepsFaster();
    void contextMenuCommitsNothing();
    void mayOutliveTheApplication();
    void randomInputLeavesNoBadText();
    void wrongRangesStopTheProcess();
    void assistantsSeeATextField();
};

void tst_VantraDoubleLineEdit::textAndNumberInLocale()
{
    const LocaleRow row = DataRows::current(localeRows());
    VTQtLocale::setApplicationLocale(QLocale(QLatin1String(row.name)));
    Form form(row.minimum, row.maximum, row.decimals);
    QVERIFY(form.start());
    for (const Step &step : row.steps) {
        form.field.setFocus();
        form.field.selectAll();
        switch (step.action) {
        case Type: form.type(step.argument); break;
        case Paste: form.paste(step.argument); break;
        case Up: form.key(Qt::Key_Up); break;
        case Down: form.key(Qt::Key_Down); break;
        case Set: form.field.setValue(step.argument.toDouble()); break;
        case Leave: form.key(Qt::Key_Tab); break;
        case Return: form.key(Qt::Key_Return); break;
        }
        QCOMPARE(form.field.text(), step.text);
        QCOMPARE(form.field.value(), step.value);
        QCOMPARE(form.field.hasFocus(), step.action != Leave && step.action != Return);
    }
}

void tst_VantraDoubleLineEdit::numbersAreCutTrimmedAndTold()
{
    const SetRow row = DataRows::current(kSetRows);
    Form form(1.0, 100.0, row.decimals);
    form.field.setValue(row.number);
    QCOMPARE(form.field.text(), QLatin1String(row.text));
    QCOMPARE(form.log, QStringList(QLatin1String(row.told)));
}

void tst_VantraDoubleLineEdit::setValueIsSilentWhereItShouldBe()
{
    Form form(0.0, 100.0);
    form.field.setValue(0.0); // the empty text reads as 0 too, but has to be written
    QCOMPARE(form.log, QStringList(QStringLiteral("changed 0")));
    form.log.clear();
    form.field.setValue(0.0);
    form.field.setValueAndBlockSignals(12.5);
    QCOMPARE(form.field.text(), QStringLiteral("12.5"));
    // A limit that is cut to outside the range can't be written.
    form.field.setMinimum(12.345);
    form.field.setValue(3.0);
    QCOMPARE(form.field.text(), QStringLiteral("12.5"));
    QCOMPARE(form.log, QStringList());
}

void tst_VantraDoubleLineEdit::endOfEditingTellsInOrder()
{
    const EndRow row = DataRows::current(kEndRows);
    Form form;
    QVERIFY(form.start());
    form.type(QLatin1String(row.typed));
    form.key(row.key);
    QVERIFY(!form.field.hasFocus());
    QCOMPARE(form.log, row.log);
}

void tst_VantraDoubleLineEdit::emptiedField()
{
    Form form(1.0, 5e6);
    form.field.setValueAndBlockSignals(9.0);
    QVERIFY(form.start());
    form.field.selectAll();
    form.key(Qt::Key_Backspace);
    QCOMPARE(form.log, QStringList(QStringLiteral("changing 1")));
    form.key(Qt::Key_Tab);
    QCOMPARE(form.field.text(), QString()); // counts as the minimum, which is good
    // A minimum that is written with an exponent isn't.
    form.field.setMinimum(2e6);
    form.field.setFocus();
    form.log.clear();
    form.key(Qt::Key_Tab);
    QCOMPARE(form.field.text(), QStringLiteral("2000000"));
    QCOMPARE(form.log, (QStringList{"changed 2000000", "bad 2e+06 2e+06 5e+06 2"}));
}

void tst_VantraDoubleLineEdit::focusSelectsAll()
{
    Form form;
    form.field.setValue(12.5);
    form.button.setFocus();
    QVERIFY(UserActions::showActive(form));
    UserActions::click(&form.field, form.field.rect().center());
    QTRY_COMPARE(form.field.selectedText(), QStringLiteral("12.5"));
    QVERIFY(form.field.font().underline());
    form.key(Qt::Key_Return);
    QVERIFY(!form.field.font().underline());
}

void tst_VantraDoubleLineEdit::keysThatDoNothing()
{
    Form form(1.0, 100.0, 0);
    QVERIFY(form.start());
    form.type(QStringLiteral("1.2"));
    QCOMPARE(form.field.text(), QStringLiteral("12"));
    form.key(Qt::Key_Escape);
    QCOMPARE(form.field.text(), QStringLiteral("12"));
    form.field.setReadOnly(true);
    form.key(Qt::Key_Up);
    form.key(Qt::Key_Down);
    QCOMPARE(form.field.text(), QStringLiteral("12"));
    form.field.setReadOnly(false);
    form.key(Qt::Key_Up);
    QCOMPARE(form.field.value(), 13.0);
}

void tst_VantraDoubleLineEdit::heldKeyStepsFaster()
{
    Form form(0.0, 100.0, 3);
    QVERIFY(form.start());
    form.field.setValue(10.0);
    const auto stepOf = [&form](const std::function<void()> &inStep) {
        const double before = form.field.value();
        inStep();
        return qRound((form.field.value() - before) * 1000.0);
    };
    const auto press = [&form] { QTest::keyPress(&form.field, Qt::Key_Up); };
    form.field.startKeyPressElapsedTimer();
    QCOMPARE(stepOf(press), 1);
    QTest::qWait(1050);
    repeatKey(&form.field, QTest::Release); // X11 sends one before each press that it repeats
    const auto repeat = [&form] { repeatKey(&form.field, QTest::Press); };
    QVERIFY(stepOf(repeat) >= 400); // in tenths, whatever the decimals
    QCOMPARE(stepOf([&form] { form.field.decrement(); }) % 200, 0);
    QTest::keyRelease(&form.field, Qt::Key_Up);
    QCOMPARE(stepOf(press), 1);
    QTest::qWait(1050);
    QEvent deactivation(QEvent::ApplicationDeactivate);
    QCoreApplication::sendEvent(qApp, &deactivation);
    QCOMPARE(stepOf([&form] { form.field.increment(); }), 1);
    form.field.setKeyPressIncrement(2.0);
    QCOMPARE(stepOf([&form] { form.field.increment(); }), 2000);
    form.field.setValue(10.0);
    form.field.setDecimals(1);
    QCOMPARE(stepOf([&form] { form.field.increment(); }), 100);
}

void tst_VantraDoubleLineEdit::contextMenuCommitsNothing()
{
    Form form;
    QVERIFY(form.start());
    form.type(QStringLiteral("500"));
    QCoreApplication::processEvents(); // the focus selects the text now
    form.field.setSelection(1, 1);
    form.log.clear();
    QMenu *menu = UserActions::openContextMenu(&form.field);
    QVERIFY(menu != nullptr);
    QCOMPARE(form.field.text(), QStringLiteral("500"));
    QCOMPARE(form.field.selectedText(), QStringLiteral("0"));
    QCOMPARE(form.log, QStringList());
    menu->close();
    form.field.setText(QStringLiteral("50"));
    form.field.setSelection(0, 1);
    QCoreApplication::processEvents();
    QCOMPARE(form.field.selectedText(), QStringLiteral("5"));
}

void tst_VantraDoubleLineEdit::mayOutliveTheApplication()
{
    const FatalTest::Outcome outcome = FatalTest::run("fieldOutlivesTheApplication");
    QVERIFY2(!outcome.aborted, qPrintable(outcome.output));
}

// Whatever is typed, pasted, stepped and set, a text that stays when the focus has left is a good one. There
// are three exceptions, all of them known:
// - A text that reads as 0 in both the number locale and the C locale, such as "-" or ".", in a range with 0:
//   setValue sees no other number to write.
// - A negative number to be written in a locale whose minus sign takes two characters, as in Arabic, which
//   Qt's validator refuses.
// - A limit with more digits than the field has decimals may be cut to outside the range. Limits here have
//   no more than the field.
void tst_VantraDoubleLineEdit::randomInputLeavesNoBadText()
{
    bool ok = false;
    const int chosen = qEnvironmentVariableIntValue("VTWIDGETS_FIELD_ACTIONS", &ok);
    const int actions = ok ? chosen : 100000;
    QRandomGenerator random(20240229);
    const QStringList locales = {"C", "en_US", "de_DE", "fr_FR", "hi_IN", "ar_EG"};
    int checked = 0;
    for (int action = 0; action < actions;) {
        VTQtLocale::setApplicationLocale(QLocale(locales.at(random.bounded(int(locales.size())))));
        const VTQtLocale locale;
        const int decimals = random.bounded(7);
        const double scale = std::pow(10.0, random.bounded(decimals + 1));
        const int top = int(std::pow(10.0, 1 + random.bounded(6)) * 2);
        // Stepping needs a maximum and a range of at least 4.
        const int maximum = random.bounded(4, 4 + top);
        const int minimum = maximum - 4 - random.bounded(2 * top);
        const int fraction = int(scale) > 1 ? random.bounded(int(scale)) : 0;
        Form form((minimum * scale - fraction) / scale, (maximum * scale + fraction) / scale, decimals);
        Field &field = form.field;
        QVERIFY(form.start());
        const QString letters = QStringLiteral("0123456789.,-+e ") + locale.zeroDigit() +
                                locale.negativeSign() + locale.decimalPoint() + locale.groupSeparator();
        const auto letter = [&] { return letters.at(random.bounded(int(letters.size()))); };
        for (const int end = action + 500; action < end; ++action) {
            field.setFocus();
            const int kind = random.bounded(20);
            if (kind < 9) {
                form.type(letter());
            } else if (kind < 14) {
                static constexpr Qt::Key kKeys[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Backspace, Qt::Key_Home,
                                                    Qt::Key_Return};
                QTest::keyClick(&field, kKeys[kind - 9]);
            } else if (kind < 16) {
                QString text;
                for (int count = random.bounded(9); count > 0; --count) {
                    text += letter();
                }
                form.paste(text);
            } else if (kind == 16) {
                field.setValue((random.generateDouble() * 3.0 - 1.5) * top);
            } else if (kind == 17) {
                field.selectAll();
            } else {
                const QString before = field.text();
                form.button.setFocus();
                const double number = qBound(field.minimum(), before.toDouble(), field.maximum());
                const bool nothingToWrite = number == field.value();
                const bool noSign = number < 0.0 && locale.negativeSign().size() > 1;
                const bool good = field.text().isEmpty() || field.hasAcceptableInput();
                const QString range = QStringLiteral("%1 to %2").arg(field.minimum()).arg(field.maximum());
                QVERIFY2(good || nothingToWrite || noSign,
                         qPrintable(QStringList({locale.name(), range, before, field.text()}).join("; ")));
                ++checked;
            }
        }
    }
    QVERIFY(checked > actions / 20);
}

void tst_VantraDoubleLineEdit::wrongRangesStopTheProcess()
{
    QCOMPARE(FatalTest::assertionOf("maximumBelowFour"), QStringLiteral("maximum() >= 4"));
    QCOMPARE(FatalTest::assertionOf("rangeBelowFour"), QStringLiteral("!(max < min)"));
    QCOMPARE(FatalTest::assertionOf("setValueOnEmptyRange"), QStringLiteral("!(max < min)"));
}

void tst_VantraDoubleLineEdit::assistantsSeeATextField()
{
    Field field;
    field.setAccessibleName(QStringLiteral("Radius"));
    field.setValue(12.5);
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&field);
    QVERIFY(accessible != nullptr && accessible->actionInterface() != nullptr);
    QCOMPARE(accessible->role(), QAccessible::EditableText);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Radius"));
    QCOMPARE(accessible->text(QAccessible::Value), QStringLiteral("12.5"));
    QVERIFY(
        accessible->actionInterface()->actionNames().contains(QAccessibleActionInterface::setFocusAction()));
}

FATAL_TEST_MAIN(tst_VantraDoubleLineEdit)
#include "tst_VantraDoubleLineEdit.moc"

#include "GalleryPage.h"

#include "Controls/VantraDoubleLineEdit.h"
#include "Controls/VantraLineEdit.h"
#include "Controls/VantraTextEdit.h"
#include "StateSample.h"
#include "Theme/VantraFont.h"
#include "VTQtLocale.h"

#include <QtGui/QEnterEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kFieldWidth = 150;
constexpr int kPillMargin = 8; // keeps a text out of the round ends
constexpr QSize kBoxSize(220, 88);
constexpr QSize kLogSize(480, 150);
constexpr int kLogLines = 200;

const QString kLongText = QStringLiteral("A text that is a good deal longer than the field is wide");
const QString kParagraph = QStringLiteral(
    "Light falls through the window and draws a pale square on the floor. It wanders through the "
    "room all morning, climbs the wall in the afternoon, and is gone before anyone has lit a lamp. "
    "Nobody ever saw it leave.");

using FocusedLineEdit = StateSample<VantraLineEdit, QStyleOptionFrame>;

// Shows a field as it is under the pointer.
void hover(QWidget *ioField)
{
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(ioField, &enter);
}

void underline(QWidget *ioField)
{
    QFont font = ioField->font();
    font.setUnderline(true);
    ioField->setFont(font);
}

// One border style in all states.
void addLineEditRows(SampleGrid &ioGrid, VantraLineEditBase::BorderStyle inStyle)
{
    const auto add = [&](const char *inCaption, VantraLineEditBase *inEdit, const QString &inText) {
        inEdit->setBorderStyle(inStyle);
        inEdit->setText(inText);
        inEdit->setCursorPosition(0);
        if (inStyle == VantraLineEditBase::BorderStandard)
            inEdit->setTextMargins(kPillMargin, 0, kPillMargin, 0);
        inEdit->setFixedWidth(kFieldWidth);
        inEdit->setAccessibleName(QLatin1String(inCaption));
        ioGrid.add(QLatin1String(inCaption), inEdit);
        return inEdit;
    };
    const QString text = QStringLiteral("Text");
    add("normal", new VantraLineEdit, text);
    hover(add("hovered", new VantraLineEdit, text));
    underline(add("focused", new FocusedLineEdit(kFocused.added), text));
    add("disabled", new VantraLineEdit, text)->setEnabled(false);
    add("placeholder", new VantraLineEdit, QString())->setPlaceholderText(QStringLiteral("Placeholder"));
    add("read only", new VantraLineEdit, text)->setReadOnly(true);
    add("long text", new VantraLineEdit, kLongText);
    add("right to left", new VantraLineEdit, QString::fromUtf8("نص"))->setLayoutDirection(Qt::RightToLeft);
}

VantraTextEdit *makeTextEdit(VantraTextEdit::BorderStyle inStyle, const QString &inText)
{
    auto *edit = new VantraTextEdit;
    edit->setFont(VantraFont::mainFont());
    edit->setBorderStyle(inStyle);
    edit->setPlainText(inText);
    edit->setPlaceholderText(QStringLiteral("Placeholder"));
    edit->setFixedSize(kBoxSize);
    return edit;
}

void addTextEdits(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    const auto add = [&](const char *inCaption, VantraTextEdit *inEdit) {
        inEdit->setAccessibleName(QLatin1String(inCaption));
        grid.add(QLatin1String(inCaption), inEdit);
        return inEdit;
    };
    add("no border", makeTextEdit(VantraTextEdit::BorderNone, kParagraph));
    add("highlight", makeTextEdit(VantraTextEdit::BorderHighlight, kParagraph));
    add("standard", makeTextEdit(VantraTextEdit::BorderStandard, kParagraph));
    hover(add("highlight, hovered", makeTextEdit(VantraTextEdit::BorderHighlight, kParagraph)));
    add("placeholder", makeTextEdit(VantraTextEdit::BorderHighlight, QString()));
    add("disabled", makeTextEdit(VantraTextEdit::BorderHighlight, kParagraph))->setEnabled(false);
    add("read only", makeTextEdit(VantraTextEdit::BorderHighlight, kParagraph))->setReadOnly(true);
    add("Ctrl+Return adds a line", makeTextEdit(VantraTextEdit::BorderHighlight, QStringLiteral("One line")))
        ->setAcceptEnterKey(true);
}

// A program has one locale for its numbers. This field has one of its own, by choosing it for as long as it
// handles an event.
class LocaleField : public VantraDoubleLineEdit
{
public:
    // Made by make alone, since the base needs the locale too.
    static LocaleField *make(const QLocale &inLocale, double inValue)
    {
        const Choice choice(inLocale);
        auto *field = new LocaleField(inLocale);
        field->setRange(inValue);
        return field;
    }

protected:
    bool event(QEvent *inEvent) override
    {
        const Choice choice(mLocale);
        return VantraDoubleLineEdit::event(inEvent);
    }

private:
    struct Choice
    {
        explicit Choice(const QLocale &inLocale) { VTQtLocale::setApplicationLocale(inLocale); }
        ~Choice() { VTQtLocale::unsetApplicationLocale(); }
        Q_DISABLE_COPY_MOVE(Choice)
    };

    explicit LocaleField(const QLocale &inLocale) : mLocale(inLocale) {}

    void setRange(double inValue)
    {
        setMinimum(0.0);
        setMaximum(5e6);
        setValue(inValue);
    }

    QLocale mLocale;
};

// Keys step, so every range here is at least 4 wide and reaches at least 4.
struct NumberSample
{
    const char *caption;
    double minimum;
    double maximum;
    int decimals;
    double value;
};

constexpr NumberSample kNumberSamples[] = {
    {"1 to 100, 2 decimals", 1.0, 100.0, 2, 12.5},        {"0 to 255, whole", 0.0, 255.0, 0, 128.0},
    {"-5 to 5, 2 decimals", -5.0, 5.0, 2, -0.35},         {"-180 to 180, 1 decimal", -180.0, 180.0, 1, 22.5},
    {"2000 to 50000, whole", 2000.0, 50000.0, 0, 5500.0}, {"0 to 10, 4 decimals", 0.0, 10.0, 4, 3.1415},
};

constexpr const char *kLocaleNames[] = {"C", "de_DE", "fr_FR", "hi_IN", "ar_EG"};

class FieldsPage : public GalleryPage
{
public:
    explicit FieldsPage(QWidget *inParent) : GalleryPage(inParent), mLog(new QPlainTextEdit)
    {
        addLineEdits("Line edit, no border", "A ground shows only under the pointer.",
                     VantraLineEditBase::BorderNone);
        addLineEdits("Line edit, highlight", "", VantraLineEditBase::BorderHighlight);
        addLineEdits("Line edit, standard", "A pill. Text margins are the program's own.",
                     VantraLineEditBase::BorderStandard);
        addTextEdits(addSection(
            QStringLiteral("Text edit"),
            QStringLiteral("Return ends the editing and adds no line. Tab goes on to the next field.")));

        mLog->setReadOnly(true);
        mLog->setMaximumBlockCount(kLogLines);
        mLog->setFixedSize(kLogSize);
        mLog->setAccessibleName(QStringLiteral("Signals of the numeric fields"));
        QVBoxLayout *body = addSection(
            QStringLiteral("Numeric field"),
            QStringLiteral("Up and Down step, faster the longer they are held. Return commits. A number "
                           "outside the range becomes the nearest one inside when the focus leaves."));
        addNumbers(body);
        body->addSpacing(8);
        body->addWidget(makeCaption(QStringLiteral("signals, the latest at the end")));
        body->addWidget(mLog);
    }

    // Fields take the font of the text size that holds when they are made.
    void refresh() override
    {
        const auto setFontOf = [](QWidget *ioField) {
            QFont font = VantraFont::mainFont();
            font.setUnderline(ioField->font().underline());
            ioField->setFont(font);
        };
        for (QWidget *field : findChildren<VantraLineEditBase *>())
            setFontOf(field);
        for (QWidget *field : findChildren<VantraTextEdit *>())
            setFontOf(field);
    }

private:
    void addLineEdits(const char *inTitle, const char *inNote, VantraLineEditBase::BorderStyle inStyle)
    {
        SampleGrid grid(addSection(QLatin1String(inTitle), QLatin1String(inNote)), 4);
        addLineEditRows(grid, inStyle);
    }

    void addNumbers(QVBoxLayout *ioLayout)
    {
        SampleGrid grid(ioLayout, 4);
        for (const NumberSample &sample : kNumberSamples) {
            auto *field = addNumber(grid, QLatin1String(sample.caption), new VantraDoubleLineEdit);
            field->setMinimum(sample.minimum);
            field->setMaximum(sample.maximum);
            field->setDecimals(sample.decimals);
            field->setValue(sample.value);
        }
        auto *readOnly = addNumber(grid, QStringLiteral("read only"), new VantraDoubleLineEdit);
        readOnly->setValueAndBlockSignals(50.0);
        readOnly->setReadOnly(true);
        auto *disabled = addNumber(grid, QStringLiteral("disabled"), new VantraDoubleLineEdit);
        disabled->setValueAndBlockSignals(50.0);
        disabled->setEnabled(false);
        for (const char *name : kLocaleNames)
            addNumber(grid, QStringLiteral("locale ") + QLatin1String(name),
                      LocaleField::make(QLocale(QLatin1String(name)), 1234567.5));
    }

    VantraDoubleLineEdit *addNumber(SampleGrid &ioGrid, const QString &inCaption,
                                    VantraDoubleLineEdit *inField)
    {
        inField->setBorderStyle(VantraLineEditBase::BorderHighlight);
        inField->setFixedWidth(kFieldWidth);
        inField->setAccessibleName(inCaption);
        ioGrid.add(inCaption, inField);
        const auto log = [this, inCaption](const QString &inLine) {
            mLog->appendPlainText(inCaption + QStringLiteral(":  ") + inLine);
        };
        connect(inField, &VantraDoubleLineEdit::valueChanging, this,
                [log](double inValue) { log(QStringLiteral("valueChanging %1").arg(inValue, 0, 'g', 9)); });
        connect(inField, &VantraDoubleLineEdit::valueChanged, this,
                [log](double inValue) { log(QStringLiteral("valueChanged %1").arg(inValue, 0, 'g', 9)); });
        connect(inField, &VantraDoubleLineEdit::valueOutOfRange, this,
                [log](const QString &inText, double inMinimum, double inMaximum, int inDecimals) {
                    log(QStringLiteral("valueOutOfRange \"%1\", %2 to %3, %4 decimals")
                            .arg(inText)
                            .arg(inMinimum)
                            .arg(inMaximum)
                            .arg(inDecimals));
                });
        return inField;
    }

    QPlainTextEdit *mLog;
};
} // namespace

GalleryPage *makeFieldsPage(QWidget *inParent)
{
    return new FieldsPage(inParent);
}

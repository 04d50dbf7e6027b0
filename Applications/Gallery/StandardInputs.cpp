#include "StandardSections.h"

#include "DrawnIcons.h"
#include "GalleryPage.h"
#include "StateSample.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QDial>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kFieldWidth = 150;
constexpr int kBarLength = 220;

const QString kLongText = QStringLiteral("A text that is a good deal longer than the field is wide");
const QString kParagraph = QStringLiteral(
    "Light falls through the window and draws a pale square on the floor. It wanders through the "
    "room all morning, climbs the wall in the afternoon, and is gone before anyone has lit a lamp. "
    "Nobody ever saw it leave.");

void fill(QComboBox *ioBox)
{
    ioBox->addItems({QStringLiteral("Portrait"), QStringLiteral("Landscape"), QStringLiteral("Square")});
}

template <typename Slider>
void setUpSlider(Slider *ioSlider, int inMinimum, int inMaximum, int inValue)
{
    ioSlider->setOrientation(Qt::Horizontal);
    ioSlider->setRange(inMinimum, inMaximum);
    ioSlider->setValue(inValue);
    ioSlider->setFixedWidth(kBarLength);
}

QProgressBar *makeProgressBar(int inMaximum, int inValue)
{
    auto *bar = new QProgressBar;
    bar->setRange(0, inMaximum);
    bar->setValue(inValue);
    bar->setFixedWidth(kBarLength);
    return bar;
}

template <typename Edit>
Edit *makeTextEdit(const QString &inText, bool inEnabled)
{
    auto *edit = new Edit;
    edit->setPlainText(inText);
    edit->setPlaceholderText(QStringLiteral("Placeholder"));
    edit->setEnabled(inEnabled);
    edit->setFixedSize(kBarLength, 88);
    return edit;
}
} // namespace

void addComboBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    const auto make = [](bool inEnabled = true) {
        auto *box = new QComboBox;
        fill(box);
        box->setEnabled(inEnabled);
        return box;
    };
    grid.add(QStringLiteral("plain"), make());
    addStateSamples<QComboBox, QStyleOptionComboBox>(grid, [](QComboBox *ioBox) { fill(ioBox); });
    grid.add(QStringLiteral("disabled"), make(false));

    for (const bool enabled : {true, false}) {
        QComboBox *editable = make(enabled);
        editable->setEditable(true);
        grid.add(enabled ? QStringLiteral("editable") : QStringLiteral("editable, disabled"), editable);
    }
    grid.add(QStringLiteral("empty"), new QComboBox);
    auto *longText = make();
    longText->insertItem(0, kLongText);
    longText->setCurrentIndex(0);
    longText->setFixedWidth(kFieldWidth);
    grid.add(QStringLiteral("long text, cut"), longText);
    auto *icons = new QComboBox;
    icons->addItem(DrawnIcons::picture(), QStringLiteral("Picture"));
    icons->addItem(DrawnIcons::folder(), QStringLiteral("Folder"));
    grid.add(QStringLiteral("with icons"), icons);
}

void addLineEdits(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    const auto add = [&](const QString &inCaption, QLineEdit *inEdit, const QString &inText) {
        inEdit->setText(inText);
        inEdit->setFixedWidth(kFieldWidth);
        inEdit->setCursorPosition(0);
        grid.add(inCaption, inEdit);
        return inEdit;
    };
    add(QStringLiteral("text"), new QLineEdit, QStringLiteral("Text"));
    addStateSamples<QLineEdit, QStyleOptionFrame>(grid, [](QLineEdit *ioEdit) {
        ioEdit->setText(QStringLiteral("Text"));
        ioEdit->setFixedWidth(kFieldWidth);
    });
    add(QStringLiteral("disabled"), new QLineEdit, QStringLiteral("Text"))->setEnabled(false);
    add(QStringLiteral("placeholder"), new QLineEdit, QString())
        ->setPlaceholderText(QStringLiteral("Placeholder"));
    add(QStringLiteral("empty"), new QLineEdit, QString());
    add(QStringLiteral("long text"), new QLineEdit, kLongText);
    add(QStringLiteral("read only"), new QLineEdit, QStringLiteral("Text"))->setReadOnly(true);
    add(QStringLiteral("selection"), new QLineEdit, QStringLiteral("Text with selection"))
        ->setSelection(0, 9);
    add(QStringLiteral("password"), new QLineEdit, QStringLiteral("password"))
        ->setEchoMode(QLineEdit::Password);
    add(QStringLiteral("clear button"), new QLineEdit, QStringLiteral("Text"))->setClearButtonEnabled(true);
    add(QStringLiteral("action"), new QLineEdit, QStringLiteral("Text"))
        ->addAction(DrawnIcons::folder(), QLineEdit::TrailingPosition);
    add(QStringLiteral("no frame"), new QLineEdit, QStringLiteral("Text"))->setFrame(false);
}

void addTextEdits(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    grid.add(QStringLiteral("QPlainTextEdit"), makeTextEdit<QPlainTextEdit>(kParagraph, true));
    grid.add(QStringLiteral("QTextEdit"), makeTextEdit<QTextEdit>(kParagraph, true));
    grid.add(QStringLiteral("disabled"), makeTextEdit<QTextEdit>(kParagraph, false));
    grid.add(QStringLiteral("placeholder"), makeTextEdit<QPlainTextEdit>(QString(), true));
}

void addSpinBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    const auto setUp = [](QSpinBox *ioBox) {
        ioBox->setRange(-100, 100);
        ioBox->setValue(42);
        ioBox->setFixedWidth(90);
    };
    auto *plain = new QSpinBox;
    setUp(plain);
    grid.add(QStringLiteral("QSpinBox"), plain);
    addStateSamples<QSpinBox, QStyleOptionSpinBox>(grid, setUp);
    auto *disabled = new QSpinBox;
    setUp(disabled);
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);

    auto *suffixed = new QDoubleSpinBox;
    suffixed->setValue(50.25);
    suffixed->setSuffix(QStringLiteral(" mm"));
    suffixed->setMinimumWidth(110);
    grid.add(QStringLiteral("QDoubleSpinBox, suffix"), suffixed);
    auto *bare = new QSpinBox;
    setUp(bare);
    bare->setButtonSymbols(QAbstractSpinBox::NoButtons);
    grid.add(QStringLiteral("no buttons"), bare);
    auto *dateTime = new QDateTimeEdit(QDateTime(QDate(2024, 2, 29), QTime(12, 30)));
    dateTime->setMinimumWidth(170);
    grid.add(QStringLiteral("QDateTimeEdit"), dateTime);
    auto *calendar = new QDateEdit(QDate(2024, 2, 29));
    calendar->setCalendarPopup(true);
    calendar->setMinimumWidth(140);
    grid.add(QStringLiteral("QDateEdit, calendar"), calendar);
    auto *natural = new QSpinBox;
    natural->setValue(42);
    grid.add(QStringLiteral("as wide as it asks"), natural);
}

void addSliders(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    const auto add = [&](const QString &inCaption, int inMinimum, int inMaximum, int inValue) {
        auto *slider = new QSlider;
        setUpSlider(slider, inMinimum, inMaximum, inValue);
        grid.add(inCaption, slider);
        return slider;
    };
    add(QStringLiteral("0 to 100 at 30"), 0, 100, 30);
    addStateSamples<QSlider, QStyleOptionSlider>(
        grid, [](QSlider *ioSlider) { setUpSlider(ioSlider, 0, 100, 30); });
    add(QStringLiteral("-100 to 100 at -60"), -100, 100, -60);
    add(QStringLiteral("-100 to 100 at 40"), -100, 100, 40);
    add(QStringLiteral("10 to 20 at 17"), 10, 20, 17);
    add(QStringLiteral("-20 to -10 at -13"), -20, -10, -13);
    add(QStringLiteral("disabled"), 0, 100, 30)->setEnabled(false);
    add(QStringLiteral("inverted"), 0, 100, 30)->setInvertedAppearance(true);
    add(QStringLiteral("at its end"), 0, 100, 100);
    grid.endRow();
    auto *dial = new QDial;
    dial->setValue(40);
    dial->setFixedSize(64, 64);
    dial->setNotchesVisible(true);
    grid.add(QStringLiteral("QDial"), dial);
}

void addScrollBars(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    const auto setUp = [](QScrollBar *ioBar) {
        setUpSlider(ioBar, 0, 100, 40);
        ioBar->setPageStep(40);
    };
    const auto make = [&] {
        auto *bar = new QScrollBar;
        setUp(bar);
        return bar;
    };
    grid.add(QStringLiteral("horizontal"), make());
    addStateSamples<QScrollBar, QStyleOptionSlider>(grid, setUp);
    QScrollBar *disabled = make();
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);
    QScrollBar *full = make();
    full->setRange(0, 0);
    grid.add(QStringLiteral("nothing to scroll"), full);
    QScrollBar *tiny = make();
    tiny->setRange(0, 100000);
    grid.add(QStringLiteral("a long way"), tiny);
    grid.endRow();
    auto *vertical = new QScrollBar(Qt::Vertical);
    vertical->setRange(0, 100);
    vertical->setPageStep(60);
    vertical->setValue(20);
    vertical->setFixedHeight(100);
    grid.add(QStringLiteral("vertical"), vertical);
}

void addProgressBars(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    for (const int value : {0, 1, 40, 100})
        grid.add(QStringLiteral("%1 of 100").arg(value), makeProgressBar(100, value));
    grid.add(QStringLiteral("busy"), makeProgressBar(0, 0));
    auto *disabled = makeProgressBar(100, 40);
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);
    auto *inverted = makeProgressBar(100, 40);
    inverted->setInvertedAppearance(true);
    grid.add(QStringLiteral("inverted"), inverted);
}

#include "GalleryPage.h"

#include "StateSample.h"
#include "StyleOptions/VantraStyleOptionSlider.h"
#include "StyleOptions/VantraStyleOptionSpinBox.h"
#include "Theme/VantraFont.h"

#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kSliderWidth = 164;
constexpr int kBarLength = 200;
constexpr int kVerticalLength = 120;
constexpr int kFieldWidth = 120;

// A slider that hands the style a record, for what a plain slider can't say.
class RecordSlider : public QSlider
{
public:
    RecordSlider() : QSlider(Qt::Horizontal) {}

    void setGradientStops(const QGradientStops &inStops) { mGradientStops = inStops; }
    void setEnlargeHandle(bool inEnlarge) { mEnlargeHandle = inEnlarge; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        VantraStyleOptionSlider record;
        initStyleOption(&record);
        record.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
        record.gradientStops = mGradientStops;
        record.enlargeHandle = mEnlargeHandle;
        // A drag may leave the slider, which is then no longer under the pointer.
        if (isSliderDown())
            record.state |= QStyle::State_On;
        QPainter painter(this);
        style()->drawComplexControl(QStyle::CC_Slider, &record, &painter, this);
    }

private:
    QGradientStops mGradientStops;
    bool mEnlargeHandle = false;
};

// A spin box painted whole by the style, text and all. Qt's field is hidden and works on: it takes keys and
// wheel, and its selection is the emphasised span.
class RecordSpinBox : public QSpinBox
{
public:
    RecordSpinBox()
    {
        lineEdit()->hide();
        connect(lineEdit(), &QLineEdit::textChanged, this, qOverload<>(&QWidget::update));
        connect(lineEdit(), &QLineEdit::selectionChanged, this, qOverload<>(&QWidget::update));
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        VantraStyleOptionSpinBox record;
        initStyleOption(&record);
        record.displayText = lineEdit()->text();
        if (lineEdit()->hasSelectedText()) {
            record.highlightStart = lineEdit()->selectionStart();
            record.highlightEnd = lineEdit()->selectionEnd();
        }
        QPainter painter(this);
        style()->drawComplexControl(QStyle::CC_SpinBox, &record, &painter, this);
    }
};

// One row of the sliders' table.
struct SliderKind
{
    const char *caption;
    int minimum;
    int maximum;
    int value;
    bool inverted = false;
    Qt::LayoutDirection direction = Qt::LeftToRight;
    bool enlargeHandle = false;
    QGradientStops (*stops)() = nullptr;
};

QGradientStops temperatureStops()
{
    return {{0.0, QColor(84, 132, 222)}, {0.5, QColor(214, 214, 214)}, {1.0, QColor(232, 184, 64)}};
}

QGradientStops tintStops()
{
    return {{0.0, QColor(88, 176, 96)}, {0.5, QColor(214, 214, 214)}, {1.0, QColor(204, 92, 190)}};
}

QGradientStops hueStops()
{
    QGradientStops stops;
    for (int step = 0; step <= 6; ++step)
        stops << QGradientStop(step / 6.0, QColor::fromHsv(step * 60 % 360, 190, 225));
    return stops;
}

const SliderKind kSliderKinds[] = {
    {"-100 to 100", -100, 100, -60},
    {"-100 to 100", -100, 100, 40},
    {"0 to 100", 0, 100, 35},
    {"-20 to -10", -20, -10, -13},
    {"10 to 20", 10, 20, 17},
    {"upside down", 0, 100, 35, true},
    {"upside down, -100 to 100", -100, 100, 40, true},
    {"right to left", 0, 100, 35, false, Qt::RightToLeft},
    {"handle that grows", 0, 100, 35, false, Qt::LeftToRight, true},
    {"temperature", -100, 100, 20, false, Qt::LeftToRight, false, &temperatureStops},
    {"tint", -100, 100, -30, false, Qt::LeftToRight, false, &tintStops},
    {"hue, handle that grows", 0, 359, 210, false, Qt::LeftToRight, true, &hueStops},
};

template <typename Slider>
Slider *setUp(Slider *ioSlider, const SliderKind &inKind)
{
    ioSlider->setRange(inKind.minimum, inKind.maximum);
    ioSlider->setValue(inKind.value);
    ioSlider->setInvertedAppearance(inKind.inverted);
    ioSlider->setLayoutDirection(inKind.direction);
    ioSlider->setEnlargeHandle(inKind.enlargeHandle);
    if (inKind.stops)
        ioSlider->setGradientStops(inKind.stops());
    ioSlider->setFixedWidth(kSliderWidth);
    ioSlider->setAccessibleName(QLatin1String(inKind.caption));
    return ioSlider;
}

// Shows the value of a slider, a scroll bar or a progress bar, as wide as its longest.
template <typename Ranged>
HouseLabel *makeValueLabel(Ranged *inRanged)
{
    auto *label = new HouseLabel(QString::number(inRanged->value()), &VantraFont::mainFont);
    const auto widthOf = [label](int inValue) {
        return label->fontMetrics().horizontalAdvance(QString::number(inValue));
    };
    label->setMinimumWidth(qMax(widthOf(inRanged->minimum()), widthOf(inRanged->maximum())) + 4);
    QObject::connect(inRanged, &Ranged::valueChanged, label, qOverload<int>(&QLabel::setNum));
    return label;
}

// A widget with its value beside it.
template <typename Ranged>
QWidget *withValue(Ranged *inRanged)
{
    auto *pair = new QWidget;
    auto *layout = new QHBoxLayout(pair);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(inRanged);
    layout->addWidget(makeValueLabel(inRanged));
    return pair;
}

void addSliderTable(QVBoxLayout *ioLayout)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(10);
    ioLayout->addLayout(grid);
    int column = 1;
    for (const char *heading : {"live", "hovered", "keyboard focus", "disabled"})
        grid->addWidget(makeCaption(QLatin1String(heading)), 0, column++);
    int row = 1;
    for (const SliderKind &kind : kSliderKinds) {
        grid->addWidget(new HouseLabel(QLatin1String(kind.caption), &VantraFont::mainFont), row, 0);
        grid->addWidget(withValue(setUp(new RecordSlider, kind)), row, 1);
        column = 2;
        for (const SampleState &state : {kHovered, kFocused})
            grid->addWidget(
                setUp(new StateSample<RecordSlider, QStyleOptionSlider>(state.added, state.removed), kind),
                row, column++);
        RecordSlider *disabled = setUp(new RecordSlider, kind);
        disabled->setEnabled(false);
        grid->addWidget(disabled, row++, column);
    }
    grid->setColumnStretch(column + 1, 1);
}

void addSpinBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    const auto add = [&grid](const QString &inCaption, const QString &inSuffix) {
        auto *box = new RecordSpinBox;
        box->setRange(-1000, 1000);
        box->setSuffix(inSuffix);
        box->setValue(1000 / 8);
        box->setFixedWidth(kFieldWidth);
        box->setAccessibleName(inCaption);
        grid.add(inCaption, box);
        return box;
    };
    add(QStringLiteral("text alone"), QString());
    add(QStringLiteral("with a unit"), QStringLiteral(" px"));
    add(QStringLiteral("number emphasised"), QStringLiteral(" px"))->selectAll();
    const auto selectPart = [](QSpinBox *ioBox) {
        ioBox->findChild<QLineEdit *>()->setSelection(1, 2);
        return ioBox;
    };
    selectPart(add(QStringLiteral("two digits emphasised"), QStringLiteral(" px")));
    add(QStringLiteral("disabled"), QStringLiteral(" px"))->setEnabled(false);
    selectPart(add(QStringLiteral("disabled, emphasised"), QStringLiteral(" px")))->setEnabled(false);
    add(QStringLiteral("right to left"), QStringLiteral(" px"))->setLayoutDirection(Qt::RightToLeft);
}

QScrollBar *makeScrollBar(Qt::Orientation inOrientation, int inMaximum, int inPageStep)
{
    auto *bar = new QScrollBar(inOrientation);
    bar->setRange(0, inMaximum);
    bar->setPageStep(inPageStep);
    bar->setValue(inMaximum * 2 / 5);
    if (inOrientation == Qt::Horizontal)
        bar->setFixedWidth(kBarLength);
    else
        bar->setFixedHeight(kVerticalLength);
    return bar;
}

void addScrollBars(QVBoxLayout *ioLayout, Qt::Orientation inOrientation)
{
    const bool isHorizontal = inOrientation == Qt::Horizontal;
    SampleGrid grid(ioLayout, isHorizontal ? 3 : 6);
    const auto add = [&](const char *inCaption, int inMaximum, int inPageStep) {
        QScrollBar *bar = makeScrollBar(inOrientation, inMaximum, inPageStep);
        bar->setAccessibleName(QLatin1String(inCaption));
        grid.add(QLatin1String(inCaption), withValue(bar));
        return bar;
    };
    add(isHorizontal ? "horizontal" : "vertical", 100, 50);
    add("nearly all in view", 10, 100);
    add("shortest thumb", 100000, 10);
    add("nothing to scroll", 0, 100);
    add("upside down", 100, 50)->setInvertedAppearance(true);
    if (isHorizontal)
        add("right to left", 100, 50)->setLayoutDirection(Qt::RightToLeft);
    add("disabled", 100, 50)->setEnabled(false);
}

void addProgressBars(QVBoxLayout *ioLayout)
{
    auto *source = new QSlider(Qt::Horizontal);
    source->setRange(0, 100);
    source->setFixedWidth(kBarLength);
    source->setAccessibleName(QStringLiteral("Progress"));
    SampleGrid drive(ioLayout, 1);
    drive.add(QStringLiteral("moves the bars below"), withValue(source));

    SampleGrid grid(ioLayout, 3);
    const auto add = [&](const QString &inCaption) {
        auto *bar = new QProgressBar;
        bar->setFixedWidth(kBarLength);
        bar->setAccessibleName(inCaption);
        QObject::connect(source, &QSlider::valueChanged, bar, &QProgressBar::setValue);
        grid.add(inCaption, withValue(bar));
        return bar;
    };
    add(QStringLiteral("plain"));
    add(QStringLiteral("inverted"))->setInvertedAppearance(true);
    add(QStringLiteral("right to left"))->setLayoutDirection(Qt::RightToLeft);
    add(QStringLiteral("disabled"))->setEnabled(false);
    source->setValue(65);

    // A bar without a range has no value to show.
    const auto addBusy = [&](const QString &inCaption) {
        auto *bar = new QProgressBar;
        bar->setRange(0, 0);
        bar->setFixedWidth(kBarLength);
        grid.add(inCaption, bar);
        return bar;
    };
    addBusy(QStringLiteral("busy"));
    addBusy(QStringLiteral("busy, disabled"))->setEnabled(false);
}

class SlidersPage : public GalleryPage
{
public:
    explicit SlidersPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addSliderTable(addSection(
            QStringLiteral("Sliders"),
            QStringLiteral("The value's span starts at zero when zero is in the range, and otherwise at the "
                           "range's low end; upside down, at its high end. A gradient groove has no "
                           "span.")));
        addSpinBoxes(addSection(
            QStringLiteral("Spin boxes painted whole"),
            QStringLiteral("The style paints the text and emphasises a span of it: here what is selected. "
                           "Arrow keys, wheel and typing work.")));
        QVBoxLayout *bars = addSection(QStringLiteral("Scroll bars"));
        addScrollBars(bars, Qt::Horizontal);
        addScrollBars(bars, Qt::Vertical);
        addProgressBars(addSection(QStringLiteral("Progress bars")));
    }
};
} // namespace

GalleryPage *makeSlidersPage(QWidget *inParent)
{
    return new SlidersPage(inParent);
}

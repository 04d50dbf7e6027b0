#include "GalleryPage.h"

#include "Controls/VantraCheckBox.h"
#include "Controls/VantraComboBox.h"
#include "Controls/VantraFramePane.h"
#include "PaneColumn.h"
#include "Photograph.h"
#include "Theme/VantraFont.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QSlider>
#include <QtWidgets/QVBoxLayout>

#include <limits>

namespace {
constexpr int kColumnHeight = 330;
constexpr QSize kFrameSize(118, 56);
constexpr QSize kPaneSize(150, 34);

QSlider *makeSlider(int inValue)
{
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setRange(-100, 100);
    slider->setValue(inValue);
    return slider;
}

// What a pane holds: labelled rows with the margins of sub-panes.
QFormLayout *makeRows(QWidget *inContents)
{
    auto *rows = new QFormLayout(inContents);
    rows->setContentsMargins(VantraFramePane::kIndentedSubPaneMarginLeft, VantraFramePane::kSubPaneMarginTop,
                             VantraFramePane::kSubPaneMarginRight, VantraFramePane::kSubPaneMarginBottom);
    rows->setVerticalSpacing(8);
    return rows;
}

QWidget *makeLight()
{
    auto *contents = new QWidget;
    QFormLayout *rows = makeRows(contents);
    rows->addRow(makeCaption(QStringLiteral("Exposure")), makeSlider(20));
    rows->addRow(makeCaption(QStringLiteral("Contrast")), makeSlider(-35));
    rows->addRow(makeCaption(QStringLiteral("Shadows")), makeSlider(60));
    return contents;
}

QWidget *makeColour()
{
    auto *contents = new QWidget;
    QFormLayout *rows = makeRows(contents);
    auto *profile = new VantraComboBox;
    profile->addItems({QStringLiteral("Neutral"), QStringLiteral("Vivid"), QStringLiteral("Monochrome")});
    rows->addRow(makeCaption(QStringLiteral("Profile")), profile);
    rows->addRow(makeCaption(QStringLiteral("Saturation")), makeSlider(10));
    return contents;
}

QWidget *makeLens()
{
    auto *contents = new QWidget;
    QFormLayout *rows = makeRows(contents);
    for (const char *text : {"Correct distortion", "Remove fringes"}) {
        auto *box = new VantraCheckBox;
        box->setText(QLatin1String(text));
        box->setChecked(true);
        rows->addRow(box);
    }
    return contents;
}

QWidget *makeColumn(const QString &inCaption, VantraFramePane::PaneStyle inStyle)
{
    auto *whole = new QWidget;
    auto *layout = new QVBoxLayout(whole);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeCaption(inCaption));
    auto *column = new PaneColumn(inStyle);
    column->addPane(QStringLiteral("Histogram"), makeLens());
    ColumnPane *light = column->addPane(QStringLiteral("Light"), makeLight());
    light->setExpanded(true, false);
    column->addPane(QStringLiteral("Colour"), makeColour())->setExpanded(true, false);
    column->addPane(QStringLiteral("Detail"), makeLight());
    column->addPane(QStringLiteral("Lens"), makeLens());
    column->choose(light, false);
    column->setMinimumHeight(kColumnHeight);
    layout->addWidget(column, 1);
    return whole;
}

VantraFrame *makeFrame(VantraFrame::CornerShapes inCorners, int inRadius, QFrame::Shadow inShadow)
{
    auto *frame = new VantraFrame;
    frame->setFrameShape(QFrame::Panel);
    frame->setFrameShadow(inShadow);
    frame->setCornerShapes(inCorners);
    frame->setCornerRadius(inRadius);
    frame->setFixedSize(kFrameSize);
    return frame;
}

void addFrames(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    const struct
    {
        const char *caption;
        VantraFrame::CornerShape shape;
    } corners[] = {
        {"none", VantraFrame::CornerShapeNone},          {"top", VantraFrame::CornerShapeRoundTop},
        {"bottom", VantraFrame::CornerShapeRoundBottom}, {"left", VantraFrame::CornerShapeRoundLeft},
        {"right", VantraFrame::CornerShapeRoundRight},   {"all", VantraFrame::CornerShapeRoundFull}};
    for (const auto &corner : corners)
        grid.add(QLatin1String(corner.caption) + QStringLiteral(", radius 10"),
                 makeFrame(corner.shape, 10, QFrame::Raised));
    grid.add(QStringLiteral("largest radius"),
             makeFrame(VantraFrame::CornerShapeRoundFull, std::numeric_limits<int>::max(), QFrame::Raised));
    grid.add(QStringLiteral("a single corner: square"),
             makeFrame(VantraFrame::CornerShapeRoundTopLeft, 10, QFrame::Raised));
    grid.add(QStringLiteral("sunken"), makeFrame(VantraFrame::CornerShapeRoundFull, 10, QFrame::Sunken));
    grid.add(QStringLiteral("plain"), makeFrame(VantraFrame::CornerShapeRoundFull, 10, QFrame::Plain));
    VantraFrame *box = makeFrame(VantraFrame::CornerShapeNone, 0, QFrame::Plain);
    box->setFrameShape(QFrame::Box);
    grid.add(QStringLiteral("box"), box);
    VantraFrame *line = makeFrame(VantraFrame::CornerShapeNone, 0, QFrame::Plain);
    line->setFrameShape(QFrame::HLine);
    grid.add(QStringLiteral("line"), line);
}

// A frame with readings over a picture.
QWidget *makeOverlay()
{
    auto *picture = new PhotographWidget;
    picture->setFixedSize(420, 220);
    auto *layout = new QVBoxLayout(picture);
    layout->setContentsMargins(16, 16, 16, 16);
    auto *frame = new VantraFrame;
    frame->setFrameShape(QFrame::Panel);
    frame->setHudOverlay(true);
    frame->setCornerShapes(VantraFrame::CornerShapeRoundFull);
    frame->setCornerRadius(8);
    auto *readings = new QHBoxLayout(frame);
    readings->setContentsMargins(14, 8, 14, 8);
    readings->setSpacing(18);
    for (const char *text : {"1/250 s", "f/5.6", "ISO 200"})
        readings->addWidget(new HouseLabel(QLatin1String(text), &VantraFont::mainFont, QFont::Medium));
    layout->addStretch();
    layout->addWidget(frame, 0, Qt::AlignLeft);
    return picture;
}

// Each look that a pane has by its own state alone, without a column.
void addPaneStates(QVBoxLayout *ioLayout)
{
    using Pane = VantraFramePane;
    SampleGrid grid(ioLayout, 5);
    const struct
    {
        const char *caption;
        Pane::PaneStates state;
    } states[] = {
        {"collapsed", Pane::PaneStateNone},
        {"before an expanded one", Pane::PaneStateExpandedAfter},
        {"last", Pane::PaneStateLastPane},
        {"expanded", Pane::PaneStateExpanded},
        {"expanded, selected", Pane::PaneStates(Pane::PaneStateExpanded | Pane::PaneStateSelected)}};
    const struct
    {
        const char *caption;
        Pane::PaneStyle style;
    } styles[] = {{"standard: ", Pane::PaneStyleStandard},
                  {"list: ", Pane::PaneStyleList},
                  {"sub-pane: ", Pane::PaneStyleSubPane}};
    for (const auto &style : styles) {
        for (const auto &state : states) {
            auto *pane = new Pane;
            pane->setPaneStyle(style.style);
            pane->setPaneBorderStyle(Pane::PaneBorderStyleStandard);
            pane->setPaneState(state.state);
            pane->setFixedSize(kPaneSize);
            grid.add(QLatin1String(style.caption) + QLatin1String(state.caption), pane);
        }
    }
}

class PanesPage : public GalleryPage
{
public:
    explicit PanesPage(QWidget *inParent) : GalleryPage(inParent)
    {
        QVBoxLayout *columns = addSection(
            QStringLiteral("Columns of panes"),
            QStringLiteral(
                "A click on a header, or Space, expands or collapses its pane and makes it the target, "
                "which bears a dot. Ctrl adds panes to the selection."));
        auto *row = new QHBoxLayout;
        row->setSpacing(24);
        row->addWidget(makeColumn(QStringLiteral("standard"), VantraFramePane::PaneStyleStandard), 1);
        row->addWidget(makeColumn(QStringLiteral("list"), VantraFramePane::PaneStyleList), 1);
        row->addWidget(makeColumn(QStringLiteral("sub-pane"), VantraFramePane::PaneStyleSubPane), 1);
        columns->addLayout(row);
        addPaneStates(addSection(QStringLiteral("States of panes")));
        addFrames(addSection(QStringLiteral("Frames")));
        addSection(QStringLiteral("Overlay frame on a picture"))->addWidget(makeOverlay(), 0, Qt::AlignLeft);
    }

    void refresh() override
    {
        // These keep the font that they were made with.
        const auto checkBoxes = findChildren<VantraCheckBox *>();
        for (VantraCheckBox *box : checkBoxes)
            box->setFont(VantraFont::mainFont());
        const auto comboBoxes = findChildren<VantraComboBox *>();
        for (VantraComboBox *box : comboBoxes)
            box->setFont(VantraFont::mainFont());
    }
};
} // namespace

GalleryPage *makePanesPage(QWidget *inParent)
{
    return new PanesPage(inParent);
}

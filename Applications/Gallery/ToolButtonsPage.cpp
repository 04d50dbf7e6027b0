#include "GalleryPage.h"

#include "Controls/VantraToolButton.h"
#include "DrawnIcons.h"
#include "StateSample.h"
#include "Theme/VantraFont.h"

#include <QtCore/QMetaEnum>
#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QVBoxLayout>

namespace {
using Tool = VantraToolButton;

// A button as a photo editor's tool bar has it. An image stands in for tools that have no named picture.
struct ToolEntry
{
    const char *name;
    const char *key;
    Tool::ButtonImage image;
    QIcon (*drawn)(const QColor &);
    bool checked;
};

constexpr ToolEntry kTools[] = {
    {"Mask brush", "B", Tool::NoImage, &DrawnIcons::brush, true},
    {"Crop", "C", Tool::NoImage, &DrawnIcons::crop, false},
    {"Adjust", "A", Tool::NoImage, &DrawnIcons::adjust, false},
    {"Colour layer", "", Tool::AddColorFillLayer, nullptr, false},
    {"Text layer", "T", Tool::AddTextLayer, nullptr, false},
};
constexpr ToolEntry kMask[] = {
    {"View mask", "", Tool::MaskInspectView, nullptr, true},
    {"Invert mask", "I", Tool::MaskInspectInvert, nullptr, false},
    {"Luminosity mask", "", Tool::MaskInspectLumen, nullptr, false},
    {"Depth mask", "", Tool::MaskInspectDepth, nullptr, false},
    {"Copy mask", "", Tool::MaskInspectCopy, nullptr, false},
    {"Paste mask", "", Tool::MaskInspectPaste, nullptr, false},
    {"Reset mask", "", Tool::MaskInspectReset, nullptr, false},
};
constexpr ToolEntry kStyles[] = {
    {"Bold", "", Tool::TextBold, nullptr, true},
    {"Italics", "", Tool::TextItalics, nullptr, false},
    {"Underline", "", Tool::TextUnderline, nullptr, true},
    {"Capitals", "", Tool::TextCapitalize, nullptr, false},
};
constexpr ToolEntry kAlignments[] = {
    {"Left", "", Tool::TextAlignLeft, nullptr, false},
    {"Centred", "", Tool::TextAlignCenter, nullptr, true},
    {"Right", "", Tool::TextAlignRight, nullptr, false},
};
constexpr ToolEntry kCommands[] = {
    {"Before and after", "", Tool::DualModeImage, nullptr, false},
    {"Reset", "", Tool::ResetImage, nullptr, false},
    {"Print", "", Tool::PrintImage, nullptr, false},
    {"Settings", "", Tool::SettingsImage, nullptr, false},
    {"More", "", Tool::OverflowImage, nullptr, false},
};

Tool *makeTool(const ToolEntry &inEntry)
{
    auto *button = new Tool;
    if (inEntry.drawn != nullptr)
        button->initOnOffStyle(DrawnIcons::image(inEntry.drawn(Qt::gray)),
                               VantraIconPalette::IconTintingOnAlternateOffForeground);
    else
        button->setButtonImage(inEntry.image);
    button->setFixedSize(QSize(32, 32));
    button->setToolName(QLatin1String(inEntry.name));
    button->setToolTip(button->toolName());
    button->setShortcut(QKeySequence(QLatin1String(inEntry.key)));
    button->setChecked(inEntry.checked);
    return button;
}

template <typename Entries>
void addTools(QBoxLayout *ioBar, const Entries &inEntries, bool inExclusive = false)
{
    auto *group = inExclusive ? new QButtonGroup(ioBar) : nullptr;
    for (const ToolEntry &entry : inEntries) {
        Tool *button = makeTool(entry);
        ioBar->addWidget(button);
        if (group != nullptr)
            group->addButton(button);
    }
}

// The photograph that is being worked on: evening over a lake.
class Photograph : public QWidget
{
public:
    Photograph() { setMinimumSize(420, 236); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const double horizon = height() * 0.56;
        QLinearGradient sky(0, 0, 0, horizon);
        sky.setColorAt(0.0, QColor(38, 52, 92));
        sky.setColorAt(0.7, QColor(186, 128, 124));
        sky.setColorAt(1.0, QColor(240, 190, 134));
        painter.fillRect(QRectF(0, 0, width(), horizon), sky);
        QLinearGradient lake(0, horizon, 0, height());
        lake.setColorAt(0.0, QColor(204, 152, 122));
        lake.setColorAt(1.0, QColor(26, 34, 58));
        painter.fillRect(QRectF(0, horizon, width(), height() - horizon), lake);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(44, 46, 70));
        const double left = width() * 0.08;
        painter.drawPolygon(QPolygonF({{left, horizon},
                                       {width() * 0.32, horizon - height() * 0.27},
                                       {width() * 0.47, horizon - height() * 0.09},
                                       {width() * 0.61, horizon - height() * 0.2},
                                       {width() * 0.9, horizon}}));
    }
};

// Shows an enumeration's values down and a button's states across.
class StateTable
{
public:
    explicit StateTable(QVBoxLayout *ioLayout) : mGrid(new QGridLayout)
    {
        mGrid->setHorizontalSpacing(18);
        mGrid->setVerticalSpacing(8);
        ioLayout->addLayout(mGrid);
        int column = 1;
        for (const char *name : {"off", "hovered", "pressed", "focused", "disabled", "on", "on,\nhovered",
                                 "on,\npressed", "on,\nfocused", "on,\ndisabled"}) {
            auto *header = makeCaption(QLatin1String(name));
            header->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
            mGrid->addWidget(header, 0, column++);
        }
        mGrid->setColumnStretch(column, 1);
    }

    template <typename SetUp>
    void addRow(const QString &inName, SetUp inSetUp)
    {
        const int row = mGrid->rowCount();
        mGrid->addWidget(new HouseLabel(inName, &VantraFont::smallFontPlus), row, 0);
        int column = 1;
        for (const bool checked : {false, true}) {
            constexpr SampleState kResting = {"", QStyle::State_None, QStyle::State_None};
            for (const SampleState &state : {kResting, kHovered, kPressed, kFocused, kResting}) {
                auto *button = new StateSample<Tool, QStyleOptionToolButton>(state.added, state.removed);
                inSetUp(button);
                button->setChecked(checked);
                button->setEnabled(column % 5 != 0);
                mGrid->addWidget(button, row, column++, Qt::AlignCenter);
            }
        }
    }

private:
    QGridLayout *mGrid;
};

class ToolButtonsPage : public GalleryPage
{
public:
    explicit ToolButtonsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addEditor();
        addReports();
        addTables();
        addPictures();
    }

private:
    void addEditor()
    {
        QVBoxLayout *body = addSection(
            QStringLiteral("In a photo editor"),
            QStringLiteral("Tool bars of named pictures; the first two tools have images of the program's "
                           "own. A picture that is on takes the accent. Letters are shortcuts."));
        auto *top = new QHBoxLayout;
        top->setSpacing(2);
        addTools(top, kStyles);
        top->addSpacing(12);
        addTools(top, kAlignments, true);
        top->addSpacing(12);
        top->addStretch();
        addTools(top, kCommands);

        auto *tools = new QVBoxLayout;
        tools->setSpacing(2);
        addTools(tools, kTools, true);
        tools->addStretch();
        auto *mask = new QVBoxLayout;
        mask->setSpacing(2);
        addTools(mask, kMask);
        mask->addStretch();

        auto *editor = new QGridLayout;
        editor->setSpacing(6);
        editor->addLayout(top, 0, 1);
        editor->addLayout(tools, 1, 0);
        editor->addWidget(new Photograph, 1, 1);
        editor->addLayout(mask, 1, 2);
        editor->setColumnStretch(3, 1);
        body->addLayout(editor);
    }

    void addReports()
    {
        QVBoxLayout *body =
            addSection(QStringLiteral("Keys that report"),
                       QStringLiteral("Ctrl+1 clicks its button, or only tells the program. The other two "
                                      "share Ctrl+2, which is ambiguous."));
        auto *row = new QHBoxLayout;
        row->setSpacing(2);
        auto *report = new QCheckBox(QStringLiteral("Report instead of clicking"));
        mLog = new QPlainTextEdit;
        mLog->setReadOnly(true);
        mLog->setMaximumBlockCount(100);
        mLog->setFixedHeight(110);
        mLog->setPlaceholderText(QStringLiteral("Signals show here."));
        for (const ToolEntry &entry :
             {ToolEntry{"Brush", "Ctrl+1", Tool::NoImage, &DrawnIcons::brush, false},
              ToolEntry{"Crop", "Ctrl+2", Tool::NoImage, &DrawnIcons::crop, false},
              ToolEntry{"Adjust", "Ctrl+2", Tool::NoImage, &DrawnIcons::adjust, false}}) {
            Tool *button = makeTool(entry);
            row->addWidget(button);
            logSignals(button);
            connect(report, &QCheckBox::toggled, button, &Tool::setShortcutActivatedEnabled);
        }
        row->addSpacing(12);
        row->addWidget(report);
        row->addStretch();
        body->addLayout(row);
        body->addWidget(mLog);
    }

    void logSignals(Tool *inButton)
    {
        const auto log = [this](const Tool *inSender, const QString &inSignal) {
            mLog->appendPlainText(inSender->toolName() + QLatin1String(": ") + inSignal);
        };
        connect(inButton, &Tool::clicked, this, [=](bool inChecked) {
            log(inButton, inChecked ? QStringLiteral("clicked, on") : QStringLiteral("clicked, off"));
        });
        connect(inButton, &Tool::buttonDoubleClicked, this,
                [=] { log(inButton, QStringLiteral("buttonDoubleClicked")); });
        connect(inButton, &Tool::shortcutActivated, this,
                [=](Tool *inTool) { log(inTool, QStringLiteral("shortcutActivated")); });
        connect(inButton, &Tool::shortuctActivatedAmbiguously, this,
                [=](Tool *inTool) { log(inTool, QStringLiteral("shortuctActivatedAmbiguously")); });
    }

    void addTables()
    {
        const QImage image = DrawnIcons::image(DrawnIcons::picture());
        StateTable styles(addSection(QStringLiteral("Button styles"),
                                     QStringLiteral("Only IconStyle shows a plate while it is on.")));
        const QMetaEnum styleNames = QMetaEnum::fromType<Tool::ButtonStyle>();
        for (int index = 0; index < styleNames.keyCount(); ++index) {
            styles.addRow(QLatin1String(styleNames.key(index)), [&](Tool *ioButton) {
                ioButton->initOnOffStyle(image, VantraIconPalette::IconTintingOnAlternateOffForeground);
                ioButton->setButtonStyle(Tool::ButtonStyle(styleNames.value(index)));
            });
        }
        StateTable grounds(addSection(
            QStringLiteral("Background styles"),
            QStringLiteral("Icons take the colour of the text. On the alternate background that would "
                           "vanish: such a button has an icon with a colour of its own.")));
        const QImage dark = DrawnIcons::image(DrawnIcons::picture(QColor(84, 84, 84)));
        const QMetaEnum groundNames = QMetaEnum::fromType<Tool::BackgroundStyle>();
        for (int index = 0; index < groundNames.keyCount(); ++index) {
            const auto ground = Tool::BackgroundStyle(groundNames.value(index));
            grounds.addRow(QLatin1String(groundNames.key(index)), [&](Tool *ioButton) {
                if (ground == Tool::BackgroundStyleAlternateButton)
                    ioButton->initOnOffStyle(dark, VantraIconPalette::IconTintingNone);
                else
                    ioButton->initOnOffStyle(image, VantraIconPalette::IconTintingForeground);
                ioButton->setBackgroundStyle(ground);
            });
        }
        grounds.addRow(QStringLiteral("of a role, the green accent"), [&](Tool *ioButton) {
            ioButton->initOnOffStyle(image, VantraIconPalette::IconTintingForeground);
            ioButton->setBackgroundStyle(Tool::BackgroundStyleButton);
            ioButton->setBackgroundButtonRole(VantraPalette::GreenAccentButtonBackground);
        });
    }

    void addPictures()
    {
        SampleGrid grid(addSection(QStringLiteral("Named pictures"),
                                   QStringLiteral("All pictures of the library, each off and on.")),
                        6);
        const QMetaEnum images = QMetaEnum::fromType<Tool::ButtonImage>();
        for (int index = 0; index < images.keyCount(); ++index) {
            if (images.value(index) == Tool::NoImage)
                continue;
            auto *pair = new QWidget;
            auto *row = new QHBoxLayout(pair);
            row->setContentsMargins(0, 0, 0, 0);
            for (const bool checked : {false, true})
                row->addWidget(makeTool(
                    {images.key(index), "", Tool::ButtonImage(images.value(index)), nullptr, checked}));
            grid.add(QLatin1String(images.key(index)), pair);
        }
    }

    QPlainTextEdit *mLog = nullptr;
};
} // namespace

GalleryPage *makeToolButtonsPage(QWidget *inParent)
{
    return new ToolButtonsPage(inParent);
}

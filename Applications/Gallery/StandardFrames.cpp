#include "StandardSections.h"

#include "DrawnIcons.h"
#include "GalleryPage.h"
#include "StateSample.h"

#include <QtGui/QPainter>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDockWidget>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMainWindow>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStatusBar>
#include <QtWidgets/QTabWidget>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QToolBox>

namespace {
void fillTabs(QTabBar *ioBar)
{
    ioBar->addTab(QStringLiteral("Develop"));
    ioBar->addTab(DrawnIcons::picture(), QStringLiteral("Pictures"));
    ioBar->addTab(QStringLiteral("Print"));
    ioBar->setTabEnabled(ioBar->addTab(QStringLiteral("Disabled")), false);
    ioBar->setDrawBase(false);
}

// A tab bar with the pointer over its third tab.
class HoveredTabBar : public QTabBar
{
protected:
    void initStyleOption(QStyleOptionTab *ioOption, int inIndex) const override
    {
        QTabBar::initStyleOption(ioOption, inIndex);
        if (inIndex == 2 && isEnabled())
            ioOption->state |= QStyle::State_MouseOver;
    }
};

class SampleHandle : public QSplitterHandle
{
public:
    SampleHandle(QSplitter *inSplitter, QStyle::State inAdded)
        : QSplitterHandle(inSplitter->orientation(), inSplitter), mAdded(inAdded)
    {
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        QStyleOption option;
        option.initFrom(this);
        if (orientation() == Qt::Horizontal)
            option.state |= QStyle::State_Horizontal;
        if (isEnabled())
            option.state |= mAdded;
        style()->drawControl(QStyle::CE_Splitter, &option, &painter, this);
    }

private:
    QStyle::State mAdded;
};

class SampleSplitter : public QSplitter
{
public:
    SampleSplitter(Qt::Orientation inOrientation, QStyle::State inAdded)
        : QSplitter(inOrientation), mAdded(inAdded)
    {
        for (const char *text : {"First", "Second"}) {
            auto *label = new QLabel(QLatin1String(text));
            label->setAlignment(Qt::AlignCenter);
            label->setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
            addWidget(label);
        }
        setFixedSize(200, 84);
    }

protected:
    QSplitterHandle *createHandle() override { return new SampleHandle(this, mAdded); }

private:
    QStyle::State mAdded;
};

QGroupBox *makeGroupBox(bool inCheckable, bool inFlat, bool inEnabled)
{
    auto *box = new QGroupBox(QStringLiteral("Exposure"));
    box->setCheckable(inCheckable);
    box->setFlat(inFlat);
    box->setEnabled(inEnabled);
    auto *layout = new QVBoxLayout(box);
    layout->addWidget(new QCheckBox(QStringLiteral("Automatic")));
    layout->addWidget(new QLabel(QStringLiteral("Two stops over")));
    box->setFixedWidth(190);
    return box;
}

QFrame *makeFrame(QFrame::Shape inShape, QFrame::Shadow inShadow)
{
    auto *frame = new QFrame;
    frame->setFrameShape(inShape);
    frame->setFrameShadow(inShadow);
    frame->setFixedSize(130, 44);
    return frame;
}
} // namespace

void addTabs(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 2);
    auto *bar = new QTabBar;
    fillTabs(bar);
    grid.add(QStringLiteral("with an icon and a disabled tab"), bar);
    auto *hovered = new HoveredTabBar;
    fillTabs(hovered);
    grid.add(QStringLiteral("third tab hovered"), hovered);
    auto *closable = new QTabBar;
    fillTabs(closable);
    closable->setTabsClosable(true);
    grid.add(QStringLiteral("closable"), closable);
    auto *disabled = new QTabBar;
    fillTabs(disabled);
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);

    for (const auto position : {QTabWidget::North, QTabWidget::West}) {
        auto *tabs = new QTabWidget;
        for (const char *title : {"Light", "Colour"}) {
            auto *contents = new QLabel(QStringLiteral("Contents of a tab"));
            contents->setAlignment(Qt::AlignCenter);
            tabs->addTab(contents, QLatin1String(title));
        }
        tabs->setTabPosition(position);
        tabs->setFixedSize(340, 140);
        grid.add(position == QTabWidget::North ? QStringLiteral("QTabWidget, north")
                                               : QStringLiteral("QTabWidget, west"),
                 tabs);
    }
}

void addGroupBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    grid.add(QStringLiteral("plain"), makeGroupBox(false, false, true));
    grid.add(QStringLiteral("checkable, on"), makeGroupBox(true, false, true));
    auto *off = makeGroupBox(true, false, true);
    off->setChecked(false);
    grid.add(QStringLiteral("checkable, off"), off);
    grid.add(QStringLiteral("disabled"), makeGroupBox(false, false, false));
    grid.add(QStringLiteral("flat"), makeGroupBox(false, true, true));
    auto *untitled = makeGroupBox(false, false, true);
    untitled->setTitle(QString());
    grid.add(QStringLiteral("no title"), untitled);
    auto *centred = makeGroupBox(false, false, true);
    centred->setAlignment(Qt::AlignHCenter);
    grid.add(QStringLiteral("title in the middle"), centred);
}

void addFrames(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    const std::pair<QFrame::Shadow, const char *> shadows[] = {
        {QFrame::Plain, "plain"}, {QFrame::Raised, "raised"}, {QFrame::Sunken, "sunken"}};
    const std::pair<QFrame::Shape, const char *> shapes[] = {
        {QFrame::Box, "Box"},           {QFrame::Panel, "Panel"},
        {QFrame::WinPanel, "WinPanel"}, {QFrame::StyledPanel, "StyledPanel"},
        {QFrame::HLine, "HLine"},       {QFrame::VLine, "VLine"}};
    for (const auto &[shadow, shadowName] : shadows) {
        for (const auto &[shape, shapeName] : shapes)
            grid.add(QStringLiteral("%1, %2").arg(QLatin1String(shapeName), QLatin1String(shadowName)),
                     makeFrame(shape, shadow));
    }
}

void addSplitters(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
        grid.add(QStringLiteral("at rest"), new SampleSplitter(orientation, QStyle::State_None));
        grid.add(QStringLiteral("hovered"), new SampleSplitter(orientation, QStyle::State_MouseOver));
    }
}

void addLabels(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    grid.add(QStringLiteral("plain"), new QLabel(QStringLiteral("A label")));
    auto *disabled = new QLabel(QStringLiteral("A label"));
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);
    grid.add(QStringLiteral("with a link"),
             new QLabel(QStringLiteral("A label with <a href=\"https://example.org\">a link</a>")));
    auto *selected = new QLabel(QStringLiteral("A label with a selection"));
    selected->setTextInteractionFlags(Qt::TextSelectableByMouse);
    selected->setSelection(2, 5);
    grid.add(QStringLiteral("selection"), selected);
    grid.add(QStringLiteral("rich text"),
             new QLabel(QStringLiteral("<b>bold</b>, <i>italic</i>, <u>under</u>")));
}

void addBars(QVBoxLayout *ioLayout)
{
    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    QMenu *file = window->menuBar()->addMenu(QStringLiteral("&File"));
    file->addAction(QStringLiteral("Open"));
    window->menuBar()->addMenu(QStringLiteral("&Edit"))->addAction(QStringLiteral("Undo"));
    window->menuBar()->addMenu(QStringLiteral("Disabled"))->setEnabled(false);
    window->menuBar()->setNativeMenuBar(false);

    QToolBar *bar = window->addToolBar(QStringLiteral("Tools"));
    bar->addAction(DrawnIcons::folder(), QStringLiteral("Open"));
    QAction *checked = bar->addAction(DrawnIcons::picture(), QStringLiteral("Picture"));
    checked->setCheckable(true);
    checked->setChecked(true);
    bar->addSeparator();
    bar->addAction(DrawnIcons::adjust(), QStringLiteral("Adjust"))->setEnabled(false);
    bar->addAction(QStringLiteral("Text"));

    window->statusBar()->addWidget(new QLabel(QStringLiteral("Status text")));
    window->statusBar()->addPermanentWidget(new QLabel(QStringLiteral("permanent")));
    auto *contents = new QLabel(QStringLiteral("Contents of the window"));
    contents->setAlignment(Qt::AlignCenter);
    window->setCentralWidget(contents);
    window->setFixedSize(560, 190);
    ioLayout->addWidget(window);
}

void addToolBoxAndDock(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 2);
    auto *box = new QToolBox;
    for (const char *title : {"Light", "Colour", "Detail"})
        box->addItem(new QLabel(QStringLiteral("Contents of a page")), QLatin1String(title));
    box->setItemEnabled(2, false);
    box->setFixedSize(280, 190);
    grid.add(QStringLiteral("QToolBox"), box);

    auto *window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    auto *dock = new QDockWidget(QStringLiteral("History"));
    auto *history = new QLabel(QStringLiteral("Contents of a dock"));
    history->setAlignment(Qt::AlignCenter);
    dock->setWidget(history);
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    auto *centre = new QLabel(QStringLiteral("Centre"));
    centre->setAlignment(Qt::AlignCenter);
    window->setCentralWidget(centre);
    window->setFixedSize(360, 190);
    grid.add(QStringLiteral("QDockWidget"), window);
}

void addRightToLeft(QVBoxLayout *ioLayout)
{
    auto *panel = new QWidget;
    panel->setLayoutDirection(Qt::RightToLeft);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 0, 0, 0);
    SampleGrid grid(layout, 5);

    auto *button = new QPushButton(DrawnIcons::picture(), QStringLiteral("Picture"));
    button->setAutoDefault(false);
    grid.add(QStringLiteral("push button"), button);
    auto *check = new QCheckBox(QStringLiteral("Check box"));
    check->setChecked(true);
    grid.add(QStringLiteral("check box"), check);
    grid.add(QStringLiteral("radio button"), new QRadioButton(QStringLiteral("Radio button")));
    auto *combo = new QComboBox;
    combo->addItem(DrawnIcons::folder(), QStringLiteral("Folder"));
    grid.add(QStringLiteral("combo box"), combo);
    auto *edit = new QLineEdit(QStringLiteral("Text"));
    edit->setClearButtonEnabled(true);
    grid.add(QStringLiteral("line edit"), edit);
    auto *spin = new QSpinBox;
    spin->setValue(42);
    grid.add(QStringLiteral("spin box"), spin);
    auto *slider = new QSlider(Qt::Horizontal);
    slider->setValue(30);
    slider->setFixedWidth(150);
    grid.add(QStringLiteral("slider"), slider);
    auto *progress = new QProgressBar;
    progress->setValue(40);
    progress->setFixedWidth(150);
    grid.add(QStringLiteral("progress bar"), progress);
    grid.add(QStringLiteral("group box"), makeGroupBox(true, false, true));
    auto *tabs = new QTabBar;
    tabs->addTab(QStringLiteral("First"));
    tabs->addTab(QStringLiteral("Second"));
    grid.add(QStringLiteral("tab bar"), tabs);
    ioLayout->addWidget(panel);
}

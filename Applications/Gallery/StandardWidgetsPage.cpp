#include "GalleryPage.h"
#include "StandardSections.h"

namespace {
struct Section
{
    const char *title;
    const char *note;
    void (*fill)(QVBoxLayout *ioLayout);
};

constexpr Section kSections[] = {
    {"Push button", "", &addPushButtons},
    {"Tool button", "", &addToolButtons},
    {"Check box", "", &addCheckBoxes},
    {"Radio button", "", &addRadioButtons},
    {"Combo box", "", &addComboBoxes},
    {"Line edit", "", &addLineEdits},
    {"Text edit", "", &addTextEdits},
    {"Spin box", "", &addSpinBoxes},
    {"Slider and dial", "", &addSliders},
    {"Scroll bar", "", &addScrollBars},
    {"Progress bar", "", &addProgressBars},
    {"Tabs", "", &addTabs},
    {"Group box", "", &addGroupBoxes},
    {"Frame", "", &addFrames},
    {"Splitter", "A handle shows itself only under the pointer.", &addSplitters},
    {"Label", "", &addLabels},
    {"Item views", "", &addItemViews},
    {"Menu bar, tool bar and status bar", "", &addBars},
    {"Tool box and dock", "", &addToolBoxAndDock},
    {"Right to left", "The same controls in a mirrored layout.", &addRightToLeft},
};

class StandardWidgetsPage : public GalleryPage
{
public:
    explicit StandardWidgetsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        for (const Section &section : kSections)
            section.fill(addSection(QLatin1String(section.title), QLatin1String(section.note)));
    }
};
} // namespace

GalleryPage *makeStandardWidgetsPage(QWidget *inParent)
{
    return new StandardWidgetsPage(inParent);
}

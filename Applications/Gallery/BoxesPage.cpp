#include "GalleryPage.h"

#include "Controls/VantraCheckBox.h"
#include "Controls/VantraComboBox.h"
#include "DrawnIcons.h"
#include "StateSample.h"
#include "Theme/VantraFont.h"
#include "WidgetPicture.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QVBoxLayout>

namespace {
constexpr int kNarrow = 150;

const QString kLongText = QStringLiteral("A text that is a good deal longer than its room");

// Paints the open popup of a combo box into the page, where a popup can't stand. The list is real, measured
// and painted by its own code.
class PopupPicture : public QWidget
{
    Q_OBJECT

public:
    // Takes the combo box as its child.
    PopupPicture(VantraComboBox *inBox, int inHovered) : mBox(inBox)
    {
        mBox->setParent(this);
        mBox->hide();
        mBox->view()->setCurrentIndex(mBox->model()->index(inHovered, 0));
        setAccessibleName(QStringLiteral("Popup"));
    }

    QSize sizeHint() const override
    {
        mBox->resize(mBox->sizeHint());
        mBox->adjustMinimumViewWidth(mBox);
        const QAbstractItemView *view = mBox->view();
        int height = 0;
        for (int row = 0; row < mBox->count(); ++row)
            height += view->sizeHintForRow(row);
        return QSize(view->minimumWidth(), height);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawImage(QPoint(0, 0), widgetPicture(mBox->view(), sizeHint(), devicePixelRatioF()));
    }

    // The list is in a window, which a parent's state doesn't reach.
    void changeEvent(QEvent *inEvent) override
    {
        if (inEvent->type() == QEvent::EnabledChange)
            mBox->view()->setEnabled(isEnabled());
        QWidget::changeEvent(inEvent);
    }

private:
    VantraComboBox *mBox;
};

template <typename Box>
void fill(Box *ioBox)
{
    ioBox->addItems({QStringLiteral("Portrait"), QStringLiteral("Landscape"), QStringLiteral("Square")});
}

VantraComboBox *makeFilled()
{
    auto *box = new VantraComboBox;
    fill(box);
    return box;
}

VantraComboBox *makeWithIcons()
{
    auto *box = new VantraComboBox;
    box->addItem(DrawnIcons::picture(), QStringLiteral("Picture"));
    box->addItem(DrawnIcons::folder(), QStringLiteral("Folder"));
    box->addItem(DrawnIcons::adjust(), QStringLiteral("Adjustment"));
    return box;
}

VantraComboBox *makeWithSeparators()
{
    auto *box = makeFilled();
    box->insertSeparator(box->count());
    box->addItem(QStringLiteral("Panorama, not for this picture"));
    box->setItemEnabled(box->count() - 1, false);
    box->addItem(QStringLiteral("As shot"));
    box->insertSeparator(box->count());
    box->addItem(QStringLiteral("Other..."));
    return box;
}

VantraComboBox *makeWithChecks()
{
    auto *box = makeFilled();
    for (int row = 0; row < box->count(); ++row)
        box->setItemData(row, row == 1 ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    return box;
}

// A row of boxes that inSetUp makes alike, in all states.
template <typename Box, typename Option, typename SetUp>
void addRow(SampleGrid &ioGrid, const QString &inName, SetUp inSetUp)
{
    auto *box = new Box;
    inSetUp(box);
    ioGrid.add(inName, box);
    addStateSamples<Box, Option>(ioGrid, inSetUp, inName + QStringLiteral(", "));
    auto *disabled = new Box;
    inSetUp(disabled);
    disabled->setEnabled(false);
    ioGrid.add(inName + QStringLiteral(", disabled"), disabled);
    ioGrid.endRow();
}

void addCheckBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    const struct
    {
        const char *caption;
        Qt::CheckState state;
    } states[] = {{"off", Qt::Unchecked}, {"partial", Qt::PartiallyChecked}, {"on", Qt::Checked}};
    for (const auto &state : states) {
        const auto setUp = [&state](VantraCheckBox *ioBox) {
            ioBox->setText(QStringLiteral("Show grid"));
            ioBox->setTristate(state.state == Qt::PartiallyChecked);
            ioBox->setCheckState(state.state);
        };
        addRow<VantraCheckBox, QStyleOptionButton>(grid, QLatin1String(state.caption), setUp);
    }
    ioLayout->addSpacing(8);

    SampleGrid texts(ioLayout, 4);
    for (const bool elide : {false, true}) {
        auto *box = new VantraCheckBox;
        box->setText(kLongText);
        box->setElideTextEnabled(elide);
        box->setFixedWidth(kNarrow);
        texts.add(elide ? QStringLiteral("long text, elided") : QStringLiteral("long text, clipped"), box);
    }
    auto *fits = new VantraCheckBox;
    fits->setText(QStringLiteral("Fits"));
    fits->setElideTextEnabled(true);
    texts.add(QStringLiteral("elided, fits"), fits);
    texts.add(QStringLiteral("without a text"), new VantraCheckBox);
}

void addBackgrounds(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    const struct
    {
        const char *caption;
        VantraComboBoxBase::BackgroundStyle style;
    } styles[] = {{"standard", VantraComboBoxBase::BackgroundStyleStandard},
                  {"transparent", VantraComboBoxBase::BackgroundTransparent},
                  {"none", VantraComboBoxBase::BackgroundStyleNone}};
    for (const auto &style : styles) {
        const auto setUp = [&style](VantraComboBox *ioBox) {
            fill(ioBox);
            ioBox->setBackgroundStyle(style.style);
        };
        addRow<VantraComboBox, QStyleOptionComboBox>(grid, QLatin1String(style.caption), setUp);
    }
}

void addContents(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 4);
    auto *placeholder = makeFilled();
    placeholder->setPlaceholderText(QStringLiteral("Choose a format"));
    placeholder->setCurrentIndex(-1);
    grid.add(QStringLiteral("placeholder"), placeholder);
    auto *withIcon = makeFilled();
    withIcon->setPlaceholderText(QStringLiteral("Choose a format"));
    withIcon->setPlaceholderIcon(DrawnIcons::adjust());
    withIcon->setCurrentIndex(-1);
    grid.add(QStringLiteral("placeholder with icon"), withIcon);
    grid.add(QStringLiteral("icons"), makeWithIcons());
    grid.add(QStringLiteral("separators and a disabled item"), makeWithSeparators());
    for (const bool enabled : {true, false}) {
        auto *editable = makeFilled();
        editable->setEditable(true);
        editable->setEnabled(enabled);
        grid.add(enabled ? QStringLiteral("editable") : QStringLiteral("editable, disabled"), editable);
    }
    auto *cut = makeFilled();
    cut->insertItem(0, kLongText);
    cut->setCurrentIndex(0);
    cut->setFixedWidth(kNarrow);
    grid.add(QStringLiteral("long text, cut"), cut);
    auto *roomy = makeFilled();
    roomy->setFixedSize(2 * kNarrow, 36);
    grid.add(QStringLiteral("more room than it asks for"), roomy);
}

class BoxesPage : public GalleryPage
{
public:
    explicit BoxesPage(QWidget *inParent) : GalleryPage(inParent)
    {
        addCheckBoxes(addSection(QStringLiteral("Check boxes")));
        addBackgrounds(addSection(QStringLiteral("Backgrounds of combo boxes")));
        addContents(addSection(
            QStringLiteral("Contents of combo boxes"),
            QStringLiteral("All can be opened. The wheel scrolls the page and never changes a value.")));
        QVBoxLayout *popups = addSection(QStringLiteral("Pictures of popups"),
                                         QStringLiteral("Each is a real list, painted into the page."));
        SampleGrid grid(popups, 4, Qt::AlignTop);
        grid.add(QStringLiteral("second item hovered"), new PopupPicture(makeFilled(), 1));
        grid.add(QStringLiteral("icons"), new PopupPicture(makeWithIcons(), 0));
        grid.add(QStringLiteral("separators, disabled item"), new PopupPicture(makeWithSeparators(), 2));
        grid.add(QStringLiteral("check marks"), new PopupPicture(makeWithChecks(), 2));
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
        const auto pictures = findChildren<PopupPicture *>();
        for (PopupPicture *picture : pictures)
            picture->updateGeometry();
    }
};
} // namespace

GalleryPage *makeBoxesPage(QWidget *inParent)
{
    return new BoxesPage(inParent);
}

#include "BoxesPage.moc"

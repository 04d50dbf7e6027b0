#include "GalleryPage.h"

#include "Controls/VantraButton.h"
#include "DrawnIcons.h"
#include "StateSample.h"
#include "Theme/VantraFont.h"

#include <QtCore/QMetaEnum>
#include <QtCore/QMimeData>
#include <QtGui/QDrag>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QVBoxLayout>

#include <climits>

namespace {
using ButtonState = StateSample<VantraButton, QStyleOptionButton>;

VantraButton *makeButton(const QString &inText, VantraButton *inButton = new VantraButton)
{
    inButton->setText(inText);
    inButton->setAutoDefault(false);
    return inButton;
}

// One row for each style, one column for each state.
class StyleTable
{
public:
    explicit StyleTable(QVBoxLayout *ioLayout) : mGrid(new QGridLayout)
    {
        mGrid->setHorizontalSpacing(14);
        mGrid->setVerticalSpacing(10);
        ioLayout->addLayout(mGrid);
        const QMetaEnum styles = QMetaEnum::fromType<VantraButton::ButtonStyle>();
        for (int index = 0; index < styles.keyCount(); ++index)
            addStyle(static_cast<VantraButton::ButtonStyle>(styles.value(index)), styles.key(index));
        mGrid->setColumnStretch(mGrid->columnCount(), 1);
    }

private:
    void addStyle(VantraButton::ButtonStyle inStyle, const char *inName)
    {
        ++mRow;
        mColumn = 0;
        mGrid->addWidget(makeCaption(QLatin1String(inName)), mRow, 0);
        add(inStyle, "normal");
        for (const SampleState &state : {kHovered, kPressed, kFocused})
            add(inStyle, state.caption, new ButtonState(state.added, state.removed));
        VantraButton *checked = add(inStyle, "checked");
        checked->setCheckable(true);
        checked->setChecked(true);
        add(inStyle, "disabled")->setEnabled(false);
        add(inStyle, "default", new ButtonState(QStyle::State_None))->setDefault(true);
        add(inStyle, "icon")->setIcon(DrawnIcons::picture());
        VantraButton *withMenu = add(inStyle, "menu");
        auto *menu = new QMenu(withMenu);
        menu->addAction(QStringLiteral("Save"));
        menu->addAction(QStringLiteral("Save as"));
        withMenu->setMenu(menu);
    }

    VantraButton *add(VantraButton::ButtonStyle inStyle, const char *inCaption,
                      VantraButton *inButton = new VantraButton)
    {
        ++mColumn;
        if (mRow == 1)
            mGrid->addWidget(makeCaption(QLatin1String(inCaption)), 0, mColumn);
        makeButton(QStringLiteral("Save"), inButton)->setButtonStyle(inStyle);
        mGrid->addWidget(inButton, mRow, mColumn, Qt::AlignLeft | Qt::AlignVCenter);
        return inButton;
    }

    QGridLayout *mGrid;
    int mRow = 0;
    int mColumn = 0;
};

// A row of exclusive tabs, with a check box for each that hides and shows it.
class TabGroup : public QWidget
{
public:
    explicit TabGroup(const QStringList &inTexts)
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        auto *tabs = new QHBoxLayout;
        tabs->setSpacing(0);
        auto *boxes = new QHBoxLayout;
        boxes->setSpacing(14);
        layout->addLayout(tabs);
        layout->addLayout(boxes);
        auto *group = new QButtonGroup(this);
        for (const QString &text : inTexts) {
            VantraButton *tab = makeButton(text);
            tab->setCheckable(true);
            tab->setChecked(mTabs.isEmpty());
            group->addButton(tab);
            tabs->addWidget(tab);
            mTabs.append(tab);
            auto *box = new QCheckBox(text);
            box->setChecked(true);
            boxes->addWidget(box);
            connect(box, &QCheckBox::toggled, this, [this, tab](bool inShows) {
                tab->setVisible(inShows);
                VantraButton::updateTabButtonStyles(mTabs);
            });
        }
        tabs->addStretch();
        boxes->addStretch();
    }

protected:
    void showEvent(QShowEvent *inEvent) override
    {
        QWidget::showEvent(inEvent);
        VantraButton::updateTabButtonStyles(mTabs);
    }

private:
    QList<VantraButton *> mTabs;
};

// Can be dragged away as a picture of itself.
class DragButton : public VantraButton
{
public:
    using VantraButton::VantraButton;

protected:
    void mouseMoveEvent(QMouseEvent *inEvent) override
    {
        if (!isDown())
            return;
        auto *drag = new QDrag(this);
        auto *data = new QMimeData;
        data->setText(text());
        drag->setMimeData(data);
        drag->setPixmap(getDragPixmap());
        drag->setHotSpot(inEvent->position().toPoint());
        setDown(false);
        drag->exec(Qt::CopyAction);
    }
};

// The roles that suit the text colour of the accent style, which a role of the background doesn't change.
void addRoles(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    const QMetaEnum roles = QMetaEnum::fromType<VantraPalette::PaletteRole>();
    const QString suffix = QStringLiteral("AccentButtonBackground");
    for (int index = 0; index < roles.keyCount(); ++index) {
        const QString name = QLatin1String(roles.key(index));
        if (!name.endsWith(suffix))
            continue;
        VantraButton *button = makeButton(QStringLiteral("Export"));
        button->setButtonStyle(VantraButton::LeftAndRightCapButtonAccentStyle);
        button->setBackgroundButtonRole(static_cast<VantraPalette::PaletteRole>(roles.value(index)));
        grid.add(name.chopped(int(qstrlen("ButtonBackground"))), button);
    }
}

void addAlignments(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 3);
    for (const auto &[alignment, name] :
         {std::pair(Qt::AlignLeft, "left"), std::pair(Qt::AlignHCenter, "centre"),
          std::pair(Qt::AlignRight, "right")}) {
        VantraButton *button = makeButton(QStringLiteral("Crop & rotate"));
        button->setAlignment(alignment | Qt::AlignVCenter);
        button->setFixedWidth(190);
        grid.add(QLatin1String(name), button);
    }
}

void addBadges(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 8, Qt::AlignBottom);
    for (const int count : {0, 1, 9, 42, 999, 12345, 123456}) {
        VantraButton *button = makeButton(QStringLiteral("Inbox"));
        grid.add(QString::number(count), button);
        button->setNotificationBadgeEnabled(true);
        button->setNotificationBadgeCount(count);
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(14);
    ioLayout->addSpacing(8);
    ioLayout->addLayout(row);
    VantraButton *live = makeButton(QStringLiteral("Live"));
    row->addWidget(live);
    live->setNotificationBadgeEnabled(true);
    live->setNotificationBadgeCount(7);
    auto *count = new QSpinBox;
    count->setAccessibleName(QStringLiteral("Count"));
    count->setRange(0, INT_MAX);
    count->setValue(7);
    row->addWidget(count);
    auto *enabled = new QCheckBox(QStringLiteral("Badge"));
    enabled->setChecked(true);
    row->addWidget(enabled);
    row->addStretch();
    QObject::connect(count, &QSpinBox::valueChanged, live, &VantraButton::setNotificationBadgeCount);
    QObject::connect(enabled, &QCheckBox::toggled, live, [live, count](bool inEnabled) {
        live->setNotificationBadgeEnabled(inEnabled);
        live->setNotificationBadgeCount(count->value());
    });
}

void addLinks(QVBoxLayout *ioLayout)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(0);
    ioLayout->addLayout(row);
    row->addWidget(new HouseLabel(QStringLiteral("No pictures yet."), &VantraFont::mainFont));
    for (const char *text : {"Browse a folder", "Learn more"}) {
        VantraButton *link = makeButton(QLatin1String(text));
        link->setButtonStyle(VantraButton::LinkButtonStyle);
        row->addWidget(link);
    }
    row->addStretch();
}

class ButtonsPage : public GalleryPage
{
public:
    explicit ButtonsPage(QWidget *inParent) : GalleryPage(inParent)
    {
        StyleTable table(addSection(QStringLiteral("Styles and states")));
        addRoles(
            addSection(QStringLiteral("Background roles"),
                       QStringLiteral("A role in place of the style's own; these hold in every accent.")));
        addAlignments(addSection(QStringLiteral("Alignment"),
                                 QStringLiteral("An ampersand is drawn as it is; there are no mnemonics.")));
        QVBoxLayout *tabs =
            addSection(QStringLiteral("Tab groups"),
                       QStringLiteral("The caps follow the tabs that show. Hide some of them."));
        tabs->addWidget(
            new TabGroup({QStringLiteral("Library"), QStringLiteral("Develop"), QStringLiteral("Print"),
                          QStringLiteral("Web"), QStringLiteral("Slideshow")}));
        tabs->addWidget(new TabGroup({QStringLiteral("Before"), QStringLiteral("After")}));
        tabs->addWidget(new TabGroup({QStringLiteral("Alone")}));
        addBadges(addSection(
            QStringLiteral("Badges"),
            QStringLiteral("The number stands over the corner; zero hides it, and it hides with its "
                           "button.")));
        addLinks(addSection(QStringLiteral("Links")));
        addDrag(addSection(QStringLiteral("Dragging and double clicks"),
                           QStringLiteral("Drag the first button; the second counts double clicks.")));
    }

    void refresh() override
    {
        // The width counts the caps, which are round for the height of the first pass.
        mDragged->adjustSize();
        mDragged->adjustSize();
        mDragPicture->setPixmap(mDragged->getDragPixmap());
    }

private:
    void addDrag(QVBoxLayout *ioLayout)
    {
        SampleGrid grid(ioLayout, 3);
        mDragged = makeButton(QStringLiteral("Drag me"), new DragButton);
        mDragged->setButtonStyle(VantraButton::LeftAndRightCapButtonAccentStyle);
        grid.add(QStringLiteral("button"), mDragged);
        mDragPicture = new QLabel;
        grid.add(QStringLiteral("its picture"), mDragPicture);
        refresh();
        VantraButton *doubled = makeButton(QStringLiteral("Double clicks: 0"));
        grid.add(QStringLiteral("live"), doubled);
        connect(doubled, &VantraButton::buttonDoubleClicked, doubled, [doubled, clicks = 0]() mutable {
            doubled->setText(QStringLiteral("Double clicks: %1").arg(++clicks));
        });
    }

    VantraButton *mDragged = nullptr;
    QLabel *mDragPicture = nullptr;
};
} // namespace

GalleryPage *makeButtonsPage(QWidget *inParent)
{
    return new ButtonsPage(inParent);
}

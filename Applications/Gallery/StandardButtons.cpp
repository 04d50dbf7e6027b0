#include "StandardSections.h"

#include "DrawnIcons.h"
#include "GalleryPage.h"
#include "StateSample.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace {
const QString kLongText = QStringLiteral("A text that is a good deal longer than the button is wide");

// For buttons with menus; the button's parent tree owns it.
QMenu *makeMenu(QWidget *inParent)
{
    auto *menu = new QMenu(inParent);
    menu->addAction(DrawnIcons::picture(), QStringLiteral("Open"));
    menu->addAction(QStringLiteral("Save"));
    menu->addSeparator();
    menu->addAction(QStringLiteral("Close"));
    return menu;
}

QPushButton *makeButton(const QString &inText, bool inChecked = false)
{
    auto *button = new QPushButton(inText);
    button->setAutoDefault(false);
    if (inChecked) {
        button->setCheckable(true);
        button->setChecked(true);
    }
    return button;
}

// Off, on and disabled of a check box or radio button, with the states of the pointer. Exclusive radio
// buttons of one parent would switch each other off.
template <typename Button, typename Option>
void addCheckStates(SampleGrid &ioGrid, const QString &inText)
{
    const auto add = [&](const QString &inCaption, bool inChecked, bool inEnabled) {
        auto *button = new Button(inText);
        button->setAutoExclusive(false);
        button->setChecked(inChecked);
        button->setEnabled(inEnabled);
        ioGrid.add(inCaption, button);
    };
    add(QStringLiteral("off"), false, true);
    add(QStringLiteral("on"), true, true);
    add(QStringLiteral("off, disabled"), false, false);
    add(QStringLiteral("on, disabled"), true, false);
    for (const bool checked : {false, true}) {
        addStateSamples<Button, Option>(
            ioGrid,
            [&](Button *ioButton) {
                ioButton->setText(inText);
                ioButton->setAutoExclusive(false);
                ioButton->setChecked(checked);
            },
            checked ? QStringLiteral("on, ") : QStringLiteral("off, "));
    }
}

void addExtremeTexts(SampleGrid &ioGrid, QAbstractButton *inLong, QAbstractButton *inEmpty)
{
    inLong->setText(kLongText);
    inLong->setFixedWidth(150);
    ioGrid.add(QStringLiteral("long text, cut"), inLong);
    ioGrid.add(QStringLiteral("empty"), inEmpty);
}
} // namespace

void addPushButtons(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 6);
    grid.add(QStringLiteral("plain"), makeButton(QStringLiteral("Button")));
    addStateSamples<QPushButton, QStyleOptionButton>(
        grid, [](QPushButton *ioButton) { ioButton->setText(QStringLiteral("Button")); });
    auto *disabled = makeButton(QStringLiteral("Button"));
    disabled->setEnabled(false);
    grid.add(QStringLiteral("disabled"), disabled);
    auto *isDefault = makeButton(QStringLiteral("Button"));
    isDefault->setDefault(true);
    grid.add(QStringLiteral("default"), isDefault);

    grid.add(QStringLiteral("checked"), makeButton(QStringLiteral("Button"), true));
    addStateSamples<QPushButton, QStyleOptionButton>(
        grid,
        [](QPushButton *ioButton) {
            ioButton->setText(QStringLiteral("Button"));
            ioButton->setCheckable(true);
            ioButton->setChecked(true);
        },
        QStringLiteral("checked, "));
    auto *checkedDisabled = makeButton(QStringLiteral("Button"), true);
    checkedDisabled->setEnabled(false);
    grid.add(QStringLiteral("checked, disabled"), checkedDisabled);
    auto *flat = makeButton(QStringLiteral("Button"));
    flat->setFlat(true);
    grid.add(QStringLiteral("flat"), flat);

    auto *withIcon = makeButton(QStringLiteral("Picture"));
    withIcon->setIcon(DrawnIcons::picture());
    grid.add(QStringLiteral("with icon"), withIcon);
    auto *iconDisabled = makeButton(QStringLiteral("Picture"));
    iconDisabled->setIcon(DrawnIcons::picture());
    iconDisabled->setEnabled(false);
    grid.add(QStringLiteral("icon, disabled"), iconDisabled);
    auto *iconOnly = makeButton(QString());
    iconOnly->setIcon(DrawnIcons::adjust());
    iconOnly->setAccessibleName(QStringLiteral("Adjust"));
    grid.add(QStringLiteral("icon alone"), iconOnly);
    auto *withMenu = makeButton(QStringLiteral("Menu"));
    withMenu->setMenu(makeMenu(withMenu));
    grid.add(QStringLiteral("with menu"), withMenu);
    addExtremeTexts(grid, makeButton(QString()), makeButton(QString()));
}

void addToolButtons(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 7);
    const auto setUp = [](QToolButton *ioButton, Qt::ToolButtonStyle inStyle) {
        ioButton->setIcon(DrawnIcons::picture());
        ioButton->setIconSize(QSize(24, 24));
        ioButton->setText(QStringLiteral("Picture"));
        ioButton->setToolButtonStyle(inStyle);
    };
    const auto add = [&](const QString &inCaption, Qt::ToolButtonStyle inStyle, bool inChecked,
                         bool inEnabled) {
        auto *button = new QToolButton;
        setUp(button, inStyle);
        button->setCheckable(inChecked);
        button->setChecked(inChecked);
        button->setEnabled(inEnabled);
        grid.add(inCaption, button);
        return button;
    };
    add(QStringLiteral("icon"), Qt::ToolButtonIconOnly, false, true);
    addStateSamples<QToolButton, QStyleOptionToolButton>(
        grid, [&](QToolButton *ioButton) { setUp(ioButton, Qt::ToolButtonIconOnly); });
    add(QStringLiteral("checked"), Qt::ToolButtonIconOnly, true, true);
    add(QStringLiteral("disabled"), Qt::ToolButtonIconOnly, false, false);
    add(QStringLiteral("checked, disabled"), Qt::ToolButtonIconOnly, true, false);

    for (const auto &[style, name] :
         {std::pair(Qt::ToolButtonTextBesideIcon, "text beside"),
          std::pair(Qt::ToolButtonTextUnderIcon, "text under"), std::pair(Qt::ToolButtonTextOnly, "text")}) {
        const QString caption = QLatin1String(name);
        add(caption, style, false, true);
        addStateSamples<QToolButton, QStyleOptionToolButton>(
            grid, [&, style = style](QToolButton *ioButton) { setUp(ioButton, style); });
        add(QStringLiteral("checked"), style, true, true);
        add(QStringLiteral("disabled"), style, false, false);
        add(QStringLiteral("checked, disabled"), style, true, false);
    }

    const auto addPopup = [&](const QString &inCaption, QToolButton::ToolButtonPopupMode inMode) {
        QToolButton *button = add(inCaption, Qt::ToolButtonIconOnly, false, true);
        button->setMenu(makeMenu(button));
        button->setPopupMode(inMode);
    };
    addPopup(QStringLiteral("delayed menu"), QToolButton::DelayedPopup);
    addPopup(QStringLiteral("menu at its arrow"), QToolButton::MenuButtonPopup);
    addPopup(QStringLiteral("instant menu"), QToolButton::InstantPopup);
    auto *arrow = new QToolButton;
    arrow->setArrowType(Qt::RightArrow);
    arrow->setAccessibleName(QStringLiteral("Next"));
    grid.add(QStringLiteral("arrow"), arrow);
    auto *empty = new QToolButton;
    empty->setIconSize(QSize(24, 24));
    grid.add(QStringLiteral("empty"), empty);
    auto *emptyChecked = new QToolButton;
    emptyChecked->setIconSize(QSize(24, 24));
    emptyChecked->setCheckable(true);
    emptyChecked->setChecked(true);
    grid.add(QStringLiteral("empty, checked"), emptyChecked);
    auto *raised = add(QStringLiteral("auto raise"), Qt::ToolButtonIconOnly, false, true);
    raised->setAutoRaise(true);
}

void addCheckBoxes(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    addCheckStates<QCheckBox, QStyleOptionButton>(grid, QStringLiteral("Check box"));
    for (const bool enabled : {true, false}) {
        auto *box = new QCheckBox(QStringLiteral("Check box"));
        box->setTristate(true);
        box->setCheckState(Qt::PartiallyChecked);
        box->setEnabled(enabled);
        grid.add(enabled ? QStringLiteral("partly") : QStringLiteral("partly, disabled"), box);
    }
    addExtremeTexts(grid, new QCheckBox, new QCheckBox);
    auto *withIcon = new QCheckBox(QStringLiteral("Picture"));
    withIcon->setIcon(DrawnIcons::picture());
    grid.add(QStringLiteral("with icon"), withIcon);
}

void addRadioButtons(QVBoxLayout *ioLayout)
{
    SampleGrid grid(ioLayout, 5);
    addCheckStates<QRadioButton, QStyleOptionButton>(grid, QStringLiteral("Radio button"));
    addExtremeTexts(grid, new QRadioButton, new QRadioButton);
}

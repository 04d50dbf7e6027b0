#include "VantraPluginStyle.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QStyleOption>

namespace {

constexpr int kArrowExtent = 16;    // room for a combo box's arrow
constexpr int kTextExtra = 4 + 1;   // what the style adds to a text, and the gap to its arrow
constexpr int kPadding = 4;         // above and below a text
constexpr int kMenuPartExtent = 12; // the part of a tool button that opens its menu

QFont systemFont()
{
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont);
}

// The option, if it is a plain one of Qt's: this library's records have higher versions.
template <typename Option>
const Option *plain(const QStyleOption *inOption)
{
    const auto *option = qstyleoption_cast<const Option *>(inOption);
    return option != nullptr && option->version == Option::Version ? option : nullptr;
}

// Rows have their decoration on the left in the design, and nothing else.
bool isOtherItem(const QStyleOption *inOption)
{
    const auto *item = plain<QStyleOptionViewItem>(inOption);
    return item != nullptr && item->decorationPosition != QStyleOptionViewItem::Left;
}

bool isUpright(const QStyleOption *inOption)
{
    const auto *slider = plain<QStyleOptionSlider>(inOption);
    return slider != nullptr && slider->orientation == Qt::Vertical;
}

const QStyleOptionComboBox *editableComboBox(const QStyleOption *inOption)
{
    const auto *comboBox = plain<QStyleOptionComboBox>(inOption);
    return comboBox != nullptr && comboBox->editable ? comboBox : nullptr;
}

// The field inside another control, which has a ground already.
bool isInnerField(const QWidget *inWidget)
{
    const QWidget *parent = inWidget != nullptr ? inWidget->parentWidget() : nullptr;
    return qobject_cast<const QAbstractSpinBox *>(parent) != nullptr ||
           qobject_cast<const QComboBox *>(parent) != nullptr;
}

int pillRadius(const QSize &inSize)
{
    return qMin(inSize.width(), inSize.height()) / 2;
}

} // namespace

void VantraPluginStyle::polish(QPalette &ioPalette)
{
    VantraStyle::polish(ioPalette);
    const auto set = [&ioPalette](QPalette::ColorRole colorRole, VantraPalette::PaletteRole role) {
        const VantraColorPalette &colors = theme().colorPalette();
        ioPalette.setColor(colorRole, colors.color(VantraPalette::Normal, role));
        ioPalette.setColor(QPalette::Disabled, colorRole, colors.color(VantraPalette::Disabled, role));
    };
    set(QPalette::AlternateBase, VantraPalette::FrameRaisedBackground);
    set(QPalette::Light, VantraPalette::FrameLine);
    set(QPalette::Midlight, VantraPalette::FrameRaisedBackground);
    set(QPalette::Mid, VantraPalette::FrameSunkenBackground);
    set(QPalette::Dark, VantraPalette::FrameSunkenBackground);
    set(QPalette::ToolTipBase, VantraPalette::FrameRaisedBackground);
    set(QPalette::ToolTipText, VantraPalette::PaneHeaderText);
    set(QPalette::BrightText, VantraPalette::PaneHeaderText);
    set(QPalette::Link, VantraPalette::Accent);
    set(QPalette::LinkVisited, VantraPalette::SliderGrove);
}

void VantraPluginStyle::polish(QApplication *ioApplication)
{
    VantraStyle::polish(ioApplication);
    const bool chosenByProgram = QApplication::font() != systemFont();
    if (!chosenByProgram) {
        mFont = VantraFont::mainFont();
        QApplication::setFont(mFont);
        mGaveFont = true;
    }
}

void VantraPluginStyle::unpolish(QApplication *ioApplication)
{
    if (mGaveFont && QApplication::font() == mFont) {
        QApplication::setFont(systemFont());
    }
    mGaveFont = false;
    VantraStyle::unpolish(ioApplication);
}

void VantraPluginStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                      const QWidget *widget) const
{
    switch (element) {
    case PE_FrameTabBarBase: return; // every tab is a plate of its own and stands on no line
    case PE_PanelLineEdit:
        if (isInnerField(widget)) {
            return;
        }
        break;
    case PE_PanelItemViewItem:
    case PE_PanelItemViewRow:
    case PE_IndicatorBranch:
        if (isOtherItem(option)) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
            return;
        }
        break;
    default: break;
    }
    VantraStyle::drawPrimitive(element, option, painter, widget);
}

void VantraPluginStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                    const QWidget *widget) const
{
    if (element == CE_ItemViewItem && isOtherItem(option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    if (element == CE_ComboBoxLabel) {
        if (const QStyleOptionComboBox *comboBox = editableComboBox(option)) {
            // The field shows the text.
            QStyleOptionComboBox label = *comboBox;
            label.currentText.clear();
            VantraStyle::drawControl(element, &label, painter, widget);
            return;
        }
    }
    VantraStyle::drawControl(element, option, painter, widget);
}

void VantraPluginStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                           QPainter *painter, const QWidget *widget) const
{
    if (control == CC_Slider && isUpright(option)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    VantraStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox && qobject_cast<const QDateTimeEdit *>(widget) != nullptr) {
        // A date field with a calendar paints no label, which would bring the arrow.
        QStyleOption arrow = *option;
        arrow.rect = proxy()->subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget);
        proxy()->drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
    }
}

QRect VantraPluginStyle::subElementRect(SubElement element, const QStyleOption *option,
                                        const QWidget *widget) const
{
    switch (element) {
    case SE_ItemViewItemCheckIndicator:
    case SE_ItemViewItemDecoration:
    case SE_ItemViewItemText:
        if (isOtherItem(option)) {
            return QProxyStyle::subElementRect(element, option, widget);
        }
        break;
    default: break;
    }
    return VantraStyle::subElementRect(element, option, widget);
}

QRect VantraPluginStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                                        SubControl subControl, const QWidget *widget) const
{
    if (control == CC_Slider && isUpright(option)) {
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
    if (control == CC_ComboBox && subControl != SC_ComboBoxListBoxPopup) {
        if (const QStyleOptionComboBox *comboBox = editableComboBox(option)) {
            // The field and the arrow share the whole control, however short the text is.
            QRect rect = comboBox->rect;
            const int pill = pillRadius(rect.size());
            if (subControl == SC_ComboBoxEditField) {
                rect.adjust(pill, 0, -(kArrowExtent + pill), 0);
            } else if (subControl == SC_ComboBoxArrow) {
                rect.setLeft(rect.right() - pill - kArrowExtent);
            }
            return visualRect(comboBox->direction, comboBox->rect, rect);
        }
    }
    if (control == CC_ScrollBar) {
        const auto *scrollBar = plain<QStyleOptionSlider>(option);
        if (scrollBar != nullptr && scrollBar->orientation == Qt::Horizontal &&
            scrollBar->direction == Qt::RightToLeft) {
            return mirroredScrollBarRect(*scrollBar, subControl, widget);
        }
    }
    if (control == CC_ToolButton) {
        const auto *toolButton = plain<QStyleOptionToolButton>(option);
        if (toolButton != nullptr && toolButton->features.testFlag(QStyleOptionToolButton::MenuButtonPopup)) {
            const QRect rect = toolButton->rect;
            const QRect menuPart(rect.right() - kMenuPartExtent + 1, rect.top(), kMenuPartExtent,
                                 rect.height());
            const QRect part =
                subControl == SC_ToolButtonMenu ? menuPart : rect.adjusted(0, 0, -kMenuPartExtent, 0);
            return visualRect(toolButton->direction, rect, part);
        }
    }
    return VantraStyle::subControlRect(control, option, subControl, widget);
}

// Qt mirrors what the mouse does to a horizontal scroll bar, so the rectangles have to follow.
QRect VantraPluginStyle::mirroredScrollBarRect(const QStyleOptionSlider &inOption, SubControl inSubControl,
                                               const QWidget *inWidget) const
{
    QStyleOptionSlider mirrored = inOption;
    mirrored.upsideDown = !inOption.upsideDown;
    const SubControl part = inSubControl == SC_ScrollBarAddPage   ? SC_ScrollBarSubPage
                            : inSubControl == SC_ScrollBarSubPage ? SC_ScrollBarAddPage
                                                                  : inSubControl;
    return VantraStyle::subControlRect(CC_ScrollBar, &mirrored, part, inWidget);
}

QSize VantraPluginStyle::sizeFromContents(ContentsType type, const QStyleOption *option,
                                          const QSize &contentsSize, const QWidget *widget) const
{
    if (type == CT_ItemViewItem && isOtherItem(option)) {
        return QProxyStyle::sizeFromContents(type, option, contentsSize, widget);
    }
    const QSize size = VantraStyle::sizeFromContents(type, option, contentsSize, widget);
    const int height = contentsSize.height() + 2 * kPadding;
    if (type == CT_SpinBox) {
        if (const auto *spinBox = plain<QStyleOptionSpinBox>(option)) {
            return size.expandedTo(spinBoxSize(*spinBox, contentsSize, widget));
        }
    } else if (type == CT_ComboBox && plain<QStyleOptionComboBox>(option) != nullptr) {
        // Room for the longest entry, so that a choice doesn't change the size.
        const int ends = 2 * (qMax(height, size.height()) / 2);
        return size.expandedTo(QSize(contentsSize.width() + kTextExtra + kArrowExtent + ends, height));
    } else if (type == CT_TabBarTab) {
        if (const auto *tab = plain<QStyleOptionTab>(option)) {
            // The text stays in the middle, so both ends get the room of a button.
            return size + QSize(2 * qMax(tab->leftButtonSize.width(), tab->rightButtonSize.width()), 0);
        }
    }
    return size;
}

QSize VantraPluginStyle::spinBoxSize(const QStyleOptionSpinBox &inOption, const QSize &inContents,
                                     const QWidget *inWidget) const
{
    QStyleOptionSpinBox spinBox = inOption;
    spinBox.rect = QRect(0, 0, inContents.width() + 100, inContents.height() + 2 * kPadding);
    const QRect field = proxy()->subControlRect(CC_SpinBox, &spinBox, SC_SpinBoxEditField, inWidget);
    return QSize(inContents.width() + spinBox.rect.width() - field.width(), spinBox.rect.height());
}

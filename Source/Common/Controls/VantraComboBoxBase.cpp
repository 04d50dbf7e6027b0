#include "Controls/VantraComboBoxBase.h"

#include "Controls/VantraComboBoxStyleItemDelegate.h"
#include "StyleOptions/VantraStyleOptionComboBox.h"
#include "Theme/VantraFont.h"
#include "VTDpiUtils.h"
#include "VTQtSignalBlocker.h"

#include <QtCore/QItemSelectionModel>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStylePainter>

namespace {

QStandardItem *itemAt(const QComboBox &inComboBox, int inIndex)
{
    const auto *model = qobject_cast<const QStandardItemModel *>(inComboBox.model());
    Q_ASSERT_X(model != nullptr, "VantraComboBoxBase", "ComboBox model isn't a QStandardItemModel");
    return model->item(inIndex, 0);
}

} // namespace

VantraComboBoxBase::VantraComboBoxBase(QWidget *inParent) : QComboBox(inParent)
{
    setItemDelegate(new VantraComboBoxStyleItemDelegate(this));
    setFont(VantraFont::mainFont());
    connect(view(), &QAbstractItemView::pressed, this, &VantraComboBoxBase::onPressed);
    connect(this, &QComboBox::highlighted, this, &VantraComboBoxBase::onHighlighted);
    view()->installEventFilter(this);
    view()->setAlternatingRowColors(false);
    view()->setFrameShadow(QFrame::Plain);
    view()->setFrameShape(QFrame::NoFrame);
    freezeHighlight();
}

VantraComboBoxBase::~VantraComboBoxBase()
{
    view()->removeEventFilter(this);
}

void VantraComboBoxBase::setBackgroundStyle(BackgroundStyle inStyle)
{
    if (mBackgroundStyle == inStyle) {
        return;
    }
    mBackgroundStyle = inStyle;
    emit backgroundStyleChanged(inStyle);
}

void VantraComboBoxBase::setCurrentIndexTC(int index)
{
    QComboBox::setCurrentIndex(index);
}

void VantraComboBoxBase::setCurrentIndexAndBlockSignals(int inIndex)
{
    const VTQtSignalBlocker blocker(this);
    QComboBox::setCurrentIndex(inIndex);
}

void VantraComboBoxBase::setItemEnabled(int inIndex, bool inEnabled)
{
    QStandardItem *item = itemAt(*this, inIndex);
    if (item != nullptr) {
        item->setFlags(item->flags().setFlag(Qt::ItemIsEnabled, inEnabled));
    }
}

bool VantraComboBoxBase::itemEnabled(int inIndex) const
{
    const QStandardItem *item = itemAt(*this, inIndex);
    return item != nullptr && item->flags().testFlag(Qt::ItemIsEnabled);
}

bool VantraComboBoxBase::isSeparator(const QModelIndex &inIndex) const
{
    return VantraComboBoxStyleItemDelegate::isSeparator(inIndex);
}

void VantraComboBoxBase::adjustMinimumViewWidth(QComboBox *comboBox)
{
    Q_ASSERT(comboBox != NULL);
    Q_ASSERT(comboBox->view() != NULL);
    comboBox->view()->setMinimumWidth(popupRect().width());
}

void VantraComboBoxBase::setEditable(bool inEditable)
{
    QComboBox::setEditable(inEditable);
    if (inEditable) {
        lineEdit()->setFont(font());
    }
}

void VantraComboBoxBase::setAboutToShowPopupFunc(const std::function<void(VantraComboBoxBase *)> &inFunc)
{
    mAboutToShowPopupFunc = inFunc;
}

void VantraComboBoxBase::showPopup()
{
    mPopupStartIndex = currentIndex();
    if (mAboutToShowPopupFunc) {
        // It may set another one while it runs.
        const std::function<void(VantraComboBoxBase *)> func = mAboutToShowPopupFunc;
        func(this);
    }
    emit aboutToShowPopup();
    adjustMinimumViewWidth(this);
    highlightCurrentItem();
    QComboBox::showPopup();
    if (!view()->isVisible()) {
        freezeHighlight(); // an empty list does not open
    }
    emit showingPopup();
}

// Up to 6.4 Qt moves the list's highlight to the current item when the popup opens, and emits highlighted()
// for it. Newer Qt does so at every change of the current index, when nobody sees the list, and leaves a row
// that was abandoned by Escape highlighted. While the popup is closed the list therefore doesn't follow.
void VantraComboBoxBase::freezeHighlight()
{
    mClosedHighlight = view()->currentIndex();
    view()->selectionModel()->blockSignals(true);
}

void VantraComboBoxBase::highlightCurrentItem()
{
    QItemSelectionModel *selection = view()->selectionModel();
    // A view or model that the application has set since is not frozen.
    if (selection->signalsBlocked()) {
        selection->setCurrentIndex(mClosedHighlight, QItemSelectionModel::NoUpdate);
        selection->blockSignals(false);
    }
    QItemSelectionModel::SelectionFlags flags = QItemSelectionModel::ClearAndSelect;
    flags.setFlag(QItemSelectionModel::Rows, view()->selectionBehavior() == QAbstractItemView::SelectRows);
    selection->setCurrentIndex(model()->index(currentIndex(), modelColumn(), rootModelIndex()), flags);
}

void VantraComboBoxBase::hidePopup()
{
    emit hidingPopup();
    QComboBox::hidePopup();
}

void VantraComboBoxBase::onHighlighted(int index)
{
    mHighlightedIndex = index;
    // Dragging over the list with the button down counts as pressing.
    if (QGuiApplication::mouseButtons() & Qt::LeftButton) {
        mPressedIndex = index;
    }
}

void VantraComboBoxBase::onPressed(const QModelIndex &index)
{
    mPressedIndex = index.row();
    mPopupStartIndex = -1;
}

void VantraComboBoxBase::resetIndexes()
{
    if (mPressedIndex == -1 && mHighlightedIndex == mPressedIndex) {
        return;
    }
    if (mHighlightedIndex != mPressedIndex && mPopupStartIndex != -1) {
        emit QComboBox::highlighted(mPopupStartIndex);
        mPopupStartIndex = -1;
    }
    mHighlightedIndex = -1;
    mPressedIndex = -1;
}

bool VantraComboBoxBase::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == view()) {
        if (event->type() == QEvent::FocusOut) {
            resetIndexes();
            hidePopup();
        } else if (event->type() == QEvent::Leave) {
            // A press followed by leaving the list is no choice.
            mPressedIndex = -1;
        } else if (event->type() == QEvent::Hide && qobject_cast<QAbstractItemView *>(watched) != nullptr) {
            // A list that is replaced while it is open hides as it is destroyed, when it is only a widget.
            freezeHighlight();
        }
    }
    return QObject::eventFilter(watched, event);
}

bool VantraComboBoxBase::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Tab && !key->isAutoRepeat()) {
            event->accept();
        }
    }
    return QComboBox::event(event);
}

void VantraComboBoxBase::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

void VantraComboBoxBase::changeEvent(QEvent *event)
{
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) {
        setAttribute(Qt::WA_TransparentForMouseEvents, !isEnabled());
    }
}

void VantraComboBoxBase::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    if (option == nullptr) {
        return;
    }
    if (currentIndex() == -1) {
        if (!mPlaceholderText.isEmpty()) {
            option->currentText = mPlaceholderText;
        }
        if (!mPlaceholderIcon.isNull()) {
            option->currentIcon = mPlaceholderIcon;
        }
    }
    if (option->version >= VantraStyleOptionComboBox::Version &&
        option->type == VantraStyleOptionComboBox::Type) {
        static_cast<VantraStyleOptionComboBox *>(option)->backgroundStyle = mBackgroundStyle;
    }
}

void VantraComboBoxBase::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    VTDpiUtils::configureQPainterForDpi(&painter);
    painter.setPen(palette().color(QPalette::Text));
    // The hint follows the current text and the placeholder, whose changes tell nobody.
    updateGeometry();

    VantraStyleOptionComboBox option;
    initStyleOption(&option);
    option.rect.setSize(option.rect.size().boundedTo(sizeHint()));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

QSize VantraComboBoxBase::sizeHint() const
{
    const QSize size = QComboBox::sizeHint();
    VantraStyleOptionComboBox option;
    ensurePolished();
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, size, this);
}

QSize VantraComboBoxBase::minimumSizeHint() const
{
    const QSize size = QComboBox::minimumSizeHint();
    VantraStyleOptionComboBox option;
    ensurePolished();
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, size, this);
}

const QRect VantraComboBoxBase::arrowRect() const
{
    VantraStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
}

const QRect VantraComboBoxBase::editFieldRect() const
{
    VantraStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
}

const QRect VantraComboBoxBase::popupRect() const
{
    VantraStyleOptionComboBox option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxListBoxPopup, this);
}

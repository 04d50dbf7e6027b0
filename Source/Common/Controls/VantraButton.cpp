#include "Controls/VantraButton.h"

#include "Controls/VantraAccessible_p.h"
#include "Controls/VantraLabel.h"
#include "StyleOptions/VantraStyleOptionButton.h"
#include "Theme/VantraFont.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QStylePainter>

#include <utility>

namespace {

// What Qt gives a child that nobody has laid out yet.
constexpr QSize kFirstSize(100, 30);

/// While it exists, a parent that is a splitter doesn't notice new children. A splitter makes a pane of each
/// child that it notices.
class SplitterBlocker : public QObject
{
public:
    explicit SplitterBlocker(QWidget *ioParent)
    {
        if (qobject_cast<QSplitter *>(ioParent) != nullptr) {
            ioParent->installEventFilter(this);
        }
    }

    bool eventFilter(QObject *, QEvent *inEvent) override { return inEvent->type() == QEvent::ChildAdded; }
};

} // namespace

VantraButton::VantraButton(QWidget *inParent) : VantraButtonBase(inParent)
{
    if (inParent == nullptr) {
        // The round caps that the style measures are half as wide as the button is high at present. Qt begins
        // with a window's height, with which the first layout would ask for caps of 240 pixels each.
        resize(kFirstSize);
        setAttribute(Qt::WA_Resized, false);
    }
}

VantraButton::~VantraButton()
{
    // The badge belongs to the parent; without its button it has nothing to tell.
    if (!mNotificationBadge.isNull()) {
        mNotificationBadge->hide();
    }
}

void VantraButton::setButtonStyle(ButtonStyle inStyle)
{
    if (mButtonStyle == inStyle) {
        return;
    }
    mButtonStyle = inStyle;
    setFont(VantraFont::mainFont());
    if (inStyle != TextOnlyStyle) {
        setAttribute(Qt::WA_LayoutUsesWidgetRect, false);
    }
    updateGeometry();
    update();
}

void VantraButton::setTextOnlyButtonStyle(bool inTextOnly)
{
    setButtonStyle(inTextOnly ? TextOnlyStyle : LeftAndRightCapButtonStyle);
}

void VantraButton::setAlignment(Qt::Alignment inAlignment)
{
    if (mAlignment == inAlignment) {
        return;
    }
    mAlignment = inAlignment;
    update();
}

void VantraButton::setBackgroundButtonRole(const VantraPalette::PaletteRole &inRole)
{
    if (mBackgroundButtonRole == inRole) {
        return;
    }
    mBackgroundButtonRole = inRole;
    update();
}

bool VantraButton::notificationBadgeEnabled() const
{
    return !mNotificationBadge.isNull();
}

void VantraButton::setNotificationBadgeEnabled(bool inEnabled)
{
    if (inEnabled == notificationBadgeEnabled()) {
        return;
    }
    if (inEnabled) {
        Q_ASSERT(parentWidget() != nullptr);
        const SplitterBlocker blocker(parentWidget());
        mNotificationBadge = new VantraLabel(parentWidget());
        mNotificationBadge->setLabelStyle(VantraLabel::NotificationStyle);
        connect(mNotificationBadge, &QObject::destroyed, this, &VantraButton::forgetNotificationBadge);
        setNotificationBadgeCount(0);
    } else {
        mNotificationBadge->setParent(nullptr);
        delete mNotificationBadge.data();
    }
    emit notificationBadgeEnabledChanged();
}

void VantraButton::forgetNotificationBadge()
{
    mNotificationBadgeCount = 0;
    describeNotificationBadge();
}

int VantraButton::notificationBadgeCount() const
{
    return notificationBadgeEnabled() ? mNotificationBadgeCount : 0;
}

void VantraButton::setNotificationBadgeCount(int inCount)
{
    if (!notificationBadgeEnabled()) {
        return;
    }
    if (inCount != mNotificationBadgeCount) {
        mNotificationBadgeCount = inCount;
        mNotificationBadge->setText(QString::number(inCount, 10));
        // Nothing else gives the badge its size, which a longer number outgrows; painting then puts it right.
        mNotificationBadge->adjustSize();
        update();
        describeNotificationBadge();
        emit notificationBadgeCountChanged();
    }
    updateNotificationBadgeVisibility();
}

void VantraButton::describeNotificationBadge()
{
    const int count = notificationBadgeCount();
    const QString description = count > 0 ? tr("Notifications: %1").arg(count) : QString();
    VantraAccessible::replaceDescription(this, mBadgeDescription, description);
    mBadgeDescription = description;
}

void VantraButton::updateNotificationBadgeVisibility()
{
    if (mNotificationBadge.isNull()) {
        return;
    }
    QWidget *parent = parentWidget();
    if (parent != nullptr && mNotificationBadge->parentWidget() != parent) {
        const SplitterBlocker blocker(parent);
        mNotificationBadge->setParent(parent);
    }
    // What the badge covers of the button is still the button's to click. Enabling a label undoes this.
    mNotificationBadge->setAttribute(Qt::WA_TransparentForMouseEvents);
    const bool wasHidden = mNotificationBadge->isHidden();
    // A button that became a window has left its badge behind.
    mNotificationBadge->setVisible(isVisible() && parent != nullptr && mNotificationBadgeCount > 0);
    if (wasHidden && !mNotificationBadge->isHidden()) {
        mNotificationBadge->raise();
    }
}

void VantraButton::keepNotificationBadgeAbove()
{
    if (mNotificationBadge.isNull() || mNotificationBadge->parentWidget() != parentWidget()) {
        return;
    }
    // A button that was lowered stays below what now covers it, and so does its badge.
    const QObjectList &siblings = parentWidget()->children();
    if (siblings.indexOf(this) > siblings.indexOf(mNotificationBadge.data())) {
        mNotificationBadge->raise();
    }
}

void VantraButton::moveNotificationBadge()
{
    const QWidget *parent = parentWidget();
    if (mNotificationBadge.isNull() || parent == nullptr) {
        return;
    }
    const QPoint corner = parent->mapFromGlobal(mapToGlobal(rect().topRight()));
    mNotificationBadge->move(corner.x() - mNotificationBadge->width() / 2,
                             corner.y() - mNotificationBadge->height() / 3);
}

void VantraButton::updateTabButtonStyles(QList<VantraButton *> &inButtons)
{
    QList<VantraButton *> visible;
    for (VantraButton *button : std::as_const(inButtons)) {
        if (button->isVisible()) {
            visible.append(button);
        }
    }
    if (visible.size() == 1) {
        visible.first()->setButtonStyle(LeftAndRightCapTabButtonStyle);
        return;
    }
    for (qsizetype index = 0; index < visible.size(); ++index) {
        visible[index]->setButtonStyle(index == 0                    ? LeftCapTabButtonStyle
                                       : index == visible.size() - 1 ? RightCapTabButtonStyle
                                                                     : NoCapTabButtonStyle);
    }
}

QPixmap VantraButton::getDragPixmap()
{
    QPixmap pixmap(size());
    if (pixmap.isNull()) {
        return pixmap;
    }
    pixmap.fill(Qt::transparent);
    VantraStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(&pixmap, this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawControl(QStyle::CE_PushButton, option);
    return pixmap;
}

QSize VantraButton::sizeHint() const
{
    VantraStyleOptionButton option;
    ensurePolished();
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, QSize(0, 0), this);
}

bool VantraButton::event(QEvent *event)
{
    if (event->type() == QEvent::ZOrderChange) {
        keepNotificationBadgeAbove();
    }
    return VantraButtonBase::event(event);
}

void VantraButton::mousePressEvent(QMouseEvent *event)
{
    QAbstractButton::mousePressEvent(event);
}

void VantraButton::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPointer<VantraButton> self(this);
    QWidget::mouseDoubleClickEvent(event);
    if (!self.isNull()) {
        emit buttonDoubleClicked();
    }
}

void VantraButton::paintEvent(QPaintEvent *)
{
    VantraStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawControl(QStyle::CE_PushButton, option);
    painter.end();
    updateNotificationBadgeVisibility();
    moveNotificationBadge();
}

void VantraButton::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    updateNotificationBadgeVisibility();
}

void VantraButton::hideEvent(QHideEvent *event)
{
    updateNotificationBadgeVisibility();
    QWidget::hideEvent(event);
}

void VantraButton::initStyleOption(QStyleOptionButton *option) const
{
    QPushButton::initStyleOption(option);
    if (option == nullptr) {
        return;
    }
    option->text.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (option->version >= VantraStyleOptionButton::Version &&
        option->type == VantraStyleOptionButton::Type) {
        auto *record = static_cast<VantraStyleOptionButton *>(option);
        record->font = font();
        record->buttonStyle = mButtonStyle;
        record->alignment = mAlignment;
        record->backgroundButtonRole = mBackgroundButtonRole;
    }
}

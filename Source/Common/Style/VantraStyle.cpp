// The frame of the style: construction, polishing, hints and the animation clock. What it paints and measures
// is dispatched in VantraStylePainting.cpp and VantraStyleGeometry.cpp.

#include "Style/VantraStyle.h"

#include "Style/VantraStyleHelperButton.h"
#include "Style/VantraStyleHelperCheckBox.h"
#include "Style/VantraStyleHelperComboBox.h"
#include "Style/VantraStyleHelperFrame.h"
#include "Style/VantraStyleHelperGroupBox.h"
#include "Style/VantraStyleHelperItemView.h"
#include "Style/VantraStyleHelperLineEdit.h"
#include "Style/VantraStyleHelperMenu.h"
#include "Style/VantraStyleHelperProgressBar.h"
#include "Style/VantraStyleHelperScrollBar.h"
#include "Style/VantraStyleHelperSlider.h"
#include "Style/VantraStyleHelperSpinBox.h"
#include "Style/VantraStyleHelperSplitter.h"
#include "Style/VantraStyleHelperTabBar.h"
#include "Style/VantraStyleHelperToolButton.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QAbstractSlider>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSplitterHandle>
#include <QtWidgets/QStyleFactory>

namespace {

using std::chrono::duration_cast;
using std::chrono::milliseconds;
using std::chrono::steady_clock;

constexpr milliseconds kAnimationInterval(33);
constexpr int kSilentIntervals = 500;
constexpr std::size_t kAnimationBuckets = 8;

constexpr int kStartDragTime = 100;    // ms
constexpr int kStartDragDistance = 20; // logical pixels
constexpr int kPopupDelay = 300;       // ms

bool isHoverable(const QWidget *inWidget)
{
    return qobject_cast<const QAbstractButton *>(inWidget) || qobject_cast<const QProgressBar *>(inWidget) ||
           qobject_cast<const QScrollBar *>(inWidget) || qobject_cast<const QSplitterHandle *>(inWidget) ||
           qobject_cast<const QAbstractSlider *>(inWidget) ||
           qobject_cast<const QAbstractSpinBox *>(inWidget) || qobject_cast<const QLineEdit *>(inWidget) ||
           qobject_cast<const QComboBox *>(inWidget) || inWidget->inherits("QDockSeparator") ||
           inWidget->inherits("QDockWidgetSeparator");
}

// QMenu::show() creates the window before it polishes the menu, and QMenu::popup() sets the layout direction
// before. QWidget::setWindowFlags() would detach the menu from that window and reset that direction.
void addMenuFlags(QMenu *ioMenu)
{
    const Qt::WindowFlags flags =
        ioMenu->windowFlags() | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
    ioMenu->overrideWindowFlags(flags);
    if (QWindow *window = ioMenu->windowHandle()) {
        window->setFlags(flags);
    }
}

} // namespace

VantraStyle::VantraStyle()
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), mAnimations(kAnimationBuckets)
{
    const VantraStyleTheme *theme = &VantraStyleTheme::instance();
    mHelperCheckBox = std::make_unique<VantraStyleHelperCheckBox>(this, theme);
    mHelperFrame = std::make_unique<VantraStyleHelperFrame>(this, theme);
    mHelperSlider = std::make_unique<VantraStyleHelperSlider>(this, theme);
    mHelperButton = std::make_unique<VantraStyleHelperButton>(this, theme);
    mHelperToolButton = std::make_unique<VantraStyleHelperToolButton>(this, theme);
    mHelperScrollBar = std::make_unique<VantraStyleHelperScrollBar>(this, theme);
    mHelperProgressBar = std::make_unique<VantraStyleHelperProgressBar>(
        this, theme, [this](const QWidget *widget) { return animationTime(widget); });
    mHelperItemView = std::make_unique<VantraStyleHelperItemView>(this, theme);
    mHelperLineEdit = std::make_unique<VantraStyleHelperLineEdit>(this, theme);
    mHelperComboBox = std::make_unique<VantraStyleHelperComboBox>(this, theme);
    mHelperSplitter = std::make_unique<VantraStyleHelperSplitter>(this, theme);
    mHelperTabBar = std::make_unique<VantraStyleHelperTabBar>(this, theme);
    mHelperSpinBox = std::make_unique<VantraStyleHelperSpinBox>(this, theme);
    mHelperMenu = std::make_unique<VantraStyleHelperMenu>(this, theme);
    mHelperGroupBox = std::make_unique<VantraStyleHelperGroupBox>(this, theme);

    connect(&mAnimationTimer, &QTimer::timeout, this, &VantraStyle::onAnimationUpdate);
    mAnimationTimer.setInterval(kAnimationInterval);
    ensureAnimationTimer();
}

VantraStyle::~VantraStyle() = default;

const VantraStyleTheme &VantraStyle::theme()
{
    return VantraStyleTheme::instance();
}

void VantraStyle::polish(QPalette &palette)
{
    QProxyStyle::polish(palette);
    const VantraStyleTheme &look = theme();
    for (const QPalette::ColorGroup group : {QPalette::Disabled, QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Window, look.windowBackgroundColor(group));
        palette.setColor(group, QPalette::Base, look.windowBackgroundColor(group));
        palette.setColor(group, QPalette::Highlight, look.highlightedTextBackgroundColor(group));
#if QT_VERSION >= QT_VERSION_CHECK(6, 6, 0)
        palette.setColor(group, QPalette::Accent,
                         look.highlightedTextBackgroundColor(group)); // as Qt has it by default
#endif
        palette.setColor(group, QPalette::Text, look.windowTextColor(group));
        palette.setColor(group, QPalette::HighlightedText, look.highlightedTextColor(group));
        palette.setColor(group, QPalette::PlaceholderText, look.windowTextColor(group));
        palette.setColor(group, QPalette::WindowText, look.windowTextColor(group));
        palette.setColor(group, QPalette::Button, look.buttonBackgroundColor(group));
        palette.setColor(group, QPalette::ButtonText, look.buttonTextColor(group));
    }
}

void VantraStyle::polish(QApplication *application)
{
    QApplication::setStartDragTime(kStartDragTime);
    QApplication::setStartDragDistance(kStartDragDistance);
    QProxyStyle::polish(application);
    ensureAnimationTimer();
}

void VantraStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    ensureAnimationTimer();
    if (auto *menu = qobject_cast<QMenu *>(widget)) {
        addMenuFlags(menu);
        menu->setAttribute(Qt::WA_TranslucentBackground);
    } else if (isHoverable(widget)) {
        widget->setAttribute(Qt::WA_Hover);
        widget->setAttribute(Qt::WA_OpaquePaintEvent, false);
    } else if (qobject_cast<QAbstractItemView *>(widget) != nullptr) {
        widget->setAttribute(Qt::WA_MouseTracking);
    }

    // Scroll areas show the ground that their parents paint.
    const auto *scrollArea = qobject_cast<QAbstractScrollArea *>(widget);
    if (scrollArea != nullptr && scrollArea->viewport() != nullptr) {
        scrollArea->viewport()->setAutoFillBackground(false);
        const QList<QWidget *> children = scrollArea->viewport()->findChildren<QWidget *>();
        for (QWidget *child : children) {
            child->setAutoFillBackground(false);
        }
    }
}

void VantraStyle::unpolish(QApplication *application)
{
    QProxyStyle::unpolish(application);
}

void VantraStyle::unpolish(QWidget *widget)
{
    QProxyStyle::unpolish(widget);
    // Only sliders lose it: the other classes keep the hover attribute.
    if (qobject_cast<QSlider *>(widget) != nullptr) {
        widget->setAttribute(Qt::WA_Hover, false);
    }
    if (mAnimations.erase(widget) != 0) {
        widget->removeEventFilter(this);
    }
}

int VantraStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                           QStyleHintReturn *returnData) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_MenuBar_AltKeyNavigation:
    case SH_ScrollBar_Transient: return 0;
    case SH_ListViewExpand_SelectMouseType: return QEvent::MouseButtonPress;
    case SH_ToolButton_PopupDelay: return kPopupDelay;
    default: return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

milliseconds VantraStyle::animationTime(const QWidget *widget) const
{
    if (widget == nullptr) {
        return milliseconds(0);
    }
    const steady_clock::time_point now = steady_clock::now();
    AnimationEntry &entry = mAnimations[widget];
    if (entry.widget.isNull()) {
        entry = {now, now, const_cast<QWidget *>(widget)};
        entry.widget->installEventFilter(const_cast<VantraStyle *>(this));
        return milliseconds(0);
    }
    entry.lastQueryTime = now;
    return duration_cast<milliseconds>(now - entry.startTime);
}

void VantraStyle::ensureAnimationTimer()
{
    if (!mAnimationTimer.isActive() && QCoreApplication::instance() != nullptr) {
        mAnimationTimer.start();
    }
}

void VantraStyle::onAnimationUpdate()
{
    const milliseconds limit = mAnimationTimer.intervalAsDuration() * kSilentIntervals;
    const steady_clock::time_point now = steady_clock::now();
    for (auto entry = mAnimations.begin(); entry != mAnimations.end();) {
        const AnimationEntry &animation = entry->second;
        if (animation.widget.isNull() || duration_cast<milliseconds>(now - animation.lastQueryTime) > limit) {
            entry = mAnimations.erase(entry);
        } else {
            animation.widget->update();
            ++entry;
        }
    }
}

bool VantraStyle::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Destroy) {
        mAnimations.erase(static_cast<QWidget *>(watched));
    }
    return QObject::eventFilter(watched, event);
}

#include "ToolTips/VantraToolTipFilter.h"

#include "Controls/VantraToolButton.h"
#include "ToolTips/VantraToolTip.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QCursor>
#include <QtGui/QHelpEvent>

namespace {

constexpr int kCheckInterval = 1000; // milliseconds

// The tip that opened last. The shared filter outlives the application, which no widget may.
QPointer<VantraToolTip> sLastToolTip;

void deleteLastToolTip()
{
    delete sLastToolTip.data();
}

} // namespace

VantraToolTipFilter *VantraToolTipFilter::sharedInstance()
{
    static VantraToolTipFilter sInstance;
    return &sInstance;
}

VantraToolTipFilter::VantraToolTipFilter(QObject *) : mTimer(new QTimer(this))
{
    mTimer->setInterval(kCheckInterval);
    connect(mTimer, &QTimer::timeout, this, &VantraToolTipFilter::onToolTipTimeout);
}

VantraToolTipFilter::~VantraToolTipFilter()
{
    disconnect(mTimer, &QTimer::timeout, this, &VantraToolTipFilter::onToolTipTimeout);
    delete mToolTip.data();
    // The library may be unloaded before the application ends.
    if (sLastToolTip.isNull()) {
        qRemovePostRoutine(&deleteLastToolTip);
    }
}

bool VantraToolTipFilter::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ToolTip) {
        return false;
    }
    auto *button = qobject_cast<VantraToolButton *>(object);
    if (button == nullptr || button->toolTipImage().isEmpty()) {
        return false;
    }
    if (button != mCurrentButton) {
        openToolTip(button, *static_cast<QHelpEvent *>(event));
    }
    return true;
}

void VantraToolTipFilter::openToolTip(VantraToolButton *inButton, const QHelpEvent &inEvent)
{
    mButtonRect = QRect(inButton->mapToGlobal(QPoint(0, 0)), inButton->size());
    dismissToolTip();
    mToolTip = new VantraToolTip;
    // One entry is enough, and the end of an application takes it off the list.
    qRemovePostRoutine(&deleteLastToolTip);
    qAddPostRoutine(&deleteLastToolTip);
    sLastToolTip = mToolTip;
    mToolTip->showAndPosition(inButton->toolTipImage(), inButton->toolTip(), inButton->toolTipDetailed(),
                              inButton->toolTipUrl(), inEvent.globalPos(), inButton);
    mTimer->start();
    mCurrentButton = inButton;
}

void VantraToolTipFilter::dismissToolTip()
{
    mTimer->stop();
    mCurrentButton = nullptr;
    if (!mToolTip.isNull()) {
        mToolTip->hide();
        mToolTip->deleteLater();
        mToolTip = nullptr;
    }
}

void VantraToolTipFilter::onToolTipTimeout()
{
    const QPoint pointer = QCursor::pos();
    if (mToolTip.isNull() ||
        !(mToolTip->frameGeometry().contains(pointer) || mButtonRect.contains(pointer))) {
        dismissToolTip();
    }
}

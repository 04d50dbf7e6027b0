#include "VTQtUpdatesBlocker.h"

#include <QtCore/QVariant>

namespace {

const char *const kUpdatesProperty = "updatesEnabled"; // QWidget's

} // namespace

VTQtUpdatesBlocker::VTQtUpdatesBlocker(QObject *inWidget, BlockingMode inMode) : mWidget(inWidget)
{
    Q_ASSERT(inMode == BlockUpdates);
    Q_UNUSED(inMode);
    // A widget that is blocked through its parent must not be disabled itself: it would stay so when the
    // parent's updates come back.
    if (mWidget != nullptr && mWidget->property(kUpdatesProperty).toBool()) {
        mDisabledUpdates = mWidget->setProperty(kUpdatesProperty, false);
    }
}

VTQtUpdatesBlocker::~VTQtUpdatesBlocker()
{
    if (mWidget != nullptr && mDisabledUpdates) {
        mWidget->setProperty(kUpdatesProperty, true);
    }
}

#include "VTQtUpdatesBlocker.h"

#include <QtCore/QVariant>

namespace {

const char *const kUpdatesProperty = "updatesEnabled"; // QWidget's

} // namespace

VTQtUpdatesBlocker::VTQtUpdatesBlocker(QObject *inWidget, BlockingMode inMode) : mWidget(inWidget)
{
    Q_ASSERT(inMode == BlockUpdates);
    Q_UNUSED(inMode);
    if (mWidget != nullptr) {
        mUpdatesWereEnabled = mWidget->property(kUpdatesProperty).toBool();
        mWidget->setProperty(kUpdatesProperty, false);
    }
}

VTQtUpdatesBlocker::~VTQtUpdatesBlocker()
{
    if (mWidget != nullptr && mUpdatesWereEnabled) {
        mWidget->setProperty(kUpdatesProperty, true);
    }
}

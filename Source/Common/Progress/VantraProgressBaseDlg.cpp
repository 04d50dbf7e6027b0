#include "Progress/VantraProgressBaseDlg.h"

#include "Utilities/VTWidgetUtils.h"

const Qt::WindowFlags VantraProgressBaseDlg::DEFAULT_WINDOW_FLAGS =
    Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint;
const Qt::WindowFlags VantraProgressBaseDlg::NO_TITLE_BAR_BUTTONS_WINDOW_FLAGS =
    Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint;

VantraProgressBaseDlg::VantraProgressBaseDlg(QWidget *inParent, Qt::WindowFlags inFlags)
    : QDialog(inParent, inFlags)
{
    const QWidget *parent = inParent;
    Q_ASSERT(parent != NULL && "parent should not be NULL, see bug #13294");
    VTWidgetsMatchFrameToTheme(this);
}

VantraProgressBaseDlg::~VantraProgressBaseDlg() = default;

void VantraProgressBaseDlg::setCanceled(bool inCanceled)
{
    mCanceled = inCanceled;
    if (inCanceled) {
        emit progressCanceled();
    }
}

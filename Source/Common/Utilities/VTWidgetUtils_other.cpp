#include "Utilities/VTWidgetUtilsNative_p.h"

#include <QtGui/QIcon>
#include <QtWidgets/QApplication>

QImage VTWidgetUtilsNative::appIcon(int inPixels)
{
    const QIcon icon = QApplication::windowIcon();
    return icon.isNull() ? QImage() : icon.pixmap(QSize(inPixels, inPixels), 1.0).toImage();
}

void VTWidgetUtilsNative::addBorder(WId)
{
}

void VTWidgetUtilsNative::setFrameDark(WId, bool)
{
}

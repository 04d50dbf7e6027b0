#include "Utilities/VTWidgetsImageUtils.h"

#include "Controls/VantraMenu.h"
#include "Theme/VantraFont.h"
#include "VTDpiUtils.h"

#include <QtCore/QFileInfo>
#include <QtGui/QColor>
#include <QtGui/QPainter>

namespace {

QString doubleResolutionPath(const QString &inPath)
{
    return QString(inPath).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
}

QPixmap loadColorPixmap(const QString &inPath, const QColor &inColor)
{
    return VTWidgetsGenerateColorPixmap(VTWidgetsLoadImage(inPath), inColor);
}

QImage filledImage(const QSize &inSize, const QColor &inColor, int inDevicePixelRatio)
{
    QImage image(inSize, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(inDevicePixelRatio);
    image.fill(inColor);
    return image;
}

} // namespace

QImage VTWidgetsLoadImage(const QString &inPath)
{
    QString path = inPath;
    if (VTDpiUtils::canUseHighDpiImages()) {
        const QString doublePath = doubleResolutionPath(inPath);
        if (QFileInfo::exists(doublePath)) {
            path = doublePath;
        }
    }
    QImage image;
    const bool test = image.load(path);
    Q_ASSERT(test);
    Q_ASSERT(!image.isNull());
    Q_UNUSED(test);
    return image;
}

QPixmap VTWidgetsLoadPixmap(const QString &inPath)
{
    QPixmap pixmap;
    const bool test = pixmap.load(VTDpiUtils::canUseHighDpiImages() ? doubleResolutionPath(inPath) : inPath);
    Q_ASSERT(test);
    Q_ASSERT(!pixmap.isNull());
    Q_UNUSED(test);
    return pixmap;
}

int VTWidgetsGetDevicePixelRatio()
{
    return VTDpiUtils::canUseHighDpiImages() ? 2 : VTDpiUtils::devicePixelRatio();
}

QIcon VTWidgetsLoadIcon(const QString &inPath)
{
    QIcon icon;
    icon.addPixmap(QPixmap::fromImage(VTWidgetsLoadImage(inPath)), QIcon::Normal, QIcon::Off);
    return icon;
}

QIcon VTWidgetsLoadIcon(const QString &inOffPath, const QString &inOnPath)
{
    const QPixmap offPixmap = QPixmap::fromImage(VTWidgetsLoadImage(inOffPath));
    const QPixmap onPixmap = QPixmap::fromImage(VTWidgetsLoadImage(inOnPath));
    Q_ASSERT(!offPixmap.isNull());
    Q_ASSERT(!onPixmap.isNull());
    QIcon icon;
    icon.addPixmap(offPixmap, QIcon::Normal, QIcon::Off);
    icon.addPixmap(onPixmap, QIcon::Normal, QIcon::On);
    icon.addPixmap(offPixmap, QIcon::Disabled, QIcon::Off);
    icon.addPixmap(offPixmap, QIcon::Disabled, QIcon::On);
    return icon;
}

QIcon VTWidgetsLoadIcon(const QString &inPath, const QColor &inNormal, const QColor &inSelected)
{
    return VTWidgetsLoadIcon(inPath, inNormal, inSelected, QColor());
}

QIcon VTWidgetsLoadIcon(const QString &inPath, const QColor &inNormal, const QColor &inSelected,
                        const QColor &inDisabled)
{
    QIcon icon;
    icon.addPixmap(loadColorPixmap(inPath, inNormal), QIcon::Normal, QIcon::Off);
    if (inSelected.isValid()) {
        icon.addPixmap(loadColorPixmap(inPath, inSelected), QIcon::Selected, QIcon::Off);
    }
    if (inDisabled.isValid()) {
        icon.addPixmap(loadColorPixmap(inPath, inDisabled), QIcon::Disabled, QIcon::Off);
    }
    return icon;
}

QIcon VTWidgetsLoadSelectableIcon(const QString &inPath, const QColor &inSelected)
{
    QIcon icon;
    icon.addPixmap(VTWidgetsLoadPixmap(inPath), QIcon::Normal, QIcon::Off);
    if (inSelected.isValid()) {
        icon.addPixmap(loadColorPixmap(inPath, inSelected), QIcon::Selected, QIcon::Off);
    }
    return icon;
}

QPixmap VTWidgetsGenerateColorPixmap(const QImage &inImage, const QColor &inColor)
{
    const int ratio = VTWidgetsGetDevicePixelRatio();
    // Cutting the shape out of black and laying white behind it gives a grey picture as bright as the shape
    // is opaque.
    QImage mask = filledImage(inImage.size(), Qt::black, ratio);
    const QImage white = filledImage(inImage.size(), Qt::white, ratio);
    QPainter painter(&mask);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.drawImage(0, 0, inImage);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationAtop);
    painter.drawImage(0, 0, white);
    painter.end();
    QImage result = filledImage(inImage.size(), inColor, 1);
    result.setAlphaChannel(mask);
    return QPixmap::fromImage(result);
}

QIcon VTWidgetsGenerateColorIcon(const QIcon &inIcon, const QColor &inColor)
{
    QIcon icon;
    const QList<QSize> sizes = inIcon.availableSizes(QIcon::Normal, QIcon::Off);
    for (const QSize &size : sizes) {
        const QImage image = inIcon.pixmap(size, QIcon::Normal, QIcon::Off).toImage();
        icon.addPixmap(VTWidgetsGenerateColorPixmap(image, inColor), QIcon::Normal, QIcon::Off);
    }
    return icon;
}

void VTWidgetsGenerateIconSelectedPixmaps(QIcon &ioIcon)
{
    const QList<QSize> sizes = ioIcon.availableSizes(QIcon::Normal, QIcon::Off);
    for (const QSize &size : sizes) {
        ioIcon.addPixmap(ioIcon.pixmap(size, QIcon::Normal, QIcon::Off), QIcon::Selected, QIcon::Off);
    }
}

QMenu *VTWidgetsCreateStyledMenu(const QString &inTitle, QWidget *inParent)
{
    auto *menu = new VantraMenu(inTitle, inParent);
    VTWidgetsInitStyledMenu(*menu);
    return menu;
}

void VTWidgetsInitStyledMenu(QMenu &ioMenu)
{
    ioMenu.setFont(VantraFont::mainFont());
    ioMenu.setLayoutDirection(Qt::LeftToRight);
    const QList<QMenu *> submenus = ioMenu.findChildren<QMenu *>();
    for (QMenu *submenu : submenus) {
        VTWidgetsInitStyledMenu(*submenu);
    }
}

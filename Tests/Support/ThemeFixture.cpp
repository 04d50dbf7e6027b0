#include "Support/ThemeFixture.h"

#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

namespace {

QSize sizeFor(const QStyleOption &inOption)
{
    return QSize(qMax(1, inOption.rect.right() + 1), qMax(1, inOption.rect.bottom() + 1));
}

} // namespace

bool ThemeFixture::load(const QString &inAccent)
{
    return VantraFont::ensureApplicationFonts() &&
           VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), inAccent);
}

QColor ThemeFixture::color(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole)
{
    return VantraStyleTheme::instance().colorPalette().brush(inGroup, inRole).color();
}

QJsonObject ThemeFixture::json(QByteArray inText)
{
    inText.replace('\'', '"');
    const QJsonDocument document = QJsonDocument::fromJson(inText);
    if (!document.isObject()) {
        qFatal("The test's text is no JSON object: %s", inText.constData());
    }
    return document.object();
}

QString ThemeFixture::Files::write(const QString &inName, const QByteArray &inBytes) const
{
    const QString path = mFolder.filePath(inName);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(inBytes) != inBytes.size()) {
        qFatal("The test file %s can't be written: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    return path;
}

QImage ThemeFixture::paint(const QSize &inSize, const std::function<void(QPainter &)> &inPainting,
                           const QColor &inGround, double inDevicePixelRatio)
{
    QImage image(
        QSize(qCeil(inSize.width() * inDevicePixelRatio), qCeil(inSize.height() * inDevicePixelRatio)),
        QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(inDevicePixelRatio);
    image.fill(inGround);
    QPainter painter(&image);
    inPainting(painter);
    return image;
}

QImage ThemeFixture::paintPrimitive(const QStyle &inStyle, QStyle::PrimitiveElement inElement,
                                    const QStyleOption &inOption, const QWidget *inWidget)
{
    return paint(sizeFor(inOption), [&](QPainter &ioPainter) {
        inStyle.drawPrimitive(inElement, &inOption, &ioPainter, inWidget);
    });
}

QImage ThemeFixture::paintControl(const QStyle &inStyle, QStyle::ControlElement inElement,
                                  const QStyleOption &inOption, const QWidget *inWidget)
{
    return paint(sizeFor(inOption), [&](QPainter &ioPainter) {
        inStyle.drawControl(inElement, &inOption, &ioPainter, inWidget);
    });
}

QImage ThemeFixture::paintComplex(const QStyle &inStyle, QStyle::ComplexControl inControl,
                                  const QStyleOptionComplex &inOption, const QWidget *inWidget)
{
    return paint(sizeFor(inOption), [&](QPainter &ioPainter) {
        inStyle.drawComplexControl(inControl, &inOption, &ioPainter, inWidget);
    });
}

double ThemeFixture::ink(const QImage &inImage)
{
    qint64 sum = 0;
    for (int y = 0; y < inImage.height(); ++y) {
        for (int x = 0; x < inImage.width(); ++x) {
            sum += qAlpha(inImage.pixel(x, y));
        }
    }
    return static_cast<double>(sum) / 255.0;
}

int ThemeFixture::countOf(const QColor &inColor, const QImage &inImage)
{
    int count = 0;
    for (int y = 0; y < inImage.height(); ++y) {
        for (int x = 0; x < inImage.width(); ++x) {
            count += inImage.pixelColor(x, y) == inColor ? 1 : 0;
        }
    }
    return count;
}

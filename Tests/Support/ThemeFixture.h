#pragma once

// What several tests of the look share: fonts and stock theme, theme files of a test's own, and painting into
// pictures.

#include "Theme/VantraPalette.h"

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QTemporaryDir>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtWidgets/QStyle>

#include <functional>

class QPainter;
class QStyleOption;
class QStyleOptionComplex;
class QWidget;

namespace ThemeFixture {

// Loads the fonts, the first time, and the stock theme with an accent. False when either fails.
bool load(const QString &inAccent = QStringLiteral("blue"));

// What the loaded theme has for a group and role.
QColor color(VantraPalette::PaletteGroup inGroup, VantraPalette::PaletteRole inRole);

// A JSON object from a text in which single quotes stand for double ones. Stops the process when it isn't
// one.
QJsonObject json(QByteArray inText);

// Files in a folder that ends with the object.
class Files
{
public:
    // Writes a file and gives its path.
    QString write(const QString &inName, const QByteArray &inBytes) const;

    // A path in the folder where no file is.
    QString missing() const { return mFolder.filePath(QStringLiteral("missing.json")); }

private:
    QTemporaryDir mFolder;
};

// A picture of the given size in logical pixels, painted on by the function.
QImage paint(const QSize &inSize, const std::function<void(QPainter &)> &inPainting,
             const QColor &inGround = Qt::transparent, double inDevicePixelRatio = 1.0);

// Pictures of one element of a style. The picture is as large as the right bottom corner of the option's
// rectangle asks for, and transparent where the style paints nothing.
QImage paintPrimitive(const QStyle &inStyle, QStyle::PrimitiveElement inElement, const QStyleOption &inOption,
                      const QWidget *inWidget = nullptr);
QImage paintControl(const QStyle &inStyle, QStyle::ControlElement inElement, const QStyleOption &inOption,
                    const QWidget *inWidget = nullptr);
QImage paintComplex(const QStyle &inStyle, QStyle::ComplexControl inControl,
                    const QStyleOptionComplex &inOption, const QWidget *inWidget = nullptr);

// How much is painted on a transparent picture: the sum of all alpha values, 1.0 for each opaque pixel.
double ink(const QImage &inImage);

// How many pixels have exactly this colour.
int countOf(const QColor &inColor, const QImage &inImage);

} // namespace ThemeFixture

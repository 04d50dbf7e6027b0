#include "Look.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QSettings>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {
const QString kBase = QStringLiteral("base");

// Themes and fonts are asked for at each paint and measure; what widgets have kept of them goes with this.
void tellAllWidgets()
{
    QApplication::setFont(VantraFont::mainFont());
    QApplication::setPalette(QPalette());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        VantraFont::setFont(VantraFont::mainFont(), window);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        QEvent event(QEvent::StyleChange);
        QApplication::sendEvent(widget, &event);
        widget->updateGeometry();
        widget->update();
    }
}
} // namespace

void Look::start()
{
    VantraFont::setUserSelectedFontPointSizeModifier(textSize());
    VantraFont::loadApplicationFonts();
    VantraStyleTheme::loadGlobalConfig(kBase, accent());
    QApplication::setStyle(new VantraStyle);
    QApplication::setFont(VantraFont::mainFont());
}

QStringList Look::accents()
{
    return {QStringLiteral("blue"), QStringLiteral("green"), QStringLiteral("orange"),
            QStringLiteral("purple"), QStringLiteral("red")};
}

QString Look::accent()
{
    const QString accent = QSettings().value(QStringLiteral("accent")).toString();
    return accents().contains(accent) ? accent : accents().first();
}

void Look::setAccent(const QString &inAccent)
{
    QSettings().setValue(QStringLiteral("accent"), inAccent);
    VantraStyleTheme::loadGlobalConfig(kBase, inAccent);
    tellAllWidgets();
}

int Look::textSize()
{
    const int points = QSettings().value(QStringLiteral("textSize")).toInt();
    return points == 2 || points == 4 ? points : 0;
}

void Look::setTextSize(int inPoints)
{
    QSettings().setValue(QStringLiteral("textSize"), inPoints);
    VantraFont::setUserSelectedFontPointSizeModifier(inPoints);
    tellAllWidgets();
}

#include "Look.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtCore/QSettings>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {
constexpr int kMenuBarMargin = 5; // above and below the menus' names

// The house style, but for what the desktop would have a say in.
class DeskStyle : public VantraStyle
{
public:
    int styleHint(StyleHint inHint, const QStyleOption *inOption, const QWidget *inWidget,
                  QStyleHintReturn *outData) const override
    {
        if (inHint == SH_DialogButtonBox_ButtonsHaveIcons)
            return 0;
        return VantraStyle::styleHint(inHint, inOption, inWidget, outData);
    }
    int pixelMetric(PixelMetric inMetric, const QStyleOption *inOption,
                    const QWidget *inWidget) const override
    {
        // The bar is higher than its names, which stand in its middle with this.
        if (inMetric == PM_MenuBarVMargin)
            return kMenuBarMargin;
        return VantraStyle::pixelMetric(inMetric, inOption, inWidget);
    }
};

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
    QApplication::setStyle(new DeskStyle);
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

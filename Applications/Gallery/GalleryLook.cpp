#include "GalleryLook.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

const std::array<GalleryLook::Accent, 5> GalleryLook::kAccents = {{
    {"purple", VantraPalette::PurpleAccentButtonBackground},
    {"red", VantraPalette::RedAccentButtonBackground},
    {"green", VantraPalette::GreenAccentButtonBackground},
    {"blue", VantraPalette::BlueAccentButtonBackground},
    {"orange", VantraPalette::OrangeAccentButtonBackground},
}};

void GalleryLook::start(const QString &inAccent, int inTextSize, Style inStyle)
{
    mAccent = inAccent;
    mTextSize = inTextSize;
    mStyle = inStyle;
    VantraFont::setUserSelectedFontPointSizeModifier(mTextSize);
    VantraFont::loadApplicationFonts();
    VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), mAccent);
    installStyle();
    QApplication::setFont(VantraFont::mainFont());
}

void GalleryLook::setAccent(const QString &inAccent)
{
    if (mAccent == inAccent)
        return;
    mAccent = inAccent;
    VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), mAccent);
    tellAllWidgets();
}

void GalleryLook::setTextSize(int inTextSize)
{
    if (mTextSize == inTextSize)
        return;
    mTextSize = inTextSize;
    VantraFont::setUserSelectedFontPointSizeModifier(mTextSize);
    QApplication::setFont(VantraFont::mainFont());
    tellAllWidgets();
}

void GalleryLook::setStyle(Style inStyle)
{
    if (mStyle == inStyle)
        return;
    mStyle = inStyle;
    installStyle();
    tellAllWidgets();
}

void GalleryLook::installStyle()
{
    if (mStyle == Style::House)
        QApplication::setStyle(new VantraStyle);
    else
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void GalleryLook::tellAllWidgets()
{
    // A palette without a colour of its own makes Qt ask the style for its palette again.
    QApplication::setPalette(QPalette());

    // The style takes fonts and sizes from the theme, which widgets keep in cached size hints; they drop
    // those on a style change alone.
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        QEvent event(QEvent::StyleChange);
        QApplication::sendEvent(widget, &event);
        widget->updateGeometry();
        widget->update();
    }
    emit changed();
}

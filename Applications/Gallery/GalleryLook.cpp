#include "GalleryLook.h"

#include "GalleryTheme.h"
#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleFactory>
#include <QtWidgets/QWidget>

const std::array<GalleryLook::Accent, 5> GalleryLook::kAccents = {{
    {QT_TRANSLATE_NOOP("GalleryLook", "purple"), VantraPalette::PurpleAccentButtonBackground},
    {QT_TRANSLATE_NOOP("GalleryLook", "red"), VantraPalette::RedAccentButtonBackground},
    {QT_TRANSLATE_NOOP("GalleryLook", "green"), VantraPalette::GreenAccentButtonBackground},
    {QT_TRANSLATE_NOOP("GalleryLook", "blue"), VantraPalette::BlueAccentButtonBackground},
    {QT_TRANSLATE_NOOP("GalleryLook", "orange"), VantraPalette::OrangeAccentButtonBackground},
}};

void GalleryLook::setThemeFiles(const QString &inThemeFile, const QString &inAccentFile)
{
    delete mTheme;
    mTheme = new GalleryTheme(inThemeFile, inAccentFile, this);
}

bool GalleryLook::hasAccentFile() const
{
    return mTheme && mTheme->hasAccentFile();
}

QString GalleryLook::loadTheme()
{
    if (mTheme && mTheme->hasFiles())
        return mTheme->load(mAccent);
    VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), mAccent);
    return QString();
}

QString GalleryLook::start(const QString &inAccent, int inTextSize, Style inStyle)
{
    mAccent = inAccent;
    mTextSize = inTextSize;
    mStyle = inStyle;
    VantraFont::setUserSelectedFontPointSizeModifier(mTextSize);
    VantraFont::loadApplicationFonts();
    const QString trouble = loadTheme();
    installStyle();
    QApplication::setFont(VantraFont::mainFont());
    return trouble;
}

void GalleryLook::followThemeFiles()
{
    if (!mTheme || !mTheme->hasFiles())
        return;
    connect(mTheme, &GalleryTheme::touched, this, [this] {
        const QString trouble = loadTheme();
        if (trouble.isEmpty())
            tellAllWidgets();
        emit themeTroubled(trouble);
    });
    mTheme->watch();
}

void GalleryLook::setAccent(const QString &inAccent)
{
    if (mAccent == inAccent)
        return;
    mAccent = inAccent;
    const QString trouble = loadTheme();
    if (trouble.isEmpty())
        tellAllWidgets();
    else
        emit themeTroubled(trouble);
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

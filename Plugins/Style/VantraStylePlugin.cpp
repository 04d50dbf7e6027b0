#include "VantraStylePlugin.h"

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

#include <QtGui/QFontDatabase>
#include <QtWidgets/QApplication>

namespace {

bool isThemeLoaded()
{
    return VantraStyleTheme::instance().colorPalette().contains(VantraPalette::Normal,
                                                                VantraPalette::WindowBackground);
}

// The style with the house font for a program that doesn't set one. Qt polishes the application while it is
// being constructed, before any widget exists, so that no layout has to be made twice.
class PluginStyle final : public VantraStyle
{
public:
    using VantraStyle::polish;
    using VantraStyle::unpolish;

    // The style leaves the roles that its own controls don't use as Fusion has them, which are light.
    // Programs that nobody wrote for this design paint with them, so here they become dark as well.
    void polish(QPalette &ioPalette) override
    {
        VantraStyle::polish(ioPalette);
        const auto set = [&ioPalette](QPalette::ColorRole colorRole, VantraPalette::PaletteRole role) {
            const VantraColorPalette &colors = theme().colorPalette();
            ioPalette.setColor(colorRole, colors.color(VantraPalette::Normal, role));
            ioPalette.setColor(QPalette::Disabled, colorRole, colors.color(VantraPalette::Disabled, role));
        };
        set(QPalette::AlternateBase, VantraPalette::FrameRaisedBackground);
        set(QPalette::Light, VantraPalette::FrameLine);
        set(QPalette::Midlight, VantraPalette::FrameRaisedBackground);
        set(QPalette::Mid, VantraPalette::FrameSunkenBackground);
        set(QPalette::Dark, VantraPalette::FrameSunkenBackground);
        set(QPalette::ToolTipBase, VantraPalette::FrameRaisedBackground);
        set(QPalette::ToolTipText, VantraPalette::PaneHeaderText);
        set(QPalette::BrightText, VantraPalette::PaneHeaderText);
        set(QPalette::Link, VantraPalette::Accent);
        set(QPalette::LinkVisited, VantraPalette::SliderGrove);
    }

    void polish(QApplication *ioApplication) override
    {
        VantraStyle::polish(ioApplication);
        const bool chosenByProgram = QApplication::font() != systemFont();
        if (!chosenByProgram) {
            mFont = VantraFont::mainFont();
            QApplication::setFont(mFont);
            mGaveFont = true;
        }
    }

    void unpolish(QApplication *ioApplication) override
    {
        if (mGaveFont && QApplication::font() == mFont) {
            QApplication::setFont(systemFont());
        }
        mGaveFont = false;
        VantraStyle::unpolish(ioApplication);
    }

private:
    static QFont systemFont() { return QFontDatabase::systemFont(QFontDatabase::GeneralFont); }

    QFont mFont;
    bool mGaveFont = false;
};

} // namespace

QStyle *VantraStylePlugin::create(const QString &inKey)
{
    if (inKey.compare(QLatin1String("vantra"), Qt::CaseInsensitive) != 0) {
        return nullptr;
    }
    VantraFont::ensureApplicationFonts();
    if (!isThemeLoaded()) {
        VantraStyleTheme::loadGlobalConfig(QStringLiteral("base"), QStringLiteral("blue"));
    }
    return new PluginStyle;
}

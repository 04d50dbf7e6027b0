#pragma once

// Makes the style "Vantra" known to any Qt program, for example to one that is started with
// QT_STYLE_OVERRIDE=Vantra. Nothing of the usual start order is asked of that program: the plugin loads the
// fonts and, unless a theme is loaded already, the base theme with the accent "blue".
//
// A style that becomes the application's also brings the house font, unless the program has chosen a font of
// its own; a font that the program sets later wins. When another style takes its place, the system's font
// comes back.

#include <QtWidgets/QStylePlugin>

class VantraStylePlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "VantraStylePlugin.json")

public:
    using QStylePlugin::QStylePlugin;

    // A new style that the caller owns, or null for another key. Upper and lower case count as the same.
    QStyle *create(const QString &inKey) override;
};

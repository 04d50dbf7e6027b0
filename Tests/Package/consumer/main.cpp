#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <VTDpiUtils.h>
#include <VTWidgetsLiteVersion.h>
#include <VantraFramePane.h>
#include <cstdio>

#include "Style/VantraStyle.h"
#include "Theme/VantraFont.h"
#include "Theme/VantraStyleTheme.h"

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    VantraFont::loadApplicationFonts();
    VantraStyleTheme::loadGlobalConfig("base", "blue");
    QApplication::setStyle(new VantraStyle);
    VantraFramePane pane;
    pane.show();
    QTimer::singleShot(0, &application, &QApplication::quit);
    std::printf("%s %s %d\n", VTWIDGETSLITE_VERSION_STRING, qPrintable(VantraFont::mainFont().family()),
                VTDpiUtils::devicePixelRatio());
    return QApplication::exec();
}

#include "Controls/VantraMenuBar.h"

#include "Theme/VantraFont.h"

#include <QtGui/QFontMetrics>

VantraMenuBar::VantraMenuBar(QWidget *inParent) : QMenuBar(inParent)
{
    // The first call is wanted: it makes the second one a change on every system.
    setNativeMenuBar(true);
    setNativeMenuBar(false);
    setFont(VantraFont::fontPlus());
    const QFontMetrics metrics(VantraFont::fontPlus());
    setMinimumHeight(metrics.xHeight() * 2 + metrics.height());
}

VantraMenuBar::~VantraMenuBar() = default;

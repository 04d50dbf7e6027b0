#pragma once

// Lets a test of this project pretend a display that scales fonts, as displays of other systems do. Programs
// have no use for it: only VTDpiUtils::scaleFontPointSize() changes.
//
//     const VTDpiUtilsPretence doubled(2.0);
//     QCOMPARE(VantraFont::mainFontSizeImmutable(), 22);
//
// Lasts for a scope; the pretence constructed last applies. GUI thread only.

#include "VTQtCoreLiteExport.h"

#include <QtCore/qglobal.h>

class VTQTCORELITE_EXPORT VTDpiUtilsPretence
{
public:
    explicit VTDpiUtilsPretence(double inFontScale);
    ~VTDpiUtilsPretence();

private:
    Q_DISABLE_COPY_MOVE(VTDpiUtilsPretence)

    double mEarlier;
};

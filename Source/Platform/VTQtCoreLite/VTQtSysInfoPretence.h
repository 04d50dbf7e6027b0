#pragma once

// Lets a test of this project take the branches of another system. Programs have no use for it: nothing but
// VTQtSysInfo's answers changes. Native calls stay those of the real system, so a main window, which makes
// one on macOS, is made before.
//
//     const VTQtSysInfoPretence onMac(VTQtSysInfoPretence::Mac);
//     QTest::keyClick(window, Qt::Key_Meta);
//
// Holds for a scope; the last one made counts. One thread.

#include "VTQtCoreLiteExport.h"

#include <QtCore/qglobal.h>

class VTQTCORELITE_EXPORT VTQtSysInfoPretence
{
public:
    enum System {
        TheRealOne,
        Windows,
        Mac,
        MacBeforeHighSierra,
        Other,
    };

    explicit VTQtSysInfoPretence(System inSystem);
    ~VTQtSysInfoPretence();

private:
    Q_DISABLE_COPY_MOVE(VTQtSysInfoPretence)

    System mEarlier;
};

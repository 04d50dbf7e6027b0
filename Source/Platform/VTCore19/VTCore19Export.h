#pragma once

#include <QtCore/qglobal.h>

#if defined(VTCORE19_BUILD)
#define VTCORE19_EXPORT Q_DECL_EXPORT
#else
#define VTCORE19_EXPORT Q_DECL_IMPORT
#endif

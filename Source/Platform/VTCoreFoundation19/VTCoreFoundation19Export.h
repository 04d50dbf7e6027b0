#pragma once

#include <QtCore/qglobal.h>

#if defined(VTCOREFOUNDATION19_BUILD)
#define VTCOREFOUNDATION19_EXPORT Q_DECL_EXPORT
#else
#define VTCOREFOUNDATION19_EXPORT Q_DECL_IMPORT
#endif

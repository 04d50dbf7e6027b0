#pragma once

// Marks what the library VTWidgetsLite exports. Everything else is hidden.

#include <QtCore/qglobal.h>

#if defined(VTWIDGETSLITE_BUILD)
#define VTWIDGETSLITE_EXPORT Q_DECL_EXPORT
#else
#define VTWIDGETSLITE_EXPORT Q_DECL_IMPORT
#endif

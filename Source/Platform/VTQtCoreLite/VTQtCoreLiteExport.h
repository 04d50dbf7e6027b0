#pragma once

#include <QtCore/qglobal.h>

#if defined(VTQTCORELITE_BUILD)
#define VTQTCORELITE_EXPORT Q_DECL_EXPORT
#else
#define VTQTCORELITE_EXPORT Q_DECL_IMPORT
#endif

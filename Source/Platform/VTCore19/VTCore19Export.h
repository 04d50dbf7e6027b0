#pragma once

// C sources, which may include some of the headers, need nothing of Qt.
#if defined(__cplusplus)
#include <QtCore/qglobal.h>
#endif

#if defined(_WIN32) && defined(VTCORE19_BUILD)
#define VTCORE19_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VTCORE19_EXPORT __declspec(dllimport)
#else
#define VTCORE19_EXPORT __attribute__((visibility("default")))
#endif

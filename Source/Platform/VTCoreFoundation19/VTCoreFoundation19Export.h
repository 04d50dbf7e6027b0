#pragma once

// C sources, which may include some of the headers, need nothing of Qt.
#if defined(__cplusplus)
#include <QtCore/qglobal.h>
#endif

#if defined(_WIN32) && defined(VTCOREFOUNDATION19_BUILD)
#define VTCOREFOUNDATION19_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VTCOREFOUNDATION19_EXPORT __declspec(dllimport)
#else
#define VTCOREFOUNDATION19_EXPORT __attribute__((visibility("default")))
#endif

#pragma once

// Free of Qt, as the headers that C sources include lean on it.

#if defined(_WIN32) && defined(VTCORE19_BUILD)
#define VTCORE19_EXPORT __declspec(dllexport)
#elif defined(_WIN32)
#define VTCORE19_EXPORT __declspec(dllimport)
#else
#define VTCORE19_EXPORT __attribute__((visibility("default")))
#endif

#pragma once

/// ORMO_CSM_API marks what the shared library exports; everything else is built hidden. ORMO_CSM_LOCAL keeps a type
/// inside that a class so marked only names.
#if defined(_WIN32)
#if defined(ORMO_CSM_BUILDING)
#define ORMO_CSM_API __declspec(dllexport)
#else
#define ORMO_CSM_API __declspec(dllimport)
#endif
#define ORMO_CSM_LOCAL
#else
#define ORMO_CSM_API __attribute__((visibility("default")))
#define ORMO_CSM_LOCAL __attribute__((visibility("hidden")))
#endif

#pragma once

/// Marks what the shared library exports; everything else is built hidden.
#if defined(_WIN32)
#if defined(ORMO_CSM_BUILDING)
#define ORMO_CSM_API __declspec(dllexport)
#else
#define ORMO_CSM_API __declspec(dllimport)
#endif
#else
#define ORMO_CSM_API __attribute__((visibility("default")))
#endif

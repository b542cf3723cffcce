#pragma once

/// Marks what the base library exports. Default visibility keeps type information shared, so that errors thrown
/// by a plug-in are caught by type in a host that is built with hidden symbols.
#if defined(_WIN32)
#if defined(TSM_LIBRARY)
#define TSM_EXPORT_API __declspec(dllexport)
#else
#define TSM_EXPORT_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define TSM_EXPORT_API __attribute__((visibility("default")))
#else
#define TSM_EXPORT_API
#endif

static const int MAX_NAME_LENGTH = 40;
static const int MAX_FUNCTION_NAME_LENGTH = 80;
static const int MAX_MESSAGE_LENGTH = 512;

/// Enumerations that several classes of the CSM API share.
class TSM_EXPORT_API TSMMisc
{
public:
    /// How far a sensor-model parameter may be trusted and adjusted.
    enum Param_CharType
    {
        NONE = 0,
        FICTITIOUS = 1,
        REAL = 2,
        EXACT = 3
    };
};

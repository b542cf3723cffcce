#pragma once

#include <cstddef>
#include <cstdint>

// How the program reaches a GeoPackage without GDAL: plain functions and plain numbers of the library that holds GDAL,
// looked up when they are needed. Nothing here knows what the tables hold.

extern "C" {

enum OrmoValueType : std::uint32_t
{
    ORMO_VALUE_INTEGER = 0,
    ORMO_VALUE_REAL,
    ORMO_VALUE_TEXT,  ///< UTF-8
    ORMO_VALUE_BYTES
};

struct OrmoTableColumn
{
    const char* name;
    OrmoValueType type;
};

struct OrmoTableValue
{
    std::uint32_t column;
    OrmoValueType type;
    std::int64_t integer;
    double real;
    const char* bytes;  ///< of a text, ended by NUL, or of bytes
    std::uint64_t size;
};

/// Takes a row of an answer, a text or null per column; 0 ends the reading.
using OrmoTableRow = int (*)(void* aContext, const char* const* aTexts, std::uint32_t aCount);

/// Functions answer 1 when it is done, else 0 with the reason cut to the room given for it. None raises, prints or
/// waits. Tables have a key of their own, `id`.
struct OrmoTableDriver
{
    std::uint32_t version;  ///< ORMO_TABLE_DRIVER_VERSION
    /// Makes a new GeoPackage, or opens one to be written on; null, with the reason, when it cannot be done.
    void* (*open)(const char* aPath, int aIsNew, char* aReason, std::size_t aReasonSize);
    /// Ends the writing; what stands in a transaction that was not committed is lost.
    int (*close)(void* aFile, char* aReason, std::size_t aReasonSize);
    /// Adds a table; `aShapes` is the name of its column of multipolygons in WGS 84, null for a table without.
    int (*addTable)(void* aFile, const char* aName, const char* aShapes, const OrmoTableColumn* aColumns,
                    std::uint32_t aCount, char* aReason, std::size_t aReasonSize);
    int (*begin)(void* aFile, char* aReason, std::size_t aReasonSize);
    int (*commit)(void* aFile, char* aReason, std::size_t aReasonSize);
    /// Adds a row; columns that are not given are null. `aShape` is GeoJSON or null; `aKey` takes the key of the row.
    int (*insert)(void* aFile, const char* aTable, const OrmoTableValue* aValues, std::uint32_t aCount,
                  const char* aShape, std::int64_t* aKey, char* aReason, std::size_t aReasonSize);
    /// Runs a statement of SQL; `aRow` is null for one without an answer.
    int (*query)(void* aFile, const char* aSql, OrmoTableRow aRow, void* aContext, char* aReason,
                 std::size_t aReasonSize);
};

using OrmoTableDriverFunction = const OrmoTableDriver* (*)();
}

constexpr std::uint32_t ORMO_TABLE_DRIVER_VERSION = 1;
constexpr const char* ORMO_TABLE_DRIVER_FUNCTION = "ormo_csm_table_driver";

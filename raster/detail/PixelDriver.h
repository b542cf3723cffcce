#pragma once

#include <cstddef>
#include <cstdint>

// What the core and the library that reads pixels through GDAL say to one another: plain functions and plain numbers,
// so that the core can be used without that library and finds it by itself when it is needed.

extern "C" {

/// How samples are wanted. A sample has the bytes of the machine.
enum OrmoSampleType : std::uint32_t
{
    ORMO_SAMPLE_UINT8 = 0,
    ORMO_SAMPLE_UINT16,
    ORMO_SAMPLE_INT16,
    ORMO_SAMPLE_UINT32,
    ORMO_SAMPLE_INT32,
    ORMO_SAMPLE_FLOAT32,
    ORMO_SAMPLE_FLOAT64,
    ORMO_SAMPLE_COMPLEX64  ///< two floats
};

struct OrmoRasterShape
{
    std::uint32_t rows;
    std::uint32_t columns;
    std::uint32_t bands;
};

/// A window of one band, bands counted from 0, that is reduced to the size asked for.
struct OrmoRasterRequest
{
    std::uint32_t band;
    std::uint32_t row;
    std::uint32_t column;
    std::uint32_t rows;
    std::uint32_t columns;
    std::uint32_t rowsOut;
    std::uint32_t columnsOut;
    OrmoSampleType type;
};

/// Reasons are cut to the room given for them. No function raises, prints or waits.
struct OrmoPixelDriver
{
    std::uint32_t version;  ///< ORMO_PIXEL_DRIVER_VERSION
    /// Opens an image segment, counted from 0, of a NITF file; null, with the reason, when it cannot be decoded.
    void* (*open)(const char* aFile, std::uint32_t aImage, char* aReason, std::size_t aReasonSize);
    void (*close)(void* aRaster);
    void (*describe)(void* aRaster, OrmoRasterShape* aShape);
    /// The type in which GDAL itself holds a band.
    OrmoSampleType (*typeOf)(void* aRaster, std::uint32_t aBand);
    /// Fills rowsOut times columnsOut samples; 1 when all were read, else 0 with the reason. One call per raster at a
    /// time.
    int (*read)(void* aRaster, const OrmoRasterRequest* aRequest, void* aOut, char* aReason, std::size_t aReasonSize);
};

/// The one function that the core looks up: never null.
using OrmoPixelDriverFunction = const OrmoPixelDriver* (*)();
}

constexpr std::uint32_t ORMO_PIXEL_DRIVER_VERSION = 1;
constexpr const char* ORMO_PIXEL_DRIVER_FUNCTION = "ormo_csm_pixel_driver";

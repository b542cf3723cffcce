#pragma once

#include "../foundation/Export.h"
#include "GDALNITFRasterBand.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace ORMO::SensorModel::CSM {

/// Tells NITF and NSIF files by their first bytes, which needs no GDAL, and reads the pixels of an image segment
/// through GDAL, whose library is loaded by itself when a segment is first opened.
class ORMO_CSM_API GDALNITFFileReader
{
public:
    /// Whether the file begins as a version of NITF or NSIF that the system can name: `aVersion` is then its
    /// NITFCnst::Version (10, 11, 20 or 21), else -1. White space around the path does not count. Reads a few bytes of
    /// a regular file; anything else, pipes and directories included, is no NITF file and is never waited for.
    static bool IsNITFFile(const char* aPath, int& aVersion);

    /// The same for the first bytes of a file, of which nine decide.
    static bool IsNITFFile(const unsigned char* aHeaderBytes, std::size_t aLength, int& aVersion) noexcept;

    /// Why a file is none that IsNITFFile recognises: the system's reason, or the bytes that stand in place of FHDR.
    /// Never waits.
    static std::string WhyNotNITFFile(const char* aPath);

    /// Opens an image segment, counted from 0, of a file. Null, with the reason, when GDAL is not there or cannot read
    /// or decode it.
    static std::unique_ptr<GDALNITFFileReader> Open(const char* aPath, std::uint32_t aImage, std::string& aReason);

    std::uint32_t GetNumOfRows() const noexcept;
    std::uint32_t GetNumOfColumns() const noexcept;
    /// Bands as GDAL has them: those of the decoded data.
    std::uint32_t GetNumOfBands() const noexcept;
    /// A band, counted from 0; it keeps the image open and may outlive the reader.
    std::optional<GDALNITFRasterBand> GetRasterBand(std::uint32_t aBand) const;

private:
    explicit GDALNITFFileReader(std::shared_ptr<const GDALNITFRasterBand::Raster> aRaster);

    std::shared_ptr<const GDALNITFRasterBand::Raster> m_raster;
};

}  // namespace ORMO::SensorModel::CSM

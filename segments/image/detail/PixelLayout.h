#pragma once

#include "nitf/NITFCnst.h"
#include "segments/image/NITFImagePixelReader.h"

#include <cstdint>
#include <initializer_list>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// How the pixels of an image lie in its data, as the subheader says; nothing of it is trusted.
struct PixelLayout
{
    std::uint64_t rows = 0;
    std::uint64_t columns = 0;
    std::uint64_t blocksPerRow = 0;
    std::uint64_t blocksPerColumn = 0;
    std::uint64_t blockRows = 0;     ///< NPPBV, or NROWS for its zero form
    std::uint64_t blockColumns = 0;  ///< NPPBH, or NCOLS for its zero form
    std::uint64_t bands = 0;
    unsigned bits = 0;        ///< NBPP
    unsigned actualBits = 0;  ///< ABPP
    NITFCnst::PixelType type = NITFCnst::PIXEL_TYPE_UNKNOWN;
    bool isLeftJustified = false;
    char mode = '\0';         ///< IMODE
    std::string compression;  ///< IC
    std::uint64_t dataOffset = 0;
    std::uint64_t dataLength = 0;

    bool IsUncompressed() const noexcept { return compression == "NC" || compression == "NM"; }
    /// Whether a data mask stands in front of the pixels.
    bool IsMasked() const noexcept { return compression.find('M') != std::string::npos; }
    /// Bands that have blocks of their own in the data: all of them in mode S.
    std::uint64_t MaskBands() const noexcept { return mode == 'S' ? bands : 1; }
    /// Bytes of a sample as it is handed out; 0 for pixels that nothing can read.
    std::size_t SampleSize() const noexcept;
    /// Whether the numbers describe an image that lies inside its blocks; else why not.
    bool IsSound(std::string& aWhyNot) const;
};

/// The samples that are asked for: every `step`th of a part of one band.
struct PixelWindow
{
    std::uint64_t row = 0;
    std::uint64_t column = 0;
    std::uint64_t rows = 0;
    std::uint64_t columns = 0;
    std::uint64_t band = 0;
    std::uint64_t step = 1;

    std::uint64_t RowsOut() const noexcept { return (rows + step - 1) / step; }
    std::uint64_t ColumnsOut() const noexcept { return (columns + step - 1) / step; }
};

/// A status with its reason.
struct PixelAnswer
{
    NITFImagePixelReader::Status status = NITFImagePixelReader::STATUS_OK;
    std::string text;

    bool IsGood() const noexcept { return status == NITFImagePixelReader::STATUS_OK; }
};

/// What stands against the request itself, before anything is read.
PixelAnswer CheckRequest(const PixelLayout& aLayout, const PixelWindow& aWindow, std::uint64_t aBufferSize,
                         const void* aBuffer);

/// The product of numbers out of a file; false when 64 bits do not hold it.
[[nodiscard]] bool Product(std::initializer_list<std::uint64_t> aFactors, std::uint64_t& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

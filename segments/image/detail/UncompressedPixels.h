#pragma once

#include "fields/ByteSource.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/detail/PixelLayout.h"

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The value of a sample with the bits of its file in the lowest places.
std::uint64_t PadPixelValue(const PixelLayout& aLayout, std::string_view aCode, unsigned aCodeBits) noexcept;

/// Writes a value of `aLayout.bits` bits as one sample of `aLayout.SampleSize()` bytes.
void WriteSample(const PixelLayout& aLayout, std::uint64_t aBits, char* aOut) noexcept;

/// Reads samples of an image of IC NC or NM in every IMODE. Reads no more than the rows of the blocks that the window
/// touches, a piece of about a megabyte at a time; the request is checked already. A null mask stands for none.
class UncompressedPixels
{
public:
    UncompressedPixels(const PixelLayout& aLayout, const ByteSource& aSource, const NITFImageDataMaskSubheader* aMask);

    PixelAnswer Read(const PixelWindow& aWindow, char* aOut) const;

private:
    /// The part of a window that lies in one block, in rows and columns of the block.
    struct Part
    {
        std::uint64_t firstRow = 0;
        std::uint64_t rows = 0;  ///< that are handed out
        std::uint64_t firstColumn = 0;
        std::uint64_t columns = 0;
        std::uint64_t step = 1;
        std::uint64_t band = 0;
        char* out = nullptr;
        std::uint64_t outStride = 0;  ///< bytes from row to row
    };

    /// Where a block begins, from the first byte of the data; false when it is not in the file.
    PixelAnswer FindBlock(std::uint64_t aBlock, std::uint64_t aBand, bool& aIsRecorded, std::uint64_t& aStart) const;
    PixelAnswer ReadPart(std::uint64_t aBlockStart, const Part& aPart) const;
    void FillPart(const Part& aPart) const noexcept;
    PixelAnswer ReadRows(std::uint64_t aStart, const Part& aPart, std::uint64_t aRow, std::uint64_t aRows,
                         std::uint64_t aColumn, std::uint64_t aColumns, std::string& aBytes) const;
    void CopySamples(const char* aBytes, std::uint64_t aFirstBit, std::uint64_t aCount, std::uint64_t aSpacing,
                     char* aOut) const noexcept;

    const PixelLayout& m_layout;
    const ByteSource& m_source;
    const NITFImageDataMaskSubheader* m_mask;
    std::size_t m_sampleSize;
    // All in bits, from the first bit of a block.
    std::uint64_t m_rowStride = 0;
    std::uint64_t m_columnStride = 0;
    std::uint64_t m_bandStride = 0;
    std::uint64_t m_blockBytes = 0;
};

}  // namespace ORMO::SensorModel::CSM::Detail

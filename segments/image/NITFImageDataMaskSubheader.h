#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The image data mask table (MIL-STD-2500C, table A-3(A)), which stands in front of the pixels when IC has an M: where
/// each block lies, which blocks hold pad pixels, and the value of those. Its fixed part is read when the object is
/// made, the offsets of the blocks when they are asked for.
///
/// Blocks count from 0, row by row. Bands count from 0; only images with IMODE S have an offset for each.
class ORMO_CSM_API NITFImageDataMaskSubheader
{
public:
    /// The offset of a block that is not in the file, and of one without pad pixels.
    static constexpr std::uint32_t NOT_RECORDED = 0xFFFFFFFFU;

    /// The bytes and the layout of an image, known inside the library only.
    struct Image;

    /// Reads the table at the start of the data of an image. Null, with the reason appended to `aErrors`, when its
    /// fields or its length do not fit the image and its data.
    static std::shared_ptr<const NITFImageDataMaskSubheader> Read(const Image& aImage, std::string& aErrors);
    ~NITFImageDataMaskSubheader();
    NITFImageDataMaskSubheader(const NITFImageDataMaskSubheader&) = delete;
    NITFImageDataMaskSubheader& operator=(const NITFImageDataMaskSubheader&) = delete;

    /// Bytes from the start of the data to the first block.
    std::uint32_t GetFieldIMDATOFF() const noexcept { return m_pixels; }
    std::uint16_t GetFieldBMRLNTH() const noexcept { return m_blockLength; }
    std::uint16_t GetFieldTMRLNTH() const noexcept { return m_padLength; }
    /// Bits of the pad pixel code; 0 when there is none.
    std::uint16_t GetFieldTPXCDLNTH() const noexcept { return m_codeBits; }
    /// The bytes of the pad pixel code.
    std::string_view GetFieldTPXCD() const noexcept;
    /// A field of the fixed part as read; an empty view with a null pointer when it is not there.
    std::string_view FieldText(std::string_view aName) const noexcept;

    bool HasBlockMask() const noexcept { return m_blockLength != 0; }
    bool HasPadPixelMask() const noexcept { return m_padLength != 0; }
    bool HasPadPixelValue() const noexcept { return m_codeBits != 0; }
    std::uint64_t GetNumOfBlocks() const noexcept { return m_blocks; }
    std::uint64_t GetNumOfBands() const noexcept { return m_bands; }

    /// Where a block lies, counted from IMDATOFF, or NOT_RECORDED. False when there is no block mask, no such block, or
    /// the file cannot be read.
    bool GetBlockOffset(std::uint64_t aBlock, std::uint64_t aBand, std::uint32_t& aOffset) const;
    /// The offset of a block that holds pad pixels, or NOT_RECORDED; false as above.
    bool GetPadPixelOffset(std::uint64_t aBlock, std::uint64_t aBand, std::uint32_t& aOffset) const;
    /// The offsets of `aCount` blocks that follow one another.
    bool GetBlockOffsets(std::uint64_t aFirst, std::uint64_t aCount, std::uint64_t aBand,
                         std::vector<std::uint32_t>& aOffsets) const;

private:
    struct Parts;

    NITFImageDataMaskSubheader();

    bool ReadOffsets(std::uint64_t aStart, std::uint64_t aFirst, std::uint64_t aCount, std::uint64_t aBand,
                     std::vector<std::uint32_t>& aOffsets) const;

    std::unique_ptr<Parts> m_parts;
    std::uint64_t m_blockTable = 0;  // places in the file
    std::uint64_t m_padTable = 0;
    std::uint64_t m_blocks = 0;
    std::uint64_t m_bands = 0;
    std::uint32_t m_pixels = 0;
    std::uint16_t m_blockLength = 0;
    std::uint16_t m_padLength = 0;
    std::uint16_t m_codeBits = 0;
};

}  // namespace ORMO::SensorModel::CSM

#pragma once

#include "segments/image/detail/ImagePixels.h"

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

namespace ORMO::SensorModel::CSM::Tests {

/// The bits of a sample of a band, row and column.
using SampleBits = std::function<std::uint64_t(std::uint64_t, std::uint64_t, std::uint64_t)>;

/// Some bits that differ from place to place.
inline std::uint64_t Scrambled(std::uint64_t aBand, std::uint64_t aRow, std::uint64_t aColumn)
{
    std::uint64_t bits = (aBand * 1000003 + aRow) * 1000033 + aColumn + 1;
    bits ^= bits << 13U;
    bits ^= bits >> 7U;
    bits ^= bits << 17U;
    return bits * 0x9E3779B97F4A7C15U;
}

/// Writes bits one after another, as the standard has it: the most significant first.
class BitWriter
{
public:
    void Put(std::uint64_t aValue, unsigned aBits)
    {
        unsigned i = aBits;
        while (m_count % 8 == 0 && i >= 8) {
            i -= 8;
            m_bytes += static_cast<char>(aValue >> i & 0xFFU);
        }
        while (i-- != 0) {
            if (m_count % 8 == 0) {
                m_bytes += '\0';
            }
            if ((aValue >> i & 1U) != 0) {
                m_bytes.back() =
                    static_cast<char>(static_cast<unsigned char>(m_bytes.back()) | 1U << (7 - m_count % 8));
            }
            ++m_count;
        }
    }
    void EndByte() { m_count = 0; }
    /// Ends a block: the next one begins with a whole byte.
    std::string Take()
    {
        m_count = 0;
        return std::exchange(m_bytes, {});
    }

private:
    std::string m_bytes;
    unsigned m_count = 0;
};

/// The bytes of one block: the samples in the order of the image mode, one after the other. For mode S of one band.
inline std::string BlockBytes(const Detail::PixelLayout& aLayout, std::uint64_t aBlock, std::uint64_t aBand,
                              const SampleBits& aSamples)
{
    const std::uint64_t top = aBlock / aLayout.blocksPerRow * aLayout.blockRows;
    const std::uint64_t left = aBlock % aLayout.blocksPerRow * aLayout.blockColumns;
    BitWriter writer;
    const auto put = [&](std::uint64_t aSampleBand, std::uint64_t aRow, std::uint64_t aColumn) {
        writer.Put(aSamples(aSampleBand, top + aRow, left + aColumn), aLayout.bits);
    };
    const std::uint64_t rows = aLayout.blockRows;
    const std::uint64_t columns = aLayout.blockColumns;
    switch (aLayout.mode) {
        case 'B':
            for (std::uint64_t band = 0; band != aLayout.bands; ++band) {
                for (std::uint64_t i = 0; i != rows * columns; ++i) {
                    put(band, i / columns, i % columns);
                }
                writer.EndByte();
            }
            break;
        case 'P':
            for (std::uint64_t i = 0; i != rows * columns; ++i) {
                for (std::uint64_t band = 0; band != aLayout.bands; ++band) {
                    put(band, i / columns, i % columns);
                }
            }
            break;
        case 'R':
            for (std::uint64_t row = 0; row != rows; ++row) {
                for (std::uint64_t i = 0; i != aLayout.bands * columns; ++i) {
                    put(i / columns, row, i % columns);
                }
            }
            break;
        default:
            for (std::uint64_t i = 0; i != rows * columns; ++i) {
                put(aBand, i / columns, i % columns);
            }
    }
    return writer.Take();
}

/// All blocks of an image without mask.
inline std::string ImageBytes(const Detail::PixelLayout& aLayout, const SampleBits& aSamples = Scrambled)
{
    std::string bytes;
    for (std::uint64_t band = 0; band != aLayout.MaskBands(); ++band) {
        for (std::uint64_t block = 0; block != aLayout.blocksPerRow * aLayout.blocksPerColumn; ++block) {
            bytes += BlockBytes(aLayout, block, band, aSamples);
        }
    }
    return bytes;
}

/// An image of blocks that just cover it.
inline Detail::PixelLayout Layout(char aMode, unsigned aBits, NITFCnst::PixelType aType, std::uint64_t aBands,
                                  std::uint64_t aRows, std::uint64_t aColumns, std::uint64_t aBlockRows,
                                  std::uint64_t aBlockColumns)
{
    Detail::PixelLayout layout;
    layout.rows = aRows;
    layout.columns = aColumns;
    layout.blockRows = aBlockRows;
    layout.blockColumns = aBlockColumns;
    layout.blocksPerRow = (aColumns + aBlockColumns - 1) / aBlockColumns;
    layout.blocksPerColumn = (aRows + aBlockRows - 1) / aBlockRows;
    layout.bands = aBands;
    layout.bits = aBits;
    layout.actualBits = aBits;
    layout.type = aType;
    layout.mode = aMode;
    layout.compression = "NC";
    return layout;
}

}  // namespace ORMO::SensorModel::CSM::Tests

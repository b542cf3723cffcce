#include "segments/image/detail/UncompressedPixels.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Reader = NITFImagePixelReader;

constexpr std::uint64_t PIECE_BYTES = 1U << 20U;
/// Rows that stand further apart are read one by one.
constexpr std::uint64_t SMALL_GAP_BYTES = 1U << 12U;

PixelAnswer Short(std::uint64_t aEnd, std::uint64_t aHeld)
{
    return {Reader::STATUS_DATA_SHORT, "ERROR: The pixels asked for reach to byte " + std::to_string(aEnd) +
                                           " of the image's data, of which there are " + std::to_string(aHeld) + '.'};
}

/// Up to 64 bits from any bit of big-endian bytes.
std::uint64_t BitsAt(const char* aBytes, std::uint64_t aFirstBit, unsigned aBits) noexcept
{
    const auto* const bytes = aBytes + aFirstBit / 8;
    const auto before = static_cast<unsigned>(aFirstBit % 8);
    const unsigned count = (before + aBits + 7) / 8;
    std::uint64_t value = static_cast<unsigned char>(bytes[0]) & (0xFFU >> before);
    for (unsigned i = 1; i < std::min(count, 8U); ++i) {
        value = value << 8U | static_cast<unsigned char>(bytes[i]);
    }
    const unsigned behind = std::min(count, 8U) * 8 - before;
    if (behind >= aBits) {
        return value >> (behind - aBits);
    }
    const unsigned missing = aBits - behind;  // the ninth byte has them
    return value << missing | static_cast<unsigned char>(bytes[8]) >> (8 - missing);
}

template<typename Word>
void CopyWords(const char* aBytes, std::uint64_t aCount, std::uint64_t aSpacingBytes, char* aOut) noexcept
{
    for (std::uint64_t i = 0; i != aCount; ++i) {
        Word word = 0;
        for (std::size_t byte = 0; byte != sizeof(Word); ++byte) {
            word = static_cast<Word>((sizeof(Word) == 1 ? Word{0} : static_cast<Word>(word << 8U)) |
                                     static_cast<unsigned char>(aBytes[byte]));
        }
        std::memcpy(aOut, &word, sizeof(Word));
        aBytes += aSpacingBytes;
        aOut += sizeof(Word);
    }
}

}  // namespace

std::uint64_t PadPixelValue(const PixelLayout& aLayout, std::string_view aCode, unsigned aCodeBits) noexcept
{
    if (aCode.empty() || aCodeBits == 0 || aCode.size() * 8 < aCodeBits) {
        return 0;
    }
    // Whole bytes hold the code at the side that PJUST says. Of more bits than a sample has, the last ones count.
    const std::uint64_t first = aLayout.isLeftJustified ? 0 : aCode.size() * 8 - aCodeBits;
    const unsigned bits = std::min(aCodeBits, std::min(aLayout.bits, 64U));
    return BitsAt(aCode.data(), first + (aCodeBits - bits), bits);
}

void WriteSample(const PixelLayout& aLayout, std::uint64_t aBits, char* aOut) noexcept
{
    const std::size_t size = aLayout.SampleSize();
    if (aLayout.type == NITFCnst::PIXEL_TYPE_C) {  // two floats, the first in the higher bits
        const std::uint32_t parts[] = {static_cast<std::uint32_t>(aBits >> 32U), static_cast<std::uint32_t>(aBits)};
        std::memcpy(aOut, parts, sizeof(parts));
        return;
    }
    if (aLayout.type == NITFCnst::PIXEL_TYPE_SI && aLayout.bits < 64 && (aBits >> (aLayout.bits - 1) & 1U) != 0) {
        aBits |= ~std::uint64_t{0} << aLayout.bits;
    }
    if constexpr (std::endian::native == std::endian::big) {
        std::memcpy(aOut, reinterpret_cast<const char*>(&aBits) + sizeof(aBits) - size, size);
    } else {
        std::memcpy(aOut, &aBits, size);
    }
}

UncompressedPixels::UncompressedPixels(const PixelLayout& aLayout, const ByteSource& aSource,
                                       const NITFImageDataMaskSubheader* aMask)
    : m_layout(aLayout), m_source(aSource), m_mask(aMask), m_sampleSize(aLayout.SampleSize())
{
    // A sound layout keeps these products below 64 bits.
    const std::uint64_t bits = aLayout.bits;
    const std::uint64_t width = aLayout.blockColumns;
    const std::uint64_t height = aLayout.blockRows;
    const std::uint64_t bands = aLayout.bands;
    const auto inWholeBytes = [](std::uint64_t aBits) { return (aBits + 7) / 8 * 8; };
    m_columnStride = bits;
    m_rowStride = width * bits;
    // In modes B and S each band of a block begins with a whole byte.
    m_bandStride = inWholeBytes(height * m_rowStride);
    m_blockBytes = bands * m_bandStride / 8;
    if (aLayout.mode == 'S') {
        m_blockBytes = m_bandStride / 8;
        m_bandStride = 0;
    } else if (aLayout.mode == 'P') {
        m_columnStride = bands * bits;
        m_rowStride = width * m_columnStride;
        m_bandStride = bits;
        m_blockBytes = inWholeBytes(height * m_rowStride) / 8;
    } else if (aLayout.mode == 'R') {
        m_bandStride = m_rowStride;
        m_rowStride = bands * m_bandStride;
        m_blockBytes = inWholeBytes(height * m_rowStride) / 8;
    }
}

PixelAnswer UncompressedPixels::Read(const PixelWindow& aWindow, char* aOut) const
{
    if (m_layout.mode != 'B' && m_layout.mode != 'P' && m_layout.mode != 'R' && m_layout.mode != 'S') {
        return {Reader::STATUS_UNSUPPORTED_PIXELS,
                std::string("ERROR: There is no IMODE \"") + m_layout.mode + "\" that pixels could be read in."};
    }
    const std::uint64_t step = aWindow.step;
    const std::uint64_t outStride = aWindow.ColumnsOut() * m_sampleSize;
    const std::uint64_t maskBand = m_layout.mode == 'S' ? aWindow.band : 0;
    // Samples that are handed out are counted; the first of a block is the first multiple of the step in it.
    std::uint64_t rowOut = 0;
    while (rowOut != aWindow.RowsOut()) {
        const std::uint64_t row = aWindow.row + rowOut * step;
        const std::uint64_t blockRow = row / m_layout.blockRows;
        const std::uint64_t rowEnd = std::min((blockRow + 1) * m_layout.blockRows, aWindow.row + aWindow.rows);
        const std::uint64_t rowsHere = (rowEnd - row + step - 1) / step;
        std::uint64_t columnOut = 0;
        while (columnOut != aWindow.ColumnsOut()) {
            const std::uint64_t column = aWindow.column + columnOut * step;
            const std::uint64_t blockColumn = column / m_layout.blockColumns;
            const std::uint64_t columnEnd =
                std::min((blockColumn + 1) * m_layout.blockColumns, aWindow.column + aWindow.columns);
            Part part;
            part.firstRow = row % m_layout.blockRows;
            part.rows = rowsHere;
            part.firstColumn = column % m_layout.blockColumns;
            part.columns = (columnEnd - column + step - 1) / step;
            part.step = step;
            part.band = aWindow.band;
            part.out = aOut + rowOut * outStride + columnOut * m_sampleSize;
            part.outStride = outStride;
            bool isRecorded = false;
            std::uint64_t start = 0;
            PixelAnswer answer = FindBlock(blockRow * m_layout.blocksPerRow + blockColumn, maskBand, isRecorded, start);
            if (answer.IsGood() && isRecorded) {
                answer = ReadPart(start, part);
            } else if (answer.IsGood()) {
                FillPart(part);
            }
            if (!answer.IsGood()) {
                return answer;
            }
            columnOut += part.columns;
        }
        rowOut += rowsHere;
    }
    return {};
}

PixelAnswer UncompressedPixels::FindBlock(std::uint64_t aBlock, std::uint64_t aBand, bool& aIsRecorded,
                                          std::uint64_t& aStart) const
{
    aIsRecorded = true;
    const std::uint64_t pixels = m_mask == nullptr ? 0 : m_mask->GetFieldIMDATOFF();
    if (m_mask == nullptr || !m_mask->HasBlockMask()) {
        std::uint64_t before = 0;
        const std::uint64_t blocks = m_layout.blocksPerRow * m_layout.blocksPerColumn;
        if (!Product({aBand * blocks + aBlock, m_blockBytes}, before) || before > m_layout.dataLength) {
            return Short(before, m_layout.dataLength);
        }
        aStart = pixels + before;
        return {};
    }
    std::uint32_t offset = 0;
    if (!m_mask->GetBlockOffset(aBlock, aBand, offset)) {
        return {Reader::STATUS_READ_FAILED, "ERROR: The offsets in the image data mask cannot be read."};
    }
    aIsRecorded = offset != NITFImageDataMaskSubheader::NOT_RECORDED;
    aStart = pixels + offset;
    if (aIsRecorded && aStart >= m_layout.dataLength) {
        return {Reader::STATUS_INVALID_MASK, "ERROR: The image data mask places block " + std::to_string(aBlock) +
                                                 " at offset " + std::to_string(offset) +
                                                 ", which is not in the data."};
    }
    return {};
}

void UncompressedPixels::FillPart(const Part& aPart) const noexcept
{
    const bool hasValue = m_mask != nullptr && m_mask->HasPadPixelValue();
    const std::uint64_t value =
        hasValue ? PadPixelValue(m_layout, m_mask->GetFieldTPXCD(), m_mask->GetFieldTPXCDLNTH()) : 0;
    for (std::uint64_t row = 0; row != aPart.rows; ++row) {
        char* out = aPart.out + row * aPart.outStride;
        for (std::uint64_t i = 0; i != aPart.columns; ++i, out += m_sampleSize) {
            WriteSample(m_layout, value, out);
        }
    }
}

PixelAnswer UncompressedPixels::ReadPart(std::uint64_t aBlockStart, const Part& aPart) const
{
    const std::uint64_t rowBytes = aPart.step * m_rowStride / 8;
    const std::uint64_t spanBits = ((aPart.columns - 1) * aPart.step * m_columnStride) + m_layout.bits;
    const std::uint64_t spanBytes = spanBits / 8 + 2;
    std::string bytes;
    if (spanBytes <= PIECE_BYTES) {
        const bool isDense = rowBytes <= SMALL_GAP_BYTES || rowBytes / 4 <= spanBytes;
        const std::uint64_t atOnce =
            isDense ? std::max<std::uint64_t>(1, (PIECE_BYTES - spanBytes) / (rowBytes + 1)) : 1;
        for (std::uint64_t row = 0; row < aPart.rows; row += atOnce) {
            const std::uint64_t rows = std::min(atOnce, aPart.rows - row);
            PixelAnswer answer = ReadRows(aBlockStart, aPart, row, rows, 0, aPart.columns, bytes);
            if (!answer.IsGood()) {
                return answer;
            }
        }
        return {};
    }
    const std::uint64_t atOnce = std::max<std::uint64_t>(1, PIECE_BYTES * 8 / (aPart.step * m_columnStride));
    for (std::uint64_t row = 0; row != aPart.rows; ++row) {
        for (std::uint64_t column = 0; column < aPart.columns; column += atOnce) {
            PixelAnswer answer =
                ReadRows(aBlockStart, aPart, row, 1, column, std::min(atOnce, aPart.columns - column), bytes);
            if (!answer.IsGood()) {
                return answer;
            }
        }
    }
    return {};
}

PixelAnswer UncompressedPixels::ReadRows(std::uint64_t aStart, const Part& aPart, std::uint64_t aRow,
                                         std::uint64_t aRows, std::uint64_t aColumn, std::uint64_t aColumns,
                                         std::string& aBytes) const
{
    const std::uint64_t rowSpacing = aPart.step * m_rowStride;
    const std::uint64_t columnSpacing = aPart.step * m_columnStride;
    const std::uint64_t firstBit = aPart.band * m_bandStride + (aPart.firstRow + aRow * aPart.step) * m_rowStride +
                                   (aPart.firstColumn + aColumn * aPart.step) * m_columnStride;
    const std::uint64_t lastBit =
        firstBit + (aRows - 1) * rowSpacing + (aColumns - 1) * columnSpacing + m_layout.bits - 1;
    const std::uint64_t first = aStart + firstBit / 8;
    const std::uint64_t end = aStart + lastBit / 8 + 1;
    if (end > m_layout.dataLength || !m_source.Holds(m_layout.dataOffset, end)) {
        const std::uint64_t held = m_source.Size() > m_layout.dataOffset ? m_source.Size() - m_layout.dataOffset : 0;
        return Short(end, std::min(held, m_layout.dataLength));
    }
    if (!m_source.Read(m_layout.dataOffset + first, end - first, aBytes)) {
        return {Reader::STATUS_READ_FAILED, "ERROR: The pixels cannot be read from the file."};
    }
    for (std::uint64_t row = 0; row != aRows; ++row) {
        CopySamples(aBytes.data(), firstBit % 8 + row * rowSpacing, aColumns, columnSpacing,
                    aPart.out + (aRow + row) * aPart.outStride + aColumn * m_sampleSize);
    }
    return {};
}

void UncompressedPixels::CopySamples(const char* aBytes, std::uint64_t aFirstBit, std::uint64_t aCount,
                                     std::uint64_t aSpacing, char* aOut) const noexcept
{
    const bool isWhole = aFirstBit % 8 == 0 && aSpacing % 8 == 0 && m_layout.bits == m_sampleSize * 8;
    const char* const bytes = aBytes + aFirstBit / 8;
    if (isWhole && m_layout.type == NITFCnst::PIXEL_TYPE_C) {
        for (std::uint64_t i = 0; i != aCount; ++i) {
            CopyWords<std::uint32_t>(bytes + i * aSpacing / 8, 2, 4, aOut + i * m_sampleSize);
        }
    } else if (isWhole && m_sampleSize == 1 && aSpacing == 8) {
        std::memcpy(aOut, bytes, aCount);
    } else if (isWhole && m_sampleSize == 1) {
        CopyWords<std::uint8_t>(bytes, aCount, aSpacing / 8, aOut);
    } else if (isWhole && m_sampleSize == 2) {
        CopyWords<std::uint16_t>(bytes, aCount, aSpacing / 8, aOut);
    } else if (isWhole && m_sampleSize == 4) {
        CopyWords<std::uint32_t>(bytes, aCount, aSpacing / 8, aOut);
    } else if (isWhole && m_sampleSize == 8) {
        CopyWords<std::uint64_t>(bytes, aCount, aSpacing / 8, aOut);
    } else {
        for (std::uint64_t i = 0; i != aCount; ++i) {
            WriteSample(m_layout, BitsAt(aBytes, aFirstBit + i * aSpacing, m_layout.bits), aOut + i * m_sampleSize);
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail

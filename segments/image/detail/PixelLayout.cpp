#include "segments/image/detail/PixelLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

std::string Times(const char* aBlocks, std::uint64_t aCount, const char* aPixels, std::uint64_t aEach,
                  const char* aWhole, std::uint64_t aTotal)
{
    return std::string("ERROR: ") + aBlocks + ' ' + std::to_string(aCount) + " times " + aPixels + ' ' +
           std::to_string(aEach) + " does not reach " + aWhole + ' ' + std::to_string(aTotal) + '.';
}

}  // namespace

bool Product(std::initializer_list<std::uint64_t> aFactors, std::uint64_t& aOut) noexcept
{
    std::uint64_t product = 1;
    for (const std::uint64_t factor : aFactors) {
        if (factor != 0 && product > UINT64_MAX / factor) {
            return false;
        }
        product *= factor;
    }
    aOut = product;
    return true;
}

std::size_t PixelLayout::SampleSize() const noexcept
{
    if (bits == 0 || bits > static_cast<unsigned>(NITFCnst::CURRENT_LIMIT_IS_FIELD_NBPP)) {
        return 0;
    }
    switch (type) {
        case NITFCnst::PIXEL_TYPE_R:
            return bits == 32 || bits == 64 ? bits / 8 : 0;
        case NITFCnst::PIXEL_TYPE_C:
            return bits == 64 ? 8 : 0;
        case NITFCnst::PIXEL_TYPE_B:
        case NITFCnst::PIXEL_TYPE_INT:
        case NITFCnst::PIXEL_TYPE_SI:
            return bits <= 8 ? 1 : bits <= 16 ? 2 : bits <= 32 ? 4 : 8;
        default:
            return 0;
    }
}

bool PixelLayout::IsSound(std::string& aWhyNot) const
{
    if (rows == 0 || columns == 0 || bands == 0 || blocksPerRow == 0 || blocksPerColumn == 0 || blockRows == 0 ||
        blockColumns == 0) {
        aWhyNot =
            "ERROR: The image has no rows, columns, bands or blocks, or the fields that tell their numbers hold none.";
        return false;
    }
    std::uint64_t blockBits = 0;
    std::uint64_t blocks = 0;
    std::uint64_t width = 0;
    std::uint64_t height = 0;
    // Eight bits more than a pixel has leave room for what fills the last byte of a band.
    if (!Product({blockRows, blockColumns, bands, std::uint64_t{bits} + 8}, blockBits) ||
        !Product({blocksPerRow, blocksPerColumn, bands}, blocks) || !Product({blocksPerRow, blockColumns}, width) ||
        !Product({blocksPerColumn, blockRows}, height)) {
        aWhyNot = "ERROR: The blocks are larger than any file.";
        return false;
    }
    if (width < columns) {
        aWhyNot = Times("NBPR", blocksPerRow, "NPPBH", blockColumns, "NCOLS", columns);
        return false;
    }
    if (height < rows) {
        aWhyNot = Times("NBPC", blocksPerColumn, "NPPBV", blockRows, "NROWS", rows);
        return false;
    }
    return true;
}

PixelAnswer CheckRequest(const PixelLayout& aLayout, const PixelWindow& aWindow, std::uint64_t aBufferSize,
                         const void* aBuffer)
{
    using Reader = NITFImagePixelReader;
    std::string why;
    if (aBuffer == nullptr) {
        return {Reader::STATUS_NO_BUFFER, "ERROR: There is no buffer for the pixels."};
    }
    if (!aLayout.IsSound(why)) {
        return {Reader::STATUS_INVALID_LAYOUT, why};
    }
    if (aLayout.SampleSize() == 0) {
        return {Reader::STATUS_UNSUPPORTED_PIXELS,
                "ERROR: Pixels with this PVTYPE and NBPP " + std::to_string(aLayout.bits) + " cannot be read."};
    }
    if (aWindow.rows == 0 || aWindow.columns == 0 || aWindow.step == 0 || aWindow.row >= aLayout.rows ||
        aWindow.rows > aLayout.rows - aWindow.row || aWindow.column >= aLayout.columns ||
        aWindow.columns > aLayout.columns - aWindow.column) {
        return {Reader::STATUS_OUT_OF_RANGE,
                "ERROR: " + std::to_string(aWindow.rows) + " row(s) by " + std::to_string(aWindow.columns) +
                    " column(s) from row " + std::to_string(aWindow.row) + ", column " +
                    std::to_string(aWindow.column) + " are not inside the image of " + std::to_string(aLayout.rows) +
                    " by " + std::to_string(aLayout.columns) + '.'};
    }
    if (aWindow.band >= aLayout.bands) {
        return {Reader::STATUS_OUT_OF_RANGE, "ERROR: There is no band " + std::to_string(aWindow.band) +
                                                 ", the image has " + std::to_string(aLayout.bands) + '.'};
    }
    std::uint64_t needed = 0;
    if (!Product({aWindow.RowsOut(), aWindow.ColumnsOut(), aLayout.SampleSize()}, needed) || needed > aBufferSize) {
        return {Reader::STATUS_BUFFER_TOO_SMALL,
                "ERROR: The buffer has " + std::to_string(aBufferSize) + " bytes, the pixels asked for take more."};
    }
    return {};
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "segments/detail/rules/Codestream.h"

#include "fields/ByteCursor.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// Enough for the tables that stand in front of a frame header, and for the boxes of most JP2 files.
constexpr std::uint64_t FRONT = 4096;
constexpr int MOST_BOXES = 64;

/// Takes a big-endian number of that many bytes.
bool Take(ByteCursor& aCursor, std::uint64_t aBytes, std::uint64_t& aOut)
{
    std::string_view bytes;
    return aCursor.Take(aBytes, bytes) && BigEndianUnsigned(bytes, aOut);
}

unsigned Narrow(std::uint64_t aNumber) noexcept
{
    return static_cast<unsigned>(aNumber);
}

bool IsFrame(std::uint64_t aMarker) noexcept
{
    // All of C0 to CF but the tables of Huffman codes (C4), an extension (C8) and arithmetic conditions (CC).
    return aMarker >= 0xC0 && aMarker <= 0xCF && aMarker != 0xC4 && aMarker != 0xC8 && aMarker != 0xCC;
}

void ReadFrame(std::string_view aBytes, JpegFacts& aOut)
{
    ByteCursor cursor(aBytes);
    std::uint64_t numbers[4]{};
    aOut.hasFrame = Take(cursor, 1, numbers[0]) && Take(cursor, 2, numbers[1]) && Take(cursor, 2, numbers[2]) &&
                    Take(cursor, 1, numbers[3]);
    aOut.precision = Narrow(numbers[0]);
    aOut.rows = Narrow(numbers[1]);
    aOut.columns = Narrow(numbers[2]);
    aOut.components = Narrow(numbers[3]);
}

/// The mark, a version of two bytes, IMODE, and the blocks per row and per column.
void ReadNitfSegment(std::string_view aBytes, JpegFacts& aOut)
{
    ByteCursor cursor(aBytes);
    std::string_view mark;
    std::uint64_t numbers[4]{};
    if (aOut.hasNitfSegment || !cursor.Take(5, mark) || mark != std::string_view("NITF\0", 5) ||
        !Take(cursor, 2, numbers[0]) || !Take(cursor, 1, numbers[1]) || !Take(cursor, 2, numbers[2]) ||
        !Take(cursor, 2, numbers[3])) {
        return;
    }
    aOut.hasNitfSegment = true;
    aOut.mode = static_cast<char>(numbers[1]);
    aOut.blocksPerRow = Narrow(numbers[2]);
    aOut.blocksPerColumn = Narrow(numbers[3]);
}

void ReadSize(std::string_view aBytes, Jpeg2000Facts& aOut)
{
    ByteCursor cursor(aBytes);
    std::uint64_t length = 0;
    std::uint64_t capabilities = 0;
    // Xsiz, Ysiz, XOsiz, YOsiz, XTsiz, YTsiz, XTOsiz, YTOsiz
    std::uint64_t size[8]{};
    std::uint64_t components = 0;
    bool good = Take(cursor, 2, length) && Take(cursor, 2, capabilities);
    for (std::uint64_t& number : size) {
        good = good && Take(cursor, 4, number);
    }
    if (!good || !Take(cursor, 2, components) || size[0] < size[2] || size[1] < size[3]) {
        return;
    }
    aOut.components = Narrow(components);
    aOut.tileColumns = size[4];
    aOut.tileRows = size[5];
    for (std::uint64_t i = 0; i != components; ++i) {
        std::uint64_t precision = 0;
        std::uint64_t stepX = 0;
        std::uint64_t stepY = 0;
        if (!Take(cursor, 1, precision) || !Take(cursor, 1, stepX) || !Take(cursor, 1, stepY) || stepX == 0 ||
            stepY == 0) {
            return;
        }
        if (i == 0) {
            aOut.columns = (size[0] + stepX - 1) / stepX - (size[2] + stepX - 1) / stepX;
            aOut.rows = (size[1] + stepY - 1) / stepY - (size[3] + stepY - 1) / stepY;
            aOut.isSigned = (precision & 0x80U) != 0;
        }
        aOut.isSubsampled = aOut.isSubsampled || stepX != 1 || stepY != 1;
        aOut.precision = std::max(aOut.precision, Narrow((precision & 0x7FU) + 1));
    }
    aOut.hasSize = true;
}

constexpr std::string_view CODE_STREAM("\xFF\x4F\xFF\x51", 4);
constexpr std::string_view SIGNATURE("\0\0\0\x0CjP  \r\n\x87\n", 12);

/// The code stream inside a JP2 file: its boxes follow one another up to the one that holds it.
bool FindCodeStream(const HeaderView& aImage, std::uint64_t& aOffset)
{
    std::string bytes;
    for (int i = 0; i != MOST_BOXES; ++i) {
        if (!aImage.ReadData(aOffset, 16, bytes)) {
            return false;
        }
        ByteCursor cursor(bytes);
        std::string_view type;
        std::uint64_t length = 0;
        if (!Take(cursor, 4, length) || !cursor.Take(4, type) || (length == 1 && !Take(cursor, 8, length))) {
            return false;
        }
        if (type == "jp2c") {
            aOffset += bytes.size() - cursor.Remaining();
            return true;
        }
        if (length < 8 || length > aImage.DataSize()) {
            return false;
        }
        aOffset += length;
    }
    return false;
}

}  // namespace

bool PixelStart(const HeaderView& aImage, std::uint64_t& aOffset)
{
    aOffset = 0;
    std::string bytes;
    return !aImage.Image().IsMasked() ||
           (aImage.ReadData(0, 4, bytes) && bytes.size() == 4 && BigEndianUnsigned(bytes, aOffset));
}

bool ReadJpeg(const HeaderView& aImage, JpegFacts& aOut)
{
    std::uint64_t start = 0;
    std::string bytes;
    if (!PixelStart(aImage, start) || !aImage.ReadData(start, FRONT, bytes)) {
        return false;
    }
    const auto first = std::min(bytes.find_first_not_of('\xFF'), bytes.size());
    aOut.begins = first != 0 && first != bytes.size() && bytes[first] == '\xD8';
    if (!aOut.begins) {
        return true;
    }
    ByteCursor cursor(std::string_view(bytes).substr(first + 1));
    std::uint64_t mark = 0;
    std::uint64_t marker = 0;
    std::uint64_t length = 0;
    std::string_view segment;
    while (!aOut.hasFrame && Take(cursor, 1, mark) && mark == 0xFF && Take(cursor, 1, marker)) {
        while (marker == 0xFF && Take(cursor, 1, marker)) {
        }
        if (!Take(cursor, 2, length) || length < 2 || !cursor.Take(length - 2, segment)) {
            break;
        }
        if (IsFrame(marker)) {
            ReadFrame(segment, aOut);
        } else if (marker == 0xE6) {
            ReadNitfSegment(segment, aOut);
        }
    }
    return true;
}

bool ReadJpeg2000(const HeaderView& aImage, Jpeg2000Facts& aOut)
{
    std::uint64_t start = 0;
    std::string bytes;
    if (!PixelStart(aImage, start) || !aImage.ReadData(start, FRONT, bytes)) {
        return false;
    }
    const bool isFile = bytes.starts_with(SIGNATURE);
    aOut.begins = isFile || bytes.starts_with(CODE_STREAM);
    if (isFile && (!FindCodeStream(aImage, start) || !aImage.ReadData(start, FRONT, bytes))) {
        return true;
    }
    if (bytes.starts_with(CODE_STREAM)) {
        ReadSize(std::string_view(bytes).substr(CODE_STREAM.size()), aOut);
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

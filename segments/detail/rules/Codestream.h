#pragma once

#include "segments/detail/rules/HeaderView.h"

#include <cstdint>
#include <string>
#include <string_view>

// What the first bytes of compressed pixels say of the image: read, never decoded.
namespace ORMO::SensorModel::CSM::Detail {

/// A JPEG stream as far as its frame header.
struct JpegFacts
{
    bool begins = false;  ///< whether the mark FFD8 stands at the start, fill bytes before it left out
    bool hasFrame = false;
    unsigned precision = 0;
    unsigned rows = 0;
    unsigned columns = 0;
    unsigned components = 0;
    bool hasNitfSegment = false;  ///< APP6 with the mark NITF
    char mode = '\0';
    unsigned blocksPerRow = 0;
    unsigned blocksPerColumn = 0;
};

/// A JPEG 2000 code stream as far as its SIZ marker, whether it stands by itself or in a JP2 file.
struct Jpeg2000Facts
{
    bool begins = false;  ///< with a code stream or the signature of a JP2 file
    bool hasSize = false;
    std::uint64_t columns = 0;  ///< of the first component
    std::uint64_t rows = 0;
    std::uint64_t tileColumns = 0;
    std::uint64_t tileRows = 0;
    unsigned components = 0;
    unsigned precision = 0;  ///< largest of all components
    bool isSigned = false;   ///< of the first component
    bool isSubsampled = false;
};

/// Where the pixels begin in the data: behind the image data mask when there is one. False when that cannot be read.
[[nodiscard]] bool PixelStart(const HeaderView& aImage, std::uint64_t& aOffset);

/// False when the data cannot be read.
[[nodiscard]] bool ReadJpeg(const HeaderView& aImage, JpegFacts& aOut);
[[nodiscard]] bool ReadJpeg2000(const HeaderView& aImage, Jpeg2000Facts& aOut);

}  // namespace ORMO::SensorModel::CSM::Detail

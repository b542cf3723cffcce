// Rules for the pixels of an image: how wide they are, how they are ordered, and the blocks that they stand in.

#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "segments/detail/rules/HeaderView.h"
#include "segments/image/detail/PixelLayout.h"

#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// The widths that a kind of pixel may have.
struct PixelWidths
{
    std::string_view type;  ///< PVTYPE
    std::string_view bits;  ///< NBPP without leading zeros
};

constexpr PixelWidths STORED[] = {{"INT", "8|12|16|32|64"}, {"SI", "8|12|16|32|64"}};
constexpr PixelWidths FIXED[] = {{"B", "1"}, {"R", "32|64"}, {"C", "64"}};

const PixelWidths* FindWidths(std::span<const PixelWidths> aTable, std::string_view aType) noexcept
{
    for (const PixelWidths& row : aTable) {
        if (row.type == aType) {
            return &row;
        }
    }
    return nullptr;
}

bool Holds(std::string_view aList, std::uint64_t aNumber)
{
    char text[24];
    const auto end = std::to_chars(std::begin(text), std::end(text), aNumber).ptr;
    return IsListed({text, static_cast<std::size_t>(end - text)}, aList);
}

std::string Alternatives(std::string_view aList)
{
    std::string text;
    for (const char character : aList) {
        text += character == '|' ? " | " : std::string(1, character);
    }
    return text;
}

std::string OtherIs(std::string_view aField, std::string_view aValue)
{
    return std::string(aField) + " is " + Shown(aValue);
}

void IntegerWidth(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    const PixelWidths* const widths = FindWidths(STORED, image.pixelType);
    // Compression codes with widths of their own have a rule of their own, and so have single bits.
    const bool hasOwnRule = image.IsJpeg() || image.IsJpeg2000() || image.Is('1') || image.Is('4') || image.bits == 1;
    if (widths != nullptr && !hasOwnRule && !Holds(widths->bits, image.bits)) {
        aReport(aHeader,
                {.field = "NBPP", .allowed = Alternatives(widths->bits), .detail = OtherIs("PVTYPE", image.pixelType)});
    }
}

void SignificantBits(const HeaderView& aHeader, const Report& aReport)
{
    if (aHeader.Image().actualBits > aHeader.Image().bits) {
        aReport(aHeader,
                {.field = "ABPP", .allowed = "at most NBPP, which is " + std::to_string(aHeader.Image().bits)});
    }
}

void TypeWidth(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    const PixelWidths* const widths = FindWidths(FIXED, image.pixelType);
    if (widths != nullptr && !Holds(widths->bits, image.bits)) {
        aReport(aHeader,
                {.field = "NBPP", .allowed = Alternatives(widths->bits), .detail = OtherIs("PVTYPE", image.pixelType)});
    } else if (image.bits == 1 && image.pixelType != "B" && !aHeader.Is20()) {
        aReport(aHeader, {.field = "PVTYPE", .allowed = "B with NBPP 01"});
    }
}

void WholeValue(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if ((image.pixelType == "R" || image.pixelType == "C") && image.actualBits < image.bits) {
        aReport(aHeader,
                {.field = "ABPP", .allowed = std::to_string(image.bits), .detail = OtherIs("PVTYPE", image.pixelType)});
    }
}

void PackedWidth(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.IsUncompressed() && image.bits == 12 && image.actualBits < 12) {
        aReport(aHeader, {.field = "ABPP", .allowed = "12 with NBPP 12"});
    }
}

void DataLength(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.compression != "NC" || aHeader.DataSize() == 0) {
        return;  // a mask table tells which blocks stand, and has a rule of its own
    }
    const std::uint64_t apart = image.mode == "S" ? image.bands : 1;
    const std::uint64_t together = image.mode == "S" ? 1 : image.bands;
    std::uint64_t bits = 0;
    std::uint64_t wanted = 0;
    const bool fits = Product({image.WidthOfBlock(), image.HeightOfBlock(), image.bits, together}, bits) &&
                      Product({(bits + 7) / 8, image.blocksPerRow, image.blocksPerColumn, apart}, wanted);
    if (!fits || wanted != aHeader.DataSize()) {
        aReport(aHeader, {.allowed = fits ? std::to_string(wanted) + " bytes" : "more bytes than any file has",
                          .detail = "The data have " + std::to_string(aHeader.DataSize()) + " byte(s).",
                          .offset = aHeader.DataStart()});
    }
}

// JPEG 2000 asks for mode B by a rule of its own, and mode S with too little is the next rule's.
void ModeOfOneBand(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.bands == 1 && (image.mode == "P" || image.mode == "R") && !image.IsJpeg2000()) {
        aReport(aHeader, {.field = "IMODE", .allowed = "B for one band"});
    }
}

void ModeOfOneBlock(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.bands != 1 && image.Blocks() == 1 && image.mode == "R" && !image.IsJpeg2000()) {
        aReport(aHeader, {.field = "IMODE", .allowed = "B or P for one block"});
    }
}

void Sequential(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.mode == "S" && (image.Blocks() == 1 || image.bands == 1) && !image.IsJpeg2000()) {
        aReport(aHeader, {.field = "IMODE",
                          .allowed = "S with several blocks and several bands only",
                          .detail = "There are " + std::to_string(image.Blocks()) + " block(s) and " +
                                    std::to_string(image.bands) + " band(s)."});
    }
}

void RowInterleaved(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.mode == "R" && !image.IsUncompressed() && !image.IsJpeg2000()) {
        aReport(aHeader,
                {.field = "IMODE", .allowed = "R with NC or NM only", .detail = OtherIs("IC", image.compression)});
    }
}

/// One direction of the grid of blocks.
struct Direction
{
    const char* count;   ///< blocks
    const char* size;    ///< pixels of a block
    const char* pixels;  ///< of the image
    std::uint64_t ImageFacts::*blocks;
    std::uint64_t ImageFacts::*blockPixels;
    std::uint64_t ImageFacts::*imagePixels;
};

constexpr Direction DIRECTIONS[] = {
    {"NBPR", "NPPBH", "NCOLS", &ImageFacts::blocksPerRow, &ImageFacts::blockColumns, &ImageFacts::columns},
    {"NBPC", "NPPBV", "NROWS", &ImageFacts::blocksPerColumn, &ImageFacts::blockRows, &ImageFacts::rows}};

void Coverage(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    for (const Direction& way : DIRECTIONS) {
        if (image.*way.blockPixels != 0 && image.*way.blocks * image.*way.blockPixels < image.*way.imagePixels) {
            aReport(aHeader, {.field = way.count,
                              .detail = std::to_string(image.*way.blocks) + " block(s) of " +
                                        std::to_string(image.*way.blockPixels) + " do not reach " + way.pixels + ", " +
                                        std::to_string(image.*way.imagePixels) + "."});
        }
    }
}

void BlocksOutside(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    for (const Direction& way : DIRECTIONS) {
        const std::uint64_t size = image.*way.blockPixels;
        if (size != 0 && image.*way.blocks > 1 && (image.*way.blocks - 1) * size >= image.*way.imagePixels) {
            aReport(aHeader, {.field = way.count,
                              .allowed = "at most " + std::to_string((image.*way.imagePixels + size - 1) / size)});
        }
    }
}

void BlockWithoutSize(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    for (const Direction& way : DIRECTIONS) {
        if (image.*way.blockPixels == 0 && image.*way.blocks != 1) {
            aReport(aHeader, {.field = way.size, .allowed = std::string("0000 with ") + way.count + " 0001 only"});
        }
    }
}

void NeedlessZero(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::uint64_t MOST_BLOCK_PIXELS = 8192;
    const ImageFacts& image = aHeader.Image();
    for (const Direction& way : DIRECTIONS) {
        if (image.*way.blockPixels == 0 && image.*way.blocks == 1 && image.*way.imagePixels <= MOST_BLOCK_PIXELS) {
            aReport(aHeader, {.field = way.size, .allowed = std::string("0000 with ") + way.pixels + " above 8192"});
        }
    }
}

constexpr const char* NEEDS_PIXELS =
    "all pixels would have to be read; a validation reads headers and the first bytes of data";

// clang-format off
constexpr Rule RULES[] = {
    {"PV-01", ERROR, ALL, Subject::Image, "PVTYPE, NBPP, IC",
     "Integer pixels have a width that does not exist.",
     "INT and SI pixels have NBPP 8, 12, 16, 32 or 64. Single bits and the widths of compressed images have rules of their own.",
     "MIL-STD-2500C table A-3, NBPP and PVTYPE", &IntegerWidth},
    {"PV-02", ERROR, ALL, Subject::Image, "ABPP, NBPP",
     "More bits of a pixel are significant than are stored.",
     "ABPP is not greater than NBPP.",
     "MIL-STD-2500C table A-3, ABPP", &SignificantBits},
    {"PV-03", ERROR, ALL, Subject::Image, "PVTYPE, NBPP",
     "The kind of pixel does not have this width.",
     "PVTYPE B has NBPP 1, R has 32 or 64, C has 64 (two parts of 32 bits); in NITF 2.1 NBPP 1 stands with B only, in NITF 2.0 samples with INT too.",
     "MIL-STD-2500C table A-3, PVTYPE", &TypeWidth},
    {"PV-04", WARN, ALL, Subject::Image, "PVTYPE R or C, ABPP",
     "A floating-point pixel has bits without a meaning.",
     "ABPP equals NBPP for real and complex pixels: an IEEE value has no unused bits.",
     "follows from IEEE 754", &WholeValue},
    Rule{"PV-05", WARN, ALL, Subject::Image, "ABPP, NBPP, PJUST and pixels",
     "Unused bits of pixels are not zero.",
     "Uncompressed bits outside the ABPP significant ones are zero, on the side that PJUST leaves free.",
     "MIL-STD-2500C table A-3, PJUST"}.NotChecked(NEEDS_PIXELS),
    {"PV-06", WARN, ALL, Subject::Image, "NBPP 12, ABPP",
     "Packed pixels of 12 bits have bits without a meaning.",
     "Without compression NBPP 12 means that two pixels share three bytes, so ABPP is 12.",
     "MIL-STD-2500C table A-3, NBPP", &PackedWidth},
    {"SZ-01", ERROR, ALL, Subject::Image, "LI, IMODE, blocks, NBPP, bands",
     "The length of uncompressed image data is not that of their blocks.",
     "With IC NC the data have as many bytes as the blocks: each block ends with a whole byte over all bands together, with IMODE S per band.",
     "MIL-STD-2500C table A-3, IMODE and NBPP", &DataLength},
    Rule{"SZ-02", WARN, ALL, Subject::Image, "NELUT and pixels",
     "A pixel lies beyond its look-up table.",
     "No pixel of a band with tables is larger than NELUT - 1.",
     "MIL-STD-2500C table A-3, NELUT"}.NotChecked(NEEDS_PIXELS),
    {"MO-01", WARN, ALL, Subject::Image, "IMODE, band count",
     "The mode of an image with one band is not B.",
     "With one band B, P and R order the pixels alike, and B is to be written.",
     "MIL-STD-2500C table A-3, IMODE", &ModeOfOneBand},
    {"MO-02", WARN, ALL, Subject::Image, "IMODE, NBPR, NBPC",
     "The mode of an image with one block is neither B nor P.",
     "A conformance sample has R here, so it can be read.",
     "MIL-STD-2500C table A-3, IMODE", &ModeOfOneBlock},
    {"MO-03", ERROR, ALL, Subject::Image, "IMODE S, blocks, bands",
     "Bands that follow one another need several blocks and several bands.",
     "IMODE S stands only with more than one block and more than one band.",
     "MIL-STD-2500C table A-3, IMODE", &Sequential},
    {"MO-04", ERROR, V21, Subject::Image, "IMODE R, IC",
     "Rows of bands stand in compressed data.",
     "IMODE R is defined for uncompressed data only, IC NC or NM.",
     "MIL-STD-2500C table A-3, IMODE", &RowInterleaved},
    {"BK-01", ERROR, ALL, Subject::Image, "NBPR, NPPBH, NCOLS, NBPC, NPPBV, NROWS",
     "The blocks do not cover the image.",
     "NBPR times NPPBH is at least NCOLS, and NBPC times NPPBV at least NROWS.",
     "MIL-STD-2500C table A-3, NBPR and NBPC", &Coverage},
    {"BK-02", WARN, ALL, Subject::Image, "NBPR, NPPBH, NCOLS, NBPC, NPPBV, NROWS",
     "A column or row of blocks lies wholly outside the image.",
     "Blocks are filled up beyond the last pixel, but none is needed that holds no pixel.",
     "MIL-STD-2500C table A-3, NBPR and NBPC", &BlocksOutside},
    {"BK-03", ERROR, V21, Subject::Image, "NPPBH, NPPBV 0000",
     "The size of the blocks is not known.",
     "NPPBH 0000 stands for the width of the image and so with NBPR 0001 only; NPPBV 0000 with NBPC 0001 only.",
     "MIL-STD-2500C table A-3, NPPBH and NPPBV", &BlockWithoutSize},
    {"BK-04", WARN, V21, Subject::Image, "NPPBH, NPPBV 0000",
     "A block has no size though its size could be written.",
     "0000 is meant for more than 8192 pixels. It may stand for fewer, but raises the complexity level to 09.",
     "MIL-STD-2500C table A-3, NPPBH and NPPBV", &NeedlessZero},
};
// clang-format on

}  // namespace

RuleList ImageRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "isd/detail/rules/FileView.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// What the four levels below 09 hold at most: 03, 05, 06, 07.
using Limits = std::array<std::uint64_t, 4>;

constexpr std::array<std::uint64_t, 5> LEVELS{3, 5, 6, 7, 9};
constexpr std::uint64_t NO_LIMIT = std::numeric_limits<std::uint64_t>::max();
constexpr Limits ANY{NO_LIMIT, NO_LIMIT, NO_LIMIT, NO_LIMIT};

using Measure = std::uint64_t (*)(const FileView&);

/// Something that a file has much or little of. Sources differ in some limits: `surely` is exceeded by their reading
/// that allows most, `perhaps` by the one that allows least.
struct Criterion
{
    const char* what;
    Measure measure;
    Limits surely;
    Limits perhaps;
};

/// The largest answer of all images.
template<typename Ask>
std::uint64_t Largest(const FileView& aFile, Ask aAsk)
{
    std::uint64_t largest = 0;
    aFile.ForEach(Subject::Image, [&](const HeaderView& aImage) { largest = std::max(largest, aAsk(aImage)); });
    return largest;
}

std::uint64_t FileLength(const FileView& aFile)
{
    // All nines stand for a length that is not known.
    return aFile.Header().Text("FL") == NITFCnst::STR_VAL_999999999999 ? 0 : aFile.Parts().header->GetFileLength();
}

std::uint64_t Extent(const FileView& aFile)
{
    return Largest(aFile, [](const HeaderView& aImage) {
        long row = 0;
        long column = 0;
        static_cast<void>(aImage.Segment().GetCCSColumnAndRow(column, row));
        return std::max(aImage.Image().rows + static_cast<std::uint64_t>(std::max(row, 0L)),
                        aImage.Image().columns + static_cast<std::uint64_t>(std::max(column, 0L)));
    });
}

std::uint64_t ImageSize(const FileView& aFile)
{
    return Largest(aFile,
                   [](const HeaderView& aImage) { return std::max(aImage.Image().rows, aImage.Image().columns); });
}

std::uint64_t BlockSize(const FileView& aFile)
{
    return Largest(aFile, [](const HeaderView& aImage) {
        const ImageFacts& image = aImage.Image();
        const bool isWhole = image.blockColumns == 0 || image.blockRows == 0;
        return isWhole ? NO_LIMIT : std::max(image.blockColumns, image.blockRows);
    });
}

std::uint64_t MultiBands(const FileView& aFile)
{
    return Largest(aFile, [](const HeaderView& aImage) {
        return IsListed(aImage.Image().representation, "MULTI|NODISPLY") ? aImage.Image().bands : 0;
    });
}

std::uint64_t ColourBits(const FileView& aFile)
{
    return Largest(aFile, [](const HeaderView& aImage) {
        return aImage.Image().representation == "RGB" ? aImage.Image().bits : 0;
    });
}

std::uint64_t Jpeg2000Bits(const FileView& aFile)
{
    return Largest(aFile,
                   [](const HeaderView& aImage) { return aImage.Image().IsJpeg2000() ? aImage.Image().bits : 0; });
}

std::uint64_t AllBands(const FileView& aFile)
{
    std::uint64_t sum = 0;
    aFile.ForEach(Subject::Image, [&](const HeaderView& aImage) { sum += aImage.Image().bands; });
    return sum;
}

template<NITFCnst::DataSegmentType KIND>
std::uint64_t Count(const FileView& aFile)
{
    return aFile.Parts().Count(KIND);
}

std::uint64_t GraphicBytes(const FileView& aFile)
{
    std::uint64_t sum = 0;
    aFile.ForEach(Subject::Graphic, [&](const HeaderView& aGraphic) { sum += aGraphic.DataSize(); });
    return sum;
}

// clang-format off
constexpr Criterion CRITERIA[] = {
    //  what                               measure        03         05          06          07            and by those who allow least
    {"the length of the file",             &FileLength,   {52428799, 1073741833, 2147483647, 10737418330}, {52428799, 1073741823, 2147483647, 10737418239}},
    {"the extent of the images",           &Extent,       {2048, 8192, 65536, 99999999 + 1},               {2047, 8191, 65535, 99999999}},
    {"the rows or columns of an image",    &ImageSize,    {2048, 8192, 65536, 99999999},                   {2048, 8192, 65536, 99999999}},
    {"the size of blocks, 0000 included",  &BlockSize,    {2048, 8192, 8192, 8192},                        {2048, 8192, 8192, 8192}},
    {"the bands of an image",              &MultiBands,   {9, 255, 999, 999},                              {9, 9, 255, 999}},
    {"the bits of colours",                &ColourBits,   ANY,                                             {8, 8, 32, 32}},
    {"the bits of JPEG 2000",              &Jpeg2000Bits, {32, 32, 32, 32},                                {32, 32, 32, 32}},
    {"the number of images",               &Count<NITFCnst::DATA_SEGMENT_TYPE_IMAGE>, {20, 100, 100, 100}, {20, 20, 100, 100}},
    {"the bytes of all graphics",          &GraphicBytes, {1048576, 2097152, 2097152, 2097152},            {1000000, 2000000, 2000000, 2000000}},
    {"the number of DESs",                 &Count<NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION>, {10, 50, 100, 100}, {10, 10, 50, 100}},
    {"the bands of all images",            &AllBands,     ANY,                                             {999, 999, 999, 999}},
    {"the number of graphics",             &Count<NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC>, ANY,               {100, 100, 100, 100}},
    {"the number of texts",                &Count<NITFCnst::DATA_SEGMENT_TYPE_TEXT>, ANY,                  {32, 32, 32, 32}},
    {"a reserved extension segment",       &Count<NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION>, ANY,    {0, 0, 0, 0}},
};
// clang-format on

/// The lowest level whose limit a number keeps.
std::uint64_t LevelFor(std::uint64_t aNumber, const Limits& aLimits) noexcept
{
    const auto at = static_cast<std::size_t>(
        std::ranges::find_if(aLimits, [aNumber](std::uint64_t aMost) { return aNumber <= aMost; }) - aLimits.begin());
    return LEVELS[at];
}

/// The level of the file; false for one that these criteria do not speak of.
bool LevelOf(const FileView& aFile, std::uint64_t& aLevel) noexcept
{
    return aFile.Header().Number("CLEVEL", aLevel) && std::ranges::find(LEVELS, aLevel) != LEVELS.end();
}

std::string Written(std::uint64_t aLevel)
{
    return '0' + std::to_string(aLevel);
}

void TooLow(const FileView& aFile, const Report& aReport)
{
    std::uint64_t level = 0;
    if (!LevelOf(aFile, level)) {
        return;
    }
    std::uint64_t needed = 0;
    const Criterion* by = nullptr;
    for (const Criterion& criterion : CRITERIA) {
        const std::uint64_t one = LevelFor(criterion.measure(aFile), criterion.surely);
        by = one > needed ? &criterion : by;
        needed = std::max(needed, one);
    }
    if (needed > level) {
        const std::uint64_t measured = by->measure(aFile);
        aReport(aFile.Header(), {.field = "CLEVEL",
                                 .allowed = Written(needed) + " or above",
                                 .detail = std::string("It is ") + by->what + " that needs it" +
                                           (measured == NO_LIMIT ? "." : ", " + std::to_string(measured) + '.')});
    }
}

void TooHigh(const FileView& aFile, const Report& aReport)
{
    std::uint64_t level = 0;
    if (!LevelOf(aFile, level)) {
        return;
    }
    std::uint64_t needed = 0;
    for (const Criterion& criterion : CRITERIA) {
        needed = std::max(needed, LevelFor(criterion.measure(aFile), criterion.perhaps));
    }
    if (needed < level) {
        aReport(aFile.Header(), {.field = "CLEVEL", .allowed = Written(needed)});
    }
}

// clang-format off
constexpr Rule RULES[] = {
    Rule{"FH-05", WARN, V21, Subject::File, "CLEVEL",
     "The file is more complex than its level says.",
     "CLEVEL is not below the highest level that anything in the file needs: lengths, extent, sizes of images and blocks, bands, numbers of segments. Only limits on which all sources agree count. A receiver of the level may refuse the file.",
     "MIL-STD-2500C table A-10"}.ByFile(&TooLow),
    Rule{"FH-06", WARN, V21, Subject::File, "CLEVEL",
     "The file is less complex than its level says.",
     "CLEVEL is the lowest level for which the file qualifies. Limits on which sources differ count as the strictest has them.",
     "JBP-2024.1 section 5.20"}.ByFile(&TooHigh),
};
// clang-format on

}  // namespace

RuleList ComplexityRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail

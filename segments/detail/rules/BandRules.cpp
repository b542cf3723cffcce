#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/rules/HeaderView.h"

#include <algorithm>
#include <array>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

/// The bands that a representation has.
struct BandsOf
{
    std::string_view representation;
    std::uint64_t count;
    std::array<std::string_view, 3> marks;  ///< each stands once; empty for any
};

constexpr BandsOf BANDS[] = {
    {"MONO", 1, {}}, {"RGB/LUT", 1, {}}, {"RGB", 3, {"R", "G", "B"}}, {"YCbCr601", 3, {"Y", "Cb", "Cr"}}};

const BandsOf* FindBands(std::string_view aRepresentation) noexcept
{
    const auto* const row = std::ranges::find(BANDS, aRepresentation, &BandsOf::representation);
    return row == std::end(BANDS) ? nullptr : row;
}

std::string RepresentationIs(const HeaderView& aHeader)
{
    return "IREP is " + Shown(aHeader.Image().representation);
}

std::string_view CountField(const HeaderView& aHeader) noexcept
{
    return aHeader.Has("XBANDS") ? "XBANDS" : "NBANDS";
}

void Count(const HeaderView& aHeader, const Report& aReport)
{
    const BandsOf* const wanted = FindBands(aHeader.Image().representation);
    if (wanted != nullptr && wanted->count != aHeader.Image().bands) {
        aReport(aHeader, {.field = CountField(aHeader),
                          .allowed = std::to_string(wanted->count),
                          .detail = RepresentationIs(aHeader)});
    }
}

void CountOfMulti(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (image.representation == "MULTI" && image.bands == 1 && !image.IsJpeg2000()) {
        aReport(aHeader, {.field = "NBANDS", .allowed = "2 or more", .detail = RepresentationIs(aHeader)});
    }
}

/// The first band whose mark is none of those that its image has, or stands a second time.
void Marks(const HeaderView& aHeader, std::string_view aRepresentation, const Report& aReport)
{
    const BandsOf* const wanted = FindBands(aRepresentation);
    if (aHeader.Image().representation != aRepresentation || aHeader.Image().bands != wanted->count) {
        return;  // another number of bands has a rule of its own
    }
    std::array<bool, 3> seen{};
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        const auto at = static_cast<std::size_t>(std::ranges::find(wanted->marks, aBand.mark) - wanted->marks.begin());
        if (at == seen.size() || seen[at]) {
            aReport(aHeader, {.field = NumberedName("IREPBAND", aBand.number),
                              .allowed = std::string(wanted->marks[0]) + ", " + std::string(wanted->marks[1]) +
                                         " and " + std::string(wanted->marks[2]) + ", each once"});
            return false;
        }
        seen[at] = true;
        return true;
    });
}

void RgbMarks(const HeaderView& aHeader, const Report& aReport)
{
    Marks(aHeader, "RGB", aReport);
}

void YCbCrMarks(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    Marks(aHeader, "YCbCr601", aReport);
    if (image.representation == "YCbCr601" && !image.Is('3') && !image.Is('8')) {
        aReport(aHeader, {.field = "IC", .allowed = "C3 | M3 | C8 | M8", .detail = RepresentationIs(aHeader)});
    }
}

bool IsOfTables(const HeaderView& aHeader) noexcept
{
    return aHeader.Image().representation == "RGB/LUT";
}

void TablesOfColours(const HeaderView& aHeader, const Report& aReport)
{
    if (!IsOfTables(aHeader) || aHeader.Image().bands != 1) {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        if (aBand.tables != 3) {
            aReport(aHeader, {.field = "NLUTS_1", .allowed = "3", .detail = RepresentationIs(aHeader)});
        } else if (aBand.mark != "LU") {
            aReport(aHeader,
                    {.field = "IREPBAND_1", .allowed = "LU", .detail = RepresentationIs(aHeader), .isMild = true});
        }
        return false;
    });
}

void WidthOfIndices(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (IsOfTables(aHeader) && image.IsUncompressed() && image.bits != 1 && image.bits != 8) {
        aReport(aHeader, {.field = "NBPP", .allowed = "01 | 08", .detail = RepresentationIs(aHeader)});
    }
}

void MonoMark(const HeaderView& aHeader, const Report& aReport)
{
    if (aHeader.Image().representation != "MONO" || aHeader.Image().bands != 1) {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        if (!aBand.mark.empty() && aBand.mark != "M" && (aBand.mark != "LU" || aBand.tables == 0)) {
            aReport(
                aHeader,
                {.field = "IREPBAND_1", .allowed = "M | blank | LU with tables", .detail = RepresentationIs(aHeader)});
        }
        return false;
    });
}

void MultiMarks(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::array<std::string_view, 3> COLOURS{"R", "G", "B"};
    if (aHeader.Image().representation != "MULTI") {
        return;
    }
    std::array<bool, 3> seen{};
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        const auto at = static_cast<std::size_t>(std::ranges::find(COLOURS, aBand.mark) - COLOURS.begin());
        const bool isOther = aBand.mark.empty() || aBand.mark == "M" || aBand.mark == "LU";
        const bool isGood = at == seen.size() ? isOther : !seen[at];
        if (at != seen.size()) {
            seen[at] = true;
        }
        if (!isGood) {
            aReport(aHeader, {.field = NumberedName("IREPBAND", aBand.number),
                              .allowed = "R, G and B at most once each, M, LU or blank"});
        }
        return isGood;
    });
}

void TablesNeedIndices(const HeaderView& aHeader, const Report& aReport)
{
    const std::string_view type = aHeader.Image().pixelType;
    if (type == "INT" || type == "B") {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        if (aBand.tables != 0) {
            aReport(
                aHeader,
                {.field = NumberedName("NLUTS", aBand.number), .allowed = "0", .detail = "PVTYPE is " + Shown(type)});
        }
        return aBand.tables == 0;
    });
}

void NumberOfTables(const HeaderView& aHeader, const Report& aReport)
{
    if (IsOfTables(aHeader)) {
        return;  // a rule of its own
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        const bool isGood = aBand.mark == "LU" ? aBand.tables == 3 : aBand.tables < 4;
        if (!isGood) {
            aReport(aHeader, {.field = NumberedName("NLUTS", aBand.number),
                              .allowed = aBand.mark == "LU" ? "3 for a band LU" : "0 to 3"});
        }
        return isGood;
    });
}

void MarkOfTables(const HeaderView& aHeader, const Report& aReport)
{
    if (IsOfTables(aHeader)) {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        const bool isGood = aBand.tables != 3 || aBand.mark == "LU";
        if (!isGood) {
            aReport(aHeader, {.field = NumberedName("IREPBAND", aBand.number), .allowed = "LU with three tables"});
        }
        return isGood;
    });
}

void EntriesOfTables(const HeaderView& aHeader, const Report& aReport)
{
    const std::uint64_t bits = aHeader.Image().bits;
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        const bool isGood = bits >= 17 || aBand.entries <= std::uint64_t{1} << bits;
        if (!isGood) {
            aReport(aHeader, {.field = NumberedName("NELUT", aBand.number),
                              .allowed = "at most " + std::to_string(std::uint64_t{1} << bits),
                              .detail = "NBPP is " + std::to_string(bits)});
        }
        return isGood;
    });
}

/// The bands of an image whose categories come in pairs: one of the pairs stands in this order, or both are blank.
void Pairs(const HeaderView& aHeader, std::span<const std::array<std::string_view, 2>> aPairs, const char* aAllowed,
           const Report& aReport)
{
    std::array<std::string_view, 2> found;
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        found[aBand.number - 1] = aBand.category;
        return aBand.number != 2;
    });
    if (std::ranges::find(aPairs, found) == aPairs.end()) {
        const bool first = std::ranges::none_of(aPairs, [&](const auto& aPair) { return aPair[0] == found[0]; });
        aReport(aHeader, {.field = first ? "ISUBCAT_1" : "ISUBCAT_2", .allowed = aAllowed});
    }
}

void RadarPairs(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::array<std::string_view, 2> PAIRS[] = {{"I", "Q"}, {"M", "P"}, {"", ""}};
    if (IsListed(aHeader.Image().category, "SAR|SARIQ") && aHeader.Image().bands == 2) {
        Pairs(aHeader, PAIRS, "I and Q, or M and P, or blank", aReport);
    }
}

void Wavelengths(const HeaderView& aHeader, const Report& aReport)
{
    if (!IsListed(aHeader.Image().category, "MS|HS|IR")) {
        return;
    }
    aHeader.ForEachBand([&](const BandFacts& aBand) {
        double number = 0.0;
        const bool isGood = aBand.category.empty() || ToRealNumber(aBand.category, number);
        if (!isGood) {
            aReport(aHeader,
                    {.field = NumberedName("ISUBCAT", aBand.number), .allowed = "a wavelength in nanometres or blank"});
        }
        return isGood;
    });
}

void Undisplayed(const HeaderView& aHeader, const Report& aReport)
{
    const ImageFacts& image = aHeader.Image();
    if (IsListed(image.category, "DTEM|LOCG|MATR|BARO|CURRENT|DEPTH|WIND") && image.representation != "NODISPLY") {
        aReport(aHeader, {.field = "IREP", .allowed = "NODISPLY", .detail = "ICAT is " + Shown(image.category)});
    }
}

void GridBands(const HeaderView& aHeader, const Report& aReport)
{
    constexpr std::array<std::string_view, 2> PAIRS[] = {{"CGX", "CGY"}, {"GGX", "GGY"}};
    const ImageFacts& image = aHeader.Image();
    if (image.category == "LOCG" && image.bands != 2) {
        aReport(aHeader, {.field = CountField(aHeader), .allowed = "2 for a location grid"});
    } else if (image.category == "LOCG") {
        Pairs(aHeader, PAIRS, "CGX and CGY, or GGX and GGY", aReport);
    } else if (image.category == "CURRENT" || image.category == "WIND") {
        aHeader.ForEachBand([&](const BandFacts& aBand) {
            const bool isGood = aBand.category == "SPEED" || aBand.category == "DIRECT";
            if (!isGood) {
                aReport(aHeader, {.field = NumberedName("ISUBCAT", aBand.number), .allowed = "SPEED | DIRECT"});
            }
            return isGood;
        });
    }
}

// clang-format off
constexpr Rule RULES[] = {
    {"BD-01", ERROR, ALL, Subject::Image, "IREP, band count",
     "The representation has another number of bands.",
     "MONO and RGB/LUT have one band, RGB and YCbCr601 have three.",
     "MIL-STD-2500C table A-2", &Count},
    {"BD-02", WARN, ALL, Subject::Image, "IREP MULTI, band count",
     "An image of several bands has one.",
     "MULTI has at least two bands. Conformance samples of JPEG 2000 have one, which is accepted there.",
     "MIL-STD-2500C table A-2", &CountOfMulti},
    {"BD-03", ERROR, V21, Subject::Field, "NBANDS, XBANDS",
     "XBANDS stands for fewer bands than NBANDS could say.",
     "XBANDS stands when NBANDS is 0, and is 10 or more.",
     "MIL-STD-2500C table A-3, XBANDS"},
    {"BD-04", ERROR, ALL, Subject::Image, "IREP RGB, IREPBAND",
     "The bands of an RGB image are not marked as its colours.",
     "An RGB image marks its bands R, G and B, each once.",
     "MIL-STD-2500C table A-3, IREPBAND", &RgbMarks},
    {"BD-05", WARN, ALL, Subject::Image, "IREP YCbCr601, IREPBAND, IC",
     "The bands of a YCbCr601 image are not marked, or it is not compressed as such images are.",
     "The bands are marked Y, Cb and Cr, each once and in any order, and the compression is C3, M3, C8 or M8.",
     "MIL-STD-2500C tables A-2 and A-3", &YCbCrMarks},
    {"BD-06", ERROR, ALL, Subject::Image, "IREP RGB/LUT, IREPBAND, NLUTS",
     "An image of colour tables lacks its three tables or their mark.",
     "RGB/LUT images have three tables on their one band, marked LU. A missing mark is warned of only: raster product frames leave it blank.",
     "MIL-STD-2500C tables A-2 and A-3", &TablesOfColours},
    {"BD-07", WARN, ALL, Subject::Image, "IREP RGB/LUT, NBPP",
     "Indices of colour tables have an unusual width.",
     "Without compression the pixels of an RGB/LUT image have 1 or 8 bits.",
     "MIL-STD-2500C table A-10", &WidthOfIndices},
    {"BD-08", WARN, ALL, Subject::Image, "IREP MONO, IREPBAND",
     "The band of a monochrome image is marked as something else.",
     "It is marked M or left blank, or LU when it has tables.",
     "MIL-STD-2500C table A-3, IREPBAND", &MonoMark},
    {"BD-09", WARN, ALL, Subject::Image, "IREP MULTI, IREPBAND",
     "The bands to be displayed first are not told apart.",
     "A MULTI image marks at most one band each R, G and B; the others are blank, M, or LU with three tables.",
     "MIL-STD-2500C table A-3, IREPBAND", &MultiMarks},
    {"BD-10", ERROR, ALL, Subject::Image, "NLUTS, PVTYPE",
     "Pixels that are no indices have look-up tables.",
     "Tables stand with PVTYPE INT or B only.",
     "MIL-STD-2500C table A-3, NLUTS", &TablesNeedIndices},
    {"BD-11", ERROR, ALL, Subject::Image, "IREPBAND LU, NLUTS",
     "A band has a number of look-up tables that means nothing.",
     "A band LU has three tables: red, green, blue. A monochrome one has one, or two for the high and the low byte; four are reserved.",
     "MIL-STD-2500C table A-3, NLUTS", &NumberOfTables},
    {"BD-12", WARN, ALL, Subject::Image, "NLUTS 3, IREPBAND",
     "A band with three look-up tables is not marked LU.",
     "Three tables are those of a colour image.",
     "MIL-STD-2500C table A-3, IREPBAND", &MarkOfTables},
    {"BD-13", WARN, ALL, Subject::Image, "NELUT, NBPP",
     "A look-up table has more entries than pixels can say.",
     "NELUT is not larger than 2 to the power NBPP. Shorter tables are common.",
     "MIL-STD-2500C table A-3, NELUT", &EntriesOfTables},
    {"BD-14", WARN, ALL, Subject::Image, "ICAT SAR or SARIQ, ISUBCAT",
     "The two bands of a radar image are not paired.",
     "They are marked I and Q, or M and P, in this order, or left blank.",
     "MIL-STD-2500C table A-3, ISUBCAT", &RadarPairs},
    {"BD-16", WARN, ALL, Subject::Image, "ICAT MS, HS, IR and ISUBCAT",
     "The category of a spectral band is not a wavelength.",
     "ISUBCAT is a wavelength in nanometres or blank.",
     "MIL-STD-2500C table A-3, ISUBCAT", &Wavelengths},
    {"BD-17", WARN, ALL, Subject::Image, "ICAT DTEM, LOCG, MATR, BARO, CURRENT, DEPTH, WIND and IREP",
     "Data of a grid or matrix are to be displayed.",
     "Their IREP is NODISPLY.",
     "MIL-STD-2500C table A-2", &Undisplayed},
    {"BD-18", WARN, ALL, Subject::Image, "ICAT LOCG, CURRENT, WIND, bands, ISUBCAT",
     "The bands of a grid are not told apart.",
     "A location grid has two bands, CGX and CGY (map) or GGX and GGY (geographic); bands of CURRENT and WIND are SPEED or DIRECT.",
     "MIL-STD-2500C table A-3, ISUBCAT", &GridBands},
};
// clang-format on

}  // namespace

RuleList BandRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail

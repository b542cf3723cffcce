#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/rules/HeaderView.h"
#include "segments/image/detail/CornerText.h"
#include "segments/image/detail/UtmGrid.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

constexpr std::size_t CORNER_WIDTH = 15;
constexpr std::size_t LATITUDE_WIDTH = 7;
constexpr std::size_t CORNERS = 4;

/// What a corner looks like, by ICORDS.
struct CornerForm
{
    char icords;
    const char* form;
};

constexpr CornerForm FORMS[] = {{'G', "ddmmssXdddmmssY"}, {'C', "ddmmssXdddmmssY"}, {'D', "+dd.ddd+ddd.ddd"},
                                {'N', "zzeeeeeennnnnnn"}, {'S', "zzeeeeeennnnnnn"}, {'U', "zzBJKeeeeennnnn"}};

const CornerForm* FormOf(const HeaderView& aHeader) noexcept
{
    const std::string_view icords = aHeader.Text("ICORDS");
    const auto* const form = std::ranges::find(FORMS, icords.empty() ? '\0' : icords[0], &CornerForm::icords);
    return form == std::end(FORMS) ? nullptr : form;
}

bool ReadCorner(char aIcords, std::string_view aText, GroundPoint& aOut)
{
    UtmPoint grid;
    switch (aIcords) {
        case 'D':
            return ParseDecimalDegrees(aText.substr(0, LATITUDE_WIDTH), aText.substr(LATITUDE_WIDTH), aOut);
        case 'N':
        case 'S':
        case 'U':
            if (aIcords == 'U' ? !ParseMgrs(aText, grid) : !ParseUtm(aText, aIcords == 'N', grid)) {
                return false;
            }
            aOut = ToGeographic(grid);
            return true;
        default:
            // Who draws the image takes 60 minutes for a degree; the standard does not.
            return PictureMatches("ddmmssX", aText.substr(0, LATITUDE_WIDTH)) &&
                   PictureMatches("dddmmssY", aText.substr(LATITUDE_WIDTH)) &&
                   ParseDegreesMinutesSeconds(aText.substr(0, LATITUDE_WIDTH), aText.substr(LATITUDE_WIDTH), aOut);
    }
}

/// All four corners; false when there are none or one of them is no place.
bool ReadCorners(const HeaderView& aHeader, GroundCorners& aOut)
{
    const CornerForm* const form = FormOf(aHeader);
    const std::string_view igeolo = aHeader.Inside().record.Text("IGEOLO");
    if (form == nullptr || igeolo.size() != CORNERS * CORNER_WIDTH) {
        return false;
    }
    for (std::size_t i = 0; i != CORNERS; ++i) {
        if (!ReadCorner(form->icords, igeolo.substr(i * CORNER_WIDTH, CORNER_WIDTH), aOut[i])) {
            return false;
        }
    }
    // One side of the date line: the outline is small against the globe.
    for (GroundPoint& corner : aOut) {
        corner.longitude = aOut[0].longitude + WrappedLongitude(corner.longitude - aOut[0].longitude);
    }
    return true;
}

void Form(const HeaderView& aHeader, const Report& aReport)
{
    const CornerForm* const form = FormOf(aHeader);
    const std::string_view igeolo = aHeader.Inside().record.Text("IGEOLO");
    if (form == nullptr || TrimBlanks(igeolo).empty() || igeolo.size() != CORNERS * CORNER_WIDTH) {
        return;
    }
    for (std::size_t i = 0; i != CORNERS; ++i) {
        GroundPoint point;
        const std::string_view corner = igeolo.substr(i * CORNER_WIDTH, CORNER_WIDTH);
        if (!ReadCorner(form->icords, corner, point)) {
            aReport(aHeader, {.field = "IGEOLO",
                              .allowed = std::string(form->form) + " with ICORDS " + form->icords,
                              .detail = "Corner " + std::to_string(i + 1) + " is no such place.",
                              .value = std::string(corner)});
            return;
        }
    }
}

/// Twice the area to the left of a way from one corner over another to a third.
double Turn(const GroundPoint& aFirst, const GroundPoint& aSecond, const GroundPoint& aThird) noexcept
{
    return (aSecond.longitude - aFirst.longitude) * (aThird.latitude - aFirst.latitude) -
           (aSecond.latitude - aFirst.latitude) * (aThird.longitude - aFirst.longitude);
}

bool Cross(const GroundPoint& aFirst, const GroundPoint& aSecond, const GroundPoint& aThird,
           const GroundPoint& aFourth) noexcept
{
    return Turn(aFirst, aSecond, aThird) * Turn(aFirst, aSecond, aFourth) < 0 &&
           Turn(aThird, aFourth, aFirst) * Turn(aThird, aFourth, aSecond) < 0;
}

/// Why four corners are no outline; null when they are one.
const char* OutlineFault(const GroundCorners& aCorners) noexcept
{
    for (std::size_t i = 0; i != CORNERS; ++i) {
        for (std::size_t j = i + 1; j != CORNERS; ++j) {
            if (aCorners[i] == aCorners[j]) {
                return "Two corners are the same place.";
            }
        }
    }
    if (Turn(aCorners[0], aCorners[1], aCorners[2]) == 0 && Turn(aCorners[0], aCorners[1], aCorners[3]) == 0) {
        return "The corners lie on one line.";
    }
    return Cross(aCorners[0], aCorners[1], aCorners[2], aCorners[3]) ||
                   Cross(aCorners[1], aCorners[2], aCorners[3], aCorners[0])
               ? "The outline crosses itself."
               : nullptr;
}

void Outline(const HeaderView& aHeader, const Report& aReport)
{
    GroundCorners corners;
    if (!ReadCorners(aHeader, corners)) {
        return;
    }
    if (const char* const fault = OutlineFault(corners); fault != nullptr) {
        aReport(aHeader, {.field = "IGEOLO", .detail = fault});
    }
}

void Direction(const HeaderView& aHeader, const Report& aReport)
{
    constexpr double HIGHEST = 89.0;  // around a pole the map turns back on itself
    GroundCorners corners;
    if (!ReadCorners(aHeader, corners) || OutlineFault(corners) != nullptr ||
        std::ranges::any_of(corners, [](const GroundPoint& aOne) { return std::abs(aOne.latitude) > HIGHEST; })) {
        return;
    }
    const double area = Turn(corners[0], corners[1], corners[2]) + Turn(corners[0], corners[2], corners[3]);
    if (area > 0) {
        aReport(aHeader,
                {.field = "IGEOLO",
                 .detail = "They run counter-clockwise: the image is mirrored or its corners are in another order."});
    }
}

void Block(const HeaderView& aHeader, const Report& aReport)
{
    // In the order of IGEOLO.
    constexpr const char* FIELDS[] = {"FRFC_LOC", "FRLC_LOC", "LRLC_LOC", "LRFC_LOC"};
    const TRE* const tre = aHeader.FindTre("BLOCKA");
    const CornerForm* const form = FormOf(aHeader);
    GroundCorners corners;
    unsigned long lines = 0;
    if (tre == nullptr || !tre->GetFieldAsUnsignedLong("L_LINES", lines) || lines != aHeader.Image().rows ||
        (form != nullptr && form->icords != 'G' && form->icords != 'D') || !ReadCorners(aHeader, corners)) {
        return;
    }
    // What IGEOLO rounds to, and a little for the rounding of both.
    const double resolution = form->icords == 'D' ? 0.0011 : 1.1 / 3600;
    for (std::size_t i = 0; i != CORNERS; ++i) {
        GroundPoint point;
        const std::string_view text = ViewOf(tre->GetTREField(FIELDS[i]));
        if (!ParseBlockSeconds(text, point) && !ParseBlockDecimal(text, point)) {
            continue;
        }
        if (std::abs(point.latitude - corners[i].latitude) > resolution ||
            std::abs(WrappedLongitude(point.longitude - corners[i].longitude)) > resolution) {
            aReport(aHeader,
                    {.field = FIELDS[i],
                     .allowed = "corner " + std::to_string(i + 1) + " of IGEOLO, " +
                                Shown(aHeader.Inside().record.Text("IGEOLO").substr(i * CORNER_WIDTH, CORNER_WIDTH)),
                     .tre = tre});
            return;
        }
    }
}

/// A whole or decimal number, or a slash with a divisor from 2 to 999.
void Magnification(const HeaderView& aHeader, const Report& aReport)
{
    const std::string_view text = aHeader.Text("IMAG");
    double number = 0.0;
    std::uint64_t divisor = 0;
    const bool isDivided = !text.empty() && text[0] == '/';
    const bool isGood =
        isDivided ? ToCount(text.substr(1), divisor) && divisor >= 2 && divisor <= 999
                  : ToRealNumber(text, number) && number > 0 && text.find_first_of("eE+") == std::string_view::npos;
    if (!isGood && !text.empty()) {
        aReport(aHeader, {.field = "IMAG", .allowed = "a decimal number | /2../999"});
    }
}

// clang-format off
constexpr Rule RULES[] = {
    {"GE-01", ERROR, ALL, Subject::Field, "ICORDS, IGEOLO",
     "The corners of an image are promised and not given.",
     "IGEOLO stands in the file, and is filled, as soon as ICORDS says in which form; without it ICORDS is blank, or N in NITF 2.0.",
     "MIL-STD-2500C and MIL-STD-2500A table A-3, ICORDS"},
    {"GE-02", WARN, ALL, Subject::Image, "ICORDS, IGEOLO",
     "A corner of the image is not a place in the form of ICORDS.",
     "G: ddmmssX dddmmssY with minutes and seconds below 60; D: decimal degrees with sign; N and S: zone, easting in 6 and northing in 7 digits; U: zone, band, square, easting and northing in 5 digits each; C in NITF 2.0 as G.",
     "MIL-STD-2500C table A-3, IGEOLO", &Form},
    {"GE-03", WARN, ALL, Subject::Image, "IGEOLO",
     "The corners of the image enclose no area.",
     "Four different places, not on one line, whose outline does not cross itself.",
     "MIL-STD-2500C table A-3, IGEOLO", &Outline},
    {"GE-04", WARN, ALL, Subject::Image, "IGEOLO",
     "The corners of the image do not run clockwise.",
     "First row first column, first row last column, last row last column, last row first column run clockwise on the map.",
     "MIL-STD-2500C table A-3, IGEOLO", &Direction},
    {"GE-05", WARN, ALL, Subject::Image, "BLOCKA corners, IGEOLO",
     "The corners in BLOCKA are not those of the image.",
     "Where BLOCKA covers the whole image its corners agree with IGEOLO within what that can say.",
     "STDI-0002 Volume 1 Appendix E", &Block},
    {"DL-06", WARN, ALL, Subject::Image, "IMAG",
     "The magnification is neither a decimal number nor a fraction /n.",
     "IMAG is a decimal number, or /n for the n-th part, n from 2 to 999.",
     "MIL-STD-2500C table A-3, IMAG", &Magnification},
};
// clang-format on

}  // namespace

RuleList GeoRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail

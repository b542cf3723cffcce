#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreEXOPTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag            width  need           form     values            unit     label
    Field("ANGLE_TO_NORTH",  3, RequiredBlank, Integer, "000..359",       "deg",   "Angle to True North",
          "Clockwise angle from the first row of pixels, taken from first to last column, to true "
          "north.").Alias("ANGLETONORTH"),
    Field("MEAN_GSD",        5, RequiredBlank, Real,    "000.0..999.9",   "in",    "Mean Ground Sample Distance",
          "Geometric mean of the sample distances across and along the scan; 000.0 when the value does not "
          "fit.").Alias("MEANGSD"),
    Field("RESERVED-001",    1, RequiredBlank, Text,    "",               "",      "Reserved 1",
          "Reserved by the standard; the digit 1.").Alias("RESERVED_001"),
    Field("DYNAMIC_RANGE",   5, RequiredBlank, Integer, "00000..65535",   "",      "Dynamic Range",
          "Dynamic range of the image pixels."),
    Field("RESERVED-002",    7, RequiredBlank, Text,    "",               "",      "Reserved 2",
          "Reserved by the standard; seven spaces.").Alias("RESERVED_002"),
    Field("OBL_ANG",         5, RequiredBlank, Real,    "00.00..90.00",   "deg",   "Obliquity Angle",
          "Angle between the local horizontal and the optical axis of the image."),
    Field("ROLL_ANG",        6, RequiredBlank, Real,    "-90.00..+90.00", "deg",   "Roll Angle",
          "Roll angle of the platform body."),
    Field("PRIME_ID",       12, RequiredBlank, Text,    "",               "",      "Primary Target ID",
          "Identifier of the main target of the image."),
    Field("PRIME_BE",       15, RequiredBlank, Text,    "",               "",      "Primary Target BE",
          "Basic Encyclopedia number and suffix of the main target."),
    Field("RESERVED-003",    5, RequiredBlank, Text,    "",               "",      "Reserved 3",
          "Reserved by the standard; five spaces.").Alias("RESERVED_003"),
    Field("N_SEC",           3, Required,      Integer, "000..250",       "",      "Number of Secondary Targets in Image",
          "How many secondary targets the image has, which is the number of SECTGA extensions that follow."),
    Field("RESERVED-004",    2, RequiredBlank, Text,    "",               "",      "Reserved 4",
          "Reserved by the standard; two spaces.").Alias("RESERVED_004"),
    Field("RESERVED-005",    7, RequiredBlank, Text,    "",               "",      "Reserved 5",
          "Reserved by the standard; the text 0000001.").Alias("RESERVED_005"),
    Field("N_SEG",           3, Required,      Integer, "001..999",       "",      "Number of Segments",
          "Number of separate image pieces in the imaging operation."),
    Field("MAX_LP_SEG",      6, RequiredBlank, Integer, "000001..199999", "lines", "Maximum Number of Lines Per Segment",
          "Largest number of lines in one piece, overlap lines included."),
    Field("RESERVED-006",   12, RequiredBlank, Text,    "",               "",      "Reserved 6",
          "Reserved by the standard; twelve spaces.").Alias("RESERVED_006"),
    Field("SUN_EL",          5, Required,      Real,    "-90.0..+90.0|999.9=not available", "deg", "Sun Elevation",
          "Height of the sun above the target plane at the time of the first image line."),
    Field("SUN_AZ",          5, Required,      Real,    "000.0..359.9|999.9=not available", "deg", "Sun Azimuth",
          "Clockwise direction of the sun from true north at the time of the first image line."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 107);

}  // namespace

const Detail::TreLayout& TreEXOPTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "EXOPTA",
        .name = "Exploitation Usability Optical Information",
        .length = 107,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Lets an analyst judge whether an optical image suits a task: orientation, resolution, viewing "
            "angle, sun position and targets.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); imaging-nitf TRE description file; NITRO plug-in table; "
            "Opticks TRE parser; OSSIM tag class; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "The unit of MEAN_GSD, inches, is recalled."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreUSE00A, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag            width  need           form     values                  unit     label
    Field("ANGLE_TO_NORTH",  3, Required,      Integer, "000..359",             "deg",   "Angle to North",
          "Clockwise angle from the first row of the image to true north."),
    Field("MEAN_GSD",        5, Required,      Real,    "000.0..999.9",         "in",    "Mean Ground Sample Distance",
          "Geometric mean of the sample distances along and across the scan, good to ten percent."),
    Field("RESERVED-001",    1, RequiredBlank, Text,    "",                     "",      "Reserved 1",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_001"),
    Field("DYNAMIC_RANGE",   5, RequiredBlank, Integer, "00000..99999|blank",   "",      "Dynamic Range",
          "Range of the pixel values in the image."),
    Field("RESERVED-002",    3, RequiredBlank, Text,    "",                     "",      "Reserved 2",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_002"),
    Field("RESERVED-003",    1, RequiredBlank, Text,    "",                     "",      "Reserved 3",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_003"),
    Field("RESERVED-004",    3, RequiredBlank, Text,    "",                     "",      "Reserved 4",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_004"),
    Field("OBL_ANG",         5, RequiredBlank, Real,    "00.00..90.00|blank",   "deg",   "Obliquity Angle",
          "Obliquity of the viewing direction."),
    Field("ROLL_ANG",        6, RequiredBlank, Real,    "-90.00..+90.00|blank", "deg",   "Roll Angle",
          "Roll angle of the platform."),
    Field("RESERVED-005",   12, RequiredBlank, Text,    "",                     "",      "Reserved 5",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_005"),
    Field("RESERVED-006",   15, RequiredBlank, Text,    "",                     "",      "Reserved 6",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_006"),
    Field("RESERVED-007",    4, RequiredBlank, Text,    "",                     "",      "Reserved 7",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_007"),
    Field("RESERVED-008",    1, RequiredBlank, Text,    "",                     "",      "Reserved 8",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_008"),
    Field("RESERVED-009",    3, RequiredBlank, Text,    "",                     "",      "Reserved 9",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_009"),
    Field("RESERVED-010",    1, RequiredBlank, Text,    "",                     "",      "Reserved 10",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_010"),
    Field("RESERVED-011",    1, RequiredBlank, Text,    "",                     "",      "Reserved 11",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_011"),
    Field("N_REF",           2, Required,      Integer, "00..99",               "",      "Number of Reference Lines",
          "How many reference lines accompany the image."),
    Field("REV_NUM",         5, Required,      Integer, "00001..99999",         "",      "Revolution Number",
          "Number of the orbit, counted at its northernmost point."),
    Field("N_SEG",           3, Required,      Integer, "001..999",             "",      "Number of Segments",
          "How many segments the image operation has."),
    Field("MAX_LP_SEG",      6, RequiredBlank, Integer, "000001..999999|blank", "lines", "Maximum Lines per Segment",
          "Largest number of lines in a segment, overlap included."),
    Field("RESERVED-012",    6, RequiredBlank, Text,    "",                     "",      "Reserved 12",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_012"),
    Field("RESERVED-013",    6, RequiredBlank, Text,    "",                     "",      "Reserved 13",
          "Reserved by the standard; filled with spaces.").Alias("RESERVED_013"),
    Field("SUN_EL",          5, Required,      Real,    "-90.0..+90.0|999.9=not available", "deg", "Sun Elevation",
          "Height of the sun above the target plane at the first image line."),
    Field("SUN_AZ",          5, Required,      Real,    "000.0..359.9|999.9=not available", "deg", "Sun Azimuth",
          "Clockwise direction of the sun from true north at the first image line."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 107);

}  // namespace

const Detail::TreLayout& TreUSE00A::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "USE00A",
        .name = "Exploitation Usability",
        .length = 107,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Lets a user judge whether an image suits a task: its direction, ground sample distance, viewing "
            "and sun angles, and segment facts for a catalogue.",
        .sources =
            "STDI-0002 version 4 page D-11; STDI-0002 Volume 1 Appendix D, Table D-2; GDAL TRE description "
            "file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; Opticks TRE "
            "parser; pynitf TRE definition; jbpy TRE definition; OSML imagery-io structure definition; two "
            "IKONOS image files (107 bytes each)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

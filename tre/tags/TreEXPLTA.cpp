#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreEXPLTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag            width  need           form     values          unit      label
    Field("ANGLE_TO_NORTH",  3, Required,      Integer, "000..359",     "deg",    "Angle to True North",
          "Clockwise angle from the first row of pixels to true north."),
    Field("SQUINT_ANGLE",    3, Required,      Integer, "-60..085",     "deg",    "Squint Angle",
          "Angle between the cross-track direction of the aircraft and the radar line of sight; the sign takes one of "
          "the three characters."),
    Field("MODE",            3, Required,      Text,    "any=registered mode, for example 1GP or 3SP", "", "Imaging Mode",
          "Code of the imaging mode and of the plane in which the image lies; it ends in SP for the slant plane or GP "
          "for the ground plane."),
    Field("RESERVED-001",   16, RequiredBlank, Text,    "",             "",       "Reserved 1",
          "Reserved by the standard; sixteen spaces.").Alias("RESERVED_001"),
    Field("GRAZE_ANG",       2, Required,      Integer, "00..90",       "deg",    "Grazing Angle",
          "Angle between the radar line of sight and the ground (focus) plane."),
    Field("SLOPE_ANG",       2, Required,      Integer, "00..90",       "deg",    "Slope Angle",
          "Angle between the slant plane and the ground (focus) plane."),
    Field("POLAR",           2, Required,      Text,    "HH|HV|VH|VV",  "",       "Polarization",
          "Transmit and receive polarization of the radar."),
    Field("NSAMP",           5, Required,      Integer, "00001..99999", "pixels", "Pixels per Line",
          "Number of pixels in each image line."),
    Field("RESERVED-002",    1, RequiredBlank, Text,    "",             "",       "Reserved 2",
          "Reserved by the standard; the digit 0.").Alias("RESERVED_002"),
    Field("SEQ_NUM",         1, RequiredBlank, Integer, "0..6",         "",       "Sequence Number",
          "Place of the image in a sequence of coordinated images."),
    Field("PRIME_ID",       12, RequiredBlank, Text,    "",             "",       "Primary Target ID",
          "Identifier of the main target of the image."),
    Field("PRIME_BE",       15, RequiredBlank, Text,    "",             "",       "Primary Target BE",
          "Basic Encyclopedia number and suffix of the main target."),
    Field("RESERVED-003",    1, RequiredBlank, Text,    "",             "",       "Reserved 3",
          "Reserved by the standard; the digit 0.").Alias("RESERVED_003"),
    Field("N_SEC",           2, RequiredBlank, Integer, "00..10",       "",       "Number of Secondary Targets",
          "How many secondary targets the image has."),
    Field("IPR",             2, RequiredBlank, Integer, "00..99",       "ft",     "Commanded Impulse Response",
          "Resolution that was commanded for the image."),
    Field("RESERVED-004",    2, RequiredBlank, Text,    "",             "",       "Reserved 4",
          "Reserved by the standard; the text 01.").Alias("RESERVED_004"),
    Field("RESERVED-005",    2, RequiredBlank, Text,    "",             "",       "Reserved 5",
          "Reserved by the standard; two spaces.").Alias("RESERVED_005"),
    Field("RESERVED-006",    5, RequiredBlank, Text,    "",             "",       "Reserved 6",
          "Reserved by the standard; the text 00000.").Alias("RESERVED_006"),
    Field("RESERVED-007",    8, RequiredBlank, Text,    "",             "",       "Reserved 7",
          "Reserved by the standard; eight spaces.").Alias("RESERVED_007"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 87);

}  // namespace

const Detail::TreLayout& TreEXPLTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "EXPLTA",
        .name = "Exploitation Related Information",
        .length = 87,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Lets an analyst judge whether a radar image suits a task: orientation, viewing angles, "
            "polarization and targets. Superseded by EXPLTB.",
        .sources = "STDI-0002 version 2.1; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

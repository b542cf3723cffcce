#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreEXPLTB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                 width  need           form     values              unit      label
    Field("ANGLE_TO_NORTH",       7, Required,      Real,    "000.000..359.999", "deg",    "Angle to True North",
          "Clockwise angle from the first row of pixels to true north."),
    Field("ANGLE_TO_NORTH_ACCY",  6, Required,      Real,    "00.000..44.999",   "deg",    "Angle to True North Accuracy",
          "Accuracy of the angle to north."),
    Field("SQUINT_ANGLE",         7, Required,      Real,    "-60.000..+85.000", "deg",    "Squint Angle",
          "Angle between the cross-track direction of the aircraft and the radar line of sight."),
    Field("SQUINT_ANGLE_ACCY",    6, Required,      Real,    "00.000..44.999",   "deg",    "Squint Angle Accuracy",
          "Accuracy of the squint angle."),
    Field("MODE",                 3, Required,      Text,    "any=registered mode, for example 1GP or 3SP", "", "Imaging Mode",
          "Code of the imaging mode and of the plane in which the image lies; it ends in SP for the slant plane or GP "
          "for the ground plane."),
    Field("RESERVED-001",        16, RequiredBlank, Text,    "",                 "",       "Reserved 1",
          "Reserved by the standard; sixteen spaces.").Alias("RESERVED_001"),
    Field("GRAZE_ANG",            5, Required,      Real,    "00.00..90.00",     "deg",    "Grazing Angle",
          "Angle between the radar line of sight and the ground (focus) plane."),
    Field("GRAZE_ANG_ACCY",       5, Required,      Real,    "00.00..90.00",     "deg",    "Grazing Angle Accuracy",
          "Accuracy of the grazing angle."),
    Field("SLOPE_ANG",            5, Required,      Real,    "00.00..90.00",     "deg",    "Slope Angle",
          "Angle between the slant plane and the ground (focus) plane."),
    Field("POLAR",                2, Required,      Text,    "HH|HV|VH|VV",      "",       "Polarization",
          "Transmit and receive polarization of the radar."),
    Field("NSAMP",                5, Required,      Integer, "00001..99999",     "pixels", "Pixels per Line",
          "Number of pixels in each image line."),
    Field("RESERVED-002",         1, RequiredBlank, Text,    "",                 "",       "Reserved 2",
          "Reserved by the standard; the digit 0.").Alias("RESERVED_002"),
    Field("SEQ_NUM",              1, RequiredBlank, Integer, "1..6",             "",       "Sequence Number",
          "Place of the image in a sequence of coordinated images; blank when it is not part of one."),
    Field("PRIME_ID",            12, RequiredBlank, Text,    "",                 "",       "Primary Target ID",
          "Identifier of the main target of the image."),
    Field("PRIME_BE",            15, RequiredBlank, Text,    "",                 "",       "Primary Target BE",
          "Basic Encyclopedia number and suffix of the main target."),
    Field("RESERVED-003",         1, RequiredBlank, Text,    "",                 "",       "Reserved 3",
          "Reserved by the standard; the digit 0.").Alias("RESERVED_003"),
    Field("N_SEC",                2, Required,      Integer, "00..99",           "",       "Number of Secondary Targets in Image",
          "How many secondary targets the image has, which is the number of SECTGA extensions that follow."),
    Field("IPR",                  2, Required,      Integer, "00..99",           "ft",     "Commanded Impulse Response",
          "Resolution that was commanded for the image."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 101);

}  // namespace

const Detail::TreLayout& TreEXPLTB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "EXPLTB",
        .name = "Exploitation Related Information",
        .length = 101,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Lets an analyst judge whether a radar image suits a task: orientation, viewing angles with their "
            "accuracies, polarization and targets.",
        .sources =
            "STDI-0002 version 2.1; STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; "
            "imaging-nitf TRE description file; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR "
            "Toolbox; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

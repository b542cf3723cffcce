#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMENSRB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto POSITION = "{ddmmss.ssssXdddmmss.ssssY}|{+dd.dddddddd+ddd.dddddddd}";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form      values              unit      label
    Field("ACFT_LOC",         25, Required,      Location, POSITION,           "",       "Aircraft Location",
          "Latitude and longitude of the aircraft at the centre of the aperture."),
    Field("ACFT_LOC_ACCY",     6, Required,      Real,     "000.00..999.99",   "ft",     "Aircraft Location Accuracy",
          "Accuracy of the horizontal aircraft position."),
    Field("ACFT_ALT",          6, Required,      Integer,  "000000..999999",   "ft",     "Aircraft Altitude",
          "Height of the aircraft above mean sea level."),
    Field("RP_LOC",           25, Required,      Location, POSITION,           "",       "Reference Point Location",
          "Latitude and longitude of the scene reference point."),
    Field("RP_LOC_ACCY",       6, Required,      Real,     "000.00..999.99",   "ft",     "Reference Point Location Accuracy",
          "Accuracy of the horizontal position of the reference point."),
    Field("RP_ELV",            6, Required,      Integer,  "-01000..+30000",   "ft",     "Reference Point Elevation",
          "Height of the reference point above mean sea level.").Alias("RP_ELEV"),
    Field("OF_PC_R",           7, RequiredBlank, Real,     "-9999.9..+9999.9", "ft",     "Range Offset",
          "Distance in range from the reference point to the centre of the patch."),
    Field("OF_PC_A",           7, RequiredBlank, Real,     "-9999.9..+9999.9", "ft",     "Azimuth Offset",
          "Distance in azimuth from the reference point to the centre of the patch."),
    Field("COSGRZ",            7, Required,      Real,     "0.00000..1.00000", "",       "Cosine of Grazing Angle",
          "Cosine of the angle between the line of sight and the ground."),
    Field("RGCRP",             7, Required,      Integer,  "0000000..3000000", "ft",     "Estimated Slant Range",
          "Slant range from the aircraft to the reference point.").Alias("RGCCRP"),
    Field("RLMAP",             1, Required,      Text,     "L=left|R=right",   "",       "Right/Left Map",
          "Side of the flight track on which the mapped scene lies."),
    Field("RP_ROW",            5, RequiredBlank, Integer,  "00001..99999",     "pixels", "Reference Point Row Number",
          "Image row of the reference point, counted from 1."),
    Field("RP_COL",            5, RequiredBlank, Integer,  "00001..99999",     "pixels", "Reference Point Column Number",
          "Image column of the reference point, counted from 1."),
    Field("C_R_NC",           10, Required,      Real,     "-1..+1",           "",       "Range Unit Vector, North Component",
          "North component of the unit vector in range direction."),
    Field("C_R_EC",           10, Required,      Real,     "-1..+1",           "",       "Range Unit Vector, East Component",
          "East component of the unit vector in range direction."),
    Field("C_R_DC",           10, Required,      Real,     "-1..+1",           "",       "Range Unit Vector, Down Component",
          "Down component of the unit vector in range direction."),
    Field("C_AZ_NC",           9, Required,      Real,     "-1..+1",           "",       "Azimuth Unit Vector, North Component",
          "North component of the unit vector in azimuth direction."),
    Field("C_AZ_EC",           9, Required,      Real,     "-1..+1",           "",       "Azimuth Unit Vector, East Component",
          "East component of the unit vector in azimuth direction."),
    Field("C_AZ_DC",           9, Required,      Real,     "-1..+1",           "",       "Azimuth Unit Vector, Down Component",
          "Down component of the unit vector in azimuth direction."),
    Field("C_AL_NC",           9, Required,      Real,     "-1..+1",           "",       "Altitude Unit Vector, North Component",
          "North component of the unit vector in altitude direction."),
    Field("C_AL_EC",           9, Required,      Real,     "-1..+1",           "",       "Altitude Unit Vector, East Component",
          "East component of the unit vector in altitude direction."),
    Field("C_AL_DC",           9, Required,      Real,     "-1..+1",           "",       "Altitude Unit Vector, Down Component",
          "Down component of the unit vector in altitude direction."),
    Field("TOTAL_TILES_COLS",  3, RequiredBlank, Integer,  "001..999",         "tiles",  "Total Number of Tiles in Column Direction",
          "How many tiles the complete image product has across."),
    Field("TOTAL_TILES_ROWS",  5, RequiredBlank, Integer,  "00001..99999",     "tiles",  "Total Number of Tiles in Row Direction",
          "How many tiles the complete image product has down."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 205);

}  // namespace

const Detail::TreLayout& TreMENSRB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MENSRB",
        .name = "Airborne SAR Mensuration Data",
        .length = 205,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Aircraft position, reference point with accuracies, and direction unit vectors from which ground "
            "positions can be measured in a radar image.",
        .sources =
            "STDI-0002 version 2.1; STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; "
            "imaging-nitf TRE description file; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR "
            "Toolbox; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

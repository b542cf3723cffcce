#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMENSRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need      form      values                     unit      label
    Field("CCRP_LOC", 21, Required, Location, "{ddmmss.ssXdddmmss.ssY}", "",       "CCRP Location",
          "Latitude and longitude of the central reference point of the image.").Alias("CP_LOC"),
    Field("CCRP_ALT",  6, Required, Integer,  "-01000..+30000",          "ft",     "CCRP Altitude",
          "Height of the central reference point above mean sea level.").Alias("CP_ALT"),
    Field("OF_PC_R",   7, Required, Real,     "-2000.0..+2000.0",        "ft",     "Range Offset Between CCRP and Patch Center",
          "Distance in range from the central reference point to the centre of the patch."),
    Field("OF_PC_A",   7, Required, Real,     "-2000.0..+2000.0",        "ft",     "Azimuth Offset Between CCRP and Patch Center",
          "Distance in azimuth from the central reference point to the centre of the patch."),
    Field("COSGRZ",    7, Required, Real,     "0.00000..1.00000",        "",       "Cosine of Grazing Angle",
          "Cosine of the angle between the line of sight and the ground."),
    Field("RGCCRP",    7, Required, Integer,  "0000000..3000000",        "ft",     "Estimated Slant Range to CCRP",
          "Slant range from the aircraft to the central reference point."),
    Field("RLMAP",     1, Required, Text,     "L=left|R=right",          "",       "Right/Left Map",
          "Side of the flight track on which the mapped scene lies."),
    Field("CCRP_ROW",  5, Required, Integer,  "00000..19999",            "pixels", "CCRP Row Number",
          "Image row of the central reference point."),
    Field("CCRP_COL",  5, Required, Integer,  "00000..19999",            "pixels", "CCRP Column Number",
          "Image column of the central reference point."),
    Field("ACFT_LOC", 21, Required, Location, "{ddmmss.ssXdddmmss.ssY}", "",       "Aircraft Location",
          "Latitude and longitude of the aircraft at the centre of the aperture."),
    Field("ACFT_ALT",  5, Required, Integer,  "00000..99999",            "ft",     "Aircraft Altitude",
          "Height of the aircraft above mean sea level."),
    Field("C_R_NC",    7, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, North Component",
          "North component of the unit vector in range direction."),
    Field("C_R_EC",    7, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, East Component",
          "East component of the unit vector in range direction."),
    Field("C_R_DC",    7, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, Down Component",
          "Down component of the unit vector in range direction."),
    Field("C_AZ_NC",   7, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, North Component",
          "North component of the unit vector in azimuth direction."),
    Field("C_AZ_EC",   7, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, East Component",
          "East component of the unit vector in azimuth direction."),
    Field("C_AZ_DC",   7, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, Down Component",
          "Down component of the unit vector in azimuth direction."),
    Field("C_AL_NC",   7, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, North Component",
          "North component of the unit vector in altitude direction."),
    Field("C_AL_EC",   7, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, East Component",
          "East component of the unit vector in altitude direction."),
    Field("C_AL_DC",   7, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, Down Component",
          "Down component of the unit vector in altitude direction."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 155);

// The older layout.
// clang-format off
constexpr FieldRow OLDER_ROWS[] = {
    //    tag       width need      form      values                     unit      label
    Field("ACFT_LOC", 21, Required, Location, "{ddmmss.ssXdddmmss.ssY}", "",       "Aircraft Location",
          "Latitude and longitude of the aircraft at the centre of the aperture."),
    Field("ACFT_ALT",  6, Required, Integer,  "-99999..+99999",          "ft",     "Aircraft Altitude",
          "Height of the aircraft above mean sea level."),
    Field("CCRP_LOC", 21, Required, Location, "{ddmmss.ssXdddmmss.ssY}", "",       "CCRP Location",
          "Latitude and longitude of the central reference point of the image."),
    Field("CCRP_ALT",  6, Required, Integer,  "-01000..+30000",          "ft",     "CCRP Altitude",
          "Height of the central reference point above mean sea level."),
    Field("OF_PC_R",   7, Required, Real,     "-2000.0..+2000.0",        "ft",     "Range Offset Between CCRP and Patch Center",
          "Distance in range from the central reference point to the centre of the patch."),
    Field("OF_PC_A",   7, Required, Real,     "-2000.0..+2000.0",        "ft",     "Azimuth Offset Between CCRP and Patch Center",
          "Distance in azimuth from the central reference point to the centre of the patch."),
    Field("COSGRZ",    7, Required, Real,     "0.00000..1.00000",        "",       "Cosine of Grazing Angle",
          "Cosine of the angle between the line of sight and the ground."),
    Field("RGCCRP",    7, Required, Integer,  "0000000..3000000",        "ft",     "Estimated Slant Range to CCRP",
          "Slant range from the aircraft to the central reference point."),
    Field("RLMAP",     1, Required, Text,     "L=left|R=right",          "",       "Right/Left Map",
          "Side of the flight track on which the mapped scene lies."),
    Field("CCRP_ROW",  5, Required, Integer,  "00000..99999",            "pixels", "CCRP Row Number",
          "Image row of the central reference point."),
    Field("CCRP_COL",  5, Required, Integer,  "00000..99999",            "pixels", "CCRP Column Number",
          "Image column of the central reference point."),
    Field("C_R_NC",    9, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, North Component",
          "North component of the unit vector in range direction."),
    Field("C_R_EC",    9, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, East Component",
          "East component of the unit vector in range direction."),
    Field("C_R_DC",    9, Required, Real,     "-1..+1",                  "",       "Range Unit Vector, Down Component",
          "Down component of the unit vector in range direction."),
    Field("C_AZ_NC",   9, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, North Component",
          "North component of the unit vector in azimuth direction."),
    Field("C_AZ_EC",   9, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, East Component",
          "East component of the unit vector in azimuth direction."),
    Field("C_AZ_DC",   9, Required, Real,     "-1..+1",                  "",       "Azimuth Unit Vector, Down Component",
          "Down component of the unit vector in azimuth direction."),
    Field("C_AL_NC",   9, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, North Component",
          "North component of the unit vector in altitude direction."),
    Field("C_AL_EC",   9, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, East Component",
          "East component of the unit vector in altitude direction."),
    Field("C_AL_DC",   9, Required, Real,     "-1..+1",                  "",       "Altitude Unit Vector, Down Component",
          "Down component of the unit vector in altitude direction."),
};
// clang-format on
constexpr auto OLDER_TABLE = MakeTable(OLDER_ROWS);
static_assert(OLDER_TABLE.wellFormed);
static_assert(FixedWidth(OLDER_ROWS) == 174);

}  // namespace

const Detail::TreLayout& TreMENSRA::Layout()
{
    static constexpr Detail::TreLayout OLDER{
        .tag = "MENSRA",
        .name = "Airborne SAR Mensuration Data",
        .length = 174,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Aircraft position, reference point and direction unit vectors from which ground positions can be "
            "measured in a radar image, in a draft layout with the aircraft fields first and longer unit vectors; "
            "chosen when the extension is 174 bytes long.",
        .sources =
            "NITRO plug-in table (descrip_00174); SarPy TRE definition (same lineage as the NITRO table); one real "
            "image file of NITF 2.0 whose MENSRA of 174 bytes was decoded with this table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = OLDER_TABLE.View(),
        .notes = "Ranges and units are taken over from the later layout."};
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MENSRA",
        .name = "Airborne SAR Mensuration Data",
        .length = 155,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Aircraft position, reference point and direction unit vectors from which ground positions can be "
            "measured in a radar image. Superseded by MENSRB.",
        .sources = "STDI-0002 version 2.1; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .other = &OLDER};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

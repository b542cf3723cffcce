#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreACFTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto POSITION = "{ddmmss.ssXdddmmss.ssY}|{+dd.dddddd+ddd.dddddd}";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need           form      values            unit   label
    Field("AC_MSN_ID",    10, Required,      Text,     "",               "",    "Aircraft Mission Identification",
          "Identifier of the flight mission during which the image was collected."),
    Field("SCTYPE",        1, RequiredBlank, Text,     "C=collection plan|R=radar navigation|blank=immediate scene", "", "Scene Type",
          "Kind of scene that this image belongs to; a blank marks a scene that was requested during the flight."),
    Field("SCNUM",         4, Required,      Integer,  "0000..9999",     "",    "Scene Number",
          "Number that the mission plan gives to this scene."),
    Field("SENSOR_ID",     3, Required,      Text,     "ASR=ASARS-2|APG=APG-73|DST=DarkStar|any=other registered value", "", "Sensor ID",
          "Abbreviation of the sensor that took the image."),
    Field("PATCH_TOT",     4, Required,      Integer,  "0000..0999",     "",    "Patch Total",
          "How many image patches (PATCHA extensions) the imaging operation contains."),
    Field("MTI_TOT",       3, Required,      Integer,  "000..999",       "",    "MTI Total",
          "How many moving-target packets (MTIRPA extensions) accompany the image."),
    Field("PDATE",         7, Required,      Date,     "{DDMMMYY}",      "",    "Processing Date",
          "Day on which the raw sensor data were turned into this image."),
    Field("IMHOSTNO",      3, Required,      Integer,  "000..999",       "",    "Immediate Scene Host",
          "Scene number from which an immediate scene was requested; zero when the scene was planned."),
    Field("IMREQID",       5, Required,      Integer,  "00000..99999",   "",    "Immediate Scene Request ID",
          "Serial number of the in-flight request that led to an immediate scene; zero when the scene was planned."),
    Field("SCENE_SOURCE",  1, Required,      Integer,  "0=preplanned|1..9=depends on the sensor", "", "Scene Source",
          "Code for who or what asked for this scene."),
    Field("MPLAN",         2, Required,      Integer,  "01..99",         "",    "Mission Plan Mode",
          "Sensor-specific number of the collection mode in use."),
    Field("ENTLOC",       21, Required,      Location, POSITION,         "",    "Entry Location",
          "Planned latitude and longitude where the scene begins, or the reference point of a spot scene."),
    Field("ENTELV",        6, Required,      Integer,  "-01000..+30000", "ft",  "Entry Elevation",
          "Ground elevation at the entry location.").Alias("ENTALT"),
    Field("EXITLOC",      21, RequiredBlank, Location, POSITION,         "",    "Exit Location",
          "Planned latitude and longitude where the scene ends; blank for spot scenes."),
    Field("EXITELV",       6, RequiredBlank, Integer,  "-01000..+30000", "ft",  "Exit Elevation",
          "Ground elevation at the exit location; blank for spot scenes.").Alias("EXITALT"),
    Field("TMAP",          7, Required,      Real,     "000.000..180.000|999.999=unknown", "deg", "True Map Angle",
          "Angle between the ground track of the line of sight and the scene centre line (or the desired flight track "
          "for spot scenes)."),
    Field("RCS",           3, RequiredBlank, Integer,  "040..080",       "",    "RCS Calibration Coefficient",
          "Radar cross section calibration coefficient of the radar image."),
    Field("ROW_SPACING",   7, Required,      Real,     "0..9999.99",     "ft",  "Row Spacing",
          "Distance on the ground between neighbouring image rows at the image centre; usually written nn.nnnn."),
    Field("COL_SPACING",   7, Required,      Real,     "0..9999.99",     "ft",  "Column Spacing",
          "Distance on the ground between neighbouring pixels of a row at the image centre; usually written nn.nnnn."),
    Field("SENSERIAL",     4, RequiredBlank, Integer,  "0001..9999",     "",    "Sensor Serial Number",
          "Serial number that the maker gave to the sensor unit."),
    Field("ABSWVER",       7, RequiredBlank, Text,     "",               "",    "Airborne Software Version",
          "Version and revision of the software that ran on board, written VVVV.RR."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 132);

// The older layout.
// clang-format off
constexpr FieldRow OLDER_ROWS[] = {
    //    tag           width need           form      values                           unit   label
    Field("AC_MSN_ID",    10, Required,      Text,     "",                              "",    "Aircraft Mission Identification",
          "Identifier of the flight mission during which the image was collected."),
    Field("AC_TAIL_NO",   10, RequiredBlank, Text,     "",                              "",    "Aircraft Tail Number",
          "Tail number of the aircraft that carried the sensor."),
    Field("SENSOR_ID",    10, Required,      Text,     "any=registered identifier",     "",    "Sensor ID",
          "Name of the particular sensor that took the image."),
    Field("SCENE_SOURCE",  1, Required,      Integer,  "0=preplanned|1..9",             "",    "Scene Source",
          "Code for who or what asked for this scene."),
    Field("SCNUM",         6, Required,      Integer,  "000000..999999",                "",    "Scene Number",
          "Number that the mission plan gives to this scene."),
    Field("PDATE",         8, Required,      Date,     "{CCYYMMDD}",                    "",    "Processing Date",
          "Day on which the raw sensor data were turned into this image."),
    Field("IMHOSTNO",      6, RequiredBlank, Integer,  "000000..999999|blank",          "",    "Immediate Scene Host",
          "Number of the scene from which an immediate scene was requested."),
    Field("IMREQID",       5, RequiredBlank, Integer,  "00000..99999|blank",            "",    "Immediate Scene Request ID",
          "Serial number of the in-flight request that led to an immediate scene."),
    Field("MPLAN",         3, Required,      Integer,  "001..999",                      "",    "Mission Plan Mode",
          "Sensor-specific number of the collection mode in use."),
    Field("ENTLOC",       21, Required,      Location, "{ddmmss.ssXdddmmss.ssY}",       "",    "Entry Location",
          "Planned latitude and longitude where the scene begins, or the reference point of a spot scene."),
    Field("ENTALT",        6, Required,      Integer,  "-01000..+30000",                "ft",  "Entry Altitude",
          "Ground elevation at the entry location."),
    Field("EXITLOC",      21, RequiredBlank, Location, "{ddmmss.ssXdddmmss.ssY}|blank", "",    "Exit Location",
          "Planned latitude and longitude where the scene ends; the real spot scene repeats the entry location."),
    Field("EXITALT",       6, RequiredBlank, Integer,  "-01000..+30000|blank",          "ft",  "Exit Altitude",
          "Ground elevation at the exit location."),
    Field("TMAP",          7, Required,      Real,     "000.000..180.000",              "deg", "True Map Angle",
          "Angle between the ground track of the line of sight and the scene centre line or the desired flight "
          "track."),
    Field("ROW_SPACING",   7, Required,      Real,     "0..99.9999",                    "ft",  "Row Spacing",
          "Distance on the ground between neighbouring image rows at the image centre."),
    Field("COL_SPACING",   7, Required,      Real,     "0..99.9999",                    "ft",  "Column Spacing",
          "Distance on the ground between neighbouring pixels of a row at the image centre."),
    Field("SENSERIAL",     6, RequiredBlank, Integer,  "000001..999999|blank",          "",    "Sensor Serial Number",
          "Serial number that the maker gave to the sensor unit."),
    Field("ABSWVER",       7, RequiredBlank, Text,     "any=vvvv.rr",                   "",    "Airborne Software Version",
          "Version and revision of the software that ran on board."),
    Field("PATCH_TOT",     4, Required,      Integer,  "0000..9999",                    "",    "Patch Total",
          "How many image patches the imaging operation contains."),
    Field("MTI_TOT",       3, Required,      Integer,  "000..999",                      "",    "MTI Total",
          "How many moving-target packets accompany the image."),
};
// clang-format on
constexpr auto OLDER_TABLE = MakeTable(OLDER_ROWS);
static_assert(OLDER_TABLE.wellFormed);
static_assert(FixedWidth(OLDER_ROWS) == 154);

}  // namespace

const Detail::TreLayout& TreACFTA::Layout()
{
    static constexpr Detail::TreLayout OLDER{
        .tag = "ACFTA",
        .name = "Aircraft Information",
        .length = 154,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Mission, aircraft, sensor and processing facts of one airborne imaging operation, in an early draft "
            "layout that real imagery of 1999 carries; chosen when the extension is 154 bytes long.",
        .sources =
            "NITRO plug-in table (descrip_00154, which it calls draft 0.9a); SarPy TRE definition (same lineage as "
            "the NITRO table); one real image file of NITF 2.0 whose ACFTA of 154 bytes was decoded with this table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = OLDER_TABLE.View(),
        .notes =
            "The elevation fields have the names of the only source of this layout. No source states ranges: they "
            "are taken over from the later layouts."};
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACFTA",
        .name = "Aircraft Information",
        .length = 132,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Mission, aircraft, sensor and processing facts of one airborne imaging operation. Superseded by "
            "ACFTB, kept for older imagery.",
        .sources =
            "STDI-0002 version 2.1; NITRO plug-in table; imaging-nitf TRE description file; Opticks TRE "
            "parser; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The meanings of the SCTYPE codes and of the SENSOR_ID abbreviations are recalled. Some programs spell "
            "the elevation fields ENTALT and EXITALT.",
        .other = &OLDER};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

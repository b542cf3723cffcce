#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreACFTB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto POSITION = "{ddmmss.ssssXdddmmss.ssssY}|{+dd.dddddddd+ddd.dddddddd}";
constexpr auto SPACING = "00.0000..99.9999=with unit f or m|0000.00..9999.99=with unit r|0000000=unknown";
constexpr auto SPACING_UNITS = "f=feet|m=metres|r=microradians|u=unknown";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag               width  need           form      values              unit                  label
    Field("AC_MSN_ID",         20, Required,      Text,     "",                 "",                   "Aircraft Mission Identification",
          "Identifier of the flight mission; the text NOT AVAILABLE is used when it is not known."),
    Field("AC_TAIL_NO",        10, RequiredBlank, Text,     "",                 "",                   "Aircraft Tail Number",
          "Tail number of the aircraft that carried the sensor."),
    Field("AC_TO",             12, RequiredBlank, Date,     "{CCYYMMDDhhmm}",   "UTC",                "Aircraft Take-off",
          "Date and time at which the aircraft took off."),
    Field("SENSOR_ID_TYPE",     4, Required,      Text,
          "SAR=radar|LIGM=laser|LILN=laser|any=HH, HM, HL, IH, IM, IL, MH, MM, ML, VF, VH, VM or VL, then FR, LS, PB "
          "or PS",
          "", "Sensor ID Type",
          "Code for the kind of sensor; radar is SAR, an electro-optical sensor has a spectral category followed by an "
          "imaging format, and the LI codes are laser sensors."),
    Field("SENSOR_ID",          6, Required,      Text,
          "AIP|APG-73|ASARS1|ASARS2|ASTOR|CA236|CA260|CA261|CA265|CA270|CA295|D500|DB110|DS-SAR|GHR|HYDICE|HSAR|IRLS|"
          "LAEO|MAEO|SIR-C|SYERS|TSAR|any=other registered identifier",
          "", "Sensor ID",
          "Registered name of the particular sensor that took the image."),
    Field("SCENE_SOURCE",       1, RequiredBlank, Integer,  "0=preplanned|1..9=registered per sensor", "", "Scene Source",
          "Code for who or what asked for this scene."),
    Field("SCNUM",              6, Required,      Integer,  "000000..999999",   "",                   "Scene Number",
          "Number that the mission plan gives to this scene; 000000 for an immediate scene."),
    Field("PDATE",              8, Required,      Date,     "{CCYYMMDD}",       "UTC",                "Processing Date",
          "Day on which radar data became an image, or on which an electro-optical image file was made."),
    Field("IMHOSTNO",           6, Required,      Integer,  "000000..999999",   "",                   "Immediate Scene Host",
          "Number of the planned scene from which an immediate scene was requested; zero for planned scenes."),
    Field("IMREQID",            5, Required,      Integer,  "00000..99999",     "",                   "Immediate Scene Request ID",
          "Counts the immediate requests made from the host scene; zero for planned scenes."),
    Field("MPLAN",              3, Required,      Integer,  "001..999",         "",                   "Mission Plan Mode",
          "Sensor-specific number of the collection mode in use; the meaning is registered per sensor."),
    Field("ENTLOC",            25, RequiredBlank, Location, POSITION,           "",                   "Entry Location",
          "Planned start point of the imaged path, or the reference point of a spot or point-target scene."),
    Field("LOC_ACCY",           6, Required,      Real,     "000.01..999.99|000.00=unknown|000000=unknown", "ft", "Location Accuracy",
          "Radius within which the entry and exit locations lie with 90 percent probability."),
    Field("ENTELV",             6, RequiredBlank, Integer,  "-01000..+30000",   "ft or m (ELV_UNIT)", "Entry Elevation",
          "Ground elevation at the entry location."),
    Field("ELV_UNIT",           1, RequiredBlank, Text,     "f=feet|m=metres",  "",                   "Unit of Elevation",
          "Unit of the entry and exit elevations."),
    Field("EXITLOC",           25, RequiredBlank, Location, POSITION,           "",                   "Exit Location",
          "Planned end point of the imaged path; blank for spot and point-target scenes."),
    Field("EXITELV",            6, RequiredBlank, Integer,  "-01000..+30000",   "ft or m (ELV_UNIT)", "Exit Elevation",
          "Ground elevation at the exit location."),
    Field("TMAP",               7, RequiredBlank, Real,     "000.000..180.000", "deg",                "True Map Angle",
          "Angle between the line of sight to the scene and the scene centre line or the flight track; always "
          "positive."),
    Field("ROW_SPACING",        7, Required,      Real,     SPACING,            "ft, m or urad (ROW_SPACING_UNITS)", "Row Spacing",
          "Distance or angle between neighbouring image rows at the image centre."),
    Field("ROW_SPACING_UNITS",  1, Required,      Text,     SPACING_UNITS,      "",                   "Unit of Row Spacing",
          "Unit of the row spacing."),
    Field("COL_SPACING",        7, Required,      Real,     SPACING,            "ft, m or urad (COL_SPACING_UNITS)", "Column Spacing",
          "Distance or angle between neighbouring pixels of a row at the image centre."),
    Field("COL_SPACING_UNITS",  1, Required,      Text,     SPACING_UNITS,      "",                   "Unit of Column Spacing",
          "Unit of the column spacing."),
    Field("FOCAL_LENGTH",       6, Required,      Real,     "000.01..899.99|999.99=not available or not applicable", "cm", "Sensor Focal Length",
          "Effective distance from the lens to the detector."),
    Field("SENSERIAL",          6, RequiredBlank, Integer,  "000001..999999",   "",                   "Sensor Serial Number",
          "Serial number that the maker gave to the sensor unit."),
    Field("ABSWVER",            7, RequiredBlank, Text,     "",                 "",                   "Airborne Software Version",
          "Version and revision of the software that ran on board, written vvvv.rr."),
    Field("CAL_DATE",           8, RequiredBlank, Date,     "{CCYYMMDD}",       "",                   "Calibration Date",
          "Day of the last calibration of the sensor."),
    Field("PATCH_TOT",          4, Required,      Integer,  "0000..9999",       "",                   "Patch Total",
          "How many patches the imaging operation contains, which is normally also the number of PATCH or CMETAA "
          "extensions; 0000 for EO-IR, 0000 or 0001 for SAR spot scenes."),
    Field("MTI_TOT",            3, Required,      Integer,  "000..999",         "",                   "MTI Total",
          "How many moving-target (MTIRP) extensions the file holds; 000 for EO-IR."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 207);

}  // namespace

const Detail::TreLayout& TreACFTB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACFTB",
        .name = "Aircraft Information",
        .length = 207,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Mission, aircraft, sensor, planned location and spacing facts of one airborne imaging operation; "
            "required with all airborne imagery.",
        .sources =
            "STDI-0002 version 2.1; STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; "
            "imaging-nitf TRE description file; NITRO plug-in table; Opticks TRE parser; OSSIM tag class; NGA "
            "MATLAB SAR Toolbox; NFX TRE class; imaging-nitf TRE wrapper classes",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

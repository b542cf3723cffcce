#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSNSPSB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto ANGLE_UNITS = "ML|MSC|SEC|MA|DEG|blank=unknown";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values                      unit          label
    Field("NUM_SNS",  2, Required,      Integer, "01..99",                   "",           "Number of Sets of Sensor Parameters",
          "How many sensor descriptions follow."),
    Repeat("NUM_SNS"),
        Field("NUM_BP",   2, Required,      Integer, "00=whole image|01..99",    "",           "Number of Bounding Polygons",
              "How many polygons outline the area for which this sensor description holds."),
        Repeat("NUM_BP"),
            Field("NUM_PTS",  3, Conditional,   Integer, "000|004..999",             "",           "Number of Points in Bounding Polygon",
                  "How many corner points the polygon has."),
            Repeat("NUM_PTS"),
                Field("LON",     15, Conditional,   Real,    "",                         "GEOPSB UNI", "Longitude or Easting",
                      "Longitude, or easting in a map grid, of one corner point of the polygon."),
                Field("LAT",     15, Conditional,   Real,    "",                         "GEOPSB UNI", "Latitude or Northing",
                      "Latitude, or northing in a map grid, of one corner point of the polygon."),
            End(),
        End(),
        Field("NUM_BND",  2, Required,      Integer, "01..99",                   "",           "Number of Bands",
              "How many spectral bands of this sensor are described."),
        Repeat("NUM_BND"),
            Field("BID",      5, Conditional,   Text,    "",                         "",           "Original Scene Band Identification",
                  "Identifier of the band in the original scene."),
            Field("WS1",      5, Conditional,   Integer, "00000..99999",             "nm",         "Signal Lower Limit",
                  "Lower end of the spectral range of the band."),
            Field("WS2",      5, Conditional,   Integer, "00000..99999",             "nm",         "Signal Upper Limit",
                  "Upper end of the spectral range of the band, not less than WS1."),
        End(),
        Field("UNIRES",   3, Required,      Text,
              "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|ML|MSC|SEC|MA|DEG",
              "", "Unit of Resolutions and Ground Sample Distances",
              "Unit of the four resolution fields that follow."),
        Field("REX",      6, Required,      Real,    "0..999999",                "UNIRES",     "Resolution in Columns",
              "Size on the ground of the smallest detail that the sensor resolves along the rows."),
        Field("REY",      6, Required,      Real,    "0..999999",                "UNIRES",     "Resolution in Rows",
              "Size on the ground of the smallest detail that the sensor resolves along the columns."),
        Field("GSX",      6, Required,      Real,    "0..999999",                "UNIRES",     "Ground Sample Distance in Columns",
              "Distance on the ground between neighbouring pixels of a row."),
        Field("GSY",      6, Required,      Real,    "0..999999",                "UNIRES",     "Ground Sample Distance in Rows",
              "Distance on the ground between neighbouring pixels of a column."),
        Field("GSL",     12, RequiredBlank, Text,    "",                         "",           "Location of Pixel for GSX and GSY",
              "Place in the image at which the ground sample distances were taken; blank when not stated."),
        Field("PLTFM",    8, Required,      Text,    "",                         "",           "Vector or Mission Name",
              "Name of the satellite, aircraft or mission, for example SPOT or LANDSAT."),
        Field("INS",      8, Required,      Text,    "",                         "",           "Sensor or Instrument Name",
              "Name of the imaging instrument, for example HRV or TM."),
        Field("MOD",      4, Required,      Text,    "",                         "",           "Spectral Mode",
              "Spectral mode in which the instrument worked, for example PAN or XS."),
        Field("PRL",      5, Required,      Text,    "",                         "",           "Processing Level",
              "Level to which the original scene was processed, for example 1A or 1B."),
        Field("SID",     10, RequiredBlank, Text,    "",                         "",           "Original Scene Identification",
              "Identifier of the original scene."),
        Field("ACT",     18, Required,      Date,    "{YYYYMMDDhhmmss.sss}",     "UTC",        "Acquisition Date and Time",
              "When the original scene was taken."),
        Field("UNINOA",   3, RequiredBlank, Text,    ANGLE_UNITS,                "",           "Unit of Scene Orientation Angle",
              "Unit of the scene orientation angle; blank leaves the angle out."),
        WhenFilled("UNINOA"),
            Field("NOA",      7, Conditional,   Real,    "-999999..9999999",         "UNINOA",     "Scene Orientation Angle",
                  "Angle between north and the column direction of the original scene at its centre."),
        End(),
        Field("UNIANG",   3, RequiredBlank, Text,    ANGLE_UNITS,                "",           "Unit of Incidence Angle",
              "Unit of the incidence angle; blank leaves the angle out."),
        WhenFilled("UNIANG"),
            Field("ANG",      7, Conditional,   Real,    "-999999..9999999",         "UNIANG",     "Incidence Angle at Original Scene Centre",
                  "Angle between the vertical and the viewing direction at the scene centre."),
        End(),
        Field("UNIALT",   3, RequiredBlank, Text,    "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|blank=unknown", "", "Unit of Altitude",
              "Unit of the sensor altitude; blank leaves the altitude out."),
        WhenFilled("UNIALT"),
            Field("ALT",      9, Conditional,   Real,    "-99999999..999999999",     "UNIALT",     "Altitude of Sensor",
                  "Height of the sensor when the scene was taken."),
        End(),
        Field("LONSCC",  10, Required,      Real,    "-999999.99..+999999.99",   "arcsec",     "WGS84 Longitude of Original Scene Centre",
              "Longitude of the centre of the original scene."),
        Field("LATSCC",  10, Required,      Real,    "-999999.99..+999999.99",   "arcsec",     "WGS84 Latitude of Original Scene Centre",
              "Latitude of the centre of the original scene."),
        Field("UNISAE",   3, RequiredBlank, Text,    ANGLE_UNITS,                "",           "Unit of Solar Angles",
              "Unit of the two sun angles; blank leaves both out."),
        WhenFilled("UNISAE"),
            Field("SAZ",      7, Conditional,   Real,    "-999999..9999999",         "UNISAE",     "Solar Azimuth",
                  "Direction of the sun at the scene centre, counted from north."),
            Field("SEL",      7, Conditional,   Real,    "-999999..9999999",         "UNISAE",     "Solar Elevation",
                  "Height angle of the sun at the scene centre."),
        End(),
        Field("UNIRPY",   3, RequiredBlank, Text,    ANGLE_UNITS,                "",           "Unit of Attitude Angles",
              "Unit of roll, pitch and yaw; blank leaves all three out."),
        WhenFilled("UNIRPY"),
            Field("ROL",      7, Conditional,   Real,    "-999999..9999999",         "UNIRPY",     "Roll of the Sensor",
                  "Roll angle of the sensor at the scene centre."),
            Field("PIT",      7, Conditional,   Real,    "-999999..9999999",         "UNIRPY",     "Pitch of the Sensor",
                  "Pitch angle of the sensor at the scene centre."),
            Field("YAW",      7, Conditional,   Real,    "-999999..9999999",         "UNIRPY",     "Yaw of the Sensor",
                  "Yaw angle of the sensor at the scene centre."),
        End(),
        Field("UNIPXT",   3, RequiredBlank, Text,    "S|MIN|H|D|any=another time unit|blank=unknown", "", "Unit of Pixel Time",
              "Unit of the pixel time; blank leaves it out."),
        WhenFilled("UNIPXT"),
            Field("PXT",     14, Conditional,   Real,    "",                         "UNIPXT",     "Pixel Time",
                  "Time that the sensor spends on one pixel (or line) of the original scene.").Alias("PIXT"),
        End(),
        Field("UNISPE",   7, RequiredBlank, Text,    "any=unit code of a rate|blank=unknown", "", "Unit of Attitude Speed",
              "Unit of the three attitude rates; blank leaves all three out."),
        WhenFilled("UNISPE"),
            Field("ROS",     22, Conditional,   Real,    "",                         "UNISPE",     "Roll Speed",
                  "Rate at which the roll angle changes."),
            Field("PIS",     22, Conditional,   Real,    "",                         "UNISPE",     "Pitch Speed",
                  "Rate at which the pitch angle changes."),
            Field("YAS",     22, Conditional,   Real,    "",                         "UNISPE",     "Yaw Speed",
                  "Rate at which the yaw angle changes."),
        End(),
        Field("NUM_AUX",  3, Required,      Integer, "000..999",                 "",           "Number of Auxiliary Parameters",
              "How many further parameters of the producer follow."),
        Repeat("NUM_AUX"),
            Field("API",     20, Conditional,   Text,    "",                         "",           "Auxiliary Parameter ID",
                  "Name of the further parameter; it does not start with a space."),
            Field("APF",      1, Conditional,   Text,    "I=integer|R=real|A=text",  "",           "Auxiliary Parameter Value Format",
                  "Tells which one of the three value fields follows."),
            Field("UNIAPX",   7, Conditional,   Text,    "any=unit code|blank=none", "",           "Unit of Auxiliary Parameter",
                  "Unit of the further parameter; blank when it has none."),
            When("APF", "I"),
                Field("APN",     10, Conditional,   Integer, "-999999999..+999999999",   "UNIAPX",     "Auxiliary Parameter Integer Value",
                      "Value of the further parameter when it is an integer."),
            End(),
            When("APF", "R"),
                Field("APR",     20, Conditional,   Real,    "",                         "UNIAPX",     "Auxiliary Parameter Real Value",
                      "Value of the further parameter when it is a real number."),
            End(),
            When("APF", "A"),
                Field("APA",     20, Conditional,   Ecs,     "",                         "",           "Auxiliary Parameter Character String Value",
                      "Value of the further parameter when it is text."),
            End(),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreSNSPSB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SNSPSB",
        .name = "Sensor Parameters",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_SNS sensors of (144 + sum over NUM_BP polygons of (3 + 30*NUM_PTS) + "
            "15*NUM_BND + 7 if UNINOA not blank + 7 if UNIANG not blank + 9 if UNIALT not blank + 14 if "
            "UNISAE not blank + 21 if UNIRPY not blank + 14 if UNIPXT not blank + 66 if UNISPE not blank + "
            "sum over NUM_AUX parameters of (28 + 10 if APF=I or 20 if APF=R or APF=A)); 161..99985",
        .placement = "image subheader",
        .purpose =
            "Describes the sensor, platform, bands, resolution, acquisition time and attitude of the scenes "
            "from which the image was made.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-13 (2024-04); GDAL TRE description file; NITRO plug-in "
            "table; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "The unit of WS1 and WS2 and the sense of NOA and PXT are recalled, without a source at hand."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

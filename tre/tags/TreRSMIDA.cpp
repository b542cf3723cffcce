#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMIDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto PIXEL_COUNT = "00000001..99999999|blank=not available";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values                        unit                label
    Field("IID",     80, RequiredBlank, Text,    "",                           "",                 "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",                           "",                 "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("ISID",    40, RequiredBlank, Text,    "",                           "",                 "Image Sequence Identifier",
          "Identifier of the image sequence to which the image belongs; blank when there is none."),
    Field("SID",     40, RequiredBlank, Text,    "",                           "",                 "Sensor Identifier",
          "Identifier of the sensor that took the image; blank when not available."),
    Field("STID",    40, RequiredBlank, Text,    "",                           "",                 "Sensor Type Identifier",
          "Identifier of the kind of sensor; blank when not available."),
    Field("YEAR",     4, RequiredBlank, Integer, "0000..9999|blank=not available", "UTC", "Year of Image Acquisition",
          "Year in which the image was taken."),
    Field("MONTH",    2, RequiredBlank, Integer, "01..12|blank=not available", "UTC",              "Month of Image Acquisition",
          "Month in which the image was taken."),
    Field("DAY",      2, RequiredBlank, Integer, "01..31|blank=not available", "UTC",              "Day of Image Acquisition",
          "Day of the month on which the image was taken."),
    Field("HOUR",     2, RequiredBlank, Integer, "00..23|blank=not available", "UTC",              "Hour of Image Acquisition",
          "Hour in which the image was taken."),
    Field("MINUTE",   2, RequiredBlank, Integer, "00..59|blank=not available", "UTC",              "Minute of Image Acquisition",
          "Minute in which the image was taken."),
    Field("SECOND",   9, RequiredBlank, Real,    "00.000000..59.999999|blank=not available", "s", "Second of Image Acquisition",
          "Second at which the reference row and column were taken."),
    Field("NRG",      8, RequiredBlank, Integer, PIXEL_COUNT,                  "rows",             "Number of Rows Acquired Simultaneously",
          "How many neighbouring rows were exposed at the same time."),
    Field("NCG",      8, RequiredBlank, Integer, PIXEL_COUNT,                  "columns",          "Number of Columns Acquired Simultaneously",
          "How many neighbouring columns were exposed at the same time."),
    Field("TRG",     21, RequiredBlank, Real,    "",                           "s",                "Time Between Adjacent Row Groups",
          "Time from one group of simultaneous rows to the next."),
    Field("TCG",     21, RequiredBlank, Real,    "",                           "s",                "Time Between Adjacent Column Groups",
          "Time from one group of simultaneous columns to the next."),
    Field("GRNDD",    1, Required,      Text,    "G=geodetic, longitude -pi..pi|H=geodetic, longitude 0..2pi|R=rectangular", "", "Ground Domain Form",
          "Kind of ground coordinates that the model takes."),
    Field("XUOR",    21, RequiredBlank, Real,    "",                           "m",                "Rectangular Coordinate Origin (XUOR)",
          "WGS 84 earth-centred x coordinate of the origin of the rectangular ground system; blank unless GRNDD is R."),
    Field("YUOR",    21, RequiredBlank, Real,    "",                           "m",                "Rectangular Coordinate Origin (YUOR)",
          "WGS 84 earth-centred y coordinate of the origin of the rectangular ground system; blank unless GRNDD is R."),
    Field("ZUOR",    21, RequiredBlank, Real,    "",                           "m",                "Rectangular Coordinate Origin (ZUOR)",
          "WGS 84 earth-centred z coordinate of the origin of the rectangular ground system; blank unless GRNDD is R."),
    Field("XUXR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (XUXR)",
          "WGS 84 earth-centred x component of the unit vector along the x axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("XUYR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (XUYR)",
          "WGS 84 earth-centred y component of the unit vector along the x axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("XUZR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (XUZR)",
          "WGS 84 earth-centred z component of the unit vector along the x axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("YUXR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (YUXR)",
          "WGS 84 earth-centred x component of the unit vector along the y axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("YUYR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (YUYR)",
          "WGS 84 earth-centred y component of the unit vector along the y axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("YUZR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (YUZR)",
          "WGS 84 earth-centred z component of the unit vector along the y axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("ZUXR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (ZUXR)",
          "WGS 84 earth-centred x component of the unit vector along the z axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("ZUYR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (ZUYR)",
          "WGS 84 earth-centred y component of the unit vector along the z axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("ZUZR",    21, RequiredBlank, Real,    "-1..+1",                     "",                 "Rectangular Coordinate Unit Vector (ZUZR)",
          "WGS 84 earth-centred z component of the unit vector along the z axis of the rectangular ground system; "
          "blank unless GRNDD is R."),
    Field("V1X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 1 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 1 of the solid within which the model is valid."),
    Field("V1Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 1 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 1 of the solid within which the model is valid."),
    Field("V1Z",     21, Required,      Real,    "",                           "m",                "Vertex 1 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 1 of the solid within which the model is valid."),
    Field("V2X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 2 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 2 of the solid within which the model is valid."),
    Field("V2Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 2 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 2 of the solid within which the model is valid."),
    Field("V2Z",     21, Required,      Real,    "",                           "m",                "Vertex 2 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 2 of the solid within which the model is valid."),
    Field("V3X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 3 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 3 of the solid within which the model is valid."),
    Field("V3Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 3 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 3 of the solid within which the model is valid."),
    Field("V3Z",     21, Required,      Real,    "",                           "m",                "Vertex 3 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 3 of the solid within which the model is valid."),
    Field("V4X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 4 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 4 of the solid within which the model is valid."),
    Field("V4Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 4 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 4 of the solid within which the model is valid."),
    Field("V4Z",     21, Required,      Real,    "",                           "m",                "Vertex 4 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 4 of the solid within which the model is valid."),
    Field("V5X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 5 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 5 of the solid within which the model is valid."),
    Field("V5Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 5 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 5 of the solid within which the model is valid."),
    Field("V5Z",     21, Required,      Real,    "",                           "m",                "Vertex 5 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 5 of the solid within which the model is valid."),
    Field("V6X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 6 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 6 of the solid within which the model is valid."),
    Field("V6Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 6 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 6 of the solid within which the model is valid."),
    Field("V6Z",     21, Required,      Real,    "",                           "m",                "Vertex 6 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 6 of the solid within which the model is valid."),
    Field("V7X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 7 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 7 of the solid within which the model is valid."),
    Field("V7Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 7 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 7 of the solid within which the model is valid."),
    Field("V7Z",     21, Required,      Real,    "",                           "m",                "Vertex 7 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 7 of the solid within which the model is valid."),
    Field("V8X",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 8 - X Coordinate of the RSM Ground Domain",
          "Longitude, or x of corner 8 of the solid within which the model is valid."),
    Field("V8Y",     21, Required,      Real,    "",                           "rad or m (GRNDD)", "Vertex 8 - Y Coordinate of the RSM Ground Domain",
          "Latitude, or y of corner 8 of the solid within which the model is valid."),
    Field("V8Z",     21, Required,      Real,    "",                           "m",                "Vertex 8 - Z Coordinate of the RSM Ground Domain",
          "Height, or z of corner 8 of the solid within which the model is valid."),
    Field("GRPX",    21, RequiredBlank, Real,    "",                           "rad or m (GRNDD)", "Ground Reference Point X",
          "Longitude, or x, of a point on the ground that is typical of the image."),
    Field("GRPY",    21, RequiredBlank, Real,    "",                           "rad or m (GRNDD)", "Ground Reference Point Y",
          "Latitude, or y, of a point on the ground that is typical of the image."),
    Field("GRPZ",    21, RequiredBlank, Real,    "",                           "m",                "Ground Reference Point Z",
          "Height, or z, of a point on the ground that is typical of the image."),
    Field("FULLR",    8, RequiredBlank, Integer, PIXEL_COUNT,                  "pixels",           "Number of Rows in Full Image",
          "Number of rows of the original full image."),
    Field("FULLC",    8, RequiredBlank, Integer, PIXEL_COUNT,                  "pixels",           "Number of Columns in Full Image",
          "Number of columns of the original full image."),
    Field("MINR",     8, Required,      Integer, "00000000..99999999",         "pixels",           "Minimum Row",
          "First row of the full image for which the model is valid."),
    Field("MAXR",     8, Required,      Integer, "00000000..99999999",         "pixels",           "Maximum Row",
          "Last row of the full image for which the model is valid."),
    Field("MINC",     8, Required,      Integer, "00000000..99999999",         "pixels",           "Minimum Column",
          "First column of the full image for which the model is valid."),
    Field("MAXC",     8, Required,      Integer, "00000000..99999999",         "pixels",           "Maximum Column",
          "Last column of the full image for which the model is valid."),
    Field("IE0",     21, RequiredBlank, Real,    "",                           "rad",              "Illumination Elevation Angle Constant Coefficient",
          "Constant term of the illumination elevation angle; blank when no illumination model is given."),
    Field("IER",     21, RequiredBlank, Real,    "",                           "rad per pixel",    "Illumination Elevation Angle Coefficient Per Row",
          "Change per row of the illumination elevation angle; blank when no illumination model is given."),
    Field("IEC",     21, RequiredBlank, Real,    "",                           "rad per pixel",    "Illumination Elevation Angle Coefficient Per Column",
          "Change per column of the illumination elevation angle; blank when no illumination model is given."),
    Field("IERR",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Elevation Angle Coefficient Per Row^2",
          "Second order change with the row of the illumination elevation angle; blank when no illumination model is "
          "given."),
    Field("IERC",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Elevation Angle Coefficient Per Row-Column",
          "Second order change with row times column of the illumination elevation angle; blank when no illumination "
          "model is given."),
    Field("IECC",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Elevation Angle Coefficient Per Column^2",
          "Second order change with the column of the illumination elevation angle; blank when no illumination model "
          "is given."),
    Field("IA0",     21, RequiredBlank, Real,    "",                           "rad",              "Illumination Azimuth Angle Constant Coefficient",
          "Constant term of the illumination azimuth angle; blank when no illumination model is given."),
    Field("IAR",     21, RequiredBlank, Real,    "",                           "rad per pixel",    "Illumination Azimuth Angle Coefficient Per Row",
          "Change per row of the illumination azimuth angle; blank when no illumination model is given."),
    Field("IAC",     21, RequiredBlank, Real,    "",                           "rad per pixel",    "Illumination Azimuth Angle Coefficient Per Column",
          "Change per column of the illumination azimuth angle; blank when no illumination model is given."),
    Field("IARR",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Azimuth Angle Coefficient Per Row^2",
          "Second order change with the row of the illumination azimuth angle; blank when no illumination model is "
          "given."),
    Field("IARC",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Azimuth Angle Coefficient Per Row-Column",
          "Second order change with row times column of the illumination azimuth angle; blank when no illumination "
          "model is given."),
    Field("IACC",    21, RequiredBlank, Real,    "",                           "rad per pixel squared", "Illumination Azimuth Angle Coefficient Per Column^2",
          "Second order change with the column of the illumination azimuth angle; blank when no illumination model is "
          "given."),
    Field("SPX",     21, RequiredBlank, Real,    "",                           "m",                "Sensor x-position",
          "WGS 84 earth-centred x component of the sensor position at the reference time; blank when no trajectory is "
          "given."),
    Field("SVX",     21, RequiredBlank, Real,    "",                           "m/s",              "Sensor x-velocity",
          "WGS 84 earth-centred x component of the sensor velocity at the reference time; blank when no trajectory is "
          "given."),
    Field("SAX",     21, RequiredBlank, Real,    "",                           "m/s^2",            "Sensor x-acceleration",
          "WGS 84 earth-centred x component of the sensor acceleration at the reference time; blank when no trajectory "
          "is given."),
    Field("SPY",     21, RequiredBlank, Real,    "",                           "m",                "Sensor y-position",
          "WGS 84 earth-centred y component of the sensor position at the reference time; blank when no trajectory is "
          "given."),
    Field("SVY",     21, RequiredBlank, Real,    "",                           "m/s",              "Sensor y-velocity",
          "WGS 84 earth-centred y component of the sensor velocity at the reference time; blank when no trajectory is "
          "given."),
    Field("SAY",     21, RequiredBlank, Real,    "",                           "m/s^2",            "Sensor y-acceleration",
          "WGS 84 earth-centred y component of the sensor acceleration at the reference time; blank when no trajectory "
          "is given."),
    Field("SPZ",     21, RequiredBlank, Real,    "",                           "m",                "Sensor z-position",
          "WGS 84 earth-centred z component of the sensor position at the reference time; blank when no trajectory is "
          "given."),
    Field("SVZ",     21, RequiredBlank, Real,    "",                           "m/s",              "Sensor z-velocity",
          "WGS 84 earth-centred z component of the sensor velocity at the reference time; blank when no trajectory is "
          "given."),
    Field("SAZ",     21, RequiredBlank, Real,    "",                           "m/s^2",            "Sensor z-acceleration",
          "WGS 84 earth-centred z component of the sensor acceleration at the reference time; blank when no trajectory "
          "is given."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 1628);

}  // namespace

const Detail::TreLayout& TreRSMIDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMIDA",
        .name = "Replacement Sensor Model Identification",
        .length = 1628,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Identifies the image and its replacement sensor model: acquisition time, time model, ground "
            "coordinate system, valid ground and image domains, illumination and sensor trajectory.",
        .sources =
            "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition; OSSIM RSM tag class; VXL "
            "RSM TRE definitions",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

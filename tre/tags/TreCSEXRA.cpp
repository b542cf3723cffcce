#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSEXRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                   width  need      form     values                        unit       label
    Field("SENSOR",                 6, Required, Text,    "PAN|MS|CAVIS|SWIR",          "",        "Sensor",
          "Sensor to which the values of this extension apply."),
    Field("TIME_FIRST_LINE_IMAGE", 12, Required, Real,    "00000.000000..86400.000000", "s",       "Time of First Image Line",
          "Time of the first line of the collected image, counted from midnight UTC."),
    Field("TIME_IMAGE_DURATION",   12, Required, Real,    "-9999.999999..86400.000000", "s",       "Image Duration Time",
          "Time between the first and the last line; a negative value means that the data run backwards in time."),
    Field("MAX_GSD",                5, Required, Real,    "000.0..999.9",               "in",      "Maximum Mean Ground Sample Distance",
          "Largest mean ground sample distance predicted for the main target."),
    Field("ALONG_SCAN_GSD",         5, Required, Real,    "000.0..999.9|N/A",           "in",      "Along Scan Ground Sample Distance",
          "Measured ground sample distance in the scan direction at the main target."),
    Field("CROSS_SCAN_GSD",         5, Required, Real,    "000.0..999.9|N/A",           "in",      "Cross Scan Ground Sample Distance",
          "Measured ground sample distance across the scan direction at the main target."),
    Field("GEO_MEAN_GSD",           5, Required, Real,    "000.0..999.9|N/A",           "in",      "Geometric Mean Ground Sample Distance",
          "Geometric mean of the along scan and cross scan ground sample distances."),
    Field("A_S_VERT_GSD",           5, Required, Real,    "000.0..999.9|N/A",           "in",      "Along Scan Vertical Ground Sample Distance",
          "Measured sample distance in the scan direction on a vertical surface."),
    Field("C_S_VERT_GSD",           5, Required, Real,    "000.0..999.9|N/A",           "in",      "Cross Scan Vertical Ground Sample Distance",
          "Measured sample distance across the scan direction on a vertical surface."),
    Field("GEO_MEAN_VERT_GSD",      5, Required, Real,    "000.0..999.9|N/A",           "in",      "Geometric Mean Vertical Ground Sample Distance",
          "Geometric mean of the two vertical sample distances."),
    Field("GSD_BETA_ANGLE",         5, Required, Real,    "000.0..180.0|N/A",           "deg",     "Ground Sample Distance Beta Angle",
          "Angle on the ground between the scan direction and the direction across it.").Alias("GEO_BETA_ANGLE"),
    Field("DYNAMIC_RANGE",          5, Required, Integer, "00000..99999",               "",        "Dynamic Range of Pixels",
          "Extent of the pixel values in the image; 00000 to 02047 for 11-bit imagery."),
    Field("NUM_LINES",              7, Required, Integer, "0000101..9999999",           "lines",   "Number of Lines",
          "How many lines the delivered product has."),
    Field("NUM_SAMPLES",            5, Required, Integer, "00101..99999",               "samples", "Number of Samples",
          "How many samples each line of the delivered product has."),
    Field("ANGLE_TO_NORTH",         7, Required, Real,    "000.000..360.000|-------=unknown", "deg", "Nominal Angle to True North",
          "Clockwise angle from the first row of the image to true north at the start of imaging."),
    Field("OBLIQUITY_ANGLE",        6, Required, Real,    "00.000..90.000",             "deg",     "Nominal Obliquity Angle",
          "Angle between the local vertical at the target and the line of sight to the sensor."),
    Field("AZ_OF_OBLIQUITY",        7, Required, Real,    "000.000..360.000",           "deg",     "Azimuth of Obliquity",
          "Clockwise direction from true north in which the sensor is seen from the target."),
    Field("GRD_COVER",              1, Required, Integer, "0=no snow|1=snow|9=not available", "", "Ground Cover",
          "Tells whether snow lies on the ground."),
    Field("SNOW_DEPTH_CAT",         1, Required, Integer,
          "0=none|1=1 to 8 inches or ice|2=9 to 17 inches|3=more than 17 inches|9=not available",
          "", "Snow Depth Category",
          "Class of the average snow depth in the imaged area."),
    Field("SUN_AZIMUTH",            7, Required, Real,    "000.000..360.000",           "deg",     "Sun Azimuth Angle",
          "Clockwise direction of the sun from true north, seen from the target at the start of imaging."),
    Field("SUN_ELEVATION",          7, Required, Real,    "-90.000..+90.000",           "deg",     "Sun Elevation Angle",
          "Height of the sun above the local horizontal plane at the target at the start of imaging."),
    Field("PREDICTED_NIIRS",        3, Required, Real,    "0.0..9.0|N/A",               "",        "Predicted NIIRS",
          "Expected quality of the image on the national interpretability rating scale."),
    Field("CIRCL_ERR",              3, Required, Integer, "000..999",                   "ft",      "Circular Error",
          "Predicted horizontal location error of the scene at 90 percent probability."),
    Field("LINEAR_ERR",             3, Required, Integer, "000..999",                   "ft",      "Linear Error",
          "Predicted vertical location error of the scene at 90 percent probability."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 132);

}  // namespace

const Detail::TreLayout& TreCSEXRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSEXRA",
        .name = "Exploitation Reference Data",
        .length = 132,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Sums up what an analyst wants to know about a commercial image: times, ground sample distances, "
            "viewing and sun angles, snow, predicted quality and accuracy.",
        .sources =
            "STDI-0006 Table 3.5-1; STDI-0002 Volume 1 Appendix D, Table D-4 (2025-02); GDAL TRE description "
            "file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; OSML imagery-io "
            "structure definition; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

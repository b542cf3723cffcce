#include "fields/FieldWalk.h"
#include "fields/RowList.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSENSRB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow MODULES[] = {
    //    tag                       width need              form     values                             unit                     label
    Field("GENERAL_DATA",              1, Required,         Text,    "Y=present|N=absent",              "",                      "General Data Flag",
          "Tells whether the general data about sensor, platform, units and times follow."),
    When("GENERAL_DATA", "Y"),
        Field("SENSOR",                   25, Conditional,      Text,    "",                                "",                      "Sensor Name",
              "Registered name or model of the sensor."),
        Field("SENSOR_URI",               32, ConditionalBlank, Text,    "",                                "",                      "Sensor URI",
              "Uniform resource identifier of the sensor."),
        Field("PLATFORM",                 25, Conditional,      Text,    "",                                "",                      "Platform Common Name",
              "Common name of the platform that carried the sensor."),
        Field("PLATFORM_URI",             32, ConditionalBlank, Text,    "",                                "",                      "Platform URI",
              "Uniform resource identifier of the platform."),
        Field("OPERATION_DOMAIN",         10, Conditional,      Text,
              "Airborne|Spaceborne|Waterborne|Ground",
              "", "Operation Domain",
              "Surroundings in which the platform moved."),
        Field("CONTENT_LEVEL",             1, Conditional,      Integer, "0..9",                            "",                      "Content Level",
              "Number that says for which uses the extension holds enough data; the higher, the more modules are "
              "filled."),
        Field("GEODETIC_SYSTEM",           5, Conditional,      Text,    "any=such as WGS84",               "",                      "Geodetic System",
              "Geodetic reference system of all positions in the extension."),
        Field("GEODETIC_TYPE",             1, Conditional,      Text,
              "G=geographic|C=geocentric Cartesian",
              "", "Geodetic Type",
              "Tells whether positions are latitude, longitude and height or earth-centred x, y and z."),
        Field("ELEVATION_DATUM",           3, Conditional,      Text,
              "HAE=height above the ellipsoid|MSL=mean sea level|AGL=above ground level",
              "", "Elevation Datum",
              "Surface from which elevations and altitudes are counted."),
        Field("LENGTH_UNIT",               2, Conditional,      Text,    "SI=metric|EE=English",            "",                      "Length Unit System",
              "System of units of all lengths and speeds in the extension."),
        Field("ANGULAR_UNIT",              3, Conditional,      Text,
              "DEG=degrees|RAD=radians|SMC=semicircles",
              "", "Angular Unit",
              "Unit of all angles in the extension."),
        Field("START_DATE",                8, Conditional,      Date,    "{YYYYMMDD}",                      "UTC",                   "Imaging Start Date",
              "Day on which the collection of the image began."),
        Field("START_TIME",               14, Conditional,      Real,    "0..86400|--------------=unknown", "s",                     "Imaging Start Time",
              "Time at which the collection began, counted from the start of that day."),
        Field("END_DATE",                  8, Conditional,      Date,    "{YYYYMMDD}",                      "UTC",                   "Imaging End Date",
              "Day on which the collection of the image ended."),
        Field("END_TIME",                 14, Conditional,      Real,    "0..86400|--------------=unknown", "s",                     "Imaging End Time",
              "Time at which the collection ended, counted from the start of that day."),
        Field("GENERATION_COUNT",          2, Conditional,      Integer, "00=as first made|01..99",         "",                      "Generation Count",
              "How many times the data of the extension have been adjusted."),
        Field("GENERATION_DATE",           8, Conditional,      Date,    "{YYYYMMDD}",                      "UTC",                   "Generation Date",
              "Day of the latest adjustment of the data."),
        Field("GENERATION_TIME",          10, Conditional,      Time,    "{hhmmss.sss}|----------=none",    "UTC",                   "Generation Time",
              "Time of day of the latest adjustment of the data."),
    End(),
    Field("SENSOR_ARRAY_DATA",         1, Required,         Text,    "Y=present|N=absent",              "",                      "Sensor Array Data Flag",
          "Tells whether the description of the detector array follows."),
    When("SENSOR_ARRAY_DATA", "Y"),
        Field("DETECTION",                20, Conditional,      Text,    "any=such as PAN or VIS",          "",                      "Detection Type",
              "Kind of radiation or signal that the sensor detects."),
        Field("ROW_DETECTORS",             8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "", "Row Detectors",
              "Number of detector rows that were used."),
        Field("COLUMN_DETECTORS",          8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "", "Column Detectors",
              "Number of detector columns that were used."),
        Field("ROW_METRIC",                8, Conditional,      Real,    "0..9E99|--------=unknown",        "cm or in (LENGTH_UNIT)", "Row Metric",
              "Physical size of the used detector rows."),
        Field("COLUMN_METRIC",             8, Conditional,      Real,    "0..9E99|--------=unknown",        "cm or in (LENGTH_UNIT)", "Column Metric",
              "Physical size of the used detector columns."),
        Field("FOCAL_LENGTH",              8, Conditional,      Real,    "0..9E99|--------=unknown",        "cm or in (LENGTH_UNIT)", "Focal Length",
              "Best known effective focal length of the sensor."),
        Field("ROW_FOV",                   8, Conditional,      Real,    "0..9E99|--------=unknown",        "deg, rad or semicircles (ANGULAR_UNIT)", "Row Field of View",
              "Angle of view that the used rows span."),
        Field("COLUMN_FOV",                8, Conditional,      Real,    "0..9E99|--------=unknown",        "deg, rad or semicircles (ANGULAR_UNIT)", "Column Field of View",
              "Angle of view that the used columns span."),
        Field("CALIBRATED",                1, Conditional,      Text,    "Y|N",                             "",                      "Focal Length Calibration Flag",
              "Tells whether the focal length comes from a calibration."),
    End(),
    Field("SENSOR_CALIBRATION_DATA",   1, Required,         Text,    "Y=present|N=absent",              "",                      "Sensor Calibration Data Flag",
          "Tells whether the calibration of the sensor follows."),
    When("SENSOR_CALIBRATION_DATA", "Y"),
        Field("CALIBRATION_UNIT",          2, Conditional,      Text,    "mm=millimetres|px=pixels",        "",                      "Calibration Unit System",
              "Unit in which the calibration values are given."),
        Field("PRINCIPAL_POINT_OFFSET_X",  9, Conditional,      Real,    "-9E99..9E99|---------=unknown",   "mm or pixels (CALIBRATION_UNIT)", "Principal Point Offset X",
              "Offset of the principal point along the image x axis."),
        Field("PRINCIPAL_POINT_OFFSET_Y",  9, Conditional,      Real,    "-9E99..9E99|---------=unknown",   "mm or pixels (CALIBRATION_UNIT)", "Principal Point Offset Y",
              "Offset of the principal point along the image y axis."),
        Field("RADIAL_DISTORT_1",         12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Radial Distortion Coefficient 1",
              "First coefficient (k1) of the radial lens distortion."),
        Field("RADIAL_DISTORT_2",         12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Radial Distortion Coefficient 2",
              "Second coefficient (k2) of the radial lens distortion."),
        Field("RADIAL_DISTORT_3",         12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Radial Distortion Coefficient 3",
              "Third coefficient (k3) of the radial lens distortion."),
        Field("RADIAL_DISTORT_LIMIT",      9, Conditional,      Real,    "0..9E99|---------=unknown",       "mm or pixels (CALIBRATION_UNIT)", "Radial Distortion Fit Limit",
              "Radius up to which the fit of the radial distortion holds."),
        Field("DECENT_DISTORT_1",         12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Decentering Distortion Coefficient 1",
              "First coefficient (p1) of the decentring lens distortion."),
        Field("DECENT_DISTORT_2",         12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Decentering Distortion Coefficient 2",
              "Second coefficient (p2) of the decentring lens distortion."),
        Field("AFFINITY_DISTORT_1",       12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Affinity Distortion Coefficient 1",
              "First coefficient (b1) of the affine distortion of the image axes."),
        Field("AFFINITY_DISTORT_2",       12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Affinity Distortion Coefficient 2",
              "Second coefficient (b2) of the affine distortion of the image axes."),
        Field("CALIBRATION_DATE",          8, Conditional,      Date,    "{YYYYMMDD}",                      "",                      "Calibration Date",
              "Date of the calibration report."),
    End(),
    Field("IMAGE_FORMATION_DATA",      1, Required,         Text,    "Y=present|N=absent",              "",                      "Image Formation Data Flag",
          "Tells whether the way in which the image was formed is described."),
    When("IMAGE_FORMATION_DATA", "Y"),
        Field("METHOD",                   15, Conditional,      Text,
              "Single Frame|Multi-Frame|Single MIDSI|Multi-MIDSI|Pushbroom|Whiskbroom",
              "", "Imaging Method",
              "Method by which the sensor formed the image."),
        Field("MODE",                      3, Conditional,      Text,    "any=usually three digits",        "",                      "Imaging Mode",
              "Number of the imaging mode of the sensor."),
        Field("ROW_COUNT",                 8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "rows", "Row Count",
              "Number of rows of the image as it was formed."),
        Field("COLUMN_COUNT",              8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "columns", "Column Count",
              "Number of columns of the image as it was formed."),
        Field("ROW_SET",                   8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "rows", "Row Detection Set",
              "Number of rows that are detected at one instant."),
        Field("COLUMN_SET",                8, Conditional,      Integer,
              "00000001..99999999|--------=unknown",
              "columns", "Column Detection Set",
              "Number of columns that are detected at one instant."),
        Field("ROW_RATE",                 10, Conditional,      Real,    "-9E99..9E99|----------=unknown",  "",                      "Row Detection Rate",
              "Rate at which the sets of rows are detected one after the other."),
        Field("COLUMN_RATE",              10, Conditional,      Real,    "-9E99..9E99|----------=unknown",  "",                      "Column Detection Rate",
              "Rate at which the sets of columns are detected one after the other."),
        Field("FIRST_PIXEL_ROW",           8, Conditional,      Integer,
              "00000000..99999999|--------=unknown",
              "rows", "First Collected Pixel Row",
              "Row of the pixel that was collected first."),
        Field("FIRST_PIXEL_COLUMN",        8, Conditional,      Integer,
              "00000000..99999999|--------=unknown",
              "columns", "First Collected Pixel Column",
              "Column of the pixel that was collected first."),
        Field("TRANSFORM_PARAMS",          1, Conditional,      Integer, "0..8",                            "",                      "Image Transform Parameter Count",
              "How many parameters of the image transform follow; the number tells the kind of transform."),
        Repeat("TRANSFORM_PARAMS"),
            Field("TRANSFORM_PARAM",          12, Conditional,      Real,    "-9E99..9E99|------------=unknown", "",                      "Image Transform Parameter",
                  "One parameter of the image transform."),
        End(),
    End(),
    Field("REFERENCE_TIME",           12, Required,         Real,    "-9E99..9E99|------------=none",   "s",                     "Reference Time",
          "Time to which the position and attitude values belong, counted from the start of imaging."),
    Field("REFERENCE_ROW",             8, Required,         Real,    "-9E99..9E99|--------=none",       "rows",                  "Reference Pixel Row",
          "Row of the pixel to which the position and attitude values belong."),
    Field("REFERENCE_COLUMN",          8, Required,         Real,    "-9E99..9E99|--------=none",       "columns",               "Reference Pixel Column",
          "Column of the pixel to which the position and attitude values belong."),
    Field("LATITUDE_OR_X",            11, Required,         Real,    "-9E99..9E99|-----------=unknown", "deg (GEODETIC_TYPE=G); m or ft (LENGTH_UNIT) (GEODETIC_TYPE=C)", "Latitude or X",
          "Latitude, or earth-centred x coordinate, of the sensor or its platform."),
    Field("LONGITUDE_OR_Y",           12, Required,         Real,    "-9E99..9E99|------------=unknown", "deg (GEODETIC_TYPE=G); m or ft (LENGTH_UNIT) (GEODETIC_TYPE=C)", "Longitude or Y",
          "Longitude, or earth-centred y coordinate, of the sensor or its platform."),
    Field("ALTITUDE_OR_Z",            11, Required,         Real,    "-9E99..9E99|-----------=unknown", "m or ft (LENGTH_UNIT)", "Altitude or Z",
          "Altitude, or earth-centred z coordinate, of the sensor or its platform."),
    Field("SENSOR_X_OFFSET",           8, Required,         Real,    "-9E99..9E99|--------=unknown",    "m or ft (LENGTH_UNIT)", "Sensor X Position Offset",
          "Offset of the sensor from the given position along the x axis."),
    Field("SENSOR_Y_OFFSET",           8, Required,         Real,    "-9E99..9E99|--------=unknown",    "m or ft (LENGTH_UNIT)", "Sensor Y Position Offset",
          "Offset of the sensor from the given position along the y axis."),
    Field("SENSOR_Z_OFFSET",           8, Required,         Real,    "-9E99..9E99|--------=unknown",    "m or ft (LENGTH_UNIT)", "Sensor Z Position Offset",
          "Offset of the sensor from the given position along the z axis."),
    Field("ATTITUDE_EULER_ANGLES",     1, Required,         Text,    "Y=present|N=absent",              "",                      "Attitude Euler Angles Flag",
          "Tells whether the attitude is given by Euler angles."),
    When("ATTITUDE_EULER_ANGLES", "Y"),
        Field("SENSOR_ANGLE_MODEL",        1, Conditional,      Integer, "1..3",                            "",                      "Sensor Angle Model",
              "Number of the rotation order that the three sensor angles follow."),
        Field("SENSOR_ANGLE_1",           10, Conditional,      Real,    "-180..+180|----------=unknown",   "deg, rad or semicircles (ANGULAR_UNIT)", "Sensor Angle 1",
              "First rotation angle of the sensor."),
        Field("SENSOR_ANGLE_2",            9, Conditional,      Real,    "-90..+90|---------=unknown",      "deg, rad or semicircles (ANGULAR_UNIT)", "Sensor Angle 2",
              "Second rotation angle of the sensor."),
        Field("SENSOR_ANGLE_3",           10, Conditional,      Real,    "-180..+180|----------=unknown",   "deg, rad or semicircles (ANGULAR_UNIT)", "Sensor Angle 3",
              "Third rotation angle of the sensor."),
        Field("PLATFORM_RELATIVE",         1, Conditional,      Text,    "Y|N",                             "",                      "Platform Relative Angles",
              "Tells whether the sensor angles are counted from the attitude of the platform."),
        Field("PLATFORM_HEADING",          9, Conditional,      Real,    "0..360|---------=not given",      "deg, rad or semicircles (ANGULAR_UNIT)", "Platform Heading",
              "Heading of the platform."),
        Field("PLATFORM_PITCH",            9, Conditional,      Real,    "-90..+90|---------=not given",    "deg, rad or semicircles (ANGULAR_UNIT)", "Platform Pitch",
              "Pitch angle of the platform."),
        Field("PLATFORM_ROLL",            10, Conditional,      Real,    "-180..+180|----------=not given", "deg, rad or semicircles (ANGULAR_UNIT)", "Platform Roll",
              "Roll angle of the platform."),
    End(),
    Field("ATTITUDE_UNIT_VECTORS",     1, Required,         Text,    "Y=present|N=absent",              "",                      "Attitude Unit Vectors Flag",
          "Tells whether the attitude is given by unit vectors."),
    When("ATTITUDE_UNIT_VECTORS", "Y"),
        Field("ICX_NORTH_OR_X",           10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate X Unit Vector, North or X",
              "Component towards north (or earth-centred x) of the unit vector along the x axis of the image "
              "coordinate system."),
        Field("ICX_EAST_OR_Y",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate X Unit Vector, East or Y",
              "Component towards east (or earth-centred y) of the unit vector along the x axis of the image "
              "coordinate system."),
        Field("ICX_DOWN_OR_Z",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate X Unit Vector, Down or Z",
              "Component towards down (or earth-centred z) of the unit vector along the x axis of the image "
              "coordinate system."),
        Field("ICY_NORTH_OR_X",           10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Y Unit Vector, North or X",
              "Component towards north (or earth-centred x) of the unit vector along the y axis of the image "
              "coordinate system."),
        Field("ICY_EAST_OR_Y",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Y Unit Vector, East or Y",
              "Component towards east (or earth-centred y) of the unit vector along the y axis of the image "
              "coordinate system."),
        Field("ICY_DOWN_OR_Z",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Y Unit Vector, Down or Z",
              "Component towards down (or earth-centred z) of the unit vector along the y axis of the image "
              "coordinate system."),
        Field("ICZ_NORTH_OR_X",           10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Z Unit Vector, North or X",
              "Component towards north (or earth-centred x) of the unit vector along the z axis of the image "
              "coordinate system."),
        Field("ICZ_EAST_OR_Y",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Z Unit Vector, East or Y",
              "Component towards east (or earth-centred y) of the unit vector along the z axis of the image "
              "coordinate system."),
        Field("ICZ_DOWN_OR_Z",            10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Image Coordinate Z Unit Vector, Down or Z",
              "Component towards down (or earth-centred z) of the unit vector along the z axis of the image "
              "coordinate system."),
    End(),
    Field("ATTITUDE_QUATERNION",       1, Required,         Text,    "Y=present|N=absent",              "",                      "Attitude Quaternion Flag",
          "Tells whether the attitude is given by a quaternion."),
    When("ATTITUDE_QUATERNION", "Y"),
        Field("ATTITUDE_Q1",              10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Attitude Quaternion Vector Component 1",
              "First component of the vector part of the attitude quaternion."),
        Field("ATTITUDE_Q2",              10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Attitude Quaternion Vector Component 2",
              "Second component of the vector part of the attitude quaternion."),
        Field("ATTITUDE_Q3",              10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Attitude Quaternion Vector Component 3",
              "Third component of the vector part of the attitude quaternion."),
        Field("ATTITUDE_Q4",              10, Conditional,      Real,    "-1..+1|----------=unknown",       "",                      "Attitude Quaternion Scalar Component",
              "Scalar part of the attitude quaternion."),
    End(),
    Field("SENSOR_VELOCITY_DATA",      1, Required,         Text,    "Y=present|N=absent",              "",                      "Sensor Velocity Data Flag",
          "Tells whether the velocity of the sensor follows."),
    When("SENSOR_VELOCITY_DATA", "Y"),
        Field("VELOCITY_NORTH_OR_X",       9, Conditional,      Real,    "-9E99..9E99|---------=unknown",   "m/s or ft/s (LENGTH_UNIT)", "Sensor Velocity, North or X",
              "Velocity of the sensor towards north (or earth-centred x)."),
        Field("VELOCITY_EAST_OR_Y",        9, Conditional,      Real,    "-9E99..9E99|---------=unknown",   "m/s or ft/s (LENGTH_UNIT)", "Sensor Velocity, East or Y",
              "Velocity of the sensor towards east (or earth-centred y)."),
        Field("VELOCITY_DOWN_OR_Z",        9, Conditional,      Real,    "-9E99..9E99|---------=unknown",   "m/s or ft/s (LENGTH_UNIT)", "Sensor Velocity, Down or Z",
              "Velocity of the sensor towards down (or earth-centred z)."),
    End(),
};
// clang-format on

/// A module of the table: the number that indices begin with, its first field and the number of its fields.
struct Module
{
    std::string_view number;
    std::string_view first;
    std::size_t fields;
};

constexpr Module NUMBERED[] = {
    {"02", "DETECTION", 9},      {"03", "CALIBRATION_UNIT", 12}, {"04", "METHOD", 10},
    {"05", "REFERENCE_TIME", 3}, {"06", "LATITUDE_OR_X", 6},     {"07", "SENSOR_ANGLE_MODEL", 8},
    {"08", "ICX_NORTH_OR_X", 9}, {"09", "ATTITUDE_Q1", 4},       {"10", "VELOCITY_NORTH_OR_X", 3},
};

/// The width of the field that an index such as 06a names: the first field of module 6.
bool WidthOfField(std::string_view aIndex, std::uint64_t& aOut)
{
    for (const Module& module : NUMBERED) {
        if (aIndex.size() != 3 || !aIndex.starts_with(module.number) || aIndex[2] < 'a' ||
            static_cast<std::size_t>(aIndex[2] - 'a') >= module.fields) {
            continue;
        }
        const auto* const first = std::find_if(std::begin(MODULES), std::end(MODULES), [&module](const FieldRow& aRow) {
            return aRow.IsField() && module.first == aRow.tag;
        });
        aOut = first[aIndex[2] - 'a'].width;
        return true;
    }
    return false;
}

bool WidthOfTimeValue(const WalkContext& aContext, std::uint64_t& aOut)
{
    return WidthOfField(aContext.Text("TIME_STAMP_TYPE"), aOut);
}

bool WidthOfPixelValue(const WalkContext& aContext, std::uint64_t& aOut)
{
    return WidthOfField(aContext.Text("PIXEL_REFERENCE_TYPE"), aOut);
}

// clang-format off
constexpr FieldRow SETS[] = {
    //    tag                         width need         form     values                            unit                     label
    Field("POINT_SET_DATA",                 2, Required,    Integer, "00..99",                         "",                      "Number of Point Sets",
          "How many sets of points follow."),
    Repeat("POINT_SET_DATA"),
        Field("POINT_SET_TYPE",                25, Conditional, Text,
              "any=such as Image Center or Image Footprint",
              "", "Point Set Type",
              "What the points of this set are."),
        Field("POINT_COUNT",                    3, Conditional, Integer, "001..999",                       "",                      "Point Count",
              "How many points the set has."),
        Repeat("POINT_COUNT"),
            Field("P_ROW",                          8, Conditional, Real,    "-9E99..9E99|--------=unknown",   "rows",                  "Point Row Location",
                  "Image row of the point."),
            Field("P_COLUMN",                       8, Conditional, Real,    "-9E99..9E99|--------=unknown",   "columns",               "Point Column Location",
                  "Image column of the point."),
            Field("P_LATITUDE",                    10, Conditional, Real,    "-90..+90|----------=unknown",    "deg",                   "Point Latitude",
                  "Latitude of the point on the ground."),
            Field("P_LONGITUDE",                   11, Conditional, Real,    "-180..+180|-----------=unknown", "deg",                   "Point Longitude",
                  "Longitude of the point on the ground."),
            Field("P_ELEVATION",                    6, Conditional, Real,    "-9E99..9E99|------=unknown",     "m or ft (LENGTH_UNIT)", "Point Elevation",
                  "Elevation of the point."),
            Field("P_RANGE",                        8, Conditional, Real,    "0..9E99|--------=unknown",       "m or ft (LENGTH_UNIT)", "Point Range",
                  "Distance from the sensor to the point."),
        End(),
    End(),
    Field("TIME_STAMPED_DATA_SETS",         2, Required,    Integer, "00..99",                         "",                      "Number of Time Stamped Data Sets",
          "How many sets of values with their times follow."),
    Repeat("TIME_STAMPED_DATA_SETS"),
        Field("TIME_STAMP_TYPE",                3, Conditional, Text,
              "02a..02i|03a..03l|04a..04j|05a..05c|06a..06f|07a..07h|08a..08i|09a..09d|10a..10c",
              "", "Time Stamp Type",
              "Index of the field whose values at several times the set gives, for instance 06c for the altitude."),
        Field("TIME_STAMP_COUNT",               4, Conditional, Integer, "0001..9999",                     "",                      "Time Stamp Parameter Count",
              "How many values the set has."),
        Repeat("TIME_STAMP_COUNT"),
            Field("TIME_STAMP_TIME",               12, Conditional, Real,
                  "-9E99..9E99|------------=unknown",
                  "s", "Time Stamp Time",
                  "Time of the value, counted from the start of imaging."),
            Computed("TIME_STAMP_VALUE", WidthOfTimeValue, Conditional, Text,    "",                               "unit of the field that TIME_STAMP_TYPE names", "Time Stamp Value",
                  "Value of the named field at that time.").By("TIME_STAMP_TYPE"),
        End(),
    End(),
    Field("PIXEL_REFERENCED_DATA_SETS",     2, Required,    Integer, "00..99",                         "",                      "Number of Pixel Referenced Data Sets",
          "How many sets of values with their pixels follow."),
    Repeat("PIXEL_REFERENCED_DATA_SETS"),
        Field("PIXEL_REFERENCE_TYPE",           3, Conditional, Text,
              "02a..02i|03a..03l|04a..04j|05a..05c|06a..06f|07a..07h|08a..08i|09a..09d|10a..10c",
              "", "Pixel Reference Type",
              "Index of the field whose values at several pixels the set gives."),
        Field("PIXEL_REFERENCE_COUNT",          4, Conditional, Integer, "0001..9999",                     "",                      "Pixel Reference Parameter Count",
              "How many values the set has."),
        Repeat("PIXEL_REFERENCE_COUNT"),
            Field("PIXEL_REFERENCE_ROW",            8, Conditional, Real,    "-9E99..9E99|--------=unknown",   "rows",                  "Pixel Reference Row",
                  "Row of the pixel to which the value belongs."),
            Field("PIXEL_REFERENCE_COLUMN",         8, Conditional, Real,    "-9E99..9E99|--------=unknown",   "columns",               "Pixel Reference Column",
                  "Column of the pixel to which the value belongs."),
            Computed("PIXEL_REFERENCE_VALUE", WidthOfPixelValue, Conditional, Text,    "",                               "unit of the field that PIXEL_REFERENCE_TYPE names", "Pixel Reference Value",
                  "Value of the named field at that pixel.").By("PIXEL_REFERENCE_TYPE"),
        End(),
    End(),
    Field("UNCERTAINTY_DATA",               3, Required,    Integer, "000..999",                       "",                      "Number of Uncertainty Data",
          "How many uncertainty values follow."),
    Repeat("UNCERTAINTY_DATA"),
        Field("UNCERTAINTY_FIRST_TYPE",        11, Conditional, Text,
              "any=index of a field such as 06a",
              "", "Uncertainty First Index",
              "Index of the field whose uncertainty is given."),
        Field("UNCERTAINTY_SECOND_TYPE",       11, Conditional, Text,
              "any=index of a field|-----------=none",
              "", "Uncertainty Second Index",
              "Index of a second field when the value is the correlation of the errors of two fields."),
        Field("UNCERTAINTY_VALUE",             10, Conditional, Real,    "-9E99..9E99",                    "unit of the field for a standard deviation", "Uncertainty Value",
              "Standard deviation of the first field, or the correlation of the errors of both fields."),
    End(),
    Field("ADDITIONAL_PARAMETER_DATA",      3, Required,    Integer, "000..999",                       "",                      "Number of Additional Parameters",
          "How many additional parameters follow."),
    Repeat("ADDITIONAL_PARAMETER_DATA"),
        Field("PARAMETER_NAME",                25, Conditional, Text,    "",                               "",                      "Parameter Name",
              "Name of the additional parameter."),
        Field("PARAMETER_SIZE",                 3, Conditional, Integer, "001..999",                       "bytes",                 "Parameter Field Size",
              "Width of each value of the parameter."),
        Field("PARAMETER_COUNT",                4, Conditional, Integer, "0001..9999",                     "",                      "Parameter Value Count",
              "How many values the parameter has."),
        Repeat("PARAMETER_COUNT"),
            Sized("PARAMETER_VALUE",            "PARAMETER_SIZE", 0, Conditional, Text,    "",                               "",                      "Parameter Value",
                  "One value of the additional parameter."),
        End(),
    End(),
};
// clang-format on
// Some producers leave blank what they have no value for, or write a blank in place of N.
constexpr auto ROWS = JoinRows(OftenBlank(MODULES).rows, OftenBlank(SETS).rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 106);

}  // namespace

const Detail::TreLayout& TreSENSRB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SENSRB",
        .name = "General Electro-Optical Sensor Parameters",
        .length = 0,
        .lengthRule = "106 and the modules that are present; 106..99985",
        .placement = "image subheader",
        .purpose =
            "Describes an electro-optical sensor and its platform in fifteen modules, most of them optional: identity "
            "and units, detector array, calibration, image formation, position, attitude, velocity, points, values "
            "that change with time or pixel, uncertainties and further parameters. Supersedes SENSRA.",
        .sources =
            "GDAL TRE description file; imaging-nitf TRE description file (same lineage as GDAL) and its thirteen "
            "sample records, twelve of them with their field values; NITRO plug-in table; pynitf TRE definition "
            "(cites STDI-0002 page Z-13); Opticks NITF TRE parser; nitful TRE definition (cites App Z); NFX MATLAB "
            "TRE class (cites STDI-0002-1 App Z, Table Z.3-1); OSML imagery-io structure definition (cites STDI-0002 "
            "Vol 1 App Z, version 2.2)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "Fields without a value hold hyphens, with some producers blanks. The values of the sets that change "
            "with time or pixel are as wide as the field that their type names; OSML reads 12 bytes for every type, "
            "which is right for few. NFX alone knows 04k to 04s as types. OSML allows 6 transform parameters, the "
            "others 8, and a fourth sensor angle model. A continuation record holds N for modules 1 to 4 and 7 to 10 "
            "and repeats modules 5 and 6."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

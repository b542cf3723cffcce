#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSENSRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag               width  need           form      values                unit               label
    Field("REF_ROW",            8, RequiredBlank, Integer,  "00000000..99999999", "pixels",          "Reference Row",
          "Image row of the pixel to which the other values refer.").Alias("REFROW"),
    Field("REF_COL",            8, RequiredBlank, Integer,  "00000000..99999999", "pixels",          "Reference Column",
          "Image column of the pixel to which the other values refer."),
    Field("SENSOR_MODEL",       6, RequiredBlank, Text,     "",                   "",                "Sensor Model Name",
          "Model name of the sensor, for example CA236.").Alias("SNSMODEL"),
    Field("SENSOR_MOUNT",       3, RequiredBlank, Integer,  "-45..+45",           "deg",             "Sensor Mounting Pitch Angle",
          "Pitch angle at which the sensor is mounted on the platform."),
    Field("SENSOR_LOC",        21, RequiredBlank, Location, "{ddmmss.ssXdddmmss.ssY}|{+dd.dddddd+ddd.dddddd}", "", "Sensor Location",
          "Latitude and longitude of the sensor."),
    Field("SENSOR_ALT_SOURCE",  1, RequiredBlank, Text,
          "B=barometric altimeter|G=GPS|M=manual or mixed|R=radar altimeter",
          "", "Sensor Altitude Source",
          "Instrument from which the sensor altitude was taken.").Alias("SENSOR_ALT_SRC"),
    Field("SENSOR_ALT",         6, RequiredBlank, Integer,  "-01000..+99000",     "ft or m (SENSOR_ALT_UNIT)", "Sensor Altitude",
          "Height of the sensor in the reference of its source."),
    Field("SENSOR_ALT_UNIT",    1, RequiredBlank, Text,     "f=feet|m=metres",    "",                "Unit of Sensor Altitude",
          "Unit of the sensor altitude and of the height above ground."),
    Field("SENSOR_AGL",         5, RequiredBlank, Integer,  "00010..99000",       "ft or m (SENSOR_ALT_UNIT)", "Sensor Altitude Above Ground Level",
          "Height of the sensor above the ground below it."),
    Field("SENSOR_PITCH",       7, RequiredBlank, Real,     "-90.000..+90.000",   "deg",             "Sensor Pitch Angle",
          "Pitch angle of the sensor line of sight."),
    Field("SENSOR_ROLL",        8, RequiredBlank, Real,     "-180.000..+180.000", "deg",             "Sensor Roll Angle",
          "Roll angle of the sensor."),
    Field("SENSOR_YAW",         8, RequiredBlank, Real,     "-180.000..+180.000", "deg",             "Sensor Yaw Angle",
          "Yaw angle of the sensor."),
    Field("PLATFORM_PITCH",     7, RequiredBlank, Real,     "-90.000..+90.000",   "deg",             "Platform Pitch Angle",
          "Pitch angle of the platform."),
    Field("PLATFORM_ROLL",      8, RequiredBlank, Real,     "-180.000..+180.000", "deg",             "Platform Roll Angle",
          "Roll angle of the platform."),
    Field("PLATFORM_HDG",       5, RequiredBlank, Real,     "000.0..359.9",       "deg",             "Platform Heading",
          "Heading of the platform, clockwise from north."),
    Field("GROUND_SPD_SOURCE",  1, RequiredBlank, Text,     "R=Doppler radar|N=navigation system|G=GPS|M=manual or mixed", "", "Ground Speed Source",
          "Instrument from which the ground speed was taken.").Alias("GROUND_SPD_SRC"),
    Field("GROUND_SPD",         6, RequiredBlank, Real,     "0000.0..9999.9",     "GROUND_SPD_UNIT", "Ground Speed",
          "Speed of the platform over the ground.").Alias("GROUND_SPEED"),
    Field("GROUND_SPD_UNIT",    1, RequiredBlank, Text,     "k=knots|f=feet per second|m=metres per second", "", "Unit of Ground Speed",
          "Unit of the ground speed.").Alias("GRND_SPD_UNIT"),
    Field("GROUND_TRACK",       5, RequiredBlank, Real,     "000.0..359.9",       "deg",             "Ground Track Angle",
          "Direction of the platform motion over the ground, clockwise from north."),
    Field("VERT_VEL",           5, RequiredBlank, Integer,  "-9999..+9999",       "VERT_VEL_UNIT",   "Vertical Velocity",
          "Speed at which the platform climbs or sinks; upward is positive.").Alias("VERTICAL_VEL"),
    Field("VERT_VEL_UNIT",      1, RequiredBlank, Text,     "f=feet per minute|m=metres per minute", "", "Unit of Vertical Velocity",
          "Unit of the vertical velocity."),
    Field("SWATH_FRAMES",       4, RequiredBlank, Integer,  "0001..9999",         "",                "Frames per Swath",
          "Number of frames in a swath."),
    Field("N_SWATHS",           4, RequiredBlank, Integer,  "0001..9999",         "",                "Number of Swaths",
          "Number of swaths in the imaging operation.").Alias("NUM_SWATHS"),
    Field("SPOT_NUM",           3, RequiredBlank, Integer,  "001..999",           "",                "Spot Number",
          "Number of the point target in a spot mode."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 132);

}  // namespace

const Detail::TreLayout& TreSENSRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SENSRA",
        .name = "EO-IR Sensor Parameters",
        .length = 132,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Position, attitude and motion of an electro-optical or infrared sensor and its platform at a "
            "reference pixel. Superseded by SENSRB.",
        .sources =
            "imaging-nitf TRE description file and its SENSRA test record; NITRO plug-in table; Opticks TRE "
            "parser; OSSIM tag class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The meanings of the source codes are recalled, except the altitude codes B, G and R; code M is not "
            "confirmed."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

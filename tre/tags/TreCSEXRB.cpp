#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSEXRB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                    width need              form      values                             unit       label
    Field("IMAGE_UUID",            36, Required,         Text,
          "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}",
          "", "UUID Assigned to the Current Image Plane",
          "Identifier of the whole image plane that the segment belongs to."),
    Field("NUM_ASSOC_DES",          3, Required,         Integer,  "000..999",                        "",        "Number of Associated DES",
          "How many data extension segments with sensor model data belong to the image; none when the extension only "
          "carries exploitation data."),
    Repeat("NUM_ASSOC_DES"),
        Field("ASSOC_DES_ID",          36, Conditional,      Text,
              "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}",
              "", "UUID of an Associated DES",
              "Identifier of one data extension segment that belongs to the image.").Alias("ASSOC_DES_UUID"),
    End(),
    Field("PLATFORM_ID",            6, Required,         Text,     "",                                "",        "Platform Identifier",
          "Identifier of the platform that collected the image."),
    Field("PAYLOAD_ID",             6, Required,         Text,     "",                                "",        "Payload Identifier",
          "Identifier of the payload that collected the image."),
    Field("SENSOR_ID",              6, Required,         Text,     "",                                "",        "Sensor Identifier",
          "Identifier of the sensor that collected the image."),
    Field("SENSOR_TYPE",            1, RequiredBlank,    Text,
          "S=line scanner|F=framing sensor|blank=not applicable",
          "", "Sensor Type",
          "Kind of sensor; it decides which time fields follow."),
    Field("GROUND_REF_POINT_X",    12, RequiredBlank,    Real,
          "-99999999.99..+99999999.99|blank=not given",
          "m", "X Coordinate of Ground Reference Point",
          "Earth-centred, earth-fixed x coordinate of a ground point to which the other values refer."),
    Field("GROUND_REF_POINT_Y",    12, RequiredBlank,    Real,
          "-99999999.99..+99999999.99|blank=not given",
          "m", "Y Coordinate of Ground Reference Point",
          "Earth-centred, earth-fixed y coordinate of a ground point to which the other values refer."),
    Field("GROUND_REF_POINT_Z",    12, RequiredBlank,    Real,
          "-99999999.99..+99999999.99|blank=not given",
          "m", "Z Coordinate of Ground Reference Point",
          "Earth-centred, earth-fixed z coordinate of a ground point to which the other values refer."),
    When("SENSOR_TYPE", "S"),
        Field("DAY_FIRST_LINE_IMAGE",   8, Conditional,      Date,     "{YYYYMMDD}",                      "UTC",     "Day of First Line of Synthetic Array Image",
              "Day on which the first line of the scanned image was collected."),
        Field("TIME_FIRST_LINE_IMAGE", 15, Conditional,      Real,     "00000..86400",                    "s",       "Time of First Line of Synthetic Array Image",
              "Time at which the collection of the first line began, counted from midnight UTC."),
        Field("TIME_IMAGE_DURATION",   16, Conditional,      Real,     "-86400..+86400",                  "s",       "Image Duration Time",
              "Time between the start of the first and of the last line; negative when the lines run backwards in "
              "time."),
    End(),
    When("SENSOR_TYPE", "F"),
        Field("TIME_STAMP_LOC",         1, Conditional,      Integer,
              "0=in this extension|1=in an MTIMSA extension",
              "", "Location of Frame Time Stamps",
              "Tells where the time stamps of the frames are."),
        When("TIME_STAMP_LOC", "0"),
            Field("REFERENCE_FRAME_NUM",    9, ConditionalBlank, Integer,
                  "000000001..999999999|blank=not given",
                  "", "Reference Frame Number",
                  "Absolute number of the first frame of this block of frames."),
            Field("BASE_TIMESTAMP",        24, Conditional,      Time,     "{YYYYMMDDhhmmss.sssssssss}",      "UTC",     "Base Timestamp",
                  "Time from which the time stamps of the frames are derived."),
            Field("DT_MULTIPLIER",          8, Conditional,      Unsigned, "1..18446744073709551615",         "ns",      "Delta Time Duration",
                  "Length of one time unit."),
            Field("DT_SIZE",                1, Conditional,      Unsigned, "1..8",                            "bytes",   "Byte Size of the Delta Time Values",
                  "Width of each delta time value."),
            Field("NUMBER_FRAMES",          4, Conditional,      Unsigned, "1..4294967295",                   "",        "Number of Frames in the Temporal Block",
                  "How many frames of this camera and block the image segment holds."),
            Field("NUMBER_DT",              4, Conditional,      Unsigned, "0..4294967295",                   "",        "Number of Delta Time Values",
                  "How many delta time values follow: none for a single frame, one for a constant rate, or one for "
                  "each frame."),
            Repeat("NUMBER_DT"),
                Sized("DT",                    "DT_SIZE", 0, Conditional,      Unsigned, "",                                "time units (DT_MULTIPLIER)", "Delta Time Value",
                      "Number of time units between the frame and the one before it."),
            End(),
        End(),
    End(),
    Field("MAX_GSD",               12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Maximum Mean Ground Sample Distance",
          "Largest mean ground sample distance of the image."),
    Field("ALONG_SCAN_GSD",        12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Along Scan Ground Sample Distance",
          "Measured ground sample distance in the scan direction."),
    Field("CROSS_SCAN_GSD",        12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Cross Scan Ground Sample Distance",
          "Measured ground sample distance across the scan direction."),
    Field("GEO_MEAN_GSD",          12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Geometric Mean Ground Sample Distance",
          "Geometric mean of the along scan and cross scan ground sample distances."),
    Field("A_S_VERT_GSD",          12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Along Scan Vertical Ground Sample Distance",
          "Measured sample distance in the scan direction on a vertical surface."),
    Field("C_S_VERT_GSD",          12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Cross Scan Vertical Ground Sample Distance",
          "Measured sample distance across the scan direction on a vertical surface."),
    Field("GEO_MEAN_VERT_GSD",     12, RequiredBlank,    Real,
          "0000000000.0..9999999999.9|blank=not given",
          "in", "Measured Geometric Mean Vertical Ground Sample Distance",
          "Geometric mean of the two vertical sample distances."),
    Field("GSD_BETA_ANGLE",         5, RequiredBlank,    Real,     "000.0..180.0|blank=not given",    "deg",     "Angle Between Along Scan and Cross Scan Directions",
          "Angle on the ground between the scan direction and the direction across it."),
    Field("DYNAMIC_RANGE",          5, RequiredBlank,    Integer,  "00000..99999|blank=not given",    "",        "Dynamic Range of Pixels",
          "Extent of the pixel values over all bands of the image."),
    Field("NUM_LINES",              7, Required,         Integer,  "0000000..9999999",                "lines",   "Number of Lines in the Entire Image Plane",
          "How many lines the whole image plane has."),
    Field("NUM_SAMPLES",            5, Required,         Integer,  "00000..99999",                    "samples", "Number of Samples per Line in the Entire Image Plane",
          "How many samples each line of the whole image plane has."),
    Field("ANGLE_TO_NORTH",         7, RequiredBlank,    Real,     "000.000..359.999|blank=not given", "deg",     "Nominal Angle to True North",
          "Angle from the first row of the image to true north."),
    Field("OBLIQUITY_ANGLE",        6, RequiredBlank,    Real,     "00.000..90.000|blank=not given",  "deg",     "Nominal Obliquity Angle",
          "Angle between the local vertical at the target and the line of sight to the sensor."),
    Field("AZ_OF_OBLIQUITY",        7, RequiredBlank,    Real,     "000.000..359.999|blank=not given", "deg",     "Azimuth of Obliquity",
          "Clockwise direction from true north in which the sensor is seen from the target."),
    Field("ATM_REFR_FLAG",          1, Required,         Integer,  "0=do not apply|1=apply",          "",        "Atmospheric Refraction Flag",
          "Tells whether a user has to correct for the refraction of the atmosphere."),
    Field("VEL_ABER_FLAG",          1, Required,         Integer,  "0=do not apply|1=apply",          "",        "Velocity Aberration Flag",
          "Tells whether a user has to correct for the aberration caused by the velocity of the sensor."),
    Field("GRD_COVER",              1, Required,         Integer,  "0=no snow|1=snow|9=not available", "",        "Ground Cover Flag",
          "Tells whether snow lies on the ground."),
    Field("SNOW_DEPTH_CATEGORY",    1, Required,         Integer,
          "0=none|1=1 to 8 inches|2=9 to 17 inches|3=more than 17 inches|9=not available",
          "", "Snow Depth Category",
          "Class of the snow depth in the imaged area."),
    Field("SUN_AZIMUTH",            7, RequiredBlank,    Real,     "000.000..359.999|blank=not given", "deg",     "Sun Azimuth Angle",
          "Clockwise direction of the sun from true north, seen from the target."),
    Field("SUN_ELEVATION",          7, RequiredBlank,    Real,     "-90.000..+90.000|blank=not given", "deg",     "Sun Elevation Angle",
          "Height of the sun above the local horizontal plane at the target."),
    Field("PREDICTED_NIIRS",        3, RequiredBlank,    Real,     "0.0..9.0|blank=not given",        "",        "Predicted NIIRS",
          "Expected quality of the image on the national interpretability rating scale."),
    Field("CIRCL_ERR",              5, RequiredBlank,    Real,     "000.0..999.9|blank=not given",    "ft",      "Circular Error",
          "Predicted horizontal location error of the image at 90 percent probability."),
    Field("LINEAR_ERR",             5, RequiredBlank,    Real,     "000.0..999.9|blank=not given",    "ft",      "Linear Error",
          "Predicted vertical location error of the image at 90 percent probability."),
    Field("CLOUD_COVER",            3, RequiredBlank,    Integer,
          "000..100|999=unknown|blank=not applicable",
          "percent", "Cloud Cover",
          "Part of the image that clouds cover."),
    When("SENSOR_TYPE", "F"),
        Field("ROLLING_SHUTTER_FLAG",   1, ConditionalBlank, Integer,
              "0=one time for the whole frame|1=time changes within the frame|blank=not applicable",
              "", "Rolling Shutter Flag",
              "Tells whether the parts of a frame were exposed at different times."),
    End(),
    Field("UE_TIME_FLAG",           1, RequiredBlank,    Integer,  "0=no|1=yes|blank=not applicable", "",        "Time Unmodeled Error Flag",
          "Tells whether the time data contain errors that the model does not describe."),
    Field("RESERVED_LEN",           5, Required,         Integer,  "00000..99725",                    "bytes",   "Length of the Reserved Field Areas",
          "How many bytes of reserved data follow."),
    WhenPositive("RESERVED_LEN"),
        Sized("RESERVED",              "RESERVED_LEN", 0, Conditional,      Bytes,    "",                                "",        "Reserved Field Areas",
              "Areas that later editions of the standard use for target, collection and quality data."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCSEXRB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSEXRB",
        .name = "Common Sensor Exploitation Reference Data",
        .length = 0,
        .lengthRule = "260 + 36*NUM_ASSOC_DES, more by SENSOR_TYPE, and RESERVED_LEN; 260..99985",
        .placement = "image subheader (a file header is allowed by NFX and occurs in a real file)",
        .purpose =
            "Ties an image to the data extension segments with its sensor model (GLAS/GFM), gives the time of its "
            "lines or frames, and sums up what an analyst wants to know: sample distances, viewing and sun angles, "
            "snow, quality, accuracy and cloud cover.",
        .sources =
            "GDAL TRE description file (cite STDI-0002-1-v5.0 App AH Table AH.6-1); NITRO plug-in table and test "
            "file; pynitf TRE definition; NFX MATLAB TRE class (cites STDI-0002-2 App M Table M.6-1); nitful TRE "
            "definition; OSSIM NITF tag class (cites App AH Table AH.6.1); OSML imagery-io structure definition "
            "(cites STDI-0002 Vol 2 App M, version 1.2); one real record of 260 bytes",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "NITRO reads ROLLING_SHUTTER_FLAG always, the other sources for a framing sensor only, which a record of "
            "260 bytes bears out. In newer editions RESERVED holds target, collection and quality data, whose least "
            "length the sources do not agree on; it is kept whole. GDAL ends GRD_COVER at 1, newer sources at 9."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

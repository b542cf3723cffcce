#include "fields/FieldRow.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreILLUMB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// The bits of the mask, the most significant being bit 23.
constexpr std::uint64_t BIT_23 = std::uint64_t{1} << 23U;
constexpr std::uint64_t BIT_22 = std::uint64_t{1} << 22U;
constexpr std::uint64_t BIT_21 = std::uint64_t{1} << 21U;
constexpr std::uint64_t BIT_20 = std::uint64_t{1} << 20U;
constexpr std::uint64_t BIT_19 = std::uint64_t{1} << 19U;
constexpr std::uint64_t BIT_18 = std::uint64_t{1} << 18U;
constexpr std::uint64_t BIT_17 = std::uint64_t{1} << 17U;
constexpr std::uint64_t BIT_16 = std::uint64_t{1} << 16U;
constexpr std::uint64_t BIT_15 = std::uint64_t{1} << 15U;
constexpr std::uint64_t BIT_14 = std::uint64_t{1} << 14U;
constexpr std::uint64_t BIT_13 = std::uint64_t{1} << 13U;
constexpr std::uint64_t BIT_12 = std::uint64_t{1} << 12U;
constexpr std::uint64_t BIT_11 = std::uint64_t{1} << 11U;
constexpr std::uint64_t BIT_10 = std::uint64_t{1} << 10U;
constexpr std::uint64_t BIT_9 = std::uint64_t{1} << 9U;
constexpr std::uint64_t BIT_8 = std::uint64_t{1} << 8U;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                  width need              form      values                             unit         label
    Field("NUM_BANDS",            4, Required,         Integer,  "0001..9999",                      "",          "Number of Bands",
          "How many spectral bands the illumination values are given for."),
    Field("BAND_UNIT",           40, Required,         Ecs,      "any=such as 1/cm or Hz",          "",          "Band Unit of Measure",
          "Unit of the band limits."),
    Repeat("NUM_BANDS"),
        Field("LBOUND",              16, Required,         Real,     "0..9.9999999999E+99",             "BAND_UNIT", "Band Lower Bound",
              "Lower limit of the band."),
        Field("UBOUND",              16, Required,         Real,     "0..9.9999999999E+99",             "BAND_UNIT", "Band Upper Bound",
              "Upper limit of the band."),
    End(),
    Field("NUM_OTHERS",           2, Required,         Integer,  "00..99",                          "",          "Number of Other Natural Light Sources",
          "How many natural light sources other than sun and moon are described."),
    Repeat("NUM_OTHERS"),
        Field("OTHER_NAME",          40, Conditional,      Ecs,      "VENUS|AURORA|any=another source", "",          "Name of the Other Light Source",
              "Name of the other light source."),
    End(),
    Field("NUM_COMS",             1, Required,         Integer,  "0..9",                            "",          "Number of Comments",
          "How many comments follow."),
    Repeat("NUM_COMS"),
        Field("COMMENT",             80, Conditional,      Ecs,      "",                                "",          "Comment",
              "Free text about the illumination data."),
    End(),
    Field("GEO_DATUM",           80, Required,         Text,     "",                                "",          "Geodetic Datum Name",
          "Name of the geodetic datum of the positions."),
    Field("GEO_DATUM_CODE",       4, Required,         Text,     "any=such as WGE",                 "",          "Geodetic Datum Code",
          "Code of the geodetic datum."),
    Field("ELLIPSOID_NAME",      80, Required,         Text,     "",                                "",          "Ellipsoid Name",
          "Name of the ellipsoid of the datum."),
    Field("ELLIPSOID_CODE",       3, Required,         Text,     "any=such as WE",                  "",          "Ellipsoid Code",
          "Code of the ellipsoid."),
    Field("VERTICAL_DATUM_REF",  80, RequiredBlank,    Text,
          "any=such as Geodetic|blank=no height given",
          "", "Vertical Datum Reference",
          "Name of the surface from which the heights of the targets are counted."),
    Field("VERTICAL_REF_CODE",    4, RequiredBlank,    Text,
          "GEOD=geodetic|MSL=mean sea level|any=another code|blank=no height given",
          "", "Code of Vertical Reference",
          "Code of the surface from which the heights are counted."),
    Field("EXISTENCE_MASK",       3, Required,         Unsigned, "0..16776960",                     "",          "Bit-wise Existence Mask",
          "Twenty-four flags, the most significant being bit 23, that tell which of the conditional fields below are "
          "present."),
    WhenAnyBit("EXISTENCE_MASK", BIT_23),
        Field("RAD_QUANTITY",        40, Conditional,      Ecs,      "any=such as RADIANCE",            "",          "Radiometric Quantity",
              "Physical quantity of the illumination values."),
        Field("RADQ_UNIT",           40, Conditional,      Ecs,      "any=such as W/(m m sr)",          "",          "Radiometric Quantity Unit",
              "Unit of the illumination values."),
    End(),
    Field("NUM_ILLUM_SETS",       3, Required,         Integer,  "001..999",                        "",          "Number of Illumination Conditions",
          "How many sets of illumination conditions follow."),
    Repeat("NUM_ILLUM_SETS"),
        Field("DATETIME",            14, Required,         Time,     "{YYYYMMDDhhmmss}",                "UTC",       "Illumination Condition Date and Time",
              "Time to which the conditions belong."),
        Field("TARGET_LAT",          10, Required,         Real,     "-90..+90",                        "deg",       "Target Latitude",
              "Latitude of the target."),
        Field("TARGET_LON",          11, Required,         Real,     "-180..+180",                      "deg",       "Target Longitude",
              "Longitude of the target."),
        Field("TARGET_HGT",          14, RequiredBlank,    Real,
              "-9.9999999E+99..9.9999999E+99|blank=unknown",
              "m", "Target Height",
              "Height of the target above the vertical reference surface."),
        WhenAnyBit("EXISTENCE_MASK", BIT_22),
            Field("SUN_AZIMUTH",          5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Sun Azimuth Angle",
                  "Clockwise direction of the sun from true north, seen from the target."),
            Field("SUN_ELEV",             5, Conditional,      Real,     "-90.0..+90.0|-----=unknown",      "deg",       "Sun Elevation Angle",
                  "Angle between the centre of the sun and the horizontal plane at the target."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_21),
            Field("MOON_AZIMUTH",         5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Lunar Azimuth Angle",
                  "Clockwise direction of the moon from true north, seen from the target."),
            Field("MOON_ELEV",            5, Conditional,      Real,     "-90.0..+90.0|-----=unknown",      "deg",       "Lunar Elevation Angle",
                  "Angle between the centre of the moon and the horizontal plane at the target."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_20),
            Field("MOON_PHASE_ANGLE",     6, Conditional,      Real,     "-180.0..+180.0|------=unknown",   "deg",       "Phase Angle of the Moon",
                  "Phase angle of the moon: near -180 at new moon, near 0 at full moon, rising to near +180 "
                  "afterwards."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_19),
            Field("MOON_ILLUM_PERCENT",   3, Conditional,      Integer,  "000..100|---=unknown",            "percent",   "Lunar Illumination Percentage",
                  "Part of the disc of the moon that is lit."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_18),
            Repeat("NUM_OTHERS"),
                Field("OTHER_AZIMUTH",        5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Other Light Source Azimuth Angle",
                      "Clockwise direction of the other light source from true north, seen from the target."),
                Field("OTHER_ELEV",           5, Conditional,      Real,     "-90.0..+90.0|-----=unknown",      "deg",       "Other Light Source Elevation Angle",
                      "Angle between the other light source and the horizontal plane at the target."),
            End(),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_17),
            Field("SENSOR_AZIMUTH",       5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Sensor Azimuth Angle",
                  "Clockwise direction of the sensor from true north, seen from the target."),
            Field("SENSOR_ELEV",          5, Conditional,      Real,     "-90.0..+90.0|-----=unknown",      "deg",       "Sensor Elevation Angle",
                  "Angle between the sensor and the horizontal plane at the target."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_16),
            Field("CATS_ANGLE",           5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Camera-Target-Sun Angle",
                  "Angle at the target between the directions to the camera and to the sun."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_15),
            Field("SUN_GLINT_LAT",       10, Conditional,      Real,     "-90..+90",                        "deg",       "Sun Glint Latitude",
                  "Latitude of the point where the glint of the sun falls."),
            Field("SUN_GLINT_LON",       11, Conditional,      Real,     "-180..+180",                      "deg",       "Sun Glint Longitude",
                  "Longitude of the point where the glint of the sun falls."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_14),
            Field("CATM_ANGLE",           5, Conditional,      Real,     "000.0..359.9|-----=unknown",      "deg",       "Camera-Target-Moon Angle",
                  "Angle at the target between the directions to the camera and to the moon."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_13),
            Field("MOON_GLINT_LAT",      10, Conditional,      Real,     "-90..+90",                        "deg",       "Moon Glint Latitude",
                  "Latitude of the point where the glint of the moon falls."),
            Field("MOON_GLINT_LON",      11, Conditional,      Real,     "-180..+180",                      "deg",       "Moon Glint Longitude",
                  "Longitude of the point where the glint of the moon falls."),
        End(),
        WhenAnyBit("EXISTENCE_MASK", BIT_10),
            Field("SOL_LUN_DIST_ADJUST",  7, Conditional,      Real,     "0.70000..1.40000|-------=unknown", "",          "Solar/Lunar Distance Adjustment",
                  "Factor that corrects the illumination for the distances of sun and moon."),
        End(),
        Repeat("NUM_BANDS"),
            WhenAnyBit("EXISTENCE_MASK", BIT_12),
                Field("SUN_ILLUM_METHOD",     1, Conditional,      Text,     "P=predicted|M=measured",          "",          "Solar Illumination Estimation Method",
                      "Tells how the illumination by the sun was found."),
                Field("SUN_ILLUM",           16, ConditionalBlank, Real,
                      "0..9.9999999999E+99|blank=unknown",
                      "RADQ_UNIT", "Solar Illumination",
                      "Illumination by the sun in this band."),
            End(),
            WhenAnyBit("EXISTENCE_MASK", BIT_11),
                Field("MOON_ILLUM_METHOD",    1, Conditional,      Text,     "P=predicted|M=measured",          "",          "Lunar Illumination Estimation Method",
                      "Tells how the illumination by the moon was found."),
                Field("MOON_ILLUM",          16, ConditionalBlank, Real,
                      "0..9.9999999999E+99|blank=unknown",
                      "RADQ_UNIT", "Lunar Illumination",
                      "Illumination by the moon in this band."),
            End(),
            WhenAnyBit("EXISTENCE_MASK", BIT_10),
                Field("TOT_SUNMOON_ILLUM",   16, ConditionalBlank, Real,
                      "0..9.9999999999E+99|blank=unknown",
                      "RADQ_UNIT", "Total Illumination from Sun and Moon",
                      "Illumination by sun and moon together in this band."),
            End(),
            WhenAnyBit("EXISTENCE_MASK", BIT_9),
                Repeat("NUM_OTHERS"),
                    Field("OTHER_ILLUM_METHOD",   1, Conditional,      Text,     "P=predicted|M=measured",          "",          "Other Light Source Illumination Estimation Method",
                          "Tells how the illumination by the other light source was found."),
                    Field("OTHER_ILLUM",         16, ConditionalBlank, Real,
                          "0..9.9999999999E+99|blank=unknown",
                          "RADQ_UNIT", "Other Light Source Illumination",
                          "Illumination by the other light source in this band."),
                End(),
            End(),
            WhenAnyBit("EXISTENCE_MASK", BIT_8),
                Field("ART_ILLUM_METHOD",     1, Conditional,      Text,     "P=predicted|M=measured",          "",          "Artificial Illumination Estimation Method",
                      "Tells how the artificial illumination was found."),
                Field("ART_ILLUM_MIN",       16, ConditionalBlank, Real,
                      "0..9.9999999999E+99|blank=unknown",
                      "RADQ_UNIT", "Minimum Artificial Illumination",
                      "Least artificial illumination in this band."),
                Field("ART_ILLUM_MAX",       16, ConditionalBlank, Real,
                      "0..9.9999999999E+99|blank=unknown",
                      "RADQ_UNIT", "Maximum Artificial Illumination",
                      "Greatest artificial illumination in this band."),
            End(),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreILLUMB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ILLUMB",
        .name = "Illumination",
        .length = 0,
        .lengthRule =
            "304 + 32*NUM_BANDS + 40*NUM_OTHERS + 80*NUM_COMS + 80 with bit 23, and 49 and the fields of the mask for "
            "each set; at least 385",
        .placement = "image subheader (a file header is allowed by NFX)",
        .purpose =
            "Describes the natural and artificial light on the target at one or more times, in fields of fixed width: "
            "directions of sun, moon, sensor and other sources, and illumination in each spectral band.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App AL Table AL.6-3); pynitf TRE definition and its "
            "test record (cites STDI-0002-1 App AL, July 2019); NFX MATLAB TRE class (cites STDI-0002-1 App AL Tables "
            "AL.6-2 and AL.6-3); OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AL)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The widths give 385 bytes at least with one band and one set, where GDAL has 381. Signs for unknown "
            "values and the lists of units and names rest on NFX."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

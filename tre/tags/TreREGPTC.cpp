#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreREGPTC, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto UNITS = "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|blank=accuracy unknown";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values                      unit          label
    Field("NUM_PTS",  4, Required,      Integer, "0001..1075",               "",           "Number of Registration Points",
          "How many registration points follow."),
    Repeat("NUM_PTS"),
        Field("PID",     10, Required,      Text,    "",                         "",           "Registration Point ID",
              "Identifier of the registration point."),
        Field("LON",     15, Required,      Real,    "",                         "GEOPSB UNI", "Longitude or Easting",
              "Longitude, or easting in a map grid, of the registration point."),
        Field("LAT",     15, Required,      Real,    "",                         "GEOPSB UNI", "Latitude or Northing",
              "Latitude, or northing in a map grid, of the registration point."),
        Field("ZVL",     15, RequiredBlank, Real,    "",                         "m",          "Elevation",
              "Elevation of the registration point above the vertical datum; blank when it is not known."),
        Field("DIX",     11, Required,      Real,    "-9999999.99..99999999.99", "pixels",     "Column Number of Registration Point",
              "Image column at which the registration point appears, with two decimals."),
        Field("DIY",     11, Required,      Real,    "-9999999.99..99999999.99", "pixels",     "Row Number of Registration Point",
              "Image row at which the registration point appears, with two decimals."),
        Field("UNIAAH",   3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for AAH",
              "Unit of the horizontal accuracy; blank when that accuracy is not known, and then the value is left "
              "out."),
        WhenFilled("UNIAAH"),
            Field("AAH",      5, Conditional,   Real,    "0..99999",                 "UNIAAH",     "Absolute Horizontal Accuracy",
                  "Horizontal accuracy of this registration point."),
        End(),
        Field("UNIAAV",   3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for AAV",
              "Unit of the vertical accuracy; blank when that accuracy is not known, and then the value is left out."),
        WhenFilled("UNIAAV"),
            Field("AAV",      5, Conditional,   Real,    "0..99999",                 "UNIAAV",     "Absolute Vertical Accuracy",
                  "Vertical accuracy of this registration point."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreREGPTC::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "REGPTC",
        .name = "Registration Points",
        .length = 0,
        .lengthRule = "4 + sum over NUM_PTS points of (83 + 5 if UNIAAH not blank + 5 if UNIAAV not blank); 87..99979",
        .placement = "image subheader",
        .purpose = "Ties pixels of a non-rectified image to ground points and states the accuracy of each point.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-8 (2024-04); NFX TRE class; NATO NSIF list of approved "
            "support data extensions (lists REGPTC beside REGPTB)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

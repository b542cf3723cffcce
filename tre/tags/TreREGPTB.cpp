#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreREGPTB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values                      unit          label
    Field("NUM_PTS",  4, Required,      Integer, "0001..1298",               "",           "Number of Registration Points",
          "How many registration points follow.").Alias("NUMPTS"),
    Repeat("NUM_PTS"),
        Field("PID",     10, Required,      Text,    "",                         "",           "Registration Point ID",
              "Identifier of the registration point."),
        Field("LON",     15, Required,      Real,    "",                         "GEOPSB UNI", "Longitude or Easting",
              "Longitude, or easting in a map grid, of the registration point."),
        Field("LAT",     15, Required,      Real,    "",                         "GEOPSB UNI", "Latitude or Northing",
              "Latitude, or northing in a map grid, of the registration point."),
        Field("ZVL",     15, RequiredBlank, Real,    "",                         "m",          "Elevation",
              "Elevation of the registration point above the vertical datum; blank when it is not known."),
        Field("DIX",     11, Required,      Real,    "-9999999999..99999999999", "pixels",     "Column Number of Registration Point",
              "Image column at which the registration point appears; fractions of a pixel are possible."),
        Field("DIY",     11, Required,      Real,    "-9999999999..99999999999", "pixels",     "Row Number of Registration Point",
              "Image row at which the registration point appears; fractions of a pixel are possible."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreREGPTB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "REGPTB",
        .name = "Registration Points",
        .length = 0,
        .lengthRule = "4 + 77*NUM_PTS; 81..99950",
        .placement = "image subheader",
        .purpose = "Ties pixels of a non-rectified image to ground points through a list of registration points.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-7 (2024-04); NITRO plug-in table; jbpy TRE definition; NFX "
            "TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreBNDPLB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need      form     values        unit          label
    Field("NUM_PTS",  4, Required, Integer, "0004..3332", "",           "Number of Points in Bounding Polygon",
          "How many corner points the polygon has, the repeated closing point included.").Alias("NUMPTS"),
    Repeat("NUM_PTS"),
        Field("LON",     15, Required, Real,    "",           "GEOPSB UNI", "Longitude or Easting",
              "Longitude, or easting in a map grid, of one corner of the polygon; the last corner repeats the first."),
        Field("LAT",     15, Required, Real,    "",           "GEOPSB UNI", "Latitude or Northing",
              "Latitude, or northing in a map grid, of one corner of the polygon; the last corner repeats the first."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreBNDPLB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "BNDPLB",
        .name = "Bounding Polygon",
        .length = 0,
        .lengthRule = "4 + 30*NUM_PTS; 124..99964",
        .placement = "image subheader (file header also allowed in later editions)",
        .purpose = "Outlines the significant part of the image by a closed polygon of ground points.",
        .sources =
            "DIGEST Part 2 Annex D; STDI-0002 Volume 1 Appendix P, Table P-9 (2024-04); GDAL TRE description "
            "file; NITRO plug-in table; OSSIM tag class; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

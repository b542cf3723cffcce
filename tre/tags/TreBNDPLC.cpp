#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreBNDPLC, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width need         form     values        unit          label
    Field("NUM_RINGS",   3, Required,    Integer, "001..999",   "",           "Number of Rings",
          "How many rings the outline has."),
    Field("DIMENSIONS",  1, Required,    Integer, "2|3",        "",           "Dimensions",
          "Tells whether the points have heights."),
    Repeat("NUM_RINGS"),
        Field("NUM_PTS",     4, Required,    Integer, "0003..3332", "",           "Number of Points",
              "How many points the ring has."),
        Repeat("NUM_PTS"),
            Field("LON",        15, Required,    Real,    "",           "GEOPSB UNI", "Longitude or Easting",
                  "Longitude or easting of the point."),
            Field("LAT",        15, Required,    Real,    "",           "GEOPSB UNI", "Latitude or Northing",
                  "Latitude or northing of the point."),
            When("DIMENSIONS", "3"),
                Field("HEIGHT",     15, Conditional, Real,    "",           "GEOPSB UNI", "Height",
                      "Height of the point."),
            End(),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreBNDPLC::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "BNDPLC",
        .name = "Bounding Polygon, complex",
        .length = 0,
        .lengthRule = "4 + sum over the NUM_RINGS rings of (4 + 15*DIMENSIONS*NUM_PTS)",
        .placement = "file header or image subheader",
        .purpose =
            "Outlines the area that the image covers by several rings, which may be holes in one another and may "
            "carry heights.",
        .sources = "NFX MATLAB TRE class (cites STDI-0002-1 App P, Table P-9a, 2024-04)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes =
            "Clockwise rings add to the area, the others cut holes; the first point of a ring is not repeated at its "
            "end."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

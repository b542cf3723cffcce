#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreGEOLOB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag width  need      form     values                  unit   label
    Field("ARV",  9, Required, Integer, "000000002..999999999", "pixels per 360 degrees", "Longitude Density",
          "How many pixels of this raster would go round the full circle in the east-west direction; 360 divided by it "
          "is the pixel width in degrees."),
    Field("BRV",  9, Required, Integer, "000000002..999999999", "pixels per 360 degrees", "Latitude Density",
          "How many pixels of this raster would go round the full circle in the north-south direction; 360 divided by "
          "it is the pixel height in degrees."),
    Field("LSO", 15, Required, Real,    "-180.0..+180.0",       "deg", "Longitude of Reference Origin",
          "Longitude of the pixel in row 0, column 0."),
    Field("PSO", 15, Required, Real,    "-90.0..+90.0",         "deg", "Latitude of Reference Origin",
          "Latitude of the pixel in row 0, column 0."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 48);

}  // namespace

const Detail::TreLayout& TreGEOLOB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "GEOLOB",
        .name = "Local Geographic (latitude/longitude) Coordinate System",
        .length = 48,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Places a raster whose rows and columns run along parallels and meridians, by its pixel density "
            "and the position of its first pixel.",
        .sources =
            "DIGEST Part 2 Annex D; STDI-0002 Volume 1 Appendix P, Table P-5 (2024-04); GDAL TRE description "
            "file; NITRO plug-in table; OSSIM tag class; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMAPLOB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto COORDINATE = "-999999999999.9..+999999999999.9";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag    width  need      form     values          unit      label
    Field("UNILOA",  3, Required, Text,    "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM", "", "Length Units",
          "Unit of the two pixel intervals that follow; M by default."),
    Field("LOD",     5, Required, Integer, "00001..99999", "UNILOA", "Easting Interval",
          "Width of one pixel in the east-west direction."),
    Field("LAD",     5, Required, Integer, "00001..99999", "UNILOA", "Northing Interval",
          "Height of one pixel in the north-south direction."),
    Field("LSO",    15, Required, Real,    COORDINATE,     "m",      "Easting of Reference Origin",
          "Easting of the pixel in row 0, column 0."),
    Field("PSO",    15, Required, Real,    COORDINATE,     "m",      "Northing of Reference Origin",
          "Northing of the pixel in row 0, column 0."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 43);

}  // namespace

const Detail::TreLayout& TreMAPLOB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MAPLOB",
        .name = "Local Cartographic (x/y) Coordinate System",
        .length = 43,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Places a raster whose rows and columns run along the axes of a map projection, by its pixel size "
            "and the position of its first pixel.",
        .sources =
            "DIGEST Part 2 Annex D; STDI-0002 Volume 1 Appendix P, Table P-6 (2024-04); GDAL TRE description "
            "file; NITRO plug-in table; OSSIM tag class; pynitf TRE definition; NFX TRE class; NITF Metadata "
            "Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

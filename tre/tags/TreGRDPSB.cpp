#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreGRDPSB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need           form     values                      unit      label
    Field("NUM_GRDS",  2, Required,      Integer, "01..99",                   "",       "Number of Location Grids",
          "How many location grids are described."),
    Repeat("NUM_GRDS"),
        Field("ZVL",      10, RequiredBlank, Real,    "-999999.99..+999999.99|blank=not stated", "m", "Location Grid Elevation",
              "Elevation for which the grid holds, counted from the vertical datum."),
        Field("BAD",      10, Required,      Text,    "",                         "",       "Location Grid ID",
              "Identifier of the image segment that contains the grid values."),
        Field("LOD",      12, Required,      Real,    "",                         "pixels", "Data Density in Columns",
              "Spacing of the grid points along the rows, counted in image columns, greater than zero."),
        Field("LAD",      12, Required,      Real,    "",                         "pixels", "Data Density in Rows",
              "Spacing of the grid points along the columns, counted in image rows, greater than zero."),
        Field("LSO",      11, Required,      Real,    "-9999999999..99999999999", "pixels", "Origin in Columns",
              "Image column of the first grid point."),
        Field("PSO",      11, Required,      Real,    "-9999999999..99999999999", "pixels", "Origin in Rows",
              "Image row of the first grid point."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreGRDPSB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "GRDPSB",
        .name = "Grid Reference Data",
        .length = 0,
        .lengthRule = "2 + 66*NUM_GRDS; 68..6536",
        .placement = "image subheader",
        .purpose =
            "Lists the location grids that place a non-rectified raster, each held as a separate image "
            "segment, with their elevation, spacing and origin in pixels.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-4 (2024-04); GDAL TRE description file; NITRO plug-in "
            "table; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

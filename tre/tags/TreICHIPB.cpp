#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreICHIPB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto IMAGE_SIZE = "00000001..99999999|00000000=unknown";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need      form     values                        unit       label
    Field("XFRM_FLAG",     2, Required, Integer,
          "00=linear, the data follow|01=no data, the other fields are zero",
          "", "Non-Linear Transformation Flag",
          "Tells whether the mapping of this chip to the full image is given by the fields that "
          "follow.").Alias("XFRM_FLG"),
    Field("SCALE_FACTOR", 10, Required, Real,    "0000.00000..9999.99999",     "",        "Scale Factor Relative to R0",
          "Reduction of the chip compared with the full resolution image; 0001.00000 is full resolution, 0002.00000 is "
          "half."),
    Field("ANAMRPH_CORR",  2, Required, Integer, "00=no|01=yes",               "",        "Anamorphic Correction Indicator",
          "Tells whether an anamorphic correction was applied."),
    Field("SCANBLK_NUM",   2, Required, Integer, "00=not applicable|01..99",   "",        "Scan Block Number",
          "Number of the scan block from which the chip was cut."),
    Field("OP_ROW_11",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Output Product Row of Grid Point (1,1)",
          "Row of the grid point at the first row, first column, counted in the chip."),
    Field("OP_COL_11",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Output Product Column of Grid Point (1,1)",
          "Column of the grid point at the first row, first column, counted in the chip."),
    Field("OP_ROW_12",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Output Product Row of Grid Point (1,2)",
          "Row of the grid point at the first row, last column, counted in the chip."),
    Field("OP_COL_12",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Output Product Column of Grid Point (1,2)",
          "Column of the grid point at the first row, last column, counted in the chip."),
    Field("OP_ROW_21",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Output Product Row of Grid Point (2,1)",
          "Row of the grid point at the last row, first column, counted in the chip."),
    Field("OP_COL_21",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Output Product Column of Grid Point (2,1)",
          "Column of the grid point at the last row, first column, counted in the chip."),
    Field("OP_ROW_22",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Output Product Row of Grid Point (2,2)",
          "Row of the grid point at the last row, last column, counted in the chip."),
    Field("OP_COL_22",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Output Product Column of Grid Point (2,2)",
          "Column of the grid point at the last row, last column, counted in the chip."),
    Field("FI_ROW_11",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Full Image Row of Grid Point (1,1)",
          "Row of the grid point at the first row, first column, counted in the full image."),
    Field("FI_COL_11",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Full Image Column of Grid Point (1,1)",
          "Column of the grid point at the first row, first column, counted in the full image."),
    Field("FI_ROW_12",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Full Image Row of Grid Point (1,2)",
          "Row of the grid point at the first row, last column, counted in the full image."),
    Field("FI_COL_12",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Full Image Column of Grid Point (1,2)",
          "Column of the grid point at the first row, last column, counted in the full image."),
    Field("FI_ROW_21",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Full Image Row of Grid Point (2,1)",
          "Row of the grid point at the last row, first column, counted in the full image."),
    Field("FI_COL_21",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Full Image Column of Grid Point (2,1)",
          "Column of the grid point at the last row, first column, counted in the full image."),
    Field("FI_ROW_22",    12, Required, Real,    "00000000.000..99999999.999", "rows",    "Full Image Row of Grid Point (2,2)",
          "Row of the grid point at the last row, last column, counted in the full image."),
    Field("FI_COL_22",    12, Required, Real,    "00000000.000..99999999.999", "columns", "Full Image Column of Grid Point (2,2)",
          "Column of the grid point at the last row, last column, counted in the full image."),
    Field("FI_ROW",        8, Required, Integer, IMAGE_SIZE,                   "rows",    "Full Image Number of Rows",
          "How many rows the full image has."),
    Field("FI_COL",        8, Required, Integer, IMAGE_SIZE,                   "columns", "Full Image Number of Columns",
          "How many columns the full image has."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 224);

}  // namespace

const Detail::TreLayout& TreICHIPB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ICHIPB",
        .name = "Image Chip",
        .length = 224,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Ties the four corner grid points of an image chip to their places in the full image, so that "
            "support data of the full image can be used with the chip.",
        .sources =
            "STDI-0002 Table 5-2; STDI-0002 Volume 1 Appendix B (2019); STDI-0002 Volume 1 Appendix B, Tables "
            "B-1 and B-2; GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; "
            "OSSIM tag class; Opticks TRE parser; pynitf TRE definition; jbpy TRE definition; OSML imagery-io "
            "structure definition; one chipped IKONOS file (224 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreBLOCKA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag               width  need         form      values                             unit       label
    Field("BLOCK_INSTANCE",  2, Required,      Integer,  "01..99",                          "",        "Block Instance",
          "Number of the image block that this extension describes."),
    Field("N_GRAY",          5, Required,      Integer,  "00000..99999",                    "pixels",  "Number of Gray Fill Pixels",
          "How many gray fill pixels a radar block contains; 00000 for EO-IR."),
    Field("L_LINES",         5, Required,      Integer,  "00001..99999",                    "rows",    "Row Count",
          "Number of rows in the block."),
    Field("LAYOVER_ANGLE",   3, RequiredBlank, Integer,  "000..359|blank=EO-IR",            "deg",     "Layover Angle",
          "Clockwise angle from the first row of pixels to the layover direction of a radar image."),
    Field("SHADOW_ANGLE",    3, RequiredBlank, Integer,  "000..359|blank=EO-IR",            "deg",     "Shadow Angle",
          "Clockwise angle from the first row of pixels to the radar shadow in the image."),
    Field("RESERVED-001",   16, RequiredBlank, Text,     "",                                "",        "Reserved 1",
          "Reserved by the standard; sixteen spaces.").Alias("RESERVED_001"),
    Field("FRLC_LOC",       21, RequiredBlank, Location, "{Xddmmss.ssYdddmmss.ss}|{+dd.dddddd+ddd.dddddd}|blank", "", "First Row Last Column Location",
          "Ground location of the pixel in the first row and last column of the block."),
    Field("LRLC_LOC",       21, RequiredBlank, Location, "{Xddmmss.ssYdddmmss.ss}|{+dd.dddddd+ddd.dddddd}|blank", "", "Last Row Last Column Location",
          "Ground location of the pixel in the last row and last column of the block."),
    Field("LRFC_LOC",       21, RequiredBlank, Location, "{Xddmmss.ssYdddmmss.ss}|{+dd.dddddd+ddd.dddddd}|blank", "", "Last Row First Column Location",
          "Ground location of the pixel in the last row and first column of the block."),
    Field("FRFC_LOC",       21, RequiredBlank, Location, "{Xddmmss.ssYdddmmss.ss}|{+dd.dddddd+ddd.dddddd}|blank", "", "First Row First Column Location",
          "Ground location of the pixel in the first row and first column of the block."),
    Field("RESERVED-002",    5, RequiredBlank, Text,     "",                                "",        "Reserved 2",
          "Reserved by the standard; the text 010.0.").Alias("RESERVED_002"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 123);

}  // namespace

const Detail::TreLayout& TreBLOCKA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "BLOCKA",
        .name = "Image Block Information",
        .length = 123,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Gives the exact corner locations and some radar angles of one image block; several may follow one "
            "another, one per block.",
        .sources =
            "STDI-0002 Volume 1 Appendix E; GDAL TRE description file; imaging-nitf TRE description file; NITRO "
            "plug-in table; OSSIM tag class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

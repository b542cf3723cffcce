#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSCCGA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag            width  need      form     values              unit       label
    Field("CCG_SOURCE",     18, Required, Text,    "PAN|MS|CAVIS|SWIR|any=several of these, with commas and no spaces between", "", "Source of Grid",
          "Sensors whose data were combined to make the cloud cover grid."),
    Field("REG_SENSOR",      6, Required, Text,    "PAN|MS|CAVIS|SWIR|001..999=display level", "", "Registered Image Segment Sensor",
          "Sensor of the image segment whose pixel grid the cloud cover grid is registered to."),
    Field("ORIGIN_LINE",     7, Required, Integer, "-999999..9999999", "lines",   "Grid Origin Line",
          "Line of the registered image segment at which the cloud cover grid begins; always 0000001 in the earlier "
          "editions."),
    Field("ORIGIN_SAMPLE",   5, Required, Integer, "-9999..99999",     "samples", "Grid Origin Sample",
          "Sample of the registered image segment at which the cloud cover grid begins; always 00001 in the earlier "
          "editions."),
    Field("AS_CELL_SIZE",    7, Required, Integer, "0000001..9999999", "lines",   "Along Scan Cell Size",
          "Height of one grid cell in lines of the registered image segment."),
    Field("CS_CELL_SIZE",    5, Required, Integer, "00001..99999",     "samples", "Cross Scan Cell Size",
          "Width of one grid cell in samples of the registered image segment."),
    Field("CCG_MAX_LINE",    7, Required, Integer, "0000001..9999999", "cells",   "Number of Grid Rows",
          "How many rows of cells the cloud cover grid has."),
    Field("CCG_MAX_SAMPLE",  5, Required, Integer, "00001..99999",     "cells",   "Number of Grid Columns",
          "How many columns of cells the cloud cover grid has."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 60);

}  // namespace

const Detail::TreLayout& TreCSCCGA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSCCGA",
        .name = "Cloud Cover Grid Data",
        .length = 60,
        .lengthRule = "",
        .placement = "file header; the newest edition also ties it to an image subheader",
        .purpose =
            "Says which sensors were used to make the cloud cover grid of a commercial data set and how the "
            "cells of that grid lie on the pixels of one image segment.",
        .sources =
            "STDI-0006 Table 3.1-1; STDI-0002 Volume 1 Appendix AV, Table AV.5-3 (2024-06); GDAL TRE "
            "description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; OSML "
            "imagery-io structure definition; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

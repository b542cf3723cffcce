#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSRLSB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                 width need      form     values                      unit  label
    Field("N_RS_ROW_BLOCKS",     2, Required, Integer, "01..99",                   "",   "Blocks in Row Dimension",
          "Into how many blocks of equal height the image is cut for the time model."),
    Field("M_RS_COLUMN_BLOCKS",  2, Required, Integer, "01..99",                   "",   "Blocks in Column Dimension",
          "Into how many blocks of equal width the image is cut for the time model."),
    Repeat("N_RS_ROW_BLOCKS"),
        Repeat("M_RS_COLUMN_BLOCKS"),
            Field("RS_DT_1",            12, Required, Real,    "-9999999999..+9999999999", "ms", "Rolling Shutter Delta Time 1",
                  "Time of the upper left corner of the block, counted from the reference time of the frame."),
            Field("RS_DT_2",            12, Required, Real,    "-9999999999..+9999999999", "ms", "Rolling Shutter Delta Time 2",
                  "Time of the upper right corner of the block, counted from the reference time of the frame."),
            Field("RS_DT_3",            12, Required, Real,    "-9999999999..+9999999999", "ms", "Rolling Shutter Delta Time 3",
                  "Time of the lower right corner of the block, counted from the reference time of the frame."),
            Field("RS_DT_4",            12, Required, Real,    "-9999999999..+9999999999", "ms", "Rolling Shutter Delta Time 4",
                  "Time of the lower left corner of the block, counted from the reference time of the frame."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCSRLSB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSRLSB",
        .name = "Common Sensor Rolling Shutter Terms",
        .length = 0,
        .lengthRule = "4 + 48*N_RS_ROW_BLOCKS*M_RS_COLUMN_BLOCKS",
        .placement = "image subheader",
        .purpose =
            "Gives, for a framing sensor whose shutter rolls over the frame, the time of every part of the frame as a "
            "grid of blocks with times at their corners.",
        .sources =
            "GDAL TRE description file (cite STDI-0002-1-v5.0 App AH Table AH.6-2); OSSIM NITF tag class; NFX MATLAB "
            "TRE class and its byte-level test (cites STDI-0002-2 App M Table M.6-2); OSML imagery-io structure "
            "definition (cites STDI-0002 Vol 2 App M, version 1.2)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/AccuracyRegion.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreACCVTB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width  need           form     values                      unit          label
    Field("NUM_ACVT",  2, Required,      Integer, "01..99",                   "",           "Number of Vertical Accuracy Regions",
          "How many regions with their own vertical accuracy follow.").Alias("NUMACVT"),
    Repeat("NUM_ACVT"),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, ACCURACY_AAV, ACCURACY_APV, ACCURACY_POLYGON, ACCURACY_END);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreACCVTB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACCVTB",
        .name = "Vertical Accuracy",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ACVT regions of (9 + 5 if UNIAAV not blank + 5 if UNIAPV not blank + "
            "30*NUM_PTS); 11..99985",
        .placement = "image subheader",
        .purpose =
            "States the absolute and point-to-point vertical accuracy of one or more regions of the image, for "
            "products whose horizontal accuracy changes over other regions.",
        .sources = "GDAL TRE description file; NITRO plug-in table; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

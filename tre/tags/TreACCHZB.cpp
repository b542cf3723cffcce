#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/AccuracyRegion.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreACCHZB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width  need           form     values                      unit          label
    Field("NUM_ACHZ",  2, Required,      Integer, "01..99",                   "",           "Number of Horizontal Accuracy Regions",
          "How many regions with their own horizontal accuracy follow.").Alias("NUMACHZ"),
    Repeat("NUM_ACHZ"),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, ACCURACY_AAH, ACCURACY_APH, ACCURACY_POLYGON, ACCURACY_END);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreACCHZB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACCHZB",
        .name = "Horizontal Accuracy",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ACHZ regions of (9 + 5 if UNIAAH not blank + 5 if UNIAPH not blank + "
            "30*NUM_PTS); 11..99985",
        .placement = "image subheader",
        .purpose =
            "States the absolute and point-to-point horizontal accuracy of one or more regions of the image, "
            "for products whose vertical accuracy changes over other regions.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-11; GDAL TRE description file; NITRO plug-in table; NITF "
            "Metadata Register (2016 draft); sample record of 141 bytes in an imaging-nitf unit test",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/AccuracyRegion.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreACCPOB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width  need           form     values                      unit          label
    Field("NUM_ACPO",  2, Required,      Integer, "01..99",                   "",           "Number of Positional Accuracy Regions",
          "How many regions with their own accuracy follow.").Alias("NUMACPO"),
    Repeat("NUM_ACPO"),
};
// clang-format on
constexpr auto ROWS =
    JoinRows(HEAD, ACCURACY_AAH, ACCURACY_AAV, ACCURACY_APH, ACCURACY_APV, ACCURACY_POLYGON, ACCURACY_END);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreACCPOB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACCPOB",
        .name = "Positional Accuracy",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ACPO regions of (15 + 5 for each of UNIAAH, UNIAAV, UNIAPH, UNIAPV that is "
            "not blank + 30*NUM_PTS); 17..99985",
        .placement = "image subheader",
        .purpose =
            "States horizontal and vertical accuracy, absolute and point to point, of regions within which all "
            "four are constant.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-10 (2024-04); GDAL TRE description file; NITRO plug-in "
            "table; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

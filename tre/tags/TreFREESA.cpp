#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreFREESA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag       width need      form   values unit label
    Rest("STUFFING", Required, Bytes, "", "", "Stuffing Bytes",
         "Filling without meaning."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreFREESA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "FREESA",
        .name = "Free Space",
        .length = 0,
        .lengthRule = "1..99985",
        .placement = "any extension area",
        .purpose =
            "Keeps space in a header for extensions that are not ready when the file is written; it means nothing and "
            "may be removed.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX MATLAB TRE "
            "class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCOMNTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width need      form  values unit label
    Rest("COMMENT", Required, Utf8, "", "", "Comment",
         "The comment itself."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCOMNTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "COMNTA",
        .name = "Comments",
        .length = 0,
        .lengthRule = "1..99985",
        .placement = "any extension area of the file header or of a subheader",
        .purpose = "Lets a data provider add a free comment in any script to the file or to a segment.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AU); NFX MATLAB TRE class (cites "
            "STDI-0002-1 App AU)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

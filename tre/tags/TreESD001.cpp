#include "tre/TreLayout.h"
#include "tre/tags/TreTags.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    Rest("DATA", Required, Bytes, "", "", "Data",
          "The data of this extension as they stand in the file; no public standard says how they are laid out."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreESD001::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ESD001",
        .name = "Exploitation Support Data",
        .length = 0,
        .lengthRule = "not public",
        .placement = "not stated in public sources",
        .purpose =
            "Carries exploitation support data, judging by its tag and group only. Its layout is not public, "
            "so its data are kept whole as one field.",
        .sources = "no public definition",
        .certainty = Detail::LayoutCertainty::NotPublic,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

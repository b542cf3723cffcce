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

const Detail::TreLayout& TrePPRSDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PPRSDA",
        .name = "Product Accuracy (Shear) Data",
        .length = 0,
        .lengthRule = "not public",
        .placement = "product level",
        .purpose =
            "States how well the segments of a DPPDB product fit together where they meet. Its layout is not "
            "public, so its data are kept whole as one field.",
        .sources = "STDI-0002 Volume 1 Appendix V (list of DPPDB tags)",
        .certainty = Detail::LayoutCertainty::NotPublic,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

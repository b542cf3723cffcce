#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSECTGA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need           form  values unit label
    Field("SEC_ID",       12, RequiredBlank, Text, "", "", "Designator of Secondary Target",
          "Name or designator of the secondary target."),
    Field("SEC_BE",       15, RequiredBlank, Text, "", "", "Basic Encyclopedia ID of Secondary Target",
          "Basic Encyclopedia number and suffix of the secondary target."),
    Field("RESERVED-001",  1, RequiredBlank, Text, "", "", "Reserved 1",
          "Reserved by the standard; the digit 0.").Alias("RESERVED_001"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 28);

}  // namespace

const Detail::TreLayout& TreSECTGA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SECTGA",
        .name = "Secondary Targeting Information",
        .length = 28,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Names one secondary target of the image; the number of these extensions is N_SEC of EXOPTA or "
            "EXPLTB.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); imaging-nitf TRE description file; NITRO plug-in table; "
            "Opticks TRE parser; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

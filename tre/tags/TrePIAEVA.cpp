#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAEVA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag       width  need      form  values unit label
    Field("EVENTNAME", 38, Optional, Text, "", "", "Event Name",
          "Accepted name of the event."),
    Field("EVENTTYPE",  8, Optional, Text, "POL|DIS|COMMO|MILEX|ECON|NUC|SPACE|MILMOV|CIVIL", "", "Event Type",
          "Kind of the event."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 46);

}  // namespace

const Detail::TreLayout& TrePIAEVA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAEVA",
        .name = "Profile for Imagery Access Event",
        .length = 46,
        .lengthRule = "",
        .placement = "image subheader or text subheader",
        .purpose = "Names one event that an image shows and its kind; repeated for each.",
        .sources =
            "STDI-0002 Volume 1 Appendix C, Table C-14 (2025-06); imaging-nitf TRE description file and its "
            "test record; NITRO plug-in table; OSML imagery-io structure definition; NFX TRE class; NITF "
            "Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

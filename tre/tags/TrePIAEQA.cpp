#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAEQA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need      form  values                 unit label
    Field("EQPCODE",   7, Optional, Text, "any=code of the NGIC foreign equipment guide", "", "Equipment Code",
          "Code of the equipment in the foreign equipment guide."),
    Field("EQPNOMEN", 45, Optional, Text, "any=name of the NGIC foreign equipment guide", "", "Equipment Nomenclature",
          "Name of the equipment in the foreign equipment guide."),
    Field("EQPMAN",   64, Optional, Text, "",                    "", "Equipment Manufacturer",
          "Maker of the equipment."),
    Field("OBTYPE",    1, Optional, Text, "any=MIIDS/IDB code",  "", "Order of Battle Type",
          "Kind of order of battle to which the equipment belongs."),
    Field("ORDBAT",    3, Optional, Text, "any=EARS 1.1 code",   "", "Type Order of Battle",
          "Code of the order of battle."),
    Field("CTRYPROD",  2, Optional, Text, "AA..ZZ=country code", "", "Country Produced",
          "Country in which the equipment was made."),
    Field("CTRYDSN",   2, Optional, Text, "AA..ZZ=country code", "", "Country Designed",
          "Country in which the equipment was designed."),
    Field("OBJVIEW",   6, Optional, Text, "Right|Left|Top|Bottom|Front|Rear", "", "Object View",
          "Side of the equipment that the image shows."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 130);

}  // namespace

const Detail::TreLayout& TrePIAEQA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAEQA",
        .name = "Profile for Imagery Access Equipment",
        .length = 130,
        .lengthRule = "",
        .placement = "image subheader or text subheader",
        .purpose = "Describes one piece of equipment that can be seen in an image; repeated for each.",
        .sources =
            "STDI-0002 Volume 1 Appendix C; imaging-nitf TRE description file and its test record; NITRO "
            "plug-in table; OSML imagery-io structure definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

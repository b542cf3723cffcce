#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreJITCID, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width need           form  values unit label
    Rest("FILCMT", RequiredBlank, Text, "", "", "File Comment",
         "Text that names the test file and says what it checks."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreJITCID::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "JITCID",
        .name = "JITC Identification",
        .length = 0,
        .lengthRule = "1..99985",
        .placement = "file header (in the JITC sample)",
        .purpose = "Marks a test file of the JITC suite with a text that says what the file tests.",
        .sources =
            "NITRO plug-in table (one field to the end of the data); Codice imaging-nitf tests (which read the JITC "
            "sample I_3228D and give the field 200 bytes under a name of their own)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes =
            "Whether the extension is registered or controlled is not stated; registered is assumed. The field is "
            "named after the NITRO table."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAPEA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need      form  values                 unit label
    Field("LASTNME",  28, Optional, Text, "",                    "", "Last Name",
          "Family name of the person."),
    Field("FIRSTNME", 28, Optional, Text, "",                    "", "First Name",
          "First name of the person."),
    Field("MIDNME",   28, Optional, Text, "",                    "", "Middle Name",
          "Middle name of the person."),
    Field("DOB",       6, Optional, Date, "{MMDDYY}",            "", "Birth Date",
          "Day on which the person was born."),
    Field("ASSOCTRY",  2, Optional, Text, "AA..ZZ=country code", "", "Associated Country",
          "Country to which the person belongs."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 92);

}  // namespace

const Detail::TreLayout& TrePIAPEA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAPEA",
        .name = "Profile for Imagery Access Person Identification, Version A",
        .length = 92,
        .lengthRule = "",
        .placement = "image subheader or text subheader",
        .purpose = "Names one person whom an image shows; repeated for each. Superseded by PIAPEB.",
        .sources =
            "GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; OSML "
            "imagery-io structure definition; a JITC test image with three PIAPEA (92 bytes each)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

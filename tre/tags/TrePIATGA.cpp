#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIATGA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need      form      values                 unit       label
    Field("TGTUTM",   15, Optional, Text,     "any=grid zone, two letters of the square and ten digits", "", "Target UTM",
          "Place of the target in the UTM grid."),
    Field("PIATGAID", 15, Optional, Text,     "any=basic encyclopedia or other number", "", "Target Identification",
          "Number of the main target."),
    Field("PIACTRY",   2, Optional, Text,     "AA..ZZ=country code", "",        "Country Code",
          "Country in which the target lies."),
    Field("PIACAT",    5, Optional, Text,     "00000..99999=code of DIAM 65-3-1|any=other category code", "", "Category Code",
          "Category of the target."),
    Field("TGTGEO",   15, Optional, Location, "{ddmmssXdddmmssY}",   "",        "Target Geographic Coordinates",
          "Latitude and longitude of the target."),
    Field("DATUM",     3, Optional, Text,     "any=datum code",      "",        "Target Coordinate Datum",
          "Datum of the map from which the target coordinates were taken."),
    Field("TGTNAME",  38, Optional, Text,     "",                    "",        "Target Name",
          "Official name of the target."),
    Field("PERCOVER",  3, Optional, Integer,  "000..100",            "percent", "Percentage of Coverage",
          "Share of the target that the image shows."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 96);

}  // namespace

const Detail::TreLayout& TrePIATGA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIATGA",
        .name = "Profile for Imagery Access Target, Version A",
        .length = 96,
        .lengthRule = "",
        .placement = "image subheader or text subheader",
        .purpose = "Describes one target that an image shows; repeated for each. Superseded by PIATGB.",
        .sources = "NITRO plug-in table; first eight fields of PIATGB",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

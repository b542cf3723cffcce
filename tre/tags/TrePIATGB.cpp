#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIATGB, TRE);

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
    Field("TGTLAT",   10, Optional, Real,     "",                    "deg",     "Target Latitude",
          "Latitude of the target in decimal degrees; trailing digits may be blank."),
    Field("TGTLON",   11, Optional, Real,     "",                    "deg",     "Target Longitude",
          "Longitude of the target in decimal degrees; trailing digits may be blank."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 117);

}  // namespace

const Detail::TreLayout& TrePIATGB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIATGB",
        .name = "Profile for Imagery Access Target, Version B",
        .length = 117,
        .lengthRule = "",
        .placement = "image subheader or text subheader",
        .purpose = "Describes one target that an image shows; repeated for each.",
        .sources =
            "STDI-0002 Volume 1 Appendix C, Table C-8 (2025-06); GDAL TRE description file; imaging-nitf TRE "
            "description file and its test records; NITRO plug-in table; OSML imagery-io structure definition; "
            "NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

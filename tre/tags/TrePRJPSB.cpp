#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePRJPSB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need         form     values  unit label
    Field("PRN",     80, Required,    Text,    "",     "",  "Projection Name",
          "Name of the map projection; Transverse Mercator by default."),
    Field("PCO",      2, Required,    Text,
          "AC|AK|AL|BF|CC|CP|CS|ED|EF|GN|HX|KA|LA|LE|LI|LJ|MC|MH|MJ|MP|NT|OC|OD|PG|PH|RS|RB|RX|SA|SD|SX|TC=transverse "
          "Mercator|TX|VA|VX|ZY=other",
          "", "Projection Code",
          "Two-letter code of the map projection from DIGEST Part 3; TC by default."),
    Field("NUM_PRJ",  1, Required,    Integer, "0..9", "",  "Number of Projection Parameters",
          "How many projection parameters follow."),
    Repeat("NUM_PRJ"),
        Field("PRJ",     15, Conditional, Real,    "",     "depends on the projection", "Projection Parameter",
              "One parameter of the projection; the order and meaning depend on the projection code."),
    End(),
    Field("XOR",     15, Required,    Real,    "",     "m", "Projection False X (Easting) Origin",
          "Amount added to the eastings by the projection; may be negative and is 0 by default."),
    Field("YOR",     15, Required,    Real,    "",     "m", "Projection False Y (Northing) Origin",
          "Amount added to the northings by the projection; may be negative and is 0 by default."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TrePRJPSB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PRJPSB",
        .name = "Projection Parameters",
        .length = 0,
        .lengthRule = "113 + 15*NUM_PRJ; 113..248",
        .placement = "file header (later editions also allow the image subheader)",
        .purpose = "Names the map projection of the image coordinates and gives its parameters and false origin.",
        .sources =
            "DIGEST Part 2 Annex D; STDI-0002 Volume 1 Appendix P, Table P-3 (2024-04); GDAL TRE description "
            "file; NITRO plug-in table; OSSIM tag class; pynitf TRE definition; jbpy TRE definition; NFX TRE "
            "class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

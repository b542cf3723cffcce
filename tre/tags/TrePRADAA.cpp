#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePRADAA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag  width  need      form  values unit label
    Field("PACE",  8, Required, Real, "", "m", "DPPDB Absolute CE 90%",
          "Horizontal radius around a measured point that contains the true point in nine cases out of ten."),
    Field("PALE",  8, Required, Real, "", "m", "DPPDB Absolute LE 90%",
          "Vertical distance from a measured point that contains the true height in nine cases out of ten."),
    Field("PSDCE", 8, Required, Real, "", "m", "DPPDB Support Data CE 90%",
          "Part of the horizontal error that comes from the image support data."),
    Field("PSDLE", 8, Required, Real, "", "m", "DPPDB Support Data LE 90%",
          "Part of the vertical error that comes from the image support data."),
    Field("PMCE",  8, Required, Real, "", "m", "DPPDB Mensuration 1 Pixel CE 90%",
          "Part of the horizontal error that comes from measuring with an uncertainty of one pixel."),
    Field("PMLE",  8, Required, Real, "", "m", "DPPDB Mensuration 1 Pixel LE 90%",
          "Part of the vertical error that comes from measuring with an uncertainty of one pixel."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 48);

}  // namespace

const Detail::TreLayout& TrePRADAA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PRADAA",
        .name = "Product Accuracy Data (Absolute) Definition",
        .length = 48,
        .lengthRule = "",
        .placement = "file header of the master product file; listed at product level",
        .purpose =
            "States the absolute accuracy of a whole DPPDB product as circular and linear errors at 90 percent "
            "probability.",
        .sources = "MIL-PRF-89034 Table 9; STDI-0002 Volume 1 Appendix V (list of DPPDB tags); NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes = "The unit, metres, is recalled and not stated by the source."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

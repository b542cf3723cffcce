#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreIMRFCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag  width  need      form  values unit label
    Times(20),
        Field("XINC", 22, Required, Real, "", "", "X Image Numerator Coefficient",
              "One coefficient of the numerator polynomial of the image x coordinate."),
    End(),
    Times(20),
        Field("XIDC", 22, Required, Real, "", "", "X Image Denominator Coefficient",
              "One coefficient of the denominator polynomial of the image x coordinate."),
    End(),
    Times(20),
        Field("YINC", 22, Required, Real, "", "", "Y Image Numerator Coefficient",
              "One coefficient of the numerator polynomial of the image y coordinate."),
    End(),
    Times(20),
        Field("YIDC", 22, Required, Real, "", "", "Y Image Denominator Coefficient",
              "One coefficient of the denominator polynomial of the image y coordinate."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 1760);

}  // namespace

const Detail::TreLayout& TreIMRFCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "IMRFCA",
        .name = "Image Rational Function Coefficients",
        .length = 1760,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Gives the four sets of twenty rational function coefficients that take normalised ground "
            "coordinates to normalised image coordinates of a stereo image of a DPPDB.",
        .sources =
            "MIL-PRF-89034 Table 69; STDI-0002 Volume 1 Appendix V (list of DPPDB tags); GDAL TRE description "
            "file; NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

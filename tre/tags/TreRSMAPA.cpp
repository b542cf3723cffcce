#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/RsmAdjustable.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMAPA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag     width  need           form     values    unit label
    Field("IID",     80, RequiredBlank, Text,    "",       "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",       "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank, Text,    "",       "", "Triangulation ID",
          "Identifier of the triangulation (adjustment) that produced the data; blank when there was none."),
    Field("NPAR",     2, Required,      Integer, "01..36", "", "Number of Parameters",
          "How many adjustable parameters are active."),
};
constexpr FieldRow TAIL[] = {
    //    tag    width  need      form  values unit label
    Repeat("NPAR"),
        Field("PARVAL", 21, Required, Real, "", "depends on the parameter", "Component Value",
              "Value of one active adjustable parameter, in the order of the index fields."),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, RSM_LOCAL_SYSTEM, RSM_PARAMETER_INDICES, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMAPA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMAPA",
        .name = "Replacement Sensor Model Adjustable Parameters",
        .length = 0,
        .lengthRule = "486 + 21*NPAR; 507..1242",
        .placement = "image subheader",
        .purpose =
            "Gives the values of the adjustable parameters of the replacement sensor model of the image, and "
            "says which corrections are active.",
        .sources =
            "STDI-0002 Volume 1 Appendix U, Table 7 (2024-05); GDAL TRE description file; NITRO plug-in table; "
            "pynitf TRE definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

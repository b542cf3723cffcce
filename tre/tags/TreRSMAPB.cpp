#include "fields/RowList.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/RsmDefinition.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMAPB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width need           form  values unit label
    Field("IID",     80, RequiredBlank, Text, "", "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text, "", "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank, Text, "", "", "Triangulation ID",
          "Identifier of the adjustment that produced the data; blank when there was none."),
};
constexpr FieldRow TAIL[] = {
    //    tag     width need      form  values unit                   label
    Repeat("NPAR"),
        Field("PARVAL", 21, Required, Real, "", "pixels or m (APTYP)", "Component Value",
              "Value of one active adjustable parameter, in the order of the parameters."),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, RSM_DEFINITION.rows, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMAPB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMAPB",
        .name = "Replacement Sensor Model Adjustable Parameters (version B)",
        .length = 0,
        .lengthRule = "291 and the definition of the parameters, and 21*NPAR",
        .placement = "image subheader",
        .purpose =
            "Gives the values of the adjustable parameters of the replacement sensor model of the image and defines "
            "the parameters freely: powers of local coordinates, ground corrections, or combinations of these.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App U Table 8); NFX MATLAB TRE classes (cite "
            "STDI-0002-1 App U); OSML imagery-io structure definition (cites STDI-0002 Vol 1 App U Table 8); pynitf "
            "TRE table and its test records; OSSIM tag class of the sister tag RSMECB (meanings of fields)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "pynitf reads the local coordinate system always and no NBASIS, unlike its own table of RSMECB and the "
            "other sources. The least and greatest lengths that some sources state do not fit the widths and are not "
            "enforced."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

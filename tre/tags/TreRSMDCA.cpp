#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/Counts.h"
#include "tre/tags/detail/RsmAdjustable.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMDCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool CountCovarianceElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "NPART", aOut);
}

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag     width  need           form     values          unit label
    Field("IID",     80, RequiredBlank, Text,    "",             "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",             "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank, Text,    "",             "", "Triangulation ID",
          "Identifier of the triangulation (adjustment) that produced the data; blank when there was none."),
    Field("NPAR",     2, Required,      Integer, "01..36",       "", "Number of Parameters",
          "How many adjustable parameters this image has."),
    Field("NIMGE",    3, Required,      Integer, "001..999",     "", "Number of Images",
          "How many images, this one included, the covariance covers."),
    Field("NPART",    5, Required,      Integer, "00001..99999", "", "Total Number of Parameters",
          "Number of adjustable parameters of all these images together; it is the order of the covariance "
          "matrix.").Locked(),
    Repeat("NIMGE"),
        Field("IIDI",    80, Required,      Text,    "",             "", "Image Identifier",
              "Identifier of one of the images, in the order of the matrix blocks.").Alias("IID"),
        Field("NPARI",    2, Required,      Integer, "01..36",       "", "Number of Parameters",
              "How many adjustable parameters that image has."),
    End(),
};
constexpr FieldRow TAIL[] = {
    //    tag    width  need      form  values unit label
    RepeatBy("NPART*(NPART+1)/2", CountCovarianceElements, "NPART"),
        Field("DERCOV", 21, Required, Real, "", "product of the units of the two parameters", "Direct Error Covariance Element",
              "One element of the upper triangle of the covariance matrix, row by row."),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, RSM_LOCAL_SYSTEM, RSM_PARAMETER_INDICES, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMDCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMDCA",
        .name = "Replacement Sensor Model Direct Error Covariance",
        .length = 0,
        .lengthRule = "494 + 82*NIMGE + 21*NPART*(NPART+1)/2; 597..99985",
        .placement = "image subheader",
        .purpose =
            "Gives the joint error covariance of the adjustable parameters of this image and of all images "
            "that were triangulated with it.",
        .sources =
            "STDI-0002 Volume 1 Appendix U, Table 5 (2024-05); GDAL TRE description file; NITRO plug-in table; "
            "pynitf TRE definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

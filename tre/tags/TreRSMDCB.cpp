#include "fields/FieldWalk.h"
#include "fields/RowList.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/RsmDefinition.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMDCB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// The block of an image has a column for each parameter of that image.
bool CountColumns(const WalkContext& aContext, std::uint64_t& aOut)
{
    return aContext.CountInTurn("NCOLCB", aContext.Turn(), aOut);
}

/// A block without columns has no rows either, so that no row looks for columns in vain.
bool CountRows(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t columns = 0;
    if (!CountColumns(aContext, columns) || !aContext.Count("NROWCB", aOut)) {
        return false;
    }
    aOut = columns == 0 ? 0 : aOut;
    return true;
}

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width need           form     values                       unit label
    Field("IID",     80, RequiredBlank, Text,    "",                          "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",                          "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank, Text,    "",                          "", "Triangulation ID",
          "Identifier of the adjustment that produced the data; blank when there was none."),
    Field("NROWCB",   2, Required,      Integer, "01..36",                    "", "Number of Rows per Cross-Covariance Block",
          "Number of rows of each covariance block; it is the number of active parameters of this image.").Locked(),
    Field("NIMGE",    3, Required,      Integer, "001..999",                  "", "Number of Images",
          "How many images, this one usually included, have a covariance block here."),
    Repeat("NIMGE"),
        Field("IIDI",    80, Required,      Text,    "",                          "", "Image Identifier",
              "Identifier of one of the images, in the order of the blocks."),
        Field("NCOLCB",   2, Required,      Integer, "01..36",                    "", "Number of Columns per Cross-Covariance Block",
              "Number of columns of the block of that image; it is the number of its active parameters.").Locked(),
    End(),
    Field("INCAPD",   1, Required,      Text,    "Y=included|N=not included", "", "Include Adjustable Parameter Definitions Flag",
          "Tells whether the definition of the adjustable parameters follows."),
    When("INCAPD", "Y"),
};
constexpr FieldRow TAIL[] = {
    End(),
    //    tag     width need      form  values unit label
    Repeat("NIMGE"),
        RepeatBy("NROWCB", CountRows, "NROWCB"),
            RepeatBy("NCOLCB of the image", CountColumns),
                Field("CRSCOV", 21, Required, Real, "", "product of the units of the two parameters", "Cross-Covariance Element",
                      "One element of the covariance block between this image and image i, row by row; when both are "
                      "the same image the block is the covariance of its parameters."),
            End(),
        End(),
    End(),
};
// clang-format on
// The definition stands under the condition that the last row of the head opens.
constexpr auto ROWS = JoinRows(HEAD, InCondition(RSM_DEFINITION.rows).rows, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMDCB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMDCB",
        .name = "Replacement Sensor Model Direct Error Covariance (version B)",
        .length = 0,
        .lengthRule =
            "166 + 82*NIMGE, the definition of the parameters when INCAPD is Y, and 21*NROWCB*NCOLCB for each image",
        .placement = "image subheader",
        .purpose =
            "Gives blocks of the joint error covariance between the adjustable parameters of this image and those of "
            "images that were adjusted with it; several such extensions may share the blocks of one image.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App U Table 6); NFX MATLAB TRE classes (cite "
            "STDI-0002-1 App U); OSML imagery-io structure definition and its test (newest version, cites STDI-0002 "
            "Vol 1 App U Table 6, pages U-93 to U-105); OSSIM tag class of the sister tag RSMECB (meanings of fields)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "OSML describes the unit vectors the other way round; the reading of the OSSIM class is kept, as in "
            "RSMAPA."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

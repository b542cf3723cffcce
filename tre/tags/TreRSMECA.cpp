#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/Counts.h"
#include "tre/tags/detail/RsmAdjustable.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMECA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool CountGroupElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "NUMOPG", aOut);
}

bool CountMatrixElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountMatrix(aContext, "NPAR", "NPARO", aOut);
}

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag     width  need              form     values                       unit label
    Field("IID",     80, RequiredBlank,    Text,    "",                          "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,         Text,    "",                          "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank,    Text,    "",                          "", "Triangulation ID",
          "Identifier of the triangulation (adjustment) that produced the data; blank when there was none."),
    Field("INCLIC",   1, Required,         Text,    "Y=included|N=not included", "", "Indirect Error Covariance Flag",
          "Tells whether the covariance of the original parameters follows."),
    Field("INCLUC",   1, Required,         Text,    "Y=included|N=not included", "", "Unmodeled Error Covariance Flag",
          "Tells whether the unmodelled image error follows."),
    When("INCLIC", "Y"),
        Field("NPAR",     2, Conditional,      Integer, "01..36",                    "", "Number of Parameters",
              "How many adjustable parameters are active; it is the number of rows of the mapping matrix.").Locked(),
        Field("NPARO",    2, Conditional,      Integer, "01..36",                    "", "Number of Original Adjustable Parameters",
              "How many original sensor parameters there are; it is the number of columns of the mapping "
              "matrix.").Alias("NPAR0").Locked(),
        Field("IGN",      2, Conditional,      Integer, "01..36",                    "", "Number of Independent Subgroups",
              "Into how many mutually uncorrelated subgroups the original parameters fall."),
        Field("CVDATE",   8, ConditionalBlank, Date,    "{YYYYMMDD}|blank=not available", "", "Version Date of the Original Image Error Covariance",
              "Date of the version of the original covariance."),
};
constexpr FieldRow TAIL[] = {
    //    tag    width  need         form     values    unit              label
        Repeat("IGN"),
            Field("NUMOPG",  2, Conditional, Integer, "01..36", "",               "Number of Original Adjustable Parameters in Subgroup",
                  "How many original parameters belong to this subgroup.").Locked(),
            RepeatBy("NUMOPG*(NUMOPG+1)/2", CountGroupElements, "NUMOPG"),
                Field("ERRCVG", 21, Conditional, Real,    "",       "product of the units of the two parameters", "Original Error Covariance Element",
                      "One element of the upper triangle of the covariance of the subgroup, row by row."),
            End(),
            Field("TCDF",    1, Conditional, Integer,
                  "0=within and between images|1=between images only|2=within an image only",
                  "", "Time Correlation Domain Flag",
                  "Tells for which time differences the correlation of the subgroup holds; with 1 the errors within "
                  "one image are fully correlated, with 2 those of different images are uncorrelated."),
            Field("NCSEG",   1, Conditional, Integer, "2..9",   "",               "Number of Correlation Segments",
                  "How many pieces make up the piecewise linear time correlation function of the subgroup."),
            Repeat("NCSEG"),
                Field("CORSEG", 21, Conditional, Real,    "0..1",   "",               "Segment Correlation Value",
                      "Correlation at the start of one piece of the function; one for the first piece, zero for the "
                      "last, falling in between."),
                Field("TAUSEG", 21, Conditional, Real,    "",       "s",              "Segment Tau Value",
                      "Time difference at the start of the piece; zero for the first, rising after it."),
            End(),
        End(),
        RepeatBy("NPAR*NPARO", CountMatrixElements, "NPARO"),
            Field("MAP",    21, Conditional, Real,    "",       "",               "Mapping Matrix Element",
                  "One element of the matrix that takes the original parameters to the active adjustable parameters, "
                  "row by row."),
        End(),
    End(),
    When("INCLUC", "Y"),
        Field("URR",    21, Conditional, Real,    "",       "pixels squared", "Unmodeled Row Variance",
              "Variance of the image row error that the parameters do not explain."),
        Field("URC",    21, Conditional, Real,    "",       "pixels squared", "Unmodeled Row-Column Covariance",
              "Covariance between the unexplained row and column errors."),
        Field("UCC",    21, Conditional, Real,    "",       "pixels squared", "Unmodeled Column Variance",
              "Variance of the image column error that the parameters do not explain."),
        Field("UNCSR",   1, Conditional, Integer, "2..9",   "",               "Number of Correlation Segments for Row Distance",
              "How many pieces make up the piecewise linear correlation of the unexplained error over row distance."),
        Repeat("UNCSR"),
            Field("UCORSR", 21, Conditional, Real,    "0..1",   "",               "Segment Correlation Value (Row Distance)",
                  "Correlation at the start of one piece of the row-distance function; one for the first piece, zero "
                  "for the last."),
            Field("UTAUSR", 21, Conditional, Real,    "",       "pixels",         "Segment Tau Value (Row Distance)",
                  "Row distance at the start of the piece; zero for the first, rising after it."),
        End(),
        Field("UNCSC",   1, Conditional, Integer, "2..9",   "",               "Number of Correlation Segments for Column Distance",
              "How many pieces make up the piecewise linear correlation of the unexplained error over column "
              "distance."),
        Repeat("UNCSC"),
            Field("UCORSC", 21, Conditional, Real,    "0..1",   "",               "Segment Correlation Value (Column Distance)",
                  "Correlation at the start of one piece of the column-distance function; one for the first piece, "
                  "zero for the last."),
            Field("UTAUSC", 21, Conditional, Real,    "",       "pixels",         "Segment Tau Value (Column Distance)",
                  "Column distance at the start of the piece; zero for the first, rising after it."),
        End(),
    End(),
};
// clang-format on
// The rows between stand under the condition that the last row of the head opens.
constexpr auto ROWS = JoinRows(HEAD, InCondition(RSM_LOCAL_SYSTEM).rows, InCondition(RSM_PARAMETER_INDICES).rows, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMECA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMECA",
        .name = "Replacement Sensor Model Indirect Error Covariance",
        .length = 0,
        .lengthRule =
            "162 + (if INCLIC=Y: 338 + sum over IGN subgroups of (4 + 21*NUMOPG*(NUMOPG+1)/2 + 42*NCSEG) + "
            "21*NPAR*NPARO) + (if INCLUC=Y: 65 + 42*UNCSR + 42*UNCSC)",
        .placement = "image subheader",
        .purpose =
            "Gives the error covariance of the original sensor parameters in independent subgroups with their "
            "time correlation, the matrix that maps them to the adjustable parameters, and the unmodelled "
            "image error.",
        .sources =
            "STDI-0002 Volume 1 Appendix U (2024-05); GDAL TRE description file; NITRO plug-in table; OSSIM "
            "RSM tag class; OSSIM tag class of the sister tag RSMECB (meanings of fields); VXL RSM TRE "
            "definitions; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

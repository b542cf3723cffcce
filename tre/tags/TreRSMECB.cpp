#include "fields/RowList.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/Counts.h"
#include "tre/tags/detail/RsmDefinition.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMECB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool CountGroupElements(const WalkContext& aContext, std::uint64_t& aOut)
{
    return CountTriangle(aContext, "NUMOPG", aOut);
}

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag      width need              form     values                            unit label
    Field("IID",     80, RequiredBlank,    Text,    "",                               "", "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,         Text,    "",                               "", "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("TID",     40, RequiredBlank,    Text,    "",                               "", "Triangulation ID",
          "Identifier of the adjustment that produced the data; blank when there was none."),
    Field("INCLIC",   1, Required,         Text,    "Y=included|N=not included",      "", "Include Indirect Error Covariance Flag",
          "Tells whether the covariance of the original parameters follows."),
    Field("INCLUC",   1, Required,         Text,    "Y=included|N=not included",      "", "Include Unmodeled Error Covariance Flag",
          "Tells whether the unmodelled image error follows."),
    When("INCLIC", "Y"),
        Field("NPARO",    2, Conditional,      Integer, "01..53",                         "", "Number of Original Adjustable Parameters",
              "How many original sensor parameters there are; it is the number of columns of the mapping "
              "matrix.").Locked(),
        Field("IGN",      2, Conditional,      Integer, "01..36",                         "", "Number of Independent Subgroups",
              "Into how many mutually uncorrelated subgroups the original parameters fall."),
        Field("CVDATE",   8, ConditionalBlank, Date,    "{YYYYMMDD}|blank=not available", "", "Version Date of the Original Image Error Covariance",
              "Date of the version of the original covariance; images of one sequence with different dates have "
              "uncorrelated errors."),
};
constexpr FieldRow TAIL[] = {
    //    tag     width need         form     values                     unit              label
        Repeat("IGN"),
            Field("NUMOPG",  2, Conditional, Integer, "01..53",                  "",               "Number of Original Adjustable Parameters in Subgroup",
                  "How many original parameters belong to this subgroup."),
            RepeatBy("NUMOPG*(NUMOPG+1)/2", CountGroupElements, "NUMOPG"),
                Field("ERRCVG", 21, Conditional, Real,    "",                        "product of the units of the two parameters", "Original Error Covariance Element",
                      "One element of the upper triangle of the covariance of the subgroup, row by row."),
            End(),
            Field("TCDF",    1, Conditional, Integer,
                  "0=within and between images|1=between images only|2=within an image only",
                  "", "Time Correlation Domain Flag",
                  "Tells for which time differences the correlation of the subgroup holds; with 1 the errors within "
                  "one image are fully correlated, with 2 those of different images are uncorrelated."),
            Field("ACSMC",   1, Conditional, Text,
                  "Y=four-parameter form|N=piecewise linear form",
                  "", "CSM Correlation Option",
                  "Tells in which form the time correlation of the subgroup is given."),
            When("ACSMC", "N"),
                Field("NCSEG",   1, Conditional, Integer, "2..9",                    "",               "Number of Correlation Segments",
                      "How many pieces make up the piecewise linear time correlation function of the subgroup."),
                Repeat("NCSEG"),
                    Field("CORSEG", 21, Conditional, Real,    "0..1",                    "",               "Segment Correlation Value",
                          "Correlation at the start of one piece of the function; one for the first piece, zero for "
                          "the last, falling in between."),
                    Field("TAUSEG", 21, Conditional, Real,    "0..9.99999999999999E+99", "s",              "Segment Tau Value",
                          "Time difference at the start of the piece; zero for the first, rising after it."),
                End(),
            End(),
            When("ACSMC", "Y"),
                Field("AC",     21, Conditional, Real,    "0..1",                    "",               "CSM Correlation A Parameter",
                      "Parameter A of the four-parameter time correlation function of the subgroup."),
                Field("ALPC",   21, Conditional, Real,    "0..1",                    "",               "CSM Correlation Alpha Parameter",
                      "Parameter alpha of the four-parameter time correlation function of the subgroup."),
                Field("BETC",   21, Conditional, Real,    "0..10",                   "",               "CSM Correlation Beta Parameter",
                      "Parameter beta of the four-parameter time correlation function of the subgroup."),
                Field("TC",     21, Conditional, Real,    "0..9.99999999999999E+99", "s",              "CSM Correlation T Parameter",
                      "Time constant T of the four-parameter time correlation function of the subgroup."),
            End(),
        End(),
        Repeat("NPAR"),
            Repeat("NPARO"),
                Field("MAP",    21, Conditional, Real,    "",                        "",               "Mapping Matrix Element",
                      "One element of the matrix that takes the original parameters to the active adjustable "
                      "parameters, row by row."),
            End(),
        End(),
    End(),
    When("INCLUC", "Y"),
        Field("URR",    21, Conditional, Real,    "0..9.99999999999999E+99", "pixels squared", "Unmodeled Row Variance",
              "Variance of the image row error that the parameters do not explain."),
        Field("URC",    21, Conditional, Real,    "",                        "pixels squared", "Unmodeled Row-Column Covariance",
              "Covariance between the unexplained row and column errors."),
        Field("UCC",    21, Conditional, Real,    "0..9.99999999999999E+99", "pixels squared", "Unmodeled Column Variance",
              "Variance of the image column error that the parameters do not explain."),
        Field("UACSMC",  1, Conditional, Text,
              "Y=four-parameter form|N=piecewise linear form",
              "", "Unmodeled CSM Correlation Option",
              "Tells in which form the correlation of the unexplained error over image distance is given."),
        When("UACSMC", "N"),
            Field("UNCSR",   1, Conditional, Integer, "2..9",                    "",               "Number of Correlation Segments for Row Distance",
                  "How many pieces make up the piecewise linear correlation of the unexplained error over row "
                  "distance."),
            Repeat("UNCSR"),
                Field("UCORSR", 21, Conditional, Real,    "0..1",                    "",               "Segment Correlation Value (Row Distance)",
                      "Correlation at the start of one piece of the row-distance function; one for the first piece, "
                      "zero for the last."),
                Field("UTAUSR", 21, Conditional, Real,    "0..9.99999999999999E+99", "pixels",         "Segment Tau Value (Row Distance)",
                      "Row distance at the start of the piece; zero for the first, rising after it."),
            End(),
            Field("UNCSC",   1, Conditional, Integer, "2..9",                    "",               "Number of Correlation Segments for Column Distance",
                  "How many pieces make up the piecewise linear correlation of the unexplained error over column "
                  "distance."),
            Repeat("UNCSC"),
                Field("UCORSC", 21, Conditional, Real,    "0..1",                    "",               "Segment Correlation Value (Column Distance)",
                      "Correlation at the start of one piece of the column-distance function; one for the first "
                      "piece, zero for the last."),
                Field("UTAUSC", 21, Conditional, Real,    "0..9.99999999999999E+99", "pixels",         "Segment Tau Value (Column Distance)",
                      "Column distance at the start of the piece; zero for the first, rising after it."),
            End(),
        End(),
        When("UACSMC", "Y"),
            Field("UACR",   21, Conditional, Real,    "0..1",                    "",               "Unmodeled CSM Correlation A Parameter (Row Distance)",
                  "Parameter A of the four-parameter correlation of the unexplained error over row distance."),
            Field("UALPCR", 21, Conditional, Real,    "0..1",                    "",               "Unmodeled CSM Correlation Alpha Parameter (Row Distance)",
                  "Parameter alpha of the four-parameter correlation of the unexplained error over row distance."),
            Field("UBETCR", 21, Conditional, Real,    "0..10",                   "",               "Unmodeled CSM Correlation Beta Parameter (Row Distance)",
                  "Parameter beta of the four-parameter correlation of the unexplained error over row distance."),
            Field("UTCR",   21, Conditional, Real,    "0..9.99999999999999E+99", "pixels",         "Unmodeled CSM Correlation T Parameter (Row Distance)",
                  "Distance constant T of the four-parameter correlation of the unexplained error over row distance."),
            Field("UACC",   21, Conditional, Real,    "0..1",                    "",               "Unmodeled CSM Correlation A Parameter (Column Distance)",
                  "Parameter A of the four-parameter correlation of the unexplained error over column distance."),
            Field("UALPCC", 21, Conditional, Real,    "0..1",                    "",               "Unmodeled CSM Correlation Alpha Parameter (Column Distance)",
                  "Parameter alpha of the four-parameter correlation of the unexplained error over column distance."),
            Field("UBETCC", 21, Conditional, Real,    "0..10",                   "",               "Unmodeled CSM Correlation Beta Parameter (Column Distance)",
                  "Parameter beta of the four-parameter correlation of the unexplained error over column distance."),
            Field("UTCC",   21, Conditional, Real,    "0..9.99999999999999E+99", "pixels",         "Unmodeled CSM Correlation T Parameter (Column Distance)",
                  "Distance constant T of the four-parameter correlation of the unexplained error over column "
                  "distance."),
        End(),
    End(),
};
// clang-format on
// The definition stands under the condition that the head opens and the tail ends.
constexpr auto ROWS = JoinRows(HEAD, InCondition(RSM_DEFINITION.rows).rows, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMECB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMECB",
        .name = "Replacement Sensor Model Indirect Error Covariance (version B)",
        .length = 0,
        .lengthRule = "162 and what INCLIC and INCLUC bring",
        .placement = "image subheader",
        .purpose =
            "Gives the error covariance of the original sensor parameters in independent subgroups with their time "
            "correlation, the matrix that maps them to the freely defined adjustable parameters, and the unmodelled "
            "image error.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App U Table 10); OSSIM NITF RSM tag class (quotes the "
            "field texts); NFX MATLAB TRE classes (cite STDI-0002-1 App U); OSML imagery-io structure definition and "
            "its test (newest version, cites STDI-0002 Vol 1 App U Table 10, pages U-187 to U-203); pynitf TRE table; "
            "a record of 718 bytes from the GDAL tests (through pynitf)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "Sources give the constant T of the unmodelled error in seconds or in pixels; pixels, which fit a "
            "distance, are chosen. The least and greatest lengths that some sources state do not fit the widths and "
            "are not enforced. OSML describes the unit vectors the other way round."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

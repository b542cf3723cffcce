#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIXMTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag           width need         form     values                             unit      label
    Field("NUMAIS",        3, Required,    Integer,
          "ALL=all other segments|000=none in this file|001..998",
          "", "Number of Associated Image Segments",
          "Tells how many image segments the metric belongs to."),
    WhenNot("NUMAIS", "ALL"),
        Repeat("NUMAIS"),
            Field("AISDLVL",       3, Conditional, Integer, "001..999",                        "",       "Display Level of Associated Image Segment",
                  "Display level of an image segment that the metric belongs to."),
        End(),
    End(),
    Field("ORIGIN_X",     14, Required,    Real,    "",                                "pixels", "Column Position of Upper Left Pixel Metric Value",
          "Column in the associated image at which the first metric value lies."),
    Field("ORIGIN_Y",     14, Required,    Real,    "",                                "pixels", "Row Position of Upper Left Pixel Metric Value",
          "Row in the associated image at which the first metric value lies."),
    Field("SCALE_X",      14, Required,    Real,    "0..9.9999999E+99",                "",       "Column-based Scale Factor",
          "How many columns of the associated image one metric column spans."),
    Field("SCALE_Y",      14, Required,    Real,    "0..9.9999999E+99",                "",       "Row-based Scale Factor",
          "How many rows of the associated image one metric row spans."),
    Field("SAMPLE_MODE",   1, Required,    Text,    "F=fill the region|I=interpolate", "",       "Pixel Metric Sampling Mode",
          "Tells whether a metric value holds for its whole region or is to be interpolated between neighbours."),
    Field("NUMMETRICS",    5, Required,    Integer, "00001..99999",                    "",       "Number of Metrics",
          "How many metrics the metric image holds."),
    Field("PERBAND",       1, Required,    Text,
          "A=each metric holds for all bands|P=separate metrics for each band",
          "", "Per Band Metric Flag",
          "Tells whether a metric is meant for all bands of the associated image or for one of them."),
    Repeat("NUMMETRICS"),
        Field("DESCRIPTION",  40, Required,    Text,    "any=registered text",             "",       "Description of Pixel Metric",
              "Says what this metric measures."),
        Field("UNIT",         40, Required,    Ecs,     "",                                "",       "Unit of Measure",
              "Unit of the metric after conversion."),
        Field("FITTYPE",       1, Required,    Text,
              "P=polynomial|D=direct (stored value is the metric)",
              "", "Mathematical Form of the Data Transformation",
              "Tells how a stored value is turned into the metric."),
        When("FITTYPE", "P"),
            Field("NUMCOEF",       1, Conditional, Integer, "1..9",                            "",       "Number of Coefficients",
                  "How many coefficients the polynomial of this metric has."),
            Repeat("NUMCOEF"),
                Field("COEF",         15, Conditional, Real,    "",                                "",       "Data Transformation Coefficient",
                      "Coefficient of the polynomial for the power j of the stored value, beginning with the "
                      "constant term."),
            End(),
        End(),
    End(),
    Field("RESERVED_LEN",  5, Required,    Integer, "00000..99999",                    "bytes",  "Size of Reserved Field",
          "Length of the reserved field that follows."),
    WhenPositive("RESERVED_LEN"),
        Sized("RESERVED",     "RESERVED_LEN", 0, Conditional, Bytes,   "",                                "",       "Reserved Data Field",
              "Bytes kept for future use by the standard."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TrePIXMTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIXMTA",
        .name = "Pixel Metric",
        .length = 0,
        .lengthRule =
            "71 + 3*NUMAIS (nothing when NUMAIS is ALL) + sum over the NUMMETRICS metrics of (81 + (if FITTYPE=P: 1 + "
            "15*NUMCOEF)) + RESERVED_LEN",
        .placement = "image subheader (of the image segment that holds the metric values)",
        .purpose =
            "Describes an image segment whose values are measurements on the pixels of other images: which images, "
            "how the two pixel grids fit together, and how stored values become physical values.",
        .sources =
            "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition; OSML imagery-io structure "
            "definition (cites STDI-0002 Vol 1 App AJ); NFX MATLAB TRE class (cites STDI-0002-1 App AJ, Table AJ.6-8, "
            "2025-02)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "An origin of +4.9999999E+07 and a scale of +9.9999999E+07 mark a metric that holds for the whole width "
            "or height. pynitf leaves COEF out for FITTYPE D only, the other sources for all but P."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

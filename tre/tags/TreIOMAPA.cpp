#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreIOMAPA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag             width  need         form      values                      unit     label
    Field("BAND_NUMBER",      3, Required,    Integer,  "000=single band|001..999", "",      "Band Identifier",
          "Band to which the mapping applies."),
    Field("MAP_SELECT",       1, Required,    Integer,  "0=none|1=look-up table|2=logarithmic|3=polynomial", "", "Mapping Method to Apply",
          "Method of the mapping; it also decides which fields follow."),
    When("MAP_SELECT", "1|2|3"),
        Field("TABLE_ID",         2, Optional,    Integer,  "00..99|blank",             "",      "Input/Output Table Used",
              "Number of the table that was used, for diagnosis only."),
        Field("S1",               2, Conditional, Integer,  "00..11",                   "bits",  "Scale Factor 1",
              "Number of bits by which the input is scaled up towards 12 bits."),
    End(),
    Field("S2",               2, Required,    Integer,  "00..11",                   "bits",  "Scale Factor 2",
          "Number of bits by which the precision of the output is changed."),
    When("MAP_SELECT", "1"),
        Times(4096),
            Field("OUTPUT_MAP_VALUE", 2, Conditional, Unsigned, "0..4095",                  "",      "Output Mapping Value",
                  "Output value for one input amplitude; the first belongs to amplitude 0.").Alias("OUTPUT_MAP_VALUES"),
        End(),
    End(),
    When("MAP_SELECT", "2"),
        Field("R_WHOLE",          3, Conditional, Integer,  "000..999",                 "",      "R Scaling Factor, Whole Part",
              "Whole part of the factor R of the logarithmic mapping."),
        Field("R_FRACTION",       3, Conditional, Integer,  "000..255",                 "1/256", "R Scaling Factor, Fractional Part",
              "Fraction of the factor R in parts of 256."),
    End(),
    When("MAP_SELECT", "3"),
        Field("NO_OF_SEGMENTS",   1, Conditional, Integer,  "3",                        "",      "Number of Segments",
              "How many polynomial segments there are; always three."),
        Field("XOB_1",            4, Conditional, Integer,  "0000..4095",               "",      "Segment Boundary 1",
              "Amplitude at which the second segment begins."),
        Field("XOB_2",            4, Conditional, Integer,  "0000..4095",               "",      "Segment Boundary 2",
              "Amplitude at which the third segment begins, above XOB_1."),
        Repeat("NO_OF_SEGMENTS"),
            Field("OUT_B0",           4, Conditional, Float,    "",                         "",      "B0 Coefficient",
                  "Coefficient of the term of degree 0 in the polynomial of the segment."),
            Field("OUT_B1",           4, Conditional, Float,    "",                         "",      "B1 Coefficient",
                  "Coefficient of the term of degree 1 in the polynomial of the segment."),
            Field("OUT_B2",           4, Conditional, Float,    "",                         "",      "B2 Coefficient",
                  "Coefficient of the term of degree 2 in the polynomial of the segment."),
            Field("OUT_B3",           4, Conditional, Float,    "",                         "",      "B3 Coefficient",
                  "Coefficient of the term of degree 3 in the polynomial of the segment."),
            Field("OUT_B4",           4, Conditional, Float,    "",                         "",      "B4 Coefficient",
                  "Coefficient of the term of degree 4 in the polynomial of the segment."),
            Field("OUT_B5",           4, Conditional, Float,    "",                         "",      "B5 Coefficient",
                  "Coefficient of the term of degree 5 in the polynomial of the segment."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreIOMAPA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "IOMAPA",
        .name = "Input/Output Amplitude Mapping",
        .length = 0,
        .lengthRule = "6 if MAP_SELECT=0, 8202 if MAP_SELECT=1, 16 if MAP_SELECT=2, 91 if MAP_SELECT=3",
        .placement = "image subheader",
        .purpose =
            "Holds the data needed to map the amplitudes of a band that was compressed with 12-bit JPEG back "
            "to output values, by a table, a logarithm or polynomials.",
        .sources =
            "STDI-0002 Volume 1 Appendix F, Tables F-1 to F-4; NITRO plug-in table; OSML imagery-io structure "
            "definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

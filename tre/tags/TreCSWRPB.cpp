#include "fields/RowList.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSWRPB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag                 width need         form     values                             unit       label
    Field("NUM_SETS_WARP_DATA",  1, Required,    Integer, "1..9",                            "",        "Number of Sets of Warping Data",
          "How many sets of warping data follow."),
    Field("SENSOR_TYPE",         1, Required,    Text,    "S=line scanner|F=framing sensor", "",        "Sensor Type",
          "Kind of sensor that collected the image."),
    When("SENSOR_TYPE", "F"),
        Field("WRP_INTERP",          1, Conditional, Integer, "0=nearest neighbour|1=linear",    "",        "Warping Interpolation Type",
              "How to interpolate between the sets of warping data."),
    End(),
    Repeat("NUM_SETS_WARP_DATA"),
        When("SENSOR_TYPE", "F"),
            Field("FL_WARP",            11, Conditional, Real,    "00.00000000..99.99999999",        "m",       "Focal Length of the Set",
                  "Focal length to which this set of warping data belongs."),
        End(),
        Field("OFFSET_LINE",         7, Required,    Integer, "0000001..9999999",                "lines",   "Line Normalization Offset",
              "Offset that normalises the line coordinate of the warped image."),
        Field("OFFSET_SAMP",         7, Required,    Integer, "0000001..9999999",                "samples", "Sample Normalization Offset",
              "Offset that normalises the sample coordinate of the warped image."),
        Field("SCALE_LINE",          7, Required,    Integer, "0000001..9999999",                "lines",   "Line Normalization Scale",
              "Scale that normalises the line coordinate of the warped image."),
        Field("SCALE_SAMP",          7, Required,    Integer, "0000001..9999999",                "samples", "Sample Normalization Scale",
              "Scale that normalises the sample coordinate of the warped image."),
        Field("OFFSET_LINE_UNWRP",   7, Required,    Integer, "0000001..9999999",                "lines",   "Unwarped Line Normalization Offset",
              "Offset that normalises the line coordinate of the unwarped image."),
        Field("OFFSET_SAMP_UNWRP",   7, Required,    Integer, "0000001..9999999",                "samples", "Unwarped Sample Normalization Offset",
              "Offset that normalises the sample coordinate of the unwarped image."),
        Field("SCALE_LINE_UNWRP",    7, Required,    Integer, "0000001..9999999",                "lines",   "Unwarped Line Normalization Scale",
              "Scale that normalises the line coordinate of the unwarped image."),
        Field("SCALE_SAMP_UNWRP",    7, Required,    Integer, "0000001..9999999",                "samples", "Unwarped Sample Normalization Scale",
              "Scale that normalises the sample coordinate of the unwarped image."),
        Field("LINE_POLY_ORDER_M1",  1, Required,    Integer, "0..9",                            "",        "Order of the Line De-warping Polynomial in the Line",
              "Highest power of the line coordinate in the polynomial that gives the unwarped line."),
        Field("LINE_POLY_ORDER_M2",  1, Required,    Integer, "0..9",                            "",        "Order of the Line De-warping Polynomial in the Sample",
              "Highest power of the sample coordinate in the polynomial that gives the unwarped line."),
        Field("SAMP_POLY_ORDER_N1",  1, Required,    Integer, "0..9",                            "",        "Order of the Sample De-warping Polynomial in the Line",
              "Highest power of the line coordinate in the polynomial that gives the unwarped sample."),
        Field("SAMP_POLY_ORDER_N2",  1, Required,    Integer, "0..9",                            "",        "Order of the Sample De-warping Polynomial in the Sample",
              "Highest power of the sample coordinate in the polynomial that gives the unwarped sample."),
};
/// A polynomial of order p has p + 1 powers, the constant included, by most sources, and p by the others.
template<std::int32_t MORE>
constexpr FieldRow COEFFICIENTS[] = {
    //    tagwidth need      form  values unit label
        Repeat("LINE_POLY_ORDER_M2", MORE),
            Repeat("LINE_POLY_ORDER_M1", MORE),
                Field("A", 21, Required, Real, "", "", "Line De-warping Coefficient",
                      "Coefficient of the term with the line to the power i and the sample to the power j, both "
                      "counted from zero, of the line polynomial."),
            End(),
        End(),
        Repeat("SAMP_POLY_ORDER_N2", MORE),
            Repeat("SAMP_POLY_ORDER_N1", MORE),
                Field("B", 21, Required, Real, "", "", "Sample De-warping Coefficient",
                      "Coefficient of the term with the line to the power i and the sample to the power j, both "
                      "counted from zero, of the sample polynomial."),
            End(),
        End(),
};
constexpr FieldRow TAIL[] = {
    End(),
    //    tag           width need         form     values          unit     label
    Field("RESERVED_LEN", 5, Required,    Integer, "00000..99999", "bytes", "Length of the Reserved Field",
          "How many bytes of reserved data follow."),
    WhenPositive("RESERVED_LEN"),
        Sized("RESERVED",     "RESERVED_LEN", 0, Conditional, Bytes,   "",             "",      "Reserved Field",
              "Bytes kept for future use by the standard."),
    End(),
};
// clang-format on
// The coefficients stand in the repeat that the head opens.
constexpr auto ROWS = JoinRows(HEAD, COEFFICIENTS<1>, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
constexpr auto FEWER_ROWS = JoinRows(HEAD, COEFFICIENTS<0>, TAIL);
constexpr auto FEWER_TABLE = MakeTable(FEWER_ROWS.rows);
static_assert(FEWER_TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCSWRPB::Layout()
{
    static constexpr Detail::TreLayout FEWER{
        .tag = "CSWRPB",
        .name = "Common Sensor Warping Terms",
        .length = 0,
        .lengthRule =
            "7 and for each set 60 + 21*LINE_POLY_ORDER_M1*LINE_POLY_ORDER_M2 + "
            "21*SAMP_POLY_ORDER_N1*SAMP_POLY_ORDER_N2, 1 and 11 more for a framing sensor, and RESERVED_LEN",
        .placement = "image subheader",
        .purpose = "The same warping terms with fewer coefficients.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App AH Table AH.6-3); OSSIM NITF tag class (older "
            "version); two sample records of imaging-nitf (draft RFC 82A)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = FEWER_TABLE.View(),
        .notes = "Here order*order coefficients are read."};
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSWRPB",
        .name = "Common Sensor Warping Terms",
        .length = 0,
        .lengthRule =
            "7 and for each set 60 + 21*(LINE_POLY_ORDER_M1+1)*(LINE_POLY_ORDER_M2+1) + "
            "21*(SAMP_POLY_ORDER_N1+1)*(SAMP_POLY_ORDER_N2+1), 1 and 11 more for a framing sensor, and RESERVED_LEN",
        .placement = "image subheader",
        .purpose =
            "Gives polynomials that undo the warping of an image: lines whose samples were not taken at one time, "
            "optical distortion, rectification or stabilisation.",
        .sources =
            "OSSIM NITF tag class (newest version); NFX MATLAB TRE classes and their byte-level tests (cite "
            "STDI-0002-2 App M Table M.6-3); OSML imagery-io structure definition and its test (cites STDI-0002 Vol 2 "
            "App M, version 1.2); NEI parser add-on for imaging-nitf",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "Sources disagree on the number of coefficients: these read (order+1)*(order+1), others order*order. The "
            "count that fits the length of the record exactly is taken; a record that fits neither is kept as its "
            "bytes. The power of the line changes fastest.",
        .other = &FEWER};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

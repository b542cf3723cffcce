#include "tre/TreRPC00B.h"

#include "tre/detail/TreLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag            width  need      form     values                       unit      label
    Field("SUCCESS",         1, Required, Integer, "1=success|0=failure",       "",       "Success",
          "Tells whether the polynomial fit succeeded."),
    Field("ERR_BIAS",        7, Required, Real,    "0000.00..9999.99",          "m",      "Error - Bias",
          "Estimate of the systematic horizontal error, common to all points of the image; 0000.00 when it is not "
          "known."),
    Field("ERR_RAND",        7, Required, Real,    "0000.00..9999.99",          "m",      "Error - Random",
          "Estimate of the random horizontal error of a point; 0000.00 when it is not known."),
    Field("LINE_OFF",        6, Required, Integer, "000000..999999",            "pixels", "Line Offset",
          "Line value subtracted when image lines are normalised.").Alias("LINE_OFFSET"),
    Field("SAMP_OFF",        5, Required, Integer, "00000..99999",              "pixels", "Sample Offset",
          "Sample value subtracted when image samples are normalised.").Alias("SAMP_OFFSET"),
    Field("LAT_OFF",         8, Required, Real,    "-90.0000..+90.0000",        "deg",    "Geodetic Latitude Offset",
          "Latitude subtracted when latitudes are normalised.").Alias("LAT_OFFSET"),
    Field("LONG_OFF",        9, Required, Real,    "-180.0000..+180.0000",      "deg",    "Geodetic Longitude Offset",
          "Longitude subtracted when longitudes are normalised.").Alias("LONG_OFFSET"),
    Field("HEIGHT_OFF",      5, Required, Integer, "-9999..+9999",              "m",      "Geodetic Height Offset",
          "Height subtracted when heights are normalised.").Alias("HEIGHT_OFFSET"),
    Field("LINE_SCALE",      6, Required, Integer, "000001..999999",            "pixels", "Line Scale",
          "Divisor that normalises image lines."),
    Field("SAMP_SCALE",      5, Required, Integer, "00001..99999",              "pixels", "Sample Scale",
          "Divisor that normalises image samples."),
    Field("LAT_SCALE",       8, Required, Real,    "-90.0000..-00.0001|+00.0001..+90.0000", "deg", "Geodetic Latitude Scale",
          "Divisor that normalises latitudes; never zero."),
    Field("LONG_SCALE",      9, Required, Real,    "-180.0000..-000.0001|+000.0001..+180.0000", "deg", "Geodetic Longitude Scale",
          "Divisor that normalises longitudes; never zero."),
    Field("HEIGHT_SCALE",    5, Required, Integer, "-9999..-0001|+0001..+9999", "m",      "Geodetic Height Scale",
          "Divisor that normalises heights; never zero."),
    Times(20),
        Field("LINE_NUM_COEFF", 12, Required, Real,    "",                          "",       "Line Numerator Coefficient",
              "Coefficient of the i-th term in the numerator of the line polynomial."),
    End(),
    Times(20),
        Field("LINE_DEN_COEFF", 12, Required, Real,    "",                          "",       "Line Denominator Coefficient",
              "Coefficient of the i-th term in the denominator of the line polynomial."),
    End(),
    Times(20),
        Field("SAMP_NUM_COEFF", 12, Required, Real,    "",                          "",       "Sample Numerator Coefficient",
              "Coefficient of the i-th term in the numerator of the sample polynomial."),
    End(),
    Times(20),
        Field("SAMP_DEN_COEFF", 12, Required, Real,    "",                          "",       "Sample Denominator Coefficient",
              "Coefficient of the i-th term in the denominator of the sample polynomial."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 1041);

}  // namespace

const Detail::TreLayout& TreRPC00B::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RPC00B",
        .name = "Rapid Positioning Capability",
        .length = 1041,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Rational polynomials that turn latitude, longitude and height into image line and sample, with "
            "offsets, scales and error estimates.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; imaging-nitf TRE description "
            "file; NITRO plug-in table; Opticks TRE parser; OSSIM tag and RPC model classes; pynitf TRE "
            "definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMPCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values      unit      label
    Field("IID",     80, RequiredBlank, Text,    "",         "",       "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",         "",       "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("RSN",      3, Required,      Integer, "001..256", "",       "Row Section Number",
          "Number of the image section in the row direction to which the polynomials belong."),
    Field("CSN",      3, Required,      Integer, "001..256", "",       "Column Section Number",
          "Number of the image section in the column direction to which the polynomials belong."),
    Field("RFEP",    21, RequiredBlank, Real,    "",         "pixels", "Row Fitting Error",
          "Row error of the polynomials against the original sensor model; blank when not known."),
    Field("CFEP",    21, RequiredBlank, Real,    "",         "pixels", "Column Fitting Error",
          "Column error of the polynomials against the original sensor model; blank when not known."),
    Field("RNRMO",   21, Required,      Real,    "",         "pixels", "Row Normalization Offset",
          "Value subtracted from the image row to normalise it."),
    Field("CNRMO",   21, Required,      Real,    "",         "pixels", "Column Normalization Offset",
          "Value subtracted from the image column to normalise it."),
    Field("XNRMO",   21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "X Normalization Offset",
          "Value subtracted from the ground x to normalise it."),
    Field("YNRMO",   21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "Y Normalization Offset",
          "Value subtracted from the ground y to normalise it."),
    Field("ZNRMO",   21, Required,      Real,    "",         "m",      "Z Normalization Offset",
          "Value subtracted from the ground z to normalise it."),
    Field("RNRMSF",  21, Required,      Real,    "",         "pixels", "Row Normalization Scale Factor",
          "Value by which the shifted image row is divided to normalise it."),
    Field("CNRMSF",  21, Required,      Real,    "",         "pixels", "Column Normalization Scale Factor",
          "Value by which the shifted image column is divided to normalise it."),
    Field("XNRMSF",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "X Normalization Scale Factor",
          "Value by which the shifted ground x is divided to normalise it."),
    Field("YNRMSF",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "Y Normalization Scale Factor",
          "Value by which the shifted ground y is divided to normalise it."),
    Field("ZNRMSF",  21, Required,      Real,    "",         "m",      "Z Normalization Scale Factor",
          "Value by which the shifted ground z is divided to normalise it."),
    Field("RNPWRX",   1, Required,      Integer, "0..5",     "",       "Row Numerator Polynomial Maximum Power of X",
          "Greatest power of x in the row numerator polynomial."),
    Field("RNPWRY",   1, Required,      Integer, "0..5",     "",       "Row Numerator Polynomial Maximum Power of Y",
          "Greatest power of y in the row numerator polynomial."),
    Field("RNPWRZ",   1, Required,      Integer, "0..5",     "",       "Row Numerator Polynomial Maximum Power of Z",
          "Greatest power of z in the row numerator polynomial."),
    Field("RNTRMS",   3, Required,      Integer, "001..216", "",       "Row Numerator Polynomial Number of Terms",
          "Number of coefficients that follow, the product of the three powers each plus one."),
    Repeat("RNTRMS"),
        Field("RNPCF",   21, Required,      Real,    "",         "",       "Row Numerator Polynomial Coefficient",
              "One coefficient of the row numerator polynomial; the power of x runs fastest, then that of y, then that "
              "of z."),
    End(),
    Field("RDPWRX",   1, Required,      Integer, "0..5",     "",       "Row Denominator Polynomial Maximum Power of X",
          "Greatest power of x in the row denominator polynomial."),
    Field("RDPWRY",   1, Required,      Integer, "0..5",     "",       "Row Denominator Polynomial Maximum Power of Y",
          "Greatest power of y in the row denominator polynomial."),
    Field("RDPWRZ",   1, Required,      Integer, "0..5",     "",       "Row Denominator Polynomial Maximum Power of Z",
          "Greatest power of z in the row denominator polynomial."),
    Field("RDTRMS",   3, Required,      Integer, "001..216", "",       "Row Denominator Polynomial Number of Terms",
          "Number of coefficients that follow, the product of the three powers each plus one."),
    Repeat("RDTRMS"),
        Field("RDPCF",   21, Required,      Real,    "",         "",       "Row Denominator Polynomial Coefficient",
              "One coefficient of the row denominator polynomial; the power of x runs fastest, then that of y, then "
              "that of z."),
    End(),
    Field("CNPWRX",   1, Required,      Integer, "0..5",     "",       "Column Numerator Polynomial Maximum Power of X",
          "Greatest power of x in the column numerator polynomial."),
    Field("CNPWRY",   1, Required,      Integer, "0..5",     "",       "Column Numerator Polynomial Maximum Power of Y",
          "Greatest power of y in the column numerator polynomial."),
    Field("CNPWRZ",   1, Required,      Integer, "0..5",     "",       "Column Numerator Polynomial Maximum Power of Z",
          "Greatest power of z in the column numerator polynomial."),
    Field("CNTRMS",   3, Required,      Integer, "001..216", "",       "Column Numerator Polynomial Number of Terms",
          "Number of coefficients that follow, the product of the three powers each plus one."),
    Repeat("CNTRMS"),
        Field("CNPCF",   21, Required,      Real,    "",         "",       "Column Numerator Polynomial Coefficient",
              "One coefficient of the column numerator polynomial; the power of x runs fastest, then that of y, then "
              "that of z."),
    End(),
    Field("CDPWRX",   1, Required,      Integer, "0..5",     "",       "Column Denominator Polynomial Maximum Power of X",
          "Greatest power of x in the column denominator polynomial."),
    Field("CDPWRY",   1, Required,      Integer, "0..5",     "",       "Column Denominator Polynomial Maximum Power of Y",
          "Greatest power of y in the column denominator polynomial."),
    Field("CDPWRZ",   1, Required,      Integer, "0..5",     "",       "Column Denominator Polynomial Maximum Power of Z",
          "Greatest power of z in the column denominator polynomial."),
    Field("CDTRMS",   3, Required,      Integer, "001..216", "",       "Column Denominator Polynomial Number of Terms",
          "Number of coefficients that follow, the product of the three powers each plus one."),
    Repeat("CDTRMS"),
        Field("CDPCF",   21, Required,      Real,    "",         "",       "Column Denominator Polynomial Coefficient",
              "One coefficient of the column denominator polynomial; the power of x runs fastest, then that of y, then "
              "that of z."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMPCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMPCA",
        .name = "Replacement Sensor Model Polynomial Coefficients",
        .length = 0,
        .lengthRule = "402 + 21*(RNTRMS+RDTRMS+CNTRMS+CDTRMS); 486..18546",
        .placement = "image subheader",
        .purpose =
            "Gives, for one section of the image, the rational polynomials that take normalised ground "
            "coordinates to normalised image coordinates.",
        .sources =
            "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition; OSSIM RSM tag class; VXL "
            "RSM TRE definitions",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMPIA, TRE);

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
    Field("R0",      21, Required,      Real,    "",         "",       "Low Order Polynomial Constant Coefficient for Row",
          "Coefficient of the constant term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("RX",      21, Required,      Real,    "",         "",       "Low Order Polynomial X Coefficient for Row",
          "Coefficient of the x term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("RY",      21, Required,      Real,    "",         "",       "Low Order Polynomial Y Coefficient for Row",
          "Coefficient of the y term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("RZ",      21, Required,      Real,    "",         "",       "Low Order Polynomial Z Coefficient for Row",
          "Coefficient of the z term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("RXX",     21, Required,      Real,    "",         "",       "Low Order Polynomial XX Coefficient for Row",
          "Coefficient of the x squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("RXY",     21, Required,      Real,    "",         "",       "Low Order Polynomial XY Coefficient for Row",
          "Coefficient of the x times y term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("RXZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial XZ Coefficient for Row",
          "Coefficient of the x times z term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("RYY",     21, Required,      Real,    "",         "",       "Low Order Polynomial YY Coefficient for Row",
          "Coefficient of the y squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("RYZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial YZ Coefficient for Row",
          "Coefficient of the y times z term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("RZZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial ZZ Coefficient for Row",
          "Coefficient of the z squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("C0",      21, Required,      Real,    "",         "",       "Low Order Polynomial Constant Coefficient for Column",
          "Coefficient of the constant term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CX",      21, Required,      Real,    "",         "",       "Low Order Polynomial X Coefficient for Column",
          "Coefficient of the x term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("CY",      21, Required,      Real,    "",         "",       "Low Order Polynomial Y Coefficient for Column",
          "Coefficient of the y term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("CZ",      21, Required,      Real,    "",         "",       "Low Order Polynomial Z Coefficient for Column",
          "Coefficient of the z term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("CXX",     21, Required,      Real,    "",         "",       "Low Order Polynomial XX Coefficient for Column",
          "Coefficient of the x squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CXY",     21, Required,      Real,    "",         "",       "Low Order Polynomial XY Coefficient for Column",
          "Coefficient of the x times y term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CXZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial XZ Coefficient for Column",
          "Coefficient of the x times z term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CYY",     21, Required,      Real,    "",         "",       "Low Order Polynomial YY Coefficient for Column",
          "Coefficient of the y squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CYZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial YZ Coefficient for Column",
          "Coefficient of the y times z term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("CZZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial ZZ Coefficient for Column",
          "Coefficient of the z squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("RNIS",     3, Required,      Integer, "001..256", "",       "Row Number of Image Sections",
          "Into how many sections the image is cut in the row direction for the polynomials."),
    Field("CNIS",     3, Required,      Integer, "001..256", "",       "Column Number of Image Sections",
          "Into how many sections the image is cut in the column direction for the polynomials."),
    Field("TNIS",     3, Required,      Integer, "001..256", "",       "Total Number of Image Sections",
          "Number of sections in all, the product of the two counts before it."),
    Field("RSSIZ",   21, Required,      Real,    "",         "pixels", "Section Size in Rows",
          "Height of one section."),
    Field("CSSIZ",   21, Required,      Real,    "",         "pixels", "Section Size in Columns",
          "Width of one section."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 591);

}  // namespace

const Detail::TreLayout& TreRSMPIA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMPIA",
        .name = "Replacement Sensor Model Polynomial Identification",
        .length = 591,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Describes how the image is cut into sections with one set of rational polynomials (RSMPCA) each, "
            "and gives a coarse polynomial to choose the section.",
        .sources =
            "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition; OSSIM RSM tag class; VXL "
            "RSM TRE definitions",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

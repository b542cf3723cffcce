#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMGIA, TRE);

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
    Field("GR0",     21, Required,      Real,    "",         "",       "Low Order Polynomial Constant Coefficient for Row",
          "Coefficient of the constant term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("GRX",     21, Required,      Real,    "",         "",       "Low Order Polynomial X Coefficient for Row",
          "Coefficient of the x term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("GRY",     21, Required,      Real,    "",         "",       "Low Order Polynomial Y Coefficient for Row",
          "Coefficient of the y term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("GRZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial Z Coefficient for Row",
          "Coefficient of the z term in the low order polynomial that estimates the image row, used to find the "
          "section of a ground point."),
    Field("GRXX",    21, Required,      Real,    "",         "",       "Low Order Polynomial XX Coefficient for Row",
          "Coefficient of the x squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GRXY",    21, Required,      Real,    "",         "",       "Low Order Polynomial XY Coefficient for Row",
          "Coefficient of the x times y term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GRXZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial XZ Coefficient for Row",
          "Coefficient of the x times z term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GRYY",    21, Required,      Real,    "",         "",       "Low Order Polynomial YY Coefficient for Row",
          "Coefficient of the y squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GRYZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial YZ Coefficient for Row",
          "Coefficient of the y times z term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GRZZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial ZZ Coefficient for Row",
          "Coefficient of the z squared term in the low order polynomial that estimates the image row, used to find "
          "the section of a ground point."),
    Field("GC0",     21, Required,      Real,    "",         "",       "Low Order Polynomial Constant Coefficient for Column",
          "Coefficient of the constant term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCX",     21, Required,      Real,    "",         "",       "Low Order Polynomial X Coefficient for Column",
          "Coefficient of the x term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("GCY",     21, Required,      Real,    "",         "",       "Low Order Polynomial Y Coefficient for Column",
          "Coefficient of the y term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("GCZ",     21, Required,      Real,    "",         "",       "Low Order Polynomial Z Coefficient for Column",
          "Coefficient of the z term in the low order polynomial that estimates the image column, used to find the "
          "section of a ground point."),
    Field("GCXX",    21, Required,      Real,    "",         "",       "Low Order Polynomial XX Coefficient for Column",
          "Coefficient of the x squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCXY",    21, Required,      Real,    "",         "",       "Low Order Polynomial XY Coefficient for Column",
          "Coefficient of the x times y term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCXZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial XZ Coefficient for Column",
          "Coefficient of the x times z term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCYY",    21, Required,      Real,    "",         "",       "Low Order Polynomial YY Coefficient for Column",
          "Coefficient of the y squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCYZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial YZ Coefficient for Column",
          "Coefficient of the y times z term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GCZZ",    21, Required,      Real,    "",         "",       "Low Order Polynomial ZZ Coefficient for Column",
          "Coefficient of the z squared term in the low order polynomial that estimates the image column, used to find "
          "the section of a ground point."),
    Field("GRNIS",    3, Required,      Integer, "001..256", "",       "Row Number of Image Sections",
          "Into how many sections the image is cut in the row direction for the grids."),
    Field("GCNIS",    3, Required,      Integer, "001..256", "",       "Column Number of Image Sections",
          "Into how many sections the image is cut in the column direction for the grids."),
    Field("GTNIS",    3, Required,      Integer, "001..256", "",       "Total Number of Image Sections",
          "Number of sections in all, the product of the two counts before it."),
    Field("GRSSIZ",  21, Required,      Real,    "",         "pixels", "Section Size in Rows",
          "Height of one section."),
    Field("GCSSIZ",  21, Required,      Real,    "",         "pixels", "Section Size in Columns",
          "Width of one section."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 591);

}  // namespace

const Detail::TreLayout& TreRSMGIA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMGIA",
        .name = "Replacement Sensor Model Ground-to-Image Grid Identification",
        .length = 591,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Describes how the image is cut into sections with one ground-to-image grid (RSMGGA) each, and "
            "gives a coarse polynomial to choose the section.",
        .sources = "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

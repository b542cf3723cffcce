#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreS2EVPA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                width need         form     values                           unit     label
    Field("QUANTITY_NAME_LEN",  3, Required,    Integer, "000..999",                      "bytes", "Quantity Name Length",
          "Length of the name of the quantity; zero when it is not named."),
    WhenPositive("QUANTITY_NAME_LEN"),
        Sized("QUANTITY_NAME",     "QUANTITY_NAME_LEN", 0, Conditional, Ecs,     "",                              "",      "Quantity Name",
              "Physical quantity that the converted values represent."),
    End(),
    Field("UOM_LEN",            3, Required,    Integer, "000..999",                      "bytes", "Unit of Measure Length",
          "Length of the unit; zero when it is not given."),
    WhenPositive("UOM_LEN"),
        Sized("UOM",               "UOM_LEN", 0, Conditional, Ecs,     "any=an SI unit; 1 for a ratio", "",      "Unit of Measure",
              "Unit of the converted values."),
    End(),
    Field("FIRST_BAND",         5, Required,    Integer, "00001..99999",                  "",      "First Band",
          "First band to which the polynomial applies."),
    Field("LAST_BAND",          5, Required,    Integer, "00001..99999",                  "",      "Last Band",
          "Last band to which the polynomial applies."),
    Field("NUMCOEF",            1, Required,    Integer, "1..9",                          "",      "Number of Coefficients",
          "How many coefficients the polynomial has."),
    Repeat("NUMCOEF"),
        Field("COEF",              15, Required,    Real,    "",                              "",      "Polynomial Coefficient",
              "Coefficient of the polynomial, beginning with the constant term."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreS2EVPA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "S2EVPA",
        .name = "Stored Pixel Value to Engineering Value Polynomial",
        .length = 0,
        .lengthRule = "17 + QUANTITY_NAME_LEN + UOM_LEN + 15*NUMCOEF",
        .placement = "image subheader",
        .purpose =
            "Gives the polynomial that turns the stored pixel values of some bands into a physical quantity, for "
            "images whose real values were scaled to integers.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AT); NFX MATLAB TRE class (cites "
            "STDI-0002-1 App AT, Table AT.5-1, 2025-06)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "The value is the sum of COEF_n times the stored value to the power n - 1."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

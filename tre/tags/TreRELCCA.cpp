#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRELCCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width need         form     values        unit     label
    Field("RELDATE",    8, Required,    Date,    "{CCYYMMDD}", "",      "Date of Releasability Determination",
          "Day on which it was decided to whom the file may be released."),
    Field("RELSLNTH",   4, Required,    Integer, "0000..9999", "bytes", "Releasability Determination Source Length",
          "Length of the name of the deciding authority; zero when it is not named."),
    WhenPositive("RELSLNTH"),
        Sized("RELSOURS",   "RELSLNTH", 0, Conditional, Utf8,    "",           "",      "Releasability Determination Source",
              "Name of or reference to the authority that decided on the release."),
    End(),
    Field("RELCCSLNTH", 4, Required,    Integer, "0000..9999", "bytes", "Country Code Standard Length",
          "Length of the name of the country code standard; zero when none is named."),
    WhenPositive("RELCCSLNTH"),
        Sized("RELCCSTD",   "RELCCSLNTH", 0, Conditional, Utf8,    "",           "",      "Country Code Standard",
              "Standard from which the country codes in COALCC and RELCCODES are taken."),
    End(),
    Field("RCOLSLNTH",  4, Required,    Integer, "0000..9999", "bytes", "Coalition ID Code Standard Length",
          "Length of the name of the coalition code standard; zero when none is named."),
    WhenPositive("RCOLSLNTH"),
        Sized("RCOLSTD",    "RCOLSLNTH", 0, Conditional, Utf8,    "",           "",      "Coalition ID Code Standard",
              "Standard from which the coalition codes in COALID and COALCC are taken."),
    End(),
    Field("RORGSLNTH",  4, Required,    Integer, "0000..9999", "bytes", "Release Organizational Code Standard Length",
          "Length of the name of the organization code standard; zero when none is named."),
    WhenPositive("RORGSLNTH"),
        Sized("RORGSTD",    "RORGSLNTH", 0, Conditional, Utf8,    "",           "",      "Release Organizational Code Standard",
              "Standard from which the organization codes in RELORG are taken."),
    End(),
    Field("COIDLNTH",   4, Required,    Integer, "0000..9999", "bytes", "Coalition ID Field Length",
          "Length of the coalition list; zero when no coalition is named."),
    WhenPositive("COIDLNTH"),
        Sized("COALID",     "COIDLNTH", 0, Conditional, Utf8,
              "any=codes separated by one blank",
              "", "Coalition Acronym/Identification",
              "Coalitions to which the file or segment may be released."),
        Field("COALLNTH",   4, Conditional, Integer, "0000..9999", "bytes", "Coalition Code Field Length",
              "Length of the list of coalition nations; zero when they are not listed."),
        WhenPositive("COALLNTH"),
            Sized("COALCC",     "COALLNTH", 0, Conditional, Utf8,    "",           "",      "Coalition Nations",
                  "Nations that belong to the named coalitions."),
        End(),
    End(),
    Field("RELCLNTH",   4, Required,    Integer, "0000..9999", "bytes", "Release Countries Field Length",
          "Length of the country list; zero when no country is named."),
    WhenPositive("RELCLNTH"),
        Sized("RELCCODES",  "RELCLNTH", 0, Conditional, Utf8,
              "any=codes separated by one blank",
              "", "Country Codes for Releasability",
              "Countries to which the file may be released."),
    End(),
    Field("RLORGLNTH",  4, Required,    Integer, "0000..9999", "bytes", "Release Organizational Code Field Length",
          "Length of the organization list; zero when no organization is named."),
    WhenPositive("RLORGLNTH"),
        Sized("RELORG",     "RLORGLNTH", 0, Conditional, Utf8,    "",           "",      "List of Organizations",
              "Organizations to which the file may be released."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRELCCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RELCCA",
        .name = "Releasability",
        .length = 0,
        .lengthRule = "36 and the texts; 4 more for COALLNTH when COIDLNTH is above 0",
        .placement = "any extension area of the file header or of a subheader",
        .purpose =
            "Takes up release lists that are too long for the releasing instructions of the security fields: "
            "coalitions, countries and organizations to which the file or segment may go.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AD); NFX MATLAB TRE class (cites "
            "STDI-0002-1 App AD, Table AD-1, 2023-10)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "One source writes the division sign that parts entries as the single byte 0xF7, although the fields are "
            "UTF-8, in which it takes two bytes."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCCINFA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width need              form     values                           unit     label
    Field("NUMCODE",     3, Required,         Integer, "001..999",                      "",      "Number of Defined Codes",
          "How many country codes are explained."),
    Repeat("NUMCODE"),
        Field("CODE_LEN",    1, Required,         Integer, "1..9",                          "bytes", "Length of the CODE Field",
              "Length of the code that follows."),
        Sized("CODE",        "CODE_LEN", 0, Required,         Text,    "",                              "",      "Country Code",
              "Country code as it is used elsewhere in the file."),
        Field("EQTYPE",      1, RequiredBlank,    Text,
              "C=clarification made for this file|blank=fully equivalent",
              "", "Type of Equivalence",
              "Tells whether the code and the identifier mean the same, or the identifier narrows the code."),
        Field("ESURN_LEN",   2, Required,         Integer, "09..99",                        "bytes", "Length of the ESURN Field",
              "Length of the identifier that follows."),
        Sized("ESURN",       "ESURN_LEN", 0, Required,         Text,
              "any=short URN such as ge:GENC:3:3-5:USA",
              "", "Equivalent Short URN-based Individual Item Identifier",
              "Identifier in the country code standard to which the code corresponds."),
        Field("DETAIL_LEN",  5, Required,         Integer, "00000=no details|00001..99999", "bytes", "Length of the DETAIL Field",
              "Length of the details as stored, that is after compression."),
        WhenPositive("DETAIL_LEN"),
            Field("DETAIL_CMPR", 1, ConditionalBlank, Text,    "G=gzip|blank=not compressed",   "",      "Code Detail Compression",
                  "Compression of the details."),
            Sized("DETAIL",      "DETAIL_LEN", 0, Conditional,      Bytes,   "",                              "",      "Code Detail",
                  "Names and other details of the country or region."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCCINFA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CCINFA",
        .name = "Country Code Information",
        .length = 0,
        .lengthRule =
            "3 + sum over NUMCODE codes of (9 + CODE_LEN + ESURN_LEN + (1 + DETAIL_LEN if DETAIL_LEN > 0)); 22..99985",
        .placement = "file header, image subheader or text subheader",
        .purpose =
            "Explains the country codes that the file uses by identifiers of a newer country code standard, with "
            "optional details as XML.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1 App AG, from RFC-084); imaging-nitf TRE description file "
            "and its test records (Table AG.5); NITRO plug-in table; NFX MATLAB TRE class (cites STDI-0002-1 App AG "
            "Table AG.1, 2025-06); OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AG)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

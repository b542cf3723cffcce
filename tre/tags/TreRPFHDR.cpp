#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRPFHDR, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag    width  need           form      values                          unit     label
    Field("LBEI",    1, Required,      Unsigned,
          "0=most significant byte first|255=least significant byte first",
          "", "Little or Big Endian Indicator",
          "Byte order of the binary numbers in the raster product format data.").Alias("ENDIAN"),
    Field("HDSECL",  2, Required,      Unsigned, "",                             "bytes", "Header Section Length",
          "Length of this header; always 48.").Alias("HEADER_SECT_LENGTH"),
    Field("FILENM", 12, Required,      Text,     "",                             "",      "File Name",
          "Name of the frame file.").Alias("FILENAME"),
    Field("NEWFLG",  1, Required,      Unsigned, "0=new|1=replacement|2=update", "",      "New, Replacement or Update Indicator",
          "Tells whether the frame is new or replaces or updates an earlier one.").Alias("INDICATOR"),
    Field("STDNUM", 15, Required,      Text,     "",                             "",      "Governing Specification Number",
          "Number of the product specification that the frame follows, for example MIL-C-89038 or "
          "MIL-C-89041.").Alias("STANDARD"),
    Field("STDDAT",  8, Required,      Date,     "{YYYYMMDD}",                   "",      "Governing Specification Date",
          "Date of that product specification.").Alias("STANDARD_DATE"),
    Field("CLASS",   1, Required,      Text,     "U|R|C|S|T",                    "",      "Security Classification",
          "Security class of the frame.").Alias("CLASSIFICATION"),
    Field("COUNTR",  2, RequiredBlank, Text,     "any=country code|blank",       "",      "Security Country or International Code",
          "Country or body whose security rules apply.").Alias("COUNTRYCODE"),
    Field("RELEAS",  2, RequiredBlank, Text,     "",                             "",      "Security Release Marking",
          "To whom the frame may be released; may be blank.").Alias("RELEASABLE"),
    Field("LOCSEC",  4, Required,      Unsigned, "0..4294967295",                "bytes", "Location Section Location",
          "Distance of the location section from the start of the file.").Alias("LOCATIONSECT"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 48);

}  // namespace

const Detail::TreLayout& TreRPFHDR::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RPFHDR",
        .name = "Raster Product Format Header",
        .length = 48,
        .lengthRule = "",
        .placement = "file header (user-defined header data)",
        .purpose =
            "Header of a raster product format frame inside an NITF file: byte order, file name, governing "
            "standard, security and the place of the location section.",
        .sources =
            "MIL-PRF-89038; MIL-STD-2411; MIL-STD-2411-2; OSSIM RPF header class; GDAL CADRG writer source, "
            "2026; NITRO plug-in table; imaging-nitf TRE description file; four RPF files (48 bytes each: two "
            "CADRG frames, a CADRG test file of NITF 2.0, a CIB frame)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "The meanings 1 and 2 of NEWFLG are recalled; 0 is the first release."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

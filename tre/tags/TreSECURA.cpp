#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSECURA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag        width need           form     values                       unit     label
    Field("FDATTIM",    14, Required,      Time,    "{YYYYMMDDhhmmss}|{DDhhmmssZMONYY}", "UTC",   "NITF Date Time",
          "Copy of the date and time field (FDT) of the file header, to prove that the extension belongs to the "
          "file."),
    Field("NITFVER",     9, Required,      Text,    "NITF02.00|NITF02.10|any=another version", "",      "NITF Version Flag",
          "Version of the format of the file."),
    Field("NFSECFLDS", 207, Required,      Bytes,   "",                          "",      "NITF Security Fields",
          "Copy of the security fields of the header or subheader to which the extension belongs, to prove that they "
          "have not been changed."),
    Field("SECSTD",      8, Required,      Text,    "ARH.XML|ADP-4774|any=another standard", "",      "Security Standard",
          "Standard that the security data follow."),
    Field("SECCOMP",     8, RequiredBlank, Text,    "GZIP|blank=not compressed", "",      "Security Field Compression",
          "Compression of the security data."),
    Field("SECLEN",      5, Required,      Integer, "00000..99737",              "bytes", "Security Length",
          "Length of the security data as stored, that is after compression."),
    WhenPositive("SECLEN"),
        Sized("SECURITY",  "SECLEN", 0, Conditional,      Bytes,   "",                          "",      "Security Data",
              "The extended security marking of the file or segment."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreSECURA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SECURA",
        .name = "Extended Security Marking Metadata",
        .length = 0,
        .lengthRule = "251 + SECLEN; 251..99988 stated by GDAL and NFX (99985 is the usual limit)",
        .placement = "file header, or the subheader of the segment that it marks (image, text and others)",
        .purpose =
            "Carries security markings that do not fit into the fields of a header, as an XML document, with copies "
            "of the date and the security fields of that header for checking.",
        .sources =
            "GDAL TRE description file (cites STDI-0002-1-v5.0 App AI Table AI-1); imaging-nitf TRE description file "
            "and its test record; NITRO plug-in table; NFX MATLAB TRE class (cites STDI-0002-1 App AI Tables AI-1 and "
            "AI-2); OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AI)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "NFX, after a newer edition, names NITFVER FORMATVER and NFSECFLDS SECFLDS; only NFX knows ADP-4774. A "
            "sample record has ARH XML with a blank."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

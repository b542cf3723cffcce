#include "fields/FieldWalk.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreENGRDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool EngineeringDataLength(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t elements = 0;
    std::uint64_t size = 0;
    if (!aContext.Count("ENGDATC", elements) || !aContext.Count("ENGDTS", size)) {
        return false;
    }
    aOut = elements * size;
    return true;
}

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need      form     values                unit       label
    Field("RESRC",   20, Required, Text,    "",                   "",        "Unique Source System Name",
          "Name of the system that produced the engineering data, preferably its sensor identifier."),
    Field("RECNT",    3, Required, Integer, "001..999",           "",        "Record Entry Count",
          "How many engineering data records follow."),
    Repeat("RECNT"),
        Field("ENGLN",    2, Required, Integer, "01..99",             "bytes",   "Engineering Data Label Length",
              "Length of the label of this record."),
        Sized("ENGLBL", "ENGLN", 0, Required, Text, "", "", "Engineering Data Label",
              "Label that says what was measured, without line ends."),
        Field("ENGMTXC",  4, Required, Integer, "0001..9999",         "",        "Engineering Matrix Data Column Count",
              "Number of columns of the value matrix."),
        Field("ENGMTXR",  4, Required, Integer, "0001..9999",         "",        "Engineering Matrix Data Row Count",
              "Number of rows of the value matrix."),
        Field("ENGTYP",   1, Required, Text,
              "A=text|B=binary|I=unsigned integer|S=signed integer|R=real|C=complex",
              "", "Value Type of Engineering Data Element",
              "Letter for the data type of the values."),
        Field("ENGDTS",   1, Required, Integer, "1..9",               "bytes",   "Engineering Data Element Size",
              "Size of one value; usually 1, 2, 4 or 8, and 1 for text.").Locked(),
        Field("ENGDATU",  2, Required, Text,
              "ft|m|in|mm|mi|nm|km|kt|tC|tF|tK|Va|Vd|mA|uA|A|NA=not applicable|UD=undefined|any=other",
              "", "Engineering Data Units",
              "Unit of the values.").Alias("ENGDTU"),
        Field("ENGDATC",  8, Required, Integer, "00000001..99999932", "",        "Engineering Data Count",
              "How many values the record holds; for text, how many characters.").Locked(),
        Computed("ENGDATA", EngineeringDataLength, Required, Bytes, "", "ENGDATU", "Engineering Data",
              "The values themselves, row after row; of the type that ENGTYP names, most significant byte first, real "
              "numbers in IEEE form."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreENGRDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ENGRDA",
        .name = "Engineering Data",
        .length = 0,
        .lengthRule = "23 + sum over the RECNT records of (22 + ENGLN + ENGDATC*ENGDTS)",
        .placement = "any extension area of the file header or of a subheader (most often the image subheader)",
        .purpose =
            "Carries measurements of the collecting system, such as temperatures or test results, as "
            "self-describing records: each has a label, a matrix size, a data type, a unit and its values.",
        .sources =
            "STDI-0002 version 4 Appendix N; STDI-0002 version 4 page N-9; GDAL TRE description file; "
            "imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; Opticks TRE parser; "
            "pynitf TRE definition; OSML imagery-io structure definition; the worked example of Appendix N of "
            "125 bytes; two ENGRDA blocks of real image files (642 and 944 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

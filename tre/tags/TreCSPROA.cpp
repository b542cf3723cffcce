#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSPROA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag        width  need           form  values unit label
    Field("RESERVED_1", 12, RequiredBlank, Text, "", "", "Reserved 1",
          "Fill that the standard fixes at the word LATESTCAL."),
    Field("RESERVED_2", 12, RequiredBlank, Text, "", "", "Reserved 2",
          "Fill of twelve spaces."),
    Field("RESERVED_3", 12, RequiredBlank, Text, "", "", "Reserved 3",
          "Fill of twelve spaces."),
    Field("RESERVED_4", 12, RequiredBlank, Text, "", "", "Reserved 4",
          "Fill that the standard fixes at the word MARKANDFIX."),
    Field("RESERVED_5", 12, RequiredBlank, Text, "", "", "Reserved 5",
          "Fill of twelve spaces."),
    Field("RESERVED_6", 12, RequiredBlank, Text, "", "", "Reserved 6",
          "Fill that holds the word CORR for multispectral data and spaces otherwise."),
    Field("RESERVED_7", 12, RequiredBlank, Text, "", "", "Reserved 7",
          "Fill that the standard fixes at the word SKIPAGM."),
    Field("RESERVED_8", 12, RequiredBlank, Text, "", "", "Reserved 8",
          "Fill that the standard fixes at the word INTERP."),
    Field("RESERVED_9", 12, RequiredBlank, Text, "", "", "Reserved 9",
          "Fill of twelve spaces."),
    Field("BWC",        12, Required,      Text,
          "VISUAL=JPEG 2000 visually lossless|NUMERICAL=JPEG 2000 numerically lossless|UNCOMPRESSED",
          "", "Bandwidth Compression",
          "How the pixels of the delivered image are compressed."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 120);

}  // namespace

const Detail::TreLayout& TreCSPROA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSPROA",
        .name = "Processing Information",
        .length = 120,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose = "Names the processing options that the supplier of a commercial image applied when forming it.",
        .sources =
            "STDI-0006 Table 3.6-1; STDI-0002 Volume 1 Appendix D, Table D-5 (2025-02); GDAL TRE description "
            "file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; OSML imagery-io "
            "structure definition; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/text/NITF21TextSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-6.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("TE",       2, Required,        Text,        "TE", "", "File Part Type [TE]"),
    Field("TEXTID",   7, Required,        Text,        "", "", "Text Identifier"),
    Field("TXTALVL",  3, Required,        Digits,      "000..998", "", "Text Attachment Level [000-998]").Locked(),
    Field("TXTDT",   14, Required,        NumberText,  "{CCYYMMDDhhmmss}", "", "Text Date and Time {CCYYMMDDhhmmss}").MildRule("FH-07"),
    Field("TXTITL",  80, RequiredBlank,   Ecs,         "", "", "Text Title"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",   1, Required,        Digits,      "0", "", "Encryption [0]").Locked(),
    Field("TXTFMT",   3, Required,        Text,        "MTF|STA|UT1|U8S", "", "Text Format [MTF|STA|UT1|U8S]").Locked(),
};
// clang-format on
constexpr auto TXSHD_ROWS =
    AreaRows("TXSHDL", "00000|00003..09717", "Text Extended Subheader Data Length [00000|00003-09717]", "TXSOFL",
             "Text Extended Subheader Overflow [000-999]", "TXSHD", "Text Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_21<"TSCLAS", "TS", "Text">, BODY, TXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 282);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21TextSubheader",
    .source = "NITF21TextSubheader::InitNITF21TextSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &TEXT_WORDS,
    .table = TABLE.View(),
    .summary = "ERROR: Failed to get all the NITF text segment subheader field values from the input data stream."};

}  // namespace

NITF21TextSubheader::NITF21TextSubheader(Input& aInput) : NITFTextSubheader(LAYOUT, aInput) {}

bool NITF21TextSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21TextSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

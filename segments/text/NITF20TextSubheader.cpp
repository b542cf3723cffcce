#include "segments/text/NITF20TextSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500A.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("TE",      2, Required,        Text,        "TE", "", "File Part Type [TE]"),
    Field("TEXTID", 10, Required,        Text,        "", "", "Text ID"),
    Field("TXTDT",  14, Required,        Text,        "{DDHHmmSSZMONYY}", "", "Text Date and Time {DDHHMMSSZMONYY}").MildRule("FH-07"),
    Field("TXTITL", 80, Optional,        Text,        "", "", "Text Title"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",  1, Required,        Digits,      "0|1", "", "Encryption [0|1]").Locked(),
    Field("TXTFMT",  3, Required,        Text,        "MTF|STA|OTH", "", "Text Format [MTF|STA|OTH]").Locked(),
};
// clang-format on
constexpr auto TXSHD_ROWS =
    AreaRows("TXSHDL", "00000|00003..09717", "Extended Subheader Data Length [00000|00003-09717]", "TXSOFL",
             "Extended Subheader Overflow [000-999]", "TXSHD", "Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"TS", "Text">, BODY, TXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 282);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20TextSubheader",
    .source = "NITF20TextSubheader::InitNITF20TextSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &TEXT_WORDS,
    .table = TABLE.View(),
    .summary = "ERROR: Failed to get all the NITF text segment subheader field values from the input data stream."};

}  // namespace

NITF20TextSubheader::NITF20TextSubheader(Input& aInput) : NITFTextSubheader(LAYOUT, aInput) {}

bool NITF20TextSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20TextSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

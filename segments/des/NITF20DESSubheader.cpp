#include "segments/des/NITF20DESSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// The two kinds of overflow; writers differ in their letters.
bool IsOverflowTag(std::string_view aTag) noexcept
{
    const std::string_view tag = Trimmed(aTag);
    const auto is = [tag](std::string_view aName) {
        return std::equal(tag.begin(), tag.end(), aName.begin(), aName.end(),
                          [](char a, char b) { return LowerCase(a) == LowerCase(b); });
    };
    return is(NITFCnst::STR_EXT_REGISTERED_EXTENSIONS) || is(NITFCnst::STR_EXT_CONTROLLED_EXTENSIONS);
}

bool IsOverflow(const WalkContext& aContext)
{
    return IsOverflowTag(aContext.Text("DESTAG"));
}

// MIL-STD-2500A, table XVIII.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("DE",       2, Required,        Text,        "DE", "", "File Part Type [DE]"),
    Field("DESTAG",  25, Required,        Text,        "", "", "Unique DES Type Identifier").Locked(),
    Field("DESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Field Definition [01-99]").Locked(),
};
constexpr FieldRow BODY[] = {
    WhenBy("DESTAG is an overflow tag", IsOverflow),
        Field("DESOFLW",  6, Conditional,     Text,        "XHD|IXSHD|SXSHD|LXSHD|LSXHD|TXSHD|UDHD|UDID", "", "Overflowed Header Type [XHD|IXSHD|SXSHD|LXSHD|TXSHD|UDHD|UDID]").Locked(),
        Field("DESITEM",  3, Conditional,     Digits,      "000..999", "", "Data Item Overflowed [000-999]").Locked(),
    End(),
    Field("DESSHL",   4, Required,        Digits,      "0000..9999", "", "Length of DES-defined Subheader Fields [0000-9999]"),
    WhenPositive("DESSHL"),
        Sized("DESSHF", "DESSHL", 0, Conditional,     Opaque,      "", "", "DES-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"DES", "DES">, BODY);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 200);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20DESSubheader",
    .source = "NITF20DESSubheader::InitNITF20DESSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &DES_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 DES subheader field values from the input DES subheader data stream."};

}  // namespace

NITF20DESSubheader::NITF20DESSubheader(Input& aInput) : NITFDESSubheader(LAYOUT, aInput) {}

bool NITF20DESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20DESSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/des/NITF21DESSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// Writers put blanks before the identifier too.
bool IsOverflow(const WalkContext& aContext)
{
    return Trimmed(aContext.Text("DESID")) == NITFCnst::DES_DESID_TRE_OVERFLOW;
}

// MIL-STD-2500C, table A-8.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("DE",       2, Required,        Text,        "DE", "", "File Part Type [DE]"),
    Field("DESID",   25, Required,        Text,        "", "", "Unique DES Type Identifier").Locked(),
    Field("DESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Definition [01-99]").Locked(),
};
constexpr FieldRow BODY[] = {
    WhenBy("DESID is TRE_OVERFLOW", IsOverflow),
        Field("DESOFLW",  6, Conditional,     Text,        "XHD|IXSHD|SXSHD|TXSHD|UDHD|UDID", "", "DES Overflowed Header Type [XHD|IXSHD|SXSHD|TXSHD|UDHD|UDID]").Locked().Rule("DE-01"),
        Field("DESITEM",  3, Conditional,     Digits,      "000..999", "", "DES Data Item Overflowed [000-999]").Locked(),
    End(),
    Field("DESSHL",   4, Required,        Digits,      "0000..9998", "", "DES User-defined Subheader Length [0000-9998]"),
    WhenPositive("DESSHL"),
        Sized("DESSHF", "DESSHL", 0, Conditional,     Opaque,      "", "", "DES User-defined Subheader Fields"),
    End(),
};
// clang-format on
// Others spell the first tag as the prefix has it.
constexpr auto DES_SECURITY = [] {
    auto list = JoinRows(SECURITY_21<"DECLAS", "DES", "DES">);
    list.rows[0].alias = "DESCLAS";
    return list;
}();
constexpr auto ROWS = JoinRows(HEAD, DES_SECURITY.rows, BODY);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 200);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21DESSubheader",
    .source = "NITF21DESSubheader::InitNITF21DESSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &DES_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.1 DES subheader field values from the input DES subheader data stream."};

}  // namespace

NITF21DESSubheader::NITF21DESSubheader(Input& aInput) : NITFDESSubheader(LAYOUT, aInput) {}

bool NITF21DESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21DESSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

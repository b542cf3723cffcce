#include "segments/des/NITF20DESSubheader.h"

#include "fields/FieldTable.h"
#include "fields/FieldWalk.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentWords.h"

#include <algorithm>
#include <utility>

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
constexpr FieldRow ROWS[] = {
    Field("DE",       2, Required,        Text,        "DE", "", "File Part Type [DE]"),
    Field("DESTAG",  25, Required,        Text,        "", "", "Unique DES Type Identifier").Locked(),
    Field("DESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Field Definition [01-99]").Locked(),
    ORMO_SECURITY_ROWS_20("DES", "DES"),
    WhenBy("DESTAG is an overflow tag", IsOverflow),
        Field("DESOFLW",  6, Conditional,     Text,        "XHD|IXSHD|SXSHD|LXSHD|LSXHD|TXSHD|UDHD|UDID", "", "Overflowed Header Type [XHD|IXSHD|SXSHD|LXSHD|TXSHD|UDHD|UDID]").Locked(),
        Field("DESITEM",  3, Conditional,     Digits,      "000..999", "", "Data Item Overflowed [000-999]").Locked(),
    End(),
    Field("DESSHL",   4, Required,        Digits,      "0000..9999", "", "Length of DES-defined Subheader Fields [0000-9999]"),
    WhenPositive("DESSHL"),
        Sized("DESSHF", "DESSHL", 0, Conditional,     Utf8,        "", "", "DES-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 200);

constexpr SegmentWords WORDS = DesWords(
    "NITF20DESSubheader",
    "ERROR: Failed to get all the NITF 2.0 DES subheader field values from the input DES subheader data stream.");

}  // namespace

NITF20DESSubheader::NITF20DESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                       const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                       Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly)
    : NITFDESSubheader(aVersionText, Table())
{
    InitNITFDES(aRaw, aLength, aInfo, std::move(aSource), aByteOrder, aSpecificOnly,
                "NITF20DESSubheader::InitNITF20DESSubheader");
}

const Detail::FieldTable& NITF20DESSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF20DESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF20DESSubheader::Words() const
{
    return WORDS;
}

bool NITF20DESSubheader::IsOverflowType(std::string_view aType) const noexcept
{
    return IsOverflowTag(aType);
}

}  // namespace ORMO::SensorModel::CSM

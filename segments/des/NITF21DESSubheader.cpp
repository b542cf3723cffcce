#include "segments/des/NITF21DESSubheader.h"

#include "fields/FieldTable.h"
#include "fields/FieldWalk.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentWords.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-8.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("DE",       2, Required,        Text,        "DE", "", "File Part Type [DE]"),
    Field("DESID",   25, Required,        Text,        "", "", "Unique DES Type Identifier").Locked(),
    Field("DESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Definition [01-99]").Locked(),
    ORMO_SECURITY_ROWS_21("DECLAS", "DESCLAS", "DES", "DES", Ecs),
    When("DESID", "TRE_OVERFLOW"),
        Field("DESOFLW",  6, Conditional,     Text,        "XHD|IXSHD|SXSHD|TXSHD|UDHD|UDID", "", "DES Overflowed Header Type [XHD|IXSHD|SXSHD|TXSHD|UDHD|UDID]").Locked(),
        Field("DESITEM",  3, Conditional,     Digits,      "000..999", "", "DES Data Item Overflowed [000-999]").Locked(),
    End(),
    Field("DESSHL",   4, Required,        Digits,      "0000..9998", "", "DES User-defined Subheader Length [0000-9998]"),
    WhenPositive("DESSHL"),
        Sized("DESSHF", "DESSHL", 0, Conditional,     Utf8,        "", "", "DES User-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 200);

constexpr SegmentWords WORDS = DesWords(
    "NITF21DESSubheader",
    "ERROR: Failed to get all the NITF 2.1 DES subheader field values from the input DES subheader data stream.");

}  // namespace

NITF21DESSubheader::NITF21DESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                       const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                       Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly)
    : NITFDESSubheader(aVersionText, Table())
{
    InitNITFDES(aRaw, aLength, aInfo, std::move(aSource), aByteOrder, aSpecificOnly,
                "NITF21DESSubheader::InitNITF21DESSubheader");
}

const Detail::FieldTable& NITF21DESSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF21DESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF21DESSubheader::Words() const
{
    return WORDS;
}

bool NITF21DESSubheader::IsOverflowType(std::string_view aType) const noexcept
{
    return Detail::Trimmed(aType) == NITFCnst::DES_DESID_TRE_OVERFLOW;
}

}  // namespace ORMO::SensorModel::CSM

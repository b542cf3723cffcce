#include "segments/text/NITF20TextSubheader.h"

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

// MIL-STD-2500A.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("TE",      2, Required,        Text,        "TE", "", "File Part Type [TE]"),
    Field("TEXTID", 10, Required,        Text,        "", "", "Text ID"),
    Field("TXTDT",  14, Required,        Text,        "{DDHHmmSSZMONYY}", "", "Text Date and Time {DDHHMMSSZMONYY}"),
    Field("TXTITL", 80, Optional,        Text,        "", "", "Text Title"),
    ORMO_SECURITY_ROWS_20("TS", "Text"),
    Field("ENCRYP",  1, Required,        Digits,      "0|1", "", "Encryption [0|1]").Locked(),
    Field("TXTFMT",  3, Required,        Text,        "MTF|STA|OTH", "", "Text Format [MTF|STA|OTH]").Locked(),
    Field("TXSHDL",  5, Required,        Digits,      "00000|00003..09717", "", "Extended Subheader Data Length [00000|00003-09717]"),
    WhenPositive("TXSHDL"),
        Field("TXSOFL",  3, Conditional,     Digits,      "000..999", "", "Extended Subheader Overflow [000-999]").Locked(),
        Sized("TXSHD", "TXSHDL", -3, Conditional,     Records,     "", "", "Extended Subheader Data"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 282);

constexpr SegmentWords WORDS = TextWords("NITF20TextSubheader");

}  // namespace

NITF20TextSubheader::NITF20TextSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                         const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                         Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly)
    : NITFTextSubheader(aVersionText, Table())
{
    InitNITFTextSegment(aRaw, aLength, aInfo, std::move(aSource), aByteOrder, aSpecificOnly,
                        "NITF20TextSubheader::InitNITF20TextSubheader");
}

const Detail::FieldTable& NITF20TextSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF20TextSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF20TextSubheader::Words() const
{
    return WORDS;
}

}  // namespace ORMO::SensorModel::CSM

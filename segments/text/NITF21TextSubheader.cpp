#include "segments/text/NITF21TextSubheader.h"

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

// MIL-STD-2500C, table A-6.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("TE",       2, Required,        Text,        "TE", "", "File Part Type [TE]"),
    Field("TEXTID",   7, Required,        Text,        "", "", "Text Identifier"),
    Field("TXTALVL",  3, Required,        Digits,      "000..998", "", "Text Attachment Level [000-998]").Locked(),
    Field("TXTDT",   14, Required,        NumberText,  "{CCYYMMDDhhmmss}", "", "Text Date and Time {CCYYMMDDhhmmss}"),
    Field("TXTITL",  80, RequiredBlank,   Ecs,         "", "", "Text Title"),
    ORMO_SECURITY_ROWS_21("TSCLAS", nullptr, "TS", "Text", Ecs),
    Field("ENCRYP",   1, Required,        Digits,      "0", "", "Encryption [0]").Locked(),
    Field("TXTFMT",   3, Required,        Text,        "MTF|STA|UT1|U8S", "", "Text Format [MTF|STA|UT1|U8S]").Locked(),
    Field("TXSHDL",   5, Required,        Digits,      "00000|00003..09717", "", "Text Extended Subheader Data Length [00000|00003-09717]"),
    WhenPositive("TXSHDL"),
        Field("TXSOFL",   3, Conditional,     Digits,      "000..999", "", "Text Extended Subheader Overflow [000-999]").Locked(),
        Sized("TXSHD", "TXSHDL", -3, Conditional,     Records,     "", "", "Text Extended Subheader Data"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 282);

constexpr SegmentWords WORDS = TextWords("NITF21TextSubheader");

}  // namespace

NITF21TextSubheader::NITF21TextSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                         const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                         Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly)
    : NITFTextSubheader(aVersionText, Table())
{
    InitNITFTextSegment(aRaw, aLength, aInfo, std::move(aSource), aByteOrder, aSpecificOnly,
                        "NITF21TextSubheader::InitNITF21TextSubheader");
}

const Detail::FieldTable& NITF21TextSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF21TextSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF21TextSubheader::Words() const
{
    return WORDS;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/res/NITF20RESSubheader.h"

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

// MIL-STD-2500A; rests on readers of such files alone.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("RE",       2, Required,        Text,        "RE", "", "File Part Type [RE]"),
    Field("RESID",   25, Required,        Text,        "", "", "Unique RES Type Identifier").Locked(),
    Field("RESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Field Definition [01-99]").Locked(),
    ORMO_SECURITY_ROWS_20("RES", "RES"),
    Field("RESSHL",   4, Required,        Digits,      "0000..9999", "", "Length of RES-defined Subheader Fields [0000-9999]"),
    WhenPositive("RESSHL"),
        Sized("RESSHF", "RESSHL", 0, Conditional,     Utf8,        "", "", "RES-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 200);

constexpr SegmentWords WORDS = ResWords(
    "NITF20RESSubheader",
    "ERROR: Failed to get all the NITF 2.0 RES subheader field values from the input RES subheader data stream.");

}  // namespace

NITF20RESSubheader::NITF20RESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                       const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                       Util::CSMCnst::ByteOrder, bool)
    : NITFRESSubheader(aVersionText, Table())
{
    InitNITFRES(aRaw, aLength, aInfo, std::move(aSource), "NITF20RESSubheader::InitNITF20RESSubheader");
}

const Detail::FieldTable& NITF20RESSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF20RESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF20RESSubheader::Words() const
{
    return WORDS;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/res/NITF21RESSubheader.h"

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

// MIL-STD-2500C, table A-9.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("RE",       2, Required,        Text,        "RE", "", "File Part Type [RE]"),
    Field("RESID",   25, Required,        Text,        "", "", "Unique RES Type Identifier").Locked(),
    Field("RESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Definition [01-99]").Locked(),
    ORMO_SECURITY_ROWS_21("RECLAS", nullptr, "RE", "RES", Ecs),
    Field("RESSHL",   4, Required,        Digits,      "0000..9999", "", "RES User-defined Subheader Length [0000-9799]"),
    WhenPositive("RESSHL"),
        Sized("RESSHF", "RESSHL", 0, Conditional,     Utf8,        "", "", "RES User-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 200);

constexpr SegmentWords WORDS = ResWords(
    "NITF21RESSubheader",
    "ERROR: Failed to get all the NITF 2.1 RES subheader field values from the input RES subheader data stream.");

}  // namespace

NITF21RESSubheader::NITF21RESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                       const char* aVersionText, std::shared_ptr<const Detail::ByteSource> aSource,
                                       Util::CSMCnst::ByteOrder, bool)
    : NITFRESSubheader(aVersionText, Table())
{
    InitNITFRES(aRaw, aLength, aInfo, std::move(aSource), "NITF21RESSubheader::InitNITF21RESSubheader");
}

const Detail::FieldTable& NITF21RESSubheader::Table() noexcept
{
    static constexpr FieldTable table = TABLE.View();
    return table;
}

bool NITF21RESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF21RESSubheader::Words() const
{
    return WORDS;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/res/NITF20RESSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500A; rests on readers of such files alone.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("RE",       2, Required,        Text,        "RE", "", "File Part Type [RE]"),
    Field("RESID",   25, Required,        Text,        "", "", "Unique RES Type Identifier").Locked(),
    Field("RESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Field Definition [01-99]").Locked(),
};
constexpr FieldRow BODY[] = {
    Field("RESSHL",   4, Required,        Digits,      "0000..9999", "", "Length of RES-defined Subheader Fields [0000-9999]"),
    WhenPositive("RESSHL"),
        Sized("RESSHF", "RESSHL", 0, Conditional,     Opaque,      "", "", "RES-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"RES", "RES">, BODY);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 200);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20RESSubheader",
    .source = "NITF20RESSubheader::InitNITF20RESSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &RES_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 RES subheader field values from the input RES subheader data stream."};

}  // namespace

NITF20RESSubheader::NITF20RESSubheader(Input& aInput) : NITFRESSubheader(LAYOUT, aInput) {}

bool NITF20RESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20RESSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

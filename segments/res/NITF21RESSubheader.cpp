#include "segments/res/NITF21RESSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-9.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("RE",       2, Required,        Text,        "RE", "", "File Part Type [RE]"),
    Field("RESID",   25, Required,        Text,        "", "", "Unique RES Type Identifier").Locked(),
    Field("RESVER",   2, Required,        Digits,      "01..99", "", "Version of the Data Definition [01-99]").Locked(),
};
constexpr FieldRow BODY[] = {
    Field("RESSHL",   4, Required,        Digits,      "0000..9999", "", "RES User-defined Subheader Length [0000-9799]"),
    WhenPositive("RESSHL"),
        Sized("RESSHF", "RESSHL", 0, Conditional,     Opaque,      "", "", "RES User-defined Subheader Fields"),
    End(),
};
// clang-format on
constexpr auto ROWS = JoinRows(HEAD, SECURITY_21<"RECLAS", "RE", "RES">, BODY);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 200);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21RESSubheader",
    .source = "NITF21RESSubheader::InitNITF21RESSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &RES_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.1 RES subheader field values from the input RES subheader data stream."};

}  // namespace

NITF21RESSubheader::NITF21RESSubheader(Input& aInput) : NITFRESSubheader(LAYOUT, aInput) {}

bool NITF21RESSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21RESSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

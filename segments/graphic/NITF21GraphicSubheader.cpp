#include "segments/graphic/NITF21GraphicSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/Location.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-5.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("SY",       2, Required,        Text,        "SY", "", "File Part Type [SY]"),
    Field("SID",     10, Required,        Text,        "", "", "Graphic Identifier"),
    Field("SNAME",   20, RequiredBlank,   Ecs,         "", "", "Graphic Name"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",   1, Required,        Digits,      "0", "", "Encryption [0]").Locked(),
    Field("SFMT",     1, Required,        Text,        "C", "", "Graphic Type [C]").Locked(),
    Field("SSTRUCT", 13, Required,        Digits,      "0000000000000", "", "Reserved for Future Use [0000000000000]").Locked(),
    Field("SDLVL",    3, Required,        Digits,      "001..999", "", "Graphic Display Level [001-999]").Locked(),
    Field("SALVL",    3, Required,        Digits,      "000..998", "", "Graphic Attachment Level [000-998]").Locked(),
    Field("SLOC",    10, Required,        NumberText,  "{rrrrrccccc}", "", "Graphic Location {rrrrrccccc}[-9999-99999]"),
    Field("SBND1",   10, Required,        NumberText,  "{rrrrrccccc}", "", "First Graphic Bound Location {rrrrrccccc}[-9999-99999]"),
    Field("SCOLOR",   1, Required,        Text,        "C|M", "", "Graphic Color [C|M]"),
    Field("SBND2",   10, Required,        NumberText,  "{rrrrrccccc}", "", "Second Graphic Bound Location {rrrrrccccc}[-9999-99999]"),
    Field("SRES2",    2, Required,        Digits,      "00", "", "Reserved for Future Use [00]").Locked(),
};
// clang-format on
constexpr auto SXSHD_ROWS =
    AreaRows("SXSHDL", "00000|00003..09741", "Graphic Extended Subheader Data Length [00000|00003-09741]", "SXSOFL",
             "Graphic Extended Subheader Overflow [000-999]", "SXSHD", "Graphic Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_21<"SSCLAS", "SS", "Graphic">, BODY, SXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 258);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21GraphicSubheader",
    .source = "NITF21GraphicSubheader::InitNITF21GraphicSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &GRAPHIC_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.1 graphic segment subheader field values from the input graphic "
        "data stream."};

bool ToLevel(std::string_view aText, std::uint64_t aLeast, std::uint64_t aMost, long& aLevel)
{
    std::uint64_t level = 0;
    if (!ToCount(aText, level) || level < aLeast || level > aMost) {
        return false;
    }
    aLevel = static_cast<long>(level);
    return true;
}

}  // namespace

NITF21GraphicSubheader::NITF21GraphicSubheader(Input& aInput) : NITFDrawnSegment(LAYOUT, aInput)
{
    ReadMetafile(aInput);
    FinishReading(aInput);
}

bool NITF21GraphicSubheader::GetCCSInformation(CCSInformation& aInformation) const
{
    CCSInformation& i = aInformation;
    if (!ToLevel(FieldText("SDLVL"), 1, 999, i.displayLevel) ||
        !ToLevel(FieldText("SALVL"), 0, 998, i.attachmentLevel) || !SplitLocation(FieldText("SLOC"), i.row, i.column)) {
        return false;
    }
    i.isColor = FieldText("SCOLOR") == "C";
    return SplitLocation(FieldText("SBND1"), i.upperLeftRow, i.upperLeftColumn) &&
           SplitLocation(FieldText("SBND2"), i.lowerRightRow, i.lowerRightColumn);
}

unsigned long NITF21GraphicSubheader::GetOverflowGraphicExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("SXSOFL"));
}

bool NITF21GraphicSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return WidthRange(LAYOUT.table, Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21GraphicSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

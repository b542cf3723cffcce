#include "segments/fileheader/NITF20FileHeader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <algorithm>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr std::uint64_t COLOUR_WIDTH = 3;
constexpr std::uint64_t NAME_WIDTH = 27;

/// MIL-STD-2500A has no background colour. Later writers lay one over the first three bytes of ONAME; the practice is
/// to take them as a colour when one is no printable character or all are equal, and as part of the name otherwise. A
/// name that is blank as a whole is no colour.
bool BackgroundColourWidth(const WalkContext& aContext, std::uint64_t& aOut)
{
    const std::string_view bytes = aContext.Ahead(COLOUR_WIDTH);
    const bool equal = bytes.size() == COLOUR_WIDTH && bytes[0] == bytes[1] && bytes[1] == bytes[2];
    const std::string_view name = aContext.Ahead(NAME_WIDTH);
    const bool blank = name.find_first_not_of(' ') == std::string_view::npos;
    const bool colour = (equal && !blank) || std::any_of(bytes.begin(), bytes.end(),
                                                         [](char aByte) { return aByte < 0x20 || aByte > 0x7E; });
    aOut = NITFCnst::MODIFY_NITF_FILE_HEADER_FIELD_FBKGC && colour ? COLOUR_WIDTH : 0;
    return true;
}

bool OriginatorNameWidth(const WalkContext& aContext, std::uint64_t& aOut)
{
    aOut = NAME_WIDTH - aContext.Text("FBKGC").size();
    return true;
}

// MIL-STD-2500A, with FBKGC as above.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("FHDR",    9, Required,        FileProfile, "NITF02.00", "", "File Type and Version [NITF02.00]").Locked(),
    Field("CLEVEL",  2, Required,        DigitText,   "01..99", "", "Compliance Level [01-99]").Locked(),
    Field("STYPE",   4, Optional,        Text,        "", "", "System Type [blank]").Locked(),
    Field("OSTAID", 10, Required,        Text,        "", "", "Originating Station ID"),
    Field("FDT",    14, Required,        Text,        "{DDHHmmSSZMONYY}", "", "File Date and Time {DDHHMMSSZMONYY}").MildRule("FH-07"),
    Field("FTITLE", 80, Optional,        Text,        "", "", "File Title"),
};
constexpr FieldRow BODY[] = {
    Field("FSCOP",   5, Optional,        DigitText,   "00000..99999", "", "File Copy Number [00000-99999]"),
    Field("FSCPYS",  5, Optional,        DigitText,   "00000..99999", "", "File Number of Copies [00000-99999]"),
    Field("ENCRYP",  1, Required,        DigitText,   "0|1", "", "Encryption [0|1]").Locked(),
    Computed("FBKGC", BackgroundColourWidth, Optional, Colour, "", "", "File Background Color [0x00-0xFF]"),
    Computed("ONAME", OriginatorNameWidth, Optional, Text, "", "", "Originator's Name"),
    Field("OPHONE", 18, Optional,        Text,        "", "", "Originator's Phone Number"),
    Field("FL",     12, Required,        Digits,      "000000000388..999999999999", "", "File Length [000000000388-999999999999]").Locked(),
    Field("HL",      6, Required,        Digits,      "000388..999999", "", "NITF File Header Length [000388-999999]").Locked(),
    Field("NUMI",    3, Required,        Digits,      "000..999", "", "Number of Images [000-999]"),
    Repeat("NUMI").ReadThrough(),
        Field("LISH",    6, Conditional,     Digits,      "000439..999999", "", "Length of nth Image Subheader [000439-999999]"),
        Field("LI",     10, Conditional,     Digits,      "0000000001..9999999999", "", "Length of nth Image [0000000001-9999999999]"),
    End(),
    Field("NUMS",    3, Required,        Digits,      "000..999", "", "Number of Symbols [000-999]"),
    Repeat("NUMS").ReadThrough(),
        Field("LSSH",    4, Conditional,     Digits,      "0258..9999", "", "Length of nth Symbol Subheader [0258-9999]"),
        Field("LS",      6, Conditional,     Digits,      "000000..999999", "", "Length of nth Symbol [000000-999999]"),
    End(),
    Field("NUML",    3, Required,        Digits,      "000..999", "", "Number of Labels [000-999]"),
    Repeat("NUML").ReadThrough(),
        Field("LLSH",    4, Conditional,     Digits,      "0212..9999", "", "Length of nth Label Subheader [0212-9999]"),
        Field("LL",      3, Conditional,     Digits,      "000..320", "", "Length of nth Label [000-320]"),
    End(),
    Field("NUMT",    3, Required,        Digits,      "000..999", "", "Number of Text Files [000-999]"),
    Repeat("NUMT").ReadThrough(),
        Field("LTSH",    4, Conditional,     Digits,      "0282..9999", "", "Length of nth Text Subheader [0282-9999]"),
        Field("LT",      5, Conditional,     Digits,      "00000..99999", "", "Length of nth Text File [00000-99999]"),
    End(),
    Field("NUMDES",  3, Required,        Digits,      "000..999", "", "Number of Data Extension Segments [000-999]"),
    Repeat("NUMDES").ReadThrough(),
        Field("LDSH",    4, Conditional,     Digits,      "0200..9999", "", "Length of nth Data Extension Segment Subheader [0200-9999]"),
        Field("LD",      9, Conditional,     Digits,      "000000000..999999999", "", "Length of nth Data Extension Segment [000000000-999999999]"),
    End(),
    Field("NUMRES",  3, Required,        Digits,      "000..999", "", "Number of Reserved Extension Segments [000-999]"),
    Repeat("NUMRES").ReadThrough(),
        Field("LRESH",   4, Conditional,     Digits,      "0000..9999", "", "Length of nth Reserved Extension Segment Subheader [0000-9999]"),
        Field("LRE",     7, Conditional,     Digits,      "0000000..9999999", "", "Length of nth Reserved Extension Segment [0000000-9999999]"),
    End(),
};
// clang-format on
constexpr auto UDHD_ROWS =
    AreaRows("UDHDL", "00000|00003..99999", "User Defined Header Data Length [00000|00003-99999]", "UDHOFL",
             "User Defined Header Overflow [000-999]", "UDHD", "User Defined Header Data");
constexpr auto XHD_ROWS = AreaRows("XHDL", "00000|00003..99999", "Extended Header Data Length [00000|00003-99999]",
                                   "XHDOFL", "Extended Header Data Overflow [000-999]", "XHD", "Extended Header Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"FS", "File">, BODY, UDHD_ROWS.rows, XHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows, Naming::ThreeDigits);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) + NAME_WIDTH == 388);

static_assert(WidthBefore(ROWS.rows, "FSDWNG") == DOWNGRADE_AT);
static_assert(WidthBefore(ROWS.rows, "FL") + NAME_WIDTH == FILE_LENGTH_AT);
static_assert(WidthBefore(ROWS.rows, "HL") + NAME_WIDTH == HEADER_LENGTH_AT);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20FileHeader",
    .source = "NITF20FileHeader::NITF20FileHeader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &FILE_HEADER_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 file header field values from the input NITF file header data stream.",
    .requiredPrefix = "ERROR: Failed to extract required/optional field "};

}  // namespace

NITF20FileHeader::NITF20FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming,
                                   bool aSpecificOnly)
    : NITF20FileHeader(MakeInput(aFileName, aRaw, aLength, NITFCnst::STR_NITF_0200, aStreaming, aSpecificOnly))
{
}

NITF20FileHeader::NITF20FileHeader(Input&& aInput) : NITFFileHeader(LAYOUT, aInput) {}

bool NITF20FileHeader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20FileHeader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

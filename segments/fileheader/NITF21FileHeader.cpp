#include "segments/fileheader/NITF21FileHeader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-1. The descriptions keep their slips: hosts know them so.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("FHDR",     4, Required,        FileProfile, "NITF|NSIF", "", "File Profile Name [NITF|NSIF]").Locked(),
    Field("FVER",     5, Required,        Text,        "02.10|01.00", "", "File Version [02.10|01.00]").Locked(),
    Field("CLEVEL",   2, Required,        DigitText,   "01..99", "", "Complexity Level [01-99]").Locked(),
    Field("STYPE",    4, Required,        Text,        "BF01", "", "Standard Type [BF01]").Locked(),
    Field("OSTAID",  10, Required,        Text,        "", "", "Originating Station ID"),
    Field("FDT",     14, Required,        NumberText,  "{CCYYMMDDhhmmss}", "", "File Date and Time {CCYYMMDDhhmmss}").MildRule("FH-07"),
    Field("FTITLE",  80, RequiredBlank,   Ecs,         "", "", "File Title"),
};
constexpr FieldRow BODY[] = {
    Field("FSCOP",    5, Required,        DigitText,   "00000..99999", "", "File Copy Number [00000-99999]"),
    Field("FSCPYS",   5, Required,        DigitText,   "00000..99999", "", "File Number of Copies [00000-99999]"),
    Field("ENCRYP",   1, Required,        DigitText,   "0", "", "Encryption [0]").Locked(),
    Field("FBKGC",    3, Required,        Colour,      "", "", "File Background Color [0x00-0xFF]"),
    Field("ONAME",   24, RequiredBlank,   Ecs,         "", "", "Originator's Name"),
    Field("OPHONE",  18, RequiredBlank,   Ecs,         "", "", "Originator's Phone Number"),
    Field("FL",      12, Required,        Digits,      "000000000388..999999999998|999999999999", "", "File Length [000000000388-999999999998|999999999999]").Locked(),
    Field("HL",       6, Required,        Digits,      "000388..999999", "", "NITF File Header Length [000388-999999]").Locked(),
    Field("NUMI",     3, Required,        Digits,      "000..999", "", "Number of Image Segments [000-999]"),
    Repeat("NUMI").ReadThrough(),
        Field("LISH",     6, Conditional,     Digits,      "000439..999998|999999", "", "Length of nth Image Subheader [000439-999998|999999]"),
        Field("LI",      10, Conditional,     Digits,      "0000000001..9999999998|9999999999", "", "Length of nth Image Segment [0000000001-9999999998|9999999999]"),
    End(),
    Field("NUMS",     3, Required,        Digits,      "000..999", "", "Number of Graphic Segments [000-999]"),
    Repeat("NUMS").ReadThrough(),
        Field("LSSH",     4, Conditional,     Digits,      "0258..9998|9999", "", "Length of nth Graphic Subheader [0258-9998|9999]"),
        Field("LS",       6, Conditional,     Digits,      "000001..999998|999999", "", "Length of nth Graphic Segment [000001-999998|999999]"),
    End(),
    Field("NUMX",     3, Required,        Digits,      "000", "", "Reserved for Future Use [000]"),
    Field("NUMT",     3, Required,        Digits,      "000..999", "", "Number of Text Segments [000-999]"),
    Repeat("NUMT").ReadThrough(),
        Field("LTSH",     4, Conditional,     Digits,      "0282..9998|9999", "", "Length of nth Text Subheader [0282-9998|9999]"),
        Field("LT",       5, Conditional,     Digits,      "00001..99998|99999", "", "Length of nth Text Segment [00001-99998|99999]"),
    End(),
    Field("NUMDES",   3, Required,        Digits,      "000..999", "", "Number of Data Extension Segments [000-999]"),
    Repeat("NUMDES").ReadThrough(),
        Field("LDSH",     4, Conditional,     Digits,      "0200..9998|9999", "", "Length of nth Data Extension Segment Subheader [0200-9998|9999]"),
        Field("LD",       9, Conditional,     Digits,      "000000001..999999998|999999999", "", "Length of nth Data Extension Segment [000000001-999999998|999999999]"),
    End(),
    Field("NUMRES",   3, Required,        Digits,      "000..999", "", "Number of Reserved Extension Segments [000-999]"),
    Repeat("NUMRES").ReadThrough(),
        Field("LRESH",    4, Conditional,     Digits,      "0200..9999", "", "Length of nth Reserved Extension Segment Subheader [0200-9999]"),
        Field("LRE",      7, Conditional,     Digits,      "0000001..9999999", "", "Length of nth Reserved Extension Segment [0000001-9999999]"),
    End(),
};
// clang-format on
constexpr auto UDHD_ROWS =
    AreaRows("UDHDL", "00000|00003..99999", "User Defined Header Data Length [00000|00003-99999]", "UDHOFL",
             "User Defined Header Overflow [000-999]", "UDHD", "Uset Defined Header Data");
constexpr auto XHD_ROWS = AreaRows("XHDL", "00000|00003..99999", "Extended Header Data Length [00000|00003-99999]",
                                   "XHDLOFL", "Extended Header Data Overflow [000-999]", "XHD", "Extended Header Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_21<"FSCLAS", "FS", "File", Form::ClassificationReason>, BODY,
                               UDHD_ROWS.rows, XHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows, Naming::ThreeDigits);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 388);

static_assert(WidthBefore(ROWS.rows, "FL") == FILE_LENGTH_AT);
static_assert(WidthBefore(ROWS.rows, "HL") == HEADER_LENGTH_AT);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21FileHeader",
    .source = "NITF21FileHeader::NITF21FileHeader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &FILE_HEADER_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.1 file header field values from the input NITF file header data stream.",
    .requiredPrefix = "ERROR: Failed to extract required field "};

/// FHDR and FVER as the version text of the file.
const char* VersionText(const char* aRaw, std::size_t aLength) noexcept
{
    const bool nsif = aRaw != nullptr && std::string_view(aRaw, aLength).starts_with(NITFCnst::NSIF_FILE_FORMAT);
    return nsif ? NITFCnst::STR_NSIF_0100 : NITFCnst::STR_NITF_0210;
}

}  // namespace

NITF21FileHeader::NITF21FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming,
                                   bool aSpecificOnly)
    : NITF21FileHeader(MakeInput(aFileName, aRaw, aLength, VersionText(aRaw, aLength), aStreaming, aSpecificOnly))
{
}

NITF21FileHeader::NITF21FileHeader(Input&& aInput) : NITFFileHeader(LAYOUT, aInput) {}

bool NITF21FileHeader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21FileHeader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

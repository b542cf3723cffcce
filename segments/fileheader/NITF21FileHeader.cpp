#include "segments/fileheader/NITF21FileHeader.h"

#include "fields/FieldTable.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentKinds.h"
#include "segments/fileheader/detail/HeaderWords.h"

#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500C, table A-1. The descriptions keep their slips: hosts know them so.
// clang-format off
constexpr FieldRow ROWS[] = {
    Field("FHDR",     4, Required,        FileProfile, "NITF|NSIF", "", "File Profile Name [NITF|NSIF]").Locked(),
    Field("FVER",     5, Required,        Text,        "02.10|01.00", "", "File Version [02.10|01.00]").Locked(),
    Field("CLEVEL",   2, Required,        DigitText,   "01..99", "", "Complexity Level [01-99]").Locked(),
    Field("STYPE",    4, Required,        Text,        "BF01", "", "Standard Type [BF01]").Locked(),
    Field("OSTAID",  10, Required,        Text,        "", "", "Originating Station ID"),
    Field("FDT",     14, Required,        NumberText,  "{CCYYMMDDhhmmss}", "", "File Date and Time {CCYYMMDDhhmmss}"),
    Field("FTITLE",  80, RequiredBlank,   Ecs,         "", "", "File Title"),
    ORMO_SECURITY_ROWS_21("FSCLAS", nullptr, "FS", "File", ClassificationReason),
    Field("FSCOP",    5, Required,        DigitText,   "00000..99999", "", "File Copy Number [00000-99999]"),
    Field("FSCPYS",   5, Required,        DigitText,   "00000..99999", "", "File Number of Copies [00000-99999]"),
    Field("ENCRYP",   1, Required,        DigitText,   "0", "", "Encryption [0]").Locked(),
    Field("FBKGC",    3, Required,        Colour,      "", "", "File Background Color [0x00-0xFF]"),
    Field("ONAME",   24, RequiredBlank,   Ecs,         "", "", "Originator's Name"),
    Field("OPHONE",  18, RequiredBlank,   Ecs,         "", "", "Originator's Phone Number"),
    Field("FL",      12, Required,        Digits,      "000000000388..999999999998|999999999999", "", "File Length [000000000388-999999999998|999999999999]").Locked(),
    Field("HL",       6, Required,        Digits,      "000388..999999", "", "NITF File Header Length [000388-999999]").Locked(),
    Field("NUMI",     3, Required,        Digits,      "000..999", "", "Number of Image Segments [000-999]"),
    Repeat("NUMI"),
        Field("LISH",     6, Conditional,     Digits,      "000439..999998|999999", "", "Length of nth Image Subheader [000439-999998|999999]"),
        Field("LI",      10, Conditional,     Digits,      "0000000001..9999999998|9999999999", "", "Length of nth Image Segment [0000000001-9999999998|9999999999]"),
    End(),
    Field("NUMS",     3, Required,        Digits,      "000..999", "", "Number of Graphic Segments [000-999]"),
    Repeat("NUMS"),
        Field("LSSH",     4, Conditional,     Digits,      "0258..9998|9999", "", "Length of nth Graphic Subheader [0258-9998|9999]"),
        Field("LS",       6, Conditional,     Digits,      "000001..999998|999999", "", "Length of nth Graphic Segment [000001-999998|999999]"),
    End(),
    Field("NUMX",     3, Required,        Digits,      "000", "", "Reserved for Future Use [000]"),
    Field("NUMT",     3, Required,        Digits,      "000..999", "", "Number of Text Segments [000-999]"),
    Repeat("NUMT"),
        Field("LTSH",     4, Conditional,     Digits,      "0282..9998|9999", "", "Length of nth Text Subheader [0282-9998|9999]"),
        Field("LT",       5, Conditional,     Digits,      "00001..99998|99999", "", "Length of nth Text Segment [00001-99998|99999]"),
    End(),
    Field("NUMDES",   3, Required,        Digits,      "000..999", "", "Number of Data Extension Segments [000-999]"),
    Repeat("NUMDES"),
        Field("LDSH",     4, Conditional,     Digits,      "0200..9998|9999", "", "Length of nth Data Extension Segment Subheader [0200-9998|9999]"),
        Field("LD",       9, Conditional,     Digits,      "000000001..999999998|999999999", "", "Length of nth Data Extension Segment [000000001-999999998|999999999]"),
    End(),
    Field("NUMRES",   3, Required,        Digits,      "000..999", "", "Number of Reserved Extension Segments [000-999]"),
    Repeat("NUMRES"),
        Field("LRESH",    4, Conditional,     Digits,      "0200..9999", "", "Length of nth Reserved Extension Segment Subheader [0200-9999]"),
        Field("LRE",      7, Conditional,     Digits,      "0000001..9999999", "", "Length of nth Reserved Extension Segment [0000001-9999999]"),
    End(),
    Field("UDHDL",    5, Required,        Digits,      "00000|00003..99999", "", "User Defined Header Data Length [00000|00003-99999]"),
    WhenPositive("UDHDL"),
        Field("UDHOFL",   3, Conditional,     Digits,      "000..999", "", "User Defined Header Overflow [000-999]").Locked(),
        Sized("UDHD", "UDHDL", -3, Conditional,     Records,     "", "", "Uset Defined Header Data"),
    End(),
    Field("XHDL",     5, Required,        Digits,      "00000|00003..99999", "", "Extended Header Data Length [00000|00003-99999]"),
    WhenPositive("XHDL"),
        Field("XHDLOFL",  3, Conditional,     Digits,      "000..999", "", "Extended Header Data Overflow [000-999]").Locked(),
        Sized("XHD", "XHDL", -3, Conditional,     Records,     "", "", "Extended Header Data"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS, Naming::ThreeDigits);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 388);

constexpr SegmentWords WORDS = FileHeaderWords(
    "ERROR: Failed to extract required field ",
    "ERROR: Failed to get all the NITF 2.1 file header field values from the input NITF file header data "
    "stream.");

// The fewest data bytes behind UDHOFL or XHDLOFL: the tag and length of one TRE and a byte of it.
constexpr std::size_t LEAST_EXTENSION_BYTES = 12;

/// FHDR and FVER as the version text of the file.
const char* VersionText(const char* aRaw, std::size_t aLength) noexcept
{
    const bool nsif = aRaw != nullptr && std::string_view(aRaw, aLength).starts_with(NITFCnst::NSIF_FILE_FORMAT);
    return nsif ? NITFCnst::STR_NSIF_0100 : NITFCnst::STR_NITF_0210;
}

constexpr KindFields KINDS[] = {
    {"IM", "NUMI", "LISH", "LI"},   {"SY", "NUMS", "LSSH", "LS"},     {"TE", "NUMT", "LTSH", "LT"},
    {"DE", "NUMDES", "LDSH", "LD"}, {"RE", "NUMRES", "LRESH", "LRE"},
};

}  // namespace

NITF21FileHeader::NITF21FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming,
                                   bool aSpecificOnly)
    : NITFFileHeader(aFileName, NITFCnst::NITF_VERSION_NUMBER_21, VersionText(aRaw, aLength), Table())
{
    Init(aRaw == nullptr ? std::string() : std::string(aRaw, aLength), aStreaming, KINDS, std::size(KINDS),
         aSpecificOnly);
}

const Detail::FieldTable& NITF21FileHeader::Table() noexcept
{
    static constexpr Detail::FieldTable table = TABLE.View();
    return table;
}

bool NITF21FileHeader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF21FileHeader::Words() const
{
    return WORDS;
}

bool NITF21FileHeader::CheckVersionSpecificFields(std::string& aErrors)
{
    for (const char* const tag : {"UDHD", "XHD"}) {
        const std::string_view area = FieldText(tag);
        if (area.data() != nullptr && area.size() < LEAST_EXTENSION_BYTES) {
            Detail::AppendBlock(aErrors,
                                "ERROR: NITF file header data stream contains errors - failed to extract field " +
                                    Detail::Quoted(tag) + " from the data stream.\n" + PlaceOf(tag) + " " +
                                    std::to_string(area.size()) + " byte(s), at least " +
                                    std::to_string(LEAST_EXTENSION_BYTES) + " are needed");
            return false;
        }
    }
    return true;
}

void NITF21FileHeader::CheckFileHeaderVersion() const
{
    const std::string_view version = FieldText("FVER");
    const bool nsif = version == NITFCnst::NSIF_VERSION_100 && FieldText("FHDR") == NITFCnst::NSIF_FILE_FORMAT;
    if (version != NITFCnst::NITF_VERSION_210 && !nsif) {
        throw ImageSupportDataConstructionException("ERROR: Expected NITF version \"02.10\".",
                                                    "NITF21FileHeader::CheckFileHeaderVersion");
    }
}

}  // namespace ORMO::SensorModel::CSM

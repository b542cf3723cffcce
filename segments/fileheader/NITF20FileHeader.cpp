#include "segments/fileheader/NITF20FileHeader.h"

#include "fields/FieldTable.h"
#include "fields/FieldWalk.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentKinds.h"
#include "segments/fileheader/detail/HeaderWords.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr std::uint64_t COLOUR_WIDTH = 3;
constexpr std::uint64_t NAME_WIDTH = 27;

/// MIL-STD-2500A has no background colour. Later writers lay one over the first three bytes of ONAME; the practice is
/// to take them as a colour when one is no printable character or all are equal, and as part of the name otherwise.
bool BackgroundColourWidth(const WalkContext& aContext, std::uint64_t& aOut)
{
    const std::string_view bytes = aContext.Ahead(COLOUR_WIDTH);
    const bool equal = bytes.size() == COLOUR_WIDTH && bytes[0] == bytes[1] && bytes[1] == bytes[2];
    const bool colour =
        equal || std::any_of(bytes.begin(), bytes.end(), [](char aByte) { return aByte < 0x20 || aByte > 0x7E; });
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
constexpr FieldRow ROWS[] = {
    Field("FHDR",    9, Required,        FileProfile, "NITF02.00", "", "File Type and Version [NITF02.00]").Locked(),
    Field("CLEVEL",  2, Required,        DigitText,   "01..99", "", "Compliance Level [01-99]").Locked(),
    Field("STYPE",   4, Optional,        Text,        "", "", "System Type [blank]").Locked(),
    Field("OSTAID", 10, Required,        Text,        "", "", "Originating Station ID"),
    Field("FDT",    14, Required,        Text,        "{DDHHmmSSZMONYY}", "", "File Date and Time {DDHHMMSSZMONYY}"),
    Field("FTITLE", 80, Optional,        Text,        "", "", "File Title"),
    ORMO_SECURITY_ROWS_20("FS", "File"),
    Field("FSCOP",   5, Optional,        DigitText,   "00000..99999", "", "File Copy Number [00000-99999]"),
    Field("FSCPYS",  5, Optional,        DigitText,   "00000..99999", "", "File Number of Copies [00000-99999]"),
    Field("ENCRYP",  1, Required,        DigitText,   "0|1", "", "Encryption [0|1]").Locked(),
    Computed("FBKGC", BackgroundColourWidth, Optional, Colour, "", "", "File Background Color [0x00-0xFF]"),
    Computed("ONAME", OriginatorNameWidth, Optional, Text, "", "", "Originator's Name"),
    Field("OPHONE", 18, Optional,        Text,        "", "", "Originator's Phone Number"),
    Field("FL",     12, Required,        Digits,      "000000000388..999999999999", "", "File Length [000000000388-999999999999]").Locked(),
    Field("HL",      6, Required,        Digits,      "000388..999999", "", "NITF File Header Length [000388-999999]").Locked(),
    Field("NUMI",    3, Required,        Digits,      "000..999", "", "Number of Images [000-999]"),
    Repeat("NUMI"),
        Field("LISH",    6, Conditional,     Digits,      "000439..999999", "", "Length of nth Image Subheader [000439-999999]"),
        Field("LI",     10, Conditional,     Digits,      "0000000001..9999999999", "", "Length of nth Image [0000000001-9999999999]"),
    End(),
    Field("NUMS",    3, Required,        Digits,      "000..999", "", "Number of Symbols [000-999]"),
    Repeat("NUMS"),
        Field("LSSH",    4, Conditional,     Digits,      "0258..9999", "", "Length of nth Symbol Subheader [0258-9999]"),
        Field("LS",      6, Conditional,     Digits,      "000000..999999", "", "Length of nth Symbol [000000-999999]"),
    End(),
    Field("NUML",    3, Required,        Digits,      "000..999", "", "Number of Labels [000-999]"),
    Repeat("NUML"),
        Field("LLSH",    4, Conditional,     Digits,      "0212..9999", "", "Length of nth Label Subheader [0212-9999]"),
        Field("LL",      3, Conditional,     Digits,      "000..320", "", "Length of nth Label [000-320]"),
    End(),
    Field("NUMT",    3, Required,        Digits,      "000..999", "", "Number of Text Files [000-999]"),
    Repeat("NUMT"),
        Field("LTSH",    4, Conditional,     Digits,      "0282..9999", "", "Length of nth Text Subheader [0282-9999]"),
        Field("LT",      5, Conditional,     Digits,      "00000..99999", "", "Length of nth Text File [00000-99999]"),
    End(),
    Field("NUMDES",  3, Required,        Digits,      "000..999", "", "Number of Data Extension Segments [000-999]"),
    Repeat("NUMDES"),
        Field("LDSH",    4, Conditional,     Digits,      "0200..9999", "", "Length of nth Data Extension Segment Subheader [0200-9999]"),
        Field("LD",      9, Conditional,     Digits,      "000000000..999999999", "", "Length of nth Data Extension Segment [000000000-999999999]"),
    End(),
    Field("NUMRES",  3, Required,        Digits,      "000..999", "", "Number of Reserved Extension Segments [000-999]"),
    Repeat("NUMRES"),
        Field("LRESH",   4, Conditional,     Digits,      "0000..9999", "", "Length of nth Reserved Extension Segment Subheader [0000-9999]"),
        Field("LRE",     7, Conditional,     Digits,      "0000000..9999999", "", "Length of nth Reserved Extension Segment [0000000-9999999]"),
    End(),
    Field("UDHDL",   5, Required,        Digits,      "00000|00003..99999", "", "User Defined Header Data Length [00000|00003-99999]"),
    WhenPositive("UDHDL"),
        Field("UDHOFL",  3, Conditional,     Digits,      "000..999", "", "User Defined Header Overflow [000-999]").Locked(),
        Sized("UDHD", "UDHDL", -3, Conditional,     Records,     "", "", "User Defined Header Data"),
    End(),
    Field("XHDL",    5, Required,        Digits,      "00000|00003..99999", "", "Extended Header Data Length [00000|00003-99999]"),
    WhenPositive("XHDL"),
        Field("XHDOFL",  3, Conditional,     Digits,      "000..999", "", "Extended Header Data Overflow [000-999]").Locked(),
        Sized("XHD", "XHDL", -3, Conditional,     Records,     "", "", "Extended Header Data"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS, Naming::ThreeDigits);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) + NAME_WIDTH == 388);

constexpr SegmentWords WORDS = FileHeaderWords(
    "ERROR: Failed to extract required/optional field ",
    "ERROR: Failed to get all the NITF 2.0 file header field values from the input NITF file header data "
    "stream.");

constexpr KindFields KINDS[] = {
    {"IM", "NUMI", "LISH", "LI"}, {"SY", "NUMS", "LSSH", "LS"},   {"LA", "NUML", "LLSH", "LL"},
    {"TE", "NUMT", "LTSH", "LT"}, {"DE", "NUMDES", "LDSH", "LD"}, {"RE", "NUMRES", "LRESH", "LRE"},
};

}  // namespace

NITF20FileHeader::NITF20FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming,
                                   bool aSpecificOnly)
    : NITFFileHeader(aFileName, NITFCnst::NITF_VERSION_NUMBER_20, NITFCnst::STR_NITF_0200, Table())
{
    Init(aRaw == nullptr ? std::string() : std::string(aRaw, aLength), aStreaming, KINDS, std::size(KINDS),
         aSpecificOnly);
}

const Detail::FieldTable& NITF20FileHeader::Table() noexcept
{
    static constexpr Detail::FieldTable table = TABLE.View();
    return table;
}

bool NITF20FileHeader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(Table(), Detail::Trimmed(aTag), aSmallest, aLargest);
}

const Detail::SegmentWords& NITF20FileHeader::Words() const
{
    return WORDS;
}

// Every NITF 2.0 length may be smaller than the standard says, and all nines are a length.
std::uint64_t NITF20FileHeader::LeastLength(std::uint64_t) const noexcept
{
    return 0;
}

bool NITF20FileHeader::CheckVersionSpecificFields(std::string&)
{
    // Where the bytes are part of the name, the colour reads as the default one.
    Detail::FieldStore& fields = Contents().fields;
    const Detail::FieldEntry* const colour = fields.Find("FBKGC");
    if (colour != nullptr && colour->length == 0) {
        const std::string value(COLOUR_WIDTH, NITFCnst::NITF20_DEFAULT_FBKGC_VALUE);
        fields.Replace(*colour, value);
    }
    return true;
}

void NITF20FileHeader::CheckFileHeaderVersion() const
{
    if (FieldText("FHDR") != NITFCnst::STR_NITF_0200) {
        throw ImageSupportDataConstructionException("ERROR: Expected NITF version \"02.00\".",
                                                    "NITF20FileHeader::CheckFileHeaderVersion");
    }
}

}  // namespace ORMO::SensorModel::CSM

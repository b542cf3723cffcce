#include "segments/image/NITF21ImageSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// NBANDS has one digit; more than nine bands stand in XBANDS. An image without bands is refused.
bool BandCount(const WalkContext& aContext, std::uint64_t& aOut)
{
    if (!aContext.Count("NBANDS", aOut)) {
        return false;
    }
    return aOut != 0 || (aContext.Count("XBANDS", aOut) && aOut != 0);
}

// MIL-STD-2500C, table A-3.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("IM",        2, Required,        Text,        "IM", "", "File Part Type [IM]"),
    Field("IID1",     10, Required,        Text,        "", "", "Image Identifier 1"),
    Field("IDATIM",   14, Required,        NumberText,  "{CCYYMMDDhhmmss}", "", "Image Date and Time {CCYYMMDDhhmmss}").MildRule("FH-07"),
    Field("TGTID",    17, RequiredBlank,   Text,        "", "", "Target Identifier {BBBBBBBBBBOOOOOCC}"),
    Field("IID2",     80, RequiredBlank,   Ecs,         "", "", "Image Identifier 2"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",    1, Required,        Digits,      "0", "", "Encryption [0]").Locked(),
    Field("ISORCE",   42, RequiredBlank,   Ecs,         "", "", "Image Source"),
    Field("NROWS",     8, Required,        Digits,      "00000001..99999999", "", "Number of Significant Rows in Image [00000001-99999999]").Locked(),
    Field("NCOLS",     8, Required,        Digits,      "00000001..99999999", "", "Number of Significant Columns in Image [00000001-99999999]").Locked(),
    Field("PVTYPE",    3, Required,        Text,        "INT=integer|B=bi-level|SI=signed integer|R=real|C=complex", "", "Pixel Value Type [INT|B|SI|R|C]").Locked(),
    Field("IREP",      8, Required,        Text,        "MONO|RGB|RGB/LUT|MULTI|NODISPLY|NVECTOR|POLAR|VPH|YCbCr601", "", "Image Representation [MONO|RGB|RGB/LUT|MULTI|NODISPLY|NVECTOR|POLAR|VPH|YCbCr601]").Locked(),
    Field("ICAT",      8, Required,        Text,        "VIS|SL|TI|FL|RD|EO|OP|HR|HS|CP|BP|SAR|SARIQ|IR|MAP|MS|FP|MRI|XRAY|CAT|VD|PAT|LEG|DTEM|MATR|LOCG|BARO|CURRENT|DEPTH|WIND|CLOUD", "", "Image Category [VIS|SL|TI|FL|RD|EO|OP|HR|HS|CP|BP|SAR|SARIQ|IR|MAP|MS|FP|MRI|XRAY|CAT|VD|PAT|LEG|DTEM|MATR|LOCG|BARO|CURRENT|DEPTH|WIND]").Locked(),
    Field("ABPP",      2, Required,        Digits,      "01..96", "", "Actual Bits-Per-Pixel Per Band [01-96]").Locked(),
    Field("PJUST",     1, Required,        Text,        "L|R", "", "Pixel Justification [L|R]").Locked(),
    Field("ICORDS",    1, RequiredBlank,   Text,        "U|G|N|S|D|P", "", "Image Coordinate Representation [U|G|N|S|D]").Locked(),
    WhenFilled("ICORDS"),
        Field("IGEOLO",   60, Conditional,     Text,        "", "", "Image Geographic Location").Rule("GE-01"),
    End(),
    Field("NICOM",     1, Required,        Digits,      "0..9", "", "Number of Image Comments [0-9]"),
    Repeat("NICOM"),
        Field("ICOM",     80, ConditionalBlank, Ecs,        "", "", "Image Comment n"),
    End(),
    Field("IC",        2, Required,        Text,        "NC=not compressed|NM=not compressed, masked|C1=bi-level|C3=JPEG|C4=vector quantised|C5=lossless JPEG|C6=reserved|C7=complex SAR|C8=JPEG 2000|I1=down-sampled JPEG|M1=bi-level, masked|M3=JPEG, masked|M4=vector quantised, masked|M5=lossless JPEG, masked|M6=reserved, masked|M7=complex SAR, masked|M8=JPEG 2000, masked", "", "Image Compression [NC|NM|C1|C3|C4|C5|C6|C7|C8|I1|M1|M3|M4|M5|M6|M7|M8]").Locked(),
    When("IC", "C1|C3|C4|C5|C8|M1|M3|M4|M5|M8|I1"),
        Field("COMRAT",    4, Conditional,     Text,        "", "", "Compression Rate Code").Locked(),
    End(),
    Field("NBANDS",    1, Required,        Digits,      "0..9", "", "Number of Bands [0-9]"),
    When("NBANDS", "0"),
        Field("XBANDS",    5, Conditional,     Digits,      "00010..99999", "", "Number of Multispectral Bands [00010-99999]").Locked().Rule("BD-03"),
    End(),
    RepeatBy("NBANDS, or XBANDS when NBANDS is 0", BandCount, "NBANDS"),
        Field("IREPBAND",  2, RequiredBlank,   Text,        "", "", "nth Band Representation [LU|R|G|B|M|Y|Cb|Cr]").Locked(),
        Field("ISUBCAT",   6, RequiredBlank,   Text,        "", "", "nth Band Subcategory").Locked(),
        Field("IFC",       1, Required,        Text,        "N", "", "nth Band Image Filter Condition [N]").Locked(),
        Field("IMFLT",     3, RequiredBlank,   Text,        "", "", "nth Band Standard Image Filter Code [blank]").Locked(),
        Field("NLUTS",     1, Required,        Digits,      "0..4", "", "Number of LUTS for the nth Image Band [0-4]").Locked(),
        WhenPositive("NLUTS"),
            Field("NELUT",     5, Conditional,     Digits,      "00001..65536", "", "Number of LUT Entries for the nth Image Band [00001-65536]").Locked(),
        End(),
        Repeat("NLUTS"),
            Sized("LUTD", "NELUT", 0, Conditional,     Bytes,       "", "", "nth Image Band mth LUT"),
        End(),
    End(),
    Field("ISYNC",     1, Required,        Digits,      "0", "", "Image Sync Code [0]").Locked(),
    Field("IMODE",     1, Required,        Text,        "B|P|R|S", "", "Image Mode [B|P|R|S]").Locked(),
    Field("NBPR",      4, Required,        Digits,      "0001..9999", "", "Number of Blocks Per Row [0001-9999]").Locked(),
    Field("NBPC",      4, Required,        Digits,      "0001..9999", "", "Number of Blocks Per Column [0001-9999]").Locked(),
    Field("NPPBH",     4, Required,        Digits,      "0000..8192", "", "Number of Pixels Per Block Horizontal [0000-8192]").Locked(),
    Field("NPPBV",     4, Required,        Digits,      "0000..8192", "", "Number of Pixels Per Block Vertical [0000-8192]").Locked(),
    Field("NBPP",      2, Required,        Digits,      "01..96", "", "Number of Bits Per Pixel Per Band [01-96]").Locked(),
    Field("IDLVL",     3, Required,        Digits,      "001..999", "", "Image Display Level [001-999]").Locked(),
    Field("IALVL",     3, Required,        Digits,      "000..998", "", "Image Attachment Level [000-998]").Locked(),
    Field("ILOC",     10, Required,        NumberText,  "{rrrrrccccc}", "", "Image Location {rrrrrccccc}[-9999-99999]"),
    Field("IMAG",      4, Required,        Text,        "", "", "Image Magnification [any decimal up to 999|/2-/999]"),
};
// clang-format on
constexpr auto UDID_ROWS = AreaRows("UDIDL", "00000|00003..99999", "User Defined Image Data Length [00000|00003-99999]",
                                    "UDOFL", "User Defined Overflow [000-999]", "UDID", "User Defined Image Data");
constexpr auto IXSHD_ROWS =
    AreaRows("IXSHDL", "00000|00003..99999", "Image Extended Subheader Data Length [00000|00003-99999]", "IXSOFL",
             "Image Extended Subheader Overflow [000-999]", "IXSHD", "Image Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_21<"ISCLAS", "IS", "Image">, BODY, UDID_ROWS.rows, IXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 426);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF21ImageSubheader",
    .source = "NITF21ImageSubheader::InitNITF21ImageSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::NITF_VERSION_NUMBER_21),
    .words = &IMAGE_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.1 image subheader field values from the input image subheader data "
        "stream."};

}  // namespace

NITF21ImageSubheader::NITF21ImageSubheader(Input& aInput) : NITFImageSubheader(LAYOUT, aInput) {}

bool NITF21ImageSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF21ImageSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

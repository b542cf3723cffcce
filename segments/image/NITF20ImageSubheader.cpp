#include "segments/image/NITF20ImageSubheader.h"

#include "foundation/detail/Ascii.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500A.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("IM",        2, Required,        Text,        "IM", "", "File Part Type [IM]"),
    Field("IID",      10, Required,        Text,        "", "", "Image ID"),
    Field("IDATIM",   14, Required,        Text,        "{DDHHmmSSZMONYY}|blank", "", "Image Date and Time {DDHHMMSSZMONYY}").MildRule("FH-07"),
    Field("TGTID",    17, Optional,        Text,        "", "", "Target ID {BBBBBBBBBBFFFFFCC}"),
    Field("ITITLE",   80, Optional,        Text,        "", "", "Image Title"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",    1, Required,        Digits,      "0|1", "", "Encryption [0|1]").Locked(),
    Field("ISORCE",   42, Optional,        Text,        "", "", "Image Source"),
    Field("NROWS",     8, Required,        Digits,      "00000001..99999999", "", "Number of Significant Rows in Image [00000001-99999999]").Locked(),
    Field("NCOLS",     8, Required,        Digits,      "00000001..99999999", "", "Number of Significant Columns in Image [00000001-99999999]").Locked(),
    Field("PVTYPE",    3, Required,        Text,        "INT=integer|B=bi-level|SI=signed integer|R=real|C=complex", "", "Pixel Value Type [INT|B|SI|R|C]").Locked(),
    Field("IREP",      8, Required,        Text,        "MONO|RGB|RGB/LUT|1D|2D|ND|MULTI|YCbCr601|NODISPLY|NVECTOR|POLAR|VPH", "", "Image Representation [MONO|RGB|RGB/LUT|1D|2D|ND|MULTI|YCbCr601|NODISPLY|NVECTOR|POLAR|VPH]").Locked(),
    Field("ICAT",      8, Required,        Text,        "VIS|MAP|SL|TI|FL|RD|EO|OP|HR|HS|CP|BP|SAR|SARIQ|IR|MS|FP|MRI|XRAY|CAT|DTEM|MATR|LOCG|PAT|LEG|VD", "", "Image Category [VIS|MAP|SL|TI|FL|RD|EO|OP|HR|HS|CP|BP|SAR|SARIQ|IR|MS|FP|MRI|XRAY|CAT|DTEM|MATR|LOCG|PAT|LEG|VD]").Locked(),
    Field("ABPP",      2, Required,        Digits,      "01..64", "", "Actual Bits-Per-Pixel Per Band [01-64]").Locked(),
    Field("PJUST",     1, Required,        Text,        "L|R", "", "Pixel Justification [L|R]").Locked(),
    Field("ICORDS",    1, Required,        Text,        "U|G|C|N", "", "Image Coordinate System [U|G|C|N]").Locked(),
    WhenFilled("ICORDS"),
        WhenNot("ICORDS", "N"),
            Field("IGEOLO",   60, Conditional,     Text,        "", "", "Image Geographic Location").Rule("GE-01"),
        End(),
    End(),
    Field("NICOM",     1, Required,        Digits,      "0..9", "", "Number of Image Comments [0-9]"),
    Repeat("NICOM"),
        Field("ICOM",     80, ConditionalBlank, Text,       "", "", "Image Comment n"),
    End(),
    Field("IC",        2, Required,        Text,        "NC=not compressed|NM=not compressed, masked|C0=compressed by agreement|C1=bi-level|C2=ARIDPCM|C3=JPEG|C4=vector quantised|M0=compressed by agreement, masked|M1=bi-level, masked|M2=ARIDPCM, masked|M3=JPEG, masked|M4=vector quantised, masked", "", "Image Compression [NC|NM|C0|C1|C2|C3|C4|M0|M1|M2|M3|M4]").Locked(),
    WhenNot("IC", "NC|NM"),
        Field("COMRAT",    4, Conditional,     Text,        "", "", "Compression Rate Code").Locked(),
    End(),
    Field("NBANDS",    1, Required,        Digits,      "1..9", "", "Number of Bands [1-9]"),
    Repeat("NBANDS"),
        Field("IREPBAND",  2, Optional,        Text,        "", "", "nth Band Representation").Locked(),
        Field("ISUBCAT",   6, Optional,        Text,        "", "", "nth Band Subcategory").Locked(),
        Field("IFC",       1, Required,        Text,        "N", "", "nth Band Image Filter Condition [N]").Locked(),
        Field("IMFLT",     3, Optional,        Text,        "", "", "nth Band Standard Image Filter Code [blank]").Locked(),
        Field("NLUTS",     1, Required,        Digits,      "0..4", "", "Number of LUTS for the nth Image Band [0-4]").Locked(),
        WhenPositive("NLUTS"),
            Field("NELUT",     5, Conditional,     Digits,      "00001..65536", "", "Number of LUT Entries for the nth Image Band [00001-65536]").Locked(),
        End(),
        Repeat("NLUTS"),
            Sized("LUTD", "NELUT", 0, Conditional,     Bytes,       "", "", "nth Image Band mth LUT"),
        End(),
    End(),
    Field("ISYNC",     1, Required,        Digits,      "0", "", "Image Sync Code [0]").Locked(),
    Field("IMODE",     1, Required,        Text,        "B|P|S", "", "Image Mode [B|P|S]").Locked(),
    Field("NBPR",      4, Required,        Digits,      "0001..9999", "", "Number of Blocks Per Row [0001-9999]").Locked(),
    Field("NBPC",      4, Required,        Digits,      "0001..9999", "", "Number of Blocks Per Column [0001-9999]").Locked(),
    Field("NPPBH",     4, Required,        Digits,      "0001..9999", "", "Number of Pixels Per Block Horizontal [0001-9999]").Locked(),
    Field("NPPBV",     4, Required,        Digits,      "0001..9999", "", "Number of Pixels Per Block Vertical [0001-9999]").Locked(),
    Field("NBPP",      2, Required,        Digits,      "01..64", "", "Number of Bits Per Pixel Per Band [01-64]").Locked(),
    Field("IDLVL",     3, Required,        Digits,      "001..999", "", "Image Display Level [001-999]").Locked(),
    Field("IALVL",     3, Required,        Digits,      "000..998", "", "Image Attachment Level [000-998]").Locked(),
    Field("ILOC",     10, Required,        NumberText,  "{rrrrrccccc}", "", "Image Location {rrrrrccccc}[-9999-99999]"),
    Field("IMAG",      4, Required,        Text,        "", "", "Image Magnification [any decimal|/2-/999]"),
};
// clang-format on
constexpr auto UDID_ROWS = AreaRows("UDIDL", "00000|00003..99999", "User Defined Image Data Length [00000|00003-99999]",
                                    "UDOFL", "User Defined Overflow [000-999]", "UDID", "User Defined Image Data");
constexpr auto IXSHD_ROWS =
    AreaRows("IXSHDL", "00000|00003..99999", "Image Extended Subheader Data Length [00000|00003-99999]", "IXSOFL",
             "Image Extended Subheader Overflow [000-999]", "IXSHD", "Image Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"IS", "Image">, BODY, UDID_ROWS.rows, IXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 426);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20ImageSubheader",
    .source = "NITF20ImageSubheader::InitNITF20ImageSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &IMAGE_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 image subheader field values from the input image subheader data "
        "stream."};

}  // namespace

NITF20ImageSubheader::NITF20ImageSubheader(Input& aInput) : NITFImageSubheader(LAYOUT, aInput) {}

bool NITF20ImageSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return Detail::WidthRange(LAYOUT.table, Detail::Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20ImageSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

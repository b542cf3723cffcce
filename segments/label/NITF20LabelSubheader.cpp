#include "segments/label/NITF20LabelSubheader.h"

#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/DrawingXml.h"
#include "segments/detail/SecurityRows.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// MIL-STD-2500A, table XI.
// clang-format off
constexpr FieldRow HEAD[] = {
    Field("LA",       2, Required,        Text,        "LA", "", "File Part Type [LA]"),
    Field("LID",     10, Required,        Text,        "", "", "Label ID"),
};
constexpr FieldRow BODY[] = {
    Field("ENCRYP",   1, Required,        Digits,      "0|1", "", "Encryption [0|1]").Locked(),
    Field("LFS",      1, Optional,        Text,        "", "", "Label Font Style"),
    Field("LCW",      2, Required,        Digits,      "00..99", "pixels", "Label Cell Width [00-99]"),
    Field("LCH",      2, Required,        Digits,      "00..99", "pixels", "Label Cell Height [00-99]"),
    Field("LDLVL",    3, Required,        Digits,      "001..999", "", "Label Display Level [001-999]").Locked(),
    Field("LALVL",    3, Required,        Digits,      "000..998", "", "Label Attachment Level [000-998]").Locked(),
    Field("LLOC",    10, Required,        NumberText,  "{rrrrrccccc}", "", "Label Location {rrrrrccccc}[-9999-99999]"),
    Field("LTC",      3, Required,        Colour,      "", "", "Label Text Color [0x00-0xFF]"),
    Field("LBC",      3, Required,        Colour,      "", "", "Label Background Color [0x00-0xFF]"),
};
// clang-format on
constexpr auto LXSHD_ROWS =
    AreaRows("LXSHDL", "00000|00003..09787", "Extended Subheader Data Length [00000|00003-09787]", "LXSOFL",
             "Extended Subheader Overflow [000-999]", "LXSHD", "Extended Subheader Data");
constexpr auto ROWS = JoinRows(HEAD, SECURITY_20<"LS", "Label">, BODY, LXSHD_ROWS.rows);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 212);

constexpr NITFFieldSegment::Layout LAYOUT{
    .className = "NITF20LabelSubheader",
    .source = "NITF20LabelSubheader::InitNITF20LabelSubheader",
    .kind = FindKind(NITFCnst::DATA_SEGMENT_TYPE_LABEL, NITFCnst::NITF_VERSION_NUMBER_20),
    .words = &LABEL_WORDS,
    .table = TABLE.View(),
    .summary =
        "ERROR: Failed to get all the NITF 2.0 label segment subheader field values from the input label data "
        "stream."};

std::array<std::uint8_t, 3> ColorOf(std::string_view aField)
{
    std::array<std::uint8_t, 3> color{};
    std::transform(aField.begin(), aField.begin() + std::min<std::ptrdiff_t>(std::ssize(aField), 3), color.begin(),
                   [](char aByte) { return static_cast<std::uint8_t>(aByte); });
    return color;
}

}  // namespace

NITF20LabelSubheader::NITF20LabelSubheader(Input& aInput) : NITFDrawnSegment(LAYOUT, aInput)
{
    InitNITF20LabelSubheader(aInput);
    FinishReading(aInput);
}

void NITF20LabelSubheader::InitNITF20LabelSubheader(Input& aInput)
{
    std::string text;
    if (!ReadData(text)) {
        return;  // who read the segment tables has told of data that are not all there
    }
    long row = 0;
    long column = 0;
    static_cast<void>(GetLocation(row, column));
    // Two digits each, so that no cell is too large.
    m_label = std::make_shared<const NITF20LabelData>(
        text.data(), text.size(), ColorOf(FieldText("LTC")).data(), ColorOf(FieldText("LBC")).data(),
        static_cast<int>(NumberOf("LCH")), static_cast<int>(NumberOf("LCW")), row, column);
    const std::string metafile = m_label->ConvertToCGM(GetSegmentNumber() + 1);
    if (!metafile.empty()) {
        ReadMetafile(metafile, aInput, Finding::NO_OFFSET);
    }
}

unsigned long NITF20LabelSubheader::GetOverflowLabelExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("LXSOFL"));
}

bool NITF20LabelSubheader::AppendSvg(std::string& aSvg) const
{
    if (m_label == nullptr) {
        return false;
    }
    m_label->AppendBackgroundSvg(static_cast<double>(GetCCSColumnValue()), static_cast<double>(GetCCSRowValue()), aSvg);
    NITFDrawnSegment::AppendSvg(aSvg);
    return true;
}

std::string NITF20LabelSubheader::DrawnElements(std::string_view aIndent) const
{
    if (m_label == nullptr) {
        return {};
    }
    const std::string indent(aIndent);
    std::string xml = m_label->Serialize(aIndent);
    if (GetCGMMetaFile() != nullptr) {
        xml += indent + "<" + NITFCnst::XML_ELEMENT_LABEL_DATA_AS_CGM + ">\n";
        xml += MetafileElement(indent + "  ");
        xml += indent + "</" + NITFCnst::XML_ELEMENT_LABEL_DATA_AS_CGM + ">\n";
    }
    return xml;
}

bool NITF20LabelSubheader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITF20LabelSubheader*>(&aOther);
    if (other == nullptr || !NITFDrawnSegment::CloneObj(aOther)) {
        return false;
    }
    m_label = other->m_label;
    return true;
}

void NITF20LabelSubheader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITF20LabelSubheader*>(&aOther);
    if (other != nullptr) {
        NITFDrawnSegment::Swap(aOther);
        m_label.swap(other->m_label);
    }
}

bool NITF20LabelSubheader::GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest)
{
    return WidthRange(LAYOUT.table, Trimmed(aTag), aSmallest, aLargest);
}

const NITFFieldSegment::Layout& NITF20LabelSubheader::GetLayout() noexcept
{
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/cgm/detail/CgmDecoder.h"

#include "segments/cgm/detail/CgmParameters.h"
#include "segments/cgm/detail/CgmPrimitiveParts.h"
#include "segments/cgm/detail/CgmWriter.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t LONG_FORM = 31;
constexpr std::string_view LINE_INDENT = "      ";

std::string Bytes(std::size_t aCount)
{
    return std::to_string(aCount) + " byte(s)";
}

/// Why the parameters of a primitive cannot be those of its element; empty when they can.
std::string LengthFault(const CgmElement& aRow, std::size_t aLength)
{
    const std::size_t least = LeastCgmLength(aRow);
    if (HasFixedCgmLength(aRow)) {
        return aLength == least ? "" : "its parameters take " + Bytes(aLength) + ", " + Bytes(least) + " are expected";
    }
    if (aLength < least) {
        return "its parameters take " + Bytes(aLength) + ", at least " + Bytes(least) + " are needed";
    }
    if (aRow.leastPoints != 0 && aLength % 4 != 0) {
        return "its parameters take " + Bytes(aLength) + ", which are no whole number of points";
    }
    return "";
}

}  // namespace

CgmContents::CgmContents(const CgmContents& aOther)
    : clearText(aOther.clearText),
      lineEnds(aOther.lineEnds),
      nonCompliant(aOther.nonCompliant),
      notDrawn(aOther.notDrawn),
      ended(aOther.ended),
      extent(aOther.extent),
      fault(aOther.fault == nullptr ? nullptr : std::make_unique<CGMFault>(*aOther.fault))
{
    std::vector<std::unique_ptr<const NITFCGMGraphicPrimitive>> copies;
    copies.reserve(aOther.primitives.size());
    for (const NITFCGMGraphicPrimitive* const primitive : aOther.primitives) {
        copies.emplace_back(CgmPrimitiveParts::Copy(*primitive));
    }
    primitives.reserve(copies.size());
    for (auto& copy : copies) {
        primitives.push_back(copy.release());
    }
}

CgmContents::~CgmContents()
{
    for (const NITFCGMGraphicPrimitive* const primitive : primitives) {
        delete primitive;
    }
}

CgmDecoder::CgmDecoder(std::string_view aStream, CgmContents& aContents)
    : m_stream(aStream), m_contents(aContents), m_state(InitialCgmState())
{
    std::copy_n(m_state.begin() + CgmSlot::VdcExtent, m_contents.extent.size(), m_contents.extent.begin());
}

void CgmDecoder::Run()
{
    Element element;
    while (m_stream.Remaining() != 0) {
        if (m_contents.ended && m_stream.Remaining() == 1) {  // a segment of odd size, padded
            break;
        }
        if (!TakeElement(element) || !Decode(element)) {
            return;
        }
    }
    static_cast<void>(CheckFonts());
}

bool CgmDecoder::TakeElement(Element& aElement)
{
    aElement = {};
    aElement.offset = m_stream.Offset();
    std::uint16_t header = 0;
    if (!m_stream.TakeWord(header)) {
        return Fail(aElement, "one byte is left of it");
    }
    aElement.elementClass = header >> 12U;
    aElement.id = header >> 5U & 0x7FU;
    aElement.row = FindCgmElement(aElement.elementClass, aElement.id);
    std::uint16_t length = header & 0x1FU;
    if (length == LONG_FORM && !m_stream.TakeWord(length)) {
        return Fail(aElement, "the length of its parameters is missing");
    }
    const std::size_t left = m_stream.Remaining();
    if (!m_stream.Take(length, aElement.parameters)) {
        return Fail(aElement, "its parameters take " + Bytes(length) + ", " + Bytes(left) + " are left");
    }
    m_stream.SkipPad(length);
    return true;
}

bool CgmDecoder::Decode(const Element& aElement)
{
    if (aElement.row == nullptr) {
        m_contents.notDrawn += aElement.elementClass == CGMCnst::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE ? 1U : 0U;
        return true;
    }
    if (aElement.row->IsPrimitive()) {
        return DecodePrimitive(aElement);
    }
    if (aElement.row->IsAttribute()) {
        return DecodeAttribute(aElement);
    }
    DecodeNote(aElement);
    return true;
}

bool CgmDecoder::DecodeAttribute(const Element& aElement)
{
    const CgmElement& row = *aElement.row;
    const std::span<int> kept = std::span(m_state).subspan(row.slots.first, row.slots.count);
    m_numbers.clear();
    const bool good = aElement.parameters.size() == LeastCgmLength(row) &&
                      ReadCgmParameters(row, WordCursor(aElement.parameters), m_numbers, m_texts);
    if (!good && row.lengthIsVital) {
        return Fail(aElement, LengthFault(row, aElement.parameters.size()));
    }
    if (good) {
        if (m_numbers.size() == 1 && !row.bounds.Allows(m_numbers[0])) {
            m_numbers[0] = row.bounds.otherwise;
            m_contents.nonCompliant += row.bounds.counted ? 1U : 0U;
        }
        std::ranges::copy(m_numbers, kept.begin());
    }
    NoteAttribute(aElement);
    AppendLine(row, kept);
    return true;
}

void CgmDecoder::NoteAttribute(const Element& aElement)
{
    const std::uint8_t slot = aElement.row->slots.first;
    if (slot == CgmSlot::FontIndex) {
        m_fontIndex = aElement;
    }
    m_isOriented = m_isOriented || slot == CgmSlot::CharacterOrientation;
    if (slot == CgmSlot::VdcExtent) {
        std::copy_n(m_state.begin() + slot, m_contents.extent.size(), m_contents.extent.begin());
        if (!m_isOriented) {  // characters stand upright in their picture unless it says otherwise
            m_state[CgmSlot::CharacterOrientation + 1] = m_contents.extent[3] > m_contents.extent[1] ? 1 : -1;
        }
    }
}

bool CgmDecoder::DecodePrimitive(const Element& aElement)
{
    const CgmElement& row = *aElement.row;
    if (const std::string fault = LengthFault(row, aElement.parameters.size()); !fault.empty()) {
        return Fail(aElement, fault);
    }
    const auto attributes = std::span(m_state).subspan(row.slots.first, row.slots.count);
    std::vector<int> numbers;
    numbers.reserve(attributes.size() + aElement.parameters.size() / 2);
    numbers.assign(attributes.begin(), attributes.end());
    if (!ReadCgmParameters(row, WordCursor(aElement.parameters), numbers, m_texts)) {
        return Fail(aElement, "a text in it is longer than what is left of its parameters");
    }
    const auto geometry = std::span(std::as_const(numbers)).subspan(attributes.size());
    const bool isText = !m_texts.empty();
    if (isText && geometry.back() != CGMCnst::BinaryC4GraphicalPrimitive::VAL_TEXT_FINAL) {
        return Fail(aElement, "it is a part of a text, which the profile does not have");
    }
    AppendLine(row, geometry);
    static const std::string NONE;
    std::unique_ptr<const NITFCGMGraphicPrimitive> primitive(
        row.make(std::move(numbers), isText ? Font() : NONE, isText ? m_texts.front() : NONE));
    m_contents.primitives.push_back(primitive.get());
    static_cast<void>(primitive.release());
    return true;
}

void CgmDecoder::DecodeNote(const Element& aElement)
{
    const CgmElement& row = *aElement.row;
    m_numbers.clear();
    // What these say is shown as far as it goes: nothing that is drawn depends on it.
    static_cast<void>(ReadCgmParameters(row, WordCursor(aElement.parameters), m_numbers, m_texts));
    AppendLine(row, m_numbers);
    if (row.parameters[0] == CgmParameter::Description) {
        m_contents.nonCompliant += m_texts.front() != CGMCnst::NITF_METAFILE_DESCRIPTION_ELEMENT ? 1U : 0U;
    } else if (row.parameters[0] == CgmParameter::Fonts) {
        m_fonts.swap(m_texts);
    }
    m_contents.ended = m_contents.ended || (row.elementClass == CGMCnst::BINARY_ENCODING_ELEMENT_DELIMITER &&
                                            row.id == CGMCnst::BinaryC0Delimiter::CODE_END_METAFILE);
}

bool CgmDecoder::CheckFonts()
{
    const int index = m_state[CgmSlot::FontIndex];
    if (index <= static_cast<int>(m_fonts.size())) {
        return true;
    }
    return Fail(m_fontIndex, "its index is " + std::to_string(index) + ", the font list has " +
                                 std::to_string(m_fonts.size()) + " font(s)");
}

const std::string& CgmDecoder::Font() const
{
    static const std::string DEFAULT = CGMCnst::NITF_CGM_DEFAULT_FONT;
    const auto index = static_cast<std::size_t>(std::max(m_state[CgmSlot::FontIndex], 1));
    return index > m_fonts.size() ? DEFAULT : m_fonts[index - 1];
}

void CgmDecoder::AppendLine(const CgmElement& aRow, std::span<const int> aNumbers)
{
    m_contents.clearText += LINE_INDENT;
    AppendCgmClearText(aRow, aNumbers, m_texts, m_contents.clearText);
    m_contents.lineEnds.push_back(m_contents.clearText.size());
}

bool CgmDecoder::Fail(const Element& aElement, const std::string& aReason)
{
    std::string text = "ERROR: CGM element";
    if (aElement.row != nullptr) {
        text += ' ';
        text += aElement.row->keyword;
    }
    if (aElement.elementClass >= 0) {
        text += " (class " + std::to_string(aElement.elementClass) + ", id " + std::to_string(aElement.id) + ")";
    }
    text += " at byte offset " + std::to_string(aElement.offset) + " of the metafile: " + aReason + ".";
    m_contents.fault =
        std::make_unique<CGMFault>(CGMFault{aElement.elementClass, aElement.id, aElement.offset, std::move(text)});
    return false;
}

}  // namespace ORMO::SensorModel::CSM::Detail

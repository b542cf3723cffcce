#include "segments/cgm/detail/CgmWriter.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t LONG_FORM = 31;
constexpr std::size_t LONG_TEXT = 255;
constexpr std::size_t TEXT_PIECE = 0x7FFF;
constexpr std::size_t MORE_PIECES = 0x8000;

void AppendByte(std::size_t aByte, std::string& aOut)
{
    aOut += static_cast<char>(static_cast<unsigned char>(aByte));
}

void AppendWord(std::size_t aWord, std::string& aOut)
{
    AppendByte(aWord >> 8U & 0xFFU, aOut);
    AppendByte(aWord & 0xFFU, aOut);
}

void AppendWord(int aNumber, std::string& aOut)
{
    AppendWord(static_cast<std::size_t>(static_cast<std::uint16_t>(aNumber)), aOut);
}

void AppendText(std::string_view aText, std::string& aOut)
{
    if (aText.size() < LONG_TEXT) {
        AppendByte(aText.size(), aOut);
        aOut += aText;
        return;
    }
    AppendByte(LONG_TEXT, aOut);
    while (aText.size() > TEXT_PIECE) {
        AppendWord(TEXT_PIECE | MORE_PIECES, aOut);
        aOut += aText.substr(0, TEXT_PIECE);
        aText.remove_prefix(TEXT_PIECE);
    }
    AppendWord(aText.size(), aOut);
    aOut += aText;
}

/// Hands out numbers in the order of the parameters; a parameter without numbers left is not written.
class NumberList
{
public:
    explicit NumberList(std::span<const int> aNumbers) : m_left(aNumbers) {}

    std::span<const int> Take(std::size_t aCount)
    {
        const auto taken = m_left.first(m_left.size() < aCount ? 0 : aCount);
        m_left = m_left.subspan(taken.size());
        return taken;
    }
    std::span<const int> TakeAll() { return Take(m_left.size()); }

private:
    std::span<const int> m_left;
};

std::size_t NumbersOf(CgmParameter aParameter)
{
    using P = CgmParameter;
    switch (aParameter) {
        case P::Integer:
        case P::Word:
            return 1;
        case P::Point:
        case P::Vector:
            return 2;
        case P::Colour:
            return 3;
        default:
            return 0;
    }
}

void AppendParameter(CgmParameter aParameter, NumberList& aNumbers, std::span<const std::string> aTexts,
                     std::string& aOut)
{
    using P = CgmParameter;
    switch (aParameter) {
        case P::None:
            break;
        case P::Colour:
            for (const int component : aNumbers.Take(3)) {
                AppendByte(static_cast<std::size_t>(component), aOut);
            }
            break;
        case P::Points: {
            const auto points = aNumbers.TakeAll();
            const std::size_t count = points.size() / 2;
            for (std::size_t i = 0; i != count; ++i) {
                AppendWord(points[i], aOut);
                AppendWord(points[count + i], aOut);
            }
            break;
        }
        case P::ElementSet: {
            const auto pairs = aNumbers.TakeAll();
            AppendWord(pairs.size() / 2, aOut);
            for (const int number : pairs) {
                AppendWord(number, aOut);
            }
            break;
        }
        case P::Text:
        case P::Description:
        case P::TextPieces:
        case P::Fonts:
            for (const std::string& text : aTexts) {
                AppendText(text, aOut);
            }
            break;
        case P::Integer:
        case P::Word:
        case P::Point:
        case P::Vector:
            for (const int number : aNumbers.Take(NumbersOf(aParameter))) {
                AppendWord(number, aOut);
            }
            break;
    }
}

/// Writes the clear text of parameters: the first stands behind the space of the keyword, a space before all others.
class ClearTextList
{
public:
    explicit ClearTextList(std::string& aOut) : m_out(aOut) {}

    void Number(int aNumber)
    {
        Separate();
        AppendNumber(aNumber);
    }
    void Point(int aX, int aY)
    {
        Separate();
        m_out += CGMCnst::CGM_TEXT_POINT_BEGIN;
        AppendNumber(aX);
        m_out += CGMCnst::CGM_TEXT_HARD_SEPARATOR;
        AppendNumber(aY);
        m_out += CGMCnst::CGM_TEXT_POINT_END;
    }
    void Word(const char* aWord)
    {
        Separate();
        m_out += aWord;
    }
    void Text(std::string_view aText, bool aQuote)
    {
        Separate();
        if (!aQuote) {
            m_out += aText;
            return;
        }
        m_out += CGMCnst::CGM_TEXT_QUOTE;
        for (const char character : aText) {
            m_out.append(character == *CGMCnst::CGM_TEXT_QUOTE ? 2 : 1, character);  // ISO 8632-4: doubled inside
        }
        m_out += CGMCnst::CGM_TEXT_QUOTE;
    }

private:
    void Separate()
    {
        if (m_written) {
            m_out += CGMCnst::CGM_TEXT_SOFT_SEPARATOR;
        }
        m_written = true;
    }
    void AppendNumber(int aNumber)
    {
        char digits[12];
        m_out.append(digits, std::to_chars(digits, digits + sizeof digits, aNumber).ptr);
    }

    std::string& m_out;
    bool m_written = false;
};

void ShowTexts(CgmParameter aParameter, std::span<const std::string> aTexts, ClearTextList& aList)
{
    for (const std::string& text : aTexts) {
        const bool deviates =
            aParameter == CgmParameter::Description && text != CGMCnst::NITF_METAFILE_DESCRIPTION_ELEMENT;
        aList.Text(text, deviates || text.find_first_of(CGMCnst::CGM_TEXT_ENCLOSURE) != std::string::npos);
    }
}

void ShowParameter(const CgmElement& aElement, CgmParameter aParameter, NumberList& aNumbers,
                   std::span<const std::string> aTexts, ClearTextList& aList)
{
    using P = CgmParameter;
    switch (aParameter) {
        case P::None:
            break;
        case P::Word:
            for (const int number : aNumbers.Take(1)) {
                aList.Word(number == aElement.words->value ? aElement.words->word : aElement.words->otherwise);
            }
            break;
        case P::Point:
            if (const auto point = aNumbers.Take(2); !point.empty()) {
                aList.Point(point[0], point[1]);
            }
            break;
        case P::Points: {
            const auto points = aNumbers.TakeAll();
            const std::size_t count = points.size() / 2;
            for (std::size_t i = 0; i != count; ++i) {
                aList.Point(points[i], points[count + i]);
            }
            break;
        }
        case P::ElementSet:
            for (auto pair = aNumbers.Take(2); !pair.empty(); pair = aNumbers.Take(2)) {
                if (pair[0] == CGMCnst::BinaryC1MetafileDescriptor::VAL_DRAWING_PLUS_CONTROL_SET_CLASS &&
                    pair[1] == CGMCnst::BinaryC1MetafileDescriptor::VAL_DRAWING_PLUS_CONTROL_SET_ID) {
                    aList.Word(CGMCnst::ClearTextC1MetafileDescriptor::VAL_DRAWING_PLUS_CONTROL_SET);
                } else {
                    aList.Point(pair[0], pair[1]);
                }
            }
            break;
        case P::Text:
        case P::Description:
        case P::TextPieces:
        case P::Fonts:
            ShowTexts(aParameter, aTexts, aList);
            break;
        case P::Integer:
        case P::Vector:
        case P::Colour:
            for (const int number : aNumbers.Take(NumbersOf(aParameter))) {
                aList.Number(number);
            }
            break;
    }
}

}  // namespace

bool AppendCgmBinary(const CgmElement& aElement, std::span<const int> aNumbers, std::span<const std::string> aTexts,
                     std::string& aOut)
{
    std::string parameters;
    NumberList numbers(aNumbers);
    for (const CgmParameter parameter : aElement.parameters) {
        AppendParameter(parameter, numbers, aTexts, parameters);
    }
    if (parameters.size() > UINT16_MAX) {
        return false;
    }
    const std::size_t length = parameters.size();
    AppendWord(static_cast<std::size_t>(aElement.elementClass) << 12U | static_cast<std::size_t>(aElement.id) << 5U |
                   std::min(length, LONG_FORM),
               aOut);
    if (length >= LONG_FORM) {
        AppendWord(length, aOut);
    }
    aOut += parameters;
    aOut.append(length % 2, '\0');
    return true;
}

void AppendCgmClearText(const CgmElement& aElement, std::span<const int> aNumbers, std::span<const std::string> aTexts,
                        std::string& aOut)
{
    aOut += aElement.keyword;
    aOut += CGMCnst::CGM_TEXT_SOFT_SEPARATOR;
    ClearTextList list(aOut);
    NumberList numbers(aNumbers);
    for (const CgmParameter parameter : aElement.parameters) {
        ShowParameter(aElement, parameter, numbers, aTexts, list);
    }
    aOut += CGMCnst::CGM_TEXT_ELEMENT_TERMINATOR;
}

}  // namespace ORMO::SensorModel::CSM::Detail

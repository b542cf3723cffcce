#include "segments/detail/SvgElement.h"

#include "fields/Xml.h"

#include <algorithm>
#include <charconv>

namespace ORMO::SensorModel::CSM::Detail {

void AppendSvgNumber(double aNumber, std::string& aOut)
{
    char digits[64];
    const auto end = std::to_chars(digits, digits + sizeof digits, aNumber, std::chars_format::fixed, 3).ptr;
    std::string_view text(digits, static_cast<std::size_t>(end - digits));
    text.remove_suffix(text.size() - 1 - text.find_last_not_of('0'));
    text.remove_suffix(text.ends_with('.') ? 1 : 0);
    aOut += text == "-0" ? "0" : text;
}

std::string SvgTranslation(double aX, double aY)
{
    std::string text = "translate(";
    AppendSvgNumber(aX, text);
    text += ' ';
    AppendSvgNumber(aY, text);
    return text += ')';
}

SvgElement::SvgElement(std::string_view aName, std::string& aOut) : m_name(aName), m_out(aOut)
{
    m_out += '<';
    m_out += aName;
}

SvgElement& SvgElement::Attribute(std::string_view aName, std::string_view aValue)
{
    AppendXmlAttribute(aName, aValue, m_out);
    return *this;
}

SvgElement& SvgElement::Attribute(std::string_view aName, double aValue)
{
    std::string number;
    AppendSvgNumber(aValue, number);
    return Attribute(aName, number);
}

SvgElement& SvgElement::Colour(std::string_view aName, const int* aColour)
{
    constexpr std::string_view DIGITS = "0123456789abcdef";
    std::string value = "#";
    for (int i = 0; i != 3; ++i) {
        const auto component = static_cast<unsigned>(aColour[i]) & 0xFFU;
        value += DIGITS[component >> 4U];
        value += DIGITS[component & 0xFU];
    }
    return Attribute(aName, value);
}

void SvgElement::Close()
{
    m_out += "/>\n";
}

void SvgElement::Open()
{
    m_out += ">\n";
}

void SvgElement::Close(std::string_view aContent)
{
    std::string content(aContent);
    std::ranges::replace_if(
        content, [](char aCharacter) { return !IsXmlText(std::string_view(&aCharacter, 1)); }, '?');
    m_out += '>';
    AppendXmlText(content, m_out);
    m_out += "</";
    m_out += m_name;
    m_out += ">\n";
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "fields/Xml.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

bool IsXmlText(std::string_view aBytes) noexcept
{
    return std::all_of(aBytes.begin(), aBytes.end(), [](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        return byte >= 0x20 || byte == '\t' || byte == '\n' || byte == '\r';
    });
}

void AppendXmlText(std::string_view aBytes, std::string& aOut)
{
    for (const char character : aBytes) {
        const auto byte = static_cast<unsigned char>(character);
        switch (character) {
            case '&':
                aOut += "&amp;";
                break;
            case '<':
                aOut += "&lt;";
                break;
            case '>':
                aOut += "&gt;";
                break;
            case '"':
                aOut += "&quot;";
                break;
            case '\'':
                aOut += "&apos;";
                break;
            case '\r':  // a parser would turn these three into other white space
                aOut += "&#13;";
                break;
            case '\n':
                aOut += "&#10;";
                break;
            case '\t':
                aOut += "&#9;";
                break;
            default:
                if (byte < 0x80) {
                    aOut += character;
                } else {
                    aOut += static_cast<char>(0xC0U | (byte >> 6U));
                    aOut += static_cast<char>(0x80U | (byte & 0x3FU));
                }
        }
    }
}

void AppendXmlAttribute(std::string_view aName, std::string_view aValue, std::string& aOut)
{
    aOut += ' ';
    aOut += aName;
    aOut += "=\"";
    if (IsXmlText(aValue)) {
        AppendXmlText(aValue, aOut);
    } else {
        std::string carried(aValue);
        std::replace_if(
            carried.begin(), carried.end(),
            [](char c) {
                return !IsXmlText({&c, 1});
            },
            '?');
        AppendXmlText(carried, aOut);
    }
    aOut += '"';
}

void AppendBase64(std::string_view aBytes, std::string& aOut)
{
    constexpr std::string_view ALPHABET = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    aOut.reserve(aOut.size() + (aBytes.size() + 2) / 3 * 4);
    for (std::size_t i = 0; i < aBytes.size(); i += 3) {
        const std::size_t count = std::min<std::size_t>(3, aBytes.size() - i);
        unsigned bits = 0;
        for (std::size_t k = 0; k != 3; ++k) {
            bits = (bits << 8U) | (k < count ? static_cast<unsigned char>(aBytes[i + k]) : 0U);
        }
        for (unsigned k = 0; k != 4; ++k) {
            aOut += k <= count ? ALPHABET[(bits >> (18U - 6U * k)) & 0x3FU] : '=';
        }
    }
}

void AppendXmlValueAndEnd(std::string_view aElement, std::string_view aValue, std::string& aOut)
{
    if (IsXmlText(aValue)) {
        aOut += '>';
        AppendXmlText(aValue, aOut);
    } else {
        AppendXmlAttribute("base64Encoded", "T", aOut);
        aOut += '>';
        AppendBase64(aValue, aOut);
    }
    aOut += "</";
    aOut += aElement;
    aOut += ">\n";
}

}  // namespace ORMO::SensorModel::CSM::Detail

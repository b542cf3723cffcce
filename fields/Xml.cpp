#include "fields/Xml.h"

#include "foundation/CSMUtilString.h"

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
                Util::CSMUtilString::AppendLatin1AsUtf8({&character, 1}, aOut);
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

void AppendXmlValueAndEnd(std::string_view aElement, std::string_view aValue, std::string& aOut)
{
    if (IsXmlText(aValue)) {
        aOut += '>';
        AppendXmlText(aValue, aOut);
    } else {
        AppendXmlAttribute("base64Encoded", "T", aOut);
        aOut += '>';
        Util::CSMUtilString::AppendBase64(aValue, aOut);
    }
    aOut += "</";
    aOut += aElement;
    aOut += ">\n";
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "fields/Xml.h"

#include "foundation/CSMUtilString.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

enum class Carried : std::uint8_t
{
    AsItIs,
    Escaped,
    AsTwoBytes,  // a Latin-1 character above 127
    Never
};

constexpr std::array<Carried, 256> CARRIED = [] {
    std::array<Carried, 256> table{};
    for (std::size_t byte = 0; byte != table.size(); ++byte) {
        table[byte] = byte < 0x20 ? Carried::Never : byte < 0x80 ? Carried::AsItIs : Carried::AsTwoBytes;
    }
    // A parser would turn the first three into other white space; the last one is no text for a terminal.
    for (const char character : {'\t', '\n', '\r', '&', '<', '>', '"', '\'', '\x7F'}) {
        table[static_cast<unsigned char>(character)] = Carried::Escaped;
    }
    return table;
}();

Carried HowCarried(char aCharacter) noexcept
{
    return CARRIED[static_cast<unsigned char>(aCharacter)];
}

std::string_view Escape(char aCharacter) noexcept
{
    switch (aCharacter) {
        case '&':
            return "&amp;";
        case '<':
            return "&lt;";
        case '>':
            return "&gt;";
        case '"':
            return "&quot;";
        case '\'':
            return "&apos;";
        case '\r':
            return "&#13;";
        case '\n':
            return "&#10;";
        case '\x7F':
            return "&#127;";
        default:
            return "&#9;";
    }
}

/// Length of the front that stands in a document as it is.
std::size_t PlainFront(std::string_view aBytes) noexcept
{
    const auto* const end = std::find_if(aBytes.begin(), aBytes.end(),
                                         [](char aCharacter) { return HowCarried(aCharacter) != Carried::AsItIs; });
    return static_cast<std::size_t>(end - aBytes.begin());
}

/// Appends bytes as text; those that XML cannot carry become '?'.
void AppendText(std::string_view aBytes, std::string& aOut)
{
    while (true) {
        const std::size_t plain = PlainFront(aBytes);
        aOut.append(aBytes.data(), plain);
        if (plain == aBytes.size()) {
            return;
        }
        const char character = aBytes[plain];
        switch (HowCarried(character)) {
            case Carried::Escaped:
                aOut += Escape(character);
                break;
            case Carried::AsTwoBytes:
                Util::CSMUtilString::AppendLatin1AsUtf8({&character, 1}, aOut);
                break;
            default:
                aOut += '?';
        }
        aBytes.remove_prefix(plain + 1);
    }
}

}  // namespace

bool IsXmlText(std::string_view aBytes) noexcept
{
    return std::none_of(aBytes.begin(), aBytes.end(),
                        [](char aCharacter) { return HowCarried(aCharacter) == Carried::Never; });
}

void AppendXmlText(std::string_view aBytes, std::string& aOut)
{
    AppendText(aBytes, aOut);
}

void AppendXmlAttribute(std::string_view aName, std::string_view aValue, std::string& aOut)
{
    aOut += ' ';
    aOut += aName;
    aOut += "=\"";
    AppendText(aValue, aOut);
    aOut += '"';
}

void AppendXmlAttribute(std::string_view aName, std::uint64_t aValue, std::string& aOut)
{
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), aValue).ptr;
    AppendXmlAttribute(aName, {digits.data(), static_cast<std::size_t>(end - digits.data())}, aOut);
}

void AppendXmlValueAndEnd(std::string_view aElement, std::string_view aValue, std::string& aOut)
{
    if (IsXmlText(aValue)) {
        aOut += '>';
        AppendText(aValue, aOut);
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

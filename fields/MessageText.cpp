#include "fields/MessageText.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

std::string Shown(std::string_view aBytes, std::size_t aMost)
{
    constexpr std::string_view HEX = "0123456789ABCDEF";
    const std::string_view shown = aBytes.substr(0, aMost);
    const bool printable =
        std::all_of(shown.begin(), shown.end(), [](char aCharacter) { return aCharacter >= ' ' && aCharacter <= '~'; });
    std::string text;
    if (printable) {
        text = Quoted(shown);
    } else {
        text = "0x";
        for (const char character : shown) {
            const auto byte = static_cast<unsigned char>(character);
            text += HEX[byte >> 4U];
            text += HEX[byte & 0x0FU];
        }
    }
    if (shown.size() != aBytes.size()) {
        text += "... (" + std::to_string(aBytes.size()) + " bytes)";
    }
    return text;
}

std::string Printable(std::string_view aText)
{
    constexpr std::string_view HEX = "0123456789ABCDEF";
    std::string text;
    text.reserve(aText.size());
    for (const char character : aText) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte >= 0x20 && byte < 0x7F) {
            text += character;
        } else {
            text += "\\x";
            text += HEX[byte >> 4U];
            text += HEX[byte & 0x0FU];
        }
    }
    return text;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "segments/text/detail/TextCharacters.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

bool IsBasic(std::string_view aFormat) noexcept
{
    return aFormat == "STA" || aFormat == "MTF";
}

/// Bytes of the UTF-8 character that begins a text; 0 when there is none.
std::size_t Utf8Length(std::string_view aText) noexcept
{
    const auto at = [aText](std::size_t aIndex) {
        return aIndex < aText.size() ? static_cast<unsigned char>(aText[aIndex]) : 0U;
    };
    const unsigned first = at(0);
    const auto follows = [&](std::size_t aIndex, unsigned aLeast = 0x80, unsigned aMost = 0xBF) {
        return at(aIndex) >= aLeast && at(aIndex) <= aMost;
    };
    if (first < 0x80) {
        return 1;
    }
    if (first >= 0xC2 && first <= 0xDF) {
        return follows(1) ? 2 : 0;
    }
    if (first >= 0xE0 && first <= 0xEF) {
        // Neither an overlong form nor a surrogate.
        return follows(1, first == 0xE0 ? 0xA0 : 0x80, first == 0xED ? 0x9F : 0xBF) && follows(2) ? 3 : 0;
    }
    if (first >= 0xF0 && first <= 0xF4) {
        return follows(1, first == 0xF0 ? 0x90 : 0x80, first == 0xF4 ? 0x8F : 0xBF) && follows(2) && follows(3) ? 4 : 0;
    }
    return 0;
}

bool IsKnown(std::string_view aFormat) noexcept
{
    return IsBasic(aFormat) || aFormat == "UT1" || aFormat == "U8S";
}

}  // namespace

TextFault CheckTextBytes(std::string_view aText, std::string_view aFormat) noexcept
{
    const bool basic = IsBasic(aFormat);
    const bool extended = aFormat == "UT1";
    for (std::size_t i = 0; i != aText.size() && IsKnown(aFormat); ++i) {
        const auto byte = static_cast<unsigned char>(aText[i]);
        const bool control = byte < 0x20 || byte == 0x7F;
        if (control && byte != '\r' && byte != '\n' && byte != '\f') {
            return {"a control byte", i};
        }
        if (basic && byte > 0x7E) {
            return {"a byte above 126", i};
        }
        if (extended && byte >= 0x80 && byte < 0xA0) {
            return {"a byte between 128 and 159", i};
        }
    }
    return {};
}

TextFault CheckLineEnds(std::string_view aText, std::string_view aFormat) noexcept
{
    for (std::size_t i = 0; i != aText.size() && IsKnown(aFormat); ++i) {
        if (aText[i] == '\n' && (i == 0 || aText[i - 1] != '\r')) {
            return {"a line feed without a carriage return before it", i};
        }
        if (aText[i] == '\r' && (i + 1 == aText.size() || aText[i + 1] != '\n')) {
            return {"a carriage return without a line feed behind it", i};
        }
    }
    return {};
}

TextFault CheckUnicode(std::string_view aText, std::string_view aFormat) noexcept
{
    for (std::size_t i = 0; i < aText.size() && aFormat == "U8S";) {
        const std::size_t length = Utf8Length(aText.substr(i));
        if (length == 0) {
            return {"a byte that begins no UTF-8 character", i};
        }
        // C2 and C3 open what stands below U+0100, of which U+0080 to U+009F are control characters.
        const auto first = static_cast<unsigned char>(aText[i]);
        if (first > 0xC3 || (first == 0xC2 && static_cast<unsigned char>(aText[i + 1]) < 0xA0)) {
            return {"a character that is neither Basic Latin nor Latin-1", i};
        }
        i += length;
    }
    return {};
}

}  // namespace ORMO::SensorModel::CSM::Detail

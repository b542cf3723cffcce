#pragma once

#include <charconv>
#include <cstdint>
#include <limits>
#include <string_view>
#include <system_error>

namespace ORMO::SensorModel::CSM::Detail {

/// The text without the blanks around it (blanks only: other white space is data).
[[nodiscard]] constexpr std::string_view TrimBlanks(std::string_view aText) noexcept
{
    const auto first = aText.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    return aText.substr(first, aText.find_last_not_of(' ') - first + 1);
}

/// The text without the white space of the C locale around it; a null pointer counts as empty.
[[nodiscard]] constexpr std::string_view TrimWhite(std::string_view aText) noexcept
{
    constexpr std::string_view WHITE = " \t\n\v\f\r";
    const auto first = aText.find_first_not_of(WHITE);
    if (first == std::string_view::npos) {
        return {};
    }
    return aText.substr(first, aText.find_last_not_of(WHITE) - first + 1);
}
[[nodiscard]] constexpr std::string_view TrimWhite(const char* aText) noexcept
{
    return aText == nullptr ? std::string_view{} : TrimWhite(std::string_view(aText));
}

/// Digits only, after the padding blanks are trimmed: "007" and "  7" are 7; "-7", "+7", "7 7" and "" are not counts.
template<typename Count>
[[nodiscard]] bool ToCount(std::string_view aText, Count& aOut) noexcept
{
    static_assert(!std::numeric_limits<Count>::is_signed);
    aText = TrimBlanks(aText);
    const char* const last = aText.data() + aText.size();
    const auto [end, error] = std::from_chars(aText.data(), last, aOut);
    return error == std::errc{} && end == last;
}

/// A whole decimal integer with an optional sign, after the padding blanks are trimmed.
[[nodiscard]] bool ToWholeNumber(std::string_view aText, std::int64_t& aOut) noexcept;

/// A whole decimal number, with or without point and exponent, after the padding blanks are trimmed. The answer does
/// not depend on the locale; infinities and not-a-number are refused.
[[nodiscard]] bool ToRealNumber(std::string_view aText, double& aOut) noexcept;

/// The most significant byte first; more than eight bytes are refused.
[[nodiscard]] bool BigEndianUnsigned(std::string_view aBytes, std::uint64_t& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "foundation/CSMCnst.h"

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

// Each conversion takes the whole text or nothing: on false the output keeps its value.

/// Digits only, after the padding blanks are trimmed: "007" and "  7" are 7; "-7", "+7", "7 7" and "" are not counts.
template<typename Count>
[[nodiscard]] bool ToCount(std::string_view aText, Count& aOut) noexcept
{
    static_assert(!std::numeric_limits<Count>::is_signed);
    aText = TrimBlanks(aText);
    const char* const last = aText.data() + aText.size();
    Count value = 0;
    const auto [end, error] = std::from_chars(aText.data(), last, value);
    if (error != std::errc{} || end != last) {
        return false;
    }
    aOut = value;
    return true;
}

/// A whole decimal integer with an optional sign, after the padding blanks are trimmed.
[[nodiscard]] bool ToWholeNumber(std::string_view aText, std::int64_t& aOut) noexcept;

/// A decimal number, with or without point and exponent, after the padding blanks are trimmed. The answer does
/// not depend on the locale; infinities, not-a-number and what a double cannot hold
/// are refused.
[[nodiscard]] bool ToRealNumber(std::string_view aText, double& aOut) noexcept;

/// The most significant byte first; more than eight bytes are refused.
[[nodiscard]] bool BigEndianUnsigned(std::string_view aBytes, std::uint64_t& aOut) noexcept;

/// By the byte order of the bytes; every other order than little-endian counts as big-endian.
[[nodiscard]] bool BinaryUnsigned(std::string_view aBytes, Util::CSMCnst::ByteOrder aOrder,
                                  std::uint64_t& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

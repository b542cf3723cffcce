#pragma once

#include <string_view>

// Characters as the C locale sees them, whatever locale the process has set.
namespace ORMO::SensorModel::CSM::Detail {
constexpr bool IsSpace(char aCharacter) noexcept
{
    return aCharacter == ' ' || (aCharacter >= '\t' && aCharacter <= '\r');
}

constexpr bool IsDigit(char aCharacter) noexcept
{
    return aCharacter >= '0' && aCharacter <= '9';
}

constexpr char LowerCase(char aCharacter) noexcept
{
    return aCharacter >= 'A' && aCharacter <= 'Z' ? static_cast<char>(aCharacter - 'A' + 'a') : aCharacter;
}

constexpr char UpperCase(char aCharacter) noexcept
{
    return aCharacter >= 'a' && aCharacter <= 'z' ? static_cast<char>(aCharacter - 'a' + 'A') : aCharacter;
}

constexpr std::string_view TrimmedStart(std::string_view aText) noexcept
{
    while (!aText.empty() && IsSpace(aText.front())) {
        aText.remove_prefix(1);
    }
    return aText;
}

constexpr std::string_view TrimmedEnd(std::string_view aText) noexcept
{
    while (!aText.empty() && IsSpace(aText.back())) {
        aText.remove_suffix(1);
    }
    return aText;
}

constexpr std::string_view Trimmed(std::string_view aText) noexcept
{
    return TrimmedEnd(TrimmedStart(aText));
}

/// A view of the text; a null text counts as empty.
constexpr std::string_view ViewOf(const char* aText) noexcept
{
    return aText == nullptr ? std::string_view{} : std::string_view{aText};
}

constexpr std::string_view Trimmed(const char* aText) noexcept
{
    return Trimmed(ViewOf(aText));
}
}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {
/// True for what UTF-8 and UTF-32 may carry: up to 10FFFF, without the surrogates.
constexpr bool IsCodePoint(char32_t aValue) noexcept
{
    return aValue < 0xD800 || (aValue > 0xDFFF && aValue <= 0x10FFFF);
}

/// False, with part of the text in aOut, at the first byte that is not well-formed UTF-8.
[[nodiscard]] bool WidenUtf8(std::string_view aText, std::wstring& aOut);
/// False at the first value that is no code point.
[[nodiscard]] bool NarrowToUtf8(std::wstring_view aText, std::string& aOut);
}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include <cstddef>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The first byte of a text that its format does not allow; no reason when there is none.
struct TextFault
{
    const char* reason = nullptr;
    std::size_t offset = 0;
};

// Each holds a text against its TXTFMT (MIL-STD-2500C, 5.6.1 and 5.1.7). Formats that are not known allow every byte.

/// The bytes: MTF and STA take BCS, UT1 takes ECS, U8S takes no control bytes besides those that end lines.
[[nodiscard]] TextFault CheckTextBytes(std::string_view aText, std::string_view aFormat) noexcept;
/// That CR and LF end a line together.
[[nodiscard]] TextFault CheckLineEnds(std::string_view aText, std::string_view aFormat) noexcept;
/// That U8S is UTF-8 with nothing above U+00FF.
[[nodiscard]] TextFault CheckUnicode(std::string_view aText, std::string_view aFormat) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

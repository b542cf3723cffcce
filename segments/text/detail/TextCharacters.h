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

/// Holds a text against the character set of its TXTFMT (MIL-STD-2500C, 5.6.1 and 5.1.7): MTF and STA take BCS, UT1
/// takes ECS, U8S takes UTF-8; a line ends with CR and LF. Other formats allow every byte.
[[nodiscard]] TextFault CheckText(std::string_view aText, std::string_view aFormat) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include <array>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Year, month, day, hour, minute and second; -1 from the first one on that is unknown.
using DateParts = std::array<int, 6>;

/// Reads a date as headers have it: CCYYMMDD, CCYYMMDDhhmmss or, in NITF 2.0, DDhhmmssZMONYY, whose years are 1950 to
/// 2049. A pair of hyphens is unknown. False, with every part unknown, for a text that is none of these, for a day that
/// the calendar does not have, and without a year.
[[nodiscard]] bool ReadDate(std::string_view aText, DateParts& aParts) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "segments/image/detail/GroundPoint.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

// Places as header fields and TREs write them. Each answers false, with the output left as it was, for any other text
// and for a place that is not on the globe.

/// ddmmssX and dddmmssY, X being N or S and Y being E or W.
[[nodiscard]] bool ParseDegreesMinutesSeconds(std::string_view aLatitude, std::string_view aLongitude,
                                              GroundPoint& aOut) noexcept;
/// Two signed decimal numbers.
[[nodiscard]] bool ParseDecimalDegrees(std::string_view aLatitude, std::string_view aLongitude,
                                       GroundPoint& aOut) noexcept;
/// Twenty-one characters of BLOCKA with the hemisphere in front: Xddmmss.ssYdddmmss.ss.
[[nodiscard]] bool ParseBlockSeconds(std::string_view aText, GroundPoint& aOut) noexcept;
/// Twenty-one characters of BLOCKA in decimal degrees: +dd.dddddd+ddd.dddddd.
[[nodiscard]] bool ParseBlockDecimal(std::string_view aText, GroundPoint& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

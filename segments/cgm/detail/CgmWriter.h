#pragma once

#include "segments/cgm/detail/CgmElements.h"

#include <span>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// Appends the element in the binary encoding: header, parameters, pad. False, with nothing appended, when the
/// parameters take more bytes than a header can tell. `aNumbers` and `aTexts` are in the order of the row.
[[nodiscard]] bool AppendCgmBinary(const CgmElement& aElement, std::span<const int> aNumbers,
                                   std::span<const std::string> aTexts, std::string& aOut);

/// Appends keyword, parameters and terminator, without an indent.
void AppendCgmClearText(const CgmElement& aElement, std::span<const int> aNumbers, std::span<const std::string> aTexts,
                        std::string& aOut);

}  // namespace ORMO::SensorModel::CSM::Detail

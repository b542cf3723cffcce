#pragma once

#include "segments/cgm/detail/CgmElements.h"
#include "segments/cgm/detail/WordCursor.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// Appends the numbers of an element's parameters and sets its texts. False when the bytes end before the parameters do
/// or a text is longer than what is left; what there is stands in the output.
[[nodiscard]] bool ReadCgmParameters(const CgmElement& aElement, WordCursor aBytes, std::vector<int>& aNumbers,
                                     std::vector<std::string>& aTexts);

}  // namespace ORMO::SensorModel::CSM::Detail

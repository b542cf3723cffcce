#pragma once

#include "fields/Number.h"
#include "nitf/NITFCnstLimits.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Row and column of a location field, five characters each. False, with nothing changed, when one of them is no number
/// or not within the limits that all location fields have.
[[nodiscard]] inline bool SplitLocation(std::string_view aField, long& aRow, long& aColumn) noexcept
{
    constexpr std::size_t HALF = 5;
    std::int64_t row = 0;
    std::int64_t column = 0;
    const auto isWithin = [](std::int64_t aNumber) {
        return aNumber >= NITFCnstLimits::MIN_NITF21_GS_FIELD_SLOC_ROW &&
               aNumber <= NITFCnstLimits::MAX_NITF21_GS_FIELD_SLOC_ROW;
    };
    if (aField.size() != 2 * HALF || !ToWholeNumber(aField.substr(0, HALF), row) ||
        !ToWholeNumber(aField.substr(HALF), column) || !isWithin(row) || !isWithin(column)) {
        return false;
    }
    aRow = static_cast<long>(row);
    aColumn = static_cast<long>(column);
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "fields/FieldWalk.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

// Counts that several tags work out from their fields; false when a field is no number.

/// The elements of a matrix with as many rows and columns as the fields say.
[[nodiscard]] inline bool CountMatrix(const WalkContext& aContext, std::string_view aRows, std::string_view aColumns,
                                      std::uint64_t& aOut) noexcept
{
    std::uint64_t rows = 0;
    std::uint64_t columns = 0;
    if (!aContext.Count(aRows, rows) || !aContext.Count(aColumns, columns)) {
        return false;
    }
    aOut = rows * columns;
    return true;
}

/// The elements of the upper triangle, diagonal included, of a matrix of the order that the field says.
[[nodiscard]] inline bool CountTriangle(const WalkContext& aContext, std::string_view aOrder,
                                        std::uint64_t& aOut) noexcept
{
    std::uint64_t order = 0;
    if (!aContext.Count(aOrder, order) || order > UINT32_MAX) {
        return false;
    }
    aOut = order * (order + 1) / 2;
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

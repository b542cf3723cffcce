#pragma once

#include <array>

namespace ORMO::SensorModel::CSM::Detail {

/// Row and column in an image, counted from 0; pixel centres have halves or not as the file says.
struct PixelPlace
{
    double row = 0.0;
    double column = 0.0;
};

/// The bilinear mapping that takes four grid points of one image to those of another:
/// row' = r[0] + r[1] row + r[2] column + r[3] row column, and the same for the column.
struct ChipMapping
{
    std::array<double, 4> row{0.0, 1.0, 0.0, 0.0};
    std::array<double, 4> column{0.0, 0.0, 1.0, 0.0};

    PixelPlace Apply(const PixelPlace& aFrom) const noexcept;
    bool IsUnity() const noexcept;
};

using GridPoints = std::array<PixelPlace, 4>;

/// The mapping of `aFrom` to `aTo`; false when the points do not determine one.
[[nodiscard]] bool SolveChipMapping(const GridPoints& aFrom, const GridPoints& aTo, ChipMapping& aOut) noexcept;

/// The place that `aMapping` takes to `aTarget`, found from `aGuess`; false when there is none near it. Two bilinear
/// mappings of the same points undo one another only where they are affine, which this does not need.
[[nodiscard]] bool InvertChipMapping(const ChipMapping& aMapping, const PixelPlace& aTarget, const PixelPlace& aGuess,
                                     PixelPlace& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

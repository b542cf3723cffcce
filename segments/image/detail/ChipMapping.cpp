#include "segments/image/detail/ChipMapping.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t SIZE = 4;

double Bilinear(const std::array<double, SIZE>& aCoefficients, const PixelPlace& aAt) noexcept
{
    return aCoefficients[0] + aCoefficients[1] * aAt.row + aCoefficients[2] * aAt.column +
           aCoefficients[3] * aAt.row * aAt.column;
}

/// Gauss elimination with row exchange of four equations with two right sides; false when they are not independent.
bool Solve(std::array<std::array<double, SIZE + 2>, SIZE>& aRows) noexcept
{
    for (std::size_t column = 0; column != SIZE; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column + 1; row != SIZE; ++row) {
            pivot = std::abs(aRows[row][column]) > std::abs(aRows[pivot][column]) ? row : pivot;
        }
        if (!(std::abs(aRows[pivot][column]) > 1e-9)) {
            return false;
        }
        std::swap(aRows[pivot], aRows[column]);
        for (std::size_t row = 0; row != SIZE; ++row) {
            const double factor = row == column ? 0.0 : aRows[row][column] / aRows[column][column];
            for (std::size_t i = column; factor != 0.0 && i != SIZE + 2; ++i) {
                aRows[row][i] -= factor * aRows[column][i];
            }
        }
    }
    return true;
}

}  // namespace

PixelPlace ChipMapping::Apply(const PixelPlace& aFrom) const noexcept
{
    return {Bilinear(row, aFrom), Bilinear(column, aFrom)};
}

bool ChipMapping::IsUnity() const noexcept
{
    const ChipMapping unity;
    const auto same = [](double aFirst, double aSecond) { return std::abs(aFirst - aSecond) < 1e-9; };
    return std::equal(row.begin(), row.end(), unity.row.begin(), same) &&
           std::equal(column.begin(), column.end(), unity.column.begin(), same);
}

bool SolveChipMapping(const GridPoints& aFrom, const GridPoints& aTo, ChipMapping& aOut) noexcept
{
    // In coordinates from the first point in units of the grid's extent, which keeps the products small.
    const PixelPlace origin = aFrom[0];
    double scale = 0.0;
    for (const PixelPlace& point : aFrom) {
        scale = std::max({scale, std::abs(point.row - origin.row), std::abs(point.column - origin.column)});
    }
    if (!(scale > 0.0)) {
        return false;
    }
    std::array<std::array<double, SIZE + 2>, SIZE> rows{};
    for (std::size_t i = 0; i != SIZE; ++i) {
        const double row = (aFrom[i].row - origin.row) / scale;
        const double column = (aFrom[i].column - origin.column) / scale;
        rows[i] = {1.0, row, column, row * column, aTo[i].row, aTo[i].column};
    }
    if (!Solve(rows)) {
        return false;
    }
    const auto unscaled = [&](std::size_t aSide) -> std::array<double, SIZE> {
        std::array<double, SIZE> solved{};
        for (std::size_t i = 0; i != SIZE; ++i) {
            solved[i] = rows[i][aSide] / rows[i][i];
        }
        const double byRow = solved[1] / scale;
        const double byColumn = solved[2] / scale;
        const double byBoth = solved[3] / (scale * scale);
        return {solved[0] - byRow * origin.row - byColumn * origin.column + byBoth * origin.row * origin.column,
                byRow - byBoth * origin.column, byColumn - byBoth * origin.row, byBoth};
    };
    aOut = {unscaled(SIZE), unscaled(SIZE + 1)};
    return true;
}

bool InvertChipMapping(const ChipMapping& aMapping, const PixelPlace& aTarget, const PixelPlace& aGuess,
                       PixelPlace& aOut) noexcept
{
    constexpr int MOST_STEPS = 50;
    const auto isDone = [](double aStep, double aAt) { return std::abs(aStep) < 1e-9 + 1e-15 * std::abs(aAt); };
    PixelPlace at = aGuess;
    for (int step = 0; step != MOST_STEPS; ++step) {
        const PixelPlace reached = aMapping.Apply(at);
        const double rowMissing = aTarget.row - reached.row;
        const double columnMissing = aTarget.column - reached.column;
        const double rowByRow = aMapping.row[1] + aMapping.row[3] * at.column;
        const double rowByColumn = aMapping.row[2] + aMapping.row[3] * at.row;
        const double columnByRow = aMapping.column[1] + aMapping.column[3] * at.column;
        const double columnByColumn = aMapping.column[2] + aMapping.column[3] * at.row;
        const double determinant = rowByRow * columnByColumn - rowByColumn * columnByRow;
        if (!std::isfinite(determinant) || determinant == 0.0) {
            return false;
        }
        const double rowStep = (rowMissing * columnByColumn - columnMissing * rowByColumn) / determinant;
        const double columnStep = (columnMissing * rowByRow - rowMissing * columnByRow) / determinant;
        at = {at.row + rowStep, at.column + columnStep};
        if (isDone(rowStep, at.row) && isDone(columnStep, at.column)) {
            aOut = at;
            return true;
        }
    }
    return false;
}

}  // namespace ORMO::SensorModel::CSM::Detail

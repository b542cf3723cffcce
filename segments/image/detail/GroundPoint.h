#pragma once

#include <array>
#include <cmath>

namespace ORMO::SensorModel::CSM::Detail {

/// A place on the WGS 84 ellipsoid, in degrees; north and east are positive.
struct GroundPoint
{
    double latitude = 0.0;
    double longitude = 0.0;

    bool operator==(const GroundPoint&) const = default;
};

/// The corners of an image in the order of IGEOLO: first row first column, first row last column, last row last column,
/// last row first column.
using GroundCorners = std::array<GroundPoint, 4>;

constexpr bool IsOnTheGlobe(const GroundPoint& aPoint) noexcept
{
    return aPoint.latitude >= -90.0 && aPoint.latitude <= 90.0 && aPoint.longitude >= -180.0 &&
           aPoint.longitude <= 180.0;
}

/// The same meridian between -180 and 180.
inline double WrappedLongitude(double aLongitude) noexcept
{
    return std::remainder(aLongitude, 360.0);
}

}  // namespace ORMO::SensorModel::CSM::Detail

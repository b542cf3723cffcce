#pragma once

#include "segments/image/detail/GroundPoint.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// A place in the Universal Transverse Mercator grid, in metres, with the false easting and northing of the grid.
struct UtmPoint
{
    int zone = 0;  ///< 1 to 60
    bool isNorth = true;
    double easting = 0.0;
    double northing = 0.0;
};

/// The place on the WGS 84 ellipsoid, by the series of Krueger to the sixth order of the third flattening: exact to
/// better than a millimetre anywhere in the zone and far beside it.
GroundPoint ToGeographic(const UtmPoint& aPoint) noexcept;

/// A corner of fifteen characters as ICORDS N and S have it: zone, easting in six and northing in seven digits.
[[nodiscard]] bool ParseUtm(std::string_view aText, bool aIsNorth, UtmPoint& aOut) noexcept;

/// A corner of fifteen characters as ICORDS U has it, a reference of the Military Grid Reference System: zone, letter
/// of the latitude band, two letters of the square of 100 km, easting and northing inside it in five digits each. The
/// polar squares, which have no zone, are refused.
[[nodiscard]] bool ParseMgrs(std::string_view aText, UtmPoint& aOut) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

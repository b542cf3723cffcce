#pragma once

#include "../../foundation/Export.h"
#include "NITFImgExtent.h"

#include <vector>

namespace ORMO::SensorModel::CSM {

/// Footprints as areas of a map; never instantiated.
class ORMO_CSM_API NITFImgOutline
{
public:
    struct Point
    {
        double longitude = 0.0;
        double latitude = 0.0;
    };
    using Ring = std::vector<Point>;

    /// The areas that a footprint covers, as closed rings that run counterclockwise: one, or several for a footprint
    /// that the 180th meridian cuts, so that none ever spans the world. A footprint around a pole reaches up to it.
    /// Corners in an order in which their sides cross are put in order. Empty when the corners make no area.
    static std::vector<Ring> GetAreas(const NITFImgExtent::Footprint& aFootprint);

    NITFImgOutline() = delete;
};

}  // namespace ORMO::SensorModel::CSM

#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace OrmoNitf {

struct MapShape
{
    std::string label;
    nlohmann::ordered_json geometry;  ///< of GeoJSON
};

/// The shapes over a net of meridians and parallels as an SVG element; empty when there is none.
std::string MapOf(const std::vector<MapShape>& aShapes);

}  // namespace OrmoNitf

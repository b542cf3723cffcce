#pragma once

#include "segments/image/NITFImgExtent.h"

#include <string>

#include <nlohmann/json.hpp>

namespace OrmoNitf::Catalogue {

/// A footprint as a geometry of GeoJSON (RFC 7946): a polygon, or a multipolygon for one that the 180th meridian cuts,
/// so that no part of it ever spans the world. A footprint around a pole reaches up to it. Corners in an order in which
/// their sides cross are put in order. Null when the corners make no area.
nlohmann::ordered_json GeometryOf(const ORMO::SensorModel::CSM::NITFImgExtent::Footprint& aFootprint);

/// A geometry of GeoJSON as well-known text; empty for null.
std::string WellKnownText(const nlohmann::ordered_json& aGeometry);

}  // namespace OrmoNitf::Catalogue

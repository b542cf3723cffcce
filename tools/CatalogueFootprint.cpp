#include "tools/CatalogueFootprint.h"

#include "segments/image/NITFImgOutline.h"

#include <utility>

namespace OrmoNitf::Catalogue {

using Json = nlohmann::ordered_json;
using namespace ORMO::SensorModel::CSM;

namespace {

Json Coordinates(const NITFImgOutline::Ring& aRing)
{
    Json points = Json::array();
    for (const NITFImgOutline::Point& point : aRing) {
        points.push_back({point.longitude, point.latitude});
    }
    Json rings = Json::array();
    rings.push_back(std::move(points));
    return rings;
}

void AppendNumbers(const Json& aCoordinates, std::string& aText)
{
    if (aCoordinates.front().is_number()) {
        aText += aCoordinates[0].dump() + ' ' + aCoordinates[1].dump();
        return;
    }
    aText += '(';
    for (const Json& part : aCoordinates) {
        aText += &part == &aCoordinates.front() ? "" : ",";
        AppendNumbers(part, aText);
    }
    aText += ')';
}

}  // namespace

Json GeometryOf(const NITFImgExtent::Footprint& aFootprint)
{
    Json parts = Json::array();
    for (const NITFImgOutline::Ring& ring : NITFImgOutline::GetAreas(aFootprint)) {
        parts.push_back(Coordinates(ring));
    }
    if (parts.empty()) {
        return nullptr;
    }
    const bool isOne = parts.size() == 1;
    return {{"type", isOne ? "Polygon" : "MultiPolygon"}, {"coordinates", isOne ? parts.front() : parts}};
}

std::string WellKnownText(const Json& aGeometry)
{
    if (aGeometry.is_null()) {
        return {};
    }
    std::string text = aGeometry.at("type") == "Polygon" ? "POLYGON" : "MULTIPOLYGON";
    AppendNumbers(aGeometry.at("coordinates"), text);
    return text;
}

}  // namespace OrmoNitf::Catalogue

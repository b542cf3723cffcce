#include "tools/CatalogueFootprint.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace OrmoNitf::Catalogue {

using Json = nlohmann::ordered_json;
using ORMO::SensorModel::CSM::NITFImgExtent;

namespace {

struct Point
{
    double longitude = 0.0;
    double latitude = 0.0;
};
using Ring = std::vector<Point>;  // not closed

/// The shortest way from one longitude to another.
double Step(double aFrom, double aTo)
{
    return std::remainder(aTo - aFrom, 360.0);
}

/// The corners with longitudes that run on beyond 180 degrees in place of jumping.
Ring Unwrapped(const NITFImgExtent::Footprint& aFootprint)
{
    Ring ring;
    double longitude = aFootprint.longitudes[0];
    for (std::size_t i = 0; i != aFootprint.longitudes.size(); ++i) {
        longitude += i == 0 ? 0.0 : Step(aFootprint.longitudes[i - 1], aFootprint.longitudes[i]);
        ring.push_back({longitude, aFootprint.latitudes[i]});
    }
    const double turn =
        longitude + Step(aFootprint.longitudes.back(), aFootprint.longitudes.front()) - ring[0].longitude;
    if (std::abs(turn) > 180.0) {
        // Once around the world: a pole lies inside.
        const double pole = ring[0].latitude + ring[2].latitude > 0.0 ? 90.0 : -90.0;
        ring.push_back({ring[0].longitude + turn, ring[0].latitude});
        ring.push_back({ring[0].longitude + turn, pole});
        ring.push_back({ring[0].longitude, pole});
    }
    return ring;
}

/// The part of a ring on one side of a meridian.
Ring Cut(const Ring& aRing, double aMeridian, bool aEast)
{
    Ring cut;
    const auto isInside = [&](const Point& aPoint) {
        return aEast ? aPoint.longitude >= aMeridian : aPoint.longitude <= aMeridian;
    };
    for (std::size_t i = 0; i != aRing.size(); ++i) {
        const Point& from = aRing[i];
        const Point& to = aRing[(i + 1) % aRing.size()];
        if (isInside(from)) {
            cut.push_back(from);
        }
        if (isInside(from) != isInside(to)) {
            const double part = (aMeridian - from.longitude) / (to.longitude - from.longitude);
            cut.push_back({aMeridian, from.latitude + part * (to.latitude - from.latitude)});
        }
    }
    return cut;
}

/// Twice the area; positive for a ring that runs counterclockwise.
double Area(const Ring& aRing)
{
    double area = 0.0;
    for (std::size_t i = 0; i != aRing.size(); ++i) {
        const Point& from = aRing[i];
        const Point& to = aRing[(i + 1) % aRing.size()];
        area += (from.longitude - aRing[0].longitude) * (to.latitude - aRing[0].latitude) -
                (to.longitude - aRing[0].longitude) * (from.latitude - aRing[0].latitude);
    }
    return area;
}

Json Coordinates(Ring aRing)
{
    if (Area(aRing) < 0.0) {
        std::reverse(aRing.begin() + 1, aRing.end());
    }
    Json points = Json::array();
    for (const Point& point : aRing) {
        points.push_back({point.longitude, point.latitude});
    }
    points.push_back(points.front());
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
    const Ring ring = Unwrapped(aFootprint);
    Json parts = Json::array();
    for (const double turn : {-360.0, 0.0, 360.0}) {
        Ring part = Cut(Cut(ring, turn - 180.0, true), turn + 180.0, false);
        for (Point& point : part) {
            point.longitude -= turn;
        }
        if (part.size() > 2 && Area(part) != 0.0) {
            parts.push_back(Coordinates(std::move(part)));
        }
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
    std::string text = aGeometry["type"] == "Polygon" ? "POLYGON" : "MULTIPOLYGON";
    AppendNumbers(aGeometry["coordinates"], text);
    return text;
}

}  // namespace OrmoNitf::Catalogue

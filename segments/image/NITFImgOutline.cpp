#include "segments/image/NITFImgOutline.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using Point = NITFImgOutline::Point;
using Ring = NITFImgOutline::Ring;  // not closed here

/// The shortest way from one longitude to another.
double Step(double aFrom, double aTo)
{
    return std::remainder(aTo - aFrom, 360.0);
}

bool IsLeft(const Point& aFrom, const Point& aTo, const Point& aPoint)
{
    return (aTo.longitude - aFrom.longitude) * (aPoint.latitude - aFrom.latitude) >
           (aPoint.longitude - aFrom.longitude) * (aTo.latitude - aFrom.latitude);
}

bool AreCrossing(const Point& aA, const Point& aB, const Point& aC, const Point& aD)
{
    return IsLeft(aA, aB, aC) != IsLeft(aA, aB, aD) && IsLeft(aC, aD, aA) != IsLeft(aC, aD, aB);
}

/// Producers list corners in other orders too. Sides that cross are then the diagonals.
void Uncross(Ring& aCorners)
{
    if (AreCrossing(aCorners[0], aCorners[1], aCorners[2], aCorners[3])) {
        std::swap(aCorners[1], aCorners[2]);
    } else if (AreCrossing(aCorners[1], aCorners[2], aCorners[3], aCorners[0])) {
        std::swap(aCorners[2], aCorners[3]);
    }
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
    } else {
        Uncross(ring);
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

}  // namespace

std::vector<Ring> NITFImgOutline::GetAreas(const NITFImgExtent::Footprint& aFootprint)
{
    const Ring ring = Unwrapped(aFootprint);
    std::vector<Ring> areas;
    for (const double turn : {-360.0, 0.0, 360.0}) {
        Ring part = Cut(Cut(ring, turn - 180.0, true), turn + 180.0, false);
        for (Point& point : part) {
            point.longitude -= turn;
        }
        const double area = part.size() > 2 ? Area(part) : 0.0;
        if (area == 0.0) {
            continue;
        }
        if (area < 0.0) {
            std::reverse(part.begin() + 1, part.end());
        }
        part.push_back(part.front());
        areas.push_back(std::move(part));
    }
    return areas;
}

}  // namespace ORMO::SensorModel::CSM

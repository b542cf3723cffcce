#include "Geodetic.h"

#include <cmath>

namespace {

const double SEMIMAJOR_AXIS = 6378137.0;
const double FLATTENING = 1.0 / 298.257223563;
const double ECCENTRICITY_SQUARED = FLATTENING * (2.0 - FLATTENING);
const double DEGREES = 57.295779513082320877;

/// Radius of curvature across the meridian.
double PrimeVertical(double aSinLatitude)
{
    return SEMIMAJOR_AXIS / std::sqrt(1.0 - ECCENTRICITY_SQUARED * aSinLatitude * aSinLatitude);
}

}  // namespace

Ecef ToEcef(const Geodetic& aPoint)
{
    const double latitude = aPoint.latitude / DEGREES;
    const double longitude = aPoint.longitude / DEGREES;
    const double radius = PrimeVertical(std::sin(latitude));
    const double across = (radius + aPoint.height) * std::cos(latitude);
    return {across * std::cos(longitude), across * std::sin(longitude),
            (radius * (1.0 - ECCENTRICITY_SQUARED) + aPoint.height) * std::sin(latitude)};
}

Geodetic ToGeodetic(const Ecef& aPoint)
{
    const double across = std::hypot(aPoint.x, aPoint.y);
    double latitude = std::atan2(aPoint.z, across * (1.0 - ECCENTRICITY_SQUARED));
    // Each round gains about two and a half digits; the last ones change nothing any more.
    for (int round = 0; round != 10; ++round) {
        const double sine = std::sin(latitude);
        latitude = std::atan2(aPoint.z + ECCENTRICITY_SQUARED * PrimeVertical(sine) * sine, across);
    }
    const double sine = std::sin(latitude);
    // Without a division by the cosine, so that it holds at the poles too.
    const double height = across * std::cos(latitude) + aPoint.z * sine -
                          SEMIMAJOR_AXIS * std::sqrt(1.0 - ECCENTRICITY_SQUARED * sine * sine);
    return {latitude * DEGREES, std::atan2(aPoint.y, aPoint.x) * DEGREES, height};
}

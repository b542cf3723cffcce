#pragma once

/// A point on or above the WGS 84 ellipsoid: degrees and metres.
struct Geodetic
{
    double latitude;
    double longitude;
    double height;
};

/// The same point as earth-centred, earth-fixed coordinates in metres.
struct Ecef
{
    double x;
    double y;
    double z;
};

Ecef ToEcef(const Geodetic& aPoint);
Geodetic ToGeodetic(const Ecef& aPoint);

#include "segments/image/detail/UtmGrid.h"

#include "fields/Number.h"
#include "foundation/CSMCnst.h"
#include "foundation/detail/Ascii.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr double DEGREES = 180.0 / std::numbers::pi;

// The grid (DMA TM 8358.2).
constexpr double CENTRAL_SCALE = 0.9996;
constexpr double FALSE_EASTING = 500000.0;
constexpr double FALSE_NORTHING_SOUTH = 10000000.0;
constexpr int LAST_ZONE = 60;
constexpr double SQUARE = 100000.0;
constexpr double ROW_CYCLE = 2000000.0;  // the letters of the rows repeat

// The ellipsoid.
constexpr double A = Util::CSMCnst::Geodesy::WGS84_SEMIMAJOR_AXIS;
constexpr double B = Util::CSMCnst::Geodesy::WGS84_SEMIMINOR_AXIS;
constexpr double N = (A - B) / (A + B);
constexpr double N2 = N * N;
constexpr double N3 = N2 * N;
constexpr double N4 = N3 * N;
constexpr double N5 = N4 * N;
constexpr double N6 = N5 * N;
constexpr double E2 = (A * A - B * B) / (A * A);
constexpr double RECTIFYING_RADIUS = A / (1.0 + N) * (1.0 + N2 / 4.0 + N4 / 64.0 + N6 / 256.0);

// Karney, Transverse Mercator with an accuracy of a few nanometers, J. Geodesy 85 (2011), equation 36.
constexpr std::array BETA{
    N / 2.0 - 2.0 / 3.0 * N2 + 37.0 / 96.0 * N3 - N4 / 360.0 - 81.0 / 512.0 * N5 + 96199.0 / 604800.0 * N6,
    N2 / 48.0 + N3 / 15.0 - 437.0 / 1440.0 * N4 + 46.0 / 105.0 * N5 - 1118711.0 / 3870720.0 * N6,
    17.0 / 480.0 * N3 - 37.0 / 840.0 * N4 - 209.0 / 4480.0 * N5 + 5569.0 / 90720.0 * N6,
    4397.0 / 161280.0 * N4 - 11.0 / 504.0 * N5 - 830251.0 / 7257600.0 * N6,
    4583.0 / 161280.0 * N5 - 108847.0 / 3991680.0 * N6,
    20648693.0 / 638668800.0 * N6,
};

/// The tangent of the latitude whose conformal latitude has the given tangent (equations 19 to 21 there).
double TangentOfLatitude(double aConformal) noexcept
{
    constexpr int MOST_STEPS = 8;  // two are enough wherever the grid is used
    const double eccentricity = std::sqrt(E2);
    double tangent = aConformal;
    for (int step = 0; step != MOST_STEPS; ++step) {
        const double secant = std::hypot(1.0, tangent);
        const double sigma = std::sinh(eccentricity * std::atanh(eccentricity * tangent / secant));
        const double conformal = tangent * std::hypot(1.0, sigma) - sigma * secant;
        const double change = (aConformal - conformal) / std::hypot(1.0, conformal) *
                              (1.0 + (1.0 - E2) * tangent * tangent) / ((1.0 - E2) * secant);
        tangent += change;
        if (std::abs(change) < 1e-15 * std::max(1.0, std::abs(tangent))) {
            break;
        }
    }
    return tangent;
}

bool IsNumber(std::string_view aText, unsigned& aOut) noexcept
{
    return std::all_of(aText.begin(), aText.end(), IsDigit) && ToCount(aText, aOut);
}

bool ParseZone(std::string_view aText, int& aOut) noexcept
{
    unsigned zone = 0;
    if (!IsNumber(aText, zone) || zone < 1 || zone > LAST_ZONE) {
        return false;
    }
    aOut = static_cast<int>(zone);
    return true;
}

/// The place of a letter in an alphabet without I and O; -1 for any other character.
int GridLetter(char aLetter) noexcept
{
    constexpr std::string_view LETTERS = "ABCDEFGHJKLMNPQRSTUVWXYZ";
    const auto place = LETTERS.find(aLetter);
    return place == std::string_view::npos ? -1 : static_cast<int>(place);
}

}  // namespace

GroundPoint ToGeographic(const UtmPoint& aPoint) noexcept
{
    const double northing = aPoint.northing - (aPoint.isNorth ? 0.0 : FALSE_NORTHING_SOUTH);
    const double xi = northing / (CENTRAL_SCALE * RECTIFYING_RADIUS);
    const double eta = (aPoint.easting - FALSE_EASTING) / (CENTRAL_SCALE * RECTIFYING_RADIUS);
    double xiSphere = xi;
    double etaSphere = eta;
    double turn = 2.0;
    for (const double beta : BETA) {
        xiSphere -= beta * std::sin(turn * xi) * std::cosh(turn * eta);
        etaSphere -= beta * std::cos(turn * xi) * std::sinh(turn * eta);
        turn += 2.0;
    }
    const double conformal = std::sin(xiSphere) / std::hypot(std::sinh(etaSphere), std::cos(xiSphere));
    const double fromCentral = std::atan2(std::sinh(etaSphere), std::cos(xiSphere)) * DEGREES;
    const double central = 6.0 * aPoint.zone - 183.0;
    return {std::atan(TangentOfLatitude(conformal)) * DEGREES, WrappedLongitude(central + fromCentral)};
}

bool ParseUtm(std::string_view aText, bool aIsNorth, UtmPoint& aOut) noexcept
{
    UtmPoint point;
    unsigned easting = 0;
    unsigned northing = 0;
    if (aText.size() != 15 || !ParseZone(aText.substr(0, 2), point.zone) || !IsNumber(aText.substr(2, 6), easting) ||
        !IsNumber(aText.substr(8, 7), northing)) {
        return false;
    }
    point.isNorth = aIsNorth;
    point.easting = easting;
    point.northing = northing;
    aOut = point;
    return true;
}

bool ParseMgrs(std::string_view aText, UtmPoint& aOut) noexcept
{
    constexpr int FIRST_BAND = 2;         // C
    constexpr int FIRST_NORTH_BAND = 12;  // N
    constexpr int LAST_BAND = 21;         // X, the only one of twelve degrees
    constexpr int LETTERS_OF_SET = 8;
    constexpr int ROWS = 20;

    UtmPoint point;
    unsigned easting = 0;
    unsigned northing = 0;
    if (aText.size() != 15 || !ParseZone(aText.substr(0, 2), point.zone) || !IsNumber(aText.substr(5, 5), easting) ||
        !IsNumber(aText.substr(10, 5), northing)) {
        return false;
    }
    const int band = GridLetter(aText[2]);
    // Three neighbouring zones share the alphabet of the columns; the rows of every second zone begin with F.
    const int column = GridLetter(aText[3]) - (point.zone - 1) % 3 * LETTERS_OF_SET;
    const int rowLetter = GridLetter(aText[4]);
    if (band < FIRST_BAND || band > LAST_BAND || column < 0 || column >= LETTERS_OF_SET || rowLetter < 0 ||
        rowLetter >= ROWS) {
        return false;
    }
    const int row = (rowLetter + (point.zone % 2 == 0 ? ROWS - 5 : 0)) % ROWS;
    point.isNorth = band >= FIRST_NORTH_BAND;
    point.easting = (column + 1) * SQUARE + easting;

    // Of the places that the row letter can mean, that in the band; squares reach a little over its edges.
    constexpr double EDGE = 1.0;
    const double south = -80.0 + 8.0 * (band - FIRST_BAND);
    const double north = band == LAST_BAND ? 84.0 : south + 8.0;
    for (int cycle = 0; cycle != 5; ++cycle) {
        point.northing = row * SQUARE + northing + cycle * ROW_CYCLE;
        const double latitude = ToGeographic(point).latitude;
        if (latitude > south - EDGE && latitude < north + EDGE) {
            aOut = point;
            return true;
        }
    }
    return false;
}

}  // namespace ORMO::SensorModel::CSM::Detail

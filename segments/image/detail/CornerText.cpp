#include "segments/image/detail/CornerText.h"

#include "fields/Number.h"
#include "foundation/detail/Ascii.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr double MINUTE = 0.016666666666666666;
constexpr double SECOND = 0.0002777777777777778;

/// Digits and at most one point, nothing else: neither blanks nor signs.
bool PlainNumber(std::string_view aText, double& aOut) noexcept
{
    return !aText.empty() && std::count(aText.begin(), aText.end(), '.') <= 1 &&
           std::all_of(aText.begin(), aText.end(), [](char aByte) { return IsDigit(aByte) || aByte == '.'; }) &&
           ToRealNumber(aText, aOut);
}

/// Degrees in all digits but those of minutes and seconds, whose last may be fractions.
bool Angle(std::string_view aText, std::size_t aDegreeDigits, bool aIsNegative, double& aOut) noexcept
{
    double degrees = 0.0;
    double minutes = 0.0;
    double seconds = 0.0;
    if (aText.size() < aDegreeDigits + 4 || !PlainNumber(aText.substr(0, aDegreeDigits), degrees) ||
        !PlainNumber(aText.substr(aDegreeDigits, 2), minutes) ||
        !PlainNumber(aText.substr(aDegreeDigits + 2), seconds)) {
        return false;
    }
    const double angle = degrees + minutes * MINUTE + seconds * SECOND;
    aOut = aIsNegative ? -angle : angle;
    return true;
}

bool Place(std::string_view aLatitude, char aNorthSouth, std::string_view aLongitude, char aEastWest,
           GroundPoint& aOut) noexcept
{
    GroundPoint point;
    if ((aNorthSouth != 'N' && aNorthSouth != 'S') || (aEastWest != 'E' && aEastWest != 'W') ||
        !Angle(aLatitude, 2, aNorthSouth == 'S', point.latitude) ||
        !Angle(aLongitude, 3, aEastWest == 'W', point.longitude) || !IsOnTheGlobe(point)) {
        return false;
    }
    aOut = point;
    return true;
}

constexpr std::size_t BLOCK_TEXT = 21;
constexpr std::size_t BLOCK_LATITUDE = 10;

}  // namespace

bool ParseDegreesMinutesSeconds(std::string_view aLatitude, std::string_view aLongitude, GroundPoint& aOut) noexcept
{
    return aLatitude.size() == 7 && aLongitude.size() == 8 &&
           Place(aLatitude.substr(0, 6), aLatitude.back(), aLongitude.substr(0, 7), aLongitude.back(), aOut);
}

bool ParseDecimalDegrees(std::string_view aLatitude, std::string_view aLongitude, GroundPoint& aOut) noexcept
{
    GroundPoint point;
    if (!ToRealNumber(aLatitude, point.latitude) || !ToRealNumber(aLongitude, point.longitude) ||
        !IsOnTheGlobe(point)) {
        return false;
    }
    aOut = point;
    return true;
}

bool ParseBlockSeconds(std::string_view aText, GroundPoint& aOut) noexcept
{
    return aText.size() == BLOCK_TEXT && Place(aText.substr(1, BLOCK_LATITUDE - 1), aText.front(),
                                               aText.substr(BLOCK_LATITUDE + 1), aText[BLOCK_LATITUDE], aOut);
}

bool ParseBlockDecimal(std::string_view aText, GroundPoint& aOut) noexcept
{
    return aText.size() == BLOCK_TEXT &&
           ParseDecimalDegrees(aText.substr(0, BLOCK_LATITUDE), aText.substr(BLOCK_LATITUDE), aOut);
}

}  // namespace ORMO::SensorModel::CSM::Detail

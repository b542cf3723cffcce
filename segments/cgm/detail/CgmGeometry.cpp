#include "segments/cgm/detail/CgmGeometry.h"

#include "segments/cgm/CGMCnst.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr double WHOLE_TURN = 2 * std::numbers::pi;

CgmPoint PointAt(std::span<const int> aNumbers, std::size_t aIndex)
{
    return {static_cast<double>(aNumbers[aIndex]), static_cast<double>(aNumbers[aIndex + 1])};
}

CgmEllipse CircleOf(CgmPoint aCentre, int aRadius)
{
    const double radius = std::abs(aRadius);
    return {aCentre, {radius, 0}, {0, radius}};
}

/// Centre and the end points of two conjugate diameters.
CgmEllipse EllipseOf(std::span<const int> aNumbers)
{
    const CgmPoint centre = PointAt(aNumbers, 0);
    const CgmPoint first = PointAt(aNumbers, 2);
    const CgmPoint second = PointAt(aNumbers, 4);
    return {centre, {first.x - centre.x, first.y - centre.y}, {second.x - centre.x, second.y - centre.y}};
}

CgmClosure ClosureOf(int aClosure)
{
    return aClosure == CGMCnst::BinaryC4GraphicalPrimitive::VAL_CLOSURE_CHORD ? CgmClosure::Straight
                                                                              : CgmClosure::Centre;
}

void ListPoints(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    const std::size_t count = aNumbers.size() / 2;
    aOutline.points.reserve(count);
    for (std::size_t i = 0; i != count; ++i) {
        aOutline.points.push_back({static_cast<double>(aNumbers[i]), static_cast<double>(aNumbers[count + i])});
    }
}

bool Polyline(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    ListPoints(aNumbers, aOutline);
    return true;
}

bool Polygon(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    ListPoints(aNumbers, aOutline);
    aOutline.closure = CgmClosure::Straight;
    return true;
}

bool Rectangle(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    const CgmPoint first = PointAt(aNumbers, 0);
    const CgmPoint second = PointAt(aNumbers, 2);
    aOutline.points = {first, {second.x, first.y}, second, {first.x, second.y}};
    aOutline.closure = CgmClosure::Straight;
    return true;
}

bool Circle(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    aOutline.arc = WholeArc(CircleOf(PointAt(aNumbers, 0), aNumbers[2]));
    aOutline.closure = CgmClosure::Straight;
    return true;
}

bool Ellipse(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    aOutline.arc = WholeArc(EllipseOf(aNumbers));
    aOutline.closure = CgmClosure::Straight;
    return true;
}

bool CircularArc(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    return ArcBetween(CircleOf(PointAt(aNumbers, 0), aNumbers[6]), PointAt(aNumbers, 2), PointAt(aNumbers, 4),
                      aOutline.arc);
}

bool CircularArcClose(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    aOutline.closure = ClosureOf(aNumbers[7]);
    return CircularArc(aNumbers, aOutline);
}

bool EllipticalArc(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    return ArcBetween(EllipseOf(aNumbers), PointAt(aNumbers, 6), PointAt(aNumbers, 8), aOutline.arc);
}

bool EllipticalArcClose(std::span<const int> aNumbers, CgmOutline& aOutline)
{
    aOutline.closure = ClosureOf(aNumbers[10]);
    return EllipticalArc(aNumbers, aOutline);
}

struct OutlineMaker
{
    int code;
    bool (*make)(std::span<const int> aNumbers, CgmOutline& aOutline);
};

using Code = CGMCnst::BinaryC4GraphicalPrimitive;
constexpr OutlineMaker OUTLINES[] = {
    {Code::CODE_POLYLINE, Polyline},
    {Code::CODE_POLYGON, Polygon},
    {Code::CODE_RECTANGLE, Rectangle},
    {Code::CODE_CIRCLE, Circle},
    {Code::CODE_CIRCULAR_ARC_CENTRE, CircularArc},
    {Code::CODE_CIRCULAR_ARC_CENTRE_CLOSE, CircularArcClose},
    {Code::CODE_ELLIPSE, Ellipse},
    {Code::CODE_ELLIPTICAL_ARC, EllipticalArc},
    {Code::CODE_ELLIPTICAL_ARC_CLOSE, EllipticalArcClose},
};

}  // namespace

CgmPoint CgmEllipse::At(double aT) const noexcept
{
    const double c = std::cos(aT);
    const double s = std::sin(aT);
    return {centre.x + first.x * c + second.x * s, centre.y + first.y * c + second.y * s};
}

CgmAxes AxesOf(const CgmEllipse& aEllipse) noexcept
{
    // The axes are the singular values of the matrix whose columns are the conjugate half diameters.
    const CgmPoint a = aEllipse.first;
    const CgmPoint b = aEllipse.second;
    const double xx = a.x * a.x + b.x * b.x;
    const double yy = a.y * a.y + b.y * b.y;
    const double xy = a.x * a.y + b.x * b.y;
    const double major = std::sqrt((xx + yy) / 2 + std::hypot((xx - yy) / 2, xy));
    return {major, major == 0 ? 0 : std::abs(aEllipse.Turn()) / major, std::atan2(2 * xy, xx - yy) / 2};
}

bool CgmArc::IsWhole() const noexcept
{
    return sweep >= WHOLE_TURN;
}

bool ArcBetween(const CgmEllipse& aEllipse, CgmPoint aStart, CgmPoint aEnd, CgmArc& aArc) noexcept
{
    const double turn = aEllipse.Turn();
    const auto hasNoDirection = [](CgmPoint aVector) { return aVector.x == 0 && aVector.y == 0; };
    if (turn == 0 || hasNoDirection(aStart) || hasNoDirection(aEnd)) {
        return false;
    }
    const auto parameterOf = [&](CgmPoint aVector) {
        const double u = (aVector.x * aEllipse.second.y - aVector.y * aEllipse.second.x) / turn;
        const double v = (aEllipse.first.x * aVector.y - aEllipse.first.y * aVector.x) / turn;
        return std::atan2(v, u);
    };
    // Whole numbers tell whether both vectors point the same way; the angles would not, after rounding.
    const bool same = aStart.x * aEnd.y == aStart.y * aEnd.x && aStart.x * aEnd.x + aStart.y * aEnd.y > 0;
    const double from = parameterOf(aStart);
    double sweep = same ? WHOLE_TURN : parameterOf(aEnd) - from;
    sweep += sweep < 0 ? WHOLE_TURN : 0;
    aArc = {aEllipse, from, sweep};
    return true;
}

CgmArc WholeArc(const CgmEllipse& aEllipse) noexcept
{
    return {aEllipse, 0, WHOLE_TURN};
}

bool OutlineOf(int aCode, std::span<const int> aGeometry, CgmOutline& aOutline)
{
    const auto* const maker =
        std::ranges::find_if(OUTLINES, [aCode](const OutlineMaker& aMaker) { return aMaker.code == aCode; });
    return maker != std::end(OUTLINES) && maker->make(aGeometry, aOutline);
}

void CgmBox::Add(CgmPoint aPoint) noexcept
{
    low = empty ? aPoint : CgmPoint{std::min(low.x, aPoint.x), std::min(low.y, aPoint.y)};
    high = empty ? aPoint : CgmPoint{std::max(high.x, aPoint.x), std::max(high.y, aPoint.y)};
    empty = false;
}

void CgmBox::Add(const CgmOutline& aOutline) noexcept
{
    for (const CgmPoint point : aOutline.points) {
        Add(point);
    }
    if (!aOutline.points.empty()) {
        return;
    }
    const CgmArc& arc = aOutline.arc;
    const CgmEllipse& ellipse = arc.ellipse;
    Add(arc.Start());
    Add(arc.End());
    if (aOutline.closure == CgmClosure::Centre) {
        Add(ellipse.centre);
    }
    // Where x or y turns back, when the arc gets there.
    const double furthest[] = {std::atan2(ellipse.second.x, ellipse.first.x),
                               std::atan2(ellipse.second.y, ellipse.first.y)};
    for (const double t : furthest) {
        for (const double place : {t, t + std::numbers::pi}) {
            double ahead = std::fmod(place - arc.from, WHOLE_TURN);
            ahead += ahead < 0 ? WHOLE_TURN : 0;
            if (ahead <= arc.sweep) {
                Add(ellipse.At(place));
            }
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail

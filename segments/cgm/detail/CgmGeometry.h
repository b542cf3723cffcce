#pragma once

#include <span>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

struct CgmPoint
{
    double x = 0;
    double y = 0;
};

/// An ellipse by centre and two conjugate half diameters: centre + first * cos(t) + second * sin(t).
struct CgmEllipse
{
    CgmPoint centre;
    CgmPoint first;
    CgmPoint second;

    CgmPoint At(double aT) const noexcept;
    /// Twice the area of the triangle of both half diameters; its sign tells which way t turns. 0 for an ellipse that
    /// is a line or a point.
    double Turn() const noexcept { return first.x * second.y - first.y * second.x; }
};

/// The half axes of an ellipse, the larger one first, and the angle from the x axis to it in radians, turning x to y.
struct CgmAxes
{
    double major = 0;
    double minor = 0;
    double angle = 0;
};

CgmAxes AxesOf(const CgmEllipse& aEllipse) noexcept;

/// A part of an ellipse, from t to t + sweep; a sweep of a whole turn is the whole ellipse.
struct CgmArc
{
    CgmEllipse ellipse;
    double from = 0;
    double sweep = 0;

    CgmPoint Start() const noexcept { return ellipse.At(from); }
    CgmPoint End() const noexcept { return ellipse.At(from + sweep); }
    bool IsWhole() const noexcept;
};

/// The arc from the ray along one vector to the ray along another, turning the first diameter towards the second; the
/// whole ellipse when both rays are one. False when a vector has no direction or the ellipse no area.
[[nodiscard]] bool ArcBetween(const CgmEllipse& aEllipse, CgmPoint aStart, CgmPoint aEnd, CgmArc& aArc) noexcept;
CgmArc WholeArc(const CgmEllipse& aEllipse) noexcept;

/// How the outline of a primitive is completed.
enum class CgmClosure
{
    Open,
    Straight,  ///< from the end to the start
    Centre     ///< through the centre of the arc
};

/// The outline of anything that is drawn but texts: straight lines, or an arc when there are no points.
struct CgmOutline
{
    std::vector<CgmPoint> points;
    CgmArc arc;
    CgmClosure closure = CgmClosure::Open;
};

/// The outline of a primitive by its element code and the numbers of its geometry. False for a text and for an arc
/// that has no direction.
[[nodiscard]] bool OutlineOf(int aCode, std::span<const int> aGeometry, CgmOutline& aOutline);

/// The smallest rectangle around points added so far.
struct CgmBox
{
    CgmPoint low;
    CgmPoint high;
    bool empty = true;

    void Add(CgmPoint aPoint) noexcept;
    void Add(const CgmOutline& aOutline) noexcept;
};

}  // namespace ORMO::SensorModel::CSM::Detail

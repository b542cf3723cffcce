#pragma once

#include <span>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

struct UnitPoint
{
    double x;
    double y;
};

/// What kind of geometry a numbered shape has.
enum class ShapeGeometry
{
    Line,
    Area,  ///< a polygon in its height and width
    Circle,
    Ellipse,
    Bracket,
    Arrow
};

/// One numbered shape.
struct ObjectShape
{
    int type;
    const char* name;
    ShapeGeometry geometry;
    const char* dashes = nullptr;          ///< lines: lengths of dashes and gaps in line widths; null when solid
    std::span<const UnitPoint> corners{};  ///< areas: about the centre, in parts of width and height
};

/// Null for a number without a shape.
const ObjectShape* FindObjectShape(int aType) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

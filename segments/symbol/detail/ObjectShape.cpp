#include "segments/symbol/detail/ObjectShape.h"

#include "nitf/NITFCnst.h"

#include <algorithm>
#include <iterator>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using N = NITFCnst;
using G = ShapeGeometry;

constexpr UnitPoint TRIANGLE[] = {{0, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};
constexpr UnitPoint RECTANGLE[] = {{-0.5, -0.5}, {0.5, -0.5}, {0.5, 0.5}, {-0.5, 0.5}};
constexpr UnitPoint DIAMOND[] = {{0, -0.5}, {0.5, 0}, {0, 0.5}, {-0.5, 0}};
constexpr UnitPoint HEXAGON[] = {{-0.25, -0.5}, {0.25, -0.5}, {0.5, 0}, {0.25, 0.5}, {-0.25, 0.5}, {-0.5, 0}};

// MIL-STD-2500A, SNUM. The standard shows the five kinds of dashes without their lengths.
constexpr ObjectShape OBJECT_SHAPES[] = {
    {1, N::NITF_OBJ_SYMBOL_TYPE_1_SOLID_LINE, G::Line},
    {2, N::NITF_OBJ_SYMBOL_TYPE_2_DASHED_LINE, G::Line, "6 4"},
    {3, N::NITF_OBJ_SYMBOL_TYPE_3_DASHED_LINE, G::Line, "2 2"},
    {4, N::NITF_OBJ_SYMBOL_TYPE_4_DASHED_LINE, G::Line, "8 3 2 3"},
    {5, N::NITF_OBJ_SYMBOL_TYPE_5_DASHED_LINE, G::Line, "8 3 2 3 2 3"},
    {6, N::NITF_OBJ_SYMBOL_TYPE_6_DASHED_LINE, G::Line, "12 4"},
    {10, N::NITF_OBJ_SYMBOL_TYPE_10_TRIANGLE, G::Area, nullptr, TRIANGLE},
    {11, N::NITF_OBJ_SYMBOL_TYPE_11_RECTANGLE, G::Area, nullptr, RECTANGLE},
    {12, N::NITF_OBJ_SYMBOL_TYPE_12_SQUARE, G::Area, nullptr, RECTANGLE},
    {13, N::NITF_OBJ_SYMBOL_TYPE_13_CIRCLE, G::Circle},
    {14, N::NITF_OBJ_SYMBOL_TYPE_14_ELLIPSE, G::Ellipse},
    {15, N::NITF_OBJ_SYMBOL_TYPE_15_BRACKET, G::Bracket},
    {16, N::NITF_OBJ_SYMBOL_TYPE_16_DIAMOND, G::Area, nullptr, DIAMOND},
    {17, N::NITF_OBJ_SYMBOL_TYPE_17_HEXAGON, G::Area, nullptr, HEXAGON},
    {18, N::NITF_OBJ_SYMBOL_TYPE_18_ARROW, G::Arrow},
};

}  // namespace

const ObjectShape* FindObjectShape(int aType) noexcept
{
    const auto* const found =
        std::ranges::find_if(OBJECT_SHAPES, [aType](const ObjectShape& aShape) { return aShape.type == aType; });
    return found == std::end(OBJECT_SHAPES) ? nullptr : found;
}

}  // namespace ORMO::SensorModel::CSM::Detail

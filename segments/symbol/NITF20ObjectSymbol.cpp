#include "segments/symbol/NITF20ObjectSymbol.h"

#include "nitf/NITFCnst.h"
#include "segments/detail/DrawingXml.h"
#include "segments/detail/SvgElement.h"
#include "segments/symbol/detail/ObjectShape.h"
#include "segments/symbol/detail/SymbolColor.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using N = NITFCnst;
using Fields = NITF20ObjectSymbol::Fields;

constexpr int MOST_TYPE = 18;

/// "x,y".
std::string Point(double aX, double aY)
{
    std::string point;
    AppendSvgNumber(aX, point);
    point += ',';
    AppendSvgNumber(aY, point);
    return point;
}

void AddRotation(SvgElement& aElement, int aDegrees, long aColumn, long aRow)
{
    if (aDegrees != 0) {  // SVG turns clockwise
        aElement.Attribute("transform", "rotate(" + std::to_string(-aDegrees) + ' ' + std::to_string(aColumn) + ' ' +
                                            std::to_string(aRow) + ')');
    }
}

void DrawLine(const Fields& aFields, const ObjectShape& aShape, SvgElement& aElement)
{
    aElement.Attribute("points",
                       Point(static_cast<double>(aFields.column), static_cast<double>(aFields.row)) + ' ' +
                           Point(static_cast<double>(aFields.secondColumn), static_cast<double>(aFields.secondRow)));
    if (aShape.dashes != nullptr) {
        aElement.Attribute("stroke-dasharray", aShape.dashes);
    }
}

std::string AreaPoints(const Fields& aFields, const ObjectShape& aShape)
{
    std::string points;
    for (const UnitPoint corner : aShape.corners) {
        points += points.empty() ? "" : " ";
        points += Point(static_cast<double>(aFields.column) + corner.x * static_cast<double>(aFields.width),
                        static_cast<double>(aFields.row) + corner.y * static_cast<double>(aFields.height));
    }
    return points;
}

/// A shaft with a nib at each end, both to the right.
std::string BracketPoints(const Fields& aFields)
{
    const auto x = static_cast<double>(aFields.column);
    const auto y = static_cast<double>(aFields.row);
    const auto width = static_cast<double>(aFields.width);
    const double half = static_cast<double>(aFields.height) / 2;
    return Point(x + width, y - half) + ' ' + Point(x, y - half) + ' ' + Point(x, y + half) + ' ' +
           Point(x + width, y + half);
}

/// From the base of the shaft to the apex, and both elements of the head, each 30 degrees off the shaft.
std::string ArrowPath(const Fields& aFields)
{
    const auto x = static_cast<double>(aFields.column);
    const auto y = static_cast<double>(aFields.row);
    const auto baseX = static_cast<double>(aFields.secondColumn);
    const auto baseY = static_cast<double>(aFields.secondRow);
    const double back = std::atan2(baseY - y, baseX - x);
    constexpr double SPREAD = 0.5235987755982988;
    const auto head = [&](double aAngle) {
        const auto length = static_cast<double>(aFields.width);
        return Point(x + length * std::cos(back + aAngle), y + length * std::sin(back + aAngle));
    };
    return "M " + Point(baseX, baseY) + " L " + Point(x, y) + " M " + head(SPREAD) + " L " + Point(x, y) + " L " +
           head(-SPREAD);
}

}  // namespace

NITF20ObjectSymbol::NITF20ObjectSymbol(const Fields& aFields) : m_fields(aFields)
{
    if (aFields.type < 1 || aFields.type > MOST_TYPE || aFields.height < 0 || aFields.width < 0 ||
        aFields.lineWidth < 0 || aFields.rotation < 0 || aFields.rotation > 359) {
        throw std::invalid_argument("ERROR: Invalid input argument(s).");
    }
}

const char* NITF20ObjectSymbol::GetObjectSymbolTypeName(int aType) noexcept
{
    const ObjectShape* const shape = FindObjectShape(aType);
    return shape == nullptr ? nullptr : shape->name;
}

void NITF20ObjectSymbol::GetRGBColor(int& aRed, int& aGreen, int& aBlue) const noexcept
{
    const SymbolColor* const color = FindSymbolColor(m_fields.color);
    aRed = color == nullptr ? 0 : color->red;
    aGreen = color == nullptr ? 0 : color->green;
    aBlue = color == nullptr ? 0 : color->blue;
}

bool NITF20ObjectSymbol::IsFilled() const noexcept
{
    const ObjectShape* const shape = FindObjectShape(m_fields.type);
    return shape != nullptr && m_fields.height != 0 && m_fields.lineWidth == m_fields.height &&
           (shape->geometry == ShapeGeometry::Area || shape->geometry == ShapeGeometry::Circle ||
            shape->geometry == ShapeGeometry::Ellipse);
}

const char* NITF20ObjectSymbol::GetInteriorStyle() const noexcept
{
    return IsFilled() ? N::STR_VAL_SOLID_COLOR : N::STR_VAL_EMPTY;
}

void NITF20ObjectSymbol::AppendSvg(double aColumn, double aRow, std::string& aSvg) const
{
    const ObjectShape* const shape = FindObjectShape(m_fields.type);
    if (shape == nullptr) {
        return;
    }
    int color[3]{};
    GetRGBColor(color[0], color[1], color[2]);
    SvgElement("g", aSvg).Attribute("transform", SvgTranslation(aColumn, aRow)).Open();
    constexpr const char* NAMES[] = {"polyline", "polygon", "ellipse", "ellipse", "polyline", "path"};
    SvgElement element(NAMES[static_cast<std::size_t>(shape->geometry)], aSvg);
    long aboutColumn = m_fields.column;
    long aboutRow = m_fields.row;
    switch (shape->geometry) {
        case ShapeGeometry::Line:
            DrawLine(m_fields, *shape, element);
            break;
        case ShapeGeometry::Area:
            element.Attribute("points", AreaPoints(m_fields, *shape));
            break;
        case ShapeGeometry::Circle:
        case ShapeGeometry::Ellipse: {
            const long width = shape->geometry == ShapeGeometry::Circle ? m_fields.height : m_fields.width;
            element.Attribute("cx", static_cast<double>(m_fields.column))
                .Attribute("cy", static_cast<double>(m_fields.row))
                .Attribute("rx", static_cast<double>(width) / 2)
                .Attribute("ry", static_cast<double>(m_fields.height) / 2);
            break;
        }
        case ShapeGeometry::Bracket:
            element.Attribute("points", BracketPoints(m_fields));
            break;
        case ShapeGeometry::Arrow:
            element.Attribute("d", ArrowPath(m_fields));
            aboutColumn = m_fields.secondColumn;
            aboutRow = m_fields.secondRow;
            break;
    }
    AddRotation(element, m_fields.rotation, aboutColumn, aboutRow);
    if (IsFilled()) {
        element.Colour("fill", color);
    } else {
        element.Attribute("fill", "none").Colour("stroke", color);
        element.Attribute("stroke-width", static_cast<double>(std::max(m_fields.lineWidth, 1L)));
    }
    element.Close();
    aSvg += "</g>\n";
}

std::string NITF20ObjectSymbol::Serialize(std::string_view aIndent) const
{
    DrawingXml xml(aIndent);
    const ObjectShape* const shape = FindObjectShape(m_fields.type);
    const Fields& f = m_fields;
    int color[3]{};
    GetRGBColor(color[0], color[1], color[2]);
    const auto length = [&](const char* aElement, long aPixels) {
        xml.Text(aElement, std::to_string(aPixels), {{N::XML_ATTR_UNIT, N::XML_UNIT_PIXELS}});
    };
    const auto half = [&](const char* aElement, long aPixels) {
        std::string text;
        AppendSvgNumber(static_cast<double>(aPixels) / 2, text);
        xml.Text(aElement, text, {{N::XML_ATTR_UNIT, N::XML_UNIT_PIXELS}});
    };
    const auto place = [&](const char* aElement, long aRow, long aColumn) {
        xml.Text(aElement, NumberList(aRow, aColumn), {{N::XML_ATTR_UNIT, N::XML_UNIT_PIXELS}});
    };
    const auto placeIn = [&](const char* aElement, long aRow, long aColumn) {
        xml.Open(aElement);
        place(N::XML_ELEMENT_ROW_COLUMN, aRow, aColumn);
        xml.Close(aElement);
    };
    const auto rotation = [&](const char* aPoint) {
        xml.Text(N::XML_ELEMENT_ROTATION_ANGLE, std::to_string(f.rotation),
                 {{N::XML_ATTR_UNIT, N::XML_UNIT_DEGREES}, {N::XML_ATTR_ROTATION_POINT, aPoint}});
    };
    const auto area = [&] {
        length(N::XML_ELEMENT_EDGE_WIDTH, f.lineWidth);
        xml.Text(N::XML_ELEMENT_INTERIOR_STYLE, GetInteriorStyle());
    };

    xml.Open(N::XML_ELEMENT_OBJECT_SYMBOL, {{N::XML_ATTR_TYPE, shape == nullptr ? "" : shape->name}});
    xml.Text(N::XML_ELEMENT_RGB_COLOR, NumberList(color[0], color[1], color[2]));
    switch (shape == nullptr ? ShapeGeometry::Area : shape->geometry) {
        case ShapeGeometry::Line:
            length(N::XML_ELEMENT_LINE_WIDTH, f.lineWidth);
            xml.Open(N::XML_ELEMENT_LINE_COORDINATES);
            place(N::XML_ELEMENT_BEGIN_ROW_COLUMN, f.row, f.column);
            place(N::XML_ELEMENT_END_ROW_COLUMN, f.secondRow, f.secondColumn);
            xml.Close(N::XML_ELEMENT_LINE_COORDINATES);
            if (shape->dashes != nullptr) {
                xml.Text(N::XML_ELEMENT_DASHED_LINE_STYLE, std::to_string(f.type));
            }
            break;
        case ShapeGeometry::Area:
            area();
            length(N::XML_ELEMENT_HEIGHT, f.height);
            length(N::XML_ELEMENT_WIDTH, f.width);
            placeIn(N::XML_ELEMENT_CENTER_COORDINATES, f.row, f.column);
            rotation(N::STR_VAL_CENTER);
            break;
        case ShapeGeometry::Circle:
            area();
            placeIn(N::XML_ELEMENT_CENTER_COORDINATES, f.row, f.column);
            length(N::XML_ELEMENT_DIAMETER, f.height);
            break;
        case ShapeGeometry::Ellipse:
            area();
            placeIn(N::XML_ELEMENT_CENTER_COORDINATES, f.row, f.column);
            rotation(N::STR_VAL_CENTER);
            half(N::XML_ELEMENT_SEMIMAJOR_AXIS, std::max(f.height, f.width));
            half(N::XML_ELEMENT_SEMIMINOR_AXIS, std::min(f.height, f.width));
            break;
        case ShapeGeometry::Bracket:
            length(N::XML_ELEMENT_LINE_WIDTH, f.lineWidth);
            rotation(N::STR_VAL_CENTER_OF_SHAFT);
            length(N::XML_ELEMENT_NIB_WIDTH, f.width);
            length(N::XML_ELEMENT_SHAFT_HEIGHT, f.height);
            placeIn(N::XML_ELEMENT_SHAFT_CENTER_COORDINATES, f.row, f.column);
            break;
        case ShapeGeometry::Arrow:
            rotation(N::STR_VAL_BOTTOM_OF_VERTICAL_SHAFT);
            length(N::XML_ELEMENT_HEAD_ELEMENTS_LENGTH, f.width);
            length(N::XML_ELEMENT_SHAFT_WIDTH, f.lineWidth);
            placeIn(N::XML_ELEMENT_APEX_COORDINATES, f.row, f.column);
            placeIn(N::XML_ELEMENT_BASE_OF_SHAFT_COORDINATES, f.secondRow, f.secondColumn);
            break;
    }
    xml.Close(N::XML_ELEMENT_OBJECT_SYMBOL);
    return xml.Xml();
}

bool NITF20ObjectSymbol::operator==(const NITF20ObjectSymbol& aOther) const noexcept
{
    const Fields& a = m_fields;
    const Fields& b = aOther.m_fields;
    return a.type == b.type && a.color == b.color && a.height == b.height && a.width == b.width &&
           a.lineWidth == b.lineWidth && a.row == b.row && a.column == b.column && a.secondRow == b.secondRow &&
           a.secondColumn == b.secondColumn && a.rotation == b.rotation;
}

}  // namespace ORMO::SensorModel::CSM

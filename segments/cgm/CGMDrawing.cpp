#include "segments/cgm/CGMDrawing.h"

#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/cgm/detail/CgmElements.h"
#include "segments/cgm/detail/CgmGeometry.h"
#include "segments/cgm/detail/CgmPrimitiveParts.h"
#include "segments/detail/SvgElement.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using Bin5 = CGMCnst::BinaryC5Attribute;

/// How a family of fonts is drawn. Heights are parts of the font size.
struct FontFamily
{
    std::string_view prefix;
    const char* family;
    double capitals;  ///< height of a capital letter
    double advance;   ///< width of a character, on average
};

constexpr FontFamily FONT_FAMILIES[] = {
    {"HELVETICA", "Helvetica, Arial, sans-serif", 0.72, 0.56},
    {"TIMES", "Times, 'Times New Roman', serif", 0.66, 0.5},
    {"HERSHEY/SIMPLEX", "Helvetica, Arial, sans-serif", 0.72, 0.56},
    {"HERSHEY/CARTOGRAPHIC", "Helvetica, Arial, sans-serif", 0.72, 0.56},
    {"HERSHEY", "Times, 'Times New Roman', serif", 0.66, 0.5},
    {"", "Courier, 'Courier New', monospace", 0.62, 0.6},
};

const FontFamily& FamilyOf(std::string_view aFont)
{
    const FontFamily* family = FONT_FAMILIES;
    while (!aFont.starts_with(family->prefix)) {
        ++family;  // the last prefix begins every name
    }
    return *family;
}

/// Colour, type and width of a line, as they stand in a primitive's attributes.
struct Stroke
{
    const int* colour;
    int type;
    int width;
};

void AddStroke(SvgElement& aElement, const Stroke& aStroke)
{
    aElement.Colour("stroke", aStroke.colour).Attribute("stroke-width", aStroke.width);
    if (aStroke.type == Bin5::VAL_LINE_TYPE_DASHED) {
        std::string dashes;
        AppendSvgNumber(4.0 * aStroke.width + 2, dashes);
        dashes += ' ';
        AppendSvgNumber(3.0 * aStroke.width + 1, dashes);
        aElement.Attribute("stroke-dasharray", dashes);
    }
}

/// Fill and stroke of lines and of closed figures.
void AddStyle(SvgElement& aElement, const NITFCGMGraphicPrimitive& aPrimitive, CgmSlots aSlots)
{
    const int* const attributes = CgmPrimitiveParts::Attributes(aPrimitive).data();
    const auto at = [&](int aSlot) { return attributes + (aSlot - aSlots.first); };
    if (aSlots.first == LINE_SLOTS.first) {
        aElement.Attribute("fill", "none");
        AddStroke(aElement, {at(CgmSlot::LineColour), *at(CgmSlot::LineType), *at(CgmSlot::LineWidth)});
        return;
    }
    if (*at(CgmSlot::InteriorStyle) == Bin5::VAL_INTERIOR_STYLE_SOLID) {
        aElement.Colour("fill", at(CgmSlot::FillColour)).Attribute("fill-rule", "evenodd");
    } else {
        aElement.Attribute("fill", "none");
    }
    if (*at(CgmSlot::EdgeVisibility) == Bin5::VAL_EDGE_VISIBILITY_ON) {
        AddStroke(aElement, {at(CgmSlot::EdgeColour), *at(CgmSlot::EdgeType), *at(CgmSlot::EdgeWidth)});
    }
}

void AppendPoint(CgmPoint aPoint, std::string& aOut)
{
    AppendSvgNumber(aPoint.x, aOut);
    aOut += ',';
    AppendSvgNumber(aPoint.y, aOut);
}

std::string PointList(const std::vector<CgmPoint>& aPoints)
{
    std::string list;
    for (const CgmPoint point : aPoints) {
        list += list.empty() ? "" : " ";
        AppendPoint(point, list);
    }
    return list;
}

/// The commands of an arc and what completes it.
std::string ArcPath(const CgmOutline& aOutline)
{
    const CgmArc& arc = aOutline.arc;
    const CgmAxes axes = AxesOf(arc.ellipse);
    std::string path = "M ";
    AppendPoint(arc.Start(), path);
    path += " A ";
    AppendSvgNumber(axes.major, path);
    path += ' ';
    AppendSvgNumber(axes.minor, path);
    path += ' ';
    AppendSvgNumber(axes.angle * 180 / std::numbers::pi, path);
    path += arc.sweep > std::numbers::pi ? " 1" : " 0";
    path += arc.ellipse.Turn() > 0 ? " 1 " : " 0 ";
    AppendPoint(arc.End(), path);
    if (aOutline.closure == CgmClosure::Centre) {
        path += " L ";
        AppendPoint(arc.ellipse.centre, path);
    }
    path += aOutline.closure == CgmClosure::Open ? "" : " Z";
    return path;
}

void DrawOutline(const NITFCGMGraphicPrimitive& aPrimitive, const CgmElement& aRow, std::string& aSvg)
{
    CgmOutline outline;
    if (!OutlineOf(aRow.id, CgmPrimitiveParts::Geometry(aPrimitive), outline)) {
        return;
    }
    const auto finish = [&](SvgElement&& aElement) {
        AddStyle(aElement, aPrimitive, aRow.slots);
        aElement.Close();
    };
    const CgmEllipse& ellipse = outline.arc.ellipse;
    if (!outline.points.empty()) {
        finish(std::move(SvgElement(outline.closure == CgmClosure::Open ? "polyline" : "polygon", aSvg)
                             .Attribute("points", PointList(outline.points))));
    } else if (!outline.arc.IsWhole()) {
        finish(std::move(SvgElement("path", aSvg).Attribute("d", ArcPath(outline))));
    } else if (const CgmAxes axes = AxesOf(ellipse); axes.minor < 0.0005) {  // seen from its side
        const CgmPoint reach{axes.major * std::cos(axes.angle), axes.major * std::sin(axes.angle)};
        finish(
            std::move(SvgElement("polygon", aSvg)
                          .Attribute("points", PointList({{ellipse.centre.x - reach.x, ellipse.centre.y - reach.y},
                                                          {ellipse.centre.x + reach.x, ellipse.centre.y + reach.y}}))));
    } else {
        SvgElement element("ellipse", aSvg);
        element.Attribute("cx", ellipse.centre.x).Attribute("cy", ellipse.centre.y);
        element.Attribute("rx", axes.major).Attribute("ry", axes.minor);
        if (axes.angle != 0) {
            std::string turn = "rotate(";
            AppendSvgNumber(axes.angle * 180 / std::numbers::pi, turn);
            turn += ' ';
            AppendSvgNumber(ellipse.centre.x, turn);
            turn += ' ';
            AppendSvgNumber(ellipse.centre.y, turn);
            element.Attribute("transform", turn + ")");
        }
        finish(std::move(element));
    }
}

/// A text as it lies on the drawing.
struct TextPlace
{
    explicit TextPlace(const CGMGraphicPrimitiveText& aText) : family(FamilyOf(aText.GetTextFont()))
    {
        int numbers[4]{};
        aText.GetTextPosition(numbers[0], numbers[1]);
        start = {static_cast<double>(numbers[0]), static_cast<double>(numbers[1])};
        aText.GetCharacterOrientation(numbers[0], numbers[1], numbers[2], numbers[3]);
        const double length = std::hypot(numbers[0], numbers[1]);
        if (length != 0 && (numbers[2] != 0 || numbers[3] != 0)) {
            up = {numbers[0] / length, numbers[1] / length};
            base = {numbers[2] / length, numbers[3] / length};  // a longer base vector makes characters wider
        }
        size = aText.GetCharacterHeight() / family.capitals;
        std::size_t characters = 0;
        text = aText.GetTextString(characters);
        count = characters;
    }

    const FontFamily& family;
    CgmPoint start;
    CgmPoint up{0, -1};
    CgmPoint base{1, 0};
    double size = 0;
    const char* text = "";
    std::size_t count = 0;
};

void DrawText(const CGMGraphicPrimitiveText& aText, std::string& aSvg)
{
    const TextPlace place(aText);
    if (place.count == 0) {
        return;
    }
    SvgElement element("text", aSvg);
    if (place.up.x == 0 && place.up.y == -1 && place.base.x == 1 && place.base.y == 0) {
        element.Attribute("x", place.start.x).Attribute("y", place.start.y);
    } else {
        std::string matrix = "matrix(";
        for (const double number :
             {place.base.x, place.base.y, -place.up.x, -place.up.y, place.start.x, place.start.y}) {
            matrix += matrix.back() == '(' ? "" : " ";
            AppendSvgNumber(number, matrix);
        }
        element.Attribute("transform", matrix + ")");
    }
    const std::string_view font = aText.GetTextFont();
    element.Attribute("font-family", place.family.family).Attribute("font-size", place.size);
    if (font.find("BOLD") != std::string_view::npos || font.find("TRIPLEX") != std::string_view::npos) {
        element.Attribute("font-weight", "bold");
    }
    if (font.find("ITALIC") != std::string_view::npos || font.find("OBLIQUE") != std::string_view::npos ||
        font.find("SCRIPT") != std::string_view::npos) {
        element.Attribute("font-style", "italic");
    }
    element.Colour("fill", CgmPrimitiveParts::Attributes(aText).data()).Attribute("xml:space", "preserve");
    element.Close({place.text, place.count});
}

void AddText(const CGMGraphicPrimitiveText& aText, CgmBox& aBox)
{
    const TextPlace place(aText);
    const double width = place.size * place.family.advance * static_cast<double>(place.count);
    for (const double along : {0.0, width}) {
        for (const double above : {-0.25 * place.size, static_cast<double>(aText.GetCharacterHeight())}) {
            aBox.Add({place.start.x + along * place.base.x + above * place.up.x,
                      place.start.y + along * place.base.y + above * place.up.y});
        }
    }
}

/// Which way the coordinates of a metafile run on the drawing, where x runs right and y down: 1 or -1.
CgmPoint DirectionsOf(const NITFCGMMetaFile& aMetafile)
{
    int left = 0;
    int bottom = 0;
    int right = 0;
    int top = 0;
    aMetafile.GetVDCExtent(left, bottom, right, top);
    return {right < left ? -1.0 : 1.0, top > bottom ? -1.0 : 1.0};
}

bool IsText(const NITFCGMGraphicPrimitive& aPrimitive)
{
    return aPrimitive.GetGraphicalPrimitiveElementCode() == CGMCnst::BinaryC4GraphicalPrimitive::CODE_TEXT;
}

}  // namespace

void CGMDrawing::AppendSvg(const NITFCGMMetaFile& aMetafile, double aColumn, double aRow, std::string& aSvg)
{
    std::string place = SvgTranslation(aColumn, aRow);
    if (const CgmPoint directions = DirectionsOf(aMetafile); directions.x < 0 || directions.y < 0) {
        place += directions.x < 0 ? " scale(-1 " : " scale(1 ";
        place += directions.y < 0 ? "-1)" : "1)";
    }
    SvgElement("g", aSvg).Attribute("transform", place).Open();
    for (const NITFCGMGraphicPrimitive* const primitive : aMetafile.GetAllGraphicalPrimitiveElements()) {
        if (IsText(*primitive)) {
            DrawText(static_cast<const CGMGraphicPrimitiveText&>(*primitive), aSvg);
        } else {
            DrawOutline(*primitive,
                        CgmElementRow(CGMCnst::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE,
                                      primitive->GetGraphicalPrimitiveElementCode()),
                        aSvg);
        }
    }
    aSvg += "</g>\n";
}

bool CGMDrawing::GetBounds(const NITFCGMMetaFile& aMetafile, Bounds& aBounds)
{
    CgmBox box;
    for (const NITFCGMGraphicPrimitive* const primitive : aMetafile.GetAllGraphicalPrimitiveElements()) {
        CgmOutline outline;
        if (IsText(*primitive)) {
            AddText(static_cast<const CGMGraphicPrimitiveText&>(*primitive), box);
        } else if (OutlineOf(primitive->GetGraphicalPrimitiveElementCode(), CgmPrimitiveParts::Geometry(*primitive),
                             outline)) {
            box.Add(outline);
        }
    }
    const CgmPoint directions = DirectionsOf(aMetafile);
    const auto [left, right] = std::minmax({box.low.x * directions.x, box.high.x * directions.x});
    const auto [top, bottom] = std::minmax({box.low.y * directions.y, box.high.y * directions.y});
    aBounds = {left, top, right, bottom};
    return !box.empty;
}

}  // namespace ORMO::SensorModel::CSM

#include "segments/cgm/CGMGraphicPrimitives.h"

#include "segments/cgm/detail/CgmElements.h"

#include <algorithm>
#include <initializer_list>
#include <span>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

using Detail::CgmSlot;

[[noreturn]] void Refuse()
{
    throw std::invalid_argument("ERROR: Invalid input argument(s).");
}

/// Collects the numbers of a primitive and checks each.
class Numbers
{
public:
    Numbers& Colour(const int* aColour)
    {
        return All({aColour, aColour == nullptr ? 0U : 3U}, CGMCnst::BinaryC5Attribute::VAL_MIN_COLOUR,
                   CGMCnst::BinaryC5Attribute::VAL_MAX_COLOUR);
    }
    Numbers& Words(std::initializer_list<int> aWords)
    {
        return All({aWords.begin(), aWords.size()}, INT16_MIN, INT16_MAX);
    }
    Numbers& List(const int* aWords, int aCount, int aLeast)
    {
        if (aCount < aLeast) {
            Refuse();
        }
        return All({aWords, aWords == nullptr ? 0U : static_cast<std::size_t>(aCount)}, INT16_MIN, INT16_MAX);
    }
    Numbers& ClosedFigure(const int* aEdge, const int* aFill, int aType, int aVisibility, int aWidth, int aStyle)
    {
        return Colour(aEdge).Colour(aFill).Words({aType, aVisibility, aWidth, aStyle});
    }
    std::vector<int> Take() { return std::move(m_numbers); }

private:
    Numbers& All(std::span<const int> aNumbers, int aLow, int aHigh)
    {
        if (aNumbers.empty() ||
            std::ranges::any_of(aNumbers, [=](int aNumber) { return aNumber < aLow || aNumber > aHigh; })) {
            Refuse();
        }
        m_numbers.insert(m_numbers.end(), aNumbers.begin(), aNumbers.end());
        return *this;
    }

    std::vector<int> m_numbers;
};

/// Writes one number after the other.
template<typename... Out>
void Spread(const int* aNumbers, Out&... aOut)
{
    ((aOut = *aNumbers++), ...);
}

std::string CheckedText(const char* aText, int aLength)
{
    if (aText == nullptr || aLength < 0) {
        Refuse();
    }
    return {aText, static_cast<std::size_t>(aLength)};
}

std::string CheckedFont(const char* aFont)
{
    if (aFont == nullptr) {
        Refuse();
    }
    return aFont;
}

constexpr int FINAL = CGMCnst::BinaryC4GraphicalPrimitive::VAL_TEXT_FINAL;

}  // namespace

#define ORMO_CGM_COLOUR(aClass, aGetter, aSlots, aSlot)                     \
    void aClass::aGetter(int& aRed, int& aGreen, int& aBlue) const          \
    {                                                                       \
        Colour(CgmSlot::aSlot - Detail::aSlots.first, aRed, aGreen, aBlue); \
    }
#define ORMO_CGM_NUMBER(aClass, aGetter, aSlots, aSlot)          \
    int aClass::aGetter() const                                  \
    {                                                            \
        return Attribute(CgmSlot::aSlot - Detail::aSlots.first); \
    }
#define ORMO_CGM_CLOSED_FIGURE(aClass, aFigure)                                                \
    ORMO_CGM_COLOUR(aClass, Get##aFigure##EdgeColor, CLOSED_FIGURE_SLOTS, EdgeColour)          \
    ORMO_CGM_NUMBER(aClass, Get##aFigure##EdgeType, CLOSED_FIGURE_SLOTS, EdgeType)             \
    ORMO_CGM_NUMBER(aClass, Get##aFigure##EdgeVisibility, CLOSED_FIGURE_SLOTS, EdgeVisibility) \
    ORMO_CGM_NUMBER(aClass, Get##aFigure##EdgeWidth, CLOSED_FIGURE_SLOTS, EdgeWidth)           \
    ORMO_CGM_COLOUR(aClass, Get##aFigure##FillColor, CLOSED_FIGURE_SLOTS, FillColour)          \
    ORMO_CGM_NUMBER(aClass, Get##aFigure##InteriorStyle, CLOSED_FIGURE_SLOTS, InteriorStyle)

ORMO_CGM_COLOUR(CGMGraphicPrimitivePolyline, GetPolylineColor, LINE_SLOTS, LineColour)
ORMO_CGM_NUMBER(CGMGraphicPrimitivePolyline, GetPolylineType, LINE_SLOTS, LineType)
ORMO_CGM_NUMBER(CGMGraphicPrimitivePolyline, GetPolylineWidth, LINE_SLOTS, LineWidth)
ORMO_CGM_COLOUR(CGMGraphicPrimitiveCircularArcCenter, GetCircularArcEdgeColor, LINE_SLOTS, LineColour)
ORMO_CGM_NUMBER(CGMGraphicPrimitiveCircularArcCenter, GetCircularArcLineType, LINE_SLOTS, LineType)
ORMO_CGM_NUMBER(CGMGraphicPrimitiveCircularArcCenter, GetCircularArcLineWidth, LINE_SLOTS, LineWidth)
ORMO_CGM_COLOUR(CGMGraphicPrimitiveEllipticalArc, GetEllipticalArcColor, LINE_SLOTS, LineColour)
ORMO_CGM_NUMBER(CGMGraphicPrimitiveEllipticalArc, GetEllipticalArcLineType, LINE_SLOTS, LineType)
ORMO_CGM_NUMBER(CGMGraphicPrimitiveEllipticalArc, GetEllipticalArcLineWidth, LINE_SLOTS, LineWidth)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitivePolygon, Polygon)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitiveRectangle, Rectangle)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitiveCircle, Circle)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitiveEllipse, Ellipse)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitiveCircularArcCenterClose, ClosedCircularArc)
ORMO_CGM_CLOSED_FIGURE(CGMGraphicPrimitiveEllipticalArcClose, ClosedEllipticalArc)
ORMO_CGM_COLOUR(CGMGraphicPrimitiveText, GetTextColor, TEXT_SLOTS, TextColour)
ORMO_CGM_NUMBER(CGMGraphicPrimitiveText, GetCharacterHeight, TEXT_SLOTS, CharacterHeight)

#undef ORMO_CGM_CLOSED_FIGURE
#undef ORMO_CGM_NUMBER
#undef ORMO_CGM_COLOUR

CGMGraphicPrimitivePolyline::CGMGraphicPrimitivePolyline(const int* aLineColor, const int* aX, const int* aY,
                                                         int aLineType, int aLineWidth, int aCount)
    : CGMGraphicPrimitivePolyline(
          Numbers().Colour(aLineColor).Words({aLineType, aLineWidth}).List(aX, aCount, 2).List(aY, aCount, 2).Take())
{
}

void CGMGraphicPrimitivePolyline::GetPolylineVertices(const int*& aX, const int*& aY, std::size_t& aCount) const
{
    aCount = GeometrySize() / 2;
    aX = Geometry();
    aY = aX + aCount;
}

CGMGraphicPrimitivePolygon::CGMGraphicPrimitivePolygon(const int* aEdgeColor, const int* aFillColor, const int* aX,
                                                       const int* aY, int aEdgeType, int aEdgeVisibility,
                                                       int aEdgeWidth, int aInteriorStyle, int aCount)
    : CGMGraphicPrimitivePolygon(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .List(aX, aCount, 3)
              .List(aY, aCount, 3)
              .Take())
{
}

void CGMGraphicPrimitivePolygon::GetPolygonVertices(const int*& aX, const int*& aY, std::size_t& aCount) const
{
    aCount = GeometrySize() / 2;
    aX = Geometry();
    aY = aX + aCount;
}

CGMGraphicPrimitiveRectangle::CGMGraphicPrimitiveRectangle(const int* aEdgeColor, const int* aFillColor, int aEdgeType,
                                                           int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle,
                                                           int aX1, int aY1, int aX2, int aY2)
    : CGMGraphicPrimitiveRectangle(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .Words({aX1, aY1, aX2, aY2})
              .Take())
{
}

void CGMGraphicPrimitiveRectangle::GetRectangleCornerCoordinates(int& aX1, int& aY1, int& aX2, int& aY2) const
{
    Spread(Geometry(), aX1, aY1, aX2, aY2);
}

CGMGraphicPrimitiveCircle::CGMGraphicPrimitiveCircle(const int* aEdgeColor, const int* aFillColor, int aEdgeType,
                                                     int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle, int aX,
                                                     int aY, int aRadius)
    : CGMGraphicPrimitiveCircle(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .Words({aX, aY, aRadius})
              .Take())
{
}

void CGMGraphicPrimitiveCircle::GetCircleProperties(int& aX, int& aY, int& aRadius) const
{
    Spread(Geometry(), aX, aY, aRadius);
}

CGMGraphicPrimitiveEllipse::CGMGraphicPrimitiveEllipse(const int* aEdgeColor, const int* aFillColor, int aEdgeType,
                                                       int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle, int aX,
                                                       int aY, int aX1, int aY1, int aX2, int aY2)
    : CGMGraphicPrimitiveEllipse(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .Words({aX, aY, aX1, aY1, aX2, aY2})
              .Take())
{
}

void CGMGraphicPrimitiveEllipse::GetEllipseAttributes(int& aX, int& aY, int& aX1, int& aY1, int& aX2, int& aY2) const
{
    Spread(Geometry(), aX, aY, aX1, aY1, aX2, aY2);
}

CGMGraphicPrimitiveCircularArcCenter::CGMGraphicPrimitiveCircularArcCenter(const int* aEdgeColor, int aLineType,
                                                                           int aLineWidth, int aX, int aY, int aStartX,
                                                                           int aStartY, int aEndX, int aEndY,
                                                                           int aRadius)
    : CGMGraphicPrimitiveCircularArcCenter(Numbers()
                                               .Colour(aEdgeColor)
                                               .Words({aLineType, aLineWidth})
                                               .Words({aX, aY, aStartX, aStartY, aEndX, aEndY, aRadius})
                                               .Take())
{
}

void CGMGraphicPrimitiveCircularArcCenter::GetCircularArcAttributes(int& aX, int& aY, int& aStartX, int& aStartY,
                                                                    int& aEndX, int& aEndY, int& aRadius) const
{
    Spread(Geometry(), aX, aY, aStartX, aStartY, aEndX, aEndY, aRadius);
}

CGMGraphicPrimitiveCircularArcCenterClose::CGMGraphicPrimitiveCircularArcCenterClose(
    const int* aEdgeColor, const int* aFillColor, int aEdgeType, int aEdgeVisibility, int aEdgeWidth,
    int aInteriorStyle, int aX, int aY, int aStartX, int aStartY, int aEndX, int aEndY, int aRadius, int aClosure)
    : CGMGraphicPrimitiveCircularArcCenterClose(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .Words({aX, aY, aStartX, aStartY, aEndX, aEndY, aRadius, aClosure})
              .Take())
{
}

void CGMGraphicPrimitiveCircularArcCenterClose::GetClosedCircularArcAttributes(int& aX, int& aY, int& aStartX,
                                                                               int& aStartY, int& aEndX, int& aEndY,
                                                                               int& aRadius, int& aClosure) const
{
    Spread(Geometry(), aX, aY, aStartX, aStartY, aEndX, aEndY, aRadius, aClosure);
}

CGMGraphicPrimitiveEllipticalArc::CGMGraphicPrimitiveEllipticalArc(const int* aLineColor, int aLineType, int aLineWidth,
                                                                   int aX, int aY, int aX1, int aY1, int aX2, int aY2,
                                                                   int aStartX, int aStartY, int aEndX, int aEndY)
    : CGMGraphicPrimitiveEllipticalArc(Numbers()
                                           .Colour(aLineColor)
                                           .Words({aLineType, aLineWidth})
                                           .Words({aX, aY, aX1, aY1, aX2, aY2, aStartX, aStartY, aEndX, aEndY})
                                           .Take())
{
}

void CGMGraphicPrimitiveEllipticalArc::GetEllipticalArcAttributes(int& aX, int& aY, int& aX1, int& aY1, int& aX2,
                                                                  int& aY2, int& aStartX, int& aStartY, int& aEndX,
                                                                  int& aEndY) const
{
    Spread(Geometry(), aX, aY, aX1, aY1, aX2, aY2, aStartX, aStartY, aEndX, aEndY);
}

CGMGraphicPrimitiveEllipticalArcClose::CGMGraphicPrimitiveEllipticalArcClose(
    const int* aEdgeColor, const int* aFillColor, int aEdgeType, int aEdgeVisibility, int aEdgeWidth,
    int aInteriorStyle, int aX, int aY, int aX1, int aY1, int aX2, int aY2, int aStartX, int aStartY, int aEndX,
    int aEndY, int aClosure)
    : CGMGraphicPrimitiveEllipticalArcClose(
          Numbers()
              .ClosedFigure(aEdgeColor, aFillColor, aEdgeType, aEdgeVisibility, aEdgeWidth, aInteriorStyle)
              .Words({aX, aY, aX1, aY1, aX2, aY2, aStartX, aStartY, aEndX, aEndY, aClosure})
              .Take())
{
}

void CGMGraphicPrimitiveEllipticalArcClose::GetClosedEllipticalArcAttributes(int& aX, int& aY, int& aX1, int& aY1,
                                                                             int& aX2, int& aY2, int& aStartX,
                                                                             int& aStartY, int& aEndX, int& aEndY,
                                                                             int& aClosure) const
{
    Spread(Geometry(), aX, aY, aX1, aY1, aX2, aY2, aStartX, aStartY, aEndX, aEndY, aClosure);
}

CGMGraphicPrimitiveText::CGMGraphicPrimitiveText(std::vector<int> aNumbers, std::string aFont, std::string aText)
    : NITFCGMGraphicPrimitive(CGMCnst::BinaryC4GraphicalPrimitive::CODE_TEXT, std::move(aNumbers)),
      m_font(std::move(aFont)),
      m_text(std::move(aText))
{
}

CGMGraphicPrimitiveText::CGMGraphicPrimitiveText(const char* aFont, const char* aText, const int* aPosition,
                                                 const int* aTextColor, int aCharacterHeight, int aUpY, int aBaseX,
                                                 int aTextLength)
    : CGMGraphicPrimitiveText(Numbers()
                                  .Colour(aTextColor)
                                  .Words({aCharacterHeight})
                                  .Words({CGMCnst::BinaryC5Attribute::VAL_CHARACTER_ORIENTATION_X_UP, aUpY, aBaseX,
                                          CGMCnst::BinaryC5Attribute::VAL_CHARACTER_ORIENTATION_Y_BASE})
                                  .List(aPosition, 2, 2)
                                  .Words({FINAL})
                                  .Take(),
                              CheckedFont(aFont), CheckedText(aText, aTextLength))
{
}

CGMGraphicPrimitiveText::CGMGraphicPrimitiveText(const char* aFont, const char* aText, const int* aPosition,
                                                 const int* aTextColor, int aCharacterHeight, const int* aOrientation,
                                                 int aTextLength)
    : CGMGraphicPrimitiveText(Numbers()
                                  .Colour(aTextColor)
                                  .Words({aCharacterHeight})
                                  .List(aOrientation, 4, 4)
                                  .List(aPosition, 2, 2)
                                  .Words({FINAL})
                                  .Take(),
                              CheckedFont(aFont), CheckedText(aText, aTextLength))
{
}

void CGMGraphicPrimitiveText::GetTextPosition(int& aX, int& aY) const
{
    Spread(Geometry(), aX, aY);
}

const char* CGMGraphicPrimitiveText::GetTextString(std::size_t& aLength) const
{
    aLength = m_text.size();
    return m_text.c_str();
}

const char* CGMGraphicPrimitiveText::GetTextFont() const
{
    return m_font.c_str();
}

void CGMGraphicPrimitiveText::GetCharacterOrientation(int& aUpX, int& aUpY, int& aBaseX, int& aBaseY) const
{
    constexpr std::size_t FIRST = CgmSlot::CharacterOrientation - Detail::TEXT_SLOTS.first;
    aUpX = Attribute(FIRST);
    aUpY = Attribute(FIRST + 1);
    aBaseX = Attribute(FIRST + 2);
    aBaseY = Attribute(FIRST + 3);
}

bool CGMGraphicPrimitiveText::CloneObj(const NITFCGMGraphicPrimitive& aOther)
{
    if (!NITFCGMGraphicPrimitive::CloneObj(aOther)) {
        return false;
    }
    const auto& other = static_cast<const CGMGraphicPrimitiveText&>(aOther);
    m_font = other.m_font;
    m_text = other.m_text;
    return true;
}

}  // namespace ORMO::SensorModel::CSM

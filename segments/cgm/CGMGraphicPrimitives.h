#pragma once

#include "NITFCGMGraphicPrimitive.h"

#include <string>
#include <utility>

namespace ORMO::SensorModel::CSM {

// Arguments of all constructors: a colour is an array of red, green and blue, 0 to 255; coordinates, types and widths
// are 16-bit numbers. Arrays are copied. A null array, too few points or a number out of bounds raises
// std::invalid_argument.

/// What every primitive has besides its constructor and its getters: it can be made of numbers that were read.
#define ORMO_CGM_PRIMITIVE(aClass, aCode)                                                          \
protected:                                                                                         \
    using NITFCGMGraphicPrimitive::operator=;                                                      \
                                                                                                   \
private:                                                                                           \
    friend class NITFCGMGraphicPrimitive::Parts;                                                   \
    explicit aClass(std::vector<int> aNumbers)                                                     \
        : NITFCGMGraphicPrimitive(CGMCnst::BinaryC4GraphicalPrimitive::aCode, std::move(aNumbers)) \
    {                                                                                              \
    }

/// The attributes of a closed figure. Interior style: solid 1, empty 4; edge type: solid 1, dashed 2; visibility: on 1.
#define ORMO_CGM_CLOSED_FIGURE(aFigure)                                     \
public:                                                                     \
    void Get##aFigure##EdgeColor(int& aRed, int& aGreen, int& aBlue) const; \
    int Get##aFigure##EdgeType() const;                                     \
    int Get##aFigure##EdgeVisibility() const;                               \
    int Get##aFigure##EdgeWidth() const;                                    \
    void Get##aFigure##FillColor(int& aRed, int& aGreen, int& aBlue) const; \
    int Get##aFigure##InteriorStyle() const

/// Straight lines from point to point.
class ORMO_CSM_API CGMGraphicPrimitivePolyline : public NITFCGMGraphicPrimitive
{
public:
    /// At least two vertices.
    CGMGraphicPrimitivePolyline(const int* aLineColor, const int* aX, const int* aY, int aLineType, int aLineWidth,
                                int aCount);
    /// The lists belong to the primitive.
    void GetPolylineVertices(const int*& aX, const int*& aY, std::size_t& aCount) const;
    void GetPolylineColor(int& aRed, int& aGreen, int& aBlue) const;
    int GetPolylineType() const;
    int GetPolylineWidth() const;

    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitivePolyline, CODE_POLYLINE)
};

/// A closed area with straight edges.
class ORMO_CSM_API CGMGraphicPrimitivePolygon : public NITFCGMGraphicPrimitive
{
public:
    /// At least three vertices.
    CGMGraphicPrimitivePolygon(const int* aEdgeColor, const int* aFillColor, const int* aX, const int* aY,
                               int aEdgeType, int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle, int aCount);
    /// The lists belong to the primitive.
    void GetPolygonVertices(const int*& aX, const int*& aY, std::size_t& aCount) const;

    ORMO_CGM_CLOSED_FIGURE(Polygon);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitivePolygon, CODE_POLYGON)
};

/// A rectangle between two opposite corners, its sides along the axes.
class ORMO_CSM_API CGMGraphicPrimitiveRectangle : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveRectangle(const int* aEdgeColor, const int* aFillColor, int aEdgeType, int aEdgeVisibility,
                                 int aEdgeWidth, int aInteriorStyle, int aX1, int aY1, int aX2, int aY2);
    void GetRectangleCornerCoordinates(int& aX1, int& aY1, int& aX2, int& aY2) const;

    ORMO_CGM_CLOSED_FIGURE(Rectangle);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveRectangle, CODE_RECTANGLE)
};

class ORMO_CSM_API CGMGraphicPrimitiveCircle : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveCircle(const int* aEdgeColor, const int* aFillColor, int aEdgeType, int aEdgeVisibility,
                              int aEdgeWidth, int aInteriorStyle, int aX, int aY, int aRadius);
    void GetCircleProperties(int& aX, int& aY, int& aRadius) const;

    ORMO_CGM_CLOSED_FIGURE(Circle);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveCircle, CODE_CIRCLE)
};

/// An ellipse given by its centre and one end point of each of two conjugate diameters, which need not stand at right
/// angles.
class ORMO_CSM_API CGMGraphicPrimitiveEllipse : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveEllipse(const int* aEdgeColor, const int* aFillColor, int aEdgeType, int aEdgeVisibility,
                               int aEdgeWidth, int aInteriorStyle, int aX, int aY, int aX1, int aY1, int aX2, int aY2);
    void GetEllipseAttributes(int& aX, int& aY, int& aX1, int& aY1, int& aX2, int& aY2) const;

    ORMO_CGM_CLOSED_FIGURE(Ellipse);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveEllipse, CODE_ELLIPSE)
};

/// Part of a circle, from the ray along the start vector to the one along the end vector, in the direction that turns
/// the x axis into the y axis.
class ORMO_CSM_API CGMGraphicPrimitiveCircularArcCenter : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveCircularArcCenter(const int* aEdgeColor, int aLineType, int aLineWidth, int aX, int aY,
                                         int aStartX, int aStartY, int aEndX, int aEndY, int aRadius);
    void GetCircularArcAttributes(int& aX, int& aY, int& aStartX, int& aStartY, int& aEndX, int& aEndY,
                                  int& aRadius) const;
    void GetCircularArcEdgeColor(int& aRed, int& aGreen, int& aBlue) const;
    int GetCircularArcLineType() const;
    int GetCircularArcLineWidth() const;

    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveCircularArcCenter, CODE_CIRCULAR_ARC_CENTRE)
};

/// The area of a circular arc, closed through the centre (pie, 0) or straight (chord, 1).
class ORMO_CSM_API CGMGraphicPrimitiveCircularArcCenterClose : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveCircularArcCenterClose(const int* aEdgeColor, const int* aFillColor, int aEdgeType,
                                              int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle, int aX, int aY,
                                              int aStartX, int aStartY, int aEndX, int aEndY, int aRadius,
                                              int aClosure);
    void GetClosedCircularArcAttributes(int& aX, int& aY, int& aStartX, int& aStartY, int& aEndX, int& aEndY,
                                        int& aRadius, int& aClosure) const;

    ORMO_CGM_CLOSED_FIGURE(ClosedCircularArc);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveCircularArcCenterClose, CODE_CIRCULAR_ARC_CENTRE_CLOSE)
};

/// Part of an ellipse, from the ray along the start vector to the one along the end vector, in the direction from the
/// first conjugate diameter to the second.
class ORMO_CSM_API CGMGraphicPrimitiveEllipticalArc : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveEllipticalArc(const int* aLineColor, int aLineType, int aLineWidth, int aX, int aY, int aX1,
                                     int aY1, int aX2, int aY2, int aStartX, int aStartY, int aEndX, int aEndY);
    void GetEllipticalArcAttributes(int& aX, int& aY, int& aX1, int& aY1, int& aX2, int& aY2, int& aStartX,
                                    int& aStartY, int& aEndX, int& aEndY) const;
    void GetEllipticalArcColor(int& aRed, int& aGreen, int& aBlue) const;
    int GetEllipticalArcLineType() const;
    int GetEllipticalArcLineWidth() const;

    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveEllipticalArc, CODE_ELLIPTICAL_ARC)
};

/// The area of an elliptical arc, closed through the centre (pie, 0) or straight (chord, 1).
class ORMO_CSM_API CGMGraphicPrimitiveEllipticalArcClose : public NITFCGMGraphicPrimitive
{
public:
    CGMGraphicPrimitiveEllipticalArcClose(const int* aEdgeColor, const int* aFillColor, int aEdgeType,
                                          int aEdgeVisibility, int aEdgeWidth, int aInteriorStyle, int aX, int aY,
                                          int aX1, int aY1, int aX2, int aY2, int aStartX, int aStartY, int aEndX,
                                          int aEndY, int aClosure);
    void GetClosedEllipticalArcAttributes(int& aX, int& aY, int& aX1, int& aY1, int& aX2, int& aY2, int& aStartX,
                                          int& aStartY, int& aEndX, int& aEndY, int& aClosure) const;

    ORMO_CGM_CLOSED_FIGURE(ClosedEllipticalArc);
    ORMO_CGM_PRIMITIVE(CGMGraphicPrimitiveEllipticalArcClose, CODE_ELLIPTICAL_ARC_CLOSE)
};

/// A line of text. Its position is the left end of its base line; its height is that of its capital letters.
class ORMO_CSM_API CGMGraphicPrimitiveText : public NITFCGMGraphicPrimitive
{
public:
    /// Upright text or text that stands on its head: the up vector is (0, aUpY), the base vector (aBaseX, 0).
    CGMGraphicPrimitiveText(const char* aFont, const char* aText, const int* aPosition, const int* aTextColor,
                            int aCharacterHeight, int aUpY, int aBaseX, int aTextLength);
    /// Text in any direction; `aOrientation` is the up vector and the base vector, four numbers.
    CGMGraphicPrimitiveText(const char* aFont, const char* aText, const int* aPosition, const int* aTextColor,
                            int aCharacterHeight, const int* aOrientation, int aTextLength);

    void GetTextPosition(int& aX, int& aY) const;
    /// The characters are Latin-1 and belong to the primitive; a NUL ends them, and may stand among them.
    const char* GetTextString(std::size_t& aLength) const;
    const char* GetTextFont() const;
    int GetCharacterHeight() const;
    void GetCharacterOrientation(int& aUpX, int& aUpY, int& aBaseX, int& aBaseY) const;
    void GetTextColor(int& aRed, int& aGreen, int& aBlue) const;

protected:
    using NITFCGMGraphicPrimitive::operator=;
    bool CloneObj(const NITFCGMGraphicPrimitive& aOther) override;

private:
    friend class NITFCGMGraphicPrimitive::Parts;
    CGMGraphicPrimitiveText(std::vector<int> aNumbers, std::string aFont, std::string aText);

    std::string m_font;
    std::string m_text;
};

#undef ORMO_CGM_CLOSED_FIGURE
#undef ORMO_CGM_PRIMITIVE

}  // namespace ORMO::SensorModel::CSM

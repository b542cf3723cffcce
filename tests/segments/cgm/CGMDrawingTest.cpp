#include "segments/cgm/CGMDrawing.h"
#include "segments/cgm/detail/CgmGeometry.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/XmlCheck.h"

#include <cmath>
#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;
using namespace Tests;
using testing::HasSubstr;

constexpr double PI = std::numbers::pi;

std::string Svg(const std::string& aBytes, double aColumn = 0, double aRow = 0)
{
    std::string svg;
    CGMDrawing::AppendSvg(Metafile(aBytes), aColumn, aRow, svg);
    EXPECT_EQ("", XmlFault(svg)) << svg;
    return svg;
}

/// The only element of a drawing.
std::string Drawn(const std::string& aBytes)
{
    const std::string svg = Svg(aBytes);
    const auto start = svg.find('\n') + 1;
    const std::string element = svg.substr(start, svg.rfind("</g>") - start);
    return element.substr(0, element.find('\n'));
}

CgmOutline Outline(int aCode, const std::vector<int>& aNumbers)
{
    CgmOutline outline;
    EXPECT_TRUE(OutlineOf(aCode, aNumbers, outline));
    return outline;
}

void ExpectPoint(double aX, double aY, CgmPoint aPoint)
{
    EXPECT_NEAR(aX, aPoint.x, 1e-9);
    EXPECT_NEAR(aY, aPoint.y, 1e-9);
}

TEST(CGMDrawingTest, ConjugateDiametersGiveTheTrueEllipse)
{
    // The image of the unit circle under a shear: x = 3 cos + 1 sin, y = 2 sin.
    const CgmEllipse ellipse{{10, 20}, {3, 0}, {1, 2}};
    const CgmAxes axes = AxesOf(ellipse);
    EXPECT_NEAR(std::abs(ellipse.Turn()), axes.major * axes.minor, 1e-12);                     // same area
    EXPECT_NEAR(3 * 3 + 1 + 2 * 2, std::pow(axes.major, 2) + std::pow(axes.minor, 2), 1e-12);  // Apollonius
    for (int i = 0; i != 100; ++i) {  // every point lies on the ellipse of these axes
        const CgmPoint point = ellipse.At(i * 0.0731);
        const double along = (point.x - 10) * std::cos(axes.angle) + (point.y - 20) * std::sin(axes.angle);
        const double across = (point.y - 20) * std::cos(axes.angle) - (point.x - 10) * std::sin(axes.angle);
        EXPECT_NEAR(1, std::pow(along / axes.major, 2) + std::pow(across / axes.minor, 2), 1e-12) << i;
    }
    const CgmAxes round = AxesOf({{0, 0}, {0, 26}, {26, 0}});
    EXPECT_NEAR(26, round.major, 1e-12);
    EXPECT_NEAR(26, round.minor, 1e-12);
    EXPECT_EQ(0, AxesOf({{0, 0}, {3, 4}, {6, 8}}).minor);
    EXPECT_EQ(0, AxesOf({}).major);
}

TEST(CGMDrawingTest, CircularArcsTurnFromXToY)
{
    // A quarter from (1,0) to (0,1), its middle in the first quadrant of the coordinates.
    CgmArc arc = Outline(15, {100, 200, 5, 0, 0, 9, 50}).arc;
    ExpectPoint(150, 200, arc.Start());
    ExpectPoint(100, 250, arc.End());
    EXPECT_NEAR(PI / 2, arc.sweep, 1e-12);
    ExpectPoint(100 + 50 * std::sqrt(0.5), 200 + 50 * std::sqrt(0.5), arc.ellipse.At(arc.from + arc.sweep / 2));
    // The other way round it is three quarters.
    arc = Outline(15, {100, 200, 0, 9, 5, 0, 50}).arc;
    EXPECT_NEAR(PI * 1.5, arc.sweep, 1e-12);
    // From below the x axis to above it: through it.
    arc = Outline(15, {0, 0, 1, -1, 1, 1, 10}).arc;
    EXPECT_NEAR(PI / 2, arc.sweep, 1e-12);
    ExpectPoint(10, 0, arc.ellipse.At(arc.from + arc.sweep / 2));
    // One direction in two lengths is the whole circle, the opposite one half of it.
    EXPECT_TRUE(Outline(15, {0, 0, 1, 2, 3, 6, 10}).arc.IsWhole());
    EXPECT_NEAR(PI, Outline(15, {0, 0, 1, 2, -3, -6, 10}).arc.sweep, 1e-12);

    CgmOutline outline;
    const int noDirection[] = {0, 0, 0, 0, 1, 1, 10};
    EXPECT_FALSE(OutlineOf(15, noDirection, outline));
    const int noRadius[] = {0, 0, 1, 0, 0, 1, 0};
    EXPECT_FALSE(OutlineOf(15, noRadius, outline));
}

TEST(CGMDrawingTest, EllipticalArcsTurnFromTheFirstDiameterToTheSecond)
{
    // First diameter along y, second along x: from y towards x.
    CgmArc arc = Outline(18, {0, 0, 0, 20, 30, 0, 0, 1, 1, 0}).arc;
    ExpectPoint(0, 20, arc.Start());
    ExpectPoint(30, 0, arc.End());
    EXPECT_NEAR(PI / 2, arc.sweep, 1e-12);
    EXPECT_LT(arc.ellipse.Turn(), 0);
    // The same rays with the diameters exchanged: the other three quarters.
    arc = Outline(18, {0, 0, 30, 0, 0, 20, 0, 1, 1, 0}).arc;
    ExpectPoint(0, 20, arc.Start());
    ExpectPoint(30, 0, arc.End());
    EXPECT_NEAR(PI * 1.5, arc.sweep, 1e-12);
    // Rays are directions, not parameters: (1,1) meets this ellipse where x equals y.
    arc = Outline(18, {0, 0, 30, 0, 0, 20, 1, 1, 0, 1}).arc;
    EXPECT_NEAR(arc.Start().x, arc.Start().y, 1e-9);
    EXPECT_NEAR(1, std::pow(arc.Start().x / 30, 2) + std::pow(arc.Start().y / 20, 2), 1e-12);
}

TEST(CGMDrawingTest, PathsSayWhichWayAndHowFar)
{
    const auto has = [](const char* aPath) { return HasSubstr(std::string("d=\"") + aPath + '"'); };
    EXPECT_THAT(Drawn(CgmElementBytes(4, 15, {100, 200, 5, 0, 0, 9, 50})), has("M 150,200 A 50 50 0 0 1 100,250"));
    EXPECT_THAT(Drawn(CgmElementBytes(4, 15, {100, 200, 0, 9, 5, 0, 50})), has("M 100,250 A 50 50 0 1 1 150,200"));
    EXPECT_THAT(Drawn(CgmElementBytes(4, 16, {100, 200, 5, 0, 0, 9, 50, 0})),
                has("M 150,200 A 50 50 0 0 1 100,250 L 100,200 Z"));
    EXPECT_THAT(Drawn(CgmElementBytes(4, 16, {100, 200, 5, 0, 0, 9, 50, 1})), has("M 150,200 A 50 50 0 0 1 100,250 Z"));
    EXPECT_THAT(Drawn(CgmElementBytes(4, 18, {0, 0, 0, 20, 30, 0, 0, 1, 1, 0})), has("M 0,20 A 30 20 0 0 0 30,0"));
    EXPECT_THAT(Drawn(CgmElementBytes(4, 19, {0, 0, 30, 0, 0, 20, 0, 1, 1, 0, 1})), has("M 0,20 A 30 20 0 1 1 30,0 Z"));
    EXPECT_EQ("", Drawn(CgmElementBytes(4, 18, {0, 0, 1, 1, 2, 2, 0, 1, 1, 0})));  // an ellipse without area
}

TEST(CGMDrawingTest, FiguresHaveTheirAttributes)
{
    const std::string style = CgmElementBytes(5, 4, "\x01\x02\x03") + CgmElementBytes(5, 3, {3}) +
                              CgmElementBytes(5, 29, "\xFF\x10\x20") + CgmElementBytes(5, 23, "\x30\x40\xA0") +
                              CgmElementBytes(5, 28, {4});
    const std::string dashed = CgmElementBytes(5, 2, {2}) + CgmElementBytes(5, 27, {2}) + CgmElementBytes(5, 22, {4});
    const std::string line = CgmElementBytes(4, 1, {1, -2, 3, 4});
    EXPECT_EQ("<polyline points=\"1,-2 3,4\" fill=\"none\" stroke=\"#010203\" stroke-width=\"3\"/>",
              Drawn(style + line));
    EXPECT_THAT(Drawn(style + dashed + line), HasSubstr("stroke-dasharray=\"14 10\""));
    const std::string filled = "fill=\"#3040a0\" fill-rule=\"evenodd\" stroke=\"#ff1020\" stroke-width=\"4\"/>";
    EXPECT_EQ("<polygon points=\"0,0 9,0 0,9\" " + filled, Drawn(style + CgmElementBytes(4, 7, {0, 0, 9, 0, 0, 9})));
    EXPECT_EQ("<polygon points=\"1,2 3,2 3,4 1,4\" " + filled, Drawn(style + CgmElementBytes(4, 11, {1, 2, 3, 4})));
    EXPECT_EQ("<ellipse cx=\"5\" cy=\"6\" rx=\"7\" ry=\"7\" " + filled,
              Drawn(style + CgmElementBytes(4, 12, {5, 6, 7})));
    EXPECT_EQ(
        "<ellipse cx=\"0\" cy=\"0\" rx=\"30\" ry=\"20\" transform=\"rotate(90 0 0)\" fill=\"none\" "
        "stroke=\"#ff1020\" stroke-width=\"4\" stroke-dasharray=\"18 13\"/>",
        Drawn(style + dashed + CgmElementBytes(4, 17, {0, 0, 20, 0, 0, 30})));
    EXPECT_EQ("<polygon points=\"-5,0 5,0\" " + filled, Drawn(style + CgmElementBytes(4, 17, {0, 0, 3, 0, 4, 0})));
}

TEST(CGMDrawingTest, TextsStandAsTheirOrientationSays)
{
    const auto text = [](const std::string& aBefore, const char* aText) {
        return Drawn(CgmElementBytes(1, 13, CgmText("HELVETICA_BOLD_OBLIQUE")) +
                     CgmElementBytes(5, 14, "\xFF\x80\x01") + CgmElementBytes(5, 15, {18}) + aBefore +
                     CgmElementBytes(4, 4, CgmWords({20, 25, 1}) + CgmText(aText)));
    };
    EXPECT_EQ(
        "<text x=\"20\" y=\"25\" font-family=\"Helvetica, Arial, sans-serif\" font-size=\"25\" font-weight=\"bold\" "
        "font-style=\"italic\" fill=\"#ff8001\" xml:space=\"preserve\">S\xC3\xBC&lt;d?</text>",
        text("", "S\xFC<d\x1B"));
    // Base line downwards, letters lying on their right side.
    EXPECT_THAT(text(CgmElementBytes(5, 16, {2, 0, 0, 2}), "x"),
                HasSubstr("<text transform=\"matrix(0 1 -1 0 20 25)\" "));
    // A base vector of twice the up vector: twice as wide.
    EXPECT_THAT(text(CgmElementBytes(5, 16, {0, -5, 10, 0}), "x"), HasSubstr("matrix(2 0 0 1 20 25)"));
    EXPECT_THAT(text(CgmElementBytes(5, 16, {0, 0, 0, 0}), "x"), HasSubstr("<text x=\"20\" y=\"25\" "));
    EXPECT_EQ("", text("", ""));
}

TEST(CGMDrawingTest, PicturesWhoseYRunsUpAreTurnedAboutTheirLocation)
{
    const std::string up = CgmElementBytes(2, 6, {0, 0, 32767, 32767});
    const std::string line = CgmElementBytes(4, 1, {10, 20, 30, 50});
    EXPECT_THAT(Svg(line, 7, -3.25), HasSubstr("<g transform=\"translate(7 -3.25)\">\n"));
    EXPECT_THAT(Svg(up + line, 7, 9), HasSubstr("<g transform=\"translate(7 9) scale(1 -1)\">\n"));
    EXPECT_THAT(Svg(up + CgmElementBytes(4, 4, CgmWords({1, 2, 1}) + CgmText("x"))), HasSubstr("matrix(1 0 0 -1 1 2)"));
    CGMDrawing::Bounds bounds;
    ASSERT_TRUE(CGMDrawing::GetBounds(Metafile(up + line), bounds));
    EXPECT_EQ(std::vector<double>({10, -50, 30, -20}),
              std::vector<double>({bounds.left, bounds.top, bounds.right, bounds.bottom}));
}

TEST(CGMDrawingTest, BoundsHoldArcsAndNoMore)
{
    const auto boundsOf = [](const std::string& aBytes) {
        CGMDrawing::Bounds b;
        EXPECT_TRUE(CGMDrawing::GetBounds(Metafile(aBytes), b));
        return std::vector<double>({b.left, b.top, b.right, b.bottom});
    };
    const auto near = [](double aLeft, double aTop, double aRight, double aBottom) {
        return testing::ElementsAre(testing::DoubleNear(aLeft, 1e-9), testing::DoubleNear(aTop, 1e-9),
                                    testing::DoubleNear(aRight, 1e-9), testing::DoubleNear(aBottom, 1e-9));
    };
    EXPECT_THAT(boundsOf(CgmElementBytes(4, 12, {5, 6, 7})), near(-2, -1, 12, 13));
    // A half circle through the positive y axis; as a pie its centre changes nothing, of a quarter it does.
    EXPECT_THAT(boundsOf(CgmElementBytes(4, 15, {0, 0, 1, 0, -1, 0, 10})), near(-10, 0, 10, 10));
    const double edge = 10 * std::sqrt(0.5);
    EXPECT_THAT(boundsOf(CgmElementBytes(4, 15, {0, 0, 1, 1, -1, 1, 10})), near(-edge, edge, edge, 10));
    EXPECT_THAT(boundsOf(CgmElementBytes(4, 16, {0, 0, 1, 1, -1, 1, 10, 0})), near(-edge, 0, edge, 10));
    EXPECT_THAT(boundsOf(CgmElementBytes(4, 17, {0, 0, 3, 0, 1, 2})), near(-std::sqrt(10), -2, std::sqrt(10), 2));
    CGMDrawing::Bounds none;
    EXPECT_FALSE(CGMDrawing::GetBounds(Metafile(""), none));
    EXPECT_EQ(0, none.right);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#include "segments/cgm/CGMGraphicPrimitives.h"
#include "tests/segments/cgm/CgmBytes.h"

#include <functional>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using Primitive = std::unique_ptr<NITFCGMGraphicPrimitive>;

std::string Encoded(const NITFCGMGraphicPrimitive& aPrimitive, CGMCnst::EncodingType aType)
{
    char* text = nullptr;
    const std::size_t length = aPrimitive.Encoding(&text, aType);
    std::string bytes(text == nullptr ? "(null)" : text, text == nullptr ? 6 : length);
    NITFCGMGraphicPrimitive::DeleteCString(text);
    EXPECT_EQ(nullptr, text);
    return bytes;
}

/// Attributes and geometry by chance, and the elements that set those attributes.
class Chance
{
public:
    explicit Chance(unsigned aSeed) : m_generator(aSeed)
    {
        for (std::vector<int>* const colour : {&line, &edge, &fill, &text}) {
            *colour = {Number(0, 255), Number(0, 255), Number(0, 255)};
        }
        orientation = {Word(), Word(), Word(), Word()};
    }

    int Number(int aLow, int aHigh) { return std::uniform_int_distribution<int>(aLow, aHigh)(m_generator); }
    int Word() { return Number(-32768, 32767); }
    std::vector<int> Words(int aCount)
    {
        std::vector<int> words(static_cast<std::size_t>(aCount));
        for (int& word : words) {
            word = Word();
        }
        return words;
    }
    std::string Characters(int aCount)
    {
        std::string characters(static_cast<std::size_t>(aCount), ' ');
        for (char& character : characters) {
            character = static_cast<char>(Number(0, 255));
        }
        return characters;
    }

    std::string Attributes() const
    {
        const auto colour = [](int aId, const std::vector<int>& aColour) {
            return CgmElementBytes(5, aId, std::string(aColour.begin(), aColour.end()));
        };
        return CgmElementBytes(1, 13, CgmText("SOME_FONT")) + CgmElementBytes(5, 10, {1}) + colour(4, line) +
               colour(29, edge) + colour(23, fill) + colour(14, text) + CgmElementBytes(5, 2, {type}) +
               CgmElementBytes(5, 3, {width}) + CgmElementBytes(5, 27, {type}) + CgmElementBytes(5, 28, {width}) +
               CgmElementBytes(5, 30, {1}) + CgmElementBytes(5, 22, {style}) + CgmElementBytes(5, 15, {height}) +
               CgmElementBytes(5, 16, {orientation[0], orientation[1], orientation[2], orientation[3]});
    }

private:
    std::mt19937 m_generator;

public:
    std::vector<int> line, edge, fill, text, orientation;
    int type = Number(1, 2);
    int width = Number(1, 32767);
    int style = Number(0, 1) == 0 ? 1 : 4;
    int height = Number(1, 32767);
};

std::vector<Primitive> OneOfEach(Chance& aChance)
{
    Chance& c = aChance;
    const int* const line = c.line.data();
    const int* const edge = c.edge.data();
    const int* const fill = c.fill.data();
    const int count = c.Number(3, c.Number(0, 9) == 0 ? 16383 : 50);
    const auto x = c.Words(count);
    const auto y = c.Words(count);
    const auto w = c.Words(11);
    const std::string text = c.Characters(c.Number(0, c.Number(0, 9) == 0 ? 65000 : 300));
    const int length = static_cast<int>(text.size());
    std::vector<Primitive> all;
    all.push_back(std::make_unique<CGMGraphicPrimitivePolyline>(line, x.data(), y.data(), c.type, c.width, count));
    all.push_back(std::make_unique<CGMGraphicPrimitivePolygon>(edge, fill, x.data(), y.data(), c.type, 1, c.width,
                                                               c.style, count));
    all.push_back(std::make_unique<CGMGraphicPrimitiveRectangle>(edge, fill, c.type, 1, c.width, c.style, w[0], w[1],
                                                                 w[2], w[3]));
    all.push_back(
        std::make_unique<CGMGraphicPrimitiveCircle>(edge, fill, c.type, 1, c.width, c.style, w[0], w[1], w[2]));
    all.push_back(std::make_unique<CGMGraphicPrimitiveEllipse>(edge, fill, c.type, 1, c.width, c.style, w[0], w[1],
                                                               w[2], w[3], w[4], w[5]));
    all.push_back(std::make_unique<CGMGraphicPrimitiveCircularArcCenter>(line, c.type, c.width, w[0], w[1], w[2], w[3],
                                                                         w[4], w[5], w[6]));
    all.push_back(std::make_unique<CGMGraphicPrimitiveCircularArcCenterClose>(
        edge, fill, c.type, 1, c.width, c.style, w[0], w[1], w[2], w[3], w[4], w[5], w[6], c.Number(0, 1)));
    all.push_back(std::make_unique<CGMGraphicPrimitiveEllipticalArc>(line, c.type, c.width, w[0], w[1], w[2], w[3],
                                                                     w[4], w[5], w[6], w[7], w[8], w[9]));
    all.push_back(std::make_unique<CGMGraphicPrimitiveEllipticalArcClose>(
        edge, fill, c.type, 1, c.width, c.style, w[0], w[1], w[2], w[3], w[4], w[5], w[6], w[7], w[8], w[9], w[10]));
    all.push_back(std::make_unique<CGMGraphicPrimitiveText>("SOME_FONT", text.c_str(), w.data(), c.text.data(),
                                                            c.height, c.orientation.data(), length));
    return all;
}

TEST(CGMGraphicPrimitivesTest, WhatEncodingWritesTheDecoderReadsBackToAnEqualObject)
{
    for (unsigned seed = 0; seed != 60; ++seed) {
        Chance chance(seed);
        const std::string attributes = chance.Attributes();
        for (const Primitive& primitive : OneOfEach(chance)) {
            const std::string element = Encoded(*primitive, CGMCnst::ENCODING_TYPE_BINARY);
            EXPECT_EQ(0U, element.size() % 2);
            const NITFCGMMetaFile metafile = Metafile(attributes + element);
            ASSERT_EQ(nullptr, metafile.GetFault()) << metafile.GetFault()->text;
            ASSERT_EQ(1U, metafile.GetAllGraphicalPrimitiveElements().size());
            const NITFCGMGraphicPrimitive& read = *metafile.GetAllGraphicalPrimitiveElements()[0];
            EXPECT_TRUE(NITFCGMMetaFile::Equal(*primitive, read))
                << seed << ": " << primitive->GetGraphicalPrimitiveElementCode();
            EXPECT_EQ(metafile.GetClearTextLine(metafile.GetNumOfClearTextLines() - 1),
                      "      " + Encoded(*primitive, CGMCnst::ENCODING_TYPE_CLEAR_TEXT));
        }
    }
}

TEST(CGMGraphicPrimitivesTest, CopiesAreEqualAndDifferentElementsAreNot)
{
    Chance chance(7);
    const auto all = OneOfEach(chance);
    Chance otherChance(8);
    const auto others = OneOfEach(otherChance);
    for (std::size_t i = 0; i != all.size(); ++i) {
        NITFCGMGraphicPrimitive* copy = nullptr;
        ASSERT_TRUE(NITFCGMMetaFile::CloneCGMGraphicalPrimitiveElement(all[i].get(), &copy));
        const Primitive owner(copy);
        const NITFCGMGraphicPrimitive& original = *all[i];
        EXPECT_EQ(typeid(original), typeid(*copy));
        for (std::size_t k = 0; k != all.size(); ++k) {
            EXPECT_EQ(i == k, NITFCGMMetaFile::Equal(*copy, *all[k])) << i << ' ' << k;
            EXPECT_FALSE(NITFCGMMetaFile::Equal(*copy, *others[k])) << i << ' ' << k;
        }
    }
    NITFCGMGraphicPrimitive* copy = nullptr;
    EXPECT_FALSE(NITFCGMMetaFile::CloneCGMGraphicalPrimitiveElement(nullptr, &copy));
    EXPECT_FALSE(NITFCGMMetaFile::CloneCGMGraphicalPrimitiveElement(all[0].get(), nullptr));

    // The same numbers, but a circle is no rectangle with its last number left out.
    const int black[] = {0, 0, 0};
    EXPECT_FALSE(NITFCGMMetaFile::Equal(CGMGraphicPrimitiveEllipse(black, black, 1, 1, 1, 1, 1, 2, 3, 4, 5, 6),
                                        CGMGraphicPrimitivePolygon(black, black, black, black, 1, 1, 1, 1, 3)));
    const int place[] = {1, 2};
    CGMGraphicPrimitiveText text("TIMES_ROMAN", "one", place, black, 5, -1, 1, 3);
    const CGMGraphicPrimitiveText other("TIMES_BOLD", "one", place, black, 5, -1, 1, 3);
    EXPECT_TRUE(text != other);
    text = other;
    EXPECT_TRUE(text == other);
    EXPECT_STREQ("TIMES_BOLD", text.GetTextFont());
}

TEST(CGMGraphicPrimitivesTest, GettersAnswerWhatTheConstructorTook)
{
    const int red[] = {255, 1, 2};
    const int green[] = {3, 255, 4};
    int n[11]{};
    const CGMGraphicPrimitiveCircularArcCenter arc(red, 2, 3, 10, 11, 12, 13, 14, 15, 16);
    arc.GetCircularArcAttributes(n[0], n[1], n[2], n[3], n[4], n[5], n[6]);
    EXPECT_EQ(std::vector<int>({10, 11, 12, 13, 14, 15, 16}), std::vector<int>(n, n + 7));
    arc.GetCircularArcEdgeColor(n[0], n[1], n[2]);
    EXPECT_EQ(std::vector<int>({255, 1, 2, 2, 3}),
              std::vector<int>({n[0], n[1], n[2], arc.GetCircularArcLineType(), arc.GetCircularArcLineWidth()}));

    const CGMGraphicPrimitiveEllipticalArcClose pie(red, green, 2, 0, 5, 4, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 1);
    pie.GetClosedEllipticalArcAttributes(n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10]);
    EXPECT_EQ(std::vector<int>({20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 1}), std::vector<int>(n, n + 11));
    pie.GetClosedEllipticalArcFillColor(n[0], n[1], n[2]);
    EXPECT_EQ(std::vector<int>({3, 255, 4}), std::vector<int>(n, n + 3));
    EXPECT_EQ(std::vector<int>({2, 0, 5, 4}),
              std::vector<int>({pie.GetClosedEllipticalArcEdgeType(), pie.GetClosedEllipticalArcEdgeVisibility(),
                                pie.GetClosedEllipticalArcEdgeWidth(), pie.GetClosedEllipticalArcInteriorStyle()}));
    EXPECT_EQ(CGMCnst::BinaryC4GraphicalPrimitive::CODE_ELLIPTICAL_ARC_CLOSE, pie.GetGraphicalPrimitiveElementCode());

    const int x[] = {1, 2, 3};
    const int y[] = {4, 5, 6};
    const CGMGraphicPrimitivePolygon polygon(red, green, x, y, 1, 1, 1, 1, 3);
    const int* xs = nullptr;
    const int* ys = nullptr;
    std::size_t count = 0;
    polygon.GetPolygonVertices(xs, ys, count);
    EXPECT_EQ(std::vector<int>({1, 2, 3}), std::vector<int>(xs, xs + count));
    EXPECT_EQ(std::vector<int>({4, 5, 6}), std::vector<int>(ys, ys + count));

    const CGMGraphicPrimitiveText text("F", "text", x, green, 9, -2, 3, 4);
    text.GetCharacterOrientation(n[0], n[1], n[2], n[3]);
    text.GetTextPosition(n[4], n[5]);
    EXPECT_EQ(std::vector<int>({0, -2, 3, 0, 1, 2}), std::vector<int>(n, n + 6));
    EXPECT_EQ(9, text.GetCharacterHeight());
}

TEST(CGMGraphicPrimitivesTest, ArgumentsThatNoElementCanHoldAreRefused)
{
    const int good[] = {0, 0, 0, 0};
    const int badColour[] = {0, 256, 0};
    const int far[] = {0, 32768, 0};
    EXPECT_THROW(CGMGraphicPrimitivePolyline(nullptr, good, good, 1, 1, 2), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolyline(good, nullptr, good, 1, 1, 2), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolyline(good, good, good, 1, 1, 1), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolyline(good, good, good, 1, 1, -1), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolyline(badColour, good, good, 1, 1, 2), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolygon(good, good, good, far, 1, 1, 1, 1, 3), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitivePolygon(good, good, good, good, 1, 1, 1, 1, 2), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitiveCircle(good, good, 1, 1, 1, 1, 0, 0, -32769), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitiveText(nullptr, "x", good, good, 1, -1, 1, 1), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitiveText("F", nullptr, good, good, 1, -1, 1, 1), std::invalid_argument);
    EXPECT_THROW(CGMGraphicPrimitiveText("F", "x", good, good, 1, -1, 1, -1), std::invalid_argument);

    // What is too long for an element has no binary form, but a clear text.
    const std::vector<int> many(16384);
    const CGMGraphicPrimitivePolyline longLine(good, many.data(), many.data(), 1, 1, 16384);
    EXPECT_EQ("(null)", Encoded(longLine, CGMCnst::ENCODING_TYPE_BINARY));
    EXPECT_EQ(5U + 16384 * 6, Encoded(longLine, CGMCnst::ENCODING_TYPE_CLEAR_TEXT).size());
    EXPECT_EQ("(null)", Encoded(longLine, static_cast<CGMCnst::EncodingType>(7)));
    EXPECT_EQ(0U, longLine.Encoding(nullptr, CGMCnst::ENCODING_TYPE_CLEAR_TEXT));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

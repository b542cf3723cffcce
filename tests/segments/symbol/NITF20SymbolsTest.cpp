#include "segments/symbol/NITF20BitmappedSymbol.h"
#include "segments/symbol/NITF20ObjectSymbol.h"
#include "tests/support/XmlCheck.h"

#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::HasSubstr;
using testing::Not;
using Tests::XmlFault;
using Bitmapped = NITF20BitmappedSymbol;
using Object = NITF20ObjectSymbol;

Bitmapped Symbol(char aColor, int aBits, long aRows, long aColumns, const std::string& aData,
                 const std::string& aLut = "")
{
    return {aColor, aBits, aRows, aColumns, 62, 170, aLut.data(), aLut.size(), aData.data(), aData.size()};
}

/// One letter per pixel: "." transparent, else by its red component.
std::string Picture(const Bitmapped& aSymbol)
{
    long rows = 0;
    long columns = 0;
    aSymbol.GetImageRowsAndColumns(rows, columns);
    std::string picture;
    for (long row = 0; row != rows; ++row) {
        for (long column = 0; column != columns; ++column) {
            const Bitmapped::Color color = aSymbol.GetPixelColor(row, column);
            picture += color.transparent ? '.' : static_cast<char>('0' + color.red % 10);
        }
        picture += '\n';
    }
    return picture;
}

TEST(NITF20BitmappedSymbolTest, ScolorHasItsDescription)
{
    EXPECT_STREQ("interpret 0=transparent, 1=blue", Bitmapped::GetSCOLORDescription('B'));
    EXPECT_STREQ("use color look-up table", Bitmapped::GetSCOLORDescription('C'));
    EXPECT_STREQ("use gray-scale look-up table", Bitmapped::GetSCOLORDescription('G'));
    EXPECT_STREQ("interpret 0=transparent, 1=black", Bitmapped::GetSCOLORDescription('K'));
    EXPECT_STREQ("interpret 0=black, 1=white", Bitmapped::GetSCOLORDescription('N'));
    EXPECT_STREQ("interpret 0=transparent, 1=orange", Bitmapped::GetSCOLORDescription('O'));
    EXPECT_STREQ("interpret 0=transparent, 1=red", Bitmapped::GetSCOLORDescription('R'));
    EXPECT_STREQ("interpret 0=transparent, 1=white", Bitmapped::GetSCOLORDescription('W'));
    EXPECT_STREQ("interpret 0=transparent, 1=yellow", Bitmapped::GetSCOLORDescription('Y'));
    for (const char other : {'X', 'b', ' ', '\0'}) {
        EXPECT_EQ(nullptr, Bitmapped::GetSCOLORDescription(other)) << other;
    }
}

TEST(NITF20BitmappedSymbolTest, PixelsFollowOneAnotherAcrossRows)
{
    // The bytes of a symbol in a conformance file: rows of seven bits without padding.
    const Bitmapped diamond = Symbol('K', 1, 7, 7, "\x10\x71\xF7\xF7\xC7\x04" + std::string(1, '\0'));
    EXPECT_EQ(
        "...0...\n"
        "..000..\n"
        ".00000.\n"
        "0000000\n"
        ".00000.\n"
        "..000..\n"
        "...0...\n",
        Picture(diamond));
    // Three bits each: 0 1 2 / 3 4 5 / 6 7, and one pixel that the data do not have.
    const std::string lut = "\x01..\x02..\x03..\x04..\x05..\x06..";
    const Bitmapped colors = Symbol('C', 3, 3, 3, "\x05\x39\x77", lut);
    EXPECT_EQ("123\n456\n...\n", Picture(colors));  // the table has no entries for 6 and 7
    int value = -1;
    EXPECT_TRUE(colors.GetPixelValue(2, 1, value));
    EXPECT_EQ(7, value);
    EXPECT_FALSE(colors.GetPixelValue(2, 2, value));
    EXPECT_FALSE(colors.GetPixelValue(-1, 0, value));
    EXPECT_FALSE(colors.GetPixelValue(0, 3, value));
    EXPECT_EQ(6U, colors.GetLUTSize());

    EXPECT_EQ("05\n", Picture(Symbol('N', 1, 1, 2, "\x40")));  // black and white
    EXPECT_EQ("75\n", Picture(Symbol('G', 8, 1, 2, std::string("\0\1", 2), "\x07\x05")));
    EXPECT_EQ("..\n", Picture(Symbol('X', 1, 1, 2, "\xFF")));
    EXPECT_EQ("", Picture(Symbol('K', 1, 0, 0, "")));
    EXPECT_EQ("..\n..\n", Picture(Symbol('K', 8, 2, 2, "")));
    EXPECT_THROW(Symbol('K', 0, 1, 1, ""), std::invalid_argument);
    EXPECT_THROW(Symbol('K', 9, 1, 1, ""), std::invalid_argument);
    EXPECT_THROW(Symbol('K', 1, -1, 1, ""), std::invalid_argument);
    EXPECT_THROW(Bitmapped('K', 1, 1, 1, 0, 0, nullptr, 0, nullptr, 1), std::invalid_argument);
    EXPECT_EQ(diamond, diamond);
    EXPECT_NE(diamond, Symbol('R', 1, 7, 7, "\x10\x71\xF7\xF7\xC7\x04" + std::string(1, '\0')));
}

TEST(NITF20BitmappedSymbolTest, DrawingAndXmlSayTheSame)
{
    const Bitmapped bar = Symbol('R', 1, 2, 4, "\x67");
    std::string svg;
    bar.AppendSvg(10, 20, svg);
    EXPECT_EQ(
        "<g transform=\"translate(10 20)\" shape-rendering=\"crispEdges\">\n"
        "<path fill=\"#ff0000\" d=\"M1,0h2v1h-2zM1,1h3v1h-3z\"/>\n"
        "</g>\n",
        svg);
    EXPECT_EQ("", XmlFault(svg));
    EXPECT_EQ(
        "  <BitmappedSymbol>\n"
        "    <SymbolColor value=\"C\">use color look-up table</SymbolColor>\n"
        "    <BitsPerPixel>2</BitsPerPixel>\n"
        "    <ImageRowColumn>2 4</ImageRowColumn>\n"
        "    <ULCornerCoordinates>\n"
        "      <ULPixelRowColumn unit=\"pixels\">62 170</ULPixelRowColumn>\n"
        "    </ULCornerCoordinates>\n"
        "    <ColorLUT size=\"2\">\n"
        "      <LUTRedComponent>1 255</LUTRedComponent>\n"
        "      <LUTGreenComponent>2 254</LUTGreenComponent>\n"
        "      <LUTBlueComponent>3 253</LUTBlueComponent>\n"
        "    </ColorLUT>\n"
        "  </BitmappedSymbol>\n",
        Symbol('C', 2, 2, 4, "", "\x01\x02\x03\xFF\xFE\xFD").Serialize("  "));
    EXPECT_THAT(Symbol('G', 2, 2, 4, "", "\x09\x0A").Serialize(""),
                HasSubstr("  <GrayScaleLUT size=\"2\">9 10</GrayScaleLUT>\n"));
    EXPECT_EQ("", XmlFault(Symbol('\x01', 2, 2, 4, "").Serialize("")));
}

Object::Fields ObjectFields(int aType)
{
    Object::Fields fields;
    fields.type = aType;
    fields.color = 'O';
    fields.height = 40;
    fields.width = 31;
    fields.lineWidth = 3;
    fields.row = 100;
    fields.column = 200;
    fields.secondRow = 150;
    fields.secondColumn = 260;
    fields.rotation = 30;
    return fields;
}

std::string SvgOf(const Object& aSymbol)
{
    std::string svg;
    aSymbol.AppendSvg(0, 0, svg);
    EXPECT_EQ("", XmlFault(svg)) << svg;
    return svg;
}

TEST(NITF20ObjectSymbolTest, EveryTypeHasItsNameGeometryAndDrawing)
{
    const std::string about = "transform=\"rotate(-30 200 100)\"";
    const std::string center = "<CenterCoordinates>\n    <RowColumn unit=\"pixels\">100 200</RowColumn>";
    const std::string turned = "<RotationAngle unit=\"degrees\" rotationPoint=\"center\">30</RotationAngle>";
    const struct
    {
        int type;
        const char* name;
        std::string xml;
        std::string svg;
    } cases[] = {
        {1, "solid line",
         "<BeginRowColumn unit=\"pixels\">100 200</BeginRowColumn>\n    <EndRowColumn unit=\"pixels\">150 260<",
         "<polyline points=\"200,100 260,150\""},
        {2, "dashed line (type 2)", "<DashedLineStyle>2</DashedLineStyle>", "stroke-dasharray"},
        {6, "dashed line (type 6)", "<LineWidth unit=\"pixels\">3</LineWidth>", "stroke-width=\"3\""},
        {10, "triangle", turned, "points=\"200,80 215.5,120 184.5,120\" " + about},
        {11, "rectangle", "<Width unit=\"pixels\">31</Width>", "points=\"184.5,80 215.5,80 215.5,120 184.5,120\" "},
        {12, "square", center, about},
        {13, "circle", "<Diameter unit=\"pixels\">40</Diameter>", "cx=\"200\" cy=\"100\" rx=\"20\" ry=\"20\""},
        {14, "ellipse",
         "<SemimajorAxis unit=\"pixels\">20</SemimajorAxis>\n  <SemiminorAxis unit=\"pixels\">15.5</SemiminorAxis>",
         "rx=\"15.5\" ry=\"20\" " + about},
        {15, "bracket", "rotationPoint=\"center of shaft\">30</RotationAngle>\n  <NibWidth unit=\"pixels\">31<",
         "points=\"231,80 200,80 200,120 231,120\" " + about},
        {16, "diamond", "<EdgeWidth unit=\"pixels\">3</EdgeWidth>", "points=\"200,80 215.5,100 200,120 184.5,100\""},
        {17, "hexagon", "<InteriorStyle>empty</InteriorStyle>", "points=\"192.25,80 207.75,80 215.5,100 "},
        {18, "arrow",
         "rotationPoint=\"bottom of vertical shaft\">30</RotationAngle>\n  <HeadElementsLength unit=\"pixels\">31<",
         "d=\"M 260,150 L 200,100 M "},
    };
    for (const auto& [type, name, xml, svg] : cases) {
        const Object symbol(ObjectFields(type));
        EXPECT_STREQ(name, symbol.GetObjectSymbolTypeName());
        const std::string element = symbol.Serialize("");
        EXPECT_EQ("", XmlFault(element)) << element;
        EXPECT_THAT(element, HasSubstr("<ObjectSymbol type=\"" + std::string(name) + "\">\n  <RGBColor>255 165 0<"));
        EXPECT_THAT(element, HasSubstr(xml));
        EXPECT_THAT(SvgOf(symbol), HasSubstr(svg));
        EXPECT_THAT(SvgOf(symbol), HasSubstr("fill=\"none\" stroke=\"#ffa500\""));
    }
    EXPECT_THAT(SvgOf(Object(ObjectFields(18))), HasSubstr("transform=\"rotate(-30 260 150)\""));
}

TEST(NITF20ObjectSymbolTest, NumbersWithoutShapeAndValuesOutOfRange)
{
    for (const int type : {-1, 0, 7, 8, 9, 19}) {
        EXPECT_EQ(nullptr, Object::GetObjectSymbolTypeName(type)) << type;
    }
    EXPECT_EQ("", SvgOf(Object(ObjectFields(8))));
    EXPECT_EQ("", XmlFault(Object(ObjectFields(8)).Serialize("")));
    for (long Object::Fields::*const length :
         {&Object::Fields::height, &Object::Fields::width, &Object::Fields::lineWidth}) {
        Object::Fields fields = ObjectFields(10);
        fields.*length = -1;
        EXPECT_THROW(Object{fields}, std::invalid_argument);
    }
    EXPECT_THROW(Object{ObjectFields(0)}, std::invalid_argument);
    EXPECT_THROW(Object{ObjectFields(19)}, std::invalid_argument);
    Object::Fields fields = ObjectFields(13);
    fields.rotation = 360;
    EXPECT_THROW(Object{fields}, std::invalid_argument);
    // A line as wide as the shape is high fills it; a line itself has nothing to fill.
    fields = ObjectFields(13);
    fields.lineWidth = fields.height;
    EXPECT_STREQ("solid color", Object(fields).GetInteriorStyle());
    EXPECT_THAT(SvgOf(Object(fields)), HasSubstr("fill=\"#ffa500\"/>"));
    fields.type = 1;
    EXPECT_STREQ("empty", Object(fields).GetInteriorStyle());
    EXPECT_THAT(Object(fields).Serialize(""), Not(HasSubstr("DashedLineStyle")));
    EXPECT_NE(Object(fields), Object(ObjectFields(1)));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

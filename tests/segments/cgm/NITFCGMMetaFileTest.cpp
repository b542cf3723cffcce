#include "foundation/CSMExceptions.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "segments/cgm/CGMGraphicPrimitives.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/XmlCheck.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::EndsWith;
using testing::HasSubstr;

/// A line of two points, to stand behind what is tested.
const std::string LINE = CgmElementBytes(4, 1, {1, 2, 3, -4});
const std::string FONTS = CgmElementBytes(1, 13, CgmText("TIMES_ROMAN") + CgmText("MY FONT"));

template<typename Primitive>
const Primitive& First(const NITFCGMMetaFile& aMetafile)
{
    return dynamic_cast<const Primitive&>(*aMetafile.GetAllGraphicalPrimitiveElements().at(0));
}

TEST(NITFCGMMetaFileTest, EveryElementOfTheTableHasItsClearText)
{
    const std::string colour("\xFF\x00\x80", 3);
    const std::string bytes =
        CgmElementBytes(0, 1, CgmText("A \"name\"")) + CgmElementBytes(1, 1, {1}) + CgmElementBytes(1, 11, {1, -1, 1}) +
        CgmElementBytes(1, 2, CgmText("NITF/CGM-APP-2.0.")) + FONTS + CgmElementBytes(0, 3, CgmText("")) +
        CgmElementBytes(2, 2, {1}) + CgmElementBytes(2, 3, {0}) + CgmElementBytes(2, 5, {0}) +
        CgmElementBytes(2, 6, {0, 32767, 32767, 0}) + CgmElementBytes(0, 4, "") + CgmElementBytes(5, 2, {2}) +
        CgmElementBytes(5, 3, {3}) + CgmElementBytes(5, 4, colour) + CgmElementBytes(5, 10, {2}) +
        CgmElementBytes(5, 14, colour) + CgmElementBytes(5, 15, {12}) + CgmElementBytes(5, 16, {0, -1, 1, 0}) +
        CgmElementBytes(5, 22, {4}) + CgmElementBytes(5, 23, colour) + CgmElementBytes(5, 27, {2}) +
        CgmElementBytes(5, 28, {4}) + CgmElementBytes(5, 29, colour) + CgmElementBytes(5, 30, {1}) + LINE +
        CgmElementBytes(4, 4, CgmWords({5, 6, 1}) + CgmText("N")) + CgmElementBytes(4, 7, {0, 0, 9, 0, 0, 9}) +
        CgmElementBytes(4, 11, {1, 2, 3, 4}) + CgmElementBytes(4, 12, {1, 2, 3}) +
        CgmElementBytes(4, 15, {1, 2, 3, 4, 5, 6, 7}) + CgmElementBytes(4, 16, {1, 2, 3, 4, 5, 6, 7, 1}) +
        CgmElementBytes(4, 17, {1, 2, 3, 4, 5, 6}) + CgmElementBytes(4, 18, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) +
        CgmElementBytes(4, 19, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0}) + CgmElementBytes(0, 5, "") +
        CgmElementBytes(0, 2, "");
    const NITFCGMMetaFile metafile = Metafile(bytes);
    EXPECT_EQ(
        "BEGMF \"A \"\"name\"\"\";\n"
        "MFVERSION 1;\n"
        "MFELEMLIST drawingplus;\n"
        "MFDESC NITF/CGM-APP-2.0.;\n"
        "FONTLIST TIMES_ROMAN \"MY FONT\";\n"
        "BEGPIC ;\n"
        "COLRMODE direct;\n"
        "LINEWIDTHMODE abs;\n"
        "EDGEWIDTHMODE abs;\n"
        "VDCEXT (0,32767) (32767,0);\n"
        "BEGPICBODY ;\n"
        "LINETYPE 2;\n"
        "LINEWIDTH 3;\n"
        "LINECOLR 255 0 128;\n"
        "TEXTFONTINDEX 2;\n"
        "TEXTCOLR 255 0 128;\n"
        "CHARHEIGHT 12;\n"
        "CHARORI 0 -1 1 0;\n"
        "INTSTYLE empty;\n"
        "FILLCOLR 255 0 128;\n"
        "EDGETYPE 2;\n"
        "EDGEWIDTH 4;\n"
        "EDGECOLR 255 0 128;\n"
        "EDGEVIS on;\n"
        "LINE (1,2) (3,-4);\n"
        "TEXT (5,6) final N;\n"
        "POLYGON (0,0) (9,0) (0,9);\n"
        "RECT (1,2) (3,4);\n"
        "CIRCLE (1,2) 3;\n"
        "ARCCTR (1,2) 3 4 5 6 7;\n"
        "ARCCTRCLOSE (1,2) 3 4 5 6 7 chord;\n"
        "ELLIPSE (1,2) (3,4) (5,6);\n"
        "ELLIPARC (1,2) (3,4) (5,6) 7 8 9 10;\n"
        "ELLIPARCCLOSE (1,2) (3,4) (5,6) 7 8 9 10 pie;\n"
        "ENDPIC ;\n"
        "ENDMF ;\n",
        ClearText(metafile));
    EXPECT_EQ(nullptr, metafile.GetFault());
    EXPECT_TRUE(metafile.HasEndOfMetafile());
    EXPECT_EQ(0U, metafile.GetNumNonNITFCGMCompliantInputs());
    EXPECT_EQ(10U, metafile.GetAllGraphicalPrimitiveElements().size());
    EXPECT_EQ("      BEGPICBODY ;", metafile.GetClearTextLine(10));
    EXPECT_EQ("", metafile.GetClearTextLine(36));
}

TEST(NITFCGMMetaFileTest, ValuesOutsideTheProfileAreReplacedAndCounted)
{
    const struct
    {
        std::string element;
        const char* line;
        std::size_t count;
    } cases[] = {
        {CgmElementBytes(5, 2, {5}), "LINETYPE 1;", 1},
        {CgmElementBytes(5, 2, {0}), "LINETYPE 1;", 1},
        {CgmElementBytes(5, 3, {0}), "LINEWIDTH 1;", 1},
        {CgmElementBytes(5, 3, {-7}), "LINEWIDTH 1;", 1},
        {CgmElementBytes(5, 27, {3}), "EDGETYPE 1;", 1},
        {CgmElementBytes(5, 28, {0}), "EDGEWIDTH 1;", 1},
        {CgmElementBytes(5, 30, {0}), "EDGEVIS on;", 1},
        {CgmElementBytes(5, 22, {0}), "INTSTYLE solid;", 1},
        {CgmElementBytes(5, 22, {3}), "INTSTYLE solid;", 1},
        {CgmElementBytes(5, 15, {0}), "CHARHEIGHT 10;", 1},
        {CgmElementBytes(2, 2, {0}), "COLRMODE direct;", 1},
        {CgmElementBytes(2, 3, {1}), "LINEWIDTHMODE abs;", 1},
        {CgmElementBytes(5, 3, {32767}), "LINEWIDTH 32767;", 0},
        {CgmElementBytes(1, 2, CgmText("Mine")), "MFDESC \"Mine\";", 1},
        // A length that is not the attribute's leaves the value before it, and is no value outside the profile.
        {CgmElementBytes(5, 3, {9}) + CgmElementBytes(5, 3, std::string("\x07", 1)), "LINEWIDTH 9;", 0},
        {CgmElementBytes(5, 29, {1, 2}), "EDGECOLR 0 0 0;", 0},
        {CgmElementBytes(5, 23, ""), "FILLCOLR 255 255 255;", 0},
        {CgmElementBytes(2, 6, {1, 2}), "VDCEXT (0,32767) (32767,0);", 0},
        {FONTS + CgmElementBytes(5, 10, {0}), "TEXTFONTINDEX 1;", 0},
        {FONTS + CgmElementBytes(5, 10, {-3}), "TEXTFONTINDEX 1;", 0},
    };
    for (const auto& [element, line, count] : cases) {
        const NITFCGMMetaFile metafile = Metafile(element + LINE);
        EXPECT_THAT(ClearText(metafile), HasSubstr(std::string(line) + "\nLINE")) << line;
        EXPECT_EQ(count, metafile.GetNumNonNITFCGMCompliantInputs()) << line;
        EXPECT_EQ(nullptr, metafile.GetFault()) << line;
    }
}

TEST(NITFCGMMetaFileTest, PrimitivesKeepTheAttributesThatHeldWhenTheyWereRead)
{
    const NITFCGMMetaFile metafile = Metafile(
        LINE + CgmElementBytes(5, 4, "\x01\x02\x03") + CgmElementBytes(5, 2, {2}) + CgmElementBytes(5, 3, {7}) + LINE +
        CgmElementBytes(5, 29, "\x04\x05\x06") + CgmElementBytes(5, 23, "\x07\x08\x09") + CgmElementBytes(5, 27, {2}) +
        CgmElementBytes(5, 28, {8}) + CgmElementBytes(5, 22, {4}) + CgmElementBytes(4, 12, {1, 2, 3}));
    const auto& primitives = metafile.GetAllGraphicalPrimitiveElements();
    ASSERT_EQ(3U, primitives.size());
    int red = -1;
    int green = -1;
    int blue = -1;
    const auto& before = dynamic_cast<const CGMGraphicPrimitivePolyline&>(*primitives[0]);
    before.GetPolylineColor(red, green, blue);
    EXPECT_EQ("0 0 0 1 1", std::to_string(red) + ' ' + std::to_string(green) + ' ' + std::to_string(blue) + ' ' +
                               std::to_string(before.GetPolylineType()) + ' ' +
                               std::to_string(before.GetPolylineWidth()));
    const auto& line = dynamic_cast<const CGMGraphicPrimitivePolyline&>(*primitives[1]);
    line.GetPolylineColor(red, green, blue);
    EXPECT_EQ("1 2 3 2 7", std::to_string(red) + ' ' + std::to_string(green) + ' ' + std::to_string(blue) + ' ' +
                               std::to_string(line.GetPolylineType()) + ' ' + std::to_string(line.GetPolylineWidth()));
    const auto& circle = dynamic_cast<const CGMGraphicPrimitiveCircle&>(*primitives[2]);
    circle.GetCircleEdgeColor(red, green, blue);
    EXPECT_EQ("4 5 6", std::to_string(red) + ' ' + std::to_string(green) + ' ' + std::to_string(blue));
    circle.GetCircleFillColor(red, green, blue);
    EXPECT_EQ("7 8 9", std::to_string(red) + ' ' + std::to_string(green) + ' ' + std::to_string(blue));
    EXPECT_EQ(2, circle.GetCircleEdgeType());
    EXPECT_EQ(1, circle.GetCircleEdgeVisibility());
    EXPECT_EQ(8, circle.GetCircleEdgeWidth());
    EXPECT_EQ(4, circle.GetCircleInteriorStyle());
}

TEST(NITFCGMMetaFileTest, LongFormsPadsAndUnknownElementsKeepTheReaderInStep)
{
    // 256 bytes of an unknown element, an odd length with its pad, control, escape, and unknown ids of known classes.
    const std::string bytes = CgmElementBytes(9, 100, std::string(256, 'x')) + CgmElementBytes(3, 3, "odd") +
                              CgmElementBytes(6, 1, {1, 2}) + CgmElementBytes(2, 99, "a") + CgmElementBytes(5, 99, "") +
                              CgmElementBytes(0, 0, "") + CgmElementBytes(1, 4, {16}) +
                              CgmElementBytes(4, 8, std::string(12, '\0')) + LINE +
                              CgmElementBytes(5, 3, CgmWords({5}), true) + LINE;
    const NITFCGMMetaFile metafile = Metafile(bytes);
    EXPECT_EQ("LINE (1,2) (3,-4);\nLINEWIDTH 5;\nLINE (1,2) (3,-4);\n", ClearText(metafile));
    EXPECT_EQ(nullptr, metafile.GetFault());
    EXPECT_FALSE(metafile.HasEndOfMetafile());
    EXPECT_EQ(1U, metafile.GetNumSkippedGraphicalPrimitives());

    // The length word is taken whole: its top bit is no flag.
    const NITFCGMMetaFile wide = Metafile(CgmWords({0x40FF, 0x8004 - 0x10000}) + std::string(0x8004, '\0') + LINE);
    EXPECT_EQ(nullptr, wide.GetFault());
    EXPECT_EQ("POLYGON (0,0) (0,0)", ClearText(wide).substr(0, 19));
    EXPECT_EQ(2U, wide.GetAllGraphicalPrimitiveElements().size());
}

TEST(NITFCGMMetaFileTest, AFaultKeepsWhatStandsBeforeItAndSaysWhere)
{
    const auto text = [](int aFinal, const std::string& aTexts) {
        return CgmElementBytes(4, 4, CgmWords({1, 2, aFinal}) + aTexts);
    };
    const struct
    {
        std::string element;
        int elementClass;
        int id;
        const char* reason;
    } cases[] = {
        {CgmElementBytes(4, 1, {1, 2}), 4, 1,
         "LINE (class 4, id 1) at byte offset 10 of the metafile: its parameters "
         "take 4 byte(s), at least 8 byte(s) are needed."},
        {CgmElementBytes(4, 1, {1, 2, 3, 4, 5}), 4, 1, "no whole number of points"},
        {CgmElementBytes(4, 7, {1, 2, 3, 4}), 4, 7, "8 byte(s), at least 12"},
        {CgmElementBytes(4, 11, {1, 2, 3}), 4, 11, "6 byte(s), 8 byte(s) are expected"},
        {CgmElementBytes(4, 12, {1, 2, 3, 4}), 4, 12, "8 byte(s), 6"},
        {CgmElementBytes(4, 15, {1, 2, 3}), 4, 15, "6 byte(s), 14"},
        {CgmElementBytes(4, 16, {1, 2, 3, 4, 5, 6, 7}), 4, 16, "14 byte(s), 16"},
        {CgmElementBytes(4, 17, {1}), 4, 17, "2 byte(s), 12"},
        {CgmElementBytes(4, 18, {1}), 4, 18, "2 byte(s), 20"},
        {CgmElementBytes(4, 19, {1}), 4, 19, "2 byte(s), 22"},
        {text(0, CgmText("no")), 4, 4, "part of a text"},
        {text(1, ""), 4, 4, "6 byte(s), at least 7"},
        {text(1, CgmText("ok") + "\x05no"), 4, 4, "longer than what is left"},
        {text(1, "\xFF" + CgmWords({0x8001}) + "a"), 4, 4, "longer than what is left"},
        {CgmElementBytes(5, 10, std::string(1, '\1')), 5, 10, "1 byte(s), 2"},
        {CgmWords({0x7C24}), 7, 97,
         "CGM element (class 7, id 97) at byte offset 10 of the metafile: its parameters "
         "take 4 byte(s), 0 byte(s) are left."},
        {CgmWords({0x403F, 0x7FFF}) + "xx", 4, 1, "take 32767 byte(s), 2 byte(s) are left"},
        {CgmWords({0x403F}), 4, 1, "the length of its parameters is missing"},
        {"\x40", -1, -1, "CGM element at byte offset 10 of the metafile: one byte is left of it."},
    };
    for (const auto& [element, elementClass, id, reason] : cases) {
        const NITFCGMMetaFile metafile = Metafile(LINE + element);
        ASSERT_NE(nullptr, metafile.GetFault()) << reason;
        EXPECT_THAT(metafile.GetFault()->text, HasSubstr(reason));
        EXPECT_EQ(elementClass, metafile.GetFault()->elementClass) << reason;
        EXPECT_EQ(id, metafile.GetFault()->elementId) << reason;
        EXPECT_EQ(10U, metafile.GetFault()->offset) << reason;
        EXPECT_EQ(1U, metafile.GetAllGraphicalPrimitiveElements().size()) << reason;
        EXPECT_EQ("LINE (1,2) (3,-4);\n", ClearText(metafile)) << reason;
    }
}

TEST(NITFCGMMetaFileTest, TextsComeInOneOrMorePiecesWithTheFontOfTheList)
{
    const std::string place = CgmWords({1, 2, 1});
    const auto read = [&](const std::string& aBefore, const std::string& aTexts) {
        return Metafile(aBefore + CgmElementBytes(4, 4, place + aTexts));
    };
    const auto textOf = [](const NITFCGMMetaFile& aMetafile) {
        std::size_t length = 0;
        const char* const text = First<CGMGraphicPrimitiveText>(aMetafile).GetTextString(length);
        return std::string(text, length);
    };
    EXPECT_EQ("", textOf(read("", CgmText(""))));
    EXPECT_EQ("two parts", textOf(read("", CgmText("two ") + CgmText("parts"))));
    EXPECT_EQ(std::string(300, 'x') + "yz", textOf(read("", "\xFF" + CgmWords({0x8000 + 300}) + std::string(300, 'x') +
                                                                CgmWords({1}) + "y" + CgmText("z"))));
    EXPECT_EQ(std::string("a\0b", 3), textOf(read("", CgmText({"a\0b", 3}))));

    const auto fontOf = [&](const std::string& aBefore) {
        return std::string(First<CGMGraphicPrimitiveText>(read(aBefore, CgmText("x"))).GetTextFont());
    };
    EXPECT_EQ("COURIER_BOLD", fontOf(""));
    EXPECT_EQ("TIMES_ROMAN", fontOf(FONTS));
    EXPECT_EQ("MY FONT", fontOf(FONTS + CgmElementBytes(5, 10, {2})));

    // An index that the list does not have is a fault at the end: the list may come late.
    EXPECT_EQ(nullptr, Metafile(CgmElementBytes(5, 10, {2}) + FONTS).GetFault());
    const NITFCGMMetaFile beyond = read(FONTS + CgmElementBytes(5, 10, {3}), CgmText("x"));
    ASSERT_NE(nullptr, beyond.GetFault());
    EXPECT_THAT(beyond.GetFault()->text, HasSubstr("(class 5, id 10) at byte offset 22"));
    EXPECT_THAT(beyond.GetFault()->text, EndsWith("its index is 3, the font list has 2 font(s)."));
    EXPECT_EQ(1U, beyond.GetAllGraphicalPrimitiveElements().size());
}

TEST(NITFCGMMetaFileTest, CharactersStandUprightInTheirPictureUnlessItSaysOtherwise)
{
    const std::string text = CgmElementBytes(4, 4, CgmWords({1, 2, 1}) + CgmText("x"));
    const auto upOf = [](const NITFCGMMetaFile& aMetafile) {
        int up[4]{};
        First<CGMGraphicPrimitiveText>(aMetafile).GetCharacterOrientation(up[0], up[1], up[2], up[3]);
        EXPECT_EQ(0, up[0]);
        EXPECT_EQ(1, up[2]);
        return up[1];
    };
    EXPECT_EQ(-1, upOf(Metafile(text)));
    EXPECT_EQ(-1, upOf(Metafile(CgmElementBytes(2, 6, {0, 32767, 32767, 0}) + text)));
    EXPECT_EQ(1, upOf(Metafile(CgmElementBytes(2, 6, {0, 0, 32767, 32767}) + text)));
    EXPECT_EQ(5, upOf(Metafile(CgmElementBytes(5, 16, {0, 5, 1, 0}) + CgmElementBytes(2, 6, {0, 9, 9, 0}) + text)));
}

TEST(NITFCGMMetaFileTest, LevelsAndLocationsAreCheckedAndPlaced)
{
    const std::string line = LINE;
    const auto make = [&](long aAttachment, long aDisplay, long aRow, long aColumn) {
        return NITFCGMMetaFile(line.data(), aAttachment, aDisplay, aRow, aColumn, line.size());
    };
    EXPECT_THROW(NITFCGMMetaFile(static_cast<const char*>(nullptr), 0, 1, 0, 0, 0), std::invalid_argument);
    EXPECT_THROW(make(-1, 1, 0, 0), std::invalid_argument);
    EXPECT_THROW(make(0, -1, 0, 0), std::invalid_argument);
    EXPECT_THROW(make(2, 2, 0, 0), std::invalid_argument);
    EXPECT_THROW(make(0, 0, 0, 0), std::invalid_argument);
    EXPECT_THROW(make(0, 1, -1, 0), std::invalid_argument);
    try {
        make(0, 1, 0, -1);
        ADD_FAILURE();
    } catch (const std::invalid_argument& failure) {
        EXPECT_STREQ("ERROR: Invalid input argument(s).", failure.what());
    }

    long row = 0;
    long column = 0;
    NITFCGMMetaFile attached = make(1, 2, -10, 5);
    EXPECT_FALSE(attached.GetAbsCCS(row, column));
    attached.SetCCSOffsetValues(100, 200);
    EXPECT_TRUE(attached.GetAbsCCS(row, column));
    EXPECT_EQ(190, row);
    EXPECT_EQ(105, column);
    EXPECT_TRUE(attached.GetRelCCS(row, column));
    EXPECT_EQ(-10, row);
    EXPECT_EQ(5, column);
    long box[4]{};
    EXPECT_TRUE(attached.GetCommonCoordinateSys(box[0], box[1], box[2], box[3], row, column));
    EXPECT_THAT(box, testing::ElementsAre(186, 106, 192, 108));  // from (1,2) to (3,-4)
    EXPECT_EQ(190, row);

    NITFCGMMetaFile alone = make(0, 2, 7, 8);
    alone.SetCCSOffsetValues(100, 200);
    EXPECT_TRUE(alone.GetAbsCCS(row, column));
    EXPECT_EQ(7, row);
    EXPECT_EQ(2, alone.GetGraphicDisplayLevel());
    EXPECT_EQ(1, attached.GetGraphicAttachmentLevel());

    EXPECT_TRUE(alone != attached);
    const NITFCGMMetaFile copy(attached);
    alone = copy;
    EXPECT_TRUE(alone == attached);
    EXPECT_EQ(ClearText(alone), ClearText(attached));
    EXPECT_TRUE(NITFCGMMetaFile::Equal(*alone.GetAllGraphicalPrimitiveElements().at(0),
                                       *attached.GetAllGraphicalPrimitiveElements().at(0)));
    std::size_t size = 0;
    const char* const raw = alone.GetRawCGMDataStream(size);
    EXPECT_EQ(LINE, std::string(raw, size));
}

TEST(NITFCGMMetaFileTest, ReadsTheDataOfASegmentAndRefusesWhatTheFileDoesNotHold)
{
    std::FILE* const file = std::tmpfile();
    ASSERT_NE(nullptr, file);
    const std::string bytes = "header" + LINE;
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    NITFStdDataSegmentInfo info;
    info.SetSegmentDataStart(6);
    info.SetSegmentDataSize(LINE.size());
    EXPECT_EQ("LINE (1,2) (3,-4);\n", ClearText(NITFCGMMetaFile(&info, 0, 1, 0, 0, file)));
    EXPECT_THROW(NITFCGMMetaFile(nullptr, 0, 1, 0, 0, file), std::invalid_argument);
    EXPECT_THROW(NITFCGMMetaFile(&info, 0, 1, 0, 0, static_cast<std::FILE*>(nullptr)), std::invalid_argument);
    info.SetSegmentDataSize(UINT64_MAX - 3);
    EXPECT_THROW(NITFCGMMetaFile(&info, 0, 1, 0, 0, file), FileAccessException);
    std::fclose(file);
}

TEST(NITFCGMMetaFileTest, TheXmlElementHoldsEveryLineWhateverTheBytes)
{
    const auto xmlOf = [](const NITFCGMMetaFile& aMetafile) {
        char* text = nullptr;
        EXPECT_TRUE(aMetafile.Serialize(&text, "    "));
        const std::string xml = text;
        NITFCGMMetaFile::DeleteCString(text);
        EXPECT_EQ("", XmlFault(xml)) << xml;
        return xml;
    };
    EXPECT_EQ("    <CGMMetafile>\n    </CGMMetafile>\n", xmlOf(Metafile("")));
    EXPECT_EQ(
        "    <CGMMetafile>\n"
        "            BEGMF a&lt;&amp;\xC3\xA9;\n"
        "            LINE (1,2) (3,-4);\n"
        "    </CGMMetafile>\n",
        xmlOf(Metafile(CgmElementBytes(0, 1, CgmText("a<&\xE9")) + LINE)));
    EXPECT_EQ("    <CGMMetafile base64Encoded=\"T\">ICAgICAgQkVHTUYgABs7Cg==</CGMMetafile>\n",
              xmlOf(Metafile(CgmElementBytes(0, 1, CgmText({"\0\x1B", 2})))));
    EXPECT_FALSE(Metafile("").Serialize(nullptr, ""));
}

TEST(NITFCGMMetaFileTest, EveryPrefixAndEveryChangedByteIsAnswered)
{
    std::string bytes = FONTS + CgmElementBytes(5, 10, {1}) + CgmElementBytes(5, 29, "\x01\x02\x03") + LINE +
                        CgmElementBytes(4, 4, CgmWords({1, 2, 1}) + CgmText("text")) +
                        CgmElementBytes(4, 19, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 0}) + CgmElementBytes(0, 2, "");
    const std::string whole = ClearText(Metafile(bytes));
    for (std::size_t size = 0; size != bytes.size(); ++size) {
        const NITFCGMMetaFile metafile = Metafile(bytes.substr(0, size));
        EXPECT_TRUE(whole.starts_with(ClearText(metafile))) << size;
    }
    for (char& byte : bytes) {
        for (const char other : {'\0', '\x1F', '\x7F', '\xFF'}) {
            const char kept = std::exchange(byte, other);
            const NITFCGMMetaFile metafile = Metafile(bytes);
            EXPECT_LE(metafile.GetAllGraphicalPrimitiveElements().size(), metafile.GetNumOfClearTextLines());
            char* xml = nullptr;
            EXPECT_TRUE(metafile.Serialize(&xml, ""));
            NITFCGMMetaFile::DeleteCString(xml);
            byte = kept;
        }
    }
}

TEST(NITFCGMMetaFileTest, WorkGrowsWithTheBytes)
{
    const auto secondsFor = [](const std::string& aElement, std::size_t aCount) {
        std::string bytes;
        for (std::size_t i = 0; i != aCount; ++i) {
            bytes += aElement;
        }
        const auto start = std::chrono::steady_clock::now();
        const NITFCGMMetaFile metafile = Metafile(bytes);
        EXPECT_EQ(nullptr, metafile.GetFault());
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    };
    // A million elements; pictures that never end; a thousand empty long forms; a text of a thousand empty pieces. The
    // bounds leave room for sanitizers: what they find is work that grows with the square.
    EXPECT_LT(secondsFor(CgmElementBytes(5, 3, {2}), 1000000), 10);
    EXPECT_LT(secondsFor(CgmElementBytes(0, 3, "") + CgmElementBytes(0, 4, ""), 500000), 10);
    EXPECT_LT(secondsFor(LINE, 500000), 10);
    EXPECT_LT(secondsFor(CgmElementBytes(4, 99, "", true), 1000), 1);
    std::string pieces = "\xFF";
    for (int i = 0; i != 1000; ++i) {
        pieces += CgmWords({0x8000});
    }
    EXPECT_LT(secondsFor(CgmElementBytes(4, 4, CgmWords({1, 2, 1}) + pieces + CgmWords({0})), 100), 1);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

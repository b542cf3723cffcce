#include "foundation/CSMExceptions.h"
#include "segments/cgm/CGMDrawing.h"
#include "segments/label/NITF20LabelData.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/XmlCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::HasSubstr;

const std::uint8_t INK[] = {1, 2, 255};
const std::uint8_t PAPER[] = {250, 251, 252};

NITF20LabelData Label(const std::string& aText, int aHeight = 0, int aWidth = 0)
{
    return {aText.data(), aText.size(), INK, PAPER, aHeight, aWidth, -20, 160};
}

TEST(NITF20LabelDataTest, BecomesAMetafileInCourierBold)
{
    const std::string bytes = Label("Label 3").ConvertToCGM(3);
    const NITFCGMMetaFile metafile = Metafile(bytes);
    EXPECT_EQ(nullptr, metafile.GetFault());
    EXPECT_EQ(0U, metafile.GetNumNonNITFCGMCompliantInputs());
    EXPECT_THAT(ClearText(metafile),
                HasSubstr("BEGMF \"NITF Version 2.0 Label Segment converted into CGM [Label Segment #3]\";\n"));
    EXPECT_THAT(ClearText(metafile), HasSubstr("BEGPIC \"NITF Version 2.0 Label Segment text data.\";\n"));
    EXPECT_THAT(ClearText(metafile), HasSubstr("FONTLIST COURIER_BOLD;\n"));
    EXPECT_THAT(ClearText(metafile), HasSubstr("TEXTCOLR 1 2 255;\n"));
    EXPECT_THAT(ClearText(metafile), HasSubstr("TEXT (0,12) final \"Label 3\";\n"));
    // The letters stay inside the cell.
    const std::string high = ClearText(Metafile(Label("x", 40).ConvertToCGM(1)));
    EXPECT_THAT(high, HasSubstr("CHARHEIGHT 28;\n"));
    EXPECT_THAT(high, HasSubstr("TEXT (0,34) final x;\n"));
    EXPECT_THAT(ClearText(Metafile(Label("x", 40, 9).ConvertToCGM(1))), HasSubstr("CHARHEIGHT 9;\n"));
    EXPECT_NE("", Label(std::string(320, 'x'), 1).ConvertToCGM(1));
    EXPECT_NE("", Label("").ConvertToCGM(1));
    EXPECT_EQ("", Label(std::string(70000, 'x')).ConvertToCGM(1));
}

TEST(NITF20LabelDataTest, XmlAndBackgroundHoldWhatTheFileSays)
{
    EXPECT_EQ(
        " <LabelData>\n"
        "   <LabelBackgroundRGBColor>250 251 252</LabelBackgroundRGBColor>\n"
        "   <LabelTextRGBColor>1 2 255</LabelTextRGBColor>\n"
        "   <LabelCellHeightWidth unit=\"pixels\">20 9</LabelCellHeightWidth>\n"
        "   <ULCornerCoordLabelBoundingBox>\n"
        "     <ULBoundingBoxRowColumn unit=\"pixels\">-20 160</ULBoundingBoxRowColumn>\n"
        "   </ULCornerCoordLabelBoundingBox>\n"
        "   <Data size=\"3\">a&lt;b</Data>\n"
        " </LabelData>\n",
        Label("a<b", 20, 9).Serialize(" "));
    EXPECT_EQ("", XmlFault(Label(std::string("\0\xFF", 2)).Serialize("")));
    std::string svg;
    Label("abc", 20, 9).AppendBackgroundSvg(5, 6, svg);
    EXPECT_EQ("<rect x=\"5\" y=\"6\" width=\"27\" height=\"20\" fill=\"#fafbfc\"/>\n", svg);

    int height = 0;
    int width = 0;
    const NITF20LabelData label = Label("abc", 20, 9);
    label.GetLabelCellHeightAndWidth(height, width);
    EXPECT_EQ(20, height);
    EXPECT_EQ(9, width);
    EXPECT_EQ(label, Label("abc", 20, 9));
    EXPECT_NE(label, Label("abd", 20, 9));
}

TEST(NITF20LabelDataTest, RefusesWhatIsNoLabel)
{
    try {
        NITF20LabelData(nullptr, 0, INK, PAPER, 1, 1, 0, 0);
        ADD_FAILURE();
    } catch (const InitializationException& failure) {
        EXPECT_STREQ("ERROR: NULL/invalid input argument(s).", failure.GetAdditionalMessage());
        EXPECT_STREQ("NITF20LabelData::InitNITF20LabelData", failure.GetSource());
    }
    EXPECT_THROW(NITF20LabelData("x", 1, nullptr, PAPER, 1, 1, 0, 0), InitializationException);
    EXPECT_THROW(NITF20LabelData("x", 1, INK, nullptr, 1, 1, 0, 0), InitializationException);
    for (const int size : {-1, 100}) {
        try {
            NITF20LabelData("x", 1, INK, PAPER, size, 1, 0, 0);
            ADD_FAILURE();
        } catch (const InitializationException& failure) {
            EXPECT_STREQ("ERROR: Unable to construct a NITF20LabelData object based on the input arguments.",
                         failure.GetAdditionalMessage());
        }
        EXPECT_THROW(NITF20LabelData("x", 1, INK, PAPER, 1, size, 0, 0), InitializationException);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#include "fields/FindingList.h"

#include <gtest/gtest.h>

using namespace ORMO::SensorModel::CSM;
using namespace ORMO::SensorModel::CSM::Detail;

TEST(FindingListTest, ALineSaysWhatAndWhereAndCarriesNoControlByte)
{
    Finding finding = MakeFinding(Finding::Level::Error, "ERROR: Missing required field", "BANDSA", "COUNT");
    EXPECT_EQ("ERROR: Missing required field BANDSA::COUNT", finding.Line());
    finding.segment = "ImageSegment";
    finding.index = 2;
    finding.tre = "BANDSA";
    finding.turn = 1;
    finding.area = "IXSHD";
    finding.offset = 1288;
    finding.value = "\x1B[31m";
    finding.allowed = "01..99";
    EXPECT_EQ(
        "ERROR: Missing required field BANDSA::COUNT [ImageSegment 2, TRE BANDSA 1, IXSHD at byte offset 1288: value "
        "0x1B5B33316D, allowed 01..99]",
        finding.Line());
    finding.sentence = "ERROR: one\r\ntwo\x9B";
    EXPECT_TRUE(finding.Line().starts_with("ERROR: one\\x0D\\x0Atwo\\x9B "));
}

TEST(FindingListTest, TextsOfOperationsStandInPlaceOfTheLineAndAreJoinedByBlankLines)
{
    FindingList list;
    list.Add(MakeFinding("WARN: First."), "WARN: First.\n\nwith its bytes");
    const FindingMark mark = list.Now();
    list.Add(MakeFinding("ERROR: Second."));
    list.Add(MakeFinding("WARN: Third."));
    list.PlaceAt(mark, "TextSegment", 4);
    EXPECT_EQ("WARN: First.\n\nwith its bytes\n\nWARN: Third.\n[TextSegment 4]", list.Blocks(false));
    EXPECT_EQ("WARN: First.\nWARN: Third. [TextSegment 4]", list.Lines(false));
    EXPECT_EQ("WARN: Third.\n[TextSegment 4]", list.Blocks(false, mark));
    EXPECT_EQ("ERROR: Second. [TextSegment 4]", list.Lines(true));
    EXPECT_EQ(1U, list.Errors());
    EXPECT_EQ(1U, list.Warnings(mark));
}

TEST(FindingListTest, CountsWithoutEndButKeepsABoundedNumberAndText)
{
    FindingList list;
    std::size_t made = 0;
    for (int i = 0; i != 1'000'000; ++i) {
        list.AddMade(Finding::Level::Warning, "", [&made](FindingList& aList) {
            ++made;
            aList.Add(MakeFinding("WARN: x"));
        });
    }
    EXPECT_EQ(1'000'000U, list.Warnings());
    EXPECT_EQ(FindingList::MOST, made);
    EXPECT_TRUE(list.Lines(false).ends_with("\nWARN: 999000 further messages are left out."));

    FindingList large;
    for (int i = 0; i != 1000; ++i) {
        large.Add(MakeFinding("ERROR: y"), std::string(2000, 'y'));
    }
    EXPECT_EQ(1000U, large.Errors());
    EXPECT_LT(large.Blocks(true).size(), FindingList::MOST_TEXT + 4096);
    list.Add(large);
    EXPECT_EQ(1000U, list.Errors());
    EXPECT_EQ(1'001'000U, list.Count());
}

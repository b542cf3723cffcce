#include "foundation/CSMExceptions.h"
#include "segments/NITFStdDataSegment.h"
#include "segments/fileheader/NITF21FileHeader.h"
#include "tests/support/Refusal.h"
#include "tre/TREFactory.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::ElementsAre;
using Tests::RefusalOf;

/// The smallest segment, with all that derived classes are given.
class Segment : public NITFStdDataSegment
{
public:
    explicit Segment(const char* aVersion = "NITF02.10",
                     NITFCnst::DataSegmentType aKind = NITFCnst::DATA_SEGMENT_TYPE_TEXT)
        : NITFStdDataSegment(aVersion, aKind)
    {
    }
    Segment(const Segment& aOther) : NITFStdDataSegment(aOther), editability(aOther.editability) {}
    Segment& operator=(const Segment& aOther)
    {
        Assign(aOther);
        return *this;
    }
    using NITFStdDataSegment::operator=;
    using NITFStdDataSegment::operator==;
    bool operator==(const Segment& aOther) const { return NITFStdDataSegment::operator==(aOther); }

    const FieldTexts* GetFieldEditabilityMap() const override { return hasMap ? &editability : nullptr; }
    Util::CSMCnst::DataType GetFieldValueDataType(const char*) const override
    {
        return Util::CSMCnst::DATA_TYPE_UNKNOWN;
    }
    const char* SerializeDataSegment(const char*) override { return nullptr; }
    const std::vector<const char*>* GetAllFieldTags() const override { return nullptr; }

    using NITFStdDataSegment::AddError;
    using NITFStdDataSegment::AddWarning;
    using NITFStdDataSegment::ClearMessages;
    using NITFStdDataSegment::CloneOverflowTREs;
    using NITFStdDataSegment::SetCCSOffsets;
    using NITFStdDataSegment::SetContainsEmbeddedBinaryData;
    using NITFStdDataSegment::SetLevels;
    using NITFStdDataSegment::SetNITFStdDataSegmentInfo;
    using NITFStdDataSegment::Swap;

    bool hasMap = true;
    FieldTexts editability{{"YES", "true"}, {"LOUD", "TRUE"}, {"NO", "F"}, {"EMPTY", ""}};
};

bool AddTre(Segment& aSegment, const char* aTag, const std::string& aData)
{
    TRE* tre = nullptr;
    TREFactory::Create(aTag, aData.c_str(), TRE::TRE_TYPE_UNKNOWN, &tre, false, false, nullptr, aData.size());
    const bool added = aSegment.AddOverflowTRE(tre);
    TREFactory::Destroy(&tre);
    return added;
}

/// The data lengths of TREs that are handed out as an array, which is freed.
std::vector<std::size_t> Lengths(const TRE**& aArray, std::size_t aCount)
{
    std::vector<std::size_t> lengths;
    for (std::size_t i = 0; i != aCount; ++i) {
        lengths.push_back(aArray[i]->GetLengthOfDataField());
    }
    NITFStdDataSegment::DeleteTREPointerArray(aArray, aCount, false);
    return lengths;
}

TEST(NITFStdDataSegmentTest, KindsAndTheirNamesBelongTogether)
{
    const std::vector<std::pair<int, const char*>> kinds{
        {0, "DataExtensionSegment"}, {1, "NITFFileHeader"},  {2, "GraphicSegment"},           {3, "ImageSegment"},
        {4, "LabelSegment"},         {5, "ReservedSegment"}, {6, "ReservedExtensionSegment"}, {7, "SymbolSegment"},
        {8, "TextSegment"}};
    for (const auto& [code, name] : kinds) {
        EXPECT_STREQ(name, NITFStdDataSegment::GetDataSegmentName(static_cast<NITFCnst::DataSegmentType>(code)));
        EXPECT_EQ(code, NITFStdDataSegment::GetDataSegmentCode(name));
    }
    EXPECT_EQ(8, NITFStdDataSegment::GetDataSegmentCode("  TextSegment \t"));
    for (const char* const none : {"textsegment", "Text Segment", "", "UnknownDataSegment", "TextSegmentX"}) {
        EXPECT_EQ(-1, NITFStdDataSegment::GetDataSegmentCode(none)) << none;
    }
    EXPECT_EQ(-1, NITFStdDataSegment::GetDataSegmentCode(nullptr));
    EXPECT_STREQ("UnknownDataSegment", NITFStdDataSegment::GetDataSegmentName(NITFCnst::DataSegmentType{9}));
    EXPECT_STREQ("UnknownDataSegment", NITFStdDataSegment::GetDataSegmentName(NITFCnst::DataSegmentType{-1}));
}

TEST(NITFStdDataSegmentTest, VersionTextIsTrimmedAndNeeded)
{
    EXPECT_STREQ("NSIF01.00", Segment(" NSIF01.00 ").GetNITFVersion());
    EXPECT_EQ("ERROR: NULL/empty input NITF file version string.", RefusalOf([] { Segment("  "); }));
    EXPECT_THROW(Segment(nullptr), CSMException);
}

TEST(NITFStdDataSegmentTest, BaseAnswersBeforeASubclassDoes)
{
    Segment segment;
    EXPECT_FALSE(segment.ContainsEmbeddedBinaryData());
    EXPECT_EQ(nullptr, segment.GetNITFStdDataSegmentInfo());
    EXPECT_EQ(0U, segment.GetSegmentDataSize());
    EXPECT_EQ(0U, segment.GetSegmentDataStart());
    EXPECT_FALSE(segment.IsDisplayableDataSegment());
    EXPECT_EQ(0, segment.GetLOCRowValue());
    EXPECT_EQ(0, segment.GetLOCColumnValue());
    long values[4] = {7, 7, 7, 7};
    EXPECT_FALSE(segment.GetCCSColumnAndRow(values[0], values[1]));
    EXPECT_THAT(values, ElementsAre(-1, -1, 7, 7));
    EXPECT_FALSE(segment.GetCommonCoordinateSys(values[0], values[1], values[2], values[3]));
    EXPECT_THAT(values, ElementsAre(-1, -1, -1, -1));
    const char* text = nullptr;
    std::size_t length = 0;
    EXPECT_FALSE(segment.GetFieldAsString("TE", text, length));
    EXPECT_FALSE(segment.IsTREOfThisDataSegment("ACFTA"));
    EXPECT_EQ(nullptr, segment.GetAllFieldDescriptions());
    EXPECT_FALSE(segment.HasOverFlowTREs());
}

TEST(NITFStdDataSegmentTest, MessagesStandApartByABlankLine)
{
    Segment segment;
    segment.AddError("first");
    segment.AddError("second");
    segment.AddWarning("third");
    EXPECT_STREQ("first\n\nsecond", segment.GetErrorMessage());
    EXPECT_STREQ("third", segment.GetWarningMessage());
    segment.ClearMessages();
    EXPECT_STREQ("", segment.GetErrorMessage());
    EXPECT_STREQ("", segment.GetWarningMessage());
}

TEST(NITFStdDataSegmentTest, LowerDisplayLevelsAreDrawnFirst)
{
    Segment low;
    Segment high;
    low.SetLevels(2, 0);
    high.SetLevels(UINT64_MAX, 2);
    EXPECT_TRUE(NITFStdDataSegment::DisplayLevelSortPredicate(&low, &high));
    EXPECT_FALSE(NITFStdDataSegment::DisplayLevelSortPredicate(&high, &low));
    EXPECT_FALSE(NITFStdDataSegment::DisplayLevelSortPredicate(&low, &low));
    EXPECT_FALSE(NITFStdDataSegment::DisplayLevelSortPredicate(nullptr, &low));
    EXPECT_FALSE(NITFStdDataSegment::DisplayLevelSortPredicate(&low, nullptr));
    EXPECT_TRUE(low.IsDisplayableDataSegment());
    EXPECT_EQ(2U, high.GetDataSegmentAttachmentLevel());
}

TEST(NITFStdDataSegmentTest, FieldIsEditableWhenItsTextBeginsWithT)
{
    Segment segment;
    EXPECT_TRUE(segment.IsNITFDataSegmentFieldEditable(" YES "));
    EXPECT_TRUE(segment.IsNITFDataSegmentFieldEditable("LOUD"));
    for (const char* const no : {"NO", "EMPTY", "UNKNOWN", "  ", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(segment.IsNITFDataSegmentFieldEditable(no));
    }
    segment.hasMap = false;
    EXPECT_FALSE(segment.IsNITFDataSegmentFieldEditable("YES"));
}

TEST(NITFStdDataSegmentTest, OverflowTresAreCopiedAndHandedOutByTag)
{
    Segment segment;
    EXPECT_FALSE(segment.AddOverflowTRE(nullptr));
    EXPECT_TRUE(AddTre(segment, "ZULU", "1"));
    EXPECT_TRUE(AddTre(segment, "ALPHA", "22"));
    EXPECT_TRUE(AddTre(segment, "ZULU", "333"));
    EXPECT_TRUE(segment.HasOverFlowTREs());

    const TRE** tres = nullptr;
    std::size_t count = 77;
    ASSERT_TRUE(segment.GetAllOverflowTREs(tres, count));
    EXPECT_THAT(Lengths(tres, count), ElementsAre(2, 1, 3));
    EXPECT_EQ(nullptr, tres);
    ASSERT_TRUE(segment.GetTRE(" ZULU ", tres, count, true));
    EXPECT_THAT(Lengths(tres, count), ElementsAre(1, 3));
    for (const auto& [tag, overflow] : {std::pair{"ZULU", false}, std::pair{"", true}, std::pair{"NONE", true},
                                        std::pair{static_cast<const char*>(nullptr), true}}) {
        count = 77;
        EXPECT_TRUE(segment.GetTRE(tag, tres, count, overflow));
        EXPECT_EQ(0U, count);
        EXPECT_EQ(nullptr, tres);
    }
}

TEST(NITFStdDataSegmentTest, ArraysOfTresBelongToTheCaller)
{
    const TRE** tres = nullptr;
    ASSERT_TRUE(NITFStdDataSegment::GetTREPointerArray(tres, 2));
    EXPECT_EQ(nullptr, tres[1]);
    TRE* tre = nullptr;
    TREFactory::Create("TAG", "data", TRE::TRE_TYPE_UNKNOWN, &tre, false, false, nullptr, 4);
    tres[0] = tre;
    NITFStdDataSegment::DeleteTREPointerArray(tres, 2, true);
    EXPECT_EQ(nullptr, tres);
    NITFStdDataSegment::DeleteTREPointerArray(tres, 2, true);
    EXPECT_FALSE(NITFStdDataSegment::GetTREPointerArray(tres, SIZE_MAX / 2));
    EXPECT_EQ(nullptr, tres);
    char* buffer = new char[3];
    NITFStdDataSegment::DeleteCharBuffer(&buffer);
    EXPECT_EQ(nullptr, buffer);
    NITFStdDataSegment::DeleteCharBuffer(nullptr);
}

TEST(NITFStdDataSegmentTest, EqualityLooksAtLevelsKindAndOverflowTres)
{
    Segment one;
    Segment two;
    EXPECT_TRUE(one == two);
    two.SetLevels(0, 1);
    EXPECT_FALSE(one == two);
    two.SetLevels(0, 0);
    two.SetCCSOffsets(0, 1);
    EXPECT_FALSE(one == two);
    two.SetCCSOffsets(0, 0);
    two.SetContainsEmbeddedBinaryData(true);
    EXPECT_FALSE(one == two);
    two.SetContainsEmbeddedBinaryData(false);
    EXPECT_FALSE(one == Segment("NITF02.00"));
    EXPECT_FALSE(one == Segment("NITF02.10", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC));
    AddTre(one, "TAG", "1");
    EXPECT_FALSE(one == two);
    AddTre(two, "TAG", "2");
    EXPECT_FALSE(one == two);
    EXPECT_TRUE(one.CloneOverflowTREs(two));
    EXPECT_TRUE(one == two);
}

TEST(NITFStdDataSegmentTest, CopiesAndSwapsTakeEverythingAlong)
{
    Segment original;
    original.SetLevels(3, 2);
    original.SetCCSOffsets(-5, 6);
    original.AddWarning("note");
    AddTre(original, "TAG", "1");
    NITFStdDataSegmentInfo info;
    info.SetSegmentDataStart(10000000000);
    info.SetSegmentDataSize(77);
    original.SetNITFStdDataSegmentInfo(info);

    Segment copy(original);
    EXPECT_TRUE(copy == original);
    EXPECT_EQ(10000000000U, copy.GetSegmentDataStart());
    EXPECT_EQ(77U, copy.GetSegmentDataSize());
    EXPECT_STREQ("note", copy.GetWarningMessage());
    long column = 0;
    long row = 0;
    copy.GetCCSOffsetValues(column, row);
    EXPECT_EQ(-5, column);
    EXPECT_EQ(6, row);

    Segment other("NITF02.00");
    AddTre(other, "LOST", "1");
    const Segment& same = other;
    other = same;
    EXPECT_TRUE(other.HasOverFlowTREs());
    other = original;
    EXPECT_TRUE(other == original);
    Segment empty("NITF02.00");
    empty.Swap(copy);
    EXPECT_TRUE(empty == original);
    EXPECT_FALSE(copy.HasOverFlowTREs());
    EXPECT_STREQ("NITF02.00", copy.GetNITFVersion());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

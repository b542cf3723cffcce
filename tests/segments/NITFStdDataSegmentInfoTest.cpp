#include "segments/NITFStdDataSegmentInfo.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

constexpr auto V10 = NITFCnst::NSIF_VERSION_NUMBER_10;
constexpr auto V11 = NITFCnst::NITF_VERSION_NUMBER_11;
constexpr auto V20 = NITFCnst::NITF_VERSION_NUMBER_20;
constexpr auto V21 = NITFCnst::NITF_VERSION_NUMBER_21;

TEST(NITFStdDataSegmentInfoTest, TypeAndVersionDecideTheKind)
{
    struct Case
    {
        const char* type;
        NITFCnst::Version version;
        NITFCnst::DataSegmentType kind;
    };
    for (const Case& test :
         {Case{"IM", V11, NITFCnst::DATA_SEGMENT_TYPE_IMAGE}, Case{" TE ", V20, NITFCnst::DATA_SEGMENT_TYPE_TEXT},
          Case{"SY", V21, NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC}, Case{"SY", V10, NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC},
          Case{"SY", V20, NITFCnst::DATA_SEGMENT_TYPE_SYMBOL}, Case{"LA", V20, NITFCnst::DATA_SEGMENT_TYPE_LABEL},
          Case{"DE", V10, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION},
          Case{"RE", V21, NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION}}) {
        NITFStdDataSegmentInfo info;
        EXPECT_TRUE(info.SetSegmentType(test.type, test.version)) << test.type << test.version;
        EXPECT_EQ(test.kind, info.GetDataSegmentType()) << test.type << test.version;
        EXPECT_EQ(test.version, info.GetNITFVersion());
        EXPECT_EQ(2U, std::string(info.GetSegmentType()).size());
    }
}

TEST(NITFStdDataSegmentInfoTest, PairingThatNoVersionKnowsResetsTheKind)
{
    for (const auto& [type, version] : {std::pair{"SY", V11}, std::pair{"LA", V11}, std::pair{"LA", V21},
                                        std::pair{"LA", V10}, std::pair{"XX", V21}, std::pair{"im", V21}}) {
        NITFStdDataSegmentInfo info;
        ASSERT_TRUE(info.SetSegmentType("IM", V20));
        EXPECT_FALSE(info.SetSegmentType(type, version)) << type << version;
        EXPECT_EQ(NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN, info.GetDataSegmentType());
        EXPECT_STREQ("", info.GetSegmentType());
    }
}

TEST(NITFStdDataSegmentInfoTest, TextsOfAnotherLengthAndUnknownVersionsChangeNothing)
{
    NITFStdDataSegmentInfo info;
    ASSERT_TRUE(info.SetSegmentType("IM", V20));
    EXPECT_FALSE(info.SetSegmentType("SYM", V21));
    EXPECT_FALSE(info.SetSegmentType("", V21));
    EXPECT_FALSE(info.SetSegmentType(nullptr, V21));
    EXPECT_FALSE(info.SetSegmentType("TE", NITFCnst::NITF_VERSION_NUMBER_UNKNOWN));
    EXPECT_FALSE(info.SetSegmentType("TE", NITFCnst::NITF_VERSION_NUMBER_UNINITIALIZED));
    EXPECT_EQ(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, info.GetDataSegmentType());
    EXPECT_EQ(V20, info.GetNITFVersion());
}

TEST(NITFStdDataSegmentInfoTest, NegativeIndicesAreRefusedAndComparisonSeesEveryField)
{
    NITFStdDataSegmentInfo info;
    EXPECT_TRUE(info.SetSegmentIndex(5));
    EXPECT_FALSE(info.SetSegmentIndex(-1));
    EXPECT_EQ(5, info.GetSegmentIndex());
    EXPECT_FALSE(info.SetGlobalSegmentIndex(-1));
    EXPECT_EQ(0, info.GetGlobalSegmentIndex());

    const auto differs = [&info](auto aChange) {
        NITFStdDataSegmentInfo other(info);
        EXPECT_TRUE(other == info);
        aChange(other);
        return other != info;
    };
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetGlobalSegmentIndex(1); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentIndex(1); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentType("IM", V21); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentDataSize(1); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentDataStart(1); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentHeaderStart(1); }));
    EXPECT_TRUE(differs([](NITFStdDataSegmentInfo& aInfo) { aInfo.SetSegmentHeaderSize(1); }));
}

class InfosTest : public testing::Test
{
protected:
    bool Build(std::uint64_t aHeader, std::uint64_t aFile, const std::vector<NITFSegmentLengths>& aKinds,
               NITFCnst::Version aVersion = V21)
    {
        m_errors = "earlier";
        return m_infos.Build(aVersion, aHeader, aFile, aKinds, m_errors);
    }

    NITFStdDataSegmentInfos m_infos;
    std::string m_errors;
    const std::vector<NITFSegmentLengths> m_kinds{
        {"IM", 2, {439, 500}, {9999999998, 10}}, {"SY", 0, {}, {}}, {"TE", 1, {282}, {5}}};
    static constexpr const char* INVALID =
        "earlier\n\nERROR: Invalid current byte value or the input NITFFileHeader object is NULL/invalid or it "
        "contains invalid field value(s).";
};

TEST_F(InfosTest, SegmentsFollowOneAnother)
{
    ASSERT_TRUE(Build(388, 20000000000, m_kinds));
    EXPECT_EQ("earlier", m_errors);
    ASSERT_EQ(3U, m_infos.InFileOrder().size());
    const NITFStdDataSegmentInfo& second = *m_infos.InFileOrder()[1];
    EXPECT_EQ(388U + 439U + 9999999998U, second.GetSegmentHeaderStart());
    EXPECT_EQ(500U, second.GetSegmentHeaderSize());
    EXPECT_EQ(second.GetSegmentHeaderStart() + 500, second.GetSegmentDataStart());
    EXPECT_EQ(10U, second.GetSegmentDataSize());
    const NITFStdDataSegmentInfo& text = *m_infos.InFileOrder()[2];
    EXPECT_EQ(2, text.GetGlobalSegmentIndex());
    EXPECT_EQ(0, text.GetSegmentIndex());
    EXPECT_STREQ("TE", text.GetSegmentType());
    EXPECT_EQ(text.GetSegmentDataStart() + 5, m_infos.GetEnd());
    EXPECT_EQ(2U, m_infos.Get(" ImageSegment ")->size());
    EXPECT_EQ(&text, m_infos.Get(NITFCnst::DATA_SEGMENT_TYPE_TEXT)->front().get());
    EXPECT_EQ(nullptr, m_infos.Get("GraphicSegment"));
    EXPECT_EQ(nullptr, m_infos.Get(nullptr));
}

TEST_F(InfosTest, FileLengthMustBePossible)
{
    const std::vector<NITFSegmentLengths> none{{"IM", 0, {}, {}}};
    EXPECT_FALSE(Build(38, 39, none));
    EXPECT_EQ(INVALID, m_errors);
    EXPECT_TRUE(Build(40, 40, none));
    EXPECT_EQ(40U, m_infos.GetEnd());
    EXPECT_TRUE(Build(388, 999999999999, none));
    EXPECT_FALSE(Build(388, 1000000000000, none));
    EXPECT_FALSE(Build(389, 388, none));
}

TEST_F(InfosTest, FailureKeepsNothing)
{
    ASSERT_TRUE(Build(388, 20000000000, m_kinds));
    EXPECT_FALSE(Build(388, 1000, m_kinds));  // the first image ends beyond the file, and more follow
    EXPECT_EQ(INVALID, m_errors);
    EXPECT_TRUE(m_infos.InFileOrder().empty());
    EXPECT_EQ(nullptr, m_infos.Get("ImageSegment"));

    constexpr const char* FAILED =
        "earlier\n\nERROR: Failed to retrieve data segment information of type \"LA\" from the NITF file header.";
    EXPECT_FALSE(Build(388, 5000, {{"LA", 1, {212}, {5}}}));
    EXPECT_EQ(FAILED, m_errors);
    EXPECT_FALSE(Build(388, 5000, {{"LA", 2, {212}, {5, 5}}}, V20));
    EXPECT_EQ(FAILED, m_errors);
    EXPECT_TRUE(Build(388, 5000, {{"LA", 2, {212, 212}, {5, 5}}}, V20));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

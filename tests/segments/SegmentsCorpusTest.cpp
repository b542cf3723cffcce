#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "segments/des/DesDESSHF.h"
#include "tests/support/Corpus.h"
#include "tests/support/XmlCheck.h"

#include <array>
#include <filesystem>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

/// Real files with text and data extension segments; each test is skipped when they are absent.
class SegmentsCorpusTest : public testing::Test
{
protected:
    void TearDown() override { ImageSupportDataNITFFactory::Destroy(&m_isd); }

    bool Open(const char* aName)
    {
        const std::filesystem::path path = Tests::CorpusFile(aName);
        if (!std::filesystem::exists(path)) {
            return false;
        }
        ImageSupportDataNITFFactory::Create(path.c_str(), &m_isd, false, false, -1,
                                            NITFCnst::NITF_VERSION_NUMBER_UNKNOWN);
        return m_isd != nullptr;
    }

    void ExpectTarget(std::size_t aDes, NITFCnst::DataSegmentType aKind, long aIndex, const char* aArea,
                      const char* aTag)
    {
        const NITFDESSubheader* const des = m_isd->GetDataExtensionSegment(aDes);
        ASSERT_NE(nullptr, des);
        NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
        long index = -1;
        std::string area;
        ASSERT_TRUE(des->GetOverflowTarget(kind, index, area)) << des->GetErrorMessage();
        EXPECT_EQ(aKind, kind);
        EXPECT_EQ(aIndex, index);
        EXPECT_EQ(aArea, area);
        ASSERT_EQ(1U, des->GetOverflowTREs().Size());
        EXPECT_STREQ(aTag, des->GetOverflowTREs().InOrder()[0]->GetTag());
    }

    ImageSupportDataNITF* m_isd = nullptr;
};

TEST_F(SegmentsCorpusTest, SevenOverflowsOfANitf20FileNameSevenAreas)
{
    if (!Open("U_1130F.NTF")) {
        GTEST_SKIP() << "U_1130F.NTF is absent";
    }
    ExpectTarget(0, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, "UDHD", "MHUDOF");
    ExpectTarget(1, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, "XHD", "MHXDOF");
    ExpectTarget(2, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 0, "UDID", "IMUDOF");
    ExpectTarget(3, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 0, "IXSHD", "IMXDOF");
    ExpectTarget(4, NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, 0, "SXSHD", "SYXDOF");
    ExpectTarget(5, NITFCnst::DATA_SEGMENT_TYPE_LABEL, 0, "LXSHD", "LAXDOF");
    ExpectTarget(6, NITFCnst::DATA_SEGMENT_TYPE_TEXT, 0, "TXSHD", "TEXDOF");
}

TEST_F(SegmentsCorpusTest, RasterProductsCarryRpfdesForTheirImage)
{
    for (const char* const name : {"0000M033.GN3", "U_3058B.NTF"}) {
        if (!Open(name)) {
            GTEST_SKIP() << name << " is absent";
        }
        ExpectTarget(0, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 0, "UDID", "RPFDES");
        ImageSupportDataNITFFactory::Destroy(&m_isd);
    }
}

TEST_F(SegmentsCorpusTest, DocumentOfASarImageHasItsUserFieldsAndItsText)
{
    if (!Open("embedded_xml.bin")) {
        GTEST_SKIP() << "embedded_xml.bin is absent";
    }
    const NITFDESSubheader* const des = m_isd->GetDataExtensionSegment(0);
    ASSERT_NE(nullptr, des);
    ASSERT_NE(nullptr, des->GetDESSHF());
    EXPECT_EQ(13U, des->GetDESSHF()->GetNumOfFields());
    EXPECT_EQ("2020-02-14T21:03:34Z", des->GetDESSHF()->FieldText("DESSHDT"));
    const char* data = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(des->GetDESDATA(data, length));
    EXPECT_EQ(57318U, length);
    EXPECT_EQ(0U, std::string(data, length).find("<SICD xmlns="));
    EXPECT_EQ(nullptr, des->GetDESDATAFields());
}

TEST_F(SegmentsCorpusTest, UnknownTypeKeepsItsUserFieldsWhole)
{
    if (!Open("test_des_read.ntf")) {
        GTEST_SKIP() << "test_des_read.ntf is absent";
    }
    const NITFDESSubheader* const des = m_isd->GetDataExtensionSegment(0);
    ASSERT_NE(nullptr, des);
    EXPECT_EQ("TEST_DES", des->GetDESTypeID());
    EXPECT_EQ(nullptr, des->GetDESSHF());
    EXPECT_EQ("1606501", des->FieldText("DESSHF"));
    const char* data = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(des->GetDESDATA(data, length));
    EXPECT_EQ("123456789ABCDEF0", std::string(data, length));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

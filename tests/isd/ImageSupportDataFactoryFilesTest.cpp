#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportData.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF20.h"
#include "isd/ImageSupportDataNITF21.h"
#include "nitf/NITFCnst.h"
#include "tests/support/Corpus.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

/// Real files through the factory; each test is skipped when they are absent.
class ImageSupportDataFactoryFilesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!std::filesystem::exists(Tests::CorpusFile(NSIF))) {
            GTEST_SKIP() << "the corpus is absent";
        }
    }
    void TearDown() override { ImageSupportDataFactory::Destroy(&m_isd); }

    void Create(const char* aName)
    {
        ImageSupportDataFactory::Create(Tests::CorpusFile(aName).c_str(), &m_isd, true, false);
        ASSERT_NE(m_isd, nullptr) << aName;
    }

    static constexpr const char* NSIF = "ns3010a.nsf";
    static constexpr const char* NITF20 = "U_1123A.NTF";
    static constexpr const char* NITF21 = "WithBE.ntf";
    ImageSupportData* m_isd = nullptr;
};

TEST_F(ImageSupportDataFactoryFilesTest, VersionChoosesTheClassAndNsifIsReadAsNitf21)
{
    Create(NSIF);
    EXPECT_NE(dynamic_cast<ImageSupportDataNITF21*>(m_isd), nullptr);
    EXPECT_STREQ(m_isd->GetFormatVersion(), "02.10");
    EXPECT_STREQ(m_isd->GetImageFormat(), SupportedISD::RasterFormat::NITF);
    EXPECT_EQ(ImageSupportDataFactory::GetErrorMessage(), nullptr);
    ImageSupportDataFactory::Destroy(&m_isd);
    EXPECT_EQ(m_isd, nullptr);

    Create(NITF20);
    EXPECT_NE(dynamic_cast<ImageSupportDataNITF20*>(m_isd), nullptr);
    EXPECT_STREQ(m_isd->GetFormatVersion(), "02.00");
    EXPECT_EQ(m_isd->GetNumOfImageSegments(), 5);
    ImageSupportDataFactory::Destroy(&m_isd);

    Create(NITF21);
    EXPECT_NE(dynamic_cast<ImageSupportDataNITF21*>(m_isd), nullptr);
    EXPECT_EQ(m_isd->GetNumOfImageSegments(), 1);
}

TEST_F(ImageSupportDataFactoryFilesTest, UnreadableVersionCodeMakesTheFactoryLookIntoTheFile)
{
    const std::string path = " " + Tests::CorpusFile(NITF20).string() + " ";
    for (const int version : {0, -1, 11, 77}) {
        ImageSupportDataFactory::CreateISD(path.c_str(), &m_isd, false, false, version, SupportedISD::ISD_TYPE_NITF);
        EXPECT_NE(dynamic_cast<ImageSupportDataNITF20*>(m_isd), nullptr) << version;
        ImageSupportDataFactory::Destroy(&m_isd);
    }
}

TEST_F(ImageSupportDataFactoryFilesTest, FileThatEndsInItsHeaderFailsWithItsText)
{
    const std::string path = testing::TempDir() + "ormo_isd_factory_cut.ntf";
    std::ofstream(path, std::ios::binary) << Tests::CorpusBytes(NITF21).substr(0, 200);
    try {
        ImageSupportDataFactory::Create(path.c_str(), &m_isd, true, false);
        ADD_FAILURE() << "no exception";
    } catch (const ImageSupportDataConstructionException& exception) {
        EXPECT_STREQ(exception.GetSource(), "ImageSupportDataFactory::CreateISD");
        EXPECT_STREQ(exception.GetAdditionalMessage(), ImageSupportDataFactory::GetErrorMessage());
        EXPECT_EQ(std::string(exception.GetAdditionalMessage()).find("ERROR: "), 0U);
    }
    EXPECT_EQ(m_isd, nullptr);
    std::filesystem::remove(path);
}

TEST_F(ImageSupportDataFactoryFilesTest, DifferentThreadsOpenFilesAtOnce)
{
    std::atomic<int> good = 0;
    const auto open = [&good](const char* aName, long aImages) {
        const std::string path = Tests::CorpusFile(aName).string();
        for (int i = 0; i != 20; ++i) {
            ImageSupportData* isd = nullptr;
            ImageSupportDataFactory::Create(path.c_str(), &isd, true, false);
            good += isd != nullptr && isd->GetNumOfImageSegments() == aImages ? 1 : 0;
            ImageSupportDataFactory::Destroy(&isd);
        }
    };
    std::vector<std::thread> threads;
    threads.emplace_back(open, NSIF, 1);
    threads.emplace_back(open, NITF20, 5);
    threads.emplace_back(open, NITF21, 1);
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, 60);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "raster/gdal/NITFFactory.h"
#include "tests/support/Corpus.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ORMO::SensorModel::CSM {
namespace {

constexpr const char* NO_FILE =
    "ERROR: Invalid, NULL, or empty input file name or the file doesn't exist/cannot be accessed by the NITF System.";
constexpr const char* NO_ARGUMENT = "ERROR: NULL/invalid required input argument(s).";

std::string Str(const char* aText)
{
    return aText == nullptr ? "(null)" : aText;
}

class NITFFactoryTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_directory =
            testing::TempDir() + "ormo_nitf_factory_" + testing::UnitTest::GetInstance()->current_test_info()->name();
        std::filesystem::create_directories(m_directory);
    }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    std::string File(const std::string& aName, const std::string& aContent) const
    {
        const std::string path = m_directory + "/" + aName;
        std::ofstream(path) << aContent;
        return path;
    }

    std::string m_directory;
};

struct Extracted
{
    std::string file;
    int index;
    bool isSubdataset;
    int version;
};

/// What a request for this name is taken apart into. An unusable name is told by the file name and the index.
Extracted Extract(const std::string& aName, int aVersion = 0)
{
    const GDALOpenInfo request(aName.c_str(), GDAL_OF_READONLY);
    const char* file = "untouched";
    Extracted result{"", 99, false, aVersion};
    const bool isUsable =
        NITFFactory::ExtractOpenFileInformation(file, &request, result.index, &result.isSubdataset, &result.version);
    EXPECT_EQ(isUsable, file != nullptr) << aName;
    result.file = Str(file);
    return result;
}

TEST_F(NITFFactoryTest, SubdatasetNamesGiveIndexAndFile)
{
    const struct
    {
        const char* name;
        const char* file;
        int index;
        bool isSubdataset;
    } cases[] = {
        {"/a/File.ntf", "/a/File.ntf", 0, false},
        {"NITF_IM:0:/a/File.ntf", "/a/File.ntf", 0, true},
        {"nitf_im:2:C:/Dir/File.ntf:x", "C:/Dir/File.ntf:x", 2, true},
        {"Nitf_Im:007:f", "f", 7, true},
        {"NITF_IMAGE:2:f", "NITF_IMAGE:2:f", 0, false},
        {" NITF_IM:2:f", " NITF_IM:2:f", 0, false},
        {"NITF_IM:2", "(null)", -1, true},
        {"NITF_IM:2:", "(null)", -1, true},
        {"NITF_IM:", "(null)", -1, true},
        {"NITF_IM::f", "(null)", -1, true},
        {"NITF_IM:two:f", "(null)", -1, true},
        {"NITF_IM:2x:f", "(null)", -1, true},
        {"NITF_IM:2.5:f", "(null)", -1, true},
        {"NITF_IM:-1:f", "(null)", -1, true},
        {"NITF_IM:+1:f", "(null)", -1, true},
        {"NITF_IM:4294967296:f", "(null)", -1, true},
        {"", "(null)", -1, false},
    };
    for (const auto& [name, file, index, isSubdataset] : cases) {
        const Extracted result = Extract(name);
        EXPECT_EQ(result.file, file) << name;
        EXPECT_EQ(result.index, index) << name;
        EXPECT_EQ(result.isSubdataset, isSubdataset) << name;
    }
    const char* file = "untouched";
    int index = 99;
    EXPECT_FALSE(NITFFactory::ExtractOpenFileInformation(file, nullptr, index));
    EXPECT_EQ(file, nullptr);
    EXPECT_EQ(index, -1);
}

TEST_F(NITFFactoryTest, VersionOfTheNamedFileIsToldWhenAskedFor)
{
    const std::string nsif = File("nsif:1", "NSIF01.00");
    EXPECT_EQ(Extract("NITF_IM:1:" + nsif, -1).version, 10);
    EXPECT_EQ(Extract(nsif, -1).version, 10);
    EXPECT_EQ(Extract("NITF_IM:1:" + nsif, 5).version, 5);
    EXPECT_EQ(Extract(File("text", "Dear reader"), -1).version, -1);
}

TEST_F(NITFFactoryTest, WhatIsNoNitfFileIsRefusedWithItsReason)
{
    const auto open = [](const std::string& aName) {
        ImageSupportDataNITF* isd = nullptr;
        int index = 99;
        bool hasImage = true;
        bool isSubdataset = false;
        const bool isOpen = NITFFactory::Open(aName.c_str(), &isd, index, hasImage, &isSubdataset);
        EXPECT_FALSE(isOpen || hasImage) << aName;
        EXPECT_EQ(isd, nullptr) << aName;
        return std::to_string(index) + (isSubdataset ? " subdataset " : " ") + Str(NITFFactory::GetErrorMessage());
    };
    const std::string text = File("text", "Dear reader");
    EXPECT_EQ(open(text), "0 (null)");
    EXPECT_EQ(open(" \tNITF_IM:2:" + text), "2 subdataset (null)");
    EXPECT_EQ(open(File("old", "NITF01.10")), "0 (null)");
    EXPECT_EQ(open(File("empty", "")), "0 (null)");

    const std::string pipe = m_directory + "/pipe";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const std::string& name : {std::string(), std::string(" "), text + ".absent", "NITF_IM:0:" + text + ".absent",
                                    "NITF_IM:x:" + text, m_directory, pipe, "NITF_IM:0:" + pipe}) {
        EXPECT_EQ(open(name), std::string("-1 ") + NO_FILE) << name;
    }
}

TEST_F(NITFFactoryTest, RequestAndOutputAreNeeded)
{
    ImageSupportDataNITF* isd = nullptr;
    int index = 99;
    bool hasImage = true;
    EXPECT_FALSE(NITFFactory::Open(static_cast<const GDALOpenInfo*>(nullptr), &isd, index, hasImage));
    EXPECT_EQ(Str(NITFFactory::GetErrorMessage()), NO_ARGUMENT);
    EXPECT_EQ(index, -1);
    EXPECT_FALSE(hasImage);

    const std::string path = File("file", "NITF02.10");
    const GDALOpenInfo request(path.c_str(), GDAL_OF_READONLY);
    EXPECT_FALSE(NITFFactory::Open(&request, nullptr, index, hasImage));
    EXPECT_EQ(Str(NITFFactory::GetErrorMessage()), NO_ARGUMENT);

    const GDALOpenInfo unusable("NITF_IM:2", GDAL_OF_READONLY);
    EXPECT_FALSE(NITFFactory::Open(&unusable, &isd, index, hasImage));
    EXPECT_EQ(Str(NITFFactory::GetErrorMessage()), NO_ARGUMENT);
    EXPECT_EQ(index, -1);
}

TEST_F(NITFFactoryTest, SubdatasetNameSelectsItsImageSegment)
{
    const std::string file = Tests::CorpusFile("U_1123A.NTF").string();
    if (!std::filesystem::exists(file)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    long unselected = 99;
    ImageSupportDataNITF* isd = nullptr;
    ASSERT_TRUE(
        ImageSupportDataNITFFactory::Create(file.c_str(), &isd, false, false, -1, NITFCnst::NITF_VERSION_NUMBER_20));
    unselected = isd->GetCurrentImageSegment();
    ImageSupportDataNITFFactory::Destroy(&isd);

    const std::pair<std::string, long> cases[] = {
        {file, 0}, {"nitf_im:2:" + file, 2}, {"NITF_IM:4:" + file, 4}, {"NITF_IM:5:" + file, unselected}};
    for (const auto& [name, segment] : cases) {
        int index = -1;
        bool hasImage = false;
        EXPECT_TRUE(NITFFactory::Open(name.c_str(), &isd, index, hasImage)) << name;
        EXPECT_TRUE(hasImage) << name;
        EXPECT_EQ(NITFFactory::GetErrorMessage(), nullptr) << name;
        ASSERT_NE(isd, nullptr) << name;
        EXPECT_EQ(isd->GetCurrentImageSegment(), segment) << name;
        ImageSupportDataNITFFactory::Destroy(&isd);
    }
}

TEST_F(NITFFactoryTest, NsifFileWithoutImagesIsOpenedAndSaysSo)
{
    const std::string file = Tests::CorpusFile("ns3051v.nsf").string();
    if (!std::filesystem::exists(file)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    for (const std::string& name : {file, "NITF_IM:0:" + file}) {
        ImageSupportDataNITF* isd = nullptr;
        int index = -1;
        bool hasImage = true;
        EXPECT_TRUE(NITFFactory::Open(name.c_str(), &isd, index, hasImage)) << name;
        EXPECT_FALSE(hasImage) << name;
        EXPECT_EQ(index, 0) << name;
        ImageSupportDataNITFFactory::Destroy(&isd);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

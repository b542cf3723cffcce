#include "raster/GDALNITFFileReader.h"
#include "raster/GDALOSDEFileReader.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace ORMO::SensorModel::CSM {
namespace {

class GDALNITFFileReaderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_directory =
            testing::TempDir() + "ormo_reader_" + testing::UnitTest::GetInstance()->current_test_info()->name();
        std::filesystem::create_directories(m_directory);
    }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    std::string Path(const std::string& aName) const { return m_directory + "/" + aName; }

    std::string m_directory;
};

/// The version told for a path, which a wrong or contradicting answer replaces.
int VersionOf(const char* aPath)
{
    int version = 99;
    const bool isNitf = GDALNITFFileReader::IsNITFFile(aPath, version);
    return isNitf == (version > 0) ? version : 99;
}

TEST_F(GDALNITFFileReaderTest, NineBytesTellTheVersion)
{
    const std::pair<const char*, int> cases[] = {
        {"NITF02.10", 21}, {"NITF02.00", 20},  {"NSIF01.00", 10},      {"NITF01.10", 11},
        {"NITF02.1", -1},  {"", -1},           {"NITF01.00", -1},      {"NSIF02.10", -1},
        {"nitf02.10", -1}, {" NITF02.10", -1}, {"NITF02.10 more", 21}, {"NITF 2.10", -1},
        {"NITF02.11", -1},
    };
    for (const auto& [text, expected] : cases) {
        const std::string bytes(text);
        std::ofstream(Path("file")) << bytes;
        EXPECT_EQ(VersionOf(Path("file").c_str()), expected) << text;
        EXPECT_EQ(VersionOf((" " + Path("file") + "\n").c_str()), expected) << text;

        int version = 99;
        const auto* const header = reinterpret_cast<const unsigned char*>(bytes.data());
        EXPECT_EQ(GDALNITFFileReader::IsNITFFile(header, bytes.size(), version), expected > 0) << text;
        EXPECT_EQ(version, expected) << text;
    }
    int version = 99;
    EXPECT_FALSE(GDALNITFFileReader::IsNITFFile(nullptr, 9, version));
    EXPECT_EQ(version, -1);
}

TEST_F(GDALNITFFileReaderTest, WhatIsNoRegularFileIsNotWaitedFor)
{
    ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(VersionOf(Path("pipe").c_str()), -1);
    EXPECT_EQ(VersionOf(m_directory.c_str()), -1);
    EXPECT_EQ(VersionOf("/dev/zero"), -1);
    EXPECT_EQ(VersionOf(Path("absent").c_str()), -1);
    EXPECT_EQ(VersionOf(""), -1);
    EXPECT_EQ(VersionOf(nullptr), -1);
}

TEST_F(GDALNITFFileReaderTest, NoFileIsKnownAsOsde)
{
    std::ofstream(Path("file")) << "OSDE";
    int version = 11;
    EXPECT_FALSE(GDALOSDEFileReader::IsOSDEFile(Path("file").c_str(), version));
    EXPECT_EQ(version, -1);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

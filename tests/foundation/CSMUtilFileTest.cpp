#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilFile.h"
#include "tests/foundation/OwnedText.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilFile;
using Util::KeyValuePair;

using Pairs = std::map<std::string, std::string>;

/// A folder of its own for each test.
class CSMUtilFileTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = ::testing::TempDir() + "/ormo_file_XXXXXX";
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        m_folder = pattern;
    }
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    std::string Write(const std::string& aContent) const
    {
        const std::string path = m_folder / "x.properties";
        std::ofstream(path, std::ios::binary) << aContent;
        return path;
    }
    Pairs PairsOf(const std::string& aContent) const
    {
        Pairs pairs;
        EXPECT_TRUE(CSMUtilFile::GetKeyValuePairsFromFile(true, Write(aContent).c_str(), pairs));
        return pairs;
    }

    std::filesystem::path m_folder;
};

TEST_F(CSMUtilFileTest, OnlyRegularFilesExist)
{
    const std::string file = Write("");
    const std::string link = m_folder / "link";
    const std::string dangling = m_folder / "dangling";
    const std::string pipe = m_folder / "pipe";
    std::filesystem::create_symlink(file, link);
    std::filesystem::create_symlink(m_folder / "absent", dangling);
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    EXPECT_TRUE(CSMUtilFile::FileExists(file));
    EXPECT_TRUE(CSMUtilFile::FileExists(file.c_str()));
    EXPECT_TRUE(CSMUtilFile::FileExists(std::filesystem::path(file).wstring().c_str()));
    EXPECT_TRUE(CSMUtilFile::FileExists(link));
    for (const std::string& other : {dangling, pipe, m_folder.string(), std::string("/dev/null"), std::string(),
                                     file + "/", file + std::string("\0x", 2)}) {
        EXPECT_FALSE(CSMUtilFile::FileExists(other)) << other;
    }
    EXPECT_FALSE(CSMUtilFile::FileExists(static_cast<const char*>(nullptr)));
    EXPECT_FALSE(CSMUtilFile::FileExists(static_cast<const wchar_t*>(nullptr)));
}

/// The additional message of the FileAccessException of a call, or "nothing thrown".
template<typename Call>
std::string FileRefusal(Call aCall, const char* aSource)
{
    try {
        aCall();
    } catch (const FileAccessException& refusal) {
        EXPECT_STREQ(refusal.GetSource(), aSource);
        return refusal.GetAdditionalMessage();
    }
    return "nothing thrown";
}

TEST_F(CSMUtilFileTest, FileNamesAreWhatFollowsTheLastSeparator)
{
    for (const auto& [path, expected] : {std::pair{"/data/a b.ntf", "a b.ntf"},
                                         {"C:\\data\\x.ntf", "x.ntf"},
                                         {"x.ntf", "x.ntf"},
                                         {"/data/.hidden", ".hidden"},
                                         {"/data/x ", "x "}}) {
        Text name;
        CSMUtilFile::GetFileName(path, name.Out());
        EXPECT_EQ(name.Str(), expected);
    }
    for (const char* const wrong : {"/data/", "/", "C:\\", "/data/..", "."}) {
        Text name;
        EXPECT_EQ(FileRefusal([&] { CSMUtilFile::GetFileName(wrong, name.Out()); }, "CSMUtilFile::GetFileName"),
                  "ERROR: Invalid input fully qualified file name.");
        EXPECT_TRUE(name.IsNull());
    }
    for (const char* const empty : {"", "  ", static_cast<const char*>(nullptr)}) {
        Text name;
        EXPECT_EQ(FileRefusal([&] { CSMUtilFile::GetFileName(empty, name.Out()); }, "CSMUtilFile::GetFileName"),
                  "ERROR: Invalid input fully qualified file name and/or NULL output parameter.");
    }
    EXPECT_THROW(CSMUtilFile::GetFileName("/a", nullptr), FileAccessException);
}

TEST_F(CSMUtilFileTest, PropertiesKeepTheFirstValueOfAKey)
{
    EXPECT_EQ(PairsOf("a=1\na=2\nb=3"), (Pairs{{"a", "1"}, {"b", "3"}}));
}

TEST_F(CSMUtilFileTest, PropertiesKeepTheWhiteSpaceOfValues)
{
    EXPECT_EQ(PairsOf("x = 1 \n\ty\t=\n"), (Pairs{{"x", " 1 "}, {"y", ""}}));
    EXPECT_EQ(PairsOf("a=b=c\n"), (Pairs{{"a", "b=c"}}));
    EXPECT_EQ(PairsOf("a=1\r\nb=2 \r\n\r\n"), (Pairs{{"a", "1"}, {"b", "2 "}}));
}

TEST_F(CSMUtilFileTest, PropertiesSkipLinesThatHoldNoPair)
{
    EXPECT_EQ(PairsOf("  # x=1\n=1\n \t =2\nno pair\n\n   \n#\n"), Pairs{});
    EXPECT_EQ(PairsOf(""), Pairs{});
}

TEST_F(CSMUtilFileTest, PropertiesJoinAMapOrReplaceIt)
{
    const std::string path = Write("a=new\nb=2\n");
    Pairs pairs = {{"a", "old"}, {"z", "9"}};
    EXPECT_TRUE(CSMUtilFile::GetKeyValuePairsFromFile(false, (" " + path + " ").c_str(), pairs));
    EXPECT_EQ(pairs, (Pairs{{"a", "old"}, {"b", "2"}, {"z", "9"}}));
    pairs["z"] = path;
    EXPECT_TRUE(CSMUtilFile::GetKeyValuePairsFromFile(true, pairs["z"].c_str(), pairs));
    EXPECT_EQ(pairs, (Pairs{{"a", "new"}, {"b", "2"}}));
    for (const char* const wrong : {"/nowhere/x.properties", "/", " ", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(CSMUtilFile::GetKeyValuePairsFromFile(false, wrong, pairs));
    }
    EXPECT_EQ(pairs.size(), 2U);
}

TEST_F(CSMUtilFileTest, PropertiesAsArrayKeepTheOrderOfTheFile)
{
    KeyValuePair* pairs = nullptr;
    int count = 99;
    ASSERT_TRUE(CSMUtilFile::GetKeyValuePairsFromFile(Write("z=1\na=2\nz=3\nm=4\n").c_str(), count, &pairs));
    ASSERT_EQ(count, 3);
    EXPECT_STREQ(pairs[0].key, "z");
    EXPECT_STREQ(pairs[0].value, "1");
    EXPECT_STREQ(pairs[1].key, "a");
    EXPECT_STREQ(pairs[2].key, "m");
    CSMUtilFile::DeleteKeyValuesPairArray(count, &pairs);
    EXPECT_EQ(pairs, nullptr);

    EXPECT_TRUE(CSMUtilFile::GetKeyValuePairsFromFile(Write("# none\n").c_str(), count, &pairs));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(pairs, nullptr);
    count = 99;
    EXPECT_FALSE(CSMUtilFile::GetKeyValuePairsFromFile("/nowhere/x", count, &pairs));
    EXPECT_EQ(count, 0);
    const char* const source = "CSMUtilFile::GetKeyValuePairsFromFile";
    const std::string sentence = "ERROR: NULL/invalid input argument.";
    EXPECT_EQ(FileRefusal([&] { CSMUtilFile::GetKeyValuePairsFromFile(" ", count, &pairs); }, source), sentence);
    EXPECT_EQ(FileRefusal([&] { CSMUtilFile::GetKeyValuePairsFromFile("/x", count, nullptr); }, source), sentence);
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

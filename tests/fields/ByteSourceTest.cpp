#include "fields/ByteSource.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

namespace fs = std::filesystem;

class ByteSourceTest : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "ormo-source-XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(pattern.data()));
        m_folder = pattern;
    }
    void TearDown() override { fs::remove_all(m_folder); }

    std::string Path(const std::string& aName) const { return (m_folder / aName).string(); }
    std::string Write(const std::string& aBytes) const
    {
        std::ofstream(Path("file"), std::ios::binary) << aBytes;
        return Path("file");
    }
    /// The reason for which a path cannot be opened.
    static std::string Refused(const std::string& aPath)
    {
        std::string reason;
        EXPECT_EQ(nullptr, ByteSource::Open(aPath, reason));
        return reason;
    }

    fs::path m_folder;
};

TEST_F(ByteSourceTest, ReadsAllOfTheBytesOrNone)
{
    std::string reason = "untouched";
    const auto source = ByteSource::Open(Write("0123456789"), reason);
    ASSERT_NE(nullptr, source);
    EXPECT_EQ("untouched", reason);
    EXPECT_EQ(10U, source->Size());
    std::string bytes;
    EXPECT_TRUE(source->Read(3, 4, bytes));
    EXPECT_EQ("3456", bytes);
    EXPECT_TRUE(source->Read(10, 0, bytes));
    EXPECT_EQ("", bytes);
    for (const auto& [offset, length] : {std::pair{std::uint64_t{3}, std::uint64_t{8}},
                                         {11, 0},
                                         {UINT64_MAX, 1},
                                         {UINT64_MAX, UINT64_MAX},
                                         {1, UINT64_MAX},
                                         {UINT64_MAX - 3, 8},
                                         {std::uint64_t{1} << 63U, 1},
                                         {5, std::uint64_t{1} << 63U}}) {
        bytes = "left over";
        EXPECT_FALSE(source->Holds(offset, length));
        EXPECT_FALSE(source->Read(offset, length, bytes)) << offset << ' ' << length;
        EXPECT_EQ("", bytes);
    }
    EXPECT_TRUE(source->ReadUpTo(8, UINT64_MAX, bytes));
    EXPECT_EQ("89", bytes);
    EXPECT_TRUE(source->ReadUpTo(UINT64_MAX, UINT64_MAX, bytes));
    EXPECT_EQ("", bytes);
}

TEST_F(ByteSourceTest, AFileThatShrinksOrGrowsGivesNoWrongBytes)
{
    std::string reason;
    const std::string path = Write(std::string(100000, 'a'));
    const auto source = ByteSource::Open(path, reason);
    ASSERT_NE(nullptr, source);
    fs::resize_file(path, 50000);
    std::string bytes;
    EXPECT_FALSE(source->Read(0, 100000, bytes));
    EXPECT_EQ("", bytes);
    EXPECT_FALSE(source->ReadUpTo(40000, 20000, bytes));
    EXPECT_TRUE(source->Read(0, 50000, bytes));
    EXPECT_EQ(std::string(50000, 'a'), bytes);
    fs::resize_file(path, 200000);
    EXPECT_EQ(100000U, source->Size());
    EXPECT_FALSE(source->Holds(100000, 1));
}

TEST_F(ByteSourceTest, WhatIsNoRegularFileIsRefusedWithTheReason)
{
    EXPECT_EQ("No such file or directory", Refused(Path("missing")));
    EXPECT_EQ("No such file or directory", Refused(""));
    EXPECT_EQ("Is a directory", Refused(m_folder.string()));
    EXPECT_EQ("Is not a regular file", Refused("/dev/null"));
    Write("");
    EXPECT_EQ("Not a directory", Refused(Path("file/below")));
    fs::create_symlink("loop-b", Path("loop-a"));
    fs::create_symlink("loop-a", Path("loop-b"));
    EXPECT_EQ("Too many levels of symbolic links", Refused(Path("loop-a")));
    EXPECT_NE("", Refused(Path("file") + std::string(1, '\0') + ".ntf"));  // would open another file
    fs::create_symlink("file", Path("link"));
    std::string reason;
    EXPECT_NE(nullptr, ByteSource::Open(Path("link"), reason));
}

TEST_F(ByteSourceTest, AFifoIsNeitherWaitedForNorTakenFromItsReader)
{
    ASSERT_EQ(0, mkfifo(Path("fifo").c_str(), 0600));
    EXPECT_EQ("Is not a regular file", Refused(Path("fifo")));

    // A writer that waits for its reader must go on waiting.
    std::atomic<bool> isServed = false;
    std::thread writer([&] {
        const int descriptor = ::open(Path("fifo").c_str(), O_WRONLY | O_CLOEXEC);
        isServed = true;
        ::close(descriptor);
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ("Is not a regular file", Refused(Path("fifo")));
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(isServed);
    const int reader = ::open(Path("fifo").c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    writer.join();
    ::close(reader);
}

TEST(BytePiecesTest, ReadsStayInsideOnePiece)
{
    const auto source = ByteSource::OfPieces({{0, "header"}, {10, "part"}, {14, "next"}}, 30, "pieces");
    EXPECT_TRUE(source->IsMemory());
    EXPECT_EQ(30U, source->Size());
    std::string bytes;
    EXPECT_TRUE(source->Read(11, 3, bytes));
    EXPECT_EQ("art", bytes);
    EXPECT_TRUE(source->Read(14, 4, bytes));
    EXPECT_EQ("next", bytes);
    // Nothing between two pieces, and no read across the border of two that touch.
    for (const auto& [offset, length] : {std::pair{6U, 1U}, {0U, 7U}, {10U, 5U}, {18U, 1U}, {29U, 1U}, {40U, 0U}}) {
        EXPECT_FALSE(source->Holds(offset, length)) << offset;
        EXPECT_FALSE(source->Read(offset, length, bytes)) << offset;
        EXPECT_TRUE(bytes.empty());
    }
    EXPECT_TRUE(source->ReadUpTo(2, 100, bytes));
    EXPECT_EQ("ader", bytes);
    EXPECT_TRUE(source->ReadUpTo(7, 100, bytes));
    EXPECT_EQ("", bytes);
    EXPECT_TRUE(source->Read(20, 0, bytes));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

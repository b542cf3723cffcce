// Small files cut at every byte, and with every byte of their headers replaced: each is refused with a finding or
// opened, and then every query, the XML and the validation have an answer.

#include "tests/support/Corpus.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/SmallFiles.h"

#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {

inline void PrintTo(const SmallFile& aFile, std::ostream* aOut)
{
    *aOut << aFile.name;
}

namespace {

// How many files there are between two that are opened, and how many opened ones between two that are asked for all
// that they tell. ORMO_FULL_SWEEP=1 takes them all, which is a matter of minutes.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t USUAL_STEP = 7;
#else
constexpr std::size_t USUAL_STEP = 1;
#endif
constexpr std::size_t USUAL_ASKED = 29;

bool IsFull()
{
    static const bool full = std::getenv("ORMO_FULL_SWEEP") != nullptr;
    return full;
}

std::size_t Step()
{
    return IsFull() ? 1 : USUAL_STEP;
}

/// Whether the bytes could be opened; what is neither opened nor refused with a finding fails the test.
bool IsOpenedAndAnswers(std::string_view aBytes)
{
    static std::size_t turn = 0;
    ImageSupportData* made = nullptr;
    try {
        ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), false, "swept", &made, true, false);
    } catch (const CSMException&) {
    } catch (const std::invalid_argument&) {
    }
    if (made == nullptr) {
        EXPECT_FALSE(ImageSupportDataFactory::GetFindings().empty());
        return false;
    }
    const OpenedIsd isd(made);
    if (!IsFull() && ++turn % USUAL_ASKED != 0) {
        return true;
    }
    EXPECT_LT(0U, AskEverything(*isd));
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    EXPECT_NE(nullptr, isd->Serialize());
    return true;
}

class SweepTest : public testing::TestWithParam<SmallFile>
{
};

INSTANTIATE_TEST_SUITE_P(Files, SweepTest, testing::ValuesIn(SmallFiles()),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

TEST_P(SweepTest, EveryPrefixIsRefusedOrOpens)
{
    const std::string_view bytes = GetParam().bytes;
    std::size_t opened = 0;
    for (std::size_t size = 0; size < bytes.size(); size += Step()) {
        opened += IsOpenedAndAnswers(bytes.substr(0, size)) ? 1U : 0U;
    }
    ASSERT_TRUE(IsOpenedAndAnswers(bytes));
    EXPECT_GT(bytes.size() / Step() / 2, opened) << "most of these files are headers";
}

TEST_P(SweepTest, EveryByteMayBeAnother)
{
    std::string bytes = GetParam().bytes;
    std::size_t refused = 0;
    for (const char wrong : {'\0', '\xFF', ' ', '-', '9', 'A'}) {
        for (std::size_t at = static_cast<unsigned char>(wrong) % Step(); at < bytes.size(); at += Step()) {
            const char right = std::exchange(bytes[at], wrong);
            refused += IsOpenedAndAnswers(bytes) ? 0U : 1U;
            bytes[at] = right;
        }
    }
    EXPECT_LT(0U, refused);
}

TEST(SweepRealFilesTest, EveryPrefixOfSmallRealFiles)
{
    constexpr std::size_t SMALL = 10'000;
    const std::size_t step = 3 * Step();
    if (!std::filesystem::exists(CorpusFile("."))) {
        GTEST_SKIP() << "the corpus is absent";
    }
    for (const auto& entry : std::filesystem::recursive_directory_iterator(CorpusFile("."))) {
        if (!entry.is_regular_file() || entry.file_size() > SMALL) {
            continue;
        }
        SCOPED_TRACE(entry.path());
        const std::string bytes = CorpusBytes(entry.path().c_str());
        for (std::size_t size = 0; size < bytes.size(); size += step) {
            IsOpenedAndAnswers(std::string_view(bytes).substr(0, size));
        }
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

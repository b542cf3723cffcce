// Memory that runs out while the program writes JSON and XML: all of the answer, or an exit code and a word about it.

#include "tests/memory/ShortMemory.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/ProgramRun.h"
#include "tests/support/TempFile.h"
#include "tools/Isd.h"

#include <new>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

std::string SmallFile()
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", Tre("OFFSET", "0000001200000034") + Tre("NOBODY", "unknown"));
    builder.AddText();
    return builder.Bytes();
}

/// Runs it while memory fails at that allocation; it may leave by the exception that main tells.
ProgramRun::Outcome RunShort(const ProgramRun& aProgram, std::size_t aFails, bool& aFailed)
{
    return aProgram.Run([&](const OrmoNitf::Action& aAction) {
        int code = OrmoNitf::EXIT_WRONG_USE;
        const ShortMemory shortage(aFails);
        try {
            code = aAction();
        } catch (const std::bad_alloc&) {
            code = OrmoNitf::EXIT_WRONG_USE;
        }
        aFailed = ShortMemory::HasFailed();
        return code;
    });
}

class ProgramMemoryTest : public testing::TestWithParam<std::pair<const OrmoNitf::Command*, const char*>>
{
};

INSTANTIATE_TEST_SUITE_P(Commands, ProgramMemoryTest,
                         testing::Values(std::pair(&OrmoNitf::JSON, "--typed"), std::pair(&OrmoNitf::JSON, "--salvage"),
                                         std::pair(&OrmoNitf::XML, "--images-only")),
                         [](const auto& aInfo) { return aInfo.param.first->name + std::to_string(aInfo.index); });

TEST_P(ProgramMemoryTest, SaysAllOrThatItFailed)
{
    constexpr std::size_t NEVER = std::size_t{1} << 40U;
    const TempFile file(SmallFile());
    const ProgramRun program(*GetParam().first, {GetParam().second, file.Path()});
    bool failed = false;
    const ProgramRun::Outcome whole = RunShort(program, NEVER, failed);
    ASSERT_EQ(OrmoNitf::EXIT_DONE, whole.code);
    ASSERT_FALSE(whole.text.empty());
    std::size_t failures = 0;
    // What is built once per process or thread, for failures too, is there when it is counted.
    for (const bool isCounted : {false, true}) {
        failed = true;
        for (std::size_t n = 0; failed; ++n) {
            const std::size_t before = LiveBlocks();
            {
                const ProgramRun::Outcome outcome = RunShort(program, n, failed);
                if (outcome.code == OrmoNitf::EXIT_DONE) {
                    ASSERT_EQ(whole.text, outcome.text) << "allocation " << n;
                } else {
                    ASSERT_TRUE(failed) << outcome.problems;
                    ++failures;
                }
            }
            ASSERT_TRUE(!isCounted || before == LiveBlocks()) << "allocation " << n;
        }
    }
    EXPECT_LT(20U, failures);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

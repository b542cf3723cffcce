// Memory that runs out while the program writes JSON and XML: all of the answer, or an exit code and a word about it.

#include "tests/memory/ShortMemory.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"
#include "tools/Commands.h"
#include "tools/Isd.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>
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

struct Outcome
{
    std::string text;
    std::string problems;
    int code = -1;
};

/// A command of the program with its arguments read.
class Program
{
public:
    Program(const OrmoNitf::Command& aCommand, std::vector<std::string> aArguments)
    {
        m_action = aCommand.declare(m_app);
        std::reverse(aArguments.begin(), aArguments.end());
        m_app.parse(aArguments);
    }

    /// Runs it while memory fails at that allocation; it may leave by the exception that main tells.
    Outcome Run(std::size_t aFails, bool& aFailed) const
    {
        Outcome outcome;
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* const results = open_memstream(&text, &size);
        std::ostringstream problems;
        std::FILE* const out = std::exchange(stdout, results);
        std::streambuf* const err = std::cerr.rdbuf(problems.rdbuf());
        {
            const ShortMemory shortage(aFails);
            try {
                outcome.code = m_action();
            } catch (const std::bad_alloc&) {
                outcome.code = OrmoNitf::EXIT_WRONG_USE;
            }
            aFailed = ShortMemory::HasFailed();
        }
        std::cerr.rdbuf(err);
        std::cerr.clear();
        stdout = out;
        std::fclose(results);
        outcome.text.assign(text, size);
        std::free(text);
        outcome.problems = problems.str();
        return outcome;
    }

private:
    CLI::App m_app;
    OrmoNitf::Action m_action;
};

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
    const Program program(*GetParam().first, {GetParam().second, file.Path()});
    bool failed = false;
    const Outcome whole = program.Run(NEVER, failed);
    ASSERT_EQ(OrmoNitf::EXIT_DONE, whole.code);
    ASSERT_FALSE(whole.text.empty());
    std::size_t failures = 0;
    // What is built once per process or thread, for failures too, is there when it is counted.
    for (const bool isCounted : {false, true}) {
        failed = true;
        for (std::size_t n = 0; failed; ++n) {
            const std::size_t before = LiveBlocks();
            {
                const Outcome outcome = program.Run(n, failed);
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

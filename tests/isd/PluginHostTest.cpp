#if defined(ORMO_HOST_DIR)

#include "tests/support/Process.h"
#include "tests/support/SourceDir.h"

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Tests::Outcome;
using Tests::RunCommand;

std::string Expected()
{
    std::ifstream file(Tests::SourceDir() + "/tests/csmhost/expected.txt");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Hosts that were built as C++11, gnu++14 and C++20: what they are told, errors included, is the same for all.
class PluginHostTest : public testing::TestWithParam<const char*>
{
protected:
    static std::string Host(const char* aKind)
    {
        return std::string(ORMO_HOST_DIR) + "/ormo_host_" + GetParam() + aKind;
    }
};

TEST_P(PluginHostTest, LinkedHostFindsThePluginOnceAndGetsEveryAnswer)
{
    const Outcome outcome = RunCommand(Host("_linked") + " 2>&1");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.text, Expected());
}

TEST_P(PluginHostTest, HostThatLoadsTheLibraryGetsTheSameAnswers)
{
    const Outcome outcome = RunCommand(Host("_loading") + " " + ORMO_LIBRARY_FILE + " 2>/dev/null");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.text, Expected());
}

TEST_P(PluginHostTest, PluginStandsInTheListFromLoadingOnAndIsNeverLeftDangling)
{
    const Outcome outcome = RunCommand(Host("_loading") + " " + ORMO_LIBRARY_FILE + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.text, "registered before: 0\nregistered after: 1\n");
}

INSTANTIATE_TEST_SUITE_P(Dialects, PluginHostTest, testing::Values("cxx11", "gnuxx14", "cxx20"));

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#endif

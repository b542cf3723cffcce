// Every target over its seeds, over files that once broke something, and over simple damage of the seeds. What does not
// hold ends the process.

#include "fuzz/Seeds.h"
#include "fuzz/Targets.h"
#include "tests/support/SourceDir.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace OrmoFuzz {

void PrintTo(const Target& aTarget, std::ostream* aOut)
{
    *aOut << aTarget.name;
}

namespace {

class ReplayTest : public testing::TestWithParam<Target>
{
};

INSTANTIATE_TEST_SUITE_P(Targets, ReplayTest, testing::ValuesIn(TARGETS),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

TEST_P(ReplayTest, SeedsAreTakenWithoutAFault)
{
    const std::vector<std::string> seeds = SeedsOf(GetParam().name);
    ASSERT_FALSE(seeds.empty());
    for (const std::string& seed : seeds) {
        GetParam().run(seed);
    }
}

TEST_P(ReplayTest, FilesThatOnceBrokeSomething)
{
    const std::filesystem::path directory =
        std::filesystem::path(ORMO::SensorModel::CSM::Tests::SourceDir()) / "fuzz/regressions" / GetParam().name;
    if (!std::filesystem::exists(directory)) {
        GTEST_SKIP() << "none are known";
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        SCOPED_TRACE(entry.path());
        std::ifstream file(entry.path(), std::ios::binary);
        GetParam().run(std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()));
    }
}

TEST_P(ReplayTest, DamagedSeeds)
{
    constexpr std::size_t SEEDS = 40;
    const std::vector<std::string> seeds = SeedsOf(GetParam().name);
    for (std::size_t i = 0; i < seeds.size(); i += std::max<std::size_t>(1, seeds.size() / SEEDS)) {
        const std::string& seed = seeds[i];
        GetParam().run(seed.substr(0, seed.size() / 2));
        std::string damaged = seed;
        for (std::size_t at = i % 7; at < damaged.size(); at += 97) {
            damaged[at] = '\xFF';
        }
        GetParam().run(damaged);
    }
}

}  // namespace
}  // namespace OrmoFuzz

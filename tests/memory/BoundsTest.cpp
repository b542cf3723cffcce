// Small files that promise much: what they cost is bounded by the bytes that are there.

#include "isd/ImageSupportDataFactory.h"
#include "tests/memory/ShortMemory.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/tre/TreLayoutList.h"

#include <algorithm>
#include <ctime>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

constexpr std::size_t KILOBYTE = 1024;

struct Cost
{
    std::size_t peak = 0;
    std::size_t largest = 0;
    bool opened = false;
};

/// What it takes to open a file, or to refuse it.
Cost CostOf(const std::string& aBytes)
{
    Cost cost;
    const PeakMemory peak;
    ImageSupportData* made = nullptr;
    try {
        ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), false, "bounds", &made, true, false);
    } catch (const CSMException&) {
    }
    cost = {peak.Bytes(), peak.Largest(), made != nullptr};
    testing::Test::RecordProperty("peak", std::to_string(cost.peak));
    testing::Test::RecordProperty("largest", std::to_string(cost.largest));
    ImageSupportDataFactory::Destroy(&made);
    return cost;
}

class BoundsTest : public testing::Test
{
protected:
    /// What is built once per process is there already.
    BoundsTest() { CostOf(NitfBuilder().Bytes()); }
};

TEST_F(BoundsTest, ACountOfBandsWithoutBands)
{
    NitfBuilder builder;
    builder.AddImage().NoBands().InsertAfter("NBANDS", "XBANDS", "99999").Comment("long enough");
    const Cost cost = CostOf(builder.Bytes());
    EXPECT_FALSE(cost.opened);
    EXPECT_GT(64 * KILOBYTE, cost.peak);
    EXPECT_GT(16 * KILOBYTE, cost.largest);
}

TEST_F(BoundsTest, CountsAndLengthsOfNines)
{
    NitfBuilder builder;
    std::string bytes = builder.Header();
    const std::size_t at = builder.OffsetOf("NUMI");
    std::string tables = "999";
    for (int i = 0; i != 999; ++i) {
        tables +=
            "999998"
            "9999999998";
    }
    tables += "999";
    for (int i = 0; i != 999; ++i) {
        tables +=
            "9998"
            "999998";
    }
    tables +=
        "000000000000"
        "00000"
        "00000";
    bytes.replace(at, std::string::npos, tables);
    bytes.replace(builder.OffsetOf("HL"), 6, Padded(bytes.size(), 6));
    bytes.replace(builder.OffsetOf("FL"), 12, "999999999998");
    bytes += "IM" + std::string(7000, ' ');
    ASSERT_LT(std::size_t{30'000}, bytes.size());
    const Cost cost = CostOf(bytes);
    EXPECT_FALSE(cost.opened);
    EXPECT_GT(20 * bytes.size(), cost.peak);
    EXPECT_GT(8 * bytes.size(), cost.largest);
}

TEST_F(BoundsTest, TimeAndMemoryGrowWithTheNumberOfSegments)
{
    const auto measure = [](int aSegments) {
        NitfBuilder builder;
        for (int i = 0; i != aSegments; ++i) {
            builder.AddImage();
        }
        const std::string bytes = builder.Bytes();
        auto best = std::numeric_limits<std::clock_t>::max();  // of the processor: others may keep it busy
        Cost cost;
        for (int i = 0; i != 5; ++i) {
            const std::clock_t start = std::clock();
            cost = CostOf(bytes);
            best = std::min(best, std::clock() - start);
        }
        EXPECT_TRUE(cost.opened);
        EXPECT_GT(20 * bytes.size(), cost.peak);
        return best;
    };
    const std::clock_t few = measure(99);
    EXPECT_GT(40 * few, measure(999)) << "ten times the segments: a square of them would be a hundred times";
}

TEST_F(BoundsTest, FullExtensionAreas)
{
    constexpr std::size_t AREA = 99'999 - 3;
    constexpr std::size_t HEAD = 11;
    for (const std::size_t data : {std::size_t{1}, std::size_t{100}, AREA - HEAD}) {
        std::string area;
        while (area.size() + HEAD + data <= AREA) {
            area += Tre("OWNTRE", std::string(data, 'x'));
        }
        NitfBuilder builder;
        builder.AddImage().Area("UDID", area).Area("IXSHD", area);
        const std::string bytes = builder.Bytes();
        const Cost cost = CostOf(bytes);
        EXPECT_TRUE(cost.opened) << data;
        EXPECT_GT(40 * bytes.size(), cost.peak) << data;
        EXPECT_GT(2 * bytes.size(), cost.largest) << data;
    }
}

/// Every table, with records in which every count is as large as it can be.
TEST_F(BoundsTest, CountsOfNinesInEveryTre)
{
    for (const NumberedLayout& layout : EveryLayout()) {
        for (const char fill : {'9', '1', '\xFF', '\x01'}) {
            SCOPED_TRACE(layout.name);
            NitfBuilder builder;
            builder.AddImage().Area("IXSHD", Tre(layout.tag, std::string(30'000, fill)));
            const std::string bytes = builder.Bytes();
            const Cost cost = CostOf(bytes);
            EXPECT_TRUE(cost.opened);
            EXPECT_GT((std::size_t{1} << 20U) + 20 * bytes.size(), cost.peak);
            EXPECT_GT(30 * bytes.size(), cost.largest);
        }
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

#include "foundation/CSMUtilGeneric.h"

#include <limits>
#include <memory>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilGeneric;

TEST(CSMUtilGenericTest, MessagesCollectOneLinePerProblem)
{
    std::string message;
    CSMUtilGeneric::ConstructMessage(true, "ERROR: ", "", "X", message);
    EXPECT_EQ(message, "ERROR: X");
    CSMUtilGeneric::ConstructMessage(true, "ERROR: Missing required field ", " BANDSA ", " COUNT ", message);
    EXPECT_EQ(message, "ERROR: X\nERROR: Missing required field BANDSA::COUNT");
    CSMUtilGeneric::ConstructMessage(false, "WARN: ", nullptr, "Y", message);
    EXPECT_EQ(message, "WARN: Y");
}

TEST(CSMUtilGenericTest, MessagesWithoutPrefixOrFieldStayAsTheyAre)
{
    for (const char* const empty : {"", static_cast<const char*>(nullptr)}) {
        for (const bool append : {false, true}) {
            std::string message = "kept";
            CSMUtilGeneric::ConstructMessage(append, empty, "A", "B", message);
            CSMUtilGeneric::ConstructMessage(append, "A", "B", empty, message);
            EXPECT_EQ(message, "kept");
        }
    }
    // A blank field names nothing, but the message was begun.
    std::string message = "kept";
    CSMUtilGeneric::ConstructMessage(true, "ERROR: ", "A", "  ", message);
    EXPECT_EQ(message, "kept\n");
    CSMUtilGeneric::ConstructMessage(false, "ERROR: ", "A", "  ", message);
    EXPECT_EQ(message, "");
}

TEST(CSMUtilGenericTest, MessagesMayBeMadeFromThemselves)
{
    std::string message = "COUNT";
    CSMUtilGeneric::ConstructMessage(false, "ERROR: ", message.c_str(), message.c_str(), message);
    EXPECT_EQ(message, "ERROR: COUNT::COUNT");
}

TEST(CSMUtilGenericTest, ErrorsCarryTypeMessageAndFunction)
{
    try {
        CSMUtilGeneric::ThrowTSMError("text", "Class::Operation", TSMError::BOUNDS);
    } catch (TSMError& error) {
        EXPECT_EQ(error.getError(), TSMError::BOUNDS);
        EXPECT_EQ(error.getMessage(), "text");
        EXPECT_EQ(error.getFunction(), "Class::Operation");
    }
    for (const char* const empty : {"", static_cast<const char*>(nullptr)}) {
        try {
            CSMUtilGeneric::ThrowTSMError(empty, empty, TSMError::MEMORY);
        } catch (TSMError& error) {
            EXPECT_EQ(error.getMessage(), "ERROR: Unknown system error encountered!");
            EXPECT_EQ(error.getFunction(), "unknown");
        }
    }
}

TEST(CSMUtilGenericTest, WarningsAreTrimmedAndDeleted)
{
    TSMWarning* warning = nullptr;
    CSMUtilGeneric::ConstructTSMWarning(" A::B ", " text ", TSMWarning::NO_INTERSECTION, &warning);
    ASSERT_NE(warning, nullptr);
    EXPECT_EQ(warning->getWarning(), TSMWarning::NO_INTERSECTION);
    EXPECT_EQ(warning->getMessage(), "text");
    EXPECT_EQ(warning->getFunction(), "A::B");
    CSMUtilGeneric::DeleteTSMWarning(&warning);
    EXPECT_EQ(warning, nullptr);
    CSMUtilGeneric::DeleteTSMWarning(&warning);

    CSMUtilGeneric::ConstructTSMWarning("  ", nullptr, TSMWarning::UNKNOWN_WARNING, &warning);
    ASSERT_NE(warning, nullptr);
    EXPECT_EQ(warning->getFunction(), "unknown");
    EXPECT_EQ(warning->getMessage(), "");
    CSMUtilGeneric::DeleteTSMWarning(&warning);
    CSMUtilGeneric::ConstructTSMWarning("a", "b", TSMWarning::UNKNOWN_WARNING, nullptr);
}

TEST(CSMUtilGenericTest, ValueRangeTakesTheUpperBoundFirst)
{
    EXPECT_TRUE(CSMUtilGeneric::IsWithinValueRange("5", 9, 1));
    EXPECT_FALSE(CSMUtilGeneric::IsWithinValueRange("5", 1, 9));
    EXPECT_TRUE(CSMUtilGeneric::IsWithinValueRange("9", 9, 9));
    EXPECT_FALSE(CSMUtilGeneric::IsWithinValueRange("0", 9, 1));
    EXPECT_FALSE(CSMUtilGeneric::IsWithinValueRange("-1", std::numeric_limits<unsigned long long>::max(), 0));
    EXPECT_FALSE(CSMUtilGeneric::IsWithinValueRange(nullptr, 9, 0));
    const std::unique_ptr<unsigned long[]> range(CSMUtilGeneric::ValueRange(3, 4));
    EXPECT_EQ(range[0], 3U);
    EXPECT_EQ(range[1], 4U);
}

bool IsInRange(const char* aValue, const char* aRange)
{
    const char* value = aValue;
    const bool isInRange = CSMUtilGeneric::IsInRange(value, aRange);
    EXPECT_EQ(value, aValue);
    return isInRange;
}

TEST(CSMUtilGenericTest, RangesAreListsOfNumbersAndPairs)
{
    EXPECT_TRUE(IsInRange("5", "1..9"));
    EXPECT_TRUE(IsInRange("00090", "-90..+90"));
    EXPECT_FALSE(IsInRange("90.0000000000000000000001", "-90..+90"));
    EXPECT_TRUE(IsInRange("3", "1,3,5..7"));
    EXPECT_TRUE(IsInRange(" 7 ", "1, 3, 5 .. 7"));
    EXPECT_FALSE(IsInRange("4", "1,3,5..7"));
    EXPECT_TRUE(IsInRange("12", "10.."));
    EXPECT_FALSE(IsInRange("9.99", "10.."));
    EXPECT_TRUE(IsInRange("-1e3", "..0"));
    EXPECT_TRUE(IsInRange("-0", "0"));
    EXPECT_TRUE(IsInRange("1e2", "100"));
    EXPECT_TRUE(IsInRange("0.5", ".5..1."));
    EXPECT_FALSE(IsInRange("-5", "-4..-1"));
    EXPECT_TRUE(IsInRange("-3", "-4..-1"));
    EXPECT_FALSE(IsInRange("5", "9..1"));
    // A double could not tell these two apart.
    EXPECT_FALSE(IsInRange("9007199254740993", "0..9007199254740992"));
    EXPECT_FALSE(IsInRange("1e99999999999999999999", "..1e308"));
}

TEST(CSMUtilGenericTest, RangesThatAreNoneHoldNothing)
{
    for (const char* const wrong : {"", "..", "1,", ",1", "1,x", "x..9", "1..9..10", "1-9", "...", " "}) {
        EXPECT_FALSE(IsInRange("1", wrong)) << wrong;
    }
    for (const char* const wrong : {"", "x", "1x", "1e", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(IsInRange(wrong, "0..9"));
    }
    EXPECT_FALSE(IsInRange("1", nullptr));
}

TEST(CSMUtilGenericTest, BytesToSkipAreTheLengthsBeforeTheEntry)
{
    const std::vector<unsigned long> lengths = {10, 20, 30};
    const auto skipped = [&lengths](long aIndex) {
        unsigned long long bytes = 99;
        return CSMUtilGeneric::GetNumOfBytesToSkip(aIndex, lengths, bytes) ? static_cast<long>(bytes) : -1;
    };
    EXPECT_EQ(skipped(0), 0);
    EXPECT_EQ(skipped(2), 30);
    EXPECT_EQ(skipped(3), 60);
    EXPECT_EQ(skipped(4), -1);
    EXPECT_EQ(skipped(-1), -1);
    unsigned long long bytes = 99;
    const std::vector<unsigned long> large = {std::numeric_limits<unsigned long>::max(),
                                              std::numeric_limits<unsigned long>::max()};
    EXPECT_EQ(CSMUtilGeneric::GetNumOfBytesToSkip(2, large, bytes), sizeof(unsigned long) < sizeof(bytes));
    EXPECT_EQ(bytes, sizeof(unsigned long) < sizeof(bytes) ? 2ULL * large[0] : 0U);
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

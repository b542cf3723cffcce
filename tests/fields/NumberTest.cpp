#include "fields/ByteCursor.h"
#include "fields/Number.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

TEST(NumberTest, CountsTakeTheWholeTextOrNothing)
{
    std::uint32_t count = 77;
    for (const char* const text :
         {"", "   ", "-7", "+7", "7 7", "7x", "x7", "0x7", "7.", "4294967296", "7\t", "\n7", "99999999999999999999"}) {
        EXPECT_FALSE(ToCount(text, count)) << text;
        EXPECT_EQ(77U, count) << text;
    }
    EXPECT_FALSE(ToCount(std::string_view("7\0", 2), count));
    EXPECT_TRUE(ToCount("007", count) && count == 7);
    EXPECT_TRUE(ToCount("  8 ", count) && count == 8);
    EXPECT_TRUE(ToCount("4294967295", count) && count == UINT32_MAX);
    std::uint64_t large = 0;
    EXPECT_TRUE(ToCount("18446744073709551615", large) && large == UINT64_MAX);
    EXPECT_FALSE(ToCount("18446744073709551616", large));
}

TEST(NumberTest, WholeNumbersHaveAtMostOneSign)
{
    std::int64_t number = 77;
    for (const char* const text : {"", " ", "+", "-", "+-7", "-+7", "++7", "--7", "- 7", "+ 7", "7-", "1.0", "1e3",
                                   "7 7", "9223372036854775808", "-9223372036854775809"}) {
        EXPECT_FALSE(ToWholeNumber(text, number)) << text;
        EXPECT_EQ(77, number) << text;
    }
    EXPECT_TRUE(ToWholeNumber(" +0012 ", number) && number == 12);
    EXPECT_TRUE(ToWholeNumber("-0", number) && number == 0);
    EXPECT_TRUE(ToWholeNumber("-9223372036854775808", number) && number == INT64_MIN);
    EXPECT_TRUE(ToWholeNumber("+9223372036854775807", number) && number == INT64_MAX);
}

TEST(NumberTest, RealNumbersAreDecimalAndFinite)
{
    double number = 77.0;
    for (const char* const text :
         {"",     " ",   ".",    "+",         "-.",  "+-1", "++1",   "1e",     "1e+",  "e5",  "1 e5", "1,5",
          "0x10", "inf", "-inf", "+infinity", "nan", "NAN", "1e400", "-1e400", "1.5.", "1d5", "1_0"}) {
        EXPECT_FALSE(ToRealNumber(text, number)) << text;
        EXPECT_EQ(77.0, number) << text;
    }
    EXPECT_TRUE(ToRealNumber(" +.5 ", number) && number == 0.5);
    EXPECT_TRUE(ToRealNumber("-5.", number) && number == -5.0);
    EXPECT_TRUE(ToRealNumber("+1.25E-02", number) && number == 0.0125);
    EXPECT_TRUE(ToRealNumber("0.0e-999", number) && number == 0.0);
    EXPECT_TRUE(ToRealNumber("1.7976931348623157e308", number));
}

TEST(NumberTest, BinaryNumbersHaveOneToEightBytes)
{
    std::uint64_t number = 77;
    EXPECT_FALSE(BigEndianUnsigned("", number));
    EXPECT_FALSE(BigEndianUnsigned(std::string(9, '\0'), number));
    EXPECT_EQ(77U, number);
    EXPECT_TRUE(BigEndianUnsigned(std::string_view("\x80\x00\xFF", 3), number) && number == 0x8000FFU);
    EXPECT_TRUE(BigEndianUnsigned(std::string(8, '\xFF'), number) && number == UINT64_MAX);
}

TEST(ByteCursorTest, TakeBeyondTheEndLeavesTheCursorWhereItWas)
{
    ByteCursor cursor("abcdef", 100);
    std::string_view taken;
    ASSERT_TRUE(cursor.Take(2, taken));
    EXPECT_EQ("ab", taken);
    for (const std::uint64_t count : {std::uint64_t{5}, UINT64_MAX, UINT64_MAX - 1}) {
        EXPECT_FALSE(cursor.Take(count, taken));
        EXPECT_EQ("ab", taken);
        EXPECT_EQ(102U, cursor.Offset());
        EXPECT_EQ(4U, cursor.Remaining());
    }
    EXPECT_EQ("cdef", cursor.Ahead(SIZE_MAX));
    EXPECT_TRUE(cursor.Take(4, taken));
    EXPECT_TRUE(cursor.Take(0, taken));
    EXPECT_EQ("", taken);
    EXPECT_FALSE(cursor.Take(1, taken));
    EXPECT_EQ(106U, cursor.Offset());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

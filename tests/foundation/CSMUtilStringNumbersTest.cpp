#include "tests/foundation/OwnedText.h"

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <optional>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilString;

constexpr double INF = std::numeric_limits<double>::infinity();
constexpr double NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();

/// The value that a conversion answers; it must leave its output as it was when it refuses.
template<typename Out>
std::optional<Out> Converted(bool (*aConversion)(const char*, Out&) noexcept, const char* aText)
{
    Out out = 77;
    if (aConversion(aText, out)) {
        return out;
    }
    EXPECT_EQ(out, Out{77}) << aText;
    return std::nullopt;
}

std::optional<long> Long(const char* aText)
{
    return Converted(&CSMUtilString::ToLong, aText);
}

std::optional<unsigned long> UnsignedLong(const char* aText)
{
    return Converted(&CSMUtilString::ToUnsignedLong, aText);
}

std::optional<double> Double(const char* aText)
{
    return Converted(&CSMUtilString::ToDouble, aText);
}

TEST(CSMUtilStringNumbersTest, IntegersDropTheirFraction)
{
    EXPECT_EQ(Long(" 42 "), 42);
    EXPECT_EQ(Long("+5"), 5);
    EXPECT_EQ(Long("-007"), -7);
    EXPECT_EQ(Long("12.9"), 12);
    EXPECT_EQ(Long("-12."), -12);
    for (const char* const zero : {".7", "-.5", "+.", ".", "-0"}) {
        EXPECT_EQ(Long(zero), 0) << zero;
    }
    EXPECT_EQ(UnsignedLong("+1"), 1U);
    EXPECT_EQ(UnsignedLong(".5"), 0U);
}

TEST(CSMUtilStringNumbersTest, IntegersRefuseWhatIsNone)
{
    for (const char* const wrong : {"", "  ", "4 2", "+-3", "3-", "1-2", "-", "+", "1.2.3", "1e5", "0x10", "1,5", "a",
                                    "\xB2", "-\t5", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(Long(wrong), std::nullopt) << wrong;
        EXPECT_EQ(UnsignedLong(wrong), std::nullopt) << wrong;
        EXPECT_EQ(Converted(&CSMUtilString::ToInt64, wrong), std::nullopt) << wrong;
        EXPECT_EQ(Converted(&CSMUtilString::ToUInt64, wrong), std::nullopt) << wrong;
    }
    EXPECT_EQ(UnsignedLong("-1"), std::nullopt);
    EXPECT_EQ(UnsignedLong("-0"), std::nullopt);
    EXPECT_EQ(UnsignedLong("-.5"), std::nullopt);
}

TEST(CSMUtilStringNumbersTest, IntegersBeyondTheirWidthAreRefused)
{
    EXPECT_EQ(Long("2147483647"), 2147483647);
    EXPECT_EQ(Long("-2147483648"), -2147483648L);
    EXPECT_EQ(Long("2147483648"), std::nullopt);
    EXPECT_EQ(Long("-2147483649"), std::nullopt);
    EXPECT_EQ(Converted(&CSMUtilString::ToInteger, "2147483648"), std::nullopt);
    EXPECT_EQ(Converted(&CSMUtilString::ToInteger, "-2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(UnsignedLong("4294967295"), 4294967295U);
    EXPECT_EQ(UnsignedLong("4294967296.5"), std::nullopt);
    EXPECT_EQ(Converted(&CSMUtilString::ToInt64, "-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(Converted(&CSMUtilString::ToInt64, "9223372036854775808"), std::nullopt);
    EXPECT_EQ(Converted(&CSMUtilString::ToUInt64, "18446744073709551615"), std::numeric_limits<std::uint64_t>::max());
    EXPECT_EQ(Converted(&CSMUtilString::ToUInt64, "18446744073709551616"), std::nullopt);
}

TEST(CSMUtilStringNumbersTest, LongTextsAreReadToTheirEnd)
{
    const std::string zeros(1'000'000, '0');
    EXPECT_EQ(Long((zeros + "42").c_str()), 42);
    EXPECT_EQ(Long(("1" + zeros).c_str()), std::nullopt);
    EXPECT_EQ(Double(("0." + zeros + "1").c_str()), 0.0);
    EXPECT_EQ(Double(("1" + zeros).c_str()), std::nullopt);
    EXPECT_EQ(Double(("1" + zeros + "e-1000000").c_str()), 1.0);
}

TEST(CSMUtilStringNumbersTest, BooleansAreTheTwoWords)
{
    for (const auto& [text, expected] : {std::pair{"TRUE ", true}, {" fAlSe", false}}) {
        bool out = !expected;
        EXPECT_TRUE(CSMUtilString::ToBool(text, out));
        EXPECT_EQ(out, expected);
    }
    for (const char* const wrong : {"1", "0", "yes", "tru", "truee", "", " ", static_cast<const char*>(nullptr)}) {
        for (bool out : {false, true}) {
            const bool before = out;
            EXPECT_FALSE(CSMUtilString::ToBool(wrong, out));
            EXPECT_EQ(out, before);
        }
    }
}

TEST(CSMUtilStringNumbersTest, RealsMayHaveAPointAndAnExponent)
{
    EXPECT_EQ(Double("1e5"), 1e5);
    EXPECT_EQ(Double(" -1.5E-3 "), -1.5e-3);
    EXPECT_EQ(Double("+.5"), 0.5);
    EXPECT_EQ(Double("5."), 5.0);
    EXPECT_EQ(Double("+00012.50"), 12.5);
    EXPECT_EQ(Double("0.1"), 0.1);
}

TEST(CSMUtilStringNumbersTest, RealsCountTheLongestNumberAtTheStart)
{
    for (const char* const one : {"1e", "1e+", "1+e5", "1e-"}) {
        EXPECT_EQ(Double(one), 1.0) << one;
    }
    EXPECT_EQ(Double("1e5.5"), 1e5);
    EXPECT_EQ(Double("1.e2"), 100.0);
}

TEST(CSMUtilStringNumbersTest, RealsRefuseWhatIsNone)
{
    for (const char* const wrong : {"",      " ",     "e5",    ".e5",    "-e5",
                                    "-.e5",  "1.2.3", "1-2",   "1-",     "--1",
                                    "--1e5", "+-1e5", "-+1e5", "1e-5-+", "1e5e5",
                                    ".",     "-",     "-.",    "inf",    "nan",
                                    "0x1p3", "1,5",   "1 5",   "\xB9",   static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(Double(wrong), std::nullopt) << wrong;
    }
}

TEST(CSMUtilStringNumbersTest, RealsTooLargeAreRefusedAndRealsTooSmallAreZero)
{
    EXPECT_EQ(Double("1.7976931348623157e308"), std::numeric_limits<double>::max());
    for (const char* const large : {"1e309", "-1e400", "1.7976931348623159e308", "1e99999999999999999999", "0.1e310"}) {
        EXPECT_EQ(Double(large), std::nullopt) << large;
    }
    EXPECT_EQ(Double("5e-324"), std::numeric_limits<double>::denorm_min());
    for (const char* const small : {"1e-400", "-1e-400", "1e-99999999999999999999", "123e-400", "0e99999999999999"}) {
        EXPECT_EQ(Double(small), 0.0) << small;
    }
}

/// A locale with a decimal comma and grouped digits for the streams of C++, and, where the system has one, for C.
class CommaLocaleTest : public ::testing::Test
{
protected:
    struct Comma : std::numpunct<char>
    {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };

    void SetUp() override
    {
        for (const char* const name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE", "nl_NL.UTF-8"}) {
            if (std::setlocale(LC_ALL, name) != nullptr) {
                break;
            }
        }
        m_before = std::locale::global(std::locale(std::locale::classic(), new Comma));
    }
    void TearDown() override
    {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
    }

private:
    std::locale m_before;
};

TEST_F(CommaLocaleTest, NumbersKeepThePointAndAreNotGrouped)
{
    EXPECT_EQ(Double("1.5"), 1.5);
    EXPECT_EQ(Double("1,5"), std::nullopt);
    EXPECT_EQ(Converted(&CSMUtilString::ToInt64, "1234567.5"), 1234567);
    EXPECT_EQ(CSMUtilString::ToString(1234567.25, false, 2), "1234567.25");
    EXPECT_EQ(CSMUtilString::ToString(1234567), "1234567");
    Text value;
    Text uncertainty;
    ASSERT_TRUE(CSMUtilString::SignificantFigures(1234.567, 0.023, value.Out(), uncertainty.Out(), false));
    EXPECT_EQ(value.Str(), "1234.57");
}

TEST(CSMUtilStringNumbersTest, NumbersBecomeTextOfTheAskedPrecision)
{
    EXPECT_EQ(CSMUtilString::ToString(std::numeric_limits<int>::min()), "-2147483648");
    EXPECT_EQ(CSMUtilString::ToString(18446744073709551615ULL), "18446744073709551615");
    EXPECT_EQ(CSMUtilString::ToString(1.5, false, 0), "2");
    EXPECT_EQ(CSMUtilString::ToString(-1234.5678, true, 3), "-1.235e+03");
    EXPECT_EQ(CSMUtilString::ToString(0.1, false, -1), "0.10000000000000000555");
    EXPECT_EQ(CSMUtilString::ToString(0.1, true, -1), "1.00000000000000005551e-01");
    const std::string largest = CSMUtilString::ToString(-std::numeric_limits<double>::max(), false, 3);
    EXPECT_EQ(largest.size(), 1U + 309U + 4U);
    EXPECT_EQ(CSMUtilString::ToString(1.0, false, 2'000'000).size(), 2'000'002U);
    Text text;
    EXPECT_TRUE(CSMUtilString::ToString(text.Out(), 2.5, false, 1));
    EXPECT_EQ(text.Str(), "2.5");
    EXPECT_FALSE(CSMUtilString::ToString(nullptr, 2.5, false, 1));
}

struct FiguresCase
{
    double value;
    double uncertainty;
    const char* fixedValue;
    const char* fixedUncertainty;
    const char* scientificValue;
    const char* scientificUncertainty;
};

class SignificantFiguresTest : public ::testing::TestWithParam<FiguresCase>
{
};

TEST_P(SignificantFiguresTest, ValueEndsAtTheFigureOfItsUncertainty)
{
    const FiguresCase& given = GetParam();
    for (const bool isScientific : {false, true}) {
        Text value;
        Text uncertainty;
        ASSERT_TRUE(CSMUtilString::SignificantFigures(given.value, given.uncertainty, value.Out(), uncertainty.Out(),
                                                      isScientific));
        EXPECT_EQ(value.Str(), isScientific ? given.scientificValue : given.fixedValue);
        EXPECT_EQ(uncertainty.Str(), isScientific ? given.scientificUncertainty : given.fixedUncertainty);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Examples, SignificantFiguresTest,
    ::testing::Values(FiguresCase{1234.567, 0.023, "1234.57", "0.02", "1.23457e+03", "2.e-02"},
                      FiguresCase{1234.567, 0.096, "1234.6", "0.1", "1.2346e+03", "1.e-01"},
                      FiguresCase{1234.567, 23, "1230", "20", "1.23e+03", "2.e+01"},
                      FiguresCase{-0.15, 0.1, "-0.2", "0.1", "-2.e-01", "1.e-01"},
                      FiguresCase{7, 20, "10", "20", "1.e+01", "2.e+01"},
                      FiguresCase{3, 20, "0.e+00", "20", "0.e+00", "2.e+01"},
                      // A carry through every digit, an exact zero, and digits that the value does not have.
                      FiguresCase{-999.96, 0.1, "-1000.0", "0.1", "-1.0000e+03", "1.e-01"},
                      FiguresCase{-0.0, 0.1, "0.e+00", "0.1", "0.e+00", "1.e-01"},
                      FiguresCase{5, 0.001, "5.000", "0.001", "5.000e+00", "1.e-03"},
                      FiguresCase{2.5, 1, "3", "1", "3.e+00", "1.e+00"}));

TEST(CSMUtilStringNumbersTest, SignificantFiguresNeedFiniteNumbersAndAPositiveUncertainty)
{
    for (const auto& [number, doubt] :
         {std::pair{1.0, 0.0}, {1.0, -0.5}, {1.0, INF}, {1.0, NOT_A_NUMBER}, {INF, 1.0}, {NOT_A_NUMBER, 1.0}}) {
        Text value;
        Text uncertainty;
        EXPECT_FALSE(CSMUtilString::SignificantFigures(number, doubt, value.Out(), uncertainty.Out(), false));
        EXPECT_TRUE(value.IsNull());
        EXPECT_TRUE(uncertainty.IsNull());
    }
    Text value;
    EXPECT_FALSE(CSMUtilString::SignificantFigures(1.0, 0.1, value.Out(), nullptr, false));
    // The whole span of a double: 309 digits before the point and 323 behind it.
    Text uncertainty;
    ASSERT_TRUE(CSMUtilString::SignificantFigures(std::numeric_limits<double>::max(), 1e-323, value.Out(),
                                                  uncertainty.Out(), false));
    EXPECT_EQ(value.Str().size(), 309U + 1U + 323U);
}

TEST(CSMUtilStringNumbersTest, UncertaintyIsWrittenWithTheAskedFigures)
{
    struct Case
    {
        double uncertainty;
        int figures;
        const char* fixedText;
        const char* scientificText;
    };
    for (const Case& given :
         {Case{0.0256, 1, "0.03", "3.e-02"}, Case{0.0256, 2, "0.026", "2.6e-02"}, Case{0.5, 3, "0.500", "5.00e-01"},
          Case{9.96, 2, "10", "1.0e+01"}, Case{1234, 2, "1200", "1.2e+03"}, Case{0.0256, -4, "0.03", "3.e-02"},
          Case{0.5, std::numeric_limits<int>::max(), "0.50000000000000000", "5.0000000000000000e-01"},
          Case{1e-300, 1, nullptr, "1.e-300"}}) {
        Text scientific;
        ASSERT_TRUE(CSMUtilString::TruncateUncertaintyValue(given.uncertainty, scientific.Out(), true, given.figures));
        EXPECT_EQ(scientific.Str(), given.scientificText);
        Text fixed;
        ASSERT_TRUE(CSMUtilString::TruncateUncertaintyValue(given.uncertainty, fixed.Out(), false, given.figures));
        if (given.fixedText != nullptr) {
            EXPECT_EQ(fixed.Str(), given.fixedText);
        }
    }
    for (const double wrong : {0.0, -0.0, -1.0, INF, NOT_A_NUMBER}) {
        Text none;
        EXPECT_FALSE(CSMUtilString::TruncateUncertaintyValue(wrong, none.Out(), false, 1));
        EXPECT_TRUE(none.IsNull());
    }
}

TEST(CSMUtilStringNumbersTest, SignificantFiguresInfoTellsHowANumberIsWritten)
{
    struct Case
    {
        const char* text;
        bool hasSign;
        bool hasPoint;
        int figures;
        int decimals;
    };
    for (const Case& given :
         {Case{"0.0230", false, true, 3, 4}, Case{"-1200", true, false, 2, 0}, Case{"+1200.", true, true, 4, 0},
          Case{"1.50e3", false, true, 3, 2}, Case{"0.00", false, true, 1, 2}, Case{" 100.10 ", false, true, 5, 2},
          Case{"0", false, false, 1, 0}, Case{"-.5E-12", true, true, 1, 1}}) {
        bool hasSign = !given.hasSign;
        bool hasPoint = !given.hasPoint;
        int figures = -1;
        int decimals = -1;
        EXPECT_TRUE(CSMUtilString::GetSignificantFiguresInfo(given.text, hasSign, hasPoint, figures, decimals));
        EXPECT_EQ(hasSign, given.hasSign) << given.text;
        EXPECT_EQ(hasPoint, given.hasPoint) << given.text;
        EXPECT_EQ(figures, given.figures) << given.text;
        EXPECT_EQ(decimals, given.decimals) << given.text;
    }
    for (const char* const wrong : {"", "-", ".", "1e", "1.2.3", "1x", "e5", static_cast<const char*>(nullptr)}) {
        bool hasSign = true;
        bool hasPoint = true;
        int figures = 7;
        int decimals = 7;
        EXPECT_FALSE(CSMUtilString::GetSignificantFiguresInfo(wrong, hasSign, hasPoint, figures, decimals));
        EXPECT_FALSE(hasSign || hasPoint || figures != 0 || decimals != 0);
    }
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

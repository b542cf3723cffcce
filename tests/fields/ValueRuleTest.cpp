#include "fields/FieldTable.h"
#include "fields/ValueRule.h"
#include "tests/fields/WalkSupport.h"

#include <bit>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

using enum Verdict;

Verdict Check(Form aForm, const char* aRule, std::string_view aValue, Need aNeed = Need::Required)
{
    return CheckValue(Field("A", 1, aNeed, aForm, aRule, "", ""), aValue);
}

TEST(ValueRuleTest, NumberRangesHoldTheirEndsAndCompareAsNumbers)
{
    for (const char* const value : {"01", "99", "1", " 7", "50 ", "007"}) {
        EXPECT_EQ(Good, Check(Form::Integer, "01..99", value)) << value;
    }
    EXPECT_EQ(OutOfRange, Check(Form::Integer, "01..99", "00"));
    EXPECT_EQ(OutOfRange, Check(Form::Integer, "01..99", "100"));
    EXPECT_EQ(Good, Check(Form::Integer, "-10..10", "-10"));
    EXPECT_EQ(OutOfRange, Check(Form::Integer, "-10..10", "-11"));
    EXPECT_EQ(Good, Check(Form::Real, "-1.5..+1.5", "+1.50"));
    EXPECT_EQ(OutOfRange, Check(Form::Real, "-1.5..+1.5", "1.5000001"));
    EXPECT_EQ(Good, Check(Form::Real, "0..9E5", "9.0E+05"));
    EXPECT_EQ(Good, Check(Form::Text, "0..5|10..20", "12.5"));
    EXPECT_EQ(OutOfRange, Check(Form::Text, "0..5|10..20", "7"));
}

TEST(ValueRuleTest, WhatIsNoNumberOfItsFormIsToldSoWithAndWithoutARule)
{
    for (const char* const rule : {"", "0..9"}) {
        for (const char* const value : {"x", "1 2", "0x1", "-", "1,5", "inf", "nan", "1e"}) {
            EXPECT_EQ(NotANumber, Check(Form::Real, rule, value)) << value;
            EXPECT_EQ(NotANumber, Check(Form::Integer, rule, value)) << value;
            EXPECT_EQ(NotANumber, Check(Form::Digits, rule, value)) << value;
        }
        EXPECT_EQ(NotANumber, Check(Form::Integer, rule, "1.5"));
        EXPECT_EQ(NotANumber, Check(Form::Digits, rule, "+5"));
        EXPECT_EQ(Good, Check(Form::Integer, rule, "+5"));
        EXPECT_EQ(Good, Check(Form::Real, rule, "1.5"));
    }
    EXPECT_EQ(Good, Check(Form::Integer, "0..9|XX=none", "XX"));
    EXPECT_EQ(Good, Check(Form::Integer, "any", "XX"));
}

TEST(ValueRuleTest, TextRangesCompareEachPlace)
{
    EXPECT_EQ(Good, Check(Form::Text, "A1..Z9", "B2"));
    for (const char* const value : {"B0", "2B", "b2", "B", "B22"}) {
        EXPECT_EQ(OutOfRange, Check(Form::Text, "A1..Z9", value)) << value;
    }
    EXPECT_EQ(OutOfRange, Check(Form::Text, "AAA..Z", "BBB"));  // a broken rule matches nothing and reads no further
}

TEST(ValueRuleTest, FractionsOfATimeMayEndInHyphensAndHexadecimalDigitsAreDigitsAndSixLetters)
{
    for (const char* const value : {"120000.123456", "120000.12----", "120000.------", "------.------"}) {
        EXPECT_EQ(Good, Check(Form::Time, "{hhmmss.ssssss}", value)) << value;
    }
    for (const char* const value : {"120000.12---4", "120000.-12345", "120000-------"}) {
        EXPECT_EQ(OutOfRange, Check(Form::Time, "{hhmmss.ssssss}", value)) << value;
    }
    EXPECT_EQ(OutOfRange, Check(Form::Location, "{ddmmss.ssX}", "401500.--N"));
    EXPECT_EQ(NotANumber, Check(Form::Real, "{+n.nnnE+ee}", "+1.---E+01"));
    EXPECT_EQ(Good, Check(Form::Text, "{xxxx-xx}", "09af-AF"));
    EXPECT_EQ(OutOfRange, Check(Form::Text, "{xxxx-xx}", "09ag-AF"));
    EXPECT_EQ(OutOfRange, Check(Form::Text, "{xxxx-xx}", "09a-fAF"));
}

TEST(ValueRuleTest, DatesObeyTheCalendarAsFarAsTheyAreKnown)
{
    for (const char* const good :
         {"20240229120000", "20230228120000", "20231231235960", "----0229------", "2023--31------"}) {
        EXPECT_TRUE(PictureMatches("CCYYMMDDhhmmss", good)) << good;
    }
    for (const char* const bad :
         {"20230229120000", "20230431120000", "19000229120000", "----0230------", "20230231000000"}) {
        EXPECT_FALSE(PictureMatches("CCYYMMDDhhmmss", bad)) << bad;
    }
    EXPECT_TRUE(PictureMatches("DDHHmmSSZMONYY", "29120000ZFEB96"));
    EXPECT_TRUE(PictureMatches("YYMMDD", "000229")) << "2000 may be meant";
    EXPECT_FALSE(PictureMatches("DDHHmmSSZMONYY", "29120000ZFEB97"));
    EXPECT_FALSE(PictureMatches("DDHHmmSSZMONYY", "31120000ZJUN96"));
}

TEST(ValueRuleTest, AlternativesMayCarryMeaningsAndBlanks)
{
    constexpr const char* RULE = "L=left|R=right..or so|blank=unknown|==equal";
    EXPECT_EQ(Good, Check(Form::Text, RULE, "L  "));
    EXPECT_EQ(Good, Check(Form::Text, RULE, " R"));
    EXPECT_EQ(Good, Check(Form::Text, RULE, "   "));
    EXPECT_EQ(Good, Check(Form::Text, RULE, "="));
    for (const char* const value : {"left", "L=left", "LR", "l", "blank"}) {
        EXPECT_EQ(OutOfRange, Check(Form::Text, RULE, value)) << value;
    }
    EXPECT_EQ(Good, Check(Form::Text, "A|any=code of a register", "whatever"));
    EXPECT_TRUE(IsListed("BC ", "A |BC"));
    EXPECT_TRUE(IsListed("  ", "A|"));
    EXPECT_TRUE(IsListed("", ""));
    EXPECT_FALSE(IsListed("", "A|B"));
    EXPECT_FALSE(IsListed(" A", "A|B"));
}

TEST(ValueRuleTest, BlanksAreJudgedByNeedThenByRule)
{
    for (const Need need : {Need::RequiredBlank, Need::ConditionalBlank, Need::Optional}) {
        EXPECT_EQ(Good, Check(Form::Integer, "1..9", "  ", need));
    }
    for (const Need need : {Need::Required, Need::Conditional}) {
        EXPECT_EQ(Blank, Check(Form::Integer, "1..9", "  ", need));
        EXPECT_EQ(Blank, Check(Form::Text, "any", "  ", need));
        EXPECT_EQ(Good, Check(Form::Integer, "1..9|blank", "  ", need));
        EXPECT_EQ(Good, Check(Form::Integer, "1..9", "", need));
    }
}

TEST(ValueRuleTest, CharactersOutsideTheSetOfTheFormAreFound)
{
    EXPECT_EQ(Good, Check(Form::Text, "", "line\r\n~!\f"));
    for (const char* const value : {"\x7F", "a\tb", "\xA0", "\x1F"}) {
        EXPECT_EQ(WrongCharacters, Check(Form::Text, "", value));
        EXPECT_EQ(WrongCharacters, Check(Form::Text, "any", value));
    }
    EXPECT_EQ(WrongCharacters, Check(Form::Integer, "", std::string_view("1\0", 2)));
    EXPECT_EQ(Good, Check(Form::Ecs, "", "caf\xE9"));
    EXPECT_EQ(WrongCharacters, Check(Form::Ecs, "", "\x9F"));
    EXPECT_EQ(Good, Check(Form::DigitText, "", "0012 "));
    EXPECT_EQ(WrongCharacters, Check(Form::DigitText, "", "12A"));
    EXPECT_EQ(Good, Check(Form::DigitText, "001..999|NA", "NA"));
    EXPECT_EQ(Good, Check(Form::NumberText, "", "+1/2.5-"));
    EXPECT_EQ(WrongCharacters, Check(Form::NumberText, "", "1e5"));
}

TEST(ValueRuleTest, Utf8MustBeWholeShortestAndNoSurrogate)
{
    for (const char* const value : {"plain", "\xC3\xA9", "\xE2\x82\xAC", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_EQ(Good, Check(Form::Utf8, "", value)) << value;
    }
    for (const char* const value : {"\xC3", "\x80", "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                    "\xF0\x8F\xBF\xBF", "\xE2\x82", "\xE2\x28\xA1", "\xFF"}) {
        EXPECT_EQ(WrongCharacters, Check(Form::Utf8, "", value));
    }
}

TEST(ValueRuleTest, BinaryNumbersAreReadBySignAndWidth)
{
    EXPECT_EQ(Good, Check(Form::Unsigned, "0..255", "\xFF"));
    EXPECT_EQ(OutOfRange, Check(Form::Unsigned, "0..255", std::string_view("\x01\x00", 2)));
    EXPECT_EQ(Good, Check(Form::Signed, "-1", "\xFF\xFF\xFF"));
    EXPECT_EQ(Good, Check(Form::Signed, "-128..-128", "\x80"));
    EXPECT_EQ(OutOfRange, Check(Form::Signed, "0..9", std::string(8, '\xFF')));
    EXPECT_EQ(Good, Check(Form::Unsigned, "0..18446744073709551615", std::string(8, '\xFF')));
    EXPECT_EQ(Good, Check(Form::Unsigned, "7|9=nine", "\x09"));
    EXPECT_EQ(OutOfRange, Check(Form::Unsigned, "7|blank|{CCYY}|AA..ZZ", "\x20"));
    EXPECT_EQ(Good, Check(Form::Unsigned, "7|any", "\x20"));
    const auto bytesOf = [](std::uint64_t aBits, unsigned aCount) {
        std::string bytes;
        for (unsigned i = aCount; i-- != 0;) {
            bytes += static_cast<char>((aBits >> (8U * i)) & 0xFFU);
        }
        return bytes;
    };
    EXPECT_EQ(Good, Check(Form::Float, "-1.5..1.5", bytesOf(std::bit_cast<std::uint32_t>(-1.5F), 4)));
    EXPECT_EQ(OutOfRange, Check(Form::Float, "-1.5..1.5", bytesOf(std::bit_cast<std::uint64_t>(1.75), 8)));
    EXPECT_EQ(OutOfRange, Check(Form::Float, "-1.5..1.5", bytesOf(0x7FC00000U, 4)));  // not a number
    EXPECT_EQ(Good, Check(Form::Bytes, "1..2", "\x09"));
    EXPECT_EQ(Good, Check(Form::Colour, "1..2", "\x09\x09\x09"));
    EXPECT_EQ(Good, Check(Form::Records, "1..2", "\x01"));
    EXPECT_EQ(Good, Check(Form::Unsigned, "1..2", std::string(9, '\x09')));  // too wide for a number
}

TEST(ValueRuleTest, BrokenRulesAreRefused)
{
    for (const char* const rule : {"",
                                   "01..99",
                                   "-1.5..+1.5",
                                   "AA..ZZ",
                                   "1..1",
                                   "A|B|blank",
                                   "any=else",
                                   "{CCYYMMDD}|blank",
                                   "0",
                                   "=",
                                   "U..U",
                                   "{Xddmmss.ssYdddmmss.ss}|{+dd.dddddd+ddd.dddddd}|blank",
                                   "{CCYYMMDDhhmmss}",
                                   "{DDMMMYY}",
                                   "{DDMONYY}",
                                   "{YYMMDDhhmmss.sss}",
                                   "{YYYY-MM-DDThh:mm:ssZ}",
                                   "{zzBJKeeeeennnnn}",
                                   "{HHmmSS.SSS}",
                                   "L=a..b {c"}) {
        EXPECT_TRUE(IsRule(rule)) << rule;
    }
    for (const char* const rule : {"|",
                                   "A|",
                                   "|A",
                                   "A||B",
                                   " ",
                                   "A| |B",
                                   "..",
                                   "1..",
                                   "..1",
                                   "A..",
                                   "A..BB",
                                   "9..1",
                                   "Z..A",
                                   "A9..B1",
                                   "1..2..3",
                                   "{",
                                   "{}",
                                   "{CCYY",
                                   "{CCYYMMD}",
                                   "{YYYYMMDDhhm}",
                                   "{HHMMSS}",
                                   "{YYYYY}",
                                   "{hhmmss.mmmmmm}",
                                   "{CCYYMMDD?}",
                                   "{ddddmm}",
                                   "{DDD}",
                                   "{MMMM}"}) {
        EXPECT_FALSE(IsRule(rule)) << rule;
    }
}

struct PictureCase
{
    const char* picture;
    std::vector<const char*> good;
    std::vector<const char*> bad;
};

TEST(PictureTest, DatesTimesAnglesAndGridsMatchWithinTheirBounds)
{
    const std::vector<PictureCase> cases{
        {"CCYYMMDD",
         {"20240229", "00000101", "19991231", "------01", "1999--15", "--------"},
         {"20241301", "20240001", "20240132", "20240100", "2024010", "202401011", "2024-1-1", "19-90101", " 9990101"}},
        {"CCYYMMDDhhmmss",
         {"20240229235960", "20240229------", "2024022900--00"},
         {"20240229240000", "20240229006000", "20240229000061", "2024022900000"}},
        {"DDMMMYY", {"29FEB24", "--DEC99", "01JAN--"}, {"29feb24", "29FEV24", "32JAN99", "01---99", "01JNA99"}},
        {"DDMONYY", {"01SEP00"}, {"01SET00"}},
        {"YYMMDDhhmmss.sss", {"990101235959.000", "990101------.123"}, {"990101235959,000", "990101235959.0a0"}},
        {"YYYY-MM-DDThh:mm:ssZ", {"2024-02-29T00:00:00Z"}, {"2024-02-29 00:00:00Z", "2024/02/29T00:00:00Z"}},
        {"HHmmSS.SSS", {"235960.999"}, {"235961.999", "235960.99x"}},
        {"Xddmmss.ssYdddmmss.ss",
         {"N895959.99E1795959.99", "S900000.00W1800000.00", "N000000.00E0000000.00"},
         {"E895959.99N1795959.99", "N910000.00E0000000.00", "N000000.00E1810000.00", "N006000.00E0000000.00",
          "N000060.00E0000000.00", "N00--00.00E0000000.00", "N900000.01E0000000.00", "N900100.00E0000000.00",
          "N000000.00E1800000.10", "n000000.00e0000000.00", "N 00000.00E0000000.00"}},
        {"ddmmssX", {"900000N", "123456S"}, {"900001N", "123456E", "--3456N"}},
        {"+dd.dddddd+ddd.dddddd",
         {"+90.000000-180.000000", "-89.999999+179.999999"},
         {"+90.000001+000.000000", "+00.000000+180.000001", "+91.000000+000.000000", " 90.000000+000.000000",
          "+00.00000a+000.000000"}},
        {"zzBJKeeeeennnnn", {"32UMU1234567890"}, {"32uMU1234567890", "3AUMU1234567890", "32UMU123456789-"}},
        {"+nn", {"-12"}, {"+1", "x12"}},
    };
    for (const PictureCase& one : cases) {
        EXPECT_TRUE(IsPicture(one.picture)) << one.picture;
        for (const char* const value : one.good) {
            EXPECT_TRUE(PictureMatches(one.picture, value)) << one.picture << ' ' << value;
        }
        for (const char* const value : one.bad) {
            EXPECT_FALSE(PictureMatches(one.picture, value)) << one.picture << ' ' << value;
        }
        EXPECT_FALSE(PictureMatches(one.picture, ""));
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

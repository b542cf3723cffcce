#include "segments/NITFWords.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

TEST(NITFWordsTest, DatesOfBothVersionsAreShownUpToTheFirstUnknownPart)
{
    EXPECT_EQ(NITFWords::Date("20000602192321"), "2000-06-02 19:23:21Z");
    EXPECT_EQ(NITFWords::Date("20000602192321", 'T'), "2000-06-02T19:23:21Z");
    EXPECT_EQ(NITFWords::Date("02192321ZJUN00"), "2000-06-02 19:23:21Z");
    EXPECT_EQ(NITFWords::Date("14213214ZNOV96"), "1996-11-14 21:32:14Z");
    EXPECT_EQ(NITFWords::Date("14213214ZNOV50"), "1950-11-14 21:32:14Z");
    EXPECT_EQ(NITFWords::Date("14213214ZNOV49"), "2049-11-14 21:32:14Z");
    EXPECT_EQ(NITFWords::Date("--------ZNOV96"), "1996-11");
    EXPECT_EQ(NITFWords::Date("20000602------"), "2000-06-02");
    EXPECT_EQ(NITFWords::Date("200006--------"), "2000-06");
    EXPECT_EQ(NITFWords::Date("2000060219----"), "2000-06-02 19:--Z");
    EXPECT_EQ(NITFWords::Date("20000602"), "2000-06-02");
    EXPECT_EQ(NITFWords::Date("20000229000000"), "2000-02-29 00:00:00Z");
}

TEST(NITFWordsTest, WhatIsNoDateIsShownAsItIs)
{
    for (const char* const text : {"20010229000000", "20001302000000", "00000000000000x", "2000", "14213214ZXXX96",
                                   "14253214ZNOV96", "20000602 92321", ""}) {
        std::string date = "before";
        EXPECT_EQ(NITFWords::Date(text), text);
        EXPECT_FALSE(NITFWords::ToIsoDate(text, 'T', date)) << text;
        EXPECT_EQ(date, "before");
    }
}

TEST(NITFWordsTest, FieldsThatNobodyFilledSayNothing)
{
    for (const std::string_view text : {std::string_view("--------------"), std::string_view("\0\0\0", 3),
                                        std::string_view(" "), std::string_view()}) {
        EXPECT_FALSE(NITFWords::IsFilled(text));
        EXPECT_EQ(NITFWords::Date(text), "");
    }
    EXPECT_TRUE(NITFWords::IsFilled("-1"));
    EXPECT_EQ(NITFWords::Joined({"", "a", "", "b", ""}), "a, b");
}

TEST(NITFWordsTest, SizesHaveThreeFigures)
{
    EXPECT_EQ(NITFWords::Size(0), "0 bytes");
    EXPECT_EQ(NITFWords::Size(1), "1 byte");
    EXPECT_EQ(NITFWords::Size(999), "999 bytes");
    EXPECT_EQ(NITFWords::Size(1000), "1.00 kB");
    EXPECT_EQ(NITFWords::Size(16384), "16.4 kB");
    EXPECT_EQ(NITFWords::Size(999499), "999 kB");
    EXPECT_EQ(NITFWords::Size(999999), "1.00 MB");
    EXPECT_EQ(NITFWords::Size(1072337), "1.07 MB");
    EXPECT_EQ(NITFWords::Size(999999999999), "1.00 TB");
}

TEST(NITFWordsTest, NothingThatATerminalCannotShowIsPrinted)
{
    EXPECT_EQ(NITFWords::Shown(std::string("  a\x1B[31m\0\xE9 ", 11)), "a.[31m..");
    EXPECT_EQ(NITFWords::Shown("abcdefgh", 6), "abc...");
    EXPECT_EQ(NITFWords::Shown("abcdef", 6), "abcdef");
    EXPECT_EQ(NITFWords::Number("00000700"), "700");
    EXPECT_EQ(NITFWords::Number("000"), "0");
    EXPECT_EQ(NITFWords::Number("0x7"), "0x7");
    EXPECT_EQ(NITFWords::Position(-1.5, 179.9999995), "1.500000 S 180.000000 E");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

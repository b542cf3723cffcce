#include "foundation/CSMUtilGeneric.h"
#include "tests/foundation/OwnedText.h"

#include <functional>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilString;

/// The message of the std::invalid_argument that a call throws, or "nothing thrown".
std::string Refusal(const std::function<void()>& aCall)
{
    try {
        aCall();
    } catch (const std::invalid_argument& refusal) {
        return refusal.what();
    }
    return "nothing thrown";
}

TEST(CSMUtilStringTest, TrimTakesTheSixWhiteSpacesOfTheCLocaleAndNothingElse)
{
    EXPECT_EQ(CSMUtilString::Trim(" \t\n\v\f\ra b\r\f\v\n\t "), "a b");
    EXPECT_EQ(CSMUtilString::Trim(""), "");
    EXPECT_EQ(CSMUtilString::Trim(" \t "), "");
    EXPECT_EQ(CSMUtilString::TrimStart("  a  "), "a  ");
    EXPECT_EQ(CSMUtilString::TrimEnd("  a  "), "  a");
    // A no-break space and NEL are white space in some locales; control bytes and NUL never are.
    EXPECT_EQ(CSMUtilString::Trim("\xA0x\x85"), "\xA0x\x85");
    EXPECT_EQ(CSMUtilString::Trim("\x1Fx\x08"), "\x1Fx\x08");
    const std::string withNul(" \0a\0 ", 5);
    EXPECT_EQ(CSMUtilString::Trim(withNul), std::string("\0a\0", 3));
}

TEST(CSMUtilStringTest, TrimInPlacePointsIntoTheInput)
{
    const char* const text = "  ab ";
    std::size_t length = 99;
    EXPECT_EQ(CSMUtilString::Trim(text, length, true, true), text + 2);
    EXPECT_EQ(length, 2U);
    EXPECT_EQ(CSMUtilString::Trim(text, length, false, true), text);
    EXPECT_EQ(length, 4U);
    EXPECT_EQ(CSMUtilString::Trim(text, length, true, false), text + 2);
    EXPECT_EQ(length, 3U);
    EXPECT_EQ(CSMUtilString::Trim(text, length, false, false), text);
    EXPECT_EQ(length, 5U);
    CSMUtilString::Trim("   ", length, false, true);
    EXPECT_EQ(length, 0U);
    length = 99;
    EXPECT_EQ(CSMUtilString::Trim(nullptr, length, true, true), nullptr);
    EXPECT_EQ(length, 0U);
}

TEST(CSMUtilStringTest, NullTextsAreRefusedWithTheirSentenceAndANullOutput)
{
    const char* const none = nullptr;
    const std::string one = "Input argument cannot be NULL.";
    const std::string several = "Input arguments cannot be NULL.";
    const std::string search = "Input arguments cannot be NULL or an empty string.";
    EXPECT_EQ(Refusal([&] { CSMUtilString::Trim(none); }), one);
    EXPECT_EQ(Refusal([&] { CSMUtilString::TrimEnd(none); }), one);
    EXPECT_EQ(Refusal([&] { CSMUtilString::ToUpper(none); }), one);
    EXPECT_EQ(Refusal([&] { CSMUtilString::StartWith(true, "a", none); }), several);
    EXPECT_EQ(Refusal([&] { CSMUtilString::StartWith("a", ""); }), "Input arguments cannot be NULL or empty strings");
    EXPECT_EQ(Refusal([&] { CSMUtilString::EndWith(none, "a"); }), several);
    EXPECT_EQ(Refusal([&] { CSMUtilString::Contains("a", none); }), several);
    EXPECT_EQ(Refusal([&] { CSMUtilString::IndexOf("", "a"); }), search);
    EXPECT_EQ(Refusal([&] { CSMUtilString::LastIndexOf("a", none); }), search);
    EXPECT_EQ(Refusal([&] { CSMUtilString::Replace(none, "a", "b"); }), "Argument \"aInputStr\" cannot be NULL.");

    Text trimmed;
    EXPECT_EQ(Refusal([&] { CSMUtilString::Trim(none, trimmed.Out()); }), one);
    EXPECT_TRUE(trimmed.IsNull());
    Text lowered;
    EXPECT_EQ(Refusal([&] { CSMUtilString::ToLower(none, lowered.Out()); }), several);
    EXPECT_TRUE(lowered.IsNull());
    EXPECT_EQ(Refusal([&] { CSMUtilString::ToLower("a", nullptr); }), several);
    EXPECT_NO_THROW(CSMUtilString::Trim(none, nullptr));
}

TEST(CSMUtilStringTest, OutputsMayTakeThePlaceOfTheInput)
{
    char original[] = "  Abc ";
    char* text = original;
    CSMUtilString::Trim(text, &text);
    EXPECT_STREQ(text, "Abc");
    char* lower = text;
    CSMUtilString::ToLower(lower, &lower);
    EXPECT_STREQ(lower, "abc");
    CSMUtilString::DeleteCString(text);
    CSMUtilString::DeleteCString(lower);
    EXPECT_EQ(lower, nullptr);

    std::string whole = "abcdef";
    EXPECT_TRUE(CSMUtilString::SubString(whole, 2, 3, whole));
    EXPECT_EQ(whole, "cde");
}

TEST(CSMUtilStringTest, CaseChangesLettersOfAsciiOnly)
{
    EXPECT_EQ(CSMUtilString::ToLower("AZ@[\xC4 1"), "az@[\xC4 1");
    EXPECT_EQ(CSMUtilString::ToUpper(std::string("a\0z`{\xE4", 6)), std::string("A\0Z`{\xE4", 6));
}

TEST(CSMUtilStringTest, CompareOrdersByUnsignedBytesAndPutsNullFirst)
{
    EXPECT_EQ(CSMUtilString::Compare("b", "a"), 1);
    EXPECT_EQ(CSMUtilString::Compare("a", "ab"), -1);
    EXPECT_EQ(CSMUtilString::Compare("\x80", "a"), 1);
    EXPECT_EQ(CSMUtilString::Compare("a", "B"), 1);
    EXPECT_EQ(CSMUtilString::Compare(true, "a", "B"), -1);
    EXPECT_EQ(CSMUtilString::Compare(true, "NITF", "nitf"), 0);
    EXPECT_EQ(CSMUtilString::Compare(false, std::string("a\0b", 3), std::string("a\0a", 3)), 1);
    EXPECT_EQ(CSMUtilString::Compare(nullptr, ""), -1);
    EXPECT_EQ(CSMUtilString::Compare("", nullptr), 1);
    EXPECT_EQ(CSMUtilString::Compare(nullptr, nullptr), 0);
}

TEST(CSMUtilStringTest, BeginningsAndEndsNeedTheWholePart)
{
    EXPECT_TRUE(CSMUtilString::StartWith("NITF02.10", "NITF"));
    EXPECT_FALSE(CSMUtilString::StartWith("NI", "NITF"));
    EXPECT_FALSE(CSMUtilString::StartWith("nitf", "NITF"));
    EXPECT_TRUE(CSMUtilString::StartWith(true, "nitf", "NITF"));
    EXPECT_TRUE(CSMUtilString::StartWith(false, "", ""));
    EXPECT_TRUE(CSMUtilString::EndWith("a.dll", ".dll"));
    EXPECT_FALSE(CSMUtilString::EndWith("dll", ".dll"));
    EXPECT_TRUE(CSMUtilString::EndWith(true, "A.DLL", ".dll"));
}

TEST(CSMUtilStringTest, SearchesTellPositions)
{
    EXPECT_TRUE(CSMUtilString::Contains("abc", "bc"));
    EXPECT_FALSE(CSMUtilString::Contains("abc", "bd"));
    EXPECT_EQ(CSMUtilString::Find("abcbc", "bc"), 1);
    EXPECT_EQ(CSMUtilString::IndexOf("abc", "x"), -1);
    // The last of any of the characters, not the last "_-".
    EXPECT_EQ(CSMUtilString::LastIndexOf("a-b_c", "_-"), 3);
    EXPECT_EQ(CSMUtilString::LastIndexOf("abc", "xy"), -1);
    EXPECT_EQ(CSMUtilString::CharacterCount('a', "banana"), 3U);
    EXPECT_EQ(CSMUtilString::CharacterCount('\0', "banana"), 0U);
    EXPECT_EQ(CSMUtilString::CharacterCount('a', nullptr), 0U);
}

TEST(CSMUtilStringTest, PartsAreCopiedWholeOrNotAtAll)
{
    Text part;
    EXPECT_TRUE(CSMUtilString::SubString("abcdef", 4, 2, part.Out()));
    EXPECT_EQ(part.Str(), "ef");
    for (const auto& [start, length] : std::vector<std::pair<std::size_t, std::size_t>>{
             {4, 3}, {7, 0}, {1, SIZE_MAX}, {SIZE_MAX, 1}, {SIZE_MAX, SIZE_MAX}}) {
        Text none;
        std::string kept = "kept";
        EXPECT_FALSE(CSMUtilString::SubString("abcdef", start, length, none.Out())) << start << ' ' << length;
        EXPECT_TRUE(none.IsNull());
        EXPECT_FALSE(CSMUtilString::SubString(std::string("abcdef"), start, length, kept));
        EXPECT_EQ(kept, "kept");
    }
    Text atEnd;
    EXPECT_TRUE(CSMUtilString::SubString("abc", 3, 0, atEnd.Out()));
    EXPECT_EQ(atEnd.Str(), "");
    std::string bytes;
    EXPECT_TRUE(CSMUtilString::GetBytes("a\0b\0c", 5, 1, 3, bytes));
    EXPECT_EQ(bytes, std::string("\0b\0", 3));
    EXPECT_FALSE(CSMUtilString::GetBytes(nullptr, 5, 0, 1, bytes));
    EXPECT_FALSE(CSMUtilString::GetBytes("abc", 3, 0, 1, static_cast<char**>(nullptr)));
}

TEST(CSMUtilStringTest, ReplaceGoesOnBehindTheInsertedText)
{
    EXPECT_EQ(CSMUtilString::Replace("aaa", "aa", "b"), "ba");
    EXPECT_EQ(CSMUtilString::Replace("a.a", "a", "aa"), "aa.aa");
    EXPECT_EQ(CSMUtilString::Replace("abc", "b", nullptr), "ac");
    EXPECT_EQ(CSMUtilString::Replace("abc", "", "x"), "abc");
    EXPECT_EQ(CSMUtilString::Replace("abc", nullptr, "x"), "abc");
    const std::string nul(1, '\0');
    EXPECT_EQ(CSMUtilString::Replace(std::string("a\0b\0", 4), nul, std::string("--")), "a--b--");
}

TEST(CSMUtilStringTest, TokensAreNeverEmpty)
{
    char** tokens = nullptr;
    std::size_t count = 99;
    ASSERT_TRUE(CSMUtilString::Tokenize(", ;", ",a;, bc ,", tokens, count));
    ASSERT_EQ(count, 2U);
    EXPECT_STREQ(tokens[0], "a");
    EXPECT_STREQ(tokens[1], "bc");
    CSMUtilString::DeleteCStringArray(tokens, count);
    EXPECT_EQ(tokens, nullptr);

    EXPECT_TRUE(CSMUtilString::Tokenize(",", ",,", tokens, count));
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(tokens, nullptr);
    for (const char* const empty : {"", static_cast<const char*>(nullptr)}) {
        count = 99;
        EXPECT_FALSE(CSMUtilString::Tokenize(empty, "a", tokens, count));
        EXPECT_FALSE(CSMUtilString::Tokenize(",", empty, tokens, count));
        EXPECT_EQ(count, 0U);
    }
}

TEST(CSMUtilStringTest, PairsSplitAtTheFirstEqualsSign)
{
    EXPECT_EQ(CSMUtilString::GetKeyFromKeyValuePair("a=b=c"), "a");
    EXPECT_EQ(CSMUtilString::GetValueFromKeyValuePair("a=b=c"), "b=c");
    EXPECT_EQ(CSMUtilString::GetValueFromKeyValuePair("a="), "");
    for (const char* const wrong : {"ab", "", "=b", static_cast<const char*>(nullptr)}) {
        EXPECT_EQ(Refusal([&] { CSMUtilString::GetKeyFromKeyValuePair(wrong); }),
                  "Invalid input string. Input string must be in \"key=value\" format.");
        Text value;
        EXPECT_EQ(Refusal([&] { CSMUtilString::GetValueFromKeyValuePair(wrong, value.Out()); }),
                  "ERROR: Input parameters cannot be NULL or an empty string and must be given in format "
                  "\"key=value\".");
        EXPECT_TRUE(value.IsNull());
    }
}

TEST(CSMUtilStringTest, WideTextSurvivesBothWays)
{
    const std::string utf8 = "A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9B\xB0";  // one, two, three and four bytes
    WideText wide;
    CSMUtilString::ConvertFromCharToWChar(utf8.c_str(), wide.Out());
    EXPECT_EQ(wide.Str(), L"A\u00E9\u20AC\U0001F6F0");
    Text narrow;
    CSMUtilString::ConvertFromWCharToChar(wide.Get(), narrow.Out());
    EXPECT_EQ(narrow.Str(), utf8);
}

TEST(CSMUtilStringTest, TextThatIsNotWellFormedIsReportedNotReplaced)
{
    for (const char* const wrong : {"\x80", "a\xC3", "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                    "\xF8\x88\x80\x80\x80", "\xE2\x82z", static_cast<const char*>(nullptr)}) {
        WideText wide;
        try {
            CSMUtilString::ConvertFromCharToWChar(wrong, wide.Out());
            ADD_FAILURE() << "accepted";
        } catch (TSMError& error) {
            EXPECT_EQ(error.getFunction(), "CSMUtilString::ConvertFromCharToWChar");
        }
        EXPECT_TRUE(wide.IsNull());
    }
    const wchar_t beyond[] = {static_cast<wchar_t>(0x110000), 0};
    const wchar_t surrogate[] = {static_cast<wchar_t>(0xD800), 0};
    for (const wchar_t* const wrong : {beyond, surrogate}) {
        Text narrow;
        EXPECT_THROW(CSMUtilString::ConvertFromWCharToChar(wrong, narrow.Out()), TSMError);
        EXPECT_TRUE(narrow.IsNull());
    }
}

TEST(CSMUtilStringTest, CopiesAreTrimmedOrJoinedOnRequest)
{
    Text copy;
    EXPECT_TRUE(CSMUtilString::Copy("", copy.Out()));
    EXPECT_EQ(copy.Str(), "");
    Text none;
    EXPECT_FALSE(CSMUtilString::Copy(static_cast<const char*>(nullptr), none.Out()));
    EXPECT_TRUE(none.IsNull());
    Text trimmed;
    EXPECT_TRUE(CSMUtilString::MemCopyTrimmedString(" a ", trimmed.Out()));
    EXPECT_EQ(trimmed.Str(), "a");
    EXPECT_EQ(CSMUtilString::Concat("a", nullptr), "a");
    Text joined;
    CSMUtilString::Concat(nullptr, nullptr, joined.Out());
    EXPECT_STREQ(joined.Get(), "");
}

TEST(CSMUtilStringTest, ArraysStartWithNullPointersAndAreFreedWhole)
{
    const char** texts = nullptr;
    ASSERT_EQ(CSMUtilString::GetConstCStringArray(texts, 2), 2U);
    EXPECT_EQ(texts[1], nullptr);
    texts[0] = new char[1]{};
    CSMUtilString::DeleteConstCStringArray(texts, 2);
    EXPECT_EQ(texts, nullptr);

    std::vector<char*>** vectors = nullptr;
    ASSERT_EQ(CSMUtilString::GetCStringVectorContainerArray(vectors, 2), 2U);
    vectors[0] = new std::vector<char*>{new char[1]{}, nullptr};
    CSMUtilString::DeleteCStringVectorContainerArray(vectors, 2);
    EXPECT_EQ(vectors, nullptr);
    CSMUtilString::DeleteCStringVectorContainerArray(vectors, 2);

    char** tooMany = nullptr;
    EXPECT_EQ(CSMUtilString::GetCStringArray(tooMany, SIZE_MAX / 2), 0U);
    EXPECT_EQ(tooMany, nullptr);
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

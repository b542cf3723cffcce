#include "tests/foundation/OwnedText.h"

#include <array>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMCnst;
using Util::CSMUtilString;

std::string Encoded(const std::string& aBytes)
{
    Text text;
    EXPECT_TRUE(CSMUtilString::Base64Encode(aBytes.data(), aBytes.size(), text.Out()));
    return text.Str();
}

std::string Decoded(const char* aText)
{
    Text bytes;
    std::size_t length = 99;
    EXPECT_TRUE(CSMUtilString::Base64Decode(aText, bytes.Out(), length)) << aText;
    if (bytes.IsNull()) {
        return "";
    }
    EXPECT_EQ(bytes.Get()[length], '\0');
    return std::string(bytes.Get(), length);
}

TEST(CSMUtilStringBytesTest, Base64PadsToGroupsOfFour)
{
    EXPECT_EQ(Encoded(""), "");
    EXPECT_EQ(Encoded("f"), "Zg==");
    EXPECT_EQ(Encoded("fo"), "Zm8=");
    EXPECT_EQ(Encoded("foo"), "Zm9v");
    EXPECT_EQ(Encoded("foobar"), "Zm9vYmFy");
    EXPECT_EQ(Encoded(std::string("\xFB\xFF\x00", 3)), "+/8A");
    Text none;
    EXPECT_FALSE(CSMUtilString::Base64Encode(nullptr, 3, none.Out()));
    EXPECT_TRUE(none.IsNull());
    EXPECT_FALSE(CSMUtilString::Base64Encode("a", 1, nullptr));
}

TEST(CSMUtilStringBytesTest, EveryByteSurvivesBase64AtEveryLength)
{
    std::string bytes;
    for (int i = 0; i != 600; ++i) {
        bytes += static_cast<char>((i * 7) & 0xFF);
        EXPECT_EQ(Decoded(Encoded(bytes).c_str()), bytes);
    }
}

TEST(CSMUtilStringBytesTest, Base64EndsAtTheFirstOtherCharacter)
{
    EXPECT_EQ(Decoded("Zm9v\nYmFy"), "foo");
    EXPECT_EQ(Decoded("Zm8=Zm8="), "fo");
    EXPECT_EQ(Decoded("Zm9v-_"), "foo");
    EXPECT_EQ(Decoded("Zm9v\xE9Zm9v"), "foo");
    // Without padding a group of two or three still counts; one character alone holds no whole byte.
    EXPECT_EQ(Decoded("Zm8"), "fo");
    EXPECT_EQ(Decoded("Zg"), "f");
    EXPECT_EQ(Decoded("Zm9vZ"), "foo");
    EXPECT_EQ(Decoded("="), "");
    for (const char* const empty : {"", static_cast<const char*>(nullptr)}) {
        Text none;
        std::size_t length = 99;
        EXPECT_FALSE(CSMUtilString::Base64Decode(empty, none.Out(), length));
        EXPECT_TRUE(none.IsNull());
        EXPECT_EQ(length, 0U);
    }
}

TEST(CSMUtilStringBytesTest, BinaryValuesAreBigEndianAndUnsigned)
{
    unsigned long narrow = 99;
    EXPECT_TRUE(CSMUtilString::BinaryToUnsignedLong("\xFF\x01", 2, narrow));
    EXPECT_EQ(narrow, 0xFF01U);
    EXPECT_TRUE(CSMUtilString::BinaryToUnsignedLong("\xFF\xFF\xFF\xFE", 0, narrow));
    EXPECT_EQ(narrow, 0xFFFFFFFEU);
    EXPECT_FALSE(CSMUtilString::BinaryToUnsignedLong("12345", 5, narrow));
    EXPECT_EQ(narrow, 0U);
    std::uint64_t wide = 99;
    EXPECT_TRUE(CSMUtilString::BinaryToUnsignedInt64("\x80\0\0\0\0\0\0\1", 0, wide));
    EXPECT_EQ(wide, 0x8000000000000001U);
    EXPECT_TRUE(CSMUtilString::BinaryToUnsignedInt64("\1\2\3\4\5", 5, wide));
    EXPECT_EQ(wide, 0x0102030405U);
    EXPECT_FALSE(CSMUtilString::BinaryToUnsignedInt64("123456789", 9, wide));
    EXPECT_FALSE(CSMUtilString::BinaryToUnsignedInt64(nullptr, 0, wide));
    EXPECT_EQ(wide, 0U);
}

std::string DecimalOf(const std::string& aBytes)
{
    Text text;
    EXPECT_TRUE(CSMUtilString::DecimalRepresentationOfBinary(aBytes.data(), aBytes.size(), text.Out()));
    return text.Str();
}

TEST(CSMUtilStringBytesTest, DecimalTextOfAnyNumberOfBytes)
{
    EXPECT_EQ(DecimalOf(std::string("\1\0", 2)), "256");
    EXPECT_EQ(DecimalOf(std::string(9, '\xFF')), "4722366482869645213695");
    EXPECT_EQ(DecimalOf(std::string(20, '\0')), "0");
    EXPECT_EQ(DecimalOf(std::string("\0\0\0\0\0\x3B\x9A\xCA\0", 9)), "1000000000");  // a limb of zeros is written
    EXPECT_EQ(DecimalOf("\x7F"), "127");
    for (std::uint64_t value = 1; value < std::numeric_limits<std::uint64_t>::max() / 7; value = value * 7 + 5) {
        std::string bytes;
        for (unsigned shift = 64; shift != 0; shift -= 8) {
            bytes += static_cast<char>((value >> (shift - 8)) & 0xFFU);
        }
        EXPECT_EQ(DecimalOf(bytes), std::to_string(value));
        EXPECT_EQ(DecimalOf(bytes.substr(bytes.find_first_not_of('\0'))), std::to_string(value));
    }
    // 2^80000 has 24083 digits; the last digits of powers of 16 are 6.
    const std::string large = DecimalOf('\1' + std::string(10'000, '\0'));
    EXPECT_EQ(large.size(), 24083U);
    EXPECT_EQ(large.back(), '6');
    Text none;
    EXPECT_FALSE(CSMUtilString::DecimalRepresentationOfBinary("1", 0, none.Out()));
    EXPECT_TRUE(none.IsNull());
    EXPECT_FALSE(CSMUtilString::DecimalRepresentationOfBinary(nullptr, 1, none.Out()));
}

template<typename Element>
void ExpectReversed(bool (*aSwap)(Element*, std::size_t) noexcept)
{
    std::array<unsigned char, 2 * sizeof(Element)> bytes{};
    for (std::size_t i = 0; i != bytes.size(); ++i) {
        // As big-endian elements these are signalling NaNs, whose bits a load as a float would change.
        bytes[i] = i % sizeof(Element) == 0 ? 0x7F : i % sizeof(Element) == 1 ? 0xB0 : static_cast<unsigned char>(i);
    }
    std::array<Element, 2> elements{};
    std::memcpy(elements.data(), bytes.data(), bytes.size());
    EXPECT_TRUE(aSwap(elements.data(), 2));
    std::array<unsigned char, 2 * sizeof(Element)> swapped{};
    std::memcpy(swapped.data(), elements.data(), bytes.size());
    for (std::size_t i = 0; i != bytes.size(); ++i) {
        const std::size_t begin = i / sizeof(Element) * sizeof(Element);
        EXPECT_EQ(swapped[i], bytes[begin + sizeof(Element) - 1 - (i - begin)]);
    }
    EXPECT_TRUE(aSwap(elements.data(), 2));
    EXPECT_EQ(std::memcmp(elements.data(), bytes.data(), bytes.size()), 0);
    EXPECT_TRUE(aSwap(elements.data(), 0));
    EXPECT_FALSE(aSwap(nullptr, 2));
}

TEST(CSMUtilStringBytesTest, SwapsReverseTheBytesOfEachElement)
{
    ExpectReversed<std::int16_t>(&CSMUtilString::Swap16BitWord);
    ExpectReversed<std::uint16_t>(&CSMUtilString::Swap16BitWord);
    ExpectReversed<std::int32_t>(&CSMUtilString::Swap32BitWord);
    ExpectReversed<std::uint32_t>(&CSMUtilString::Swap32BitWord);
    ExpectReversed<float>(&CSMUtilString::Swap32BitFloat);
    ExpectReversed<double>(&CSMUtilString::Swap64BitDouble);
}

TEST(CSMUtilStringBytesTest, ByteOrderIsThatOfTheHost)
{
    const std::uint16_t one = 1;
    unsigned char first = 0;
    std::memcpy(&first, &one, 1);
    EXPECT_EQ(CSMUtilString::SystemByteOrder(),
              first == 1 ? CSMCnst::BYTE_ORDER_LITTLE_ENDIAN : CSMCnst::BYTE_ORDER_BIG_ENDIAN);
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

// What CSMUtilString does with bytes, byte order and arrays of texts.
#include "foundation/CSMUtilString.h"
#include "foundation/detail/HandOut.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <exception>

namespace ORMO::SensorModel::CSM::Util {
namespace {
constexpr std::string_view BASE64_ALPHABET = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr unsigned char NOT_BASE64 = 0xFF;

constexpr std::array<unsigned char, 256> Base64Values() noexcept
{
    std::array<unsigned char, 256> values{};
    values.fill(NOT_BASE64);
    for (std::size_t i = 0; i != BASE64_ALPHABET.size(); ++i) {
        values[static_cast<unsigned char>(BASE64_ALPHABET[i])] = static_cast<unsigned char>(i);
    }
    return values;
}

constexpr std::array<unsigned char, 256> BASE64_VALUES = Base64Values();

std::uint32_t ByteAt(const char* aBytes, std::size_t aIndex) noexcept
{
    return static_cast<unsigned char>(aBytes[aIndex]);
}

std::size_t Base64Length(std::size_t aLength) noexcept
{
    return (aLength / 3 + (aLength % 3 != 0 ? 1 : 0)) * 4;
}

void WriteBase64(const char* aBytes, std::size_t aLength, char* aOut) noexcept
{
    char* next = aOut;
    for (std::size_t i = 0; i < aLength; i += 3) {
        const std::size_t present = std::min<std::size_t>(3, aLength - i);
        const std::uint32_t second = present > 1 ? ByteAt(aBytes, i + 1) : 0;
        const std::uint32_t third = present > 2 ? ByteAt(aBytes, i + 2) : 0;
        const std::uint32_t group = (ByteAt(aBytes, i) << 16U) | (second << 8U) | third;
        *next++ = BASE64_ALPHABET[group >> 18U];
        *next++ = BASE64_ALPHABET[(group >> 12U) & 0x3FU];
        *next++ = present > 1 ? BASE64_ALPHABET[(group >> 6U) & 0x3FU] : '=';
        *next++ = present > 2 ? BASE64_ALPHABET[group & 0x3FU] : '=';
    }
}

/// A big-endian value of at most aWidth bytes.
template<typename Out>
bool ReadBigEndian(const char* aBytes, std::size_t aCount, std::size_t aWidth, Out& aOut) noexcept
{
    aOut = 0;
    if (aBytes == nullptr || aCount > aWidth) {
        return false;
    }
    const std::size_t count = aCount == 0 ? aWidth : aCount;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i != count; ++i) {
        value = (value << 8U) | ByteAt(aBytes, i);
    }
    aOut = static_cast<Out>(value);
    return true;
}

/// Works on bytes alone: a reversed float may be a signalling NaN, which loading it as a float would change.
template<typename Element>
bool ReverseEach(Element* aElements, std::size_t aCount) noexcept
{
    if (aElements == nullptr) {
        return false;
    }
    std::array<unsigned char, sizeof(Element)> bytes{};
    for (Element* element = aElements; element != aElements + aCount; ++element) {
        std::memcpy(bytes.data(), element, bytes.size());
        std::reverse(bytes.begin(), bytes.end());
        std::memcpy(element, bytes.data(), bytes.size());
    }
    return true;
}

constexpr std::uint64_t LIMB_BASE = 1'000'000'000;
constexpr std::size_t LIMB_DIGITS = 9;

/// Multiplies a number, limbs of nine decimal digits with the least first, by 2^aBits and adds a value.
void ShiftAndAdd(std::vector<std::uint32_t>& aLimbs, unsigned aBits, std::uint32_t aValue)
{
    std::uint64_t carry = aValue;
    for (std::uint32_t& limb : aLimbs) {
        const std::uint64_t product = (static_cast<std::uint64_t>(limb) << aBits) + carry;
        limb = static_cast<std::uint32_t>(product % LIMB_BASE);
        carry = product / LIMB_BASE;
    }
    for (; carry != 0; carry /= LIMB_BASE) {
        aLimbs.push_back(static_cast<std::uint32_t>(carry % LIMB_BASE));
    }
}

std::string DecimalText(const std::vector<std::uint32_t>& aLimbs)
{
    if (aLimbs.empty()) {
        return "0";
    }
    std::string text = std::to_string(aLimbs.back());
    for (auto limb = aLimbs.rbegin() + 1; limb != aLimbs.rend(); ++limb) {
        const std::string digits = std::to_string(*limb);
        text.append(LIMB_DIGITS - digits.size(), '0').append(digits);
    }
    return text;
}
}  // namespace

bool CSMUtilString::Base64Encode(const char* aBytes, std::size_t aLength, char** aOut) noexcept
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    // The text is a third longer than the bytes; the bound keeps its size from overflowing.
    if (aBytes == nullptr || aLength > SIZE_MAX / 2) {
        return false;
    }
    char* const text = Detail::NewArray<char>(Base64Length(aLength) + 1);
    if (text == nullptr) {
        return false;
    }
    WriteBase64(aBytes, aLength, text);
    *aOut = text;
    return true;
}

void CSMUtilString::AppendBase64(std::string_view aBytes, std::string& aOut)
{
    const std::size_t start = aOut.size();
    aOut.resize(start + Base64Length(aBytes.size()));
    WriteBase64(aBytes.data(), aBytes.size(), aOut.data() + start);
}

void CSMUtilString::AppendLatin1AsUtf8(std::string_view aBytes, std::string& aOut)
{
    for (const char character : aBytes) {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80) {
            aOut += character;
        } else {
            aOut += static_cast<char>(0xC0U | (byte >> 6U));
            aOut += static_cast<char>(0x80U | (byte & 0x3FU));
        }
    }
}

bool CSMUtilString::Base64Decode(const char* aText, char** aOut, std::size_t& aLength) noexcept
{
    aLength = 0;
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    if (aText == nullptr || *aText == '\0') {
        return false;
    }
    // The NUL at the end is no character of the alphabet either, so it ends the text as "=" does.
    std::size_t characters = 0;
    while (BASE64_VALUES[ByteAt(aText, characters)] != NOT_BASE64) {
        ++characters;
    }
    const std::size_t rest = characters % 4;
    char* const bytes = Detail::NewArray<char>(characters / 4 * 3 + (rest > 1 ? rest - 1 : 0) + 1);
    if (bytes == nullptr) {
        return false;
    }
    for (std::size_t i = 0; i < characters; i += 4) {
        const std::size_t present = std::min<std::size_t>(4, characters - i);
        std::uint32_t group = 0;
        for (std::size_t j = 0; j != 4; ++j) {
            group = (group << 6U) | (j < present ? BASE64_VALUES[ByteAt(aText, i + j)] : 0U);
        }
        for (std::size_t j = 0; j + 1 < present; ++j) {
            bytes[aLength++] = static_cast<char>((group >> (16U - 8U * j)) & 0xFFU);
        }
    }
    *aOut = bytes;
    return true;
}

bool CSMUtilString::BinaryToUnsignedLong(const char* aBytes, std::size_t aCount, unsigned long& aOut) noexcept
{
    return ReadBigEndian(aBytes, aCount, sizeof(std::uint32_t), aOut);
}

bool CSMUtilString::BinaryToUnsignedInt64(const char* aBytes, std::size_t aCount, std::uint64_t& aOut) noexcept
{
    return ReadBigEndian(aBytes, aCount, sizeof(std::uint64_t), aOut);
}

bool CSMUtilString::DecimalRepresentationOfBinary(const char* aBytes, std::size_t aCount, char** aOut) noexcept
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    if (aBytes == nullptr || aCount == 0) {
        return false;
    }
    try {
        std::vector<std::uint32_t> limbs;
        std::size_t position = 0;
        while (position != aCount) {
            // The first word takes what makes the rest whole words of four bytes.
            const std::size_t bytes = (aCount - position) % 4 == 0 ? 4 : (aCount - position) % 4;
            std::uint32_t word = 0;
            for (const std::size_t end = position + bytes; position != end; ++position) {
                word = (word << 8U) | ByteAt(aBytes, position);
            }
            ShiftAndAdd(limbs, static_cast<unsigned>(bytes) * 8U, word);
        }
        return Detail::HandOut(DecimalText(limbs), aOut);
    } catch (const std::exception&) {
        return false;
    }
}

bool CSMUtilString::Swap16BitWord(std::int16_t* aWords, std::size_t aCount) noexcept
{
    return ReverseEach(aWords, aCount);
}

bool CSMUtilString::Swap16BitWord(std::uint16_t* aWords, std::size_t aCount) noexcept
{
    return ReverseEach(aWords, aCount);
}

bool CSMUtilString::Swap32BitWord(std::int32_t* aWords, std::size_t aCount) noexcept
{
    return ReverseEach(aWords, aCount);
}

bool CSMUtilString::Swap32BitWord(std::uint32_t* aWords, std::size_t aCount) noexcept
{
    return ReverseEach(aWords, aCount);
}

bool CSMUtilString::Swap32BitFloat(float* aValues, std::size_t aCount) noexcept
{
    return ReverseEach(aValues, aCount);
}

bool CSMUtilString::Swap64BitDouble(double* aValues, std::size_t aCount) noexcept
{
    return ReverseEach(aValues, aCount);
}

CSMCnst::ByteOrder CSMUtilString::SystemByteOrder() noexcept
{
    return std::endian::native == std::endian::little ? CSMCnst::BYTE_ORDER_LITTLE_ENDIAN
                                                      : CSMCnst::BYTE_ORDER_BIG_ENDIAN;
}

std::size_t CSMUtilString::GetCStringArray(char**& aArray, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aArray, aCount);
}

std::size_t CSMUtilString::GetConstCStringArray(const char**& aArray, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aArray, aCount);
}

std::size_t CSMUtilString::GetCStringVectorContainerArray(std::vector<char*>**& aArray, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aArray, aCount);
}

void CSMUtilString::DeleteCString(char*& aText) noexcept
{
    delete[] aText;
    aText = nullptr;
}

void CSMUtilString::DeleteWCharBuffer(wchar_t*& aText) noexcept
{
    delete[] aText;
    aText = nullptr;
}

void CSMUtilString::DeleteCStringArray(char**& aArray, std::size_t aCount) noexcept
{
    Detail::DeleteArrayOfArrays(aArray, aCount);
}

void CSMUtilString::DeleteConstCStringArray(const char**& aArray, std::size_t aCount) noexcept
{
    Detail::DeleteArrayOfArrays(aArray, aCount);
}

void CSMUtilString::DeleteCStringVectorContainerArray(std::vector<char*>**& aArray, std::size_t aCount) noexcept
{
    if (aArray == nullptr) {
        return;
    }
    for (std::size_t i = 0; i != aCount; ++i) {
        if (aArray[i] != nullptr) {
            std::for_each(aArray[i]->begin(), aArray[i]->end(), [](const char* aText) { delete[] aText; });
            delete aArray[i];
        }
    }
    delete[] aArray;
    aArray = nullptr;
}
}  // namespace ORMO::SensorModel::CSM::Util

#include "foundation/CSMUtilString.h"

#include "foundation/CSMUtilGeneric.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "foundation/detail/Utf8.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <exception>
#include <stdexcept>

namespace ORMO::SensorModel::CSM::Util {
namespace {
using Detail::HandOut;
using Detail::HandOutOrThrow;
using Detail::ViewOf;

constexpr const char* NULL_ARGUMENT = "Input argument cannot be NULL.";
constexpr const char* NULL_ARGUMENTS = "Input arguments cannot be NULL.";
constexpr const char* NULL_OR_EMPTY_ARGUMENTS = "Input arguments cannot be NULL or empty strings";
constexpr const char* NULL_OR_EMPTY_SEARCH = "Input arguments cannot be NULL or an empty string.";
constexpr const char* NULL_REPLACE_TEXT = "Argument \"aInputStr\" cannot be NULL.";
constexpr const char* NO_KEY_VALUE_TEXT = "Invalid input string. Input string must be in \"key=value\" format.";
constexpr const char* NO_KEY_VALUE_ARGUMENTS =
    "ERROR: Input parameters cannot be NULL or an empty string and must be given in format \"key=value\".";

bool IsEmpty(const char* aText) noexcept
{
    return aText == nullptr || *aText == '\0';
}

void Require(bool aCondition, const char* aMessage)
{
    if (!aCondition) {
        throw std::invalid_argument(aMessage);
    }
}

std::string_view RequiredView(const char* aText)
{
    Require(aText != nullptr, NULL_ARGUMENT);
    return aText;
}

/// Runs one of the text operations for its out form: without an output nothing happens, not even the check of the text.
template<typename Operation>
void ToOutput(char** aOut, Operation aOperation)
{
    if (aOut != nullptr) {
        *aOut = nullptr;
        HandOutOrThrow(aOperation(), aOut);
    }
}

template<typename Operation>
void ToRequiredOutput(const char* aText, char** aOut, Operation aOperation)
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    Require(aText != nullptr && aOut != nullptr, NULL_ARGUMENTS);
    HandOutOrThrow(aOperation(), aOut);
}

template<typename Map>
std::string Mapped(std::string_view aText, Map aMap)
{
    std::string result(aText);
    std::transform(result.begin(), result.end(), result.begin(), aMap);
    return result;
}

int CompareViews(bool aIgnoreCase, std::string_view aFirst, std::string_view aSecond) noexcept
{
    const auto value = [aIgnoreCase](char aCharacter) {
        return static_cast<unsigned char>(aIgnoreCase ? Detail::LowerCase(aCharacter) : aCharacter);
    };
    const std::size_t shared = std::min(aFirst.size(), aSecond.size());
    for (std::size_t i = 0; i != shared; ++i) {
        if (value(aFirst[i]) != value(aSecond[i])) {
            return value(aFirst[i]) < value(aSecond[i]) ? -1 : 1;
        }
    }
    return aFirst.size() == aSecond.size() ? 0 : aFirst.size() < aSecond.size() ? -1 : 1;
}

int CompareTexts(bool aIgnoreCase, const char* aFirst, const char* aSecond) noexcept
{
    if (aFirst == nullptr || aSecond == nullptr) {
        return aFirst == aSecond ? 0 : aFirst == nullptr ? -1 : 1;
    }
    return CompareViews(aIgnoreCase, aFirst, aSecond);
}

int ToPosition(std::size_t aPosition) noexcept
{
    return aPosition > INT_MAX ? -1 : static_cast<int>(aPosition);
}

/// Copies into a standard string. The copy is complete before aOut changes, so the source may be a part of it.
bool Store(std::string_view aText, std::string& aOut) noexcept
{
    try {
        std::string copy(aText);
        aOut.swap(copy);
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

/// Splits at the first "="; the key may not be empty.
bool SplitPair(std::string_view aText, std::string_view& aKey, std::string_view& aValue) noexcept
{
    const std::size_t position = aText.find('=');
    if (position == std::string_view::npos || position == 0) {
        return false;
    }
    aKey = aText.substr(0, position);
    aValue = aText.substr(position + 1);
    return true;
}

void PairPartToOutput(const char* aText, char** aOut, bool aWantsKey)
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    std::string_view key;
    std::string_view value;
    Require(aOut != nullptr && SplitPair(ViewOf(aText), key, value), NO_KEY_VALUE_ARGUMENTS);
    HandOutOrThrow(aWantsKey ? key : value, aOut);
}
}  // namespace

std::string CSMUtilString::Trim(const char* aText)
{
    return std::string(Detail::Trimmed(RequiredView(aText)));
}

std::string CSMUtilString::Trim(const std::string& aText)
{
    return std::string(Detail::Trimmed(aText));
}

void CSMUtilString::Trim(const char* aText, char** aOut)
{
    ToOutput(aOut, [aText] { return Detail::Trimmed(RequiredView(aText)); });
}

const char* CSMUtilString::Trim(const char* aText, std::size_t& aLength, bool aFromStart, bool aFromEnd) noexcept
{
    std::string_view text = ViewOf(aText);
    if (aFromStart) {
        text = Detail::TrimmedStart(text);
    }
    if (aFromEnd) {
        text = Detail::TrimmedEnd(text);
    }
    aLength = text.size();
    return text.data();
}

std::string CSMUtilString::TrimStart(const char* aText)
{
    return std::string(Detail::TrimmedStart(RequiredView(aText)));
}

void CSMUtilString::TrimStart(const char* aText, char** aOut)
{
    ToOutput(aOut, [aText] { return Detail::TrimmedStart(RequiredView(aText)); });
}

std::string CSMUtilString::TrimEnd(const char* aText)
{
    return std::string(Detail::TrimmedEnd(RequiredView(aText)));
}

void CSMUtilString::TrimEnd(const char* aText, char** aOut)
{
    ToOutput(aOut, [aText] { return Detail::TrimmedEnd(RequiredView(aText)); });
}

std::string CSMUtilString::ToLower(const char* aText)
{
    return Mapped(RequiredView(aText), Detail::LowerCase);
}

std::string CSMUtilString::ToLower(const std::string& aText)
{
    return Mapped(aText, Detail::LowerCase);
}

void CSMUtilString::ToLower(const char* aText, char** aOut)
{
    ToRequiredOutput(aText, aOut, [aText] { return ToLower(aText); });
}

std::string CSMUtilString::ToUpper(const char* aText)
{
    return Mapped(RequiredView(aText), Detail::UpperCase);
}

std::string CSMUtilString::ToUpper(const std::string& aText)
{
    return Mapped(aText, Detail::UpperCase);
}

void CSMUtilString::ToUpper(const char* aText, char** aOut)
{
    ToRequiredOutput(aText, aOut, [aText] { return ToUpper(aText); });
}

bool CSMUtilString::Copy(const char* aText, char** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    return aText != nullptr && HandOut(aText, aOut);
}

bool CSMUtilString::Copy(const wchar_t* aText, wchar_t** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    return aText != nullptr && HandOut(aText, aOut);
}

std::string CSMUtilString::Concat(const char* aFirst, const char* aSecond)
{
    return std::string(ViewOf(aFirst)).append(ViewOf(aSecond));
}

void CSMUtilString::Concat(const char* aFirst, const char* aSecond, char** aOut)
{
    ToOutput(aOut, [aFirst, aSecond] { return Concat(aFirst, aSecond); });
}

void CSMUtilString::ConvertFromCharToWChar(const char* aText, wchar_t** aOut)
{
    constexpr const char* FUNCTION = "CSMUtilString::ConvertFromCharToWChar";
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    if (aText == nullptr || aOut == nullptr) {
        CSMUtilGeneric::ThrowTSMError("ERROR: Input arguments cannot be NULL.", FUNCTION, TSMError::INVALID_USE);
    }
    std::wstring wide;
    if (!Detail::WidenUtf8(aText, wide)) {
        CSMUtilGeneric::ThrowTSMError("ERROR: Input text is not well-formed UTF-8.", FUNCTION, TSMError::INVALID_USE);
    }
    if (!HandOut(wide, aOut)) {
        throw std::bad_alloc();
    }
}

void CSMUtilString::ConvertFromWCharToChar(const wchar_t* aText, char** aOut)
{
    constexpr const char* FUNCTION = "CSMUtilString::ConvertFromWCharToChar";
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    if (aText == nullptr || aOut == nullptr) {
        CSMUtilGeneric::ThrowTSMError("ERROR: Input arguments cannot be NULL.", FUNCTION, TSMError::INVALID_USE);
    }
    std::string narrow;
    if (!Detail::NarrowToUtf8(aText, narrow)) {
        CSMUtilGeneric::ThrowTSMError("ERROR: Input wide text holds a value that is no character.", FUNCTION,
                                      TSMError::INVALID_USE);
    }
    HandOutOrThrow(narrow, aOut);
}

int CSMUtilString::Compare(const char* aFirst, const char* aSecond) noexcept
{
    return CompareTexts(false, aFirst, aSecond);
}

int CSMUtilString::Compare(bool aIgnoreCase, const char* aFirst, const char* aSecond) noexcept
{
    return CompareTexts(aIgnoreCase, aFirst, aSecond);
}

int CSMUtilString::Compare(bool aIgnoreCase, const std::string& aFirst, const std::string& aSecond) noexcept
{
    return CompareViews(aIgnoreCase, aFirst, aSecond);
}

bool CSMUtilString::StartWith(bool aIgnoreCase, const char* aText, const char* aPart)
{
    Require(aText != nullptr && aPart != nullptr, NULL_ARGUMENTS);
    const std::string_view part = aPart;
    return CompareViews(aIgnoreCase, std::string_view(aText).substr(0, part.size()), part) == 0;
}

bool CSMUtilString::StartWith(const char* aText, const char* aPart)
{
    Require(!IsEmpty(aText) && !IsEmpty(aPart), NULL_OR_EMPTY_ARGUMENTS);
    return StartWith(false, aText, aPart);
}

bool CSMUtilString::EndWith(bool aIgnoreCase, const char* aText, const char* aPart)
{
    Require(aText != nullptr && aPart != nullptr, NULL_ARGUMENTS);
    const std::string_view text = aText;
    const std::string_view part = aPart;
    return part.size() <= text.size() && CompareViews(aIgnoreCase, text.substr(text.size() - part.size()), part) == 0;
}

bool CSMUtilString::EndWith(const char* aText, const char* aPart)
{
    return EndWith(false, aText, aPart);
}

bool CSMUtilString::Contains(const char* aText, const char* aPart)
{
    Require(aText != nullptr && aPart != nullptr, NULL_ARGUMENTS);
    return std::strstr(aText, aPart) != nullptr;
}

int CSMUtilString::Find(const char* aText, const char* aPart)
{
    Require(!IsEmpty(aText) && !IsEmpty(aPart), NULL_OR_EMPTY_SEARCH);
    return ToPosition(std::string_view(aText).find(aPart));
}

int CSMUtilString::IndexOf(const char* aText, const char* aPart)
{
    return Find(aText, aPart);
}

int CSMUtilString::LastIndexOf(const char* aText, const char* aCharacters)
{
    Require(!IsEmpty(aText) && !IsEmpty(aCharacters), NULL_OR_EMPTY_SEARCH);
    return ToPosition(std::string_view(aText).find_last_of(aCharacters));
}

std::size_t CSMUtilString::CharacterCount(char aCharacter, const char* aText) noexcept
{
    const std::string_view text = ViewOf(aText);
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), aCharacter));
}

bool CSMUtilString::SubString(const char* aText, std::size_t aStart, std::size_t aLength, char** aOut) noexcept
{
    return GetBytes(aText, ViewOf(aText).size(), aStart, aLength, aOut);
}

bool CSMUtilString::SubString(const std::string& aText, std::size_t aStart, std::size_t aLength,
                              std::string& aOut) noexcept
{
    return GetBytes(aText.data(), aText.size(), aStart, aLength, aOut);
}

bool CSMUtilString::GetBytes(const char* aBuffer, std::size_t aBufferLength, std::size_t aOffset, std::size_t aCount,
                             char** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    const bool isInside = aBuffer != nullptr && aOffset <= aBufferLength && aCount <= aBufferLength - aOffset;
    return isInside && HandOut({aBuffer + aOffset, aCount}, aOut);
}

bool CSMUtilString::GetBytes(const char* aBuffer, std::size_t aBufferLength, std::size_t aOffset, std::size_t aCount,
                             std::string& aOut) noexcept
{
    const bool isInside = aBuffer != nullptr && aOffset <= aBufferLength && aCount <= aBufferLength - aOffset;
    return isInside && Store({aBuffer + aOffset, aCount}, aOut);
}

bool CSMUtilString::MemCopyTrimmedString(const char* aText, char** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    return aText != nullptr && HandOut(Detail::Trimmed(aText), aOut);
}

std::string CSMUtilString::Replace(const std::string& aInputStr, const std::string& aFind,
                                   const std::string& aReplacement)
{
    if (aFind.empty()) {
        return aInputStr;
    }
    std::string result;
    std::size_t kept = 0;
    for (std::size_t found = aInputStr.find(aFind); found != std::string::npos; found = aInputStr.find(aFind, kept)) {
        result.append(aInputStr, kept, found - kept).append(aReplacement);
        kept = found + aFind.size();
    }
    return result.append(aInputStr, kept);
}

std::string CSMUtilString::Replace(const char* aInputStr, const char* aFind, const char* aReplacement)
{
    Require(aInputStr != nullptr, NULL_REPLACE_TEXT);
    return Replace(std::string(aInputStr), std::string(ViewOf(aFind)), std::string(ViewOf(aReplacement)));
}

void CSMUtilString::Replace(const char* aInputStr, const char* aFind, const char* aReplacement, char** aOut)
{
    ToOutput(aOut, [=] { return Replace(aInputStr, aFind, aReplacement); });
}

bool CSMUtilString::Tokenize(const char* aDelimiters, const char* aText, char**& aTokens, std::size_t& aCount) noexcept
{
    aTokens = nullptr;
    aCount = 0;
    if (IsEmpty(aDelimiters) || IsEmpty(aText)) {
        return false;
    }
    try {
        const std::string_view text = aText;
        std::vector<std::string_view> found;
        for (std::size_t first = text.find_first_not_of(aDelimiters); first != std::string_view::npos;) {
            const std::size_t last = std::min(text.find_first_of(aDelimiters, first), text.size());
            found.push_back(text.substr(first, last - first));
            first = text.find_first_not_of(aDelimiters, last);
        }
        if (found.empty()) {
            return true;
        }
        aCount = GetCStringArray(aTokens, found.size());
        bool isComplete = aCount == found.size();
        for (std::size_t i = 0; isComplete && i != aCount; ++i) {
            isComplete = HandOut(found[i], &aTokens[i]);
        }
        if (!isComplete) {
            DeleteCStringArray(aTokens, aCount);
            aCount = 0;
        }
        return isComplete;
    } catch (const std::exception&) {
        return false;
    }
}

std::string CSMUtilString::GetKeyFromKeyValuePair(const char* aText)
{
    std::string_view key;
    std::string_view value;
    Require(SplitPair(ViewOf(aText), key, value), NO_KEY_VALUE_TEXT);
    return std::string(key);
}

void CSMUtilString::GetKeyFromKeyValuePair(const char* aText, char** aOut)
{
    PairPartToOutput(aText, aOut, true);
}

std::string CSMUtilString::GetValueFromKeyValuePair(const char* aText)
{
    std::string_view key;
    std::string_view value;
    Require(SplitPair(ViewOf(aText), key, value), NO_KEY_VALUE_TEXT);
    return std::string(value);
}

void CSMUtilString::GetValueFromKeyValuePair(const char* aText, char** aOut)
{
    PairPartToOutput(aText, aOut, false);
}
}  // namespace ORMO::SensorModel::CSM::Util

#include "fields/ValueRule.h"

#include "fields/FieldValue.h"
#include "fields/Number.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::string_view BLANK = "blank";
constexpr std::string_view ANY = "any";
constexpr std::string_view RANGE = "..";

std::string_view WithoutTrailingBlanks(std::string_view aText) noexcept
{
    const auto last = aText.find_last_not_of(' ');
    return last == std::string_view::npos ? std::string_view{} : aText.substr(0, last + 1);
}

bool HasAlternative(std::string_view aRule, std::string_view aWanted) noexcept
{
    while (!aRule.empty()) {
        if (WithoutMeaning(NextAlternative(aRule)) == aWanted) {
            return true;
        }
    }
    return false;
}

bool IsInNumberRange(std::string_view aRange, double aValue) noexcept
{
    const auto dots = aRange.find(RANGE);
    double low = 0.0;
    double high = 0.0;
    return ToRealNumber(aRange.substr(0, dots), low) && ToRealNumber(aRange.substr(dots + RANGE.size()), high) &&
           low <= aValue && aValue <= high;
}

bool IsNumberRange(std::string_view aRange) noexcept
{
    const auto dots = aRange.find(RANGE);
    double bound = 0.0;
    return ToRealNumber(aRange.substr(0, dots), bound) && ToRealNumber(aRange.substr(dots + RANGE.size()), bound);
}

bool IsInTextRange(std::string_view aRange, std::string_view aValue) noexcept
{
    const auto dots = aRange.find(RANGE);
    const std::string_view low = aRange.substr(0, dots);
    const std::string_view high = aRange.substr(dots + RANGE.size());
    if (aValue.size() != low.size() || aValue.size() != high.size()) {
        return false;
    }
    for (std::size_t i = 0; i != low.size(); ++i) {
        // Each place has its own range: A1..Z9 holds B2, but neither B0 nor 2B.
        if (aValue[i] < low[i] || aValue[i] > high[i]) {
            return false;
        }
    }
    return true;
}

/// The number in a text field, by its form: a whole number, digits only, or any decimal number.
bool NumberOf(const FieldRow& aRow, std::string_view aValue, double& aOut) noexcept
{
    std::int64_t whole = 0;
    std::uint64_t count = 0;
    switch (aRow.form) {
        case Form::Integer:
            if (!ToWholeNumber(aValue, whole)) {
                return false;
            }
            aOut = static_cast<double>(whole);
            return true;
        case Form::Digits:
            if (!ToCount(aValue, count)) {
                return false;
            }
            aOut = static_cast<double>(count);
            return true;
        default:
            return ToRealNumber(aValue, aOut);
    }
}

bool AlternativeMatches(const FieldRow& aRow, std::string_view aAlternative, std::string_view aValue) noexcept
{
    if (aAlternative == ANY) {
        return true;
    }
    if (aAlternative == BLANK) {
        return aValue.empty();
    }
    if (aAlternative.size() > 2 && aAlternative.front() == '{') {
        return PictureMatches(aAlternative.substr(1, aAlternative.size() - 2), aValue);
    }
    if (aAlternative.find(RANGE) != std::string_view::npos) {
        if (!IsNumberRange(aAlternative)) {
            return IsInTextRange(aAlternative, aValue);
        }
        double number = 0.0;
        return NumberOf(aRow, aValue, number) && IsInNumberRange(aAlternative, number);
    }
    return aValue == TrimBlanks(aAlternative);
}

Verdict CheckBinary(const FieldRow& aRow, std::string_view aValue, Util::CSMCnst::ByteOrder aOrder)
{
    std::string_view rest(aRow.values);
    double number = 0.0;
    if (rest.empty() || aRow.form == Form::Bytes || aRow.form == Form::Colour ||
        !ValueAsDouble(aRow, aValue, aOrder, number)) {
        return Verdict::Good;
    }
    while (!rest.empty()) {
        const std::string_view alternative = WithoutMeaning(NextAlternative(rest));
        double single = 0.0;
        if (alternative == ANY || (ToRealNumber(alternative, single) && single == number) ||
            (alternative.find(RANGE) != std::string_view::npos && IsInNumberRange(alternative, number))) {
            return Verdict::Good;
        }
    }
    return Verdict::OutOfRange;
}

/// Whether the bytes are UTF-8: whole sequences, in their shortest form, of code points that are no surrogates.
bool IsUtf8(std::string_view aText) noexcept
{
    while (!aText.empty()) {
        const auto first = static_cast<unsigned char>(aText.front());
        const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
        if (length == 0 || first > 0xF4 || length > aText.size()) {
            return false;
        }
        std::uint32_t point = length == 1 ? first : first & (0x7FU >> length);
        for (const char character : aText.substr(1, length - 1)) {
            const auto byte = static_cast<unsigned char>(character);
            if ((byte & 0xC0U) != 0x80U) {
                return false;
            }
            point = (point << 6U) | (byte & 0x3FU);
        }
        const bool isSurrogate = point >= 0xD800 && point <= 0xDFFF;
        if (isSurrogate || point > 0x10FFFF || (length == 3 && point < 0x800) || (length == 4 && point < 0x10000)) {
            return false;
        }
        aText.remove_prefix(length);
    }
    return true;
}

/// Whether a value that is read as text but written in digits holds anything else; blanks around it left out.
bool IsWrongCode(Form aForm, std::string_view aValue) noexcept
{
    constexpr std::string_view BCS_N = "0123456789+-./";
    constexpr std::size_t DIGITS = 10;
    return (aForm == Form::DigitText && aValue.find_first_not_of(BCS_N.substr(0, DIGITS)) != std::string_view::npos) ||
           (aForm == Form::NumberText && aValue.find_first_not_of(BCS_N) != std::string_view::npos);
}

bool HasOnlyAllowedCharacters(const FieldRow& aRow, std::string_view aValue) noexcept
{
    if (aRow.form == Form::Utf8 || aRow.form == Form::Opaque) {
        return aRow.form == Form::Opaque || IsUtf8(aValue);
    }
    const bool extended = aRow.form == Form::Ecs || aRow.form == Form::ClassificationReason;
    return std::all_of(aValue.begin(), aValue.end(), [extended](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        const bool control = byte == '\n' || byte == '\f' || byte == '\r';
        return (byte >= 0x20 && byte <= 0x7E) || control || (extended && byte >= 0xA0);
    });
}

/// Whether some value could match: what is nothing, a broken picture or a range without content matches none.
bool IsAlternative(std::string_view aAlternative) noexcept
{
    if (TrimBlanks(aAlternative).empty()) {
        return false;
    }
    if (aAlternative.front() == '{') {
        return aAlternative.size() > 2 && aAlternative.back() == '}' &&
               IsPicture(aAlternative.substr(1, aAlternative.size() - 2));
    }
    const auto dots = aAlternative.find(RANGE);
    if (dots == std::string_view::npos) {
        return true;
    }
    const std::string_view low = aAlternative.substr(0, dots);
    double lowNumber = 0.0;
    if (IsNumberRange(aAlternative)) {
        return ToRealNumber(low, lowNumber) && IsInNumberRange(aAlternative, lowNumber);
    }
    return !low.empty() && IsInTextRange(aAlternative, low);
}

bool IsNumberForm(Form aForm) noexcept
{
    return aForm == Form::Integer || aForm == Form::Real || aForm == Form::Digits;
}

}  // namespace

bool FirstRange(std::string_view aRule, std::uint64_t& aLeast, std::uint64_t& aMost) noexcept
{
    const std::string_view range = WithoutMeaning(NextAlternative(aRule));
    const auto dots = range.find(RANGE);
    return dots != std::string_view::npos && ToCount(range.substr(0, dots), aLeast) &&
           ToCount(range.substr(dots + RANGE.size()), aMost);
}

std::string_view NextAlternative(std::string_view& aRest) noexcept
{
    const auto mark = aRest.find('|');
    const std::string_view first = aRest.substr(0, mark);
    aRest = mark == std::string_view::npos ? std::string_view{} : aRest.substr(mark + 1);
    return first;
}

std::string_view WithoutMeaning(std::string_view aAlternative) noexcept
{
    const auto mark = aAlternative.find('=', 1);
    return mark == std::string_view::npos ? aAlternative : aAlternative.substr(0, mark);
}

bool IsListed(std::string_view aValue, std::string_view aAlternatives) noexcept
{
    const std::string_view value = WithoutTrailingBlanks(aValue);
    for (;;) {
        const bool isLast = aAlternatives.find('|') == std::string_view::npos;  // a "|" at the end opens an empty text
        if (value == WithoutTrailingBlanks(NextAlternative(aAlternatives))) {
            return true;
        }
        if (isLast) {
            return false;
        }
    }
}

Verdict CheckValue(const FieldRow& aRow, std::string_view aValue, Util::CSMCnst::ByteOrder aOrder)
{
    if (aRow.form == Form::Records) {
        return Verdict::Good;
    }
    if (aRow.IsBinary()) {
        return CheckBinary(aRow, aValue, aOrder);
    }
    const std::string_view value = TrimBlanks(aValue);
    std::string_view rest(aRow.values);
    if (value.empty()) {
        const bool allowed = aRow.MayBeBlank() || aValue.empty() || HasAlternative(rest, BLANK);
        return allowed ? Verdict::Good : Verdict::Blank;
    }
    if (!HasOnlyAllowedCharacters(aRow, aValue)) {
        return Verdict::WrongCharacters;
    }
    double number = 0.0;
    const bool isWrongNumber = IsNumberForm(aRow.form) && !NumberOf(aRow, value, number);
    const Verdict wrong = isWrongNumber                   ? Verdict::NotANumber
                          : IsWrongCode(aRow.form, value) ? Verdict::WrongCharacters
                                                          : Verdict::OutOfRange;
    if (rest.empty()) {
        return wrong == Verdict::OutOfRange ? Verdict::Good : wrong;
    }
    while (!rest.empty()) {
        if (AlternativeMatches(aRow, WithoutMeaning(NextAlternative(rest)), value)) {
            return Verdict::Good;
        }
    }
    return wrong;
}

bool IsRule(std::string_view aRule) noexcept
{
    while (!aRule.empty()) {
        if (aRule.back() == '|' || !IsAlternative(WithoutMeaning(NextAlternative(aRule)))) {
            return false;
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

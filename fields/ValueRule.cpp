#include "fields/ValueRule.h"

#include "fields/Number.h"

#include <algorithm>
#include <bit>

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

/// The alternative without its meaning. A lone "=" or one at the front is text.
std::string_view WithoutMeaning(std::string_view aAlternative) noexcept
{
    const auto mark = aAlternative.find('=', 1);
    return mark == std::string_view::npos ? aAlternative : aAlternative.substr(0, mark);
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

/// The number in a binary field; false for widths that are no number.
bool BinaryNumber(const FieldRow& aRow, std::string_view aValue, double& aOut) noexcept
{
    std::uint64_t bits = 0;
    if (!BigEndianUnsigned(aValue, bits)) {
        return false;
    }
    if (aRow.form == Form::Float) {
        if (aValue.size() == sizeof(float)) {
            aOut = static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
            return true;
        }
        aOut = std::bit_cast<double>(bits);
        return aValue.size() == sizeof(double);
    }
    if (aRow.form == Form::Signed) {
        const auto unused = 64U - 8U * static_cast<unsigned>(aValue.size());
        aOut = static_cast<double>(static_cast<std::int64_t>(bits << unused) >> unused);
        return true;
    }
    aOut = static_cast<double>(bits);
    return true;
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
    if (aValue.size() != low.size()) {
        return false;
    }
    for (std::size_t i = 0; i != low.size(); ++i) {
        // Each place has its own range, so that A1..Z9 holds B0 in no way but keeps letters and digits apart.
        if (aValue[i] < low[i] || aValue[i] > high[i]) {
            return false;
        }
    }
    return true;
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
        std::int64_t whole = 0;
        const bool isNumber = aRow.form == Form::Real ? ToRealNumber(aValue, number)
                                                      : ToWholeNumber(aValue, whole) || ToRealNumber(aValue, number);
        if (aRow.form != Form::Real && ToWholeNumber(aValue, whole)) {
            number = static_cast<double>(whole);
        } else if (aRow.form == Form::Integer || aRow.form == Form::Digits) {
            return false;
        }
        return isNumber && IsInNumberRange(aAlternative, number);
    }
    return aValue == TrimBlanks(aAlternative);
}

Verdict CheckBinary(const FieldRow& aRow, std::string_view aValue) noexcept
{
    std::string_view rest(aRow.values);
    double number = 0.0;
    if (rest.empty() || aRow.form == Form::Bytes || aRow.form == Form::Colour || !BinaryNumber(aRow, aValue, number)) {
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

bool HasOnlyAllowedCharacters(const FieldRow& aRow, std::string_view aValue) noexcept
{
    if (aRow.form == Form::Utf8) {
        return true;
    }
    const bool extended = aRow.form == Form::Ecs || aRow.form == Form::ClassificationReason;
    return std::all_of(aValue.begin(), aValue.end(), [extended](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        const bool control = byte == '\n' || byte == '\f' || byte == '\r';
        return (byte >= 0x20 && byte <= 0x7E) || control || (extended && byte >= 0xA0);
    });
}

bool IsNumberForm(Form aForm) noexcept
{
    return aForm == Form::Integer || aForm == Form::Real || aForm == Form::Digits;
}

}  // namespace

std::string_view NextAlternative(std::string_view& aRest) noexcept
{
    const auto mark = aRest.find('|');
    const std::string_view first = aRest.substr(0, mark);
    aRest = mark == std::string_view::npos ? std::string_view{} : aRest.substr(mark + 1);
    return first;
}

bool IsListed(std::string_view aValue, std::string_view aAlternatives) noexcept
{
    const std::string_view value = WithoutTrailingBlanks(aValue);
    do {
        if (value == WithoutTrailingBlanks(NextAlternative(aAlternatives))) {
            return true;
        }
    } while (!aAlternatives.empty());
    return false;
}

Verdict CheckValue(const FieldRow& aRow, std::string_view aValue) noexcept
{
    if (aRow.form == Form::Records) {
        return Verdict::Good;
    }
    if (aRow.IsBinary()) {
        return CheckBinary(aRow, aValue);
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
    if (rest.empty()) {
        double number = 0.0;
        std::int64_t whole = 0;
        const bool good = !IsNumberForm(aRow.form) ||
                          (aRow.form == Form::Real ? ToRealNumber(value, number) : ToWholeNumber(value, whole));
        return good ? Verdict::Good : Verdict::NotANumber;
    }
    while (!rest.empty()) {
        if (AlternativeMatches(aRow, WithoutMeaning(NextAlternative(rest)), value)) {
            return Verdict::Good;
        }
    }
    double number = 0.0;
    return IsNumberForm(aRow.form) && !ToRealNumber(value, number) ? Verdict::NotANumber : Verdict::OutOfRange;
}

bool IsRule(std::string_view aRule) noexcept
{
    constexpr std::string_view KNOWN = "CYMDNOhHmsSdXY+nefzBJKLTZ.-: ";
    while (!aRule.empty()) {
        if (aRule.back() == '|') {
            return false;
        }
        const std::string_view alternative = WithoutMeaning(NextAlternative(aRule));
        if (alternative.empty()) {
            return false;
        }
        const bool picture = alternative.front() == '{';
        if (picture &&
            (alternative.size() < 3 || alternative.back() != '}' ||
             alternative.substr(1, alternative.size() - 2).find_first_not_of(KNOWN) != std::string_view::npos)) {
            return false;
        }
        const auto dots = alternative.find(RANGE);
        if (!picture && dots != std::string_view::npos && !IsNumberRange(alternative) &&
            (dots == 0 || alternative.size() != 2 * dots + RANGE.size())) {
            return false;  // a range of texts needs two texts of the same length
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

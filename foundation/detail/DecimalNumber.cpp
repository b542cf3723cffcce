#include "foundation/detail/DecimalNumber.h"

#include "foundation/detail/Ascii.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>

namespace ORMO::SensorModel::CSM::Detail {
namespace {
constexpr std::int64_t MAX_EXPONENT = 1'000'000'000'000;
constexpr const char* ZERO_TEXT = "0.e+00";

std::string_view TakeDigits(std::string_view& aText) noexcept
{
    std::size_t count = 0;
    while (count < aText.size() && IsDigit(aText[count])) {
        ++count;
    }
    const std::string_view digits = aText.substr(0, count);
    aText.remove_prefix(count);
    return digits;
}

char TakeSign(std::string_view& aText) noexcept
{
    char sign = '\0';
    if (!aText.empty() && (aText.front() == '+' || aText.front() == '-')) {
        sign = aText.front();
        aText.remove_prefix(1);
    }
    return sign;
}

/// Takes an exponent with its letter; false when the text goes on with anything else.
bool TakeExponent(std::string_view& aText, std::int64_t& aExponent) noexcept
{
    if (LowerCase(aText.front()) != 'e') {
        return false;
    }
    aText.remove_prefix(1);
    const char sign = TakeSign(aText);
    const std::string_view digits = TakeDigits(aText);
    for (const char digit : digits) {
        aExponent = std::min(MAX_EXPONENT, aExponent * 10 + (digit - '0'));
    }
    if (sign == '-') {
        aExponent = -aExponent;
    }
    return !digits.empty();
}
}  // namespace

bool WrittenNumber::Split(std::string_view aText, WrittenNumber& aOut) noexcept
{
    aOut = WrittenNumber{};
    aOut.sign = TakeSign(aText);
    aOut.integer = TakeDigits(aText);
    if (!aText.empty() && aText.front() == '.') {
        aOut.hasPoint = true;
        aText.remove_prefix(1);
        aOut.fraction = TakeDigits(aText);
    }
    if (aOut.integer.empty() && aOut.fraction.empty()) {
        return false;
    }
    return aText.empty() || (TakeExponent(aText, aOut.exponent) && aText.empty());
}

DecimalNumber::DecimalNumber(const WrittenNumber& aNumber)
    : m_isNegative(aNumber.sign == '-'),
      m_digits(aNumber.integer),
      m_leadingPlace(static_cast<std::int64_t>(aNumber.integer.size()) - 1 + aNumber.exponent)
{
    m_digits += aNumber.fraction;
    Normalise();
}

bool DecimalNumber::Parse(std::string_view aText, DecimalNumber& aOut)
{
    WrittenNumber number;
    if (!WrittenNumber::Split(aText, number)) {
        return false;
    }
    aOut = DecimalNumber(number);
    return true;
}

DecimalNumber DecimalNumber::FromDouble(double aValue)
{
    std::array<char, 32> text{};  // the shortest form of a double takes at most 24 characters
    const auto result = std::to_chars(text.data(), text.data() + text.size(), aValue, std::chars_format::scientific);
    DecimalNumber number;
    if (!Parse({text.data(), static_cast<std::size_t>(result.ptr - text.data())}, number)) {
        return DecimalNumber();
    }
    return number;
}

void DecimalNumber::Normalise()
{
    const std::size_t first = m_digits.find_first_not_of('0');
    if (first == std::string::npos) {
        *this = DecimalNumber();
        return;
    }
    m_digits.erase(m_digits.find_last_not_of('0') + 1);
    m_digits.erase(0, first);
    m_leadingPlace -= static_cast<std::int64_t>(first);
}

void DecimalNumber::RoundToPlace(std::int64_t aPlace)
{
    const std::int64_t kept = m_leadingPlace - aPlace + 1;
    if (IsZero() || kept >= static_cast<std::int64_t>(m_digits.size())) {
        return;
    }
    if (kept < 0) {
        *this = DecimalNumber();
        return;
    }
    const auto keptDigits = static_cast<std::size_t>(kept);
    const bool isUp = m_digits[keptDigits] >= '5';
    m_digits.erase(keptDigits);
    if (isUp) {
        // A zero in front takes the carry; nines that carry become zeros and fall away below.
        m_digits.insert(m_digits.begin(), '0');
        ++m_leadingPlace;
        const std::size_t last = m_digits.find_last_not_of('9');
        ++m_digits[last];
        m_digits.erase(last + 1);
    }
    Normalise();
}

std::int64_t DecimalNumber::RoundToFigures(std::int64_t aFigures)
{
    RoundToPlace(m_leadingPlace - aFigures + 1);
    return m_leadingPlace - aFigures + 1;
}

char DecimalNumber::DigitAt(std::int64_t aPlace) const noexcept
{
    const std::int64_t index = m_leadingPlace - aPlace;
    const bool isWritten = index >= 0 && index < static_cast<std::int64_t>(m_digits.size());
    return isWritten ? m_digits[static_cast<std::size_t>(index)] : '0';
}

std::string DecimalNumber::Fixed(std::int64_t aPlace) const
{
    if (IsZero()) {
        return ZERO_TEXT;
    }
    std::string text = m_isNegative ? "-" : "";
    for (std::int64_t place = std::max<std::int64_t>(m_leadingPlace, 0); place >= std::min<std::int64_t>(aPlace, 0);
         --place) {
        if (place == -1) {
            text += '.';
        }
        text += DigitAt(place);
    }
    return text;
}

std::string DecimalNumber::Scientific(std::int64_t aPlace) const
{
    if (IsZero()) {
        return ZERO_TEXT;
    }
    std::string text = m_isNegative ? "-" : "";
    text += m_digits.front();
    text += '.';
    for (std::int64_t place = m_leadingPlace - 1; place >= aPlace; --place) {
        text += DigitAt(place);
    }
    const std::string exponent = std::to_string(std::abs(m_leadingPlace));
    text += m_leadingPlace < 0 ? "e-" : "e+";
    return text + (exponent.size() < 2 ? "0" : "") + exponent;
}

int DecimalNumber::Compare(const DecimalNumber& aFirst, const DecimalNumber& aSecond) noexcept
{
    const auto sign = [](const DecimalNumber& aNumber) { return aNumber.IsZero() ? 0 : aNumber.m_isNegative ? -1 : 1; };
    if (sign(aFirst) != sign(aSecond)) {
        return sign(aFirst) < sign(aSecond) ? -1 : 1;
    }
    int magnitude = 0;
    if (aFirst.m_leadingPlace != aSecond.m_leadingPlace) {
        magnitude = aFirst.m_leadingPlace < aSecond.m_leadingPlace ? -1 : 1;
    } else {
        // Without zeros at the end, digits from the same place on compare as texts do.
        const int order = aFirst.m_digits.compare(aSecond.m_digits);
        magnitude = order < 0 ? -1 : order > 0 ? 1 : 0;
    }
    return aFirst.m_isNegative ? -magnitude : magnitude;
}
}  // namespace ORMO::SensorModel::CSM::Detail

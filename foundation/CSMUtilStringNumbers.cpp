// The conversions of CSMUtilString between text and numbers.
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/DecimalNumber.h"
#include "foundation/detail/HandOut.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <exception>
#include <limits>

namespace ORMO::SensorModel::CSM::Util {
namespace {
constexpr std::size_t NOWHERE = std::string_view::npos;
constexpr int DEFAULT_PRECISION = 20;
constexpr int MOST_FIGURES = std::numeric_limits<double>::max_digits10;

/// What stands in a text that should be a number: how often, and where first.
struct Census
{
    std::size_t points = 0;
    std::size_t signs = 0;
    std::size_t exponents = 0;
    std::size_t others = 0;
    std::size_t firstPoint = NOWHERE;
    std::size_t firstSign = NOWHERE;
    std::size_t firstExponent = NOWHERE;
};

void CountAt(std::size_t aPosition, std::size_t& aCount, std::size_t& aFirst) noexcept
{
    if (aCount++ == 0) {
        aFirst = aPosition;
    }
}

Census CountKinds(std::string_view aText) noexcept
{
    Census census;
    for (std::size_t i = 0; i != aText.size(); ++i) {
        const char character = aText[i];
        if (character == '.') {
            CountAt(i, census.points, census.firstPoint);
        } else if (character == '+' || character == '-') {
            CountAt(i, census.signs, census.firstSign);
        } else if (character == 'e' || character == 'E') {
            CountAt(i, census.exponents, census.firstExponent);
        } else if (!Detail::IsDigit(character)) {
            ++census.others;
        }
    }
    return census;
}

/// Unsigned targets allow no minus sign. Values beyond the range of Integer are refused.
template<typename Integer, typename Out>
bool ParseInteger(const char* aText, Out& aOut) noexcept
{
    std::string_view text = Detail::Trimmed(Detail::ViewOf(aText));
    const Census census = CountKinds(text);
    if (text.empty() || census.others != 0 || census.exponents != 0 || census.points > 1 || census.signs > 1 ||
        (census.signs == 1 && census.firstSign != 0)) {
        return false;
    }
    if (!std::numeric_limits<Integer>::is_signed && text.front() == '-') {
        return false;
    }
    // Such a text counts as zero whatever follows the point, "." and "-." included.
    if (census.points == 1 && census.firstPoint == census.signs) {
        aOut = 0;
        return true;
    }
    if (text.front() == '+') {
        text.remove_prefix(1);
    }
    Integer value{};
    if (std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc{}) {
        return false;
    }
    aOut = value;
    return true;
}

/// Whether a text may be scanned as a real number. It may still hold none.
bool IsScannable(const Census& aCensus) noexcept
{
    if (aCensus.others != 0 || aCensus.exponents > 1 || aCensus.points > 1) {
        return false;
    }
    if (aCensus.exponents == 0) {
        return aCensus.signs == 0 || (aCensus.signs == 1 && aCensus.firstSign == 0);
    }
    const bool hasNothingBefore = aCensus.firstExponent == 0 ||
                                  (aCensus.firstExponent == 1 && (aCensus.firstPoint == 0 || aCensus.firstSign == 0));
    return aCensus.signs <= 2 && !hasNothingBefore;
}

bool ScanDouble(std::string_view aText, double& aOut)
{
    if (!aText.empty() && aText.front() == '+') {
        aText.remove_prefix(1);
        if (!aText.empty() && aText.front() == '-') {
            return false;
        }
    }
    double value = 0.0;
    const auto result = std::from_chars(aText.data(), aText.data() + aText.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // The same answer stands for too large and too small; the place of the first digit tells them apart.
        Detail::DecimalNumber number;
        const auto length = static_cast<std::size_t>(result.ptr - aText.data());
        if (!Detail::DecimalNumber::Parse(aText.substr(0, length), number) || number.LeadingPlace() >= 0) {
            return false;
        }
        aOut = aText.front() == '-' ? -0.0 : 0.0;
        return true;
    }
    if (result.ec != std::errc{} || !std::isfinite(value)) {
        return false;
    }
    aOut = value;
    return true;
}

std::string Formatted(double aValue, bool aScientific, int aPrecision)
{
    const int precision = aPrecision < 0 ? DEFAULT_PRECISION : aPrecision;
    // Sign, point and exponent, and every digit that a double can have before its point.
    constexpr std::size_t REST = std::numeric_limits<double>::max_exponent10 + 16;
    std::string text(static_cast<std::size_t>(precision) + REST, '\0');
    const auto format = aScientific ? std::chars_format::scientific : std::chars_format::fixed;
    const auto result = std::to_chars(text.data(), text.data() + text.size(), aValue, format, precision);
    text.resize(result.ec == std::errc{} ? static_cast<std::size_t>(result.ptr - text.data()) : 0);
    return text;
}

std::string Written(const Detail::DecimalNumber& aNumber, std::int64_t aPlace, bool aScientific)
{
    return aScientific ? aNumber.Scientific(aPlace) : aNumber.Fixed(aPlace);
}

bool IsUsableUncertainty(double aUncertainty) noexcept
{
    return std::isfinite(aUncertainty) && aUncertainty > 0.0;
}
}  // namespace

bool CSMUtilString::ToBool(const char* aText, bool& aOut) noexcept
{
    std::size_t length = 0;
    const char* const first = Trim(aText, length, true, true);
    const auto is = [first, length](std::string_view aWord) {
        return length == aWord.size() &&
               std::equal(aWord.begin(), aWord.end(), first,
                          [](char aLetter, char aCharacter) { return aLetter == Detail::LowerCase(aCharacter); });
    };
    if (!is("false") && !is("true")) {
        return false;
    }
    aOut = is("true");
    return true;
}

bool CSMUtilString::ToLong(const char* aText, long& aOut) noexcept
{
    return ParseInteger<std::int32_t>(aText, aOut);
}

bool CSMUtilString::ToInteger(const char* aText, int& aOut) noexcept
{
    long value = 0;
    if (!ToLong(aText, value)) {
        return false;
    }
    aOut = static_cast<int>(value);
    return true;
}

bool CSMUtilString::ToUnsignedLong(const char* aText, unsigned long& aOut) noexcept
{
    return ParseInteger<std::uint32_t>(aText, aOut);
}

bool CSMUtilString::ToInt64(const char* aText, std::int64_t& aOut) noexcept
{
    return ParseInteger<std::int64_t>(aText, aOut);
}

bool CSMUtilString::ToUInt64(const char* aText, std::uint64_t& aOut) noexcept
{
    return ParseInteger<std::uint64_t>(aText, aOut);
}

bool CSMUtilString::ToDouble(const char* aText, double& aOut) noexcept
{
    try {
        const std::string_view text = Detail::Trimmed(Detail::ViewOf(aText));
        return IsScannable(CountKinds(text)) && ScanDouble(text, aOut);
    } catch (const std::exception&) {
        return false;
    }
}

std::string CSMUtilString::ToString(int aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(long aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(long long aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(unsigned int aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(unsigned long aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(unsigned long long aValue)
{
    return std::to_string(aValue);
}

std::string CSMUtilString::ToString(double aValue, bool aScientific, int aPrecision)
{
    return Formatted(aValue, aScientific, aPrecision);
}

bool CSMUtilString::ToString(char** aOut, double aValue, bool aScientific, int aPrecision) noexcept
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    try {
        const std::string text = Formatted(aValue, aScientific, aPrecision);
        return !text.empty() && Detail::HandOut(text, aOut);
    } catch (const std::exception&) {
        return false;
    }
}

bool CSMUtilString::SignificantFigures(double aValue, double aUncertainty, char** aValueText, char** aUncertaintyText,
                                       bool aScientific) noexcept
{
    if (aValueText == nullptr || aUncertaintyText == nullptr || aValueText == aUncertaintyText) {
        return false;
    }
    *aValueText = nullptr;
    *aUncertaintyText = nullptr;
    if (!std::isfinite(aValue) || !IsUsableUncertainty(aUncertainty)) {
        return false;
    }
    try {
        Detail::DecimalNumber uncertainty = Detail::DecimalNumber::FromDouble(aUncertainty);
        Detail::DecimalNumber value = Detail::DecimalNumber::FromDouble(aValue);
        const std::int64_t place = uncertainty.RoundToFigures(1);
        value.RoundToPlace(place);
        if (Detail::HandOut(Written(value, place, aScientific), aValueText) &&
            Detail::HandOut(Written(uncertainty, place, aScientific), aUncertaintyText)) {
            return true;
        }
    } catch (const std::exception&) {
        // Memory is short: nothing is handed out.
    }
    DeleteCString(*aValueText);
    DeleteCString(*aUncertaintyText);
    return false;
}

bool CSMUtilString::GetSignificantFiguresInfo(const char* aText, bool& aHasSign, bool& aHasDecimalPoint,
                                              int& aSignificantFigures, int& aDecimals) noexcept
{
    Detail::WrittenNumber number;
    const std::string_view text = Detail::Trimmed(Detail::ViewOf(aText));
    const bool isNumber = text.size() <= std::numeric_limits<int>::max() && Detail::WrittenNumber::Split(text, number);
    if (!isNumber) {
        number = Detail::WrittenNumber{};
    }
    std::size_t figures = 0;
    std::size_t zerosAtEnd = 0;
    for (const std::string_view digits : {number.integer, number.fraction}) {
        for (const char digit : digits) {
            zerosAtEnd = digit == '0' && figures != 0 ? zerosAtEnd + 1 : 0;
            figures += digit != '0' || figures != 0 ? 1U : 0U;
        }
    }
    if (figures == 0 && isNumber) {
        figures = 1;
    }
    aHasSign = number.sign != '\0';
    aHasDecimalPoint = number.hasPoint;
    aSignificantFigures = static_cast<int>(number.hasPoint ? figures : figures - zerosAtEnd);
    aDecimals = static_cast<int>(number.fraction.size());
    return isNumber;
}

bool CSMUtilString::TruncateUncertaintyValue(double aUncertainty, char** aOut, bool aScientific, int aFigures) noexcept
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    if (!IsUsableUncertainty(aUncertainty)) {
        return false;
    }
    try {
        Detail::DecimalNumber uncertainty = Detail::DecimalNumber::FromDouble(aUncertainty);
        const std::int64_t place = uncertainty.RoundToFigures(std::clamp(aFigures, 1, MOST_FIGURES));
        return Detail::HandOut(Written(uncertainty, place, aScientific), aOut);
    } catch (const std::exception&) {
        return false;
    }
}
}  // namespace ORMO::SensorModel::CSM::Util

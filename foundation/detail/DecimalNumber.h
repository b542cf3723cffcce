#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {
/// The parts of a number as it is written; the digits are views into the text.
struct WrittenNumber
{
    char sign = '\0';  ///< '+', '-' or, without a sign, NUL.
    bool hasPoint = false;
    std::string_view integer;
    std::string_view fraction;
    std::int64_t exponent = 0;  ///< An exponent beyond a million million counts as that.

    /// False unless the whole text is one number: sign, digits with a point among or around them, exponent.
    [[nodiscard]] static bool Split(std::string_view aText, WrittenNumber& aOut) noexcept;
};

/// A decimal number with all its digits, for comparing and rounding without the error of a binary fraction.
class DecimalNumber
{
public:
    DecimalNumber() = default;
    explicit DecimalNumber(const WrittenNumber& aNumber);

    /// False unless the whole text is one number.
    [[nodiscard]] static bool Parse(std::string_view aText, DecimalNumber& aOut);
    /// The shortest decimal number that gives the same double. Requires a finite value.
    static DecimalNumber FromDouble(double aValue);

    bool IsZero() const noexcept { return m_digits.empty(); }
    /// The power of ten of the first digit: 2 for 123, -3 for 0.00123; 0 for zero.
    std::int64_t LeadingPlace() const noexcept { return m_leadingPlace; }

    /// Rounds so that no digit stands below 10^aPlace; halves go away from zero.
    void RoundToPlace(std::int64_t aPlace);
    /// Rounds to aFigures figures, at least 1, and answers the place of the last of them.
    std::int64_t RoundToFigures(std::int64_t aFigures);

    /// Writes every digit down to 10^aPlace. Requires a number rounded to that place.
    std::string Fixed(std::int64_t aPlace) const;
    std::string Scientific(std::int64_t aPlace) const;

    /// -1, 0 or 1.
    static int Compare(const DecimalNumber& aFirst, const DecimalNumber& aSecond) noexcept;

private:
    void Normalise();
    char DigitAt(std::int64_t aPlace) const noexcept;

    bool m_isNegative = false;  // never set for zero
    std::string m_digits;       // without zeros at either end; none for zero
    std::int64_t m_leadingPlace = 0;
};
}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "fields/FieldRow.h"
#include "foundation/CSMCnst.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// What a look at a value finds.
enum class Verdict : std::uint8_t
{
    Good,
    Blank,            ///< blank where the row allows no blanks
    WrongCharacters,  ///< a byte outside the row's character set
    NotANumber,       ///< no number where the row wants one
    OutOfRange        ///< none of the values that the row's rule allows
};

// A value rule is a list of alternatives with "|" between them; an empty rule allows every value of the row's form:
//   01..99            a number in the range, both ends included; a range of texts such as AA..ZZ compares as text
//   blank             all blanks
//   any               every value; stands for codes that a register may add
//   {CCYYMMDD}        a picture, see PictureMatches
//   INT               the text itself, blanks around it left out
// Each alternative may carry its meaning behind "=": "L=left|R=right|blank=unknown|any=other registered code".

/// Judges a value, padding included, by the form, need and rule of its row. Nothing depends on the locale.
[[nodiscard]] Verdict CheckValue(const FieldRow& aRow, std::string_view aValue,
                                 Util::CSMCnst::ByteOrder aOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);

/// True when the value, trailing blanks left out on both sides, is one of the texts between the "|" of the list.
[[nodiscard]] bool IsListed(std::string_view aValue, std::string_view aAlternatives) noexcept;

/// True when the value is written as the picture says:
/// CCYY, YYYY, YY year; MM month; MON or MMM month in three capital letters; DD day; hh or HH hour; mm minute;
/// ss or SS second; rrrrr row and ccccc column of a location; a run of d degrees, two for a latitude and three for a
/// longitude, with mm and ss behind them an angle; X is N or S; Y is E or W; + is a sign; n, e, f, z and, behind a
/// point, s, S and d a digit; B, J, K, L a capital letter; x a hexadecimal digit; every other character stands for
/// itself. A pair of a date or time may be two hyphens: it is unknown. The fraction of a time may end in hyphens.
[[nodiscard]] bool PictureMatches(std::string_view aPicture, std::string_view aValue) noexcept;

/// True when every character of the picture has a meaning and no letter of a date, time or angle stands alone.
[[nodiscard]] bool IsPicture(std::string_view aPicture) noexcept;

/// True when every alternative of the rule can be understood and met; tests hold all tables to it.
[[nodiscard]] bool IsRule(std::string_view aRule) noexcept;

/// The ends of a range of counts that a rule begins with; false when it begins with something else.
[[nodiscard]] bool FirstRange(std::string_view aRule, std::uint64_t& aLeast, std::uint64_t& aMost) noexcept;

/// The first alternative of a list and the rest behind the "|".
std::string_view NextAlternative(std::string_view& aRest) noexcept;

/// The alternative without its meaning. A lone "=" or one at the front is text.
std::string_view WithoutMeaning(std::string_view aAlternative) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

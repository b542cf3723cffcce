#include "fields/FieldTable.h"

#include "fields/ValueRule.h"

#include <charconv>
#include <limits>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t DIGITS_OF_A_TURN = 3;
constexpr std::size_t MOST_DIGITS_OF_A_TURN = std::numeric_limits<std::uint32_t>::digits10 + 1;

bool ToTurn(std::string_view aDigits, std::uint32_t& aTurn) noexcept
{
    const char* const last = aDigits.data() + aDigits.size();
    const auto [end, error] = std::from_chars(aDigits.data(), last, aTurn);
    return error == std::errc{} && end == last && aTurn != 0;
}

/// The number in the "_n" at the end of a name, and what stands before it; false when there is none.
bool CutUnderscore(std::string_view aName, std::string_view& aTag, std::uint32_t& aTurn) noexcept
{
    std::size_t digits = aName.size();
    while (digits != 0 && IsDigit(aName[digits - 1])) {
        --digits;
    }
    if (digits < 2 || digits == aName.size() || aName[digits - 1] != '_' || aName[digits] == '0' ||
        !ToTurn(aName.substr(digits), aTurn)) {
        return false;
    }
    aTag = aName.substr(0, digits - 1);
    return true;
}

/// The number in the last digits of a name, which are cut off. More than three are written without leading zeros.
bool CutDigits(std::string_view& aName, std::size_t aDigits, std::uint32_t& aTurn) noexcept
{
    if (aName.size() <= aDigits) {
        return false;
    }
    const std::string_view digits = aName.substr(aName.size() - aDigits);
    if ((aDigits > DIGITS_OF_A_TURN && digits.front() == '0') || !ToTurn(digits, aTurn)) {
        return false;
    }
    aName.remove_suffix(aDigits);
    return true;
}

/// A rule that allows exactly one text, or only blanks, marks a fixed part of the layout.
bool IsFixedText(std::string_view aRule) noexcept
{
    const std::string_view text = WithoutMeaning(NextAlternative(aRule));
    return aRule.empty() && !text.empty() && text != "any" && text.front() != '{' &&
           text.find("..") == std::string_view::npos;
}

}  // namespace

std::uint16_t FieldTable::FindAny(std::string_view aTag) const noexcept
{
    for (std::size_t depth = 0; depth <= MAX_LOOP_DEPTH; ++depth) {
        const std::uint16_t row = Find(aTag, depth);
        if (row != NO_ROW) {
            return row;
        }
    }
    return NO_ROW;
}

std::uint16_t FieldTable::Resolve(std::string_view aName, Turns& aTurns) const noexcept
{
    aTurns = {};
    if (m_deepest == 0 || aName.empty() || !IsDigit(aName.back())) {
        return Find(aName, 0);
    }
    return m_naming == Naming::Underscore ? MatchUnderscores(aName, aTurns) : MatchDigits(aName, 0, aTurns);
}

// Names cannot meet, so the order of the tries does not matter: the more likely reading of a name that ends in a digit,
// as a repeated field, comes first. Turns are cut off innermost first.

std::uint16_t FieldTable::MatchUnderscores(std::string_view aName, Turns& aTurns) const noexcept
{
    std::array<std::string_view, MAX_LOOP_DEPTH + 1> tags{aName};
    Turns cut{};
    std::size_t depth = 0;
    while (depth != m_deepest && CutUnderscore(tags[depth], tags[depth + 1], cut[depth])) {
        ++depth;
    }
    std::uint16_t row = Find(tags[depth], depth);
    while (row == NO_ROW && depth != 0) {
        --depth;
        row = Find(tags[depth], depth);
    }
    std::reverse_copy(cut.begin(), cut.begin() + static_cast<std::ptrdiff_t>(depth), aTurns.begin());
    return row;
}

std::uint16_t FieldTable::MatchDigits(std::string_view aName, std::size_t aDepth, Turns& aCut) const noexcept
{
    for (std::size_t digits = DIGITS_OF_A_TURN; aDepth != m_deepest && digits <= MOST_DIGITS_OF_A_TURN; ++digits) {
        std::string_view rest = aName;
        std::uint32_t& turn = aCut[aDepth];
        if (CutDigits(rest, digits, turn)) {
            const std::uint16_t row = MatchDigits(rest, aDepth + 1, aCut);
            if (row != NO_ROW) {
                return row;
            }
        }
        turn = 0;
    }
    const std::uint16_t row = Find(aName, aDepth);
    if (row != NO_ROW) {
        std::reverse(aCut.begin(), aCut.begin() + static_cast<std::ptrdiff_t>(aDepth));
    }
    return row;
}

void FieldTable::AppendName(std::uint16_t aRow, const Turns& aTurns, std::string& aOut) const
{
    aOut += m_rows[aRow].tag;
    for (std::size_t level = 0; level != m_links[aRow].depth; ++level) {
        const std::string number = std::to_string(aTurns[level]);
        if (m_naming == Naming::Underscore) {
            aOut += '_';
        } else if (number.size() < DIGITS_OF_A_TURN) {
            aOut.append(DIGITS_OF_A_TURN - number.size(), '0');
        }
        aOut += number;
    }
}

bool FieldTable::IsEditable(std::uint16_t aRow) const noexcept
{
    const FieldRow& row = m_rows[aRow];
    const bool data = row.IsBinary() || row.form == Form::Records || row.form == Form::FileProfile;
    return !row.locked && !data && !m_links[aRow].structural && !IsFixedText(row.values);
}

bool WidthRange(const FieldTable& aTable, std::string_view aTag, std::size_t& aSmallest, std::size_t& aLargest) noexcept
{
    const std::uint16_t index = aTable.FindAny(aTag);
    if (index == NO_ROW) {
        return false;
    }
    const FieldRow& row = aTable.Row(index);
    aSmallest = row.width;
    aLargest = row.width;
    if (row.width == 0 && row.count == nullptr && row.sizeTag != nullptr) {
        const FieldRow& size = aTable.Row(aTable.Link(index).ref);
        const std::uint64_t base = size.IsBinary() ? 256 : 10;
        std::uint64_t largest = 0;
        for (std::uint32_t digit = 0; digit != size.width; ++digit) {
            largest = largest > (UINT64_MAX - base) / base ? UINT64_MAX : largest * base + (base - 1);
        }
        const auto adjust = static_cast<std::uint64_t>(std::int64_t{row.sizeAdjust});
        aLargest = static_cast<std::size_t>(largest == UINT64_MAX ? largest : largest + adjust);
        aSmallest = static_cast<std::size_t>(std::max(row.sizeAdjust, 0));
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

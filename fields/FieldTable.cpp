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

/// The number in the last "_n" of a name, which is cut off; false when there is none.
bool CutUnderscore(std::string_view& aName, std::uint32_t& aTurn) noexcept
{
    const auto mark = aName.rfind('_');
    if (mark == std::string_view::npos || mark == 0 || mark + 1 == aName.size() || aName[mark + 1] == '0') {
        return false;
    }
    if (!ToTurn(aName.substr(mark + 1), aTurn)) {
        return false;
    }
    aName.remove_suffix(aName.size() - mark);
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

std::uint16_t FieldTable::Find(std::string_view aTag, std::size_t aDepth) const noexcept
{
    const auto tagOf = [this](std::uint16_t aRow) {
        return std::string_view(m_rows[aRow].tag, m_links[aRow].tagLength);
    };
    const std::uint16_t* last = m_byTag + m_fieldCount;
    const std::uint16_t* it = std::lower_bound(
        m_byTag, last, aTag, [&](std::uint16_t aRow, std::string_view aWanted) { return tagOf(aRow) < aWanted; });
    for (; it != last && aTag == tagOf(*it); ++it) {
        if (m_links[*it].depth == aDepth) {
            return *it;
        }
    }
    last = m_byAlias + m_aliasCount;
    it = std::lower_bound(m_byAlias, last, aTag, [this](std::uint16_t aRow, std::string_view aWanted) {
        return std::string_view(m_rows[aRow].alias) < aWanted;
    });
    for (; it != last && aTag == m_rows[*it].alias; ++it) {
        if (m_links[*it].depth == aDepth) {
            return *it;
        }
    }
    return NO_ROW;
}

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
    return Match(aName, 0, aTurns);
}

// Cuts one turn after the other off the end until a field of that tag and depth is left. The turns are collected
// innermost first and put in order at the end.
std::uint16_t FieldTable::Match(std::string_view aName, std::size_t aDepth, Turns& aCut) const noexcept
{
    // Names cannot meet, so the order of the tries does not matter: the more likely reading of a name that ends in a
    // digit comes first.
    const bool digit = !aName.empty() && aName.back() >= '0' && aName.back() <= '9';
    const std::size_t most = m_naming == Naming::Underscore ? DIGITS_OF_A_TURN : MOST_DIGITS_OF_A_TURN;
    for (std::size_t digits = DIGITS_OF_A_TURN; digit && aDepth < m_deepest && digits <= most; ++digits) {
        std::string_view rest = aName;
        std::uint32_t& turn = aCut[aDepth];
        if (m_naming == Naming::Underscore ? CutUnderscore(rest, turn) : CutDigits(rest, digits, turn)) {
            const std::uint16_t row = Match(rest, aDepth + 1, aCut);
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
    if (row.width == 0 && row.sizeTag != nullptr) {
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

#include "fields/FieldTable.h"

#include <charconv>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t DIGITS_OF_A_TURN = 3;

/// The number in the last "_n" of a name, which is cut off; false when there is none.
bool CutTurn(std::string_view& aName, std::uint32_t& aTurn) noexcept
{
    const auto mark = aName.rfind('_');
    if (mark == std::string_view::npos || mark == 0 || mark + 1 == aName.size() || aName[mark + 1] == '0') {
        return false;
    }
    const char* const last = aName.data() + aName.size();
    const auto [end, error] = std::from_chars(aName.data() + mark + 1, last, aTurn);
    if (error != std::errc{} || end != last) {
        return false;
    }
    aName.remove_suffix(aName.size() - mark);
    return true;
}

bool CutThreeDigits(std::string_view& aName, std::uint32_t& aTurn) noexcept
{
    if (aName.size() <= DIGITS_OF_A_TURN) {
        return false;
    }
    const char* const last = aName.data() + aName.size();
    const auto [end, error] = std::from_chars(last - DIGITS_OF_A_TURN, last, aTurn);
    if (error != std::errc{} || end != last || aTurn == 0) {
        return false;
    }
    aName.remove_suffix(DIGITS_OF_A_TURN);
    return true;
}

/// A rule that allows exactly one text marks a fixed part of the layout.
bool IsFixedText(const char* aValues) noexcept
{
    const std::string_view rule(aValues);
    return !rule.empty() && rule.find_first_of("|{.<") == std::string_view::npos && rule != "any" &&
           !rule.starts_with("any=");
}

}  // namespace

std::uint16_t FieldTable::Find(std::string_view aTag, std::size_t aDepth) const noexcept
{
    const std::uint16_t* const last = m_byTag + m_fieldCount;
    const std::uint16_t* it = std::lower_bound(
        m_byTag, last, aTag,
        [this](std::uint16_t aRow, std::string_view aWanted) { return std::string_view(m_rows[aRow].tag) < aWanted; });
    for (; it != last && aTag == m_rows[*it].tag; ++it) {
        if (m_links[*it].depth == aDepth) {
            return *it;
        }
    }
    for (std::size_t i = 0; i != m_count; ++i) {
        if (m_rows[i].alias != nullptr && aTag == m_rows[i].alias && m_links[i].depth == aDepth) {
            return static_cast<std::uint16_t>(i);
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
    Turns cut{};  // innermost first
    for (std::size_t depth = 0; depth <= MAX_LOOP_DEPTH; ++depth) {
        const std::uint16_t row = Find(aName, depth);
        if (row != NO_ROW) {
            for (std::size_t i = 0; i != depth; ++i) {
                aTurns[i] = cut[depth - 1 - i];
            }
            return row;
        }
        if (depth == MAX_LOOP_DEPTH) {
            break;
        }
        const bool isCut =
            m_naming == Naming::Underscore ? CutTurn(aName, cut[depth]) : CutThreeDigits(aName, cut[depth]);
        if (!isCut) {
            break;
        }
    }
    return NO_ROW;
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
        aLargest = 1;
        for (std::uint32_t digit = 0; digit != aTable.Row(aTable.Link(index).ref).width; ++digit) {
            aLargest *= 10;
        }
        aLargest -= 1 + static_cast<std::size_t>(row.sizeAdjust < 0 ? -row.sizeAdjust : 0);
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "fields/FieldRow.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The deepest nesting of repeats that a table may have.
constexpr std::size_t MAX_LOOP_DEPTH = 3;
/// "No such row."
constexpr std::uint16_t NO_ROW = 0xFFFF;
/// Turn numbers of the loops around a field, counted from 1; 0 where there is no loop.
using Turns = std::array<std::uint32_t, MAX_LOOP_DEPTH>;

/// How the turn number of a loop joins the tag: LON_4_1, or LISH004 as the file header prints it.
enum class Naming : std::uint8_t
{
    Underscore,
    ThreeDigits
};

/// What follows from the rows and is worked out once, when the table is compiled.
struct RowLink
{
    std::uint16_t end = NO_ROW;  ///< the End of a group
    std::uint16_t ref = NO_ROW;  ///< the field that a mark or a Sized field looks at
    std::uint8_t depth = 0;      ///< number of repeats around the row
    bool structural = false;     ///< another row looks at this field
    std::uint32_t least = 0;     ///< of a group: the smallest number of bytes that one turn can take
    std::uint32_t fields = 0;    ///< of a group: the number of plain fields in one turn, conditions left out
};

/// A view of a table: rows, links and the order by tag. Copies are cheap; what it shows lives as long as the process.
class FieldTable
{
public:
    constexpr FieldTable() noexcept = default;
    constexpr FieldTable(const FieldRow* aRows, const RowLink* aLinks, const std::uint16_t* aByTag, std::size_t aCount,
                         std::size_t aFieldCount, Naming aNaming) noexcept
        : m_rows(aRows), m_links(aLinks), m_byTag(aByTag), m_count(aCount), m_fieldCount(aFieldCount), m_naming(aNaming)
    {
    }

    constexpr std::size_t Size() const noexcept { return m_count; }
    constexpr const FieldRow& Row(std::size_t aIndex) const noexcept { return m_rows[aIndex]; }
    constexpr const RowLink& Link(std::size_t aIndex) const noexcept { return m_links[aIndex]; }
    constexpr std::span<const FieldRow> Rows() const noexcept { return {m_rows, m_count}; }
    /// Number of rows that describe a field.
    constexpr std::size_t FieldCount() const noexcept { return m_fieldCount; }
    constexpr Naming NamingStyle() const noexcept { return m_naming; }

    /// The row of a base tag or of its alias at a loop depth, or NO_ROW.
    std::uint16_t Find(std::string_view aTag, std::size_t aDepth) const noexcept;
    /// The first row of a base tag or of its alias at any depth, or NO_ROW.
    std::uint16_t FindAny(std::string_view aTag) const noexcept;
    /// The row and turns that a field name such as "LON_4_1" or "LISH004" means; NO_ROW when there is none.
    std::uint16_t Resolve(std::string_view aName, Turns& aTurns) const noexcept;
    /// Appends the name of a field in the given turns.
    void AppendName(std::uint16_t aRow, const Turns& aTurns, std::string& aOut) const;
    /// Whether a user may change the field: it is no binary data, decides nothing and is no fixed mark.
    bool IsEditable(std::uint16_t aRow) const noexcept;

private:
    const FieldRow* m_rows = nullptr;
    const RowLink* m_links = nullptr;
    const std::uint16_t* m_byTag = nullptr;  // field rows only, by tag, then by depth
    std::size_t m_count = 0;
    std::size_t m_fieldCount = 0;
    Naming m_naming = Naming::Underscore;
};

/// Sum of the widths of all rows outside of repeats and conditions, and of fixed repeats.
template<std::size_t N>
constexpr std::uint64_t FixedWidth(const FieldRow (&aRows)[N])
{
    std::uint64_t sum = 0;
    std::uint64_t factor = 1;
    std::size_t conditional = 0;
    std::array<bool, N> isCondition{};
    std::array<std::uint64_t, N> factors{};
    std::size_t open = 0;
    for (const FieldRow& row : aRows) {
        if (row.IsGroup()) {
            const bool fixed = row.kind == RowKind::Repeat && row.number != 0;
            isCondition[open] = !fixed;
            factors[open] = factor;
            ++open;
            factor *= fixed ? row.number : 1;
            conditional += fixed ? 0U : 1U;
        } else if (row.kind == RowKind::End) {
            --open;
            conditional -= isCondition[open] ? 1U : 0U;
            factor = factors[open];
        } else if (conditional == 0) {
            sum += factor * row.width;
        }
    }
    return sum;
}

/// The smallest and largest width of a base tag's field; false for an unknown tag. A width given by another field goes
/// up to the largest number that the field can hold.
[[nodiscard]] bool WidthRange(const FieldTable& aTable, std::string_view aTag, std::size_t& aSmallest,
                              std::size_t& aLargest) noexcept;

/// A table with its links, computed from the rows at compile time.
template<std::size_t N>
struct FieldTableOf
{
    const FieldRow* rows = nullptr;
    std::array<RowLink, N> links{};
    std::array<std::uint16_t, N> byTag{};
    std::size_t fieldCount = 0;
    Naming naming = Naming::Underscore;
    bool wellFormed = true;

    constexpr FieldTable View() const noexcept
    {
        return FieldTable(rows, links.data(), byTag.data(), N, fieldCount, naming);
    }
};

namespace TableBuild {

template<std::size_t N>
constexpr void LinkGroups(const FieldRow (&aRows)[N], FieldTableOf<N>& aTable)
{
    std::array<std::size_t, N> open{};
    std::size_t depth = 0;
    std::uint8_t loops = 0;
    for (std::size_t i = 0; i != N; ++i) {
        if (aRows[i].kind == RowKind::End) {
            if (depth == 0) {
                aTable.wellFormed = false;
                return;
            }
            const std::size_t start = open[--depth];
            aTable.links[start].end = static_cast<std::uint16_t>(i);
            loops = static_cast<std::uint8_t>(loops - (aRows[start].kind == RowKind::Repeat ? 1 : 0));
        }
        aTable.links[i].depth = loops;
        if (aRows[i].IsGroup()) {
            open[depth++] = i;
            loops = static_cast<std::uint8_t>(loops + (aRows[i].kind == RowKind::Repeat ? 1 : 0));
            aTable.wellFormed = aTable.wellFormed && loops <= MAX_LOOP_DEPTH;
        }
    }
    aTable.wellFormed = aTable.wellFormed && depth == 0;
}

/// The nearest field of that tag before the row.
template<std::size_t N>
constexpr std::uint16_t FieldBefore(const FieldRow (&aRows)[N], std::size_t aRow, std::string_view aTag)
{
    for (std::size_t i = aRow; i-- != 0;) {
        if (aRows[i].IsField() && aTag == aRows[i].tag) {
            return static_cast<std::uint16_t>(i);
        }
    }
    return NO_ROW;
}

template<std::size_t N>
constexpr void LinkReferences(const FieldRow (&aRows)[N], FieldTableOf<N>& aTable)
{
    for (std::size_t i = 0; i != N; ++i) {
        const FieldRow& row = aRows[i];
        const std::string_view wanted = row.IsField()   ? (row.sizeTag == nullptr ? "" : row.sizeTag)
                                        : row.IsGroup() ? row.tag
                                                        : "";
        if (!wanted.empty()) {
            const std::uint16_t ref = FieldBefore(aRows, i, wanted);
            aTable.links[i].ref = ref;
            if (ref == NO_ROW) {
                aTable.wellFormed = false;
            } else {
                aTable.links[ref].structural = true;
            }
        }
        if (row.IsField()) {
            const bool sized = row.width != 0 || row.sizeTag != nullptr || row.count != nullptr || row.rest;
            aTable.wellFormed = aTable.wellFormed && sized && row.tag[0] != '\0';
        }
    }
}

/// Inner groups close before outer ones, so walking backwards finds every inner sum ready.
template<std::size_t N>
constexpr void MeasureGroups(const FieldRow (&aRows)[N], FieldTableOf<N>& aTable)
{
    for (std::size_t start = N; start-- != 0;) {
        if (!aRows[start].IsGroup()) {
            continue;
        }
        RowLink& link = aTable.links[start];
        for (std::size_t i = start + 1; i < link.end; ++i) {
            const FieldRow& row = aRows[i];
            if (row.IsField()) {
                link.least += row.width;
                ++link.fields;
            } else if (row.IsGroup()) {
                if (row.kind == RowKind::Repeat && row.number != 0) {
                    link.least += static_cast<std::uint32_t>(row.number) * aTable.links[i].least;
                    link.fields += static_cast<std::uint32_t>(row.number) * aTable.links[i].fields;
                }
                i = aTable.links[i].end;
            }
        }
    }
}

template<std::size_t N>
constexpr void OrderByTag(const FieldRow (&aRows)[N], FieldTableOf<N>& aTable)
{
    for (std::size_t i = 0; i != N; ++i) {
        if (aRows[i].IsField()) {
            aTable.byTag[aTable.fieldCount++] = static_cast<std::uint16_t>(i);
        }
    }
    const auto last = aTable.byTag.begin() + static_cast<std::ptrdiff_t>(aTable.fieldCount);
    std::sort(aTable.byTag.begin(), last, [&](std::uint16_t a, std::uint16_t b) {
        const int order = std::string_view(aRows[a].tag).compare(aRows[b].tag);
        return order != 0 ? order < 0 : aTable.links[a].depth < aTable.links[b].depth;
    });
    for (std::size_t i = 1; i < aTable.fieldCount; ++i) {
        const std::uint16_t a = aTable.byTag[i - 1];
        const std::uint16_t b = aTable.byTag[i];
        if (std::string_view(aRows[a].tag) == aRows[b].tag && aTable.links[a].depth == aTable.links[b].depth) {
            aTable.wellFormed = false;  // two fields would get the same name
        }
    }
}

}  // namespace TableBuild

/// Links the rows of a table. `wellFormed` of the result says whether every group is closed, every reference and width
/// resolves and no two fields share a name; tables static_assert it.
template<std::size_t N>
constexpr FieldTableOf<N> MakeTable(const FieldRow (&aRows)[N], Naming aNaming = Naming::Underscore)
{
    static_assert(N < NO_ROW);
    FieldTableOf<N> table;
    table.rows = aRows;
    table.naming = aNaming;
    TableBuild::LinkGroups(aRows, table);
    if (table.wellFormed) {
        TableBuild::LinkReferences(aRows, table);
        TableBuild::MeasureGroups(aRows, table);
        TableBuild::OrderByTag(aRows, table);
    }
    return table;
}

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "fields/FieldRow.h"
#include "fields/TagIndex.h"
#include "foundation/detail/Ascii.h"

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
/// The most turns that a table itself may state; counts in the data have no such bound.
constexpr std::uint64_t MOST_TIMES = 0xFFFF;
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
    std::uint32_t least = 0;     ///< of a group: bytes of the fixed fields in one turn, conditions left out
    std::uint32_t fields = 0;    ///< of a group: the number of plain fields in one turn, conditions left out
};

/// A view of a table: rows, links and the index of tags. Copies are cheap; what it shows lives as long as the process.
class FieldTable
{
public:
    constexpr FieldTable() noexcept = default;
    constexpr FieldTable(const FieldRow* aRows, const RowLink* aLinks, TagIndex aTags, std::size_t aCount,
                         std::size_t aFieldCount, std::size_t aUsualFields, std::size_t aDeepest,
                         Naming aNaming) noexcept
        : m_rows(aRows),
          m_links(aLinks),
          m_tags(aTags),
          m_count(aCount),
          m_fieldCount(aFieldCount),
          m_usualFields(aUsualFields),
          m_deepest(aDeepest),
          m_naming(aNaming)
    {
    }

    constexpr std::size_t Size() const noexcept { return m_count; }
    constexpr const FieldRow& Row(std::size_t aIndex) const noexcept { return m_rows[aIndex]; }
    constexpr const RowLink& Link(std::size_t aIndex) const noexcept { return m_links[aIndex]; }
    constexpr std::span<const FieldRow> Rows() const noexcept { return {m_rows, m_count}; }
    /// Number of rows that describe a field.
    constexpr std::size_t FieldCount() const noexcept { return m_fieldCount; }
    /// Number of fields in data that fill every condition and no repeat whose count they state themselves.
    constexpr std::size_t UsualFields() const noexcept { return m_usualFields; }
    /// Whether a field may be read more than once.
    constexpr bool HasRepeats() const noexcept { return m_deepest != 0; }
    constexpr Naming NamingStyle() const noexcept { return m_naming; }

    /// The row of a base tag or of its alias at a loop depth, or NO_ROW.
    std::uint16_t Find(std::string_view aTag, std::size_t aDepth) const noexcept { return m_tags.Find(aTag, aDepth); }
    /// The first row of a base tag or of its alias at any depth, or NO_ROW.
    std::uint16_t FindAny(std::string_view aTag) const noexcept;
    /// The row and turns that a field name such as "LON_4_1" or "LISH004" means; NO_ROW when there is none.
    std::uint16_t Resolve(std::string_view aName, Turns& aTurns) const noexcept;
    /// Appends the name of a field in the given turns.
    void AppendName(std::uint16_t aRow, const Turns& aTurns, std::string& aOut) const;
    /// Whether a user may change the field: it is no binary data, decides nothing and is no fixed mark.
    bool IsEditable(std::uint16_t aRow) const noexcept;

private:
    std::uint16_t MatchUnderscores(std::string_view aName, Turns& aTurns) const noexcept;
    std::uint16_t MatchDigits(std::string_view aName, std::size_t aDepth, Turns& aCut) const noexcept;

    const FieldRow* m_rows = nullptr;
    const RowLink* m_links = nullptr;
    TagIndex m_tags;
    std::size_t m_count = 0;
    std::size_t m_fieldCount = 0;
    std::size_t m_usualFields = 0;
    std::size_t m_deepest = 0;
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
    TagIndexOf<N> tags;
    std::size_t fieldCount = 0;
    std::size_t usualFields = 0;
    std::size_t deepest = 0;  ///< the largest number of repeats around a field
    Naming naming = Naming::Underscore;
    bool wellFormed = true;

    constexpr FieldTable View() const noexcept
    {
        return FieldTable(rows, links.data(), tags.View(), N, fieldCount, usualFields, deepest, naming);
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

/// Whether a repeat that holds the earlier row ends before the later one, so that the later one cannot tell in which
/// turn of it to look.
template<std::size_t N>
constexpr bool IsInClosedRepeat(const FieldRow (&aRows)[N], const FieldTableOf<N>& aTable, std::size_t aEarlier,
                                std::size_t aLater)
{
    for (std::size_t i = 0; i != aEarlier; ++i) {
        const std::size_t end = aTable.links[i].end;
        if (aRows[i].kind == RowKind::Repeat && aEarlier < end && end < aLater) {
            return true;
        }
    }
    return false;
}

/// Whether a field has a width, a repeat a count and a condition something to look at.
constexpr bool IsComplete(const FieldRow& aRow) noexcept
{
    const bool named = aRow.tag[0] != '\0';
    switch (aRow.kind) {
        case RowKind::Field:
            return named && (aRow.width != 0 || aRow.sizeTag != nullptr || aRow.count != nullptr || aRow.rest);
        case RowKind::Repeat:
            return aRow.number <= MOST_TIMES && (named || aRow.number != 0 || aRow.count != nullptr || aRow.rest);
        case RowKind::When:
            return named || aRow.condition != nullptr;
        case RowKind::End:
            break;
    }
    return true;
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
            if (ref == NO_ROW || IsInClosedRepeat(aRows, aTable, ref, i)) {
                aTable.wellFormed = false;
            } else {
                aTable.links[ref].structural = true;
            }
        }
        aTable.wellFormed = aTable.wellFormed && IsComplete(row);
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
        std::uint64_t least = 0;
        std::uint64_t fields = 0;
        for (std::size_t i = start + 1; i < link.end; ++i) {
            const FieldRow& row = aRows[i];
            if (row.IsField()) {
                least += row.width;
                ++fields;
            } else if (row.IsGroup()) {
                if (row.kind == RowKind::Repeat && row.number != 0) {
                    least += std::min(row.number, MOST_TIMES) * aTable.links[i].least;
                    fields += std::min(row.number, MOST_TIMES) * aTable.links[i].fields;
                }
                i = aTable.links[i].end;
            }
        }
        aTable.wellFormed = aTable.wellFormed && least <= UINT32_MAX && fields <= UINT32_MAX;
        link.least = static_cast<std::uint32_t>(least);
        link.fields = static_cast<std::uint32_t>(fields);
    }
    for (std::size_t i = 0; i != N; ++i) {
        const FieldRow& row = aRows[i];
        if (row.IsField()) {
            ++aTable.usualFields;
        } else if (row.kind == RowKind::Repeat) {
            aTable.usualFields += std::min(row.number, MOST_TIMES) * aTable.links[i].fields;
            i = aTable.links[i].end;
        }
    }
}

template<std::size_t N>
constexpr void IndexTags(const FieldRow (&aRows)[N], FieldTableOf<N>& aTable)
{
    for (std::size_t i = 0; i != N; ++i) {
        if (aRows[i].IsField()) {
            aTable.tags.Add(aRows[i].tag, i, aTable.links[i].depth);
            aTable.deepest = std::max<std::size_t>(aTable.deepest, aTable.links[i].depth);
            ++aTable.fieldCount;
        }
    }
    for (std::size_t i = 0; i != N; ++i) {  // behind all tags, which are found first
        if (aRows[i].IsField() && aRows[i].alias != nullptr) {
            aTable.tags.Add(aRows[i].alias, i, aTable.links[i].depth);
        }
    }
}

/// The tag without a "_n" at its end that looks like a turn; the whole tag when there is none.
constexpr std::string_view WithoutTurn(std::string_view aTag) noexcept
{
    std::size_t digits = aTag.size();
    while (digits != 0 && IsDigit(aTag[digits - 1])) {
        --digits;
    }
    const bool turn = digits > 1 && digits != aTag.size() && aTag[digits - 1] == '_' && aTag[digits] != '0';
    return turn ? aTag.substr(0, digits - 1) : aTag;
}

/// Whether some turns of the field of the shorter tag would print the longer tag, or the longer tag with turns.
constexpr bool NamesMeet(std::string_view aShort, std::size_t aShortDepth, std::string_view aLong,
                         std::size_t aLongDepth, Naming aNaming) noexcept
{
    if (aShort == aLong) {
        return aShortDepth == aLongDepth;
    }
    if (aNaming == Naming::Underscore) {
        for (std::size_t depth = aLongDepth; depth != aShortDepth; ++depth) {
            const std::string_view cut = WithoutTurn(aLong);
            if (cut.size() == aLong.size()) {
                return false;
            }
            aLong = cut;
        }
        return aShort == aLong;
    }
    // Turns above 999 print more digits, so among repeated fields any digit more is enough.
    const std::string_view surplus = aLong.substr(aShort.size());
    return std::all_of(surplus.begin(), surplus.end(), IsDigit) &&
           (aLongDepth != 0 || surplus.size() >= 3 * aShortDepth);
}

/// Two fields that could get the same name make a table unusable.
template<std::size_t N>
constexpr void CompareNames(FieldTableOf<N>& aTable)
{
    struct Name
    {
        std::string_view tag;
        std::size_t depth;
    };
    std::array<Name, N> names{};
    for (std::size_t i = 0; i != aTable.fieldCount; ++i) {
        const TagEntry& entry = aTable.tags.entries[i];
        names[i] = {entry.text, entry.key.depth};
    }
    const auto last = names.begin() + static_cast<std::ptrdiff_t>(aTable.fieldCount);
    std::sort(names.begin(), last, [](const Name& aLeft, const Name& aRight) {
        return aLeft.tag != aRight.tag ? aLeft.tag < aRight.tag : aLeft.depth < aRight.depth;
    });
    for (auto name = names.begin(); name != last; ++name) {
        // Behind a tag stand first those that begin with it.
        for (auto other = name + 1; other != last && other->tag.starts_with(name->tag); ++other) {
            const bool repeated =
                name->depth > other->depth || (name->depth != 0 && aTable.naming != Naming::Underscore);
            if ((name->tag == other->tag || repeated) &&
                NamesMeet(name->tag, name->depth, other->tag, other->depth, aTable.naming)) {
                aTable.wellFormed = false;
            }
        }
    }
}

}  // namespace TableBuild

/// Links the rows of a table. `wellFormed` of the result says whether every group is closed, every reference and width
/// resolves, no row looks into a repeat that has ended and no two fields can get the same name; tables static_assert
/// it.
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
        TableBuild::IndexTags(aRows, table);
        TableBuild::CompareNames(table);
    }
    return table;
}

}  // namespace ORMO::SensorModel::CSM::Detail

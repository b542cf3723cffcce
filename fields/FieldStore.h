#pragma once

#include "fields/FieldTable.h"
#include "foundation/CSMCnst.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// One field as it stands in a header or record: which row, which turns, and where its value lies in the arena.
struct FieldEntry
{
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    std::uint16_t row = NO_ROW;
    Turns turns{};
};

/// The values of one header or record: one arena of NUL-terminated copies and one index, whatever the number of
/// fields. Entries stand in the order of the data. Offsets are 32 bits wide, so no more than 4 GiB fit.
class FieldStore
{
public:
    using ByteOrder = Util::CSMCnst::ByteOrder;

    FieldStore() = default;
    /// The byte order is a property of the bytes: counts of the walk, value rules and queries all follow it.
    explicit FieldStore(const FieldTable& aTable, ByteOrder aOrder = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN)
        : m_table(aTable), m_order(aOrder)
    {
    }

    const FieldTable& Table() const noexcept { return m_table; }
    ByteOrder Order() const noexcept { return m_order; }
    bool IsEmpty() const noexcept { return m_entries.empty(); }
    /// Bytes of the fields that were read; Replace does not change it.
    std::size_t Size() const noexcept { return m_size; }
    std::span<const FieldEntry> Entries() const noexcept { return m_entries; }
    const FieldRow& Row(const FieldEntry& aEntry) const noexcept { return m_table.Row(aEntry.row); }

    /// The bytes exactly as read. A NUL follows the last one.
    std::string_view Value(const FieldEntry& aEntry) const noexcept
    {
        return {m_arena.data() + aEntry.offset, aEntry.length};
    }
    /// Where the field was read, counted from the first byte of the header or record; Replace does not change it.
    std::uint64_t Position(const FieldEntry& aEntry) const noexcept;

    /// The field of a name ("LON_4_1") or alias, or null.
    const FieldEntry* Find(std::string_view aName) const noexcept;
    const FieldEntry* Find(std::uint16_t aRow, const Turns& aTurns) const noexcept;
    /// The value of a name, or an empty view with a null pointer.
    std::string_view Find(std::string_view aName, bool& aFound) const noexcept;
    /// Whether the field of a row was read in any turn.
    bool Has(std::uint16_t aRow) const noexcept;

    std::string Name(const FieldEntry& aEntry) const;
    void AppendName(const FieldEntry& aEntry, std::string& aOut) const
    {
        m_table.AppendName(aEntry.row, aEntry.turns, aOut);
    }

    /// Gives a field another value of its own, behind the others; used where a standard lays two fields over the same
    /// bytes. Views of values that were taken before may no longer be used.
    void Replace(const FieldEntry& aEntry, std::string_view aValue);

    /// Whether both hold the same fields of the same table with the same values.
    bool operator==(const FieldStore& aOther) const noexcept;

private:
    friend class FieldWalk;
    friend class WalkContext;

    static constexpr std::uint32_t MOST_BYTES = UINT32_MAX;

    void Begin(std::size_t aBytes);
    void Reserve(std::size_t aMoreFields, std::size_t aBytesLeft);
    /// Whether a value of that many bytes still gets an offset of 32 bits.
    bool HasRoom(std::uint64_t aBytes) const noexcept { return m_used < MOST_BYTES && aBytes < MOST_BYTES - m_used; }
    /// Where a NUL-terminated copy of the value stands.
    std::uint32_t Append(std::string_view aValue);
    void Add(std::uint16_t aRow, const Turns& aTurns, std::string_view aValue)
    {
        m_entries.push_back({Append(aValue), static_cast<std::uint32_t>(aValue.size()), aRow, aTurns});
        if (m_table.HasRepeats()) {
            m_index[aRow] = static_cast<std::uint32_t>(m_entries.size());
        }
    }
    /// The entry of a row of a table without repeats; there the rows of the entries ascend.
    const FieldEntry* Single(std::uint16_t aRow) const noexcept;
    /// The places of all entries of a row of a table with repeats, in order of their turns.
    std::span<const std::uint32_t> EntriesOf(std::uint16_t aRow) const noexcept;
    /// The latest entry of a row while the walk goes on.
    const FieldEntry* Latest(std::uint16_t aRow) const noexcept;
    /// Ends what Latest says of the rows of a loop, which nothing after its last turn may look at.
    void Forget(std::size_t aFirst, std::size_t aLast) noexcept;
    void Finish();
    void Clear() noexcept;

    FieldTable m_table;
    ByteOrder m_order = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
    std::string m_arena;  // NUL behind the bytes used
    std::size_t m_used = 0;
    std::size_t m_size = 0;
    std::vector<FieldEntry> m_entries;
    // Empty without repeats. During the walk: the latest entry of each row, plus one. Afterwards: for each row the
    // start of its entries in the second half, which lists the entries row by row.
    std::vector<std::uint32_t> m_index;
    // Of the few entries with a value from Replace: the place among the entries and the position in the data.
    std::vector<std::pair<std::size_t, std::uint64_t>> m_replaced;
};

}  // namespace ORMO::SensorModel::CSM::Detail

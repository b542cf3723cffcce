#include "fields/FieldStore.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

// More than that is only written when values come: a fault may stand at the front of large data.
constexpr std::size_t BYTES_AT_ONCE = std::size_t{1} << 16U;

}  // namespace

void FieldStore::Begin(std::size_t aBytes)
{
    Clear();
    const std::size_t fields = std::min(m_table.UsualFields(), m_table.FieldCount() + aBytes);
    const std::size_t bytes = std::min<std::size_t>(aBytes, MOST_BYTES) + fields;
    m_arena.reserve(bytes);
    m_arena.resize(std::min(bytes, BYTES_AT_ONCE));
    m_entries.reserve(fields);
    if (m_table.HasRepeats()) {
        m_index.reserve(m_table.Size() + 1 + fields);
        m_index.assign(m_table.Size(), 0);
    }
}

void FieldStore::Reserve(std::size_t aMoreFields, std::size_t aBytesLeft)
{
    const std::size_t entries = m_entries.size() + aMoreFields;
    if (entries > m_entries.capacity()) {
        m_entries.reserve(std::max(entries, m_entries.capacity() + m_entries.capacity() / 2));
    }
    const std::size_t bytes = m_used + aBytesLeft + aMoreFields;
    if (bytes > m_arena.capacity()) {
        m_arena.reserve(bytes);
    }
}

std::uint32_t FieldStore::Append(std::string_view aValue)
{
    const std::size_t start = m_used;
    const std::size_t end = start + aValue.size() + 1;
    if (end > m_arena.size()) {
        m_arena.resize(std::max(end, std::min(m_arena.capacity(), 2 * m_arena.size())));
    }
    // What was not written yet is NUL, so the end of the value stands there already.
    std::copy(aValue.begin(), aValue.end(), m_arena.data() + start);
    m_used = end;
    return static_cast<std::uint32_t>(start);
}

const FieldEntry* FieldStore::Latest(std::uint16_t aRow) const noexcept
{
    if (!m_table.HasRepeats()) {
        return Single(aRow);
    }
    const std::uint32_t place = m_index[aRow];
    return place == 0 ? nullptr : &m_entries[place - 1];
}

const FieldEntry* FieldStore::Single(std::uint16_t aRow) const noexcept
{
    // Every row before is a field that was read, unless there are groups or faults.
    if (aRow < m_entries.size() && m_entries[aRow].row == aRow) {
        return &m_entries[aRow];
    }
    const auto it =
        std::lower_bound(m_entries.begin(), m_entries.end(), aRow,
                         [](const FieldEntry& aEntry, std::uint16_t aWanted) { return aEntry.row < aWanted; });
    return it == m_entries.end() || it->row != aRow ? nullptr : &*it;
}

void FieldStore::Forget(std::size_t aFirst, std::size_t aLast) noexcept
{
    if (!m_table.HasRepeats()) {
        return;
    }
    std::fill(m_index.begin() + static_cast<std::ptrdiff_t>(aFirst),
              m_index.begin() + static_cast<std::ptrdiff_t>(aLast), 0U);
}

void FieldStore::Finish()
{
    m_arena.resize(m_used);
    m_size = m_used - m_entries.size();  // one NUL stands behind every value
    if (!m_table.HasRepeats()) {
        return;
    }
    // Entries of one row were added in the order of their turns, so listing them row by row sorts them.
    const std::size_t rows = m_table.Size();
    m_index.assign(rows + 1 + m_entries.size(), 0);
    const std::span<std::uint32_t> starts(m_index.data(), rows + 1);
    for (const FieldEntry& entry : m_entries) {
        ++starts[entry.row + 1U];
    }
    for (std::size_t row = 1; row <= rows; ++row) {
        starts[row] += starts[row - 1];
    }
    std::uint32_t* const places = m_index.data() + rows + 1;
    std::uint32_t place = 0;
    for (const FieldEntry& entry : m_entries) {
        places[starts[entry.row]++] = place++;
    }
    std::copy_backward(starts.begin(), starts.end() - 1, starts.end());  // each start has moved on to the next one
    starts[0] = 0;
}

void FieldStore::Clear() noexcept
{
    m_arena.clear();
    m_used = 0;
    m_size = 0;
    m_entries.clear();
    m_index.clear();
    m_replaced.clear();
}

std::uint64_t FieldStore::Position(const FieldEntry& aEntry) const noexcept
{
    const auto place = static_cast<std::size_t>(&aEntry - m_entries.data());
    for (const auto& [replaced, position] : m_replaced) {
        if (replaced == place) {
            return position;
        }
    }
    return aEntry.offset - place;  // one NUL stands behind every value before this one
}

std::span<const std::uint32_t> FieldStore::EntriesOf(std::uint16_t aRow) const noexcept
{
    const std::size_t rows = m_table.Size();
    if (aRow >= rows || m_index.size() <= rows) {
        return {};
    }
    const std::size_t first = m_index[aRow];
    const std::size_t last = m_index[aRow + 1U];
    return {m_index.data() + rows + 1 + first, last - first};
}

bool FieldStore::Has(std::uint16_t aRow) const noexcept
{
    return m_table.HasRepeats() ? !EntriesOf(aRow).empty() : Single(aRow) != nullptr;
}

const FieldEntry* FieldStore::Find(std::uint16_t aRow, const Turns& aTurns) const noexcept
{
    if (!m_table.HasRepeats()) {
        const FieldEntry* const entry = Single(aRow);
        return entry == nullptr || entry->turns != aTurns ? nullptr : entry;
    }
    const auto entries = EntriesOf(aRow);
    // In most repeats every turn has the field, so the turn tells the place.
    const std::size_t guess = aTurns[0] == 0 ? 0 : aTurns[0] - 1;
    if (guess < entries.size()) {
        const FieldEntry& entry = m_entries[entries[guess]];
        if (entry.turns[0] == aTurns[0] && entry.turns[1] == aTurns[1] && entry.turns[2] == aTurns[2]) {
            return &entry;
        }
    }
    const auto it = std::lower_bound(
        entries.begin(), entries.end(), aTurns,
        [this](std::uint32_t aPlace, const Turns& aWanted) { return m_entries[aPlace].turns < aWanted; });
    if (it == entries.end() || m_entries[*it].turns != aTurns) {
        return nullptr;
    }
    return &m_entries[*it];
}

const FieldEntry* FieldStore::Find(std::string_view aName) const noexcept
{
    Turns turns{};
    const std::uint16_t row = m_table.Resolve(aName, turns);
    return row == NO_ROW ? nullptr : Find(row, turns);
}

std::string_view FieldStore::Find(std::string_view aName, bool& aFound) const noexcept
{
    const FieldEntry* const entry = Find(aName);
    aFound = entry != nullptr;
    return aFound ? Value(*entry) : std::string_view{};
}

std::string FieldStore::Name(const FieldEntry& aEntry) const
{
    std::string name;
    AppendName(aEntry, name);
    return name;
}

void FieldStore::Replace(const FieldEntry& aEntry, std::string_view aValue)
{
    const auto place = static_cast<std::size_t>(&aEntry - m_entries.data());
    const bool isFirst = std::none_of(m_replaced.begin(), m_replaced.end(),
                                      [place](const auto& aReplaced) { return aReplaced.first == place; });
    if (isFirst) {
        m_replaced.emplace_back(place, Position(aEntry));
    }
    FieldEntry& entry = m_entries[place];
    entry.offset = Append(std::string(aValue));  // a copy, for the value may be a part of another one
    entry.length = static_cast<std::uint32_t>(aValue.size());
}

bool FieldStore::operator==(const FieldStore& aOther) const noexcept
{
    return m_table.Rows().data() == aOther.m_table.Rows().data() &&
           std::equal(m_entries.begin(), m_entries.end(), aOther.m_entries.begin(), aOther.m_entries.end(),
                      [&](const FieldEntry& aLeft, const FieldEntry& aRight) {
                          return aLeft.row == aRight.row && aLeft.turns == aRight.turns &&
                                 Value(aLeft) == aOther.Value(aRight);
                      });
}

}  // namespace ORMO::SensorModel::CSM::Detail

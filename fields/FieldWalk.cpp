#include "fields/FieldWalk.h"

#include "fields/Number.h"
#include "fields/ValueRule.h"

#include <algorithm>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

// Turns that take no bytes are real only in small numbers; more of them would be work without data.
constexpr std::uint64_t MOST_EMPTY_TURNS = 9;

// From so many turns on it pays to remember what cannot change from one to the next.
constexpr std::uint64_t MANY_TURNS = 8;

// Sums and products of numbers from a file stop at the largest value in place of wrapping.
std::uint64_t Sum(std::uint64_t aLeft, std::uint64_t aRight) noexcept
{
    return aLeft > UINT64_MAX - aRight ? UINT64_MAX : aLeft + aRight;
}

std::uint64_t Product(std::uint64_t aLeft, std::uint64_t aRight) noexcept
{
    return aRight != 0 && aLeft > UINT64_MAX / aRight ? UINT64_MAX : aLeft * aRight;
}

/// The number with the adjustment of its row; what would fall below zero is zero.
std::uint64_t Adjusted(std::uint64_t aNumber, std::int64_t aAdjust) noexcept
{
    if (aAdjust >= 0) {
        return Sum(aNumber, static_cast<std::uint64_t>(aAdjust));
    }
    const auto less = static_cast<std::uint64_t>(-aAdjust);
    return aNumber < less ? 0 : aNumber - less;
}

bool CountOfEntry(const FieldStore& aStore, const FieldEntry& aEntry, std::uint64_t& aOut) noexcept
{
    const std::string_view value = aStore.Value(aEntry);
    return aStore.Row(aEntry).IsBinary() ? BinaryUnsigned(value, aStore.Order(), aOut) : ToCount(value, aOut);
}

}  // namespace

const FieldEntry* WalkContext::Current(std::uint16_t aRow) const noexcept
{
    const FieldEntry* const entry = aRow == NO_ROW ? nullptr : m_store.Latest(aRow);
    if (entry == nullptr) {
        return nullptr;
    }
    for (std::size_t level = 0; level != m_store.Table().Link(aRow).depth; ++level) {
        if (entry->turns[level] != m_turns[level]) {
            return nullptr;  // left over from an earlier turn
        }
    }
    return entry;
}

const FieldEntry* WalkContext::Current(std::string_view aTag) const noexcept
{
    for (std::size_t depth = MAX_LOOP_DEPTH + 1; depth-- != 0;) {
        const FieldEntry* const entry = Current(m_store.Table().Find(aTag, depth));
        if (entry != nullptr) {
            return entry;
        }
    }
    return nullptr;
}

std::string_view WalkContext::Text(std::string_view aTag) const noexcept
{
    const FieldEntry* const entry = Current(aTag);
    return entry == nullptr ? std::string_view{} : m_store.Value(*entry);
}

bool WalkContext::Count(std::string_view aTag, std::uint64_t& aOut) const noexcept
{
    const FieldEntry* const entry = Current(aTag);
    return entry != nullptr && CountOfEntry(m_store, *entry, aOut);
}

bool WalkContext::CountInTurn(std::string_view aTag, std::uint32_t aTurn, std::uint64_t& aOut) const noexcept
{
    const std::uint16_t row = m_store.Table().Find(aTag, 1);
    const auto entries = m_store.Entries();
    const auto it = std::find_if(entries.rbegin(), entries.rend(), [row, aTurn](const FieldEntry& aEntry) {
        return aEntry.row == row && aEntry.turns[0] == aTurn;
    });
    return it != entries.rend() && CountOfEntry(m_store, *it, aOut);
}

WalkResult FieldWalk::Read(std::string_view aBytes, FieldStore& aStore)
{
    aStore.Begin(aBytes.size());
    FieldWalk walk(aBytes, aStore);
    const bool good = walk.Run(0, aStore.Table().Size(), 0);
    walk.m_result.consumed = walk.m_context.BytesRead();
    if (good) {
        walk.m_result.fault = Fault::None;
    }
    aStore.Finish();
    return std::move(walk.m_result);
}

FieldWalk::FieldWalk(std::string_view aBytes, FieldStore& aStore)
    : m_store(aStore), m_table(aStore.Table()), m_cursor(aBytes), m_context(aStore, m_cursor, m_turns, aBytes.size())
{
}

bool FieldWalk::Run(std::size_t aFirst, std::size_t aLast, std::size_t aDepth)
{
    for (std::size_t i = aFirst; i < aLast; ++i) {
        switch (m_table.Row(i).kind) {
            case RowKind::Field:
                if (!ReadField(i)) {
                    return false;
                }
                break;
            case RowKind::Repeat:
                if (!RunRepeat(i, aDepth)) {
                    return false;
                }
                i = m_table.Link(i).end;
                break;
            case RowKind::When: {
                bool holds = false;
                if (!IsThere(i, holds)) {
                    return false;
                }
                if (!holds) {
                    i = m_table.Link(i).end;
                }
                break;
            }
            case RowKind::End:
                break;
        }
    }
    return true;
}

bool FieldWalk::ReadField(std::size_t aRow)
{
    std::uint64_t width = m_table.Row(aRow).width;
    if (width == 0) {
        if (!Width(aRow, width)) {
            return false;
        }
        if (width == 0 && m_table.Row(aRow).sizeAdjust < 0) {
            return true;
        }
    }
    std::string_view value;
    if (!m_store.HasRoom(width) || !m_cursor.Take(width, value)) {
        return Fail(Fault::Short, aRow, width);
    }
    m_store.Add(static_cast<std::uint16_t>(aRow), m_turns, value);
    return true;
}

bool FieldWalk::Width(std::size_t aRow, std::uint64_t& aOut)
{
    const FieldRow& row = m_table.Row(aRow);
    if (row.rest) {
        aOut = m_cursor.Remaining();
        return true;
    }
    if (row.count != nullptr) {
        return row.count(m_context, aOut) || (row.sizeTag == nullptr ? Fail(Fault::NotANumber, aRow, 0)
                                                                     : FailAtReference(Fault::UnknownCode, aRow, 0));
    }
    std::uint64_t size = 0;
    if (!CountOf(m_table.Link(aRow).ref, size)) {
        return FailAtReference(Fault::NotANumber, aRow, 0);
    }
    const std::int64_t least = -std::int64_t{row.sizeAdjust};
    if (least > 0 && size < static_cast<std::uint64_t>(least)) {
        return FailAtReference(Fault::LengthTooSmall, aRow, static_cast<std::uint64_t>(least));
    }
    aOut = Adjusted(size, row.sizeAdjust);
    return true;
}

bool FieldWalk::RepeatCount(std::size_t aRow, std::uint64_t& aOut)
{
    const FieldRow& row = m_table.Row(aRow);
    if (row.number != 0) {
        aOut = row.number;
        return true;
    }
    if (row.count != nullptr) {
        return row.count(m_context, aOut) || FailAtReference(Fault::NotANumber, aRow, 0);
    }
    if (!CountOf(m_table.Link(aRow).ref, aOut)) {
        return FailAtReference(Fault::NotANumber, aRow, 0);
    }
    aOut = Adjusted(aOut, row.sizeAdjust);
    return true;
}

bool FieldWalk::RunRepeat(std::size_t aRow, std::size_t aDepth)
{
    if (m_table.Row(aRow).rest) {
        return RunToEnd(aRow, aDepth);
    }
    std::uint64_t count = 0;
    if (!RepeatCount(aRow, count)) {
        return false;
    }
    // Refused before looping: the smallest possible body must fit `count` times into what is left. A count that the
    // table itself states is no claim of the data: there the first missing field tells more.
    const bool isClaimed = m_table.Row(aRow).number == 0 && !m_table.Row(aRow).isReadThrough;
    const std::uint64_t least = LeastNow(aRow, aRow);
    const std::uint64_t wanted = Product(least, count);
    if (isClaimed && wanted > m_cursor.Remaining()) {
        return FailAtReference(Fault::CountBeyondData, aRow, wanted);
    }
    const RowLink& link = m_table.Link(aRow);
    if (least != 0) {
        // Fields may be empty, so their number is no bound by itself; the bytes left are.
        const std::uint64_t fields = std::min<std::uint64_t>(Product(count, link.fields), m_cursor.Remaining());
        m_store.Reserve(static_cast<std::size_t>(fields), m_cursor.Remaining());
    }
    const std::size_t outer = m_loop;
    BeginTurns(aRow, count);
    std::uint64_t emptyTurns = 0;
    for (std::uint64_t turn = 1; turn <= count; ++turn) {
        const std::size_t left = m_cursor.Remaining();
        const std::size_t entries = m_store.m_entries.size();
        m_turns[aDepth] = static_cast<std::uint32_t>(turn);
        if (!Run(aRow + 1, link.end, aDepth + 1)) {
            return false;
        }
        if (left == m_cursor.Remaining()) {
            if (entries == m_store.m_entries.size()) {
                // Every further turn would find the same, unless a function looks at the fields of that same turn.
                if (turn >= entries || !HasFunction(aRow)) {
                    break;
                }
                continue;
            }
            // The second bound is for nested loops, whose few empty turns would multiply.
            if (isClaimed &&
                (++emptyTurns > MOST_EMPTY_TURNS || ++m_emptyTurns > MOST_EMPTY_TURNS + m_context.BytesRead())) {
                return FailAtReference(Fault::CountBeyondData, aRow, count);
            }
        }
    }
    EndTurns(aRow, aDepth, outer);
    return true;
}

bool FieldWalk::RunToEnd(std::size_t aRow, std::size_t aDepth)
{
    const RowLink& link = m_table.Link(aRow);
    const std::size_t outer = m_loop;
    BeginTurns(aRow, UINT64_MAX);
    std::uint32_t turn = 0;
    for (std::size_t left = 0; m_cursor.Remaining() != 0 && m_cursor.Remaining() != left;) {
        left = m_cursor.Remaining();
        m_turns[aDepth] = ++turn;
        if (!Run(aRow + 1, link.end, aDepth + 1)) {
            return false;
        }
    }
    EndTurns(aRow, aDepth, outer);
    return true;
}

bool FieldWalk::HasFunction(std::size_t aGroup) const noexcept
{
    const auto body = m_table.Rows().subspan(aGroup, m_table.Link(aGroup).end - aGroup).subspan(1);
    return std::any_of(body.begin(), body.end(),
                       [](const FieldRow& aRow) { return aRow.count != nullptr || aRow.condition != nullptr; });
}

bool FieldWalk::IsThere(std::size_t aRow, bool& aOut)
{
    if (m_table.Link(aRow).ref >= m_loop || m_table.Row(aRow).test == Test::Function) {
        return Holds(aRow, aOut);
    }
    if (m_known.empty()) {
        m_known.resize(m_table.Size());
    }
    Known& known = m_known[aRow];
    if (known == Known::No) {
        if (!Holds(aRow, aOut)) {
            return false;
        }
        known = aOut ? Known::Holds : Known::Fails;
    }
    aOut = known == Known::Holds;
    return true;
}

void FieldWalk::BeginTurns(std::size_t aRow, std::uint64_t aCount)
{
    if (aCount >= MANY_TURNS) {
        m_loop = aRow;
    }
}

void FieldWalk::EndTurns(std::size_t aRow, std::size_t aDepth, std::size_t aOuter)
{
    const std::size_t end = m_table.Link(aRow).end;
    if (m_loop == aRow && !m_known.empty()) {
        std::fill(m_known.begin() + static_cast<std::ptrdiff_t>(aRow),
                  m_known.begin() + static_cast<std::ptrdiff_t>(end), Known::No);
    }
    m_loop = aOuter;
    m_turns[aDepth] = 0;
    m_store.Forget(aRow, end);
}

bool FieldWalk::Holds(std::size_t aRow, bool& aOut)
{
    const FieldRow& row = m_table.Row(aRow);
    if (row.test == Test::Function) {
        aOut = row.condition(m_context);
        return true;
    }
    const FieldEntry* const entry = m_context.Current(m_table.Link(aRow).ref);
    const std::string_view value = entry == nullptr ? std::string_view{} : m_store.Value(*entry);
    switch (row.test) {
        case Test::IsOneOf:
            aOut = entry != nullptr && IsListed(value, row.values);
            return true;
        case Test::IsNoneOf:
            aOut = entry != nullptr && !IsListed(value, row.values);
            return true;
        case Test::Filled:
            aOut = value.find_first_not_of(' ') != std::string_view::npos;
            return true;
        default:
            break;
    }
    if (entry == nullptr) {
        aOut = false;
        return true;
    }
    std::uint64_t number = 0;
    if (!CountOf(m_table.Link(aRow).ref, number)) {
        return FailAtReference(Fault::NotANumber, aRow, 0);
    }
    aOut = row.test == Test::Positive  ? number != 0
           : row.test == Test::AtLeast ? number >= row.number
                                       : (number & row.number) != 0;
    return true;
}

bool FieldWalk::CountOf(std::uint16_t aRow, std::uint64_t& aOut) const noexcept
{
    const FieldEntry* const entry = m_context.Current(aRow);
    return entry != nullptr && CountOfEntry(m_store, *entry, aOut);
}

std::uint64_t FieldWalk::LeastNow(std::size_t aGroup, std::size_t aOuter)
{
    const std::size_t end = m_table.Link(aGroup).end;
    std::uint64_t least = 0;
    for (std::size_t i = aGroup + 1; i < end; ++i) {
        const FieldRow& row = m_table.Row(i);
        const RowLink& link = m_table.Link(i);
        const bool known = link.ref != NO_ROW && link.ref < aOuter;  // read before the loop: the same in every turn
        std::uint64_t size = 0;
        if (row.IsField()) {
            const bool sized = row.width == 0 && row.sizeTag != nullptr && row.sizeAdjust == 0 && known;
            least = Sum(least, sized && CountOf(link.ref, size) ? size : row.width);
            continue;
        }
        if (row.kind == RowKind::Repeat) {
            const bool counted = row.number != 0 || (row.count == nullptr && row.sizeAdjust == 0 && known);
            if (counted && (row.number != 0 || CountOf(link.ref, size))) {
                const std::uint64_t count = row.number != 0 ? row.number : size;
                const std::uint64_t inner = LeastNow(i, aOuter);
                least = Sum(least, Product(count, inner));
            }
        } else if (row.kind == RowKind::When && known && row.test != Test::Function) {
            bool holds = false;
            WalkResult kept = m_result;
            if (Holds(i, holds) && holds) {
                least = Sum(least, LeastNow(i, aOuter));
            }
            m_result = kept;  // a fault here is found again, and reported, when the row is reached
        }
        i = link.end;
    }
    return least;
}

bool FieldWalk::Fail(Fault aFault, std::size_t aRow, std::uint64_t aWanted)
{
    m_result.fault = aFault;
    m_result.row = static_cast<std::uint16_t>(aRow);
    m_result.turns = m_turns;
    m_result.offset = m_context.BytesRead();
    m_result.wanted = aWanted;
    m_result.available = m_cursor.Remaining();
    return false;
}

bool FieldWalk::FailAtReference(Fault aFault, std::size_t aRow, std::uint64_t aWanted)
{
    Fail(aFault, aRow, aWanted);
    const std::uint16_t ref = m_table.Link(aRow).ref;
    const FieldEntry* const entry = m_context.Current(ref);
    if (entry != nullptr) {
        m_result.row = ref;
        m_result.turns = entry->turns;
        m_result.offset = m_store.Position(*entry);
        m_result.value = std::string(m_store.Value(*entry));
        return false;
    }
    // No field holds the number, so the first field that it would have brought stands for it.
    std::size_t first = aRow;
    while (first < m_table.Link(aRow).end && !m_table.Row(first).IsField()) {
        ++first;
    }
    if (m_table.Row(first).IsField()) {
        m_result.row = static_cast<std::uint16_t>(first);
        for (std::size_t level = 0; level != m_table.Link(first).depth; ++level) {
            m_result.turns[level] = std::max(m_result.turns[level], 1U);
        }
    }
    return false;
}

}  // namespace ORMO::SensorModel::CSM::Detail

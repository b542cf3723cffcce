#pragma once

#include "fields/ByteCursor.h"
#include "fields/FieldStore.h"
#include "fields/FieldTable.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// Why a walk stopped.
enum class Fault : std::uint8_t
{
    None,
    Short,            ///< a field ends beyond the data
    NotANumber,       ///< a count, length or bound is not a number
    CountBeyondData,  ///< a count promises more than the bytes left can hold
    LengthTooSmall,   ///< a length does not cover the fields that it counts
    UnknownCode       ///< a code that decides a width has no meaning here
};

/// How a walk ended: whether all rows were read, and else the field, its bytes and its place.
struct WalkResult
{
    Fault fault = Fault::None;
    std::uint16_t row = NO_ROW;  ///< the field at fault: the missing one, or the one that holds the wrong number
    Turns turns{};
    std::uint64_t offset = 0;     ///< of the field at fault, from the first byte of the data
    std::uint64_t wanted = 0;     ///< bytes wanted; 0 when the number that says so cannot be read
    std::uint64_t available = 0;  ///< bytes left where the walk stopped
    std::uint64_t consumed = 0;   ///< bytes read before the fault, or in all
    std::string value;            ///< bytes of the field at fault, when it was read

    bool IsGood() const noexcept { return fault == Fault::None; }
};

/// What functions of a table may ask while its rows are read: the fields before the present one.
class WalkContext
{
public:
    WalkContext(const FieldStore& aStore, const ByteCursor& aCursor, const Turns& aTurns, std::uint64_t aTotal) noexcept
        : m_store(aStore), m_cursor(aCursor), m_turns(aTurns), m_total(aTotal)
    {
    }

    /// The value of the field in the turns walked now; empty when it was not read.
    std::string_view Text(std::string_view aTag) const noexcept;
    /// The value as a count (text, or binary in the byte order of the data); false when it is none.
    [[nodiscard]] bool Count(std::string_view aTag, std::uint64_t& aOut) const noexcept;
    /// The count in a field of an outermost repeat as read in one of its turns, for rows behind the end of that repeat.
    /// Looks through what was read so far.
    [[nodiscard]] bool CountInTurn(std::string_view aTag, std::uint32_t aTurn, std::uint64_t& aOut) const noexcept;
    /// The turn of the outermost repeat that is walked now, counted from 1; 0 outside.
    std::uint32_t Turn() const noexcept { return m_turns[0]; }
    /// The next bytes of the data.
    std::string_view Ahead(std::size_t aCount) const noexcept { return m_cursor.Ahead(aCount); }
    std::uint64_t BytesLeft() const noexcept { return m_cursor.Remaining(); }
    std::uint64_t BytesRead() const noexcept { return m_total - m_cursor.Remaining(); }
    /// Length of the whole data.
    std::uint64_t Total() const noexcept { return m_total; }

private:
    friend class FieldWalk;

    /// The field of a row as read in the turns walked now; null when it was left out.
    const FieldEntry* Current(std::uint16_t aRow) const noexcept;
    const FieldEntry* Current(std::string_view aTag) const noexcept;

    const FieldStore& m_store;
    const ByteCursor& m_cursor;
    const Turns& m_turns;
    std::uint64_t m_total;
};

/// Reads bytes by the rows of a table into a store: the one walker of every header, TRE and DES type. Work and memory
/// are bounded by the bytes present, never by the numbers written in them.
class FieldWalk
{
public:
    /// Fills `aStore`, whose table says what to read. On a fault the fields before it stay in the store.
    [[nodiscard]] static WalkResult Read(std::string_view aBytes, FieldStore& aStore);

private:
    enum class Known : std::uint8_t
    {
        No,
        Holds,
        Fails
    };

    FieldWalk(std::string_view aBytes, FieldStore& aStore);

    [[nodiscard]] bool Run(std::size_t aFirst, std::size_t aLast, std::size_t aDepth);
    [[nodiscard]] bool ReadField(std::size_t aRow);
    [[nodiscard]] bool RunRepeat(std::size_t aRow, std::size_t aDepth);
    [[nodiscard]] bool RunToEnd(std::size_t aRow, std::size_t aDepth);
    [[nodiscard]] bool Width(std::size_t aRow, std::uint64_t& aOut);
    [[nodiscard]] bool RepeatCount(std::size_t aRow, std::uint64_t& aOut);
    /// Whether what hangs on a condition is there, from what this loop has found already when its turns cannot differ.
    [[nodiscard]] bool IsThere(std::size_t aRow, bool& aOut);
    [[nodiscard]] bool Holds(std::size_t aRow, bool& aOut);
    void BeginTurns(std::size_t aRow, std::uint64_t aCount);
    void EndTurns(std::size_t aRow, std::size_t aDepth, std::size_t aOuter);
    [[nodiscard]] bool CountOf(std::uint16_t aRow, std::uint64_t& aOut) const noexcept;
    bool HasFunction(std::size_t aGroup) const noexcept;
    std::uint64_t LeastNow(std::size_t aGroup, std::size_t aOuter);
    bool Fail(Fault aFault, std::size_t aRow, std::uint64_t aWanted);
    bool FailAtReference(Fault aFault, std::size_t aRow, std::uint64_t aWanted);

    FieldStore& m_store;
    const FieldTable& m_table;
    ByteCursor m_cursor;
    WalkContext m_context;
    Turns m_turns{};
    std::uint64_t m_emptyTurns = 0;  // of all loops
    // The row of the innermost loop with many turns, 0 outside of them, and by row what its conditions are known to be:
    // those that look at fields before the loop.
    std::size_t m_loop = 0;
    std::vector<Known> m_known;
    WalkResult m_result;
};

}  // namespace ORMO::SensorModel::CSM::Detail

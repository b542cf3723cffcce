#pragma once

#include <cstddef>

namespace ORMO::SensorModel::CSM::Tests {

/// Rules the allocation of the whole program: while one lives, the allocation of that number, counted from 0, fails.
class ShortMemory
{
public:
    explicit ShortMemory(std::size_t aFails) noexcept;
    ~ShortMemory();
    ShortMemory(const ShortMemory&) = delete;
    ShortMemory& operator=(const ShortMemory&) = delete;

    /// Whether it came to the allocation that fails.
    static bool HasFailed() noexcept;
};

/// Blocks of memory that are allocated now.
std::size_t LiveBlocks() noexcept;

/// How much more memory the program has held at once since one of these was made.
class PeakMemory
{
public:
    PeakMemory() noexcept;
    std::size_t Bytes() const noexcept;
    /// The largest block that was asked for meanwhile.
    std::size_t Largest() const noexcept;

private:
    std::size_t m_start;
};

/// Calls `aAct` with memory that fails at the first allocation, then at the second, until it comes to its end without a
/// failure. Before each, `aBefore` makes what it starts from; after each, `aAfter` is called with whether memory
/// failed. Answers how often it did, or 0 when memory was lost.
template<typename Before, typename Act, typename After>
std::size_t FailEach(Before aBefore, Act aAct, After aAfter)
{
    for (std::size_t n = 0;; ++n) {
        bool failed = false;
        const std::size_t before = LiveBlocks();
        {
            auto state = aBefore();
            {
                const ShortMemory shortage(n);
                aAct(state);
                failed = ShortMemory::HasFailed();
            }
            aAfter(state, failed);
        }
        if (LiveBlocks() != before) {
            return 0;
        }
        if (!failed) {
            return n;
        }
    }
}

}  // namespace ORMO::SensorModel::CSM::Tests

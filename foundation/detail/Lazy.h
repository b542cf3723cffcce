#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

/// A part of an object that is made when it is first asked for. Const objects may be asked from several threads at
/// once: whoever is second to finish throws his part away, so that nobody ever waits. Copies of the object start
/// without it.
template<typename Part>
class Lazy
{
public:
    Lazy() noexcept = default;
    Lazy(const Lazy&) noexcept {}
    Lazy& operator=(const Lazy&) noexcept
    {
        Reset();
        return *this;
    }
    ~Lazy() { Reset(); }

    /// The part; `aMake` returns one when there is none yet, and must not depend on who asks.
    template<typename Make>
    const Part& Get(Make aMake) const
    {
        return *TryGet([&aMake] { return std::make_unique<const Part>(aMake()); });
    }

    /// The same for a part that may fail to be made: null, with nothing kept, when `aMake` returns a null pointer.
    template<typename Make>
    const Part* TryGet(Make aMake) const
    {
        if (const Part* const made = m_part.load(std::memory_order_acquire)) {
            return made;
        }
        std::unique_ptr<const Part> mine = aMake();
        const Part* first = nullptr;
        if (mine != nullptr && m_part.compare_exchange_strong(first, mine.get(), std::memory_order_acq_rel)) {
            return mine.release();
        }
        return first;
    }

    /// The part when there is one already, or null.
    const Part* Made() const noexcept { return m_part.load(std::memory_order_acquire); }

    /// Forgets the part; nobody else may use the object meanwhile.
    void Reset() noexcept { delete m_part.exchange(nullptr, std::memory_order_acq_rel); }

private:
    mutable std::atomic<const Part*> m_part{nullptr};
};

}  // namespace ORMO::SensorModel::CSM::Detail

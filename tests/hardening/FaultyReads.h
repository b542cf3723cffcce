#pragma once

#include <cstddef>
#include <functional>

namespace ORMO::SensorModel::CSM::Tests {

/// While one lives, every read by offset of this program goes through it. What the reads do to the library is a matter
/// of the test: they may be short, interrupted, or fail.
class FaultyReads
{
public:
    /// What one read does, by its number from 0.
    enum class Act
    {
        Read,         ///< as ever
        ReadOneByte,  ///< fewer bytes than asked for
        Interrupt,    ///< fails with EINTR
        Fail          ///< fails with EIO
    };
    using Choice = std::function<Act(std::size_t aNumber)>;

    explicit FaultyReads(Choice aChoice);
    ~FaultyReads();
    FaultyReads(const FaultyReads&) = delete;
    FaultyReads& operator=(const FaultyReads&) = delete;

    std::size_t Count() const noexcept;
    /// Bytes that were read in all.
    std::size_t Bytes() const noexcept;
};

}  // namespace ORMO::SensorModel::CSM::Tests

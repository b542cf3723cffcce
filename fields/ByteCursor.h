#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// A view of bytes not yet read. Either takes all it was asked for or takes nothing.
class ByteCursor
{
public:
    explicit ByteCursor(std::string_view aBytes, std::uint64_t aOffset = 0) noexcept : m_left(aBytes), m_offset(aOffset)
    {
    }

    std::size_t Remaining() const noexcept { return m_left.size(); }

    /// Position of the next byte, counted from the offset given at construction.
    std::uint64_t Offset() const noexcept { return m_offset; }

    /// The next bytes without taking them; fewer than asked for at the end.
    std::string_view Ahead(std::size_t aCount) const noexcept { return m_left.substr(0, aCount); }

    /// False, with nothing consumed, when fewer than `aCount` bytes are left.
    [[nodiscard]] bool Take(std::uint64_t aCount, std::string_view& aOut) noexcept
    {
        if (aCount > m_left.size()) {  // lengths are compared, never pointers: no sum can wrap
            return false;
        }
        aOut = m_left.substr(0, static_cast<std::size_t>(aCount));
        m_left.remove_prefix(aOut.size());
        m_offset += aOut.size();
        return true;
    }

private:
    std::string_view m_left;
    std::uint64_t m_offset;
};

}  // namespace ORMO::SensorModel::CSM::Detail

#pragma once

#include "fields/ByteCursor.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// A view of the big-endian 16-bit words of a metafile. As the cursor below it, it takes all it was asked for or
/// nothing.
class WordCursor
{
public:
    explicit WordCursor(std::string_view aBytes, std::uint64_t aOffset = 0) noexcept : m_bytes(aBytes, aOffset) {}

    std::size_t Remaining() const noexcept { return m_bytes.Remaining(); }
    std::uint64_t Offset() const noexcept { return m_bytes.Offset(); }
    [[nodiscard]] bool Take(std::uint64_t aCount, std::string_view& aOut) noexcept
    {
        return m_bytes.Take(aCount, aOut);
    }

    [[nodiscard]] bool TakeByte(int& aOut) noexcept
    {
        std::string_view byte;
        if (!m_bytes.Take(1, byte)) {
            return false;
        }
        aOut = static_cast<unsigned char>(byte[0]);
        return true;
    }

    [[nodiscard]] bool TakeWord(std::uint16_t& aOut) noexcept
    {
        std::string_view bytes;
        if (!m_bytes.Take(2, bytes)) {
            return false;
        }
        aOut = static_cast<std::uint16_t>(static_cast<unsigned char>(bytes[0]) << 8U |
                                          static_cast<unsigned char>(bytes[1]));
        return true;
    }

    /// A word as a number in two's complement.
    [[nodiscard]] bool TakeInteger(int& aOut) noexcept
    {
        std::uint16_t word = 0;
        if (!TakeWord(word)) {
            return false;
        }
        aOut = static_cast<std::int16_t>(word);
        return true;
    }

    /// Leaves out what pads `aLength` bytes that were taken to whole words; the end may come before it.
    void SkipPad(std::uint64_t aLength) noexcept
    {
        std::string_view pad;
        if (aLength % 2 != 0) {
            static_cast<void>(m_bytes.Take(1, pad));
        }
    }

private:
    ByteCursor m_bytes;
};

}  // namespace ORMO::SensorModel::CSM::Detail

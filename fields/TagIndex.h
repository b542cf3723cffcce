#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// "No such row."
constexpr std::uint16_t NO_ROW = 0xFFFF;

/// A tag at a loop depth, in the form in which it is looked up: texts of up to sixteen characters are compared as two
/// numbers.
struct TagKey
{
    std::uint64_t start = 0;  ///< the first eight characters
    std::uint64_t next = 0;   ///< the eight behind them
    std::size_t length = 0;
    std::size_t depth = 0;

    constexpr TagKey() noexcept = default;
    constexpr TagKey(std::string_view aTag, std::size_t aDepth) noexcept
        : start(AsNumber(aTag)),
          next(aTag.size() <= WIDTH ? 0 : AsNumber(aTag.substr(WIDTH))),
          length(aTag.size()),
          depth(aDepth)
    {
    }

    constexpr bool operator==(const TagKey&) const noexcept = default;
    constexpr bool HoldsAll() const noexcept { return length <= 2 * WIDTH; }
    constexpr std::uint64_t Hash() const noexcept
    {
        constexpr std::uint64_t SPREAD = 0x9E3779B97F4A7C15;  // 2^64 / golden ratio
        return ((start ^ std::rotl(next * SPREAD, 32)) + depth) * SPREAD;
    }

private:
    static constexpr std::size_t WIDTH = sizeof(std::uint64_t);

    static constexpr std::uint64_t AsNumber(std::string_view aText) noexcept
    {
        const auto part = [aText](std::size_t aFirst, std::size_t aCount) {
            std::uint64_t number = 0;
            for (std::size_t i = 0; i != aCount; ++i) {
                number = number << 8U | static_cast<unsigned char>(aText[aFirst + i]);
            }
            return number;
        };
        constexpr std::size_t HALF = WIDTH / 2;
        const std::size_t count = aText.size();
        if (count >= WIDTH) {
            return part(0, WIDTH);
        }
        // Two halves, which may overlap, so that no loop runs as often as the text is long.
        return count >= HALF ? part(0, HALF) << (8 * HALF) | part(count - HALF, HALF) : part(0, count);
    }
};

/// A tag or alias and the row that it names.
struct TagEntry
{
    TagKey key;
    const char* text = nullptr;
    std::uint16_t row = NO_ROW;
};

/// A view of the index of a table's tags and aliases.
class TagIndex
{
public:
    constexpr TagIndex() noexcept = default;
    constexpr TagIndex(const TagEntry* aEntries, const std::uint16_t* aSlots, int aShift) noexcept
        : m_entries(aEntries), m_slots(aSlots), m_shift(aShift)
    {
    }

    /// The row of a tag or alias at a loop depth, or NO_ROW. Tags come before aliases.
    std::uint16_t Find(std::string_view aTag, std::size_t aDepth) const noexcept
    {
        if (m_slots == nullptr) {
            return NO_ROW;
        }
        const TagKey wanted(aTag, aDepth);
        const std::uint16_t* const slots = m_slots;
        const std::size_t last = (std::size_t{1} << (64 - m_shift)) - 1;
        for (std::size_t slot = wanted.Hash() >> m_shift; slots[slot] != NO_ROW; slot = slot == last ? 0 : slot + 1) {
            const TagEntry& entry = m_entries[slots[slot]];
            if (entry.key == wanted && (wanted.HoldsAll() || aTag == entry.text)) {
                return entry.row;
            }
        }
        return NO_ROW;
    }

private:
    const TagEntry* m_entries = nullptr;
    const std::uint16_t* m_slots = nullptr;  // places among the entries, NO_ROW where free
    int m_shift = 63;
};

/// The index of a table of N rows, each with a tag and an alias at most: a hash table that is built when the table is
/// compiled. More than half of the slots are free, so a search ends soon.
template<std::size_t N>
struct TagIndexOf
{
    static constexpr std::size_t SLOTS = std::bit_ceil(2 * N + 1);
    static constexpr int SHIFT = 64 - std::bit_width(SLOTS - 1);

    std::array<TagEntry, 2 * N> entries{};
    std::array<std::uint16_t, SLOTS> slots{};
    std::size_t count = 0;

    constexpr TagIndexOf() noexcept { slots.fill(NO_ROW); }

    constexpr void Add(const char* aText, std::size_t aRow, std::size_t aDepth) noexcept
    {
        entries[count] = {TagKey(aText, aDepth), aText, static_cast<std::uint16_t>(aRow)};
        std::size_t slot = entries[count].key.Hash() >> SHIFT;
        while (slots[slot] != NO_ROW) {
            slot = (slot + 1) % SLOTS;
        }
        slots[slot] = static_cast<std::uint16_t>(count++);
    }

    constexpr TagIndex View() const noexcept { return TagIndex(entries.data(), slots.data(), SHIFT); }
};

}  // namespace ORMO::SensorModel::CSM::Detail

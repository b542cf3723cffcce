#include "tests/support/IndependentWalk.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

/// A run of digits at an offset; nothing when it is cut or holds anything else.
std::optional<std::uint64_t> Digits(std::string_view aFile, std::size_t aOffset, std::size_t aWidth)
{
    if (aOffset + aWidth > aFile.size()) {
        return {};
    }
    std::uint64_t number = 0;
    for (const char digit : aFile.substr(aOffset, aWidth)) {
        if (digit < '0' || digit > '9') {
            return {};
        }
        number = number * 10 + static_cast<std::uint64_t>(digit - '0');
    }
    return number;
}

struct Table
{
    const char* kind20;
    const char* kind21;  ///< empty: counted, but without lengths
    std::size_t headerWidth;
    std::size_t dataWidth;
};

constexpr std::array<Table, 6> TABLES{{{"ImageSegment", "ImageSegment", 6, 10},
                                       {"SymbolSegment", "GraphicSegment", 4, 6},
                                       {"LabelSegment", "", 4, 3},
                                       {"TextSegment", "TextSegment", 4, 5},
                                       {"DataExtensionSegment", "DataExtensionSegment", 4, 9},
                                       {"ReservedExtensionSegment", "ReservedExtensionSegment", 4, 7}}};

}  // namespace

std::optional<std::vector<WalkedSegment>> WalkSegments(const std::string& aFile)
{
    const std::string_view file(aFile);
    const bool is20 = file.starts_with("NITF02.00");
    // Both versions agree up to FSDWNG at 280, whose value 999998 puts 40 bytes of FSDEVT before all that follows.
    const std::size_t event = is20 && file.size() > 286 && file.substr(280, 6) == "999998" ? 40 : 0;
    const std::optional<std::uint64_t> headerLength = Digits(file, 354 + event, 6);
    if (!headerLength) {
        return {};
    }
    std::vector<WalkedSegment> segments;
    std::size_t place = 360 + event;
    std::uint64_t offset = *headerLength;
    for (const Table& table : TABLES) {
        const std::optional<std::uint64_t> count = Digits(file, place, 3);
        place += 3;
        const char* const kind = is20 ? table.kind20 : table.kind21;
        if (!count) {
            return {};
        }
        for (std::uint64_t i = 0; *kind != '\0' && i != *count; ++i) {
            const auto header = Digits(file, place, table.headerWidth);
            const auto data = Digits(file, place + table.headerWidth, table.dataWidth);
            if (!header || !data) {
                return {};
            }
            segments.push_back({kind, offset, *header, offset + *header, *data});
            place += table.headerWidth + table.dataWidth;
            offset += *header + *data;
        }
    }
    return segments;
}

}  // namespace ORMO::SensorModel::CSM::Tests

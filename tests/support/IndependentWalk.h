#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// Where one segment stands in its file, in bytes.
struct WalkedSegment
{
    std::string kind;  ///< "ImageSegment" and so on
    std::uint64_t headerOffset;
    std::uint64_t headerSize;
    std::uint64_t dataOffset;
    std::uint64_t dataSize;

    bool operator==(const WalkedSegment&) const = default;
};

/// The segments of a NITF or NSIF file by the length fields of its header, read by offset and by nothing of the
/// library's. Nothing when a length field is missing or no number.
std::optional<std::vector<WalkedSegment>> WalkSegments(const std::string& aFile);

}  // namespace ORMO::SensorModel::CSM::Tests

#pragma once

#include <cstdint>

namespace ORMO::SensorModel::CSM::Detail {

/// One segment kind of a NITF version: the file header's fields for it and the limits, both ends included, that the
/// lengths in them must keep.
struct KindLimits
{
    const char* type;
    const char* count;
    const char* header;
    const char* data;
    std::uint64_t leastHeader;
    std::uint64_t mostHeader;
    std::uint64_t leastData;
    std::uint64_t mostData;
};

}  // namespace ORMO::SensorModel::CSM::Detail

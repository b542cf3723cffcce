#pragma once

#include <cstring>

namespace ORMO::SensorModel::CSM {

/// Orders NUL-terminated texts by their bytes, never by their addresses. A null pointer comes first.
struct CharStrCompare
{
    bool operator()(const char* aLeft, const char* aRight) const noexcept
    {
        if (aLeft == nullptr || aRight == nullptr) {
            return aLeft == nullptr && aRight != nullptr;
        }
        return std::strcmp(aLeft, aRight) < 0;
    }
};

}  // namespace ORMO::SensorModel::CSM

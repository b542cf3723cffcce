#pragma once

#include "foundation/Finding.h"

#include <new>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// Operations hand out texts as pointers, and an absent text as null rather than as an empty one.
inline const char* TextOrNull(const std::string& aText) noexcept
{
    return aText.empty() ? nullptr : aText.c_str();
}

/// The texts of a factory's last call. A factory keeps one object per thread, so that callers in different threads
/// never read, or free, each other's texts.
struct LastMessages
{
    std::string error;
    std::string warning;
    std::vector<Finding> findings;

    void Clear() noexcept
    {
        error.clear();
        warning.clear();
        findings.clear();
    }

    // With memory short there is no text.
    void SetError(const char* aText) noexcept { Set(error, aText); }
    void SetWarning(const char* aText) noexcept { Set(warning, aText); }

private:
    static void Set(std::string& aTarget, const char* aText) noexcept
    {
        aTarget.clear();
        try {
            aTarget = aText == nullptr ? "" : aText;
        } catch (const std::bad_alloc&) {
        }
    }
};

}  // namespace ORMO::SensorModel::CSM::Detail

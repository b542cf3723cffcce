#pragma once

#include "Export.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM::Util {
/// Typed arrays on the heap.
///
/// Each allocation answers how many elements it made, all of them zero: the count asked for, or 0 with a null output
/// when memory is short, the output pointer is null or the count is 0. The caller frees plain arrays with delete[].
class ORMO_CSM_API CSMUtilMemory
{
public:
    static std::size_t AllocateBoolArray(std::size_t aCount, bool** aOut) noexcept;
    static std::size_t AllocateCharArray(std::size_t aCount, char** aOut) noexcept;
    static std::size_t AllocateDoubleArray(std::size_t aCount, double** aOut) noexcept;
    static std::size_t AllocateSizeTArray(std::size_t aCount, std::size_t** aOut) noexcept;
    static std::size_t AllocateFloatArray(std::size_t aCount, float** aOut) noexcept;
    static std::size_t AllocateIntArray(std::size_t aCount, int** aOut) noexcept;
    static std::size_t AllocateLongArray(std::size_t aCount, long** aOut) noexcept;
    static std::size_t AllocateUnsignedLongArray(std::size_t aCount, unsigned long** aOut) noexcept;
    static std::size_t AllocateWCharTArray(std::size_t aCount, wchar_t** aOut) noexcept;

    static std::size_t AllocateCStringArray(char**& aOut, std::size_t aCount) noexcept;
    static std::size_t AllocateConstCStringArray(const char**& aOut, std::size_t aCount) noexcept;
    /// An array of pointers to arrays of texts.
    static std::size_t AllocateCStringArrayPointers(char***& aOut, std::size_t aCount) noexcept;

    /// Frees each of the aCount texts, then the array, and sets the pointer to null; a null pointer is ignored.
    static void DeallocateCStringArray(char**& aArray, std::size_t aCount) noexcept;
    static void DeallocateConstCStringArray(const char**& aArray, std::size_t aCount) noexcept;
    /// Frees each of the aCount inner arrays, but not their texts, whose number only the caller knows.
    static void DeallocateCStringArrayPointers(char***& aArray, std::size_t aCount) noexcept;

private:
    CSMUtilMemory() = delete;
    ~CSMUtilMemory() = delete;
    CSMUtilMemory& operator=(const CSMUtilMemory&) = delete;
};
}  // namespace ORMO::SensorModel::CSM::Util

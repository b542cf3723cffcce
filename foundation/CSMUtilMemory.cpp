#include "foundation/CSMUtilMemory.h"

#include "foundation/detail/HandOut.h"

namespace ORMO::SensorModel::CSM::Util {
std::size_t CSMUtilMemory::AllocateBoolArray(std::size_t aCount, bool** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateCharArray(std::size_t aCount, char** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateDoubleArray(std::size_t aCount, double** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateSizeTArray(std::size_t aCount, std::size_t** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateFloatArray(std::size_t aCount, float** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateIntArray(std::size_t aCount, int** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateLongArray(std::size_t aCount, long** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateUnsignedLongArray(std::size_t aCount, unsigned long** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateWCharTArray(std::size_t aCount, wchar_t** aOut) noexcept
{
    return Detail::HandOutArray(aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateCStringArray(char**& aOut, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateConstCStringArray(const char**& aOut, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aOut, aCount);
}

std::size_t CSMUtilMemory::AllocateCStringArrayPointers(char***& aOut, std::size_t aCount) noexcept
{
    return Detail::HandOutArray(&aOut, aCount);
}

void CSMUtilMemory::DeallocateCStringArray(char**& aArray, std::size_t aCount) noexcept
{
    Detail::DeleteArrayOfArrays(aArray, aCount);
}

void CSMUtilMemory::DeallocateConstCStringArray(const char**& aArray, std::size_t aCount) noexcept
{
    Detail::DeleteArrayOfArrays(aArray, aCount);
}

void CSMUtilMemory::DeallocateCStringArrayPointers(char***& aArray, std::size_t aCount) noexcept
{
    Detail::DeleteArrayOfArrays(aArray, aCount);
}
}  // namespace ORMO::SensorModel::CSM::Util

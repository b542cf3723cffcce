#include "foundation/CSMUtilMemory.h"

#include <algorithm>
#include <cstdint>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilMemory;

template<typename T>
void ExpectAllocation(std::size_t (*aAllocate)(std::size_t, T**) noexcept)
{
    T* array = nullptr;
    ASSERT_EQ(aAllocate(1000, &array), 1000U);
    EXPECT_EQ(std::count(array, array + 1000, T{}), 1000);
    delete[] array;
    // No count, a size in bytes that overflows, and one that no system has.
    for (const std::size_t count : {std::size_t{0}, SIZE_MAX, SIZE_MAX / 2 + 1}) {
        T untouched{};
        array = &untouched;
        EXPECT_EQ(aAllocate(count, &array), 0U);
        EXPECT_EQ(array, nullptr);
    }
    EXPECT_EQ(aAllocate(1, nullptr), 0U);
}

TEST(CSMUtilMemoryTest, ArraysAreWholeAndZeroOrAbsent)
{
    ExpectAllocation<bool>(&CSMUtilMemory::AllocateBoolArray);
    ExpectAllocation<char>(&CSMUtilMemory::AllocateCharArray);
    ExpectAllocation<double>(&CSMUtilMemory::AllocateDoubleArray);
    ExpectAllocation<std::size_t>(&CSMUtilMemory::AllocateSizeTArray);
    ExpectAllocation<float>(&CSMUtilMemory::AllocateFloatArray);
    ExpectAllocation<int>(&CSMUtilMemory::AllocateIntArray);
    ExpectAllocation<long>(&CSMUtilMemory::AllocateLongArray);
    ExpectAllocation<unsigned long>(&CSMUtilMemory::AllocateUnsignedLongArray);
    ExpectAllocation<wchar_t>(&CSMUtilMemory::AllocateWCharTArray);
}

TEST(CSMUtilMemoryTest, ArraysOfTextsAreFreedWithTheirTexts)
{
    char** texts = nullptr;
    ASSERT_EQ(CSMUtilMemory::AllocateCStringArray(texts, 2), 2U);
    EXPECT_EQ(CSMUtilMemory::AllocateCharArray(5, &texts[0]), 5U);
    CSMUtilMemory::DeallocateCStringArray(texts, 2);
    EXPECT_EQ(texts, nullptr);
    CSMUtilMemory::DeallocateCStringArray(texts, 2);

    const char** constTexts = nullptr;
    ASSERT_EQ(CSMUtilMemory::AllocateConstCStringArray(constTexts, 1), 1U);
    constTexts[0] = new char[1]{};
    CSMUtilMemory::DeallocateConstCStringArray(constTexts, 1);
    EXPECT_EQ(constTexts, nullptr);

    char*** arrays = nullptr;
    ASSERT_EQ(CSMUtilMemory::AllocateCStringArrayPointers(arrays, 2), 2U);
    EXPECT_EQ(CSMUtilMemory::AllocateCStringArray(arrays[0], 3), 3U);
    CSMUtilMemory::DeallocateCStringArrayPointers(arrays, 2);
    EXPECT_EQ(arrays, nullptr);
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

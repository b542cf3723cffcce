#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <string_view>

// The only place that allocates what operations hand out through pointers.
namespace ORMO::SensorModel::CSM::Detail {
/// A new array of zeros. Null for no count and when memory is short.
template<typename T>
[[nodiscard]] T* NewArray(std::size_t aCount) noexcept
{
    // A count that overflows the size in bytes would throw, even from the form of new that does not.
    if (aCount == 0 || aCount > PTRDIFF_MAX / sizeof(T)) {
        return nullptr;
    }
    return new (std::nothrow) T[aCount]();
}

/// Allocates into aOut and answers the number of elements made.
template<typename T>
std::size_t HandOutArray(T** aOut, std::size_t aCount) noexcept
{
    if (aOut == nullptr) {
        return 0;
    }
    *aOut = NewArray<T>(aCount);
    return *aOut == nullptr ? 0 : aCount;
}

/// Stores a NUL-terminated copy in aOut; null, and false, when memory is short.
template<typename T>
[[nodiscard]] bool HandOutText(std::basic_string_view<T> aText, T** aOut) noexcept
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = NewArray<T>(aText.size() + 1);
    if (*aOut == nullptr) {
        return false;
    }
    std::copy(aText.begin(), aText.end(), *aOut);
    return true;
}

[[nodiscard]] inline bool HandOut(std::string_view aText, char** aOut) noexcept
{
    return HandOutText(aText, aOut);
}

[[nodiscard]] inline bool HandOut(std::wstring_view aText, wchar_t** aOut) noexcept
{
    return HandOutText(aText, aOut);
}

/// As HandOut, for operations that may throw and do nothing without an output.
inline void HandOutOrThrow(std::string_view aText, char** aOut)
{
    if (aOut != nullptr && !HandOut(aText, aOut)) {
        throw std::bad_alloc();
    }
}

/// Frees each element, then the array, and sets the pointer to null.
template<typename T>
void DeleteArrayOfArrays(T**& aArray, std::size_t aCount) noexcept
{
    if (aArray != nullptr) {
        std::for_each(aArray, aArray + aCount, [](T* aElement) { delete[] aElement; });
        delete[] aArray;
        aArray = nullptr;
    }
}
}  // namespace ORMO::SensorModel::CSM::Detail

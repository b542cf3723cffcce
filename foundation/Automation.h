#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Portable stand-ins for the automation types that a few operations name. Nothing else uses them.
namespace ORMO::SensorModel::CSM::Util {
/// Wide text that ends with a NUL, made and freed by CSMUtilWindows.
using BSTR = wchar_t*;

/// A class identifier.
struct CLSID
{
    std::uint32_t Data1 = 0;
    std::uint16_t Data2 = 0;
    std::uint16_t Data3 = 0;
    std::uint8_t Data4[8] = {};
};

/// An array of equal elements that owns its bytes.
struct SAFEARRAY
{
    std::size_t ElementSize = 0;
    std::vector<unsigned char> Data;
};
}  // namespace ORMO::SensorModel::CSM::Util

#include "fields/Number.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// from_chars knows no leading plus; a second sign after it stays an error.
std::string_view WithoutPlus(std::string_view aText) noexcept
{
    if (aText.size() > 1 && aText.front() == '+' && aText[1] != '-' && aText[1] != '+') {
        aText.remove_prefix(1);
    }
    return aText;
}

}  // namespace

bool ToWholeNumber(std::string_view aText, std::int64_t& aOut) noexcept
{
    aText = WithoutPlus(TrimBlanks(aText));
    const char* const last = aText.data() + aText.size();
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(aText.data(), last, value);
    if (error != std::errc{} || end != last) {
        return false;
    }
    aOut = value;
    return true;
}

bool ToRealNumber(std::string_view aText, double& aOut) noexcept
{
    aText = WithoutPlus(TrimBlanks(aText));
    const char* const last = aText.data() + aText.size();
    double value = 0.0;
    const auto [end, error] = std::from_chars(aText.data(), last, value);
    if (error != std::errc{} || end != last || !std::isfinite(value)) {
        return false;
    }
    aOut = value;
    return true;
}

bool BigEndianUnsigned(std::string_view aBytes, std::uint64_t& aOut) noexcept
{
    if (aBytes.empty() || aBytes.size() > sizeof aOut) {
        return false;
    }
    std::uint64_t value = 0;
    for (const char byte : aBytes) {
        value = (value << 8U) | static_cast<unsigned char>(byte);
    }
    aOut = value;
    return true;
}

bool BinaryUnsigned(std::string_view aBytes, Util::CSMCnst::ByteOrder aOrder, std::uint64_t& aOut) noexcept
{
    if (aOrder != Util::CSMCnst::BYTE_ORDER_LITTLE_ENDIAN) {
        return BigEndianUnsigned(aBytes, aOut);
    }
    std::array<char, sizeof aOut> bytes{};
    if (aBytes.size() > bytes.size()) {
        return false;
    }
    std::reverse_copy(aBytes.begin(), aBytes.end(), bytes.begin());
    return BigEndianUnsigned({bytes.data(), aBytes.size()}, aOut);
}

}  // namespace ORMO::SensorModel::CSM::Detail

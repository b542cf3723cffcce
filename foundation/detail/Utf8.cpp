#include "foundation/detail/Utf8.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM::Detail {
namespace {
static_assert(sizeof(wchar_t) == sizeof(char32_t), "wide text is UTF-32");

/// How a lead byte begins a character: the bytes that follow it, its own bits, and the least value that needs so many.
struct Lead
{
    std::size_t following;
    char32_t bits;
    char32_t least;
};

/// False for a byte that begins no character.
bool ReadLead(unsigned char aByte, Lead& aLead) noexcept
{
    if (aByte < 0x80) {
        aLead = {0, aByte, 0};
    } else if ((aByte & 0xE0U) == 0xC0U) {
        aLead = {1, aByte & 0x1FU, 0x80};
    } else if ((aByte & 0xF0U) == 0xE0U) {
        aLead = {2, aByte & 0x0FU, 0x800};
    } else if ((aByte & 0xF8U) == 0xF0U) {
        aLead = {3, aByte & 0x07U, 0x10000};
    } else {
        return false;
    }
    return true;
}

char Continuation(char32_t aValue, unsigned aShift) noexcept
{
    return static_cast<char>(0x80U | ((aValue >> aShift) & 0x3FU));
}

void Append(char32_t aValue, std::string& aOut)
{
    if (aValue < 0x80) {
        aOut += static_cast<char>(aValue);
    } else if (aValue < 0x800) {
        aOut += static_cast<char>(0xC0U | (aValue >> 6U));
        aOut += Continuation(aValue, 0);
    } else if (aValue < 0x10000) {
        aOut += static_cast<char>(0xE0U | (aValue >> 12U));
        aOut += Continuation(aValue, 6);
        aOut += Continuation(aValue, 0);
    } else {
        aOut += static_cast<char>(0xF0U | (aValue >> 18U));
        aOut += Continuation(aValue, 12);
        aOut += Continuation(aValue, 6);
        aOut += Continuation(aValue, 0);
    }
}
}  // namespace

bool WidenUtf8(std::string_view aText, std::wstring& aOut)
{
    aOut.clear();
    aOut.reserve(aText.size());
    while (!aText.empty()) {
        Lead lead{};
        if (!ReadLead(static_cast<unsigned char>(aText.front()), lead) || lead.following >= aText.size()) {
            return false;
        }
        char32_t value = lead.bits;
        for (const char next : aText.substr(1, lead.following)) {
            const auto byte = static_cast<unsigned char>(next);
            if ((byte & 0xC0U) != 0x80U) {
                return false;
            }
            value = (value << 6U) | (byte & 0x3FU);
        }
        if (value < lead.least || !IsCodePoint(value)) {
            return false;
        }
        aOut += static_cast<wchar_t>(value);
        aText.remove_prefix(lead.following + 1);
    }
    return true;
}

bool NarrowToUtf8(std::wstring_view aText, std::string& aOut)
{
    aOut.clear();
    aOut.reserve(aText.size());
    for (const wchar_t wide : aText) {
        const auto value = static_cast<char32_t>(wide);
        if (!IsCodePoint(value)) {
            return false;
        }
        Append(value, aOut);
    }
    return true;
}
}  // namespace ORMO::SensorModel::CSM::Detail

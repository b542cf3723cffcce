#include "segments/symbol/detail/SymbolColor.h"

#include <algorithm>
#include <iterator>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

// MIL-STD-2500A, SCOLOR.
// clang-format off
constexpr SymbolColor SYMBOL_COLORS[] = {
    {'B', "interpret 0=transparent, 1=blue",   true,    0,   0, 255},
    {'C', "use color look-up table",           false,   0,   0,   0, true},
    {'G', "use gray-scale look-up table",      false,   0,   0,   0, false, true},
    {'K', "interpret 0=transparent, 1=black",  true,    0,   0,   0},
    {'N', "interpret 0=black, 1=white",        false, 255, 255, 255},
    {'O', "interpret 0=transparent, 1=orange", true,  255, 165,   0},
    {'R', "interpret 0=transparent, 1=red",    true,  255,   0,   0},
    {'W', "interpret 0=transparent, 1=white",  true,  255, 255, 255},
    {'Y', "interpret 0=transparent, 1=yellow", true,  255, 255,   0},
};
// clang-format on

}  // namespace

const SymbolColor* FindSymbolColor(char aLetter) noexcept
{
    const auto* const found =
        std::ranges::find_if(SYMBOL_COLORS, [aLetter](const SymbolColor& aColor) { return aColor.letter == aLetter; });
    return found == std::end(SYMBOL_COLORS) ? nullptr : found;
}

}  // namespace ORMO::SensorModel::CSM::Detail

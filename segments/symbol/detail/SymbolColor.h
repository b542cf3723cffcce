#pragma once

#include <cstdint>

namespace ORMO::SensorModel::CSM::Detail {

/// What a SCOLOR means: its words, and what the values 0 and 1 show when no look-up table says so.
struct SymbolColor
{
    char letter;
    const char* description;
    bool zeroIsTransparent;
    std::uint8_t red;  ///< of the value 1; 0 that is not transparent is black
    std::uint8_t green;
    std::uint8_t blue;
    bool hasColorTable = false;
    bool hasGrayTable = false;
};

/// Null for a letter that means nothing.
const SymbolColor* FindSymbolColor(char aLetter) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

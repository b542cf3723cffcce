#pragma once

#include "segments/cgm/CGMCnst.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {
class NITFCGMGraphicPrimitive;
}

namespace ORMO::SensorModel::CSM::Detail {

/// How parameters stand in the two encodings.
enum class CgmParameter : std::uint8_t
{
    None,
    Integer,      ///< one word; a number
    Word,         ///< one word; one of the words of the row
    Colour,       ///< three bytes; "r g b"
    Point,        ///< two words; "(x,y)"
    Vector,       ///< two words; "x y"
    Points,       ///< all that is left; their numbers are kept as all x, then all y
    Text,         ///< a length and its characters
    Description,  ///< a text that the profile prescribes
    TextPieces,   ///< texts that fill what is left and are one
    Fonts,        ///< texts that fill what is left
    ElementSet    ///< a count of pairs of class and id; the shorthand for a set has class -1
};

/// The word of one value and that of all others.
struct CgmWords
{
    int value;
    const char* word;
    const char* otherwise;
};

/// What the profile allows: `low` to `high`, and `also`; anything else becomes `otherwise`.
struct CgmBounds
{
    int low = INT16_MIN;
    int high = INT16_MAX;
    int also = INT16_MIN;
    int otherwise = 0;
    bool counted = true;  ///< whether such a replacement counts as one against the profile

    constexpr bool Allows(int aValue) const noexcept { return (aValue >= low && aValue <= high) || aValue == also; }
};

/// Where the numbers of each attribute stand in the attribute state. The attributes that one kind of primitive takes on
/// stand together, so that a primitive takes over one run of them.
struct CgmSlot
{
    enum : std::uint8_t
    {
        EdgeColour = 0,
        FillColour = 3,
        EdgeType = 6,
        EdgeVisibility,
        EdgeWidth,
        InteriorStyle,
        LineColour = 10,
        LineType = 13,
        LineWidth,
        TextColour = 15,
        CharacterHeight = 18,
        CharacterOrientation = 19,
        FontIndex = 23,
        ColourMode,
        LineWidthMode,
        EdgeWidthMode,
        VdcExtent = 27,
        Count = 31
    };
};

struct CgmSlots
{
    std::uint8_t first = 0;
    std::uint8_t count = 0;
};

constexpr CgmSlots CLOSED_FIGURE_SLOTS{CgmSlot::EdgeColour, 10};
constexpr CgmSlots LINE_SLOTS{CgmSlot::LineColour, 5};
constexpr CgmSlots TEXT_SLOTS{CgmSlot::TextColour, 8};

using CgmState = std::array<int, CgmSlot::Count>;
/// Makes a primitive of its numbers: the attributes of its slots, then its parameters. Font and text are for texts.
using MakeCgmPrimitive = NITFCGMGraphicPrimitive* (*)(std::vector<int> aNumbers, const std::string& aFont,
                                                      const std::string& aText);

/// Everything that is known of one element. Decoder, encoder, clear text and profile checks read nothing else.
struct CgmElement
{
    int elementClass = 0;
    int id = 0;
    const char* keyword = "";
    std::array<CgmParameter, 6> parameters{};
    CgmSlots slots{};                 ///< an attribute: where it is kept; a primitive: what it takes on
    std::array<int, 4> initial{};     ///< an attribute's numbers before the metafile sets them
    CgmBounds bounds{};               ///< of an attribute of one number
    const CgmWords* words = nullptr;  ///< for the parameter of kind Word
    bool lengthIsVital = false;       ///< a wrong length ends the load, as it does for primitives
    unsigned leastPoints = 0;         ///< for the parameter of kind Points
    MakeCgmPrimitive make = nullptr;  ///< primitives only

    constexpr bool IsPrimitive() const noexcept
    {
        return elementClass == CGMCnst::BINARY_ENCODING_ELEMENT_GRAPHICAL_PREMITIVE;
    }
    constexpr bool IsAttribute() const noexcept { return slots.count != 0 && !IsPrimitive(); }
};

/// The row of an element; null for one that is not in the table.
const CgmElement* FindCgmElement(int aClass, int aId) noexcept;
/// The same for elements that are known to be there.
const CgmElement& CgmElementRow(int aClass, int aId) noexcept;
std::span<const CgmElement> CgmElements() noexcept;

/// The attributes before a metafile sets any.
const CgmState& InitialCgmState() noexcept;

/// Bytes of all parameters when their number is fixed; of the least parameters otherwise.
std::size_t LeastCgmLength(const CgmElement& aElement) noexcept;
bool HasFixedCgmLength(const CgmElement& aElement) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

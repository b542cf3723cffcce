#include "segments/cgm/detail/CgmParameters.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr int LONG_TEXT = 255;
constexpr unsigned TEXT_PIECE = 0x7FFF;
constexpr unsigned MORE_PIECES = 0x8000;

bool ReadNumbers(std::size_t aCount, WordCursor& aBytes, std::vector<int>& aNumbers)
{
    for (std::size_t i = 0; i != aCount; ++i) {
        int number = 0;
        if (!aBytes.TakeInteger(number)) {
            return false;
        }
        aNumbers.push_back(number);
    }
    return true;
}

bool ReadColour(WordCursor& aBytes, std::vector<int>& aNumbers)
{
    for (int i = 0; i != 3; ++i) {
        int component = 0;
        if (!aBytes.TakeByte(component)) {
            return false;
        }
        aNumbers.push_back(component);
    }
    return true;
}

/// All that is left, first every x, then every y.
bool ReadPoints(WordCursor& aBytes, std::vector<int>& aNumbers)
{
    const std::size_t count = aBytes.Remaining() / 4;
    const std::size_t first = aNumbers.size();
    aNumbers.resize(first + 2 * count);
    for (std::size_t i = 0; i != count; ++i) {
        if (!aBytes.TakeInteger(aNumbers[first + i]) || !aBytes.TakeInteger(aNumbers[first + count + i])) {
            return false;
        }
    }
    return aBytes.Remaining() == 0;
}

/// Appends so many characters, or all that are left.
bool ReadCharacters(std::size_t aCount, WordCursor& aBytes, std::string& aText)
{
    std::string_view characters;
    const bool complete = aBytes.Take(aCount, characters);
    if (!complete && !aBytes.Take(aBytes.Remaining(), characters)) {
        return false;
    }
    aText += characters;
    return complete;
}

/// A length of 255 announces pieces, each with a length word whose top bit says that another one follows.
bool ReadText(WordCursor& aBytes, std::string& aText)
{
    int length = 0;
    if (!aBytes.TakeByte(length)) {
        return false;
    }
    if (length != LONG_TEXT) {
        return ReadCharacters(static_cast<std::size_t>(length), aBytes, aText);
    }
    std::uint16_t piece = MORE_PIECES;
    while ((piece & MORE_PIECES) != 0) {
        if (!aBytes.TakeWord(piece) || !ReadCharacters(piece & TEXT_PIECE, aBytes, aText)) {
            return false;
        }
    }
    return true;
}

bool ReadTexts(CgmParameter aParameter, WordCursor& aBytes, std::vector<std::string>& aTexts)
{
    if (aParameter != CgmParameter::Fonts) {
        aTexts.emplace_back();
    }
    if (aParameter == CgmParameter::Text || aParameter == CgmParameter::Description) {
        return ReadText(aBytes, aTexts.back());
    }
    bool complete = true;
    while (complete && aBytes.Remaining() != 0) {
        if (aParameter == CgmParameter::Fonts) {
            aTexts.emplace_back();
        }
        complete = ReadText(aBytes, aTexts.back());
    }
    return complete;
}

bool ReadParameter(CgmParameter aParameter, WordCursor& aBytes, std::vector<int>& aNumbers,
                   std::vector<std::string>& aTexts)
{
    using P = CgmParameter;
    switch (aParameter) {
        case P::None:
            return true;
        case P::Integer:
        case P::Word:
            return ReadNumbers(1, aBytes, aNumbers);
        case P::Point:
        case P::Vector:
            return ReadNumbers(2, aBytes, aNumbers);
        case P::Colour:
            return ReadColour(aBytes, aNumbers);
        case P::Points:
            return ReadPoints(aBytes, aNumbers);
        case P::ElementSet: {
            std::uint16_t pairs = 0;
            return aBytes.TakeWord(pairs) && ReadNumbers(std::size_t{2} * pairs, aBytes, aNumbers);
        }
        case P::Text:
        case P::Description:
        case P::TextPieces:
        case P::Fonts:
            return ReadTexts(aParameter, aBytes, aTexts);
    }
    return false;
}

}  // namespace

bool ReadCgmParameters(const CgmElement& aElement, WordCursor aBytes, std::vector<int>& aNumbers,
                       std::vector<std::string>& aTexts)
{
    aTexts.clear();
    for (const CgmParameter parameter : aElement.parameters) {
        if (!ReadParameter(parameter, aBytes, aNumbers, aTexts)) {
            return false;
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

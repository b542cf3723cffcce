#include "fields/ValueRule.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::string_view MONTHS = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
constexpr std::size_t MONTH_LETTERS = 3;

/// A piece of a picture that stands for a number of digits with bounds.
struct Piece
{
    std::string_view text;
    int low;
    int high;
};

// Longer pieces first: CCYY before YY.
constexpr std::array<Piece, 11> PIECES{{{"CCYY", 0, 9999},
                                        {"YYYY", 0, 9999},
                                        {"YY", 0, 99},
                                        {"MM", 1, 12},
                                        {"DD", 1, 31},
                                        {"hh", 0, 23},
                                        {"HH", 0, 23},
                                        {"mm", 0, 59},
                                        {"ss", 0, 60},
                                        {"SS", 0, 60},
                                        {"CC", 0, 99}}};

bool IsDigit(char aCharacter) noexcept
{
    return aCharacter >= '0' && aCharacter <= '9';
}

bool IsMonth(std::string_view aText) noexcept
{
    for (std::size_t i = 0; i != MONTHS.size(); i += MONTH_LETTERS) {
        if (MONTHS.substr(i, MONTH_LETTERS) == aText) {
            return true;
        }
    }
    return false;
}

/// Digits within the bounds, or hyphens throughout: a part that is not known.
bool PieceMatches(const Piece& aPiece, std::string_view aText) noexcept
{
    if (std::all_of(aText.begin(), aText.end(), [](char aCharacter) { return aCharacter == '-'; })) {
        return true;
    }
    int number = 0;
    for (const char character : aText) {
        if (!IsDigit(character)) {
            return false;
        }
        number = 10 * number + (character - '0');
    }
    return aPiece.low <= number && number <= aPiece.high;
}

/// Whole degrees: two digits are a latitude, three a longitude.
bool DegreesMatch(std::string_view aText) noexcept
{
    int number = 0;
    for (const char character : aText) {
        if (!IsDigit(character)) {
            return false;
        }
        number = 10 * number + (character - '0');
    }
    return number <= (aText.size() > 2 ? 180 : 90);
}

bool CharacterMatches(char aPicture, char aCharacter) noexcept
{
    switch (aPicture) {
        case 'X':
            return aCharacter == 'N' || aCharacter == 'S';
        case 'Y':
            return aCharacter == 'E' || aCharacter == 'W';
        case '+':
            return aCharacter == '+' || aCharacter == '-';
        case 'n':
        case 'e':
        case 'f':
        case 'z':
        case 's':
        case 'd':
            return IsDigit(aCharacter);
        case 'B':
        case 'J':
        case 'K':
        case 'L':
            return aCharacter >= 'A' && aCharacter <= 'Z';
        default:
            return aPicture == aCharacter;
    }
}

}  // namespace

bool PictureMatches(std::string_view aPicture, std::string_view aValue) noexcept
{
    bool afterPoint = false;
    std::size_t place = 0;
    while (place < aPicture.size()) {
        if (aPicture.size() > aValue.size()) {
            return false;
        }
        const std::string_view picture = aPicture.substr(place);
        const std::string_view value = aValue.substr(place);
        std::size_t length = 1;
        if (picture.starts_with("MON") || picture.starts_with("MMM")) {
            length = MONTH_LETTERS;
            if (!IsMonth(value.substr(0, length))) {
                return false;
            }
        } else if (const auto piece = std::find_if(
                       PIECES.begin(), PIECES.end(),
                       [&](const Piece& aPiece) { return !afterPoint && picture.starts_with(aPiece.text); });
                   piece != PIECES.end()) {
            length = piece->text.size();
            if (!PieceMatches(*piece, value.substr(0, length))) {
                return false;
            }
        } else if (picture.front() == 'd' && !afterPoint) {
            length = std::min(picture.find_first_not_of('d'), picture.size());
            if (!DegreesMatch(value.substr(0, length))) {
                return false;
            }
        } else if (!CharacterMatches(picture.front(), value.front())) {
            return false;
        }
        // Digits behind a point are a fraction of the piece before it, up to the next sign or letter.
        const char last = picture.front();
        afterPoint = last == '.' || (afterPoint && (last == 's' || last == 'd' || last == 'n' || last == 'f'));
        place += length;
    }
    return aPicture.size() == aValue.size();
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "fields/DateText.h"
#include "fields/ValueRule.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::string_view MONTHS = "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC";
constexpr std::size_t MONTH_LETTERS = 3;
constexpr int HIGHEST_LATITUDE = 90;
constexpr int HIGHEST_LONGITUDE = 180;
constexpr int HIGHEST_OF_SIXTY = 59;
constexpr int LEAP_YEAR = 2000;

enum class PieceKind : std::uint8_t
{
    Number,     ///< digits with bounds
    Month,      ///< three letters
    Degrees,    ///< a run of d
    Location,   ///< a row or a column: five digits, or a sign and four
    Character,  ///< one character
    Broken      ///< a letter of a piece that stands alone
};

/// What the next characters of a picture stand for.
struct Piece
{
    PieceKind kind;
    std::string_view text;
    int low;
    int high;
};

// Longer pieces first: CCYY before YY, the letters of a month before its number.
constexpr std::array<Piece, 14> PIECES{{{PieceKind::Location, "rrrrr", 0, 0},
                                        {PieceKind::Location, "ccccc", 0, 0},
                                        {PieceKind::Number, "CCYY", 0, 9999},
                                        {PieceKind::Number, "YYYY", 0, 9999},
                                        {PieceKind::Number, "YY", 0, 99},
                                        {PieceKind::Month, "MON", 0, 0},
                                        {PieceKind::Month, "MMM", 0, 0},
                                        {PieceKind::Number, "MM", 1, 12},
                                        {PieceKind::Number, "DD", 1, 31},
                                        {PieceKind::Number, "hh", 0, 23},
                                        {PieceKind::Number, "HH", 0, 23},
                                        {PieceKind::Number, "mm", 0, HIGHEST_OF_SIXTY},
                                        {PieceKind::Number, "ss", 0, HIGHEST_OF_SIXTY + 1},  // a leap second
                                        {PieceKind::Number, "SS", 0, HIGHEST_OF_SIXTY + 1}}};

bool IsDigit(char aCharacter) noexcept
{
    return aCharacter >= '0' && aCharacter <= '9';
}

/// The number of a month from its letters; 0 when there is none.
unsigned MonthOf(std::string_view aText) noexcept
{
    for (std::size_t i = 0; i != MONTHS.size(); i += MONTH_LETTERS) {
        if (MONTHS.substr(i, MONTH_LETTERS) == aText) {
            return static_cast<unsigned>(i / MONTH_LETTERS + 1);
        }
    }
    return 0;
}

/// Digits throughout; no text of a picture is long enough to overflow.
bool ToNumber(std::string_view aText, int& aOut) noexcept
{
    aOut = 0;
    for (const char character : aText) {
        if (!IsDigit(character)) {
            return false;
        }
        aOut = 10 * aOut + (character - '0');
    }
    return true;
}

/// Reads a picture and a value of the same length from left to right.
class PictureReader
{
public:
    /// The next piece of the picture, given what came before.
    Piece Next(std::string_view aPicture) const noexcept;
    /// Whether the characters of the value, as many as the piece has, are such a piece.
    bool Matches(const Piece& aPiece, std::string_view aText) noexcept;
    /// What is to be remembered of a piece.
    void Pass(const Piece& aPiece) noexcept;
    /// Whether the calendar has the day, as far as it is known.
    bool IsInCalendar() const noexcept;

private:
    void RememberDate(std::string_view aPiece, unsigned aNumber) noexcept;
    bool CharacterMatches(char aPicture, char aCharacter) noexcept;

    bool m_afterPoint = false;  // digits are a fraction of the piece before, up to the next sign or letter
    bool m_isTime = false;      // a fraction may end in hyphens
    bool m_isUnknown = false;   // it has, so nothing but hyphens may follow
    bool m_isAngle = false;     // minutes and seconds are parts of a degree
    bool m_isFull = false;      // the degrees are at their bound, so nothing but zeros may follow
    int m_year = LEAP_YEAR;     // when it is not known, every day of a leap year may be
    unsigned m_month = 0;       // 0 when it is not known
    unsigned m_day = 0;
};

Piece PictureReader::Next(std::string_view aPicture) const noexcept
{
    const char first = aPicture.front();
    const Piece character{PieceKind::Character, aPicture.substr(0, 1), 0, 0};
    if (m_afterPoint && (first == 's' || first == 'S' || first == 'd')) {
        return character;
    }
    for (const Piece& piece : PIECES) {
        if (aPicture.starts_with(piece.text)) {
            return piece;
        }
    }
    if (aPicture.starts_with("dd")) {
        const std::string_view run = aPicture.substr(0, aPicture.find_first_not_of('d'));
        const bool known = run.size() <= 3;
        return {known ? PieceKind::Degrees : PieceKind::Broken, run, 0,
                run.size() == 3 ? HIGHEST_LONGITUDE : HIGHEST_LATITUDE};
    }
    constexpr std::string_view KNOWN = "XY+nefzBJKLTZx.-: ";
    return KNOWN.find(first) != std::string_view::npos ? character : Piece{PieceKind::Broken, character.text, 0, 0};
}

void PictureReader::Pass(const Piece& aPiece) noexcept
{
    const char first = aPiece.text.front();
    m_afterPoint = first == '.' || (m_afterPoint && aPiece.kind == PieceKind::Character &&
                                    std::string_view("sSdnefz").find(first) != std::string_view::npos);
    m_isAngle = m_isAngle || aPiece.kind == PieceKind::Degrees;
    m_isTime = m_isTime || (aPiece.kind == PieceKind::Number && !m_isAngle);
}

bool PictureReader::Matches(const Piece& aPiece, std::string_view aText) noexcept
{
    int number = 0;
    switch (aPiece.kind) {
        case PieceKind::Month:
            m_month = MonthOf(aText);
            return m_month != 0;
        case PieceKind::Location:
            return ToNumber(aText.substr(aText.front() == '-' || aText.front() == '+' ? 1 : 0), number);
        case PieceKind::Degrees:
            m_isFull = ToNumber(aText, number) && number == aPiece.high;
            return ToNumber(aText, number) && number <= aPiece.high;
        case PieceKind::Number:
            if (m_isAngle) {
                const int high = m_isFull ? 0 : std::min(aPiece.high, HIGHEST_OF_SIXTY);
                return ToNumber(aText, number) && number <= high;
            }
            if (aText.find_first_not_of('-') == std::string_view::npos) {
                return true;
            }
            if (!ToNumber(aText, number) || number < aPiece.low || number > aPiece.high) {
                return false;
            }
            RememberDate(aPiece.text, static_cast<unsigned>(number));
            return true;
        case PieceKind::Character:
        case PieceKind::Broken:
            break;
    }
    return CharacterMatches(aPiece.text.front(), aText.front());
}

void PictureReader::RememberDate(std::string_view aPiece, unsigned aNumber) noexcept
{
    if (aPiece == "CCYY" || aPiece == "YYYY") {
        m_year = static_cast<int>(aNumber);
    } else if (aPiece == "YY") {
        m_year = LEAP_YEAR + static_cast<int>(aNumber);  // of the centuries that may be meant the one with more days
    } else if (aPiece == "MM") {
        m_month = aNumber;
    } else if (aPiece == "DD") {
        m_day = aNumber;
    }
}

bool PictureReader::IsInCalendar() const noexcept
{
    return m_month == 0 || m_day == 0 ||
           std::chrono::year_month_day(std::chrono::year(m_year), std::chrono::month(m_month), std::chrono::day(m_day))
               .ok();
}

bool PictureReader::CharacterMatches(char aPicture, char aCharacter) noexcept
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
        case 'S':
        case 'd':
            m_isUnknown = m_isUnknown || (m_isTime && m_afterPoint && aCharacter == '-');
            return m_isUnknown ? aCharacter == '-' : m_isFull ? aCharacter == '0' : IsDigit(aCharacter);
        case 'x':
            return IsDigit(aCharacter) || (aCharacter >= 'A' && aCharacter <= 'F') ||
                   (aCharacter >= 'a' && aCharacter <= 'f');
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

// A day must be one of the calendar, too.
bool PictureMatches(std::string_view aPicture, std::string_view aValue) noexcept
{
    if (aPicture.size() != aValue.size()) {
        return false;
    }
    PictureReader reader;
    while (!aPicture.empty()) {
        const Piece piece = reader.Next(aPicture);
        if (!reader.Matches(piece, aValue.substr(0, piece.text.size()))) {
            return false;
        }
        reader.Pass(piece);
        aPicture.remove_prefix(piece.text.size());
        aValue.remove_prefix(piece.text.size());
    }
    return reader.IsInCalendar();
}

bool ReadDate(std::string_view aText, DateParts& aParts) noexcept
{
    constexpr std::string_view OLD = "DDhhmmssZMONYY";
    constexpr int FIRST_YEAR = 50;  // of the years of two digits
    aParts.fill(-1);
    DateParts parts{};
    const auto pair = [aText](std::size_t aAt) {
        int number = 0;
        return ToNumber(aText.substr(aAt, 2), number) ? number : -1;
    };
    if (PictureMatches(OLD, aText)) {
        const int year = pair(12);
        parts = {year < 0 ? year : year + (year < FIRST_YEAR ? 2000 : 1900),
                 static_cast<int>(MonthOf(aText.substr(9, MONTH_LETTERS))),
                 pair(0),
                 pair(2),
                 pair(4),
                 pair(6)};
    } else if (PictureMatches("CCYYMMDDhhmmss", aText) || PictureMatches("CCYYMMDD", aText)) {
        const int century = pair(0);
        parts = {century < 0 ? century : century * 100 + pair(2), pair(4), pair(6), -1, -1, -1};
        for (std::size_t i = 3; i != parts.size() && 2 + 2 * i < aText.size(); ++i) {
            parts[i] = pair(2 + 2 * i);
        }
    } else {
        return false;
    }
    std::copy(parts.begin(), std::find(parts.begin(), parts.end(), -1), aParts.begin());
    return aParts.front() >= 0;
}

bool IsPicture(std::string_view aPicture) noexcept
{
    PictureReader reader;
    bool afterHour = false;
    while (!aPicture.empty()) {
        const Piece piece = reader.Next(aPicture);
        // MM is a month everywhere; behind an hour somebody meant minutes, which are mm.
        if (piece.kind == PieceKind::Broken || (afterHour && piece.text == "MM")) {
            return false;
        }
        afterHour = piece.text == "hh" || piece.text == "HH";
        reader.Pass(piece);
        aPicture.remove_prefix(piece.text.size());
        if (piece.kind == PieceKind::Number && aPicture.starts_with(piece.text.back())) {
            return false;  // a letter too many
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

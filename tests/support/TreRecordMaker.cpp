#include "tests/support/TreRecordMaker.h"

#include "fields/FieldWalk.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

using namespace Detail;

constexpr std::size_t LONG_ENOUGH = 9000;  // bytes; each field is one more walk, so records must stay short
constexpr std::size_t FIELDS_ENOUGH = 400;
constexpr int MOST_TRIES = 400;  // for one value, and for one record
constexpr int FEW_TRIES = 12;
constexpr std::string_view DIGITS = "0123456789";
constexpr std::string_view HEX = "0123456789abcdefABCDEF";
constexpr std::string_view LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view TEXT = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 -./()&<>'\"\\,;:";

/// The text in a field of that width: numbers are filled with zeros in front, all else with blanks behind.
std::string Padded(std::string aText, std::size_t aWidth, bool aNumber)
{
    if (aText.size() < aWidth) {
        const bool signedText = aNumber && (aText.front() == '-' || aText.front() == '+');
        aText.insert(aNumber ? (signedText ? 1U : 0U) : aText.size(), aWidth - aText.size(), aNumber ? '0' : ' ');
    }
    return aText;
}

std::string BigEndian(std::uint64_t aNumber, std::size_t aWidth)
{
    std::string bytes(aWidth, '\0');
    for (std::size_t i = aWidth; i-- != 0; aNumber >>= 8U) {
        bytes[i] = static_cast<char>(aNumber & 0xFFU);
    }
    return bytes;
}

bool IsNumber(const FieldRow& aRow)
{
    return aRow.form == Form::Integer || aRow.form == Form::Real || aRow.form == Form::Digits ||
           aRow.form == Form::DigitText || aRow.form == Form::NumberText;
}

std::string AsField(const FieldRow& aRow, std::uint64_t aNumber, std::size_t aWidth)
{
    return aRow.IsBinary() ? BigEndian(aNumber, aWidth) : Padded(std::to_string(aNumber), aWidth, true);
}

/// The whole numbers with which the alternatives of a rule begin.
std::vector<std::uint64_t> LowBounds(std::string_view aRule)
{
    std::vector<std::uint64_t> bounds;
    while (!aRule.empty()) {
        const std::string_view alternative = WithoutMeaning(NextAlternative(aRule));
        std::uint64_t bound = 0;
        if (ToCount(alternative.substr(0, alternative.find("..")), bound)) {
            bounds.push_back(bound);
        }
    }
    return bounds;
}

}  // namespace

TreRecordMaker::TreRecordMaker(const FieldTable& aTable, std::uint32_t aSeed)
    : m_table(aTable), m_random(aSeed), m_reached(aTable.Size()), m_passed(aTable.Size())
{
    const auto rows = aTable.Rows();
    m_hasOpenEnd = std::any_of(rows.begin(), rows.end(), [](const FieldRow& aRow) { return aRow.rest; });
}

std::string TreRecordMaker::Next()
{
    // A number that is fine by itself can leave the next ones no way to end in time; then another beginning may.
    std::string record;
    for (int tries = 0; !Make(record); ++tries) {
        if (tries == MOST_TRIES) {
            throw std::runtime_error("every record grows too long");
        }
    }
    FieldStore store(m_table);
    const WalkResult result = FieldWalk::Read(record, store);
    if (!result.IsGood() || result.consumed != record.size()) {
        throw std::runtime_error("the finished record is not read to its end");
    }
    Note(store);
    return record;
}

bool TreRecordMaker::Make(std::string& aRecord)
{
    // Behind the fields made so far stand zeros, so that the walk goes on to the next field and tells its width.
    aRecord.assign(2 * LONG_ENOUGH, '0');
    FieldStore store(m_table);
    WalkResult result = FieldWalk::Read(aRecord, store);
    for (std::size_t field = 0; field < store.Entries().size(); ++field) {
        const auto place = static_cast<std::size_t>(store.Position(store.Entries()[field]));
        const FieldEntry entry = store.Entries()[field];
        if (IsEndOfTurns(entry)) {
            aRecord.resize(place);
            return true;
        }
        if (m_table.Row(entry.row).rest) {
            aRecord.replace(place, std::string::npos, OfForm(m_table.Row(entry.row), 1 + Pick(40)));
            return true;
        }
        int tries = 0;
        do {
            if (++tries == FEW_TRIES) {
                return false;
            }
            aRecord.replace(place, entry.length, Value(entry));
            result = FieldWalk::Read(aRecord, store);
        } while ((!m_hasOpenEnd && (result.consumed > LONG_ENOUGH || store.Entries().size() > FIELDS_ENOUGH)) ||
                 (!result.IsGood() && store.Entries().size() <= field + 1));
    }
    aRecord.resize(static_cast<std::size_t>(result.consumed));
    return true;
}

/// Whether a repeat that goes on while there are bytes has had enough turns before this field.
bool TreRecordMaker::IsEndOfTurns(const FieldEntry& aEntry)
{
    const FieldRow& before = m_table.Row(aEntry.row == 0 ? 0 : aEntry.row - 1U);
    return before.kind == RowKind::Repeat && before.rest && (aEntry.turns[0] > 3 || Pick(3) == 0);
}

std::string TreRecordMaker::Value(const FieldEntry& aEntry)
{
    const FieldRow& row = m_table.Row(aEntry.row);
    for (int tries = 0; tries != MOST_TRIES; ++tries) {
        std::string value = Proposal(row, aEntry.row, aEntry.length);
        if (value.size() == aEntry.length && CheckValue(row, value) == Verdict::Good) {
            return value;
        }
    }
    throw std::runtime_error(std::string(row.tag) + ": no value found for the rule " + row.values);
}

std::string TreRecordMaker::Proposal(const FieldRow& aRow, std::size_t aRowIndex, std::size_t aWidth)
{
    if (IsAsked(aRowIndex) && (IsCounted(aRowIndex) || Pick(4) != 0)) {
        return Telling(aRowIndex, aWidth);
    }
    if (!aRow.IsBinary() && aRow.MayBeBlank() && Pick(4) == 0) {
        return std::string(aWidth, ' ');
    }
    // Functions may take any whole number for a count, so small ones come often.
    const bool whole = aRow.form == Form::Integer || aRow.form == Form::Digits || aRow.form == Form::Unsigned;
    if (whole && Pick(2) == 0) {
        const std::vector<std::uint64_t> bounds = LowBounds(aRow.values);
        return AsField(aRow, Pick(3) + (bounds.empty() ? 0 : bounds[Pick(bounds.size())]), aWidth);
    }
    return aRow.values[0] != '\0' ? OfRule(aRow, aWidth) : OfForm(aRow, aWidth);
}

/// Whether another row looks at the field. A width by a code does not tell which codes there are; the rule does.
bool TreRecordMaker::LooksAt(std::size_t aRow, std::size_t aField) const
{
    const FieldRow& row = m_table.Row(aRow);
    return m_table.Link(aRow).ref == aField && !(row.IsField() && row.count != nullptr);
}

bool TreRecordMaker::IsAsked(std::size_t aRow) const
{
    for (std::size_t i = aRow + 1; i != m_table.Size(); ++i) {
        if (LooksAt(i, aRow)) {
            return true;
        }
    }
    return false;
}

/// Whether another row takes the field for a count or a length.
bool TreRecordMaker::IsCounted(std::size_t aRow) const
{
    for (std::size_t i = aRow + 1; i != m_table.Size(); ++i) {
        if (LooksAt(i, aRow) && m_table.Row(i).kind != RowKind::When) {
            return true;
        }
    }
    return false;
}

/// A value that decides something for one of the rows that look at this field.
std::string TreRecordMaker::Telling(std::size_t aRow, std::size_t aWidth)
{
    const FieldRow& field = m_table.Row(aRow);
    std::vector<std::string> values;
    const auto add = [&](std::uint64_t aNumber) { values.push_back(AsField(field, aNumber, aWidth)); };
    for (std::size_t i = aRow + 1; i != m_table.Size(); ++i) {
        const FieldRow& row = m_table.Row(i);
        if (!LooksAt(i, aRow)) {
            continue;
        }
        if (row.kind != RowKind::When) {
            const std::uint64_t least = row.sizeAdjust < 0 ? static_cast<std::uint64_t>(-row.sizeAdjust) : 0;
            for (const std::uint64_t more : {0U, 1U, 2U, 3U}) {
                add(least + more);
            }
            for (const std::uint64_t bound : LowBounds(field.values)) {
                add(bound);
                add(bound + 1);
            }
            continue;
        }
        std::string_view rest(row.values);
        switch (row.test) {
            case Test::IsOneOf:
            case Test::IsNoneOf:
                while (!rest.empty()) {
                    values.push_back(Padded(std::string(NextAlternative(rest)), aWidth, false));
                }
                break;
            case Test::Filled:
                values.emplace_back(aWidth, ' ');
                values.push_back(field.values[0] != '\0' ? OfRule(field, aWidth) : OfForm(field, aWidth));
                values.push_back(values.back());
                break;
            case Test::AnyBit:
                add(std::uint64_t{1} << Pick(8 * aWidth));
                add(row.number & (std::uint64_t{m_random()} << 32U | m_random()));
                add(m_random());
                add(0);
                break;
            default:
                add(row.number == 0 ? 0 : row.number - 1);
                add(row.number);
                add(row.number + 1);
                break;
        }
    }
    return values[Pick(values.size())];
}

std::string TreRecordMaker::OfRule(const FieldRow& aRow, std::size_t aWidth)
{
    std::vector<std::string_view> alternatives;
    for (std::string_view rest(aRow.values); !rest.empty();) {
        alternatives.push_back(WithoutMeaning(NextAlternative(rest)));
    }
    const std::string_view chosen = alternatives[Pick(alternatives.size())];
    double number = 0.0;
    if (chosen == "blank") {
        return std::string(aWidth, ' ');
    }
    if (chosen == "any") {
        return OfForm(aRow, aWidth);
    }
    if (chosen.size() > 2 && chosen.front() == '{') {
        return Padded(OfPicture(chosen.substr(1, chosen.size() - 2)), aWidth, false);
    }
    if (chosen.find("..") != std::string_view::npos) {
        return OfRange(aRow, chosen, aWidth);
    }
    if (aRow.IsBinary()) {
        return ToRealNumber(chosen, number) ? BigEndian(static_cast<std::uint64_t>(number), aWidth) : "";
    }
    return Padded(std::string(chosen), aWidth, IsNumber(aRow) && ToRealNumber(chosen, number));
}

std::string TreRecordMaker::OfRange(const FieldRow& aRow, std::string_view aRange, std::size_t aWidth)
{
    const std::string_view low = aRange.substr(0, aRange.find(".."));
    const std::string_view high = aRange.substr(aRange.find("..") + 2);
    double from = 0.0;
    double to = 0.0;
    if (!ToRealNumber(low, from) || !ToRealNumber(high, to)) {
        std::string text(low.size(), ' ');
        for (std::size_t i = 0; i != std::min(low.size(), high.size()); ++i) {
            text[i] = static_cast<char>(low[i] + static_cast<char>(Pick(1U + static_cast<unsigned>(high[i] - low[i]))));
        }
        return Padded(text, aWidth, false);
    }
    if (aRow.form == Form::Float) {
        return OfForm(aRow, aWidth);
    }
    double number = from + (to - from) * (static_cast<double>(m_random()) / 4294967295.0);
    if (Pick(3) == 0) {
        number = Pick(2) == 0 ? from + static_cast<double>(Pick(3)) : to - static_cast<double>(Pick(3));
    }
    if (aRow.IsBinary()) {
        constexpr double MOST = 9.2e18;  // of what both kinds of whole numbers can say
        return BigEndian(static_cast<std::uint64_t>(static_cast<std::int64_t>(std::clamp(number, -MOST, MOST))),
                         aWidth);
    }
    const bool whole = aRow.form != Form::Real && low.find('.') == std::string_view::npos;
    if (high.find('E') != std::string_view::npos) {
        return OfReal(aWidth);
    }
    // As many places behind the point as the bounds show, or as there is room for.
    const std::size_t point = high.find('.');
    int places = point == std::string_view::npos ? 0 : static_cast<int>(high.size() - point - 1);
    if (!whole && places == 0 && aWidth > high.size() + 1 && Pick(2) == 0) {
        places = static_cast<int>(aWidth - high.size() - 1);
    }
    const bool plus = low.front() == '+' || low.front() == '-' || high.front() == '+';
    std::array<char, 400> text{};
    const int printed = std::snprintf(text.data(), text.size(), plus ? "%+.*f" : "%.*f", places, number);
    return Padded(std::string(text.data(), static_cast<std::size_t>(printed)), aWidth, true);
}

std::string TreRecordMaker::OfPicture(std::string_view aPicture)
{
    constexpr std::array<std::string_view, 3> MONTHS{"JAN", "MAY", "DEC"};
    std::string text;
    while (!aPicture.empty()) {
        std::size_t taken = 1;
        const char first = aPicture.front();
        const auto two = [&](std::size_t aLow, std::size_t aCount) {
            text += Padded(std::to_string(aLow + Pick(aCount)), 2, true);
            taken = 2;
        };
        if (aPicture.starts_with("CCYY") || aPicture.starts_with("YYYY")) {
            text += std::to_string(1990 + Pick(40));
            taken = 4;
        } else if (aPicture.starts_with("MON") || aPicture.starts_with("MMM")) {
            text += MONTHS[Pick(MONTHS.size())];
            taken = 3;
        } else if (aPicture.starts_with("YY")) {
            two(0, 100);
        } else if (aPicture.starts_with("MM")) {
            two(1, 12);
        } else if (aPicture.starts_with("DD")) {
            two(1, 28);
        } else if (aPicture.starts_with("hh") || aPicture.starts_with("HH")) {
            two(0, 24);
        } else if (aPicture.starts_with("mm") || aPicture.starts_with("ss") || aPicture.starts_with("SS")) {
            two(0, 60);
        } else if (aPicture.starts_with("ddd")) {
            text += Padded(std::to_string(Pick(180)), 3, true);
            taken = 3;
        } else if (aPicture.starts_with("dd")) {
            two(0, 90);
        } else {
            text += first == 'X'                                                        ? PickOf("NS")
                    : first == 'Y'                                                      ? PickOf("EW")
                    : first == '+'                                                      ? PickOf("+-")
                    : first == 'x'                                                      ? PickOf(HEX)
                    : std::string_view("nefzsSd").find(first) != std::string_view::npos ? PickOf(DIGITS)
                    : std::string_view("BJKL").find(first) != std::string_view::npos    ? PickOf(LETTERS)
                                                                                        : first;
        }
        aPicture.remove_prefix(std::min(taken, aPicture.size()));
    }
    return text;
}

std::string TreRecordMaker::OfLetters(std::size_t aWidth, std::string_view aLetters)
{
    std::string text(aWidth, ' ');
    std::generate(text.begin(), text.end(), [&] { return PickOf(aLetters); });
    return text;
}

/// A number in as many characters as the field has, with an exponent where there is room.
std::string TreRecordMaker::OfReal(std::size_t aWidth)
{
    constexpr std::size_t EXPONENT = 4;
    constexpr std::size_t ROOM = 12;
    if (aWidth >= ROOM) {
        return PickOf("+-") + OfLetters(1, DIGITS) + "." + OfLetters(aWidth - 3 - EXPONENT, DIGITS) + "E" +
               PickOf("+-") + "0" + PickOf(DIGITS);
    }
    std::string text = OfLetters(aWidth, DIGITS);
    if (aWidth > 3) {
        text[1 + Pick(aWidth - 2)] = '.';
        text.front() = PickOf("+-0123456789");
    }
    return text;
}

std::string TreRecordMaker::OfForm(const FieldRow& aRow, std::size_t aWidth)
{
    if (aRow.IsBinary()) {
        std::string bytes(aWidth, '\0');
        std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(m_random() & 0xFFU); });
        if (aRow.form == Form::Float) {
            bytes[0] = Pick(2) == 0 ? '\x40' : '\xC0';  // no infinities, and nothing that %f prints as zero
        }
        return bytes;
    }
    switch (aRow.form) {
        case Form::Integer:
        case Form::Digits:
        case Form::DigitText:
        case Form::NumberText:
            return OfLetters(aWidth, DIGITS);
        case Form::Real:
            return OfReal(aWidth);
        default:
            break;
    }
    std::string text = OfLetters(1 + Pick(aWidth), TEXT);
    if (aRow.form == Form::Ecs) {
        text[Pick(text.size())] = static_cast<char>(0xA0U + Pick(0x60));
    } else if (aRow.form == Form::Utf8 && text.size() > 1) {
        text.replace(0, 2, "\xC3\xA9");
    }
    return Padded(text, aWidth, false);
}

void TreRecordMaker::Note(const FieldStore& aStore)
{
    std::vector<bool> here(m_table.Size());
    for (const FieldEntry& entry : aStore.Entries()) {
        here[entry.row] = true;
        m_reached[entry.row] = true;
    }
    const auto isHere = [&](std::size_t aFirst, std::size_t aLast) {
        const auto begin = here.begin();
        const auto last = begin + static_cast<std::ptrdiff_t>(aLast);
        return std::find(begin + static_cast<std::ptrdiff_t>(aFirst), last, true) != last;
    };
    for (std::size_t i = 0; i != m_table.Size(); ++i) {
        if (m_table.Row(i).kind != RowKind::When || isHere(i, m_table.Link(i).end)) {
            continue;
        }
        std::size_t around = i;
        while (around-- != 0 && !(m_table.Row(around).IsGroup() && m_table.Link(around).end > i)) {
        }
        m_passed[i] = m_passed[i] || around >= m_table.Size() || isHere(around, m_table.Link(around).end);
    }
}

std::vector<std::string> TreRecordMaker::NotSeen() const
{
    std::vector<std::string> missing;
    for (std::size_t i = 0; i != m_table.Size(); ++i) {
        const FieldRow& row = m_table.Row(i);
        if (row.IsField() && !m_reached[i]) {
            missing.emplace_back(row.tag);
        } else if (row.kind == RowKind::When && !m_passed[i]) {
            std::size_t first = i;
            while (!m_table.Row(first).IsField()) {
                ++first;
            }
            missing.push_back(std::string("no record without ") + m_table.Row(first).tag);
        }
    }
    return missing;
}

}  // namespace ORMO::SensorModel::CSM::Tests

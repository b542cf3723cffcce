#include "isd/detail/HeaderRepair.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::uint64_t MOST_HEADER = 999999;

/// A count or length as it stands in the header.
struct HeaderNumber
{
    std::uint16_t row = NO_ROW;
    std::uint32_t turn = 0;  ///< of the segment; 0 for a number that stands once
    std::uint64_t offset = 0;
    std::uint64_t value = 0;
    bool isNumber = false;
};

/// The numbers of a segment, by their places in the list.
struct HeaderSegment
{
    const SegmentKind* kind = nullptr;
    std::size_t header = 0;
    std::size_t data = 0;
};

/// Another number in the place of one.
struct Change
{
    std::size_t number = SIZE_MAX;
    std::uint64_t value = 0;
};

/// What the header says from HL to its end, each number standing where the ones before it put it.
struct HeaderNumbers
{
    std::vector<HeaderNumber> numbers;  ///< the first is HL
    std::vector<HeaderSegment> segments;
    std::uint64_t end = 0;
    bool isWhole = false;  ///< all are numbers and stand in the bytes

    std::uint64_t HeaderLength() const noexcept { return numbers.front().value; }
    std::uint64_t Sum() const noexcept
    {
        std::uint64_t sum = HeaderLength();
        for (const HeaderSegment& segment : segments) {
            sum += numbers[segment.header].value + numbers[segment.data].value;
        }
        return sum;
    }
};

/// What a walk looks at: all numbers, or only those that say where the header ends.
enum class Reach
{
    All,
    End
};

/// Walks the rows of the header from HL on, with one number changed.
class NumberWalk
{
public:
    NumberWalk(std::string_view aBytes, const FieldTable& aTable, NITFCnst::Version aVersion, Change aChange,
               Reach aReach)
        : m_bytes(aBytes), m_table(aTable), m_version(aVersion), m_change(aChange), m_reach(aReach)
    {
    }

    HeaderNumbers Walk(std::uint64_t aStart)
    {
        m_out.end = aStart;
        m_out.isWhole = true;
        for (std::size_t row = m_table.FindAny("HL"); row < m_table.Size() && IsInside(); ++row) {
            const FieldRow& fields = m_table.Row(row);
            if (fields.kind == RowKind::Repeat) {
                TakeSegments(row, fields.tag);
                row = m_table.Link(row).end;
            } else if (fields.kind == RowKind::When) {
                m_out.end += m_out.numbers.back().value;  // an extension area
                row = m_table.Link(row).end;
            } else if (fields.IsField()) {
                Take(row, 0);
            }
        }
        m_out.isWhole = m_out.isWhole && IsInside();
        return std::move(m_out);
    }

private:
    /// A walk that is beyond the end leads nowhere, so nothing is gained by going on.
    bool IsInside() const noexcept
    {
        const bool isBeyond = m_change.number != SIZE_MAX && m_change.number != 0 && !m_out.numbers.empty() &&
                              m_out.end > m_out.HeaderLength();
        return m_out.end <= m_bytes.size() && !isBeyond;
    }
    void TakeSegments(std::size_t aRepeat, const char* aCount)
    {
        const SegmentKind* const kind =
            std::find_if(std::begin(SEGMENT_KINDS), std::end(SEGMENT_KINDS), [&](const SegmentKind& aKind) {
                return aKind.version == LayoutVersion(m_version) && std::string_view(aKind.count) == aCount;
            });
        const std::uint64_t count = m_out.numbers.back().value;
        if (m_reach == Reach::End) {
            m_out.end += count * (m_table.Row(aRepeat + 1).width + m_table.Row(aRepeat + 2).width);
            m_walked += static_cast<std::size_t>(2 * count);
            return;
        }
        for (std::uint64_t turn = 1; turn <= count && IsInside(); ++turn) {
            m_out.segments.push_back({kind, m_out.numbers.size(), m_out.numbers.size() + 1});
            Take(aRepeat + 1, static_cast<std::uint32_t>(turn));
            Take(aRepeat + 2, static_cast<std::uint32_t>(turn));
        }
    }

    void Take(std::size_t aRow, std::uint32_t aTurn)
    {
        const std::uint32_t width = m_table.Row(aRow).width;
        HeaderNumber number{static_cast<std::uint16_t>(aRow), aTurn, m_out.end};
        const bool isThere = m_out.end + width <= m_bytes.size();
        number.isNumber = isThere && ToCount(m_bytes.substr(static_cast<std::size_t>(m_out.end), width), number.value);
        if (m_change.number == m_walked) {
            number.value = m_change.value;
            number.isNumber = isThere;
        }
        m_out.isWhole = m_out.isWhole && number.isNumber;
        m_out.end += width;
        m_out.numbers.push_back(number);
        ++m_walked;
    }

    std::string_view m_bytes;
    const FieldTable& m_table;
    NITFCnst::Version m_version;
    Change m_change;
    Reach m_reach;
    std::size_t m_walked = 0;  // numbers, those that were only stepped over included
    HeaderNumbers m_out;
};

class Repair
{
public:
    Repair(const ByteSource& aSource, NITFCnst::Version aVersion, std::string_view aBytes)
        : m_source(aSource),
          m_version(aVersion),
          m_table(LayoutOf(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, aVersion)->table),
          m_bytes(aBytes)
    {
        const bool downgraded =
            LayoutVersion(aVersion) == NITFCnst::NITF_VERSION_NUMBER_20 &&
            aBytes.substr(std::min<std::size_t>(DOWNGRADE_AT, aBytes.size()), 6) == NITFCnst::STR_VAL_999998;
        m_start = HEADER_LENGTH_AT + (downgraded ? DOWNGRADING_EVENT_WIDTH : 0);
    }

    HeaderNumbers With(Change aChange, Reach aReach = Reach::All) const
    {
        return NumberWalk(m_bytes, m_table, m_version, aChange, aReach).Walk(m_start);
    }

    /// Whether the header leads to the mark of every segment that the file holds.
    bool IsSound(const HeaderNumbers& aNumbers)
    {
        return aNumbers.isWhole && aNumbers.end == aNumbers.HeaderLength() && HasMarks(aNumbers);
    }

    /// The one change that lets everything fit; false when there is none, or more than one.
    bool Find(const HeaderNumbers& aNumbers, Change& aChange)
    {
        TryHeaderLength(aNumbers);
        TryLengths(aNumbers);
        TryCounts(aNumbers);
        TryAreas(aNumbers);
        if (m_found.size() > 1) {
            // The length of a subheader and that of its data make up for one another; the subheader itself decides.
            std::erase_if(m_found, [this](const Change& aFound) { return !FitsSubheader(aFound); });
        }
        if (m_found.size() != 1) {
            return false;
        }
        aChange = m_found.front();
        return true;
    }

    std::string Name(const HeaderNumber& aNumber) const
    {
        std::string name;
        m_table.AppendName(aNumber.row, Turns{aNumber.turn}, name);
        return name;
    }
    std::uint32_t Width(const HeaderNumber& aNumber) const { return m_table.Row(aNumber.row).width; }

private:
    std::string_view MarkAt(std::uint64_t aOffset)
    {
        const auto [place, isNew] = m_marks.try_emplace(aOffset);
        if (isNew && !m_source.Read(aOffset, 2, place->second)) {
            place->second.clear();
        }
        return place->second;
    }

    bool HasMarks(const HeaderNumbers& aNumbers)
    {
        std::uint64_t offset = aNumbers.HeaderLength();
        for (const HeaderSegment& segment : aNumbers.segments) {
            if (offset + 2 <= m_source.Size() && MarkAt(offset) != segment.kind->mark) {
                return false;
            }
            offset += aNumbers.numbers[segment.header].value + aNumbers.numbers[segment.data].value;
        }
        return true;
    }

    void Try(Change aChange)
    {
        // Thousands are tried, and nearly all end at a wrong place.
        const HeaderNumbers brief = With(aChange, Reach::End);
        if (!brief.isWhole || brief.end != brief.HeaderLength()) {
            return;
        }
        const HeaderNumbers numbers = With(aChange);
        if (numbers.isWhole && numbers.end == numbers.HeaderLength() && numbers.Sum() == m_source.Size() &&
            HasMarks(numbers)) {
            m_found.push_back(aChange);
        }
    }

    bool IsOfWidth(const HeaderNumber& aNumber, std::uint64_t aValue) const
    {
        return std::to_string(aValue).size() <= Width(aNumber);
    }

    void TryHeaderLength(const HeaderNumbers& aNumbers)
    {
        if (aNumbers.end <= MOST_HEADER && aNumbers.end != aNumbers.HeaderLength()) {
            Try({0, aNumbers.end});
        }
    }

    /// Every length in turn, made what the size of the file leaves for it. No other number moves for it.
    void TryLengths(const HeaderNumbers& aNumbers)
    {
        const auto wrong = std::count_if(aNumbers.numbers.begin(), aNumbers.numbers.end(),
                                         [](const HeaderNumber& aNumber) { return !aNumber.isNumber; });
        if (aNumbers.end != aNumbers.HeaderLength() || wrong > 1) {
            return;
        }
        HeaderNumbers changed = aNumbers;
        const std::uint64_t sum = aNumbers.Sum();
        for (const HeaderSegment& segment : aNumbers.segments) {
            for (const std::size_t at : {segment.header, segment.data}) {
                const HeaderNumber& number = aNumbers.numbers[at];
                const std::uint64_t others = sum - number.value;
                const std::uint64_t left = m_source.Size() >= others ? m_source.Size() - others : number.value;
                if (left == number.value || !IsOfWidth(number, left) || (wrong == 1 && number.isNumber)) {
                    continue;
                }
                changed.numbers[at].value = left;
                if (HasMarks(changed)) {
                    m_found.push_back({at, left});
                }
                changed.numbers[at].value = number.value;
            }
        }
    }

    /// Every count of segments in turn. The numbers behind a wrong one are not what they seem, so all are walked anew.
    void TryCounts(const HeaderNumbers& aNumbers)
    {
        constexpr std::uint64_t MOST_SEGMENTS = 999;
        for (std::size_t at = 1; at < aNumbers.numbers.size(); ++at) {
            const std::uint16_t row = aNumbers.numbers[at].row;
            if (row + std::size_t{1} >= m_table.Size() || m_table.Row(row + std::size_t{1}).kind != RowKind::Repeat) {
                continue;
            }
            for (std::uint64_t count = 0; count <= MOST_SEGMENTS; ++count) {
                if (count != aNumbers.numbers[at].value || !aNumbers.numbers[at].isNumber) {
                    Try({at, count});
                }
            }
        }
    }

    /// The lengths of the extension areas: what lets the header end where HL says.
    void TryAreas(const HeaderNumbers& aNumbers)
    {
        for (std::size_t at = 1; at < aNumbers.numbers.size(); ++at) {
            const HeaderNumber& number = aNumbers.numbers[at];
            const std::size_t area = number.row + std::size_t{1};
            if (area >= m_table.Size() || m_table.Row(area).kind != RowKind::When) {
                continue;
            }
            const std::uint64_t behind = number.offset + Width(number);
            const std::uint64_t most = aNumbers.HeaderLength() > behind ? aNumbers.HeaderLength() - behind : 0;
            const std::size_t next = m_table.Link(area).end + std::size_t{1};
            for (std::uint64_t length = 0; length <= most && IsOfWidth(number, length); ++length) {
                const bool ends = next >= m_table.Size()
                                      ? length == most
                                      : AreaEndsAt(behind + length, m_table.Row(next).width, aNumbers.HeaderLength());
                if (ends && (length != number.value || !number.isNumber)) {
                    Try({at, length});
                }
            }
        }
    }

    /// Whether the length of another area stands at an offset and leads to an end.
    bool AreaEndsAt(std::uint64_t aOffset, std::uint32_t aWidth, std::uint64_t aEnd) const
    {
        std::uint64_t length = 0;
        return aOffset + aWidth <= m_bytes.size() &&
               ToCount(m_bytes.substr(static_cast<std::size_t>(aOffset), aWidth), length) &&
               aOffset + aWidth + length == aEnd;
    }

    /// Whether the subheader whose numbers a change touches is as long as its fields; true for any other change.
    bool FitsSubheader(const Change& aChange) const
    {
        const HeaderNumbers numbers = With(aChange);
        std::uint64_t offset = numbers.HeaderLength();
        for (const HeaderSegment& segment : numbers.segments) {
            const std::uint64_t length = numbers.numbers[segment.header].value;
            if (segment.header == aChange.number || segment.data == aChange.number) {
                return FieldsEndAt(*segment.kind, offset, length);
            }
            offset += length + numbers.numbers[segment.data].value;
        }
        return true;
    }

    bool FieldsEndAt(const SegmentKind& aKind, std::uint64_t aOffset, std::uint64_t aLength) const
    {
        NITFFieldSegment::Input input;
        input.versionText = NITFCnst::GetNITFVersionString(m_version);
        input.info.SetSegmentType(aKind.mark, m_version);
        input.info.SetSegmentHeaderStart(aOffset);
        input.info.SetSegmentHeaderSize(static_cast<std::uint32_t>(aLength));
        try {
            if (!m_source.Read(aOffset, aLength, input.raw)) {
                return false;
            }
            const auto segment = MakeSegment(aKind.kind, m_version, input);
            return segment != nullptr && segment->Inside().record.Store().Size() == aLength;
        } catch (const CSMException&) {
            return false;
        }
    }

    const ByteSource& m_source;
    NITFCnst::Version m_version;
    const FieldTable& m_table;
    std::string_view m_bytes;
    std::uint64_t m_start = 0;
    std::map<std::uint64_t, std::string> m_marks;
    std::vector<Change> m_found;
};

Finding Told(const Repair& aRepair, const HeaderNumber& aNumber, std::string_view aFound, std::string_view aTaken)
{
    Finding finding = MakeFinding("ERROR: The file header does not lead to its segments; with " + std::string(aTaken) +
                                  " in this field it does, and that is taken.");
    finding.owner = finding.segment = NITFCnst::XML_ELEMENT_NITF_FILE_HEADER;
    finding.field = aRepair.Name(aNumber);
    finding.value = aFound;
    finding.offset = aNumber.offset;
    return finding;
}

}  // namespace

bool RepairFileHeader(const ByteSource& aSource, NITFCnst::Version aVersion, std::string& aRaw, FindingList& aFindings)
{
    std::string bytes;
    if (!aSource.ReadUpTo(0, MOST_HEADER, bytes) || bytes.size() < HEADER_LENGTH_AT) {
        return false;
    }
    Repair repair(aSource, aVersion, bytes);
    const HeaderNumbers numbers = repair.With({});
    Change change;
    if (numbers.numbers.empty() || repair.IsSound(numbers) || !repair.Find(numbers, change)) {
        return false;
    }
    const HeaderNumbers repaired = repair.With(change);
    const HeaderNumber& number = repaired.numbers[change.number];
    const std::uint32_t width = repair.Width(number);
    const std::string digits = std::to_string(change.value);
    const std::string taken = std::string(width - digits.size(), '0') + digits;
    const auto at = static_cast<std::size_t>(number.offset);
    aFindings.Add(Told(repair, number, std::string_view(bytes).substr(at, width), taken));
    bytes.replace(at, width, taken);
    bytes.resize(static_cast<std::size_t>(repaired.HeaderLength()));
    aRaw = std::move(bytes);
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail

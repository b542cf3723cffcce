#include "tre/detail/TreArea.h"

#include "fields/MessageText.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/TREStore.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::size_t TAG_WIDTH = TRE::Parts::TAG_WIDTH;
constexpr std::size_t LENGTH_WIDTH = TRE::Parts::LENGTH_WIDTH;
constexpr std::size_t HEADER_WIDTH = TRE::Parts::HEADER_WIDTH;
// A warning shows no more of an ignored area than a person would read.
constexpr std::size_t MOST_SHOWN = 2000;
// Turns are counted for messages only; no area is worth more of it.
constexpr std::size_t MOST_COUNTED = std::size_t{1} << 22U;

/// The bytes of an area as a message can carry them.
std::string AreaText(std::string_view aArea)
{
    const bool printable = std::none_of(aArea.begin(), aArea.end(), [](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        return byte < 0x20 && aCharacter != '\n' && aCharacter != '\r' && aCharacter != '\t';
    });
    return printable && aArea.size() <= MOST_SHOWN ? std::string(aArea) : Shown(aArea, MOST_SHOWN / 2);
}

bool IsPlainLength(std::string_view aField) noexcept
{
    return std::all_of(aField.begin(), aField.end(), IsDigit);
}

/// The length field, by the conversion that all fields share; below 1 when it holds none.
long LengthOf(std::string_view aField)
{
    long length = 0;
    if (IsPlainLength(aField)) {
        for (const char digit : aField) {
            length = 10 * length + (digit - '0');
        }
        return length;
    }
    std::array<char, LENGTH_WIDTH + 1> text{};
    std::copy(aField.begin(), aField.end(), text.begin());
    return aField.find('\0') == std::string_view::npos && Util::CSMUtilString::ToLong(text.data(), length) ? length : 0;
}

/// The records of an area, one after the other.
class AreaWalk
{
public:
    enum class Step
    {
        Record,
        End,       ///< less than a tag and a length is left
        NoRecord,  ///< a tag or length that is none
        Short      ///< the data would go beyond the area
    };

    explicit AreaWalk(std::string_view aArea) noexcept : m_area(aArea), m_rest(aArea) {}

    Step Next()
    {
        m_rest.remove_prefix(m_size);
        m_size = 0;
        if (m_rest.size() < HEADER_WIDTH) {
            return Step::End;
        }
        // A NUL ends a tag, for tags are texts. One of blanks ends the area; other white space around it is no part of
        // it.
        std::string_view tag = m_rest.substr(0, TAG_WIDTH);
        tag = tag.substr(0, tag.find('\0'));
        const bool blank = tag.find_first_not_of(' ') == std::string_view::npos;
        tag = Trimmed(tag);
        m_tag = {};
        std::copy(tag.begin(), tag.end(), m_tag.begin());
        m_length = LengthOf(m_rest.substr(TAG_WIDTH, LENGTH_WIDTH));
        if (m_length < 1 || blank) {
            return Step::NoRecord;
        }
        if (m_rest.size() - HEADER_WIDTH < Length()) {
            return Step::Short;
        }
        m_size = HEADER_WIDTH + Length();
        return Step::Record;
    }

    const char* Tag() const noexcept { return m_tag.data(); }
    std::size_t Length() const noexcept { return static_cast<std::size_t>(m_length); }
    std::string_view Header() const noexcept { return m_rest.substr(0, HEADER_WIDTH); }
    std::string_view Data() const noexcept { return m_rest.substr(HEADER_WIDTH, Length()); }
    /// From the record that was stepped to up to the end of the area.
    std::string_view Rest() const noexcept { return m_rest; }
    std::string_view Area() const noexcept { return m_area; }
    std::size_t Offset() const noexcept { return m_area.size() - m_rest.size(); }

private:
    std::string_view m_area;
    std::string_view m_rest;
    std::array<char, TAG_WIDTH + 1> m_tag{};
    long m_length = 0;
    std::size_t m_size = 0;
};

/// Makes the findings of one area. The turns of a tag are counted when a finding needs them.
class AreaReport
{
public:
    AreaReport(const AreaWalk& aWalk, const AreaPlace& aPlace, FindingList& aFindings) noexcept
        : m_walk(aWalk), m_place(aPlace), m_findings(aFindings)
    {
    }

    /// A finding about the record that was stepped to; `aFill` completes it and answers its text.
    template<typename Fill>
    void Add(std::string_view aSentence, std::string_view aRule, Fill aFill,
             Finding::Level aLevel = Finding::Level::Warning)
    {
        m_findings.AddMade(aLevel, aRule, [&](FindingList& aList) {
            Finding finding = MakeFinding(aSentence, aRule);
            SetLevel(finding, aLevel);
            finding.tre = m_walk.Tag();
            finding.turn = Turn();
            finding.area = ViewOf(m_place.name);
            finding.offset = IsPlaced() ? m_place.offset + m_walk.Offset() : Finding::NO_OFFSET;
            finding.value = m_walk.Header();
            std::string text = aFill(finding);
            aList.Add(std::move(finding), std::move(text));
        });
    }

    bool IsPlaced() const noexcept { return !ViewOf(m_place.name).empty(); }

private:
    struct Count
    {
        std::string tag;
        AreaWalk walk;
        int count = 0;
    };

    /// The turn of the record among those of its tag; 0 when it is not known.
    int Turn()
    {
        auto it = std::find_if(m_counts.begin(), m_counts.end(),
                               [this](const Count& aCount) { return aCount.tag == m_walk.Tag(); });
        if (it == m_counts.end()) {
            it = m_counts.insert(it, Count{m_walk.Tag(), AreaWalk(m_walk.Area())});
        }
        while (it->walk.Offset() < m_walk.Offset() || it->count == 0) {
            if (++m_steps > MOST_COUNTED) {
                return 0;
            }
            const bool record = it->walk.Next() == AreaWalk::Step::Record;
            it->count += it->tag == it->walk.Tag() ? 1 : 0;
            if (!record) {
                break;
            }
        }
        return it->count;
    }

    const AreaWalk& m_walk;
    const AreaPlace& m_place;
    FindingList& m_findings;
    std::vector<Count> m_counts;
    std::size_t m_steps = 0;
};

void ReportEnd(AreaReport& aReport, const AreaWalk& aWalk, AreaWalk::Step aStep, const AreaPlace& aPlace,
               Finding::Level aLevel)
{
    if (aStep == AreaWalk::Step::NoRecord) {
        const auto fill = [&](Finding& aFinding) {
            aFinding.detail =
                "The length " + Shown(aWalk.Header().substr(TAG_WIDTH)) + " is no number above 0 or the tag is blank.";
            return "WARN: The following TRE data stream contains errors, it has been ignored:\n\n" +
                   AreaText(aWalk.Area());
        };
        aReport.Add("WARN: The rest of an extension area is ignored: no TRE begins where one must.", aPlace.rule, fill,
                    aLevel);
    } else if (aStep == AreaWalk::Step::Short) {
        const auto fill = [&](Finding& aFinding) {
            const std::string lengths = "length claimed = " + std::to_string(aWalk.Length()) +
                                        ", available = " + std::to_string(aWalk.Rest().size() - HEADER_WIDTH);
            aFinding.detail = "Data: " + lengths + '.';
            std::string text = "WARN: Failed to extract the CEDATA/REDATA field of TRE " + Quoted(aWalk.Tag()) +
                               ". The following TRE data stream has been ignored:\n\n" + AreaText(aWalk.Rest());
            if (aReport.IsPlaced()) {
                text += "\n[area " + std::string(aPlace.name) + ", byte offset " +
                        std::to_string(aPlace.offset + aWalk.Offset()) + ", " + lengths + ']';
            }
            return text;
        };
        aReport.Add("WARN: The rest of an extension area is ignored: a TRE goes beyond it.", aPlace.rule, fill, aLevel);
    }
}

/// A TRE that is not typed, or that is none at all.
void ReportFault(AreaReport& aReport, const AreaWalk& aWalk, const TreFault& aFault, bool aKept)
{
    constexpr const char* KEPT = "WARN: The data of a TRE do not fit its tag; it is kept without fields.";
    constexpr const char* LEFT_OUT = "WARN: A TRE has no typed form and is left out.";
    constexpr const char* FAILED = "WARN: A TRE could not be made and is left out.";
    const bool failed = aFault.kind == TreFault::Kind::NoTag;
    aReport.Add(failed  ? FAILED
                : aKept ? KEPT
                        : LEFT_OUT,
                failed  ? "RD-05"
                : aKept ? "RD-03"
                        : "RD-04",
                [&](Finding& aFinding) {
                    aFinding.owner = aWalk.Tag();
                    aFinding.value = aWalk.Data().substr(0, 64);
                    const std::size_t toData = aFault.kind == TreFault::Kind::Fields ? HEADER_WIDTH : 0;
                    aFinding.offset += aFinding.offset == Finding::NO_OFFSET ? 0 : toData;
                    aFault.Describe(aFinding);
                    if (aKept || failed) {
                        return aFault.Cause(aWalk.Tag());
                    }
                    const std::string message = "ERROR: Specifc TRE " + Quoted(aWalk.Tag()) +
                                                " currently not supported by the Ormo CSM System.";
                    std::string text =
                        "WARN: An UnsupportedTREException exception was caught while attempting to create TRE " +
                        Quoted(aWalk.Tag()) + '.' + ErrorMessage(message.c_str());
                    AppendBlock(text, aFault.Cause(aWalk.Tag()));
                    return text;
                });
}

/// The fault of a tag that is none.
TreFault NoTag()
{
    TreFault fault;
    fault.kind = TreFault::Kind::NoTag;
    fault.text = "WARN: An invalid_argument exception was caught while attempting to create TRE \"\"." +
                 ErrorMessage("ERROR: Input CETAG/RETAG cannot be NULL or an empty string.");
    return fault;
}

}  // namespace

int ExtractTREs(std::string_view aArea, TREStore& aStore, const AreaOptions& aOptions,
                Util::CSMCnst::ByteOrder aByteOrder, const AreaPlace& aPlace, FindingList& aFindings)
{
    AreaWalk walk(aArea);
    AreaReport report(walk, aPlace, aFindings);
    TreFault fault;
    int count = 0;
    AreaWalk::Step step = walk.Next();
    for (; step == AreaWalk::Step::Record; step = walk.Next()) {
        const KnownTag known = FindKnown(walk.Tag());
        const TreRecord record{walk.Tag(), walk.Header(), walk.Data(), known.TypeOr(walk.Tag(), aPlace.unknownType),
                               aByteOrder};
        aStore.Reserve(1);
        OwnedTre tre;
        if (*walk.Tag() == '\0') {
            fault = NoTag();
        } else {
            tre = TreMaker::Make(known, record, aOptions.typedOnly, aOptions.validate, fault);
        }
        if (tre == nullptr || !fault.IsGood()) {
            ReportFault(report, walk, fault, tre != nullptr);
        }
        if (tre != nullptr) {
            TreMaker::SetPlace(*tre, aPlace.name == nullptr ? "" : aPlace.name, aPlace.offset + walk.Offset());
            aStore.Add(tre.release());
            ++count;
        }
    }
    ReportEnd(report, walk, step, aPlace, Finding::Level::Warning);
    return count;
}

void CheckArea(std::string_view aArea, const AreaPlace& aPlace, FindingList& aFindings)
{
    AreaWalk walk(aArea);
    AreaReport report(walk, aPlace, aFindings);
    const auto isTagCharacter = [](char aCharacter) {
        return (aCharacter >= 'A' && aCharacter <= 'Z') || IsDigit(aCharacter) || aCharacter == '_';
    };
    AreaWalk::Step step = walk.Next();
    for (; step == AreaWalk::Step::Record; step = walk.Next()) {
        const std::string_view tag = walk.Header().substr(0, TAG_WIDTH);
        const std::string_view written = tag.substr(0, tag.find_last_not_of(' ') + 1);
        if (!std::all_of(written.begin(), written.end(), isTagCharacter)) {
            report.Add("WARN: The tag of a TRE holds a character that no tag may hold.", "TR-02",
                       [&](Finding& aFinding) {
                           aFinding.value = tag;
                           return std::string();
                       });
        }
        const std::string_view length = walk.Header().substr(TAG_WIDTH);
        if (!IsPlainLength(length)) {
            report.Add("WARN: The length of a TRE is not written in digits.", "TR-02", [&](Finding& aFinding) {
                aFinding.value = length;
                aFinding.allowed = "00001..99999";
                return std::string();
            });
        }
    }
    const bool padded = walk.Rest().find_first_not_of(std::string_view(" \0", 2)) == std::string_view::npos;
    const auto level = padded ? Finding::Level::Warning : Finding::Level::Error;
    ReportEnd(report, walk, step, aPlace, level);
    if (step == AreaWalk::Step::End && !walk.Rest().empty()) {
        const auto fill = [&](Finding& aFinding) {
            aFinding.detail = std::to_string(walk.Rest().size()) + " byte(s) are left.";
            aFinding.tre.clear();
            aFinding.turn = 0;
            aFinding.value = walk.Rest();
            return std::string();
        };
        report.Add("WARN: An extension area ends with bytes that are no TRE.", aPlace.rule, fill, level);
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail

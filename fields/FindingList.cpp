#include "fields/FindingList.h"

#include "fields/MessageText.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM {

namespace {

/// Of a value no more than a person would read.
constexpr std::size_t MOST_VALUE = 64;

bool IsError(Finding::Level aLevel) noexcept
{
    return aLevel != Finding::Level::Warning;
}

/// The fixed sentences about a field are closed by its name; a sentence of its own is closed already.
bool NamesField(const Finding& aFinding) noexcept
{
    return !aFinding.field.empty() && !aFinding.sentence.ends_with('.');
}

std::string SentenceOf(const Finding& aFinding)
{
    std::string text = aFinding.sentence;
    if (NamesField(aFinding)) {
        text += ' ';
        text += aFinding.owner.empty() ? "" : aFinding.owner + "::";
        text += aFinding.field;
    }
    return text;
}

void AppendPart(std::string& aText, std::string_view aJoin, std::string_view aPart)
{
    aText += aText.empty() ? "" : aJoin;
    aText += aPart;
}

}  // namespace

std::string Finding::Place() const
{
    std::string place = index == NO_INDEX ? segment : segment + ' ' + std::to_string(index);
    if (!tre.empty()) {
        AppendPart(place, ", ", "TRE " + Detail::Printable(tre) + (turn == 0 ? "" : ' ' + std::to_string(turn)));
    }
    if (!area.empty()) {
        AppendPart(place, ", ", area);
    }
    if (!field.empty() && !NamesField(*this)) {
        AppendPart(place, " ", "field " + field);
    }
    if (offset != NO_OFFSET) {
        AppendPart(place, " at ", "byte offset " + std::to_string(offset));
    }
    if (!value.empty()) {
        AppendPart(place, ": ", "value " + Detail::Shown(value));
    }
    if (!detail.empty()) {
        // A value may be followed by what it does ("is not a number") or by a sentence.
        const bool isSentence = detail.back() == '.';
        AppendPart(place, value.empty() || isSentence ? ": " : " ",
                   detail.substr(0, detail.size() - (isSentence ? 1 : 0)));
    }
    if (!allowed.empty()) {
        AppendPart(place, ", ", "allowed " + allowed);
    }
    if (!clause.empty()) {
        AppendPart(place, ", ", clause);
    }
    if (!rule.empty()) {
        AppendPart(place, ", ", "rule " + rule);
    }
    return place;
}

std::string Finding::Line() const
{
    const std::string place = Place();
    return Detail::Printable(place.empty() ? SentenceOf(*this) : SentenceOf(*this) + " [" + place + ']');
}

namespace Detail {

std::string Block(const Finding& aFinding)
{
    const std::string place = aFinding.Place();
    return place.empty() ? SentenceOf(aFinding) : SentenceOf(aFinding) + "\n[" + Printable(place) + ']';
}

Finding MakeFinding(Finding::Level aLevel, std::string_view aSentence, std::string_view aOwner, std::string_view aField)
{
    Finding finding;
    finding.level = aLevel;
    finding.sentence = aSentence;
    finding.owner = aOwner;
    finding.field = aField;
    return finding;
}

Finding MakeFinding(std::string_view aSentence, std::string_view aRule)
{
    Finding finding = MakeFinding(aSentence.starts_with("WARN")    ? Finding::Level::Warning
                                  : aSentence.starts_with("FATAL") ? Finding::Level::Fatal
                                                                   : Finding::Level::Error,
                                  aSentence);
    finding.rule = aRule;
    return finding;
}

std::string_view LevelPrefix(Finding::Level aLevel) noexcept
{
    constexpr std::array<std::string_view, 3> PREFIXES{"WARN: ", "ERROR: ", "FATAL: "};
    return PREFIXES[static_cast<std::size_t>(aLevel)];
}

void SetLevel(Finding& aFinding, Finding::Level aLevel)
{
    const std::string_view prefix = LevelPrefix(aFinding.level);
    if (aFinding.sentence.starts_with(prefix)) {
        aFinding.sentence.replace(0, prefix.size(), LevelPrefix(aLevel));
    }
    aFinding.level = aLevel;
}

bool FindingList::IsIgnored(std::string_view aRule) const noexcept
{
    return !aRule.empty() && std::find(m_ignored.begin(), m_ignored.end(), aRule) != m_ignored.end();
}

void FindingList::Add(Finding aFinding, std::string aText)
{
    if (IsIgnored(aFinding.rule)) {
        return;
    }
    ++m_counts[static_cast<std::size_t>(aFinding.level)];
    if (!HasRoom()) {
        return;
    }
    if (aFinding.value.size() > MOST_VALUE) {
        aFinding.value.resize(MOST_VALUE);
        aFinding.value.shrink_to_fit();
    }
    m_bytes += aFinding.sentence.size() + aFinding.detail.size() + aFinding.value.size() + aFinding.allowed.size() +
               aFinding.owner.size() + aFinding.field.size() + aText.size();
    m_kept.push_back({std::move(aFinding), std::move(aText)});
}

void FindingList::Add(const FindingList& aOther)
{
    for (const Entry& entry : aOther.m_kept) {
        Add(entry.finding, entry.text);
    }
    AddCounts(aOther.LeftOutByLevel());
}

void FindingList::AddCounts(const std::array<std::size_t, 3>& aCounts) noexcept
{
    for (std::size_t i = 0; i != m_counts.size(); ++i) {
        m_counts[i] += aCounts[i];
    }
}

std::array<std::size_t, 3> FindingList::LeftOutByLevel() const noexcept
{
    auto left = m_counts;
    for (const Entry& entry : m_kept) {
        --left[static_cast<std::size_t>(entry.finding.level)];
    }
    return left;
}

std::size_t FindingList::Errors(const FindingMark& aSince) const noexcept
{
    return m_counts[1] + m_counts[2] - aSince.counts[1] - aSince.counts[2];
}

std::size_t FindingList::Warnings(const FindingMark& aSince) const noexcept
{
    return m_counts[0] - aSince.counts[0];
}

std::vector<Finding> FindingList::Findings() const
{
    std::vector<Finding> findings;
    findings.reserve(m_kept.size());
    for (const Entry& entry : m_kept) {
        findings.push_back(entry.finding);
    }
    return findings;
}

void FindingList::PlaceAt(const FindingMark& aSince, std::string_view aSegment, int aIndex)
{
    for (std::size_t i = aSince.kept; i < m_kept.size(); ++i) {
        Finding& finding = m_kept[i].finding;
        if (finding.segment.empty()) {
            finding.segment = aSegment;
            finding.index = aIndex;
        }
    }
}

std::string FindingList::Joined(bool aErrors, const FindingMark& aSince, std::string_view aJoin, bool aLines) const
{
    std::string text;
    std::size_t shown = 0;
    for (std::size_t i = aSince.kept; i < m_kept.size(); ++i) {
        const Entry& entry = m_kept[i];
        if (IsError(entry.finding.level) == aErrors) {
            text += shown++ == 0 ? "" : aJoin;
            text += aLines ? entry.finding.Line() : entry.text.empty() ? Block(entry.finding) : entry.text;
        }
    }
    const std::size_t all = aErrors ? Errors(aSince) : Warnings(aSince);
    if (shown < all) {
        text += text.empty() ? "" : aJoin;
        text += "WARN: " + std::to_string(all - shown) + " further messages are left out.";
    }
    return text;
}

std::string FindingList::Blocks(bool aErrors, const FindingMark& aSince) const
{
    return Joined(aErrors, aSince, "\n\n", false);
}

std::string FindingList::Lines(bool aErrors, const FindingMark& aSince) const
{
    return Joined(aErrors, aSince, "\n", true);
}

std::string FindingList::LeftOutLine() const
{
    return LeftOut() == 0 ? std::string() : "WARN: " + std::to_string(LeftOut()) + " further messages are left out.";
}

void FindingList::Clear() noexcept
{
    m_kept.clear();
    m_bytes = 0;
    m_counts = {};
}

}  // namespace Detail
}  // namespace ORMO::SensorModel::CSM

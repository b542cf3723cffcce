#pragma once

#include "foundation/Finding.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// A mark in a list of findings: everything added later stands behind it.
struct FindingMark
{
    std::size_t kept = 0;
    std::array<std::size_t, 3> counts{};
};

/// Collects what is found wrong with one file. All findings are counted; only so many are kept, and only so much of
/// their text, that no file can make the library hold more than a few hundred kilobytes. The only writer of error and
/// warning texts.
class FindingList
{
public:
    static constexpr std::size_t MOST = 1000;
    static constexpr std::size_t MOST_TEXT = std::size_t{256} << 10U;

    using Level = Finding::Level;

    /// `aText` is what the error or warning text of an operation says in place of the finding's own line.
    void Add(Finding aFinding, std::string aText = {});
    /// Adds the findings of another list, with all that it counted.
    void Add(const FindingList& aOther);
    /// Counts a finding, and makes it only when there is room for it: a fault that a file may repeat a million times
    /// costs nothing once the list is full.
    template<typename Make>
    void AddMade(Level aLevel, std::string_view aRule, Make aMake)
    {
        if (IsIgnored(aRule)) {
            return;
        }
        if (HasRoom()) {
            aMake(*this);
        } else {
            ++m_counts[static_cast<std::size_t>(aLevel)];
        }
    }
    bool HasRoom() const noexcept { return m_kept.size() < MOST && m_bytes < MOST_TEXT; }
    /// Findings of these rules are neither kept nor counted from now on.
    void Ignore(std::vector<std::string> aRules) { m_ignored = std::move(aRules); }
    bool IsIgnored(std::string_view aRule) const noexcept;
    /// Puts what is kept into the order of a key, equal ones as they were.
    template<typename Key>
    void SortBy(Key aKey)
    {
        std::stable_sort(m_kept.begin(), m_kept.end(), [&](const Entry& aFirst, const Entry& aSecond) {
            return aKey(aFirst.finding) < aKey(aSecond.finding);
        });
    }

    bool IsEmpty() const noexcept { return Count() == 0; }
    std::size_t Count() const noexcept { return m_counts[0] + m_counts[1] + m_counts[2]; }
    std::size_t Count(Level aLevel) const noexcept { return m_counts[static_cast<std::size_t>(aLevel)]; }
    /// Errors, fatal ones included, behind a mark.
    std::size_t Errors(const FindingMark& aSince = {}) const noexcept;
    std::size_t Warnings(const FindingMark& aSince = {}) const noexcept;
    std::size_t LeftOut() const noexcept { return Count() - m_kept.size(); }
    std::array<std::size_t, 3> LeftOutByLevel() const noexcept;
    /// Counts findings that another list has left out.
    void AddCounts(const std::array<std::size_t, 3>& aCounts) noexcept;

    FindingMark Now() const noexcept { return {m_kept.size(), m_counts}; }
    std::size_t KeptCount() const noexcept { return m_kept.size(); }
    const Finding& Kept(std::size_t aIndex) const noexcept { return m_kept[aIndex].finding; }
    std::vector<Finding> Findings() const;

    /// Gives every finding behind the mark that names no segment its segment: who reads a part of it does not know.
    void PlaceAt(const FindingMark& aSince, std::string_view aSegment, int aIndex);
    /// Gives every finding behind the mark the turn of its TRE, which is worked out only when there is such a finding.
    template<typename Turn>
    void TurnAt(const FindingMark& aSince, Turn aTurn)
    {
        const int turn = m_kept.size() > aSince.kept ? aTurn() : 0;
        for (std::size_t i = aSince.kept; i < m_kept.size(); ++i) {
            m_kept[i].finding.turn = turn;
        }
    }

    /// The texts of errors, or of warnings, behind a mark, with a blank line between them: what the last-error and
    /// last-warning texts of readers say. A last one says how many more there were.
    std::string Blocks(bool aErrors, const FindingMark& aSince = {}) const;
    /// The lines of errors, or of warnings, behind a mark: what a validation says.
    std::string Lines(bool aErrors, const FindingMark& aSince = {}) const;
    /// The line that says how many findings were left out; empty when none were.
    std::string LeftOutLine() const;

    void Clear() noexcept;

private:
    struct Entry
    {
        Finding finding;
        std::string text;
    };

    std::string Joined(bool aErrors, const FindingMark& aSince, std::string_view aJoin, bool aLines) const;

    std::vector<std::string> m_ignored;
    std::vector<Entry> m_kept;
    std::size_t m_bytes = 0;
    std::array<std::size_t, 3> m_counts{};
};

/// What the error and warning texts of operations say of a finding that has no text of its own: the sentence, and in
/// brackets on a line below it what else is known.
std::string Block(const Finding& aFinding);

/// A finding about a field: the fixed sentence, whose field, which one.
Finding MakeFinding(Finding::Level aLevel, std::string_view aSentence, std::string_view aOwner = {},
                    std::string_view aField = {});
/// A finding that is a sentence of its own; the level is that of its prefix.
Finding MakeFinding(std::string_view aSentence, std::string_view aRule = {});
/// Gives a finding another level, which its sentence says too.
void SetLevel(Finding& aFinding, Finding::Level aLevel);
/// What a sentence of that level begins with.
std::string_view LevelPrefix(Finding::Level aLevel) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail

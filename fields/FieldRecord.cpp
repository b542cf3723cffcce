#include "fields/FieldRecord.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// Of a long rule only the front: a hundred names help nobody.
constexpr std::size_t MOST_ALLOWED = 120;

bool IsMild(const FieldRow& aRow, Verdict aVerdict) noexcept
{
    return aRow.need == Need::Optional || aRow.isMild || (aVerdict == Verdict::Blank && aRow.oftenBlank);
}

/// The validation rule that a value breaks: the row's own, or the common one of what was found.
std::string_view RuleOf(const FieldRow& aRow, Verdict aVerdict) noexcept
{
    if (aRow.rule != nullptr) {
        return aRow.rule;
    }
    switch (aVerdict) {
        case Verdict::WrongCharacters:
            return "FLD-02";
        case Verdict::Blank:
            return "FLD-03";
        case Verdict::NotANumber:
            return "FLD-04";
        default:
            return "FLD-01";
    }
}

}  // namespace

std::string_view FieldRecord::Trimmed(std::string_view aName) noexcept
{
    return Detail::Trimmed(aName);
}

std::string_view FieldRecord::Text(std::string_view aName) const noexcept
{
    const FieldEntry* const entry = Find(aName);
    return entry == nullptr ? std::string_view{} : m_store.Value(*entry);
}

bool FieldRecord::Text(std::string_view aName, const char*& aValue, std::size_t& aLength) const noexcept
{
    const std::string_view value = Text(aName);
    aValue = value.data();
    aLength = value.size();
    return aValue != nullptr;
}

bool FieldRecord::At(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const
{
    if (aIndex >= m_store.Entries().size()) {
        return false;
    }
    const FieldEntry& entry = m_store.Entries()[aIndex];
    aName.clear();
    m_store.AppendName(entry, aName);
    aValue = m_store.Value(entry).data();
    aLength = entry.length;
    return true;
}

bool FieldRecord::AsBool(std::string_view aName, bool& aOut) const
{
    const std::string_view text = Text(aName);
    return text.data() != nullptr && Util::CSMUtilString::ToBool(text.data(), aOut);
}

bool FieldRecord::IsBinary(std::string_view aName) const noexcept
{
    const FieldEntry* const entry = Find(aName);
    return entry != nullptr && m_store.Row(*entry).IsBinary();
}

bool FieldRecord::IsEditable(std::string_view aName) const noexcept
{
    const FieldEntry* const entry = Find(aName);
    // A tag that repeats, or was not read, is asked for as it stands in the table.
    const std::uint16_t row = entry != nullptr ? entry->row : Table().FindAny(Trimmed(aName));
    return row != NO_ROW && Table().IsEditable(row);
}

int FieldRecord::Allows(std::string_view aName, const char* aValue) const
{
    Turns turns{};
    const std::string_view name = Trimmed(aName);
    std::uint16_t row = Table().Resolve(name, turns);
    row = row == NO_ROW ? Table().FindAny(name) : row;
    if (row == NO_ROW || aValue == nullptr) {
        return -1;
    }
    return CheckValue(Table().Row(row), aValue, m_store.Order()) == Verdict::Good ? 1 : 0;
}

void FieldRecord::Check(const Finding& aPlace, FindingList& aFindings) const
{
    for (const FieldEntry& entry : m_store.Entries()) {
        const FieldRow& row = m_store.Row(entry);
        const std::string_view value = m_store.Value(entry);
        const Verdict verdict = CheckValue(row, value, m_store.Order());
        if (verdict == Verdict::Good) {
            continue;
        }
        const auto level = IsMild(row, verdict) ? Finding::Level::Warning : Finding::Level::Error;
        const std::string_view rule = RuleOf(row, verdict);
        aFindings.AddMade(level, rule, [&](FindingList& aList) {
            Finding finding = aPlace;
            finding.level = level;
            finding.rule = rule;
            finding.sentence = FaultSentence(row, verdict);
            finding.field = m_store.Name(entry);
            finding.value = value.substr(0, 64);
            finding.allowed = AllowedText(row);
            if (aPlace.offset != Finding::NO_OFFSET) {
                finding.offset = aPlace.offset + m_store.Position(entry);
            }
            aList.Add(std::move(finding));
        });
    }
}

void FieldRecord::Describe(const WalkResult& aResult, Finding& aFinding) const
{
    const FieldRow& row = Table().Row(aResult.row);
    std::string name;
    Table().AppendName(aResult.row, aResult.turns, name);
    aFinding.field = name.empty() ? row.label : name;
    aFinding.value = aResult.value;
    const std::string wanted = std::to_string(aResult.wanted);
    const std::string left = std::to_string(aResult.available);
    switch (aResult.fault) {
        case Fault::Short:
            aFinding.detail = wanted + " byte(s) needed, " + left + " left";
            break;
        case Fault::CountBeyondData:
            aFinding.detail = "promises " + wanted + " byte(s), " + left + " left";
            break;
        case Fault::LengthTooSmall:
            aFinding.detail = "is below " + wanted;
            break;
        case Fault::UnknownCode:
            aFinding.detail = "The code is not known, so the width of what it describes is not known either.";
            break;
        default:
            aFinding.detail = "is not a number";
            break;
    }
    if (aFinding.offset != Finding::NO_OFFSET) {
        aFinding.offset += aResult.offset;
    }
}

std::size_t FieldRecord::AppendXml(FieldNaming aNaming, const char* aIndent, const char* aElement, std::string& aXml,
                                   std::string_view aLeftOut, bool aEditableOnly) const
{
    std::size_t position = 0;
    for (const FieldEntry& entry : m_store.Entries()) {
        ++position;
        const bool isLeftOut = !aLeftOut.empty() && aLeftOut == m_store.Row(entry).tag;
        if (!isLeftOut && (!aEditableOnly || m_store.Table().IsEditable(entry.row))) {
            AppendFieldElement(m_store, entry, aNaming, position, aIndent, aElement, aXml);
        }
    }
    return position;
}

const char* FaultSentence(const FieldRow& aRow, Verdict aVerdict) noexcept
{
    if (IsMild(aRow, aVerdict)) {
        return CSMMsg::Warn::FIELD_VALUE_OUT_OF_VALID_RANGE;
    }
    if (aVerdict == Verdict::Blank) {
        return aRow.IsRequired() ? CSMMsg::Error::MISSING_REQUIRED_FIELD
                                 : CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD;
    }
    return aRow.IsRequired() ? CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE
                             : CSMMsg::Error::INVALID_CONDITIONALLY_REQUIRED_FIELD_VALUE;
}

void AppendProblemLines(const FindingList& aFindings, std::string& aText)
{
    for (std::size_t i = 0; i != aFindings.KeptCount(); ++i) {
        const Finding& finding = aFindings.Kept(i);
        Util::CSMUtilGeneric::ConstructMessage(true, (finding.sentence + ' ').c_str(), finding.owner.c_str(),
                                               finding.field.c_str(), aText);
    }
    if (aFindings.LeftOut() != 0) {
        aText += '\n' + aFindings.LeftOutLine();
    }
}

std::string AllowedText(const FieldRow& aRow)
{
    std::string text;
    std::string_view rest(aRow.values);
    while (!rest.empty() && text.size() < MOST_ALLOWED) {
        text += text.empty() ? "" : " | ";
        text += WithoutMeaning(NextAlternative(rest));
    }
    return rest.empty() ? text : text + " | ...";
}

}  // namespace ORMO::SensorModel::CSM::Detail

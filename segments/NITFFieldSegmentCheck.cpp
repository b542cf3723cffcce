// The rigorous validation of a header by its rows.

#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "segments/NITFFieldSegment.h"
#include "segments/detail/Findings.h"
#include "segments/detail/SecurityCheck.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentWords.h"
#include "tre/detail/TreMaker.h"

namespace ORMO::SensorModel::CSM {

namespace {

std::string Place(std::uint64_t aOffset, std::string_view aValue)
{
    return "[byte offset " + std::to_string(aOffset) + ": value " + Detail::Shown(aValue) + "]";
}

void AddProblems(const Detail::FindingList& aProblems, Detail::Findings& aFindings)
{
    for (std::size_t i = 0; i != aProblems.KeptCount(); ++i) {
        const Finding& problem = aProblems.Kept(i);
        if (problem.level == Finding::Level::Warning) {
            aFindings.AddWarning(problem.sentence.c_str(), problem.owner, problem.field, {});
        } else {
            aFindings.AddError(problem.sentence.c_str(), problem.owner, problem.field, {});
        }
    }
}

}  // namespace

void NITFFieldSegment::Validate(Detail::Findings& aFindings) const
{
    const Detail::FieldStore& fields = Contents().fields;
    const char* const owner = Words().owner;
    std::string name;
    for (const Detail::FieldEntry& entry : fields.Entries()) {
        const std::string_view value = fields.Value(entry);
        const Detail::Verdict verdict = Detail::CheckValue(fields.Row(entry), value);
        if (verdict != Detail::Verdict::Good) {
            name.clear();
            fields.AppendName(entry, name);
            const Detail::FieldRow& row = fields.Row(entry);
            const std::string place = Place(FileOffset() + fields.Position(entry), value);
            // A field that may be left out altogether only gives a warning.
            if (row.need == Detail::Need::Optional) {
                aFindings.AddWarning(Detail::FaultSentence(row, verdict), owner, name, place);
            } else {
                aFindings.AddError(Detail::FaultSentence(row, verdict), owner, name, place);
            }
        }
    }
    Detail::CheckSecurity(fields, owner, FileOffset(), aFindings);
    for (const TRE* const tre : QueriedTREs().InOrder()) {
        Detail::FindingList problems;
        Detail::TreMaker::Check(*tre, {}, problems);
        AddProblems(problems, aFindings);
    }
}

bool NITFFieldSegment::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    ClearMessages();
    Detail::Findings findings;
    Validate(findings);
    aErrors = findings.ErrorCount();
    aWarnings = findings.WarningCount();
    AddError(findings.Errors());
    AddWarning(findings.Warnings());
    return aErrors == 0;
}

}  // namespace ORMO::SensorModel::CSM

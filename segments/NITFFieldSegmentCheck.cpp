// The rigorous validation of a header by its rows.

#include "fields/MessageText.h"
#include "fields/ValueRule.h"
#include "foundation/CSMMsg.h"
#include "segments/Findings.h"
#include "segments/NITFFieldSegment.h"
#include "segments/SecurityCheck.h"
#include "segments/SegmentContents.h"

namespace ORMO::SensorModel::CSM {

namespace {

std::string Place(std::uint64_t aOffset, std::string_view aValue)
{
    return "[byte offset " + std::to_string(aOffset) + ": value " + Detail::Shown(aValue) + "]";
}

/// A value that its standard does not allow. Fields that may be left out altogether only give a warning.
void AddFinding(const Detail::FieldRow& aRow, Detail::Verdict aVerdict, std::string_view aOwner, std::string_view aName,
                std::string_view aPlace, Detail::Findings& aFindings)
{
    if (aRow.need == Detail::Need::Optional) {
        aFindings.AddWarning(CSMMsg::Warn::FIELD_VALUE_OUT_OF_VALID_RANGE, aOwner, aName, aPlace);
        return;
    }
    const bool blank = aVerdict == Detail::Verdict::Blank;
    const bool required = aRow.IsRequired();
    aFindings.AddError(
        blank ? (required ? CSMMsg::Error::MISSING_REQUIRED_FIELD : CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD)
        : required ? CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE
                   : CSMMsg::Error::INVALID_CONDITIONALLY_REQUIRED_FIELD_VALUE,
        aOwner, aName, aPlace);
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
            AddFinding(fields.Row(entry), verdict, owner, name, Place(FileOffset() + fields.Position(entry), value),
                       aFindings);
        }
    }
    Detail::CheckSecurity(fields, owner, FileOffset(), aFindings);
    for (const TRE* const tre : QueriedTREs().InOrder()) {
        std::string lines;
        tre->ValidateFieldValues(lines);
        aFindings.AddErrors(lines);
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

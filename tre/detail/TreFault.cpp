#include "tre/detail/TreFault.h"

#include "fields/FieldRecord.h"
#include "fields/MessageText.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/detail/Ascii.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <stdexcept>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// Which field the walk stopped at, and why.
std::string WalkText(const TreFault& aFault, std::string_view aTag)
{
    const FieldRecord record(aFault.layout->table);
    Finding finding;
    finding.offset = 0;
    record.Describe(aFault.walk, finding);
    std::string text = " Field " + Quoted(finding.field);
    if (aFault.walk.fault != Fault::Short) {
        text += " = " + Shown(finding.value);
    }
    text += " at data offset " + std::to_string(finding.offset) + ": " + finding.detail;
    const FieldRow& row = aFault.layout->table.Row(aFault.walk.row);
    const bool blank = aFault.walk.fault == Fault::NotANumber && Trimmed(aFault.walk.value).empty();
    const bool absent = aFault.walk.fault == Fault::Short && aFault.walk.available == 0;
    if (row.IsField() && row.IsRequired() && (blank || absent)) {
        Util::CSMUtilGeneric::ConstructMessage(true, (std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ').c_str(),
                                               std::string(aTag).c_str(), finding.field.c_str(), text);
    }
    return text;
}

}  // namespace

std::string ErrorMessage(const char* aMessage)
{
    return aMessage == nullptr || *aMessage == '\0' ? std::string() : "\nError message = " + Quoted(aMessage);
}

std::string NotExtracted(std::string_view aTag, std::uint64_t aExpected, std::uint64_t aExtracted)
{
    std::string message = "ERROR: Failed to extracted all the TRE fields from the input CEDATA/REDATA data stream";
    if (!aTag.empty()) {
        message += " for TRE " + Quoted(aTag);
    }
    return message + " [expected = " + std::to_string(aExpected) + ", extracted = " + std::to_string(aExtracted) + "].";
}

std::string TreFault::Message(std::string_view aTag) const
{
    switch (kind) {
        case Kind::TooLong:
            return "ERROR: The CEDATA/REDATA of TRE " + Quoted(aTag) + " has " + std::to_string(found) +
                   " byte(s), more than the " + std::to_string(expected) + " that its length field can tell.";
        case Kind::Length: {
            std::string message = "ERROR: Expected length of the CEDATA/REDATA ";
            message += aTag.empty() ? "" : "of TRE " + Quoted(aTag) + ' ';
            return message + "is " + std::to_string(expected) +
                   " byte(s). Input CEDATA/REDATA length = " + std::to_string(found) + " byte(s).";
        }
        case Kind::Fields:
            return NotExtracted(aTag, expected, found) + WalkText(*this, aTag);
        case Kind::Values:
            return "ERROR: The field value(s) of " + std::to_string(found) + " field(s) is/are invalid.";
        default:
            return text;
    }
}

std::string TreFault::Cause(std::string_view aTag) const
{
    switch (kind) {
        case Kind::None:
            return {};
        case Kind::TooLong:
        case Kind::Length:
            return "ERROR: Exception \"invalid_argument\" caught for TRE " + Quoted(aTag) +
                   ". Input CEDATA/REDATA maybe invalid." + ErrorMessage(Message(aTag).c_str());
        case Kind::Provider:
        case Kind::NoTag:
            return text;
        default:
            break;
    }
    std::string cause =
        "ERROR: Failed to initialize a specific TRE object with the input data." + ErrorMessage(Message(aTag).c_str());
    if (kind == Kind::Values) {
        AppendBlock(cause, text);
    }
    return cause;
}

void TreFault::Throw(std::string_view aTag) const
{
    const std::string message = Message(aTag);
    if (kind == Kind::TooLong || kind == Kind::Length) {
        throw std::invalid_argument(message);
    }
    const std::string owner("Tre" + std::string(aTag) + "::Init" + std::string(aTag));
    throw InitializationException(message.c_str(),
                                  kind == Kind::Fields ? "TRE::PopulateNITFTreFieldsMap" : owner.c_str());
}

void TreFault::Describe(Finding& aFinding) const
{
    switch (kind) {
        case Kind::TooLong:
        case Kind::Length:
            aFinding.detail =
                "Data of " + std::to_string(expected) + " byte(s) expected, " + std::to_string(found) + " found.";
            break;
        case Kind::Fields:
            FieldRecord(layout->table).Describe(walk, aFinding);
            break;
        case Kind::Values:
            aFinding.detail = std::to_string(found) + " field(s) have values that are not allowed.";
            break;
        default:
            aFinding.detail = text;
            std::replace(aFinding.detail.begin(), aFinding.detail.end(), '\n', ' ');
            break;
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail

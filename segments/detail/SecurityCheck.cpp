#include "segments/detail/SecurityCheck.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "foundation/CSMMsg.h"

#include <algorithm>
#include <array>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::string_view SYSTEM = "CLSY";
constexpr std::string_view DECLASSIFICATION = "DCTP";

/// A field that is filled with some types of declassification and blank with all others.
struct TypeRule
{
    std::string_view field;
    std::string_view types;
    bool free = false;  ///< a text that may stand with any other type too
};

constexpr std::array<TypeRule, 5> TYPE_RULES{
    {{"DCDT", "DD"}, {"DCXM", "X"}, {"DG", "GD|GE"}, {"DGDT", "GD"}, {"CLTX", "DE|GE", true}}};

constexpr std::string_view KNOWN_TYPES = "DD|DE|GD|GE|O|X";

/// Each of them needs a security system.
constexpr std::array<std::string_view, 14> OF_A_SYSTEM{"CODE", "CTLH", "REL",  "DCTP", "DCDT", "DCXM", "DG",
                                                       "DGDT", "CLTX", "CATP", "CAUT", "CRSN", "SRDT", "CTLN"};

/// What stands before the system's tag: "FS", "IS", "DES", "RE"; empty when there is no NITF 2.1 security block.
std::string Prefix(const FieldStore& aFields)
{
    for (const FieldEntry& entry : aFields.Entries()) {
        const std::string_view tag(aFields.Row(entry).tag);
        if (tag.ends_with(SYSTEM)) {
            return std::string(tag.substr(0, tag.size() - SYSTEM.size()));
        }
    }
    return {};
}

}  // namespace

void CheckSecurity(const NITFFieldSegment::Parts& aHeader, FindingList& aFindings)
{
    const std::string prefix = Prefix(aHeader.record.Store());
    if (prefix.empty()) {
        return;
    }
    const auto value = [&](std::string_view aField) {
        return TrimBlanks(aHeader.record.Text(prefix + std::string(aField)));
    };
    const auto add = [&](Finding::Level aLevel, const char* aSentence, std::string_view aField, std::string aWhy) {
        Finding finding = aHeader.About(aLevel, aSentence, prefix + std::string(aField));
        finding.detail = std::move(aWhy);
        aFindings.Add(std::move(finding));
    };
    const std::string_view type = value(DECLASSIFICATION);
    const std::string typeText = "with the type of declassification " + Shown(type);
    const bool known = type.empty() || IsListed(type, KNOWN_TYPES);  // else that alone is the fault
    for (const TypeRule& rule : TYPE_RULES) {
        if (!known) {
            break;
        }
        const bool wanted = !type.empty() && IsListed(type, rule.types);
        const bool filled = !value(rule.field).empty();
        if (wanted && !filled) {
            add(Finding::Level::Error, CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD, rule.field, typeText);
        } else if (filled && !wanted && !rule.free) {
            add(Finding::Level::Warning, CSMMsg::Warn::FIELD_VALUE_OUT_OF_VALID_RANGE, rule.field, typeText);
        }
    }
    const auto* const filled = std::find_if(OF_A_SYSTEM.begin(), OF_A_SYSTEM.end(),
                                            [&](std::string_view aField) { return !value(aField).empty(); });
    if (value(SYSTEM).empty() && filled != OF_A_SYSTEM.end()) {
        add(Finding::Level::Error, CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD, SYSTEM,
            prefix + std::string(*filled) + " is filled");
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail

#include "isd/ValidationRules.h"

#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/rules/FileView.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

ValidationRule Public(const Detail::Rule& aRule)
{
    ValidationRule rule;
    rule.id = aRule.id;
    rule.level = aRule.level;
    rule.isForNitf20 = aRule.AppliesTo(NITFCnst::NITF_VERSION_NUMBER_20);
    rule.isForNitf21 = aRule.AppliesTo(NITFCnst::NITF_VERSION_NUMBER_21);
    rule.subject = Detail::WordOf(aRule.subject);
    rule.fields = aRule.fields;
    rule.sentence = aRule.sentence;
    rule.explanation = aRule.explanation;
    rule.source = aRule.source;
    rule.notChecked = aRule.notChecked == nullptr ? "" : aRule.notChecked;
    return rule;
}

/// The families in the order in which a reader meets what they speak of; rules of one family stand together although
/// some of them need the whole file.
constexpr std::string_view FAMILIES[] = {"FH", "SF", "FLD", "RD", "SEC", "PV", "SZ", "IC", "MO", "BK", "BD",
                                         "GE", "DL", "MK",  "GR", "CGM", "SY", "LA", "TX", "DE", "TR"};

std::size_t FamilyOf(const ValidationRule& aRule)
{
    const std::string_view id(aRule.id);
    return static_cast<std::size_t>(std::ranges::find(FAMILIES, id.substr(0, id.find('-'))) - std::begin(FAMILIES));
}

std::vector<ValidationRule> MakeAll()
{
    std::vector<ValidationRule> rules;
    for (const auto& family : Detail::FILE_RULES) {
        std::ranges::transform(family(), std::back_inserter(rules), &Public);
    }
    for (const auto& family : Detail::HEADER_RULES) {
        std::ranges::transform(family(), std::back_inserter(rules), &Public);
    }
    std::ranges::sort(rules, [](const ValidationRule& aFirst, const ValidationRule& aSecond) {
        const std::size_t first = FamilyOf(aFirst);
        const std::size_t second = FamilyOf(aSecond);
        return first != second ? first < second : std::string_view(aFirst.id) < aSecond.id;
    });
    return rules;
}

}  // namespace

const std::vector<ValidationRule>& ValidationRules::GetAllRules()
{
    static const std::vector<ValidationRule> RULES = MakeAll();
    return RULES;
}

const ValidationRule* ValidationRules::Find(const char* aId)
{
    const std::string id = Util::CSMUtilString::ToUpper(std::string(Detail::Trimmed(aId)));
    const auto& rules = GetAllRules();
    const auto rule = std::ranges::find_if(rules, [&id](const ValidationRule& aRule) { return id == aRule.id; });
    return rule == rules.end() ? nullptr : &*rule;
}

}  // namespace ORMO::SensorModel::CSM

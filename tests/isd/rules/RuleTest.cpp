// Every rule: a file that breaks it and no other, and the same file without the fault.

#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/ValidationRules.h"
#include "isd/detail/rules/ValidationReport.h"
#include "tests/isd/rules/RuleCases.h"
#include "tests/support/Validated.h"

#include <iterator>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using Names = std::set<std::string>;

Names Split(std::string_view aText)
{
    std::istringstream text{std::string(aText)};
    return {std::istream_iterator<std::string>(text), std::istream_iterator<std::string>()};
}

std::vector<RuleCase> AllCases()
{
    std::vector<RuleCase> all;
    for (const auto& family : {FileCases(), SecurityCases(), ImageCases(), CompressionCases(), BandCases(), MaskCases(),
                               DrawingCases(), TreCases()}) {
        all.insert(all.end(), family.begin(), family.end());
    }
    return all;
}

class RuleCaseTest : public testing::TestWithParam<RuleCase>
{
};

TEST_P(RuleCaseTest, IsBrokenByItsFaultAlone)
{
    const RuleCase& one = GetParam();
    const Validated good(one.make(false));
    EXPECT_EQ(Split(one.always), good.Rules()) << good.Lines();
    const Validated broken(one.make(true));
    Names wanted = Split(one.also);
    wanted.merge(Split(one.always));
    wanted.insert(one.rule);
    EXPECT_EQ(wanted, broken.Rules()) << broken.Lines();
}

TEST_P(RuleCaseTest, HasTheLevelOfItsRowAndSaysWhereItIs)
{
    const RuleCase& one = GetParam();
    const ValidationRule* const rule = ValidationRules::Find(one.rule);
    ASSERT_NE(nullptr, rule);
    const Validated broken(one.make(true));
    bool found = false;
    for (const Finding& finding : broken.Findings()) {
        if (finding.rule == one.rule) {
            found = true;
            EXPECT_EQ(rule->level, finding.level) << finding.Line();
            EXPECT_TRUE(finding.sentence.starts_with(rule->level == Finding::Level::Error ? "ERROR: " : "WARN: "))
                << finding.Line();
            EXPECT_FALSE(finding.Place().empty()) << finding.Line();
        }
    }
    EXPECT_TRUE(found);
}

INSTANTIATE_TEST_SUITE_P(AllRules, RuleCaseTest, testing::ValuesIn(AllCases()), [](const auto& aInfo) {
    std::string name = aInfo.param.rule;
    name.replace(name.find('-'), 1, "_");
    return name;
});

/// Rules that no case stands for, each with the reason.
const std::set<std::string, std::less<>> WITHOUT_CASE{
    "FH-01",                                      // another mark is refused
    "PV-05", "SZ-02",                             // not checked
    "RD-04", "RD-05", "RD-07", "RD-08", "RD-09",  // of reading, with tests of its own
    "DE-11", "DE-12",                             // the tests of the DES types
};

TEST(ValidationRulesTest, EveryRuleHasACaseOrAReason)
{
    Names cases;
    for (const RuleCase& one : AllCases()) {
        EXPECT_TRUE(cases.insert(one.rule).second || std::string_view(one.rule) == "TR-12") << one.rule << " twice";
    }
    for (const ValidationRule& rule : ValidationRules::GetAllRules()) {
        EXPECT_EQ(cases.count(rule.id) == 0, WITHOUT_CASE.count(rule.id) != 0) << rule.id;
    }
}

TEST(ValidationRulesTest, EveryRowIsWhole)
{
    Names ids;
    for (const ValidationRule& rule : ValidationRules::GetAllRules()) {
        EXPECT_TRUE(ids.insert(rule.id).second) << rule.id;
        for (const char* const text : {rule.subject, rule.fields, rule.sentence, rule.explanation, rule.source}) {
            EXPECT_STRNE("", text) << rule.id;
        }
        EXPECT_EQ('.', std::string_view(rule.sentence).back()) << rule.id;
        EXPECT_EQ('.', std::string_view(rule.explanation).back()) << rule.id;
        EXPECT_TRUE(rule.isForNitf20 || rule.isForNitf21) << rule.id;
        EXPECT_EQ(&rule, ValidationRules::Find(rule.id));
    }
    EXPECT_EQ(nullptr, ValidationRules::Find("XX-01"));
    EXPECT_EQ(nullptr, ValidationRules::Find(nullptr));
    ASSERT_NE(nullptr, ValidationRules::Find(" pv-02 "));
}

/// Cases that their rule calls worth a warning only.
TEST(ValidationTest, MildCasesOfErrorsAreWarnings)
{
    struct Mild
    {
        const char* rule;
        std::string bytes;
    };
    const Mild milds[] = {
        {"FH-10", WithImage(false, [](auto&, auto& i, bool) { i.Surplus("   "); })},
        {"SEC-01", WithImage(false, [](auto&, auto& i, bool) { i.Set("ISCLSY", "US").Set("ISDCDT", "20300101"); })},
        {"TR-01", WithImage(false, [](auto&, auto& i, bool) { i.Area("IXSHD", Tre("ANYANY", "x") + "   "); })},
        {"IC-02", WithImage(false, [](auto&, auto& i, bool) { i.Compression("C4", "full"); })},
        {"BD-06", WithImage(false,
                            [](auto&, auto& i, bool) {
                                i.NoBands().Band("", {"abcd", "abcd", "abcd"}).Set("IREP", "RGB/LUT");
                            })},
    };
    for (const Mild& mild : milds) {
        const Validated validated(mild.bytes);
        EXPECT_EQ(Names{mild.rule}, validated.Rules()) << validated.Lines();
        EXPECT_EQ(0U, validated.Errors()) << validated.Lines();
        EXPECT_EQ(Finding::Level::Error, ValidationRules::Find(mild.rule)->level);
    }
}

TEST(ValidationTest, AValidationThatFailsHasOneSectionWithTheReason)
{
    const std::string report = Detail::ValidationReport("Exception caught while generating validation summary report.");
    EXPECT_THAT(report,
                testing::EndsWith("version=\"1.0\">\n  <Summary type=\"ERROR\">\n      Exception caught while "
                                  "generating validation summary report.\n    </Summary>\n</NITFValidationSummary>\n"));
}

TEST(ValidationTest, ManyRepeatsAreCountedAndOnlySomeKept)
{
    std::string tres;
    for (int i = 0; i != 5000; ++i) {
        tres += Tre("EXOPTA", "x");
    }
    const Validated validated(WithImage(false, [&](auto& f, auto& i, bool) {
        i.Area("UDID", "", 1);
        f.AddOverflow("UDID", 1, tres);
    }));
    EXPECT_GT(validated.Warnings(), 9000U);
    EXPECT_LE(validated.Findings().size(), 1000U);
    EXPECT_THAT(validated.Report(), testing::HasSubstr("further messages are left out."));
}

TEST(ValidationTest, LeavesRulesOutOfFindingsAndCounts)
{
    const std::string bytes = WithImage(true, [](auto&, auto& i, bool) { i.Set("ABPP", "09").Set("PJUST", "X"); });
    const Validated all(bytes);
    EXPECT_EQ((Names{"FLD-01", "PV-02"}), all.Rules());
    EXPECT_EQ(2U, all.Errors());
    const Validated fewer(bytes, {.now = "20260601000000", .ignored = {"PV-02"}});
    EXPECT_EQ(Names{"FLD-01"}, fewer.Rules());
    EXPECT_EQ(1U, fewer.Errors());
}

TEST(ValidationTest, DependsOnTheMomentOnlyWhereItIsAsked)
{
    const std::string bytes = WithImage(false, [](auto&, auto&, bool) {});
    EXPECT_EQ((Names{"FH-08"}), Validated(bytes, {.now = "20251231235959", .ignored = {}}).Rules());
    EXPECT_EQ(Names{}, Validated(bytes, {.now = "20260101120000", .ignored = {}}).Rules());
}

TEST(ValidationTest, StandsInTheOrderOfTheFileWithEverySegmentOnce)
{
    NitfBuilder file;
    file.File().Set("OSTAID", "");
    file.AddImage().Set("PJUST", "X");
    file.AddImage().Set("IDLVL", "001").Set("PJUST", "X");
    file.AddText("a\n");
    const Validated validated(file.Bytes());
    const std::string report = validated.Report();
    const auto at = [&report](const char* aText) { return report.find(aText); };
    EXPECT_LT(at("NITFFileHeader\n"), at("ImageSegment 0\n"));
    EXPECT_LT(at("ImageSegment 0\n"), at("ImageSegment 1\n"));
    EXPECT_EQ(std::string::npos, report.find("ImageSegment 1\n", at("ImageSegment 1\n") + 1)) << report;
    EXPECT_NE(std::string::npos, report.find("<Summary type=\"WARN\">\n      TextSegment 0\n"));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

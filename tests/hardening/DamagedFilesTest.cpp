// One table of damage: what is done to a good file, and the answer that it must get. A file that opens has exactly the
// findings named, each once; one that is refused says why, and where.

#include "tests/hardening/DamageCases.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/Refusal.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

std::vector<DamageCase> AllCases()
{
    std::vector<DamageCase> cases;
    for (const auto& list : {HeaderDamage(), SegmentDamage(), TreDamage(), DrawingDamage()}) {
        cases.insert(cases.end(), list.begin(), list.end());
    }
    return cases;
}

std::string Joined(const std::vector<std::string>& aLines)
{
    std::string text;
    for (const std::string& line : aLines) {
        text += "  " + line + '\n';
    }
    return text;
}

/// Every text stands in one line, and no line is left over.
void ExpectLines(const std::vector<std::string>& aLines, const std::vector<std::string>& aTexts)
{
    for (const std::string& text : aTexts) {
        const auto lines = std::count_if(aLines.begin(), aLines.end(), [&](const std::string& aLine) {
            return aLine.find(text) != std::string::npos;
        });
        EXPECT_EQ(1, lines) << text << "\nin\n" << Joined(aLines);
    }
    EXPECT_EQ(aTexts.size(), aLines.size()) << Joined(aLines);
}

class DamagedFilesTest : public testing::TestWithParam<DamageCase>
{
};

INSTANTIATE_TEST_SUITE_P(Table, DamagedFilesTest, testing::ValuesIn(AllCases()),
                         [](const auto& aInfo) { return std::string(aInfo.param.name); });

TEST_P(DamagedFilesTest, GetsItsAnswerOnce)
{
    const DamageCase& damage = GetParam();
    std::vector<std::string> lines;
    ImageSupportData* made = nullptr;
    const std::string refusal = RefusalOf([&] {
        ImageSupportDataFactory::CreateFromMemory(damage.file.data(), damage.file.size(), false, "damaged", &made, true,
                                                  false);
    });
    if (damage.answer == Answer::Refused) {
        EXPECT_EQ(nullptr, made);
        ASSERT_NE("", refusal);
        for (const Finding& finding : ImageSupportDataFactory::GetFindings()) {
            lines.push_back(finding.Line());
        }
        ExpectLines(lines, damage.lines);
        return;
    }
    ASSERT_EQ("", refusal);
    const OpenedIsd isd(made);
    ExpectLines(isd->GetWarnings(), damage.lines);
    AskEverything(*isd);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    EXPECT_NE(nullptr, isd->Serialize());
    std::string validated;
    for (const std::string& line : isd->GetValidationLines()) {
        validated += line + '\n';
    }
    for (const std::string& text : damage.validated) {
        EXPECT_NE(std::string::npos, validated.find(text)) << text << "\nin\n" << validated;
    }
    if (damage.check != nullptr) {
        damage.check(*isd);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

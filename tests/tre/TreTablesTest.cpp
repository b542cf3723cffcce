#include "fields/FieldWalk.h"
#include "fields/ValueRule.h"
#include "tests/tre/TreLayoutList.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;
using testing::EndsWith;
using testing::StrNe;

class TreTableTest : public testing::TestWithParam<NumberedLayout>
{
protected:
    const TreLayout& m_layout = *GetParam().layout;
    const FieldTable& m_table = m_layout.table;
};

std::string TagOf(const testing::TestParamInfo<NumberedLayout>& aInfo)
{
    return aInfo.param.name;
}

INSTANTIATE_TEST_SUITE_P(AllTags, TreTableTest, testing::ValuesIn(EveryLayout()), TagOf);

TEST_P(TreTableTest, BelongsToTheClassOfItsTagAndSaysWhatItIs)
{
    EXPECT_STREQ(GetParam().tag, m_layout.tag);
    EXPECT_THAT(m_layout.name, StrNe(""));
    EXPECT_THAT(m_layout.placement, StrNe(""));
    EXPECT_THAT(m_layout.purpose, EndsWith("."));
    EXPECT_THAT(m_layout.sources, StrNe(""));
    EXPECT_EQ(m_layout.length == 0, *m_layout.lengthRule != '\0') << m_layout.lengthRule;
}

TEST_P(TreTableTest, EveryFieldHasATitleAndASentence)
{
    for (const FieldRow& row : m_table.Rows()) {
        if (row.IsField()) {
            EXPECT_THAT(row.label, StrNe("")) << row.tag;
            EXPECT_THAT(row.explanation, EndsWith(".")) << row.tag;
        }
    }
}

/// A text of a value rule has to fit into the field, and a picture has to fill it.
void ExpectFit(const FieldRow& aRow, std::string_view aAlternative)
{
    const auto dots = aAlternative.find("..");
    if (aAlternative.front() == '{') {
        EXPECT_EQ(aRow.width, aAlternative.size() - 2) << aRow.tag << ": " << aAlternative;
    } else if (dots != std::string_view::npos) {
        EXPECT_GE(aRow.width, dots) << aRow.tag << ": " << aAlternative;
        EXPECT_GE(aRow.width, aAlternative.size() - dots - 2) << aRow.tag << ": " << aAlternative;
    } else if (aAlternative != "any" && aAlternative != "blank") {
        EXPECT_GE(aRow.width, aAlternative.size()) << aRow.tag << ": " << aAlternative;
    }
}

TEST_P(TreTableTest, EveryValueRuleCanBeUnderstoodAndMet)
{
    for (const FieldRow& row : m_table.Rows()) {
        if (!row.IsField()) {
            continue;
        }
        EXPECT_TRUE(IsRule(row.values)) << row.tag << ": " << row.values;
        std::string_view rest(row.values);
        while (!rest.empty() && row.HasFixedWidth() && !row.IsBinary()) {
            const std::string_view alternative = NextAlternative(rest);
            ExpectFit(row, alternative.substr(0, alternative.find('=', 1)));
        }
    }
}

/// All names and aliases that a field has in the first two turns of each repeat around it.
void AppendNames(const FieldTable& aTable, std::uint16_t aRow, std::vector<std::string>& aOut)
{
    const std::size_t depth = aTable.Link(aRow).depth;
    const char* const alias = aTable.Row(aRow).alias;
    for (unsigned choice = 0; choice != 1U << depth; ++choice) {
        Turns turns{};
        for (std::size_t level = 0; level != depth; ++level) {
            turns[level] = 1 + ((choice >> level) & 1U);
        }
        aOut.emplace_back();
        aTable.AppendName(aRow, turns, aOut.back());
        if (alias != nullptr) {
            aOut.push_back(alias + aOut.back().substr(std::string_view(aTable.Row(aRow).tag).size()));
        }
    }
}

TEST_P(TreTableTest, NoTwoFieldsCanGetTheSameName)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i != m_table.Size(); ++i) {
        if (m_table.Row(i).IsField()) {
            AppendNames(m_table, static_cast<std::uint16_t>(i), names);
        }
    }
    std::set<std::string_view> seen;
    for (const std::string& name : names) {
        EXPECT_TRUE(seen.insert(name).second) << name;
    }
}

TEST_P(TreTableTest, MarksLookAtFieldsThatCanSayWhatIsAsked)
{
    for (std::size_t i = 0; i != m_table.Size(); ++i) {
        const FieldRow& mark = m_table.Row(i);
        if (!mark.IsGroup() || m_table.Link(i).ref == NO_ROW) {
            continue;
        }
        const FieldRow& asked = m_table.Row(m_table.Link(i).ref);
        if (mark.kind == RowKind::Repeat) {
            EXPECT_TRUE(asked.form == Form::Integer || asked.form == Form::Unsigned) << asked.tag;
        }
        for (std::string_view rest(mark.values); !rest.empty();) {
            const std::string_view value = NextAlternative(rest);
            EXPECT_EQ(Verdict::Good, CheckValue(asked, value)) << asked.tag << ": " << value;
        }
    }
}

TEST_P(TreTableTest, TheShortestRecordEndsWhereItsFieldsEnd)
{
    const std::string record = ShortestRecord(m_table);
    FieldStore store(m_table);
    if (!record.empty()) {
        EXPECT_EQ(record.size(), FieldWalk::Read(record, store).consumed);
        EXPECT_FALSE(FieldWalk::Read(std::string_view(record).substr(0, record.size() - 1), store).IsGood());
    }
    if (m_layout.length != 0) {
        EXPECT_EQ(m_layout.length, record.size());
        EXPECT_EQ(m_layout.length, FieldWalk::Read(std::string(LONGEST_TRE, ' '), store).consumed);
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#include "fields/FieldTable.h"
#include "tests/fields/WalkSupport.h"

#include <array>
#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

template<std::size_t N>
bool IsWellFormed(const FieldRow (&aRows)[N], Naming aNaming = Naming::Underscore)
{
    return MakeTable(aRows, aNaming).wellFormed;
}

TEST(FieldTableTest, BrokenGroupsReferencesAndWidthsAreNotWellFormed)
{
    EXPECT_TRUE(IsWellFormed({F("A", 1), Repeat("A"), F("B", 1), End()}));
    EXPECT_FALSE(IsWellFormed({F("A", 1), Repeat("A"), F("B", 1)}));
    EXPECT_FALSE(IsWellFormed({F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({Repeat("A"), F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({When("A", "1"), F("B", 1), End()}));
    EXPECT_FALSE(IsWellFormed({S("B", "A")}));
    EXPECT_FALSE(IsWellFormed({F("A", 0)}));
    EXPECT_FALSE(IsWellFormed({F("", 1)}));
    EXPECT_FALSE(IsWellFormed({Times(0), F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({RepeatBy("never", nullptr), F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({WhenBy("never", nullptr), F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({Times(UINT64_MAX), Times(2), F("A", 1), End(), End()}));
    EXPECT_FALSE(IsWellFormed({Times(2), Times(2), Times(2), Times(2), F("A", 1), End(), End(), End(), End()}));
}

TEST(FieldTableTest, ARowMayNotLookIntoARepeatThatHasEnded)
{
    EXPECT_FALSE(IsWellFormed({Times(2), F("N", 1), End(), Repeat("N"), F("A", 1), End()}));
    EXPECT_FALSE(IsWellFormed({Times(2), F("N", 1), End(), Times(2), S("A", "N"), End()}));
    EXPECT_FALSE(IsWellFormed({Times(2), F("N", 1), End(), When("N", "1"), F("A", 1), End()}));
    EXPECT_TRUE(IsWellFormed({WhenFilled("X"), F("X", 1), End()}) == false);
    EXPECT_TRUE(IsWellFormed({F("X", 1), WhenFilled("X"), F("N", 1), End(), Repeat("N"), F("A", 1), End()}));
    EXPECT_TRUE(IsWellFormed({Times(2), F("N", 1), Repeat("N"), F("A", 1), End(), S("B", "N"), End()}));
}

TEST(FieldTableTest, TagsWhoseNamesWouldMeetAreNotWellFormed)
{
    EXPECT_FALSE(IsWellFormed({F("A", 1), F("A", 2)}));
    EXPECT_TRUE(IsWellFormed({F("A", 1), Times(2), F("A", 2), End()}));
    EXPECT_FALSE(IsWellFormed({F("A_12", 1), Times(2), F("A", 2), End()}));
    EXPECT_FALSE(IsWellFormed({F("A_1_2", 1), Times(2), Times(2), F("A", 2), End(), End()}));
    EXPECT_FALSE(IsWellFormed({Times(2), F("A_1", 1), Times(2), F("A", 2), End(), End()}));
    EXPECT_TRUE(IsWellFormed({F("A_1", 1), Times(2), Times(2), F("A", 2), End(), End()}));
    EXPECT_TRUE(IsWellFormed({F("A_01", 1), F("A_0", 1), F("A_B", 1), F("A-1", 1), Times(2), F("A", 2), End()}));
    EXPECT_TRUE(IsWellFormed({F("A_1", 1), F("A", 2)}));
    EXPECT_FALSE(IsWellFormed({F("A001", 1), Times(2), F("A", 2), End()}, Naming::ThreeDigits));
    EXPECT_FALSE(IsWellFormed({Times(2), F("A1", 1), F("A", 2), End()}, Naming::ThreeDigits));
    EXPECT_TRUE(IsWellFormed({F("A1", 1), F("A2", 1), Times(2), F("A", 2), End()}, Naming::ThreeDigits));
    EXPECT_TRUE(IsWellFormed({F("A001", 1), Times(2), F("A", 2), End()}));
}

TEST(FieldTableTest, TagsThatEndInNumbersResolveAtTheirOwnDepth)
{
    static constexpr FieldRow ROWS[] = {F("C_1", 1), Times(3), F("LINE_2", 1), Times(2), F("C", 1), End(), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    Turns turns{};
    EXPECT_EQ(0, TABLE.View().Resolve("C_1", turns));
    EXPECT_EQ(Turns{}, turns);
    EXPECT_EQ(2, TABLE.View().Resolve("LINE_2_3", turns));
    EXPECT_EQ((Turns{3, 0, 0}), turns);
    EXPECT_EQ(4, TABLE.View().Resolve("C_3_2", turns));
    EXPECT_EQ((Turns{3, 2, 0}), turns);
    for (const char* const name : {"", "_", "_1", "C", "C_", "C_2", "C_0_1", "C_01_1", "C_+1_1", "C_1_1_1", "C_1_1_1_1",
                                   "LINE_2", "LINE_2_", "LINE_2_4294967296", "line_2_1", "LINE_2_1 "}) {
        EXPECT_EQ(NO_ROW, TABLE.View().Resolve(name, turns)) << name;
        EXPECT_EQ(Turns{}, turns) << name;
    }
}

TEST(FieldTableTest, ThreeDigitNamesGoOnAbove999)
{
    static constexpr FieldRow ROWS[] = {F("LI1", 1), Times(2), F("LI", 1), Times(2), F("X2", 1), End(), End()};
    static constexpr auto TABLE = MakeTable(ROWS, Naming::ThreeDigits);
    static_assert(TABLE.wellFormed);
    const std::map<std::string, Turns> names{
        {"LI001", {1}}, {"LI999", {999}}, {"LI1000", {1000}}, {"LI4294967295", {UINT32_MAX}}};
    Turns turns{};
    std::string printed;
    for (const auto& [name, wanted] : names) {
        EXPECT_EQ(2, TABLE.View().Resolve(name, turns)) << name;
        EXPECT_EQ(wanted, turns) << name;
        printed.clear();
        TABLE.View().AppendName(2, wanted, printed);
        EXPECT_EQ(name, printed);
    }
    EXPECT_EQ(4, TABLE.View().Resolve("X21000002", turns));
    EXPECT_EQ((Turns{1000, 2, 0}), turns);
    for (const char* const name : {"LI", "LI1001x", "LI000", "LI01", "LI0001", "LI4294967296", "X2001", "001"}) {
        EXPECT_EQ(NO_ROW, TABLE.View().Resolve(name, turns)) << name;
    }
}

TEST(FieldTableTest, AliasesAreFoundWithTurnsAndTagsComeFirst)
{
    static constexpr FieldRow ROWS[] = {F("N", 1), F("A", 1).Alias("N"), Repeat("N"), F("LON", 1).Alias("LONGITUDE"),
                                        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    Turns turns{};
    EXPECT_EQ(3, TABLE.View().Resolve("LONGITUDE_7", turns));
    EXPECT_EQ((Turns{7, 0, 0}), turns);
    EXPECT_EQ(NO_ROW, TABLE.View().Resolve("LONGITUDE", turns));
    EXPECT_EQ(3, TABLE.View().FindAny("LONGITUDE"));
    EXPECT_EQ(0, TABLE.View().FindAny("N"));
    const Walked walked(TABLE.View(), "2axy");
    ASSERT_NE(nullptr, walked.store.Find("LONGITUDE_2"));
    EXPECT_EQ("LON_2", walked.store.Name(*walked.store.Find("LONGITUDE_2")));
}

TEST(FieldTableTest, OnlyTheWholeTagIsFound)
{
    static constexpr FieldRow ROWS[] = {F("A", 1),
                                        F("AB", 1),
                                        F("ABCDEFGH", 1),
                                        F("ABCDEFGHI", 1),
                                        F("ABCDEFGHIJKLMNOP", 1),
                                        F("ABCDEFGHIJKLMNOPQ", 1),
                                        F("ABCDEFGHIJKLMNOPR", 1)};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const FieldTable table = TABLE.View();
    for (std::uint16_t row = 0; row != std::size(ROWS); ++row) {
        EXPECT_EQ(row, table.Find(ROWS[row].tag, 0));
        EXPECT_EQ(NO_ROW, table.Find(ROWS[row].tag, 1)) << "no repeat is around it";
    }
    using namespace std::string_view_literals;
    for (const auto name : {""sv, "B"sv, "ABC"sv, "ABCDEFGHJ"sv, "ABCDEFGHIJKLMNO"sv, "ABCDEFGHIJKLMNOPS"sv,
                            "ABCDEFGHIJKLMNOPQR"sv, "A\0"sv, "AB\0\0\0\0\0\0"sv, "ABCDEFGH\0"sv, "\0"sv}) {
        EXPECT_EQ(NO_ROW, table.Find(name, 0)) << name;
    }
    EXPECT_EQ(NO_ROW, FieldTable().Find("A", 0)) << "a table without rows";
}

TEST(FieldTableTest, FixedPartsOfTheLayoutAreNotEditable)
{
    static constexpr FieldRow ROWS[] = {
        F("FREE", 1),
        F("LIST", 1, Form::Text, "A|B"),
        F("RANGE", 1, Form::Integer, "1..5"),
        F("PICTURE", 8, Form::Date, "{CCYYMMDD}"),
        F("ANY", 1, Form::Text, "any"),
        F("ANY_MEANT", 1, Form::Text, "any=see the register, e.g. 1..5"),
        F("VERSION", 5, Form::Text, "02.10"),
        F("MEANT", 1, Form::Text, "1=one. Or {1..1}"),
        F("BLANKS", 4, Form::Text, "blank"),
        F("LOCKED", 1).Locked(),
        F("DATA", 4, Form::Unsigned),
        F("PROFILE", 4, Form::FileProfile),
        F("COUNT", 1),
        F("LEN", 1),
        Repeat("COUNT"),
        S("TEXT", "LEN"),
        End(),
    };
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    std::string editable;
    for (std::uint16_t row = 0; row != TABLE.View().Size(); ++row) {
        if (TABLE.View().Row(row).IsField() && TABLE.View().IsEditable(row)) {
            editable += std::string(TABLE.View().Row(row).tag) + ' ';
        }
    }
    EXPECT_EQ("FREE LIST RANGE PICTURE ANY ANY_MEANT TEXT ", editable);
}

TEST(FieldTableTest, FixedWidthLeavesOutWhatMayBeAbsent)
{
    static constexpr FieldRow ROWS[] = {F("A", 2),      Times(3),    F("B", 5), Times(2),  F("C", 1),   End(),
                                        When("A", "x"), F("D", 100), End(),     F("E", 1), End(),       Repeat("A"),
                                        Times(2),       F("G", 100), End(),     End(),     S("H", "A"), F("I", 7)};
    static_assert(FixedWidth(ROWS) == 2 + 3 * (5 + 2 + 1) + 7);
    static constexpr auto TABLE = MakeTable(ROWS);
    EXPECT_EQ(8U, TABLE.View().Link(1).least);
    EXPECT_EQ(4U, TABLE.View().Link(1).fields);
    EXPECT_EQ(10U, TABLE.View().FieldCount() + 2);
}

TEST(FieldTableTest, WidthsGivenByAnotherFieldGoUpToWhatItCanHold)
{
    static constexpr FieldRow ROWS[] = {
        F("A", 5),        F("B", 2, Form::Unsigned), F("C", 20),   F("D", 8, Form::Unsigned),
        S("AT", "A", -3), S("BT", "B", 1),           S("CT", "C"), S("DT", "D", 7)};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const auto range = [](const char* aTag) {
        std::size_t smallest = 77;
        std::size_t largest = 77;
        EXPECT_TRUE(WidthRange(TABLE.View(), aTag, smallest, largest));
        return std::to_string(smallest) + ".." + std::to_string(largest);
    };
    EXPECT_EQ("5..5", range("A"));
    EXPECT_EQ("0..99996", range("AT"));
    EXPECT_EQ("1..65536", range("BT"));
    EXPECT_EQ("0..18446744073709551615", range("CT"));
    EXPECT_EQ("7..18446744073709551615", range("DT"));
    std::size_t width = 0;
    EXPECT_FALSE(WidthRange(TABLE.View(), "E", width, width));
}

constexpr std::size_t RANDOM_ROWS = 24;

/// Rows of a random shape: short tags that often begin with one another, nested loops and conditions.
struct RandomRows
{
    explicit RandomRows(std::mt19937& aRandom)
    {
        static constexpr std::array<const char*, 12> TAGS{
            {"A", "A_1", "A_2", "A_1_1", "A1", "A001", "AB", "B", "B_12", "B-1", "B1002", "_1"}};
        std::vector<bool> open;  // whether each open group is a loop
        std::size_t loops = 0;
        for (std::size_t i = 0; i != RANDOM_ROWS; ++i) {
            const auto choice = aRandom() % 10;
            if (!open.empty() && (open.size() + i == RANDOM_ROWS || choice < 2)) {
                rows[i] = End();
                loops -= open.back() ? 1U : 0U;
                open.pop_back();
            } else if (choice < 5 && loops != MAX_LOOP_DEPTH && open.size() + i + 2 < RANDOM_ROWS) {
                rows[i] = Times(1 + aRandom() % 3);
                open.push_back(true);
                ++loops;
            } else if (choice < 6 && open.size() + i + 2 < RANDOM_ROWS) {
                rows[i] = WhenBy("often", [](const WalkContext& aContext) { return aContext.BytesRead() % 3 != 1; });
                open.push_back(false);
            } else {
                rows[i] = F(TAGS[aRandom() % TAGS.size()], static_cast<std::uint32_t>(1 + aRandom() % 3));
            }
        }
    }

    FieldRow rows[RANDOM_ROWS];
};

TEST(FieldTableTest, EveryEntryOfARandomTableIsFoundByItsOwnName)
{
    std::mt19937 random(20240229);  // NOLINT: the same tables in every run
    std::size_t tried = 0;
    std::size_t refused = 0;
    for (int run = 0; run != 4000; ++run) {
        const RandomRows shape(random);
        for (const Naming naming : {Naming::Underscore, Naming::ThreeDigits}) {
            const auto table = MakeTable(shape.rows, naming);
            const Walked walked(table.View(), std::string(2000, 'x'));
            ASSERT_TRUE(walked.result.IsGood());
            std::map<std::string, const FieldEntry*> names;
            bool distinct = true;
            std::uint64_t position = 0;
            for (const FieldEntry& entry : walked.store.Entries()) {
                distinct = names.emplace(walked.store.Name(entry), &entry).second && distinct;
                ASSERT_EQ(position, walked.store.Position(entry));
                position += entry.length;
            }
            if (!table.wellFormed) {
                ++refused;
                continue;
            }
            ++tried;
            ASSERT_TRUE(distinct) << walked.fields;
            for (const auto& [name, entry] : names) {
                ASSERT_EQ(entry, walked.store.Find(name)) << name << " in " << walked.fields;
            }
        }
    }
    EXPECT_GT(tried, 1000U);
    EXPECT_GT(refused, 1000U);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

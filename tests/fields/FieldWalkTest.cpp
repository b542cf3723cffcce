#include "fields/Number.h"
#include "tests/fields/WalkSupport.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

TEST(FieldWalkTest, FixedSizedComputedAndRestFieldsTakeTheirBytes)
{
    static constexpr FieldRow ROWS[] = {
        F("LEN", 2),
        S("BODY", "LEN", -3),
        S("MORE", "LEN", 1),
        Computed(
            "HALF",
            [](const WalkContext& aContext, std::uint64_t& aOut) {
                aOut = (aContext.Total() - aContext.BytesRead()) / 2;
                return aContext.BytesLeft() + aContext.BytesRead() == aContext.Total() && aContext.Ahead(1) == "h" &&
                       aContext.Text("BODY") == "b";
            },
            Need::Required, Form::Text, "", "", ""),
        Rest("TAIL", Need::Required, Form::Text, "", "", ""),
    };
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const Walked walked(TABLE.View(), "04bmmmmmhhtt");
    EXPECT_TRUE(walked.result.IsGood());
    EXPECT_EQ(12U, walked.result.consumed);
    EXPECT_EQ("LEN=04 BODY=b MORE=mmmmm HALF=hh TAIL=tt", walked.fields);

    const Walked empty(TABLE.View(), "03mmmmhhtt");  // BODY does not stand, so HALF's function says no
    EXPECT_EQ(Fault::NotANumber, empty.result.fault);
    EXPECT_EQ("HALF", empty.Culprit());
    EXPECT_EQ(6U, empty.result.offset);
    EXPECT_EQ("LEN=03 MORE=mmmm", empty.fields);
}

TEST(FieldWalkTest, ARepeatToTheEndGoesOnWhileThereAreBytes)
{
    static constexpr FieldRow ROWS[] = {F("A", 1), RepeatToEnd(), F("N", 1), S("T", "N"), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    EXPECT_EQ("A=a", Walked(TABLE.View(), "a").fields);
    const Walked walked(TABLE.View(), "a1b02cc");
    EXPECT_TRUE(walked.result.IsGood());
    EXPECT_EQ(7U, walked.result.consumed);
    EXPECT_EQ("A=a N_1=1 T_1=b N_2=0 T_2= N_3=2 T_3=cc", walked.fields);
    const Walked cut(TABLE.View(), "a1b2c");
    EXPECT_EQ(Fault::Short, cut.result.fault);
    EXPECT_EQ("T_2", cut.Culprit());

    static constexpr FieldRow EMPTY[] = {F("N", 1), RepeatToEnd(), S("T", "N"), End()};
    static constexpr auto EMPTY_TABLE = MakeTable(EMPTY);
    EXPECT_EQ(1U, Walked(EMPTY_TABLE.View(), "0xxxx").result.consumed) << "turns without bytes must end";
}

TEST(FieldWalkTest, ACodeWithoutAMeaningIsBlamedForTheWidthThatItDecides)
{
    static constexpr FieldRow ROWS[] = {
        F("CODE", 1),
        Computed(
            "VALUE",
            [](const WalkContext& aContext, std::uint64_t& aOut) {
                aOut = 2;
                return aContext.Text("CODE") == "a";
            },
            Need::Required, Form::Text, "", "", "")
            .By("CODE"),
    };
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    EXPECT_EQ("CODE=a VALUE=xx", Walked(TABLE.View(), "axx").fields);
    const Walked unknown(TABLE.View(), "bxx");
    EXPECT_EQ(Fault::UnknownCode, unknown.result.fault);
    EXPECT_EQ("CODE", unknown.Culprit());
    EXPECT_EQ("b", unknown.result.value);
    EXPECT_EQ(0U, unknown.result.offset);
}

constexpr FieldRow NESTED_ROWS[] = {F("N", 1), Repeat("N"), F("M", 1), Repeat("M"), F("A", 1), Times(2),
                                    F("B", 1), End(),       End(),     F("C", 1),   End(),     F("Z", 1)};
constexpr auto NESTED = MakeTable(NESTED_ROWS);
static_assert(NESTED.wellFormed);
constexpr auto NESTED_DIGITS = MakeTable(NESTED_ROWS, Naming::ThreeDigits);

TEST(FieldWalkTest, RepeatsNestThreeDeepAndNameTheirTurns)
{
    const std::string_view bytes = "22abbabbc1abbcz";
    const Walked walked(NESTED.View(), bytes);
    EXPECT_TRUE(walked.result.IsGood());
    EXPECT_EQ(
        "N=2 M_1=2 A_1_1=a B_1_1_1=b B_1_1_2=b A_1_2=a B_1_2_1=b B_1_2_2=b C_1=c "
        "M_2=1 A_2_1=a B_2_1_1=b B_2_1_2=b C_2=c Z=z",
        walked.fields);
    EXPECT_EQ("N=2 M001=1 A001001=a B001001001=b B001001002=b C001=c M002=0 C002=c Z=z",
              Walked(NESTED_DIGITS.View(), "21abbc0cz").fields);
}

TEST(FieldWalkTest, EveryShorterPrefixIsRefusedAndNamesTheFirstMissingFieldOrTheCountThatPromisesIt)
{
    const std::string_view bytes = "22abbabbc1abbcz";
    const Walked whole(NESTED.View(), bytes);
    for (std::size_t length = 0; length != bytes.size(); ++length) {
        const Walked cut(NESTED.View(), bytes.substr(0, length));
        ASSERT_FALSE(cut.result.IsGood()) << length;
        EXPECT_GT(cut.result.wanted, cut.result.available) << length;
        EXPECT_EQ(cut.result.consumed + cut.result.available, length);
        if (cut.result.fault == Fault::Short) {
            const FieldEntry& missing = whole.store.Entries()[cut.store.Entries().size()];
            EXPECT_EQ(whole.store.Name(missing), cut.Culprit()) << length;
            EXPECT_EQ(whole.store.Position(missing), cut.result.offset) << length;
        } else {
            EXPECT_EQ(Fault::CountBeyondData, cut.result.fault) << length;
            const FieldEntry& count = cut.store.Entries().back();
            EXPECT_EQ(cut.store.Name(count), cut.Culprit()) << length;
            EXPECT_EQ(cut.store.Value(count), cut.result.value) << length;
        }
    }
}

TEST(FieldWalkTest, CountsComeFromFieldsFunctionsAndTheTable)
{
    static constexpr FieldRow ROWS[] = {F("N", 2, Form::Unsigned),
                                        Repeat("N", -1),
                                        F("A", 1),
                                        End(),
                                        Repeat("N", 1),
                                        F("B", 1),
                                        End(),
                                        RepeatBy("all pairs",
                                                 [](const WalkContext& aContext, std::uint64_t& aOut) {
                                                     const bool good = aContext.Count("N", aOut);
                                                     aOut = aOut * (aOut + 1) / 2;
                                                     return good;
                                                 }),
                                        F("C", 1),
                                        End(),
                                        Times(2),
                                        F("D", 1),
                                        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    using namespace std::string_view_literals;
    EXPECT_EQ("A_1=a B_1=b B_2=b B_3=b C_1=c C_2=c C_3=c D_1=d D_2=d",
              Walked(TABLE.View(), "\0\2abbbcccdd"sv).fields.substr(5));
    EXPECT_EQ("B_1=b D_1=d D_2=d", Walked(TABLE.View(), "\0\0bdd"sv).fields.substr(5));
}

TEST(FieldWalkTest, ConditionsLookAtTextNumbersBitsAndFunctions)
{
    static constexpr FieldRow ROWS[] = {
        F("T", 2),
        F("N", 2, Form::Integer),
        F("U", 1, Form::Unsigned),
        When("T", "A|BC|"),
        F("ONE", 1),
        End(),
        WhenNot("T", "A|BC"),
        F("NONE", 1),
        WhenFilled("T"),
        F("FILLED", 1),
        End(),
        End(),
        WhenPositive("N"),
        F("POSITIVE", 1),
        End(),
        WhenAtLeast("N", 10),
        F("TEN", 1),
        End(),
        WhenAnyBit("U", 0x82),
        F("BIT", 1),
        End(),
        WhenBy("one byte is left", [](const WalkContext& aContext) { return aContext.BytesLeft() == 1; }),
        F("LAST", 1),
        End(),
        WhenFilled("ONE"),
        F("OF_ABSENT", 1),
        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const auto read = [](std::string_view aHead) {
        const Walked walked(TABLE.View(), std::string(aHead) + "      ");
        std::string names;
        for (const FieldEntry& entry : walked.store.Entries().subspan(3)) {
            names += walked.store.Name(entry) + ' ';
        }
        return names;
    };
    EXPECT_EQ("ONE ", read("A 00\x01"));
    EXPECT_EQ("ONE POSITIVE ", read("BC 9\x7D"));
    EXPECT_EQ("ONE NONE ", read("  00\x01"));
    EXPECT_EQ("NONE FILLED POSITIVE TEN BIT LAST ", read(" A10\x80"));
    EXPECT_EQ("NONE FILLED BIT ", read("B 00\x02"));
    const Walked letters(TABLE.View(), "A 1x\x01o");
    EXPECT_EQ(Fault::NotANumber, letters.result.fault);
    EXPECT_EQ("N", letters.Culprit());
    EXPECT_EQ(2U, letters.result.offset);
    EXPECT_EQ("1x", letters.result.value);
}

TEST(FieldWalkTest, ConditionsDoNotSeeFieldsOfAnEarlierTurn)
{
    static constexpr FieldRow ROWS[] = {
        F("N", 1),
        Repeat("N"),
        F("KIND", 1),
        When("KIND", "1"),
        F("SIZE", 1),
        End(),
        WhenFilled("SIZE"),
        F("X", 1),
        End(),
        WhenPositive("SIZE"),
        F("Y", 1),
        End(),
        WhenNot("SIZE", "7"),
        F("Z", 1),
        End(),
        WhenBy("SIZE is 3", [](const WalkContext& aContext) { return aContext.Text("SIZE") == "3"; }),
        F("W", 1),
        End(),
        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const Walked walked(TABLE.View(), "313xyzw013xyzw");
    EXPECT_TRUE(walked.result.IsGood());
    EXPECT_EQ("N=3 KIND_1=1 SIZE_1=3 X_1=x Y_1=y Z_1=z W_1=w KIND_2=0 KIND_3=1 SIZE_3=3 X_3=x Y_3=y Z_3=z W_3=w",
              walked.fields);
}

TEST(FieldWalkTest, ConditionsOfManyTurnsAreDecidedByTheFieldsOfTheirOwnSurroundings)
{
    static constexpr FieldRow ROWS[] = {
        F("ALL", 1),
        F("N", 2),
        Repeat("N"),
        F("FLAG", 1),
        F("M", 2),
        Repeat("M"),
        When("ALL", "Y"),
        F("A", 1),
        End(),
        When("FLAG", "Y"),
        F("B", 1),
        End(),
        F("OWN", 1),
        When("OWN", "Y"),
        F("C", 1),
        End(),
        End(),
        End(),
    };
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    for (const char all : {'Y', 'N'}) {
        std::string bytes = all + std::string("20");
        std::string fields = std::string("ALL=") + all + " N=20";
        for (int outer = 1; outer <= 20; ++outer) {
            const char flag = outer % 3 == 0 ? 'Y' : 'N';
            const int count = outer % 2 == 0 ? 10 : 3;
            const std::string turn = std::to_string(outer);
            bytes += flag + std::string(count == 10 ? "10" : "03");
            fields += " FLAG_" + turn + '=' + flag + " M_" + turn + '=' + (count == 10 ? "10" : "03");
            for (int inner = 1; inner <= count; ++inner) {
                const std::string both = turn + '_' + std::to_string(inner);
                const bool own = (outer + inner) % 4 == 0;
                bytes += std::string(all == 'Y' ? "a" : "") + (flag == 'Y' ? "b" : "") + (own ? "Yc" : "N");
                fields += (all == 'Y' ? " A_" + both + "=a" : "") + (flag == 'Y' ? " B_" + both + "=b" : "") + " OWN_" +
                          both + (own ? "=Y C_" + both + "=c" : "=N");
            }
        }
        const Walked walked(TABLE.View(), bytes);
        EXPECT_TRUE(walked.result.IsGood());
        EXPECT_EQ(fields, walked.fields);
    }
}

TEST(FieldWalkTest, FunctionsDoNotSeeTheTurnsOfALoopThatHasEnded)
{
    // In its last turn the second loop stands at the same turn number as the last field of the first loop.
    static constexpr FieldRow ROWS[] = {
        Times(2),
        F("A", 1),
        End(),
        Times(2),
        WhenBy("A is seen", [](const WalkContext& aContext) { return !aContext.Text("A").empty(); }),
        F("B", 1),
        End(),
        F("C", 1),
        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    EXPECT_EQ("A_1=a A_2=a C_1=c C_2=c", Walked(TABLE.View(), "aaccb").fields);
}

TEST(FieldWalkTest, FunctionsSeeTheSameTurnOfALoopThatHasEndedWhereTheyAskForIt)
{
    static constexpr FieldRow ROWS[] = {F("N", 19),
                                        Times(4),
                                        F("SIZE", 1),
                                        End(),
                                        Repeat("N"),
                                        WhenBy("SIZE is not zero",
                                               [](const WalkContext& aContext) {
                                                   std::uint64_t size = 0;
                                                   return aContext.CountInTurn("SIZE", aContext.Turn(), size) &&
                                                          size != 0;
                                               }),
                                        F("A", 1),
                                        End(),
                                        End(),
                                        F("Z", 1)};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const std::string sizes = " SIZE_1=0 SIZE_2=1 SIZE_3=0 SIZE_4=2";
    for (const std::string count : {"0000000000000000004", "9999999999999999999"}) {  // turns that end and do not end
        EXPECT_EQ("N=" + count + sizes + " A_2=a A_4=a Z=z", Walked(TABLE.View(), count + "0102aaz").fields);
    }
}

TEST(FieldWalkTest, LoopAfterALoopThatBrokeOffNamesItsOwnTurns)
{
    static constexpr FieldRow ROWS[] = {F("N", 5), Repeat("N"), When("N", "1"), F("A", 1), End(),
                                        End(),     Times(2),    F("B", 1),      End(),     F("C", 1)};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    EXPECT_EQ("N=99999 B_1=b B_2=b C=c", Walked(TABLE.View(), "99999bbc").fields);
}

TEST(FieldWalkTest, StoreCanBeFilledAgain)
{
    FieldStore store(NESTED.View());
    ASSERT_TRUE(FieldWalk::Read("11abbcz", store).IsGood());
    ASSERT_TRUE(FieldWalk::Read("0y", store).IsGood());
    EXPECT_EQ("N=0 Z=y", Listed(store));
    EXPECT_EQ(nullptr, store.Find("M_1"));
}

TEST(FieldWalkTest, TableWithoutFieldsReadsNothing)
{
    static constexpr FieldRow ROWS[] = {Times(3), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    for (const FieldTable& table : {TABLE.View(), FieldTable()}) {
        const Walked walked(table, "abc");
        EXPECT_TRUE(walked.result.IsGood());
        EXPECT_EQ(0U, walked.result.consumed);
        EXPECT_TRUE(walked.store.IsEmpty());
        EXPECT_EQ(nullptr, walked.store.Find("A_1"));
        EXPECT_FALSE(walked.store.Has(0));
        EXPECT_FALSE(walked.store.Has(NO_ROW));
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

#include "fields/FieldStore.h"
#include "tests/fields/WalkSupport.h"

#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

constexpr FieldRow ROWS[] = {F("A", 2), F("B", 3), S("C", "A"), F("D", 4), Times(3), F("E", 1), End()};
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

std::string Positions(const FieldStore& aStore)
{
    std::string text;
    for (const FieldEntry& entry : aStore.Entries()) {
        text += std::to_string(aStore.Position(entry)) + ' ';
    }
    return text;
}

TEST(FieldStoreTest, PositionsStayWhereTheFieldsWereReadWhateverIsReplaced)
{
    const std::string positions = "0 2 5 5 9 10 11 ";
    const Walked walked(TABLE.View(), "00bbbddddxyz");
    ASSERT_TRUE(walked.result.IsGood());
    ASSERT_EQ(positions, Positions(walked.store));
    // Each pair in both orders: neighbours, the field without bytes, the first and the last one.
    const std::size_t count = walked.store.Entries().size();
    for (std::size_t first = 0; first != count; ++first) {
        for (std::size_t second = 0; second != count; ++second) {
            FieldStore store(walked.store);
            store.Replace(store.Entries()[first], "a longer value than before");
            store.Replace(store.Entries()[second], "");
            EXPECT_EQ(positions, Positions(store)) << first << ' ' << second;
            EXPECT_EQ("", store.Value(store.Entries()[second]));
            EXPECT_EQ(first == second ? "" : "a longer value than before", store.Value(store.Entries()[first]));
        }
    }
}

TEST(FieldStoreTest, ReplaceTakesAPartOfAnotherValue)
{
    Walked walked(TABLE.View(), "00bbbwxyz123");
    FieldStore& store = walked.store;
    for (int i = 0; i != 100; ++i) {  // the arena grows under the view
        store.Replace(*store.Find("C"), store.Value(*store.Find("D")).substr(1));
    }
    EXPECT_EQ("xyz", store.Value(*store.Find("C")));
    EXPECT_EQ('\0', store.Value(*store.Find("C")).data()[3]);
    EXPECT_EQ("wxyz", store.Value(*store.Find("D")));
    ASSERT_TRUE(FieldWalk::Read("02bbbccddddxyz", store).IsGood());
    EXPECT_EQ("0 2 5 7 11 12 13 ", Positions(store));
}

TEST(FieldStoreTest, EveryValueKeepsItsBytesAndEndsWithANul)
{
    using namespace std::string_view_literals;
    const Walked walked(TABLE.View(), "00b\0b\xFF\0\0d\n\0z"sv);
    ASSERT_TRUE(walked.result.IsGood());
    EXPECT_EQ("b\0b"sv, walked.store.Value(*walked.store.Find("B")));
    EXPECT_EQ("\xFF\0\0d"sv, walked.store.Value(*walked.store.Find("D")));
    for (const FieldEntry& entry : walked.store.Entries()) {
        EXPECT_EQ('\0', walked.store.Value(entry).data()[entry.length]);
    }
}

TEST(FieldStoreTest, FindTellsAnEmptyValueFromAnAbsentField)
{
    const Walked walked(TABLE.View(), "00bbbddddx");
    ASSERT_EQ(Fault::Short, walked.result.fault);
    bool found = false;
    EXPECT_EQ("", walked.store.Find("C", found));
    EXPECT_TRUE(found);
    EXPECT_EQ(nullptr, walked.store.Find("E_2", found).data());
    EXPECT_FALSE(found);
    EXPECT_TRUE(walked.store.Has(5));
    EXPECT_FALSE(FieldStore().Has(0));
    EXPECT_EQ(nullptr, walked.store.Find("E_0"));
    EXPECT_EQ(nullptr, FieldStore().Find("E_1"));
}

TEST(FieldStoreTest, RowsOfATableWithoutRepeatsAreFoundAsEntriesInOrder)
{
    static constexpr FieldRow PLAIN_ROWS[] = {F("A", 1), When("A", "1"), F("B", 1), End(), F("C", 2), F("D", 1)};
    static constexpr auto PLAIN = MakeTable(PLAIN_ROWS);
    static_assert(PLAIN.wellFormed && !PLAIN.View().HasRepeats());
    const FieldStore with = Walked(PLAIN.View(), "1bccd").store;
    const FieldStore without = Walked(PLAIN.View(), "0ccd").store;
    const FieldStore cut = Walked(PLAIN.View(), "0cc").store;
    EXPECT_EQ("b", with.Value(*with.Find("B")));
    EXPECT_EQ("d", with.Value(*with.Find("D")));
    EXPECT_EQ("d", without.Value(*without.Find("D")));
    EXPECT_EQ(nullptr, without.Find("B"));
    EXPECT_EQ(nullptr, without.Find("D_1"));
    EXPECT_EQ(nullptr, cut.Find("D"));
    EXPECT_TRUE(without.Has(4));
    EXPECT_FALSE(without.Has(2));
    EXPECT_EQ(5U, with.Size());
    EXPECT_EQ(3U, cut.Size());
}

TEST(FieldStoreTest, EqualityLooksAtTableFieldsAndValues)
{
    static constexpr FieldRow OTHER_ROWS[] = {F("X", 2), F("Y", 3)};
    static constexpr FieldRow SAME_ROWS[] = {F("Z", 2), F("Y", 3)};
    static constexpr auto OTHER = MakeTable(OTHER_ROWS);
    static constexpr auto SAME = MakeTable(SAME_ROWS);
    const FieldStore store = Walked(OTHER.View(), "xxyyy").store;
    EXPECT_TRUE(store == Walked(OTHER.View(), "xxyyyz").store);
    EXPECT_FALSE(store == Walked(OTHER.View(), "xxyyY").store);
    EXPECT_FALSE(store == Walked(OTHER.View(), "xx").store);
    EXPECT_FALSE(store == Walked(SAME.View(), "xxyyy").store);
    FieldStore replaced(store);
    replaced.Replace(replaced.Entries()[0], "xx");
    EXPECT_TRUE(store == replaced);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

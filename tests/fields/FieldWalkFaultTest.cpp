#include "tests/fields/WalkSupport.h"

#include <chrono>
#include <string>

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/mman.h>
#include <sys/resource.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

/// Bytes that a store holds for its entries, its index and its values.
std::size_t HeldBytes(const FieldStore& aStore)
{
    std::size_t bytes = aStore.Entries().size() * (sizeof(FieldEntry) + sizeof(std::uint32_t) + 1);
    for (const FieldEntry& entry : aStore.Entries()) {
        bytes += entry.length;
    }
    return bytes;
}

TEST(FieldWalkFaultTest, ShortTellsTheFieldItsTurnsAndBothLengths)
{
    static constexpr FieldRow ROWS[] = {F("HEAD", 4), Times(2), F("A", 3), Times(2), F("B", 5), End(), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const Walked walked(TABLE.View(), "headaaabbbbbbbbbbaaabb");
    EXPECT_EQ(Fault::Short, walked.result.fault);
    EXPECT_EQ("B_2_1", walked.Culprit());
    EXPECT_EQ((Turns{2, 1, 0}), walked.result.turns);
    EXPECT_EQ(20U, walked.result.offset);
    EXPECT_EQ(5U, walked.result.wanted);
    EXPECT_EQ(2U, walked.result.available);
    EXPECT_EQ(20U, walked.result.consumed);
    EXPECT_EQ("", walked.result.value);
    EXPECT_EQ("HEAD=head A_1=aaa B_1_1=bbbbb B_1_2=bbbbb A_2=aaa", walked.fields);
}

TEST(FieldWalkFaultTest, LengthTooSmallTellsTheLengthFieldAndWhatItMustCover)
{
    static constexpr FieldRow ROWS[] = {F("ID", 2), F("UDHDL", 5), S("UDHD", "UDHDL", -3)};
    static constexpr auto TABLE = MakeTable(ROWS);
    for (const char* const length : {"00002", "00000", "    1"}) {
        const Walked walked(TABLE.View(), std::string("id") + length + "xx");
        EXPECT_EQ(Fault::LengthTooSmall, walked.result.fault);
        EXPECT_EQ("UDHDL", walked.Culprit());
        EXPECT_EQ(2U, walked.result.offset);
        EXPECT_EQ(3U, walked.result.wanted);
        EXPECT_EQ(2U, walked.result.available);
        EXPECT_EQ(length, walked.result.value);
    }
}

TEST(FieldWalkFaultTest, CountsOfLettersSignsInnerBlanksOrNothingAreNoNumbers)
{
    static constexpr FieldRow ROWS[] = {F("N", 3), Repeat("N"), F("M", 3), Repeat("M"), F("A", 1), End(), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    for (const char* const count : {"abc", "-01", "+01", "1 1", "   ", "1.0", "0x1", "1e0", "12\t"}) {
        for (const bool inner : {false, true}) {
            const Walked walked(TABLE.View(), (inner ? "002000" : "") + std::string(count) + "aaa");
            EXPECT_EQ(Fault::NotANumber, walked.result.fault) << count;
            EXPECT_EQ(inner ? "M_2" : "N", walked.Culprit()) << count;
            EXPECT_EQ(inner ? 6U : 0U, walked.result.offset) << count;
            EXPECT_EQ(0U, walked.result.wanted);
            EXPECT_EQ(3U, walked.result.available);
            EXPECT_EQ(count, walked.result.value);
        }
    }
    EXPECT_EQ("N=  1 M_1= 1  A_1_1=a", Walked(TABLE.View(), "  1 1 a").fields);
}

TEST(FieldWalkFaultTest, CountBeyondDataIsFoundBeforeTheFirstTurn)
{
    static constexpr FieldRow ROWS[] = {F("K", 2),       F("N", 2), Repeat("N"), F("A", 3),
                                        When("K", "KK"), F("B", 4), End(),       Repeat("N"),
                                        F("C", 1),       End(),     End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const Walked walked(TABLE.View(), "KK04" + std::string(43, 'x'));
    EXPECT_EQ(Fault::CountBeyondData, walked.result.fault);
    EXPECT_EQ("N", walked.Culprit());
    EXPECT_EQ(2U, walked.result.offset);
    EXPECT_EQ(4U * (3U + 4U + 4U), walked.result.wanted);
    EXPECT_EQ(43U, walked.result.available);
    EXPECT_EQ("04", walked.result.value);
    EXPECT_EQ("K=KK N=04", walked.fields);
    EXPECT_TRUE(Walked(TABLE.View(), "KK04" + std::string(44, 'x')).result.IsGood());
    EXPECT_TRUE(Walked(TABLE.View(), "--04" + std::string(28, 'x')).result.IsGood());
}

TEST(FieldWalkFaultTest, NumbersNearTheTopOfSixtyFourBitsDoNotWrap)
{
    static constexpr FieldRow TEXT_ROWS[] = {F("N", 20), Repeat("N"), F("A", 16), End()};
    static constexpr auto TEXT = MakeTable(TEXT_ROWS);
    for (const char* const count : {"18446744073709551615", "01152921504606846976", "01152921504606846977"}) {
        const Walked walked(TEXT.View(), std::string(count) + std::string(32, 'a'));
        EXPECT_EQ(Fault::CountBeyondData, walked.result.fault) << count;
        EXPECT_EQ(UINT64_MAX, walked.result.wanted) << count;
    }
    EXPECT_EQ(Fault::NotANumber, Walked(TEXT.View(), "18446744073709551616aaaa").result.fault);

    // An adjustment above the top must not come out as a width or count of zero.
    static constexpr FieldRow WIDTH_ROWS[] = {F("L", 8, Form::Unsigned), S("A", "L", 1)};
    static constexpr auto WIDTH = MakeTable(WIDTH_ROWS);
    const Walked width(WIDTH.View(), std::string(8, '\xFF') + "a");
    EXPECT_EQ(Fault::Short, width.result.fault);
    EXPECT_EQ("A", width.Culprit());
    EXPECT_EQ(UINT64_MAX, width.result.wanted);
    static constexpr FieldRow COUNT_ROWS[] = {F("N", 8, Form::Unsigned), Repeat("N", 1), F("A", 1), End()};
    static constexpr auto COUNT = MakeTable(COUNT_ROWS);
    EXPECT_EQ(Fault::CountBeyondData, Walked(COUNT.View(), std::string(8, '\xFF') + "a").result.fault);
}

TEST(FieldWalkFaultTest, FaultWithoutACountFieldNamesTheFieldThatIsMissing)
{
    static constexpr FieldRow ROWS[] = {
        F("N", 2),
        RepeatBy("N times", [](const WalkContext& aContext, std::uint64_t& aOut) { return aContext.Count("N", aOut); }),
        Times(2),
        F("A", 2),
        End(),
        End(),
        WhenFilled("N"),
        Times(3),
        F("B", 2),
        End(),
        End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const Walked beyond(TABLE.View(), "03aaaa");
    EXPECT_EQ(Fault::CountBeyondData, beyond.result.fault);
    EXPECT_EQ("A_1_1", beyond.Culprit());
    EXPECT_EQ(2U, beyond.result.offset);
    EXPECT_EQ(12U, beyond.result.wanted);
    EXPECT_EQ(4U, beyond.result.available);
    const Walked letters(TABLE.View(), "xxaaaa");
    EXPECT_EQ(Fault::NotANumber, letters.result.fault);
    EXPECT_EQ("A_1_1", letters.Culprit());
    const Walked times(TABLE.View(), "01aaaabbbbb");
    EXPECT_EQ(Fault::Short, times.result.fault);
    EXPECT_EQ("B_3", times.Culprit());
    EXPECT_EQ(10U, times.result.offset);
}

TEST(FieldWalkFaultTest, RepeatOfACountThatWasLeftOutNamesWhatItWouldRepeat)
{
    static constexpr FieldRow ROWS[] = {F("K", 1), When("K", "1"), F("N", 1), End(), Repeat("N"), F("A", 1), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    const Walked walked(TABLE.View(), "0a");
    EXPECT_EQ(Fault::NotANumber, walked.result.fault);
    EXPECT_EQ("A_1", walked.Culprit());
    EXPECT_EQ(1U, walked.result.offset);
}

constexpr FieldRow EMPTY_ROWS[] = {F("N", 5),   F("L", 1),      Repeat("N"), S("A", "L"), End(),
                                   Repeat("N"), When("L", "9"), F("B", 1),   End(),       End()};
constexpr auto EMPTY = MakeTable(EMPTY_ROWS);
static_assert(EMPTY.wellFormed);

TEST(FieldWalkFaultTest, TurnsOfNothingAreReadWhenFewAndRefusedWhenMany)
{
    EXPECT_TRUE(Walked(EMPTY.View(), "000090").result.IsGood());
    const Walked many(EMPTY.View(), "999990");
    EXPECT_EQ(Fault::CountBeyondData, many.result.fault);
    EXPECT_EQ("N", many.Culprit());
    EXPECT_EQ("99999", many.result.value);
    EXPECT_GT(many.result.wanted, many.result.available);
    EXPECT_LT(many.store.Entries().size(), 20U);

    // No limit where only some of many turns are empty.
    static constexpr FieldRow SOME_ROWS[] = {F("N", 2), Repeat("N"),
                                             Computed(
                                                 "A",
                                                 [](const WalkContext& aContext, std::uint64_t& aOut) {
                                                     aOut = aContext.BytesLeft() > 2 ? 1 : 0;
                                                     return true;
                                                 },
                                                 Need::Required, Form::Text, "", "", ""),
                                             End()};
    static constexpr auto SOME = MakeTable(SOME_ROWS);
    EXPECT_EQ(14U, Walked(SOME.View(), "13" + std::string(12, 'a')).store.Entries().size());
}

TEST(FieldWalkFaultTest, HostileCountsCostNeitherTimeNorMemory)
{
    static constexpr FieldRow LOOPS[] = {F("N", 19), Repeat("N"), Repeat("N"), Repeat("N"), When("N", "1"),
                                         F("A", 1),  End(),       End(),       End(),       End()};
    static constexpr auto TABLE = MakeTable(LOOPS);
    static_assert(TABLE.wellFormed);
    const auto start = std::chrono::steady_clock::now();
    const Walked walked(TABLE.View(), "9999999999999999999");
    EXPECT_TRUE(walked.result.IsGood());
    EXPECT_EQ(1U, walked.store.Entries().size());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));

    // Each byte of the outer loop claims 9 times 9 turns of an empty field.
    static constexpr FieldRow PRODUCT_ROWS[] = {F("N", 9), F("E", 1),   F("L", 1),   Repeat("N"),
                                                F("K", 1), Repeat("E"), Repeat("E"), S("A", "L"),
                                                End(),     End(),       End()};
    static constexpr auto PRODUCT = MakeTable(PRODUCT_ROWS);
    static_assert(PRODUCT.wellFormed);
    const std::string bytes = "00002000090" + std::string(20000, 'k');
    const Walked product(PRODUCT.View(), bytes);
    EXPECT_EQ("E", product.Culprit());
    EXPECT_LT(HeldBytes(product.store), 100 * bytes.size());
}

TEST(FieldWalkFaultTest, EmptyFieldsOfALoopAreNotReservedBeyondTheBytesPresent)
{
    // 1 byte and 300 times an empty field per turn: reserving by the table alone would take 7 kB for each byte.
    static constexpr FieldRow ROWS[] = {F("N", 9),   F("Z", 1),   Repeat("N"), F("K", 1),
                                        Times(300),  S("A", "Z"), End(),       F("X", 1, Form::Integer),
                                        S("B", "X"), End()};
    static constexpr auto TABLE = MakeTable(ROWS);
    static_assert(TABLE.wellFormed);
    const std::string bytes = "0005000000" + std::string(1000000, 'k');
    const auto inUse = [] {
        const struct mallinfo2 info = mallinfo2();
        return info.uordblks + info.hblkhd;
    };
    const std::size_t before = inUse();
    const Walked walked(TABLE.View(), bytes);
    EXPECT_EQ("X_1", walked.Culprit());
    EXPECT_LT(inUse() - before, 30 * bytes.size());
}

TEST(FieldWalkFaultTest, DataBeyondTheOffsetsOfAStoreAreRefusedUnread)
{
    constexpr std::size_t FIVE_GIB = std::size_t{5} << 30U;
    void* const pages = mmap(nullptr, FIVE_GIB, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (pages == MAP_FAILED) {
        GTEST_SKIP() << "no address space for 5 GiB";
    }
    static constexpr FieldRow ROWS[] = {F("HEAD", 8), Rest("DATA", Need::Required, Form::Bytes, "", "", "")};
    static constexpr auto TABLE = MakeTable(ROWS);
    const auto mostHeld = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;  // kilobytes
    };
    const long before = mostHeld();
    FieldStore store(TABLE.View());
    const WalkResult result = FieldWalk::Read({static_cast<const char*>(pages), FIVE_GIB}, store);
    // A sanitizer keeps one byte for eight of what is reserved.
    EXPECT_LT(mostHeld() - before, long{FIVE_GIB / 1024 / 4}) << "memory for the refused data was written";
    EXPECT_EQ(Fault::Short, result.fault);
    EXPECT_EQ(1U, result.row);
    EXPECT_EQ(8U, result.consumed);
    munmap(pages, FIVE_GIB);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

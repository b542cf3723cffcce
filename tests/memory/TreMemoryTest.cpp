// Memory that runs out among TREs: the failure that the headers promise, nothing lost, no other answer.

#include "tests/memory/ShortMemory.h"
#include "tests/support/NitfBuilder.h"
#include "tre/RawNITFMetadataTRE.h"
#include "tre/TREFactory.h"
#include "tre/TREStore.h"
#include "tre/TreRPC00.h"
#include "tre/detail/TreArea.h"
#include "tre/detail/TreMaker.h"

#include <array>
#include <memory>
#include <new>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

const std::string AREA = Tre("OFFSET", "0000001200000034") + Tre("NOBODY", std::string(40, 'x')) +
                         Tre("RPC00B", std::string(1041, '0')) + Tre("OFFSET", "short") +
                         Tre("BANDSA", "01.0000f01.0000f100.009999") + Tre("NOBODY", "y") + "LARGE 00099ABCDE";
constexpr std::size_t TRES = 6;
constexpr std::size_t FAULTS = 3;

struct Cut
{
    TREStore store;
    Detail::FindingList findings;
    bool thrown = false;
};

int Extract(Cut& aCut)
{
    return Detail::ExtractTREs(AREA, aCut.store, {}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN,
                               {"IXSHD", 0, TRE::TRE_TYPE_CONTROLLED_EXTENSION}, aCut.findings);
}

class TreMemoryTest : public testing::Test
{
protected:
    TreMemoryTest()
    {
        Extract(m_whole);
        // What is built once and kept is there already, so that all that is left over is lost.
        m_whole.store.ByTag();
        m_whole.store.InOrder()[0]->GetAllTreFieldInfos();
        m_whole.store.InOrder()[0]->GetTREDescription();
    }

    const TRE& Rpc() const { return *m_whole.store.InOrder()[2]; }

    Cut m_whole;
};

TEST_F(TreMemoryTest, CuttingAnAreaRaisesAndKeepsTheTresBefore)
{
    const std::size_t failures = FailEach([] { return Cut(); },
                                          [](Cut& aCut) {
                                              try {
                                                  Extract(aCut);
                                              } catch (const std::bad_alloc&) {
                                                  aCut.thrown = true;
                                              }
                                          },
                                          [this](const Cut& aCut, bool aFailed) {
                                              ASSERT_EQ(aFailed, aCut.thrown);
                                              if (!aFailed) {
                                                  EXPECT_EQ(TRES, aCut.store.Size());
                                                  EXPECT_EQ(FAULTS, aCut.findings.Count());
                                              }
                                              for (std::size_t i = 0; i != aCut.store.Size(); ++i) {
                                                  EXPECT_TRUE(*m_whole.store.InOrder()[i] == *aCut.store.InOrder()[i]);
                                              }
                                          });
    EXPECT_LT(2 * TRES, failures);
}

TEST_F(TreMemoryTest, TheTextFormRaisesOrTellsAllItFound)
{
    struct Told
    {
        TREStore store;
        std::unique_ptr<char[]> errors;
        int count = -1;
    };
    std::string expected;
    const std::size_t failures =
        FailEach([] { return Told(); },
                 [](Told& aTold) {
                     char* errors = nullptr;
                     try {
                         aTold.count = TREFactory::ExtractTREs(AREA.c_str(), aTold.store, false, false, &errors);
                     } catch (const std::bad_alloc&) {
                         EXPECT_EQ(nullptr, errors);
                     }
                     aTold.errors.reset(errors);
                 },
                 [this](const Told& aTold, bool aFailed) {
                     EXPECT_EQ(aFailed ? -1 : static_cast<int>(TRES), aTold.count);
                     if (!aFailed) {
                         EXPECT_EQ(0U, std::string(aTold.errors.get()).find("ERROR: Exc"));
                     }
                 });
    EXPECT_LT(2 * TRES, failures);
}

TEST_F(TreMemoryTest, CopiesAreMadeWholeOrNotAtAll)
{
    for (const TRE* const source : m_whole.store.InOrder()) {
        const std::size_t failures = FailEach([] { return Detail::OwnedTre(); },
                                              [source](Detail::OwnedTre& aCopy) {
                                                  TRE* copy = nullptr;
                                                  const bool made = TREFactory::CloneTRE(*source, &copy);
                                                  aCopy.reset(copy);
                                                  EXPECT_EQ(made, copy != nullptr);
                                              },
                                              [source](const Detail::OwnedTre& aCopy, bool aFailed) {
                                                  EXPECT_EQ(aFailed, aCopy == nullptr);
                                                  EXPECT_TRUE(aFailed || *aCopy == *source);
                                              });
        EXPECT_LT(1U, failures);
    }
    const std::size_t failures = FailEach([] { return std::unique_ptr<TREStore>(); },
                                          [this](std::unique_ptr<TREStore>& aCopy) {
                                              try {
                                                  aCopy = std::make_unique<TREStore>(m_whole.store);
                                              } catch (const std::bad_alloc&) {
                                                  EXPECT_EQ(nullptr, aCopy);
                                              }
                                          },
                                          [this](const std::unique_ptr<TREStore>& aCopy, bool aFailed) {
                                              EXPECT_EQ(aFailed, aCopy == nullptr);
                                              EXPECT_TRUE(aFailed || *aCopy == m_whole.store);
                                          });
    EXPECT_LT(2 * TRES, failures);
}

TEST_F(TreMemoryTest, AnAssignmentThatFailsChangesNothing)
{
    const auto start = [this] { return Detail::TreMaker::Clone(*m_whole.store.InOrder()[1]); };
    const std::size_t failures = FailEach(
        start,
        [this](Detail::OwnedTre& aTarget) {
            try {
                *aTarget = Rpc();
            } catch (const std::bad_alloc&) {
                EXPECT_STREQ("NOBODY", aTarget->GetTag());
            }
        },
        [this](const Detail::OwnedTre& aTarget, bool aFailed) {
            const TRE& same = aFailed ? *m_whole.store.InOrder()[1] : Rpc();
            EXPECT_TRUE(*aTarget == same);
        });
    EXPECT_LT(1U, failures);
}

TEST_F(TreMemoryTest, AStoreTakesATreOrLeavesIt)
{
    const std::size_t failures = FailEach([] { return Cut(); },
                                          [this](Cut& aCut) {
                                              Detail::OwnedTre tre;
                                              try {
                                                  tre = Detail::TreMaker::Clone(Rpc());
                                              } catch (const std::bad_alloc&) {
                                                  return;
                                              }
                                              if (aCut.store.Add(tre.get())) {
                                                  static_cast<void>(tre.release());
                                              }
                                          },
                                          [](const Cut& aCut, bool aFailed) {
                                              EXPECT_EQ(aFailed ? 0U : 1U, aCut.store.Size());
                                              EXPECT_EQ(aFailed, aCut.store.Find("RPC00B") == nullptr);
                                          });
    EXPECT_LT(3U, failures);
}

TEST_F(TreMemoryTest, ViewsAreBuiltWholeOrNotAtAll)
{
    struct Asked
    {
        Detail::OwnedTre tre;
        std::size_t fields = 0;
        std::size_t values = 0;
        std::size_t infos = 0;
        std::array<double, 80> coefficients{};
        bool converted = false;
    };
    const auto ask = [](Asked& aAsked) {
        try {
            aAsked.fields = aAsked.tre->GetAllTreFields()->size();
            aAsked.values = aAsked.tre->GetTREKeyValuePairsMap()->size();
            aAsked.infos = aAsked.tre->GetAllTreFieldInfos()->size();
            const auto& rpc = dynamic_cast<const TreRPC00&>(*aAsked.tre);
            double* const out = aAsked.coefficients.data();
            aAsked.converted = rpc.GetRPCCoefficients(out, out + 20, out + 40, out + 60);
        } catch (const std::bad_alloc&) {
            EXPECT_FALSE(aAsked.converted);
        }
    };
    const std::size_t failures = FailEach([this] { return Asked{.tre = Detail::TreMaker::Clone(Rpc())}; }, ask,
                                          [&ask](Asked& aAsked, bool aFailed) {
                                              EXPECT_NE(aFailed, aAsked.converted);
                                              ask(aAsked);  // with memory again, all is there
                                              EXPECT_TRUE(aAsked.converted);
                                              EXPECT_EQ(93U, aAsked.fields);
                                              EXPECT_EQ(93U, aAsked.values);
                                              EXPECT_EQ(93U, aAsked.infos);
                                          });
    EXPECT_LT(93U, failures);
}

TEST_F(TreMemoryTest, RawMetadataRaiseWhenMadeAndAnswerFalseWhenAsked)
{
    const TRE& offset = *m_whole.store.InOrder()[0];
    using Owned = std::unique_ptr<RawNITFMetadataTRE>;
    EXPECT_LT(10U, FailEach([] { return Owned(); },
                            [&offset](Owned& aMade) {
                                try {
                                    aMade = std::make_unique<RawNITFMetadataTRE>(offset);
                                } catch (const std::bad_alloc&) {
                                    EXPECT_EQ(nullptr, aMade);
                                }
                            },
                            [](const Owned& aMade, bool aFailed) {
                                ASSERT_EQ(aFailed, aMade == nullptr);
                                std::size_t length = 0;
                                EXPECT_TRUE(aFailed || aMade->GetRawDataStream(length) != nullptr);
                            }));
    const auto names = [](const RawNITFMetadata& aMetadata) {
        const char** tags = nullptr;
        const char** longNames = nullptr;
        std::size_t count = 0;
        const bool answered = aMetadata.GetMetadataFieldName(tags, longNames, count);
        EXPECT_EQ(answered, tags != nullptr);
        return count;
    };
    std::size_t count = 0;
    EXPECT_LT(5U, FailEach([&offset] { return std::make_unique<RawNITFMetadataTRE>(offset); },
                           [&](Owned& aMade) { count = names(*aMade); },
                           [&](const Owned& aMade, bool aFailed) {
                               EXPECT_EQ(aFailed ? 0U : 2U, count);
                               EXPECT_EQ(2U, names(*aMade));
                           }));
}

TEST_F(TreMemoryTest, TextsAreHandedOutWholeOrNotAtAll)
{
    using Owned = std::unique_ptr<char[]>;
    std::size_t failures = FailEach([] { return Owned(); },
                                    [this](Owned& aText) {
                                        char* text = nullptr;
                                        const bool written = Rpc().Write(&text);
                                        EXPECT_EQ(written, text != nullptr);
                                        aText.reset(text);
                                    },
                                    [](const Owned& aText, bool aFailed) { EXPECT_EQ(aFailed, aText == nullptr); });
    EXPECT_EQ(1U, failures);
    failures = FailEach([] { return Owned(); },
                        [this](Owned& aText) {
                            char* text = nullptr;
                            try {
                                const bool written = Rpc().Serialize(&text, "U", 1);
                                EXPECT_EQ(written, text != nullptr);
                            } catch (const std::bad_alloc&) {
                                EXPECT_EQ(nullptr, text);
                            }
                            aText.reset(text);
                        },
                        [](const Owned& aText, bool aFailed) { EXPECT_EQ(aFailed, aText == nullptr); });
    EXPECT_LT(3U, failures);
}

TEST_F(TreMemoryTest, ATreThatIsRefusedCostsNoTextOnceTheListIsFull)
{
    std::string area;
    for (int i = 0; i != 3000; ++i) {
        area += Tre("BLOCKA", "x");
    }
    Cut cut;
    const auto cutAll = [&] {
        const std::size_t before = LiveBlocks();
        Detail::ExtractTREs(area, cut.store, {}, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN, {}, cut.findings);
        return LiveBlocks() - before;
    };
    cutAll();
    ASSERT_FALSE(cut.findings.HasRoom());
    cut.store.Clear();
    EXPECT_GE(2 * 3000U + 2, cutAll()) << "the TRE and its parts, whose text is short enough to stand in them";
    EXPECT_EQ(6000U, cut.findings.Count());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

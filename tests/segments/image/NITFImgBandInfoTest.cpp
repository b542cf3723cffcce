#include "segments/image/NITFImgBandInfo.h"
#include "tests/support/NitfBuilder.h"
#include "tre/TREFactory.h"

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using std::string_literals::operator""s;

NITFImgBandInfo::Fields WithTables(std::vector<std::string_view> aTables, std::string_view aEntries)
{
    constexpr std::string_view COUNTS[] = {"0", "1", "2", "3", "4"};
    return {"M ", " IR", "N", "   ", COUNTS[aTables.size()], aEntries, std::move(aTables)};
}

std::shared_ptr<const TRE> Generic(const char* aTag)
{
    TRE* tre = nullptr;
    TREFactory::Create(Tests::Tre(aTag, "x").c_str(), TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, false, false, nullptr);
    return {tre, [](TRE* aOwned) { TREFactory::Destroy(&aOwned); }};
}

TEST(NITFImgBandInfoTest, FieldsAreTrimmedAndTablesKeptAsTheyStand)
{
    const NITFImgBandInfo none(7, "MONO    ", WithTables({}, ""));
    EXPECT_EQ(none.GetBandNumber(), 7U);
    EXPECT_STREQ(none.GetFieldIREPBAND(), "M");
    EXPECT_STREQ(none.GetFieldISUBCAT(), "IR");
    EXPECT_STREQ(none.GetFieldIFC(), "N");
    EXPECT_STREQ(none.GetFieldIMFLT(), "");
    EXPECT_FALSE(none.HasLUTs());
    EXPECT_STREQ(none.GetErrorMessage(), "");
    std::vector<NITFImgBandInfo::WideTable> tables;
    std::vector<NITFImgBandInfo::Table> maps;
    EXPECT_FALSE(none.GetLUTs(tables));
    EXPECT_FALSE(none.Get8BitColorMapArrays(maps));

    // Pairs of images that are not MONO and triples stay tables of 8 bits.
    for (const char* const irep : {"RGB/LUT ", "NODISPLY", "mono", "MONO X"}) {
        const NITFImgBandInfo pair(0, irep, WithTables({"\x01\xFF"s, "\x02\x80"s}, "00002"));
        EXPECT_EQ(pair.GetNumOfLUTs(), 2U) << irep;
        EXPECT_FALSE(pair.Has16BitLUT());
        ASSERT_TRUE(pair.GetLUTs(tables));
        EXPECT_EQ(tables, (std::vector<NITFImgBandInfo::WideTable>{{1, 255}, {2, 128}})) << irep;
        ASSERT_TRUE(pair.Get8BitColorMapArrays(maps));
        EXPECT_EQ(maps, (std::vector<NITFImgBandInfo::Table>{{1, 255}, {2, 128}})) << irep;
    }
    const NITFImgBandInfo triple(0, "MONO", WithTables({"r", "g", "b"}, "00001"));
    EXPECT_EQ(triple.GetNumOfLUTs(), 3U);
    EXPECT_EQ(triple.GetNumOfLUTEntries(), 1U);
}

TEST(NITFImgBandInfoTest, PairOfAMonoImageIsOneTableOf16BitsRoundedUp)
{
    // 0x0000, 0x0001, 0x0101, 0x0102, 0x8000, 0xFFFE, 0xFFFF: low bytes in the first table, high bytes in the second.
    const std::string low = "\x00\x01\x01\x02\x00\xFE\xFF"s;
    const std::string high = "\x00\x00\x01\x01\x80\xFF\xFF"s;
    const NITFImgBandInfo band(0, " MONO ", WithTables({low, high}, "00007"));
    ASSERT_TRUE(band.Has16BitLUT());
    EXPECT_EQ(band.GetNumOfLUTs(), 1U);
    EXPECT_EQ(band.GetNumOfLUTEntries(), 7U);
    std::vector<NITFImgBandInfo::WideTable> tables;
    ASSERT_TRUE(band.GetLUTs(tables));
    EXPECT_EQ(tables, (std::vector<NITFImgBandInfo::WideTable>{{0, 1, 257, 258, 32768, 65534, 65535}}));
    std::vector<NITFImgBandInfo::Table> maps;
    ASSERT_TRUE(band.Get8BitColorMapArrays(maps));
    EXPECT_EQ(maps, (std::vector<NITFImgBandInfo::Table>{{0, 1, 1, 2, 128, 255, 255}}));
}

TEST(NITFImgBandInfoTest, TablesThatDoNotFitTheirFieldsFailTheBand)
{
    const std::string error =
        "ERROR: Invalid image segment fields NLUTS (Number of LUTS for the nth Image Band), NELUT (Number of LUT "
        "Entries for the nth Image Band), and/or LUTD (Look-up Tables).";
    NITFImgBandInfo::Fields missing = WithTables({"ab"}, "00002");
    missing.nluts = "2";
    NITFImgBandInfo::Fields many = WithTables({"ab"}, "00002");
    many.nluts = "5";
    many.lutd.resize(5, "ab");
    NITFImgBandInfo::Fields letters = WithTables({}, "");
    letters.nluts = "x";
    for (const NITFImgBandInfo::Fields& fields :
         {missing, many, letters, WithTables({"ab"}, "00003"), WithTables({"ab", "a"}, "00002"),
          WithTables({""}, "00000"), WithTables({"ab"}, "")}) {
        const NITFImgBandInfo band(0, "MONO", fields);
        EXPECT_EQ(band.GetErrorMessage(), error);
        EXPECT_FALSE(band.HasLUTs());
        EXPECT_STREQ(band.GetFieldIREPBAND(), "M");
    }
}

TEST(NITFImgBandInfoTest, OnlyBandsRecordsAreCollected)
{
    NITFImgBandInfo band(0, "MULTI", WithTables({}, ""));
    EXPECT_FALSE(band.AddTreBANDS(nullptr));
    EXPECT_FALSE(band.AddTreBANDS(Generic("BLOCKA")));
    const auto first = Generic("BANDSA");
    const auto second = Generic("BANDSB");
    EXPECT_TRUE(band.AddTreBANDS(first));
    EXPECT_TRUE(band.AddTreBANDS(second));
    EXPECT_EQ(band.GetTreBANDS(), (std::vector{first.get(), second.get()}));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

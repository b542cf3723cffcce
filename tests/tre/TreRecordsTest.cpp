#include "fields/FieldWalk.h"
#include "tests/tre/FilledRecord.h"
#include "tests/tre/TreLayoutList.h"

#include <array>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;

TEST_P(VariableLengthTest, FollowsTheFormulaOfTheStandard)
{
    FieldStore store(LayoutOf(GetParam().tag).table);
    std::string record(LONGEST_TRE, '0');
    for (const auto& [name, value] : GetParam().values) {
        (void)FieldWalk::Read(record, store);  // only the fields before the name matter yet
        const FieldEntry* const entry = store.Find(name);
        ASSERT_NE(nullptr, entry) << name;
        ASSERT_EQ(value.size(), entry->length) << name;
        record.replace(static_cast<std::size_t>(store.Position(*entry)), value.size(), value);
    }
    const WalkResult result = FieldWalk::Read(record, store);
    EXPECT_TRUE(result.IsGood());
    EXPECT_EQ(GetParam().length, result.consumed);
}

using std::string_literals::operator""s;

INSTANTIATE_TEST_SUITE_P(
    Records, VariableLengthTest,
    testing::Values(
        Filled{"ACCHZB",
               2 + 9 + 5 + 30 * 4,
               {{"NUM_ACHZ", "01"}, {"UNIAAH_1", "M  "}, {"UNIAPH_1", "   "}, {"NUM_PTS_1", "004"}}},
        Filled{"ACCPOB", 2 + 15 + 5 + 5, {{"NUM_ACPO", "01"}, {"UNIAAH_1", "   "}, {"UNIAPH_1", "   "}}},
        Filled{"ACCVTB", 2 + 9 + 5 + 30, {{"NUM_ACVT", "01"}, {"UNIAAV_1", "   "}, {"NUM_PTS_1", "001"}}},
        Filled{"BANDSA", 26 + 2 * 46, {{"COUNT", "0002"}}}, Filled{"BNDPLB", 4 + 30 * 4, {{"NUM_PTS", "0004"}}},
        Filled{"CSEPHA", 41 + 2 * 36, {{"NUM_EPHEM", "002"}}}, Filled{"CSSFAA", 1 + 3 * 106, {{"NUM_BANDS", "3"}}},
        Filled{"ENGRDA",
               23 + 22 + 3 + 4 * 2,
               {{"RECNT", "001"}, {"ENGLN_1", "03"}, {"ENGDTS_1", "2"}, {"ENGDATC_1", "00000004"}}},
        Filled{"FACCBB", 2 + 94 + 83 + 5, {{"NUM_ATT", "01"}, {"NUM_VAL_1", "001"}, {"LEN_VAL_1_1", "005"}}},
        Filled{"GRDPSB", 2 + 66 * 2, {{"NUM_GRDS", "02"}}},
        Filled{"HISTOA",
               41 + 74 + 80 * 2 + 8 + 14 + 4 + 7 + 12 + 4,
               {{"NEVENTS", "01"},
                {"NIPCOM_1", "2"},
                {"ROT_FLAG_1", "1"},
                {"ASYM_FLAG_1", "1"},
                {"SHARP_FLAG_1", "1"},
                {"MAG_FLAG_1", "1"},
                {"DRA_FLAG_1", "1"},
                {"TTC_FLAG_1", "1"}}},
        Filled{"HISTOA", 41 + 74, {{"NEVENTS", "01"}, {"DRA_FLAG_1", "2"}}}, Filled{"IOMAPA", 6, {{"MAP_SELECT", "0"}}},
        Filled{"IOMAPA", 8202, {{"MAP_SELECT", "1"}}}, Filled{"IOMAPA", 16, {{"MAP_SELECT", "2"}}},
        Filled{"IOMAPA", 91, {{"MAP_SELECT", "3"}, {"NO_OF_SEGMENTS", "3"}}},
        Filled{"J2KLRA", 11 + 2 * 12, {{"ORIG", "8"}, {"NLAYERS_O", "002"}}},
        Filled{"J2KLRA", 11 + 2 * 12 + 10, {{"ORIG", "9"}, {"NLAYERS_O", "002"}}},
        Filled{"MITOCA",
               164 + 3 + 2 + 84 + 4 + 2 * (5 + 84 + 3 + 64),
               {{"SCENE_ID_LEN", "003"},
                {"LOOK_COMPOSITE_ID_LEN", "002"},
                {"VOLUME_COMPOSITE_INDEX", "001"},
                {"VOLUME_COMPOSITE_ID_LEN", "004"},
                {"NUM_COMPONENTS", "002"},
                {"COMPONENT_ID_LEN", "005"},
                {"COMPONENT_INDEX_TYPE", "1"}}},
        Filled{"MITOCA", 164, {{"LOOK_COMPOSITE_INDEX", "---"}}},
        Filled{"MSDIRA", 16 + 110 + 21 * 3, {{"NUMIMFILE", "001"}, {"NBRVERT_1", "03"}}},
        Filled{"MTIRPB", 77 + 2 * 42, {{"NO_VALID_TARGETS", "002"}}},
        Filled{"NBLOCA", 8 + 2 * 4, {{"NUMBER_OF_FRAMES", "\0\0\0\3"s}}},
        Filled{"PIAPRC",
               201 + 48 + 64 + 255 + 20 + 255,
               {{"SECTITLEREP", "01"},
                {"REQORGREP", "01"},
                {"KEYWORDREP", "01"},
                {"ASSRPTREP", "01"},
                {"ATEXTREP", "01"}}},
        Filled{"PIAPRD", 201 + 2 * 48, {{"SECTITLEREP", "02"}}}, Filled{"PRJPSB", 113 + 15 * 2, {{"NUM_PRJ", "2"}}},
        Filled{"PTPRAA", 41 + 94 * 2, {{"NBRSEG", "002"}}}, Filled{"REGPTB", 4 + 77 * 2, {{"NUM_PTS", "0002"}}},
        Filled{"REGPTC", 4 + 83 + 5, {{"NUM_PTS", "0001"}, {"UNIAAH_1", "   "}}},
        Filled{"RSMAPA", 486 + 21 * 2, {{"NPAR", "02"}}},
        Filled{"RSMDCA", 494 + 82 * 2 + 21 * 6, {{"NIMGE", "002"}, {"NPART", "00003"}}},
        Filled{"RSMECA", 162, {{"INCLIC", "N"}, {"INCLUC", "N"}}},
        Filled{"RSMECA",
               162 + 338 + (4 + 21 * 3 + 42 * 2) + 21 * 2 * 3 + 65 + 42 * 2 + 42 * 3,
               {{"INCLIC", "Y"},
                {"INCLUC", "Y"},
                {"NPAR", "02"},
                {"NPARO", "03"},
                {"IGN", "01"},
                {"NUMOPG_1", "2 "},
                {"NCSEG_1", "2"},
                {"UNCSR", "2"},
                {"UNCSC", "3"}}},
        Filled{"RSMGGA",
               322 + 8 + 2 * 6 + 2 * 3 * (5 + 4),
               {{"NPLN", "002"}, {"TNUMRD", "05"}, {"TNUMCD", "04"}, {"NXPTS_2", "002"}, {"NYPTS_2", "003"}}},
        Filled{"RSMPCA",
               402 + 21 * (1 + 2 + 3 + 4),
               {{"RNTRMS", "001"}, {"RDTRMS", "002"}, {"CNTRMS", "003"}, {"CDTRMS", "004"}}},
        Filled{"SNSPSB",
               2 + 144 + (3 + 30 * 4) + 15 * 2 + 7 + 9 + 14 + 21 + 14 + 66 + 3 * 28 + 10 + 20 + 20,
               {{"NUM_SNS", "01"},
                {"NUM_BP_1", "01"},
                {"NUM_PTS_1_1", "004"},
                {"NUM_BND_1", "02"},
                {"UNINOA_1", "   "},
                {"NUM_AUX_1", "003"},
                {"APF_1_1", "I"},
                {"APF_1_2", "R"},
                {"APF_1_3", "A"}}},
        Filled{"SOURCB",
               21 + 885 + (3 + 30 * 4) + 10 + 36 + 8 + 63 + 10 + 15 * 2 + 259,
               {{"NUM_SOUR", "01"},
                {"NUM_BP_1", "01"},
                {"NUM_PTS_1_1", "004"},
                {"UNIPCI_1", "   "},
                {"QOD_1", "N"},
                {"NMI_1", "01"},
                {"UNIGCA_1_1", "   "},
                {"NLI_1", "01"},
                {"NUM_PRJ_1", "2"},
                {"NIN_1", "01"}}}));

TEST(TreRecordsTest, FieldsThatDecideTheLayoutThroughAFunctionAreNotEditable)
{
    for (const auto& [tag, field] :
         {std::pair{"ENGRDA", "ENGDATC"}, std::pair{"ENGRDA", "ENGDTS"}, std::pair{"RSMDCA", "NPART"},
          std::pair{"RSMECA", "NPAR"}, std::pair{"RSMECA", "NPARO"}, std::pair{"RSMECA", "NUMOPG"},
          std::pair{"RSMGGA", "NXPTS"}, std::pair{"RSMGGA", "NYPTS"}, std::pair{"SOURCB", "QSS"},
          std::pair{"SOURCB", "QOD"}}) {
        const FieldTable& table = LayoutOf(tag).table;
        const std::uint16_t row = table.FindAny(field);
        ASSERT_NE(NO_ROW, row) << tag << "::" << field;
        EXPECT_FALSE(table.IsEditable(row)) << tag << "::" << field;
    }
}

TEST(TreBANDSBTest, EachBitOfTheMaskBringsItsFields)
{
    struct Bit
    {
        std::size_t cube;
        std::size_t band;
    };
    // From bit 31 down. Any of the bits 24 to 19 also brings the unit of the wavelengths.
    constexpr std::array<Bit, 32> BITS{{{28, 0}, {7, 0},  {32, 0}, {0, 50}, {0, 1},  {0, 3},  {0, 5},  {1, 7},
                                        {1, 7},  {1, 7},  {1, 7},  {1, 7},  {1, 14}, {0, 8},  {0, 16}, {0, 6},
                                        {0, 11}, {0, 16}, {0, 14}, {0, 10}, {0, 16}, {0, 14}, {0, 16}, {0, 24},
                                        {0, 32}, {0, 48}, {0, 0},  {0, 0},  {0, 0},  {0, 0},  {0, 0},  {4, 0}}};
    FieldStore store(TreBANDSB::Layout().table);
    std::string record(LONGEST_TRE, '0');
    record.replace(0, 5, "00003");
    ASSERT_TRUE(FieldWalk::Read(record, store).IsGood());
    const auto mask = static_cast<std::size_t>(store.Position(*store.Find("EXISTENCE_MASK")));
    for (std::size_t i = 0; i != BITS.size(); ++i) {
        record.replace(mask, 4, "\0\0\0\0"s);
        record[mask + i / 8] = static_cast<char>(0x80U >> (i % 8));
        EXPECT_EQ(122 + BITS[i].cube + 3 * BITS[i].band, FieldWalk::Read(record, store).consumed) << "bit " << 31 - i;
    }
}

TEST(TreBANDSBTest, AuxiliaryValuesHaveTheFormThatTheirParameterNames)
{
    FieldStore store(TreBANDSB::Layout().table);
    std::string record = "00002" + std::string(113, '0') + "\0\0\0\1"s + "0201";
    record += "Iunit   " + std::string(2 * 10, '1') + "Aunit   " + std::string(2 * 20, 'a') + "Runit   \x3F\x80\0\0"s;
    const WalkResult result = FieldWalk::Read(record, store);
    EXPECT_TRUE(result.IsGood());
    EXPECT_EQ(record.size(), result.consumed);
    for (const char* const name : {"APN_1_1", "APN_1_2", "APA_2_1", "APA_2_2", "APR_1"}) {
        EXPECT_NE(nullptr, store.Find(name)) << name;
    }
}

TEST(TreCMETAATest, EachMapFormTakesTheSameRoom)
{
    FieldStore store(TreCMETAA::Layout().table);
    std::string record(TreCMETAA::Layout().length, ' ');
    (void)FieldWalk::Read(record, store);
    const std::uint64_t behind = store.Position(*store.Find("CG_SPARE_A"));
    const auto place = static_cast<std::size_t>(store.Position(*store.Find("CG_MAP_TYPE")));
    for (const auto& [type, field] : {std::pair{"GEOD", "CG_PATCH_LATCEN"}, std::pair{"MGRS", "CG_MGRS_CENT"},
                                      std::pair{"NA  ", "CG_MAP_TYPE_BLANK"}}) {
        record.replace(place, 4, type);
        EXPECT_EQ(record.size(), FieldWalk::Read(record, store).consumed) << type;
        EXPECT_NE(nullptr, store.Find(field)) << type;
        EXPECT_EQ(behind, store.Position(*store.Find("CG_SPARE_A"))) << type;
    }
}

TEST(TreMTIRPATest, TheLengthTellsTheWidthOfTheSquintAngle)
{
    FieldStore store(TreMTIRPA::Layout().table);
    for (const std::size_t width : {5U, 6U}) {
        const std::string record = std::string(23 + width + 7, '0') + "002" + std::string(std::size_t{2 * 34}, '0');
        EXPECT_EQ(record.size(), FieldWalk::Read(record, store).consumed);
        EXPECT_EQ(width, store.Find("SQUINT_ANGLE")->length);
    }
}

std::string Big(std::uint64_t aNumber, std::size_t aWidth)
{
    std::string bytes(aWidth, '\0');
    for (std::size_t i = aWidth; i-- != 0; aNumber >>= 8U) {
        bytes[i] = static_cast<char>(aNumber & 0xFFU);
    }
    return bytes;
}

/// A frame with two colour tables (three entries, one entry) and one converter.
std::string FrameParts(std::uint64_t aFirstTable)
{
    std::string parts =
        Big(24, 2) + Big(14, 4) + Big(1, 2) + Big(10, 2) + Big(0, 4) + Big(130, 2) + Big(96, 4) + Big(0, 4);
    for (int i = 0; i != 12; ++i) {
        parts += Big(0x3FF0000000000000, 8);  // 1.0
    }
    parts += "\2\1"s + std::string(12, ' ') + Big(6, 4) + Big(17, 2);
    parts += Big(2, 2) + Big(3, 4) + Big(4, 1) + Big(4, 2) + Big(aFirstTable, 4) + Big(53, 4);
    parts += Big(2, 2) + Big(1, 4) + Big(1, 1) + Big(4, 2) + Big(52, 4) + Big(65, 4);
    parts += std::string(12 + 1, 'c') + std::string(12 + 4, 'h');
    parts += Big(8, 4) + Big(18, 2) + Big(4, 2) + Big(5, 2) + Big(3, 4) + Big(26, 4) + Big(6, 4) + Big(23, 4);
    return parts + std::string(12, 'v') + std::string(28, 'd');
}

TEST(TreRPFIMGTest, PartsInTheirOrderBecomeFields)
{
    FieldStore store(TreRPFIMG::Layout().table);
    const std::string record = FrameParts(40);
    EXPECT_EQ(record.size(), FieldWalk::Read(record, store).consumed);
    EXPECT_EQ("c", store.Value(*store.Find("CGTABLE_2")));
    EXPECT_EQ("hhhh", store.Value(*store.Find("HISTTAB_2")));
    EXPECT_EQ(12U, store.Find("CCTABLE_1")->length);
    EXPECT_EQ("dddd", store.Value(*store.Find("TRMOFF")));
    EXPECT_EQ(nullptr, store.Find("OTHERDATA"));
}

TEST(TreRPFIMGTest, WhatDoesNotFollowTheOrderIsKeptWhole)
{
    FieldStore store(TreRPFIMG::Layout().table);
    const std::string moved = FrameParts(41);
    EXPECT_EQ(moved.size(), FieldWalk::Read(moved, store).consumed);
    EXPECT_NE(nullptr, store.Find("HINT"));
    EXPECT_EQ(moved.size() - 24 - 96, store.Find("OTHERDATA")->length);

    const std::string turned = Big(0x1800, 2) + FrameParts(40).substr(2);  // least significant byte first
    EXPECT_EQ(turned.size(), FieldWalk::Read(turned, store).consumed);
    EXPECT_EQ(nullptr, store.Find("LOCID_1"));
    EXPECT_EQ(turned.size() - 14, store.Find("OTHERDATA")->length);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#include "foundation/CSMUtilString.h"
#include "tests/support/Corpus.h"
#include "tre/TREFactory.h"

#include <cctype>
#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using std::string_literals::operator""s;

/// Fields of a record in a real file, read off its bytes by hand.
struct KnownRecord
{
    const char* file;
    const char* tag;
    std::size_t length;
    std::size_t fields;
    std::vector<std::pair<const char*, std::string>> texts;  ///< as they stand, padding included
    std::vector<std::pair<const char*, std::int64_t>> integers;
    std::vector<std::pair<const char*, double>> reals;
};

void PrintTo(const KnownRecord& aRecord, std::ostream* aOut)
{
    *aOut << aRecord.tag << " of " << aRecord.file;
}

/// The data of the first record of that tag and length, found by these alone.
bool CutRecord(const std::string& aFile, std::string aTag, std::size_t aLength, std::string& aData)
{
    const std::string digits = std::to_string(aLength);
    aTag.resize(6, ' ');
    const std::string start = aTag + std::string(5 - digits.size(), '0') + digits;
    const std::size_t place = aFile.find(start);
    if (place == std::string::npos || aFile.size() - place - start.size() < aLength) {
        return false;
    }
    aData = aFile.substr(place + start.size(), aLength);
    return true;
}

struct TreDeleter
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using TrePointer = std::unique_ptr<TRE, TreDeleter>;

TrePointer MakeTre(const char* aTag, const std::string& aData, std::string& aWarnings)
{
    TRE* tre = nullptr;
    char* warnings = nullptr;
    TREFactory::Create(aTag, aData.data(), TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, false, false, &warnings,
                       aData.size());
    aWarnings = warnings == nullptr ? "" : warnings;
    Util::CSMUtilString::DeleteCString(warnings);
    return TrePointer(tre);
}

std::string Text(const TRE& aTre, const char* aField)
{
    const char* value = nullptr;
    std::size_t length = 0;
    return aTre.GetFieldAsString(aField, value, length) ? std::string(value, length) : "(no such field)";
}

class TreKnownAnswersTest : public testing::TestWithParam<KnownRecord>
{
};

TEST_P(TreKnownAnswersTest, FieldsHoldWhatTheBytesSay)
{
    const KnownRecord& known = GetParam();
    const std::string file = Tests::CorpusBytes(known.file);
    if (file.empty()) {
        GTEST_SKIP() << "no " << Tests::CorpusFile(known.file);
    }
    std::string data;
    ASSERT_TRUE(CutRecord(file, known.tag, known.length, data));
    std::string warnings;
    const TrePointer tre = MakeTre(known.tag, data, warnings);
    ASSERT_NE(nullptr, tre);
    EXPECT_FALSE(tre->IsGenericTRE());
    EXPECT_EQ("", warnings);
    EXPECT_EQ(known.fields, tre->GetNumOfFields());
    for (const auto& [field, expected] : known.texts) {
        EXPECT_EQ(expected, Text(*tre, field)) << field;
    }
    for (const auto& [field, expected] : known.integers) {
        std::int64_t value = expected - 1;
        EXPECT_TRUE(tre->GetFieldAsInt64(field, value)) << field;
        EXPECT_EQ(expected, value) << field;
    }
    for (const auto& [field, expected] : known.reals) {
        double value = expected - 1;
        EXPECT_TRUE(tre->GetFieldAsDouble(field, value)) << field;
        EXPECT_DOUBLE_EQ(expected, value) << field;
    }
}

constexpr const char* AIRBORNE = "20091021203850-01001116-VIS.ntf.r4";
constexpr const char* RADAR = "GHSarNITF20_good.ntf";
constexpr const char* CHART = "0000M033.GN3";
constexpr const char* IKONOS = "ff_grey16bit_uncompressed.nitf";
constexpr const char* IKONOS_CHIP = "po_39928_pan_0000000_chip_700_700_noICHIPB.nitf";

INSTANTIATE_TEST_SUITE_P(
    Radar, TreKnownAnswersTest,
    testing::Values(
        KnownRecord{
            RADAR,
            "BLOCKA",
            123,
            11,
            {{"FRLC_LOC", "N391428.29W1181734.69"}, {"FRFC_LOC", "N391338.95W1181828.74"}, {"RESERVED-002", "010.0"}},
            {{"BLOCK_INSTANCE", 1}, {"N_GRAY", 0}, {"L_LINES", 8960}, {"LAYOVER_ANGLE", 255}, {"SHADOW_ANGLE", 90}},
            {}},
        KnownRecord{RADAR,
                    "EXPLTA",
                    87,
                    19,
                    {{"ANGLE_TO_NORTH", "320"},
                     {"SQUINT_ANGLE", "+15"},
                     {"MODE", "GSP"},
                     {"POLAR", "HH"},
                     {"SEQ_NUM", " "},
                     {"IPR", "01"}},
                    {{"SQUINT_ANGLE", 15}, {"GRAZE_ANG", 15}, {"SLOPE_ANG", 16}, {"NSAMP", 8960}},
                    {}},
        KnownRecord{RADAR,
                    "PATCHA",
                    115,
                    21,
                    {{"FRAME", "   "}, {"UTC", "75843.00"}, {"INS_V_EC", "-0254"}, {"GRAVITY", "       "}},
                    {{"PAT_NO", 1},
                     {"LAST_PAT_FLAG", 0},
                     {"LNSTOP", 8888},
                     {"NPIXEL", 8960},
                     {"INS_V_NC", -533},
                     {"TRACK", 205}},
                    {{"SHEAD", 220.122}, {"OFFLONG", 0.0}}}));

// Older layouts of three tags, which only their lengths tell from the published ones.
INSTANTIATE_TEST_SUITE_P(
    Draft, TreKnownAnswersTest,
    testing::Values(
        KnownRecord{
            RADAR,
            "ACFTA",
            154,
            20,
            {{"AC_MSN_ID", "ALASKA1_04"},
             {"AC_TAIL_NO", "0019960001"},
             {"SENSOR_ID", "GHR       "},
             {"PDATE", "19991019"},
             {"ENTLOC", "391342.60N1181730.00W"},
             {"EXITLOC", "391342.60N1181730.00W"},
             {"SENSERIAL", "      "},
             {"ABSWVER", "0014.02"}},
            {{"SCENE_SOURCE", 1}, {"SCNUM", 1}, {"MPLAN", 2}, {"ENTALT", 4177}, {"PATCH_TOT", 1}, {"MTI_TOT", 0}},
            {{"TMAP", 107.485}, {"ROW_SPACING", 0.73819}, {"COL_SPACING", 0.73819}}},
        KnownRecord{RADAR,
                    "AIMIDA",
                    73,
                    18,
                    {{"MISSION_DATE", "19991019"},
                     {"MISSION_NO", "GH01"},
                     {"FLIGHT_NO", "01"},
                     {"RESERVED-001", "  "},
                     {"REPLAY", "000"},
                     {"COUNTRY", "  "},
                     {"LOCATION", "3914N11817W"},
                     {"TIME", "2104Z"},
                     {"CREATION_DATE", "19991019"}},
                    {{"OP_NUM", 1}, {"START_COLUMN", 1}, {"START_ROW", 1}, {"END_COLUMN", 1}, {"END_ROW", 1}},
                    {}},
        KnownRecord{
            RADAR,
            "MENSRA",
            174,
            20,
            {{"ACFT_LOC", "393437.92N1184656.22W"}, {"RLMAP", "L"}},
            {{"ACFT_ALT", 55712}, {"CCRP_ALT", 4177}, {"RGCCRP", 193202}, {"CCRP_ROW", 4480}, {"CCRP_COL", 4444}},
            {{"COSGRZ", 0.96497}, {"C_R_NC", -0.648559}, {"C_AZ_EC", -0.648559}, {"C_AL_DC", -1.0}}}));

INSTANTIATE_TEST_SUITE_P(
    Airborne, TreKnownAnswersTest,
    testing::Values(KnownRecord{AIRBORNE,
                                "BLOCKA",
                                123,
                                11,
                                {{"LAYOVER_ANGLE", "   "}, {"LRLC_LOC", "+39.750779-084.070611"}},
                                {{"L_LINES", 1280}},
                                {}},
                    KnownRecord{
                        AIRBORNE,
                        "ENGRDA",
                        944,
                        2 + 23 * 9,
                        {{"RESRC", "LAIR2EOSensor       "},
                         {"ENGLBL_1", "version"},
                         {"ENGDATA_1", "2"},
                         {"ENGLBL_4", "buildNumber"},
                         {"ENGDATA_4", "5862M"},
                         {"ENGDATU_4", "NA"},
                         {"ENGDATA_10", "16887.917510"},
                         {"ENGLBL_19", "pilotName"},
                         {"ENGDATA_19", "Chuck Yeager"},
                         {"ENGLBL_23", "milliseconds"},
                         {"ENGDATA_23", "793"}},
                        {{"RECNT", 23}, {"ENGMTXC_4", 5}, {"ENGMTXR_4", 1}, {"ENGDTS_4", 1}, {"ENGDATC_19", 12}},
                        {}},
                    KnownRecord{"TimeStep103498.ntf.r5",
                                "ENGRDA",
                                642,
                                2 + 16 * 9,
                                {{"ENGLBL_8", "imuLongitude"}, {"ENGDATA_8", "-84.080211"}, {"ENGDATA_16", "707"}},
                                {{"RECNT", 16}},
                                {}}));

INSTANTIATE_TEST_SUITE_P(Chart, TreKnownAnswersTest,
                         testing::Values(KnownRecord{CHART,
                                                     "RPFHDR",
                                                     48,
                                                     10,
                                                     {{"LBEI", "\0"s},
                                                      {"FILENM", "0000M033.GN3"},
                                                      {"STDNUM", "MIL-C-89038    "},
                                                      {"STDDAT", "19941006"},
                                                      {"CLASS", "U"}},
                                                     {{"HDSECL", 48},
                                                      {"LOCSEC",
                                                       1644}},  // 1644 is where the data of RPFIMG begin in this file
                                                     {}},
                                         KnownRecord{CHART,
                                                     "RPFIMG",
                                                     4243,
                                                     5 + 15 * 3 + 12 + 2 + 3 + 3 * 8 + 3 + 2 * 6 + 10,
                                                     {{"CGFILE", std::string(12, '\0')}},
                                                     {{"LOCLEN", 164},
                                                      {"CLTOFF", 14},
                                                      {"SECRECS", 15},
                                                      {"AGGLEN", 144523},
                                                      {"LOCID_1", 130},
                                                      {"SECLEN_1", 96},
                                                      {"PHYSIDX_1", 0x710},
                                                      {"LOCID_15", 147},
                                                      {"NCGOR", 3},
                                                      {"NCCOR", 2},
                                                      {"CMTOFF", 6},
                                                      {"CGRECL", 17},
                                                      {"NCGREC_1", 216},
                                                      {"CGELEN_3", 4},
                                                      {"HISTOFF_3", 0x839},
                                                      {"NSFTAB", 12},
                                                      {"NSFEW", 6},
                                                      {"NOUTC", 256},
                                                      {"TRMOFF", 0xFFFFFFFF}},
                                                     {{"ULLAT", 675.0 / 13},
                                                      {"ULLON", 174.375},
                                                      {"LRLON", -168.75},
                                                      {"HRES", 750.0},
                                                      {"HINT", 0.010986328125}}}));

INSTANTIATE_TEST_SUITE_P(
    Ikonos, TreKnownAnswersTest,
    testing::Values(
        KnownRecord{IKONOS,
                    "PIAIMC",
                    362,
                    19,
                    {{"SRP", " "}, {"IDATUM", "WGE"}, {"IELLIP", " WE"}, {"PREPROC", "2G"}, {"IPROJ", "TC"}},
                    {{"CLOUDCVR", 999}},
                    {{"MEANGSD", 39.4}}},
        KnownRecord{IKONOS,
                    "STDIDC",
                    89,
                    18,
                    {{"ACQUISITION_DATE", "20011102151702"},
                     {"MISSION", "SI_CARTERRA_01"},
                     {"START_SEGMENT", "AA"},
                     {"BLANK_FILL", " "},
                     {"COUNTRY", "US"},
                     {"LOCATION", "3854N07702W"}},
                    {{"PASS", 1}, {"OP_NUM", 530}, {"START_ROW", 1}, {"WAC", 1234}},
                    {}},
        KnownRecord{IKONOS_CHIP,
                    "STDIDC",
                    89,
                    18,
                    {{"BLANK_FILL", "_"}, {"LOCATION", "           "}},
                    {{"OP_NUM", 800}, {"START_COLUMN", 1}, {"END_COLUMN", 20}, {"END_ROW", 20}},
                    {}},
        KnownRecord{IKONOS,
                    "USE00A",
                    107,
                    24,
                    {{"DYNAMIC_RANGE", "     "}, {"OBL_ANG", "     "}, {"MAX_LP_SEG", "      "}},
                    {{"ANGLE_TO_NORTH", 0}, {"N_REF", 0}, {"REV_NUM", 1}, {"N_SEG", 1}},
                    {{"SUN_EL", 53.0}, {"SUN_AZ", 148.9}}},
        KnownRecord{IKONOS,
                    "RPC00A",
                    1041,
                    93,
                    {{"LINE_NUM_COEFF_1", "-9.9999990E8"}, {"SAMP_DEN_COEFF_20", "-2.5638720E0"}},
                    {{"LINE_OFF", 6246}, {"SAMP_SCALE", 7634}, {"HEIGHT_OFF", 42}},
                    {{"ERR_BIAS", 34.29}, {"LONG_OFF", -77.0467}, {"LINE_DEN_COEFF_1", 3.319603e8}}},
        KnownRecord{IKONOS_CHIP,
                    "RPC00B",
                    1041,
                    93,
                    {{"LINE_NUM_COEFF_1", "-1.408860E+5"},
                     {"LINE_NUM_COEFF_20", "+1.081236E-1"},
                     {"SAMP_NUM_COEFF_1", "-1.520871E+6"}},
                    {{"LINE_OFF", 19}, {"SAMP_OFF", 1303}, {"HEIGHT_SCALE", 233}},
                    {{"LAT_OFF", 32.7209}, {"LONG_SCALE", 0.0953}, {"SAMP_DEN_COEFF_20", 8.165181e-3}}}));

INSTANTIATE_TEST_SUITE_P(
    Histories, TreKnownAnswersTest,
    testing::Values(KnownRecord{"056_512x512_s_8_4_ms_j2c.ntf",
                                "J2KLRA",
                                239,
                                4 + 19 * 2,
                                {{"LAYER_ID_1", "000"}, {"LAYER_ID_19", "018"}, {"BITRATE_19", "03.711281"}},
                                {{"ORIG", 0}, {"NLEVELS_O", 5}, {"NBANDS_O", 4}, {"NLAYERS_O", 19}},
                                {{"BITRATE_1", 0.031128}}},
                    KnownRecord{"gdal3453.ntf",
                                "HISTOA",
                                337,
                                6 + 4 * 19,
                                {{"SYSTYPE", "TBD                 "},
                                 {"PC", "UNKC00000000"},
                                 {"REMAP_FLAG", " "},
                                 {"LUTID", "00"},
                                 {"PDATE_1", "20091125175326"},
                                 {"PAS_1", "GIV       "},
                                 {"INBWC_1", "NONE000000"},
                                 {"PDATE_4", "20091125180721"},
                                 {"OUTBWC_4", "NONE000000"}},
                                {{"NEVENTS", 4}, {"IBPP_1", 8}, {"OBPP_2", 1}, {"IBPP_3", 1}, {"OBPP_4", 1}},
                                {}}));

}  // namespace
}  // namespace ORMO::SensorModel::CSM

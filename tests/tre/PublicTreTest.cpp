// Lengths and fields of the public tags, written by hand from the formulas of their standards.

#include "fields/FieldWalk.h"
#include "foundation/CSMUtilString.h"
#include "tests/tre/FilledRecord.h"
#include "tests/tre/TreLayoutList.h"
#include "tre/TREFactory.h"

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;
using std::string_literals::operator""s;

INSTANTIATE_TEST_SUITE_P(
    Imagery, VariableLengthTest,
    testing::Values(
        Filled{"BNDPLC",
               4 + 2 * 4 + 15 * 2 * (3 + 4),
               {{"NUM_RINGS", "002"}, {"DIMENSIONS", "2"}, {"NUM_PTS_1", "0003"}, {"NUM_PTS_2", "0004"}}},
        Filled{"BNDPLC", 4 + 4 + 15 * 3 * 3, {{"NUM_RINGS", "001"}, {"DIMENSIONS", "3"}, {"NUM_PTS_1", "0003"}}},
        Filled{"CCINFA", 3 + 9 + 3 + 10, {{"NUMCODE", "001"}, {"CODE_LEN_1", "3"}, {"ESURN_LEN_1", "10"}}},
        Filled{"CCINFA",
               3 + 9 + 3 + 10 + 1 + 4,
               {{"NUMCODE", "001"}, {"CODE_LEN_1", "3"}, {"ESURN_LEN_1", "10"}, {"DETAIL_LEN_1", "00004"}}},
        Filled{"CSEXRB", 260, {}},
        Filled{"CSEXRB",
               260 + 2 * 36 + 39 + 5,
               {{"NUM_ASSOC_DES", "002"}, {"SENSOR_TYPE", "S"}, {"RESERVED_LEN", "00005"}}},
        Filled{"CSEXRB", 260 + 2, {{"SENSOR_TYPE", "F"}, {"TIME_STAMP_LOC", "1"}}},
        Filled{"CSEXRB",
               260 + 2 + 50 + 3 * 2,
               {{"SENSOR_TYPE", "F"}, {"TIME_STAMP_LOC", "0"}, {"DT_SIZE", "\3"}, {"NUMBER_DT", "\0\0\0\2"s}}},
        Filled{"CSRLSB", 4 + 48 * 2 * 3, {{"N_RS_ROW_BLOCKS", "02"}, {"M_RS_COLUMN_BLOCKS", "03"}}},
        Filled{"CSWRPB", 7 + 60 + 21 + 21, {{"NUM_SETS_WARP_DATA", "1"}, {"SENSOR_TYPE", "S"}}},
        Filled{"CSWRPB",
               8 + 2 * (60 + 11 + 21 + 21) + 21 * (2 * 3 - 1) + 21 * (4 - 1) + 3,
               {{"NUM_SETS_WARP_DATA", "2"},
                {"SENSOR_TYPE", "F"},
                {"SAMP_POLY_ORDER_N1_1", "3"},
                {"LINE_POLY_ORDER_M1_2", "1"},
                {"LINE_POLY_ORDER_M2_2", "2"},
                {"RESERVED_LEN", "00003"}}},
        Filled{"ILLUMB",
               304 + 2 * 32 + 40 + 3 * 80 + 2 * 49,
               {{"NUM_BANDS", "0002"},
                {"NUM_OTHERS", "01"},
                {"NUM_COMS", "3"},
                {"EXISTENCE_MASK", "\0\0\0"s},
                {"NUM_ILLUM_SETS", "002"}}},
        Filled{"MATESA",
               66 + 4 + 28 + 28 + 62 + 5 + 62,
               {{"CUR_FILE_ID_LEN", "0004"},
                {"NUM_GROUPS", "0002"},
                {"NUM_MATES_2", "0002"},
                {"MATE_ID_LEN_2_1", "0005"}}},
        Filled{"PIXMTA",
               71 + 2 * 3 + 81 + 1 + 2 * 15 + 81 + 6,
               {{"NUMAIS", "002"},
                {"NUMMETRICS", "00002"},
                {"FITTYPE_1", "P"},
                {"NUMCOEF_1", "2"},
                {"FITTYPE_2", "D"},
                {"RESERVED_LEN", "00006"}}},
        Filled{"PIXMTA", 71, {{"NUMAIS", "ALL"}}},
        Filled{"PIXQLA", 8 + 2 * 40, {{"NUMAIS", "ALL"}, {"NPIXQUAL", "0002"}}},
        Filled{"PIXQLA", 8 + 2 * 3 + 40, {{"NUMAIS", "002"}, {"NPIXQUAL", "0001"}}},
        Filled{"S2EVPA", 17 + 4 + 2 + 3 * 15, {{"QUANTITY_NAME_LEN", "004"}, {"UOM_LEN", "002"}, {"NUMCOEF", "3"}}},
        Filled{"SECURA", 251 + 7, {{"SECLEN", "00007"}}},
        Filled{"SYSIDA", 9 + 4 + 5, {{"PLATFORM_ID_LEN", "004"}, {"SENSOR_ID_LEN", "005"}}},
        Filled{"RELCCA",
               36 + 1 + 2 + 3 + 4 + 5 + 4 + 6 + 7 + 8,
               {{"RELSLNTH", "0001"},
                {"RELCCSLNTH", "0002"},
                {"RCOLSLNTH", "0003"},
                {"RORGSLNTH", "0004"},
                {"COIDLNTH", "0005"},
                {"COALLNTH", "0006"},
                {"RELCLNTH", "0007"},
                {"RLORGLNTH", "0008"}}},
        Filled{"RELCCA", 36 + 5 + 4, {{"COIDLNTH", "0005"}}}));

INSTANTIATE_TEST_SUITE_P(
    MotionImagery, VariableLengthTest,
    testing::Values(
        Filled{"CAMSDA",
               9 + 2 * 3 + 3 * 184,
               {{"NUM_CAMERA_SETS_IN_TRE", "002"}, {"NUM_CAMERAS_IN_SET_1", "001"}, {"NUM_CAMERAS_IN_SET_2", "002"}}},
        Filled{"MICIDA", 5 + 2 * 39 + 7, {{"NUM_CAMERA_IDS_IN_TRE", "002"}, {"CORE_ID_LENGTH_2", "007"}}},
        Filled{"MTIMFA",
               48 + 2 * 39 + 51 * 3,
               {{"NUM_CAMERAS_DEFINED", "002"}, {"NUM_TEMP_BLOCKS_1", "001"}, {"NUM_TEMP_BLOCKS_2", "002"}}},
        Filled{"MTIMSA", 152 + 3 * 8, {{"DT_SIZE", "\10"}, {"NUMBER_DT", "\0\0\0\3"s}}},
        Filled{"MTIMSA", 152, {{"NUMBER_DT", "\0\0\0\0"s}}}, Filled{"TMINTA", 4 + 54 * 3, {{"NUM_TIME_INT", "0003"}}}));

INSTANTIATE_TEST_SUITE_P(
    ReplacementSensorModel, VariableLengthTest,
    testing::Values(
        Filled{"RSMAPB",
               291 + 252 + 6 + 3 * 5 + 2 + 21 * 2 * 3 + 21 * 2,
               {{"NPAR", "02"},
                {"APTYP", "I"},
                {"LOCTYP", "R"},
                {"APBASE", "Y"},
                {"NISAPR", "02"},
                {"NISAPC", "03"},
                {"NBASIS", "03"}}},
        Filled{"RSMAPB",
               291 + 2 + 4 * 3 + 21,
               {{"NPAR", "01"}, {"APTYP", "G"}, {"LOCTYP", "N"}, {"APBASE", "N"}, {"NGSAP", "03"}}},
        Filled{"RSMDCB",
               166 + 82 * 2 + 21 * 2 * (1 + 3),
               {{"NROWCB", "02"}, {"NIMGE", "002"}, {"NCOLCB_1", "01"}, {"NCOLCB_2", "03"}, {"INCAPD", "N"}}},
        Filled{"RSMDCB",
               166 + 82 + 131 + 252 + 2 + 4 + 21,
               {{"NROWCB", "01"},
                {"NIMGE", "001"},
                {"NCOLCB_1", "01"},
                {"INCAPD", "Y"},
                {"APTYP", "G"},
                {"LOCTYP", "R"},
                {"NGSAP", "01"}}},
        Filled{"RSMDCB", 166 + 82 * 2 + 21 * 2 * 3, {{"NROWCB", "02"}, {"NIMGE", "002"}, {"NCOLCB_2", "03"}}},
        Filled{"RSMECB", 162, {{"INCLIC", "N"}, {"INCLUC", "N"}}},
        Filled{"RSMECB",
               162 + 12 + 131 + 6 + 3 * 2 + 2 + 21 * 2 * 2 + (4 + 21 * 3 + 1 + 42 * 2) + (4 + 21 + 84) + 21 * 2 * 3 +
                   64 + 2 + 42 * 2 + 42 * 3,
               {{"INCLIC", "Y"},
                {"INCLUC", "Y"},
                {"NPARO", "03"},
                {"IGN", "02"},
                {"NPAR", "02"},
                {"APTYP", "I"},
                {"LOCTYP", "N"},
                {"APBASE", "Y"},
                {"NISAPR", "01"},
                {"NISAPC", "01"},
                {"NBASIS", "02"},
                {"NUMOPG_1", "02"},
                {"ACSMC_1", "N"},
                {"NCSEG_1", "2"},
                {"NUMOPG_2", "01"},
                {"ACSMC_2", "Y"},
                {"UACSMC", "N"},
                {"UNCSR", "2"},
                {"UNCSC", "3"}}},
        Filled{"RSMECB", 162 + 64 + 168, {{"INCLIC", "N"}, {"INCLUC", "Y"}, {"UACSMC", "Y"}}}));

INSTANTIATE_TEST_SUITE_P(
    Sensor, VariableLengthTest,
    testing::Values(Filled{"SENSRB", 106, {}},
                    Filled{"SENSRB",
                           106 + 203 + 77 + 121 + 87 + 2 * 12 + 59 + 90 + 40 + 27,
                           {{"GENERAL_DATA", "Y"},
                            {"SENSOR_ARRAY_DATA", "Y"},
                            {"SENSOR_CALIBRATION_DATA", "Y"},
                            {"IMAGE_FORMATION_DATA", "Y"},
                            {"TRANSFORM_PARAMS", "2"},
                            {"ATTITUDE_EULER_ANGLES", "Y"},
                            {"ATTITUDE_UNIT_VECTORS", "Y"},
                            {"ATTITUDE_QUATERNION", "Y"},
                            {"SENSOR_VELOCITY_DATA", "Y"}}},
                    Filled{"SENSRB",
                           106 + 2 * 28 + 51 * 3,
                           {{"POINT_SET_DATA", "02"}, {"POINT_COUNT_1", "001"}, {"POINT_COUNT_2", "002"}}},
                    Filled{"SENSRB",
                           106 + 7 + 2 * (12 + 11) + 7 + (16 + 20),
                           {{"TIME_STAMPED_DATA_SETS", "01"},
                            {"TIME_STAMP_TYPE_1", "06c"},
                            {"TIME_STAMP_COUNT_1", "0002"},
                            {"PIXEL_REFERENCED_DATA_SETS", "01"},
                            {"PIXEL_REFERENCE_TYPE_1", "02a"},
                            {"PIXEL_REFERENCE_COUNT_1", "0001"}}},
                    Filled{"SENSRB",
                           106 + 2 * 32 + 32 + 4 * 3,
                           {{"UNCERTAINTY_DATA", "002"},
                            {"ADDITIONAL_PARAMETER_DATA", "001"},
                            {"PARAMETER_SIZE_1", "004"},
                            {"PARAMETER_COUNT_1", "0003"}}}));

/// A record as a producer would write it, in parts that are its fields.
struct Written
{
    const char* tag;
    std::vector<std::string> parts;
    std::vector<std::pair<const char*, std::string>> values;
};

void PrintTo(const Written& aCase, std::ostream* aOut)
{
    *aOut << aCase.tag;
}

class WrittenRecordTest : public testing::TestWithParam<Written>
{
};

TEST_P(WrittenRecordTest, IsCutWhereItsFieldsEndAndHasNoFault)
{
    std::string data;
    for (const std::string& part : GetParam().parts) {
        data += part;
    }
    TRE* made = nullptr;
    char* errors = nullptr;
    TREFactory::Create(GetParam().tag, data.data(), TRE::TRE_TYPE_UNKNOWN, &made, true, true, &errors, data.size());
    const std::unique_ptr<TRE, void (*)(TRE*)> tre(made, [](TRE* aTre) { TREFactory::Destroy(&aTre); });
    EXPECT_TRUE(errors == nullptr || *errors == '\0') << errors;
    Util::CSMUtilString::DeleteCString(errors);
    ASSERT_NE(nullptr, tre);
    ASSERT_EQ(GetParam().parts.size(), tre->GetNumOfFields());
    std::string name;
    for (std::size_t i = 0; i != GetParam().parts.size(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        ASSERT_TRUE(tre->GetFieldAt(i, name, value, length));
        EXPECT_EQ(GetParam().parts[i], std::string(value, length)) << name;
    }
    for (const auto& [field, expected] : GetParam().values) {
        const char* value = nullptr;
        std::size_t length = 0;
        ASSERT_TRUE(tre->GetFieldAsString(field, value, length)) << field;
        EXPECT_EQ(expected, std::string(value, length)) << field;
    }
}

std::string Padded(std::string aText, std::size_t aWidth)
{
    aText.resize(aWidth, ' ');
    return aText;
}

const std::string ID = "01234567-89AB-cdef-0123-456789abcdef";
const std::string MOMENT = "20260131120000.123------";
const std::string RATE = "2.9970000E+01";

INSTANTIATE_TEST_SUITE_P(
    Records, WrittenRecordTest,
    testing::Values(
        Written{"BNDPLC",
                {"001", "2", "0003", "+00000000010.50", "+00000000045.25", "+00000000011.50", "+00000000045.25",
                 "+00000000011.50", "+00000000046.25"},
                {{"LAT_1_3", "+00000000046.25"}}},
        Written{"CAMSDA",
                {"001", "001", "001", "001", ID, Padded("Nadir camera", 80), ID, "001", "000", "0000000000", "00001024",
                 "00002048"},
                {{"NCOLS_1_1", "00002048"}}},
        Written{"COMNTA", {"Caf\xC3\xA9\r\nat noon"}, {{"COMMENT", "Caf\xC3\xA9\r\nat noon"}}},
        Written{
            "FASYWA", {MOMENT, std::string(24, '-'), "OFFSET", "00016", "0000001200000034"}, {{"TRETAG_1", "OFFSET"}}},
        Written{"FREESA", {"\xFF\xFF\xFF"}, {}},
        Written{"FSYNWA",
                {"000000001", "000000000", "FREESA", "00001", "\xFF", "COMNTA", "00002", "ok"},
                {{"TREDATA_2", "ok"}}},
        Written{"ILLUMA", {"<ILLUMA xmlns=\"x\"><solAz>120.5</solAz></ILLUMA>"}, {}},
        Written{"JITCID", {Padded("I_3228D checks something", 200)}, {}},
        Written{"MICIDA", {"01", "001", ID, "005", "0101:"}, {{"CAMERA_CORE_ID_1", "0101:"}}},
        Written{"MIMCSA", {ID, RATE, "NaN          ", RATE, "00", "C8", Padded("Profile 1", 36), "N/A   "}, {}},
        Written{"MTIMFA",
                {ID, "001", "000001", "001", ID, "002", MOMENT, MOMENT, "001", std::string(24, ' '),
                 std::string(24, ' '), "   "},
                {{"IMAGE_SEG_INDEX_1_1", "001"}}},
        Written{"MTIMSA",
                {"001", "00", ID, "001", std::string(36, ' '), "000001", "001", RATE, std::string(9, ' '), MOMENT,
                 "\0\0\0\0\0\0\3\xE8"s, "\2", "\0\0\0\3"s, "\0\0\0\2"s, "\0\5"s, "\0\6"s},
                {{"DT_2", "\0\6"s}}},
        Written{"PATCHA",
                {"0001", "1", "0000001", "0008888", "00020", "00020", "001", "00170", "00001", "   ", "75843.00",
                 "220.122", "015.00", "0.999000"},
                {{"GMT", "75843.00"}, {"FRAME", "   "}}},
        Written{"RELCCA",
                {"2026----", "0000", "0000", "0000", "0000", "0004", "NATO", "0000", "0007", "USA CAN", "0000"},
                {{"COALID", "NATO"}}},
        Written{"S2EVPA",
                {"008", "radiance", "000", "00001", "00004", "2", "+0.12500000E+00", "+2.00000000E-02"},
                {{"COEF_2", "+2.00000000E-02"}}},
        Written{"SYSIDA", {"000", "000", "005", "Eye-7"}, {{"SENSOR_ID", "Eye-7"}}},
        Written{
            "TMINTA", {"0002", "000001", MOMENT, MOMENT, "000002", std::string(24, ' '), std::string(24, ' ')}, {}}));

TEST(TreSENSRBTest, AnUnknownTypeOfValueIsNamedAndTheRecordKept)
{
    FieldStore store(TreSENSRB::Layout().table);
    std::string record = ShortestRecord(TreSENSRB::Layout().table);
    (void)FieldWalk::Read(record, store);
    record.insert(static_cast<std::size_t>(store.Position(*store.Find("TIME_STAMPED_DATA_SETS"))) + 2,
                  "04k0001000000000000");
    record.replace(static_cast<std::size_t>(store.Position(*store.Find("TIME_STAMPED_DATA_SETS"))), 2, "01");
    TRE* made = nullptr;
    char* errors = nullptr;
    TREFactory::Create("SENSRB", record.data(), TRE::TRE_TYPE_UNKNOWN, &made, false, false, &errors, record.size());
    const std::unique_ptr<TRE, void (*)(TRE*)> tre(made, [](TRE* aTre) { TREFactory::Destroy(&aTre); });
    ASSERT_NE(nullptr, tre);
    EXPECT_TRUE(tre->IsGenericTRE());
    const std::string text = errors == nullptr ? "" : errors;
    Util::CSMUtilString::DeleteCString(errors);
    EXPECT_NE(std::string::npos, text.find("TIME_STAMP_TYPE_1")) << text;
    EXPECT_NE(std::string::npos, text.find("04k")) << text;
}

TEST(TreSENSRBTest, BlanksForUnknownValuesAreWarnings)
{
    std::string record = ShortestRecord(TreSENSRB::Layout().table);
    FieldStore store(TreSENSRB::Layout().table);
    (void)FieldWalk::Read(record, store);
    for (const FieldEntry& entry : store.Entries()) {
        const bool flag = store.Row(entry).form == Form::Text;
        const bool count = store.Row(entry).form == Form::Integer;
        record.replace(static_cast<std::size_t>(store.Position(entry)), entry.length,
                       count  ? std::string(entry.length, '0')
                       : flag ? "N"
                              : std::string(entry.length, ' '));
    }
    TRE* made = nullptr;
    TREFactory::Create("SENSRB", record.data(), TRE::TRE_TYPE_UNKNOWN, &made, true, false, nullptr, record.size());
    std::string lines;
    EXPECT_EQ(0, made->ValidateFieldValues(lines)) << lines;
    EXPECT_NE(std::string::npos, lines.find("WARN: ")) << lines;
    TREFactory::Destroy(&made);
}

TEST(OftenBlankTest, ABlankThatIsUsualIsAWarning)
{
    const auto faults = [](const std::string& aLocation, std::string& aLines) {
        FieldStore store(TreSTDIDC::Layout().table);
        std::string record = ShortestRecord(TreSTDIDC::Layout().table);
        (void)FieldWalk::Read(record, store);
        record.replace(static_cast<std::size_t>(store.Position(*store.Find("LOCATION"))), 11, aLocation);
        TRE* made = nullptr;
        TREFactory::Create("STDIDC", record.data(), TRE::TRE_TYPE_UNKNOWN, &made, true, false, nullptr, record.size());
        const int count = made->ValidateFieldValues(aLines);
        TREFactory::Destroy(&made);
        return count;
    };
    std::string good;
    std::string blank;
    std::string wrong;
    const int others = faults("4512N07335W", good);
    EXPECT_EQ(others, faults(std::string(11, ' '), blank));
    EXPECT_EQ(others + 1, faults("4512N07335X", wrong));
    EXPECT_EQ(std::string::npos, good.find("LOCATION")) << good;
    EXPECT_NE(std::string::npos, blank.find("WARN: ")) << blank;
    EXPECT_NE(std::string::npos, blank.find("LOCATION")) << blank;
    EXPECT_NE(std::string::npos, wrong.find("LOCATION")) << wrong;
}

TEST(TreSENSRBTest, AValueIsAsWideAsTheFieldThatItsTypeNames)
{
    struct Fields
    {
        std::string_view module;
        std::string_view widths;  // of the fields a, b, c and so on; those above nine as letters from A = 10
    };
    constexpr Fields MODULES[] = {{"02", "K88888881"}, {"03", "299CCC9CCCC8"}, {"04", "F38888AA88"},
                                  {"05", "C88"},       {"06", "BCB888"},       {"07", "1A9A199A"},
                                  {"08", "AAAAAAAAA"}, {"09", "AAAA"},         {"10", "999"}};
    FieldStore store(TreSENSRB::Layout().table);
    std::string record(1000, '0');
    (void)FieldWalk::Read(record, store);
    const auto sets = static_cast<std::size_t>(store.Position(*store.Find("TIME_STAMPED_DATA_SETS")));
    record.replace(sets, 9, "0106a0001");
    for (const auto& [module, widths] : MODULES) {
        for (char letter = 'a'; letter != 'z'; ++letter) {
            record.replace(sets + 2, 3, std::string(module) + letter);
            const WalkResult result = FieldWalk::Read(record, store);
            const auto place = static_cast<std::size_t>(letter - 'a');
            if (place >= widths.size()) {
                EXPECT_EQ(Fault::UnknownCode, result.fault) << module << letter;
                EXPECT_EQ(std::string(module) + letter, result.value);
                continue;
            }
            const char width = widths[place];
            ASSERT_TRUE(result.IsGood()) << module << letter;
            EXPECT_EQ(width >= 'A' ? static_cast<std::size_t>(width - 'A' + 10) : static_cast<std::size_t>(width - '0'),
                      store.Find("TIME_STAMP_VALUE_1_1")->length)
                << module << letter;
        }
    }
    for (const char* const unknown : {"01a", "11a", "06A", "6a ", "   "}) {
        record.replace(sets + 2, 3, unknown);
        EXPECT_EQ(Fault::UnknownCode, FieldWalk::Read(record, store).fault) << unknown;
    }
}

TEST(TreILLUMBTest, EachBitOfTheMaskBringsItsFields)
{
    // With two bands and three other sources: bytes by bit, from bit 23 down.
    constexpr std::size_t BITS[] = {80, 10,     10,  6,  3, 30, 10, 5, 21, 5, 21, 34,
                                    34, 7 + 32, 102, 66, 0, 0,  0,  0, 0,  0, 0,  0};
    FieldStore store(TreILLUMB::Layout().table);
    std::string record(LONGEST_TRE, '0');
    record.replace(0, 4, "0002");
    (void)FieldWalk::Read(record, store);
    record.replace(static_cast<std::size_t>(store.Position(*store.Find("NUM_OTHERS"))), 2, "03");
    (void)FieldWalk::Read(record, store);
    const auto mask = static_cast<std::size_t>(store.Position(*store.Find("EXISTENCE_MASK")));
    for (std::size_t i = 0; i != std::size(BITS); ++i) {
        record.replace(mask, 3, "\0\0\0"s);
        record[mask + i / 8] = static_cast<char>(0x80U >> (i % 8));
        const bool radiometric = i == 0;
        record.replace(mask + 3 + (radiometric ? 80 : 0), 3, "001");
        EXPECT_EQ(304 + 2 * 32 + 3 * 40 + 49 + BITS[i], FieldWalk::Read(record, store).consumed) << "bit " << 23 - i;
        record.replace(mask + 3 + (radiometric ? 80 : 0), 3, "000");
    }
}

TEST(TreXMLDCATest, TheLengthOfTheDescriptionTellsItsFields)
{
    FieldStore store(TreXMLDCA::Layout().table);
    for (const auto& [length, last] : {std::pair{"0000", ""}, std::pair{"0005", "TRECRC"}, std::pair{"0283", "TRESHTN"},
                                       std::pair{"0773", "TRESHABS"}}) {
        const std::string xml = "<a/>";
        const std::string record = length + std::string(std::stoul(length), ' ') + xml;
        EXPECT_EQ(record.size(), FieldWalk::Read(record, store).consumed);
        ASSERT_NE(nullptr, store.Find("TREDATA"));
        EXPECT_EQ(xml, store.Value(*store.Find("TREDATA"))) << length;
        EXPECT_EQ(*last != '\0', store.Find(last) != nullptr) << length;
    }
}

TEST(WrappedTreTest, EachWrappedExtensionHasItsTagLengthAndData)
{
    FieldStore store(TreCONTXA::Layout().table);
    const std::string record = "ISI00032,4OFFSET000160000001200000034FREESA00002\xFF\xFF";
    EXPECT_TRUE(FieldWalk::Read(record, store).IsGood());
    EXPECT_EQ("2,4", store.Value(*store.Find("INDEX_LIST")));
    EXPECT_EQ("OFFSET", store.Value(*store.Find("TRETAG_1")));
    EXPECT_EQ("0000001200000034", store.Value(*store.Find("TREDATA_1")));
    EXPECT_EQ("\xFF\xFF", store.Value(*store.Find("TREDATA_2")));
    const WalkResult cut = FieldWalk::Read(std::string_view(record).substr(0, record.size() - 1), store);
    EXPECT_EQ(Fault::Short, cut.fault);
    EXPECT_EQ(1U, cut.available);
}

/// A record of warping terms with one set of orders 1, 2, 2 and 1, for a scanner.
std::string Warping(std::size_t aCoefficients)
{
    return "1S" + std::string(56, '1') + "1221" + std::string(21 * aCoefficients, '0') + "00000";
}

TEST(TreCSWRPBTest, TheCountOfCoefficientsIsTheOneThatFitsTheLength)
{
    const TreLayout& first = TreCSWRPB::Layout();
    const auto layoutOf = [&](const std::string& aRecord) {
        return &LayoutOfRecord(first, aRecord, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
    };
    EXPECT_EQ(&first, layoutOf(Warping(2 * 3 + 3 * 2)));
    const std::string fewer = Warping(1 * 2 + 2 * 1);
    ASSERT_EQ(first.other, layoutOf(fewer));
    FieldStore store(first.other->table);
    EXPECT_TRUE(FieldWalk::Read(fewer, store).IsGood());
    EXPECT_NE(nullptr, store.Find("A_1_2_1"));
    EXPECT_EQ(nullptr, store.Find("A_1_1_2"));
    EXPECT_NE(nullptr, store.Find("B_1_1_2"));
    EXPECT_EQ(&first, layoutOf(Warping(5))) << "neither: the first tells what is missing";
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

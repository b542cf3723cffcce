#include "foundation/CSMUtilString.h"
#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"

#include <memory>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using std::string_literals::operator""s;
using testing::HasSubstr;

const std::string ID = "01234567-89ab-cdef-0123-456789abcdef";

std::string Zeros(std::size_t aCount)
{
    return std::string(aCount, '0');
}

/// The subheader fields, or the reason why there are none.
std::pair<std::unique_ptr<DesDESSHF>, std::string> Subheader(const char* aType, const std::string& aBytes)
{
    DesDESSHF* made = nullptr;
    char* message = nullptr;
    SupportedDESSHFs::CreateDESSHF(aType, aBytes.data(), aBytes.size(), &made, &message);
    const std::string text = message == nullptr ? "" : message;
    Util::CSMUtilString::DeleteCString(message);
    return {std::unique_ptr<DesDESSHF>(made), text};
}

std::pair<std::unique_ptr<DesDESDATA>, std::string> Data(const char* aType, const std::string& aBytes)
{
    DesDESDATA* made = nullptr;
    char* message = nullptr;
    SupportedDESDATAs::CreateDESDATA(aType, aBytes.data(), aBytes.size(), &made, &message);
    const std::string text = message == nullptr ? "" : message;
    Util::CSMUtilString::DeleteCString(message);
    return {std::unique_ptr<DesDESDATA>(made), text};
}

/// Whether the bytes make data of the type that hold the field, and one byte more or less does not.
void ExpectData(const char* aType, const std::string& aBytes, std::size_t aFields, const char* aField,
                const std::string& aValue)
{
    const auto [data, fault] = Data(aType, aBytes);
    ASSERT_NE(nullptr, data) << aType << ": " << fault;
    EXPECT_EQ(aFields, data->GetNumOfFields()) << aType;
    EXPECT_EQ(aValue, data->FieldText(aField)) << aType << ": " << aField;
    EXPECT_EQ(nullptr, Data(aType, aBytes + "0").first) << aType;
    EXPECT_THAT(Data(aType, aBytes.substr(0, aBytes.size() - 1)).second, HasSubstr("are invalid")) << aType;
}

TEST(CommonSensorDesTest, TheFourTypesShareTheirSubheader)
{
    const std::string bytes = ID + "002001005001" + ID + "0004" + "\1\2\3\4"s;
    for (const char* const type : {"CSATTB", "CSEPHB", "CSSFAB", "CSCSDB"}) {
        const auto [fields, fault] = Subheader(type, bytes);
        ASSERT_NE(nullptr, fields) << type << ": " << fault;
        EXPECT_EQ(8U, fields->GetNumOfFields());
        EXPECT_EQ("005", fields->FieldText("AISDLVL_2"));
        EXPECT_EQ(ID, fields->FieldText("ASSOC_ELEM_UUID_1"));
        EXPECT_EQ("\1\2\3\4"s, fields->FieldText("RESERVEDSUBH"));
        std::string problems;
        EXPECT_EQ(0, fields->ValidateFieldValues(problems)) << problems;

        const auto all = Subheader(type, ID + "ALL0000000").first;
        ASSERT_NE(nullptr, all) << type;
        EXPECT_EQ(4U, all->GetNumOfFields());
        EXPECT_EQ(0, all->ValidateFieldValues(problems)) << problems;
        EXPECT_STRNE("UNKNOWN", all->GetDESSHFName());
        EXPECT_TRUE(*all == *all->Clone());
    }
    std::string problems;
    EXPECT_EQ(1, Subheader("CSATTB", "x" + ID.substr(1) + "ALL0000000").first->ValidateFieldValues(problems));
    EXPECT_THAT(problems, HasSubstr("UUID"));
}

TEST(CommonSensorDesTest, AttitudeAndPositionsOfBothEditions)
{
    const std::string times =
        "000.500000000"
        "20260131"
        "120000.000000000"
        "00002";
    const std::string quaternions = Zeros(7 * 18) + "+0.100000000000000";
    ExpectData("CSATTB", "1111" + times + quaternions + Zeros(9), 4 + 4 + 8 + 1, "Q4_2", "+0.100000000000000");
    ExpectData("CSATTB", "12711" + times + quaternions + Zeros(9), 5 + 4 + 8 + 1, "INTERP_ORDER_ATT", "7");
    ExpectData("CSATTB", "13111" + times + quaternions + "000000002xy", 5 + 4 + 8 + 2, "RESERVED", "xy");
    ExpectData("CSATTB", "1110" + times + quaternions + Zeros(9), 4 + 4 + 8 + 1, "ECI_ECF_ATT", "0");
    ExpectData("CSATTB", "1110" + Zeros(360) + "123.000000" + times + quaternions + Zeros(9), 4 + 32 + 4 + 8 + 1,
               "PN4_UT", "123.000000");
    const std::string positions = Zeros(5 * 12) + "+00000123.45";
    ExpectData("CSEPHB", "1111" + times + positions + Zeros(9), 4 + 4 + 6 + 1, "EPHEM_Z_2", "+00000123.45");
    ExpectData("CSEPHB", "12511" + times + positions + Zeros(9), 5 + 4 + 6 + 1, "INTERP_ORDER_EPH", "5");
    ExpectData("CSEPHB", "1110" + Zeros(370) + times + positions + Zeros(9), 4 + 32 + 4 + 6 + 1, "A_POLE", Zeros(11));
}

TEST(CommonSensorDesTest, FieldAlignmentOfScannersAndFrameCameras)
{
    const auto front = [](char aSensor) {
        return aSensor + "M00.55000000"s + "00001" + "00003M       " + "001" + "1" + "20260131" + Zeros(15) +
               Zeros(11) + Zeros(60);
    };
    constexpr std::size_t FRONT = 4 + 3 + 3 + 2 + 6;
    ExpectData("CSSFAB", front('S') + Zeros(23) + "002" + Zeros(88) + Zeros(9), FRONT + 3 + 8 + 1, "IREPBAND_1", "M ");
    const std::string blocks = Zeros(11) + Zeros(23) + "001" + Zeros(23) + "002" + Zeros(2 * 8 * 11);
    ExpectData("CSSFAB", front('F') + "100" + blocks + "0" + Zeros(9), FRONT + 3 + 7 + 16 + 1 + 1, "FA_Y4_1_1_2",
               Zeros(11));
    const std::string calibration = Zeros(11 + 12 * 21);
    const std::string arrays = "001002" + Zeros(2 * 8 * 21) + calibration;
    ExpectData("CSSFAB", front('F') + "110" + arrays + "0" + Zeros(9), FRONT + 3 + 2 + 16 + 13 + 1 + 1, "AD_A2_1",
               Zeros(21));
    const std::string frames = "11\0\0\0\2"s + Zeros(2 * 8 * 21) + calibration;
    ExpectData("CSSFAB", front('F') + "110" + arrays + frames + Zeros(9), FRONT + 3 + 2 + 16 + 13 + 1 + 2 + 16 + 13 + 1,
               "N_FRAMES", "\0\0\0\2"s);
    const std::string times = "21\0\0\0\2"s + "0103" + "20260131" + Zeros(2 * (15 + 9 * 21)) + calibration;
    ExpectData("CSSFAB", front('F') + "110" + arrays + times + Zeros(9),
               FRONT + 3 + 2 + 16 + 13 + 1 + 3 + 1 + 1 + 2 * 10 + 13 + 1, "TIME_VARYING_IO_PARM_ID_1", "03");
}

TEST(CommonSensorDesTest, CovariancesWithTheirConditions)
{
    const std::string date = "20260131";
    const std::string moment = date + "120000.000000000";
    ExpectData("CSCSDB", date + Zeros(6) + Zeros(9), 8, "COV_VERSION_DATE", date);

    const std::string basic = "1" + Zeros(3 * 21) + "1" + "01" + "0102SENS1 SENS2 " + "0" + "105";
    const std::string posts = "1" + date + Zeros(15) + Zeros(13) + "002" + "0" + Zeros(2 * 3 * 21) + "1000";
    const std::string set =
        "1"
        "11"
        "1" +
        moment + "212" + basic + posts;
    ExpectData("CSCSDB", date + set + Zeros(5) + Zeros(9),
               1 + 1 + 3 + 2 + 3 + (1 + 3 + 1 + 1 + 3 + 1 + 2) + (6 + 6 + 4) + 6, "BASIC_PF_SPDCF_SENSOR_1_1_1",
               "SENS1 SENS2 ");
    const std::string common = "1" + date + Zeros(15) + Zeros(13) + "002" + "1" + Zeros(3 * 21) + "1000";
    const std::string shared =
        "1"
        "11"
        "1" +
        moment + "2120" + common;
    ExpectData("CSCSDB", date + shared + Zeros(5) + Zeros(9), 1 + 1 + 3 + 2 + 3 + 1 + (6 + 3 + 4) + 6,
               "ERRCOV_C2_1_1_3", Zeros(21));

    const std::string calibration = "102" + Zeros(22) + "01" + moment + "02" + "0102" + Zeros(2 * 3 * 21) + "00102";
    ExpectData("CSCSDB", date + "0" + calibration + Zeros(4) + Zeros(9), 2 + (2 + 2 + 1) + (3 + 2 + 6 + 3) + 5,
               "SPDCF_ID_FL_1", "02");

    constexpr std::pair<std::size_t, std::size_t> TIMING[] = {{89, 6}, {94, 8}, {152, 9}, {136, 10}, {141, 12}};
    for (std::size_t layout = 1; layout <= std::size(TIMING); ++layout) {
        const auto [bytes, fields] = TIMING[layout - 1];
        ExpectData("CSCSDB", date + "001" + std::to_string(layout) + Zeros(bytes) + Zeros(3) + Zeros(9),
                   4 + 1 + fields + 4, "NUM_TS_GRP", std::to_string(layout));
    }
    const std::string grid =
        "1"
        "001"
        "02" +
        Zeros(2 * 3 * 21) + "0708";
    const std::string functions =
        "1"
        "03"
        "0101"
        "00.500" +
        Zeros(8 + 8 + 9 + 21) +
        "0202"
        "10.500"
        "02" +
        Zeros(2 * 29) + "20.500" + Zeros(8 + 21 + 21) +
        "0301"
        "20.500" +
        Zeros(8 + 21 + 21);
    ExpectData("CSCSDB", date + "000" + grid + functions + "0" + Zeros(9),
               4 + (1 + 2 + 6 + 2) + (1 + 1 + 3 * 2 + 4 * 2 + 4 + 5 + 3 + 3) + 2, "SPDCF_FAM_2_2", "2");
    const std::string direct =
        "10"
        "0002" +
        Zeros(2 * 21) + Zeros(3 * 21);
    ExpectData("CSCSDB", date + Zeros(5) + direct + Zeros(9), 7 + 2 + 2 + 3 + 1, "DC_TYPE", "0");
}

TEST(DesTypesTest, ShapesOfTheSecondVersionAndForeignContent)
{
    const std::string shapes = ID + ID + "ALL" + std::string(24, ' ') + "000" + "IMAGE_SHAPE              " + "001" +
                               "LEVEL          " + "3         " + "POLYGON    " + "WGS-84    " + "+0000001000" +
                               "001001" + std::string(18, ' ') + "SHP000000000SHX000000100DBF000000200";
    const auto first = Subheader("CSSHPB DES", shapes).first;
    ASSERT_NE(nullptr, first);
    EXPECT_EQ("3         ", first->FieldText("SHAPE_USE_ATTR_VAL_1"));
    const auto second = Subheader("CSSHPB DES", shapes + "0107map.prj000000300000000025").first;
    ASSERT_NE(nullptr, second);
    EXPECT_EQ("map.prj", second->FieldText("SUPPORTING_NAME_1"));
    std::string problems;
    EXPECT_EQ(0, second->ValidateFieldValues(problems)) << problems;

    const auto content = Subheader("EXT_DEF_CONTENT", "0026Content-Type: text/plain\r\n").first;
    ASSERT_NE(nullptr, content);
    EXPECT_EQ("Content-Type: text/plain\r\n", content->FieldText("CONTENT_HEADERS"));
    ASSERT_NE(nullptr, Subheader("LIDARA DES", "  0").first);
    EXPECT_EQ(nullptr, Subheader("LIDARA DES", "00").first);
    EXPECT_EQ(1, SupportedDESDATAs::IsBinary("LIDARA DES"));
    EXPECT_EQ(0, SupportedDESDATAs::IsBinary("CSATTB"));
    EXPECT_EQ(1, SupportedDESDATAs::IsBinary("CSSFAB"));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

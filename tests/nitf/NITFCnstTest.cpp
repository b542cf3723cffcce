#include "nitf/NITFCnst.h"
#include "tre/NITFCnstTreCERETag.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <type_traits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

static_assert(!std::is_default_constructible_v<NITFCnst>);
static_assert(!std::is_default_constructible_v<NITFCnst::Limits>);
static_assert(!std::is_default_constructible_v<NITFCnst::TreCERETag>);

TEST(NITFCnstTest, CompressionIsTheWholeTextWithoutTrimming)
{
    EXPECT_EQ(0, NITFCnst::GetFieldICCode("C0"));
    EXPECT_EQ(3, NITFCnst::GetFieldICCode("C3"));
    EXPECT_EQ(9, NITFCnst::GetFieldICCode("I1"));
    EXPECT_EQ(10, NITFCnst::GetFieldICCode("M0"));
    EXPECT_EQ(18, NITFCnst::GetFieldICCode("M8"));
    EXPECT_EQ(19, NITFCnst::GetFieldICCode("NC"));
    EXPECT_EQ(20, NITFCnst::GetFieldICCode("NM"));
    for (const char* const other : {"", "C", "c3", "C3 ", " C3", "C9", "I2", "C3\n", "NCM"}) {
        EXPECT_EQ(-1, NITFCnst::GetFieldICCode(other)) << '"' << other << '"';
    }
    EXPECT_EQ(-1, NITFCnst::GetFieldICCode(nullptr));
}

TEST(NITFCnstTest, FieldTypesHaveACompactAndADisplayLetter)
{
    const auto letters = [](int aType) {
        const auto type = static_cast<NITFCnst::FieldType>(aType);
        return std::string(NITFCnst::GetFieldType(type)) + ' ' + NITFCnst::GetFieldTypeForDisplay(type);
    };
    EXPECT_EQ("C C", letters(0));
    EXPECT_EQ("? (C)", letters(1));
    EXPECT_EQ("O O", letters(2));
    EXPECT_EQ("R R", letters(3));
    EXPECT_EQ("<R> (R)", letters(4));
    for (const int other : {-1, 5, 99, -2147483647}) {
        EXPECT_EQ("? ?", letters(other)) << other;
    }
}

TEST(NITFCnstTest, VersionIsRecognisedByItsNumberAlone)
{
    EXPECT_EQ(10, NITFCnst::GetNITFFileVersionCode("01.00"));
    EXPECT_EQ(11, NITFCnst::GetNITFFileVersionCode("01.10"));
    EXPECT_EQ(20, NITFCnst::GetNITFFileVersionCode("02.00\t"));
    EXPECT_EQ(21, NITFCnst::GetNITFFileVersionCode(" \v\f\r\n02.10 "));
    for (const char* const other : {"", "     ", "2.10", "02.1", "02.100", "02. 10", "02,10", "NITF02.10", "03.00"}) {
        EXPECT_EQ(-1, NITFCnst::GetNITFFileVersionCode(other)) << '"' << other << '"';
    }
    EXPECT_EQ(-1, NITFCnst::GetNITFFileVersionCode(nullptr));
}

TEST(NITFCnstTest, VersionTextEndsInTheNumberThatLeadsBackToTheVersion)
{
    for (const int code : {10, 11, 20, 21}) {
        const std::string text = NITFCnst::GetNITFVersionString(static_cast<NITFCnst::Version>(code));
        ASSERT_EQ(9U, text.size()) << code;
        EXPECT_EQ(code == 10 ? "NSIF" : "NITF", text.substr(0, 4)) << code;
        EXPECT_EQ(code, NITFCnst::GetNITFFileVersionCode(text.c_str() + 4));
    }
    for (const int other : {-1, 0, 9, 12, 22}) {
        EXPECT_STREQ("NITF UNKNOWN Version", NITFCnst::GetNITFVersionString(static_cast<NITFCnst::Version>(other)));
    }
}

TEST(NITFCnstTest, ClassificationCodeTakesOneCapitalLetter)
{
    EXPECT_EQ(0, NITFCnst::GetSecurityClassificationCode("C"));
    EXPECT_EQ(1, NITFCnst::GetSecurityClassificationCode(" R"));
    EXPECT_EQ(2, NITFCnst::GetSecurityClassificationCode("S "));
    EXPECT_EQ(3, NITFCnst::GetSecurityClassificationCode("\nT\n"));
    EXPECT_EQ(4, NITFCnst::GetSecurityClassificationCode("U"));
    for (const char* const other : {"", " ", "u", "X", "SECRET", "U U", "UU"}) {
        EXPECT_EQ(-1, NITFCnst::GetSecurityClassificationCode(other)) << '"' << other << '"';
    }
    EXPECT_EQ(-1, NITFCnst::GetSecurityClassificationCode(nullptr));
}

TEST(NITFCnstTest, ClassificationRankTakesTheLetterOrTheWord)
{
    EXPECT_EQ(0, NITFCnst::GetSecurityClassificationRank("U"));
    EXPECT_EQ(0, NITFCnst::GetSecurityClassificationRank("UNCLASSIFIED "));
    EXPECT_EQ(100, NITFCnst::GetSecurityClassificationRank("C"));
    EXPECT_EQ(100, NITFCnst::GetSecurityClassificationRank("CONFIDENTIAL"));
    EXPECT_EQ(200, NITFCnst::GetSecurityClassificationRank("R"));
    EXPECT_EQ(200, NITFCnst::GetSecurityClassificationRank("RESTRICTED"));
    EXPECT_EQ(20000, NITFCnst::GetSecurityClassificationRank("  S "));
    EXPECT_EQ(20000, NITFCnst::GetSecurityClassificationRank("SECRET"));
    EXPECT_EQ(40000, NITFCnst::GetSecurityClassificationRank("T"));
    EXPECT_EQ(40000, NITFCnst::GetSecurityClassificationRank(" TOP SECRET"));
    for (const char* const other :
         {"", "  ", "secret", "Top Secret", "TOP  SECRET", "TOPSECRET", "TOP", "TS", "UNKNOWN", "SECRETS", "\xA0S"}) {
        EXPECT_EQ(-1, NITFCnst::GetSecurityClassificationRank(other)) << '"' << other << '"';
    }
    EXPECT_EQ(-1, NITFCnst::GetSecurityClassificationRank(nullptr));
}

// An explicit instantiation may name a private member: this one hands TrimString out.
std::string Trim(const char* aText);

template<std::string (*Function)(const char*)>
struct TrimStringAccess
{
    friend std::string Trim(const char* aText) { return Function(aText); }
};
template struct TrimStringAccess<&NITFCnst::TrimString>;

TEST(NITFCnstTest, TrimmingKeepsInnerBlanksAndRefusesNull)
{
    EXPECT_EQ("", Trim(""));
    EXPECT_EQ("", Trim("   "));
    EXPECT_EQ("TOP  SECRET", Trim("\t TOP  SECRET\r\n"));
    EXPECT_EQ("\xA0x\x85", Trim(" \xA0x\x85 "));
    EXPECT_THAT([] { Trim(nullptr); }, testing::ThrowsMessage<std::invalid_argument>("Input argument cannot be NULL."));
}

struct TagRow
{
    std::string name;
    std::string tag;
    std::int32_t code;
};

#define ORMO_TAG(aTag)                                                         \
    {                                                                          \
#aTag, NITFCnst::TreCERETag::aTag, NITFCnst::TreCERETag::TreCode##aTag \
    }

// Every tag in the order of its code.
const TagRow TAGS[] = {
    ORMO_TAG(ACFTA),  ORMO_TAG(ACFTB),  ORMO_TAG(AIMIDA), ORMO_TAG(AIMIDB), ORMO_TAG(ASTORA), ORMO_TAG(BANDSA),
    ORMO_TAG(BANDSB), ORMO_TAG(BLOCKA), ORMO_TAG(EXOPTA), ORMO_TAG(EXPLTA), ORMO_TAG(EXPLTB), ORMO_TAG(MENSRA),
    ORMO_TAG(MENSRB), ORMO_TAG(MPDSRA), ORMO_TAG(MSTGTA), ORMO_TAG(MTIRPA), ORMO_TAG(MTIRPB), ORMO_TAG(PATCHA),
    ORMO_TAG(PATCHB), ORMO_TAG(RPC00B), ORMO_TAG(SECTGA), ORMO_TAG(SENSRA), ORMO_TAG(STREOB), ORMO_TAG(CSCCGA),
    ORMO_TAG(CSCRNA), ORMO_TAG(CSDIDA), ORMO_TAG(CSEPHA), ORMO_TAG(CSEXRA), ORMO_TAG(CSPROA), ORMO_TAG(CSSFAA),
    ORMO_TAG(STDIDC), ORMO_TAG(USE00A), ORMO_TAG(IMASDA), ORMO_TAG(IMCBDA), ORMO_TAG(IMRFCA), ORMO_TAG(MSDIRA),
    ORMO_TAG(PPRSDA), ORMO_TAG(PRADAA), ORMO_TAG(PRADRA), ORMO_TAG(PSUPDA), ORMO_TAG(PTPRAA), ORMO_TAG(RGRDRA),
    ORMO_TAG(ESD001), ORMO_TAG(ACCHZB), ORMO_TAG(ACCPOB), ORMO_TAG(ACCVTB), ORMO_TAG(BNDPLB), ORMO_TAG(FACCBB),
    ORMO_TAG(GEOLOB), ORMO_TAG(GEOPSB), ORMO_TAG(GRDPSB), ORMO_TAG(MAPLOB), ORMO_TAG(PRJPSB), ORMO_TAG(REGPTB),
    ORMO_TAG(REGPTC), ORMO_TAG(SNSPSB), ORMO_TAG(SOURCB), ORMO_TAG(BCKGDA), ORMO_TAG(CMETAA), ORMO_TAG(ENGRDA),
    ORMO_TAG(HISTOA), ORMO_TAG(ICHIPA), ORMO_TAG(ICHIPB), ORMO_TAG(IOMAPA), ORMO_TAG(J2KLRA), ORMO_TAG(MITOCA),
    ORMO_TAG(NBLOCA), ORMO_TAG(OFFSET), ORMO_TAG(PIAEQA), ORMO_TAG(PIAEVA), ORMO_TAG(PIAIMB), ORMO_TAG(PIAIMC),
    ORMO_TAG(PIAPEA), ORMO_TAG(PIAPEB), ORMO_TAG(PIAPRC), ORMO_TAG(PIAPRD), ORMO_TAG(PIATGA), ORMO_TAG(PIATGB),
    ORMO_TAG(CLCTNA), ORMO_TAG(CLCTNB), ORMO_TAG(IMGDTA), ORMO_TAG(OBJCTA), ORMO_TAG(PLTFMA), ORMO_TAG(SNSRA),
    ORMO_TAG(TRGTA),  ORMO_TAG(RPFDES), ORMO_TAG(RPFHDR), ORMO_TAG(RPFIMG), ORMO_TAG(RSMAPA), ORMO_TAG(RSMDCA),
    ORMO_TAG(RSMECA), ORMO_TAG(RSMGGA), ORMO_TAG(RSMGIA), ORMO_TAG(RSMIDA), ORMO_TAG(RSMPCA), ORMO_TAG(RSMPIA),
    ORMO_TAG(RPC00A),
};

#undef ORMO_TAG

TEST(NITFCnstTest, TreCodesRunOnThroughTheGroupsAndNeverChange)
{
    std::int32_t code = 0;
    for (const TagRow& row : TAGS) {
        code += (code == 78) ? 2 : 1;  // 79 is not in use
        EXPECT_EQ(row.name, row.tag);
        EXPECT_EQ(row.name == "RPC00A" ? 1020 : code, row.code) << row.name;
    }
    EXPECT_EQ(98, code);
    EXPECT_EQ(-1, NITFCnst::TreCERETag::TreCodeUNKNOWN);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

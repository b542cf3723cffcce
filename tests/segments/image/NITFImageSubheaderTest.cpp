#include "segments/image/NITF20ImageSubheader.h"
#include "segments/image/NITF21ImageSubheader.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/Refusal.h"
#include "tre/TREFactory.h"

#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using Util::CSMCnst;

constexpr std::uint64_t START = 1000;  // of the subheader in its file

NITFStdDataSegmentInfo InfoOf(NITFCnst::Version aVersion, std::int32_t aIndex = 0)
{
    NITFStdDataSegmentInfo info;
    info.SetSegmentType("IM", aVersion);
    info.SetSegmentIndex(aIndex);
    info.SetSegmentHeaderStart(START);
    return info;
}

std::unique_ptr<NITFImageSubheader> Read(Format aFormat, const std::string& aRaw, std::int32_t aIndex = 0)
{
    if (aFormat == Format::Nitf20) {
        return ReadSegment<NITF20ImageSubheader>(aRaw, InfoOf(NITFCnst::NITF_VERSION_NUMBER_20, aIndex), nullptr,
                                                 NITFCnst::STR_NITF_0200);
    }
    return ReadSegment<NITF21ImageSubheader>(aRaw, InfoOf(NITFCnst::NITF_VERSION_NUMBER_21, aIndex));
}

std::string Refusal(Format aFormat, const std::string& aRaw)
{
    return RefusalOf([&] { Read(aFormat, aRaw); });
}

bool Has(const NITFImageSubheader& aImage, const char* aName)
{
    return aImage.GetImageSegmentField(aName) != nullptr;
}

constexpr Format V20 = Format::Nitf20;
constexpr Format V21 = Format::Nitf21;

class EachVersionTest : public testing::TestWithParam<Format>
{
protected:
    NitfBuilder m_file{GetParam()};
    HeaderFields& m_fields = m_file.AddImage(480, 640);
};

INSTANTIATE_TEST_SUITE_P(Versions, EachVersionTest, testing::Values(V20, V21),
                         [](const auto& aInfo) { return aInfo.param == V20 ? "Nitf20" : "Nitf21"; });

TEST_P(EachVersionTest, EveryFieldIsReadWhereTheStandardPutsIt)
{
    for (const char* const name : {"TGTID", "ISCODE", "ISCTLH", "ISREL", "ISCAUT", "ISCTLN", "ISORCE", "IREP"}) {
        m_fields.Set(name, name);
    }
    if (GetParam() == V20) {
        m_fields.Event("after the exercise");
    }
    m_fields.Location("G", std::string(60, '4')).Comment("first").Comment("second").Compression("C3", "01.0");
    m_fields.NoBands().Band("LU", {"\0\1\2"s, "abc", "\xFF\xFE\xFD"}).Band("G").Band("B", {"\0"s});
    m_fields.Area("UDID", Tre("UDTRE", "x"), 3).Area("IXSHD", Tre("IXTRE", "\0y"s), 4);

    const std::string raw = m_fields.Bytes();
    const auto image = Read(GetParam(), raw, 7);
    EXPECT_STREQ("", image->GetWarningMessage());
    std::vector<std::string> names;
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    while (image->GetFieldAt(names.size(), name, value, length)) {
        ASSERT_TRUE(m_fields.Has(name)) << name;
        EXPECT_EQ(m_fields.Get(name), std::string(value, length)) << name;
        names.push_back(name);
    }
    EXPECT_EQ(m_fields.Names(), names);
    EXPECT_EQ(7, image->GetImageSegmentNumber());
    EXPECT_EQ(3U, image->GetNumOfImageBands());
    EXPECT_EQ(3U, image->GetOverflowUserDefinedImageData());
    EXPECT_EQ(4U, image->GetOverflowImageExtendedSubheaderData());
    long rawLength = 0;
    const char* const bytes = image->GetImageSubheader(rawLength);
    EXPECT_EQ(raw, std::string(bytes, static_cast<std::size_t>(rawLength)));
}

TEST_P(EachVersionTest, EveryShorterSubheaderIsRefusedNamingTheFieldThatIsMissing)
{
    m_fields.Comment("comment").NoBands().Band("LU", {"abc"}).Area("IXSHD", Tre("IXTRE", "x"));
    const std::string raw = m_fields.Bytes();
    for (std::size_t length = 2; length != raw.size(); ++length) {
        const std::string refusal = Refusal(GetParam(), raw.substr(0, length));
        ASSERT_THAT(refusal, AllOf(HasSubstr("[ImageSegment 0 field "), HasSubstr(" at byte offset "))) << length;
    }
    const std::string refusal = Refusal(GetParam(), raw.substr(0, m_fields.OffsetOf("IDLVL") + 1));
    EXPECT_THAT(refusal, HasSubstr("field IDLVL at byte offset " + std::to_string(START + m_fields.OffsetOf("IDLVL")) +
                                   ": 3 byte(s) needed, 1 left]"));
}

struct Location
{
    Format format;
    const char* icords;
    bool there;
};

TEST(NITFImageSubheaderTest, LocationDependsOnTheMeaningOfItsCodeInEachVersion)
{
    for (const Location& test :
         {Location{V21, "N", true}, Location{V21, "S", true}, Location{V21, "U", true}, Location{V21, "G", true},
          Location{V21, "D", true}, Location{V21, " ", false}, Location{V20, "N", false}, Location{V20, " ", false},
          Location{V20, "U", true}, Location{V20, "G", true}, Location{V20, "C", true}}) {
        NitfBuilder file(test.format);
        HeaderFields& fields = file.AddImage();
        if (test.there) {
            fields.Location(test.icords, std::string(60, '5'));
        } else {
            fields.Set("ICORDS", test.icords);
        }
        const auto image = Read(test.format, fields.Bytes());
        EXPECT_EQ(test.there, Has(*image, "IGEOLO")) << test.icords << (test.format == V20 ? " in 2.0" : " in 2.1");
        EXPECT_STREQ("", image->GetWarningMessage());
    }
}

TEST(NITFImageSubheaderTest, RateStandsBehindTheCompressionsThatHaveOne)
{
    for (const auto& [format, code, there] :
         {std::tuple{V21, "NC", false}, std::tuple{V21, "NM", false}, std::tuple{V21, "C1", true},
          std::tuple{V21, "C3", true},  std::tuple{V21, "C4", true},  std::tuple{V21, "C5", true},
          std::tuple{V21, "C6", false}, std::tuple{V21, "C7", false}, std::tuple{V21, "C8", true},
          std::tuple{V21, "I1", true},  std::tuple{V21, "M1", true},  std::tuple{V21, "M3", true},
          std::tuple{V21, "M4", true},  std::tuple{V21, "M5", true},  std::tuple{V21, "M8", true},
          std::tuple{V20, "NC", false}, std::tuple{V20, "NM", false}, std::tuple{V20, "C0", true},
          std::tuple{V20, "C2", true},  std::tuple{V20, "C4", true},  std::tuple{V20, "M4", true}}) {
        NitfBuilder file(format);
        HeaderFields& fields = file.AddImage();
        there ? fields.Compression(code, "1.00") : fields.Set("IC", code);
        const auto image = Read(format, fields.Bytes());
        EXPECT_EQ(there, Has(*image, "COMRAT")) << code << (format == V20 ? " in 2.0" : " in 2.1");
        EXPECT_STREQ("", image->GetWarningMessage());
    }
}

TEST(NITF21ImageSubheaderTest, MoreThanNineBandsAreCountedApart)
{
    NitfBuilder file;
    HeaderFields& fields = file.AddImage().NoBands();
    for (int band = 0; band != 9; ++band) {
        fields.Band("M");
    }
    EXPECT_FALSE(Has(*Read(V21, fields.Bytes()), "XBANDS"));
    EXPECT_EQ(9U, Read(V21, fields.Bytes())->GetNumOfImageBands());
    for (int band = 9; band != 123; ++band) {
        fields.Band("M");
    }
    const auto image = Read(V21, fields.Bytes());
    EXPECT_EQ(123U, image->GetNumOfImageBands());
    EXPECT_STREQ("M ", image->GetImageSegmentField("IREPBAND_123"));
    EXPECT_FALSE(Has(*image, "IREPBAND_124"));
}

TEST(NITF21ImageSubheaderTest, ImpossibleBandCountsAreRefused)
{
    NitfBuilder file;
    HeaderFields& fields = file.AddImage().NoBands();
    fields.InsertAfter("NBANDS", "XBANDS", "00000");
    EXPECT_THAT(Refusal(V21, fields.Bytes()), HasSubstr("NBANDS"));
    fields.Damage("XBANDS", "99999");
    EXPECT_THAT(Refusal(V21, fields.Bytes()),
                AllOf(HasSubstr("promises 1299987 byte(s)"), HasSubstr("at byte offset ")));
    fields.Damage("XBANDS", "    x");
    EXPECT_THAT(Refusal(V21, fields.Bytes()), HasSubstr("is invalid."));
    fields.Damage("NBANDS", "x");
    EXPECT_THAT(Refusal(V21, fields.Bytes()),
                HasSubstr("field NBANDS at byte offset " + std::to_string(START + fields.OffsetOf("NBANDS")) +
                          ": value \"x\" is not a number]"));
}

TEST_P(EachVersionTest, LookUpTablesAreBinaryAndKeepTheirBytes)
{
    const std::string table = "\0\1\0\xFF"s;
    m_fields.NoBands().Band("LU", {table, "abcd"});
    const auto image = Read(GetParam(), m_fields.Bytes());
    const char* value = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(image->GetFieldAsBinary("LUTD_1_1", value, length));
    EXPECT_EQ(table, std::string(value, length));
    EXPECT_TRUE(image->IsBinaryField("LUTD_1_2"));
    EXPECT_FALSE(image->IsBinaryField("NELUT_1"));
    EXPECT_FALSE(image->GetFieldAsBinary("NELUT_1", value, length));
    unsigned long entries = 0;
    EXPECT_TRUE(image->GetFieldAsUnsignedLong("NELUT_1", entries));
    EXPECT_EQ(4U, entries);
}

TEST_P(EachVersionTest, LookUpTablesBeyondTheSubheaderAreRefusedAtTheTable)
{
    m_fields.NoBands().Band("LU", {"abcd", "abcd", "abcd", "abcd"});
    for (const unsigned entries : {65536U, 99999U}) {
        m_fields.Damage("NELUT_1", std::to_string(entries));
        EXPECT_THAT(Refusal(GetParam(), m_fields.Bytes()),
                    HasSubstr("field NLUTS_1 at byte offset " + std::to_string(START + m_fields.OffsetOf("NLUTS_1")) +
                              ": value \"4\" promises " + std::to_string(4 * entries) + " byte(s), 66 left]"));
    }
    m_fields.Damage("NELUT_1", "-0004");
    EXPECT_THAT(Refusal(GetParam(), m_fields.Bytes()), HasSubstr("NELUT_1"));
}

TEST_P(EachVersionTest, CommentsThatAreMissingAreRefusedAtOnce)
{
    m_fields.Set("NICOM", "9");
    const std::string raw = m_fields.Bytes();
    EXPECT_THAT(Refusal(GetParam(), raw.substr(0, m_fields.OffsetOf("NICOM") + 31)),
                AllOf(HasSubstr("field NICOM at byte offset "), HasSubstr("promises 720 byte(s), 30 left]")));
    m_fields.Damage("NICOM", "-");
    EXPECT_THAT(Refusal(GetParam(), m_fields.Bytes()), HasSubstr("field NICOM at byte offset "));
}

struct AreaCase
{
    std::string bytes;  ///< length, overflow and area
    const char* problem;
};

TEST_P(EachVersionTest, ExtensionAreasMustFitIntoTheSubheader)
{
    m_fields.Surplus("xx");
    for (const std::string name : {"UDID", "IXSHD"}) {
        for (const AreaCase& area : {AreaCase{"00000", ""}, AreaCase{"00003007", ""}, AreaCase{"00005007xx", ""},
                                     AreaCase{"000010", "below 3"}, AreaCase{"0000200", "below 3"},
                                     AreaCase{"00100007short", "97 byte(s) needed"},
                                     AreaCase{"-0005007xx", "not a number"}, AreaCase{"0 005007xx", "not a number"}}) {
            m_fields.Damage(name + "L", area.bytes);
            const std::string refusal = Refusal(GetParam(), m_fields.Bytes());
            if (*area.problem == '\0') {
                EXPECT_THAT(refusal, IsEmpty()) << area.bytes;
            } else {
                EXPECT_THAT(refusal,
                            AllOf(HasSubstr("field " + name), HasSubstr("at byte offset "), HasSubstr(area.problem)))
                    << area.bytes;
            }
        }
        m_fields.Damage(name + "L", "00000");
    }
}

TEST_P(EachVersionTest, EachAreaStandsAlone)
{
    m_fields.Area("UDID", "UDTREX99999junk and more junk").Area("IXSHD", Tre("IXTREA", "a") + Tre("IXTREB", "\0"s));
    const auto image = Read(GetParam(), m_fields.Bytes());
    EXPECT_THAT(image->GetWarningMessage(), HasSubstr("Failed to extract the CEDATA/REDATA field of TRE \"UDTREX\""));
    EXPECT_THAT(image->GetWarningMessage(), HasSubstr("length claimed = 99999, available = 18"));
    const auto& tres = image->GetTREStore().InOrder();
    ASSERT_EQ(2U, tres.size());
    EXPECT_STREQ("IXTREB", tres[1]->GetTag());
    EXPECT_STREQ("IXSHD", tres[1]->GetExtensionArea());
    EXPECT_EQ(START + m_fields.OffsetOf("IXSHD") + 12, tres[1]->GetFileOffset());
    EXPECT_EQ(1U, tres[1]->GetLengthOfDataField());
}

TEST_P(EachVersionTest, SurplusBytesAreLeftOutWithAWarning)
{
    m_fields.Surplus("   ");
    EXPECT_THAT(Read(GetParam(), m_fields.Bytes())->GetWarningMessage(),
                AllOf(StartsWith("WARN: "), HasSubstr("take 439 byte(s)"), HasSubstr("says 442"),
                      HasSubstr("3 surplus blank(s)")));
}

TEST_P(EachVersionTest, HugeImagesAndOddValuesAreReadAsTheyStand)
{
    m_fields.Set("NROWS", "99999999").Set("NCOLS", "99999999").Set("NBPR", "9999").Set("NBPC", "9999");
    std::string comment = "nul\0and\x02more"s;
    comment.resize(80, ' ');
    m_fields.Comment("x")
        .Damage("ICOM_1", comment)
        .Damage("ILOC", "abcdefghij")
        .Damage("IDATIM", "\0\0\0\0\0\0\0\0\0\0\0\0\0\0"s);
    const auto image = Read(GetParam(), m_fields.Bytes());
    const char* value = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(image->GetFieldAsString("ICOM_1", value, length));
    EXPECT_EQ(comment, std::string(value, length));
    unsigned long rows = 0;
    EXPECT_TRUE(image->GetFieldAsUnsignedLong("NROWS", rows));
    EXPECT_EQ(99999999U, rows);
    EXPECT_THAT(image->SerializeDataSegment(""), HasSubstr("base64Encoded=\"T\""));
}

TEST_P(EachVersionTest, CommentsMayBeBlank)
{
    m_fields.Comment("").Comment("the second one");
    const auto image = Read(GetParam(), m_fields.Bytes());
    unsigned long errors = 9;
    unsigned long warnings = 9;
    EXPECT_TRUE(image->RigorousValidation(errors, warnings)) << image->GetErrorMessage();
    EXPECT_EQ(0U, errors);
}

TEST(NITFImageSubheaderTest, OnlyNumbersBelow999AndKnownVersionsAreOpened)
{
    NitfBuilder file;
    const std::string raw = file.AddImage().Bytes();
    EXPECT_EQ(998, Read(V21, raw, 998)->GetImageSegmentNumber());
    EXPECT_EQ("ERROR: Failed to clone the raw image subheader (index number = 999) from the input image data stream.",
              RefusalOf([&raw] { Read(V21, raw, 999); }));
    EXPECT_EQ("ERROR: Input image segment number is out of valid range.", RefusalOf([&raw] { Read(V21, raw, 1000); }));

    constexpr const char* CLONE =
        "ERROR: Failed to clone the raw image subheader (index number = 0) from the input image data stream.";
    EXPECT_EQ(CLONE, Refusal(V21, "I"));
    EXPECT_EQ(CLONE, Refusal(V21, raw + std::string(1000000 - raw.size(), ' ')));
    EXPECT_EQ(CLONE, Refusal(V21, "I\0"s + raw));
    for (const auto& [version, text] :
         {std::pair{NITFCnst::NITF_VERSION_NUMBER_11, CLONE}, std::pair{NITFCnst::NITF_VERSION_NUMBER_UNKNOWN, CLONE},
          std::pair{NITFCnst::NSIF_VERSION_NUMBER_10, ""}}) {
        EXPECT_EQ(text, RefusalOf([&raw, aVersion = version] {
                      ReadSegment<NITF21ImageSubheader>(raw, InfoOf(aVersion), nullptr, "NSIF01.00");
                  }));
    }
    EXPECT_EQ(CLONE, RefusalOf([] {
                  ReadSegment<NITF20ImageSubheader>("", InfoOf(NITFCnst::NITF_VERSION_NUMBER_20), nullptr, "NITF02.00");
              }));
}

class ImageSubheaderAccessTest : public testing::Test
{
protected:
    static std::string Raw()
    {
        NitfBuilder file;
        HeaderFields& fields = file.AddImage();
        fields.Area("UDID", Tre("ONCE", "1")).Area("IXSHD", Tre("TWICE", "1") + Tre("ONCE", "2"));
        return fields.Bytes();
    }
    std::unique_ptr<NITFImageSubheader> m_image = Read(V21, Raw());
    unsigned long m_unsigned = 77;
    double m_double = 77;
    const char* m_text = nullptr;
    std::size_t m_length = 77;
};

TEST_F(ImageSubheaderAccessTest, WhatCannotBeAnsweredLeavesItsReason)
{
    EXPECT_FALSE(m_image->GetFieldAsUnsignedLong("", m_unsigned));
    EXPECT_STREQ("ERROR: NULL/empty input NITF image segment field name string.", m_image->GetErrorMessage());
    EXPECT_FALSE(m_image->GetFieldAsString(" ", m_text, m_length));
    EXPECT_STREQ("ERROR: NULL/empty input image subheader field name string.", m_image->GetErrorMessage());
    EXPECT_FALSE(m_image->GetFieldAsString("", m_text, m_length, "ONCE"));
    EXPECT_STREQ("ERROR: NULL/empty input image subheader TRE field name string.", m_image->GetErrorMessage());
    EXPECT_FALSE(m_image->GetFieldAsUnsignedLong("NOTHING", m_unsigned));
    EXPECT_THAT(m_image->GetErrorMessage(), HasSubstr("\"NOTHING\" is not a NITF image segment field."));
    EXPECT_FALSE(m_image->GetFieldAsDouble("X", m_double, "ONCE"));
    EXPECT_STREQ(
        "ERROR: Requested image subheader TRE field \"X\" doesn't exist or its data type is not floating point type.",
        m_image->GetErrorMessage());
    EXPECT_FALSE(m_image->GetFieldAsUnsignedLong("X", m_unsigned, "NOTRE"));
    EXPECT_STREQ(
        "ERROR: Requested image subheader TRE field \"X\" doesn't exist or its data type is not a positive integral "
        "type.",
        m_image->GetErrorMessage());
    EXPECT_EQ(77U, m_unsigned);
    EXPECT_TRUE(m_image->GetFieldAsDouble("NROWS", m_double));
    EXPECT_STREQ("WARN: Data type of field \"NROWS\" is not floating point type.", m_image->GetWarningMessage());
    EXPECT_STREQ("", m_image->GetErrorMessage());
}

TEST_F(ImageSubheaderAccessTest, OverflowTresStandBehindTheOwnOnesOfTheirTag)
{
    TRE* overflow = nullptr;
    TREFactory::Create("ONCE", "overflow", TRE::TRE_TYPE_UNKNOWN, &overflow, false, false, nullptr, 8);
    ASSERT_TRUE(m_image->AddOverflowTRE(overflow));
    TREFactory::Destroy(&overflow);
    const TRE** tres = nullptr;
    std::size_t count = 77;
    ASSERT_TRUE(m_image->GetTRE(" ONCE ", tres, count, true));
    ASSERT_EQ(3U, count);
    EXPECT_STREQ("UDID", tres[0]->GetExtensionArea());
    EXPECT_STREQ("IXSHD", tres[1]->GetExtensionArea());
    EXPECT_EQ(8U, tres[2]->GetLengthOfDataField());
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    ASSERT_TRUE(m_image->GetTRE("ONCE", tres, count, false));
    EXPECT_EQ(2U, count);
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    EXPECT_TRUE(m_image->GetTRE("NONE", tres, count, true));
    EXPECT_EQ(0U, count);
    EXPECT_EQ(nullptr, tres);
    ASSERT_TRUE(m_image->GetAllImageSegmentTREs(tres, count, true));
    EXPECT_EQ(4U, count);
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
}

TEST_F(ImageSubheaderAccessTest, CopiesKeepAllAndLiveByThemselves)
{
    const auto& image = dynamic_cast<const NITF21ImageSubheader&>(*m_image);
    NITF21ImageSubheader copy(image);
    EXPECT_TRUE(copy == image);
    NitfBuilder file;
    const std::string other = file.AddImage(9, 9).Bytes();
    NITF21ImageSubheader assigned =
        *ReadSegment<NITF21ImageSubheader>(other, InfoOf(NITFCnst::NITF_VERSION_NUMBER_21, 5));
    EXPECT_TRUE(assigned != image);
    assigned = image;
    EXPECT_TRUE(assigned == image);
    m_image.reset();
    EXPECT_EQ(3U, assigned.GetTREStore().Size());
    EXPECT_STREQ("00000002", copy.GetImageSegmentField("NROWS"));
    EXPECT_EQ(START, copy.GetNITFStdDataSegmentInfo()->GetSegmentHeaderStart());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

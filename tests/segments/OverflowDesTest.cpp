#include "segments/des/NITF20DESSubheader.h"
#include "segments/des/NITF21DESSubheader.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/support/Corpus.h"

#include <filesystem>
#include <ostream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::HasSubstr;
using Tests::BuiltSegment;
using Tests::Format;
using Tests::NitfBuilder;
using Tests::Tre;

constexpr const char* MISSING_FIELD = "ERROR: Failed to retrieve required field from the DES metadata store.";
constexpr const char* INVALID_ITEM = "ERROR: Value of DES field \"DESITEM\" is invalid.";
constexpr const char* INVALID_AREA = "ERROR: Value of DES field \"DESOFLW\" is invalid.";
constexpr auto NONE = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;

BuiltSegment<NITF21DESSubheader> Des21(const NitfBuilder& aBuilder, std::size_t aMissing = 0)
{
    return {aBuilder, NITFCnst::NITF_VERSION_NUMBER_21, aMissing};
}

struct Link
{
    Format format;
    const char* area;
    const char* item;
    NITFCnst::DataSegmentType kind;  ///< NONE: refused with the text in `wanted`
    long index;
    const char* wanted;  ///< area or text
};

void PrintTo(const Link& aLink, std::ostream* aOut)
{
    *aOut << (aLink.format == Format::Nitf20 ? "2.0 " : "2.1 ") << aLink.area << ' ' << aLink.item;
}

class OverflowLinkTest : public testing::TestWithParam<Link>
{
protected:
    template<typename Subheader>
    void Check(NITFCnst::Version aVersion)
    {
        const Link& link = GetParam();
        NitfBuilder builder(link.format);
        std::string area(link.area);
        area.resize(6, ' ');
        builder.AddOverflow("UDID", 1, Tre("ABCDEF", "data")).Damage("DESOFLW", area).Damage("DESITEM", link.item);
        BuiltSegment<Subheader> des(builder, aVersion);
        NITFCnst::DataSegmentType kind = NONE;
        long index = -7;
        std::string found;
        ASSERT_TRUE(des->IsTREOverflow());
        ASSERT_EQ(link.kind != NONE, des->GetOverflowTarget(kind, index, found)) << des->GetErrorMessage();
        EXPECT_EQ(1U, des->GetOverflowTREs().Size()) << "a fault of the link loses no TRE";
        if (link.kind == NONE) {
            EXPECT_STREQ(link.wanted, des->GetErrorMessage());
            EXPECT_THAT(des->GetWarningMessage(), HasSubstr("DESITEM is "));
            return;
        }
        EXPECT_EQ(link.kind, kind);
        EXPECT_EQ(link.index, index);
        EXPECT_EQ(link.wanted, found);
        EXPECT_STREQ("", des->GetErrorMessage());
        EXPECT_STREQ("", des->GetWarningMessage());
    }
};

TEST_P(OverflowLinkTest, NamesItsSegmentOrSaysWhatIsWrong)
{
    if (GetParam().format == Format::Nitf20) {
        Check<NITF20DESSubheader>(NITFCnst::NITF_VERSION_NUMBER_20);
    } else {
        Check<NITF21DESSubheader>(NITFCnst::NITF_VERSION_NUMBER_21);
    }
}

INSTANTIATE_TEST_SUITE_P(
    AreasAndItems, OverflowLinkTest,
    testing::Values(Link{Format::Nitf21, "TXSHD", "001", NITFCnst::DATA_SEGMENT_TYPE_TEXT, 0, "TXSHD"},
                    Link{Format::Nitf21, "UDHD", "000", NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, "UDHD"},
                    Link{Format::Nitf21, "XHD", "000", NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, "XHD"},
                    Link{Format::Nitf21, "IXSHD", "999", NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 998, "IXSHD"},
                    Link{Format::Nitf21, "SXSHD", "002", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, 1, "SXSHD"},
                    Link{Format::Nitf20, "SXSHD", "002", NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, 1, "SXSHD"},
                    Link{Format::Nitf20, "LXSHD", "001", NITFCnst::DATA_SEGMENT_TYPE_LABEL, 0, "LXSHD"},
                    Link{Format::Nitf20, "LSXHD", "001", NITFCnst::DATA_SEGMENT_TYPE_LABEL, 0, "LXSHD"},
                    Link{Format::Nitf21, "LXSHD", "001", NONE, 0, INVALID_AREA},
                    Link{Format::Nitf21, "ixshd", "001", NONE, 0, INVALID_AREA},
                    Link{Format::Nitf21, "", "001", NONE, 0, MISSING_FIELD},
                    Link{Format::Nitf21, "IXSHD", "000", NONE, 0, MISSING_FIELD},
                    Link{Format::Nitf21, "IXSHD", "ABC", NONE, 0, INVALID_ITEM},
                    Link{Format::Nitf21, "IXSHD", "-01", NONE, 0, INVALID_ITEM},
                    Link{Format::Nitf21, "UDHD", "   ", NONE, 0, INVALID_ITEM},
                    Link{Format::Nitf20, "UDID", "1 2", NONE, 0, INVALID_ITEM}));

TEST(OverflowDesTest, TypeOfANitf20OverflowIsComparedWithoutRegardToCase)
{
    NitfBuilder builder(Format::Nitf20);
    builder.AddOverflow("TXSHD", 1, Tre("ABCDEF", "data")).Set("DESTAG", "CONTROLLED EXTENSIONS");
    const BuiltSegment<NITF20DESSubheader> des(builder, NITFCnst::NITF_VERSION_NUMBER_20);
    EXPECT_TRUE(des->IsTREOverflow());
    EXPECT_EQ(1U, des->GetOverflowTREs().Size());

    NitfBuilder other(Format::Nitf20);
    other.AddDes("TRE_OVERFLOW", Tre("ABCDEF", "data"));  // the word of NITF 2.1 only
    const BuiltSegment<NITF20DESSubheader> plain(other, NITFCnst::NITF_VERSION_NUMBER_20);
    EXPECT_FALSE(plain->IsTREOverflow());
}

TEST(OverflowDesTest, TagsThatNobodyKnowsTakeTheKindOfTheAreaThatRanOver)
{
    for (const auto& [area, type] : {std::pair{"UDID", TRE::TRE_TYPE_REGISTERED_EXTENSION},
                                     {"UDHD", TRE::TRE_TYPE_REGISTERED_EXTENSION},
                                     {"IXSHD", TRE::TRE_TYPE_CONTROLLED_EXTENSION},
                                     {"XHD", TRE::TRE_TYPE_CONTROLLED_EXTENSION}}) {
        NitfBuilder builder;
        builder.AddOverflow(area, 1, Tre("NOBODY", "first") + Tre("NOBODY", "second"));
        const auto des = Des21(builder);
        ASSERT_EQ(2U, des->GetOverflowTREs().Size()) << area;
        const TRE& second = *des->GetOverflowTREs().InOrder()[1];
        EXPECT_EQ(type, second.GetTREType()) << area;
        EXPECT_STREQ("TRE_OVERFLOW", second.GetExtensionArea());
        EXPECT_EQ(des.Info().GetSegmentDataStart() + Tre("NOBODY", "first").size(), second.GetFileOffset());
    }
}

TEST(OverflowDesTest, FaultInTheDataKeepsTheTresBeforeIt)
{
    NitfBuilder builder;
    builder.AddOverflow("UDID", 1, Tre("FIRST", "data") + "SECOND99999short");
    const auto des = Des21(builder);
    ASSERT_EQ(1U, des->GetOverflowTREs().Size());
    EXPECT_THAT(des->GetWarningMessage(), HasSubstr("SECOND"));
    EXPECT_THAT(des->GetWarningMessage(), HasSubstr("99999"));

    NitfBuilder empty;
    empty.AddOverflow("UDID", 1, "");
    const auto none = Des21(empty);
    EXPECT_TRUE(none->GetOverflowTREs().IsEmpty());
    EXPECT_STREQ("ERROR: Input TRE data string is NULL or an empty string.", none->GetErrorMessage());
}

TEST(OverflowDesTest, DataBeyondTheFileLoseTheTresButNotTheDes)
{
    NitfBuilder builder;
    builder.AddOverflow("UDID", 1, Tre("ABCDEF", "data"));
    const auto des = Des21(builder, 1);
    NITFCnst::DataSegmentType kind = NONE;
    long index = -1;
    std::string area;
    EXPECT_TRUE(des->GetOverflowTREs().IsEmpty());
    EXPECT_TRUE(des->GetOverflowTarget(kind, index, area));
    EXPECT_THAT(des->GetErrorMessage(), HasSubstr("not available"));
    EXPECT_FALSE(des->IsDataAvailable());
}

TEST(OverflowDesTest, QueriesWithATagAnswerFromTheTresOfAnOverflowDesOnly)
{
    std::string blocka(123, ' ');
    blocka.replace(0, 12, "010000200100");
    NitfBuilder builder;
    builder.AddOverflow("UDID", 1, Tre("BLOCKA", blocka));
    const auto des = Des21(builder);
    long number = 0;
    EXPECT_TRUE(des->GetFieldAsLong("BLOCK_INSTANCE", number, "BLOCKA")) << des->GetErrorMessage();
    EXPECT_EQ(1, number);
    EXPECT_TRUE(des->IsTREOfThisDataSegment(" BLOCKA "));
    const TRE** tres = nullptr;
    std::size_t count = 0;
    EXPECT_TRUE(des->GetTRE("BLOCKA", tres, count, false));
    EXPECT_EQ(1U, count);
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);

    const char* text = nullptr;
    std::size_t length = 0;
    EXPECT_FALSE(des->GetFieldAsString("NOSUCH", text, length, "BLOCKA"));
    EXPECT_STREQ("ERROR: Requested TRE_OVERFLOW TRE field \"NOSUCH\" not found.", des->GetErrorMessage());
    EXPECT_FALSE(des->GetFieldAsLong("NOSUCH", number, "BLOCKA"));
    EXPECT_STREQ("ERROR: Requested TRE_OVERFLOW TRE field \"NOSUCH\" not found.", des->GetErrorMessage());
    EXPECT_FALSE(des->GetFieldAsLong("NOSUCH", number));
    EXPECT_STREQ("ERROR: Requested NITF DES subheader field \"NOSUCH\" not found.", des->GetErrorMessage());
    EXPECT_FALSE(des->GetFieldAsString(" ", text, length));
    EXPECT_STREQ("ERROR: NULL/empty input NITF DES subheader field name string.", des->GetErrorMessage());

    NitfBuilder other;
    other.AddDes("SOMETHING", "data");
    const auto plain = Des21(other);
    EXPECT_FALSE(plain->GetFieldAsString("BLOCK_INSTANCE", text, length, "BLOCKA"));
    EXPECT_STREQ("ERROR: This Data Extension Segment is not a TRE_OVERFLOW DES.", plain->GetErrorMessage());
    EXPECT_TRUE(plain->GetFieldAsString("DESID", text, length));
    EXPECT_EQ("SOMETHING", std::string(text, 9));
}

TEST(OverflowDesTest, ValidationAsksForVersionOneAndNoUserFields)
{
    NitfBuilder builder;
    builder.AddOverflow("UDID", 1, Tre("ABCDEF", "data")).Set("DESVER", "2").UserFields("odd");
    const auto des = Des21(builder);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    EXPECT_FALSE(des->RigorousValidation(errors, warnings));
    EXPECT_EQ(2U, errors) << des->GetErrorMessage();
    EXPECT_THAT(des->GetErrorMessage(), HasSubstr("invalid for DataExtensionSegment::DESVER "));
    EXPECT_THAT(des->GetErrorMessage(), HasSubstr("invalid for DataExtensionSegment::DESSHL "));

    NitfBuilder old(Format::Nitf20);
    old.AddOverflow("UDID", 1, Tre("ABCDEF", "data")).Set("DESVER", "99");
    const BuiltSegment<NITF20DESSubheader> open(old, NITFCnst::NITF_VERSION_NUMBER_20);
    ASSERT_TRUE(open->IsTREOverflow());
    EXPECT_TRUE(open->RigorousValidation(errors, warnings)) << open->GetErrorMessage();
}

TEST(OverflowDesTest, CopiesCarryTheirOwnTres)
{
    NitfBuilder builder;
    builder.AddOverflow("UDID", 1, Tre("ABCDEF", "data"));
    const auto des = Des21(builder);
    NITF21DESSubheader copy(*des);
    EXPECT_EQ(copy, *des);
    EXPECT_NE(copy.GetOverflowTREs().InOrder()[0], des->GetOverflowTREs().InOrder()[0]);

    NitfBuilder other;
    other.AddOverflow("UDHD", 0, Tre("OTHER", "data") + Tre("OTHER", "more"));
    const auto second = Des21(other);
    EXPECT_NE(copy, *second);
    copy = *second;
    EXPECT_EQ(copy, *second);
    NITFCnst::DataSegmentType kind = NONE;
    long index = -1;
    std::string area;
    EXPECT_TRUE(copy.GetOverflowTarget(kind, index, area));
    EXPECT_EQ("UDHD", area);
    EXPECT_EQ(2U, copy.GetOverflowTREs().Size());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

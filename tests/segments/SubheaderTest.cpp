#include "foundation/CSMExceptions.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/des/NITF20DESSubheader.h"
#include "segments/des/NITF21DESSubheader.h"
#include "segments/res/NITF20RESSubheader.h"
#include "segments/res/NITF21RESSubheader.h"
#include "segments/text/NITF20TextSubheader.h"
#include "segments/text/NITF21TextSubheader.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/support/XmlCheck.h"

#include <atomic>
#include <cstdio>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::HasSubstr;
using testing::Not;
using Tests::BuiltSegment;
using Tests::Format;
using Tests::HeaderFields;
using Tests::NitfBuilder;
using Tests::Tre;

std::string Str(const char* aData, std::size_t aLength)
{
    return aData == nullptr ? "(null)" : std::string(aData, aLength);
}

/// What one family and version of subheader needs to be built and read.
template<typename Class, Format FORMAT, char KIND>
struct Case
{
    using Subheader = Class;
    static constexpr Format format = FORMAT;
    static constexpr NITFCnst::Version version =
        FORMAT == Format::Nitf20 ? NITFCnst::NITF_VERSION_NUMBER_20 : NITFCnst::NITF_VERSION_NUMBER_21;
    static constexpr std::string_view classification = KIND == 'T'                ? "TSCLAS"
                                                       : FORMAT == Format::Nitf20 ? KIND == 'D' ? "DESCLAS" : "RESCLAS"
                                                       : KIND == 'D'              ? "DECLAS"
                                                                                  : "RECLAS";

    static constexpr bool isOdd = KIND == 'D' || (KIND == 'R' && FORMAT != Format::Nitf20);

    static HeaderFields& Add(NitfBuilder& aBuilder, const std::string& aData)
    {
        return KIND == 'T'   ? aBuilder.AddText(aData)
               : KIND == 'D' ? aBuilder.AddDes("SOME TYPE", aData)
                             : aBuilder.AddRes("SOME TYPE", aData);
    }
    static bool Data(const Subheader& aHeader, const char*& aData, std::size_t& aLength, std::string* aErrors)
    {
        if constexpr (KIND == 'T') {
            return aHeader.GetTextData(aData, aLength, aErrors);
        } else if constexpr (KIND == 'D') {
            return aHeader.GetDESDATA(aData, aLength, aErrors);
        } else {
            return aHeader.GetRESDATA(aData, aLength, aErrors);
        }
    }
};

template<typename T>
class SubheaderTest : public testing::Test
{
protected:
    using Built = BuiltSegment<typename T::Subheader>;

    static Built Make(const NitfBuilder& aBuilder, std::size_t aMissing = 0)
    {
        return {aBuilder, T::version, aMissing};
    }
};

using Cases =
    testing::Types<Case<NITF20TextSubheader, Format::Nitf20, 'T'>, Case<NITF21TextSubheader, Format::Nitf21, 'T'>,
                   Case<NITF20DESSubheader, Format::Nitf20, 'D'>, Case<NITF21DESSubheader, Format::Nitf21, 'D'>,
                   Case<NITF20RESSubheader, Format::Nitf20, 'R'>, Case<NITF21RESSubheader, Format::Nitf21, 'R'>>;
TYPED_TEST_SUITE(SubheaderTest, Cases);

TYPED_TEST(SubheaderTest, FieldsAndDataAreThoseOfTheFile)
{
    const std::string data("a\0b\r\n\xFF", 6);
    NitfBuilder builder(TypeParam::format);
    HeaderFields& fields = TypeParam::Add(builder, data);
    if (TypeParam::format == Format::Nitf20) {
        fields.Event("When it is over");
    }
    const auto segment = this->Make(builder);
    EXPECT_EQ(fields.Bytes().size(), segment.Info().GetSegmentHeaderSize());
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    for (std::size_t i = 0; segment->GetFieldAt(i, name, value, length); ++i) {
        EXPECT_EQ(fields.Get(name), Str(value, length)) << name;
    }
    EXPECT_STREQ("U", segment->GetClassification());
    EXPECT_STREQ("", segment->GetWarningMessage());

    std::string errors;
    ASSERT_TRUE(TypeParam::Data(*segment, value, length, &errors)) << errors;
    EXPECT_EQ(data, Str(value, length));
}

TYPED_TEST(SubheaderTest, EveryShorterSubheaderIsRefusedAtTheFirstMissingField)
{
    NitfBuilder builder(TypeParam::format);
    const HeaderFields& fields = TypeParam::Add(builder, "data");
    const auto good = this->Make(builder);
    const std::string bytes = fields.Bytes();
    for (std::size_t length = 0; length != bytes.size(); ++length) {
        try {
            Tests::ReadSegment<typename TypeParam::Subheader>(bytes.substr(0, length), good.Info(), good.Source());
            FAIL() << "read from " << length << " byte(s)";
        } catch (const ImageSupportDataConstructionException& exception) {
            const std::string text = exception.GetAdditionalMessage();
            if (length < 2) {
                EXPECT_THAT(text, HasSubstr("ERROR: Failed to clone the raw "));
                EXPECT_THAT(text, HasSubstr("(index number = 0)"));
                continue;
            }
            EXPECT_THAT(text, HasSubstr("field values from the input "));
            const auto at = text.find(" at byte offset ");
            ASSERT_NE(std::string::npos, at) << text;
            const std::uint64_t offset = std::stoull(text.substr(at + 16)) - good.Info().GetSegmentHeaderStart();
            const auto start = text.rfind(' ', at - 1) + 1;
            EXPECT_EQ(offset, fields.OffsetOf(text.substr(start, at - start))) << text;
            EXPECT_LE(offset, length);
        }
    }
}

TYPED_TEST(SubheaderTest, DataBeyondTheFileAnswerAsUnavailable)
{
    NitfBuilder builder(TypeParam::format);
    TypeParam::Add(builder, "0123456789");
    const auto segment = this->Make(builder, 3);
    const char* data = "untouched";
    std::size_t length = 7;
    std::string errors;
    EXPECT_FALSE(TypeParam::Data(*segment, data, length, &errors));
    EXPECT_EQ(nullptr, data);
    EXPECT_EQ(0U, length);
    EXPECT_THAT(
        errors,
        HasSubstr("not available: they begin at byte offset " + std::to_string(segment.Info().GetSegmentDataStart()) +
                  " and take 10 byte(s), the file has " + std::to_string(segment.Info().GetSegmentDataStart() + 7)));
    const std::string xml = segment->SerializeDataSegment("    ");
    EXPECT_EQ("", Tests::XmlFault(xml));
    EXPECT_THAT(xml, Not(HasSubstr("DATA")));
    EXPECT_THAT(xml, Not(HasSubstr("TSData")));
}

TYPED_TEST(SubheaderTest, XmlIsWellFormedWhateverTheBytes)
{
    std::string bytes;
    for (int byte = 0; byte != 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    // Damaged fields begin with each byte in turn; the data hold them all, or only what XML can carry.
    for (int byte = 0; byte != 256; ++byte) {
        NitfBuilder builder(TypeParam::format);
        TypeParam::Add(builder, byte % 2 == 0 ? bytes : "<&>'\"\r\n\xE9")
            .Damage(TypeParam::classification, std::string(1, static_cast<char>(byte)));
        const auto segment = this->Make(builder);
        const std::string xml = segment->SerializeDataSegment("    ");
        ASSERT_EQ("", Tests::XmlFault(xml)) << "byte " << byte << '\n' << xml;
        EXPECT_THAT(xml,
                    HasSubstr(byte % 2 == 0 ? " base64Encoded=\"T\">AAECAwQF" : " base64Encoded=\"F\">&lt;&amp;&gt;"));
    }
}

TYPED_TEST(SubheaderTest, XmlGivesPositionTagAndLongNameOfEachField)
{
    NitfBuilder builder(TypeParam::format);
    TypeParam::Add(builder, "data");
    const auto segment = this->Make(builder);
    const std::string xml = segment->SerializeDataSegment("    ");
    EXPECT_THAT(xml,
                HasSubstr("    <" + std::string(NITFStdDataSegment::GetDataSegmentName(segment->GetDataSegmentType())) +
                          " index=\"0\">\n      <"));
    EXPECT_THAT(xml, HasSubstr("Field field=\"1\" name=\"" + builder.Segments().front()->type +
                               "\" size=\"2\" type=\"R\" editable=\"F\" longName=\"File Part Type [" +
                               builder.Segments().front()->type + "]\">" + builder.Segments().front()->type + "</"));
    const std::string count = std::to_string(segment->GetNumOfFields());
    EXPECT_THAT(xml, HasSubstr(" field=\"" + count + "\" name=\""));
    EXPECT_THAT(xml, Not(HasSubstr("<TREs")));
}

TYPED_TEST(SubheaderTest, CopiesEqualAndAssignmentsTellOtherClassesApart)
{
    NitfBuilder builder(TypeParam::format);
    TypeParam::Add(builder, "data");
    const auto segment = this->Make(builder);
    typename TypeParam::Subheader copy(*segment);
    EXPECT_EQ(copy, *segment);
    const char* data = nullptr;
    std::size_t length = 0;
    EXPECT_TRUE(TypeParam::Data(copy, data, length, nullptr));
    EXPECT_EQ("data", Str(data, length));

    const auto again = this->Make(builder);
    EXPECT_EQ(copy, *again) << "the same bytes in another file";
    NitfBuilder others(TypeParam::format);
    TypeParam::Add(others, "date");
    const auto other = this->Make(others);
    EXPECT_NE(copy, *other) << "other data under the same subheader";
    copy = *other;
    EXPECT_EQ(copy, *other);
    EXPECT_TRUE(TypeParam::Data(copy, data, length, nullptr));
    EXPECT_EQ("date", Str(data, length));
}

TYPED_TEST(SubheaderTest, SurplusBytesAreWarnedOfAndLeftOut)
{
    NitfBuilder builder(TypeParam::format);
    TypeParam::Add(builder, "data").Surplus("   ");
    const auto segment = this->Make(builder);
    EXPECT_THAT(segment->GetWarningMessage(), HasSubstr("the 3 surplus blank(s) are left out."));
    const char* data = nullptr;
    std::size_t length = 0;
    ASSERT_TRUE(TypeParam::Data(*segment, data, length, nullptr));
    EXPECT_EQ("data", Str(data, length));
}

TYPED_TEST(SubheaderTest, ValidationPassesABuiltSegmentAndNamesAWrongField)
{
    NitfBuilder builder(TypeParam::format);
    TypeParam::Add(builder, "data\r\n");
    const auto good = this->Make(builder);
    unsigned long errors = 9;
    unsigned long warnings = 9;
    EXPECT_TRUE(good->RigorousValidation(errors, warnings));
    EXPECT_STREQ("", good->GetErrorMessage());
    // Types of extension segments that nobody knows are warned of.
    EXPECT_EQ(TypeParam::isOdd ? 1U : 0U, warnings) << good->GetWarningMessage();

    NitfBuilder wrong(TypeParam::format);
    HeaderFields& damaged = TypeParam::Add(wrong, "data\r\n").Set(TypeParam::classification, "Z");
    const auto bad = this->Make(wrong);
    EXPECT_FALSE(bad->RigorousValidation(errors, warnings));
    EXPECT_EQ(1U, errors);
    EXPECT_EQ("ERROR: The value of required field is invalid for " +
                  std::string(NITFStdDataSegment::GetDataSegmentName(bad->GetDataSegmentType())) +
                  "::" + std::string(TypeParam::classification) + " [" +
                  std::string(NITFStdDataSegment::GetDataSegmentName(bad->GetDataSegmentType())) +
                  " 0 at byte offset " +
                  std::to_string(bad.Info().GetSegmentHeaderStart() + damaged.OffsetOf(TypeParam::classification)) +
                  ": value \"Z\", allowed T | S | C | R | U, rule FLD-01]",
              bad->GetErrorMessage());
}

TEST(DesSubheaderTest, ClassificationIsFoundUnderBothSpellings)
{
    NitfBuilder builder;
    builder.AddDes("SOME TYPE", "data").Set("DECLAS", "C");
    const BuiltSegment<NITF21DESSubheader> des(builder, NITFCnst::NITF_VERSION_NUMBER_21, 0);
    EXPECT_EQ("C", des->FieldText("DECLAS"));
    EXPECT_EQ("C", des->FieldText("DESCLAS"));
    EXPECT_EQ(nullptr, des->FieldText("DSCLAS").data());
}

using TextTest = SubheaderTest<Case<NITF21TextSubheader, Format::Nitf21, 'T'>>;

TEST_F(TextTest, ExtensionAreaYieldsTresAndTheAttachmentLevelIsRead)
{
    NitfBuilder builder;
    builder.AddText("text").Set("TXTALVL", 7).Area("TXSHD", Tre("NOBODY", "data"), 3);
    const auto text = Make(builder);
    ASSERT_EQ(1U, text->GetTREStore().Size());
    EXPECT_EQ(TRE::TRE_TYPE_CONTROLLED_EXTENSION, text->GetTREStore().InOrder()[0]->GetTREType());
    EXPECT_STREQ("TXSHD", text->GetTREStore().InOrder()[0]->GetExtensionArea());
    EXPECT_EQ(7U, text->GetDataSegmentAttachmentLevel());
    EXPECT_FALSE(text->IsDisplayableDataSegment());
    EXPECT_EQ(3U, text->GetOverflowTextExtendedSubheaderData());
    EXPECT_THAT(text->SerializeDataSegment(""), HasSubstr("<TREs total=\"1\">"));
    ASSERT_NE(nullptr, text->GetAllSegmentMetadata());
}

TEST_F(TextTest, LengthThatTheSubheaderCannotHoldIsRefusedWithBothFigures)
{
    const std::vector<std::pair<const char*, const char*>> samples{
        {"00002", "field TXSHDL at byte offset 674: value \"00002\" is below 3"},
        {"00900", "897 byte(s) needed, 15 left"},
        {"-0001", "value \"-0001\" is not a number"},
        {"abcde", "value \"abcde\" is not a number"}};
    for (const auto& [length, figures] : samples) {
        NitfBuilder builder;
        builder.AddText("text").Area("TXSHD", Tre("NOBODY", "data")).Damage("TXSHDL", length);
        try {
            Make(builder);
            FAIL() << length;
        } catch (const ImageSupportDataConstructionException& exception) {
            EXPECT_THAT(exception.GetAdditionalMessage(), HasSubstr(figures)) << length;
            EXPECT_THAT(
                exception.GetAdditionalMessage(),
                HasSubstr("ERROR: Failed to get all the NITF text segment subheader field values from the input "
                          "data stream."));
            EXPECT_STREQ("NITF21TextSubheader::InitNITF21TextSubheader", exception.GetSource());
        }
    }
}

TEST_F(TextTest, TextsMustFitTheirFormat)
{
    struct Sample
    {
        const char* format;
        std::string text;
        const char* fault;  ///< null: none
        std::size_t offset;
    };
    const std::vector<Sample> samples{{"STA", "two\r\nlines\r\n\f", nullptr, 0},
                                      {"STA", "unix\nlines", "line feed", 4},
                                      {"STA", "caf\xE9", "above 126", 3},
                                      {"STA", std::string("nul\0", 4), "control", 3},
                                      {"UT1", "caf\xE9", nullptr, 0},
                                      {"UT1", "c\x85", "128", 1},
                                      {"U8S", "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80", "neither Basic Latin", 6},
                                      {"U8S", "caf\xE9", "UTF-8", 3},
                                      {"U8S", "\xC0\xAF", "UTF-8", 0},
                                      {"U8S", "ab\xED\xA0\x80", "UTF-8", 2},
                                      {"U8S", "a\xE2\x82", "UTF-8", 1},
                                      {"MTF", "MSGID/X//\r\n", nullptr, 0}};
    for (const Sample& sample : samples) {
        NitfBuilder builder;
        builder.AddText(sample.text).Set("TXTFMT", sample.format);
        const auto text = Make(builder);
        unsigned long errors = 0;
        unsigned long warnings = 0;
        EXPECT_TRUE(text->RigorousValidation(errors, warnings)) << text->GetErrorMessage();
        EXPECT_EQ(sample.fault == nullptr ? 0U : 1U, warnings) << sample.format << sample.text;
        if (sample.fault != nullptr) {
            EXPECT_THAT(text->GetWarningMessage(), HasSubstr(sample.fault));
            EXPECT_THAT(text->GetWarningMessage(),
                        HasSubstr("at byte offset " +
                                  std::to_string(text.Info().GetSegmentDataStart() + sample.offset) + ": "));
        }
    }
}

TEST_F(TextTest, QueriesSpeakOfTheTextSubheader)
{
    NitfBuilder builder;
    builder.AddText("text");
    const auto text = Make(builder);
    const char* value = nullptr;
    std::size_t length = 0;
    long number = 0;
    EXPECT_FALSE(text->GetFieldAsString("", value, length));
    EXPECT_STREQ("ERROR: NULL/empty input NITF text subheader field name string.", text->GetErrorMessage());
    EXPECT_FALSE(text->GetFieldAsString("NOSUCH", value, length));
    EXPECT_STREQ("ERROR: Requested text subheader field \"NOSUCH\" is not a NITF text subheader field.",
                 text->GetErrorMessage());
    EXPECT_FALSE(text->GetFieldAsLong("TXTITL", number));
    EXPECT_STREQ("ERROR: Data type of \"TXTITL\" is not an integral type.", text->GetErrorMessage());
    EXPECT_FALSE(text->GetFieldAsLong("NOSUCH", number));
    EXPECT_STREQ("ERROR: Data type of \"NOSUCH\" is not a NITF text subheader field.", text->GetErrorMessage());
    EXPECT_FALSE(text->GetFieldAsLong("X", number, "NOSUCH"));
    EXPECT_STREQ("ERROR: Data type of \"X\" doesn't exist or its data type is not a positive integral type.",
                 text->GetErrorMessage());
    EXPECT_TRUE(text->GetFieldAsLong("TXSHDL", number));
    EXPECT_EQ(0, number);
}

TEST_F(TextTest, WithoutAFileTheDataAreUnavailable)
{
    NitfBuilder builder;
    const std::string bytes = builder.AddText("text").Bytes();
    NITFStdDataSegmentInfo info;
    info.SetSegmentType("TE", NITFCnst::NITF_VERSION_NUMBER_21);
    const NITF21TextSubheader text = *Tests::ReadSegment<NITF21TextSubheader>(bytes, info);
    const char* data = nullptr;
    std::size_t length = 0;
    std::string errors;
    EXPECT_FALSE(text.GetTextData(data, length, &errors));
    EXPECT_THAT(errors, HasSubstr("ERROR: Text segment subheader data stream has not been properly initialized."));
}

TEST_F(TextTest, DataAreReadOnceForManyThreads)
{
    NitfBuilder builder;
    builder.AddText(std::string(90000, 'x'));
    const auto text = Make(builder);
    std::vector<const char*> answers(8);
    std::vector<std::thread> threads;
    for (const char*& answer : answers) {
        threads.emplace_back([&text, &answer] {
            std::size_t length = 0;
            text->GetTextData(answer, length);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(answers, testing::Each(testing::AllOf(testing::NotNull(), testing::Eq(answers.front()))));
}

TEST_F(TextTest, DeclassificationMustNameWhatItNeeds)
{
    struct Sample
    {
        const char* type;
        const char* field;
        const char* value;
        unsigned long errors;
        unsigned long warnings;
    };
    // The system is filled in all, so that each sample shows one rule.
    for (const Sample& sample : {Sample{"DD", "TSDCDT", "20300101", 0, 0}, Sample{"DD", "TSDCDT", "", 1, 0},
                                 Sample{"GD", "TSDG", "C", 1, 0}, Sample{"X", "TSDCXM", "X1", 0, 0},
                                 Sample{"O", "TSDCDT", "20300101", 0, 1}, Sample{"", "TSCLTX", "an event", 0, 0},
                                 Sample{"DE", "TSCLTX", "an event", 0, 0}, Sample{"QQ", "TSDCDT", "20300101", 1, 0}}) {
        NitfBuilder builder;
        builder.AddText("text")
            .Set("TSCLAS", "S")
            .Set("TSCLSY", "US")
            .Set("TSDCTP", sample.type)
            .Set(sample.field, sample.value);
        const auto text = Make(builder);
        unsigned long errors = 9;
        unsigned long warnings = 9;
        text->RigorousValidation(errors, warnings);
        EXPECT_EQ(sample.errors, errors) << sample.type << ' ' << sample.field << '\n' << text->GetErrorMessage();
        EXPECT_EQ(sample.warnings, warnings) << sample.type << ' ' << sample.field << '\n' << text->GetWarningMessage();
    }
    NitfBuilder builder;
    builder.AddText("text").Set("TSCAUT", "someone");
    const auto text = Make(builder);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    EXPECT_FALSE(text->RigorousValidation(errors, warnings));
    EXPECT_STREQ(
        "ERROR: Missing conditionally required field TextSegment::TSCLSY [TextSegment 0 at byte offset 504: value \"  "
        "\" TSCAUT is filled, MIL-STD-2500C table A-1, rule SEC-04]",
        text->GetErrorMessage());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

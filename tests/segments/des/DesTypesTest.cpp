#include "fields/FieldTable.h"
#include "fields/ValueRule.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "segments/des/DesDESDATACSATTA.h"
#include "segments/des/DesDESDATACSSHPA.h"
#include "segments/des/DesDESSHFCSATTA.h"
#include "segments/des/DesDESSHFCSSHPA.h"
#include "segments/des/DesDESSHFXmlDataContent.h"
#include "segments/des/NITF20DESSubheader.h"
#include "segments/des/NITF21DESSubheader.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/support/XmlCheck.h"

#include <bit>
#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Tests::BuiltSegment;
using Tests::Format;
using Tests::NitfBuilder;
using Tests::Padded;

std::string Fitted(std::string_view aText, std::size_t aWidth)
{
    std::string text(aText);
    text.resize(aWidth, ' ');
    return text;
}

std::string BigEndian(double aValue)
{
    const auto bits = std::bit_cast<std::uint64_t>(aValue);
    std::string bytes;
    for (int shift = 56; shift >= 0; shift -= 8) {
        bytes += static_cast<char>(static_cast<unsigned char>(bits >> static_cast<unsigned>(shift)));
    }
    return bytes;
}

std::string Attitude(unsigned aCount, const char* aStep = "000.0200000000")
{
    return Fitted("ORIGINAL", 12) + aStep + "20260131" + "235959.123456" + Padded(aCount, 5);
}

std::string Shapes(const char* aUse, unsigned aFirst, unsigned aSecond, unsigned aThird, const char* aSource = nullptr)
{
    return Fitted(aUse, 25) + Fitted("POLYGON", 10) + (aSource == nullptr ? "" : Fitted(aSource, 18)) + "SHP" +
           Padded(aFirst, 6) + "SHX" + Padded(aSecond, 6) + "DBF" + Padded(aThird, 6);
}

std::string Document(std::size_t aLength)
{
    std::string fields = "12345" + Fitted("XML", 8) + "2026-01-31T23:59:59Z" + Fitted("Builder", 40) +
                         Fitted("A document", 60) + Fitted("1.0", 10) + "2025-12-31T00:00:00Z" + Fitted("urn:x", 120);
    fields.resize(773, ' ');
    return fields.substr(0, aLength);
}

/// The message of a factory that makes nothing; empty when it makes an object.
std::string SubheaderFault(const char* aType, const std::string& aFields)
{
    DesDESSHF* made = nullptr;
    char* message = nullptr;
    const bool good = SupportedDESSHFs::CreateDESSHF(aType, aFields.data(), aFields.size(), &made, &message);
    EXPECT_EQ(good, made != nullptr);
    EXPECT_EQ(good, message == nullptr);
    const std::string text = message == nullptr ? "" : message;
    Util::CSMUtilString::DeleteCString(message);
    SupportedDESSHFs::DestroyDESSHF(&made);
    EXPECT_EQ(nullptr, made);
    return text;
}

BuiltSegment<NITF21DESSubheader> Des(const char* aType, const std::string& aFields, const std::string& aData,
                                     std::size_t aMissing = 0)
{
    NitfBuilder builder;
    builder.AddDes(aType, aData).UserFields(aFields);
    return {builder, NITFCnst::NITF_VERSION_NUMBER_21, aMissing};
}

TEST(DesTypesTest, TypesAreComparedExactlyAfterTrimming)
{
    const auto listed = [](const std::vector<const char*>& aTypes) {
        return std::vector<std::string>(aTypes.begin(), aTypes.end());
    };
    EXPECT_THAT(listed(SupportedDESSHFs::GetAllSupportedDESSHFs()),
                ElementsAre("CSATTA DES", "CSSHPA DES", "XML_DATA_CONTENT", "CSATTB", "CSCSDB", "CSEPHB", "CSSFAB",
                            "CSSHPB DES", "EXT_DEF_CONTENT", "LIDARA DES"));
    EXPECT_THAT(listed(SupportedDESDATAs::GetAllSupportedDESDATAs()),
                ElementsAre("CSATTA DES", "CSSHPA DES", "CSATTB", "CSCSDB", "CSEPHB", "CSSFAB"));
    EXPECT_EQ("", SubheaderFault("CSATTA DES               ", Attitude(1)));
    EXPECT_EQ("WARN: DESSHF \"csatta des\" is currently not supported by the Talvik CSM System.",
              SubheaderFault(" csatta des ", Attitude(1)));
    EXPECT_EQ("ERROR: NULL/empty input DESTAG/DESID.", SubheaderFault(" ", "x"));
    EXPECT_EQ("ERROR: NULL/empty input DESSHF data stream.", SubheaderFault("CSATTA DES", ""));
    EXPECT_FALSE(SupportedDESSHFs::CreateDESSHF("CSATTA DES", "x", nullptr, nullptr));

    EXPECT_EQ(1, SupportedDESDATAs::IsBinary("CSATTA DES "));
    EXPECT_EQ(1, SupportedDESDATAs::IsBinary("CSSHPA DES"));
    EXPECT_EQ(0, SupportedDESDATAs::IsBinary("XML_DATA_CONTENT"));
    EXPECT_EQ(-1, SupportedDESDATAs::IsBinary("TEST_DES"));
    EXPECT_EQ(-1, SupportedDESDATAs::IsBinary(nullptr));
    EXPECT_THROW(DesDESSHFCSATTA("CSSHPA DES", "x", 1), UnsupportedDESSHFException);
    EXPECT_THROW(DesDESDATACSSHPA("CSATTA DES", "x", 1), UnsupportedDESDATAException);
}

TEST(DesTypesTest, FieldsHaveTheirPublishedPlaces)
{
    const std::string bytes = Shapes("CLOUD_SHAPES", 100, 2000, 300000, "PAN,SWIR");
    ASSERT_EQ(80U, bytes.size());
    const DesDESSHFCSSHPA shapes("CSSHPA DES", bytes.data(), bytes.size());
    EXPECT_STREQ("Image/Cloud Cover Shapefile", shapes.GetDESSHFName());
    const std::vector<std::string> names(shapes.GetAllDesDESSHFFields()->begin(),
                                         shapes.GetAllDesDESSHFFields()->end());
    EXPECT_THAT(names, ElementsAre("SHAPE_USE", "SHAPE_CLASS", "CC_SOURCE", "SHAPE1_NAME", "SHAPE1_START",
                                   "SHAPE2_NAME", "SHAPE2_START", "SHAPE3_NAME", "SHAPE3_START"));
    unsigned long start = 0;
    EXPECT_TRUE(shapes.GetFieldAsUnsignedLong("SHAPE3_START", start));
    EXPECT_EQ(300000U, start);
    EXPECT_EQ("PAN,SWIR          ", shapes.FieldText("CC_SOURCE"));
    EXPECT_EQ(0, shapes.IsFieldValueInRange("SHAPE1_NAME", "PRJ"));
    EXPECT_EQ(1, shapes.IsFieldValueInRange("SHAPE1_NAME", "DBF"));
    EXPECT_EQ(-1, shapes.IsFieldValueInRange("NOSUCH", "DBF"));
    EXPECT_FALSE(shapes.IsFieldEditable("SHAPE_USE")) << "it decides whether CC_SOURCE stands";

    const std::string attitude = Attitude(9999);
    ASSERT_EQ(52U, attitude.size());
    const DesDESSHFCSATTA fields("CSATTA DES", attitude.data(), attitude.size());
    double step = 0;
    EXPECT_TRUE(fields.GetTimeStep(step));
    EXPECT_DOUBLE_EQ(0.02, step);
    std::string faults;
    EXPECT_EQ(0, fields.ValidateFieldValues(faults)) << faults;
    const DesDESSHFCSATTA wrong("CSATTA DES", Attitude(10000).data(), attitude.size());
    EXPECT_EQ(1, wrong.ValidateFieldValues(faults));
    EXPECT_EQ("ERROR: The value of required field is invalid for CSATTA DES::NUM_ATT", faults);
}

TEST(DesTypesTest, EveryRuleOfTheTablesCanBeUnderstood)
{
    // A wrong rule would call every value wrong, so good values of each field must pass.
    for (const std::size_t length : {5U, 283U, 773U}) {
        const std::string bytes = Document(length);
        const DesDESSHFXmlDataContent fields("XML_DATA_CONTENT", bytes.data(), bytes.size());
        std::string faults;
        EXPECT_EQ(0, fields.ValidateFieldValues(faults)) << faults;
        EXPECT_EQ(length == 5 ? 1U : length == 283 ? 8U : 13U, fields.GetNumOfFields());
    }
    const std::string shapes = Shapes("IMAGE_SHAPE", 0, 1, 2);
    std::string faults;
    EXPECT_EQ(0, DesDESSHFCSSHPA("CSSHPA DES", shapes.data(), shapes.size()).ValidateFieldValues(faults)) << faults;
}

TEST(DesTypesTest, FieldsThatDoNotFitAreRefusedWithBothLengths)
{
    const std::string shapes = Shapes("IMAGE_SHAPE", 0, 1, 2);
    for (const auto& [type, bytes, lengths] :
         {std::tuple{"CSSHPA DES", shapes.substr(1), "[expected = 62, with CC_SOURCE 80, found = 61]"},
          {"CSSHPA DES", shapes + " ", "[expected = 62, with CC_SOURCE 80, found = 63]"},
          {"CSSHPA DES", Shapes("CLOUD_SHAPES", 0, 1, 2), "found = 62]"},
          {"CSATTA DES", Attitude(1) + Attitude(1), "[expected = 52, found = 104]"},
          {"XML_DATA_CONTENT", Document(282), "[expected = 5, 283 or 773, found = 282]"},
          {"XML_DATA_CONTENT", Document(4), "[expected = 5, 283 or 773, found = 4]"}}) {
        const std::string fault = SubheaderFault(type, bytes);
        EXPECT_THAT(fault, HasSubstr(lengths));
        EXPECT_THAT(fault,
                    HasSubstr("ERROR: Failed to extracted all the DESSHF fields from the input DESSHF data stream"));
        EXPECT_EQ(std::string_view(type) == "CSSHPA DES",
                  fault.starts_with("ERROR: The input DESSHF data is invalid."));
    }
    EXPECT_EQ("ERROR: Missing required field \"SHAPE_USE\".\n\nERROR: Missing SHAPE_USE required field(s).",
              SubheaderFault("CSSHPA DES", Shapes("", 0, 1, 2)));
    EXPECT_EQ("ERROR: Missing ATT_TYPE, NUM_ATT required field(s).",
              SubheaderFault("CSATTA DES", Attitude(1).replace(0, 12, 12, ' ').replace(47, 5, 5, ' ')));
}

TEST(DesTypesTest, MisfitCostsTheDesOnlyItsTypedFields)
{
    for (const auto& [type, fields, found] : {std::tuple{"CSATTA DES", std::string(40, 'x'), "found = 40"},
                                              {"CSSHPA DES", Shapes("", 0, 1, 2), "Missing SHAPE_USE"}}) {
        const auto des = Des(type, fields, "data");
        EXPECT_EQ(nullptr, des->GetDESSHF());
        EXPECT_EQ(fields, des->FieldText("DESSHF"));
        const std::string warning = des->GetWarningMessage();
        EXPECT_TRUE(warning.starts_with("WARN: ")) << warning;
        EXPECT_THAT(warning, HasSubstr(found));
        EXPECT_THAT(warning, Not(HasSubstr("\n\n"))) << "one text for one fault";
        EXPECT_STREQ("", des->GetErrorMessage());
        EXPECT_THAT(des->SerializeDataSegment(""), HasSubstr("<DESField field=\"21\" name=\"DESSHF\""));
    }
    EXPECT_THAT(Des("CSATTA DES", "", "data")->GetWarningMessage(), HasSubstr("NULL/empty input DESSHF"));
    EXPECT_STREQ("", Des("XML_DATA_CONTENT", "", "<a/>")->GetWarningMessage());
    EXPECT_STREQ("", Des("TEST_DES", "whatever", "data")->GetWarningMessage());
}

TEST(DesTypesTest, UnknownTypeHasNoTypedDataAndReadsNothing)
{
    const auto des = Des("TEST_DES", "fields", "data", 2);
    std::string errors;
    EXPECT_EQ(nullptr, des->GetDESDATAFields(&errors));
    EXPECT_EQ("WARN: DESDATA \"TEST_DES\" is currently not supported by the Talvik CSM System.", errors);
    const auto document = Des("XML_DATA_CONTENT", Document(773), "<a/>");
    EXPECT_NE(nullptr, document->GetDESSHF());
    EXPECT_EQ(nullptr, document->GetDESDATAFields());
}

class AttitudeTest : public testing::TestWithParam<bool>
{
};

TEST_P(AttitudeTest, PointsHaveTimesAndQuaternions)
{
    const bool binary = GetParam();
    const std::vector<double> values{0.5, -0.25, 1, -1, 0, 0.125, -0.75, 0.0625};
    const std::vector<std::string> texts{"0.500000", "-0.25000", "1.000000", "-1.00000",
                                         "0.000000", "0.125000", "-0.75000", "0.062500"};
    std::string data;
    for (std::size_t i = 0; i != values.size(); ++i) {
        data += binary ? BigEndian(values[i]) : texts[i];
    }
    const auto des = Des("CSATTA DES", Attitude(2), data);
    const auto* const fields = dynamic_cast<const DesDESDATACSATTA*>(des->GetDESDATAFields());
    ASSERT_NE(nullptr, fields);
    EXPECT_EQ(2U, fields->GetNumOfPoints());
    EXPECT_STREQ("ATT_Q3_2", (*fields->GetAllDesDESDATAFields())[6]);
    const auto* const subheader = dynamic_cast<const DesDESSHFCSATTA*>(des->GetDESSHF());
    ASSERT_NE(nullptr, subheader);
    std::vector<DesDESDATACSATTA::AttitudePoint> points;
    ASSERT_TRUE(fields->GetAttitudePoints(*subheader, points));
    ASSERT_EQ(2U, points.size());
    EXPECT_DOUBLE_EQ(0, points[0].time);
    EXPECT_DOUBLE_EQ(0.02, points[1].time);
    for (std::size_t i = 0; i != points.size(); ++i) {
        EXPECT_DOUBLE_EQ(values[4 * i], points[i].q1);
        EXPECT_DOUBLE_EQ(values[4 * i + 1], points[i].q2);
        EXPECT_DOUBLE_EQ(values[4 * i + 2], points[i].q3);
        EXPECT_DOUBLE_EQ(values[4 * i + 3], points[i].q4);
    }
    unsigned long errors = 0;
    unsigned long warnings = 0;
    EXPECT_TRUE(des->RigorousValidation(errors, warnings)) << des->GetErrorMessage();
}

INSTANTIATE_TEST_SUITE_P(BinaryAndText, AttitudeTest, testing::Bool());

TEST(DesTypesTest, AttitudesThatDoNotAddUpAreReported)
{
    const std::string point = BigEndian(0.5) + BigEndian(0.5) + BigEndian(0.5) + BigEndian(0.5);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    const auto fewer = Des("CSATTA DES", Attitude(3), point + point);
    EXPECT_FALSE(fewer->RigorousValidation(errors, warnings));
    EXPECT_THAT(fewer->GetErrorMessage(), HasSubstr("NUM_ATT says 3 attitude(s), the data hold 2"));
    EXPECT_NE(nullptr, fewer->GetDESDATAFields());

    const auto cut = Des("CSATTA DES", Attitude(2), point + point.substr(1));
    std::string fault;
    EXPECT_EQ(nullptr, cut->GetDESDATAFields(&fault));
    EXPECT_THAT(fault, HasSubstr("[expected = a multiple of 32, found = 63]"));
    EXPECT_FALSE(cut->RigorousValidation(errors, warnings));
    EXPECT_EQ(1U, errors) << cut->GetErrorMessage();

    const auto step = Des("CSATTA DES", Attitude(1, "   abc        "), point);
    const auto* const fields = dynamic_cast<const DesDESDATACSATTA*>(step->GetDESDATAFields());
    ASSERT_NE(nullptr, fields);
    std::vector<DesDESDATACSATTA::AttitudePoint> points(1);
    EXPECT_FALSE(fields->GetAttitudePoints(dynamic_cast<const DesDESSHFCSATTA&>(*step->GetDESSHF()), points));
    EXPECT_TRUE(points.empty());
    const auto outside = Des("CSATTA DES", Attitude(1), BigEndian(2) + point.substr(8));
    EXPECT_FALSE(outside->RigorousValidation(errors, warnings));
    EXPECT_THAT(outside->GetErrorMessage(), HasSubstr("CSATTA DES::ATT_Q1_1"));
}

struct Cut
{
    unsigned starts[3];
    const char* files[3];  ///< null: refused
};

TEST(DesTypesTest, ShapefileIsCutByItsStartsWhateverTheirOrder)
{
    const std::string data = "0123456789";
    for (const Cut& cut :
         {Cut{{0, 4, 7}, {"0123", "456", "789"}}, Cut{{7, 0, 4}, {"789", "0123", "456"}},
          Cut{{2, 3, 9}, {"2", "345678", "9"}}, Cut{{0, 4, 10}, {nullptr, nullptr, nullptr}},
          Cut{{0, 4, 999999}, {nullptr, nullptr, nullptr}}, Cut{{0, 4, 4}, {nullptr, nullptr, nullptr}}}) {
        const auto des = Des("CSSHPA DES", Shapes("IMAGE_SHAPE", cut.starts[0], cut.starts[1], cut.starts[2]), data);
        const auto* const fields = dynamic_cast<const DesDESDATACSSHPA*>(des->GetDESDATAFields());
        ASSERT_NE(nullptr, fields);
        std::vector<DesDESDATACSSHPA::ShapeFile> files;
        std::string fault;
        const bool good = fields->GetShapeFiles(dynamic_cast<const DesDESSHFCSSHPA&>(*des->GetDESSHF()), files, &fault);
        unsigned long errors = 0;
        unsigned long warnings = 0;
        EXPECT_EQ(good, des->RigorousValidation(errors, warnings));
        if (cut.files[0] == nullptr) {
            EXPECT_FALSE(good);
            EXPECT_TRUE(files.empty());
            EXPECT_THAT(fault, HasSubstr("ERROR: SHAPE3_START \""));
            EXPECT_THAT(des->GetErrorMessage(), HasSubstr("SHAPE3_START"));
            continue;
        }
        ASSERT_TRUE(good) << fault;
        ASSERT_EQ(3U, files.size());
        for (std::size_t i = 0; i != 3; ++i) {
            EXPECT_EQ(cut.files[i], std::string(files[i].data, files[i].length));
        }
        EXPECT_EQ("SHX", files[1].name);
    }
    const auto letters = Des("CSSHPA DES", Shapes("IMAGE_SHAPE", 0, 4, 7).replace(38, 6, "-00001"), data);
    std::vector<DesDESDATACSSHPA::ShapeFile> files;
    std::string fault;
    EXPECT_FALSE(dynamic_cast<const DesDESDATACSSHPA&>(*letters->GetDESDATAFields())
                     .GetShapeFiles(dynamic_cast<const DesDESSHFCSSHPA&>(*letters->GetDESSHF()), files, &fault));
    EXPECT_EQ("ERROR: SHAPE1_START \"-00001\" is not a number [data = 10 byte(s)].", fault);
}

TEST(DesTypesTest, FieldsOfAnUnknownTypeAreWhateverTheyAre)
{
    NitfBuilder builder;
    builder.AddDes("NOBODYS OWN", "data").UserFields(std::string("\0\x80\xFF\x1B binary", 11));
    const BuiltSegment<NITF21DESSubheader> des(builder, NITFCnst::NITF_VERSION_NUMBER_21);
    unsigned long errors = 9;
    unsigned long warnings = 9;
    EXPECT_TRUE(des->RigorousValidation(errors, warnings)) << des->GetErrorMessage();
    EXPECT_EQ(0U, errors);
    EXPECT_THAT(std::string(warnings == 0 ? "" : des->GetWarningMessage()), Not(HasSubstr("DESSHF")));
}

TEST(DesTypesTest, XmlHasTheTypedFieldsInPlaceOfTheRawOne)
{
    const auto des = Des("XML_DATA_CONTENT", Document(283), "<?xml version=\"1.0\"?>\n<a b='c'>&amp;</a>");
    const std::string xml = des->SerializeDataSegment("    ");
    EXPECT_EQ("", Tests::XmlFault(xml));
    EXPECT_THAT(xml,
                HasSubstr("      <DESCmplxField field=\"21\" name=\"DESSHF\" size=\"283\" type=\"C\" editable=\"T\" "
                          "longName=\"DES User-defined Subheader Fields\">\n"
                          "        <DESSHFField field=\"1\" name=\"DESCRC\" size=\"5\" type=\"R\" editable=\"T\" "
                          "longName=\"Cyclic Redundancy Check\">12345"
                          "</DESSHFField>\n        <DESSHFField field=\"2\" name=\"DESSHFT\" size=\"8\" "));
    EXPECT_THAT(xml, HasSubstr("      </DESCmplxField>\n      <DATA base64Encoded=\"F\">&lt;?xml "));
    EXPECT_THAT(xml, Not(HasSubstr("<DESField field=\"21\"")));
}

TEST(DesTypesTest, Nitf20TypesAreToldByDestag)
{
    NitfBuilder builder(Format::Nitf20);
    builder.AddDes("CSSHPA DES", "0123456789").UserFields(Shapes("IMAGE_SHAPE", 0, 4, 7));
    const BuiltSegment<NITF20DESSubheader> des(builder, NITFCnst::NITF_VERSION_NUMBER_20);
    ASSERT_NE(nullptr, des->GetDESSHF());
    EXPECT_STREQ("CSSHPA DES", des->GetDESSHF()->GetUniqueDESTypeID());
}

TEST(DesTypesTest, CopiesAreEqualAndOtherClassesAreNotAssigned)
{
    const std::string bytes = Attitude(1);
    const std::string others = Attitude(2);
    const DesDESSHFCSATTA fields("CSATTA DES", bytes.data(), bytes.size());
    DesDESSHFCSATTA other("CSATTA DES", others.data(), others.size());
    EXPECT_NE(fields, other);
    const std::unique_ptr<DesDESSHF> copy = fields.Clone();
    EXPECT_EQ(*copy, fields);
    ASSERT_NE(nullptr, other.GetAllDesDESSHFFields());
    other = fields;
    EXPECT_EQ(other, fields);
    EXPECT_EQ("00001", other.FieldText("NUM_ATT"));

    const std::string shapes = Shapes("IMAGE_SHAPE", 0, 1, 2);
    const std::unique_ptr<DesDESSHF> another = DesDESSHFCSSHPA("CSSHPA DES", shapes.data(), shapes.size()).Clone();
    try {
        *copy = *another;
        FAIL() << "assigned";
    } catch (const RequestedOperationFailedException& exception) {
        EXPECT_STREQ("ERROR: System failed to assign all the member variables of one DesDESSHF to another.",
                     exception.GetAdditionalMessage());
        EXPECT_STREQ("DesDESSHF::Assign", exception.GetSource());
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

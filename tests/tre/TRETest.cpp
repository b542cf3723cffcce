#include "tests/foundation/OwnedText.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/Refusal.h"
#include "tre/TRE.h"
#include "tre/TREFactory.h"
#include "tre/TREStore.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Tests::RefusalOf;
using Tests::Text;
using Tests::Tre;
using std::string_literals::operator""s;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;
using testing::UnorderedElementsAre;

struct Destroyer
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using OwnedTre = std::unique_ptr<TRE, Destroyer>;

OwnedTre Make(const char* aTag, const std::string& aData)
{
    TRE* tre = nullptr;
    TREFactory::Create(aTag, aData.c_str(), TRE::TRE_TYPE_REGISTERED_EXTENSION, &tre, false, false, nullptr,
                       aData.size());
    return OwnedTre(tre);
}

/// Opens what derived classes are given.
class OpenTre : public TRE
{
public:
    explicit OpenTre(const char* aTag = "OPEN", const char* aData = "data")
        : TRE(aTag, aData, std::char_traits<char>::length(aData), TRE_TYPE_UNKNOWN)
    {
    }
    using TRE::CheckCEREDATALength;
    using TRE::operator=;
    using TRE::GetBinaryDataByteOrder;
    using TRE::GetNITFTreFieldValueDataTypesMap;
    using TRE::Swap;

    std::string Populate(const char* aTag, const std::string* aData, const std::vector<const char*>& aNames,
                         const std::vector<int>& aWidths, int aFirst, int aLast, std::size_t aStart = 0,
                         bool aBeyondOk = false)
    {
        widths = {{"left over", 1}};
        values = {{"left over", "x"}};
        return RefusalOf([&] {
            PopulateNITFTreFieldsMap(aTag, aData, aNames, aWidths, widths, values, aFirst, aLast, aStart, aBeyondOk);
        });
    }

    FieldWidths widths;
    FieldTexts values;
};

TEST(TRELengthTest, LengthOfAWholeTextIsFoundBehindItsTag)
{
    EXPECT_EQ(10U, TRE::GetCELRELFieldValue(" ACFTB 00010..."));
    EXPECT_EQ(10U, TRE::GetCELRELFieldValue("ACFTB=00010..."));
    EXPECT_EQ(10U, TRE::GetCELRELFieldValue("ACFTB =00010..."));
    EXPECT_EQ(99999U, TRE::GetCELRELFieldValue("\t\n BLOCKA99999x"));
    for (const char* const none :
         {"", "   ", "ACFTB ", "ACFTB 00010", "ACFTB 00000x", "ACFTB -0010x", "ACFTB ABCDEx"}) {
        EXPECT_EQ(0U, TRE::GetCELRELFieldValue(none)) << none;
    }
    EXPECT_EQ(0U, TRE::GetCELRELFieldValue(nullptr));
}

TEST(TRELengthTest, WholeTextsComeApartIntoNewTexts)
{
    Text tag;
    Text data;
    std::size_t length = 77;
    ASSERT_TRUE(TRE::DecomposeTREString(" OFF   00003abcdef", tag.Out(), data.Out(), length));
    EXPECT_EQ("OFF", tag.Str());
    EXPECT_EQ("abc", data.Str());
    EXPECT_EQ(3U, length);
    for (const char* const bad : {"OFF   00004abc", "OFF   00000abc", "OFF"}) {
        Text noTag;
        Text noData;
        EXPECT_FALSE(TRE::DecomposeTREString(bad, noTag.Out(), noData.Out(), length)) << bad;
        EXPECT_TRUE(noTag.IsNull());
        EXPECT_TRUE(noData.IsNull());
        EXPECT_EQ(0U, length);
    }
    Text other;
    EXPECT_FALSE(TRE::DecomposeTREString("OFF   00003abc", nullptr, other.Out(), length));
}

TEST(TRELengthTest, DataOfAnotherLengthNameBothLengths)
{
    const auto check = [](std::size_t aLength, const char* aTag, std::size_t aExpected, bool aMayDiffer) {
        return RefusalOf([=] { OpenTre::CheckCEREDATALength(aLength, aTag, aExpected, aMayDiffer); });
    };
    EXPECT_EQ("", check(5, "TAG", 5, false));
    EXPECT_EQ("", check(4, "TAG", 5, true));
    EXPECT_EQ(
        "ERROR: Expected length of the CEDATA/REDATA of TRE \"TAG\" is 5 byte(s). Input CEDATA/REDATA length = 4 "
        "byte(s).",
        check(4, "TAG", 5, false));
    EXPECT_EQ("ERROR: Expected length of the CEDATA/REDATA is 5 byte(s). Input CEDATA/REDATA length = 6 byte(s).",
              check(6, nullptr, 5, false));
    EXPECT_EQ("ERROR: Internal system errors - invalid input expected CEDATA/REDATA data length.",
              check(0, "TAG", 0, true));
}

class PopulateTest : public testing::Test
{
protected:
    OpenTre m_tre;
    const std::string m_data = "aabbbc";
    const std::vector<const char*> m_names{"A", "B", "C"};
    const std::vector<int> m_widths{2, 3, 1};
};

TEST_F(PopulateTest, FieldsAreCutByTheirWidths)
{
    EXPECT_EQ("", m_tre.Populate("TAG", &m_data, m_names, m_widths, 0, -1));
    EXPECT_THAT(m_tre.values, UnorderedElementsAre(Pair("A", "aa"), Pair("B", "bbb"), Pair("C", "c")));
    EXPECT_THAT(m_tre.widths, UnorderedElementsAre(Pair("A", 2), Pair("B", 3), Pair("C", 1)));
    EXPECT_EQ("", m_tre.Populate("TAG", &m_data, m_names, m_widths, 1, 1));
    EXPECT_THAT(m_tre.values, UnorderedElementsAre(Pair("B", "bbb")));
    EXPECT_EQ("", m_tre.Populate("TAG", &m_data, m_names, {1, 1, 1}, 1, 2, 3));
    EXPECT_THAT(m_tre.values, UnorderedElementsAre(Pair("B", "b"), Pair("C", "c")));
}

TEST_F(PopulateTest, FieldsBeyondTheDataAreCounted)
{
    EXPECT_EQ(
        "ERROR: Failed to extracted all the TRE fields from the input CEDATA/REDATA data stream for TRE \"TAG\" "
        "[expected = 3, extracted = 2].",
        m_tre.Populate("TAG", &m_data, m_names, {2, 3, 2}, 0, -1));
    EXPECT_THAT(m_tre.values, IsEmpty());
    EXPECT_THAT(m_tre.widths, IsEmpty());
    EXPECT_EQ(
        "ERROR: Failed to extracted all the TRE fields from the input CEDATA/REDATA data stream [expected = 2, "
        "extracted = 0].",
        m_tre.Populate(nullptr, &m_data, m_names, {2, 5, 1}, 1, 2));
    EXPECT_THAT(m_tre.Populate("TAG", &m_data, m_names, m_widths, 0, 9), HasSubstr("[expected = 10, extracted = 3]"));
    EXPECT_THAT(m_tre.Populate("TAG", &m_data, m_names, {2, 0, 1}, 0, 2), HasSubstr("[expected = 3, extracted = 1]"));
    EXPECT_THAT(m_tre.Populate("TAG", &m_data, {"A", nullptr, "C"}, m_widths, 0, 2),
                HasSubstr("[expected = 3, extracted = 1]"));
    EXPECT_THAT(m_tre.Populate("TAG", &m_data, m_names, m_widths, 0, 2, 6, true),
                HasSubstr("[expected = 3, extracted = 0]"));
}

TEST_F(PopulateTest, UnusableInputLeavesEmptyMaps)
{
    const auto expectNothing = [this](const std::string& aRefusal) {
        EXPECT_EQ("", aRefusal);
        EXPECT_THAT(m_tre.values, IsEmpty());
        EXPECT_THAT(m_tre.widths, IsEmpty());
    };
    expectNothing(m_tre.Populate("TAG", nullptr, m_names, m_widths, 0, -1));
    expectNothing(m_tre.Populate("TAG", &m_data, {}, {}, 0, -1));
    expectNothing(m_tre.Populate("TAG", &m_data, m_names, {1, 2}, 0, -1));
    expectNothing(m_tre.Populate("TAG", &m_data, m_names, m_widths, -1, -1));
    expectNothing(m_tre.Populate("TAG", &m_data, m_names, m_widths, 2, 1));
    expectNothing(m_tre.Populate("TAG", &m_data, m_names, m_widths, 3, 3));
    expectNothing(m_tre.Populate("TAG", &m_data, m_names, m_widths, 0, -1, 6));
}

class TypedTreTest : public testing::Test
{
protected:
    // Two bands; the first five numbers and their units, then the count.
    static std::string Data()
    {
        return "01.0000f 2.5000m100.00" + "0002"s + std::string(46, ' ') + "00.55" + std::string(41, ' ');
    }
    OwnedTre m_tre = Make("BANDSA", Data());
    const char* m_text = "untouched";
    std::size_t m_length = 77;
    long m_long = 77;
    unsigned long m_unsigned = 77;
    double m_double = 77;
    bool m_bool = false;
};

TEST_F(TypedTreTest, FieldsAreReachedByNameAndNeverThrow)
{
    ASSERT_FALSE(m_tre->IsGenericTRE());
    EXPECT_TRUE(m_tre->GetFieldAsString(" COL_SPACING ", m_text, m_length));
    EXPECT_EQ(" 2.5000", std::string(m_text, m_length));
    EXPECT_EQ('\0', m_text[m_length]);
    EXPECT_TRUE(m_tre->GetFieldAsDouble("COL_SPACING", m_double));
    EXPECT_EQ(2.5, m_double);
    EXPECT_TRUE(m_tre->GetFieldAsLong("COUNT", m_long));
    EXPECT_TRUE(m_tre->GetFieldAsUnsignedLong("COUNT", m_unsigned));
    EXPECT_EQ(2, m_long);
    EXPECT_EQ(2U, m_unsigned);
    EXPECT_STREQ("00.55", m_tre->GetTREField("BANDPEAK_2"));
    EXPECT_TRUE(m_tre->GetFieldAsDouble("BANDPEAK_2", m_double));

    EXPECT_FALSE(m_tre->GetFieldAsDouble("BANDPEAK_1", m_double));  // blank
    EXPECT_FALSE(m_tre->GetFieldAsDouble("BANDPEAK_3", m_double));
    EXPECT_FALSE(m_tre->GetFieldAsLong("ROW_SPACING_UNITS", m_long));
    EXPECT_FALSE(m_tre->GetFieldAsBinary("COUNT", m_text, m_length));
    EXPECT_EQ(nullptr, m_text);
    EXPECT_EQ(0U, m_length);
    for (const char* const name : {"", "NOTHING", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(m_tre->GetFieldAsString(name, m_text, m_length));
        EXPECT_FALSE(m_tre->GetFieldAsLong(name, m_long));
        EXPECT_FALSE(m_tre->GetFieldAsDouble(name, m_double));
        EXPECT_FALSE(m_tre->GetFieldAsBool(name, m_bool));
        EXPECT_EQ(nullptr, m_tre->GetTREField(name));
        EXPECT_EQ(-1, m_tre->IsFieldValueInRange(name, "1"));
        EXPECT_FALSE(m_tre->IsFieldEditable(name));
        EXPECT_FALSE(m_tre->IsBinaryField(name));
    }
    EXPECT_EQ(2, m_long);
    EXPECT_EQ(0.55, m_double);
}

TEST_F(TypedTreTest, RangeAndEditabilityAreAnsweredPerField)
{
    EXPECT_EQ(1, m_tre->IsFieldValueInRange("ROW_SPACING_UNITS", "f"));
    EXPECT_EQ(0, m_tre->IsFieldValueInRange("ROW_SPACING_UNITS", "x"));
    EXPECT_EQ(-1, m_tre->IsFieldValueInRange("ROW_SPACING_UNITS", nullptr));
    EXPECT_TRUE(m_tre->IsFieldEditable("ROW_SPACING"));
    EXPECT_FALSE(m_tre->IsFieldEditable("COUNT"));  // decides the layout
    EXPECT_EQ("F", m_tre->GetFieldEditabilityMap()->at("COUNT"));
    EXPECT_EQ(1, m_tre->IsFieldValueInRange("BANDLBOUND_9", "00.45")) << "a field that this record has not";
    std::string errors;
    EXPECT_EQ(1, Make("OFFSET", "        00000034")->ValidateFieldValues(errors));
    EXPECT_EQ("ERROR: Missing required field OFFSET::LINE", errors);
}

TEST_F(TypedTreTest, AnOptionalFieldOutOfRangeIsAWarningAndNotCounted)
{
    const OwnedTre event = Make("PIAEVA", "name" + std::string(34, ' ') + "NOTHING ");
    ASSERT_FALSE(event->IsGenericTRE());
    std::string errors;
    EXPECT_EQ(0, event->ValidateFieldValues(errors));
    EXPECT_THAT(errors, StartsWith("WARN: "));
    EXPECT_THAT(errors, HasSubstr("PIAEVA::EVENTTYPE"));
    // Nor does it keep the TRE from being typed.
    TRE* out = nullptr;
    TREFactory::Create("PIAEVA", ("name" + std::string(34, ' ') + "NOTHING ").c_str(), TRE::TRE_TYPE_UNKNOWN, &out,
                       true, true, nullptr, 46);
    EXPECT_NE(nullptr, OwnedTre(out));
}

TEST_F(TypedTreTest, DataInOnePieceAreThoseThatWereRead)
{
    std::size_t length = 0;
    const char* const data = m_tre->GetRawTREDataString(length);
    EXPECT_EQ(Data(), std::string(data, length));
    EXPECT_EQ(Data().size(), m_tre->GetLengthOfDataField());
    EXPECT_EQ(data, m_tre->GetRawTREDataString(length)) << "put together once";
}

TEST_F(TypedTreTest, ViewsAreParallelAndHelpTextsHaveTheFixedForm)
{
    const auto& names = *m_tre->GetAllTreFields();
    const auto& helps = *m_tre->GetAllTREFieldDescriptions();
    ASSERT_EQ(m_tre->GetNumOfFields(), names.size());
    ASSERT_EQ(names.size(), helps.size());
    ASSERT_EQ(names.size(), m_tre->GetBinaryFieldList()->size());
    EXPECT_EQ(names.size(), m_tre->GetTREKeyValuePairsMap()->size());
    EXPECT_EQ(names.size(), m_tre->GetAllTreFieldInfos()->size());
    for (std::size_t i = 0; i != names.size(); ++i) {
        const TreDetailedInfo& info = m_tre->GetAllTreFieldInfos()->at(names[i]);
        const std::string start = info.longName + " [= \"" + names[i] + "\", " +
                                  std::to_string(m_tre->GetTREFieldWidthsMap()->at(names[i])) + " bytes, ";
        EXPECT_THAT(helps[i], StartsWith(start));
        EXPECT_THAT(std::string(helps[i]).substr(start.size()), testing::MatchesRegex("[RCO]]\\. [^ ].*\\."));
    }
    EXPECT_THAT(helps[0], StartsWith("Row Spacing [= \"ROW_SPACING\", 7 bytes, R]. "));
    EXPECT_THAT(m_tre->GetTREDescription(),
                StartsWith("[Controlled Extension]\nTagged Record Extension BANDSA (Multispectral"));
    EXPECT_THAT(m_tre->GetTREDescription(),
                HasSubstr("This TRE belongs to the ASDE (Airborne Support Data Extension) TRE Group."));
    EXPECT_THAT(m_tre->GetTREDescription(), HasSubstr("\nSources:\n1. "));
}

TEST_F(TypedTreTest, CopiesKeepTheirOwnViews)
{
    OwnedTre other = Make("BANDSA", Data());
    EXPECT_TRUE(*other == *m_tre);
    (void)other->GetTREKeyValuePairsMap();
    *other = *Make("BANDSA", Data().replace(0, 7, "09.0000"));
    EXPECT_TRUE(*other != *m_tre);
    EXPECT_EQ("09.0000", other->GetTREKeyValuePairsMap()->at("ROW_SPACING"));
    EXPECT_STREQ("09.0000", other->GetTREField("ROW_SPACING"));
}

TEST_F(TypedTreTest, WriteGivesBackTheTextAsReceived)
{
    Text text;
    ASSERT_TRUE(m_tre->Write(text.Out()));
    EXPECT_EQ(Tre("BANDSA", Data()), text.Str());
    EXPECT_FALSE(m_tre->Write(nullptr));
    Text generic;
    ASSERT_TRUE(Make("OFF", "abc")->Write(generic.Out()));
    EXPECT_EQ("OFF   00003abc", generic.Str());
}

TEST(GenericTreTest, HasItsBytesAndNoFields)
{
    const OwnedTre tre = Make("NOBODY", "a\0b"s);
    std::size_t length = 0;
    const char* const bytes = tre->GetRawTREDataString(length);
    EXPECT_EQ("a\0b"s, std::string(bytes, length));
    EXPECT_TRUE(tre->IsGenericTRE());
    EXPECT_STREQ("UNKNOWN", tre->GetTREName());
    EXPECT_STREQ("UNKNOWN", tre->GetTRERegisterGroup());
    EXPECT_STREQ("Unknown TRE.", tre->GetTREDescription());
    EXPECT_EQ(-1, tre->GetUniqueExtensionTypeID());
    EXPECT_EQ(SupportedTreFactory::UNKNOWN, tre->GetSupportedTREFactoryCode());
    EXPECT_EQ(nullptr, tre->GetBinaryFieldList());
    EXPECT_EQ(nullptr, tre->GetAllTreMetadata());
    EXPECT_EQ(nullptr, tre->GetTREKeyValuePairsMap());
    EXPECT_TRUE(tre->GetAllTreFields()->empty());
    EXPECT_FALSE(tre->ContainsBinaryFields());
    std::string errors;
    EXPECT_EQ(0, tre->ValidateFieldValues(errors));
    EXPECT_STREQ("CE", TRE::GetTRETypeString(TRE::TRE_TYPE_CONTROLLED_EXTENSION));
    EXPECT_STREQ("RE", TRE::GetTRETypeString(TRE::TRE_TYPE_REGISTERED_EXTENSION));
    EXPECT_STREQ("UNKNOWN", TRE::GetTRETypeString(TRE::Type{2}));
}

TEST(GenericTreTest, OfAKnownTagHasItsNameAndCode)
{
    const OwnedTre tre = Make("OFFSET", "short");
    ASSERT_TRUE(tre->IsGenericTRE());
    EXPECT_STREQ("Image Offset", tre->GetTREName());
    EXPECT_EQ(68, tre->GetUniqueExtensionTypeID());
    EXPECT_EQ(SupportedTreFactory::UNKNOWN, tre->GetSupportedTREFactoryCode());
    EXPECT_STREQ("Unknown TRE.", tre->GetTREDescription());
}

TEST(GenericTreTest, HasNoByteOrderOfItsOwn)
{
    EXPECT_EQ(0, OpenTre().GetBinaryDataByteOrder());
}

TEST(GenericTreTest, NeedsATag)
{
    EXPECT_THAT(RefusalOf([] { OpenTre("SEVENCH"); }), HasSubstr("\"SEVENCH\" has more than 6 characters."));
    EXPECT_EQ("ERROR: Invalid/NULL input argument(s).", RefusalOf([] { OpenTre("   "); }));
    OpenTre one("ONE", "1");
    OpenTre two("TWO", "22");
    one.Swap(two);
    EXPECT_STREQ("TWO", one.GetTag());
    EXPECT_EQ(1U, two.GetLengthOfDataField());
    EXPECT_TRUE(one.GetNITFTreFieldValueDataTypesMap()->empty());
}

TEST(TreXmlTest, TypedTreIsOneElementPerField)
{
    Text xml;
    ASSERT_TRUE(Make("OFFSET", "00000012 0000034")->Serialize(xml.Out(), "U", 3));
    EXPECT_EQ(
        "      <TRE index=\"3\" type=\"CE\" tag=\"OFFSET\" name=\"Image Offset\" length=\"16\" classification=\"U\" "
        "registerGroup=\"MISC (miscellaneous)\">\n"
        "        <TREField field=\"1\" name=\"LINE\" size=\"8\" type=\"R\" editable=\"T\">00000012</TREField>\n"
        "        <TREField field=\"2\" name=\"SAMPLE\" size=\"8\" type=\"R\" editable=\"T\">0000034</TREField>\n"
        "      </TRE>\n",
        xml.Str());
}

TEST(TreXmlTest, GenericTreIsItsDataAsTextOrInBase64)
{
    Text text;
    ASSERT_TRUE(Make("NOBODY", "a<b & c>")->Serialize(text.Out(), nullptr, 0));
    EXPECT_EQ(
        "      <TRE index=\"0\" type=\"RE\" tag=\"NOBODY\" name=\"UNKNOWN\" length=\"8\" classification=\"UNKNOWN\" "
        "registerGroup=\"UNKNOWN\">\n"
        "        <DATA base64Encoded=\"F\" editable=\"F\">a&lt;b &amp; c&gt;</DATA>\n"
        "      </TRE>\n",
        text.Str());
    Text binary;
    ASSERT_TRUE(Make("NOBODY", "\0\xFF\x10"s)->SerializeTREData(binary.Out(), true, "S", 7));
    EXPECT_THAT(binary.Str(), StartsWith("      <TRE index=\"7\" type=\"RE\" tag=\"NOBODY\""));
    EXPECT_THAT(binary.Str(), HasSubstr(" classification=\"S\" "));
    EXPECT_THAT(binary.Str(),
                HasSubstr("        <DATA base64Encoded=\"T\" editable=\"F\">AP8Q</DATA>\n      </TRE>\n"));
    Text whole;
    ASSERT_TRUE(Make("OFFSET", "0000001200000034")->SerializeTREData(whole.Out(), false, nullptr, 0));
    EXPECT_THAT(whole.Str(), HasSubstr("<DATA base64Encoded=\"F\" editable=\"F\">0000001200000034</DATA>"));
}

TEST(TreXmlTest, StoreIsWrittenInOrderOfAppearance)
{
    TREStore store;
    store.Add(Make("ZULU", "1").release());
    store.Add(Make("ALPHA", "2").release());
    Text xml;
    ASSERT_TRUE(TRE::SerializeTREs(xml.Out(), store, "S"));
    const std::string text = xml.Str();
    EXPECT_LT(text.find("index=\"0\" type=\"RE\" tag=\"ZULU\""), text.find("index=\"1\" type=\"RE\" tag=\"ALPHA\""));
    EXPECT_FALSE(TRE::SerializeTREs(nullptr, store, "S"));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

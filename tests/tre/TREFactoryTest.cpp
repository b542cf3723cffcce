#include "foundation/CSMExceptions.h"
#include "tests/foundation/OwnedText.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/Refusal.h"
#include "tre/TREFactory.h"
#include "tre/TREStore.h"
#include "tre/detail/TreArea.h"

#include <memory>
#include <stdexcept>
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
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Util::CSMCnst;

struct Destroyer
{
    void operator()(TRE* aTre) const { TREFactory::Destroy(&aTre); }
};
using OwnedTre = std::unique_ptr<TRE, Destroyer>;

const std::string OFFSET_DATA = "0000001200000034";

OwnedTre Make(const char* aTag, const std::string& aData, bool aSpecificOnly = false, bool aValidate = false,
              std::string* aErrors = nullptr)
{
    TRE* tre = nullptr;
    Text errors;
    TREFactory::Create(aTag, aData.c_str(), TRE::TRE_TYPE_REGISTERED_EXTENSION, &tre, aSpecificOnly, aValidate,
                       errors.Out(), aData.size());
    if (aErrors != nullptr) {
        *aErrors = errors.Str();
    }
    return OwnedTre(tre);
}

/// Both forms of cutting an area; they must agree as long as no NUL byte stands in it.
class ExtractTREsTest : public testing::Test
{
protected:
    void Extract(const std::string& aArea, bool aSpecificOnly = false, bool aValidate = false)
    {
        m_store.Clear();
        m_findings.Clear();
        m_count = Detail::ExtractTREs(aArea, m_store, {aSpecificOnly, aValidate}, CSMCnst::BYTE_ORDER_BIG_ENDIAN,
                                      {nullptr, 0, TRE::TRE_TYPE_CONTROLLED_EXTENSION}, m_findings);
        EXPECT_EQ(0U, m_findings.Errors());
        m_warnings = m_findings.Blocks(false);
        ASSERT_EQ(static_cast<int>(m_store.Size()), m_count);
        if (aArea.find('\0') != std::string::npos) {
            return;
        }
        TREStore store;
        Text warnings;
        EXPECT_EQ(m_count, TREFactory::ExtractTREs(aArea.c_str(), store, aSpecificOnly, aValidate, warnings.Out()));
        EXPECT_EQ(m_warnings, warnings.Str());
    }

    std::vector<std::string> Tags() const
    {
        std::vector<std::string> tags;
        for (const TRE* const tre : m_store.InOrder()) {
            tags.emplace_back(tre->GetTag());
        }
        return tags;
    }

    TREStore m_store;
    Detail::FindingList m_findings;
    std::string m_warnings;
    int m_count = 0;
};

TEST_F(ExtractTREsTest, FewerThanElevenBytesAreNoTreAndNoFault)
{
    for (const char* const area : {"", "ACFTB", "ACFTB 0001"}) {
        Extract(area);
        EXPECT_EQ(0, m_count) << area;
        EXPECT_EQ("", m_warnings) << area;
    }
    Extract(Tre("UNKN", "ABCDE") + "xyz");
    EXPECT_THAT(Tags(), ElementsAre("UNKN"));
    EXPECT_EQ("", m_warnings);
}

TEST_F(ExtractTREsTest, LengthThatIsNoneEndsTheAreaWithOneWarning)
{
    constexpr const char* TEXT = "WARN: The following TRE data stream contains errors, it has been ignored:\n\n";
    for (const char* const bad : {"FIRST 00000ABCDE", "FIRST ABCDEABCDE", "FIRST -0005ABCDE", "FIRST      ABCDE",
                                  "      00005ABCDE", "FIRST 00 05ABCDE"}) {
        const std::string area = Tre("GOOD", "x") + bad + Tre("LATER", "y");
        Extract(area);
        EXPECT_THAT(Tags(), ElementsAre("GOOD")) << bad;
        EXPECT_EQ(TEXT + area, m_warnings);
    }
}

TEST_F(ExtractTREsTest, LengthBeyondTheAreaEndsItWithOneWarning)
{
    Extract(Tre("GOOD", "x") + "LARGE 00006ABCDE");
    EXPECT_THAT(Tags(), ElementsAre("GOOD"));
    EXPECT_EQ(
        "WARN: Failed to extract the CEDATA/REDATA field of TRE \"LARGE\". The following TRE data stream has been "
        "ignored:\n\nLARGE 00006ABCDE",
        m_warnings);
    Extract("LARGE 99999");
    EXPECT_EQ(0, m_count);
    EXPECT_THAT(m_warnings, StartsWith("WARN: Failed to extract"));
}

TEST_F(ExtractTREsTest, PaddingOfAnAreaIsOneWarningAtMost)
{
    for (const std::string& area : {std::string(5000, ' '), std::string(5000, '\0')}) {
        Extract(area);
        EXPECT_EQ(0, m_count);
        EXPECT_EQ(m_warnings.find("WARN: "), m_warnings.rfind("WARN: "));
        EXPECT_LT(m_warnings.size(), 4096U);
    }
}

TEST_F(ExtractTREsTest, TresOfOneTagKeepTheirOrderUnderOneKey)
{
    Extract(Tre("ZULU", "1") + Tre("OFF   ", "a") + Tre("ZULU", "22") + Tre("ALPHA", "b") + Tre("ZULU", "333"));
    EXPECT_THAT(Tags(), ElementsAre("ZULU", "OFF", "ZULU", "ALPHA", "ZULU"));
    EXPECT_EQ(3U, m_store.ByTag().size());
    EXPECT_STREQ("ALPHA", m_store.ByTag().begin()->first);
    const std::vector<TRE*>* const tres = m_store.Find(" ZULU ");
    ASSERT_NE(nullptr, tres);
    ASSERT_EQ(3U, tres->size());
    for (std::size_t i = 0; i != 3; ++i) {
        EXPECT_EQ(i + 1, (*tres)[i]->GetLengthOfDataField());
    }
    EXPECT_NE(nullptr, m_store.Find("OFF"));
    EXPECT_EQ(nullptr, m_store.Find("ZUL"));
}

TEST_F(ExtractTREsTest, NulEndsATextButIsDataInAnAreaOfKnownLength)
{
    const std::string rpf =
        Tre("RPFHDR", "\0\0\x30"s + "0000M033.GN3" + "\0"s + "MIL-STD-2411A  " + "19951006" + "UUS  " + "\0\0\1\xC2"s);
    Extract(rpf + Tre("AFTER", "\0\0\0"s));
    ASSERT_THAT(Tags(), ElementsAre("RPFHDR", "AFTER"));
    EXPECT_EQ("", m_warnings);
    const TRE* const tre = m_store.InOrder().front();
    EXPECT_FALSE(tre->IsGenericTRE());
    unsigned long place = 0;
    EXPECT_TRUE(tre->GetFieldAsUnsignedLong("LOCSEC", place));
    EXPECT_EQ(450U, place);
    EXPECT_EQ(3U, m_store.InOrder()[1]->GetLengthOfDataField());

    TREStore store;
    Text warnings;
    EXPECT_EQ(0, TREFactory::ExtractTREs(rpf.c_str(), store, false, false, warnings.Out()));
    EXPECT_THAT(warnings.Str(), StartsWith("WARN: Failed to extract the CEDATA/REDATA field of TRE \"RPFHDR\"."));
}

TEST_F(ExtractTREsTest, ATreThatDoesNotFitItsLayoutIsReportedAndKeptGeneric)
{
    Extract(Tre("OFFSET", "short") + Tre("OFFSET", OFFSET_DATA));
    ASSERT_EQ(2, m_count);
    EXPECT_TRUE(m_store.InOrder()[0]->IsGenericTRE());
    EXPECT_FALSE(m_store.InOrder()[1]->IsGenericTRE());
    EXPECT_EQ(
        "ERROR: Exception \"invalid_argument\" caught for TRE \"OFFSET\". Input CEDATA/REDATA maybe invalid.\n"
        "Error message = \"ERROR: Expected length of the CEDATA/REDATA of TRE \"OFFSET\" is 16 byte(s). Input "
        "CEDATA/REDATA length = 5 byte(s).\"",
        m_warnings);
}

TEST_F(ExtractTREsTest, SpecificOnlyLeavesOutWhatHasNoTypedForm)
{
    Extract(Tre("NOBODY", "x") + Tre("OFFSET", "short") + Tre("OFFSET", OFFSET_DATA), true);
    EXPECT_EQ(1, m_count);
    EXPECT_EQ(
        "WARN: An UnsupportedTREException exception was caught while attempting to create TRE \"NOBODY\".\nError "
        "message = \"ERROR: Specifc TRE \"NOBODY\" currently not supported by the Ormo CSM System.\"\n\n"
        "WARN: An UnsupportedTREException exception was caught while attempting to create TRE \"OFFSET\".\nError "
        "message = \"ERROR: Specifc TRE \"OFFSET\" currently not supported by the Ormo CSM System.\"\n\n"
        "ERROR: Exception \"invalid_argument\" caught for TRE \"OFFSET\". Input CEDATA/REDATA maybe invalid.\n"
        "Error message = \"ERROR: Expected length of the CEDATA/REDATA of TRE \"OFFSET\" is 16 byte(s). Input "
        "CEDATA/REDATA length = 5 byte(s).\"",
        m_warnings);
    EXPECT_EQ(2U, m_findings.Count());
}

TEST_F(ExtractTREsTest, ValidationIsAskedForApart)
{
    const std::string area = Tre("OFFSET", "0000001X00000034");
    Extract(area);
    EXPECT_FALSE(m_store.InOrder().front()->IsGenericTRE());
    EXPECT_EQ("", m_warnings);
    Extract(area, false, true);
    EXPECT_TRUE(m_store.InOrder().front()->IsGenericTRE());
    EXPECT_THAT(
        m_warnings,
        AllOf(HasSubstr("ERROR: Failed to initialize a specific TRE object with the input data.\nError message "
                        "= \"ERROR: The field value(s) of 1 field(s) is/are invalid.\""),
              HasSubstr("ERROR: The value of required field is invalid for OFFSET::LINE"), Not(HasSubstr("SAMPLE"))));
}

TEST_F(ExtractTREsTest, UnknownTagsTakeTheTypeOfTheirAreaAndKnownOnesTheirOwn)
{
    Extract(Tre("NOBODY", "x") + Tre("ASTORA", "x") + Tre("OFFSET", OFFSET_DATA));
    ASSERT_EQ(3, m_count);
    EXPECT_EQ(TRE::TRE_TYPE_CONTROLLED_EXTENSION, m_store.InOrder()[0]->GetTREType());
    EXPECT_EQ(TRE::TRE_TYPE_REGISTERED_EXTENSION, m_store.InOrder()[1]->GetTREType());
    EXPECT_EQ(TRE::TRE_TYPE_CONTROLLED_EXTENSION, m_store.InOrder()[2]->GetTREType());

    TREStore store;
    TREFactory::ExtractTREs(Tre("NOBODY", "x").c_str(), store, false, false, nullptr);
    EXPECT_EQ(TRE::TRE_TYPE_UNKNOWN, store.InOrder().front()->GetTREType());
}

TEST_F(ExtractTREsTest, ManyFaultsDoNotFloodTheWarnings)
{
    std::string area;
    for (int i = 0; i != 5000; ++i) {
        area += Tre("OFFSET", "short");
    }
    Extract(area);
    EXPECT_EQ(5000, m_count);
    EXPECT_EQ(5000U, m_findings.Count());
    EXPECT_THAT(m_warnings, HasSubstr(" further messages are left out."));
    EXPECT_LT(m_warnings.size(), 300000U);
}

TEST_F(ExtractTREsTest, CountsThatTheDataCannotHoldAreRefusedBeforeTheLoop)
{
    Extract(Tre("BANDSA", "01.0000f01.0000f100.009999"));
    ASSERT_EQ(1, m_count);
    EXPECT_TRUE(m_store.InOrder().front()->IsGenericTRE());
    EXPECT_THAT(m_warnings,
                AllOf(HasSubstr("ERROR: Failed to initialize a specific TRE object with the input data."),
                      HasSubstr("for TRE \"BANDSA\" [expected = "), HasSubstr("extracted = 6]"),
                      HasSubstr("Field \"COUNT\" = \"9999\" at data offset 22: promises 459954 byte(s), 0 left")));
}

TEST(TREFactoryTest, NullAreaIsRefusedAndTheTextHandedOut)
{
    TREStore store;
    Text errors;
    constexpr const char* TEXT = "ERROR: Invalid/NULL input TRE data stream.";
    EXPECT_THROW(TREFactory::ExtractTREs(nullptr, store, false, false, errors.Out()), std::invalid_argument);
    EXPECT_EQ(TEXT, errors.Str());
    EXPECT_EQ(TEXT, RefusalOf([&store] { TREFactory::ExtractTREs(nullptr, store, false, false, nullptr); }));
    Text none;
    EXPECT_EQ(1, TREFactory::ExtractTREs("NOBODY00001x", store, false, false, none.Out()));
    EXPECT_TRUE(none.IsNull());
}

TEST(TREFactoryTest, CreateRefusesWhatIsMissing)
{
    TRE* tre = nullptr;
    const auto create = [&tre](const char* aTag, const char* aData, std::size_t aLength, bool aOut) {
        return RefusalOf([&] {
            TREFactory::Create(aTag, aData, TRE::TRE_TYPE_UNKNOWN, aOut ? &tre : nullptr, false, false, nullptr,
                               aLength);
        });
    };
    EXPECT_EQ("ERROR: Invalid/NULL input argument(s).", create("TAG", "data", 4, false));
    EXPECT_EQ("ERROR: Invalid/NULL input argument(s).", create("TAG", nullptr, 4, true));
    EXPECT_EQ("ERROR: Empty/NULL input CEDATA/REDATA string.", create("TAG", "", 0, true));
    EXPECT_EQ("ERROR: Input CETAG/RETAG cannot be NULL or an empty string.", create(" ", "data", 4, true));
    EXPECT_EQ("ERROR: Input CETAG/RETAG cannot be NULL or an empty string.", create(nullptr, "data", 4, true));
    EXPECT_EQ(nullptr, tre);
    EXPECT_EQ("", create(" TAG ", "text up to NUL", 0, true));
    ASSERT_NE(nullptr, tre);
    EXPECT_STREQ("TAG", tre->GetTag());
    EXPECT_EQ(14U, tre->GetLengthOfDataField());
    TREFactory::Destroy(&tre);
    EXPECT_EQ(nullptr, tre);
    TREFactory::Destroy(&tre);
    TREFactory::Destroy(nullptr);
}

TEST(TREFactoryTest, CreateRefusesWhatNoRecordCanHold)
{
    EXPECT_THROW(Make("SEVENCH", "data"), ObjectConstructionException);
    EXPECT_THROW(Make("NOBODY", std::string(100000, 'x')), ObjectConstructionException);
    EXPECT_EQ(99999U, Make("NOBODY", std::string(99999, 'x'))->GetLengthOfDataField());
    std::string errors;
    EXPECT_THROW(Make("PIAPRD", std::string(100000, 'x'), false, false, &errors), ObjectConstructionException);
}

TEST(TREFactoryTest, OutputsAreNullWhenCreateRaises)
{
    TRE* const old = Make("NOBODY", "x").release();
    const OwnedTre owned(old);
    for (const char* const text : {"UNKNOW00001x", "no record"}) {
        TRE* tre = old;
        Text errors;
        EXPECT_ANY_THROW(TREFactory::Create(text, TRE::TRE_TYPE_UNKNOWN, &tre, true, false, errors.Out()));
        EXPECT_EQ(nullptr, tre) << text;
        EXPECT_TRUE(errors.IsNull());
    }
    TRE* tre = old;
    EXPECT_THROW(TREFactory::Create("NOBODY", nullptr, TRE::TRE_TYPE_UNKNOWN, &tre, false, false, nullptr, 4),
                 std::invalid_argument);
    EXPECT_EQ(nullptr, tre);
}

TEST(TREFactoryTest, WholeTextsAreSplitIntoTagLengthAndData)
{
    TRE* tre = nullptr;
    const auto create = [&tre](const char* aText) {
        return RefusalOf(
            [&] { TREFactory::Create(aText, TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, true, false, nullptr); });
    };
    EXPECT_EQ("", create(("  " + Tre("OFFSET", OFFSET_DATA) + "rest").c_str()));
    const OwnedTre owned(tre);
    long line = 0;
    EXPECT_TRUE(owned->GetFieldAsLong("LINE", line));
    EXPECT_EQ(12, line);
    constexpr const char* TEXT =
        "ERROR: Failed to decompose input TRE data string into its CETAG/RETAG, CEL/REL, CEDATA/REDATA components.";
    EXPECT_EQ(TEXT, create("OFFSET00016short"));
    EXPECT_EQ(TEXT, create("OFFSET"));
    EXPECT_EQ(TEXT, create(nullptr));
    EXPECT_THAT(create("NOBODY00001x"), HasSubstr("Specifc TRE \"NOBODY\""));
}

TEST(TREFactoryTest, ErrorsTellWhyATreIsNotTyped)
{
    std::string errors;
    EXPECT_TRUE(Make("OFFSET", OFFSET_DATA.substr(1), false, false, &errors)->IsGenericTRE());
    EXPECT_THAT(errors, HasSubstr("is 16 byte(s). Input CEDATA/REDATA length = 15 byte(s)."));
    EXPECT_FALSE(Make("OFFSET", OFFSET_DATA, false, true, &errors)->IsGenericTRE());
    EXPECT_EQ("", errors);
    EXPECT_TRUE(Make("RPFDES", "x", false, false, &errors)->IsGenericTRE());  // listed without a typed class
    EXPECT_EQ("", errors);
    EXPECT_THROW(Make("RPFDES", "x", true), UnsupportedTREException);
}

TEST(TREFactoryTest, ACountThatIsMissingIsNamed)
{
    for (const char* const data : {"01.0000f01.0000f100.00    ", "01.0000f01.0000f100.00"}) {
        std::string errors;
        EXPECT_TRUE(Make("BANDSA", data, false, true, &errors)->IsGenericTRE());
        EXPECT_THAT(errors, HasSubstr("\nERROR: Missing required field BANDSA::COUNT\"")) << data;
    }
}

TEST(TREFactoryTest, CopiesAreDeepAndOfTheSameClass)
{
    for (const auto& [tag, data] : {std::pair{"OFFSET", OFFSET_DATA}, std::pair{"NOBODY", "\0binary"s}}) {
        OwnedTre original = Make(tag, data);
        TRE* out = nullptr;
        ASSERT_TRUE(TREFactory::CloneTRE(*original, &out));
        const OwnedTre copy(out);
        EXPECT_TRUE(*copy == *original);
        EXPECT_EQ(original->IsGenericTRE(), copy->IsGenericTRE());
        EXPECT_EQ(original->GetUniqueExtensionTypeID(), copy->GetUniqueExtensionTypeID());
        EXPECT_EQ(original->GetSupportedTREFactoryCode(), copy->GetSupportedTREFactoryCode());
        original.reset();
        std::size_t length = 0;
        const char* const bytes = copy->GetRawTREDataString(length);
        EXPECT_EQ(data, std::string(bytes, length));
        EXPECT_FALSE(TREFactory::CloneTRE(*copy, nullptr));
    }
}

TEST(TREFactoryTest, AnAssignedTreIsCopiedAsWhatItHolds)
{
    const OwnedTre generic = Make("NOBODY", "x");
    const OwnedTre typed = Make("OFFSET", OFFSET_DATA);
    *generic = *typed;
    TRE* out = nullptr;
    ASSERT_TRUE(TREFactory::CloneTRE(*generic, &out));
    const OwnedTre copy(out);
    EXPECT_TRUE(*copy == *typed);
    long line = 0;
    EXPECT_TRUE(copy->GetFieldAsLong("LINE", line));
    EXPECT_EQ(12, line);

    *typed = *Make("NOBODY", "y");
    EXPECT_TRUE(typed->IsGenericTRE());
    ASSERT_TRUE(TREFactory::CloneTRE(*typed, &out));
    const OwnedTre second(out);
    EXPECT_STREQ("NOBODY", second->GetTag());
    EXPECT_EQ(nullptr, second->GetTREField("LINE"));
}

TEST(TREStoreTest, AllTresOfAStoreCanBeTakenOver)
{
    TREStore first;
    TREStore second;
    first.Take(second);
    EXPECT_TRUE(first.IsEmpty());
    second.Add(Make("ZULU", "1").release());
    TRE* const moved = second.InOrder().front();
    first.Take(second);
    EXPECT_TRUE(second.IsEmpty());
    ASSERT_EQ(1U, first.Size());
    EXPECT_EQ(moved, first.InOrder().front()) << "moved, not copied";
    second.Add(Make("ALPHA", "2").release());
    second.Add(Make("ZULU", "3").release());
    ASSERT_NE(nullptr, first.Find("ZULU"));
    first.Take(second);
    ASSERT_EQ(3U, first.Size());
    EXPECT_STREQ("ALPHA", first.InOrder()[1]->GetTag());
    EXPECT_EQ(2U, first.Find("ZULU")->size());
    first.Take(first);
    EXPECT_EQ(3U, first.Size());
}

TEST(TREStoreTest, TagsOfTheMapAreItsOwn)
{
    TREStore store;
    store.Add(Make("ZULU", "1").release());
    ASSERT_NE(nullptr, store.Find("ZULU"));
    *store.InOrder().front() = *Make("OTHER", "2");
    EXPECT_STREQ("ZULU", store.ByTag().begin()->first);
    store.Add(Make("ALPHA", "3").release());
    EXPECT_EQ(nullptr, store.Find("ZULU"));
    EXPECT_EQ(1U, store.Find("OTHER")->size());
}

TEST(TREStoreTest, CopiesAndMovesOwnTheirTres)
{
    TREStore store;
    EXPECT_FALSE(store.Add(nullptr));
    store.Add(Make("ZULU", "1").release());
    store.Add(Make("OFFSET", OFFSET_DATA).release());
    store.Add(Make("ZULU", "2").release());
    TREStore copy(store);
    EXPECT_TRUE(copy == store);
    copy.Add(Make("ALPHA", "3").release());
    EXPECT_TRUE(copy != store);
    TREStore moved(std::move(copy));
    EXPECT_EQ(4U, moved.Size());
    store = moved;
    EXPECT_EQ(4U, store.Size());
    EXPECT_STREQ("ZULU", store.InOrder()[2]->GetTag());
    store.Clear();
    EXPECT_TRUE(store.IsEmpty());
    EXPECT_EQ(nullptr, store.Find("ZULU"));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

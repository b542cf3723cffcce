#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportData.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::ElementsAre;
using testing::StrEq;
using Util::CSMCnst;

static_assert(std::is_abstract_v<ImageSupportData>);
static_assert(std::has_virtual_destructor_v<ImageSupportData>);

/// A format that knows its markings and nothing else.
class PlainIsd : public ImageSupportData
{
public:
    PlainIsd() = default;
    PlainIsd(const char* aFileName, const char* aImageFormat, const char* aFormatVersion)
        : ImageSupportData(aFileName, aImageFormat, aFormatVersion)
    {
    }

    using ImageSupportData::Assign;
    using ImageSupportData::ClearMessages;
    using ImageSupportData::m_classificationLevel;
    using ImageSupportData::m_errorMessage;
    using ImageSupportData::m_highestMarking;
    using ImageSupportData::m_keptText;
    using ImageSupportData::m_rigorouslyValidated;
    using ImageSupportData::m_validationErrorCount;
    using ImageSupportData::m_validationSummaryReport;
    using ImageSupportData::m_warningMessage;
    using ImageSupportData::Swap;

    bool SetCurrentImageSegment(long aSegment) override
    {
        m_currentImageSegment = aSegment;
        return true;
    }

    /// Equality as the object itself tells it; both operators must agree.
    bool Equals(const ImageSupportData& aOther) const
    {
        const bool isEqual = ImageSupportData::operator==(aOther);
        EXPECT_NE(ImageSupportData::operator!=(aOther), isEqual);
        return isEqual;
    }

    std::vector<std::string> markings;
    mutable int timesCollected = 0;

protected:
    void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const override
    {
        ++timesCollected;
        aMarkings.insert(aMarkings.end(), markings.begin(), markings.end());
    }
};

class ImageSupportDataTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_path = testing::TempDir() + "ormo_isd_" + testing::UnitTest::GetInstance()->current_test_info()->name();
        std::ofstream(m_path) << "content";
    }
    void TearDown() override { std::filesystem::remove(m_path); }

    PlainIsd Make(const char* aVersion = "02.10") const { return PlainIsd(m_path.c_str(), "NITF", aVersion); }

    std::string m_path;
};

/// What the construction from these arguments says when it fails.
std::string Refusal(const char* aFileName, const char* aImageFormat)
{
    try {
        const PlainIsd isd(aFileName, aImageFormat, "02.10");
        return "constructed";
    } catch (const InitializationException& exception) {
        return std::string(exception.GetAdditionalMessage()) + " @ " + exception.GetSource();
    }
}

TEST_F(ImageSupportDataTest, ConstructionTrimsItsTextsAndNeedsAFormatAndAFile)
{
    const PlainIsd isd((" " + m_path + "\t").c_str(), " NITF ", "  ");
    EXPECT_THAT(isd.GetFileName(), StrEq(m_path));
    EXPECT_THAT(isd.GetImageFormat(), StrEq("NITF"));
    EXPECT_EQ(isd.GetFormatVersion(), nullptr);
    EXPECT_EQ(isd.GetCurrentImageSegment(), -1);
    EXPECT_EQ(isd.GetClassificationLevel(), CSMCnst::CLASS_TYPE_UNCLASSIFIED);

    const std::string source = " @ ImageSupportData::ImageSupportData";
    const std::string noFormat = "ERROR: Input image format string cannot be NULL or an empty string." + source;
    EXPECT_EQ(Refusal(m_path.c_str(), " "), noFormat);
    EXPECT_EQ(Refusal(nullptr, nullptr), noFormat);
    const std::string noFile = "ERROR: Invalid/nonexistence of input NITF file." + source;
    EXPECT_EQ(Refusal((m_path + ".absent").c_str(), "OSDE"), noFile);
    EXPECT_EQ(Refusal(testing::TempDir().c_str(), "NITF"), noFile);
    EXPECT_EQ(Refusal(nullptr, "NITF"), noFile);
}

TEST_F(ImageSupportDataTest, FieldsAreRefusedWithATextAndMessagesAreNullWhenEmpty)
{
    PlainIsd isd;
    EXPECT_EQ(isd.GetErrorMessage(), nullptr);
    EXPECT_EQ(isd.GetWarningMessage(), nullptr);
    EXPECT_THAT(isd.GetValidationSummaryReport(), StrEq(""));

    bool flag = true;
    double number = 1.5;
    long integer = 2;
    unsigned long natural = 3;
    const char* text = nullptr;
    std::size_t length = 0;
    const auto expectRefused = [&isd](bool aAnswer) {
        EXPECT_FALSE(aAnswer);
        EXPECT_THAT(isd.GetErrorMessage(), StrEq("Function not supported."));
        EXPECT_EQ(isd.GetWarningMessage(), nullptr);
        isd.ClearMessages();
        EXPECT_EQ(isd.GetErrorMessage(), nullptr);
        isd.m_warningMessage = "WARN: older";
    };
    expectRefused(isd.GetFieldAsBool("S", "F", flag));
    expectRefused(isd.GetFieldAsDouble("S", "F", number));
    expectRefused(isd.GetFieldAsLong("S", "F", integer));
    expectRefused(isd.GetFieldAsUnsignedLong("S", "F", natural));
    expectRefused(isd.GetFieldAsString("S", "F", text, length));
}

TEST_F(ImageSupportDataTest, WhatNoFormatTellsIsAnsweredSafely)
{
    PlainIsd plain;
    ImageSupportData& isd = plain;
    const tsm_ISD* sentinel = nullptr;
    const tsm_ISD** tsmIsds = &sentinel;
    std::size_t count = 7;
    EXPECT_FALSE(isd.GetAllTsmISDs(tsmIsds, count));
    EXPECT_EQ(tsmIsds, nullptr);
    EXPECT_EQ(count, 0U);

    double height = 5.0;
    EXPECT_FALSE(isd.GetImageSegmentAverageHeight(height, -1));
    EXPECT_EQ(height, 5.0);
    EXPECT_FALSE(isd.GetImageSegmentAverageHeight(height, 0));
    EXPECT_EQ(height, 0.0);

    bool a = true, b = true, c = true, d = true, e = true;
    EXPECT_FALSE(isd.GetMensurationCapabilities(a, b, c, d, e, "MODEL", 0));
    EXPECT_FALSE(a || b || c || d || e);
    a = b = c = d = e = true;
    EXPECT_FALSE(isd.GetMensurationCapabilities(a, b, c, d, e, "MODEL", "SEGMENT"));
    EXPECT_FALSE(a || b || c || d || e);

    const char* unset = "";
    const char** names = &unset;
    const char** versions = &unset;
    count = 7;
    EXPECT_TRUE(isd.GetSensorModelsOfImageSegment(names, versions, count, 0));
    EXPECT_EQ(names, nullptr);
    EXPECT_EQ(versions, nullptr);
    EXPECT_EQ(count, 0U);

    EXPECT_THAT(isd.GetFileTypeAndVersion(), StrEq("UNKNOWN"));
    EXPECT_EQ(isd.GetImageSegmentIndex("ID"), -1);
    EXPECT_EQ(isd.GetIsdRasterFormat(), SupportedISD::ISD_TYPE_UNKNOWN);
    EXPECT_TRUE(isd.IsUnityTransform(0));
    EXPECT_EQ(isd.Serialize(), nullptr);
    const char* const text = "text";
    EXPECT_EQ(isd.SerializeDataSegment(text), text);
}

TEST_F(ImageSupportDataTest, ValidationWithoutRulesFindsNothing)
{
    PlainIsd isd;
    isd.m_validationSummaryReport = "older";
    isd.m_validationErrorCount = 4;
    unsigned long errors = 8;
    unsigned long warnings = 9;
    EXPECT_TRUE(isd.RigorousValidation(errors, warnings));
    EXPECT_EQ(errors + warnings + isd.m_validationErrorCount, 0U);
    EXPECT_THAT(isd.GetValidationSummaryReport(), StrEq(""));
    EXPECT_TRUE(isd.m_rigorouslyValidated);
}

TEST_F(ImageSupportDataTest, MarkingsAreDistinctInOrderAndCollectedOnce)
{
    PlainIsd isd;
    std::size_t count = 7;
    EXPECT_EQ(isd.GetAllSecurityClassificationMarkings(count), nullptr);
    EXPECT_EQ(count, 0U);
    EXPECT_THAT(isd.GetHighestSecurityClassificationMarking(), StrEq("UNKNOWN"));

    PlainIsd marked;
    marked.markings = {"U", "", "S", "U", "C"};
    EXPECT_THAT(marked.GetAllSecurityClassificationMarkings(), ElementsAre(StrEq("U"), StrEq("S"), StrEq("C")));
    const char** const array = marked.GetAllSecurityClassificationMarkings(count);
    ASSERT_EQ(count, 3U);
    EXPECT_THAT(array[2], StrEq("C"));
    EXPECT_EQ(marked.timesCollected, 1);
}

TEST_F(ImageSupportDataTest, EqualityIsThatOfFileFormatClassificationAndSegment)
{
    const PlainIsd first = Make();
    EXPECT_TRUE(first.Equals(Make()));
    EXPECT_FALSE(first.Equals(Make("02.00")));
    EXPECT_FALSE(first.Equals(Make(nullptr)));
    EXPECT_TRUE(Make(nullptr).Equals(Make(nullptr)));
    EXPECT_FALSE(first.Equals(PlainIsd(m_path.c_str(), "OSDE", "02.10")));

    PlainIsd other = Make();
    other.m_errorMessage = "ERROR: x";
    other.m_validationErrorCount = 3;
    other.markings = {"S"};
    EXPECT_TRUE(first.Equals(other));
    other.SetCurrentImageSegment(1);
    EXPECT_FALSE(first.Equals(other));
    other = Make();
    other.m_highestMarking = "S";
    EXPECT_FALSE(first.Equals(other));
    other = Make();
    other.m_classificationLevel = CSMCnst::CLASS_TYPE_SECRET;
    EXPECT_FALSE(first.Equals(other));

    // An object without a file is equal to itself only.
    const PlainIsd empty;
    EXPECT_TRUE(empty.Equals(empty));
    EXPECT_FALSE(empty.Equals(PlainIsd()));
}

TEST_F(ImageSupportDataTest, AssignmentAndCopyTakeOverAllButTheMarkingList)
{
    PlainIsd source = Make();
    source.SetCurrentImageSegment(2);
    source.m_classificationLevel = CSMCnst::CLASS_TYPE_SCI;
    source.m_highestMarking = "T";
    source.m_warningMessage = "WARN: w";
    source.m_validationSummaryReport = "report";
    source.m_rigorouslyValidated = true;
    source.m_keptText = "kept";

    PlainIsd target;
    target.m_errorMessage = "ERROR: of the target";
    target.markings = {"U"};
    EXPECT_THAT(target.GetAllSecurityClassificationMarkings(), ElementsAre(StrEq("U")));
    target.markings = {"T"};
    target.Assign(source);
    EXPECT_TRUE(target.Equals(source));
    EXPECT_THAT(target.GetWarningMessage(), StrEq("WARN: w"));
    EXPECT_THAT(target.GetErrorMessage(), StrEq("ERROR: of the target")) << "the source has none to replace it with";
    EXPECT_THAT(target.GetValidationSummaryReport(), StrEq("report"));
    EXPECT_THAT(target.m_keptText, StrEq("kept"));
    EXPECT_TRUE(target.m_rigorouslyValidated);
    EXPECT_THAT(target.GetAllSecurityClassificationMarkings(), ElementsAre(StrEq("T"))) << "collected anew";

    target.Assign(target);
    EXPECT_TRUE(target.Equals(source));

    const PlainIsd copy(source);
    EXPECT_TRUE(copy.Equals(source));
    EXPECT_EQ(copy.GetErrorMessage(), nullptr);
    EXPECT_NE(copy.GetFileName(), source.GetFileName()) << "the copy owns its texts";

    target.Assign(PlainIsd());
    EXPECT_EQ(target.GetFileName(), nullptr);
    EXPECT_EQ(target.GetCurrentImageSegment(), -1);
    EXPECT_EQ(target.GetClassificationLevel(), CSMCnst::CLASS_TYPE_UNCLASSIFIED);
}

TEST_F(ImageSupportDataTest, SwapExchangesContentAndCollectsMarkingsAnew)
{
    PlainIsd first = Make("02.10");
    PlainIsd second = Make("02.00");
    first.SetCurrentImageSegment(1);
    first.m_errorMessage = "ERROR: first";
    first.m_validationErrorCount = 5;
    first.m_rigorouslyValidated = true;
    first.GetAllSecurityClassificationMarkings();
    second.GetAllSecurityClassificationMarkings();
    first.markings = {"S"};
    second.markings = {"C"};

    first.Swap(first, second);
    EXPECT_THAT(first.GetFormatVersion(), StrEq("02.00"));
    EXPECT_THAT(second.GetFormatVersion(), StrEq("02.10"));
    EXPECT_EQ(first.GetCurrentImageSegment(), -1);
    EXPECT_EQ(second.GetCurrentImageSegment(), 1);
    EXPECT_EQ(first.GetErrorMessage(), nullptr);
    EXPECT_THAT(second.GetErrorMessage(), StrEq("ERROR: first"));
    EXPECT_EQ(second.m_validationErrorCount, 5U);
    EXPECT_TRUE(second.m_rigorouslyValidated);
    EXPECT_THAT(first.GetAllSecurityClassificationMarkings(), ElementsAre(StrEq("S")));
    EXPECT_THAT(second.GetAllSecurityClassificationMarkings(), ElementsAre(StrEq("C")));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

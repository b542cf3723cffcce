#include "foundation/PropertyKey.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/PropertyCatalogue.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/SourceDir.h"
#include "tests/support/TempFile.h"
#include "tre/NITFMetadataHelper.h"
#include "tre/TRECatalogue.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

/// A TRE of a known layout whose named fields have these values, all others blanks or zeros.
std::string Filled(const char* aTag, const std::vector<std::pair<std::string, std::string>>& aValues)
{
    std::string data;
    for (const TreDetailedInfo& field : TRECatalogue::GetFields(aTag)) {
        const auto value = std::find_if(aValues.begin(), aValues.end(),
                                        [&field](const auto& aValue) { return aValue.first == field.fieldName; });
        std::string text = value == aValues.end() ? std::string(field.width, '0') : value->second;
        text.resize(field.width, ' ');
        data += text;
    }
    return Tre(aTag, data);
}

class PropertiesTest : public testing::Test
{
protected:
    ~PropertiesTest() override { ImageSupportDataFactory::Destroy(&m_isd); }

    const ImageSupportDataNITF& Open(const NitfBuilder& aBuilder)
    {
        ImageSupportDataFactory::Destroy(&m_isd);
        m_bytes = aBuilder.Bytes();
        ImageSupportDataFactory::CreateFromMemory(m_bytes.data(), m_bytes.size(), false, "made.ntf", &m_isd, true,
                                                  false);
        const auto& isd = dynamic_cast<const ImageSupportDataNITF&>(*m_isd);
        m_helper.Set(&isd);
        return isd;
    }
    /// What the file answers; "(none)" when it does not.
    std::string Answer(const char* aKey, std::size_t aImage = 0) const
    {
        const char* const value = dynamic_cast<const ImageSupportDataNITF&>(*m_isd).GetOrmoMetadata(aKey, aImage);
        return value == nullptr ? "(none)" : value;
    }
    std::string Helped(const char* aKey, unsigned aImage = 0)
    {
        const char* value = "before";
        std::size_t length = 9;
        const bool answered = m_helper.GetPropertyAsString(aKey, value, length, aImage);
        EXPECT_EQ(answered, value != nullptr);
        EXPECT_TRUE(answered || length == 0);
        return answered ? std::string(value, length) : "(none)";
    }

    std::string m_bytes;
    ImageSupportData* m_isd = nullptr;
    NITFMetadataHelper m_helper;
};

std::string ProductId(const char* aId)
{
    return Filled("CSDIDA", {{"PRODUCT_ID", aId}, {"PLATFORM CODE", "QB"}, {"SENSOR_ID", "AA"}});
}

TEST_F(PropertiesTest, ProductIdentifiersAreExplainedByTheirTwoCharacters)
{
    const std::pair<const char*, const char*> cases[] = {{"G2", "G2 (geo-referenced multispectral)"},
                                                         {"X9", "X9 (unknown process applied product)"},
                                                         {"P1", "P1 (radiometrically corrected panchromatic)"},
                                                         {"p3", "p3 (radiometrically corrected pan-sharpened)"},
                                                         {"r1", "r1 (orthorectified panchromatic)"},
                                                         {"g ", "g  (geo-referenced product)"}};
    for (const auto& [id, text] : cases) {
        NitfBuilder builder;
        builder.File().Area("UDHD", ProductId(id));
        builder.AddImage();
        Open(builder);
        EXPECT_EQ(Helped(PropertyKey::PRODUCT_ID), text);
        EXPECT_EQ(Answer(PropertyKey::PRODUCT_ID), text);
        EXPECT_EQ(Helped(PropertyKey::PLATFORM_IDENTIFICATION), "QB");
        EXPECT_EQ(Helped(PropertyKey::SENSOR_ID), "AA");
    }
    NitfBuilder without;
    without.AddImage().Area("IXSHD", ProductId("P1"));  // an image TRE is no file TRE
    Open(without);
    EXPECT_EQ(Helped(PropertyKey::PRODUCT_ID), "(none)");
    EXPECT_EQ(Helped(PropertyKey::SENSOR_ID), "(none)");
}

TEST_F(PropertiesTest, AnglesComeFromCsexraFirstAndFromUse00aWhereItHasNone)
{
    const std::string use00a = Filled("USE00A", {{"ANGLE_TO_NORTH", "012"}, {"SUN_EL", "+31.5"}, {"SUN_AZ", "142.5"}});
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", use00a);
    builder.AddImage().Area("IXSHD", use00a + Filled("CSEXRA", {{"ANGLE_TO_NORTH", "-------"},
                                                                {"SUN_ELEVATION", "+45.250"},
                                                                {"SUN_AZIMUTH", "200.125"},
                                                                {"SENSOR", "PAN"},
                                                                {"CIRCL_ERR", "012"},
                                                                {"LINEAR_ERR", "034"}}));
    builder.AddImage();
    Open(builder);
    EXPECT_EQ(Helped(PropertyKey::SUN_ELEVATION_ANGLE), "+31.5");
    EXPECT_EQ(Helped(PropertyKey::SUN_AZIMUTH_ANGLE), "142.5");
    EXPECT_EQ(Helped(PropertyKey::SUN_ELEVATION_ANGLE, 1), "+45.250");
    EXPECT_EQ(Helped(PropertyKey::ANGLE_TO_NORTH, 1), "012");
    EXPECT_EQ(Helped(PropertyKey::SENSOR, 1), "PAN   ");
    EXPECT_EQ(Answer(PropertyKey::SENSOR, 1), "PAN");
    EXPECT_EQ(Answer(PropertyKey::CIRCULAR_ERROR, 1), "012");
    EXPECT_EQ(Answer(PropertyKey::LINEAR_ERROR, 1), "034");
    double azimuth = 0.0;
    double elevation = 0.0;
    double north = 0.0;
    EXPECT_TRUE(m_helper.GetSunAzimuthAndElevationAngles(azimuth, elevation, 1));
    EXPECT_EQ(azimuth, 200.125);
    EXPECT_EQ(elevation, 45.25);
    EXPECT_TRUE(m_helper.GetAngleToNorth(north, 1));
    EXPECT_EQ(north, 12.0);
    for (const unsigned image : {2U, 3U, 4000000000U}) {
        EXPECT_FALSE(m_helper.GetAngleToNorth(north, image));
        EXPECT_EQ(north, 999.9);
        EXPECT_FALSE(m_helper.GetSunAzimuthAndElevationAngles(azimuth, elevation, image));
        EXPECT_EQ(azimuth, 999.9);
        EXPECT_EQ(elevation, 999.9);
        const char* text = "before";
        std::size_t length = 1;
        EXPECT_FALSE(m_helper.GetStringFieldAngleToNorth(text, length, image));
        EXPECT_EQ(text, nullptr);
        EXPECT_EQ(Helped(PropertyKey::SUN_AZIMUTH_ANGLE, image), "(none)");
    }
}

TEST_F(PropertiesTest, ValuesThatMeanNotKnownLeaveTheAnswerToTheNextSource)
{
    NitfBuilder builder;
    builder.AddImage()
        .Set("IDATIM", "--------------")
        .Area("IXSHD", Filled("USE00A", {{"SUN_EL", "999.9"}, {"SUN_AZ", "999.9"}}) +
                           Filled("EXOPTA", {{"SUN_EL", "+10.0"}, {"SUN_AZ", "999.9"}}) +
                           Filled("AIMIDB", {{"ACQUISITION_DATE", "20010203040506"}}) +
                           Filled("PIAIMC", {{"CLOUDCVR", "999"}, {"SENSNAME", "EYE"}, {"SENSMODE", "SPOT"}}));
    builder.File().Area("UDHD", Filled("PIAIMB", {{"CLOUDCVR", "007"}}));
    const ImageSupportDataNITF& isd = Open(builder);
    EXPECT_EQ(Answer(PropertyKey::SUN_ELEVATION_ANGLE), "+10.0");
    EXPECT_EQ(Answer(PropertyKey::SUN_AZIMUTH_ANGLE), "(none)");
    EXPECT_EQ(Answer(PropertyKey::ACQUISITION_DATE), "20010203040506");
    EXPECT_EQ(Answer(PropertyKey::PERCENT_CLOUD_COVER), "007");
    EXPECT_EQ(Answer(PropertyKey::SENSOR_NAME), "EYE");
    std::string value;
    std::string source;
    EXPECT_TRUE(isd.FindOrmoMetadata(PropertyKey::SENSOR_MODE, 0, value, source));
    EXPECT_EQ(source, "any TRE PIAIMC field SENSMODE");
    // The helper answers with what is stored.
    EXPECT_EQ(Helped(PropertyKey::ACQUISITION_DATE), "--------------");
    EXPECT_EQ(Helped(PropertyKey::PERCENT_CLOUD_COVER), "999");
}

TEST_F(PropertiesTest, HeadersAnswerInBothVersions)
{
    NitfBuilder builder(Format::Nsif10);
    builder.File().Set("ONAME", "Somebody").Set("OPHONE", "0123").Set("OSTAID", "Station").Set("FSCLAS", "C");
    builder.AddImage().Set("IID1", "IMAGE1").Set("IID2", "of a bridge").Set("ICAT", "VIS");
    Open(builder);
    EXPECT_EQ(Answer(PropertyKey::ONAME), "Somebody");
    EXPECT_EQ(Answer(PropertyKey::OPHONE, 77), "0123");  // known of the file, whatever the image
    EXPECT_EQ(Answer(PropertyKey::OSTAID), "Station");
    EXPECT_EQ(Answer(PropertyKey::NITF_CLASSIFICATION), "C");
    EXPECT_EQ(Answer(PropertyKey::NITF_VERSION), "NSIF01.00");
    EXPECT_EQ(Answer(PropertyKey::IMAGE_FILE_NAME), "made.ntf");
    EXPECT_EQ(Answer(PropertyKey::IMAGE_IDENTIFIER), "IMAGE1 of a bridge");
    EXPECT_EQ(Helped(PropertyKey::IMAGE_IDENTIFIER), "IMAGE1 of a bridge");
    EXPECT_EQ(Answer(PropertyKey::IMAGE_IDENTIFIER, 1), "(none)");
    EXPECT_EQ(Answer(PropertyKey::IMAGE_CATEGORY), "VIS");
    EXPECT_EQ(Helped(PropertyKey::IMAGE_CATEGORY), "VIS     ");
    EXPECT_NE(Answer(PropertyKey::NITF_FILE_METADATA).find("Somebody"), std::string::npos);
    EXPECT_EQ(Answer(PropertyKey::METADATA_SUMMARY), m_isd->GetImageSupportDataSummary());
    EXPECT_EQ(Helped(PropertyKey::NITF_VERSION), "(none)");
    EXPECT_EQ(Helped("no.such.key"), "(none)");
    EXPECT_EQ(Helped("Image.Category"), "(none)");
    EXPECT_EQ(Helped(nullptr), "(none)");
    EXPECT_EQ(Answer(nullptr), "(none)");
    EXPECT_EQ(Answer(PropertyKey::SENSOR_MODEL_STATE), "(none)");

    NitfBuilder old(Format::Nitf20);
    old.AddImage().Set("IID", "OLD1");
    Open(old);
    EXPECT_EQ(Answer(PropertyKey::IMAGE_IDENTIFIER), "OLD1");
    EXPECT_EQ(Answer(PropertyKey::NITF_VERSION), "NITF02.00");
}

TEST_F(PropertiesTest, CloudMasksAreToldByTheSubheader)
{
    NitfBuilder builder;
    builder.AddImage().Set("IID1", "CC");
    builder.AddImage().Set("ICAT", "CLOUD");
    builder.AddImage().Set("IID1", "CCX").Set("ICAT", "VIS");
    Open(builder);
    EXPECT_TRUE(m_helper.IsCloudCoverImageSegment(0));
    EXPECT_TRUE(m_helper.IsCloudCoverImageSegment(1));
    EXPECT_FALSE(m_helper.IsCloudCoverImageSegment(2));
    EXPECT_FALSE(m_helper.IsCloudCoverImageSegment(3));
}

TEST_F(PropertiesTest, AHelperBindsToAFileOfItsOwn)
{
    NitfBuilder builder;
    builder.File().Area("UDHD", ProductId("P1")).Set("FTITLE", "Title");
    builder.AddImage().Set("IREP", "MONO");
    const TempFile file(builder.Bytes());
    NITFMetadataHelper helper;
    EXPECT_EQ(helper.SerializeNITFMetadata(), nullptr);
    EXPECT_FALSE(helper.Set("/no/such/file", true, false));
    EXPECT_FALSE(helper.Set(nullptr, true, false));
    const TempFile damaged(builder.Bytes().substr(0, 370));
    EXPECT_FALSE(helper.Set(damaged.CStr(), true, false));
    ASSERT_TRUE(helper.Set(file.CStr(), true, false));
    const char* value = nullptr;
    std::size_t length = 0;
    EXPECT_TRUE(helper.GetStringFieldNITFFileHeader("FTITLE", value, length));
    EXPECT_EQ(std::string(value, 5), "Title");
    EXPECT_EQ(length, 80U);
    EXPECT_TRUE(helper.GetStringFieldImageSegment("IREP", value, length, 0));
    EXPECT_FALSE(helper.GetStringFieldImageSegment("IREP", value, length, 1));
    EXPECT_EQ(value, nullptr);
    EXPECT_FALSE(helper.GetStringFieldNITFFileHeader(nullptr, value, length));
    const std::string text = helper.SerializeNITFMetadata();
    EXPECT_NE(text.find("image 0: image.representation = MONO\n"), std::string::npos) << text;
    EXPECT_NE(text.find("image 0: product.id = P1 (radio"), std::string::npos) << text;
    const char* product = nullptr;
    ASSERT_TRUE(helper.GetProductID(product, length));
    helper.Set(nullptr);
    EXPECT_FALSE(helper.GetProductID(product, length));
    EXPECT_EQ(product, nullptr);
}

TEST_F(PropertiesTest, OneMapHoldsWhatEachKeyAnswers)
{
    NitfBuilder builder;
    builder.AddImage().Set("IID1", "FIRST").Set("IID2", "");
    builder.AddImage().Set("IID1", "SECOND").Set("IID2", "");
    const ImageSupportDataNITF& isd = Open(builder);
    ImageSupportDataNITF::OrmoMetadata sets;
    isd.RetrieveOrmoMetadataSet1(*isd.GetImageSubheader(1), sets);
    EXPECT_EQ(sets.count(PropertyKey::METADATA_SUMMARY), 0U);
    isd.RetrieveOrmoMetadataSet2(*isd.GetImageSubheader(1), sets);
    isd.RetrieveOrmoMetadataSet3(*isd.GetImageSubheader(1), sets);
    EXPECT_EQ(sets, isd.RetrieveOrmoMetadata(1));
    EXPECT_EQ(sets[PropertyKey::IMAGE_IDENTIFIER], "SECOND");
    for (const PropertyCatalogue::Key& key : PropertyCatalogue::GetAllKeys()) {
        EXPECT_EQ(Answer(key.key.c_str(), 1), sets.count(key.key) != 0 ? sets[key.key] : "(none)") << key.key;
    }
}

TEST_F(PropertiesTest, SeveralThreadsMayAskAtOnce)
{
    NitfBuilder builder;
    builder.AddImage().Set("IID1", "SHARED").Set("IID2", "");
    const ImageSupportDataNITF& isd = Open(builder);
    std::vector<std::thread> threads;
    std::vector<const char*> answers(4);
    for (std::size_t i = 0; i != answers.size(); ++i) {
        threads.emplace_back([&isd, &answers, i] {
            isd.GetOrmoMetadata(PropertyKey::NITF_FILE_METADATA, 0);
            answers[i] = isd.GetOrmoMetadata(PropertyKey::IMAGE_IDENTIFIER, 0);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(std::count(answers.begin(), answers.end(), answers[0]), 4);
    EXPECT_STREQ(answers[0], "SHARED");
}

std::string TextOf(const std::string& aPath)
{
    std::ifstream file(aPath);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(PropertyCatalogueTest, EveryKeyHasARowWhoseSourcesExist)
{
    const std::vector<PropertyCatalogue::Key> keys = PropertyCatalogue::GetAllKeys();
    const std::string header = TextOf(SourceDir() + "/foundation/PropertyKey.h");
    std::size_t constants = 0;
    for (auto at = header.find("static constexpr"); at != std::string::npos;
         at = header.find("static constexpr", at + 1)) {
        ++constants;
    }
    EXPECT_EQ(keys.size(), constants);
    for (const PropertyCatalogue::Key& key : keys) {
        EXPECT_NE(header.find('"' + key.key + '"'), std::string::npos) << key.key;
        for (const PropertyCatalogue::Source& source : key.sources) {
            const auto tre = source.text.find(" TRE ");
            const auto field = source.text.find(" field ");
            if (tre != std::string::npos && source.text.find(" and what ") == std::string::npos) {
                const std::string tag = source.text.substr(tre + 5, field - tre - 5);
                std::string help;
                EXPECT_TRUE(TRECatalogue::DescribeField(tag.c_str(), source.text.substr(field + 7).c_str(), help))
                    << source.text;
            }
        }
    }
}

TEST(PropertyCatalogueTest, ThePageOfTheDocumentsIsMadeFromTheTable)
{
    EXPECT_EQ(TextOf(SourceDir() + "/docs/properties.md"), PropertyCatalogue::GetPage())
        << "ormo-nitf property --keys > docs/properties.md";
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

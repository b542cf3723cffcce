#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "segments/NITFHeaderCatalogue.h"
#include "segments/NITFWords.h"
#include "tests/support/NitfBuilder.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

constexpr auto IMAGE = NITFCnst::DATA_SEGMENT_TYPE_IMAGE;
constexpr auto V20 = NITFCnst::NITF_VERSION_NUMBER_20;
constexpr auto V21 = NITFCnst::NITF_VERSION_NUMBER_21;

TEST(NITFHeaderCatalogueTest, EveryFieldOfEveryHeaderIsDescribed)
{
    int headers = 0;
    for (int kind = NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION; kind <= NITFCnst::DATA_SEGMENT_TYPE_TEXT; ++kind) {
        const auto type = static_cast<NITFCnst::DataSegmentType>(kind);
        for (const auto version : {V20, V21}) {
            std::string layout;
            const bool has = NITFHeaderCatalogue::DescribeHeader(type, version, layout);
            const auto names = NITFHeaderCatalogue::GetFieldNames(type, version);
            EXPECT_EQ(has, !names.empty());
            headers += has ? 1 : 0;
            for (const std::string& name : names) {
                std::string text;
                EXPECT_TRUE(NITFHeaderCatalogue::DescribeField(type, version, name.c_str(), text)) << name;
                EXPECT_EQ(text.find(name + " (NITF 2."), 0U) << text;
                EXPECT_NE(layout.find(name + "  "), std::string::npos) << name;
            }
        }
    }
    EXPECT_EQ(headers, 13);
}

TEST(NITFHeaderCatalogueTest, NamesAreFoundWithTheirTurnsAndInAnyLetterCase)
{
    std::string plain;
    std::string turned;
    ASSERT_TRUE(NITFHeaderCatalogue::DescribeField(IMAGE, V21, "irepband", plain));
    ASSERT_TRUE(NITFHeaderCatalogue::DescribeField(IMAGE, V21, " IREPBAND_2 ", turned));
    EXPECT_EQ(plain, turned);
    ASSERT_TRUE(NITFHeaderCatalogue::DescribeField(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, V21, "LISH003", turned));
    EXPECT_NE(turned.find("Values: 000439..999998"), std::string::npos) << turned;
    EXPECT_FALSE(NITFHeaderCatalogue::DescribeField(IMAGE, V20, "IID1", plain));
    EXPECT_FALSE(NITFHeaderCatalogue::DescribeField(IMAGE, V21, nullptr, plain));
    EXPECT_FALSE(NITFHeaderCatalogue::DescribeHeader(NITFCnst::DATA_SEGMENT_TYPE_LABEL, V21, plain));
}

/// A file with one image that a test may ask.
class WordsOfFileTest : public testing::TestWithParam<Format>
{
protected:
    ~WordsOfFileTest() override { ImageSupportDataFactory::Destroy(&m_isd); }

    const ImageSupportDataNITF& Open(const NitfBuilder& aBuilder)
    {
        ImageSupportDataFactory::Destroy(&m_isd);
        m_bytes = aBuilder.Bytes();
        ImageSupportDataFactory::CreateFromMemory(m_bytes.data(), m_bytes.size(), false, nullptr, &m_isd, true, false);
        return dynamic_cast<const ImageSupportDataNITF&>(*m_isd);
    }

    std::string m_bytes;
    ImageSupportData* m_isd = nullptr;
};

TEST_P(WordsOfFileTest, EveryCompressionAndClassificationHasAWord)
{
    NitfBuilder builder(GetParam());
    builder.AddImage();
    const NITFImageSubheader* const image = Open(builder).GetImageSubheader(0);
    for (const char* const field : {"IC", "ISCLAS", "PVTYPE"}) {
        std::string rule = NITFHeaderCatalogue::GetValueRule(*image, field);
        std::replace(rule.begin(), rule.end(), '|', '\n');
        const auto codes = std::count(rule.begin(), rule.end(), '\n') + 1;
        EXPECT_EQ(std::count(rule.begin(), rule.end(), '='), codes) << rule;
    }
    EXPECT_EQ(NITFWords::Meaning(*image, "IC"), "not compressed (NC)");
    EXPECT_EQ(NITFWords::Meaning(*image, "ICAT"), NITFWords::Shown(image->FieldText("ICAT")));
    EXPECT_EQ(NITFWords::Meaning(*image, "NOSUCH"), "");
    EXPECT_STREQ(NITFHeaderCatalogue::GetValueRule(*image, "NOSUCH"), "");
}

TEST_P(WordsOfFileTest, TheSummaryTellsTheFileAndItsFirstTenImages)
{
    NitfBuilder builder(GetParam());
    builder.File().Set("FTITLE", "A title").Set("ONAME", "Somebody").Set("FSCLAS", "S");
    for (int i = 0; i != 12; ++i) {
        builder.AddImage(2, 1);
    }
    builder.AddText("x");
    ImageSupportDataNITF& isd = const_cast<ImageSupportDataNITF&>(Open(builder));
    const std::string summary = isd.GetImageSupportDataSummary();
    EXPECT_NE(summary.find(std::string(isd.GetFileTypeAndVersion()) + ", SECRET (S), "), std::string::npos) << summary;
    EXPECT_NE(summary.find("\ntitle: A title\n"), std::string::npos) << summary;
    EXPECT_NE(summary.find("\nsegments: 12 images, 1 text\n"), std::string::npos) << summary;
    EXPECT_NE(summary.find("\nimage 9: 1 column x 2 rows, 1 band of 8-bit integer (INT), "), std::string::npos)
        << summary;
    EXPECT_EQ(summary.find("\nimage 10:"), std::string::npos);
    EXPECT_NE(summary.find("\nand 2 more images\n"), std::string::npos) << summary;
    EXPECT_EQ(isd.GetImageSummary(12), "");
}

INSTANTIATE_TEST_SUITE_P(Formats, WordsOfFileTest, testing::Values(Format::Nitf20, Format::Nitf21, Format::Nsif10));

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests

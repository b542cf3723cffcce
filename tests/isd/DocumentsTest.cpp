// The parts of the two documents, asked for one by one, are what stands in the whole.

#include "isd/ImageSupportDataNITF.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/XmlCheck.h"

#include <cstdio>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using testing::HasSubstr;
using testing::Not;
using Tests::Format;

class DocumentsTest : public testing::TestWithParam<Format>
{
protected:
    DocumentsTest() : m_file(Opened(GetParam())), m_isd(*m_file) {}

    static Tests::OpenedIsd Opened(Format aFormat)
    {
        Tests::NitfBuilder builder(aFormat);
        builder.AddImage();
        builder.AddImage().Set("ISCLAS", "?");
        builder.AddGraphic().Set("SDLVL", "ABC");
        builder.AddText();
        return Tests::OpenedIsd::OfBytes(builder.Bytes());
    }

    Tests::OpenedIsd m_file;
    ImageSupportDataNITF& m_isd;
};

TEST_P(DocumentsTest, PartsOfTheXmlStandInTheWhole)
{
    const std::string whole = m_isd.Serialize();
    std::ostringstream images;
    m_isd.SerializeImageSegments(images);
    EXPECT_THAT(images.str(), testing::StartsWith("  <ImageSegments total=\"2\">\n"));
    EXPECT_THAT(whole, HasSubstr(images.str()));
    std::ostringstream drawn;
    m_isd.SerializeVersionSpecificDataSegments(drawn);
    EXPECT_EQ("", Tests::XmlFault(drawn.str()));
    EXPECT_THAT(whole, HasSubstr(drawn.str()));
    const char* const image = m_isd.GetSerializedXMLMetadata("ImageSegment", 1);
    ASSERT_NE(nullptr, image);
    EXPECT_THAT(images.str(), HasSubstr(image));
    EXPECT_THAT(image, HasSubstr("<ImageSegment index=\"1\">"));
    EXPECT_EQ(nullptr, m_isd.GetSerializedXMLMetadata("ImageSegment", 2));
    EXPECT_THAT(m_isd.GetErrorMessage(), HasSubstr("ImageSegment 2"));
    EXPECT_EQ(nullptr, m_isd.GetSerializedXMLMetadata("ImageSegment", -1));
    EXPECT_EQ(nullptr, m_isd.GetVersionSpecificSerializedXMLMetadata("ImageSegment", 0));
    const bool is20 = GetParam() == Format::Nitf20;
    EXPECT_NE(nullptr, m_isd.GetVersionSpecificSerializedXMLMetadata(is20 ? "SymbolSegment" : "GraphicSegment", 0));
}

TEST_P(DocumentsTest, OnlyTheOwnVersionIsWritten)
{
    const bool is20 = GetParam() == Format::Nitf20;
    EXPECT_EQ(nullptr, m_isd.SerializeImageSupportDataNITF(is20 ? 21 : 20));
    EXPECT_EQ(nullptr, m_isd.SerializeImageSupportDataNITF(11));
    const char* const once = m_isd.SerializeImageSupportDataNITF(is20 ? 20 : 21);
    ASSERT_NE(nullptr, once);
    EXPECT_EQ(once, m_isd.Serialize()) << "built once";
    EXPECT_THAT(once, HasSubstr(is20 ? "  version=\"02.00\">" : "  version=\"02.10\">"));
}

TEST_P(DocumentsTest, ADocumentInPiecesIsTheSame)
{
    std::FILE* const out = std::tmpfile();
    ASSERT_NE(nullptr, out);
    EXPECT_TRUE(m_isd.WriteXml(out));
    std::string written(static_cast<std::size_t>(std::ftell(out)), '\0');
    std::rewind(out);
    EXPECT_EQ(written.size(), std::fread(written.data(), 1, written.size(), out));
    std::fclose(out);
    EXPECT_EQ(m_isd.Serialize(), written);
    std::FILE* const full = std::fopen("/dev/full", "w");
    ASSERT_NE(nullptr, full);
    std::setvbuf(full, nullptr, _IONBF, 0);
    EXPECT_FALSE(m_isd.WriteXml(full));
    EXPECT_NE(nullptr, m_isd.GetErrorMessage());
    std::fclose(full);
    EXPECT_FALSE(m_isd.WriteXml(nullptr));
}

TEST_P(DocumentsTest, PartsOfTheReportStandInTheWhole)
{
    unsigned long errors = 0;
    unsigned long warnings = 0;
    EXPECT_FALSE(m_isd.RigorousValidation(errors, warnings));
    const std::string whole = m_isd.GetValidationSummaryReport();
    std::string drawn;
    unsigned long drawnErrors = 0;
    EXPECT_FALSE(m_isd.RigorousValidationVersionSpecificDataSegments(drawn, drawnErrors, warnings));
    EXPECT_LT(drawnErrors, errors);
    EXPECT_THAT(drawn, HasSubstr("SDLVL"));
    EXPECT_THAT(drawn, Not(HasSubstr("ISCLAS")));
    const std::string_view first = std::string_view(drawn).substr(0, drawn.find("</Summary>"));
    EXPECT_THAT(whole, HasSubstr(std::string(first)));
    std::string global;
    m_isd.RigorousValidationNITFGlobal(global, drawnErrors, warnings);
    EXPECT_THAT(global, Not(HasSubstr("SDLVL")));
}

INSTANTIATE_TEST_SUITE_P(Versions, DocumentsTest, testing::Values(Format::Nitf20, Format::Nitf21),
                         [](const auto& aInfo) { return aInfo.param == Format::Nitf20 ? "Nitf20" : "Nitf21"; });

}  // namespace
}  // namespace ORMO::SensorModel::CSM

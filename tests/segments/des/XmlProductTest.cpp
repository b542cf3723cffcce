#include "segments/des/NITFDESSubheader.h"
#include "segments/des/detail/XmlProduct.h"
#include "tests/support/Corpus.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

constexpr const char* SICD =
    R"(<?xml version="1.0"?><SICD xmlns="urn:SICD:1.2.1"><CollectionInfo><CollectorName> RCM-1 </CollectorName>)"
    R"(<RadarMode><ModeType>STRIPMAP</ModeType></RadarMode></CollectionInfo><GeoData><SCP><LLH><Lat>45.5</Lat>)"
    R"(<Lon>-73.4</Lon><HAE>-5.3</HAE></LLH></SCP></GeoData></SICD>)";

constexpr const char* SIDD =
    R"(<s:SIDD xmlns:s="urn:SIDD:2.0.0" xmlns:c="urn:SICommon:1.0"><s:Measurement><s:PlaneProjection>)"
    R"(<s:ReferencePoint><c:ECEF><c:X>1</c:X><c:Y>2</c:Y><c:Z>3</c:Z></c:ECEF></s:ReferencePoint></s:PlaneProjection>)"
    R"(</s:Measurement><s:ExploitationFeatures><s:Collection><s:Information><s:SensorName>Umbra</s:SensorName>)"
    R"(<s:RadarMode><c:ModeType>SPOTLIGHT</c:ModeType></s:RadarMode></s:Information></s:Collection>)"
    R"(<s:Collection><s:Information><s:SensorName>Second</s:SensorName></s:Information></s:Collection>)"
    R"(</s:ExploitationFeatures></s:SIDD>)";

TEST(XmlProductTest, SaysWhatADocumentStates)
{
    DesXmlProduct product;
    ASSERT_TRUE(RecogniseXmlProduct(SICD, product));
    EXPECT_EQ("SICD", product.standard);
    EXPECT_EQ("1.2.1", product.version);
    EXPECT_EQ("RCM-1", product.collector);
    EXPECT_EQ("STRIPMAP", product.mode);
    EXPECT_EQ("45.5, -73.4, -5.3", product.centre);
    EXPECT_EQ("", product.reference);

    DesXmlProduct derived;
    ASSERT_TRUE(RecogniseXmlProduct(SIDD, derived));
    EXPECT_EQ("SIDD", derived.standard);
    EXPECT_EQ("2.0.0", derived.version);
    EXPECT_EQ("Umbra", derived.collector) << "the first collection";
    EXPECT_EQ("SPOTLIGHT", derived.mode);
    EXPECT_EQ("", derived.centre);
    EXPECT_EQ("1, 2, 3", derived.reference);
}

TEST(XmlProductTest, OtherDocumentsAreNone)
{
    DesXmlProduct product;
    for (const char* const document : {"", "SICD", "<SICD/>", R"(<SICD xmlns="urn:SIDD:1.0.0"/>)",
                                       R"(<x xmlns="urn:SICD:1.2.1"/>)", R"(<SICD xmlns="http://urn:SICD:1.2.1"/>)",
                                       R"(<gmd:x xmlns:gmd="urn:x"><SICD xmlns="urn:SICD:1.2.1"/></gmd:x>)"}) {
        EXPECT_FALSE(RecogniseXmlProduct(document, product)) << document;
        EXPECT_EQ("", product.standard);
    }
}

TEST(XmlProductTest, ACutDocumentGivesWhatStoodBefore)
{
    const std::string whole(SICD);
    for (std::size_t length = 0; length != whole.size(); ++length) {
        DesXmlProduct product;
        const bool recognised = RecogniseXmlProduct(whole.substr(0, length), product);
        EXPECT_EQ(length > whole.find("1.2.1\">") + 6, recognised) << length;
        EXPECT_EQ(length > whole.find("</ModeType>") + 10 ? "STRIPMAP" : "", product.mode) << length;
    }
}

TEST(XmlProductTest, DocumentTypesAreRefusedSoThatNoEntityIsExpanded)
{
    DesXmlProduct product;
    EXPECT_FALSE(
        RecogniseXmlProduct("<!DOCTYPE SICD [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;\">]>"
                            "<SICD xmlns=\"urn:SICD:1.2.1\"><CollectionInfo><CollectorName>&b;</CollectorName>"
                            "</CollectionInfo></SICD>",
                            product));
    EXPECT_FALSE(
        RecogniseXmlProduct("<!DOCTYPE SICD SYSTEM \"file:///etc/passwd\"><SICD xmlns=\"urn:SICD:1.2.1\"/>", product));
    EXPECT_EQ("", product.collector);
}

TEST(XmlProductTest, DepthAndLengthAreBounded)
{
    std::string deep = R"(<SICD xmlns="urn:SICD:1.2.1">)";
    for (int i = 0; i != 100000; ++i) {
        deep += "<a>";
    }
    DesXmlProduct product;
    EXPECT_TRUE(RecogniseXmlProduct(deep, product));

    const std::string name = R"(<SICD xmlns="urn:SICD:1.2.1"><CollectionInfo><CollectorName>)" +
                             std::string(100000, 'n') + "</CollectorName></CollectionInfo></SICD>";
    EXPECT_TRUE(RecogniseXmlProduct(name, product));
    EXPECT_EQ(std::string(256, 'n'), product.collector);

    DesXmlProduct late;
    const std::string far = R"(<SICD xmlns="urn:SICD:1.2.1">)" + std::string(MOST_XML_READ, ' ') +
                            "<CollectionInfo><CollectorName>x</CollectorName></CollectionInfo></SICD>";
    EXPECT_TRUE(RecogniseXmlProduct(far, late));
    EXPECT_EQ("", late.collector);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail

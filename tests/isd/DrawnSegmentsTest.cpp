// Graphics, symbols and labels inside whole files: where they stand, what they draw, what is wrong with them.

#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/XmlCheck.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct IsdDestroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};

/// A file opened through the factory.
class Opened
{
public:
    explicit Opened(const std::string& aPath, bool aImagesOnly = false)
    {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, !aImagesOnly, false);
        m_isd.reset(isd);
    }
    ImageSupportDataNITF* operator->() const { return &dynamic_cast<ImageSupportDataNITF&>(*m_isd); }
    std::string Xml() const { return (*this)->Serialize(); }

private:
    std::unique_ptr<ImageSupportData, IsdDestroyer> m_isd;
};

Opened Open(const NitfBuilder& aBuilder, bool aImagesOnly = false)
{
    const TempFile file(aBuilder.Bytes());
    return Opened(file.Path(), aImagesOnly);
}

std::string Bytes(const std::string& aElements)
{
    return aElements + CgmElementBytes(0, 2, "");
}

const std::string LINE = CgmElementBytes(4, 1, {1, 2, 3, 4});

HeaderFields& AddGraphic(NitfBuilder& aBuilder, unsigned aLevel, unsigned aAttachedTo, const char* aLocation,
                         const std::string& aData = Bytes(LINE))
{
    return aBuilder.AddGraphic(aData).Set("SDLVL", aLevel).Set("SALVL", aAttachedTo).Set("SLOC", aLocation);
}

TEST(DrawnSegmentsTest, GraphicsStandWhereTheirAttachmentsPutThemInTheOrderOfTheirLevels)
{
    NitfBuilder builder;
    builder.AddImage().Set("IDLVL", 5U).Set("ILOC", "0010000200");
    AddGraphic(builder, 7, 5, "-0010-0020");
    AddGraphic(builder, 6, 7, "0000100001");
    AddGraphic(builder, 2, 0, "0003000040");
    const Opened isd = Open(builder);
    EXPECT_THAT(isd->GetWarnings(), IsEmpty());
    EXPECT_TRUE(isd->HasGraphicalData());
    EXPECT_EQ(3U, isd->GetNumOfCGMMetaFiles());
    std::vector<std::uint64_t> levels;
    for (const NITFFieldSegment* const segment : isd->GetDisplayableDataSegmentOrderedByDisplayLevels()) {
        levels.push_back(segment->GetDataSegmentDisplayLevel());
    }
    EXPECT_THAT(levels, ElementsAre(2, 5, 6, 7));

    const NITF21GraphicSubheader* const graphic = isd->GetGraphicSubheader(1);
    ASSERT_NE(nullptr, graphic);
    long row = 0;
    long column = 0;
    EXPECT_TRUE(graphic->GetCCSColumnAndRow(column, row));
    EXPECT_EQ(100 - 10 + 1, row);
    EXPECT_EQ(200 - 20 + 1, column);
    long ccsRow = 0;
    long ccsColumn = 0;
    EXPECT_TRUE(graphic->GetCommonCoordinateSys(row, column, ccsRow, ccsColumn));
    EXPECT_EQ(1, row);
    EXPECT_EQ(91, ccsRow);
    EXPECT_TRUE(graphic->GetCGMMetaFile()->GetAbsCCS(row, column));
    EXPECT_EQ(181, column);
    std::string svg;
    EXPECT_TRUE(graphic->AppendSvg(svg));
    EXPECT_THAT(svg, HasSubstr("translate(181 91)"));
    CGMDrawing::Bounds bounds;
    EXPECT_TRUE(graphic->GetDrawnBounds(bounds));
    EXPECT_EQ(182, bounds.left);
    EXPECT_EQ(95, bounds.bottom);
    EXPECT_EQ(nullptr, isd->GetGraphicSubheader(3));
    EXPECT_EQ(nullptr, isd->GetSymbolSubheader(0));

    const std::string xml = isd.Xml();
    EXPECT_THAT(
        xml,
        HasSubstr("  <GraphicSegments total=\"3\">\n    <GraphicSegment index=\"0\">\n      <GSField field=\"1\""));
    EXPECT_THAT(xml, HasSubstr("      <CGMMetafile>\n              LINE (1,2) (3,4);\n              ENDMF ;\n      "
                               "</CGMMetafile>\n    </GraphicSegment>\n"));
    EXPECT_EQ(3U, Open(builder, true)->GetNumOfCGMMetaFiles());  // what lies over images belongs to them
}

TEST(DrawnSegmentsTest, LevelsThatCannotBeAreNamedOnceEach)
{
    NitfBuilder builder;
    AddGraphic(builder, 1, 2, "0000000000");
    AddGraphic(builder, 2, 1, "0000000000");
    AddGraphic(builder, 3, 77, "0000500006");
    AddGraphic(builder, 3, 0, "0000000000");
    AddGraphic(builder, 4, 0, "-0001-0001");
    const Opened isd = Open(builder);
    std::vector<std::string> found;
    for (const Finding& finding : isd->GetFindings()) {
        found.push_back(std::to_string(finding.index) + ' ' + finding.field + ' ' + finding.value + ": " +
                        finding.sentence);
    }
    EXPECT_THAT(
        found,
        ElementsAre(
            HasSubstr("4  : WARN: The metafile is not read: it cannot have this place."),
            HasSubstr("3 SDLVL 003: WARN: An earlier segment has the same display level"),
            HasSubstr("0 SALVL 002: WARN: The segment of display level 1 is attached to itself by way of level 2"),
            HasSubstr("1 SALVL 001: WARN: The segment of display level 2 is attached to itself"),
            HasSubstr("2 SALVL 077: WARN: No segment has the display level 77")));
    long row = 0;
    long column = 0;
    EXPECT_TRUE(isd->GetGraphicSubheader(2)->GetCCSColumnAndRow(column, row));
    EXPECT_EQ(5, row);
    EXPECT_EQ(nullptr, isd->GetGraphicSubheader(4)->GetCGMMetaFile());
    EXPECT_EQ(4U, isd->GetNumOfCGMMetaFiles());
}

TEST(DrawnSegmentsTest, AFaultInAMetafileIsOneFindingWithItsPlaceAndKeepsTheFile)
{
    NitfBuilder builder;
    AddGraphic(builder, 1, 0, "0000000000", LINE + CgmElementBytes(4, 12, {1, 2}) + LINE);
    AddGraphic(builder, 2, 0, "0000000000", LINE);
    const Opened isd = Open(builder);
    const std::vector<Finding> findings = isd->GetFindings();
    ASSERT_EQ(2U, findings.size());
    EXPECT_EQ(Finding::Level::Warning, findings[0].level);
    EXPECT_EQ("GraphicSegment", findings[0].segment);
    EXPECT_EQ(0, findings[0].index);
    EXPECT_EQ(isd->GetGraphicSubheader(0)->GetSegmentDataStart() + LINE.size(), findings[0].offset);
    EXPECT_THAT(findings[0].detail, HasSubstr("CGM element CIRCLE (class 4, id 12) at byte offset 10 of the metafile"));
    EXPECT_THAT(findings[1].sentence, HasSubstr("ends without the element END METAFILE"));
    EXPECT_EQ(1, findings[1].index);
    EXPECT_EQ(1U, isd->GetGraphicSubheader(0)->GetCGMMetaFile()->GetAllGraphicalPrimitiveElements().size());
    EXPECT_EQ(
        "", XmlFault(isd.Xml().substr(isd.Xml().find("<GraphicSegments"),
                                      isd.Xml().find("</GraphicSegments>") - isd.Xml().find("<GraphicSegments") + 18)));
}

TEST(DrawnSegmentsTest, SymbolsOfAllThreeKindsAndLabelsAreRead)
{
    NitfBuilder builder(Format::Nitf20);
    builder.AddGraphic(Bytes(LINE)).Set("STYPE", "C").Set("SDLVL", 1U).Set("SLOC", "0000500006");
    HeaderFields& bitmap = builder.AddGraphic("\x1B");
    bitmap.Set("STYPE", "B").Set("NLIPS", 2U).Set("NPIXPL", 2U).Set("NBPP", 2U).Set("SCOLOR", "C").Set("NELUT", 4U);
    bitmap.Set("SDLVL", 2U).Set("SALVL", 1U).Set("SLOC", "0001000020");
    bitmap.InsertAfter("NELUT", "DLUT", std::string("\1\2\3\4\5\6\7\10\11\12\13\14", 12));
    HeaderFields& object = builder.AddGraphic("");
    object.Set("STYPE", "O").Set("NLIPS", 10U).Set("NPIXPL", 8U).Set("NWDTH", 10U).Set("NBPP", 1U).Set("SDLVL", 3U);
    object.Set("SALVL", 2U).Set("SLOC", "0000100001").Set("SCOLOR", "R").Set("SNUM", "000013");
    builder.AddGraphic("").Set("STYPE", "O").Set("SDLVL", 4U).Set("SNUM", "000099");
    builder.AddLabel("Hello").Set("LDLVL", 5U).Set("LALVL", 2U).Set("LLOC", "0000200003");
    const Opened isd = Open(builder);

    const NITF20SymbolSubheader* const two = isd->GetSymbolSubheader(1);
    ASSERT_NE(nullptr, two->GetBitmappedSymbol());
    EXPECT_EQ((NITF20BitmappedSymbol::Color{false, 10, 11, 12}), two->GetBitmappedSymbol()->GetPixelColor(1, 1));
    EXPECT_EQ((NITF20BitmappedSymbol::Color{false, 1, 2, 3}), two->GetBitmappedSymbol()->GetPixelColor(0, 0));
    std::string svg;
    EXPECT_TRUE(two->AppendSvg(svg));
    EXPECT_THAT(svg, HasSubstr("translate(26 15)"));
    EXPECT_EQ(nullptr, two->GetCGMMetaFile());

    const NITF20SymbolSubheader* const three = isd->GetSymbolSubheader(2);
    ASSERT_NE(nullptr, three->GetObjectSymbol());
    svg.clear();
    EXPECT_TRUE(three->AppendSvg(svg));
    EXPECT_THAT(svg, HasSubstr("translate(26 15)\">\n<ellipse cx=\"1\" cy=\"1\" rx=\"5\" ry=\"5\" fill=\"#ff0000\"/>"));
    CGMDrawing::Bounds bounds;
    EXPECT_TRUE(three->GetDrawnBounds(bounds));
    EXPECT_LE(bounds.left, 22);
    EXPECT_GE(bounds.bottom, 21);

    EXPECT_EQ(nullptr, isd->GetSymbolSubheader(3)->GetObjectSymbol());
    svg.clear();
    EXPECT_FALSE(isd->GetSymbolSubheader(3)->AppendSvg(svg));
    EXPECT_THAT(isd->GetWarnings(),
                ElementsAre(HasSubstr("WARN: The shape of the symbol is not read: its number or rotation is none.")));

    const NITF20LabelSubheader* const label = isd->GetLabelSubheader(0);
    std::size_t length = 0;
    EXPECT_STREQ("Hello", label->GetLabelData()->GetLabelText(length));
    EXPECT_THAT(ClearText(*label->GetCGMMetaFile()), HasSubstr("BEGMF \"NITF Version 2.0 Label Segment converted into "
                                                               "CGM [Label Segment #1]\";\n"));
    svg.clear();
    EXPECT_TRUE(label->AppendSvg(svg));
    EXPECT_THAT(svg, HasSubstr("<rect x=\"29\" y=\"17\" "));
    EXPECT_THAT(svg, HasSubstr("translate(29 17)"));
    EXPECT_EQ(2U, isd->GetNumOfCGMMetaFiles());
    EXPECT_EQ(5U, isd->GetDrawnSegments().size());

    const std::string xml = isd.Xml();
    EXPECT_THAT(
        xml,
        HasSubstr("    <SymbolSegment index=\"1\">\n      <SSField field=\"1\" name=\"SY\" size=\"2\" type=\"R\""));
    EXPECT_THAT(xml,
                HasSubstr("        <ColorLUT size=\"4\">\n          <LUTRedComponent>1 4 7 10</LUTRedComponent>\n"));
    EXPECT_THAT(xml, HasSubstr("      <ObjectSymbol type=\"circle\">\n"));
    EXPECT_THAT(xml, HasSubstr("      <LabelDataAsCGM>\n        <CGMMetafile>\n"));
}

template<typename Class, Format FORMAT, bool LABEL = false>
struct Case
{
    using Subheader = Class;
    static constexpr Format format = FORMAT;
    static constexpr NITFCnst::Version version =
        FORMAT == Format::Nitf20 ? NITFCnst::NITF_VERSION_NUMBER_20 : NITFCnst::NITF_VERSION_NUMBER_21;
    static HeaderFields& Add(NitfBuilder& aBuilder)
    {
        return LABEL ? aBuilder.AddLabel("label").Set("LDLVL", 1U) : aBuilder.AddGraphic(Bytes(LINE)).Set("SDLVL", 1U);
    }
};

template<typename T>
class DrawnSubheaderTest : public testing::Test
{
};

using Cases = testing::Types<Case<NITF21GraphicSubheader, Format::Nitf21>, Case<NITF20SymbolSubheader, Format::Nitf20>,
                             Case<NITF20LabelSubheader, Format::Nitf20, true>>;
TYPED_TEST_SUITE(DrawnSubheaderTest, Cases);

TYPED_TEST(DrawnSubheaderTest, FieldsAreThoseOfTheFileAndCopiesAreEqual)
{
    NitfBuilder builder(TypeParam::format);
    HeaderFields& fields = TypeParam::Add(builder);
    if (TypeParam::format == Format::Nitf20) {
        fields.Event("When it is over");
    }
    fields.Area(fields.Has("LXSHDL") ? "LXSHD" : "SXSHD", Tre("SOMTRE", "12"), 3);
    const BuiltSegment<typename TypeParam::Subheader> segment(builder, TypeParam::version);
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    for (std::size_t i = 0; segment->GetFieldAt(i, name, value, length); ++i) {
        EXPECT_EQ(fields.Get(name), std::string(value, length)) << name;
    }
    EXPECT_EQ(fields.Names().size(), segment->GetNumOfFields());
    EXPECT_STREQ("U", segment->GetClassification());
    EXPECT_STREQ("", segment->GetWarningMessage());
    EXPECT_EQ(1U, segment->GetTREStore().Size());
    ASSERT_NE(nullptr, segment->GetCGMMetaFile());
    typename TypeParam::Subheader copy(*segment);
    EXPECT_TRUE(copy == *segment);
    EXPECT_EQ(ClearText(*segment->GetCGMMetaFile()), ClearText(*copy.GetCGMMetaFile()));
    copy = *segment;
    EXPECT_STREQ(copy.SerializeDataSegment("    "), segment->SerializeDataSegment("    "));
    EXPECT_EQ("", XmlFault(copy.SerializeDataSegment("    ")));
    unsigned long errors = 0;
    unsigned long warnings = 0;
    segment->RigorousValidation(errors, warnings);
    EXPECT_THAT(segment->GetErrorMessage(),
                testing::Not(HasSubstr("rule FLD-")));  // the metafile is only a piece of one

    // Data that are not there leave the fields.
    const BuiltSegment<typename TypeParam::Subheader> cut(builder, TypeParam::version, 1);
    EXPECT_EQ(nullptr, cut->GetCGMMetaFile());
    EXPECT_FALSE(cut->GetSegmentData(value, length));
    std::string svg;
    EXPECT_FALSE(cut->AppendSvg(svg));
    EXPECT_EQ("", XmlFault(cut->SerializeDataSegment("")));
}

TYPED_TEST(DrawnSubheaderTest, EveryShorterSubheaderIsRefused)
{
    NitfBuilder builder(TypeParam::format);
    const std::string raw = TypeParam::Add(builder).Bytes();
    const BuiltSegment<typename TypeParam::Subheader> segment(builder, TypeParam::version);
    const char* const version = TypeParam::format == Format::Nitf20 ? "NITF02.00" : "NITF02.10";
    for (std::size_t size = 2; size != raw.size(); ++size) {
        EXPECT_THROW(ReadSegment<typename TypeParam::Subheader>(raw.substr(0, size), segment.Info(), nullptr, version),
                     ImageSupportDataConstructionException)
            << size;
    }
}

TEST(DrawnSegmentsTest, ValuesOfAGraphicAreHeldAgainstTheirLimits)
{
    NitfBuilder builder;
    HeaderFields& fields = AddGraphic(builder, 12, 3, "-9999-0001");
    fields.Set("SBND1", "0000100002").Set("SBND2", "9999999999").Set("SCOLOR", "C");
    NITF21GraphicSubheader::CCSInformation i;
    EXPECT_TRUE(BuiltSegment<NITF21GraphicSubheader>(builder, NITFCnst::NITF_VERSION_NUMBER_21)->GetCCSInformation(i));
    EXPECT_EQ(12, i.displayLevel);
    EXPECT_EQ(3, i.attachmentLevel);
    EXPECT_EQ(-9999, i.row);
    EXPECT_EQ(-1, i.column);
    EXPECT_TRUE(i.isColor);
    EXPECT_EQ(2, i.upperLeftColumn);
    EXPECT_EQ(99999, i.lowerRightRow);
    const std::pair<const char*, const char*> faults[] = {
        {"SDLVL", "000"}, {"SALVL", "999"}, {"SLOC", "00001 000x"}, {"SBND1", "----------"}, {"SBND2", "          "}};
    for (const auto& [field, value] : faults) {
        fields.Damage(field, value);
        const BuiltSegment<NITF21GraphicSubheader> damaged(builder, NITFCnst::NITF_VERSION_NUMBER_21);
        EXPECT_FALSE(damaged->GetCCSInformation(i)) << field;
        unsigned long errors = 0;
        unsigned long warnings = 0;
        EXPECT_FALSE(damaged->RigorousValidation(errors, warnings)) << field;
        fields.Damage(field, fields.Get(field));
    }
}

TEST(DrawnSegmentsTest, RealFilesShowWhatTheyDrawAndKeepOverflowAtItsOwner)
{
    if (!std::filesystem::exists(CorpusFile("U_1130F.NTF"))) {
        GTEST_SKIP() << "the corpus is absent (ORMO_CORPUS)";
    }
    const Opened overflow(CorpusFile("U_1130F.NTF"));
    const auto tagsOf = [](const NITFFieldSegment& aSegment) {
        std::vector<std::string> tags;
        for (const TRE* const tre : aSegment.GetOverflowTREStore().InOrder()) {
            tags.emplace_back(tre->GetTag());
        }
        return tags;
    };
    EXPECT_THAT(tagsOf(*overflow->GetSymbolSubheader(0)), ElementsAre("SYXDOF"));
    EXPECT_THAT(tagsOf(*overflow->GetLabelSubheader(0)), ElementsAre("LAXDOF"));

    const Opened arrows(CorpusFile("U_1123A.NTF"));
    EXPECT_EQ(8U, arrows->GetDrawnSegments().size());
    EXPECT_EQ(4U, arrows->GetNumOfCGMMetaFiles());
    EXPECT_STREQ("interpret 0=transparent, 1=black",
                 arrows->GetSymbolSubheader(3)->GetBitmappedSymbol()->GetSCOLORDescription());
    long row = 0;
    long column = 0;
    EXPECT_TRUE(arrows->GetLabelSubheader(2)->GetCCSColumnAndRow(column, row));  // on symbol 2, on image 1
    EXPECT_EQ(220, row);
    EXPECT_EQ(35, column);
    for (const char* const name : {"i_3052a.ntf", "i_3063f.ntf", "ns3051v.nsf", "ns3101b.nsf", "i_3113g.ntf",
                                   "gdal3453.ntf", "WithBE.ntf", "U_1060A.NTF", "U_1101A.NTF"}) {
        const Opened isd(CorpusFile(name));
        for (const NITFDrawnSegment* const segment : isd->GetDrawnSegments()) {
            ASSERT_NE(nullptr, segment->GetCGMMetaFile()) << name;
            EXPECT_EQ(nullptr, segment->GetCGMMetaFile()->GetFault()) << name;
        }
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
